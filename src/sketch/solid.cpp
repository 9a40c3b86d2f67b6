#include "sketch/solid.h"

#include <cmath>

#include "core/math_module.h"

namespace korvet {

SketchXY ProjectOnSketch(const C3DPoint& point, const SketchView& view) {
    const double turn = DegToRad(view.turn);
    const double tilt = DegToRad(view.tilt);
    const double x = point.x * std::cos(turn) - point.y * std::sin(turn);
    const double y = point.x * std::sin(turn) + point.y * std::cos(turn);
    return {x, y * std::sin(tilt) + point.z * std::cos(tilt)};
}

}  // namespace korvet
