// Lines cut to a page: against the places where they cross its edges, found without the code under test.
#include "display/page_clip.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include "core/math_module.h"

namespace korvet {
namespace {

constexpr Bounds Page = {10, 20, 110, 80};

C3DPoint At(double x, double y) {
    return {x, y, 0, PlainStation};
}

/// The length of a line on the page, from its crossings with the four edges: between two neighbouring
/// crossings it is on the page or not, which the middle tells.
double LengthOn(const Bounds& page, const C3DPoint& a, const C3DPoint& b) {
    std::vector<double> parts = {0, 1};
    const auto cross = [&](double start, double end, double edge) {
        const double part = (edge - start) / (end - start);
        if (part > 0 && part < 1) {
            parts.push_back(part);
        }
    };
    cross(a.x, b.x, page.minX);
    cross(a.x, b.x, page.maxX);
    cross(a.y, b.y, page.minY);
    cross(a.y, b.y, page.maxY);
    std::sort(parts.begin(), parts.end());
    double length = 0;
    for (std::size_t i = 1; i < parts.size(); ++i) {
        const double middle = (parts[i - 1] + parts[i]) / 2;
        const double x = a.x + middle * (b.x - a.x);
        const double y = a.y + middle * (b.y - a.y);
        if (x >= page.minX && x <= page.maxX && y >= page.minY && y <= page.maxY) {
            length += (parts[i] - parts[i - 1]) * std::hypot(b.x - a.x, b.y - a.y);
        }
    }
    return length;
}

void ExpectPart(const C3DPoint& a, const C3DPoint& b, const C3DPoint& start, const C3DPoint& end) {
    const std::optional<LinePart> part = ClipLineToPage(a, b, Page);
    ASSERT_TRUE(part);
    EXPECT_NEAR(Distance3D(part->start, start), 0, 1e-9);
    EXPECT_NEAR(Distance3D(part->end, end), 0, 1e-9);
}

TEST(PageClip, KeepsWhatIsInside) {
    ExpectPart(At(20, 30), At(100, 70), At(20, 30), At(100, 70));
    ExpectPart(At(20, 30), At(220, 30), At(20, 30), At(110, 30));
    ExpectPart(At(220, 30), At(20, 30), At(110, 30), At(20, 30));
    ExpectPart(At(50, 50), At(50, 500), At(50, 50), At(50, 80));
    ExpectPart(At(50, 50), At(50, -500), At(50, 50), At(50, 20));
    ExpectPart(At(0, 40), At(200, 40), At(10, 40), At(110, 40));
}

TEST(PageClip, ALineThroughTwoCornersIsWholeBetweenThem) {
    ExpectPart(At(-90, -40), At(210, 140), At(10, 20), At(110, 80));
    ExpectPart(At(210, 140), At(-90, -40), At(110, 80), At(10, 20));
    ExpectPart(At(210, -40), At(-90, 140), At(110, 20), At(10, 80));  // up and to the left
}

TEST(PageClip, ALineThroughOneCornerHasItsPart) {
    ExpectPart(At(0, 10), At(60, 70), At(10, 20), At(60, 70));
    ExpectPart(At(0, 10), At(200, 210), At(10, 20), At(70, 80));
}

TEST(PageClip, ATouchIsNoLine) {
    EXPECT_FALSE(ClipLineToPage(At(0, 30), At(20, 10), Page));     // on a corner from outside
    EXPECT_FALSE(ClipLineToPage(At(110, 50), At(200, 50), Page));  // from an edge outward
    EXPECT_FALSE(ClipLineToPage(At(110, 80), At(120, 90), Page));
}

TEST(PageClip, ALineAlongAnEdgeIsInside) {
    ExpectPart(At(0, 20), At(200, 20), At(10, 20), At(110, 20));
    ExpectPart(At(110, 0), At(110, 200), At(110, 20), At(110, 80));
    ExpectPart(At(10, 25), At(10, 75), At(10, 25), At(10, 75));
}

TEST(PageClip, WithinIsTestedAtEightPlaces) {
    EXPECT_TRUE(IsWithinPage(At(10 - 4e-9, 80 + 4e-9), Page));
    EXPECT_FALSE(IsWithinPage(At(10 - 6e-9, 50), Page));
    EXPECT_FALSE(IsWithinPage(At(50, 80 + 6e-9), Page));
    EXPECT_TRUE(IsWithinPage(At(10, 20), Page));
    EXPECT_TRUE(IsWithinPage(At(110, 80), Page));
}

TEST(PageClip, AMissIsTestedExactly) {
    EXPECT_TRUE(LineMissesPage(At(0, 20 - 1e-12), At(200, 20 - 1e-12), Page));
    EXPECT_FALSE(LineMissesPage(At(0, 20), At(200, 20), Page));
    EXPECT_FALSE(LineMissesPage(At(0, 70), At(60, 200), Page));  // passes a corner
    EXPECT_FALSE(ClipLineToPage(At(0, 70), At(60, 200), Page));
}

TEST(PageClip, WhatIsTooShortToSeeIsNotDrawn) {
    EXPECT_FALSE(ClipLineToPage(At(50, 50), At(50 + 0.9e-8, 50), Page));
    EXPECT_TRUE(ClipLineToPage(At(50, 50), At(50 + 2e-8, 50), Page));
}

TEST(PageClip, RandomLinesHaveTheLengthBetweenTheirCrossings) {
    std::mt19937 random(11);
    std::uniform_real_distribution<double> x(-90, 210);
    std::uniform_real_distribution<double> y(-40, 140);
    int crossing = 0;
    for (int i = 0; i < 100000; ++i) {
        const C3DPoint a = At(x(random), y(random));
        const C3DPoint b = At(x(random), y(random));
        const std::optional<LinePart> part = ClipLineToPage(a, b, Page);
        const double expected = LengthOn(Page, a, b);
        ASSERT_NEAR(part ? Distance3D(part->start, part->end) : 0, expected, 1e-9) << i;
        if (part) {
            crossing += IsWithinPage(a, Page) || IsWithinPage(b, Page) ? 0 : 1;
            for (const C3DPoint& end : {part->start, part->end}) {
                ASSERT_TRUE(end.x >= Page.minX && end.x <= Page.maxX && end.y >= Page.minY &&
                            end.y <= Page.maxY)
                    << i;
            }
            // The part lies on the line and runs its way.
            const double whole = Distance3D(a, b);
            ASSERT_NEAR(Distance3D(a, part->start) + expected + Distance3D(part->end, b), whole, 1e-9) << i;
        }
    }
    EXPECT_GT(crossing, 10000);
}

}  // namespace
}  // namespace korvet
