// How far a plane that cuts a wall may be tilted before it leaves the fitting at its lower end: limits for
// the boxes of windows.
#pragma once

#include "form/fitting_form.h"

namespace korvet {

/// The tilt, in degrees, of a plane that falls by `height` over `run`: the steepest that still meets the
/// lower end. 90 for a run of 0; against a negative run the tilt is negative.
double TiltLimit(double height, double run);

// Checks, with the focus on the box after a refusal.

/// The tilt in a box, in degrees, must be above `low` and then below `high`.
Outcome CheckTiltWithin(FittingForm& form, int angleBox, double low, double high);

/// A plane that crosses the axis at `height`, `run` from the wall, may fall to either side.
Outcome CheckPlaneTilt(FittingForm& form, int angleBox, double height, double run);

}  // namespace korvet
