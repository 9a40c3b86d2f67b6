// The pyramid against its own geometry: edges from the apex, corners in their planes, true lengths, the arc
// in the place of the flat side.
#include "fittings/pyramids/pyramid.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <tuple>

#include "core/math_module.h"
#include "tests/support/near.h"
#include "tests/support/point_lists.h"

namespace korvet::pyramid_test {
namespace {

constexpr double R = 240;
constexpr double H = 600;
constexpr double h = 280;

CPyramid Cut(int sides, double tilt = 0.4, double seam = 0) {
    CPyramid pyramid;
    pyramid.BaseRad = R;
    pyramid.ApexHeight = H;
    pyramid.CPHeight = h;
    pyramid.CPAngle = tilt;
    pyramid.NoOfSides = static_cast<std::int16_t>(sides);
    pyramid.inputs.JoinAngle = seam;
    return pyramid;
}

CPyramid Developed(CPyramid pyramid) {
    pyramid.DevelopModel();
    return pyramid;
}

const C3DPoints& Top(const CPyramid& pyramid) {
    return *pyramid.results.ModelSurface.List1;
}
const C3DPoints& Base(const CPyramid& pyramid) {
    return *pyramid.results.ModelSurface.List2;
}

/// Sides, tilt of the cut, place of the seam.
class Pyramids : public testing::TestWithParam<std::tuple<int, double, double>> {
  protected:
    Pyramids() {
        const auto [sides, tilt, seam] = GetParam();
        pyramid_ = Developed(Cut(sides, tilt, seam));
        corners_ = static_cast<std::size_t>(sides) + 1;
    }

    CPyramid pyramid_;
    std::size_t corners_;
};

TEST_P(Pyramids, BaseIsAPolygonFromTheSeamOn) {
    const auto [sides, tilt, seam] = GetParam();
    ASSERT_EQ(Base(pyramid_).Count(), corners_);
    for (std::size_t i = 1; i <= corners_; ++i) {
        const double angle = seam + static_cast<double>(i - 1) * 2 * std::numbers::pi / sides;
        const C3DPoint& corner = Base(pyramid_).Item(i);
        EXPECT_NEAR(corner.x, R * std::cos(angle), Near);
        EXPECT_NEAR(corner.y, R * std::sin(angle), Near);
        EXPECT_NEAR(corner.z, 0, Near);
    }
}

/// Where the straight line from the apex to a corner of the base meets the plane.
TEST_P(Pyramids, CutLiesInItsPlaneOnTheEdges) {
    const double slope = std::tan(std::get<1>(GetParam()));
    ASSERT_EQ(Top(pyramid_).Count(), corners_);
    for (std::size_t i = 1; i <= corners_; ++i) {
        const C3DPoint& corner = Base(pyramid_).Item(i);
        const double share = (H - h) / (H - slope * corner.x);
        EXPECT_NEAR(Top(pyramid_).Item(i).x, share * corner.x, Near);
        EXPECT_NEAR(Top(pyramid_).Item(i).y, share * corner.y, Near);
        EXPECT_NEAR(Top(pyramid_).Item(i).z, h - slope * Top(pyramid_).Item(i).x, Near);
    }
}

TEST_P(Pyramids, PatternHasEveryCornerAtItsDistanceFromTheApex) {
    const CRuleSurf& pattern = pyramid_.results.PatternSurface;
    ASSERT_EQ(pattern.List1->Count(), corners_);
    for (std::size_t i = 1; i <= corners_; ++i) {
        const C3DPoint apex = {0, 0, H, PlainStation};
        EXPECT_NEAR(Distance3D({}, pattern.List1->Item(i)), Distance3D(apex, Top(pyramid_).Item(i)), Near);
        EXPECT_NEAR(Distance3D({}, pattern.List2->Item(i)), std::hypot(R, H), Near);
        EXPECT_NEAR(PlanAngle({}, pattern.List1->Item(i)), PlanAngle({}, pattern.List2->Item(i)), Near);
    }
}

/// On purpose the arc of the base circle on the slant height, for the flat side's own angle.
TEST_P(Pyramids, PatternHasTheAngleOfTheArcBetweenNeighbours) {
    const int sides = std::get<0>(GetParam());
    const double whole = 2 * std::numbers::pi * R / std::hypot(R, H);
    const C3DPoints& base = *pyramid_.results.PatternSurface.List2;
    for (std::size_t i = 1; i <= corners_; ++i) {
        EXPECT_NEAR(PlanAngle({}, base.Item(i)), static_cast<double>(i) * whole / sides, Near);
    }
    EXPECT_NEAR(PlanAngle({}, base.Last()) - PlanAngle({}, base.Item(1)), whole, Near);
}

TEST_P(Pyramids, EveryCornerIsABend) {
    for (const CRuleSurf& surface : {pyramid_.results.ModelSurface, pyramid_.results.PatternSurface}) {
        for (const PointList& list : {surface.List1, surface.List2}) {
            for (const C3DPoint& corner : *list) {
                EXPECT_EQ(corner.Flag, CornerRuleStation);
            }
        }
        EXPECT_FALSE(surface.RefPoint);
    }
}

INSTANTIATE_TEST_SUITE_P(All, Pyramids,
                         testing::Combine(testing::Values(3, 4, 5, 8, 37), testing::Values(0.0, 0.4, -0.7),
                                          testing::Values(0.0, std::numbers::pi / 4, -2.0)));

/// A flat side is a chord, a little shorter than its arc: the pattern is too wide for it by an amount that
/// falls with the square of the number of sides.
TEST(PyramidPattern, IsALittleWiderThanItsFlatSides) {
    const auto excess = [](int sides) {
        const CPyramid pyramid = Developed(Cut(sides));
        const C3DPoints& flat = *pyramid.results.PatternSurface.List2;
        return Distance3D(flat.Item(1), flat.Item(2)) /
                   Distance3D(Base(pyramid).Item(1), Base(pyramid).Item(2)) -
               1;
    };
    EXPECT_GT(excess(4), 0.02);
    EXPECT_NEAR(excess(8) / excess(16), 4, 0.1);
    EXPECT_NEAR(excess(200) / excess(400), 4, 0.01);
}

TEST(PyramidModel, GoesUpToTheApexWhenThePlaneDoes) {
    CPyramid pyramid = Cut(5, 0);
    pyramid.CPHeight = H;
    pyramid.DevelopModel();
    for (std::size_t i = 1; i <= 6; ++i) {
        EXPECT_EQ(Distance3D(Top(pyramid).Item(i), {0, 0, H, PlainStation}), 0);
        EXPECT_EQ(Distance3D(pyramid.results.PatternSurface.List1->Item(i), {}), 0);
    }
}

TEST(PyramidModel, IsTheConeThroughItsCorners) {
    const CPyramid pyramid = Cut(4);
    EXPECT_DOUBLE_EQ(std::tan(pyramid.ConeAngle()), R / H);
}

TEST(PyramidModel, FallsTowardsThePositiveXSide) {
    const CPyramid pyramid = Developed(Cut(4, 0.4));
    EXPECT_LT(Top(pyramid).Item(1).z, h);
    EXPECT_GT(Top(pyramid).Item(3).z, h);
}

TEST(PyramidPattern, OfThreeSidesHasFourRules) {
    const CPyramid pyramid = Developed(Cut(3));
    EXPECT_EQ(pyramid.results.PatternSurface.List1->Count(), 4U);
    EXPECT_NEAR(Distance3D({}, pyramid.results.PatternSurface.List1->Item(1)),
                Distance3D({}, pyramid.results.PatternSurface.List1->Item(4)), Near);
}

TEST(PyramidPattern, TakesAllLaps) {
    CPyramid pyramid = Cut(6);
    pyramid.inputs.JoinType = 1;
    pyramid.inputs.LapSize0 = 12;
    pyramid.inputs.LapSize1 = 15;
    pyramid.inputs.LapSize2 = 18;
    pyramid.DevelopModel();
    const CPyramid plain = Developed(Cut(6));
    const CRuleSurf& lapped = pyramid.results.PatternSurface;
    ASSERT_EQ(lapped.List1->Count(), 8U);
    for (std::size_t i = 1; i <= 7; ++i) {
        const C3DPoint& top = plain.results.PatternSurface.List1->Item(i);
        EXPECT_NEAR(Distance3D({}, lapped.List1->Item(i)), Distance3D({}, top) - 12, Near);
        EXPECT_NEAR(Distance3D({}, lapped.List2->Item(i)), std::hypot(R, H) + 18, Near);
        EXPECT_LT(Distance3D(lapped.LapList1->Item(i), top), Near);
    }
    EXPECT_NEAR(Distance3D(lapped.LapList2->Item(7), lapped.LapList2->Item(8)), 15, Near);
    EXPECT_EQ(lapped.List2->Item(8).Flag, LapClosure);
    EXPECT_EQ(Base(pyramid).Count(), 7U);
}

TEST(PyramidModel, HasNoHalf) {
    CPyramid pyramid = Cut(6);
    pyramid.inputs.HalfPattern = true;
    pyramid.DevelopModel();
    EXPECT_EQ(pyramid.results.warnings, (std::vector<FittingWarning>{{HalfPatternNotApplicable, true}}));
    EXPECT_FALSE(pyramid.inputs.HalfPattern);
    EXPECT_EQ(pyramid.results.PatternSurface.List1->Count(), 7U);
}

}  // namespace
}  // namespace korvet::pyramid_test
