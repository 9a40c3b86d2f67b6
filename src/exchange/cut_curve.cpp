#include "exchange/cut_curve.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "core/constants.h"
#include "core/math_module.h"

namespace korvet {
namespace {

/// Twice the area of the triangle a, b, c, positive counter-clockwise.
double Cross(const C3DPoint& a, const C3DPoint& b, const C3DPoint& c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

/// How far the bearing lies behind the start of the arc, counter-clockwise, below a full turn.
double TurnFromStart(const CutCurve& arc, double bearing) {
    const double turn = std::fmod(bearing - arc.from, FullTurn);
    return turn < 0 ? turn + FullTurn : turn;
}

/// Whether the point lies between an arc and its chord. An arc bulges to the right of its chord.
bool LiesUnderArc(const CutCurve& arc, const C3DPoint& point) {
    return Distance3D(arc.centre, point) < arc.radius &&
           (arc.sweep >= FullTurn || Cross(arc.start, arc.end, point) < 0);
}

}  // namespace

CutCurve LineCurve(const C3DPoint& a, const C3DPoint& b) {
    CutCurve line;
    line.start = {a.x, a.y};
    line.end = {b.x, b.y};
    return line;
}

CutCurve ArcCurve(const C3DPoint& centre, double radius, double from, double sweep) {
    const C3DPoint middle = {centre.x, centre.y};
    return {PolarPoint(middle, from, radius),
            PolarPoint(middle, from + sweep, radius),
            middle,
            radius,
            from,
            sweep};
}

double LengthOf(const CutCurve& curve) {
    return curve.IsArc() ? curve.radius * curve.sweep : Distance3D(curve.start, curve.end);
}

C3DPoint PointAt(const CutCurve& curve, double part) {
    if (curve.IsArc()) {
        return PolarPoint(curve.centre, curve.from + curve.sweep * part, curve.radius);
    }
    return {curve.start.x + (curve.end.x - curve.start.x) * part,
            curve.start.y + (curve.end.y - curve.start.y) * part};
}

double NearestPart(const CutCurve& curve, const C3DPoint& point) {
    if (curve.IsArc()) {
        const double turn = TurnFromStart(curve, PlanAngle(curve.centre, point));
        if (turn <= curve.sweep) {
            return turn / curve.sweep;
        }
        return turn - curve.sweep < FullTurn - turn ? 1 : 0;
    }
    const double dx = curve.end.x - curve.start.x;
    const double dy = curve.end.y - curve.start.y;
    const double square = dx * dx + dy * dy;
    if (square == 0) {
        return 0;
    }
    return std::clamp(((point.x - curve.start.x) * dx + (point.y - curve.start.y) * dy) / square, 0.0, 1.0);
}

double DistanceOf(const CutCurve& curve, const C3DPoint& point) {
    return Distance3D(PointAt(curve, NearestPart(curve, point)), point);
}

CutCurve SectionOf(const CutCurve& curve, double fromPart, double toPart) {
    if (curve.IsArc()) {
        return ArcCurve(curve.centre, curve.radius, curve.from + curve.sweep * fromPart,
                        curve.sweep * (toPart - fromPart));
    }
    return LineCurve(PointAt(curve, fromPart), PointAt(curve, toPart));
}

Bounds BoundsOf(const CutCurve& curve) {
    std::optional<Bounds> box;
    TakeIn(box, curve.start.x, curve.start.y);
    TakeIn(box, curve.end.x, curve.end.y);
    for (int quarter = 0; curve.IsArc() && quarter < 4; ++quarter) {
        if (TurnFromStart(curve, quarter * QuarterTurn) <= curve.sweep) {
            const C3DPoint extreme = PolarPoint(curve.centre, quarter * QuarterTurn, curve.radius);
            TakeIn(box, extreme.x, extreme.y);
        }
    }
    return *box;
}

double SweptArea(const CutCurve& curve, const C3DPoint& origin) {
    const double triangle = Cross(origin, curve.start, curve.end) / 2;
    // Between an arc and its chord lies r r (w - sin w) / 2.
    return triangle + curve.radius * curve.radius * (curve.sweep - std::sin(curve.sweep)) / 2;
}

bool CrossesRay(const CutCurve& curve, const C3DPoint& point) {
    const C3DPoint& a = curve.start;
    const C3DPoint& b = curve.end;
    bool crosses = false;
    if ((a.y > point.y) != (b.y > point.y)) {
        crosses = a.x + (b.x - a.x) * ((point.y - a.y) / (b.y - a.y)) > point.x;
    }
    // The ray meets the chord; it meets the arc as often, but for one time more from between the two.
    return crosses != (curve.IsArc() && LiesUnderArc(curve, point));
}

}  // namespace korvet
