// The stations round a roof: the ring's own and the two at the ends of the ridge.
#include "fittings/roof.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "core/checked.h"

namespace korvet {
namespace {

std::vector<RoofStation> StationsOf(const Ring& ring, const Ridge& ridge) {
    std::vector<RoofStation> stations;
    WalkRoof(ring, ridge, [&](const RoofStation& station) { stations.push_back(station); });
    return stations;
}

TEST(RidgeAngle, IsWhereTheRidgeMeetsTheWall) {
    EXPECT_NEAR(50 * std::cos(RidgeAngle({50, 20})), 20, 1e-12);
    EXPECT_NEAR(RidgeAngle({50, -25}), FullTurn / 3, 1e-12);
    EXPECT_THROW(RidgeAngle({50, 51}), ArithmeticError);
    EXPECT_THROW(RidgeAngle({0, 0}), ArithmeticError);
}

TEST(WalkRoof, VisitsTheRingAndBothEndsOfTheRidgeInTheOrderOfTheirAngles) {
    for (const double offset : {-30.0, 0.0, 12.5}) {
        const std::vector<RoofStation> stations = StationsOf(ClosedRing(0, 24), {40, offset});
        ASSERT_EQ(stations.size(), 27U);
        for (std::size_t i = 1; i < stations.size(); ++i) {
            EXPECT_GE(stations[i].angle, stations[i - 1].angle);
        }
        for (const RoofStation& station : stations) {
            const double beyond = offset - 40 * std::cos(station.angle);
            if (station.ridgeEnd) {
                EXPECT_NEAR(beyond, 0, 1e-12);
            } else {
                EXPECT_TRUE(station.far ? beyond > -1e-9 : beyond < 1e-9) << station.angle;
            }
        }
    }
}

TEST(WalkRoof, RidgeEndsAreRuleCornersOnTheEdgeThatBreaksAndTakeNoNumber) {
    const std::vector<RoofStation> stations = StationsOf(ClosedRing(0, 6), {1, 0.1});
    // 0 and 60 degrees, the ridge, 120 to 240, the ridge, 300 and 360.
    const std::vector<int> whole = {1, 0, 1, 1, 0, 1, 1, 0, 1};
    const std::vector<int> broken = {1, 0, 5, 1, 0, 1, 5, 0, 1};
    ASSERT_EQ(stations.size(), whole.size());
    for (std::size_t i = 0; i < whole.size(); ++i) {
        EXPECT_EQ(stations[i].flag, whole[i]) << i;
        EXPECT_EQ(stations[i].brokenFlag, broken[i]) << i;
    }
    EXPECT_FALSE(stations[2].far);
    EXPECT_TRUE(stations[6].far) << "the second end of the ridge is cut by the far plane";
}

TEST(WalkRoof, AStationOnTheRidgeComesOnceMoreBehindIt) {
    const Ridge ridge = {1, 0.3};
    const std::vector<RoofStation> stations = StationsOf(Ring(0, RidgeAngle(ridge), 6), ridge);
    EXPECT_TRUE(stations.at(1).ridgeEnd);
    EXPECT_FALSE(stations.at(2).ridgeEnd);
    EXPECT_EQ(stations.at(1).angle, stations.at(2).angle);
    EXPECT_TRUE(stations.at(2).far);
    EXPECT_EQ(stations.at(2).flag, PlainStation) << "the second of the ring";
}

TEST(WalkRoof, EndsAtTheClosingStationOfAFullTurn) {
    const std::vector<RoofStation> stations = StationsOf(ClosedRing(0, 100000), {1, 0.5});
    EXPECT_EQ(stations.size(), 100003U);
    EXPECT_NEAR(stations.back().angle, FullTurn, 1e-9);
    EXPECT_FALSE(stations.back().far);
}

}  // namespace
}  // namespace korvet
