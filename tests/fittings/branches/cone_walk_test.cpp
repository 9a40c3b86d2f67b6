// The walk along a rule out of a cone against the crossing of line and cone in closed form.
#include "fittings/branches/cone_walk.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "core/checked.h"
#include "core/math_module.h"
#include "tests/fittings/branches/cone_crossing.h"

namespace korvet::cone_walk_test {
namespace {

/// Radius 250 below, apex 750 up, made 450 high.
constexpr WalkedCone Plain = {250, 750, 450};

struct Rule {
    C3DPoint from;
    C3DPoint to;
};

/// Level, rising, falling and upright ones from inside the cone.
std::vector<Rule> Rules() {
    std::vector<Rule> rules;
    for (const double y : {0.0, -60.0, 110.0}) {
        for (const double z : {60.0, 130.0, 300.0}) {
            for (const double rise : {-0.2, 0.0, 0.5, 3.0, 40.0}) {
                rules.push_back({{10, y, z, 0}, {10 + 700.0, y, z + rise * 700.0, 0}});
            }
        }
    }
    return rules;
}

TEST(ConeWalk, EndsJustInsideTheWall) {
    for (const Rule& rule : Rules()) {
        const C3DPoint met = FindConeIntersection(Plain, rule.from, rule.to);
        const double exact = CrossingAlong(Plain.baseRadius, Plain.apexHeight, rule.from, rule.to);
        const double walked = Distance3D(rule.from, met);
        EXPECT_LE(walked, exact + 1e-9);
        EXPECT_GT(walked, exact - 2e-5);
        EXPECT_NEAR(Distance3D(met, rule.to), Distance3D(rule.from, rule.to) - walked, 1e-9) << "on the rule";
        EXPECT_EQ(met.Flag, PlainStation);
    }
}

TEST(ConeWalk, HeightOfTheWall) {
    EXPECT_NEAR(ConeHeightAt(Plain, {0, 0, 5, 0}), 750, 1e-9);
    EXPECT_NEAR(ConeHeightAt(Plain, {-60, 80, 0, 0}), 450, 1e-9);
    EXPECT_NEAR(ConeHeightAt(Plain, {0, -250, 0, 0}), 0, 1e-9);
    EXPECT_NEAR(ConeHeightAt(Plain, {300, 0, 0, 0}), 150, 1e-9) << "beside the base circle it grows again";
}

/// A low rule passes from below the wall through the base circle within one step: without an end at the
/// circle the walk would go on beside it, where the height grows.
TEST(ConeWalk, EndsAtTheBaseCircle) {
    const WalkedCone steep = {252.5, 828, 500};
    const C3DPoint met = FindConeIntersection(steep, {0, 0, 0.001, 0}, {2000, 0, 0.001, 0});
    EXPECT_NEAR(met.x, 252.5, 0.001);
    EXPECT_LT(met.x, 252.5);
}

TEST(ConeWalk, ARuleThatStartsOnTheWallEndsThere) {
    for (const double beyond : {0.0, 1e-13, -1e-13}) {
        const C3DPoint start = {0, 100 + beyond, 450, 0};
        const C3DPoint met = FindConeIntersection(Plain, start, {300, 100 + beyond, 450, 0});
        EXPECT_LT(Distance3D(met, start), 1e-4);
    }
}

std::string ReasonFor(const WalkedCone& cone, const Rule& rule) {
    try {
        (void)FindConeIntersection(cone, rule.from, rule.to);
    } catch (const ArithmeticError& error) {
        return error.what();
    }
    return "";
}

TEST(ConeWalk, TellsWhyThereIsNoEnd) {
    EXPECT_EQ(ReasonFor(Plain, {{0, 100.001, 450, 0}, {300, 100.001, 450, 0}}),
              "the pipe starts outside the cone");
    EXPECT_EQ(ReasonFor(Plain, {{250.001, 0, 0, 0}, {300, 0, 0, 0}}), "the pipe starts outside the cone");
    EXPECT_EQ(ReasonFor(Plain, {{0, 0, 450, 0}, {0, 0, 450, 0}}),
              "the pipe length is too short: a pipe of length 0 has no wall");
    EXPECT_EQ(ReasonFor(Plain, {{0, 0, 100, 0}, {0, 0, -100, 0}}), "the pipe does not come out of the cone")
        << "straight down there is no wall";
}

TEST(ConeWalk, TakesTwentyThousandStepsAtMost) {
    // A step of 0.01 each: 199.5 and the last ones of the halving are within them, 200.2 is not.
    const auto reason = [](double radius) {
        return ReasonFor({radius, 10, 1}, {{0, 0, 0, 0}, {300, 0, 0, 0}});
    };
    EXPECT_EQ(reason(199.5), "");
    EXPECT_EQ(reason(200.2), "the pipe does not come out of the cone");
}

TEST(ConeWalk, NeedsAHeightToStepBy) {
    EXPECT_NO_THROW(RequireWalkable(0.0011));
    for (const double height : {0.001, 0.0, -450.0}) {
        EXPECT_THROW(RequireWalkable(height), ArithmeticError) << height;
        EXPECT_EQ(ReasonFor({250, 750, height}, {{0, 0, 1, 0}, {300, 0, 1, 0}}),
                  "the cone is too low for a pipe");
    }
}

}  // namespace
}  // namespace korvet::cone_walk_test
