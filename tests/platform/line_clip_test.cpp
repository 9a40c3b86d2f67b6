#include "platform/line_clip.h"

#include <gtest/gtest.h>

namespace korvet {
namespace {

TEST(ClipLine, KeepsWhatLiesInside) {
    const PixelPoint line[] = {{0, 0}, {50, 50}, {100, 0}};
    const auto parts = ClipLine(line, {100, 100}, 0);
    ASSERT_EQ(parts.size(), 1U);
    ASSERT_EQ(parts[0].size(), 3U);
    EXPECT_EQ(parts[0][1].x, 50);
    EXPECT_EQ(parts[0][2].x, 100);
}

TEST(ClipLine, CutsAtTheMarginAndFallsApartWhereItLeaves) {
    // Out over the right side and back in again.
    const PixelPoint line[] = {{50, 20}, {150, 20}, {150, 60}, {50, 60}};
    const auto parts = ClipLine(line, {100, 100}, 10);
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_EQ(parts[0].front().x, 50);
    EXPECT_EQ(parts[0].back().x, 110);
    EXPECT_EQ(parts[0].back().y, 20);
    EXPECT_EQ(parts[1].front().x, 110);
    EXPECT_EQ(parts[1].front().y, 60);
    EXPECT_EQ(parts[1].back().x, 50);
}

TEST(ClipLine, CutsAtEverySide) {
    const PixelPoint across[] = {{-100, 50}, {200, 50}};
    const PixelPoint down[] = {{50, -100}, {50, 200}};
    const auto level = ClipLine(across, {100, 100}, 0);
    ASSERT_EQ(level.size(), 1U);
    EXPECT_DOUBLE_EQ(level[0].front().x, 0);
    EXPECT_DOUBLE_EQ(level[0].back().x, 100);
    const auto upright = ClipLine(down, {100, 100}, 0);
    ASSERT_EQ(upright.size(), 1U);
    EXPECT_DOUBLE_EQ(upright[0].front().y, 0);
    EXPECT_DOUBLE_EQ(upright[0].back().y, 100);
}

TEST(ClipLine, DropsWhatMissesTheRectangle) {
    const PixelPoint beside[] = {{-10, 0}, {-10, 100}};
    const PixelPoint pastTheCorner[] = {{80, -30}, {130, 20}};
    const PixelPoint one[] = {{50, 50}};
    EXPECT_TRUE(ClipLine(beside, {100, 100}, 0).empty());
    EXPECT_TRUE(ClipLine(pastTheCorner, {100, 100}, 0).empty());
    EXPECT_TRUE(ClipLine(one, {100, 100}, 0).empty());
    EXPECT_TRUE(ClipLine({}, {100, 100}, 0).empty());
}

}  // namespace
}  // namespace korvet
