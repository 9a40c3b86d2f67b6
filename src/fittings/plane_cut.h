// A plane that cuts a fitting on the axis z.
#pragma once

#include <cmath>

namespace korvet {

/// Leans by `tilt` (radians) against level and crosses the axis at `height` (the user's unit). Above 0 it
/// rises towards +x on a pipe and falls towards +x on a cone, as the properties of their classes do.
struct CutPlane {
    double tilt;
    double height;
};

/// Height of a plane over the point at plan angle t (radians) of a pipe of radius R: its slope times
/// x = R cos t, from the height on the axis.
inline double PlaneHeight(double R, double t, CutPlane plane) {
    return std::cos(t) * std::tan(plane.tilt) * R + plane.height;
}

}  // namespace korvet
