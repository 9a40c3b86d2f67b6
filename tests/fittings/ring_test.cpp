// The stations round a ring: their angles, numbers and flags.
#include "fittings/ring.h"

#include <gtest/gtest.h>

#include <vector>

#include "core/math_module.h"

namespace korvet {
namespace {

std::vector<Station> StationsOf(const Ring& ring) {
    std::vector<Station> stations;
    for (const Station& station : ring) {
        stations.push_back(station);
    }
    return stations;
}

TEST(Ring, CountsFromOneAndMarksEverySecondStation) {
    const std::vector<Station> stations = StationsOf(Ring(1, 0.25, 4));
    ASSERT_EQ(stations.size(), 4U);
    for (int i = 1; i <= 4; ++i) {
        const Station& station = stations.at(static_cast<std::size_t>(i) - 1);
        EXPECT_EQ(station.index, i);
        EXPECT_EQ(station.angle, 1 + 0.25 * (i - 1)) << "quarters are exact";
        EXPECT_EQ(station.flag, i == 1 || i == 3 ? RuleStation : PlainStation);
    }
}

TEST(Ring, AnglesGrowByRepeatedAddition) {
    double sum = 0.3;
    bool differsFromProduct = false;
    for (const Station& station : Ring(0.3, 0.1, 40)) {
        EXPECT_EQ(station.angle, sum);
        differsFromProduct = differsFromProduct || station.angle != 0.3 + 0.1 * (station.index - 1);
        sum += 0.1;
    }
    EXPECT_TRUE(differsFromProduct) << "or the two could not be told apart here";
}

TEST(Ring, MayBeEmpty) {
    EXPECT_TRUE(StationsOf(Ring(0, 1, 0)).empty());
}

TEST(Ring, AClosedOneEndsWhereItStarts) {
    for (const int segments : {1, 2, 24, 25, 100000}) {
        const Ring ring = ClosedRing(2, segments);
        EXPECT_EQ(ring.Count(), static_cast<std::size_t>(segments) + 1);
        EXPECT_NEAR(StationsOf(ring).back().angle, 2 + FullTurn, 1e-9);
        EXPECT_EQ(StationsOf(ring).front().angle, 2);
    }
}

TEST(Ring, RuleLinesHaveAStationBetweenThem) {
    const std::vector<Station> stations = StationsOf(RuledRing(0, 7));
    ASSERT_EQ(stations.size(), 15U);
    int rules = 0;
    for (const Station& station : stations) {
        if (station.flag == RuleStation) {
            EXPECT_NEAR(station.angle, rules * FullTurn / 7, 1e-12);
            ++rules;
        }
    }
    EXPECT_EQ(rules, 8) << "seven and the closing one";
}

TEST(CirclePoints, LieAboutTheCentreWithTheFlagsOfTheirStations) {
    const C3DPoint centre = {10, -4, 7, CornerStation};
    const PointList circle = CirclePoints(ClosedRing(QuarterTurn, 4), centre, 3);
    ASSERT_EQ(circle->Count(), 5U);
    const std::vector<C3DPoint> expected = {
        {10, -1, 7, 1}, {7, -4, 7, 0}, {10, -7, 7, 1}, {13, -4, 7, 0}, {10, -1, 7, 1}};
    for (std::size_t i = 1; i <= 5; ++i) {
        EXPECT_LT(Distance3D(circle->Item(i), expected.at(i - 1)), 1e-12) << i;
        EXPECT_EQ(circle->Item(i).Flag, expected.at(i - 1).Flag) << i;
    }
}

}  // namespace
}  // namespace korvet
