#include "fittings/tilt.h"

#include <cmath>

#include "core/math_module.h"

namespace korvet {

/// A run of "-0", which can be typed, is one of 0 too: the sum of both is.
double TiltLimit(double height, double run) {
    return RadToDeg(std::atan(height / (run + 0.0)));
}

Outcome CheckTiltWithin(FittingForm& form, int angleBox, double low, double high) {
    return RefusedIf(form.CheckGreaterThan(angleBox, low) || form.CheckLessThan(angleBox, high));
}

Outcome CheckPlaneTilt(FittingForm& form, int angleBox, double height, double run) {
    const double m = TiltLimit(height, run);
    return CheckTiltWithin(form, angleBox, -m, m);
}

}  // namespace korvet
