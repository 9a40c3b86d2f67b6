// Whether the laps of a pattern have room: what stands behind the warnings of fitting classes.
#pragma once

#include "core/rule_surf.h"

namespace korvet {

// Of a pattern that is unrolled about its apex. A lap is in the user's unit.

/// Whether a top lap is wider than the distance of any point of the edge from the apex.
bool TopLapReachesApex(const C3DPoints& edge, const C3DPoint& apex, double lap);

/// Whether the seam lap at the end of a lapped edge has come round past the start of the pattern: its last
/// point has a smaller plan angle about the apex than the one before.
bool SeamLapPassesStart(const C3DPoints& lappedEdge, const C3DPoint& apex);

// Of any pattern that is rolled up.

/// Whether the two ends of a lapped sheet lie nearer to each other, at either edge, than its seam lap is
/// wide. The ends are the first station and the last one before the tab.
bool SeamGapIsBelow(const CRuleSurf& lapped, double lap);

}  // namespace korvet
