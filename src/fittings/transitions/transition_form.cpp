#include "fittings/transitions/transition_form.h"

#include <string>

#include "core/checked.h"
#include "core/math_module.h"
#include "fittings/mean_sizes.h"

namespace korvet::transition {
namespace {

Outcome CheckTilt(FittingForm& form, int box) {
    return RefusedIf(form.CheckAtMost(box, 90) || form.CheckAtLeast(box, -90));
}

/// Gives the angle in a box to the axis that is selected for it, and 0 to the other.
void SetTilt(const FittingForm& form, const OptionGroup& axes, int box, double& tiltX, double& tiltY) {
    const double angle = DegToRad(form.Value(box));
    tiltX = axes.IsOn(0) ? angle : 0;
    tiltY = axes.IsOn(1) ? angle : 0;
}

[[noreturn]] void ThrowTooThick(const std::string& size, const std::string& section) {
    throw ArithmeticError("the material is too thick for the " + size + " of the " + section);
}

/// Ends the build when the material takes more than there is of a size.
void RequireSizes(const Section& section, const std::string& name) {
    if (section.lengthX < 0) {
        ThrowTooThick(section.circle ? "diameter" : "length X", name);
    }
    if (section.lengthY < 0) {
        ThrowTooThick("length Y", name);
    }
    if (section.rad1 < 0 || section.rad2 < 0) {
        ThrowTooThick("corner radius", name);
    }
}

bool IsPoint(const Section& section) {
    return section.lengthX == 0 && section.lengthY == 0;
}

}  // namespace

Section EllipseOf(const FittingForm& form, LengthBoxes lengths) {
    const double a = MeanRadiusOfDiameter(form, lengths.x);
    const double b = MeanRadiusOfDiameter(form, lengths.y);
    return {2 * a, 2 * b, a, b, lengths.x == lengths.y};
}

Section RectangleOf(const FittingForm& form, LengthBoxes lengths, double radius) {
    return {MeanLength(form, lengths.x), MeanLength(form, lengths.y), radius, radius, false};
}

Section RoundedRectangleOf(const FittingForm& form, LengthBoxes lengths, int radiusBox) {
    return RectangleOf(form, lengths, MeanRadius(form, radiusBox));
}

Outcome CheckRadiusFits(FittingForm& form, int radiusBox, double lengthX, double lengthY) {
    return RefusedIf(form.CheckAtMost(radiusBox, lengthX / 2) || form.CheckAtMost(radiusBox, lengthY / 2));
}

Outcome CheckRadiusFits(FittingForm& form, int radiusBox, LengthBoxes lengths) {
    return CheckRadiusFits(form, radiusBox, form.Value(lengths.x), form.Value(lengths.y));
}

Outcome CheckTilts(FittingForm& form, TiltBoxes boxes) {
    return RefusedIf(CheckTilt(form, boxes.top) || CheckTilt(form, boxes.base) ||
                     form.CheckAxes(boxes.top, boxes.base));
}

void SetSections(CTransition& transition, const Section& top, const Section& base, double height) {
    RequireSizes(top, "top");
    RequireSizes(base, "base");
    if (IsPoint(top) && IsPoint(base)) {
        throw ArithmeticError("the material leaves nothing of the top and the base");
    }
    transition.TopLengthX = top.lengthX;
    transition.TopLengthY = top.lengthY;
    transition.TopRad1 = top.rad1;
    transition.TopRad2 = top.rad2;
    transition.BaseLengthX = base.lengthX;
    transition.BaseLengthY = base.lengthY;
    transition.BaseRad1 = base.rad1;
    transition.BaseRad2 = base.rad2;
    transition.Height = height;
    transition.TopOffsetX = transition.TopOffsetY = 0;
    transition.TopTiltX = transition.TopTiltY = 0;
    transition.BaseTiltX = transition.BaseTiltY = 0;
}

void SetOffsets(const FittingForm& form, CTransition& transition, OffsetBoxes boxes) {
    transition.TopOffsetX = form.Value(boxes.x);
    transition.TopOffsetY = -form.Value(boxes.y);
}

void SetTilts(const FittingForm& form, CTransition& transition, TiltBoxes boxes) {
    SetTilt(form, form.options.optTopAngle, boxes.top, transition.TopTiltX, transition.TopTiltY);
    SetTilt(form, form.options.optBaseAngle, boxes.base, transition.BaseTiltX, transition.BaseTiltY);
}

void RefuseSkewHalf(FittingForm& form, const CTransition& transition) {
    const bool skew = transition.TopOffsetY != 0 || transition.BaseTiltX != 0 || transition.TopTiltX != 0;
    if (form.settings.HalfPattern && skew) {
        form.RefuseHalfPattern();
    }
}

void PlaceTop(FittingForm& form, CTransition& transition, OffsetBoxes offsets, TiltBoxes tilts) {
    SetOffsets(form, transition, offsets);
    SetTilts(form, transition, tilts);
    RefuseSkewHalf(form, transition);
}

}  // namespace korvet::transition
