// The outline of a rectangular tee, corner by corner, and the walls that stand on it.
#include "fittings/ducts/rect_tee.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"
#include "tests/support/near.h"

namespace korvet {
namespace {

struct PlanXY {
    double x;
    double y;
};

void ExpectOutline(CRectTee tee, const std::vector<PlanXY>& corners) {
    tee.ConstructModel();
    const CRuleSurf& model = tee.results.ModelSurface;
    ASSERT_EQ(model.List1->Count(), corners.size());
    ASSERT_EQ(model.List2->Count(), corners.size());
    for (std::size_t i = 1; i <= corners.size(); ++i) {
        for (const PointList& list : {model.List1, model.List2}) {
            EXPECT_NEAR(list->Item(i).x, corners[i - 1].x, Near) << i;
            EXPECT_NEAR(list->Item(i).y, corners[i - 1].y, Near) << i;
            EXPECT_EQ(list->Item(i).Flag, RuleStation);
        }
        EXPECT_EQ(model.List1->Item(i).z, 0);
        EXPECT_EQ(model.List2->Item(i).z, tee.End1Depth);
    }
}

CRectTee SquareTeeOfDucts() {
    CRectTee tee;
    tee.End1PlanWidth = 200;
    tee.End1Length = 420;
    tee.End2LeftLength = 260;
    tee.End2RightLength = 300;
    tee.End2LeftPlanWidth = 150;
    tee.End2RightPlanWidth = 180;
    tee.End1Depth = 240;
    tee.CenterLineAngle = 2;  // of no account
    return tee;
}

CRectTee AngledTeeOfDucts(double degrees) {
    CRectTee tee;
    tee.inputs.Dtype = AngledTee;
    tee.End1PlanWidth = 100;
    tee.End1Length = 300;
    tee.End2LeftLength = 200;
    tee.End2RightLength = 150;
    tee.End2LeftPlanWidth = 80;
    tee.End2RightPlanWidth = 80;
    tee.End1Depth = 70;
    tee.CenterLineAngle = DegToRad(degrees);
    return tee;
}

TEST(RectTeeModel, SquareOneHasTheCornersOfItsSizes) {
    ExpectOutline(SquareTeeOfDucts(), {{0, 100},
                                       {270, 100},
                                       {270, 260},
                                       {420, 260},
                                       {420, -300},
                                       {240, -300},
                                       {240, -100},
                                       {0, -100},
                                       {0, 100}});
}

/// At 120 degrees the left outlet turns off by 60: the ends of its sides stand 40 to either side of the point
/// 200 along (1/2, root 3 / 2). The wall opposite goes on from its right side by 350 at -60 degrees.
TEST(RectTeeModel, AngledOneTurnsItsLeftOutlet) {
    const double r = std::numbers::sqrt3;
    ExpectOutline(AngledTeeOfDucts(120), {{-300, -50},
                                          {100 + 20 * r + 175, 100 * r - 20 - 175 * r},
                                          {100 + 20 * r, 100 * r - 20},
                                          {100 - 20 * r, 100 * r + 20},
                                          {-50 / r, 50},
                                          {-300, 50},
                                          {-300, -50}});
}

/// Even square it has no third end: from the foot of the wall opposite a wall runs straight back to the
/// inlet.
TEST(RectTeeModel, AngledOneAt90DegreesIsNoSquareTee) {
    ExpectOutline(AngledTeeOfDucts(90),
                  {{-300, -50}, {40, -150}, {40, 200}, {-40, 200}, {-50, 50}, {-300, 50}, {-300, -50}});
}

/// The throat is where the near walls of inlet and left outlet cross, if both are of one width.
TEST(RectTeeModel, ThroatLiesOnBothWallsOfDuctsOfOneWidth) {
    for (const double degrees : {30.0, 75.0, 90.0, 135.0, 170.0}) {
        CRectTee tee = AngledTeeOfDucts(degrees);
        tee.End2LeftPlanWidth = 100;
        tee.ConstructModel();
        const C3DPoint& throat = tee.results.ModelSurface.List1->Item(5);
        const double turn = std::numbers::pi - degrees * std::numbers::pi / 180;
        EXPECT_NEAR(throat.y, 50, Near);
        EXPECT_NEAR(throat.y * std::cos(turn) - throat.x * std::sin(turn), 50, Near) << degrees;
    }
}

TEST(RectTeeModel, WidthOfTheRightOutletIsReadOfASquareOneAlone) {
    CRectTee angled = AngledTeeOfDucts(100);
    angled.ConstructModel();
    const C3DPoint end = angled.results.ModelSurface.List1->Item(2);
    angled.End2RightPlanWidth = 1000;
    angled.ConstructModel();
    EXPECT_EQ(Distance3D(angled.results.ModelSurface.List1->Item(2), end), 0);
    CRectTee square = SquareTeeOfDucts();
    square.End2RightPlanWidth = 200;
    square.ConstructModel();
    EXPECT_NEAR(square.results.ModelSurface.List1->Item(6).x, 220, Near);
}

TEST(RectTeeModel, OnlyTheDepthOfEnd1Counts) {
    CRectTee tee = SquareTeeOfDucts();
    tee.End2Depth = 999;
    tee.SeamLapSmall = tee.SeamLapLarge = 12;
    tee.inputs.JoinType = 1;
    tee.inputs.LapSize0 = tee.inputs.LapSize1 = 10;
    tee.inputs.HalfPattern = true;
    tee.ConstructModel();
    EXPECT_EQ(tee.results.ModelSurface.List2->Item(3).z, 240);
    EXPECT_EQ(tee.results.ModelSurface.List1->Count(), 9U);
    tee.End1Depth = 0;
    tee.ConstructModel();
    EXPECT_EQ(Distance3D(tee.results.ModelSurface.List1->Item(3), tee.results.ModelSurface.List2->Item(3)),
              0);
}

TEST(RectTeeModel, WithoutSizesAllCornersLieInOnePlace) {
    ExpectOutline({}, std::vector<PlanXY>(9, {0, 0}));
}

TEST(RectTeePattern, IsNotMade) {
    CRectTee tee = SquareTeeOfDucts();
    tee.DevelopModel();
    EXPECT_FALSE(tee.results.PatternSurface.List1);
    EXPECT_FALSE(tee.results.ModelSurface.List1) << "nor is the model for it";
    EXPECT_EQ(tee.results.PatternSurfaceList.Count(), 0U);
}

/// In line with the inlet there is no throat.
TEST(RectTeeWithoutAShape, LeavesTheReachOfSizes) {
    const FittingHandle tee = FittingHandle::Make<CRectTee>();
    tee.As<CRectTee>() = AngledTeeOfDucts(0);
    EXPECT_THROW(tee.ConstructModel(), ArithmeticError);
}

}  // namespace
}  // namespace korvet
