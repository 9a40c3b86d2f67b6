// What sizes must still give that pass every check of a window: a wall, within reach of a workshop. Where
// they don't, the fitting cannot be made with them.
#pragma once

#include <span>

#include "core/rule_surf.h"
#include "form/window_table.h"

namespace korvet {

/// The largest size and coordinate, in the user's unit: a coordinate of this size still has the digits for a
/// thousandth.
inline constexpr double LargestSize = 1e9;

// All throw ArithmeticError, saying what is at fault.

/// The wall of a round section with this mean radius must have an area.
void RequireWall(double radius);

/// No size in the boxes of a page may be above LargestSize in magnitude.
void RequireWithinReach(const FittingForm& form, std::span<const BoxEntry> boxes);

/// No coordinate of the surfaces may be.
void RequireWithinReach(const CRuleSurfs& surfaces);

/// The build function of a window with these pages, from one that makes the checks: what they let through
/// must be within reach.
template <const auto& Pages, auto Build>
Outcome WithinReach(FittingForm& form, const FittingHandle& fitting) {
    if (Build(form, fitting)) {
        return Refused;
    }
    RequireWithinReach(form, std::span(Pages)[static_cast<std::size_t>(form.dtype)].boxes);
    return Passed;
}

}  // namespace korvet
