// All sheets moved to their places: together they hold the pattern, once and whole.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <tuple>

#include "core/constants.h"
#include "core/math_module.h"
#include "display/extent_frame.h"
#include "display/object_display.h"
#include "display/page_clip.h"
#include "printing/print_scale.h"
#include "tests/support/canned_fitting.h"
#include "tests/support/frames_about.h"
#include "tests/support/recording_device.h"

namespace korvet {
namespace {

using Random = std::mt19937;

double Between(Random& random, double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
}

/// A closed wavy ring about a centre.
PointList Ring(Random& random, const C3DPoint& centre, double radius, int points) {
    auto ring = std::make_shared<C3DPoints>();
    for (int i = 0; i < points; ++i) {
        C3DPoint point = PolarPoint(centre, FullTurn * i / points, radius * Between(random, 0.8, 1.2));
        point.Flag = i % 3 == 0 ? RuleStation : PlainStation;
        ring->Add(point);
    }
    ring->Add(ring->Item(1));
    return ring;
}

/// An outline with a hole, folds from one to the other, and laps that may reach beyond them.
CRuleSurf RandomPattern(Random& random) {
    CRuleSurf surface;
    const C3DPoint centre = {Between(random, -3000, 3000), Between(random, -3000, 3000), 0, PlainStation};
    const double radius = Between(random, 20, 900);
    const int points = static_cast<int>(Between(random, 5, 150));
    surface.List1 = Ring(random, centre, radius, points);
    surface.List2 = Ring(random, centre, radius * 0.4, points);
    surface.LapList1 = Ring(random, centre, radius * 1.1, points);
    return surface;
}

Bounds InsideFrames(const PrintFrames& frames) {
    const Bounds first = BoxOf(frames.PrinterPages.Item(1));
    const Bounds last = BoxOf(frames.PrinterPages.Last());
    return {first.minX, first.minY, last.maxX, last.maxY};
}

/// Every line of the surface as the drawing of it draws them.
template <typename Line>
void ForEachLine(const CRuleSurf& surface, Line line) {
    const auto path = [&](const C3DPoints& points) {
        for (std::size_t i = 1; i < points.Count(); ++i) {
            line(points.Item(i), points.Item(i + 1));
        }
    };
    for (std::size_t i = 1; i <= surface.List1->Count(); ++i) {
        if (i == 1 || i == surface.List1->Count() || IsRuleStation(surface.List1->Item(i))) {
            line(surface.List1->Item(i), surface.List2->Item(i));
        }
    }
    path(*surface.List1);
    path(*surface.List2);
    path(*surface.LapList1);
}

/// The length of a line in a box, by stepping through its crossings with the four edges.
double LengthInside(const Bounds& box, const C3DPoint& a, const C3DPoint& b) {
    double low = 0;
    double high = 1;
    const auto keep = [&](double start, double end, double least, double most) {
        const double t1 = (least - start) / (end - start);
        const double t2 = (most - start) / (end - start);
        low = std::max(low, std::min(t1, t2));
        high = std::min(high, std::max(t1, t2));
    };
    keep(a.x, b.x, box.minX, box.maxX);
    keep(a.y, b.y, box.minY, box.maxY);
    return high > low ? (high - low) * Distance3D(a, b) : 0;
}

TEST(SheetsTogether, HoldEveryLineOfFiveHundredPatternsOnceAndWhole) {
    Random random(500);
    double longest = 0;
    for (int pattern = 0; pattern < 500; ++pattern) {
        const CRuleSurf surface = RandomPattern(random);
        CRuleSurfs surfaces;
        surfaces.Add(surface);
        PrintFrames frames;
        frames.PrintFrameLength = Between(random, 90, 400);
        frames.PrintFrameWidth = Between(random, 90, 400);
        frames.Lay(BuildExtentFrame(surfaces, surfaces));
        ASSERT_GT(frames.PrinterPages.Count(), 0U);
        const Bounds inside = InsideFrames(frames);
        double whole = 0;
        double onSheets = 0;
        ForEachLine(surface, [&](const C3DPoint& a, const C3DPoint& b) {
            whole += LengthInside(inside, a, b);
            for (const CPrintPage& page : frames.PrinterPages) {
                const std::optional<LinePart> part = ClipLineToPage(a, b, BoxOf(page));
                if (part) {
                    onSheets += Distance3D(part->start, part->end);
                    ASSERT_TRUE(IsWithinPage(part->start, BoxOf(page)));
                    ASSERT_TRUE(IsWithinPage(part->end, BoxOf(page)));
                }
            }
        });
        ASSERT_NEAR(onSheets, whole, 1e-6) << pattern;
        longest = std::max(longest, whole);
    }
    EXPECT_GT(longest, 10000);
}

TEST(SheetsTogether, OnlyASharedEdgeIsOnTwoSheets) {
    const PrintFrames frames = FramesAbout({0, 0, 350, 100}, 190, 277);
    const auto sheetsWith = [&](double x) {
        int sheets = 0;
        for (const CPrintPage& page : frames.PrinterPages) {
            sheets += ClipLineToPage({x, 10, 0, 0}, {x, 90, 0, 0}, BoxOf(page)) ? 1 : 0;
        }
        return sheets;
    };
    EXPECT_EQ(sheetsWith(190), 2);
    EXPECT_EQ(sheetsWith(189.9), 1);
    EXPECT_EQ(sheetsWith(190.1), 1);
    EXPECT_EQ(sheetsWith(0), 1);
}

/// A pattern printed on sheets of 200 by 287 mm, calibrated, with every line where it lies on its sheet.
class PrintedSheets : public testing::Test {
  protected:
    static constexpr double Dots = 7200;
    static constexpr PrintableSize Printable = {200, 287};

    PrintedSheets() {
        fitting->canned.PatternSurface = RandomSurface();
        display.NewObject = FittingHandle(fitting);
        CViewPoint view = DefaultViewPoint();
        view.Patternview = true;
        display.ViewList->Add(view);
        const FrameSize size = FrameSizeFor(Printable, factors, Millimetres);
        frames.PrintFrameLength = size.length;
        frames.PrintFrameWidth = size.width;
        display.Overlay = PatternOverlay{[this](const C3DPoints& extents) { frames.Lay(extents); },
                                         [this](const Drawing& drawing) { frames.Draw(drawing); }};
        display.DisplayObject();
    }

    static CRuleSurf RandomSurface() {
        Random random(7);
        CRuleSurf surface = RandomPattern(random);
        surface.LapList1.reset();
        return surface;
    }

    /// The sheet of a frame.
    [[nodiscard]] std::unique_ptr<RecordingDevice> Sheet(const CPrintPage& page) const {
        auto sheet = std::make_unique<RecordingDevice>(Printable.width / MillimetresPerInch * Dots,
                                                       Printable.height / MillimetresPerInch * Dots);
        sheet->dpi = Dots;
        sheet->letter = {600, 1200};
        const Bounds frame = BoxOf(page);
        display.DrawPage(*sheet, ApplyPrintScale(frame, Printable, 1, factors, Millimetres), frame);
        return sheet;
    }

    /// Millimetres on a sheet, from its lower left printable corner.
    static C3DPoint OnPaper(const PixelPoint& dot) {
        return {dot.x / Dots * MillimetresPerInch, Printable.height - dot.y / Dots * MillimetresPerInch, 0,
                PlainStation};
    }

    /// The length of all lines of a pen of this width, in millimetres of paper.
    static double LengthOf(const RecordingDevice& sheet, int penWidth) {
        double length = 0;
        for (const RecordingDevice::Call& line : sheet.Lines()) {
            for (std::size_t i = 1; i < line.points.size() && line.pen.DrawWidth == penWidth; ++i) {
                length += Distance3D(OnPaper(line.points[i - 1]), OnPaper(line.points[i]));
            }
        }
        return length;
    }

    const Calibration factors = {1.01, 1.01};
    std::shared_ptr<CannedFitting> fitting = std::make_shared<CannedFitting>();
    CObjectDisplay display;
    PrintFrames frames;
};

TEST_F(PrintedSheets, AreBlackAndHoldTheOutlineAtItsCalibratedLength) {
    constexpr int CutPen = 3;
    double onPaper = 0;
    for (const CPrintPage& page : frames.PrinterPages) {
        const auto sheet = Sheet(page);
        onPaper += LengthOf(*sheet, CutPen);
        for (const RecordingDevice::Call& call : sheet->calls) {
            ASSERT_EQ(call.kind == RecordingDevice::Kind::Polyline ? call.pen.ForeColor : call.color, Black);
        }
    }
    double outline = 0;
    const CRuleSurf& surface = fitting->canned.PatternSurface;
    for (const C3DPoints* list : {surface.List1.get(), surface.List2.get()}) {
        for (std::size_t i = 1; i < list->Count(); ++i) {
            outline += Distance3D(list->Item(i), list->Item(i + 1));
        }
    }
    outline += 2 * Distance3D(surface.List1->Item(1), surface.List2->Item(1));
    EXPECT_GT(frames.PrinterPages.Count(), 20U);
    EXPECT_NEAR(onPaper / (outline * 1.01), 1, 1e-4);  // dots of 0.0035 mm, in some hundred pieces
}

TEST_F(PrintedSheets, AreDrawnWithinTheirFramesOnly) {
    for (const CPrintPage& page : frames.PrinterPages) {
        for (const RecordingDevice::Call& line : Sheet(page)->Lines()) {
            for (const PixelPoint& dot : line.points) {
                const C3DPoint place = OnPaper(dot);
                EXPECT_GT(place.x, 5 * 1.01 - 0.005);
                EXPECT_GT(place.y, 5 * 1.01 - 0.005);
                EXPECT_LT(place.x, 5 * 1.01 + frames.PrintFrameLength * 1.01 + 0.005);
                EXPECT_LT(place.y, 5 * 1.01 + frames.PrintFrameWidth * 1.01 + 0.005);
            }
        }
    }
}

/// Whether the sheet has a line of that pen from one place to another; millimetres from the frame's corner.
bool HasLine(const RecordingDevice& sheet, int penWidth, C3DPoint a, C3DPoint b, double factor) {
    const auto lies = [&](const PixelPoint& dot, const C3DPoint& at) {
        const double x = dot.x / 7200.0 * MillimetresPerInch;
        const double y = 287 - dot.y / 7200.0 * MillimetresPerInch;
        return std::hypot(x - (5 + at.x) * factor, y - (5 + at.y) * factor) < 0.006;
    };
    for (const RecordingDevice::Call& line : sheet.Lines()) {
        if (line.pen.DrawWidth == penWidth && line.points.size() == 2 && lies(line.points[0], a) &&
            lies(line.points[1], b)) {
            return true;
        }
    }
    return false;
}

TEST_F(PrintedSheets, MarksOfNeighboursMeetAtTheCornersWhenTaped) {
    constexpr int MarkPen = 5;
    const double length = frames.PrintFrameLength;
    const double width = frames.PrintFrameWidth;
    for (const CPrintPage& page : frames.PrinterPages) {
        const auto sheet = Sheet(page);
        // Laid edge on edge, corners fall on corners: every sheet has its marks from its four.
        for (const auto& [x, y, right, up] : {std::tuple{0.0, 0.0, 10.0, 10.0},
                                              {length, 0.0, -10.0, 10.0},
                                              {length, width, -10.0, -10.0},
                                              {0.0, width, 10.0, -10.0}}) {
            EXPECT_TRUE(HasLine(*sheet, MarkPen, {x, y, 0, 0}, {x + right, y, 0, 0}, 1.01)) << page.Name;
            EXPECT_TRUE(HasLine(*sheet, MarkPen, {x, y, 0, 0}, {x, y + up, 0, 0}, 1.01)) << page.Name;
        }
        const std::vector<std::string> texts = sheet->Strings();
        EXPECT_EQ(std::count(texts.begin(), texts.end(), "[SHEET " + page.Name + "]"), 1);
    }
}

TEST_F(PrintedSheets, TicksStartOnTheSharedEdgeAtTheRunningDistance) {
    constexpr int TickPen = 1;
    const auto rows = static_cast<std::size_t>(frames.Grid.rows);
    const std::size_t second = rows + 1;  // "B1"
    const CPrintPage& page = frames.PrinterPages.Item(second);
    ASSERT_EQ(page.Name, "B1");
    const auto sheet = Sheet(page);
    for (double y = 50; y < frames.PrintFrameWidth; y += 50) {
        EXPECT_TRUE(HasLine(*sheet, TickPen, {0, y, 0, 0}, {5, y, 0, 0}, 1.01)) << y;
    }
    const double before = frames.PrintFrameLength;
    for (double x = 50; x < 2 * before; x += 50) {
        if (x > before) {
            EXPECT_TRUE(HasLine(*sheet, TickPen, {x - before, 0, 0, 0}, {x - before, 5, 0, 0}, 1.01)) << x;
        }
    }
}

TEST_F(PrintedSheets, NothingIsBuiltForASheet) {
    const int built = fitting->developed;
    for (const CPrintPage& page : frames.PrinterPages) {
        (void)Sheet(page);
    }
    EXPECT_EQ(fitting->developed, built);
    display.ShowAgain();
    EXPECT_EQ(fitting->developed, built);
}

}  // namespace
}  // namespace korvet
