// Pipes that stand beside the axis of what they run into.
#pragma once

#include "form/fitting_form.h"

namespace korvet {

/// Half of such a pipe, `offset` from the axis in the user's unit, is no mirror of the other half: a half
/// pattern is refused, with its message, and the whole one taken. At 0 nothing happens.
inline void RefuseHalfBesideAxis(FittingForm& form, double offset) {
    if (form.settings.HalfPattern && offset != 0) {
        form.RefuseHalfPattern();
    }
}

}  // namespace korvet
