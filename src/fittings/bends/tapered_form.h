// What the windows of bends and elbows that grow narrower share: the checks of their two diameters, and the
// views of a sketch that shows both.
#pragma once

#include "fittings/mean_sizes.h"
#include "form/sketch_entry.h"

namespace korvet::tapered {

/// The boxes of the diameters of the wide and the narrow end.
struct EndBoxes {
    int big;
    int small;
};

/// Both diameters above 0 and with room for the material, then the narrow end narrower than the wide one. A
/// refusal for want of room speaks of the boxes `roomBoxes`.
inline Outcome CheckEnds(FittingForm& form, EndBoxes ends, EndBoxes roomBoxes) {
    if (form.CheckAllPositive(ends.big, ends.small)) {
        return Refused;
    }
    return RefusedIf(CheckRoundWall(form, roomBoxes.big, MeanRadiusOfDiameter(form, ends.big)) ||
                     CheckRoundWall(form, roomBoxes.small, MeanRadiusOfDiameter(form, ends.small)) ||
                     form.CheckLessThan(ends.small, form.Value(ends.big)));
}

inline Outcome CheckEnds(FittingForm& form, EndBoxes ends) {
    return CheckEnds(form, ends, ends);
}

/// Seen level from the front, in the plane of the bend, and from the side: there a narrow end that leans in
/// the first view shows its diameter level.
inline constexpr SketchView TwoViews[] = {{.turn = 0, .tilt = 0}, {.turn = 90, .tilt = 0}};

}  // namespace korvet::tapered
