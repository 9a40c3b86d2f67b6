#include "printing/print_frames.h"

#include <array>
#include <cmath>

#include "core/number_text.h"
#include "display/page_clip.h"

namespace korvet {
namespace {

/// A length that has one value on millimetre paper and another on inch paper.
struct PaperLength {
    double millimetres;
    double inches;

    [[nodiscard]] double In(std::int16_t printUnits) const {
        return printUnits == Millimetres ? millimetres : inches;
    }
};

constexpr PaperLength RulerStep = {50.0, 2.0};
constexpr PaperLength TickLength = {5.0, 0.1968503937007874};
constexpr PaperLength MarkLength = {10.0, 0.3937007874015748};
constexpr float SheetNamePoints = 10;

/// How many frames of that size begin from `start` up to `end`. They are counted as they are laid, one size
/// further each, as far as there can be that many sheets; beyond that by division.
double CountFrames(double start, double end, double size) {
    double count = 0;
    double at = start;
    for (; at <= end && count <= MostSheets; at += size) {
        ++count;
    }
    return at <= end ? std::floor((end - start) / size) + 1 : count;
}

/// Goes from one multiple of the ruler's step above `start` to the next, up to `limit`.
template <typename Tick>
void ForEachTick(double start, double limit, double step, Tick tick) {
    double at = start + step;
    double distance = step;
    while (at <= limit && at < at + step) {  // far out a step changes nothing
        tick(at, distance);
        at += step;
        distance += step;
    }
}

}  // namespace

void PrintFrames::Lay(const C3DPoints& extentFrame) {
    PrinterPages = {};
    Grid = {};
    if (extentFrame.Count() == 0 || !(PrintFrameLength > 0) || !(PrintFrameWidth > 0)) {
        return;
    }
    const C3DPoint corner = extentFrame.Item(1);
    Grid.columns = CountFrames(corner.x, extentFrame.Item(2).x, PrintFrameLength);
    Grid.rows = CountFrames(corner.y, extentFrame.Item(4).y, PrintFrameWidth);
    if (Grid.Sheets() > MostSheets) {
        return;
    }
    C3DPoint origin = corner;
    for (int column = 1; column <= Grid.columns; ++column) {
        origin.y = corner.y;
        for (int row = 1; row <= Grid.rows; ++row) {
            CPrintPage page;
            page.OriginPoint = origin;
            page.PageLength = PrintFrameLength;
            page.PageWidth = PrintFrameWidth;
            page.Name = SheetName(column, row);
            page.ListBoundaryPoints();
            PrinterPages.Add(page);
            origin.y += PrintFrameWidth;
        }
        origin.x += PrintFrameLength;
    }
}

void PrintFrames::Draw(const Drawing& drawing) const {
    for (const CPrintPage& page : PrinterPages) {
        if (drawing.IsElsewhere(BoxOf(page))) {
            continue;
        }
        drawing.DrawPath(*page.BoundaryList, page.PrintMe ? LineType::FrameChosen : LineType::FrameNotChosen);
        DrawSheetMarks(drawing, page, PrintUnits);
    }
    if (PrinterPages.Count() > 0) {
        DrawTicks(drawing);
    }
}

/// A ruler up the left edge of every column, and one along the lower edge of every row.
void PrintFrames::DrawTicks(const Drawing& drawing) const {
    const C3DPoint& corner = PrinterPages.Item(1).OriginPoint;
    const double step = RulerStep.In(PrintUnits);
    const double top = Grid.rows * PrintFrameWidth + corner.y;
    const double right = Grid.columns * PrintFrameLength + corner.x;
    const double length = TickLength.In(PrintUnits);
    const auto draw = [&](const C3DPoint& point, TickSide side, double distance) {
        if (!drawing.IsElsewhere({point.x, point.y, point.x + length, point.y + length})) {
            DrawRulerTick(drawing, point, side, NumberText(distance, drawing.DecimalMark), PrintUnits);
        }
    };
    double x = corner.x;
    for (int column = 1; column <= Grid.columns; ++column, x += PrintFrameLength) {
        ForEachTick(corner.y, top, step, [&](double y, double distance) {
            draw({x, y, 0, PlainStation}, TickSide::Left, distance);
        });
    }
    double y = corner.y;
    for (int row = 1; row <= Grid.rows; ++row, y += PrintFrameWidth) {
        ForEachTick(corner.x, right, step, [&](double tickX, double distance) {
            draw({tickX, y, 0, PlainStation}, TickSide::Lower, distance);
        });
    }
}

void DrawRulerTick(const Drawing& drawing, const C3DPoint& point, TickSide side, const std::string& text,
                   std::int16_t printUnits) {
    const double length = TickLength.In(printUnits);
    C3DPoint end = point;
    (side == TickSide::Left ? end.x : end.y) += length;
    drawing.DrawLine(point, end, LineType::Mark);
    if (side == TickSide::Left) {
        drawing.DrawHorizontalText(end, text, Justification::MiddleLeft);
    } else {
        drawing.DrawVerticalText(end, text, Justification::MiddleLeft);
    }
}

void DrawSheetMarks(const Drawing& drawing, const CPrintPage& page, std::int16_t printUnits) {
    /// Into the frame: 1 to the right or up, -1 to the left or down.
    struct Inward {
        double x;
        double y;
    };
    constexpr std::array<Inward, 4> Corners = {{{1, 1}, {-1, 1}, {-1, -1}, {1, -1}}};
    const double m = MarkLength.In(printUnits);
    for (std::size_t i = 0; i < Corners.size(); ++i) {
        const C3DPoint corner = page.BoundaryList->Item(i + 1);
        const Inward in = Corners.at(i);
        drawing.DrawLine(corner, {corner.x + in.x * m, corner.y, 0, PlainStation}, LineType::SheetMark);
        drawing.DrawLine(corner, {corner.x, corner.y + in.y * m, 0, PlainStation}, LineType::SheetMark);
    }
    const C3DPoint first = page.BoundaryList->Item(1);
    drawing.DrawTextOfSize({first.x + 2 * m, first.y + 2 * m, 0, PlainStation}, SheetNamePoints,
                           "[SHEET " + page.Name + "]", Justification::BottomLeft);
}

}  // namespace korvet
