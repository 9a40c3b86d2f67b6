// Where a line crosses a cone, in closed form.
#pragma once

#include <algorithm>
#include <cmath>

#include "core/math_module.h"

namespace korvet {

/// The distance along the line from a point inside a cone about z to where it leaves it. The cone has this
/// radius at height 0. Of a point off + u d of the line, with d of length 1,
///     x^2 + y^2 = k^2 (apex - z)^2,  k = radius / apex
/// is a quadratic in u, and of its solutions the next one ahead below the apex is meant.
inline double CrossingAlong(double radius, double apex, const C3DPoint& from, const C3DPoint& to) {
    const double length = Distance3D(from, to);
    const double dx = (to.x - from.x) / length;
    const double dy = (to.y - from.y) / length;
    const double dz = (to.z - from.z) / length;
    const double k = radius / apex;
    const double left = apex - from.z;
    const double a = dx * dx + dy * dy - k * k * dz * dz;
    const double b = 2 * (from.x * dx + from.y * dy + k * k * left * dz);
    const double c = from.x * from.x + from.y * from.y - k * k * left * left;
    const double root = std::sqrt(b * b - 4 * a * c);
    // Both as they lose no digits.
    const double q = -(b + std::copysign(root, b)) / 2;
    double nearest = HUGE_VAL;
    for (const double u : {q / a, c / q}) {
        if (u > -1e-9 * radius && from.z + u * dz <= apex) {
            nearest = std::min(nearest, u);
        }
    }
    return nearest;
}

}  // namespace korvet
