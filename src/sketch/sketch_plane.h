// Rectangles and line segments in the plane of a page. Lengths are pixels, y downward.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "sketch/sketch_layout.h"

namespace korvet {

struct SketchSegment {
    SketchXY a;
    SketchXY b;
};

inline SketchXY operator+(SketchXY p, SketchXY q) {
    return {p.x + q.x, p.y + q.y};
}
inline SketchXY operator-(SketchXY p, SketchXY q) {
    return {p.x - q.x, p.y - q.y};
}
inline SketchXY operator*(SketchXY p, double factor) {
    return {p.x * factor, p.y * factor};
}
inline double Dot(SketchXY p, SketchXY q) {
    return p.x * q.x + p.y * q.y;
}
double Length(SketchXY p);

/// The vector at length 1; to the right for a vector without a length.
SketchXY Direction(SketchXY p);

SketchRect Inflated(const SketchRect& rect, double by);
SketchXY CentreOf(const SketchRect& rect);
SketchRect RectAbout(SketchXY centre, SketchXY size);

/// Extent of an upright rectangle of this size along a direction.
double Extent(SketchXY size, SketchXY direction);

/// The smallest rectangle about both.
SketchRect Union(const SketchRect& a, const SketchRect& b);
SketchRect Union(const SketchRect& a, SketchXY point);

/// Whether less than `gap` lies between the two.
inline bool Near(const SketchRect& a, const SketchRect& b, double gap) {
    return a.x < b.x + b.width + gap && b.x < a.x + a.width + gap && a.y < b.y + b.height + gap &&
           b.y < a.y + a.height + gap;
}

/// The point of the rectangle closest to `to`.
SketchXY ClosestPoint(const SketchRect& rect, SketchXY to);

/// The stretch of a segment inside a rectangle, as fractions from a to b; nothing when it stays outside.
std::optional<std::pair<double, double>> StretchInside(const SketchSegment& segment, const SketchRect& rect);

/// Whether any of a line lies inside a rectangle.
bool RunsThrough(const SketchLine& line, const SketchRect& rect);

/// Whether the segments cross at a point inside both.
bool Cross(const SketchSegment& a, const SketchSegment& b);

/// What is left of a line outside all rectangles, in pieces that keep the arrow heads of the line's ends.
std::vector<SketchLine> CutAround(const SketchLine& line, const std::vector<SketchRect>& rects);

}  // namespace korvet
