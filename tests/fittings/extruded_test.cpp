#include "fittings/extruded.h"

#include <gtest/gtest.h>

#include "tests/support/point_lists.h"

namespace korvet {
namespace {

TEST(Extruded, StandsOnItsLine) {
    const CRuleSurf wall = Extruded(PointsOf({{1, 2, 0}, {5, 2, 0, CornerStation}, {5, 9, 0}}), 40);
    EXPECT_TRUE(SamePoints(*wall.List1, PointsOf({{1, 2, 0, 1}, {5, 2, 0, 1}, {5, 9, 0, 1}})));
    EXPECT_TRUE(SamePoints(*wall.List2, PointsOf({{1, 2, 40, 1}, {5, 2, 40, 1}, {5, 9, 40, 1}})));
    EXPECT_FALSE(wall.List3);
}

TEST(Extruded, HangsBelowItsLineAtAHeightBelowNothing) {
    EXPECT_EQ(Extruded(PointsOf({{1, 2, 0}}), -3).List2->Item(1).z, -3);
}

}  // namespace
}  // namespace korvet
