#include "sketch/sketch_outline.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

namespace korvet {
namespace {

constexpr int Strips = 48;

/// The ends of the shape across a strip of the picture; nothing when it has no part there.
std::optional<std::pair<double, double>> Across(const SolidPicture& picture, double low, double high) {
    constexpr double Far = std::numeric_limits<double>::infinity();
    std::pair<double, double> ends = {Far, -Far};
    for (const SolidFace& face : picture.faces) {
        for (std::size_t i = 0; i < face.corners.size(); ++i) {
            const SketchXY a = face.corners[i];
            const SketchXY b = face.corners[(i + 1) % face.corners.size()];
            const SketchXY step = {b.x - a.x, b.y - a.y};
            double from = 0;
            double to = 1;
            if (step.y != 0) {
                const double t0 = (low - a.y) / step.y;
                const double t1 = (high - a.y) / step.y;
                from = std::max(from, std::min(t0, t1));
                to = std::min(to, std::max(t0, t1));
            } else if (a.y < low || a.y > high) {
                continue;
            }
            if (from <= to) {
                const double x0 = a.x + step.x * from;
                const double x1 = a.x + step.x * to;
                ends.first = std::min({ends.first, x0, x1});
                ends.second = std::max({ends.second, x0, x1});
            }
        }
    }
    return ends.first <= ends.second ? std::optional(ends) : std::nullopt;
}

/// The same picture lying on its side: x and y exchanged.
SolidPicture Exchanged(const SolidPicture& picture) {
    SolidPicture turned;
    for (const SolidFace& face : picture.faces) {
        SolidFace& added = turned.faces.emplace_back();
        for (const SketchXY& corner : face.corners) {
            added.corners.push_back({corner.y, corner.x});
        }
    }
    return turned;
}

}  // namespace

std::vector<SolidBounds> StripsOf(const SolidPicture& picture) {
    const double height = picture.bounds.top - picture.bounds.bottom;
    std::vector<SolidBounds> strips;
    for (int i = 0; i < Strips; ++i) {
        const double low = picture.bounds.bottom + height * i / Strips;
        const double high = picture.bounds.bottom + height * (i + 1) / Strips;
        if (const auto ends = Across(picture, low, high)) {
            strips.push_back({.left = ends->first, .bottom = low, .right = ends->second, .top = high});
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
