#include "sketch/sketch_outline.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

namespace korvet {
namespace {

constexpr int Strips = 48;

constexpr double Far = std::numeric_limits<double>::infinity();

/// How far a shape comes to the left and to the right within a level strip.
struct Reach {
    double low;  ///< the strip
    double high;
    double left = Far;
    double right = -Far;

    /// Takes in the part of a segment that lies in the strip.
    void TakeIn(SketchXY a, SketchXY b) {
        const SketchXY step = {b.x - a.x, b.y - a.y};
        double from = 0;
        double to = 1;
        if (step.y != 0) {
            const double t0 = (low - a.y) / step.y;
            const double t1 = (high - a.y) / step.y;
            from = std::max(from, std::min(t0, t1));
            to = std::min(to, std::max(t0, t1));
        } else if (a.y < low || a.y > high) {
            return;
        }
        if (from <= to) {
            const double x0 = a.x + step.x * from;
            const double x1 = a.x + step.x * to;
            left = std::min({left, x0, x1});
            right = std::max({right, x0, x1});
        }
    }
};

/// The sides of all faces, and all edges: a wall that is seen edge on has no face.
template <typename Take>
void ForEachSegment(const SolidPicture& picture, Take take) {
    for (const SolidFace& face : picture.faces) {
        for (std::size_t i = 0; i < face.corners.size(); ++i) {
            take(face.corners[i], face.corners[(i + 1) % face.corners.size()]);
        }
    }
    for (const SolidEdge& edge : picture.edges) {
        for (std::size_t i = 1; i < edge.points.size(); ++i) {
            take(edge.points[i - 1], edge.points[i]);
        }
    }
}

/// The ends of the shape across a strip of the picture; nothing when it has no part there.
std::optional<std::pair<double, double>> Across(const SolidPicture& picture, double low, double high) {
    Reach reach = {low, high};
    ForEachSegment(picture, [&](SketchXY a, SketchXY b) { reach.TakeIn(a, b); });
    return reach.left <= reach.right ? std::optional(std::pair(reach.left, reach.right)) : std::nullopt;
}

/// Points with x and y exchanged.
std::vector<SketchXY> Exchanged(const std::vector<SketchXY>& points) {
    std::vector<SketchXY> turned;
    turned.reserve(points.size());
    for (const SketchXY& point : points) {
        turned.push_back({point.y, point.x});
    }
    return turned;
}

/// The same picture lying on its side.
SolidPicture Exchanged(const SolidPicture& picture) {
    SolidPicture turned;
    for (const SolidFace& face : picture.faces) {
        turned.faces.push_back({.corners = Exchanged(face.corners)});
    }
    for (const SolidEdge& edge : picture.edges) {
        turned.edges.push_back({.points = Exchanged(edge.points)});
    }
    return turned;
}

}  // namespace

std::vector<SolidBounds> StripsOf(const SolidPicture& picture) {
    const double height = picture.bounds.top - picture.bounds.bottom;
    std::vector<Reach> reaches;
    reaches.reserve(Strips);
    for (int i = 0; i < Strips; ++i) {
        reaches.push_back(
            {picture.bounds.bottom + height * i / Strips, picture.bounds.bottom + height * (i + 1) / Strips});
    }
    const auto stripAt = [&](double y) {
        const double strip = height > 0 ? (y - picture.bounds.bottom) / height * Strips : 0;
        return static_cast<int>(std::clamp(strip, 0.0, double{Strips - 1}));
    };
    ForEachSegment(picture, [&](SketchXY a, SketchXY b) {
        // One strip further to both sides: a segment on a border belongs to both.
        const int last = std::min(stripAt(std::max(a.y, b.y)) + 1, Strips - 1);
        for (int i = std::max(stripAt(std::min(a.y, b.y)) - 1, 0); i <= last; ++i) {
            reaches[static_cast<std::size_t>(i)].TakeIn(a, b);
        }
    });
    std::vector<SolidBounds> strips;
    for (const Reach& reach : reaches) {
        if (reach.left <= reach.right) {
            strips.push_back(
                {.left = reach.left, .bottom = reach.low, .right = reach.right, .top = reach.high});
        }
    }
    return strips;
}

SketchXY LeavesShape(const SolidPicture& picture, SketchXY from, Side side) {
    if (side == Side::Above || side == Side::Below) {
        const SketchXY end =
            LeavesShape(Exchanged(picture), {from.y, from.x}, side == Side::Above ? Side::Right : Side::Left);
        return {end.y, end.x};
    }
    const auto ends = Across(picture, from.y, from.y);
    if (!ends || from.x < ends->first || from.x > ends->second) {
        return from;
    }
    return {side == Side::Left ? ends->first : ends->second, from.y};
}

}  // namespace korvet
