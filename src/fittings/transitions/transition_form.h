// What the windows of transitions share: reading and checking sections, angles and offsets.
#pragma once

#include <array>
#include <span>

#include "fittings/transitions/transition.h"
#include "fittings/windows.h"

namespace korvet::transition {

/// A section as CTransition takes it, in mean sizes.
struct Section {
    double lengthX = 0;
    double lengthY = 0;
    double rad1 = 0;      ///< semi-axis of the corners along x
    double rad2 = 0;      ///< along y
    bool circle = false;  ///< both lengths are one diameter
};

/// The boxes of a section's two lengths.
struct LengthBoxes {
    int x;
    int y;
};

/// The boxes of the top's offsets from the base.
struct OffsetBoxes {
    int x;
    int y;
};

/// The boxes of the angles of both sections, in degrees.
struct TiltBoxes {
    int top;
    int base;
};

/// The ellipse of the overall lengths in two boxes; a circle when both are the same box.
[[nodiscard]] Section EllipseOf(const FittingForm& form, LengthBoxes lengths);

/// The circle of the diameter in a box.
[[nodiscard]] inline Section CircleOf(const FittingForm& form, int diameterBox) {
    return EllipseOf(form, {diameterBox, diameterBox});
}

/// The rectangle of the overall lengths in two boxes with the mean corner radius given.
[[nodiscard]] Section RectangleOf(const FittingForm& form, LengthBoxes lengths, double radius);

/// The same with the corner radius in a third box.
[[nodiscard]] Section RoundedRectangleOf(const FittingForm& form, LengthBoxes lengths, int radiusBox);

// Checks, with the focus on the box after a refusal.

/// A radius of at most half of either length.
Outcome CheckRadiusFits(FittingForm& form, int radiusBox, double lengthX, double lengthY);

/// The same against the lengths as typed.
Outcome CheckRadiusFits(FittingForm& form, int radiusBox, LengthBoxes lengths);

/// Both angles from -90 to 90 degrees, and an axis for each that is not 0.
Outcome CheckTilts(FittingForm& form, TiltBoxes boxes);

/// Sets the sections and the height, the top level above the base and centred on it. The material may use up
/// a size exactly. Throws ArithmeticError when it has left less than nothing of one, which it names, or
/// nothing of both ends: the checks of the boxes don't rule that out.
void SetSections(CTransition& transition, const Section& top, const Section& base, double height);

/// Moves the top: y counts downwards on the plan.
void SetOffsets(const FittingForm& form, CTransition& transition, OffsetBoxes boxes);

/// Turns the sections about the axes that are selected.
void SetTilts(const FittingForm& form, CTransition& transition, TiltBoxes boxes);

/// Refuses a half pattern of a transition that is not the same on both sides of the x axis.
void RefuseSkewHalf(FittingForm& form, const CTransition& transition);

/// The last steps of a page with offsets and angles: sets both and refuses a skew half.
void PlaceTop(FittingForm& form, CTransition& transition, OffsetBoxes offsets, TiltBoxes tilts);

/// The table of a window with a centred transition on its short page and a placed one on its long page.
template <Outcome (*BuildCentred)(FittingForm&, CTransition&),
          Outcome (*BuildPlaced)(FittingForm&, CTransition&)>
constexpr WindowTable Table(std::span<const PageEntry> pages) {
    return {.pages = pages,
            .newFitting = FittingHandle::Make<CTransition>,
            .buildFitting = BuildByType<CTransition, BuildCentred, BuildPlaced>,
            .joinAngleDisable = true,
            .moreButtons = true};
}

}  // namespace korvet::transition
