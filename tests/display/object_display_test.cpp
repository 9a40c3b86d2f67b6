#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/checked.h"
#include "display/object_display.h"
#include "tests/display/display_fixture.h"

namespace korvet {
namespace {

using Log = std::vector<std::string>;
using Kind = RecordingDevice::Kind;
using testing::ElementsAre;

const Log SheetLines = {"cut 200,60 200,100", "cut 230,60 230,100", "cut 200,60 230,60",
                        "cut 200,100 230,100"};

TEST_F(ObjectDisplay, PatternIsDrawnUnprojected) {
    AddView(true);
    display.DisplayObject();
    EXPECT_EQ(LogOf(screen), (Log{"clear", SheetLines[0], SheetLines[1], SheetLines[2], SheetLines[3]}));
    EXPECT_EQ(screen.calls[0].color, display.Colors.DisplayBackColor);
    EXPECT_EQ(fitting->developed, 1);
    EXPECT_EQ(fitting->constructed, 0);
}

TEST_F(ObjectDisplay, ModelIsDrawnAsTheViewShowsIt) {
    AddView(false);
    display.DisplayObject();
    // Straight down, y runs downward.
    EXPECT_EQ(LogOf(screen), (Log{"clear", "cut 200,140 200,100", "cut 230,140 230,100",
                                  "cut 200,140 230,140", "cut 200,100 230,100"}));
    EXPECT_EQ(fitting->constructed, 1);
    EXPECT_EQ(fitting->developed, 0);
    EXPECT_EQ(display.Surfaces.Item(1).List1->Item(1).y, 40);
    EXPECT_EQ(display.ScreenSurfaces().Item(1).List1->Item(1).y, -40);
}

TEST_F(ObjectDisplay, WholeOrderOfAPattern) {
    AddView(true);
    AddDimension(FirstEdgeList, 1, SecondEdgeList, 2);
    RequestAll();
    display.DisplayObject();

    Log expected = {"clear"};
    expected.insert(expected.end(), SheetLines.begin(), SheetLines.end());
    const Log annotations = {"mark 200,100 230,100 230,60 200,60 200,100",  // grid
                             "dotted 200,60 200,60",
                             "dotted 200,60 200,60",
                             "dotted 230,60 230,60",
                             "dotted 230,60 230,60",
                             "dotted 200,100 200,100",
                             "dotted 200,100 200,100",
                             "dotted 230,100 230,100",
                             "dotted 230,100 230,100",
                             "mark 200,60 230,100",                          // dimension
                             "dotted 200,60 230,100",                        // diagonal
                             "mark 200,100 230,100 230,60 200,60 200,100"};  // frame
    expected.insert(expected.end(), annotations.begin(), annotations.end());
    expected.insert(expected.end(), SheetLines.begin(), SheetLines.end());
    const Log texts = {"text   40  ", "text   0  ", "text   40  ", "text   30  ",  // grid
                       "text   0  ", "text   0  ", "text   0  ", "text   30  ",
                       "text 50",                                   // dimension
                       "text 30", "text 30", "text 40", "text 40",  // true lengths
                       // The diagonal's would lie on the dimension's.
                       "text A1", "text B1", "text A2", "text B2",  // coordinates
                       "text 30", "text 40", "text Area = 1200",    // frame
                       "text note"};
    expected.insert(expected.end(), texts.begin(), texts.end());
    EXPECT_EQ(LogOf(screen), expected);
}

TEST_F(ObjectDisplay, AModelHasNoAnnotationButItsLabel) {
    AddView(false);
    AddDimension(FirstEdgeList, 1, SecondEdgeList, 2);
    RequestAll();
    display.DisplayObject();
    EXPECT_EQ(screen.calls.size(), 6U);
    EXPECT_THAT(screen.Strings(), ElementsAre("note"));
    EXPECT_EQ(fitting->constructed, 1);
}

TEST_F(ObjectDisplay, GridOrFrameHasThePatternMadeAndDrawnTwice) {
    AddView(true);
    fitting->canned.warnings = {{28, false}, {25, true}};
    const auto passes = [&](bool grid, bool frame) {
        display.CoordGridRequested = grid;
        display.FrameRequested = frame;
        fitting->developed = 0;
        display.DisplayObject();
        return fitting->developed;
    };
    EXPECT_EQ(passes(false, false), 1);
    EXPECT_EQ(display.Warnings.size(), 2U);
    EXPECT_EQ(passes(true, false), 2);
    EXPECT_EQ(passes(false, true), 2);
    EXPECT_EQ(passes(true, true), 2);
    ASSERT_EQ(display.Warnings.size(), 2U) << "what the first build said is not said again";
    EXPECT_EQ(display.Warnings[0].messageId, 28);
    EXPECT_EQ(display.Warnings[1].messageId, 25);
    EXPECT_TRUE(display.Warnings[1].userError);
    EXPECT_EQ(display.ScreenSurfaces().Count(), 1U);
}

TEST_F(ObjectDisplay, AFailedBuildLeavesItsWarnings) {
    AddView(true);
    fitting->canned.warnings = {{28, false}};
    fitting->fails = true;
    EXPECT_THROW(display.DisplayObject(), ArithmeticError);
    ASSERT_EQ(display.Warnings.size(), 1U);
    EXPECT_EQ(display.Warnings[0].messageId, 28);
}

TEST_F(ObjectDisplay, APassThatFailsLeavesThePictureAndWhatIsKnownOfIt) {
    AddView(true);
    display.FrameRequested = true;
    display.DisplayObject();
    const Log picture = LogOf(screen);
    const WorldWindow window = display.DisplayWindow();
    const auto expectAsBefore = [&](const char* what) {
        EXPECT_THROW(display.DisplayObject(), ArithmeticError) << what;
        EXPECT_EQ(LogOf(screen), picture) << what;
        EXPECT_EQ(display.DisplayWindow(), window) << what;
        EXPECT_TRUE(display.ViewPoint.Patternview) << what;
        EXPECT_NEAR(display.Surfaces.Item(1).List1->Item(2).x, 30, 1e-9) << what;
        EXPECT_NEAR(display.FindClosestPoint({31, 41, 0, 0}).value().ScreenPoint.y, 40, 1e-9) << what;
    };
    AddView(false);
    display.ViewList->Item(2).ZoomFactor = 3;
    fitting->fails = true;
    expectAsBefore("a build");
    fitting->fails = false;
    fitting->canned.ModelSurface = Sheet(9e8);
    expectAsBefore("a drawing beyond all pixels");
    display.ViewList->Item(2).Patternview = true;
    fitting->failsFrom = fitting->developed + 2;
    expectAsBefore("the second build of a pass");
    fitting->failsFrom.reset();
    display.DisplayObject();
    EXPECT_NE(display.DisplayWindow(), window);
}

TEST_F(ObjectDisplay, ThePictureHasTheSizeThatTheScreenHasNow) {
    AddView(true);
    screen.nextSize = PixelSize{200, 400};
    screen.outerSize = {200, 400};
    display.DisplayObject();
    EXPECT_EQ(display.DisplayWindow(), (WorldWindow{-100, 200, 200, -400}));
    EXPECT_EQ(LogOf(screen)[1], "cut 100,160 100,200");
}

TEST_F(ObjectDisplay, FirstDisplayStartsWithTwoHundredUnits) {
    AddView(true);
    display.WorldExtents = 5;
    display.DisplayObject();
    EXPECT_EQ(display.WorldExtents, 200);
    EXPECT_EQ(display.DisplayWindow(), (WorldWindow{-200, 100, 400, -200}));
    AddView(true);
    display.WorldExtents = 50;
    display.DisplayObject();
    EXPECT_EQ(display.WorldExtents, 50);
    EXPECT_EQ(display.DisplayWindow(), (WorldWindow{-50, 25, 100, -50}));
}

TEST_F(ObjectDisplay, PictureSitsOneTextHeightOffCentre) {
    AddView(true);
    display.TextSize = 3;
    display.DisplayObject();
    EXPECT_EQ(display.DisplayWindow(), (WorldWindow{-197, 103, 400, -200}));
    EXPECT_EQ(LogOf(screen)[1], "cut 197,63 197,103");
}

TEST_F(ObjectDisplay, RotationComesBeforeTheMoveAndLeavesTheFittingAlone) {
    AddView(true);
    display.RotationAngle = QuarterTurn;
    display.RotationPoint = {30, 0, 0, 0};
    display.MovePoint1 = {5, 5, 0, 0};
    display.MovePoint2 = {15, 5, 0, 0};
    display.DisplayObject();
    // About its lower right corner, the upper left one comes to (-10, -30); moved by 10 in x, to (0, -30).
    const C3DPoint& turned = display.Surfaces.Item(1).List1->Item(1);
    EXPECT_NEAR(turned.x, 0, 1e-9);
    EXPECT_NEAR(turned.y, -30, 1e-9);
    EXPECT_EQ(fitting->results.PatternSurface.List1->Item(1).x, 0);
    EXPECT_EQ(fitting->results.PatternSurface.List1->Item(1).y, 40);
}

TEST_F(ObjectDisplay, EverySurfaceOfManyIsTurnedAndMoved) {
    AddView(true);
    fitting->canned.PatternSurfaceList.Add(Sheet());
    fitting->canned.PatternSurfaceList.Add(Sheet(100));
    display.Multiple = true;
    display.MovePoint2 = {1, 2, 0, 0};
    display.DisplayObject();
    ASSERT_EQ(display.Surfaces.Count(), 2U);
    EXPECT_NEAR(display.Surfaces.Item(1).List2->Item(1).x, 1, 1e-9);
    EXPECT_NEAR(display.Surfaces.Item(2).List2->Item(1).x, 101, 1e-9);
    EXPECT_NEAR(display.Surfaces.Item(2).List2->Item(1).y, 2, 1e-9);
    EXPECT_EQ(fitting->results.PatternSurfaceList.Item(2).List2->Item(1).x, 100);
    EXPECT_EQ(screen.Lines().size(), 8U);
}

TEST_F(ObjectDisplay, AModelIsNotTurned) {
    AddView(false);
    fitting->canned.ModelSurfaceList.Add(Sheet());
    display.Multiple = true;
    display.RotationAngle = 1;
    display.MovePoint2 = {10, 0, 0, 0};
    display.DisplayObject();
    EXPECT_EQ(display.Surfaces.Item(1).List1->Item(1).x, 0);
}

TEST_F(ObjectDisplay, LabelLinesStandOneAndAHalfHeightsBelowEachOther) {
    AddView(false);
    display.TextSize = 10;
    display.LabelPoint = C3DPoint{};
    display.LabelList->Add({"one"});
    display.LabelList->Add({"two"});
    display.LabelList->Add({"three"});
    display.DisplayObject();
    const std::vector<RecordingDevice::Call> texts = screen.Texts();
    ASSERT_EQ(texts.size(), 3U);
    // The point is at pixel 190, 110; letters of 9.77154 points are 7.8172 by 15.6345 pixels. The corner is
    // half a box left and up; the lines lie 23.4517 apart.
    EXPECT_EQ(texts[0].points[0], (PixelPoint{178, 102}));
    EXPECT_EQ(texts[1].points[0], (PixelPoint{178, 126}));
    EXPECT_EQ(texts[2].points[0], (PixelPoint{170, 149}));
    EXPECT_EQ(display.LabelPoint->y, 0);
}

TEST_F(ObjectDisplay, NoLabelWithoutAPoint) {
    AddView(false);
    display.LabelList->Add({"one"});
    display.DisplayObject();
    EXPECT_TRUE(screen.Texts().empty());
}

TEST_F(ObjectDisplay, AFittingWithoutSurfacesIsClearedAndLabelled) {
    for (const bool pattern : {false, true}) {
        for (const bool multiple : {false, true}) {
            display.ViewList = std::make_shared<CViewList>();
            AddView(pattern);
            fitting->canned = {};
            screen.calls.clear();
            display.Multiple = multiple;
            RequestAll();
            display.DisplayObject();
            EXPECT_EQ(LogOf(screen), (Log{"clear", "text note"}));
            EXPECT_EQ(display.Surfaces.Count(), 0U);
            EXPECT_FALSE(display.FindClosestPoint({}).has_value());
            display.ZoomExtents();
            EXPECT_EQ(display.ViewList->Count(), 1U);
        }
    }
}

TEST_F(ObjectDisplay, ADimensionToTheFrameIsDrawnWithoutTheFrame) {
    AddView(true);
    AddDimension(ExtentFrameList, 1, ExtentFrameList, 3);
    display.DisplayObject();
    EXPECT_THAT(screen.Strings(), ElementsAre("50"));
}

TEST_F(ObjectDisplay, ADeviceWithoutSizeMakesTheSurfacesAndDrawsNothing) {
    AddView(true);
    display.CoordGridRequested = true;
    display.FrameRequested = true;
    display.LabelPoint = C3DPoint{};
    display.LabelList->Add({"note"});
    screen.scaleSize = screen.outerSize = {0, 0};
    display.DisplayObject();
    EXPECT_EQ(LogOf(screen), (Log{"clear"}));
    EXPECT_EQ(display.Surfaces.Count(), 1U);
    EXPECT_EQ(display.FindClosestPoint({}).value().PointNo, 1);
    display.ZoomExtents();  // no scale was ever laid over the device
    EXPECT_EQ(display.ViewList->Count(), 1U);
}

TEST_F(ObjectDisplay, MakesItsSurfacesWithoutADevice) {
    display.DisplayDevice = nullptr;
    display.MovePoint2 = {7, 0, 0, 0};
    AddView(true);
    display.DisplayObject();
    EXPECT_NEAR(display.Surfaces.Item(1).List2->Item(1).x, 7, 1e-9);
    EXPECT_EQ(fitting->developed, 1);
    AddView(false);
    display.DisplayObject();
    EXPECT_EQ(display.Surfaces.Item(1).List2->Item(1).x, 0);
    EXPECT_EQ(fitting->constructed, 1);
    EXPECT_TRUE(screen.calls.empty());
}

TEST_F(ObjectDisplay, RefusesToGoWithoutAViewOrAFitting) {
    EXPECT_THROW(display.DisplayObject(), ListError);
    AddView(true);
    display.NewObject.reset();
    EXPECT_THROW(display.DisplayObject(), ListError);
}

}  // namespace
}  // namespace korvet
