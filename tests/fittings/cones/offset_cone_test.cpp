// The offset cone against what its apex demands: all generators run through it and keep their lengths, and
// the angle of the pattern is that of the cone's edge laid flat, less what the chords fall short by.
#include "fittings/cones/offset_cone.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <tuple>

#include "core/math_module.h"
#include "fittings/cones/right_cone.h"
#include "tests/support/near.h"
#include "tests/support/point_lists.h"

namespace korvet::offset_cone_test {
namespace {

/// A base circle and the apex.
struct Shape {
    double radius;
    C3DPoint apex;
};

/// Base radius 160, and at a height of 210 a top of radius 100 that is 90 beside it: the apex is
/// 160 / 60 times as far out.
constexpr Shape Sample = {160, {240, 0, 560, 0}};

/// The top touches the base on one side, on the plan; above an apex below the base; far beside the base.
constexpr Shape Flush = {180, {180, 0, 720, 0}};
constexpr Shape Hanging = {160, {-120, 0, -280, 0}};
constexpr Shape Leaning = {160, {640, 90, 560, 0}};

COffsetCone ConeOf(const Shape& shape, int segs = 12) {
    COffsetCone cone;
    cone.BaseRad = shape.radius;
    cone.ApexPt = shape.apex;
    cone.CPHeight = shape.apex.z * 3 / 8;
    cone.inputs.segs = segs;
    return cone;
}

/// x of the steps, which chords and arcs are worked out with: half of the angle between stations.
double HalfStep(int segs) {
    return std::numbers::pi / (2 * segs);
}

/// What the edge of the cone laid flat turns by about the apex, over the stretch of the base circle from plan
/// angle 0. Along it the step R dt and the change of the generator p make a right triangle with p times the
/// turn. By Simpson's rule.
double TrueTurn(const Shape& shape, double stretch) {
    const auto turn = [&](double t) {
        const double x = shape.radius * std::cos(t) - shape.apex.x;
        const double y = shape.radius * std::sin(t) - shape.apex.y;
        const double p = std::hypot(x, y, shape.apex.z);
        const double change = shape.radius * (y * std::cos(t) - x * std::sin(t)) / p;
        return std::sqrt(shape.radius * shape.radius - change * change) / p;
    };
    constexpr int Parts = 4000;
    const double h = stretch / Parts;
    double sum = turn(0) + turn(stretch);
    for (int i = 1; i < Parts; ++i) {
        sum += (i % 2 == 0 ? 2 : 4) * turn(i * h);
    }
    return sum * h / 3;
}

/// The turn of an edge of the pattern, over as many full turns as it takes.
double TurnOf(const C3DPoints& edge) {
    double turn = 0;
    for (std::size_t i = 2; i <= edge.Count(); ++i) {
        const C3DPoint& p = edge.Item(i - 1);
        const C3DPoint& q = edge.Item(i);
        turn += std::atan2(p.x * q.y - p.y * q.x, p.x * q.x + p.y * q.y);
    }
    return turn;
}

class OffsetCones : public testing::TestWithParam<std::tuple<Shape, int>> {
  protected:
    [[nodiscard]] static Shape Given() { return std::get<0>(GetParam()); }
    [[nodiscard]] static int Segs() { return std::get<1>(GetParam()); }
    [[nodiscard]] static COffsetCone Cone() { return ConeOf(Given(), Segs()); }
};

TEST_P(OffsetCones, EndsAreLevelCircles) {
    COffsetCone cone = Cone();
    cone.ConstructModel();
    const C3DPoints& top = *cone.results.ModelSurface.List1;
    const C3DPoints& base = *cone.results.ModelSurface.List2;
    ASSERT_EQ(top.Count(), static_cast<std::size_t>(2 * Segs() + 1));
    ASSERT_EQ(base.Count(), top.Count());
    const C3DPoint centre = {Given().apex.x * 3 / 8, Given().apex.y * 3 / 8, cone.CPHeight, 0};
    for (std::size_t i = 1; i <= top.Count(); ++i) {
        EXPECT_NEAR(base.Item(i).z, 0, Near);
        EXPECT_NEAR(Distance3D(base.Item(i), {}), Given().radius, Near);
        EXPECT_NEAR(top.Item(i).z, cone.CPHeight, Near);
        EXPECT_NEAR(Distance3D(top.Item(i), centre), Given().radius * 5 / 8, Near);
        EXPECT_EQ(top.Item(i).Flag, static_cast<int>(i % 2));
        EXPECT_EQ(base.Item(i).Flag, static_cast<int>(i % 2));
    }
    EXPECT_LT(Distance3D(base.Item(1), base.Last()), Near);
}

TEST_P(OffsetCones, GeneratorsMeetInTheApex) {
    COffsetCone cone = Cone();
    cone.ConstructModel();
    const C3DPoint& apex = cone.ApexPt;
    for (std::size_t i = 1; i <= cone.results.ModelSurface.List1->Count(); ++i) {
        const C3DPoint& top = cone.results.ModelSurface.List1->Item(i);
        const C3DPoint& base = cone.results.ModelSurface.List2->Item(i);
        EXPECT_NEAR(Distance3D(base, top) + Distance3D(top, apex), Distance3D(base, apex), Near);
    }
}

TEST_P(OffsetCones, PatternHasEveryGeneratorInItsTrueLengthFromTheApex) {
    COffsetCone cone = Cone();
    cone.inputs.JoinAngle = 0.7;
    cone.DevelopModel();
    const CRuleSurf& model = cone.results.ModelSurface;
    const CRuleSurf& pattern = cone.results.PatternSurface;
    ASSERT_EQ(pattern.List1->Count(), model.List1->Count());
    for (std::size_t i = 1; i <= model.List1->Count(); ++i) {
        const C3DPoint& top = pattern.List1->Item(i);
        const C3DPoint& base = pattern.List2->Item(i);
        EXPECT_NEAR(Distance3D({}, top), Distance3D(cone.ApexPt, model.List1->Item(i)), Near);
        EXPECT_NEAR(Distance3D({}, base), Distance3D(cone.ApexPt, model.List2->Item(i)), Near);
        // Both ends of a generator on one ray: it keeps its length between the edges as well.
        EXPECT_NEAR(Distance3D(top, base), Distance3D(model.List1->Item(i), model.List2->Item(i)), 1e-6);
        EXPECT_EQ(top.Flag, static_cast<int>(i % 2));
        EXPECT_EQ(base.Flag, static_cast<int>(i % 2));
        EXPECT_EQ(base.z, 0);
    }
}

/// A chord in the place of an arc is short by half the square of its half angle, and the slope of the edge
/// against the generators makes that a little more.
TEST_P(OffsetCones, TurnFallsShortOfTheTrueOneByTheChordsError) {
    COffsetCone cone = Cone();
    cone.DevelopModel();
    const double whole = TrueTurn(Given(), 2 * std::numbers::pi);
    const double x = HalfStep(Segs());
    for (const PointList& edge : {cone.results.PatternSurface.List1, cone.results.PatternSurface.List2}) {
        const double missing = 1 - TurnOf(*edge) / whole;
        EXPECT_GT(missing, 0.45 * x * x);
        EXPECT_LT(missing, 0.7 * x * x);
    }
}

INSTANTIATE_TEST_SUITE_P(Shapes, OffsetCones,
                         testing::Combine(testing::Values(Sample, Flush, Hanging, Leaning),
                                          testing::Values(4, 5, 12, 13, 24, 100)));

TEST(OffsetConePattern, ErrorOfTheTurnFallsWithTheSquareOfTheFoldLines) {
    const double whole = TrueTurn(Sample, 2 * std::numbers::pi);
    const auto missing = [&](int segs) {
        COffsetCone cone = ConeOf(Sample, segs);
        cone.DevelopModel();
        return whole - TurnOf(*cone.results.PatternSurface.List2);
    };
    const double coarse = missing(12);
    EXPECT_NEAR(missing(24) / coarse, 1.0 / 4, 1e-3);
    EXPECT_NEAR(missing(48) / coarse, 1.0 / 16, 1e-3);
    EXPECT_NEAR(missing(768) / coarse, 1.0 / 4096, 1e-5);
}

/// At the finest steps their angles are far below what the cosine of a triangle can tell.
TEST(OffsetConePattern, KeepsTheAnglesOfFineSteps) {
    COffsetCone cone = ConeOf(Sample, 50000);
    cone.DevelopModel();
    EXPECT_NEAR(TurnOf(*cone.results.PatternSurface.List2), TrueTurn(Sample, 2 * std::numbers::pi), 1e-6);
}

/// With the apex over the centre the cone is a right one. Each step of that is the arc 2 R x on the slant s;
/// here it is an isosceles triangle on S, x times the chord of stations 1 and segs.
TEST(OffsetConePattern, WithoutAnOffsetIsTheRightConeWithChordsInThePlaceOfArcs) {
    constexpr double R = 150;
    constexpr double H = 400;
    const double s = std::hypot(R, H);
    for (const int segs : {2, 3, 12, 13, 24, 144, 5000}) {
        COffsetCone cone = ConeOf({R, {0, 0, H, 0}}, segs);
        cone.DevelopModel();
        CRightCone right;
        right.BaseRad = R;
        right.ConeAngle = std::atan(R / H);
        right.CPHeight1 = cone.CPHeight;
        right.inputs.segs = 2 * segs;
        right.DevelopModel();
        const double x = HalfStep(segs);
        const double S = 2 * R * std::cos(x) * x;
        for (const auto& edge : {&CRuleSurf::List1, &CRuleSurf::List2}) {
            const C3DPoints& flat = *(cone.results.PatternSurface.*edge);
            const C3DPoints& arcs = *(right.results.PatternSurface.*edge);
            ASSERT_EQ(flat.Count(), arcs.Count());
            EXPECT_NEAR(TurnOf(arcs), 4 * segs * R * x / s, 1e-9);
            EXPECT_NEAR(TurnOf(flat), 4 * segs * std::asin(S / (2 * s)), 1e-7);
            for (std::size_t i = 1; i < flat.Count(); ++i) {
                EXPECT_NEAR(Distance3D({}, flat.Item(i)), Distance3D({}, arcs.Item(i)), Near);
                EXPECT_NEAR(TurnOf(PointsOf({flat.Item(i), flat.Item(i + 1)})), 2 * std::asin(S / (2 * s)),
                            1e-11)
                    << segs;
            }
        }
    }
}

/// Stations 1 and 12 of a ring of 25 stand 165 degrees apart, so that their chord is 2 R cos 7.5 degrees.
TEST(OffsetConePattern, StepIsMeasuredOnTheChordOneStationShortOfOpposite) {
    COffsetCone cone = ConeOf({100, {0, 0, 1e6, 0}}, 12);
    cone.DevelopModel();
    const C3DPoints& base = *cone.results.PatternSurface.List2;
    const double S = 2 * 100 * 0.99144486137381 * std::numbers::pi / 24;
    EXPECT_NEAR(Distance3D(base.Item(5), base.Item(6)), S, 1e-6);
}

TEST(OffsetConePattern, StartsOnTheRayOfTheApexWhereverTheSeamIs) {
    for (const double seam : {0.0, 1.0, -2.5, 6.0}) {
        COffsetCone cone = ConeOf(Sample, 24);
        cone.inputs.JoinAngle = seam;
        cone.DevelopModel();
        const CRuleSurf& pattern = cone.results.PatternSurface;
        const C3DPoint& first = cone.results.ModelSurface.List2->Item(1);
        EXPECT_NEAR(first.x, 160 * std::cos(seam), Near);
        EXPECT_NEAR(first.y, 160 * std::sin(seam), Near);
        EXPECT_NEAR(pattern.List2->Item(1).y, 0, Near);
        EXPECT_GT(pattern.List2->Item(2).y, 0);
        EXPECT_TRUE(pattern.RefPointDisplay);
        ASSERT_TRUE(pattern.RefPoint);
        EXPECT_EQ(Distance3D(*pattern.RefPoint, {}), 0);
    }
}

TEST(OffsetConePattern, HangingFromItsBaseIsTheSame) {
    COffsetCone standing = ConeOf(Sample);
    COffsetCone hanging = ConeOf({160, {240, 0, -560, 0}});
    standing.DevelopModel();
    hanging.DevelopModel();
    EXPECT_TRUE(SamePoints(*standing.results.PatternSurface.List1, *hanging.results.PatternSurface.List1));
    EXPECT_TRUE(SamePoints(*standing.results.PatternSurface.List2, *hanging.results.PatternSurface.List2));
}

TEST(OffsetConeHalf, KeepsTheFirstStationsOfTheWhole) {
    for (const int segs : {2, 3, 12, 13}) {
        COffsetCone whole = ConeOf(Sample, segs);
        COffsetCone half = whole;
        half.inputs.HalfPattern = true;
        whole.DevelopModel();
        half.DevelopModel();
        const C3DPoints& kept = *half.results.PatternSurface.List2;
        ASSERT_EQ(kept.Count(), static_cast<std::size_t>(segs + 1));
        ASSERT_EQ(half.results.ModelSurface.List1->Count(), kept.Count());
        for (std::size_t i = 1; i <= kept.Count(); ++i) {
            EXPECT_TRUE(Same(kept.Item(i), whole.results.PatternSurface.List2->Item(i)));
        }
        // From the seam over the offset to the opposite side: the other half is its mirror image.
        EXPECT_NEAR(TurnOf(kept), TurnOf(*whole.results.PatternSurface.List2) / 2, 1e-8);
    }
}

TEST(OffsetConeLaps, AreLaidAlongTheGenerators) {
    COffsetCone cone = ConeOf(Sample);
    cone.DevelopModel();
    const CRuleSurf plain = cone.results.PatternSurface;
    cone.inputs.JoinType = 1;
    cone.inputs.LapSize0 = 8;
    cone.inputs.LapSize1 = 12;
    cone.inputs.LapSize2 = 5;
    cone.DevelopModel();
    const CRuleSurf& lapped = cone.results.PatternSurface;
    ASSERT_EQ(lapped.List1->Count(), 26U);
    EXPECT_EQ(lapped.List1->Item(25).Flag, CornerRuleStation);
    EXPECT_EQ(lapped.List1->Item(26).Flag, LapClosure);
    for (std::size_t i = 1; i <= 25; ++i) {
        EXPECT_NEAR(Distance3D({}, lapped.List1->Item(i)), Distance3D({}, plain.List1->Item(i)) - 8, Near);
        EXPECT_NEAR(Distance3D({}, lapped.List2->Item(i)), Distance3D({}, plain.List2->Item(i)) + 5, Near);
    }
    EXPECT_NEAR(Distance3D(lapped.LapList1->Item(25), lapped.LapList1->Item(26)), 12, Near);
    EXPECT_FALSE(lapped.RefPoint);
    EXPECT_TRUE(cone.results.warnings.empty());
}

/// The shortest generator of the sample goes from the top to the apex in hypot(240 - 190, 350).
TEST(OffsetConeLaps, TopLapThatReachesTheApexWarnsOnceWithoutAJoinToo) {
    const double nearest = std::hypot(50, 350);
    for (const int joinType : {0, 1}) {
        COffsetCone cone = ConeOf(Sample);
        cone.inputs.JoinType = static_cast<std::int16_t>(joinType);
        cone.inputs.LapSize0 = nearest - 1e-9;
        cone.DevelopModel();
        EXPECT_TRUE(cone.results.warnings.empty());
        cone.inputs.LapSize0 = nearest + 1;
        cone.DevelopModel();
        ASSERT_EQ(cone.results.warnings.size(), 1U);
        EXPECT_EQ(cone.results.warnings[0].messageId, TopLapTooLarge);
        EXPECT_FALSE(cone.results.warnings[0].userError);
        EXPECT_EQ(cone.results.PatternSurface.LapList1 != nullptr, joinType == 1);
    }
}

/// A flat cone: its pattern leaves less than 7 degrees open, and the tab swings past its start.
TEST(OffsetConeLaps, SeamLapThatMeetsTheOtherEndWarns) {
    COffsetCone cone = ConeOf({99, {0, 0, std::sqrt(199), 0}});
    cone.inputs.LapSize1 = 40;
    cone.DevelopModel();
    EXPECT_TRUE(cone.results.warnings.empty()) << "without a join";
    cone.inputs.JoinType = 1;
    cone.DevelopModel();
    ASSERT_EQ(cone.results.warnings.size(), 1U);
    EXPECT_EQ(cone.results.warnings[0].messageId, SeamLapTooLarge);
    EXPECT_FALSE(cone.results.warnings[0].userError);
    EXPECT_EQ(cone.results.PatternSurface.List1->Count(), 26U);
}

TEST(OffsetConeLaps, WarnOfTheTopBeforeTheSeam) {
    COffsetCone cone = ConeOf({99, {0, 0, std::sqrt(199), 0}});
    cone.inputs.JoinType = 1;
    cone.inputs.LapSize0 = 500;
    cone.inputs.LapSize1 = 40;
    cone.DevelopModel();
    ASSERT_EQ(cone.results.warnings.size(), 2U);
    EXPECT_EQ(cone.results.warnings[0].messageId, TopLapTooLarge);
    EXPECT_EQ(cone.results.warnings[1].messageId, SeamLapTooLarge);
}

/// From a base of 500 to a top of 300 that is 20 above it and 300 beside it: neighbouring generators differ
/// by nearly as much as the step between them, and with few fold lines by more.
TEST(OffsetConeLimits, ALowConeFarBesideItsBaseDoesNotCloseWithFewFoldLines) {
    const Shape low = {250, {750, 0, 50, 0}};
    for (const int segs : {2, 8, 12, 14}) {
        COffsetCone cone = ConeOf(low, segs);
        EXPECT_THROW(cone.DevelopModel(), ArithmeticError) << segs;
    }
    COffsetCone fine = ConeOf(low, 96);
    fine.DevelopModel();
    EXPECT_NEAR(TurnOf(*fine.results.PatternSurface.List2), TrueTurn(low, 2 * std::numbers::pi), 6e-4);
}

TEST(OffsetConeLimits, OneFoldLineLeavesNoWidth) {
    COffsetCone cone = ConeOf(Sample, 1);
    cone.ConstructModel();
    EXPECT_EQ(cone.results.ModelSurface.List1->Count(), 3U);
    EXPECT_THROW(cone.DevelopModel(), ArithmeticError);
}

TEST(OffsetConeLimits, ATopInTheApexIsAPoint) {
    COffsetCone cone = ConeOf(Sample);
    cone.CPHeight = 560;
    cone.DevelopModel();
    for (const C3DPoint& p : *cone.results.PatternSurface.List1) {
        EXPECT_NEAR(Distance3D(p, {}), 0, Near);
    }
    EXPECT_EQ(cone.results.PatternSurface.List1->Item(25).Flag, RuleStation);
}

TEST(OffsetConeLimits, ATopWithoutAnApexIsAnError) {
    COffsetCone cone = ConeOf({160, {240, 0, 0, 0}});
    cone.CPHeight = 210;
    EXPECT_THROW(cone.ConstructModel(), ArithmeticError);
}

}  // namespace
}  // namespace korvet::offset_cone_test
