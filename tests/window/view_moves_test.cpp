// Views that come by themselves: the wheel, the middle button, and the first picture of a window.
#include <limits>

#include "tests/window/mouse_fixture.h"

namespace korvet {
namespace {

constexpr double Notch = 1 / 0.9;

class ViewMovesTest : public MouseOnCone {
  protected:
    /// Where a point of the drawing lies on the area, in pixels.
    [[nodiscard]] C3DPoint PixelOf(const CFittingWindow& window, double x, double y) const {
        const WorldWindow& shown = window.display.DisplayWindow();
        return {(x - shown.ScaleLeft) / shown.ScaleWidth * area.scaleSize.width,
                (y - shown.ScaleTop) / shown.ScaleHeight * area.scaleSize.height, 0, PlainStation};
    }

    /// Whether the end of every ruling lies on the area.
    [[nodiscard]] bool IsAllOnTheArea(const CFittingWindow& window) const {
        bool inside = true;
        for (const CRuleSurf& surface : window.display.ScreenSurfaces()) {
            for (const PointList& list : {surface.List1, surface.List2}) {
                for (const C3DPoint& point : *list) {
                    const C3DPoint pixel = PixelOf(window, point.x, point.y);
                    inside = inside && pixel.x >= 0 && pixel.x <= area.scaleSize.width && pixel.y >= 0 &&
                             pixel.y <= area.scaleSize.height;
                }
            }
        }
        return inside;
    }

    std::unique_ptr<CFittingWindow> LookedAtCone() {
        auto window = shell.OpenSample("Right Cone", 2, &area);
        window->keepsInSight = true;
        return window;
    }

    static void PanByMiddleButton(CFittingWindow& window, float fromX, float fromY, float toX, float toY) {
        EXPECT_FALSE(window.MouseDown(MouseButton::Middle, fromX, fromY));
        window.MouseMove(MouseButton::Middle, toX, toY);
        window.MouseUp(MouseButton::Middle, toX, toY);
    }
};

TEST_F(ViewMovesTest, TheWheelZoomsAboutThePointUnderIt) {
    const auto window = Cone(PatternButton);
    const C3DPoint before = PixelOf(*window, 120, -30);
    window->TurnWheel(1, 120, -30, 10000);
    EXPECT_DOUBLE_EQ(window->views->Last().ZoomFactor, Notch);
    const C3DPoint zoomed = PixelOf(*window, 120, -30);
    EXPECT_NEAR(zoomed.x, before.x, Close);
    EXPECT_NEAR(zoomed.y, before.y, Close);
    EXPECT_EQ(Passes(), 1U);
    window->TurnWheel(-2.5, 7, 45, 20000);
    EXPECT_DOUBLE_EQ(window->views->Last().ZoomFactor, Notch * std::pow(0.9, 2.5));
}

TEST_F(ViewMovesTest, ThePointStaysUnderTheWheelInAWindowThatWasResized) {
    const auto window = Cone(PatternButton);
    const C3DPoint before = PixelOf(*window, 120, -30);
    area.nextSize = area.outerSize = {700, 300};
    window->TurnWheel(1, 120, -30, 10000);
    area.scaleSize = {700, 300};
    const C3DPoint zoomed = PixelOf(*window, 120, -30);
    EXPECT_NEAR(zoomed.x, before.x, Close);
    EXPECT_NEAR(zoomed.y, before.y, Close);
}

TEST_F(ViewMovesTest, ARunOfTurnsIsOneViewToGoBackFrom) {
    const auto window = Cone(PatternButton);
    for (const std::int64_t time : {10000, 10500, 10900, 11400}) {
        window->TurnWheel(1, 0, 0, time);
    }
    EXPECT_EQ(window->views->Count(), 2U);
    EXPECT_DOUBLE_EQ(window->views->Last().ZoomFactor, Notch * Notch * Notch * Notch);
    window->TurnWheel(1, 0, 0, 11901);
    EXPECT_EQ(window->views->Count(), 3U);
    window->ZoomPrevious();
    window->ZoomPrevious();
    EXPECT_EQ(window->views->Count(), 1U);
    EXPECT_EQ(window->views->Last().ZoomFactor, 1);
}

TEST_F(ViewMovesTest, ARunEndsWithWhatElseChangesTheView) {
    const auto window = Cone(PatternButton);
    window->TurnWheel(1, 0, 0, 10000);
    window->ZoomX(2);
    window->TurnWheel(1, 0, 0, 10010);
    EXPECT_EQ(window->views->Count(), 4U);
    window->ZoomPrevious();
    window->TurnWheel(1, 0, 0, 10020);
    EXPECT_EQ(window->views->Count(), 4U);
    window->ZoomPrevious();
    EXPECT_DOUBLE_EQ(window->views->Last().ZoomFactor, 2 * Notch);
}

TEST_F(ViewMovesTest, TheWheelStopsAtTheLimitsWithoutAWord) {
    const auto window = Cone(PatternButton);
    for (const double turns : {1.0, -1.0}) {
        for (int i = 0; i < 200; ++i) {
            window->TurnWheel(turns, 0, 0, 10000 + 1000 * i);
        }
        const double zoom = window->views->Last().ZoomFactor;
        EXPECT_TRUE(IsWithinZoomLimits(zoom));
        EXPECT_FALSE(IsWithinZoomLimits(zoom * std::pow(Notch, turns)));
        const std::size_t views = window->views->Count();
        window->TurnWheel(turns, 0, 0, 900000);
        EXPECT_EQ(window->views->Count(), views);
    }
    CViewPoint beyond = window->views->Last();
    beyond.ZoomFactor = 10001;
    window->views->Add(beyond);
    window->TurnWheel(-1, 0, 0, 990000);
    EXPECT_EQ(window->views->Last(), beyond);
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST_F(ViewMovesTest, WheelAndMiddleButtonBuildNothing) {
    const auto window = Cone(PatternButton);
    window->ChangeBox(4, "a");
    shell.ui.messages.clear();
    const CRuleSurfs before = window->display.Surfaces;
    window->TurnWheel(1, 10, 10, 10000);
    PanByMiddleButton(*window, 10, 10, 40, 40);
    EXPECT_TRUE(window->hasModel);
    EXPECT_EQ(window->controls.txtParameter[4].textColor, Red);
    EXPECT_EQ(window->display.Surfaces.Item(1).List1, before.Item(1).List1);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_EQ(Passes(), 2U);
}

TEST_F(ViewMovesTest, WheelAndMiddleButtonLeaveTheModeArmed) {
    const auto window = Cone(PatternButton);
    window->RemoveDimension();
    window->MeasureDistance();
    window->TurnWheel(1, 10, 10, 10000);
    PanByMiddleButton(*window, 10, 10, 40, 40);
    EXPECT_TRUE(window->modes.measureMode);
    EXPECT_TRUE(window->removeDimensionMode);
}

TEST_F(ViewMovesTest, ADragGoesOnWhileTheWheelTurns) {
    const auto window = Cone(PatternButton);
    window->ZoomWindow();
    Press(*window, 20, 30);
    window->TurnWheel(1, 20, 30, 10000);
    window->MouseUp(MouseButton::Left, 60, 70);
    EXPECT_EQ(window->views->Last().PanX, 40);
    EXPECT_EQ(window->views->Last().PanY, 50);
}

TEST_F(ViewMovesTest, WithoutAModelThereIsNothingToMove) {
    const auto window = shell.Open("Right Cone", &area);
    window->TurnWheel(1, 0, 0, 10000);
    PanByMiddleButton(*window, 0, 0, 10, 10);
    EXPECT_EQ(window->views->Count(), 0U);
    const auto refused = Cone(PatternButton);
    refused->ChangeBox(4, "400");
    refused->Redraw();
    area.calls.clear();
    refused->TurnWheel(1, 0, 0, 20000);
    PanByMiddleButton(*refused, 0, 0, 10, 10);
    EXPECT_EQ(refused->views->Count(), 1U);
    EXPECT_EQ(Passes(), 0U);
}

TEST_F(ViewMovesTest, WhatIsTooFarOutToBeDrawnIsALimit) {
    const auto window = Cone(PatternButton);
    const float beyond = std::numeric_limits<float>::max();
    window->TurnWheel(1, beyond, 0, 10000);
    PanByMiddleButton(*window, 0, 0, beyond, std::numeric_limits<float>::infinity());
    EXPECT_EQ(window->views->Count(), 1U);
    EXPECT_EQ(Passes(), 0U);
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST_F(ViewMovesTest, TheMiddleButtonTakesThePointAlong) {
    const auto window = Cone(PatternButton);
    const C3DPoint end = PixelOf(*window, 37, -12);
    EXPECT_FALSE(window->MouseDown(MouseButton::Middle, 20, 30));
    window->MouseMove(MouseButton::Middle, 25, 10);
    // What was under the mouse at (25, 10) is now where (30, -10) was, since the picture came along.
    window->MouseMove(MouseButton::Middle, 32, 8);
    window->MouseUp(MouseButton::Middle, 32, 8);
    const C3DPoint moved = PixelOf(*window, 20, 30);
    EXPECT_NEAR(moved.x, end.x, Close);
    EXPECT_NEAR(moved.y, end.y, Close);
    EXPECT_EQ(window->views->Count(), 2U);
    EXPECT_EQ(Passes(), 2U);
    window->MouseMove(MouseButton::Middle, 90, 90);  // nothing is held any more
    EXPECT_EQ(Passes(), 2U);
    PanByMiddleButton(*window, 0, 0, 1, 1);
    EXPECT_EQ(window->views->Count(), 3U) << "a drag of its own";
}

TEST_F(ViewMovesTest, AMiddleClickIsNoView) {
    const auto window = Cone(PatternButton);
    EXPECT_FALSE(window->MouseDown(MouseButton::Middle, 20, 30));
    window->MouseUp(MouseButton::Middle, 20, 30);
    EXPECT_EQ(window->views->Count(), 1U);
    EXPECT_EQ(Passes(), 0U);
}

TEST_F(ViewMovesTest, TheFirstPictureShowsAllOfThePattern) {
    const auto window = LookedAtCone();
    window->ClickView(PatternButton);
    EXPECT_TRUE(IsAllOnTheArea(*window));
    EXPECT_EQ(window->views->Count(), 1U);
    window->ClickView(0);
    EXPECT_TRUE(IsAllOnTheArea(*window));
    EXPECT_EQ(window->views->Count(), 2U);
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST_F(ViewMovesTest, WhatIsSeenInFullKeepsItsPlace) {
    const auto window = LookedAtCone();
    for (const auto& [box, text] : {std::pair{3, "30"}, {4, "12"}, {5, "25"}}) {
        window->ChangeBox(static_cast<std::size_t>(box), text);
    }
    window->ClickView(PlanView);
    EXPECT_EQ(window->views->Count(), 1U);
    EXPECT_EQ(window->views->Last().ZoomFactor, 1);
}

TEST_F(ViewMovesTest, FromTheUsersFirstMoveOnTheViewIsHis) {
    const std::vector<std::function<void(CFittingWindow&)>> moves = {
        [](CFittingWindow& window) { window.ZoomX(Notch); },
        [](CFittingWindow& window) { window.TurnWheel(1, 0, 0, 10000); },
        [](CFittingWindow& window) { PanByMiddleButton(window, 0, 0, 1, 1); },
        [](CFittingWindow& window) {
            window.PanView();
            Drag(window, 0, 0, 1, 1);
        },
        [](CFittingWindow& window) {
            window.ZoomWindow();
            Drag(window, 0, 0, 1, 1);
        }};
    for (const auto& move : moves) {
        const auto window = LookedAtCone();
        window->ClickView(0);
        move(*window);
        const CViewPoint own = window->views->Last();
        window->ClickView(PatternButton);
        EXPECT_EQ(window->views->Last().ZoomFactor, own.ZoomFactor);
        EXPECT_EQ(window->views->Last().PanX, own.PanX);
        EXPECT_EQ(window->views->Last().PanY, own.PanY);
        EXPECT_FALSE(IsAllOnTheArea(*window));
    }
}

TEST_F(ViewMovesTest, ZoomExtentsIsNoViewOfTheUsersOwn) {
    const auto window = LookedAtCone();
    window->ClickView(0);
    window->ZoomExtents();
    window->ClickView(PatternButton);
    EXPECT_TRUE(IsAllOnTheArea(*window));
}

TEST_F(ViewMovesTest, ARefusedPressLeavesTheHistory) {
    const auto window = LookedAtCone();
    window->ChangeBox(4, "400");
    window->ClickView(PatternButton);
    EXPECT_EQ(window->views->Count(), 0U);
    EXPECT_EQ(shell.ui.messages.size(), 1U);
}

TEST_F(ViewMovesTest, AWarningOfTheBuildIsToldOnce) {
    const auto window = LookedAtCone();
    window->settings.JoinType = 1;
    window->settings.LapSize0 = 5000;
    window->ClickView(PatternButton);
    EXPECT_TRUE(window->hasModel);
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>{"Top lap is too large"}));
}

}  // namespace
}  // namespace korvet
