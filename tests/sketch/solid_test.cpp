#include "sketch/solid.h"

#include <gtest/gtest.h>

namespace korvet {
namespace {

TEST(ProjectOnSketch, ElevationShowsXAndZ) {
    const SketchXY p = ProjectOnSketch({3, 7, 5, 0}, {.turn = 0, .tilt = 0});
    EXPECT_DOUBLE_EQ(p.x, 3);
    EXPECT_DOUBLE_EQ(p.y, 5);
}

TEST(ProjectOnSketch, PlanShowsXAndY) {
    const SketchXY p = ProjectOnSketch({3, 7, 5, 0}, {.turn = 0, .tilt = 90});
    EXPECT_NEAR(p.x, 3, 1e-12);
    EXPECT_NEAR(p.y, 7, 1e-12);
}

TEST(ProjectOnSketch, AQuarterTurnBringsTheXAxisToTheBack) {
    const SketchXY p = ProjectOnSketch({10, 0, 0, 0}, {.turn = 90, .tilt = 30});
    EXPECT_NEAR(p.x, 0, 1e-12);
    EXPECT_NEAR(p.y, 5, 1e-12);
}

}  // namespace
}  // namespace korvet
