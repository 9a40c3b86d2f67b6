// The lines and arcs of a drawing as a cutting machine follows them, and their measures in the plan.
#pragma once

#include "core/points.h"
#include "display/bounds.h"

namespace korvet {

/// A straight line, or an arc counter-clockwise from start to end. Lengths in the user's unit, angles in
/// radians; z and flags do not count.
struct CutCurve {
    C3DPoint start;
    C3DPoint end;
    C3DPoint centre;    ///< of an arc
    double radius = 0;  ///< 0 for a straight line
    double from = 0;    ///< bearing of an arc's start from its centre
    double sweep = 0;   ///< of an arc, above 0, a full turn for a circle

    [[nodiscard]] bool IsArc() const { return radius > 0; }
};

/// The line from a to b.
CutCurve LineCurve(const C3DPoint& a, const C3DPoint& b);

/// The arc about `centre` from the bearing `from` counter-clockwise by `sweep`.
CutCurve ArcCurve(const C3DPoint& centre, double radius, double from, double sweep);

double LengthOf(const CutCurve& curve);

/// The point at a part of the curve's length, from 0 at its start to 1 at its end.
C3DPoint PointAt(const CutCurve& curve, double part);

/// The part of the curve's length at which it comes nearest to the point, 0 to 1.
double NearestPart(const CutCurve& curve, const C3DPoint& point);

/// How far the point lies from the curve.
double DistanceOf(const CutCurve& curve, const C3DPoint& point);

/// What lies between two parts of the curve's length.
CutCurve SectionOf(const CutCurve& curve, double fromPart, double toPart);

Bounds BoundsOf(const CutCurve& curve);

/// The area that the ray from `origin` to a point sweeps over as the point runs along the curve: positive
/// counter-clockwise. A closed run of curves adds up to the area it encloses.
double SweptArea(const CutCurve& curve, const C3DPoint& origin);

/// How often the level ray from the point to the right crosses the curve, but for an even number: the point
/// lies inside a closed run of curves when these add up to an odd number.
bool CrossesRay(const CutCurve& curve, const C3DPoint& point);

}  // namespace korvet
