// Lines of a picture, thinned out.
#include "platform/lines_once.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace korvet {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Points = std::vector<PixelPoint>;

constexpr Pen CutPen = {Black, DrawStyle::Solid, 3};

/// What is left of a line that comes alone.
Points Thinned(const Points& points) {
    LinesOnce lines;
    const std::span<const PixelPoint> taken = lines.Take(CutPen, points);
    return {taken.begin(), taken.end()};
}

TEST(LinesOnce, PointsOnTheStraightWayAreLeftOut) {
    EXPECT_EQ(Thinned({{0, 0}, {5, 0}, {10, 0}, {10, 5}, {10, 10}}), Points({{0, 0}, {10, 0}, {10, 10}}));
    EXPECT_EQ(Thinned({{0, 0}, {1, 3}, {2, 6}, {3, 10}}), Points({{0, 0}, {2, 6}, {3, 10}}));
    EXPECT_EQ(Thinned({{4, 4}, {4, 4}, {9, 4}, {9, 4}, {9, 9}, {9, 9}}), Points({{4, 4}, {9, 4}, {9, 9}}));
}

TEST(LinesOnce, AWayBackIsNoStraightWay) {
    const Points spike = {{0, 0}, {20, 20}, {15, 15}, {30, 0}};
    EXPECT_EQ(Thinned(spike), spike);
}

TEST(LinesOnce, FarPointsAreHeldToTheDot) {
    const Points bent = {{-2000000000, 0}, {0, 1}, {2000000000, 0}};
    EXPECT_EQ(Thinned(bent), bent);
    const Points straight = {{-2000000000, -2000000000}, {0, 0}, {2000000000, 2000000000}};
    EXPECT_EQ(Thinned(straight), Points({straight.front(), straight.back()}));
}

TEST(LinesOnce, ADotStaysADotAndAPointAPoint) {
    EXPECT_EQ(Thinned({{7, 7}, {7, 7}, {7, 7}}), Points({{7, 7}, {7, 7}}));
    EXPECT_EQ(Thinned({{7, 7}}), Points({{7, 7}}));
}

TEST(LinesOnce, ALineComesOnceInAPen) {
    const Points seam = {{0, 0}, {5, 0}, {10, 1}, {20, 2}};
    const Points same = {{0, 0}, {5, 0}, {10, 1}, {15, 2}, {20, 2}};
    const Pen wide = {Black, DrawStyle::Solid, 5};
    const Pen dotted = {Black, DrawStyle::Dotted, 3};
    LinesOnce lines;
    EXPECT_THAT(lines.Take(CutPen, seam), Not(IsEmpty()));
    EXPECT_THAT(lines.Take(wide, seam), Not(IsEmpty()));
    EXPECT_THAT(lines.Take(dotted, seam), Not(IsEmpty()));
    EXPECT_THAT(lines.Take(CutPen, seam), IsEmpty());
    EXPECT_THAT(lines.Take(CutPen, same), Not(IsEmpty()));  // another way to the same end
    EXPECT_THAT(lines.Take(CutPen, Points({{0, 0}, {2, 0}, {5, 0}, {10, 1}, {20, 2}})), IsEmpty());
}

TEST(LinesOnce, ALineComesAgainOverAnotherColour) {
    const Points seam = {{0, 0}, {9, 0}};
    const Pen red = {Red, DrawStyle::Solid, 3};
    LinesOnce lines;
    for (int i = 0; i < 2; ++i) {
        EXPECT_THAT(lines.Take(CutPen, seam), ElementsAre(seam[0], seam[1]));
        EXPECT_THAT(lines.Take(red, seam), ElementsAre(seam[0], seam[1]));
        EXPECT_THAT(lines.Take(red, seam), IsEmpty());
    }
}

}  // namespace
}  // namespace korvet
