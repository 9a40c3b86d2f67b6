#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "display/object_display.h"
#include "tests/display/display_fixture.h"
#include "tests/support/memory_file_store.h"

namespace korvet {
namespace {

using testing::ElementsAre;

TEST_F(ObjectDisplay, FrameCornersArePickedOnlyWhenTheFrameIsRequested) {
    AddView(true);
    fitting->canned.PatternSurface.List1 = Points({{0, 40, 0, 1}, {1, 40, 0, 1}});
    display.FrameRequested = true;
    display.DisplayObject();
    EXPECT_EQ(display.FindClosestPoint({30, 40, 0, 0}).value().ListNo, ExtentFrameList);
    display.FrameRequested = false;
    EXPECT_EQ(display.FindClosestPoint({30, 40, 0, 0}).value().ListNo, FirstEdgeList);
}

TEST_F(ObjectDisplay, AModelPickGivesTheTruePoint) {
    AddView(false);
    display.DisplayObject();
    const CNearestPoint nearest = display.FindClosestPoint({0, -40, 0, 0}).value();
    EXPECT_EQ(nearest.ListNo, FirstEdgeList);
    EXPECT_EQ(nearest.ScreenPoint.y, -40);
    EXPECT_EQ(nearest.TruePoint.y, 40);
}

TEST_F(ObjectDisplay, TheDimensionWithTheNearestMiddleIsRemoved) {
    AddView(true);
    AddDimension(FirstEdgeList, 1, FirstEdgeList, 2);    // middle (15, 40)
    AddDimension(SecondEdgeList, 1, SecondEdgeList, 9);  // no end
    AddDimension(FirstEdgeList, 1, SecondEdgeList, 1);   // middle (0, 20)
    AddDimension(FirstEdgeList, 2, SecondEdgeList, 2);   // middle (30, 20)
    display.DisplayObject();
    EXPECT_TRUE(display.DimRemove(14, 0));
    ASSERT_EQ(display.DimensionList->Count(), 3U);
    EXPECT_EQ(display.DimensionList->Item(3).PointNo1, 2);
    // On the line of the upper edge, but nearest to the other's middle.
    EXPECT_TRUE(display.DimRemove(30, 22));
    EXPECT_EQ(display.DimensionList->Item(1).ListNo2, FirstEdgeList);
    EXPECT_TRUE(display.DimRemove(0, 0));
    EXPECT_FALSE(display.DimRemove(0, 0));  // the one that is left has no second end
    EXPECT_EQ(display.DimensionList->Count(), 1U);
    display.DimensionList->Remove(1);
    EXPECT_FALSE(display.DimRemove(0, 0));
}

TEST_F(ObjectDisplay, ADimensionIsRemovedInAModelViewByItsPlaceOnTheModel) {
    AddView(false);
    AddDimension(FirstEdgeList, 1, FirstEdgeList, 2);    // middle (15, 40), drawn at (15, -40)
    AddDimension(SecondEdgeList, 1, SecondEdgeList, 2);  // middle (15, 0)
    display.DisplayObject();
    EXPECT_TRUE(display.DimRemove(15, 35));
    ASSERT_EQ(display.DimensionList->Count(), 1U);
    EXPECT_EQ(display.DimensionList->Item(1).ListNo1, SecondEdgeList);
}

TEST_F(ObjectDisplay, ADimensionToTheFrameFollowsTheSizes) {
    AddView(true);
    AddDimension(ExtentFrameList, 1, ExtentFrameList, 3);
    display.DisplayObject();
    fitting->canned.PatternSurface.List1 = Points({{0, 72, 0, 1}, {30, 72, 0, 1}});
    screen.calls.clear();
    display.DisplayObject();
    EXPECT_THAT(screen.Strings(), ElementsAre("78")) << "30 by 72 now";
}

TEST_F(ObjectDisplay, ADimensionComesBackWithItsPoint) {
    AddView(true);
    AddDimension(FirstEdgeList, 1, FirstEdgeList, 3);
    AddDimension(FirstEdgeList, 1, FirstEdgeList, 2);
    display.DisplayObject();
    EXPECT_THAT(screen.Strings(), ElementsAre());
    fitting->canned.PatternSurface.List1 = Points({{0, 40, 0, 1}, {30, 40, 0, 1}, {70, 40, 0, 1}});
    fitting->canned.PatternSurface.List2 = Points({{0, 0, 0, 1}, {30, 0, 0, 1}, {70, 0, 0, 1}});
    display.DisplayObject();
    EXPECT_THAT(screen.Strings(), ElementsAre("70", "30"));
}

TEST_F(ObjectDisplay, AnotherViewShowsTheLastDisplayWithoutABuild) {
    AddView(true);
    RequestAll();
    display.DisplayObject();
    fitting->canned.PatternSurface = Sheet(100, 100);
    const CViewPoint turned = {true, 2, 5, 10, QuarterTurn, QuarterTurn};
    screen.calls.clear();
    display.ShowUnder(turned);
    const std::vector<std::string> shown = LogOf(screen);
    EXPECT_EQ(display.ViewPoint, turned);
    EXPECT_EQ(display.ViewList->Count(), 1U);
    // A build under that view draws the same.
    fitting->canned.PatternSurface = Sheet();
    display.ViewList->Add(turned);
    screen.calls.clear();
    display.DisplayObject();
    EXPECT_EQ(LogOf(screen), shown);
}

TEST_F(ObjectDisplay, AViewThatCannotBeDrawnLeavesTheOneThatIsShown) {
    AddView(true);
    display.DisplayObject();
    const CViewPoint shown = display.ViewPoint;
    screen.calls.clear();
    EXPECT_THROW(display.ShowUnder({true, 1e30, 0, 0, QuarterTurn, QuarterTurn}), ArithmeticError);
    EXPECT_EQ(display.ViewPoint, shown);
    EXPECT_TRUE(screen.calls.empty());
}

TEST_F(ObjectDisplay, AllIsShownWhenNoLineLeavesThePicture) {
    EXPECT_TRUE(display.ShowsAll());
    AddView(true);
    // 400 by 200 with the origin in the middle.
    fitting->canned.PatternSurface = Sheet(170, 60);
    display.DisplayObject();
    EXPECT_TRUE(display.ShowsAll());
    for (const auto& [x, y] : {std::pair{170.5, 60.0}, {170.0, 60.5}, {-200.5, 60.0}, {170.0, -100.5}}) {
        fitting->canned.PatternSurface = Sheet(x, y);
        display.DisplayObject();
        EXPECT_FALSE(display.ShowsAll()) << x << " " << y;
    }
    fitting->canned.PatternSurface = Sheet();
    fitting->canned.PatternSurface.LapList1 = Points({{0, 0, 0, 1}, {-201, 0, 0, 1}});
    display.DisplayObject();
    EXPECT_FALSE(display.ShowsAll()) << "a lap belongs to the drawing";
}

TEST_F(ObjectDisplay, BeforeAnythingIsDrawnThereIsNoPointToZoomAbout) {
    EXPECT_THROW((void)display.ZoomedAbout({0, 0}, 2), ArithmeticError);
}

TEST_F(ObjectDisplay, TheTableCountsFromTheFrameOfWhatIsShownNow) {
    MemoryFileStore files;
    AddView(true);
    display.FrameRequested = true;
    display.DisplayObject();
    display.PrintCoordinateTable(files, "before");
    display.FrameRequested = false;
    display.MovePoint2 = {100, 50, 0, 0};
    display.DisplayObject();
    EXPECT_EQ(display.Surfaces.Item(1).List2->Item(1).x, 100);
    display.PrintCoordinateTable(files, "after");
    EXPECT_EQ(files.files.at("after"), files.files.at("before"));
}

TEST_F(ObjectDisplay, TheTableHasAPointWhateverTheDesktopWrites) {
    MemoryFileStore files;
    AddView(true);
    fitting->canned.PatternSurface.List1 = Points({{0.5, 40.25, 0, 1}, {70, 40.25, 0, 1}});
    fitting->canned.PatternSurface.List2 = Points({{0, 0, 0, 1}, {70, 0, 0, 1}});
    display.Decimals = 2;
    for (const char mark : {'.', ','}) {
        display.DecimalMark = mark;
        display.DisplayObject();
        display.PrintCoordinateTable(files, std::string("mark ") + mark);
    }
    EXPECT_NE(files.files.at("mark ,").find("0.5,40.25"), std::string::npos);
    EXPECT_EQ(files.files.at("mark ,"), files.files.at("mark ."));
}

class Zoom : public ObjectDisplay {
  protected:
    Zoom() {
        AddView(true);
        display.DisplayObject();  // twice as wide as high, 200 units across the height
    }

    [[nodiscard]] const CViewPoint& Last() const { return display.ViewList->Last(); }
};

TEST_F(Zoom, ANarrowerAreaFillsTheHeight) {
    display.ZoomWindow(0, 0, 100, 100);
    EXPECT_EQ(display.ViewList->Count(), 2U);
    EXPECT_DOUBLE_EQ(Last().ZoomFactor, 2 * 0.99);
    EXPECT_EQ(Last().PanX, 50);
    EXPECT_EQ(Last().PanY, 50);
    EXPECT_TRUE(Last().Patternview);
}

TEST_F(Zoom, AWiderAreaIsMeasuredByItsWidth) {
    display.ZoomWindow(0, 0, 400, 100);
    EXPECT_DOUBLE_EQ(Last().ZoomFactor, 0.5 * 0.99);
}

TEST_F(Zoom, AnAreaOfTheWindowsShapeFillsIt) {
    display.ZoomWindow(0, 0, 400, 200);
    EXPECT_DOUBLE_EQ(Last().ZoomFactor, 0.5 * 0.99);
}

TEST_F(Zoom, CornersComeInAnyOrder) {
    display.ZoomWindow(10, 70, -30, 20);
    EXPECT_EQ(Last().PanX, -10);
    EXPECT_EQ(Last().PanY, 45);
    EXPECT_DOUBLE_EQ(Last().ZoomFactor, 4 * 0.99);
}

TEST_F(Zoom, AnAreaWithoutWidthOrHeightAddsNoView) {
    display.ZoomWindow(10, 10, 10, 50);
    display.ZoomWindow(10, 10, 50, 10);
    display.ZoomWindow(10, 10, 10, 10);
    EXPECT_EQ(display.ViewList->Count(), 1U);
}

TEST_F(Zoom, ExtentsFitTheSheet) {
    display.ZoomExtents();
    EXPECT_EQ(display.ViewList->Count(), 2U);
    EXPECT_NEAR(Last().ZoomFactor, 5 * 0.99, 1e-9);
    EXPECT_NEAR(Last().PanX, 15, 1e-9);
    EXPECT_NEAR(Last().PanY, 20, 1e-9);
    display.DisplayObject();
    EXPECT_NEAR(display.DisplayWindow().ScaleHeight, -40 / 0.99, 1e-9);
}

/// Whether a line of the last picture leaves its device.
bool IsCut(const RecordingDevice& device) {
    bool cut = false;
    std::size_t first = device.calls.size();
    while (device.calls.at(--first).kind != RecordingDevice::Kind::Cls) {
        for (const PixelPoint& point : device.calls[first].points) {
            cut = cut || point.x < 0 || point.y < 0 || point.x > device.scaleSize.width ||
                  point.y > device.scaleSize.height;
        }
    }
    return cut;
}

TEST_F(Zoom, ExtentsAreNotCutAtAnyTextSize) {
    for (const bool pattern : {true, false}) {
        for (const PixelSize size : {PixelSize{400, 200}, {200, 400}, {300, 300}, {300, 400}}) {
            for (const float textSize : {0.0F, 0.5F, 2.0F, 30.0F, 1000.0F, -5.0F}) {
                AddView(pattern);
                screen.scaleSize = screen.outerSize = size;
                display.TextSize = textSize;
                display.RotationAngle = 0.5;
                display.DisplayObject();
                display.ZoomExtents();
                display.DisplayObject();
                EXPECT_FALSE(IsCut(screen)) << size.width << " by " << size.height << " text " << textSize;
            }
        }
    }
}

TEST_F(Zoom, TheTextHeightTakesItsRoomFromTheExtentsAlone) {
    display.TextSize = 5;
    display.ZoomExtents();  // 30 by 40 and twice 5 about it
    EXPECT_NEAR(Last().ZoomFactor, 4 * 0.99, 1e-9);
    EXPECT_NEAR(Last().PanX, 15, 1e-9);
    EXPECT_NEAR(Last().PanY, 20, 1e-9);
    display.ZoomWindow(0, 0, 30, 40);
    EXPECT_NEAR(Last().ZoomFactor, 5 * 0.99, 1e-9);
}

TEST_F(Zoom, ExtentsFitTheSizeThatTheScreenHasNow) {
    screen.nextSize = screen.outerSize = {60, 200};  // drawn at 400 by 200, narrow since
    display.ZoomExtents();
    EXPECT_NEAR(Last().ZoomFactor, 200.0 / 30 * 0.99, 1e-9) << "measured by its width";
    screen.scaleSize = {60, 200};
    display.DisplayObject();
    EXPECT_FALSE(IsCut(screen));
}

TEST_F(Zoom, WithoutAnEarlierViewTheDefaultOneIsCopied) {
    display.ViewList = std::make_shared<CViewList>();
    display.ZoomWindow(0, 0, 100, 100);
    ASSERT_EQ(display.ViewList->Count(), 1U);
    EXPECT_EQ(Last().FromXY, QuarterTurn);
    EXPECT_FALSE(Last().Patternview);
}

TEST_F(Zoom, WithoutADisplayThereIsNothingToFit) {
    CObjectDisplay fresh;
    fresh.ViewList->Add(DefaultViewPoint());
    fresh.ZoomExtents();
    fresh.ZoomWindow(0, 0, 100, 100);
    EXPECT_EQ(fresh.ViewList->Count(), 1U);
}

}  // namespace
}  // namespace korvet
