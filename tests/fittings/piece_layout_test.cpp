// Pieces in their places: what is moved, what is trimmed, and the rules by which the placing point goes on.
#include "fittings/piece_layout.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/lap_join.h"
#include "core/math_module.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

/// A plate 4 wide and 3 deep, of five stations.
CRuleSurf FlatPlate() {
    return Strip({{0, 3, 0, 1}, {1, 3, 0, 0}, {2, 3, 0, 1}, {3, 3, 0, 0}, {4, 3, 0, 1}},
                 {{0, 0, 0, 1}, {1, 0, 0, 0}, {2, 0, 0, 1}, {3, 0, 0, 0}, {4, 0, 0, 1}});
}

void ExpectAt(const C3DPoint& point, double x, double y, double z = 0) {
    EXPECT_NEAR(point.x, x, 1e-12);
    EXPECT_NEAR(point.y, y, 1e-12);
    EXPECT_NEAR(point.z, z, 1e-12);
}

TEST(PieceLayout, MovesTheGripToThePlacingPoint) {
    PieceLayout layout;
    layout.Add(FlatPlate());
    layout.place = {10, 20, 5, PlainStation};
    layout.Add(FlatPlate());
    layout.Add(FlatPlate(), {4, 3, 1, CornerStation});
    ASSERT_EQ(layout.Surfaces().Count(), 3U);
    EXPECT_TRUE(SamePoints(*layout.Surfaces().Item(1).List1, *FlatPlate().List1));
    ExpectAt(layout.Surfaces().Item(2).List2->Item(1), 10, 20, 5);
    ExpectAt(layout.Surfaces().Item(3).List1->Item(5), 10, 20, 4);
    EXPECT_EQ(layout.Surfaces().Item(3).List1->Item(5).Flag, RuleStation);
}

TEST(PieceLayout, PiecesAreCopies) {
    const CRuleSurf plate = FlatPlate();
    PieceLayout layout;
    layout.place.x = 7;
    layout.Add(plate);
    EXPECT_TRUE(SamePoints(*plate.List1, *FlatPlate().List1));
    EXPECT_NE(layout.Surfaces().Item(1).List1, plate.List1);
}

TEST(PieceLayout, JoinsAPieceToAStationOfTheOneBeforeAlsoBeyondWhatIsKept) {
    PieceLayout layout(Trim::Half);
    const CRuleSurf first = layout.Add(FlatPlate());
    layout.place = first.List1->Item(5);
    layout.Add(FlatPlate(), FlatPlate().List2->Item(1));
    EXPECT_EQ(layout.Surfaces().Item(1).List1->Count(), 3U) << "of which station 5 is none";
    ExpectAt(layout.Surfaces().Item(2).List2->Item(1), 4, 3);
    ExpectAt(layout.Surfaces().Item(2).List1->Item(3), 6, 6);
}

TEST(PieceLayout, TrimsWithTheTabOfALap) {
    CRuleSurf lapped = FlatPlate();
    ApplyLapJoin(lapped, 1, 0, 0.5, 0);
    PieceLayout halves(Trim::Half);
    halves.Add(lapped);
    EXPECT_EQ(halves.Surfaces().Item(1).List1->Count(), 4U) << "6 / 2 + 1";
    PieceLayout quarters(Trim::Quarter);
    quarters.Add(lapped);
    EXPECT_EQ(quarters.Surfaces().Item(1).List1->Count(), 2U);
    PieceLayout whole;
    whole.Add(lapped);
    EXPECT_EQ(whole.Surfaces().Item(1).List1->Count(), 6U);
}

constexpr C3DPoint Place = {10, 20, 0, PlainStation};

TEST(PlacingRule, AboveByDepthAndKerf) {
    ExpectAt(Above(Place, 3, 0.5), 10, 23.5);
    ExpectAt(Above(Above({}, 3, 0.5), 3, 0.5), 0, 7);
}

TEST(PlacingRule, AboveTheHighestPoint) {
    const C3DPoints edge = PointsOf({{0, -9, 0, 0}, {5, 31, 0, 0}, {7, 30, 0, 0}});
    ExpectAt(AboveHighest(Place, edge, 2), 10, 33);
    ExpectAt(AboveHighest(Place, PointsOf({{0, -9, 0, 0}, {1, -12, 0, 0}}), 2), 10, -7);
    EXPECT_THROW(AboveHighest(Place, {}, 2), ListError);
}

TEST(PlacingRule, BelowByOneAndAHalfDepths) {
    ExpectAt(Below({}, 40), 0, -60);
    ExpectAt(Below(Below({}, 40), 40), 0, -120);
}

TEST(PlacingRule, RightOfAStation) {
    ExpectAt(RightOf(Place, {33, 77, 0, RuleStation}, 1.5), 34.5, 20);
}

TEST(PlacingRule, BesideByTheWidthOfAnEdge) {
    ExpectAt(Beside(Place, PointsOf({{-2, 0, 0, 0}, {5, 9, 0, 0}, {-3, 1, 0, 0}})), 18, 20);
    EXPECT_THROW(Beside(Place, {}), ListError);
}

TEST(PlacingRule, AlongARulingLeavesTheKerfBetweenTwoSectors) {
    // Two sectors of one cone, with the apex at the origin: the outer edge of the first lies on the inner one
    // of the second. Along the ruling in their middle the gap is the kerf.
    const double a = DegToRad(37);
    const auto ruling = [&](double from, double to) {
        return Strip({PolarPoint({}, a, from)}, {PolarPoint({}, a, to)});
    };
    PieceLayout layout;
    layout.Add(ruling(80, 120));
    layout.place = AlongRuling(layout.place, ruling(50, 80), 1, 2);
    layout.Add(ruling(50, 80));
    const C3DPoint& upper = layout.Surfaces().Item(1).List1->Item(1);
    const C3DPoint& lower = layout.Surfaces().Item(2).List2->Item(1);
    EXPECT_NEAR(Distance3D(upper, lower), 2, 1e-12);
    EXPECT_LT(Distance3D({}, lower), Distance3D({}, upper)) << "towards the apex";
    EXPECT_THROW(AlongRuling({}, ruling(1, 2), 2, 1), ListError);
    EXPECT_THROW(AlongRuling({}, CRuleSurf(), 1, 1), ListError);
}

}  // namespace
}  // namespace korvet
