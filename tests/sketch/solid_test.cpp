#include "sketch/solid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "tests/sketch/solid_reading.h"

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

TEST(DrawSolid, AnEmptyModelHasAnEmptyPicture) {
    for (const CRuleSurfs& model : {CRuleSurfs(), Model({CRuleSurf()})}) {
        const SolidPicture picture = DrawSolid(model, {});
        EXPECT_TRUE(picture.faces.empty());
        EXPECT_TRUE(picture.edges.empty());
        EXPECT_EQ(picture.bounds.left, 0);
        EXPECT_EQ(picture.bounds.bottom, 0);
        EXPECT_EQ(picture.bounds.right, 0);
        EXPECT_EQ(picture.bounds.top, 0);
    }
}

TEST(DrawSolid, AllPointsAtOnePlaceMakeNothingToSee) {
    const SolidPicture picture =
        DrawSolid(Model({Strip({{1, 2, 3}, {1, 2, 3}}, {{1, 2, 3}, {1, 2, 3}})}), {});
    EXPECT_TRUE(picture.faces.empty());
    EXPECT_TRUE(picture.edges.empty());
    EXPECT_DOUBLE_EQ(picture.bounds.left, 1);
    EXPECT_DOUBLE_EQ(picture.bounds.right, 1);
}

/// The edges that are seen of a block of 2 by 2 by 3 about the axis, turned by an eighth of a turn and seen
/// from 30 degrees above. The corners lie at a distance of root 2 from the axis: right, back, left and near.
/// Depth halves, height shrinks by cos 30.
std::vector<Segment> EdgesOfBlock() {
    const double w = std::numbers::sqrt2;
    const double d = w / 2;
    const double h = 3 * std::sqrt(3.0) / 2;
    return {{{0, -d}, {w, 0}},     {{0, -d}, {-w, 0}},   {{0, -d}, {0, h - d}},
            {{w, 0}, {w, h}},      {{-w, 0}, {-w, h}},   {{0, h - d}, {w, h}},
            {{0, h - d}, {-w, h}}, {{0, h + d}, {w, h}}, {{0, h + d}, {-w, h}}};
}

// A block with all six sides, seen over its edge.
TEST(DrawSolid, AClosedBlockShowsThreeSidesAndNineEdges) {
    const CRuleSurfs block = Model({Strip(Rectangle(1, 1, 3), Rectangle(1, 1, 0)),
                                    Strip({{-1, -1, 3}, {1, -1, 3}}, {{-1, 1, 3}, {1, 1, 3}}),
                                    Strip({{-1, -1, 0}, {1, -1, 0}}, {{-1, 1, 0}, {1, 1, 0}})});
    const SolidPicture picture = DrawSolid(block, {.turn = 45, .tilt = 30});
    EXPECT_EQ(picture.faces.size(), 6U);
    EXPECT_EQ(std::count_if(picture.faces.begin(), picture.faces.end(),
                            [](const SolidFace& face) { return !face.inside; }),
              3);
    ExpectSegments(Segments(picture), EdgesOfBlock());
    EXPECT_TRUE(Segments(picture, false).empty());
}

// Looking down into a box without a lid, the far corner is seen as far down as the near rim lets the eye
// look: the rims are 2 root 2 apart, and at 30 degrees the eye comes down 1 in root 3.
TEST(DrawSolid, AnOpenBoxShowsThePartOfItsFarCornerAboveTheNearRim) {
    const SolidPicture picture =
        DrawSolid(Model({Strip(Rectangle(1, 1, 3), Rectangle(1, 1, 0))}), {.turn = 45, .tilt = 30});
    std::vector<Segment> edges = EdgesOfBlock();
    const double d = std::numbers::sqrt2 / 2;
    const double h = 3 * std::sqrt(3.0) / 2;
    edges.push_back({{0, h - d}, {0, h + d}});
    ExpectSegments(Segments(picture), edges);
    EXPECT_FALSE(SeenAt(picture, {0.5, 0.5})->inside);
    EXPECT_TRUE(SeenAt(picture, {0.2, h})->inside);
}

/// Two turns of a stair: either side may be seen, and neither is the inside.
TEST(DrawSolid, AWindingSheetHasNoInside) {
    std::vector<C3DPoint> axis;
    std::vector<C3DPoint> rim;
    CRuleSurfs turns;
    for (int turn = 0; turn < 2; ++turn) {
        axis.clear();
        rim.clear();
        for (int i = 0; i <= 96; ++i) {
            const double t = std::numbers::pi * i / 48;
            const double z = turn * 2 + i / 48.0;
            axis.push_back({0.5 * std::cos(t), 0.5 * std::sin(t), z});
            rim.push_back({2 * std::cos(t), 2 * std::sin(t), z});
        }
        turns.Add(Strip(axis, rim));
    }
    const SolidPicture picture = DrawSolid(turns, {.turn = 0, .tilt = 12});
    ASSERT_FALSE(picture.faces.empty());
    for (const SolidFace& face : picture.faces) {
        EXPECT_FALSE(face.inside);
    }
}

TEST(DrawSolid, AStraightFrontIsOneLine) {
    const SolidPicture picture =
        DrawSolid(Model({Strip({{0, 0, 2}, {1, 0, 2}, {4, 0, 2}}, {{0, 0, 0}, {1, 0, 0}, {4, 0, 0}})}),
                  {.turn = 0, .tilt = 0});
    ExpectSegments(Segments(picture),
                   {{{0, 0}, {4, 0}}, {{0, 2}, {4, 2}}, {{0, 0}, {0, 2}}, {{4, 0}, {4, 2}}});
    ASSERT_EQ(picture.edges.size(), 1U);
    EXPECT_EQ(picture.edges[0].points.size(), 5U);
}

// The back plate stands from x = -3 to 3 and z = 0 to 2; the front one hides its foot from -1 to 1.
TEST(DrawSolid, APlateHidesThePartOfALineBehindIt) {
    const CRuleSurfs plates = Model({Strip({{-3, 1, 2}, {3, 1, 2}}, {{-3, 1, 0}, {3, 1, 0}}),
                                     Strip({{-1, 0, 1}, {1, 0, 1}}, {{-1, 0, -1}, {1, 0, -1}})});
    const SolidPicture picture = DrawSolid(plates, {.turn = 0, .tilt = 0});
    ExpectSegments(Segments(picture), {{{-3, 2}, {3, 2}},
                                       {{-3, 0}, {-3, 2}},
                                       {{3, 0}, {3, 2}},
                                       {{-3, 0}, {-1, 0}},
                                       {{1, 0}, {3, 0}},
                                       {{-1, 1}, {1, 1}},
                                       {{-1, -1}, {1, -1}},
                                       {{-1, -1}, {-1, 1}},
                                       {{1, -1}, {1, 1}}});
    ASSERT_EQ(picture.faces.size(), 2U);
    EXPECT_NEAR(picture.faces[0].corners[0].x, -3, Close);  // the back plate is painted first
}

TEST(DrawSolid, TheOrderOfTheSurfacesDoesNotCountForTheOrderOfPainting) {
    const CRuleSurfs plates = Model({Strip({{-1, 0, 1}, {1, 0, 1}}, {{-1, 0, -1}, {1, 0, -1}}),
                                     Strip({{-3, 1, 2}, {3, 1, 2}}, {{-3, 1, 0}, {3, 1, 0}})});
    const SolidPicture picture = DrawSolid(plates, {.turn = 0, .tilt = 0});
    ASSERT_EQ(picture.faces.size(), 2U);
    EXPECT_NEAR(picture.faces[1].corners[0].x, -1, Close);
}

// The ramp's middle is nearer than the plate, but where they cover each other the ramp lies behind it.
TEST(DrawSolid, WhatCountsIsTheDepthWhereFacesCoverEachOther) {
    const CRuleSurf ramp = Strip({{-2, 10, 10}, {2, 10, 10}}, {{-2, -10, 0}, {2, -10, 0}});
    const CRuleSurf plate = Strip({{-1, 1, 9}, {1, 1, 9}}, {{-1, 1, 8}, {1, 1, 8}});
    for (const CRuleSurfs& model : {Model({ramp, plate}), Model({plate, ramp})}) {
        const SolidPicture picture = DrawSolid(model, {.turn = 0, .tilt = 0});
        ASSERT_EQ(picture.faces.size(), 2U);
        EXPECT_NEAR(std::abs(picture.faces[0].corners[0].x), 2, Close);
        EXPECT_NEAR(std::abs(picture.faces[1].corners[0].x), 1, Close);
    }
}

// Two leaves of a plate, both before the eye, bent by an angle about an upright line.
TEST(DrawSolid, ABendOfMoreThanTwentyDegreesIsAnEdge) {
    for (const double angle : {15.0, 19.0, 21.0, 30.0}) {
        const double slope = std::tan(angle * std::numbers::pi / 180);
        const SolidPicture picture = DrawSolid(
            Model({Strip({{0, 0, 1}, {1, 0, 1}, {2, slope, 1}}, {{0, 0, 0}, {1, 0, 0}, {2, slope, 0}})}),
            {.turn = 0, .tilt = 0});
        std::vector<Segment> expected = {
            {{0, 0}, {2, 0}}, {{0, 1}, {2, 1}}, {{0, 0}, {0, 1}}, {{2, 0}, {2, 1}}};
        if (angle > 20) {
            expected.push_back({{1, 0}, {1, 1}});
        }
        ExpectSegments(Segments(picture), expected);
        EXPECT_TRUE(Segments(picture, false).empty());
    }
}

TEST(DrawSolid, ALineThatTwoPiecesShareIsDrawnOnce) {
    const CRuleSurfs pieces = Model({Strip({{0, 0, 2}, {4, 0, 2}}, {{0, 0, 1}, {4, 0, 1}}),
                                     Strip({{0, 0, 1}, {4, 0, 1}}, {{0, 0, 0}, {4, 0, 0}})});
    ExpectSegments(
        Segments(DrawSolid(pieces, {.turn = 0, .tilt = 0})),
        {{{0, 0}, {4, 0}}, {{0, 1}, {4, 1}}, {{0, 2}, {4, 2}}, {{0, 0}, {0, 2}}, {{4, 0}, {4, 2}}});
}

TEST(DrawSolid, ALineOnTheWallIsDrawnWhereItIsOnTheNearSide) {
    CRuleSurf box = Strip(Rectangle(1, 1, 3), Rectangle(1, 1, 0));
    box.List3 = ListOf(Rectangle(1, 1, 2));
    const std::vector<Segment> segments = Segments(DrawSolid(Model({box}), {.turn = 45, .tilt = 0}));
    const double w = std::numbers::sqrt2;
    EXPECT_EQ(std::count_if(segments.begin(), segments.end(),
                            [&](const Segment& s) {
                                return SameSegment(s, {{-w, 2}, {w, 2}});
                            }),
              1);
}

TEST(DrawSolid, AShapeThatEndsInAPointIsMadeOfTriangles) {
    const C3DPoint apex = {0, 0, 5, 0};
    const SolidPicture picture =
        DrawSolid(Model({Strip(std::vector<C3DPoint>(5, apex), Rectangle(2, 2, 0))}), {.turn = 0, .tilt = 0});
    // The walls at both sides stand on edge before the eye.
    EXPECT_EQ(picture.faces.size(), 2U);
    for (const SolidFace& face : picture.faces) {
        EXPECT_EQ(face.corners.size(), 3U);
    }
    ExpectSegments(Segments(picture), {{{-2, 0}, {2, 0}}, {{-2, 0}, {0, 5}}, {{2, 0}, {0, 5}}});
}

TEST(DrawSolid, AStripThatIsNotFlatIsTwoTriangles) {
    const SolidPicture picture =
        DrawSolid(Model({Strip({{0, 0, 1}, {1, 0, 1}}, {{0, 0, 0}, {1, -0.5, 0}})}), {.turn = 0, .tilt = 0});
    ASSERT_EQ(picture.faces.size(), 2U);
    EXPECT_EQ(picture.faces[0].corners.size(), 3U);
    EXPECT_EQ(picture.faces[1].corners.size(), 3U);
    // What divides it is no line of the shape.
    ExpectSegments(Segments(picture),
                   {{{0, 0}, {1, 0}}, {{0, 1}, {1, 1}}, {{0, 0}, {0, 1}}, {{1, 0}, {1, 1}}});
    EXPECT_TRUE(Segments(picture, false).empty());
}

}  // namespace
}  // namespace korvet
