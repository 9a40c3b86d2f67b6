#include "display/annotations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "display/extent_frame.h"
#include "tests/display/display_log.h"

namespace korvet {
namespace {

using Log = std::vector<std::string>;
using testing::ElementsAre;

/// Draws on 400 by 200 pixels, a unit a pixel and the world's origin at pixel 200, 100. Texts are of one
/// point: letters of 0.8 by 1.6 pixels.
class Annotations : public testing::Test {
  protected:
    Annotations() {
        drawing.Device = &device;
        drawing.Window = {-200, 100, 400, -200};
        drawing.Decimals = 1;
    }

    /// Where a text has its corner.
    [[nodiscard]] PixelPoint CornerOf(std::size_t text) const { return device.Texts().at(text).points[0]; }

    RecordingDevice device{400, 200};
    Drawing drawing;
    CRuleSurfs surfaces;
};

/// Three stations with a construction point between; the lists hold it at different places.
CRuleSurf SheetWithConstructionPoint() {
    CRuleSurf surface;
    surface.List1 = Points({{0, 40, 0, 1}, {7, 40, 0, 0}, {30, 40, 0, 5}});
    surface.List2 = Points({{0, 0, 0, 1}, {30, 0, 0, 1}, {9, 0, 0, 8}});
    return surface;
}

TEST_F(Annotations, TrueLengthsGoStationByStationThenTheLastRulingThenTheThirdLine) {
    CRuleSurf surface;
    surface.List1 = Points({{0, 40, 0, 1}, {10, 40, 0, 1}, {30, 40, 0, 1}});
    surface.List2 = Points({{0, 0, 0, 1}, {11, 0, 0, 1}, {30, 0, 0, 1}});
    surface.List3 = Points({{0, 20, 0, 1}, {14, 20, 0, 1}, {30, 20, 0, 1}});
    surfaces.Add(surface);
    DisplayTrueLengths(drawing, surfaces);
    EXPECT_THAT(device.Strings(), ElementsAre("10", "11", "40",    // A1A2, B1B2, A1B1
                                              "20", "19", "40",    // A2A3, B2B3, A2B2
                                              "40", "14", "16"));  // A3B3, C1C2, C2C3
    EXPECT_TRUE(device.Lines().empty());
    // The middle of A1A2 is (5, 40), pixel 205, 60; the text's centre stands on it: 0.8 left and 0.8 up.
    EXPECT_EQ(CornerOf(0), (PixelPoint{204, 59}));
    EXPECT_EQ(device.Texts()[2].font.lfEscapement, 2700);  // A1 to B1 runs down
}

TEST_F(Annotations, PointsThatAreNoStationsAreLeftOut) {
    surfaces.Add(SheetWithConstructionPoint());
    DisplayTrueLengths(drawing, surfaces);
    EXPECT_THAT(device.Strings(), ElementsAre("30", "30", "40", "40"));
    device.calls.clear();
    DisplayCoordinates(drawing, surfaces, false);
    EXPECT_THAT(device.Strings(), ElementsAre("A1", "B1", "A2", "B2"));
    device.calls.clear();
    DisplayDiagonals(drawing, surfaces);
    EXPECT_THAT(LogOf(device), ElementsAre("dotted 200,60 230,100", "text 50"));
    device.calls.clear();
    const C3DPoints frame = BuildExtentFrame(surfaces, surfaces);
    DisplayDimensionGrid(drawing, {surfaces, frame});
    EXPECT_EQ(device.Texts().size(), 8U);  // four stations, two texts each
}

TEST_F(Annotations, UnequalEdgesGoUpToTheShorterOne) {
    CRuleSurf surface = Sheet();
    surface.List2 = Points({{0, 0, 0, 1}, {30, 0, 0, 0}});
    surfaces.Add(surface);
    DisplayTrueLengths(drawing, surfaces);
    EXPECT_THAT(device.Strings(), ElementsAre("40"));
    device.calls.clear();
    DisplayDiagonals(drawing, surfaces);
    EXPECT_TRUE(device.calls.empty());
    DisplayCoordinates(drawing, surfaces, false);
    EXPECT_THAT(device.Strings(), ElementsAre("A1", "B1", "A2"));
}

TEST_F(Annotations, WithoutStationsThereIsNothing) {
    CRuleSurf surface = Sheet();
    surface.List1 = Points({{0, 40, 0, 0}, {30, 40, 0, 0}});
    surface.List2 = surface.List1;
    surfaces.Add(surface);
    surfaces.Add({});
    DisplayTrueLengths(drawing, surfaces);
    DisplayDiagonals(drawing, surfaces);
    DisplayCoordinates(drawing, surfaces, true);
    EXPECT_TRUE(device.calls.empty());
}

TEST_F(Annotations, DiagonalsRunToTheNextStationOfTheOtherEdge) {
    surfaces.Add(Sheet());
    surfaces.Add(Sheet(100));
    DisplayDiagonals(drawing, surfaces);
    EXPECT_THAT(LogOf(device), ElementsAre("dotted 200,60 230,100", "text 50",  //
                                           "dotted 300,60 330,100", "text 50"));
}

TEST_F(Annotations, CoordinatesCarryTheSurfaceNumberOfManySurfaces) {
    surfaces.Add(Sheet());
    CRuleSurf second = Sheet(100);
    second.List3 = Points({{100, 20, 0, 1}, {130, 20, 0, 1}});
    surfaces.Add(second);
    DisplayCoordinates(drawing, surfaces, true);
    EXPECT_THAT(device.Strings(), ElementsAre("1A1", "1B1", "1A2", "1B2",  //
                                              "2A1", "2B1", "2A2", "2B2", "2C1", "2C2"));
    // Middle left on A1 at (0, 40), pixel 200, 60: the corner is half a height, 0.8, above.
    EXPECT_EQ(CornerOf(0), (PixelPoint{200, 59}));
    EXPECT_EQ(device.Texts()[0].font.lfEscapement, 0);
}

TEST_F(Annotations, CoordinatesOfASingleSurfaceHaveNoNumber) {
    CRuleSurf surface = Sheet();
    surface.List3 = Points({{0, 20, 0, 1}, {30, 20, 0, 1}});
    surfaces.Add(surface);
    DisplayCoordinates(drawing, surfaces, false);
    EXPECT_THAT(device.Strings(), ElementsAre("A1", "B1", "A2", "B2", "C1", "C2"));
}

TEST_F(Annotations, AThirdLineCountsFromTwoPointsAndByItsRuleStations) {
    CRuleSurf single = Sheet();
    single.List3 = Points({{15, 20, 0, 1}});
    surfaces.Add(single);
    DisplayCoordinates(drawing, surfaces, false);
    DisplayTrueLengths(drawing, surfaces);
    EXPECT_THAT(device.Strings(), ElementsAre("A1", "B1", "A2", "B2", "30", "30", "40", "40"));

    CRuleSurfs dropped;
    CRuleSurf surface = Sheet();
    surface.List3 = Points({{0, 20, 0, 1}, {12, 20, 0, 0}, {30, 20, 0, 1}});
    dropped.Add(surface);
    device.calls.clear();
    DisplayCoordinates(drawing, dropped, false);
    DisplayTrueLengths(drawing, dropped);
    EXPECT_THAT(device.Strings(),
                ElementsAre("A1", "B1", "A2", "B2", "C1", "C2", "30", "30", "40", "40", "30"));
}

TEST_F(Annotations, GridLeadersGoToTheNearerSidesWithTheDistancesFromTheCorner) {
    surfaces.Add(Sheet(10, -20));
    const C3DPoints frame = BuildExtentFrame(surfaces, surfaces);
    DisplayDimensionGrid(drawing, {surfaces, frame});
    EXPECT_EQ(LogOf(device), (Log{"mark 210,120 240,120 240,80 210,80 210,120",  //
                                  "dotted 210,80 210,80", "text   40  ",         // A1 to the left
                                  "dotted 210,80 210,80", "text   0  ",          // A1 to the top
                                  "dotted 240,80 240,80", "text   40  ",         // A2 to the right
                                  "dotted 240,80 240,80", "text   30  ",         // A2 to the top
                                  "dotted 210,120 210,120", "text   0  ",        // B1 to the left
                                  "dotted 210,120 210,120", "text   0  ",        // B1 to the bottom
                                  "dotted 240,120 240,120", "text   0  ",        // B2 to the right
                                  "dotted 240,120 240,120", "text   30  "}));    // B2 to the bottom
}

TEST_F(Annotations, GridTextsStandOutsideTheFrame) {
    surfaces.Add(Sheet());
    const C3DPoints frame = BuildExtentFrame(surfaces, surfaces);
    DisplayDimensionGrid(drawing, {surfaces, frame});
    const std::vector<RecordingDevice::Call> texts = device.Texts();
    // A1 at pixel 200, 60. "  40  " is 4.8 long: to the left of the point, half a height up.
    EXPECT_EQ(CornerOf(0), (PixelPoint{195, 59}));
    EXPECT_EQ(texts[0].font.lfEscapement, 0);
    // "  0  " upward from the point, half a height to the left.
    EXPECT_EQ(CornerOf(1), (PixelPoint{199, 60}));
    EXPECT_EQ(texts[1].font.lfEscapement, 900);
    // A2 at pixel 230, 60: to the right of the point.
    EXPECT_EQ(CornerOf(2), (PixelPoint{230, 59}));
    // B2 at pixel 230, 100: "  30  " ends at the point from below.
    EXPECT_EQ(CornerOf(7), (PixelPoint{229, 105}));
    EXPECT_EQ(texts[7].font.lfEscapement, 900);
}

TEST_F(Annotations, GridLeadersFromTheMiddleGoLeftAndDown) {
    CRuleSurf surface;
    surface.List1 = Points({{0, 40, 0, 0}, {15, 20, 0, 1}});
    surface.List2 = Points({{0, 0, 0, 0}, {30, 0, 0, 0}});
    surfaces.Add(surface);
    const C3DPoints frame = BuildExtentFrame(surfaces, surfaces);
    DisplayDimensionGrid(drawing, {surfaces, frame});
    EXPECT_EQ(LogOf(device), (Log{"mark 200,100 230,100 230,60 200,60 200,100",  //
                                  "dotted 215,80 200,80", "text   20  ",         //
                                  "dotted 215,80 215,100", "text   15  "}));
}

TEST_F(Annotations, GridTakesInTheThirdLine) {
    CRuleSurf surface = Sheet();
    surface.List3 = Points({{12, 20, 0, 1}, {30, 20, 0, 0}});
    surfaces.Add(surface);
    const C3DPoints frame = BuildExtentFrame(surfaces, surfaces);
    DisplayDimensionGrid(drawing, {surfaces, frame});
    EXPECT_EQ(device.Strings().size(), 10U);
    EXPECT_EQ(device.Strings().back(), "  12  ");
}

TEST_F(Annotations, GridOfNothingIsNothing) {
    DisplayDimensionGrid(drawing, {surfaces, {}});
    EXPECT_TRUE(device.calls.empty());
}

TEST_F(Annotations, FrameHasTheLengthsOfItsUpperAndLeftSidesAndItsArea) {
    surfaces.Add(Sheet());
    DrawExtentFrame(drawing, BuildExtentFrame(surfaces, surfaces), true);
    EXPECT_EQ(LogOf(device),
              (Log{"mark 200,100 230,100 230,60 200,60 200,100", "text 30", "text 40", "text Area = 1200"}));
    // Above the middle of the upper side, pixel 215, 60: "30" is 1.6 long and 1.6 high.
    EXPECT_EQ(CornerOf(0), (PixelPoint{214, 58}));
    // Left of the middle of the left side, pixel 200, 80, reading upward.
    EXPECT_EQ(CornerOf(1), (PixelPoint{198, 81}));
    EXPECT_EQ(device.Texts()[1].font.lfEscapement, 900);
    // Ends at the upper right corner: 11 letters are 8.8 long.
    EXPECT_EQ(CornerOf(2), (PixelPoint{221, 58}));
}

TEST_F(Annotations, FrameWithoutTextIsItsLine) {
    surfaces.Add(Sheet());
    DrawExtentFrame(drawing, BuildExtentFrame(surfaces, surfaces), false);
    EXPECT_EQ(device.calls.size(), 1U);
}

TEST_F(Annotations, AreaIsRounded) {
    CRuleSurf surface;
    surface.List1 = Points({{0, 1.26, 0, 1}, {1, 1.26, 0, 1}});
    surface.List2 = Points({{0, 0, 0, 1}, {1, 0, 0, 1}});
    surfaces.Add(surface);
    DrawExtentFrame(drawing, BuildExtentFrame(surfaces, surfaces), true);
    EXPECT_EQ(device.Strings().back(), "Area = 1.3");
}

TEST_F(Annotations, NoFrameIsNothing) {
    DrawExtentFrame(drawing, {}, true);
    EXPECT_TRUE(device.calls.empty());
}

TEST_F(Annotations, DimensionsAreALineAndItsLength) {
    surfaces.Add(Sheet());
    CDimensions dimensions;
    dimensions.Add(
        {.SurfaceNo2 = 1, .SurfaceNo1 = 1, .ListNo2 = 2, .ListNo1 = 1, .PointNo2 = 2, .PointNo1 = 1});
    DisplayDimensions(drawing, {surfaces, {}}, dimensions);
    EXPECT_THAT(LogOf(device), ElementsAre("mark 200,60 230,100", "text 50"));
    EXPECT_EQ(device.Texts()[0].font.lfEscapement, 3069);  // 360 - 53.13 degrees
}

TEST_F(Annotations, ADimensionWithoutAnEndStopsTheLaterOnes) {
    surfaces.Add(Sheet());
    const CDimension good = {
        .SurfaceNo2 = 1, .SurfaceNo1 = 1, .ListNo2 = 2, .ListNo1 = 1, .PointNo2 = 2, .PointNo1 = 1};
    CDimension beyond = good;
    beyond.PointNo2 = 3;
    CDimensions dimensions;
    dimensions.Add(good);
    dimensions.Add(beyond);
    dimensions.Add(good);
    DisplayDimensions(drawing, {surfaces, {}}, dimensions);
    EXPECT_EQ(device.calls.size(), 2U);
}

}  // namespace
}  // namespace korvet
