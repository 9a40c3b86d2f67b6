// What the windows of oval pipes share: the section from its two boxes.
#pragma once

#include "fittings/mean_sizes.h"

namespace korvet::oval {

/// The boxes of a section: the diameter of its half circles, and its length over all.
struct SectionBoxes {
    int diameter;
    int length;
};

/// A section on the mean line, in the user's unit.
struct Section {
    double radius;
    double centreDistance;  ///< between the centres of the half circles; negative when the length is short
};

/// Throws ArithmeticError when a box holds no number.
inline Section SectionOf(const FittingForm& form, SectionBoxes boxes) {
    const double R = MeanRadiusOfDiameter(form, boxes.diameter);
    return {R, MeanLength(form, boxes.length) - (R + R)};
}

/// Gives the section to an oval pipe or to a fitting of such pipes.
template <typename Oval>
void SetSection(Oval& fitting, const Section& section) {
    fitting.BaseRad = section.radius;
    fitting.OvalCenterDistance = section.centreDistance;
}

/// Room for the material in the half circles; then the length must be at least the diameter, as typed.
inline Outcome CheckSection(FittingForm& form, SectionBoxes boxes, const Section& section) {
    return RefusedIf(CheckRoundWall(form, boxes.diameter, section.radius) ||
                     form.CheckAtLeast(boxes.length, form.Value(boxes.diameter)));
}

}  // namespace korvet::oval
