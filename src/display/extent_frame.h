// The rectangle about everything that a drawing shows.
#pragma once

#include <optional>

#include "core/points.h"
#include "core/rule_surf.h"
#include "display/bounds.h"

namespace korvet {

/// The points of a list as surfaces hold it; none of an absent list.
const C3DPoints& PointsOf(const PointList& list);

/// The closed bounding rectangle of List1 and List2 of every drawn surface, five points: minimum x minimum y,
/// maximum x minimum y, maximum x maximum y, minimum x maximum y, and the first again, z 0. It also takes in
/// the first point of List1 of the first true surface, where the search begins; List3 and laps do not count.
/// Empty when there is no point.
C3DPoints BuildExtentFrame(const CRuleSurfs& surfaces, const CRuleSurfs& screenSurfaces);

/// The box about the points of all lists of a surface, List3 and laps too; nothing when there is no point.
std::optional<Bounds> BoundsOf(const CRuleSurf& surface);

/// The box about the same points of all surfaces.
std::optional<Bounds> BoundsOfAll(const CRuleSurfs& surfaces);

}  // namespace korvet
