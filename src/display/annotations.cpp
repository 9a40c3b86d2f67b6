#include "display/annotations.h"

#include <optional>
#include <string>

#include "core/math_module.h"
#include "core/number_text.h"
#include "display/picking.h"
#include "display/stations.h"

namespace korvet {
namespace {

/// How a coordinate is drawn at the end of its leader.
using DrawCoordinate = void (Drawing::*)(const C3DPoint&, const std::string&, Justification) const;

/// A line from a station to an edge of the frame, with the coordinate behind its end.
void DrawLeader(const Drawing& drawing, const C3DPoint& station, const C3DPoint& end, double coordinate,
                DrawCoordinate draw, bool isLow) {
    drawing.DrawLine(station, end, LineType::GridLeader);
    if (drawing.Shows(end)) {  // most ends are on other sheets, and a number takes longer to write
        (drawing.*draw)(end, "  " + RoundedText(coordinate, drawing.Decimals, drawing.DecimalMark) + "  ",
                        isLow ? Justification::MiddleRight : Justification::MiddleLeft);
    }
}

void DisplayGridLines(const Drawing& drawing, const C3DPoints& stations, const C3DPoints& extentFrame) {
    const C3DPoint& low = extentFrame.Item(1);
    const C3DPoint& high = extentFrame.Item(3);
    for (const C3DPoint& p : stations) {
        const bool left = high.x - p.x >= p.x - low.x;
        const C3DPoint side = {left ? low.x : high.x, p.y, 0, PlainStation};
        DrawLeader(drawing, p, side, p.y - low.y, &Drawing::DrawHorizontalText, left);

        const bool down = high.y - p.y >= p.y - low.y;
        const C3DPoint foot = {p.x, down ? low.y : high.y, 0, PlainStation};
        DrawLeader(drawing, p, foot, p.x - low.x, &Drawing::DrawVerticalText, down);
    }
}

void NamePoint(const Drawing& drawing, const C3DPoints& stations, std::size_t number,
               const std::string& name) {
    if (number <= stations.Count()) {
        drawing.DrawHorizontalText(stations.Item(number), name + std::to_string(number),
                                   Justification::MiddleLeft);
    }
}

}  // namespace

void DisplayDimensions(const Drawing& drawing, const AnnotatedPattern& pattern,
                       const CDimensions& dimensions) {
    for (const CDimension& dimension : dimensions) {
        const std::optional<C3DPoint> end1 =
            DimensionPoint1(dimension, pattern.surfaces, pattern.extentFrame);
        const std::optional<C3DPoint> end2 =
            DimensionPoint2(dimension, pattern.surfaces, pattern.extentFrame);
        if (!end1 || !end2) {
            return;
        }
        drawing.DrawLine(*end1, *end2, LineType::Mark);
        drawing.DrawLength(*end1, *end2, Justification::MiddleCentre);
    }
}

void DisplayTrueLengths(const Drawing& drawing, const CRuleSurfs& surfaces) {
    const auto show = [&](const C3DPoint& a, const C3DPoint& b) {
        drawing.DrawLength(a, b, Justification::MiddleCentre);
    };
    for (const CRuleSurf& surface : surfaces) {
        const Stations stations(surface);
        const std::size_t n = stations.Rulings();
        for (std::size_t i = 1; i < n; ++i) {
            show(stations.A.Item(i), stations.A.Item(i + 1));
            show(stations.B.Item(i), stations.B.Item(i + 1));
            show(stations.A.Item(i), stations.B.Item(i));
        }
        if (n > 0) {
            show(stations.A.Item(n), stations.B.Item(n));
        }
        for (std::size_t i = 1; i < stations.C.Count(); ++i) {
            show(stations.C.Item(i), stations.C.Item(i + 1));
        }
    }
}

void DisplayDiagonals(const Drawing& drawing, const CRuleSurfs& surfaces) {
    for (const CRuleSurf& surface : surfaces) {
        const Stations stations(surface);
        for (std::size_t i = 1; i < stations.Rulings(); ++i) {
            drawing.DrawLine(stations.A.Item(i), stations.B.Item(i + 1), LineType::Diagonal);
            drawing.DrawLength(stations.A.Item(i), stations.B.Item(i + 1), Justification::MiddleCentre);
        }
    }
}

void DisplayDimensionGrid(const Drawing& drawing, const AnnotatedPattern& pattern) {
    if (pattern.extentFrame.Count() == 0) {
        return;
    }
    DrawExtentFrame(drawing, pattern.extentFrame, false);
    for (const CRuleSurf& surface : pattern.surfaces) {
        const Stations stations(surface);
        for (const C3DPoints* list : {&stations.A, &stations.B, &stations.C}) {
            DisplayGridLines(drawing, *list, pattern.extentFrame);
        }
    }
}

void DisplayCoordinates(const Drawing& drawing, const CRuleSurfs& surfaces, bool numbered) {
    int surfaceNo = 0;
    for (const CRuleSurf& surface : surfaces) {
        ++surfaceNo;
        const std::string tag = numbered ? std::to_string(surfaceNo) : "";
        const Stations stations(surface);
        for (std::size_t i = 1; i <= stations.A.Count(); ++i) {
            NamePoint(drawing, stations.A, i, tag + "A");
            NamePoint(drawing, stations.B, i, tag + "B");
        }
        for (std::size_t i = 1; i <= stations.C.Count(); ++i) {
            NamePoint(drawing, stations.C, i, tag + "C");
        }
    }
}

void DrawExtentFrame(const Drawing& drawing, const C3DPoints& extentFrame, bool withText) {
    if (extentFrame.Count() == 0) {
        return;
    }
    drawing.DrawPath(extentFrame, LineType::Mark);
    if (!withText) {
        return;
    }
    const C3DPoint& corner1 = extentFrame.Item(1);
    const C3DPoint& corner3 = extentFrame.Item(3);
    const C3DPoint& corner4 = extentFrame.Item(4);
    drawing.DrawLength(corner4, corner3, Justification::BottomCentre);
    drawing.DrawLength(corner1, corner4, Justification::BottomCentre);
    const double area = Distance3D(corner1, corner4) * Distance3D(corner1, extentFrame.Item(2));
    drawing.DrawHorizontalText(corner3, "Area = " + RoundedText(area, drawing.Decimals, drawing.DecimalMark),
                               Justification::BottomRight);
}

}  // namespace korvet
