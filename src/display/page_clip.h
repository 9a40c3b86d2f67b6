// What of a drawing lies on a sheet of paper.
#pragma once

#include <optional>

#include "core/points.h"
#include "display/bounds.h"

namespace korvet {

/// A piece of a straight line.
struct LinePart {
    C3DPoint start;
    C3DPoint end;
};

/// Whether the point lies on the page or, at 8 decimal places, on its edge.
bool IsWithinPage(const C3DPoint& point, const Bounds& page);

/// Whether both ends lie beyond the same edge of the page.
bool LineMissesPage(const C3DPoint& a, const C3DPoint& b, const Bounds& page);

/// Lines up to this length are not drawn on paper.
inline constexpr double ShortestPaperLine = 1e-8;

/// The part of the line from a to b that lies on the page, in that direction; an end that lies within stays
/// as it is, and one that is made lies on the edge, never beyond it. Nothing for a line that misses the page,
/// only touches it, or is no longer than ShortestPaperLine.
std::optional<LinePart> ClipLineToPage(const C3DPoint& a, const C3DPoint& b, const Bounds& page);

}  // namespace korvet
