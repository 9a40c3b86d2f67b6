// The plot file, from drawings that CDXF has written.
#include "exchange/hpgl.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numbers>

#include "core/checked.h"
#include "exchange/dxf.h"
#include "exchange/dxf_stream.h"
#include "exchange/transfer_file.h"
#include "tests/support/memory_file_store.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

using testing::HasSubstr;

constexpr const char* PlotStart = "IN;\r\nSP1;\r\n";
constexpr const char* PlotEnd = "PU;\r\nSP0;\r\n";

/// The drawing that `write` puts into a stream.
template <typename Write>
std::string DrawingOf(Write write) {
    DxfStream stream(2.5);
    write(stream);
    return stream.Finish();
}

/// What a plot has between its start and its end.
std::string Plotted(const std::string& drawing, const CHPGL& plotter = {}) {
    const std::string plot = plotter.Plot(drawing);
    EXPECT_TRUE(plot.starts_with(PlotStart) && plot.ends_with(PlotEnd)) << plot;
    const std::size_t start = std::string_view(PlotStart).size();
    return plot.substr(start, plot.size() - start - std::string_view(PlotEnd).size());
}

std::string PlottedText(const std::string& text, double angle = 0) {
    return Plotted(DrawingOf([&](DxfStream& out) {
        out.WriteText(text, {1, 2, 0}, angle, "Text", TextJustification::Centre);
    }));
}

TEST(Hpgl, AnEmptyDrawingLiftsThePen) {
    EXPECT_EQ(CHPGL().Plot(DrawingOf([](DxfStream&) {})), std::string(PlotStart) + PlotEnd);
}

TEST(Hpgl, ALineIsDrawnFromEndToEndInWholeSteps) {
    const std::string drawing = DrawingOf([](DxfStream& out) {
        out.WriteLine({1, 2, 3}, {-0.0124, 10.5126, 0}, "Cut");
    });
    EXPECT_EQ(Plotted(drawing), "PU;\r\nPA40,80;\r\nPD;\r\nPA0,421;\r\n");
    EXPECT_EQ(Plotted(drawing, {.SurfaceList = {}, .PrintUnits = 5, .FileName = {}}),
              "PU;\r\nPA1016,2032;\r\nPD;\r\nPA-13,10681;\r\n");
}

TEST(Hpgl, HalvesOfAStepGoToTheEvenOne) {
    const std::string drawing = DrawingOf([](DxfStream& out) {
        out.WriteLine({0.0125, 0.0375, 0}, {0.0625, -0.0125, 0}, "Cut");
    });
    EXPECT_EQ(Plotted(drawing), "PU;\r\nPA0,2;\r\nPD;\r\nPA2,0;\r\n");
}

TEST(Hpgl, AnArcIsSweptFromItsStart) {
    const auto arc = [](const C3DPoint& start, const C3DPoint& end) {
        return Plotted(DrawingOf([&](DxfStream& out) { out.WriteArc(start, end, {10, 20, 0}, "Cut"); }));
    };
    EXPECT_EQ(arc({15, 20, 0}, {10, 25, 0}), "PU;\r\nPA600,800;\r\nPD;\r\nAA400,800,90,1;\r\n");
    EXPECT_EQ(arc({10, 15, 0}, {15, 20, 0}), "PU;\r\nPA400,600;\r\nPD;\r\nAA400,800,90,1;\r\n")
        << "from 270 to 0 degrees it goes on through a full turn";
    EXPECT_EQ(arc({10, 25, 0}, {15, 20, 0}), "PU;\r\nPA400,1000;\r\nPD;\r\nAA400,800,270,1;\r\n");
    EXPECT_THAT(arc({15, 20, 0}, {14, 23, 0}), HasSubstr("AA400,800,36.869898,1;"));
}

/// A plotter would take the exponent of a nearly straight arc for the end of its number.
TEST(Hpgl, ASmallSweepHasNoExponent) {
    const auto plotted = [](double rise) {
        return Plotted(DrawingOf([&](DxfStream& out) {
            out.WriteArc({1e6, 0, 0}, {1e6, rise, 0}, {}, "Cut");
        }));
    };
    EXPECT_THAT(plotted(0.872665), HasSubstr("AA0,0,0.000050"));
    EXPECT_THAT(plotted(0.0174533), HasSubstr("AA0,0,0.000001"));
    EXPECT_THAT(plotted(2.0), HasSubstr("AA0,0,0.00011"));
}

TEST(Hpgl, ATextStandsAtItsPointInItsDirection) {
    EXPECT_EQ(PlottedText("12.5"), "PU;\r\nPA40,80;\r\nDI100,0;\r\nDT#;\r\nLB12.5#;\r\n");
    EXPECT_THAT(PlottedText("x", std::numbers::pi / 6), HasSubstr("DI86.603,50;"));
    EXPECT_THAT(PlottedText("x", std::numbers::pi / 2), HasSubstr("DI0,100;"));
}

TEST(Hpgl, ATextIsInThePlottersOwnLetters) {
    EXPECT_THAT(PlottedText("Piece #1"), HasSubstr("LBPiece  1#;"));
    EXPECT_THAT(PlottedText("M\u00fcller \u677f \U0001F527."), HasSubstr("LBM?ller ? ?.#;"));
    EXPECT_THAT(PlottedText("C:\\U+0041"), HasSubstr("LBC:\\U+0041#;")) << "a backslash is a letter";
    EXPECT_THAT(PlottedText("C:\\Users"), HasSubstr("LBC:\\Users#;"));
    EXPECT_THAT(PlottedText("LINE"), HasSubstr("LBLINE#;")) << "no entity begins there";
}

/// A drawing whose writer leaves control characters in a text.
TEST(Hpgl, ControlCharactersGo) {
    std::string drawing =
        DrawingOf([](DxfStream& out) { out.WriteText("a?b", {}, 0, "Text", TextJustification::Left); });
    drawing[drawing.find("a?b") + 1] = '\x03';
    EXPECT_THAT(Plotted(drawing), HasSubstr("LBab#;"));
}

TEST(Hpgl, ATextMayHaveNoAlignmentPoint) {
    std::string drawing = DrawingOf([](DxfStream& out) {
        out.WriteText("abc", {3, 4, 0}, 0, "Text", TextJustification::Left);
    });
    const std::size_t from = drawing.find("11\r\n");
    drawing.erase(from, drawing.find("72\r\n") - from);
    EXPECT_EQ(Plotted(drawing), "PU;\r\nPA120,160;\r\nDI100,0;\r\nDT#;\r\nLBabc#;\r\n");
    drawing.erase(drawing.find("72\r\n"), 4 + 5);
    EXPECT_EQ(Plotted(drawing), "PU;\r\nPA120,160;\r\nDI100,0;\r\nDT#;\r\nLBabc#;\r\n");
}

TEST(Hpgl, APolylineOfTwoPointsIsALineAndOthersAreNotDrawn) {
    EXPECT_EQ(Plotted(DrawingOf([](DxfStream& out) {
                  out.WritePolyline(PointsOf({{1, 1, 0}, {2, 3, 0}}), "Cut");
                  out.WritePolyline(PointsOf({{1, 1, 0}, {2, 3, 0}, {5, 5, 0}}), "Cut");
                  out.WriteMesh(PointsOf({{1, 1, 0}, {2, 3, 0}}), PointsOf({{1, 5, 0}, {2, 6, 0}}), "Fold");
              })),
              "PU;\r\nPA40,40;\r\nPD;\r\nPA80,120;\r\n");
}

/// Layers that are called as entities are.
TEST(Hpgl, NoNameOfALayerIsTakenForAnEntity) {
    const auto drawing = [](const char* layer) {
        return DrawingOf([&](DxfStream& out) {
            out.WritePolyline(PointsOf({{1, 1, 0}, {2, 3, 0}, {5, 5, 0}}), layer);
            out.WriteMesh(PointsOf({{1, 1, 0}, {2, 3, 0}}), PointsOf({{1, 5, 0}, {2, 6, 0}}), layer);
            out.WriteArc({2, 1, 0}, {1, 2, 0}, {1, 1, 0}, layer);
            out.WriteText("t", {1, 2, 0}, 0, layer, TextJustification::Left);
            out.WriteLine({1, 2, 0}, {3, 4, 0}, layer);
        });
    };
    for (const char* layer : {"LINE", "ARC", "TEXT", "POLYLINE", "VERTEX", "SEQEND", "EOF", "11", "70"}) {
        EXPECT_EQ(Plotted(drawing(layer)), Plotted(drawing("Cut"))) << layer;
    }
}

TEST(Hpgl, TheLowerLeftCornerComesToTheOrigin) {
    CHPGL plotter;
    plotter.SurfaceList.Add(Strip({{-30, -10, 0}, {-25, -12, 0}}, {{-28, -5, 0}, {-20, -6, 0}}));
    EXPECT_EQ(Plotted(DrawingOf([](DxfStream& out) {
                          out.WriteLine({-30, -12, 0}, {-20, -5, 0}, "Cut");
                      }),
                      plotter),
              "PU;\r\nPA0,0;\r\nPD;\r\nPA400,280;\r\n");
    plotter.SurfaceList = CRuleSurfs();
    plotter.SurfaceList.Add(Strip({{30, 10, 0}, {25, 12, 0}}, {{28, 5, 0}, {20, 6, 0}}));
    EXPECT_EQ(Plotted(DrawingOf([](DxfStream& out) {
                          out.WriteLine({20, 5, 0}, {30, 12, 0}, "Cut");
                      }),
                      plotter),
              "PU;\r\nPA0,0;\r\nPD;\r\nPA400,280;\r\n");
}

TEST(Hpgl, ADrawingThatIsNotWholeIsRefused) {
    const std::string whole = DrawingOf([](DxfStream& out) {
        out.WriteLine({1, 2, 3}, {4, 5, 6}, "Cut");
        out.WriteArc({2, 1, 0}, {1, 2, 0}, {1, 1, 0}, "Cut");
        out.WriteText("t", {1, 2, 0}, 0, "Text", TextJustification::Left);
        out.WritePolyline(PointsOf({{1, 1, 0}, {2, 3, 0}, {5, 5, 0}}), "Cut");
        out.WriteMesh(PointsOf({{1, 1, 0}, {2, 3, 0}}), PointsOf({{1, 5, 0}, {2, 6, 0}}), "Cut");
    });
    EXPECT_NO_THROW((void)CHPGL().Plot(whole));
    const std::size_t last = whole.rfind("EOF") + 3;
    for (std::size_t length = 0; length < last; ++length) {
        EXPECT_THROW((void)CHPGL().Plot(whole.substr(0, length)), TransferError) << length;
    }
    for (std::size_t at = whole.find(" 2 "); at != std::string::npos; at = whole.find(" 2 ", at + 1)) {
        std::string faulty = whole;
        faulty.replace(at, 3, "two");
        try {
            static_cast<void>(CHPGL().Plot(faulty));
            ADD_FAILURE() << "a word was taken for a number";
        } catch (const TransferError& error) {
            EXPECT_THAT(error.what(), HasSubstr(" in the transfer file"));
        }
    }
}

TEST(Hpgl, TheTransferFileIsReadBackAndThePlotWritten) {
    MemoryFileStore files;
    const CHPGL plotter = {.SurfaceList = {}, .PrintUnits = PrintMillimetres, .FileName = "Transfer.plt"};
    EXPECT_FALSE(plotter.TransferTempFile(files, "Transfer.tmp"));
    EXPECT_TRUE(files.writes.empty());
    files.files["Transfer.tmp"] = DrawingOf([](DxfStream& out) {
        out.WriteLine({1, 2, 3}, {4, 5, 6}, "Cut");
    });
    EXPECT_TRUE(plotter.TransferTempFile(files, "Transfer.tmp"));
    EXPECT_EQ(files.files["Transfer.plt"],
              std::string(PlotStart) + "PU;\r\nPA40,80;\r\nPD;\r\nPA160,200;\r\n" + PlotEnd);
}

TEST(Hpgl, TheBatchFileHasTwoLines) {
    EXPECT_EQ(PlotBatch("C:\\Korvet\\Transfer.plt"),
              "mode com2:9600,n,8,1\r\ncopy \"C:\\Korvet\\Transfer.plt\" COM2\r\n");
}

}  // namespace
}  // namespace korvet
