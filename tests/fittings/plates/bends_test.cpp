// The bent edge against the line of its corners: legs and tangents where plane geometry puts them, arcs that
// lie on their circles, and what the arcs are where the turn is no right turn of 90 degrees.
#include "fittings/plates/bends.h"

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

constexpr double RightAngle = std::numbers::pi / 2;

/// A plate 50 wide with these corners (x, y, radius) and this many lines to an arc.
CBends PlateOf(std::initializer_list<C3DPoint> corners, int segs) {
    CBends plate;
    plate.PointsList = PointsOf(corners);
    plate.PlateWidth = 50;
    plate.inputs.segs = segs;
    plate.ConstructModel();
    return plate;
}

const C3DPoints& EdgeOf(const CBends& plate) {
    return *plate.results.ModelSurface.List1;
}

/// Three right turns of 90 degrees: legs of 300, 200, 300 and 80.
CBends Tray(int segs) {
    return PlateOf({{0, 0, 0}, {0, 300, 40}, {200, 300, 60}, {200, 0, 25}, {120, 0, 0}}, segs);
}

TEST(BentPlate, StandsOnItsEdge) {
    const CBends plate = Tray(6);
    const C3DPoints& edge = EdgeOf(plate);
    const C3DPoints& upper = *plate.results.ModelSurface.List2;
    ASSERT_EQ(edge.Count(), 2 + 3 * 7U);
    ASSERT_EQ(upper.Count(), edge.Count());
    for (std::size_t i = 1; i <= edge.Count(); ++i) {
        C3DPoint above = edge.Item(i);
        EXPECT_EQ(above.z, 0);
        EXPECT_EQ(above.Flag, RuleStation);
        above.z = 50;
        EXPECT_TRUE(Same(upper.Item(i), above));
    }
    EXPECT_TRUE(Same(edge.Item(1), {0, 0, 0, RuleStation}));
    EXPECT_TRUE(Same(edge.Last(), {120, 0, 0, RuleStation}));
}

/// Quarter circles about centres a radius inside of both legs; their ends lie on the legs.
TEST(BentPlate, RightTurnsOfNinetyDegreesAreQuarterCircles) {
    for (const int segs : {1, 5, 12}) {
        const CBends plate = Tray(segs);
        const std::vector<std::pair<C3DPoint, double>> arcs = {
            {{40, 260, 0}, 40}, {{140, 240, 0}, 60}, {{175, 25, 0}, 25}};
        const std::vector<std::pair<C3DPoint, C3DPoint>> ends = {
            {{0, 260, 0}, {40, 300, 0}}, {{140, 300, 0}, {200, 240, 0}}, {{200, 25, 0}, {175, 0, 0}}};
        const auto perArc = static_cast<std::size_t>(segs) + 1;
        for (std::size_t arc = 0; arc < arcs.size(); ++arc) {
            const std::size_t first = 2 + arc * perArc;
            for (std::size_t i = first; i < first + perArc; ++i) {
                EXPECT_NEAR(Distance3D(EdgeOf(plate).Item(i), arcs[arc].first), arcs[arc].second, Near);
            }
            EXPECT_LT(Distance3D(EdgeOf(plate).Item(first), ends[arc].first), Near);
            EXPECT_LT(Distance3D(EdgeOf(plate).Item(first + perArc - 1), ends[arc].second), Near);
        }
    }
}

/// The length of the edge is that of its straights and quarter circles, to the chords of the arcs.
TEST(BentPlate, EdgeHasTheLengthOfTheBentPlate) {
    const double straight = 260 + 100 + 215 + 55;
    const double arcs = (40 + 60 + 25) * RightAngle;
    double gapBefore = 0;
    for (const int segs : {8, 16, 32}) {
        const CBends plate = Tray(segs);
        double length = 0;
        for (std::size_t i = 2; i <= EdgeOf(plate).Count(); ++i) {
            length += Distance3D(EdgeOf(plate).Item(i - 1), EdgeOf(plate).Item(i));
        }
        const double gap = straight + arcs - length;
        EXPECT_GT(gap, 0);
        EXPECT_NEAR(length - straight, arcs * std::sin(RightAngle / 2 / segs) / (RightAngle / 2 / segs),
                    Near * 1000);
        if (gapBefore > 0) {
            EXPECT_NEAR(gapBefore / gap, 4, 0.01) << "falls with 1/segs squared";
        }
        gapBefore = gap;
    }
}

class BentCorners : public testing::TestWithParam<double> {};

/// Whatever the turn, the arc starts at its tangent point on the first leg, its centre is to the right of
/// that leg, and it sweeps the angle between the legs: the turn's own at 90 degrees alone.
TEST_P(BentCorners, ArcSweepsTheInsideAngleToTheRight) {
    const double turn = GetParam() * std::numbers::pi / 180;  // to the right when above 0
    const C3DPoint end = {100 + 80 * std::cos(turn), -80 * std::sin(turn), 0};
    const CBends plate = PlateOf({{0, 0, 0}, {100, 0, 12}, end}, 10);
    const double inside = std::numbers::pi - std::abs(turn);
    EXPECT_NEAR(InsideAngle(plate.PointsList, 2), inside, Near);
    EXPECT_NEAR(12 * TangentOfUnitRadius(inside), 12 * std::tan(std::abs(turn) / 2), Near);
    const double start = 100 - 12 * std::tan(std::abs(turn) / 2);
    EXPECT_LT(Distance3D(EdgeOf(plate).Item(2), {start, 0, 0}), Near);
    for (std::size_t i = 2; i <= 12; ++i) {
        const double swept = inside * static_cast<double>(i - 2) / 10;
        const C3DPoint onArc = {start + 12 * std::sin(swept), -12 + 12 * std::cos(swept), 0};
        EXPECT_LT(Distance3D(EdgeOf(plate).Item(i), onArc), Near * 100) << i;
    }
    EXPECT_LT(Distance3D(EdgeOf(plate).Last(), end), Near);
}

INSTANTIATE_TEST_SUITE_P(Turns, BentCorners, testing::Values(90, 30, 60, 120, 150, -30, -90, -135));

/// Such a corner is no bend; the letter of the arc is a half circle to the right of the line.
TEST(BentPlate, ACornerOnAStraightLineIsAHalfCircle) {
    const CBends plate = PlateOf({{0, 0, 0}, {100, 0, 10}, {250, 0, 0}}, 4);
    EXPECT_EQ(TangentOfUnitRadius(InsideAngle(plate.PointsList, 2)), 0);
    EXPECT_LT(Distance3D(EdgeOf(plate).Item(2), {100, 0, 0}), Near);
    EXPECT_LT(Distance3D(EdgeOf(plate).Item(4), {110, -10, 0}), Near);
    EXPECT_LT(Distance3D(EdgeOf(plate).Item(6), {100, -20, 0}), Near);
}

TEST(BentPlate, ACornerWithoutARadiusIsSharp) {
    const CBends plate = PlateOf({{0, 0, 0}, {100, 0, 0}, {100, -80, 0}}, 3);
    ASSERT_EQ(EdgeOf(plate).Count(), 6U);
    for (std::size_t i = 2; i <= 5; ++i) {
        EXPECT_LT(Distance3D(EdgeOf(plate).Item(i), {100, 0, 0}), Near);
    }
}

/// Where the line doubles back no tangent can be worked out: that of the corner before goes on.
TEST(BentPlate, ACornerThatDoublesBackKeepsTheTangentBefore) {
    const CBends plate = PlateOf({{0, 0, 0}, {0, 100, 20}, {90, 100, 30}, {50, 100, 0}}, 2);
    EXPECT_EQ(InsideAngle(plate.PointsList, 3), 0);
    for (std::size_t i = 5; i <= 7; ++i) {
        EXPECT_LT(Distance3D(EdgeOf(plate).Item(i), {70, 100, 0}), Near) << "no sweep, 20 before the corner";
    }
}

/// The radius of an end is never read: the width takes its place, and a rebuild gives the same plate.
TEST(BentPlate, EndsTakeTheWidth) {
    CBends plate = PlateOf({{0, 0, 7}, {0, 100, 20}, {90, 100, -3}}, 4);
    const CRuleSurf first = plate.results.ModelSurface;
    EXPECT_EQ(plate.PointsList.Item(1).z, 50);
    EXPECT_EQ(plate.PointsList.Item(2).z, 20);
    EXPECT_EQ(plate.PointsList.Item(3).z, 50);
    plate.ConstructModel();
    EXPECT_TRUE(SamePoints(*plate.results.ModelSurface.List1, *first.List1));
    EXPECT_TRUE(SamePoints(*plate.results.ModelSurface.List2, *first.List2));
}

TEST(BentPlate, TwoCornersAreAFlatPlate) {
    const CBends plate = PlateOf({{5, 6, 0}, {80, 6, 0}}, 24);
    EXPECT_TRUE(SamePoints(EdgeOf(plate), PointsOf({{5, 6, 0, RuleStation}, {80, 6, 0, RuleStation}})));
}

TEST(BentPlate, HasNoPattern) {
    CBends plate = Tray(4);
    const PointList before = plate.results.ModelSurface.List1;
    plate.DevelopModel();
    EXPECT_FALSE(plate.results.PatternSurface.List1);
    EXPECT_EQ(plate.results.PatternSurfaceList.Count(), 0U);
    EXPECT_EQ(plate.results.ModelSurface.List1, before) << "the model is not made anew";
}

TEST(BentPlate, NoCornersAreAnError) {
    CBends plate;
    EXPECT_THROW(plate.ConstructModel(), ListError);
    const C3DPoints corners = PointsOf({{0, 0, 0}, {9, 0, 0}, {9, 9, 0}});
    EXPECT_THROW(InsideAngle(corners, 1), ListError);
    EXPECT_THROW(InsideAngle(corners, 3), ListError);
}

}  // namespace
}  // namespace korvet
