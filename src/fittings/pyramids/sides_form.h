// What the windows of fittings of equal sides share: the box of the number of sides.
#pragma once

#include "form/fitting_form.h"

namespace korvet::sides {

/// A whole number of sides, three at least; with the focus on the box after a refusal.
Outcome CheckSides(FittingForm& form, int sidesBox);

/// The number of sides. Throws ArithmeticError when it is above 32,767, which no fitting has.
std::int16_t SidesOf(const FittingForm& form, int sidesBox);

}  // namespace korvet::sides
