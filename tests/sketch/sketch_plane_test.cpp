// Lines and shapes in the plane of a page.
#include "sketch/sketch_plane.h"

#include <gtest/gtest.h>

#include "sketch/sketch_outline.h"

namespace korvet {
namespace {

TEST(SketchPlane, ALineIsCutAroundTextsAndKeepsItsArrowHeads) {
    const SketchLine line = {
        .points = {{0, 0}, {100, 0}, {100, 50}}, .arrowAtStart = true, .arrowAtEnd = true};
    const auto pieces = CutAround(line, {{40, -5, 20, 10}, {95, 20, 10, 10}});
    ASSERT_EQ(pieces.size(), 3U);
    EXPECT_EQ(pieces[0].points, (std::vector<SketchXY>{{0, 0}, {40, 0}}));
    EXPECT_TRUE(pieces[0].arrowAtStart);
    EXPECT_FALSE(pieces[0].arrowAtEnd);
    EXPECT_EQ(pieces[1].points, (std::vector<SketchXY>{{60, 0}, {100, 0}, {100, 20}}));
    EXPECT_FALSE(pieces[1].arrowAtStart || pieces[1].arrowAtEnd);
    EXPECT_EQ(pieces[2].points, (std::vector<SketchXY>{{100, 30}, {100, 50}}));
    EXPECT_TRUE(pieces[2].arrowAtEnd);
    EXPECT_TRUE(CutAround(line, {{-10, -10, 200, 200}}).empty());
}

TEST(SketchOutline, AWallSeenEdgeOnIsPartOfTheShape) {
    SolidPicture picture;
    picture.edges.push_back({.points = {{0, 0}, {100, 0}, {100, 48}}});
    picture.bounds = {0, 0, 100, 48};
    const std::vector<SolidBounds> strips = StripsOf(picture);
    ASSERT_EQ(strips.size(), 48U);
    EXPECT_EQ(strips.front().left, 0);
    EXPECT_EQ(strips[1].left, 100);
    EXPECT_EQ(strips.back().right, 100);
    EXPECT_EQ(LeavesShape(picture, {100, 20}, Side::Below), (SketchXY{100, 0}));
}

TEST(SketchOutline, AnExtensionLineStartsWhereItLeavesTheShape) {
    SolidPicture picture;
    picture.faces.push_back({.corners = {{0, 0}, {100, 0}, {50, 100}}});
    picture.bounds = {0, 0, 100, 100};
    EXPECT_NEAR(LeavesShape(picture, {50, 50}, Side::Right).x, 75, 1e-9);
    EXPECT_NEAR(LeavesShape(picture, {50, 50}, Side::Left).x, 25, 1e-9);
    EXPECT_NEAR(LeavesShape(picture, {25, 20}, Side::Above).y, 50, 1e-9);
    EXPECT_NEAR(LeavesShape(picture, {25, 20}, Side::Below).y, 0, 1e-9);
    EXPECT_EQ(LeavesShape(picture, {200, 50}, Side::Right), (SketchXY{200, 50}));
}

}  // namespace
}  // namespace korvet
