// The mean sizes of a fitting's walls from the boxes of its window, and the thickness tests on them. What a
// box gives counts from the line of the material that the settings name (inside, outside or mean); the
// fitting classes work on the mean line.
#pragma once

#include "form/fitting_form.h"

namespace korvet {

// Sizes in the user's length unit. A box must hold a number.

/// The radius of a round wall from the box of its diameter.
double MeanRadiusOfDiameter(const FittingForm& form, int diameterBox);

/// The same for a wall of another thickness than the settings'.
double MeanRadiusOfDiameter(const FittingForm& form, int diameterBox, double thickness);

/// The radius of a round wall from the box of the radius itself, of a corner for example.
double MeanRadius(const FittingForm& form, int radiusBox);

/// A length across two walls.
double MeanLength(const FittingForm& form, int lengthBox);

/// The radius of a cone from the box of a diameter: across the axis, a wall that leans by coneAngle (half the
/// angle at the apex, radians) counts by the cosine of it. 0: a wall that stands upright.
double MeanConeRadius(const FittingForm& form, int diameterBox, double coneAngle);

// Checks, with the focus on the box after a refusal.

/// Half the thickness must leave room in a diameter whose mean radius is R.
Outcome CheckRoundWall(FittingForm& form, int diameterBox, double R);

/// The same in the wall of a cone, where it counts by the cosine of coneAngle (radians).
Outcome CheckConeWall(FittingForm& form, int diameterBox, double R, double coneAngle);

}  // namespace korvet
