// Where dimensions of a plain square come to stand.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "sketch/sketch_layout.h"
#include "sketch/sketch_outline.h"

namespace korvet {
namespace {

/// A square of 100 by 100 with its lower left corner at the origin.
PageSketch Square(std::vector<PageSketch::Dimension> dimensions) {
    PageSketch sketch;
    SolidPicture picture;
    picture.faces.push_back({.corners = {{0, 0}, {100, 0}, {100, 100}, {0, 100}}});
    picture.bounds = {0, 0, 100, 100};
    sketch.strips.push_back(StripsOf(picture));
    sketch.pictures.push_back(picture);
    sketch.dimensions = std::move(dimensions);
    return sketch;
}

SketchMetrics SmallTexts(std::size_t count) {
    return {.box = {40, 20}, .labels = std::vector<SketchXY>(count, SketchXY{50, 14})};
}

TEST(SketchOfASquare, ABoxStandsInTheMiddleOfALongLine) {
    const PageSketch sketch =
        Square({{.kind = DimensionKind::Linear, .side = Side::Below, .a = {0, 0}, .b = {100, 0}},
                {.kind = DimensionKind::Linear, .side = Side::Right, .a = {100, 0}, .b = {100, 100}}});
    const SketchLayout layout = LayoutSketch(sketch, SmallTexts(2), 600, 600);
    const PlacedSolid& solid = layout.solids[0];
    const double left = solid.originX;
    const double right = solid.originX + 100 * solid.scale;
    const double bottom = solid.originY;
    EXPECT_NEAR(CentreOf(layout.boxes[0]).x, (left + right) / 2, 1e-9);
    EXPECT_NEAR(CentreOf(layout.labels[0]).x, (left + right) / 2, 1e-9);
    EXPECT_GT(layout.boxes[0].y, bottom);
    EXPECT_GT(layout.boxes[1].x, right);
    const double block = (layout.labels[1].y + layout.boxes[1].y + layout.boxes[1].height) / 2;
    EXPECT_NEAR(block, bottom - 50 * solid.scale, 1e-9);
    // The level line ends at the box to the left and starts again to the right of it.
    double reachesBox = 0;
    for (const SketchLine& line : layout.lines) {
        if (line.arrowAtStart && line.kind == SketchLineKind::Dimension &&
            line.points.front().y == line.points.back().y) {
            EXPECT_NEAR(line.points.front().x, left, 1e-9);
            reachesBox = line.points.back().x;
        }
    }
    EXPECT_NEAR(reachesBox, layout.boxes[0].x, 1e-9);
}

TEST(SketchOfASquare, DimensionsOfOneSideStandInTiersTheLongestOutside) {
    std::vector<PageSketch::Dimension> sizes;
    for (const double height : {100.0, 90.0, 80.0}) {
        sizes.push_back({.kind = DimensionKind::Linear, .side = Side::Left, .a = {0, 0}, .b = {0, height}});
    }
    const PageSketch sketch = Square(sizes);
    const SketchMetrics metrics = SmallTexts(3);
    const SketchXY least = SmallestSketch(sketch, metrics);
    const SketchLayout layout = LayoutSketch(sketch, metrics, least.x, least.y);
    EXPECT_LT(layout.boxes[0].x, layout.boxes[1].x);
    EXPECT_LT(layout.boxes[1].x, layout.boxes[2].x);
    EXPECT_LT(layout.boxes[2].x + layout.boxes[2].width, layout.solids[0].originX);
}

TEST(SketchOfASquare, AShortLineHasItsArrowHeadsOutside) {
    const PageSketch sketch =
        Square({{.kind = DimensionKind::Linear, .side = Side::Above, .a = {50, 100}, .b = {53, 100}}});
    const SketchLayout layout = LayoutSketch(sketch, SmallTexts(1), 300, 300);
    const double low = layout.solids[0].originX + 50 * layout.solids[0].scale;
    const double high = layout.solids[0].originX + 53 * layout.solids[0].scale;
    bool fromLeft = false;
    bool fromRight = false;
    for (const SketchLine& line : layout.lines) {
        if (line.arrowAtEnd) {
            const double tip = line.points.back().x;
            fromLeft = fromLeft || (std::abs(tip - low) < 1e-9 && line.points.front().x < low);
            fromRight = fromRight || (std::abs(tip - high) < 1e-9 && line.points.front().x > high);
        }
    }
    EXPECT_TRUE(fromLeft);
    EXPECT_TRUE(fromRight);
}

TEST(SketchOfASquare, AnAlignedLineRunsParallelToWhatItMeasures) {
    const PageSketch sketch =
        Square({{.kind = DimensionKind::Aligned, .side = Side::Right, .a = {100, 0}, .b = {160, 80}}});
    const SketchLayout layout = LayoutSketch(sketch, SmallTexts(1), 600, 600);
    int pieces = 0;
    for (const SketchLine& line : layout.lines) {
        if (line.kind == SketchLineKind::Dimension) {
            const SketchXY step = line.points.back() - line.points.front();
            EXPECT_NEAR(step.x * 80 + step.y * 60, 0, 1e-6);
            ++pieces;
        }
    }
    EXPECT_GE(pieces, 1);
}

TEST(SketchOfASquare, AnArcRunsFromRayToRay) {
    const PageSketch sketch = Square({{.kind = DimensionKind::Angle,
                                       .side = Side::Right,
                                       .a = {200, 0},
                                       .b = {200, 100},
                                       .vertex = {100, 0},
                                       .reach = 0.8}});
    const SketchLayout layout = LayoutSketch(sketch, SmallTexts(1), 500, 500);
    const PlacedSolid& solid = layout.solids[0];
    const SketchXY vertex = {solid.originX + 100 * solid.scale, solid.originY};
    const auto arc = std::find_if(layout.lines.begin(), layout.lines.end(),
                                  [](const SketchLine& line) { return line.points.size() > 2; });
    ASSERT_NE(arc, layout.lines.end());
    EXPECT_TRUE(arc->arrowAtStart && arc->arrowAtEnd);
    for (const SketchXY& point : arc->points) {
        EXPECT_NEAR(Length(point - vertex), 80 * solid.scale, 1e-6);
    }
    EXPECT_NEAR(arc->points.front().y, vertex.y, 1e-9);
    EXPECT_NEAR(arc->points.back().x - vertex.x, vertex.y - arc->points.back().y, 1e-9);  // 45 degrees
}

TEST(SketchOfASquare, ARadiusPointsAtItsArcFromOutside) {
    const PageSketch sketch =
        Square({{.kind = DimensionKind::Radius, .side = Side::Above, .a = {100, 100}, .b = {80, 80}}});
    const SketchLayout layout = LayoutSketch(sketch, SmallTexts(1), 400, 400);
    const PlacedSolid& solid = layout.solids[0];
    ASSERT_EQ(layout.lines.size(), 1U);
    EXPECT_TRUE(layout.lines[0].arrowAtEnd);
    EXPECT_NEAR(layout.lines[0].points.back().x, solid.originX + 100 * solid.scale, 1e-9);
    EXPECT_NEAR(layout.lines[0].points.back().y, solid.originY - 100 * solid.scale, 1e-9);
}

TEST(SketchOfASquare, ViewsStandOneAboveTheOtherAtOneScale) {
    PageSketch sketch = Square(
        {{.kind = DimensionKind::Linear, .side = Side::Above, .view = 0, .a = {0, 100}, .b = {100, 100}},
         {.kind = DimensionKind::Linear, .side = Side::Below, .view = 1, .a = {0, 0}, .b = {100, 0}},
         {.kind = DimensionKind::Note, .side = Side::Left, .view = 1}});
    sketch.pictures.push_back(sketch.pictures[0]);
    sketch.strips.push_back(sketch.strips[0]);
    const SketchMetrics metrics = SmallTexts(3);
    const SketchXY least = SmallestSketch(sketch, metrics);
    const SketchLayout layout = LayoutSketch(sketch, metrics, 1.5 * least.x, 1.5 * least.y);
    ASSERT_EQ(layout.solids.size(), 2U);
    EXPECT_DOUBLE_EQ(layout.solids[0].scale, layout.solids[1].scale);
    EXPECT_DOUBLE_EQ(layout.solids[0].originX, layout.solids[1].originX);
    EXPECT_LT(layout.solids[0].originY, layout.solids[1].originY - 100 * layout.solids[1].scale);
    EXPECT_LT(layout.boxes[0].y, layout.boxes[1].y);
    EXPECT_LT(layout.boxes[2].x + layout.boxes[2].width, layout.solids[1].originX);
}

}  // namespace
}  // namespace korvet
