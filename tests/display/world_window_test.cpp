#include "display/world_window.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "core/checked.h"
#include "tests/support/recording_device.h"

namespace korvet {
namespace {

TEST(PixelMap, RoundsHalvesToEven) {
    const PixelMap half({0, 0, 400, -200}, {200, 100});  // half a pixel to a unit
    EXPECT_EQ(half.ToPixelX(1), 0);
    EXPECT_EQ(half.ToPixelX(3), 2);
    EXPECT_EQ(half.ToPixelX(5), 2);
    EXPECT_EQ(half.ToPixelX(7), 4);
    EXPECT_EQ(half.ToPixelX(-3), -2);
    EXPECT_EQ(half.ToPixelX(-5), -2);
}

TEST(PixelMap, PixelRowsRunDownFromTheTopEdge) {
    const PixelMap map({-200, 100, 400, -200}, {800, 400});
    EXPECT_EQ(map.ToPixelX(-200), 0);
    EXPECT_EQ(map.ToPixelX(200), 800);
    EXPECT_EQ(map.ToPixelY(100), 0);
    EXPECT_EQ(map.ToPixelY(-100), 400);
    EXPECT_EQ(map.ToPixelY(75), 50);
}

TEST(PixelMap, TheEdgesAreHeldInSinglePrecision) {
    // A thousand million pixels to a unit: the gap between 0.1 and its single would be a pixel and a half.
    const PixelMap map({0.1, 0.1, 1e-6, -1e-6}, {1000, 1000});
    EXPECT_EQ(map.ToPixelX(0.1F), 0);
    EXPECT_EQ(map.ToPixelY(0.1F), 0);
}

TEST(PixelMap, TheProductIsRoundedToSinglePrecision) {
    // One pixel over three units. The single nearest to a third is 0.33333334, and 1.5 times that is
    // 0.500000015: a half in singles, which goes down to even, but more than a half in doubles.
    const PixelMap map({0, 0, 3, -3}, {1, 1});
    EXPECT_EQ(map.ToPixelX(1.5F), 0);
    EXPECT_EQ(map.ToPixelX(1.6F), 1);
}

TEST(PixelMap, RefusesPixelsBeyond32Bits) {
    const PixelMap map({0, 0, 400, -400}, {400, 400});
    EXPECT_EQ(map.ToPixelX(-2147483648.0F), std::numeric_limits<std::int32_t>::min());
    EXPECT_THROW((void)map.ToPixelX(2147483648.0F), ArithmeticError);
    EXPECT_THROW((void)map.ToPixelY(3e9F), ArithmeticError);
    EXPECT_THROW((void)map.ToPixelX(std::numeric_limits<float>::infinity()), ArithmeticError);
}

TEST(PixelMap, RefusesAWindowWithoutSize) {
    EXPECT_THROW(PixelMap({0, 0, 0, -1}, {400, 200}), ArithmeticError);
    EXPECT_THROW(PixelMap({0, 0, 1, 0}, {400, 200}), ArithmeticError);
    // So small beside its place that both edges are the same number.
    EXPECT_THROW(PixelMap({1e20, 0, 1e-3, -1}, {400, 200}), ArithmeticError);
}

TEST(TextSizes, AreInWorldUnitsWithTheSignOfTheScale) {
    const RecordingDevice device;  // 400 by 200 pixels, letters of 8 by 16 pixels at 10 points
    const WorldWindow window = {0, 0, 100, -50};
    EXPECT_DOUBLE_EQ(TextWidth(device, window, "ABC", 10), 6);
    EXPECT_DOUBLE_EQ(TextHeight(device, window, "ABC", 10), -4);
    EXPECT_DOUBLE_EQ(TextHeight(device, window, "ABC", 20), -8);
}

TEST(TextSizes, RefuseADeviceWithoutSize) {
    const RecordingDevice device(0, 0);
    EXPECT_THROW(TextWidth(device, {0, 0, 100, -50}, "A", 10), ArithmeticError);
    EXPECT_THROW(TextHeight(device, {0, 0, 100, -50}, "A", 10), ArithmeticError);
}

}  // namespace
}  // namespace korvet
