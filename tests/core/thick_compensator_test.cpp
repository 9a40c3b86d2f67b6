#include "core/thick_compensator.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/checked.h"
#include "core/constants.h"

namespace korvet {
namespace {

double NewDistance(double thickness, int position, int shape, double distance, double angle = 0,
                   int sides = 0) {
    const CThickCompensator compensator = {thickness, static_cast<std::int16_t>(position),
                                           static_cast<std::int16_t>(shape)};
    return compensator.NewDistance(distance, angle, sides);
}

TEST(ThickCompensator, AMeanDimensionIsGivenBackExactly) {
    for (int shape = 0; shape <= 5; ++shape) {
        for (const double distance : {0.1, 50.0, 0.0, -7.3}) {
            EXPECT_EQ(NewDistance(3, MeanDimension, shape, distance, 0.3, 4), distance) << shape;
        }
    }
    EXPECT_EQ(NewDistance(3, MeanDimension, PolygonCorner, 12, 0, 0), 12);
}

TEST(ThickCompensator, RoundWallsTakeHalfTheThickness) {
    for (const int shape : {RoundWall, PlainWall}) {
        EXPECT_EQ(NewDistance(3, InsideDimension, shape, 50), 51.5);
        EXPECT_EQ(NewDistance(3, OutsideDimension, shape, 50), 48.5);
        EXPECT_EQ(NewDistance(3, InsideDimension, shape, 50, 1, 6), 51.5) << "angle and sides do not count";
    }
}

TEST(ThickCompensator, TwoWallsTakeTheWholeThickness) {
    EXPECT_EQ(NewDistance(3, InsideDimension, TwoWalls, 50), 53);
    EXPECT_EQ(NewDistance(3, OutsideDimension, TwoWalls, 50), 47);
}

TEST(ThickCompensator, SlopingWallsAreMeasuredAcrossTheSlope) {
    for (const int shape : {SlopingRoundWall, SlopingFlatWall}) {
        EXPECT_NEAR(NewDistance(4, InsideDimension, shape, 50, PI / 3), 51, 1e-12);
        EXPECT_NEAR(NewDistance(4, OutsideDimension, shape, 50, PI / 3), 49, 1e-12);
        EXPECT_EQ(NewDistance(4, InsideDimension, shape, 50, 0), 52);
    }
}

TEST(ThickCompensator, PolygonCornersStandOffFromTheSides) {
    EXPECT_NEAR(NewDistance(2, InsideDimension, PolygonCorner, 50, 0, 4), 50 + std::sqrt(2.0), 1e-12);
    EXPECT_NEAR(NewDistance(2, OutsideDimension, PolygonCorner, 50, 0, 4), 50 - std::sqrt(2.0), 1e-12);
    // A triangle's corner stands off by twice the wall's half, a hexagon's by 2 / sqrt(3) of it.
    EXPECT_NEAR(NewDistance(2, InsideDimension, PolygonCorner, 50, 0, 3), 52, 1e-12);
    EXPECT_NEAR(NewDistance(2, InsideDimension, PolygonCorner, 50, 0, 6), 50 + 2 / std::sqrt(3.0), 1e-12);
}

TEST(ThickCompensator, APolygonWithoutSidesIsAnError) {
    EXPECT_THROW(NewDistance(2, InsideDimension, PolygonCorner, 50, 0, 0), ArithmeticError);
}

TEST(ThickCompensator, TheResultMayBeNothingOrNegative) {
    EXPECT_EQ(NewDistance(3, OutsideDimension, RoundWall, 1.5), 0);
    EXPECT_EQ(NewDistance(3, OutsideDimension, TwoWalls, 1), -2);
}

TEST(ThickCompensator, AnUnknownShapeGivesZero) {
    for (const int shape : {-1, 6, 100}) {
        for (const int position : {0, 1, 2}) {
            EXPECT_EQ(NewDistance(3, position, shape, 50), 0) << shape << " " << position;
        }
    }
}

}  // namespace
}  // namespace korvet
