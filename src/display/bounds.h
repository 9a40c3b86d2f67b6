// The upright box about points, pixels or world units alike.
#pragma once

#include <algorithm>
#include <optional>

namespace korvet {

struct Bounds {
    double minX = 0;
    double minY = 0;
    double maxX = 0;
    double maxY = 0;
    bool operator==(const Bounds&) const = default;
};

/// Widens the box to hold a point; the first point makes it.
inline void TakeIn(std::optional<Bounds>& bounds, double x, double y) {
    if (!bounds) {
        bounds = {x, y, x, y};
    }
    bounds->minX = std::min(bounds->minX, x);
    bounds->minY = std::min(bounds->minY, y);
    bounds->maxX = std::max(bounds->maxX, x);
    bounds->maxY = std::max(bounds->maxY, y);
}

}  // namespace korvet
