// A form of parameter boxes without a window, for tests of what windows of several fittings share.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "form/fitting_form.h"
#include "tests/support/recording_ui.h"

namespace korvet {

struct FormOnBoxes {
    /// Boxes txtParameter_0 onwards that hold these texts.
    explicit FormOnBoxes(std::initializer_list<std::string> texts) {
        for (const std::string& text : texts) {
            TextBox& box = boxes.emplace_back();
            box.name = "txtParameter_" + std::to_string(boxes.size() - 1);
            box.text = text;
            box.parameterIndex = static_cast<int>(boxes.size() - 1);
        }
    }

    RecordingUi ui;
    COptions options;
    std::string focus;
    std::vector<TextBox> boxes;
    CPatternSettings settings;
    FittingOptions choices;
    BranchOptions branch;
    FittingForm form{{ui, options, '.', focus}, {boxes, settings, choices, branch, "Test"}};

    /// The one message since the last call, about the box that has the focus; "" for none.
    std::string Refusal(int box) {
        if (ui.messages.empty()) {
            return "";
        }
        EXPECT_EQ(ui.messages.size(), 1U);
        EXPECT_EQ(ui.messages[0].box, box);
        EXPECT_EQ(focus, "txtParameter_" + std::to_string(box));
        focus.clear();
        return std::exchange(ui.messages, {})[0].text;
    }
};

}  // namespace korvet
