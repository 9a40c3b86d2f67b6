// Whether the laps of a pattern unrolled about its apex have room: what stands behind the warnings of cones.
#pragma once

#include "core/rule_surf.h"

namespace korvet {

/// Whether a top lap, in the user's unit, is wider than the distance of any point of the edge from the apex.
bool TopLapReachesApex(const C3DPoints& edge, const C3DPoint& apex, double lap);

/// Whether the seam lap at the end of a lapped edge has come round past the start of the pattern: its last
/// point has a smaller plan angle about the apex than the one before.
bool SeamLapPassesStart(const C3DPoints& lappedEdge, const C3DPoint& apex);

}  // namespace korvet
