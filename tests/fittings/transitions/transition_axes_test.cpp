// The axes of rotation and the half patterns of the windows of transitions.
#include <gtest/gtest.h>

#include "core/math_module.h"
#include "tests/fittings/transitions/transition_window_fixture.h"

namespace korvet {
namespace {

/// A window with angles, the boxes of its long page.
struct AngleWindow {
    std::string category;
    int offsetY;
    int topAngle;
    int baseAngle;
    int height;
};

void PrintTo(const AngleWindow& window, std::ostream* out) {
    *out << window.category;
}

class TransitionAxes : public testing::TestWithParam<AngleWindow> {
  protected:
    TransitionAxes() : window(shell.OpenSample(GetParam().category, 2)) {
        TypeBoxes(*window, {{GetParam().topAngle, "30"}, {GetParam().baseAngle, "-45"}});
    }

    /// Selects an axis each; none is allowed.
    void Select(std::optional<std::size_t> top, std::optional<std::size_t> base) {
        window->controls.options.optTopAngle.selected = top;
        window->controls.options.optBaseAngle.selected = base;
    }

    TestShell shell;
    std::unique_ptr<CFittingWindow> window;
};

TEST_P(TransitionAxes, StartOnTheYAxis) {
    EXPECT_DOUBLE_EQ(Built(*window).TopTiltY, DegToRad(30));
    EXPECT_DOUBLE_EQ(Built(*window).BaseTiltY, DegToRad(-45));
    EXPECT_EQ(Built(*window).TopTiltX, 0);
    EXPECT_EQ(Built(*window).BaseTiltX, 0);
    EXPECT_EQ(window->controls.options.optTopAngle.captions,
              (std::vector<std::string>{"Angle about X-axis", "Angle about Y-axis"}));
}

TEST_P(TransitionAxes, AreThoseThatAreSelected) {
    Select(0, 1);
    EXPECT_DOUBLE_EQ(Built(*window).TopTiltX, DegToRad(30));
    EXPECT_EQ(Built(*window).TopTiltY, 0);
    EXPECT_DOUBLE_EQ(Built(*window).BaseTiltY, DegToRad(-45));
    Select(1, 0);
    EXPECT_EQ(Built(*window).TopTiltX, 0);
    EXPECT_DOUBLE_EQ(Built(*window).TopTiltY, DegToRad(30));
    EXPECT_DOUBLE_EQ(Built(*window).BaseTiltX, DegToRad(-45));
    EXPECT_EQ(Built(*window).BaseTiltY, 0);
}

TEST_P(TransitionAxes, AreAskedForWhereThereIsAnAngle) {
    for (const bool top : {true, false}) {
        Select(top ? std::nullopt : std::optional<std::size_t>(1),
               top ? std::optional<std::size_t>(1) : std::nullopt);
        shell.ui.messages.clear();
        window->controls.focus = "txtTextSize";
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, "X or Y axis of rotation must be selected");
        EXPECT_EQ(window->controls.focus, "txtTextSize");
    }
}

TEST_P(TransitionAxes, AreNotNeededForAnAngleOfZero) {
    Select({}, {});
    TypeBoxes(*window, {{GetParam().topAngle, "0"}, {GetParam().baseAngle, "0"}});
    ExpectLevel(Built(*window));
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST_P(TransitionAxes, AreAskedForAfterTheAnglesAndBeforeTheRest) {
    Select({}, {});
    TypeBoxes(*window, {{GetParam().baseAngle, "91"}});
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectUserError(shell.ui, *window, "This dimension must be equal to or less than 90",
                    GetParam().baseAngle);
}

TEST_P(TransitionAxes, AHalfPatternNeedsSymmetryAboutX) {
    window->settings.HalfPattern = true;
    TypeBoxes(*window, {{GetParam().offsetY, "0"}});
    EXPECT_EQ(window->BuildFitting(), Passed);
    EXPECT_TRUE(window->settings.HalfPattern);
    EXPECT_TRUE(shell.ui.messages.empty());

    const auto expectRefused = [&](const char* what) {
        SCOPED_TRACE(what);
        window->settings.HalfPattern = true;
        shell.ui.messages.clear();
        EXPECT_EQ(window->BuildFitting(), Passed);
        EXPECT_FALSE(window->settings.HalfPattern);
        ASSERT_EQ(shell.ui.messages.size(), 1U);
        EXPECT_EQ(shell.ui.messages[0].text, "Half pattern not applicable to this item");
        EXPECT_EQ(shell.ui.messages[0].title, "User Error");
        EXPECT_EQ(TextBlock(*window).back(), GetParam().category + "  Full pattern  21 Nov 2026");
    };
    Select(0, 1);
    expectRefused("top about x");
    Select(1, 0);
    expectRefused("base about x");
    Select(1, 1);
    TypeBoxes(*window, {{GetParam().offsetY, "0.5"}});
    expectRefused("offset");
    // Once refused it is not spoken of again.
    shell.ui.messages.clear();
    EXPECT_EQ(window->BuildFitting(), Passed);
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST_P(TransitionAxes, AFailedCheckSaysNothingOfTheHalfPattern) {
    window->settings.HalfPattern = true;
    TypeBoxes(*window, {{GetParam().height, "0"}});
    EXPECT_EQ(window->BuildFitting(), Refused);
    EXPECT_EQ(shell.ui.messages.size(), 1U);
    EXPECT_TRUE(window->settings.HalfPattern);
}

INSTANTIATE_TEST_SUITE_P(Windows, TransitionAxes,
                         testing::Values(AngleWindow{RectRound1, 8, 10, 11, 9},
                                         AngleWindow{RectRound2, 8, 12, 13, 9},
                                         AngleWindow{RectEllipse, 8, 14, 15, 9}));

TEST(TransitionAxesOrder, StandsBeforeTheLaterChecksOfEachWindow) {
    // The height of the second window and the radius of both come after the axes.
    for (const auto& [category, box] :
         {std::pair{RectRound2, 9}, std::pair{RectRound2, 11}, std::pair{RectEllipse, 11}}) {
        TestShell shell;
        const auto window = shell.OpenSample(category, 2);
        TypeBoxes(*window, {{box, box == 9 ? "0" : "150"}});
        window->controls.options.optTopAngle.selected.reset();
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, "X or Y axis of rotation must be selected");
    }
}

TEST(TransitionHalfPattern, OfFoldedRectanglesNeedsNoYOffset) {
    TestShell shell;
    const auto window = shell.OpenSample(Folded, 2);
    window->settings.HalfPattern = true;
    EXPECT_EQ(window->BuildFitting(), Passed);
    EXPECT_FALSE(window->settings.HalfPattern);
    ASSERT_EQ(shell.ui.messages.size(), 1U);
    EXPECT_EQ(shell.ui.messages[0].text, "Half pattern not applicable to this item");
    window->settings.HalfPattern = true;
    TypeBoxes(*window, {{14, "0"}});
    EXPECT_EQ(window->BuildFitting(), Passed);
    EXPECT_TRUE(window->settings.HalfPattern);
}

TEST(TransitionHalfPattern, OfOffsetOvalsStaysSelectedAndIsWhole) {
    TestShell shell;
    const auto window = shell.OpenSample(Oval, 2);
    window->settings.HalfPattern = true;
    ASSERT_EQ(window->BuildFitting(), Passed);
    EXPECT_TRUE(window->settings.HalfPattern);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_EQ(TextBlock(*window).back(), "Oval to Oval  Half pattern  21 Nov 2026");
    window->ApplySettings();
    window->fitting->ConstructModel();
    EXPECT_EQ(window->fitting->Results().ModelSurface.List1->Count(), 54U);
}

}  // namespace
}  // namespace korvet
