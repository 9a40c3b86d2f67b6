// Material added to a flat pattern for joining: a lap along the seam and laps along its two long edges.
#pragma once

#include <cstdint>

#include "core/rule_surf.h"

namespace korvet {

/// Lays laps along a finished pattern surface; only x and y count. Widths are in the user's unit, and one at
/// or below 0 switches its lap off.
struct CLapJoin {
    double LapSize0 = 0;        ///< lap on the List1 side, the top edge of a cone
    double LapSize1 = 0;        ///< seam lap, past the last station
    double LapSize2 = 0;        ///< lap on the List2 side
    CRuleSurf LappedSurface;    ///< the result
    std::int16_t JoinType = 0;  ///< held for the caller: 0 butt, 1 lap
    CRuleSurf Surface;          ///< the pattern to lap

    /// Makes LappedSurface, which shares List1, List2 and List3 of Surface: those lists are edited in place
    /// and become the outer cutting line, while LapList1 and LapList2 take the old edges, the fold lines.
    /// Laps are measured along the rulings. The seam lap adds one station with Flag 8 and raises the flags of
    /// the last one by 4; it leaves the strip, on whichever side of the seam that is. RefPoint,
    /// RefPointDisplay and DimensionList are not carried. Throws ListError when List1 or List2 is absent or
    /// List2 the shorter.
    void AddLapJoin();
};

/// Laps `surface` by a CLapJoin, puts the result in its place and returns it. Widths in the user's unit.
CRuleSurf& ApplyLapJoin(CRuleSurf& surface, std::int16_t joinType, double lap0, double lap1, double lap2);

}  // namespace korvet
