// The right cone against closed forms: a cone unrolls to a sector whose angle is 2 pi sin(half angle), and
// every generator keeps its length.
#include "fittings/cones/right_cone.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"
#include "tests/support/flat_area.h"
#include "tests/support/near.h"

namespace korvet {
namespace {

/// Base radius 150, apex 400 high: slant height sqrt(150^2 + 400^2), sin(half angle) = 150 / slant.
CRightCone Frustum(double topHeight = 250) {
    CRightCone cone;
    cone.BaseRad = 150;
    cone.ConeAngle = std::atan(150.0 / 400);
    cone.CPHeight1 = topHeight;
    cone.inputs.Dtype = 1;
    return cone;
}

CRightCone Roof(ConeCut cut, double offset) {
    CRightCone cone = Frustum();
    cone.inputs.Dtype = cut;
    cone.CPHeight1 = cut == UpperRoof ? 200 : 250;
    cone.CPHeight2 = cut == UpperRoof ? 0 : 60;
    cone.CPAngle1 = cut == UpperRoof ? DegToRad(30) : 0;
    cone.CPAngle2 = DegToRad(-20);
    cone.CPAngle3 = cut == UpperRoof ? DegToRad(-25) : DegToRad(15);
    cone.Offset = offset;
    return cone;
}

double DistanceFromAxis(const C3DPoint& point) {
    return std::hypot(point.x, point.y);
}

void ExpectOnCone(const C3DPoint& point) {
    EXPECT_NEAR(DistanceFromAxis(point), (400 - point.z) * 150 / 400, Near);
}

/// Stations whose flag on the given edge is that of a ridge's end.
std::vector<std::size_t> BreakStations(const C3DPoints& edge) {
    std::vector<std::size_t> stations;
    for (std::size_t i = 1; i <= edge.Count(); ++i) {
        if (edge.Item(i).Flag == CornerRuleStation) {
            stations.push_back(i);
        }
    }
    return stations;
}

TEST(RightConeModel, ClosedRingHasOneStationMoreThanSegments) {
    CRightCone cone = Frustum();
    cone.ConstructModel();
    const CRuleSurf& model = cone.results.ModelSurface;
    ASSERT_EQ(model.List1->Count(), 25U);
    ASSERT_EQ(model.List2->Count(), 25U);
    EXPECT_LT(Distance3D(model.List1->Item(1), model.List1->Item(25)), 1e-9);
    EXPECT_NEAR(cone.ApexHeight, 400, 1e-9);
}

TEST(RightConeModel, EdgesLieOnTheConeAtTheirHeights) {
    CRightCone cone = Frustum();
    cone.ConstructModel();
    for (std::size_t i = 1; i <= 25; ++i) {
        const C3DPoint& top = cone.results.ModelSurface.List1->Item(i);
        const C3DPoint& base = cone.results.ModelSurface.List2->Item(i);
        EXPECT_NEAR(top.z, 250, Near);
        EXPECT_NEAR(base.z, 0, Near);
        EXPECT_NEAR(DistanceFromAxis(top), 150.0 * 150 / 400, Near);
        EXPECT_NEAR(DistanceFromAxis(base), 150, Near);
        EXPECT_EQ(top.Flag, static_cast<int>(i % 2));
        EXPECT_EQ(base.Flag, static_cast<int>(i % 2));
    }
}

TEST(RightConeModel, TiltedPlanesCutTheConeWhereTheyCrossIt) {
    CRightCone cone = Frustum(220);
    cone.CPAngle1 = DegToRad(25);
    cone.CPAngle2 = DegToRad(-10);
    cone.CPHeight2 = 50;
    cone.ConstructModel();
    for (std::size_t i = 1; i <= 25; ++i) {
        const C3DPoint& top = cone.results.ModelSurface.List1->Item(i);
        const C3DPoint& base = cone.results.ModelSurface.List2->Item(i);
        ExpectOnCone(top);
        ExpectOnCone(base);
        // A plane tilted towards +x by p falls by tan p for each unit of x.
        EXPECT_NEAR(top.z, 220 - top.x * std::tan(DegToRad(25)), Near);
        EXPECT_NEAR(base.z, 50 - base.x * std::tan(DegToRad(-10)), Near);
    }
}

TEST(RightConeModel, SeamStandsAtTheJoinAngle) {
    CRightCone cone = Frustum();
    cone.inputs.JoinAngle = 1;
    cone.ConstructModel();
    const C3DPoint origin;
    EXPECT_NEAR(PlanAngle(origin, cone.results.ModelSurface.List2->Item(1)), 1, Near);
}

TEST(RightConeModel, HalfPatternKeepsHalfTheStations) {
    CRightCone cone = Frustum();
    cone.inputs.HalfPattern = true;
    cone.DevelopModel();
    EXPECT_EQ(cone.results.ModelSurface.List1->Count(), 13U);
    EXPECT_EQ(cone.results.PatternSurface.List2->Count(), 13U);
    const C3DPoint& last = cone.results.ModelSurface.List2->Item(13);
    EXPECT_NEAR(last.x, -150, Near);
}

class RoofTest : public testing::TestWithParam<double> {};

TEST_P(RoofTest, UpperPlanesMeetInTheRidge) {
    const double offset = GetParam();
    CRightCone cone = Roof(UpperRoof, offset);
    cone.ConstructModel();
    const C3DPoints& top = *cone.results.ModelSurface.List1;
    const std::vector<std::size_t> breaks = BreakStations(top);
    ASSERT_EQ(breaks.size(), 2U);
    EXPECT_EQ(top.Count(), 27U);
    for (const std::size_t station : breaks) {
        EXPECT_NEAR(top.Item(station).x, offset, Near);
        EXPECT_NEAR(top.Item(station).z, 200, Near);
        EXPECT_EQ(cone.results.ModelSurface.List2->Item(station).Flag, RuleStation);
    }
    for (const C3DPoint& point : top) {
        ExpectOnCone(point);
        const double tilt = point.x > offset ? DegToRad(30) : DegToRad(-25);
        EXPECT_NEAR(point.z, 200 - (point.x - offset) * std::tan(tilt), 1e-8);
    }
}

TEST_P(RoofTest, LowerPlanesMeetInTheRidge) {
    const double offset = GetParam();
    CRightCone cone = Roof(LowerRoof, offset);
    cone.ConstructModel();
    const C3DPoints& bottom = *cone.results.ModelSurface.List2;
    const std::vector<std::size_t> breaks = BreakStations(bottom);
    ASSERT_EQ(breaks.size(), 2U);
    for (const std::size_t station : breaks) {
        EXPECT_NEAR(bottom.Item(station).x, offset, Near);
        EXPECT_NEAR(bottom.Item(station).z, 60, Near);
        EXPECT_EQ(cone.results.ModelSurface.List1->Item(station).Flag, RuleStation);
    }
    for (const C3DPoint& point : bottom) {
        ExpectOnCone(point);
        const double tilt = point.x > offset ? DegToRad(-20) : DegToRad(15);
        EXPECT_NEAR(point.z, 60 - (point.x - offset) * std::tan(tilt), 1e-8);
    }
    for (const C3DPoint& point : *cone.results.ModelSurface.List1) {
        EXPECT_NEAR(point.z, 250, Near);
    }
}

INSTANTIATE_TEST_SUITE_P(Offsets, RoofTest, testing::Values(-40.0, -7.5, 0.0, 12.0, 55.0));

TEST(RightConeRoof, RidgeOverTheAxisBreaksAtTheQuarterTurns) {
    CRightCone cone = Roof(UpperRoof, 0);
    cone.ConstructModel();
    const C3DPoints& top = *cone.results.ModelSurface.List1;
    const std::vector<std::size_t> breaks = BreakStations(top);
    ASSERT_EQ(breaks.size(), 2U);
    EXPECT_NEAR(top.Item(breaks[0]).y, 75, Near);
    EXPECT_NEAR(top.Item(breaks[1]).y, -75, Near);
}

TEST(RightConePattern, DevelopedAngleIsTheSineOfTheHalfAngleTimesAFullTurn) {
    for (const int segs : {1, 2, 3, 7, 24, 144, 1000}) {
        CRightCone cone = Frustum();
        cone.inputs.segs = segs;
        cone.DevelopModel();
        const C3DPoints& base = *cone.results.PatternSurface.List2;
        const double expected = FullTurn * std::sin(std::atan(150.0 / 400));
        EXPECT_NEAR(PlanAngle({}, base.Item(base.Count())), expected, 1e-9) << segs;
    }
}

TEST(RightConePattern, EveryRulingKeepsItsTrueLength) {
    for (CRightCone cone : {Frustum(), Roof(UpperRoof, 20), Roof(LowerRoof, -15)}) {
        cone.DevelopModel();
        const CRuleSurf& model = cone.results.ModelSurface;
        const CRuleSurf& pattern = cone.results.PatternSurface;
        ASSERT_EQ(model.List1->Count(), pattern.List1->Count());
        for (std::size_t i = 1; i <= model.List1->Count(); ++i) {
            EXPECT_NEAR(Distance3D(pattern.List1->Item(i), pattern.List2->Item(i)),
                        Distance3D(model.List1->Item(i), model.List2->Item(i)), Near);
            EXPECT_EQ(pattern.List1->Item(i).Flag, model.List1->Item(i).Flag);
            EXPECT_EQ(pattern.List2->Item(i).z, 0);
        }
    }
}

TEST(RightConePattern, AreaIsThatOfTheConesSurface) {
    CRightCone cone = Frustum();
    cone.inputs.segs = 20000;
    cone.DevelopModel();
    const double slant = std::hypot(150 - 56.25, 250);
    EXPECT_NEAR(FlatArea(cone.results.PatternSurface), PI * (150 + 56.25) * slant, 0.01);
}

TEST(RightConePattern, SeamAngleTurnsThePatternWithoutAStep) {
    CRightCone cone = Frustum();
    cone.inputs.JoinAngle = 1;
    cone.DevelopModel();
    const C3DPoints& base = *cone.results.PatternSurface.List2;
    const double slant = std::hypot(150, 400);
    EXPECT_NEAR(PlanAngle({}, base.Item(1)), 1 / FullTurn * (150 * FullTurn) / slant, Near);
    const double step = Distance3D(base.Item(1), base.Item(2));
    for (std::size_t i = 2; i < base.Count(); ++i) {
        EXPECT_NEAR(Distance3D(base.Item(i), base.Item(i + 1)), step, 1e-8);
    }
}

TEST(RightConePattern, ApexIsTheReferencePoint) {
    CRightCone cone = Frustum();
    cone.DevelopModel();
    const CRuleSurf& pattern = cone.results.PatternSurface;
    EXPECT_TRUE(pattern.RefPointDisplay);
    ASSERT_TRUE(pattern.RefPoint);
    EXPECT_NEAR(Distance3D(*pattern.RefPoint, pattern.List2->Item(5)), std::hypot(150, 400), Near);
}

TEST(RightConeLaps, AreLaidAlongTheRulings) {
    CRightCone cone = Frustum();
    cone.DevelopModel();
    const C3DPoints plainTop = *cone.results.PatternSurface.List1;
    cone.inputs.JoinType = 1;
    cone.inputs.LapSize0 = 8;
    cone.inputs.LapSize1 = 12;
    cone.inputs.LapSize2 = 5;
    cone.DevelopModel();
    const CRuleSurf& lapped = cone.results.PatternSurface;
    ASSERT_EQ(lapped.List1->Count(), 26U);
    ASSERT_EQ(lapped.LapList1->Count(), 26U);
    EXPECT_EQ(lapped.List1->Item(25).Flag, CornerRuleStation);
    EXPECT_EQ(lapped.List1->Item(26).Flag, LapClosure);
    for (std::size_t i = 1; i <= 25; ++i) {
        EXPECT_EQ(Distance3D(lapped.LapList1->Item(i), plainTop.Item(i)), 0);
        EXPECT_NEAR(Distance3D({}, lapped.List1->Item(i)), Distance3D({}, plainTop.Item(i)) - 8, Near);
        EXPECT_NEAR(Distance3D({}, lapped.List2->Item(i)), std::hypot(150, 400) + 5, Near);
    }
    // The tab: 12 wide, as long as the seam, and outside the sector, whose angle it adds to.
    EXPECT_NEAR(Distance3D(lapped.LapList1->Item(25), lapped.LapList1->Item(26)), 12, Near);
    EXPECT_GT(PlanAngle({}, lapped.LapList1->Item(26)), PlanAngle({}, lapped.LapList1->Item(25)));
    EXPECT_TRUE(cone.results.warnings.empty());
    EXPECT_FALSE(lapped.RefPoint);
}

TEST(RightConeLaps, TopLapBeyondTheApexWarnsOnce) {
    CRightCone cone = Frustum();
    cone.inputs.JoinType = 1;
    cone.inputs.LapSize0 = 161;  // the top lies 160.2 from the apex
    cone.DevelopModel();
    ASSERT_EQ(cone.results.warnings.size(), 1U);
    EXPECT_EQ(cone.results.warnings[0].messageId, TopLapTooLarge);
    EXPECT_FALSE(cone.results.warnings[0].userError);
    EXPECT_EQ(cone.results.PatternSurface.LapList1->Count(), 25U);
}

TEST(RightConeLaps, SeamLapThatMeetsTheOtherEndWarns) {
    // A flat cone: sin of the half angle 0.99, so that the sector leaves 3.6 degrees open; the tab swings
    // past +x.
    CRightCone cone;
    cone.BaseRad = 99;
    cone.ConeAngle = std::asin(0.99);
    cone.CPHeight1 = 7;
    cone.inputs.JoinType = 1;
    cone.inputs.LapSize1 = 40;
    cone.DevelopModel();
    ASSERT_EQ(cone.results.warnings.size(), 1U);
    EXPECT_EQ(cone.results.warnings[0].messageId, SeamLapTooLarge);
    EXPECT_EQ(cone.results.PatternSurface.List1->Count(), 26U);
}

TEST(RightConeLaps, NoneWithoutAJoin) {
    CRightCone cone = Frustum();
    cone.inputs.LapSize0 = cone.inputs.LapSize1 = 10;
    cone.DevelopModel();
    EXPECT_EQ(cone.results.PatternSurface.List1->Count(), 25U);
    EXPECT_FALSE(cone.results.PatternSurface.LapList1);
}

TEST(RightConeSymmetry, LevelCutsGiveAMirroredPattern) {
    CRightCone cone = Frustum(220);
    cone.CPAngle1 = DegToRad(25);  // tilted about y, so that the x axis is the line of symmetry
    cone.DevelopModel();
    const C3DPoints& top = *cone.results.PatternSurface.List1;
    for (std::size_t i = 1; i <= 12; ++i) {
        EXPECT_NEAR(Distance3D({}, top.Item(i)), Distance3D({}, top.Item(26 - i)), Near);
    }
}

TEST(RightConeModel, AConeWithoutAnAngleIsAnError) {
    CRightCone cone;
    EXPECT_THROW(cone.DevelopModel(), ArithmeticError);
}

}  // namespace
}  // namespace korvet
