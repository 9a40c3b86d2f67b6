// Transitions written down for tests.
#pragma once

#include "core/math_module.h"
#include "fittings/transitions/transition.h"

namespace korvet {

/// A section of a transition, as its properties tell it.
struct SampleSection {
    double lengthX = 0;
    double lengthY = 0;
    double rad1 = 0;
    double rad2 = 0;
};

inline SampleSection RectangleSection(double x, double y, double radius = 0) {
    return {x, y, radius, radius};
}
inline SampleSection CircleSection(double diameter) {
    return {diameter, diameter, diameter / 2, diameter / 2};
}
inline SampleSection EllipseSection(double x, double y) {
    return {x, y, x / 2, y / 2};
}
inline SampleSection OvalSection(double x, double y) {
    return {x, y, y / 2, y / 2};
}

/// A transition between two level sections, their centres one above the other.
inline CTransition TransitionOf(const SampleSection& top, const SampleSection& base, double height) {
    CTransition transition;
    transition.Height = height;
    transition.TopLengthX = top.lengthX;
    transition.TopLengthY = top.lengthY;
    transition.TopRad1 = top.rad1;
    transition.TopRad2 = top.rad2;
    transition.BaseLengthX = base.lengthX;
    transition.BaseLengthY = base.lengthY;
    transition.BaseRad1 = base.rad1;
    transition.BaseRad2 = base.rad2;
    return transition;
}

/// The same with the top moved in plan and the sections tilted, in degrees.
inline CTransition Skewed(CTransition transition, double offsetX, double offsetY, double topX, double topY,
                          double baseX, double baseY) {
    transition.TopOffsetX = offsetX;
    transition.TopOffsetY = offsetY;
    transition.TopTiltX = DegToRad(topX);
    transition.TopTiltY = DegToRad(topY);
    transition.BaseTiltX = DegToRad(baseX);
    transition.BaseTiltY = DegToRad(baseY);
    return transition;
}

}  // namespace korvet
