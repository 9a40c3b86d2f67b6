// What sizes must still give that pass every check of a window. Where they don't, the fitting cannot be made
// with them.
#pragma once

namespace korvet {

/// The wall of a round section with this mean radius must have an area. Throws ArithmeticError, saying what
/// is at fault.
void RequireWall(double radius);

}  // namespace korvet
