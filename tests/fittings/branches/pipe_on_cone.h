// A pipe on a cone for tests, and its parts.
#pragma once

#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/branches/pipe_to_cone.h"

namespace korvet::pipe_to_cone_test {

inline constexpr double Base = 250;
inline constexpr double Top = 100;
inline constexpr double Height = 450;
inline constexpr double Apex = Height * Base / (Base - Top);
inline constexpr double Pipe = 70;

/// How far within the wall a walk along a rule may end.
inline constexpr double WalkBand = 2e-5;

/// A pipe of 140 across on a cone from 500 to 200, entering as told.
inline CPipeToCone PipeOnCone(PipeEntry entry, double offset = 0, int segs = 12) {
    CPipeToCone fitting;
    fitting.inputs.Dtype = entry;
    fitting.inputs.segs = segs;
    fitting.BaseRad = Base;
    fitting.ConeAngle = std::atan(Base / Apex);
    fitting.CPHeight1 = Height;
    fitting.PipeRad = Pipe;
    fitting.PipeLength = entry == PipeFromTop ? 520 : 480;
    fitting.CenterDistance = entry == PipeFromTop ? 175 : 130;
    fitting.PipeAngle = DegToRad(25) - QuarterTurn;
    fitting.Offset = offset;
    return fitting;
}

inline const CRuleSurf& ConeOf(const CPipeToCone& fitting) {
    return fitting.results.ModelSurfaceList.Item(1);
}

inline const CRuleSurf& PipeOf(const CPipeToCone& fitting) {
    return fitting.results.ModelSurfaceList.Item(2);
}

inline const CRuleSurf& PatternOf(const CPipeToCone& fitting) {
    return fitting.results.PatternSurfaceList.Item(1);
}

/// A point as it stood before the model was turned upside down.
inline C3DPoint Upright(const CPipeToCone& fitting, const C3DPoint& p) {
    return fitting.Invert ? C3DPoint{-p.x, p.y, -p.z, p.Flag} : p;
}

}  // namespace korvet::pipe_to_cone_test
