#include "platform/line_clip.h"

#include <algorithm>
#include <array>
#include <optional>

namespace korvet {
namespace {

struct Segment {
    ClippedPoint from;
    ClippedPoint to;
};

ClippedPoint PointAt(const Segment& segment, double t) {
    if (t == 0) {
        return segment.from;
    }
    if (t == 1) {
        return segment.to;
    }
    return {segment.from.x + t * (segment.to.x - segment.from.x),
            segment.from.y + t * (segment.to.y - segment.from.y)};
}

/// The part of a segment in the rectangle (Liang and Barsky): each side allows a range of the parameter.
std::optional<Segment> ClipSegment(const Segment& segment, ClippedPoint low, ClippedPoint high) {
    const double dx = segment.to.x - segment.from.x;
    const double dy = segment.to.y - segment.from.y;
    /// How far a step goes towards a side, and how far the side is from the start.
    const std::array<std::array<double, 2>, 4> sides = {{{-dx, segment.from.x - low.x},
                                                         {dx, high.x - segment.from.x},
                                                         {-dy, segment.from.y - low.y},
                                                         {dy, high.y - segment.from.y}}};
    double first = 0;
    double last = 1;
    for (const auto& [step, room] : sides) {
        if (step == 0) {
            if (room < 0) {
                return std::nullopt;
            }
        } else if (step < 0) {
            first = std::max(first, room / step);
        } else {
            last = std::min(last, room / step);
        }
    }
    if (first > last) {
        return std::nullopt;
    }
    return Segment{PointAt(segment, first), PointAt(segment, last)};
}

bool Same(ClippedPoint a, ClippedPoint b) {
    return a.x == b.x && a.y == b.y;
}

}  // namespace

std::vector<ClippedLine> ClipLine(std::span<const PixelPoint> points, PixelSize size, double margin) {
    const ClippedPoint low = {-margin, -margin};
    const ClippedPoint high = {size.width + margin, size.height + margin};
    std::vector<ClippedLine> parts;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const Segment whole = {{static_cast<double>(points[i - 1].x), static_cast<double>(points[i - 1].y)},
                               {static_cast<double>(points[i].x), static_cast<double>(points[i].y)}};
        const std::optional<Segment> part = ClipSegment(whole, low, high);
        if (!part) {
            continue;
        }
        if (parts.empty() || !Same(parts.back().back(), part->from)) {
            parts.push_back({part->from});
        }
        parts.back().push_back(part->to);
    }
    return parts;
}

}  // namespace korvet
