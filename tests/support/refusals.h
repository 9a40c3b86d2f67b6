// Sizes that a fitting window takes or refuses, and what it says about them. Windows are told by their
// category.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/test_context.h"
#include "window/views.h"

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

/// The one message so far tells that a box holds no number, and the box has the focus. Takes the message
/// away.
inline void ExpectNotANumber(RecordingUi& ui, const CFittingWindow& window, int box) {
    ASSERT_EQ(ui.Texts(), std::vector<std::string>{"Not a valid number"});
    EXPECT_EQ(ui.messages[0].title, "Korvet Development");
    EXPECT_EQ(ui.messages[0].style, QuestionBox);
    EXPECT_EQ(ui.messages[0].box, box);
    EXPECT_EQ(window.controls.focus, "txtParameter_" + std::to_string(box));
    ui.messages.clear();
}

/// Of material of that thickness on the mean line.
inline void ExpectRefused(const std::string& category, const Refusal& refusal, double thickness = 0) {
    TestShell shell;
    const auto window = shell.OpenSample(category, refusal.type);
    window->settings.Thickness = thickness;
    TypeBoxes(*window, refusal.boxes);
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectUserError(shell.ui, *window, refusal.message, refusal.box);
}

/// Selects the first pattern where there are several.
inline void SelectFirstPattern(CFittingWindow& window) {
    if (!window.controls.options.optPatternSelect.captions.empty()) {
        window.SelectPattern(0);
    }
}

/// Types with their sample sizes, some of them typed over, whose patterns are made without a word.
inline void ExpectMade(const std::string& category, const std::vector<std::pair<int, BoxTexts>>& cases) {
    for (const auto& [type, boxes] : cases) {
        SCOPED_TRACE("type " + std::to_string(type) + " box " + std::to_string(boxes.begin()->first));
        TestShell shell;
        const auto window = shell.OpenSample(category, type);
        TypeBoxes(*window, boxes);
        SelectFirstPattern(*window);
        window->ClickView(PatternButton);
        EXPECT_TRUE(window->hasModel);
        EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>());
    }
}

/// By outside dimensions a wall as thick as `thickest` still fits into the sample sizes. A thicker one is
/// refused at `box`, before the sizes `wrongLater`.
inline void ExpectRoomUpTo(double thickest, const std::string& category, int type, int box,
                           const BoxTexts& wrongLater) {
    SCOPED_TRACE(category + ", type " + std::to_string(type));
    TestShell shell;
    const auto window = shell.OpenSample(category, type);
    window->settings.InOutMean = OutsideDimension;
    window->settings.Thickness = thickest;
    EXPECT_EQ(window->BuildFitting(), Passed);
    TypeBoxes(*window, wrongLater);
    window->settings.Thickness = thickest + 0.1;
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectUserError(shell.ui, *window, NoRoom, box);
}

/// A type with its sample sizes, some of them typed over, which pass every check and leave no shape.
struct Shapeless {
    int type;
    BoxTexts boxes;
    std::string reason;
    int segs = 24;
};

inline void PrintTo(const Shapeless& example, std::ostream* out) {
    *out << "type " << example.type << ": " << example.reason;
}

/// Neither the model nor the pattern is made.
inline void ExpectShapeless(const std::string& category, const Shapeless& example) {
    TestShell shell;
    const auto window = shell.OpenSample(category, example.type);
    TypeBoxes(*window, example.boxes);
    window->settings.segs = example.segs;
    SelectFirstPattern(*window);
    for (const int view : {0, PatternButton}) {
        window->ClickView(view);
        ExpectNotMade(shell.ui, *window, example.reason);
    }
}

/// The fitting of a window whose sizes are good.
template <typename Fitting>
const Fitting& Built(CFittingWindow& window) {
    EXPECT_EQ(window.BuildFitting(), Passed);
    return window.fitting->As<Fitting>();
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
