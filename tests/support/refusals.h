// Sizes that a fitting window refuses, and what it says about them.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "tests/support/test_context.h"

namespace korvet {

// What refusals say; a limit follows where the text ends with a blank.
inline const std::string AboveZero = "This dimension must be greater than 0";
inline const std::string LessThan = "This dimension must be less than ";
inline const std::string GreaterThan = "This dimension must be greater than ";
inline const std::string AtLeast = "This dimension must be equal to or greater than ";
inline const std::string AtMost = "This dimension must be equal to or less than ";
inline const std::string WholeNumber = "This dimension must be an integer (whole number)";
inline const std::string NoRoom = "This dimension must be increased to allow for material thickness";

using BoxTexts = std::map<int, std::string>;  ///< by index of the box

/// A type with its sample sizes, some of them typed over, of which one box is refused.
struct Refusal {
    int type;
    BoxTexts boxes;
    std::string message;
    int box;
};

inline void PrintTo(const Refusal& refusal, std::ostream* out) {
    *out << "type " << refusal.type << " box " << refusal.box << ": " << refusal.message;
}

inline void TypeBoxes(CFittingWindow& window, const BoxTexts& boxes) {
    for (const auto& [index, text] : boxes) {
        window.ChangeBox(static_cast<std::size_t>(index), text);
    }
}

/// The one message so far is this one, about no box or about `box`, which then has the focus.
inline void ExpectUserError(const RecordingUi& ui, const CFittingWindow& window, const std::string& text,
                            std::optional<int> box = {}) {
    EXPECT_FALSE(window.hasModel);
    ASSERT_EQ(ui.messages.size(), 1U);
    EXPECT_EQ(ui.messages[0].text, text);
    EXPECT_EQ(ui.messages[0].title, "User Error");
    EXPECT_EQ(ui.messages[0].style, ExclamationBox);
    EXPECT_EQ(ui.messages[0].box, box);
    if (box) {
        EXPECT_EQ(window.controls.focus, "txtParameter_" + std::to_string(*box));
    }
}

/// The one message so far tells that the fitting cannot be made, about no box, and for this reason. Takes the
/// message away.
inline void ExpectNotMade(RecordingUi& ui, const CFittingWindow& window, const std::string& reason) {
    EXPECT_FALSE(window.hasModel);
    ASSERT_EQ(ui.Texts(), std::vector<std::string>{"This fitting cannot be made with these sizes"});
    EXPECT_EQ(ui.messages[0].detail, reason);
    EXPECT_FALSE(ui.messages[0].box);
    ui.messages.clear();
}

/// The lines of the text block.
inline std::vector<std::string> TextBlock(const CFittingWindow& window) {
    std::vector<std::string> lines;
    for (const CLabel& label : *window.labels) {
        lines.push_back(label.LabelString);
    }
    return lines;
}

}  // namespace korvet
