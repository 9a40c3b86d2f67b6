// The pipe on a cone against the geometry of both: its edge lies on the pipe's cylinder and on the cone, and
// so does the hole of the flat cone when that is rolled up again.
#include "fittings/branches/pipe_to_cone.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <tuple>

#include "core/constants.h"
#include "core/math_module.h"
#include "tests/fittings/branches/cone_crossing.h"
#include "tests/fittings/branches/pipe_on_cone.h"
#include "tests/support/near.h"
#include "tests/support/point_lists.h"

namespace korvet::pipe_to_cone_test {
namespace {

/// The direction of the pipe's axis, away from the cone.
C3DPoint AxisOf(const CPipeToCone& fitting) {
    switch (fitting.inputs.Dtype) {
        case PipeFromSide:
            return {1, 0, 0, 0};
        case PipeFromTop:
            return {0, 0, 1, 0};
        default:
            return {std::cos(DegToRad(25)), 0, std::sin(DegToRad(25)), 0};
    }
}

double OffPipeAxis(const CPipeToCone& fitting, const C3DPoint& p) {
    const bool upright = fitting.inputs.Dtype == PipeFromTop;
    const C3DPoint axis = AxisOf(fitting);
    const C3DPoint from = {p.x - (upright ? fitting.CenterDistance : 0), p.y - fitting.Offset,
                           p.z - (upright ? 0 : fitting.CenterDistance), 0};
    const double along = from.x * axis.x + from.y * axis.y + from.z * axis.z;
    return std::sqrt(from.x * from.x + from.y * from.y + from.z * from.z - along * along);
}

/// The start of a rule: the foot of the cut, led back along the pipe from its free end.
C3DPoint StartOf(const CPipeToCone& fitting, const C3DPoint& freeEnd) {
    const C3DPoint axis = AxisOf(fitting);
    const double length = fitting.PipeLength;
    return {freeEnd.x - axis.x * length, freeEnd.y - axis.y * length, freeEnd.z - axis.z * length, 0};
}

double LengthOf(const C3DPoints& edge) {
    double length = 0;
    for (std::size_t i = 2; i <= edge.Count(); ++i) {
        length += Distance3D(edge.Item(i - 1), edge.Item(i));
    }
    return length;
}

/// Entry, offset, fold lines, upside down.
class PipesOnCones : public testing::TestWithParam<std::tuple<PipeEntry, double, int, bool>> {
  protected:
    [[nodiscard]] static CPipeToCone Shape() {
        const auto [entry, offset, segs, invert] = GetParam();
        CPipeToCone fitting = PipeOnCone(entry, offset, segs);
        fitting.Invert = invert;
        return fitting;
    }
};

TEST_P(PipesOnCones, EdgeLiesOnThePipeAndOnTheCone) {
    CPipeToCone fitting = Shape();
    fitting.ConstructModel();
    EXPECT_NEAR(fitting.ApexHeight, Apex, Near * Apex);
    const CRuleSurf& pipe = PipeOf(fitting);
    ASSERT_EQ(pipe.List2->Count(), 2 * static_cast<std::size_t>(fitting.inputs.segs) + 1);
    for (std::size_t i = 1; i <= pipe.List2->Count(); ++i) {
        const C3DPoint met = Upright(fitting, pipe.List2->Item(i));
        const C3DPoint end = Upright(fitting, pipe.List1->Item(i));
        EXPECT_NEAR(OffPipeAxis(fitting, met), Pipe, Near * Pipe);
        EXPECT_NEAR(OffPipeAxis(fitting, end), Pipe, Near * Pipe);
        const C3DPoint start = StartOf(fitting, end);
        const double exact = CrossingAlong(Base, Apex, start, end);
        EXPECT_LE(Distance3D(start, met), exact + Near * Base);
        EXPECT_GT(Distance3D(start, met), exact - WalkBand);
        EXPECT_EQ(met.Flag, static_cast<int>(i % 2));
        EXPECT_EQ(end.Flag, static_cast<int>(i % 2));
    }
}

TEST_P(PipesOnCones, HoleIsTheEdge) {
    CPipeToCone fitting = Shape();
    fitting.ConstructModel();
    EXPECT_TRUE(SamePoints(*ConeOf(fitting).List3, *PipeOf(fitting).List2));
}

TEST_P(PipesOnCones, ConeStandsOnItsBase) {
    CPipeToCone fitting = Shape();
    fitting.ConstructModel();
    const CRuleSurf& cone = ConeOf(fitting);
    ASSERT_EQ(cone.List1->Count(), static_cast<std::size_t>(fitting.inputs.segs) + 1);
    for (std::size_t i = 1; i <= cone.List1->Count(); ++i) {
        const C3DPoint top = Upright(fitting, cone.List1->Item(i));
        const C3DPoint base = Upright(fitting, cone.List2->Item(i));
        EXPECT_NEAR(std::hypot(top.x, top.y), Top, Near * Base);
        EXPECT_NEAR(top.z, Height, Near * Base);
        EXPECT_NEAR(std::hypot(base.x, base.y), Base, Near * Base);
        EXPECT_NEAR(base.z, 0, Near * Base);
    }
    EXPECT_NEAR(Upright(fitting, cone.List2->Item(1)).x, -Base, Near * Base) << "the seam";
}

TEST_P(PipesOnCones, PipePatternHasTheLengthOfEachRule) {
    CPipeToCone fitting = Shape();
    fitting.inputs.Miscellaneous = PipePattern;
    fitting.DevelopModel();
    ASSERT_EQ(fitting.results.PatternSurfaceList.Count(), 1U);
    const CRuleSurf& pattern = PatternOf(fitting);
    const double step = std::numbers::pi * Pipe / fitting.inputs.segs;
    ASSERT_EQ(pattern.List1->Count(), PipeOf(fitting).List1->Count());
    for (std::size_t i = 1; i <= pattern.List1->Count(); ++i) {
        const C3DPoint end = Upright(fitting, PipeOf(fitting).List1->Item(i));
        const C3DPoint start = StartOf(fitting, end);
        const double exact = fitting.PipeLength - CrossingAlong(Base, Apex, start, end);
        EXPECT_NEAR(pattern.List1->Item(i).y, exact, WalkBand);
        EXPECT_NEAR(pattern.List1->Item(i).x, static_cast<double>(i - 1) * step, Near * Base);
        EXPECT_EQ(pattern.List2->Item(i).x, pattern.List1->Item(i).x);
        EXPECT_EQ(pattern.List2->Item(i).y, 0);
        EXPECT_EQ(pattern.List1->Item(i).Flag, static_cast<int>(i % 2));
        EXPECT_EQ(pattern.List2->Item(i).Flag, static_cast<int>(i % 2));
    }
}

/// A point of the plate at slant g and angle f comes to the plan angle f / sin(half angle), told from the
/// seam.
TEST_P(PipesOnCones, HoleOfThePlateRolledUpIsTheEdge) {
    CPipeToCone fitting = Shape();
    fitting.inputs.Miscellaneous = ConePattern;
    fitting.DevelopModel();
    const CRuleSurf& pattern = PatternOf(fitting);
    const double sine = Base / std::hypot(Base, Apex);
    const C3DPoints& edge = *PipeOf(fitting).List2;
    ASSERT_EQ(pattern.List3->Count(), edge.Count());
    for (std::size_t i = 1; i <= edge.Count(); ++i) {
        const C3DPoint& flat = pattern.List3->Item(i);
        const double slant = std::hypot(flat.x, flat.y);
        const double t = PlanAngle({}, flat) / sine + std::numbers::pi;
        const C3DPoint rolled = {slant * sine * std::cos(t), slant * sine * std::sin(t),
                                 Apex - slant * std::sqrt(1 - sine * sine), 0};
        // The walk ends up to its band inside the wall.
        EXPECT_LT(Distance3D(rolled, Upright(fitting, edge.Item(i))), WalkBand) << i;
        EXPECT_EQ(flat.Flag, static_cast<int>(i % 2));
        EXPECT_EQ(flat.z, 0);
    }
}

TEST_P(PipesOnCones, PlateIsTheSectorOfTheUprightCone) {
    CPipeToCone fitting = Shape();
    fitting.inputs.Miscellaneous = ConePattern;
    fitting.DevelopModel();
    const CRuleSurf& pattern = PatternOf(fitting);
    const double sine = Base / std::hypot(Base, Apex);
    const auto segs = static_cast<std::size_t>(fitting.inputs.segs);
    ASSERT_EQ(pattern.List1->Count(), segs + 1);
    for (std::size_t i = 1; i <= segs + 1; ++i) {
        const double f = 2 * std::numbers::pi * sine * static_cast<double>(i - 1) / static_cast<double>(segs);
        for (const auto& [edge, radius] : {std::pair{pattern.List1, Top}, {pattern.List2, Base}}) {
            EXPECT_NEAR(edge->Item(i).x, radius / sine * std::cos(f), 1e-8);
            EXPECT_NEAR(edge->Item(i).y, radius / sine * std::sin(f), 1e-8);
            EXPECT_EQ(edge->Item(i).Flag, static_cast<int>(i % 2));
        }
    }
    EXPECT_TRUE(pattern.RefPointDisplay);
    ASSERT_TRUE(pattern.RefPoint);
    EXPECT_LT(Distance3D(*pattern.RefPoint, {}), Near);
}

TEST_P(PipesOnCones, EdgesThatAreWeldedTogetherAreOfOneLength) {
    for (const auto& [segs, allowed] : {std::pair{24, 2e-3}, {400, 1e-5}}) {
        CPipeToCone fitting = Shape();
        fitting.inputs.segs = segs;
        fitting.inputs.Miscellaneous = ConePattern;
        fitting.DevelopModel();
        const double hole = LengthOf(*PatternOf(fitting).List3);
        fitting.inputs.Miscellaneous = PipePattern;
        fitting.DevelopModel();
        EXPECT_NEAR(LengthOf(*PatternOf(fitting).List1) / hole, 1, allowed) << segs;
    }
}

INSTANTIATE_TEST_SUITE_P(All, PipesOnCones,
                         testing::Combine(testing::Values(PipeFromSide, PipeFromTop, PipeAtAngle),
                                          testing::Values(0.0, -30.0, 40.0), testing::Values(4, 12, 13),
                                          testing::Bool()));

TEST(PipeToConeModel, StationsStartAtTheLowestRuleOrNextToTheAxis) {
    for (const PipeEntry entry : {PipeFromSide, PipeFromTop, PipeAtAngle}) {
        CPipeToCone fitting = PipeOnCone(entry, 20);
        fitting.ConstructModel();
        const C3DPoints& end = *PipeOf(fitting).List1;
        for (const C3DPoint& point : end) {
            EXPECT_GE(entry == PipeFromTop ? point.x : point.z,
                      (entry == PipeFromTop ? end.Item(1).x : end.Item(1).z) - Near * Base);
        }
    }
}

/// Turned over by half a turn about y, every point goes to the other side of x and z.
TEST(PipeToConeModel, UpsideDownIsTheSameFitting) {
    for (const std::int16_t pattern : {ConePattern, PipePattern}) {
        CPipeToCone upright = PipeOnCone(PipeFromSide, 20);
        upright.inputs.Miscellaneous = pattern;
        CPipeToCone over = upright;
        over.Invert = true;
        upright.DevelopModel();
        over.DevelopModel();
        for (std::size_t i = 1; i <= PipeOf(upright).List1->Count(); ++i) {
            EXPECT_LT(Distance3D(PipeOf(upright).List1->Item(i), Upright(over, PipeOf(over).List1->Item(i))),
                      Near * Base);
        }
        ASSERT_EQ(PatternOf(upright).List1->Count(), PatternOf(over).List1->Count());
        for (std::size_t i = 1; i <= PatternOf(upright).List1->Count(); ++i) {
            EXPECT_LT(Distance3D(PatternOf(upright).List1->Item(i), PatternOf(over).List1->Item(i)),
                      Near * Base);
        }
    }
}

/// A frustum from 1000 to 300, 800 high: its wall meets the axis after sqrt(500^2 + (8/7 1000)^2).
TEST(PipeToConeModel, APlateTurnedOverHasItsNarrowEndAtTheApex) {
    CPipeToCone fitting = PipeOnCone(PipeFromSide);
    fitting.BaseRad = 500;
    fitting.CPHeight1 = 800;
    fitting.ConeAngle = std::atan(350.0 / 800);
    fitting.PipeLength = -700;
    fitting.Offset = 300;
    fitting.Invert = true;
    fitting.inputs.Miscellaneous = ConePattern;
    fitting.DevelopModel();
    EXPECT_NEAR(Distance3D({}, PatternOf(fitting).List1->Item(1)), 374.2, 0.05);
    EXPECT_NEAR(Distance3D({}, PatternOf(fitting).List2->Item(1)), 1247.4, 0.05);
}

/// Accepted sizes whose low rules would be followed beside the base circle, far away from the cone.
TEST(PipeToConeModel, LowRulesEndAtTheFootOfTheCone) {
    for (const double center : {76.0, 77.0, 78.0, 79.0, 80.0}) {
        for (const int segs : {12, 24, 25}) {
            CPipeToCone fitting = PipeOnCone(PipeFromSide, 0, segs);
            fitting.BaseRad = 252.5;
            fitting.ConeAngle = std::atan(152.5 / 500);
            fitting.CPHeight1 = 500;
            fitting.PipeRad = 75;
            fitting.PipeLength = 400;
            fitting.CenterDistance = center;
            fitting.ConstructModel();
            for (const C3DPoint& point : *PipeOf(fitting).List2) {
                EXPECT_NEAR(std::hypot(point.x, point.y), 252.5 - point.z * 152.5 / 500, WalkBand);
            }
        }
    }
}

}  // namespace
}  // namespace korvet::pipe_to_cone_test
