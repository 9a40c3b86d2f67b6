// The way from a model in space to the drawing plane.
#pragma once

#include "core/points.h"
#include "core/rule_surf.h"
#include "display/view_point.h"

namespace korvet {

/// The points as seen from the view: turned about z by AroundZ plus a quarter turn, tilted by FromXY, laid
/// into z = 0; flags are kept. A view straight down (FromXY exactly QuarterTurn) ignores AroundZ and shows
/// the plan with y downward: that is how its drawings have always lain.
C3DPoints ProjectList(const C3DPoints& points, const CViewPoint& view);

/// A surface of the projected List1, List2 and List3 (where it is present); laps and the reference point stay
/// behind.
CRuleSurf ProjectSurface(const CRuleSurf& surface, const CViewPoint& view);

}  // namespace korvet
