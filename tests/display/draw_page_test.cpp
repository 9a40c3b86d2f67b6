// What was shown, once more: on sheets of paper, and on the screen with other frames.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "tests/display/display_fixture.h"

namespace korvet {
namespace {

using Kind = RecordingDevice::Kind;
using testing::ElementsAre;

/// On paper of a unit to the dot, whose lower left corner is the world's origin.
constexpr WorldWindow PaperWindow = {0, 200, 400, -200};

class DrawPage : public ObjectDisplay {
  protected:
    DrawPage() { AddView(true); }

    /// The lines on the page, each as the dots that it runs through.
    std::vector<std::vector<PixelPoint>> LinesOn(const Bounds& page) {
        paper.calls.clear();
        display.DrawPage(paper, PaperWindow, page);
        std::vector<std::vector<PixelPoint>> lines;
        for (const RecordingDevice::Call& line : paper.Lines()) {
            lines.push_back(line.points);
        }
        return lines;
    }
};

TEST_F(DrawPage, IsInBlackWithWidths) {
    display.FrameRequested = true;
    display.DisplayObject();
    screen.calls.clear();
    display.DrawPage(paper, PaperWindow, {-10, -10, 100, 100});
    EXPECT_EQ(paper.Count(Kind::Cls), 0U);
    EXPECT_EQ(paper.Lines()[0].pen, (Pen{Black, DrawStyle::Solid, 3}));
    EXPECT_EQ(paper.Texts()[0].color, Black);
    EXPECT_TRUE(screen.calls.empty());
    EXPECT_EQ(fitting->developed, 2);  // the display's own two, for a frame
}

TEST_F(DrawPage, CutsLinesAtItsEdges) {
    display.DisplayObject();  // a sheet of 30 by 40
    using Line = std::vector<PixelPoint>;
    EXPECT_THAT(LinesOn({10, 5, 20, 300}), ElementsAre(Line{{10, 160}, {20, 160}}));
    EXPECT_THAT(LinesOn({10, 0, 300, 20}),
                ElementsAre(Line{{30, 180}, {30, 200}}, Line{{10, 200}, {30, 200}}));
    EXPECT_TRUE(LinesOn({10, 5, 20, 30}).empty());
}

TEST_F(DrawPage, KeepsAPathInOnePieceAsLongAsItStaysInside) {
    fitting->canned.PatternSurface.List3 = Points({{5, 5, 0, 0},
                                                   {15, 5, 0, 0},
                                                   {15, 5, 0, 0},
                                                   {15, 15, 0, 0},
                                                   {60, 15, 0, 0},
                                                   {60, 25, 0, 0},
                                                   {15, 25, 0, 0},
                                                   {15, 35, 0, 0}});
    display.DisplayObject();
    const auto lines = LinesOn({1, 1, 50, 50});
    EXPECT_EQ(lines[lines.size() - 2], (std::vector<PixelPoint>{{5, 195}, {15, 195}, {15, 185}, {50, 185}}));
    EXPECT_EQ(lines.back(), (std::vector<PixelPoint>{{50, 175}, {15, 175}, {15, 165}}));
}

TEST_F(DrawPage, ATextThatLiesOnTheSameIsDrawnOnce) {
    display.CoordGridRequested = true;
    display.TextSize = 1;
    display.DisplayObject();
    (void)LinesOn({-10, -10, 50, 50});
    const auto once = paper.Strings();
    EXPECT_EQ(once.size(), 8U);
    fitting->canned.PatternSurface.List3 = fitting->canned.PatternSurface.List1;  // stations on stations
    display.DisplayObject();
    (void)LinesOn({-10, -10, 50, 50});
    EXPECT_EQ(paper.Strings(), once);
}

TEST_F(DrawPage, DrawsATextWhereItsPointLies) {
    display.TrueLengthsRequested = true;
    display.TextSize = 1;
    display.DisplayObject();
    (void)LinesOn({10, 30, 20, 50});
    EXPECT_THAT(paper.Strings(), ElementsAre("30"));  // on the middle of the upper edge
    (void)LinesOn({16, 30, 50, 50});
    EXPECT_TRUE(paper.Strings().empty());
    (void)LinesOn({-10, -10, 50, 50});
    EXPECT_EQ(paper.Strings().size(), 4U);
}

TEST_F(DrawPage, ACrossHasTheArmOfThePaper) {
    fitting->canned.PatternSurface.RefPoint = C3DPoint{50, 50, 0, 0};
    fitting->canned.PatternSurface.RefPointDisplay = true;
    display.DisplayObject();
    const auto lines = LinesOn({-10, -10, 100, 100});
    EXPECT_EQ(lines.at(4), (std::vector<PixelPoint>{{50, 150}, {48, 150}}));  // 200 / 100
    EXPECT_EQ(lines.at(7), (std::vector<PixelPoint>{{50, 150}, {50, 148}}));
}

/// A piece with all its lines, some with a cross, none larger than a page of 40 by 40.
CRuleSurf SmallPiece(std::mt19937& random) {
    std::uniform_real_distribution<double> across(0, 400);
    std::uniform_real_distribution<double> size(0, 40);
    const C3DPoint corner = {across(random), across(random) / 2, 0, PlainStation};
    CRuleSurf piece;
    for (PointList* list : {&piece.List1, &piece.List2, &piece.List3, &piece.LapList1, &piece.LapList2}) {
        *list = std::make_shared<C3DPoints>();
        for (int i = 0; i < 4; ++i) {
            (*list)->Add({corner.x + size(random), corner.y + size(random), 0, RuleStation});
        }
    }
    piece.RefPoint = C3DPoint{across(random), across(random) / 2, 0, PlainStation};
    piece.RefPointDisplay = size(random) < 10;
    return piece;
}

TEST_F(DrawPage, HasOfManyPiecesAllThatLiesOnIt) {
    constexpr double Page = 20;
    std::mt19937 random(16);
    display.Multiple = true;
    for (int i = 0; i < 100; ++i) {
        CRuleSurf& piece = fitting->canned.PatternSurfaceList.Add(SmallPiece(random));
        piece.RefPointDisplay = i % 4 == 0;
    }
    fitting->canned.PatternSurfaceList.Add({});
    display.DisplayObject();
    RecordingDevice whole(400, 200);
    Drawing drawing;
    drawing.Device = &whole;
    drawing.Window = PaperWindow;
    drawing.PrintRequested = true;
    drawing.CrossArm = PaperWindow.ScaleHeight / 100;
    for (double x = 0; x < 400; x += Page) {
        for (double y = 0; y < 200; y += Page) {
            const Bounds page = {x, y, x + Page, y + Page};
            whole.calls.clear();
            drawing.PrinterPage = page;
            for (const CRuleSurf& surface : display.ScreenSurfaces()) {
                drawing.DrawSurface(surface);
            }
            std::vector<std::vector<PixelPoint>> lines;
            for (const RecordingDevice::Call& line : whole.Lines()) {
                lines.push_back(line.points);
            }
            EXPECT_EQ(LinesOn(page), lines) << x << " " << y;
        }
    }
}

TEST_F(DrawPage, FarOutALineIsAsTrueAsAtTheOrigin) {
    constexpr double Far = 9e6;  // where single precision knows whole units
    fitting->canned.PatternSurface = Sheet(Far + 0.25, 0.25);
    display.DisplayObject();
    display.DrawPage(paper, {Far, 20, 40, -20}, {Far, 0, Far + 40, 20});  // ten dots to a unit
    EXPECT_EQ(paper.Lines()[0].points.back(), (PixelPoint{2, 198}));      // 2.5 dots, halves to even
    EXPECT_EQ(paper.Lines()[1].points.back(), (PixelPoint{302, 198}));
}

TEST_F(DrawPage, ToFitShowsAllOfItInBlackAtTheZoomOfTheSheet) {
    display.TextSize = 2;
    display.FrameRequested = true;
    display.DisplayObject();
    const std::size_t views = display.ViewList->Count();
    for (const PixelSize size : {PixelSize{210, 297}, {297, 210}, {1000, 1000}}) {
        paper.calls.clear();
        paper.scaleSize = paper.outerSize = size;
        display.DrawToFit(paper);
        DrawingRecord drawn(paper);
        for (const RecordingDevice::Call& line : paper.Lines()) {
            EXPECT_EQ(line.pen.ForeColor, Black);
            drawn.Polyline(line.pen, line.points);
        }
        for (const RecordingDevice::Call& text : paper.Texts()) {
            drawn.TextOut(text.text, text.points.at(0), text.font, text.color);
        }
        const Bounds extent = drawn.Extent().value();
        EXPECT_GE(extent.minX, 0);
        EXPECT_GE(extent.minY, 0);
        EXPECT_LE(extent.maxX, size.width);
        EXPECT_LE(extent.maxY, size.height);
        EXPECT_GT((extent.maxX - extent.minX) / size.width + (extent.maxY - extent.minY) / size.height, 0.9);
    }
    EXPECT_EQ(display.ViewList->Count(), views);
    EXPECT_EQ(fitting->developed, 2);
}

TEST_F(DrawPage, ToFitDoesNotAskTheScreen) {
    display.DisplayObject();
    paper.scaleSize = paper.outerSize = {210, 297};
    display.DrawToFit(paper);
    const auto first = paper.Lines().at(0).points;
    screen.scaleSize = screen.outerSize = {50, 700};
    CViewPoint zoomed = display.ViewList->Last();
    zoomed.ZoomFactor = 7;
    zoomed.PanX = 100;
    display.ViewList->Add(zoomed);
    display.DisplayObject();
    paper.calls.clear();
    display.DrawToFit(paper);
    EXPECT_EQ(paper.Lines().at(0).points, first);
}

/// An overlay that counts.
class Overlaid : public DrawPage {
  protected:
    Overlaid() {
        display.Overlay =
            PatternOverlay{[this](const C3DPoints& extents) {
                               ++laid;
                               corner = extents.Item(3);
                           },
                           [](const Drawing& drawing) {
                               drawing.DrawLine({1, 1, 0, 0}, {2, 2, 0, 0}, LineType::FrameNotChosen);
                           }};
        display.LabelList->Add({"note"});
        display.LabelPoint = C3DPoint{};
    }

    int laid = 0;
    C3DPoint corner;
};

TEST_F(Overlaid, IsLaidOnceADisplayAndDrawnBelowTheLabel) {
    display.FrameRequested = true;  // two builds
    display.DisplayObject();
    EXPECT_EQ(laid, 1);
    EXPECT_NEAR(corner.x, 30, 1e-9);
    EXPECT_NEAR(corner.y, 40, 1e-9);
    EXPECT_EQ(screen.calls.back().text, "note");
    EXPECT_EQ(screen.Lines().back().pen.ForeColor, Yellow);  // over the pattern
    display.DrawPage(paper, PaperWindow, {0, 0, 50, 50});
    EXPECT_EQ(laid, 1);
    EXPECT_EQ(paper.Lines().back().points, (std::vector<PixelPoint>{{1, 199}, {2, 198}}));
}

TEST_F(Overlaid, IsOfPatternsOnly) {
    AddView(false);
    display.DisplayObject();
    EXPECT_EQ(laid, 0);
    for (const RecordingDevice::Call& line : screen.Lines()) {
        EXPECT_NE(line.pen.ForeColor, Yellow);
    }
}

TEST_F(Overlaid, ShownAgainNothingIsBuilt) {
    const auto overlay = display.Overlay;
    display.Overlay.reset();
    display.DisplayObject();
    const auto without = screen.calls.size();
    screen.calls.clear();
    display.Overlay = overlay;
    display.ShowAgain();
    EXPECT_EQ(laid, 1);
    EXPECT_NEAR(corner.x, 30, 1e-9);
    EXPECT_EQ(screen.calls.size(), without + 1);
    EXPECT_EQ(screen.calls[0].kind, Kind::Cls);
    EXPECT_EQ(fitting->developed, 1);
}

}  // namespace
}  // namespace korvet
