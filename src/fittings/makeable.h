// What sizes must still give that pass every check of a window. Where they don't, the fitting cannot be made
// with them.
#pragma once

namespace korvet {

/// The stations that all pieces of a fitting may have together. Pieces and fold lines each have a limit of
/// their own, but pieces by the thousand with fold lines by the thousand would take more memory than a
/// machine has.
inline constexpr double MostStations = 2'000'000;

/// The wall of a round section with this mean radius must have an area. Throws ArithmeticError, saying what
/// is at fault.
void RequireWall(double radius);

}  // namespace korvet
