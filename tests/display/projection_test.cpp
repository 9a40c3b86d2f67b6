#include "display/projection.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/display/display_log.h"

namespace korvet {
namespace {

C3DPoint Projected(const C3DPoint& point, double fromXY, double aroundZ) {
    CViewPoint view;
    view.FromXY = fromXY;
    view.AroundZ = aroundZ;
    return ProjectList(*Points({point}), view).Item(1);
}

void ExpectAt(const C3DPoint& point, double x, double y) {
    EXPECT_NEAR(point.x, x, 1e-12);
    EXPECT_NEAR(point.y, y, 1e-12);
    EXPECT_EQ(point.z, 0);
}

TEST(Projection, FromTheSideHeightIsUp) {
    // The x axis has turned to the y axis, which points away from the eye; the y axis to minus x.
    ExpectAt(Projected({1, 0, 7, 0}, 0, 0), 0, 7);
    ExpectAt(Projected({0, 1, 7, 0}, 0, 0), -1, 7);
}

TEST(Projection, AroundZTurnsCounterClockwise) {
    ExpectAt(Projected({1, 0, 7, 0}, 0, QuarterTurn), -1, 7);
    ExpectAt(Projected({1, 0, 7, 0}, 0, -QuarterTurn), 1, 7);
}

TEST(Projection, TiltMixesHeightAndDepth) {
    const double thirty = std::asin(0.5);
    ExpectAt(Projected({1, 0, 0, 0}, thirty, 0), 0, -0.5);
    ExpectAt(Projected({0, 0, 2, 0}, thirty, 0), 0, std::sqrt(3.0));
}

TEST(Projection, StraightDownShowsThePlanWithYDownward) {
    ExpectAt(Projected({3, 4, 5, 0}, QuarterTurn, 0), 3, -4);
}

TEST(Projection, StraightDownIgnoresAroundZ) {
    ExpectAt(Projected({3, 4, 5, 0}, QuarterTurn, 1), 3, -4);
}

TEST(Projection, OnlyTheProgramsOwnQuarterTurnIsStraightDown) {
    // The double nearest to the true right angle is not the program's: here AroundZ and its quarter turn
    // count.
    const double truer = std::acos(0.0);
    ASSERT_NE(truer, QuarterTurn);
    ExpectAt(Projected({3, 4, 5, 0}, truer, 0), -4, -3);
    ExpectAt(Projected({3, 4, 5, 0}, std::nextafter(QuarterTurn, 0), 0), -4, -3);
}

TEST(Projection, KeepsFlags) {
    EXPECT_EQ(Projected({3, 4, 5, CornerRuleStation}, 0, 0).Flag, CornerRuleStation);
}

TEST(Projection, ASurfaceKeepsItsThreeLinesOnly) {
    CRuleSurf surface = Sheet();
    surface.List3 = Points({{0, 0, 9, 0}, {0, 0, 8, 0}});
    surface.LapList1 = surface.List1;
    surface.LapList2 = surface.List2;
    surface.RefPoint = C3DPoint{1, 2, 3, 0};
    surface.RefPointDisplay = true;
    const CRuleSurf work = ProjectSurface(surface, CViewPoint{});
    EXPECT_EQ(work.List1->Count(), 2U);
    EXPECT_EQ(work.List2->Count(), 2U);
    EXPECT_NEAR(work.List3->Item(1).y, 9, 1e-12);
    EXPECT_EQ(work.LapList1, nullptr);
    EXPECT_EQ(work.LapList2, nullptr);
    EXPECT_FALSE(work.RefPointDisplay);
    EXPECT_FALSE(work.RefPoint.has_value());
}

TEST(Projection, ALineOfOnePointStaysBehind) {
    CRuleSurf surface = Sheet();
    surface.List3 = Points({{0, 0, 9, 0}});
    EXPECT_EQ(ProjectSurface(surface, CViewPoint{}).List3, nullptr);
}

TEST(ViewList, KeepsCopiesOfItsViews) {
    CViewList views;
    CViewPoint view = DefaultViewPoint();
    views.Add(view);
    view.ZoomFactor = 5;
    EXPECT_EQ(views.Last().ZoomFactor, 1);
}

TEST(ViewList, StartsStraightDownOnTheModel) {
    const CViewPoint view = DefaultViewPoint();
    EXPECT_EQ(view.AroundZ, 1.570796326794895);
    EXPECT_EQ(view.FromXY, 1.570796326794895);
    EXPECT_EQ(view.PanX, 0);
    EXPECT_EQ(view.PanY, 0);
    EXPECT_EQ(view.ZoomFactor, 1);
    EXPECT_FALSE(view.Patternview);
}

}  // namespace
}  // namespace korvet
