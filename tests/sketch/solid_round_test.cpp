// Pictures of round walls.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numbers>

#include "core/math_module.h"
#include "sketch/solid.h"
#include "tests/sketch/solid_reading.h"

namespace korvet {
namespace {

/// A cone of half angle a, seen from T above the horizon. Its wall turns away where the polar angle t has
/// sin t = tan a tan T; with these sizes that's one half, at 30 and 150 degrees, where there are stations.
class ConePicture : public testing::Test {
  protected:
    static constexpr double Tilt = 30;
    const double height_ = 3;
    const double top_ = 1;
    const double base_ = 1 + 3 * std::sqrt(3.0) / 2;
    const double rise_ = std::cos(DegToRad(Tilt));
    const double depth_ = std::sin(DegToRad(Tilt));
    SolidPicture picture_ =
        DrawSolid(Model({Strip(Ring(top_, height_), Ring(base_, 0))}), {.turn = 0, .tilt = Tilt});

    /// A point of the cone by its polar angle in degrees.
    [[nodiscard]] SketchXY At(double radius, double z, double angle) const {
        return {radius * std::cos(DegToRad(angle)), radius * std::sin(DegToRad(angle)) * depth_ + z * rise_};
    }

    [[nodiscard]] bool OnEllipse(const SketchXY& p, double radius, double z) const {
        const double y = (p.y - z * rise_) / depth_;
        return std::fabs(std::hypot(p.x, y) - radius) < 1e-6;
    }
};

TEST_F(ConePicture, ContoursAreTheTangents) {
    std::vector<Segment> contours;
    for (const Segment& segment : Segments(picture_)) {
        if (std::hypot(segment.to.x - segment.from.x, segment.to.y - segment.from.y) > 1) {
            contours.push_back(segment);
        }
    }
    ExpectSegments(contours,
                   {{At(base_, 0, 30), At(top_, height_, 30)}, {At(base_, 0, 150), At(top_, height_, 150)}});
}

TEST_F(ConePicture, TheFarPartOfTheBaseIsHiddenAndTheWholeTopIsSeen) {
    int baseSteps = 0;
    int topSteps = 0;
    for (const Segment& segment : Segments(picture_)) {
        if (OnEllipse(segment.from, base_, 0) && OnEllipse(segment.to, base_, 0)) {
            ++baseSteps;
            EXPECT_LE(std::max(segment.from.y, segment.to.y), base_ / 2 * depth_ + Close);
        } else if (OnEllipse(segment.from, top_, height_) && OnEllipse(segment.to, top_, height_)) {
            ++topSteps;
        }
    }
    EXPECT_EQ(baseSteps, 64);  // 240 of the 360 degrees
    EXPECT_EQ(topSteps, 96);
    EXPECT_EQ(Segments(picture_).size(), 64U + 96U + 2U);
    EXPECT_TRUE(Segments(picture_, false).empty());  // a round wall has no bend lines
}

TEST_F(ConePicture, BoundsAreThoseOfTheEllipses) {
    EXPECT_NEAR(picture_.bounds.left, -base_, Close);
    EXPECT_NEAR(picture_.bounds.right, base_, Close);
    EXPECT_NEAR(picture_.bounds.bottom, -base_ * depth_, Close);
    EXPECT_NEAR(picture_.bounds.top, height_ * rise_ + top_ * depth_, Close);
}

TEST_F(ConePicture, TheInnerSideIsSeenBetweenTheContoursAtTheBack) {
    EXPECT_EQ(picture_.faces.size(), 96U);
    EXPECT_EQ(std::count_if(picture_.faces.begin(), picture_.faces.end(),
                            [](const SolidFace& face) { return face.inside; }),
              32);
    EXPECT_TRUE(SeenAt(picture_, {0.01, height_ * rise_})->inside);
    EXPECT_FALSE(SeenAt(picture_, {0.01, height_ * rise_ / 2})->inside);
    EXPECT_EQ(SeenAt(picture_, {base_, height_ * rise_}), nullptr);
}

TEST_F(ConePicture, TheLightComesFromTheLeft) {
    const auto lightAt = [&](double x) { return SeenAt(picture_, {x, height_ * rise_ / 2})->light; };
    EXPECT_GT(lightAt(-1.2), lightAt(-1.9));
    EXPECT_GT(lightAt(-1.2), lightAt(0.05));
    EXPECT_GT(lightAt(0.05), lightAt(0.9));
    EXPECT_GT(lightAt(0.9), lightAt(1.6));
    for (const SolidFace& face : picture_.faces) {
        EXPECT_GE(face.light, 0);
        EXPECT_LE(face.light, 1);
    }
}

TEST_F(ConePicture, TheDirectionOfTheListsDoesNotCount) {
    std::vector<C3DPoint> topBackwards = Ring(top_, height_);
    std::vector<C3DPoint> baseBackwards = Ring(base_, 0);
    std::reverse(topBackwards.begin(), topBackwards.end());
    std::reverse(baseBackwards.begin(), baseBackwards.end());
    for (const CRuleSurf& surface :
         {Strip(topBackwards, baseBackwards), Strip(Ring(base_, 0), Ring(top_, height_))}) {
        const SolidPicture picture = DrawSolid(Model({surface}), {.turn = 0, .tilt = Tilt});
        EXPECT_EQ(std::count_if(picture.faces.begin(), picture.faces.end(),
                                [](const SolidFace& face) { return face.inside; }),
                  32);
        EXPECT_EQ(Segments(picture).size(), Segments(picture_).size());
    }
}

// With an odd number of strips the seam stands on the right, and at the left one strip is just on edge.
TEST(DrawSolid, AStripOnEdgeHasItsContour) {
    for (const bool backwards : {false, true}) {
        std::vector<C3DPoint> top = Ring(1, 3, 35);
        std::vector<C3DPoint> base = Ring(1, 0, 35);
        if (backwards) {
            std::reverse(top.begin(), top.end());
            std::reverse(base.begin(), base.end());
        }
        const SolidPicture picture = DrawSolid(Model({Strip(top, base)}), {.turn = 0, .tilt = 0});
        const double left = -std::cos(std::numbers::pi / 35);
        std::vector<Segment> upright = Segments(picture);
        std::erase_if(upright, [](const Segment& s) { return std::fabs(s.from.x - s.to.x) > 1e-6; });
        ExpectSegments(upright, {{{left, 0}, {left, 3}}, {{1, 0}, {1, 3}}});
    }
}

// A square to round with its corners' cones between flat triangles. In plan nothing hides anything.
TEST(DrawSolid, FlatTrianglesEndAtBendLines) {
    constexpr double Side = 2;
    constexpr double Radius = 1;
    const std::vector<C3DPoint> ring = Ring(Radius, 8);
    std::vector<C3DPoint> round;
    std::vector<C3DPoint> square;
    for (int quarter = 0; quarter < 4; ++quarter) {
        const C3DPoint corner = {quarter == 0 || quarter == 3 ? Side : -Side, quarter < 2 ? Side : -Side, 0,
                                 0};
        for (int i = 0; i <= 24; ++i) {
            round.push_back(ring[static_cast<std::size_t>(quarter * 24 + i)]);
            square.push_back(corner);
        }
    }
    round.push_back(ring[0]);
    square.push_back(square[0]);
    const SolidPicture picture = DrawSolid(Model({Strip(round, square)}), {.turn = 0, .tilt = 90});
    std::vector<Segment> bends;
    for (const double x : {-1.0, 1.0}) {
        for (const double y : {-1.0, 1.0}) {
            bends.push_back({{x * Side, y * Side}, {x * Radius, 0}});
            bends.push_back({{x * Side, y * Side}, {0, y * Radius}});
        }
    }
    ExpectSegments(Segments(picture, false), bends);
}

// Two pipes one behind the other, each of which hides part of itself.
TEST(DrawSolid, ANearPipeHidesAFarOne) {
    const auto pipeAt = [](double x, double y, double height) {
        std::vector<C3DPoint> upper = Ring(1, height);
        std::vector<C3DPoint> lower = Ring(1, 0);
        for (std::vector<C3DPoint>* ring : {&upper, &lower}) {
            for (C3DPoint& p : *ring) {
                p.x += x;
                p.y += y;
            }
        }
        return Strip(upper, lower);
    };
    const SolidPicture picture =
        DrawSolid(Model({pipeAt(0, -5, 2), pipeAt(1, 5, 4)}), {.turn = 0, .tilt = 0});
    // The far pipe's left contour, at x = 0, is seen above the near one only; its right one is free.
    const std::vector<Segment> segments = Segments(picture);
    std::vector<Segment> upright;
    std::copy_if(segments.begin(), segments.end(), std::back_inserter(upright),
                 [](const Segment& s) { return std::fabs(s.from.x - s.to.x) < 1e-6; });
    ExpectSegments(upright, {{{-1, 0}, {-1, 2}}, {{1, 0}, {1, 2}}, {{0, 2}, {0, 4}}, {{2, 0}, {2, 4}}});
    for (const double x : {0.2, 0.5, 0.8}) {
        EXPECT_LE(SeenAt(picture, {x, 1.5})->corners[0].y, 2 + Close);
        EXPECT_GE(SeenAt(picture, {x, 2.5})->corners[0].y, 4 - Close);
    }
}

}  // namespace
}  // namespace korvet
