#include "core/lap_join.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

/// Three upright rulings of height 4 at x 0, 3 and 6, with flags 1, 0, 1.
CRuleSurf UprightStrip() {
    return Strip({{0, 4, 0, 1}, {3, 4, 0, 0}, {6, 4, 0, 1}}, {{0, 0, 0, 1}, {3, 0, 0, 0}, {6, 0, 0, 1}});
}

CRuleSurf Lapped(const CRuleSurf& surface, double lap0, double lap1, double lap2) {
    CLapJoin join;
    join.Surface = surface;
    join.LapSize0 = lap0;
    join.LapSize1 = lap1;
    join.LapSize2 = lap2;
    join.AddLapJoin();
    return join.LappedSurface;
}

void ExpectNear(const C3DPoint& point, double x, double y) {
    EXPECT_NEAR(point.x, x, 1e-9);
    EXPECT_NEAR(point.y, y, 1e-9);
    EXPECT_EQ(point.z, 0);
}

TEST(LapJoin, WithoutSizesOnlyAddsEmptyFoldLines) {
    for (const double size : {0.0, -5.0}) {
        const CRuleSurf surface = UprightStrip();
        const CRuleSurf lapped = Lapped(surface, size, size, size);
        EXPECT_EQ(lapped.List1, surface.List1);
        EXPECT_EQ(lapped.List2, surface.List2);
        ASSERT_TRUE(lapped.LapList1);
        ASSERT_TRUE(lapped.LapList2);
        EXPECT_EQ(lapped.LapList1->Count(), 0U);
        EXPECT_EQ(lapped.LapList2->Count(), 0U);
        EXPECT_TRUE(SamePoints(*lapped.List1, *UprightStrip().List1));
        EXPECT_TRUE(SamePoints(*lapped.List2, *UprightStrip().List2));
    }
}

TEST(LapJoin, SharesTheListsAndDropsReferencePointAndDimensions) {
    CRuleSurf surface = UprightStrip();
    surface.List3 = ListOf({{0, 0, 0, 0}, {1, 1, 0, 0}});
    surface.LapList1 = ListOf({{9, 9, 0, 0}, {8, 8, 0, 0}});
    surface.RefPoint = C3DPoint{};
    surface.RefPointDisplay = true;
    surface.DimensionList = std::make_shared<CDimensions>();
    const CRuleSurf lapped = Lapped(surface, 0, 0, 0);
    EXPECT_EQ(lapped.List3, surface.List3);
    EXPECT_NE(lapped.LapList1, surface.LapList1);
    EXPECT_EQ(lapped.LapList1->Count(), 0U);
    EXPECT_FALSE(lapped.RefPoint);
    EXPECT_FALSE(lapped.RefPointDisplay);
    EXPECT_FALSE(lapped.DimensionList);
}

TEST(SeamLap, AddsATabBeyondTheLastStation) {
    const CRuleSurf surface = UprightStrip();
    const CRuleSurf lapped = Lapped(surface, 0, 2, 0);
    ASSERT_EQ(lapped.List1->Count(), 4U);
    ASSERT_EQ(lapped.List2->Count(), 4U);
    ExpectNear(lapped.List1->Item(4), 8, 4);
    ExpectNear(lapped.List2->Item(4), 8, 0);
    EXPECT_EQ(lapped.List1->Item(4).Flag, 8);
    EXPECT_EQ(lapped.List2->Item(4).Flag, 8);
    EXPECT_EQ(lapped.List1->Item(3).Flag, 5);
    EXPECT_EQ(lapped.List2->Item(3).Flag, 5);
    EXPECT_EQ(lapped.List1->Item(2).Flag, 0);
    EXPECT_EQ(lapped.LapList1->Count(), 0U);
    EXPECT_EQ(surface.List1->Count(), 4U) << "the pattern's own lists are edited";
}

TEST(SeamLap, TurnsAPlainLastStationIntoACorner) {
    const CRuleSurf lapped =
        Lapped(Strip({{0, 4, 0, 0}, {3, 4, 0, 0}}, {{0, 0, 0, 0}, {3, 0, 0, 0}}), 0, 1, 0);
    EXPECT_EQ(lapped.List1->Item(2).Flag, 4);
    EXPECT_EQ(lapped.List2->Item(2).Flag, 4);
}

TEST(SeamLap, LeavesThePatternOnTheOtherSideToo) {
    // The same strip run through from right to left: a quarter turn counter-clockwise from the seam would
    // lay the tab on the pattern.
    const CRuleSurf lapped =
        Lapped(Strip({{6, 4, 0, 1}, {3, 4, 0, 0}, {0, 4, 0, 1}}, {{6, 0, 0, 1}, {3, 0, 0, 0}, {0, 0, 0, 1}}),
               0, 2, 0);
    ExpectNear(lapped.List1->Item(4), -2, 4);
    ExpectNear(lapped.List2->Item(4), -2, 0);
}

TEST(SeamLap, GoesSquareFromASlopingSeam) {
    // Seam from (6, 4) to (3, 0): counter-clockwise is right and down, away from the strip.
    const CRuleSurf lapped =
        Lapped(Strip({{0, 4, 0, 1}, {6, 4, 0, 1}}, {{-3, 0, 0, 1}, {3, 0, 0, 1}}), 0, 5, 0);
    ExpectNear(lapped.List1->Item(3), 10, 1);
    ExpectNear(lapped.List2->Item(3), 7, -3);
}

TEST(SeamLap, LooksPastRulingsThatLieOnTheSeam) {
    // The two last rulings before the seam repeat it, the nearer by 1e-7; only the first one tells the side.
    const CRuleSurf lapped = Lapped(Strip({{6, 4, 0, 1}, {0, 4, 0, 1}, {-1e-7, 4, 0, 1}, {0, 4, 0, 1}},
                                          {{6, 0, 0, 1}, {0, 0, 0, 1}, {-1e-7, 0, 0, 1}, {0, 0, 0, 1}}),
                                    0, 2, 0);
    ExpectNear(lapped.List1->Item(5), -2, 4);
    ExpectNear(lapped.List2->Item(5), -2, 0);
}

TEST(SeamLap, ARulingJustBesideTheSeamDecides) {
    // 2e-6 to the left of the seam, with the strip before it far to the right: the nearer ruling counts.
    const CRuleSurf lapped = Lapped(
        Strip({{6, 4, 0, 1}, {-2e-6, 4, 0, 1}, {0, 4, 0, 1}}, {{6, 0, 0, 1}, {-2e-6, 0, 0, 1}, {0, 0, 0, 1}}),
        0, 2, 0);
    ExpectNear(lapped.List1->Item(4), 2, 4);
}

TEST(SeamLap, WithoutAnyOtherRulingGoesCounterClockwise) {
    const CRuleSurf lapped = Lapped(Strip({{0, 4, 0, 1}}, {{0, 0, 0, 1}}), 0, 2, 0);
    ExpectNear(lapped.List1->Item(2), 2, 4);
    ExpectNear(lapped.List2->Item(2), 2, 0);
}

TEST(SeamLap, IsJudgedByTheMiddleOfTheRulings) {
    // A fan whose rulings share their List1 end: the tab turns off on the far side of the last ruling.
    CRuleSurf fan;
    fan.List1 = std::make_shared<C3DPoints>();
    fan.List2 = std::make_shared<C3DPoints>();
    for (int i = 0; i <= 4; ++i) {
        fan.List1->Add({0, 0, 0, 1});
        C3DPoint end = PolarPoint({0, 0, 0, 0}, DegToRad(-20.0 * i), 10);
        end.Flag = RuleStation;
        fan.List2->Add(end);
    }
    const CRuleSurf lapped = Lapped(fan, 0, 3, 0);
    // The seam points to -80 degrees and the fan came from above it, so the tab goes to -170 degrees.
    ExpectNear(lapped.List1->Item(6), 3 * std::cos(-170 * PI / 180), 3 * std::sin(-170 * PI / 180));
}

TEST(EdgeLap, MovesList1OutAlongTheRulings) {
    const CRuleSurf lapped = Lapped(UprightStrip(), 1.5, 0, 0);
    ASSERT_EQ(lapped.List1->Count(), 3U);
    for (std::size_t i = 1; i <= 3; ++i) {
        ExpectNear(lapped.List1->Item(i), 3.0 * static_cast<double>(i - 1), 5.5);
        EXPECT_EQ(lapped.List1->Item(i).Flag, UprightStrip().List1->Item(i).Flag);
    }
    EXPECT_TRUE(SamePoints(*lapped.LapList1, *UprightStrip().List1));
    EXPECT_TRUE(SamePoints(*lapped.List2, *UprightStrip().List2));
    EXPECT_EQ(lapped.LapList2->Count(), 0U);
}

TEST(EdgeLap, MovesList2OutAlongTheRulings) {
    const CRuleSurf lapped = Lapped(UprightStrip(), 0, 0, 1.5);
    for (std::size_t i = 1; i <= 3; ++i) {
        ExpectNear(lapped.List2->Item(i), 3.0 * static_cast<double>(i - 1), -1.5);
    }
    EXPECT_TRUE(SamePoints(*lapped.LapList2, *UprightStrip().List2));
    EXPECT_TRUE(SamePoints(*lapped.List1, *UprightStrip().List1));
    EXPECT_EQ(lapped.LapList1->Count(), 0U);
}

TEST(EdgeLap, IsMeasuredAlongASlopingRuling) {
    // Ruling from (0, 0) to (3, 4), length 5, made 5 longer at each end.
    const CRuleSurf lapped = Lapped(Strip({{3, 4, 0, 1}}, {{0, 0, 0, 1}}), 5, 0, 5);
    ExpectNear(lapped.List1->Item(1), 6, 8);
    ExpectNear(lapped.List2->Item(1), -3, -4);
}

TEST(EdgeLap, MovesAPointOnItsPartnerAlongX) {
    const CRuleSurf lapped = Lapped(Strip({{2, 2, 0, 1}}, {{2, 2, 0, 1}}), 3, 0, 0);
    ExpectNear(lapped.List1->Item(1), 5, 2);
    ExpectNear(lapped.LapList1->Item(1), 2, 2);
}

TEST(LapJoin, AllThreeLapsTakeTheTabAlong) {
    const CRuleSurf lapped = Lapped(UprightStrip(), 1, 2, 3);
    ASSERT_EQ(lapped.List1->Count(), 4U);
    ExpectNear(lapped.List1->Item(4), 8, 5);
    ExpectNear(lapped.List2->Item(4), 8, -3);
    ASSERT_EQ(lapped.LapList1->Count(), 4U);
    ASSERT_EQ(lapped.LapList2->Count(), 4U);
    ExpectNear(lapped.LapList1->Item(4), 8, 4);
    ExpectNear(lapped.LapList2->Item(4), 8, 0);
    EXPECT_EQ(lapped.LapList1->Item(4).Flag, 8);
    EXPECT_EQ(lapped.LapList1->Item(3).Flag, 5);
}

TEST(LapJoin, NeedsBothListsInFull) {
    EXPECT_THROW(Lapped(CRuleSurf(), 1, 1, 1), ListError);
    CRuleSurf surface = UprightStrip();
    surface.List2 = nullptr;
    EXPECT_THROW(Lapped(surface, 1, 0, 0), ListError);
    EXPECT_THROW(Lapped(Strip({}, {}), 0, 1, 0), ListError);
    for (const auto& [lap0, lap1, lap2] : {std::array{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}}) {
        surface = UprightStrip();
        surface.List2->Remove(3);
        EXPECT_THROW(Lapped(surface, lap0, lap1, lap2), ListError) << lap0 << lap1 << lap2;
    }
}

TEST(LapJoin, ASurfaceThatCannotBeLappedStaysAsItIs) {
    CRuleSurf surface = UprightStrip();
    surface.List2->Remove(3);
    EXPECT_THROW(Lapped(surface, 1, 0, 1), ListError);
    EXPECT_TRUE(SamePoints(*surface.List1, *UprightStrip().List1));
}

TEST(ApplyLapJoin, PutsTheResultInPlaceAndReturnsIt) {
    CRuleSurf surface = UprightStrip();
    surface.RefPoint = C3DPoint{};
    const PointList list1 = surface.List1;
    const CRuleSurf& result = ApplyLapJoin(surface, 1, 1, 2, 3);
    EXPECT_EQ(&result, &surface);
    EXPECT_EQ(surface.List1, list1);
    EXPECT_FALSE(surface.RefPoint);
    ASSERT_EQ(surface.List1->Count(), 4U);
    ExpectNear(surface.List1->Item(4), 8, 5);
    ExpectNear(surface.List2->Item(1), 0, -3);
}

TEST(ApplyLapJoin, DoesNotReadTheJoinType) {
    CRuleSurf surface = UprightStrip();
    ApplyLapJoin(surface, 0, 0, 2, 0);
    EXPECT_EQ(surface.List1->Count(), 4U);
}

}  // namespace
}  // namespace korvet
