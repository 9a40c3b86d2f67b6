#include "fittings/pyramids/sides_form.h"

#include <limits>

#include "core/checked.h"

namespace korvet::sides {

Outcome CheckSides(FittingForm& form, int sidesBox) {
    return RefusedIf(form.CheckInteger(sidesBox) || form.CheckAtLeast(sidesBox, 3));
}

std::int16_t SidesOf(const FittingForm& form, int sidesBox) {
    if (form.Value(sidesBox) > std::numeric_limits<std::int16_t>::max()) {
        throw ArithmeticError("there can be no more than 32767 sides");
    }
    return RoundToInt16(form.Value(sidesBox));
}

}  // namespace korvet::sides
