#include "exchange/hpgl.h"

#include <array>
#include <charconv>
#include <cmath>
#include <initializer_list>

#include "core/math_module.h"
#include "core/number_text.h"
#include "exchange/dxf_annotations.h"
#include "exchange/mesh_dxf.h"
#include "exchange/transfer_file.h"

namespace korvet {
namespace {

constexpr double StepsPerMillimetre = 40;
constexpr double StepsPerInch = 1016;
constexpr double FullCircle = 360;      // degrees
constexpr double DirectionScale = 100;  // of a text's run and rise
constexpr int DirectionPlaces = 3;
constexpr std::string_view TextEnd = "#";

/// The letters of a text that the plotter can draw.
std::string PlotterText(std::string_view text) {
    std::string plotted;
    for (const char letter : text) {
        const auto byte = static_cast<unsigned char>(letter);
        if (letter == TextEnd.front()) {
            plotted += ' ';
        } else if (byte >= 0xC0) {
            plotted += '?';  // the first byte of a letter outside ASCII; the others follow
        } else if (byte >= ' ' && byte < 0x7F) {
            plotted += letter;
        }
    }
    return plotted;
}

/// No plotter reads an exponent. So small an angle is told to the last place that angles of a drawing have.
std::string SweepText(double degrees) {
    constexpr double ExponentsBegin = 0.0001;
    constexpr int Places = 6;
    if (degrees <= 0 || degrees >= ExponentsBegin) {
        return NumberText(degrees);
    }
    std::array<char, Places + 2> text{};  // and "0."
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), degrees, std::chars_format::fixed, Places).ptr;
    return {text.data(), end};
}

/// A plot under way.
class PlotText {
  public:
    PlotText(double stepsPerUnit, const C3DPoint& offset, const TextSink& sink)
        : steps_(stepsPerUnit), offset_(offset), sink_(sink) {
        Add({"IN"});
        Add({"SP1"});
    }

    void Finish() {
        Add({"PU"});
        Add({"SP0"});
        sink_(plot_);
    }

    void Draw(const TransferLine& line) { PlotLine(line.a, line.b); }

    void Draw(const TransferArc& arc) {
        const double end = arc.end < arc.start ? arc.end + FullCircle : arc.end;
        MoveTo(PolarPoint(arc.centre, DegToRad(arc.start), arc.radius));
        Add({"PD"});
        Add({"AA", X(arc.centre), ",", Y(arc.centre), ",", SweepText(end - arc.start), ",1"});
    }

    void Draw(const TransferText& text) {
        const double angle = DegToRad(text.angle);
        MoveTo(text.point);
        Add({"DI", RoundedText(std::cos(angle) * DirectionScale, DirectionPlaces), ",",
             RoundedText(std::sin(angle) * DirectionScale, DirectionPlaces)});
        Add({"DT", TextEnd});
        Add({"LB", PlotterText(text.text), TextEnd});
    }

    /// An edge of two points comes as a polyline; longer ones don't come at all in a drawing made of arcs.
    void Draw(const TransferPolyline& polyline) {
        if (polyline.rows == 0 && polyline.points.Count() == 2) {
            PlotLine(polyline.points.Item(1), polyline.points.Item(2));
        }
    }

  private:
    void PlotLine(const C3DPoint& a, const C3DPoint& b) {
        MoveTo(a);
        Add({"PD"});
        Add({"PA", X(b), ",", Y(b)});
    }

    void MoveTo(const C3DPoint& point) {
        Add({"PU"});
        Add({"PA", X(point), ",", Y(point)});
    }

    [[nodiscard]] std::string X(const C3DPoint& point) const {
        return RoundedText((point.x + offset_.x) * steps_, 0);
    }

    [[nodiscard]] std::string Y(const C3DPoint& point) const {
        return RoundedText((point.y + offset_.y) * steps_, 0);
    }

    /// An instruction, in the parts that it is put together of.
    void Add(std::initializer_list<std::string_view> instruction) {
        constexpr std::size_t PlotPieceBytes = std::size_t{1} << 18U;
        for (const std::string_view part : instruction) {
            plot_ += part;
        }
        plot_ += ";\r\n";
        if (plot_.size() >= PlotPieceBytes) {
            sink_(plot_);
            plot_.clear();
        }
    }

    double steps_;
    C3DPoint offset_;
    const TextSink& sink_;
    std::string plot_;  ///< what the sink has not taken yet
};

/// What brings the lower left corner of the drawing to the plotter's origin.
C3DPoint OffsetOf(const CRuleSurfs& surfaces) {
    const auto frame = BuildDXFFrame(surfaces);
    return frame ? C3DPoint{-frame->front().x, -frame->front().y, 0, PlainStation} : C3DPoint();
}

/// The text must outlive the source.
EntitySource EntitiesOf(std::string_view drawing) {
    return [drawing](const EntitySink& take) { ReadTransferFile(drawing, take); };
}

}  // namespace

void CHPGL::PlotTo(const TextSink& sink, const EntitySource& drawing) const {
    const double steps = PrintUnits == PrintMillimetres ? StepsPerMillimetre : StepsPerInch;
    PlotText plot(steps, OffsetOf(SurfaceList), sink);
    drawing([&plot](const TransferEntity& entity) {
        std::visit([&plot](const auto& shape) { plot.Draw(shape); }, entity.shape);
    });
    plot.Finish();
}

std::string CHPGL::Plot(std::string_view drawing) const {
    std::string plot;
    PlotTo([&plot](std::string_view piece) { plot += piece; }, EntitiesOf(drawing));
    return plot;
}

void CHPGL::WritePlot(FileStore& files, const EntitySource& drawing) const {
    files.WritePieces(
        FileName, [&](const TextSink& sink) { PlotTo(sink, drawing); }, Flush::No);
}

bool CHPGL::TransferTempFile(FileStore& files, const std::string& transferFile) const {
    if (!files.Exists(transferFile)) {
        return false;
    }
    const std::string drawing = files.Read(transferFile, LargestDrawing);
    WritePlot(files, EntitiesOf(drawing));
    return true;
}

std::string PlotBatch(std::string_view plotFile) {
    return "mode com2:9600,n,8,1\r\ncopy \"" + std::string(plotFile) + "\" COM2\r\n";
}

}  // namespace korvet
