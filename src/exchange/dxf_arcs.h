// Curved pattern edges, which are lists of points, turned back into arcs for the cutting machine.
#pragma once

#include <string_view>

#include "core/points.h"
#include "exchange/dxf_stream.h"

namespace korvet {

/// How three neighbouring points of an edge lie to each other.
enum class Triple : int {
    Smooth = 0,               ///< an arc may pass
    AllCoincide = 1,          ///< one and the same point
    FirstPairCoincides = 2,   ///< p1 is p2
    SecondPairCoincides = 3,  ///< p2 is p3
    Straight = 4,             ///< p2 lies between p1 and p3
    DoublesBack = 5,          ///< p3 lies in the direction of p1 as seen from p2
    Corner = 6                ///< p2 is marked as a corner
};

/// Which part of the arc through p1, p2 and p3 is drawn.
enum class ArcPart : int { First = 1, Whole = 2, Second = 3 };

/// The kind of a triple, by distances and bearings rounded to 6 places.
Triple ClassifyTriple(const C3DPoint& p1, const C3DPoint& p2, const C3DPoint& p3);

/// Centre of the circle through three points of the plan, with the z of p1 or p3. A turn at p2 that the
/// cosine can't tell from straight, below about 1e-04, is drawn with a radius of 1e05 chords. Throws
/// ArithmeticError when the points leave no circle.
C3DPoint ThreePointCentre(const C3DPoint& p1, const C3DPoint& p2, const C3DPoint& p3);

/// Draws the arc through p1, p2, p3 in part: p1 to p2, p1 to p3 or p2 to p3. A turn at p2 within 1e-08 of
/// straight gives one LINE over that part. Where the arc would not run along its own points the segments of
/// that part go out as LINEs: where the circle misses one by more than 0.0001 units, the part would go the
/// wrong way round, or its angles as written are equal or miss an end by more than 0.001 units.
void WriteTripleArc(DxfStream& out, const C3DPoint& p1, const C3DPoint& p2, const C3DPoint& p3,
                    std::string_view layer, ArcPart part);

/// Draws an edge by arcs, each of which replaces two segments; what is straight or ends in a corner is LINEs.
/// With an even count the last segment is written twice. A last point with Flag 8, the end of a seam lap, is
/// no part of the curve: a LINE leads to it. Two points are a LINE, fewer are nothing.
///
/// Every point between the ends lies within 0.001 units of an entity, and entities meet as closely: a LINE
/// over two segments that would miss the point between them becomes two, and so does an arc where its angles
/// as written leave a wider gap, or a longer overlap.
void WriteArcPath(DxfStream& out, const C3DPoints& list, std::string_view layer);

}  // namespace korvet
