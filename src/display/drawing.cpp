#include "display/drawing.h"

#include <array>
#include <cmath>

#include "core/checked.h"
#include "core/math_module.h"
#include "display/extent_frame.h"
#include "display/page_clip.h"

namespace korvet {
namespace {

/// In millimetres, the 9.75 points that a screen makes of a font of 10.
constexpr double MeasuredFontHeight = (9.75 / 72) * 25.4;
/// What brings capitals of that font to the height asked for.
constexpr float CapitalHeightFactor = 4.5454545F;

constexpr double MeasuringSize = 10;
constexpr const char* MeasuringText = "1";

bool HasArea(PixelSize size) {
    return size.width > 0 && size.height > 0;
}

}  // namespace

WorldWindow FittedWindow(const FitScale& scale, PixelSize outerSize) {
    const double zoom = scale.ZoomFactor == 0 ? 1 : Quotient(1, scale.ZoomFactor);
    const double ratio = Quotient(outerSize.height, outerSize.width);
    WorldWindow window;
    if (ratio >= 1) {
        window.ScaleWidth = scale.WorldExtents * zoom;
        window.ScaleHeight = -(scale.WorldExtents * ratio) * zoom;
    } else {
        window.ScaleWidth = Quotient(scale.WorldExtents, ratio) * zoom;
        window.ScaleHeight = -scale.WorldExtents * zoom;
    }
    window.ScaleTop = -window.ScaleHeight / 2 + scale.PanY + scale.TextSize;
    window.ScaleLeft = -window.ScaleWidth / 2 + scale.PanX + scale.TextSize;
    return window;
}

bool Drawing::CanDraw() const {
    return Device != nullptr && HasArea(Device->OuterSize()) && HasArea(Device->ScaleSize());
}

bool Drawing::IsElsewhere(const Bounds& box) const {
    return PrinterPage && LineMissesPage({box.minX, box.minY}, {box.maxX, box.maxY}, *PrinterPage);
}

bool Drawing::Shows(const C3DPoint& point) const {
    return CanDraw() && (!PrinterPage || IsWithinPage(point, *PrinterPage));
}

void Drawing::DrawPath(const C3DPoints& points, LineType lineType) const {
    DrawPoints({points.begin(), points.end()}, lineType);
}

void Drawing::DrawPoints(std::span<const C3DPoint> points, LineType lineType) const {
    if (!CanDraw()) {
        return;
    }
    if (PrinterPage) {
        DrawClipped(points, lineType);
        return;
    }
    CPolyline line(*Device, Window);
    line.Type = lineType;
    line.PrintRequested = PrintRequested;
    for (const C3DPoint& point : points) {
        line.Point(static_cast<float>(point.x), static_cast<float>(point.y));
    }
    line.Draw(Colors);
}

/// A call for each stretch of the path that runs on the page without a break. Single precision holds best
/// what lies near the origin, so that a sheet counts from its own corner: a line is as true on the last sheet
/// as on the first.
void Drawing::DrawClipped(std::span<const C3DPoint> points, LineType lineType) const {
    WorldWindow fromCorner = Window;
    fromCorner.ScaleLeft -= PrinterPage->minX;
    fromCorner.ScaleTop -= PrinterPage->minY;
    CPolyline line(*Device, fromCorner);
    line.Type = lineType;
    line.PrintRequested = PrintRequested;
    const auto add = [&](const C3DPoint& point) {
        line.Point(static_cast<float>(point.x - PrinterPage->minX),
                   static_cast<float>(point.y - PrinterPage->minY));
    };
    bool goesOn = false;  // the line so far ends where the next part begins
    for (std::size_t i = 1; i < points.size(); ++i) {
        const C3DPoint& a = points[i - 1];
        const C3DPoint& b = points[i];
        const std::optional<LinePart> part = ClipLineToPage(a, b, *PrinterPage);
        if (part) {
            if (!goesOn) {
                add(part->start);
            }
            add(part->end);
            goesOn = IsWithinPage(b, *PrinterPage);
        } else if (Distance3D(a, b) > ShortestPaperLine) {
            goesOn = false;
        }
        if (!goesOn && line.Count() > 0) {
            line.Draw(Colors);
        }
    }
    if (line.Count() > 0) {
        line.Draw(Colors);
    }
}

void Drawing::DrawLine(const C3DPoint& a, const C3DPoint& b, LineType lineType) const {
    if (PrinterPage && LineMissesPage(a, b, *PrinterPage)) {
        return;  // most lines are on other sheets
    }
    const std::array<C3DPoint, 2> ends = {a, b};
    DrawPoints(ends, lineType);
}

void Drawing::DrawCross(const C3DPoint& point, LineType lineType) const {
    DrawLine(point, {point.x + CrossArm, point.y, 0, PlainStation}, lineType);
    DrawLine(point, {point.x - CrossArm, point.y, 0, PlainStation}, lineType);
    DrawLine(point, {point.x, point.y + CrossArm, 0, PlainStation}, lineType);
    DrawLine(point, {point.x, point.y - CrossArm, 0, PlainStation}, lineType);
}

void Drawing::DrawSurface(const CRuleSurf& surface) const {
    const C3DPoints& list1 = PointsOf(surface.List1);
    const C3DPoints& list2 = PointsOf(surface.List2);
    const std::size_t count = list1.Count();
    for (std::size_t i = 1; i <= count; ++i) {
        const C3DPoint& a = list1.Item(i);
        const C3DPoint& b = list2.Item(i);
        if (i == 1 || i == count) {
            DrawLine(a, b, LineType::Cut);
        } else if (IsRuleStation(a)) {
            DrawLine(a, b, LineType::Fold);
        }
    }
    if (count > 0) {
        DrawPath(list1, LineType::Cut);
        DrawPath(list2, LineType::Cut);
    }
    if (IsPresent(surface.List3)) {
        DrawPath(*surface.List3, LineType::Cut);
    }
    for (const PointList& lap : {surface.LapList1, surface.LapList2}) {
        if (IsPresent(lap)) {
            DrawPath(*lap, LineType::Fold);
        }
    }
    if (surface.RefPointDisplay && surface.RefPoint) {
        DrawCross(*surface.RefPoint, LineType::Mark);
    }
}

CText Drawing::NewText(const std::string& text) const {
    CText drawn(*Device, Window);
    drawn.Decimals = Decimals;
    drawn.DecimalMark = DecimalMark;
    drawn.Printing = PrintRequested;
    drawn.TextColor = Colors.DisplayTextColor;
    drawn.TextSize = static_cast<float>(ScaledFontSize());
    drawn.TextString = text;
    return drawn;
}

void Drawing::DrawHorizontalText(const C3DPoint& point, const std::string& text,
                                 Justification justification) const {
    if (Shows(point)) {
        NewText(text).HorizontalText(point, justification);
    }
}

void Drawing::DrawVerticalText(const C3DPoint& point, const std::string& text,
                               Justification justification) const {
    if (Shows(point)) {
        NewText(text).VerticalText(point, justification);
    }
}

void Drawing::DrawTextOfSize(const C3DPoint& point, float points, const std::string& text,
                             Justification justification) const {
    if (Shows(point)) {
        CText drawn = NewText(text);
        drawn.TextSize = points;
        drawn.HorizontalText(point, justification);
    }
}

void Drawing::DrawLength(const C3DPoint& a, const C3DPoint& b, Justification justification) const {
    if (Shows(MidPoint(a, b))) {
        NewText({}).AlignedText(a, b, justification);
    }
}

double Drawing::ScaledFontSize() const {
    if (!CanDraw()) {
        return 0;
    }
    const double height = std::fabs(TextHeight(*Device, Window, MeasuringText, MeasuringSize));
    return Quotient(TextSize * MeasuredFontHeight, height) * CapitalHeightFactor;
}

double Drawing::LineSpacing() const {
    if (!CanDraw()) {
        return 0;
    }
    const float points = DrawnTextSize(static_cast<float>(ScaledFontSize()));
    return std::fabs(1.5 * TextHeight(*Device, Window, MeasuringText, points));
}

}  // namespace korvet
