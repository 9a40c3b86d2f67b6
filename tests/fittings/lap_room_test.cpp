// Whether laps have room, on patterns written down by hand.
#include "fittings/lap_room.h"

#include <gtest/gtest.h>

#include "tests/support/point_lists.h"

namespace korvet::lap_room_test {
namespace {

TEST(TopLapRoom, EndsAtTheNearestPointOfTheEdge) {
    const C3DPoint apex = {10, 0, 0, 0};
    const C3DPoints edge = PointsOf({{17, 0, 0, 0}, {13, 4, 0, 0}, {10, 8, 0, 0}});
    EXPECT_FALSE(TopLapReachesApex(edge, apex, 4.9));
    EXPECT_FALSE(TopLapReachesApex(edge, apex, 5)) << "it just comes to the apex";
    EXPECT_TRUE(TopLapReachesApex(edge, apex, 5.1));
    EXPECT_FALSE(TopLapReachesApex(edge, apex, -1));
}

TEST(SeamLapRoom, EndsWhereThePatternStarts) {
    const C3DPoint apex;
    EXPECT_FALSE(SeamLapPassesStart(PointsOf({{5, 0, 0, 0}, {0, -5, 0, 0}, {3, -4, 0, 0}}), apex));
    EXPECT_TRUE(SeamLapPassesStart(PointsOf({{5, 0, 0, 0}, {3, -4, 0, 0}, {3, 4, 0, 0}}), apex));
    EXPECT_FALSE(SeamLapPassesStart(PointsOf({{5, 0, 0, 0}}), apex));
}

/// A sheet that has been rolled up, its ends as far apart at the two edges as told, and a tab behind.
CRuleSurf RolledSheet(double gap1, double gap2) {
    return Strip({{0, 0, 0, 0}, {50, 50, 0, 0}, {gap1, 0, 0, 0}, {1, 0, 0, 0}},
                 {{0, 90, 0, 0}, {50, 50, 0, 0}, {gap2, 90, 0, 0}, {1, 90, 0, 0}});
}

TEST(SeamGap, CountsAtEitherEdge) {
    EXPECT_TRUE(SeamGapIsBelow(RolledSheet(9, 30), 10));
    EXPECT_TRUE(SeamGapIsBelow(RolledSheet(30, 9), 10));
    EXPECT_FALSE(SeamGapIsBelow(RolledSheet(10, 30), 10)) << "the lap just fits";
    EXPECT_FALSE(SeamGapIsBelow(RolledSheet(0, 0), 0)) << "no lap";
}

TEST(SeamGap, ASheetOfOneStationIsAnError) {
    EXPECT_THROW(SeamGapIsBelow(Strip({{0, 0, 0, 0}}, {{0, 90, 0, 0}}), 10), ListError);
}

}  // namespace
}  // namespace korvet::lap_room_test
