#include "sketch/sketch_points.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "core/checked.h"
#include "core/math_module.h"
#include "sketch/sample_model.h"
#include "sketch/sketch_layout.h"
#include "sketch/sketch_outline.h"

namespace korvet {
namespace {

std::size_t CountedFromOne(int number) {
    if (number < 1) {
        throw ListError("surfaces and stations of a sketch count from 1");
    }
    return static_cast<std::size_t>(number);
}

const C3DPoints& LineOf(const CRuleSurf& surface, int number) {
    const PointList& list = number == 1 ? surface.List1 : number == 2 ? surface.List2 : surface.List3;
    if (number < 1 || number > 3 || !list || list->Count() == 0) {
        throw ListError("a sketch refers to a line that its model does not have");
    }
    return *list;
}

C3DPoint MiddleOfBox(const C3DPoints& line) {
    const auto middle = [&line](double C3DPoint::*axis) {
        const auto [low, high] =
            std::minmax_element(line.begin(), line.end(),
                                [axis](const C3DPoint& p, const C3DPoint& q) { return p.*axis < q.*axis; });
        return ((*low).*axis + (*high).*axis) / 2;
    };
    return {middle(&C3DPoint::x), middle(&C3DPoint::y), middle(&C3DPoint::z), PlainStation};
}

/// The first point with the smallest coordinate, or with the largest.
C3DPoint Extreme(const C3DPoints& line, double C3DPoint::*axis, bool largest) {
    return *std::min_element(line.begin(), line.end(), [axis, largest](const C3DPoint& p, const C3DPoint& q) {
        return largest ? q.*axis < p.*axis : p.*axis < q.*axis;
    });
}

C3DPoint SpotOnLine(const C3DPoints& line, const SketchPoint& point) {
    switch (point.spot) {
        case Spot::MinX:
            return Extreme(line, &C3DPoint::x, false);
        case Spot::MaxX:
            return Extreme(line, &C3DPoint::x, true);
        case Spot::MinY:
            return Extreme(line, &C3DPoint::y, false);
        case Spot::MaxY:
            return Extreme(line, &C3DPoint::y, true);
        case Spot::MinZ:
            return Extreme(line, &C3DPoint::z, false);
        case Spot::MaxZ:
            return Extreme(line, &C3DPoint::z, true);
        case Spot::Station:
            return line.Item(CountedFromOne(point.station));
        case Spot::Centre:
            break;
    }
    return MiddleOfBox(line);
}

/// Where a step leads from the origin.
C3DPoint StepInSpace(const SketchStep& step) {
    const double rise = DegToRad(step.rise);
    const double bearing = DegToRad(step.bearing);
    const double length = step.level ? step.length / std::fabs(std::cos(rise)) : step.length;
    const double run = length * std::cos(rise);
    return {run * std::cos(bearing), run * std::sin(bearing), length * std::sin(rise), PlainStation};
}

bool IsInside(const SketchPoint& point) {
    return point.list != 0 && point.spot == Spot::Centre;
}

bool IsDrawn(const SketchPoint& point) {
    return point.list != 0 && point.dx == 0 && point.dy == 0 && point.dz == 0 && point.step == SketchStep();
}

}  // namespace

C3DPoint SketchPointInSpace(const CRuleSurfs& model, const SketchPoint& point) {
    C3DPoint found;
    if (point.list != 0) {
        const CRuleSurf& surface = model.Item(CountedFromOne(point.surface));
        found = SpotOnLine(LineOf(surface, point.list), point);
    }
    const C3DPoint step = StepInSpace(point.step);
    return {found.x + point.dx + step.x, found.y + point.dy + step.y, found.z + point.dz + step.z,
            PlainStation};
}

std::size_t ShownOffSurface(const WindowTable& table, const OptionGroup& optPatternSelect) {
    const std::optional<std::size_t> selected = optPatternSelect.selected;
    return selected && *selected < table.patternSurface.size()
               ? static_cast<std::size_t>(table.patternSurface[*selected])
               : 0;
}

PageSketch MakePageSketch(const WindowTable& table, std::size_t page, std::size_t shownOff) {
    const PageEntry& entry = table.pages[page];
    const CRuleSurfs model = SampleModel(table, page);
    const auto project = [&](const SketchPoint& point, int view) {
        return ProjectOnSketch(SketchPointInSpace(model, point), entry.views[static_cast<std::size_t>(view)]);
    };
    PageSketch sketch;
    for (const SketchView& view : entry.views) {
        sketch.pictures.push_back(DrawSolid(model, view, shownOff));
        sketch.strips.push_back(StripsOf(sketch.pictures.back()));
    }
    const auto lineStart = [&](const SketchPoint& point, const SketchDimension& d) {
        const SketchXY at = project(point, d.view);
        return IsInside(point) ? LeavesShape(sketch.pictures[static_cast<std::size_t>(d.view)], at, d.side)
                               : at;
    };
    for (const BoxEntry& box : entry.boxes) {
        const SketchDimension& d = box.dimension;
        sketch.dimensions.push_back({.kind = d.kind,
                                     .side = d.side,
                                     .view = static_cast<std::size_t>(d.view),
                                     .a = lineStart(d.a, d),
                                     .b = lineStart(d.b, d),
                                     .vertex = project(d.vertex, d.view),
                                     .aDrawn = IsDrawn(d.a),
                                     .bDrawn = IsDrawn(d.b),
                                     .reach = d.reach});
    }
    for (const SketchConstruction& line : entry.construction) {
        sketch.construction.push_back({.view = static_cast<std::size_t>(line.view),
                                       .a = project(line.a, line.view),
                                       .b = project(line.b, line.view),
                                       .centre = line.centre});
    }
    return sketch;
}

}  // namespace korvet
