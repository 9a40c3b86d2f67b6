#include "display/page_clip.h"

#include <algorithm>
#include <array>

#include "core/math_module.h"
#include "core/number_text.h"

namespace korvet {
namespace {

constexpr int Places = 8;

/// One edge of the page, as a line from a to b meets it.
struct Edge {
    double outward;  ///< how far the line goes towards the edge and beyond
    double room;     ///< from its start to the edge
};

/// Whether `value` is not less than `limit` when both are rounded; which keeps their order, so that few need
/// to be.
bool Reaches(double value, double limit) {
    return value >= limit || RoundPlaces(value, Places) >= RoundPlaces(limit, Places);
}

C3DPoint PointAt(const C3DPoint& a, const C3DPoint& b, double part, const Bounds& page) {
    return {std::clamp(a.x + part * (b.x - a.x), page.minX, page.maxX),
            std::clamp(a.y + part * (b.y - a.y), page.minY, page.maxY), 0, PlainStation};
}

}  // namespace

bool IsWithinPage(const C3DPoint& point, const Bounds& page) {
    return Reaches(point.x, page.minX) && Reaches(page.maxX, point.x) && Reaches(point.y, page.minY) &&
           Reaches(page.maxY, point.y);
}

bool LineMissesPage(const C3DPoint& a, const C3DPoint& b, const Bounds& page) {
    return (a.y < page.minY && b.y < page.minY) || (a.y > page.maxY && b.y > page.maxY) ||
           (a.x < page.minX && b.x < page.minX) || (a.x > page.maxX && b.x > page.maxX);
}

/// The line runs on the page between the last edge through which it comes in and the first through which it
/// goes out.
std::optional<LinePart> ClipLineToPage(const C3DPoint& a, const C3DPoint& b, const Bounds& page) {
    if (LineMissesPage(a, b, page) || Distance3D(a, b) <= ShortestPaperLine) {
        return std::nullopt;
    }
    const bool startsWithin = IsWithinPage(a, page);
    const bool endsWithin = IsWithinPage(b, page);
    double in = 0;
    double out = 1;
    const std::array<Edge, 4> edges = {{{a.x - b.x, a.x - page.minX},
                                        {b.x - a.x, page.maxX - a.x},
                                        {a.y - b.y, a.y - page.minY},
                                        {b.y - a.y, page.maxY - a.y}}};
    for (const Edge& edge : edges) {
        if (edge.outward < 0 && !startsWithin) {
            in = std::max(in, edge.room / edge.outward);
        } else if (edge.outward > 0 && !endsWithin) {
            out = std::min(out, edge.room / edge.outward);
        }
    }
    if (!(in < out)) {
        return std::nullopt;
    }
    return LinePart{startsWithin ? a : PointAt(a, b, in, page), endsWithin ? b : PointAt(a, b, out, page)};
}

}  // namespace korvet
