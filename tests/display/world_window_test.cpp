#include "display/world_window.h"

#include <gtest/gtest.h>

#include <cmath>
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

TEST(ToWorld, GivesThePointUnderAPixel) {
    const WorldWindow window = {-200, 100, 400, -200};
    EXPECT_EQ(ToWorld(window, {800, 400}, 0, 0), (WorldPoint{-200, 100}));
    EXPECT_EQ(ToWorld(window, {800, 400}, 800, 400), (WorldPoint{200, -100}));
    EXPECT_EQ(ToWorld(window, {800, 400}, 400.5, 50), (WorldPoint{0.25F, 75}));
}

TEST(ToWorld, UndoesThePixelMapToHalfAPixel) {
    for (const WorldWindow& window :
         {WorldWindow{-198, 102, 400, -200}, {12.5, -3.75, 0.03, -0.02}, {-70000, 9000, 123456, -98765}}) {
        const PixelSize pixels = {731, 517};
        const PixelMap map(window, pixels);
        const double unitsToPixel = window.ScaleWidth / pixels.width;
        for (int i = 0; i <= 500; i += 7) {
            const WorldPoint point = ToWorld(window, pixels, i, i);
            EXPECT_EQ(map.ToPixelX(point.x), i);
            EXPECT_EQ(map.ToPixelY(point.y), i);
            const auto x = static_cast<float>(window.ScaleLeft + window.ScaleWidth * i / 501);
            const WorldPoint back = ToWorld(window, pixels, map.ToPixelX(x), 0);
            EXPECT_LE(std::fabs(back.x - x), 0.51 * unitsToPixel);
        }
    }
}

TEST(ToWorld, StaysFinite) {
    EXPECT_EQ(ToWorld({}, {400, 200}, 10, 20), (WorldPoint{0, 0}));  // no scale applied yet
    EXPECT_EQ(ToWorld({3, 4, 400, -200}, {0, 0}, 10, 20), (WorldPoint{3, 4}));
    const float largest = std::numeric_limits<float>::max();
    EXPECT_EQ(ToWorld({0, 0, 1e300, -1e300}, {400, 200}, 10, 20), (WorldPoint{largest, -largest}));
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
