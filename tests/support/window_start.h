// How a new fitting window starts.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/test_context.h"

namespace korvet {

/// What its table and its catalogue row make of a window.
struct WindowStart {
    int helpContextId;
    std::size_t boxes;  ///< of all types together
    std::int16_t laps = SeamLapOnly;
    bool pieces = false;     ///< the fitting is of several
    bool seamAngle = false;  ///< can be set, and so can those below
    bool halfPattern = false;
    bool templateType = false;
    bool kerf = false;
    std::vector<std::string> patterns = {};  ///< to select from; none is selected
    std::int16_t miscellaneous = 0;
};

/// The window opens with its first type, and 0 in every box.
inline void ExpectStart(const std::string& category, const WindowStart& start) {
    TestShell shell;
    const auto window = shell.Open(category);
    EXPECT_EQ(window->Row().helpContextId, start.helpContextId);
    EXPECT_EQ(window->dtype, 0);
    EXPECT_EQ(window->miscellaneous, start.miscellaneous);
    EXPECT_EQ(window->Table().multiple, start.pieces);
    EXPECT_EQ(window->settings.LapEnable, start.laps);
    EXPECT_EQ(window->settings.JoinAngleDisable, !start.seamAngle);
    EXPECT_EQ(window->settings.HalfPatternDisable, !start.halfPattern);
    EXPECT_EQ(window->settings.TemplateTypeEnabled, start.templateType);
    EXPECT_EQ(window->settings.KerfEnabled, start.kerf);
    EXPECT_EQ(window->controls.options.optPatternSelect.captions, start.patterns);
    EXPECT_FALSE(window->controls.options.optPatternSelect.selected);
    EXPECT_EQ(window->controls.txtParameter.size(), start.boxes);
    for (const TextBox& box : window->controls.txtParameter) {
        EXPECT_EQ(box.text, "0");
    }
}

}  // namespace korvet
