// A plate with the hole of a pipe: in space the hole lies on pipe and plate, on the sheet it is that hole
// laid flat.
#include "fittings/plates/baffle.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "core/checked.h"
#include "core/math_module.h"
#include "tests/support/near.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

/// A plate of 300 by 380 for a pipe of 120, whose axis is 140 from the left side and 170 from List1.
CBaffle PlateAt(double degrees, int segs = 12) {
    CBaffle plate;
    plate.inputs.segs = segs;
    plate.BaseRad = 60;
    plate.CPAngle1 = DegToRad(degrees);
    plate.LengthX = 300;
    plate.LengthY = 380;
    plate.CenterDistanceX = 140;
    plate.CenterDistanceY = 170;
    return plate;
}

const std::vector<double> PlateTilts = {-80, -55, -30, -1, 0, 20, 45, 60, 89, 120, 200};

/// Above the plane of the plate.
double OffThePlate(const CBaffle& plate, const C3DPoint& point) {
    const double a = plate.CPAngle1;
    return point.z * std::cos(a) - point.y * std::sin(a);
}

TEST(BaffleModel, HoleLiesOnThePipeAndOnThePlate) {
    for (const double tilt : PlateTilts) {
        for (const int segs : {1, 12, 13}) {
            CBaffle plate = PlateAt(tilt, segs);
            plate.ConstructModel();
            const C3DPoints& hole = *plate.results.ModelSurface.List3;
            ASSERT_EQ(hole.Count(), 2 * static_cast<std::size_t>(segs) + 1);
            for (std::size_t i = 1; i <= hole.Count(); ++i) {
                EXPECT_NEAR(std::hypot(hole.Item(i).x, hole.Item(i).y), 60, Near);
                EXPECT_NEAR(OffThePlate(plate, hole.Item(i)), 0, Near) << tilt;
                EXPECT_EQ(hole.Item(i).Flag, i % 2);
            }
            EXPECT_LT(Distance3D(hole.Item(1), hole.Last()), 1e-7);
        }
    }
}

TEST(BaffleModel, PlateIsAsLongAsTypedAndLiesInItsPlane) {
    for (const double tilt : PlateTilts) {
        CBaffle plate = PlateAt(tilt);
        plate.ConstructModel();
        const CRuleSurf& model = plate.results.ModelSurface;
        ASSERT_EQ(model.List1->Count(), 2U);
        ASSERT_EQ(model.List2->Count(), 2U);
        for (std::size_t side = 1; side <= 2; ++side) {
            const C3DPoint& a = model.List1->Item(side);
            const C3DPoint& b = model.List2->Item(side);
            EXPECT_NEAR(Distance3D(a, b), 380, Near) << tilt;
            EXPECT_EQ(a.x, side == 1 ? -140 : 160);
            EXPECT_EQ(b.x, a.x);
            EXPECT_NEAR(Distance3D(a, {a.x, 0, 0}), 170, Near);
            EXPECT_NEAR(Distance3D(b, {b.x, 0, 0}), 210, Near);
            EXPECT_NEAR(OffThePlate(plate, a), 0, Near);
            EXPECT_NEAR(OffThePlate(plate, b), 0, Near);
        }
        EXPECT_EQ(model.List2->Item(1).y > model.List1->Item(1).y, std::cos(plate.CPAngle1) > 0);
    }
}

/// Raised off the sheet again by its tilt, with what is low on the sheet on the +y side.
TEST(BafflePattern, BentBackToTheTiltItsHoleLetsThePipeThrough) {
    for (const double tilt : PlateTilts) {
        CBaffle plate = PlateAt(tilt, 13);
        plate.DevelopModel();
        const C3DPoints& hole = *plate.results.PatternSurface.List3;
        ASSERT_EQ(hole.Count(), 27U);
        for (std::size_t i = 1; i <= 27; ++i) {
            const C3DPoint& point = hole.Item(i);
            EXPECT_NEAR(std::hypot(point.x, point.y * std::cos(plate.CPAngle1)), 60, Near) << tilt;
            EXPECT_EQ(point.z, 0);
            EXPECT_EQ(point.Flag, i % 2);
        }
        EXPECT_LT(Distance3D(hole.Item(1), hole.Last()), 1e-7);
    }
}

TEST(BafflePattern, HasTheAxesOfTheClosedForm) {
    CBaffle plate = PlateAt(-60);
    plate.DevelopModel();
    const C3DPoints& hole = *plate.results.PatternSurface.List3;
    EXPECT_NEAR(hole.Item(1).x, 60, Near);
    EXPECT_NEAR(hole.Item(7).y, 120, Near);  // 60 / cos(60 degrees)
    EXPECT_NEAR(hole.Item(13).x, -60, Near);
    EXPECT_NEAR(hole.Item(19).y, -120, Near);
    // At 45 degrees x = y: 1 / x^2 = 1 / 60^2 + 1 / 120^2.
    EXPECT_NEAR(hole.Item(4).x, std::sqrt(2880.0), Near);
    EXPECT_NEAR(hole.Item(4).y, std::sqrt(2880.0), Near);
}

TEST(BafflePattern, LevelPlateHasARoundHole) {
    CBaffle plate = PlateAt(0);
    plate.DevelopModel();
    for (const C3DPoint& point : *plate.results.PatternSurface.List3) {
        EXPECT_NEAR(std::hypot(point.x, point.y), 60, Near);
    }
}

TEST(BafflePattern, PlateIsSeenFromBelow) {
    for (const double tilt : PlateTilts) {
        CBaffle plate = PlateAt(tilt);
        plate.DevelopModel();
        const CRuleSurf& pattern = plate.results.PatternSurface;
        EXPECT_TRUE(SamePoints(*pattern.List1, PointsOf({{-140, 170, 0, 1}, {160, 170, 0, 1}})));
        EXPECT_TRUE(SamePoints(*pattern.List2, PointsOf({{-140, -210, 0, 1}, {160, -210, 0, 1}})));
        EXPECT_FALSE(pattern.RefPoint);
    }
}

TEST(BafflePattern, HasNeitherLapsNorAHalf) {
    CBaffle plain = PlateAt(-30);
    plain.DevelopModel();
    CBaffle plate = PlateAt(-30);
    plate.inputs.JoinType = 1;
    plate.inputs.LapSize0 = plate.inputs.LapSize1 = plate.inputs.LapSize2 = 12;
    plate.inputs.HalfPattern = true;
    plate.inputs.JoinAngle = 1;
    plate.DevelopModel();
    const CRuleSurf& pattern = plate.results.PatternSurface;
    EXPECT_TRUE(SamePoints(*pattern.List1, *plain.results.PatternSurface.List1));
    EXPECT_TRUE(SamePoints(*pattern.List2, *plain.results.PatternSurface.List2));
    EXPECT_TRUE(SamePoints(*pattern.List3, *plain.results.PatternSurface.List3));
    EXPECT_FALSE(pattern.LapList1);
    EXPECT_TRUE(plate.results.warnings.empty());
}

TEST(BafflePattern, MayBeAHoleAlone) {
    CBaffle hole;
    hole.inputs.segs = 6;
    hole.BaseRad = 50;
    hole.CPAngle1 = DegToRad(60);
    hole.DevelopModel();
    EXPECT_EQ(
        Distance3D(hole.results.PatternSurface.List1->Item(1), hole.results.PatternSurface.List2->Item(2)),
        0);
    EXPECT_NEAR(hole.results.PatternSurface.List3->Item(4).y, 100, Near);
}

TEST(BaffleWithoutAShape, StandsAlongThePipe) {
    for (const double tilt : {90.0, -90.0, 270.0, -450.0}) {
        CBaffle plate = PlateAt(tilt);
        EXPECT_THROW(plate.ConstructModel(), ArithmeticError) << tilt;
        EXPECT_THROW(plate.DevelopModel(), ArithmeticError) << tilt;
    }
}

}  // namespace
}  // namespace korvet
