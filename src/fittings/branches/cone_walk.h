// Where a rule of a pipe that starts inside a right circular cone comes out of it: a walk along the rule, by
// steps that halve.
#pragma once

#include "core/points.h"

namespace korvet {

/// An upright cone: its base circle lies about the origin. Lengths in the user's unit.
struct WalkedCone {
    double baseRadius = 0;
    double apexHeight = 0;
    double height = 0;  ///< of the frustum that is made of it; the first step is a hundredth of it
};

/// A frustum must be high enough for the first step to be above the accuracy of the walk, 1e-05. Throws
/// ArithmeticError, saying so.
void RequireWalkable(double height);

/// Height of the cone's wall over the plan of a point; beside the base circle it grows again.
double ConeHeightAt(const WalkedCone& cone, const C3DPoint& point);

/// The point of the rule from `inside` to `outside`, and on in its direction, where it comes out through the
/// wall of the cone, found from the inside to within 2e-05. Flag 0. Above the frustum and below its base the
/// wall goes on. Throws ArithmeticError, saying what is at fault, when the frustum is not walkable, when the
/// rule has no length or starts outside the cone by more than rounding, and after 20,000 steps.
C3DPoint FindConeIntersection(const WalkedCone& cone, const C3DPoint& inside, const C3DPoint& outside);

}  // namespace korvet
