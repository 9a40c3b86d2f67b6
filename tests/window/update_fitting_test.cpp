// The update cycle: what a window shows and holds after a build that went well, and after one that did not.
#include <gtest/gtest.h>

#include "tests/support/recording_device.h"
#include "tests/support/test_context.h"
#include "window/views.h"

namespace korvet {
namespace {

class UpdateFittingTest : public testing::Test {
  protected:
    /// A cone with good sizes, not yet drawn.
    std::unique_ptr<CFittingWindow> Cone() { return shell.OpenSample("Right Cone", 2, &screen); }

    void ExpectPlain(const std::string& text) {
        ASSERT_EQ(shell.ui.messages.size(), 1U);
        EXPECT_EQ(shell.ui.messages[0].text, text);
        EXPECT_EQ(shell.ui.messages[0].style, PlainBox);
        shell.ui.messages.clear();
    }

    TestShell shell;
    RecordingDevice screen;
};

/// Sizes that pass every check and then have no shape, or none that any screen can show.
TEST_F(UpdateFittingTest, ABuildThatFailsAsItIsDisplayedKeepsThePictureAndTheRedBoxes) {
    for (const std::string size : {"1e200", "1e12"}) {
        const auto window = Cone();
        window->ClickView(PatternButton);
        const std::size_t calls = screen.calls.size();
        const double edge = window->display.Surfaces.Item(1).List1->Item(1).x;
        window->ChangeBox(3, size);
        window->ClickView(0);
        ExpectPlain("This fitting cannot be made with these sizes");
        EXPECT_EQ(screen.calls.size(), calls) << size;
        EXPECT_EQ(window->controls.txtParameter[3].textColor, Red) << size;
        EXPECT_TRUE(window->edited) << size;
        EXPECT_FALSE(window->hasModel) << size;
        EXPECT_EQ(window->views->Count(), 1U) << size;
        EXPECT_EQ(window->display.Surfaces.Item(1).List1->Item(1).x, edge) << size;
        window->ChangeBox(3, "310");
        window->Redraw();
        EXPECT_TRUE(window->hasModel);
        EXPECT_EQ(window->controls.txtParameter[3].textColor, Black);
        EXPECT_GT(screen.calls.size(), calls);
    }
}

TEST_F(UpdateFittingTest, AFirstBuildThatFailsAsItIsDisplayedLeavesTheTypeOpen) {
    const auto window = Cone();
    window->ChangeBox(3, "1e200");
    window->ClickView(PatternButton);
    ExpectPlain("This fitting cannot be made with these sizes");
    EXPECT_EQ(window->views->Count(), 0U);
    EXPECT_TRUE(window->controls.btnPoint[0].enabled);
    EXPECT_EQ(window->controls.txtParameter[4].textColor, Red);
}

TEST_F(UpdateFittingTest, ExtentsHaveRoomForATextSizeThatWasJustTyped) {
    const auto window = Cone();
    window->ClickView(PatternButton);
    window->ChangeTextSize("90");
    window->ZoomExtents();
    const WorldWindow& shown = window->display.DisplayWindow();
    const CRuleSurf& pattern = window->display.Surfaces.Item(1);
    for (const PointList& list : {pattern.List1, pattern.List2}) {
        for (const C3DPoint& point : *list) {
            EXPECT_GT(point.x, shown.ScaleLeft);
            EXPECT_LT(point.x, shown.ScaleLeft + shown.ScaleWidth);
            EXPECT_LT(point.y, shown.ScaleTop);
            EXPECT_GT(point.y, shown.ScaleTop + shown.ScaleHeight);
        }
    }
}

TEST_F(UpdateFittingTest, LapWarningsAreShownAfterTheOperationInAPlainBox) {
    const auto window = Cone();
    window->settings.JoinType = 1;
    window->settings.LapSize0 = 1000;
    window->ClickView(PatternButton);
    EXPECT_TRUE(window->hasModel);
    ExpectPlain("Top lap is too large");
}

TEST_F(UpdateFittingTest, AWarningIsShownOnceThoughAGridOrFrameHasThePatternMadeTwice) {
    const auto window = Cone();
    window->settings.JoinType = 1;
    window->settings.LapSize0 = 1000;
    window->display.CoordGridRequested = window->display.FrameRequested = true;
    window->ClickView(PatternButton);
    ExpectPlain("Top lap is too large");
    window->Redraw();
    ExpectPlain("Top lap is too large");
}

TEST_F(UpdateFittingTest, ASizeThatEndsTheArithmeticEndsInAMessage) {
    const auto window = Cone();
    window->ChangeBox(3, "1e308");
    window->ChangeBox(5, "1e308");
    window->ClickView(PatternButton);
    ASSERT_EQ(shell.ui.messages.size(), 1U);
    EXPECT_FALSE(shell.ui.messages[0].detail.empty());
    EXPECT_FALSE(window->hasModel);
    EXPECT_EQ(window->views->Count(), 0U);
}

}  // namespace
}  // namespace korvet
