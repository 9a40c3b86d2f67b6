// A line in the plan drawn up along z: the walls of a rectangular duct, a plate bent along its edges.
#pragma once

#include "core/rule_surf.h"

namespace korvet {

/// The wall that stands on a line in the plan: List1 the points of `line`, List2 the same ones at z =
/// `height` (user's unit, below z 0 when negative). Every Flag is 1: each point is an edge of the wall.
CRuleSurf Extruded(C3DPoints line, double height);

}  // namespace korvet
