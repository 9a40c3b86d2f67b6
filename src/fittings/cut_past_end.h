// Pieces that are cut at one end, for a joint, and free at the other. With a length that is too short the cut
// runs past the free end. Lengths of rules, which are distances, would hide it, and the pattern would fold
// over.
#pragma once

#include <string_view>

#include "core/points.h"

namespace korvet {

/// The rules of a piece run item by item from the edge of its cut to that of its free end; the latter may be
/// the longer list. `towardsFree`, of any length, points along the piece's axis from the cut to the free end.
/// A rule may have no length, but none below 0, told in that direction, by more than 1e-9 of the piece's
/// size: the distance from the first point of the free end to the one furthest away. Throws ArithmeticError,
/// saying that `length`, such as "the pipe length", is too short.
void RequireCutWithinEnd(const C3DPoints& cut, const C3DPoints& freeEnd, const C3DPoint& towardsFree,
                         std::string_view length);

}  // namespace korvet
