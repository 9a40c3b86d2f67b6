// A plane that cuts a fitting on the axis z.
#pragma once

#include <cmath>

namespace korvet {

/// Rises towards +x by `tilt` (radians) and crosses the axis at `height` (the user's unit).
struct CutPlane {
    double tilt;
    double height;
};

/// Height of a plane over the point at polar angle t (radians) of a circle about the axis: its slope times
/// x = R cos t, from the height on the axis.
inline double PlaneHeight(double R, double t, CutPlane plane) {
    return std::cos(t) * std::tan(plane.tilt) * R + plane.height;
}

}  // namespace korvet
