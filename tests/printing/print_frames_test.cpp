// The layout of frames, and what is drawn with them.
#include "printing/print_frames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "tests/support/frames_about.h"
#include "tests/support/recording_device.h"

namespace korvet {
namespace {

using testing::ElementsAre;

std::vector<std::string> Names(const PrintFrames& frames) {
    std::vector<std::string> names;
    for (const CPrintPage& page : frames.PrinterPages) {
        names.push_back(page.Name);
    }
    return names;
}

TEST(PrintFrames, GrowUpAndToTheRightFromTheLowerLeftCorner) {
    const PrintFrames frames = FramesAbout({-50, 7, 350, 500}, 190, 277);
    EXPECT_THAT(Names(frames), ElementsAre("A1", "A2", "B1", "B2", "C1", "C2"));
    EXPECT_EQ(BoxOf(frames.PrinterPages.Item(1)), (Bounds{-50, 7, 140, 284}));
    EXPECT_EQ(BoxOf(frames.PrinterPages.Item(2)), (Bounds{-50, 284, 140, 561}));
    EXPECT_EQ(BoxOf(frames.PrinterPages.Item(5)), (Bounds{330, 7, 520, 284}));
}

TEST(PrintFrames, APatternOfExactlyOneFrameTakesASecondRowAndColumn) {
    EXPECT_THAT(Names(FramesAbout({0, 0, 190, 277}, 190, 277)), ElementsAre("A1", "A2", "B1", "B2"));
    EXPECT_THAT(Names(FramesAbout({0, 0, 189.999, 276.999}, 190, 277)), ElementsAre("A1"));
    EXPECT_THAT(Names(FramesAbout({0, 0, 0, 0}, 190, 277)), ElementsAre("A1"));
}

TEST(PrintFrames, NeighboursShareTheirEdgesToTheLastBit) {
    const PrintFrames frames = FramesAbout({0.1, 0.7, 2000, 3000}, 189.9, 276.7);
    const auto rows = static_cast<std::size_t>(frames.Grid.rows);
    for (std::size_t i = 1; i < frames.PrinterPages.Count(); ++i) {
        const Bounds box = BoxOf(frames.PrinterPages.Item(i));
        if (i % rows != 0) {
            EXPECT_EQ(BoxOf(frames.PrinterPages.Item(i + 1)).minY, box.maxY) << i;
        }
        if (i + rows <= frames.PrinterPages.Count()) {
            EXPECT_EQ(BoxOf(frames.PrinterPages.Item(i + rows)).minX, box.maxX) << i;
        }
    }
}

TEST(PrintFrames, WithoutLengthOrWidthThereAreNone) {
    for (const double size : {0.0, -3.5, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(FramesAbout({0, 0, 100, 100}, size, 277).PrinterPages.Count(), 0U);
        EXPECT_EQ(FramesAbout({0, 0, 100, 100}, 190, size).PrinterPages.Count(), 0U);
    }
    PrintFrames frames = FramesAbout({0, 0, 100, 100}, 190, 277);
    frames.Lay({});
    EXPECT_EQ(frames.PrinterPages.Count(), 0U);
    EXPECT_EQ(frames.Grid.Sheets(), 0);
}

TEST(PrintFrames, TwoThousandAreLaidOutAndNoMore) {
    const PrintFrames most = FramesAbout({0, 0, 399.5, 499.5}, 10, 10);
    EXPECT_EQ(most.PrinterPages.Count(), 2000U);
    const PrintFrames more = FramesAbout({0, 0, 400.5, 499.5}, 10, 10);
    EXPECT_EQ(more.PrinterPages.Count(), 0U);
    EXPECT_EQ(more.Grid.Sheets(), 41 * 50);
    EXPECT_EQ(FramesAbout({0, 0, 1e9, 1e9}, 190, 277).Grid.Sheets(), 5263158.0 * 3610109.0);
    EXPECT_EQ(FramesAbout({0, 0, 19999.5, 0}, 10, 10).PrinterPages.Count(), 2000U);
    EXPECT_EQ(FramesAbout({0, 0, 20000.5, 0}, 10, 10).Grid.Sheets(), 2001);
}

/// What is drawn with frames, a unit to a pixel and upright: "kind x,y x,y" and "text x,y".
class DrawnFrames : public testing::Test {
  protected:
    void Draw(const PrintFrames& frames) {
        Drawing drawing;
        drawing.Device = &device;
        drawing.Window = {0, 1000, 1000, -1000};
        drawing.TextSize = 1;
        drawing.Colors.DisplayDimensionColor = TickColor;
        frames.Draw(drawing);
        for (const RecordingDevice::Call& line : device.Lines()) {
            std::string entry;
            for (const PixelPoint& point : line.points) {
                entry += " " + std::to_string(point.x) + "," + std::to_string(1000 - point.y);
            }
            (line.pen.ForeColor == Magenta     ? marks
             : line.pen.ForeColor == TickColor ? ticks
                                               : boxes)
                .push_back(entry.substr(1));
        }
    }

    static constexpr Color TickColor = 77;  // frames that are not chosen have the usual one
    RecordingDevice device{1000, 1000};
    std::vector<std::string> boxes;
    std::vector<std::string> marks;
    std::vector<std::string> ticks;
};

TEST_F(DrawnFrames, EveryFrameHasItsBoxAndTwoMarksACorner) {
    Draw(FramesAbout({100, 200, 350, 450}, 300, 400));
    EXPECT_THAT(boxes, ElementsAre("100,200 400,200 400,600 100,600 100,200"));
    EXPECT_THAT(marks,
                ElementsAre("100,200 110,200", "100,200 100,210", "400,200 390,200", "400,200 400,210",
                            "400,600 390,600", "400,600 400,590", "100,600 110,600", "100,600 100,590"));
    EXPECT_EQ(device.Strings()[0], "[SHEET A1]");
    EXPECT_EQ(device.Texts()[0].points[0], (PixelPoint{120, 1000 - 220 - 16}));  // its lower left corner
    EXPECT_EQ(device.Texts()[0].font.lfHeight, -13);                             // 10 points
}

TEST_F(DrawnFrames, AChosenFrameIsDrawnSo) {
    PrintFrames frames = FramesAbout({100, 200, 350, 450}, 300, 400);
    frames.PrinterPages.Item(1).PrintMe = true;
    Draw(frames);
    EXPECT_EQ(device.Lines()[0].pen.ForeColor, Green);
    device.calls.clear();
    const C3DPoints extents = *frames.PrinterPages.Item(1).BoundaryList;
    frames.Lay(extents);  // laid anew none is chosen
    Draw(frames);
    EXPECT_EQ(device.Lines()[0].pen.ForeColor, Yellow);
}

TEST_F(DrawnFrames, TicksRunUpEveryColumnAndAlongEveryRow) {
    Draw(FramesAbout({100, 200, 350, 250}, 150, 120));  // two columns, one row
    EXPECT_THAT(ticks, ElementsAre("100,250 105,250", "100,300 105,300", "250,250 255,250", "250,300 255,300",
                                   "150,200 150,205", "200,200 200,205", "250,200 250,205", "300,200 300,205",
                                   "350,200 350,205", "400,200 400,205"));
    EXPECT_THAT(device.Strings(), ElementsAre("[SHEET A1]", "[SHEET B1]", "50", "100", "50", "100", "50",
                                              "100", "150", "200", "250", "300"));
    EXPECT_EQ(device.Texts()[2].font.lfEscapement, 0);
    EXPECT_EQ(device.Texts()[6].font.lfEscapement, 900);
}

TEST_F(DrawnFrames, OnInchPaperTheyHaveInchesOfTheirOwn) {
    PrintFrames frames = FramesAbout({100, 200, 103, 203}, 8, 10);
    frames.PrintUnits = Inches;
    Drawing drawing;
    drawing.Device = &device;
    drawing.Window = {100, 210, 10, -10};  // a hundredth of an inch to a pixel
    drawing.TextSize = 0.1F;
    frames.Draw(drawing);
    EXPECT_EQ(device.Lines()[1].points, (std::vector<PixelPoint>{{0, 1000}, {39, 1000}}));
    EXPECT_THAT(device.Strings(), ElementsAre("[SHEET A1]", "2", "4", "6", "8", "10", "2", "4", "6", "8"));
    const RecordingDevice::Call tick = device.Lines()[9];
    EXPECT_EQ(tick.points, (std::vector<PixelPoint>{{0, 800}, {20, 800}}));
}

}  // namespace
}  // namespace korvet
