#include "display/drawing.h"

#include <gtest/gtest.h>

#include "core/checked.h"
#include "tests/display/display_log.h"

namespace korvet {
namespace {

using Log = std::vector<std::string>;

/// On 400 by 200 pixels, a unit is a pixel and the world's origin is the centre, pixel 200, 100.
Drawing CentredDrawing(RecordingDevice& device) {
    Drawing drawing;
    drawing.Device = &device;
    drawing.Window = {-200, 100, 400, -200};
    drawing.CrossArm = -2;
    return drawing;
}

TEST(FittedWindow, OnATallDeviceTheExtentsSpanTheWidth) {
    const FitScale scale = {.WorldExtents = 200, .ZoomFactor = 1, .PanX = 10, .PanY = 20, .TextSize = 3};
    EXPECT_EQ(FittedWindow(scale, {100, 200}), (WorldWindow{-100 + 10 + 3, 200 + 20 + 3, 200, -400}));
}

TEST(FittedWindow, OnAWideDeviceTheExtentsSpanTheHeight) {
    const FitScale scale = {.WorldExtents = 200, .ZoomFactor = 1, .PanX = 10, .PanY = 20, .TextSize = 3};
    EXPECT_EQ(FittedWindow(scale, {200, 100}), (WorldWindow{-200 + 10 + 3, 100 + 20 + 3, 400, -200}));
}

TEST(FittedWindow, OnASquareTheySpanBoth) {
    EXPECT_EQ(FittedWindow({.WorldExtents = 200}, {50, 50}), (WorldWindow{-100, 100, 200, -200}));
}

TEST(FittedWindow, ZoomShrinksTheWindow) {
    EXPECT_EQ(FittedWindow({.WorldExtents = 200, .ZoomFactor = 4}, {100, 200}),
              (WorldWindow{-25, 50, 50, -100}));
    EXPECT_EQ(FittedWindow({.WorldExtents = 200, .ZoomFactor = 4}, {200, 100}),
              (WorldWindow{-50, 25, 100, -50}));
}

TEST(FittedWindow, AZoomOfZeroCountsAsOne) {
    EXPECT_EQ(FittedWindow({.WorldExtents = 200, .ZoomFactor = 0}, {50, 50}),
              (WorldWindow{-100, 100, 200, -200}));
}

TEST(FittedWindow, RefusesADeviceWithoutSize) {
    EXPECT_THROW(FittedWindow({.WorldExtents = 200}, {0, 100}), ArithmeticError);
    EXPECT_THROW(FittedWindow({.WorldExtents = 200}, {100, 0}), ArithmeticError);
}

TEST(DrawSurface, DrawsRulingsThenEdgesThenFurtherLines) {
    RecordingDevice device(400, 200);
    CRuleSurf surface;
    surface.List1 = Points({{0, 10, 0, 0}, {10, 10, 0, 1}, {20, 10, 0, 5}, {30, 10, 0, 8}});
    surface.List2 = Points({{0, 0, 0, 1}, {10, 0, 0, 0}, {20, 0, 0, 0}, {30, 0, 0, 1}});
    surface.List3 = Points({{0, 5, 0, 0}, {30, 5, 0, 0}});
    surface.LapList1 = Points({{0, 12, 0, 0}, {30, 12, 0, 0}});
    surface.LapList2 = Points({{0, -2, 0, 0}, {30, -2, 0, 0}});
    surface.RefPoint = C3DPoint{50, 50, 0, 0};
    surface.RefPointDisplay = true;
    CentredDrawing(device).DrawSurface(surface);
    EXPECT_EQ(LogOf(device), (Log{"cut 200,90 200,100",                        //
                                  "fold 210,90 210,100",                       //
                                  "fold 220,90 220,100",                       //
                                  "cut 230,90 230,100",                        //
                                  "cut 200,90 210,90 220,90 230,90",           //
                                  "cut 200,100 210,100 220,100 230,100",       //
                                  "cut 200,95 230,95",                         //
                                  "fold 200,88 230,88",                        //
                                  "fold 200,102 230,102",                      //
                                  "mark 250,50 248,50", "mark 250,50 252,50",  //
                                  "mark 250,50 250,52", "mark 250,50 250,48"}));
}

TEST(DrawSurface, InnerRulingsAreDrawnAtOddFlagsUpToSevenOnly) {
    for (std::int16_t flag = 0; flag <= 9; ++flag) {
        RecordingDevice device(400, 200);
        CRuleSurf surface;
        surface.List1 = Points({{0, 10, 0, flag}, {10, 10, 0, flag}, {20, 10, 0, flag}});
        surface.List2 = Points({{0, 0, 0, 1}, {10, 0, 0, 1}, {20, 0, 0, 1}});
        CentredDrawing(device).DrawSurface(surface);
        const bool drawn = flag == 1 || flag == 3 || flag == 5 || flag == 7;
        // The first and the last ruling and the two edges are drawn whatever the flag.
        EXPECT_EQ(device.calls.size(), drawn ? 5U : 4U) << flag;
    }
}

TEST(DrawSurface, OneStationIsOneRuling) {
    RecordingDevice device(400, 200);
    CRuleSurf surface;
    surface.List1 = Points({{0, 10, 0, 0}});
    surface.List2 = Points({{0, 0, 0, 0}});
    CentredDrawing(device).DrawSurface(surface);
    EXPECT_EQ(LogOf(device), (Log{"cut 200,90 200,100", "cut 200,90", "cut 200,100"}));
}

TEST(DrawSurface, LinesOfOnePointAndAHiddenReferencePointAreNotDrawn) {
    RecordingDevice device(400, 200);
    CRuleSurf surface = Sheet();
    surface.List3 = Points({{1, 1, 0, 0}});
    surface.LapList1 = surface.List3;
    surface.LapList2 = surface.List3;
    surface.RefPoint = C3DPoint{};
    CentredDrawing(device).DrawSurface(surface);
    EXPECT_EQ(device.calls.size(), 4U);
}

TEST(DrawSurface, ASurfaceWithoutEdgesIsNothing) {
    RecordingDevice device(400, 200);
    CentredDrawing(device).DrawSurface({});
    EXPECT_TRUE(device.calls.empty());
}

TEST(DrawSurface, RefusesAShorterSecondEdge) {
    RecordingDevice device(400, 200);
    CRuleSurf surface = Sheet();
    surface.List2 = Points({{0, 0, 0, 1}});
    EXPECT_THROW(CentredDrawing(device).DrawSurface(surface), ListError);
}

TEST(DrawnText, KeepsOneHeightInTheWorld) {
    // Letters of 16 pixels at 10 points, and a pixel to a unit: 10 * 3.4395833333 / 16, times the last factor
    // in single precision, 4.545454502105713.
    RecordingDevice device(400, 200);
    Drawing drawing = CentredDrawing(device);
    drawing.TextSize = 10;
    EXPECT_NEAR(drawing.ScaledFontSize(), 9.7715434674, 1e-10);
    drawing.Window = {-100, 50, 200, -100};  // zoomed in by two: twice the points
    EXPECT_NEAR(drawing.ScaledFontSize(), 2 * 9.7715434674, 2e-10);
    drawing.DrawHorizontalText({}, "A", Justification::TopLeft);
    EXPECT_EQ(device.calls[0].font.lfHeight, -26);  // 19.543 * 96 = 1876, / 72 = 26.06
}

TEST(DrawnText, HasTheColourAndTheDecimalsOfTheDrawing) {
    RecordingDevice device(400, 200);
    Drawing drawing = CentredDrawing(device);
    drawing.Decimals = 2;
    drawing.Colors.DisplayTextColor = 77;
    drawing.DrawLength({0, 0, 0, 0}, {0, 1.006, 0, 0}, Justification::MiddleCentre);
    EXPECT_EQ(device.calls[0].text, "1.01");
    EXPECT_EQ(device.calls[0].color, 77);
    drawing.PrintRequested = true;
    drawing.DrawVerticalText({}, "up", Justification::TopLeft);
    EXPECT_EQ(device.calls[1].color, Black);
    EXPECT_EQ(device.calls[1].font.lfEscapement, 900);
}

TEST(LineSpacing, IsOneAndAHalfHeightsOfTheTextAsDrawn) {
    RecordingDevice device(400, 200);
    Drawing drawing = CentredDrawing(device);
    drawing.TextSize = 10;
    EXPECT_NEAR(drawing.LineSpacing(), 1.5 * 16 * 0.97715435, 1e-5);
    drawing.TextSize = 0;  // drawn at one point
    EXPECT_NEAR(drawing.LineSpacing(), 1.5 * 1.6, 1e-9);
}

TEST(Drawing, OnADeviceWithoutSizeDoesNothing) {
    for (const PixelSize size : {PixelSize{0, 100}, PixelSize{100, 0}, PixelSize{0, 0}}) {
        RecordingDevice device(size.width, size.height);
        const Drawing drawing = CentredDrawing(device);
        drawing.DrawSurface(Sheet());
        drawing.DrawHorizontalText({}, "A", Justification::TopLeft);
        drawing.DrawVerticalText({}, "A", Justification::TopLeft);
        drawing.DrawLength({}, {1, 0, 0, 0}, Justification::TopLeft);
        EXPECT_TRUE(device.calls.empty());
        EXPECT_EQ(drawing.ScaledFontSize(), 0);
        EXPECT_EQ(drawing.LineSpacing(), 0);
    }
}

TEST(Drawing, OnNoDeviceDoesNothing) {
    const Drawing drawing;
    EXPECT_FALSE(drawing.CanDraw());
    EXPECT_NO_THROW(drawing.DrawSurface(Sheet()));
}

}  // namespace
}  // namespace korvet
