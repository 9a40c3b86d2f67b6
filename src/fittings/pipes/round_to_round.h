// A base circle joined to a top circle of any size, beside it and tilted, by straight rulings.
#pragma once

#include "core/fitting.h"

namespace korvet {

/// Lengths are mean dimensions in the user's unit, angles radians. The base circle lies at height 0 about the
/// origin.
struct CRoundToRound {
    FittingInputs inputs;    ///< Dtype and Miscellaneous are not read
    FittingResults results;  ///< ModelSurface and PatternSurface

    double Height = 0;     ///< of the centre of the top circle
    double BaseTiltY = 0;  ///< held for the caller, like BaseTiltX and TopTiltX; not read
    double BaseTiltX = 0;
    double BaseRad = 0;
    double TopTiltY = 0;  ///< of the top circle, about its centre: above 0 it rises towards +x
    double TopTiltX = 0;
    double TopOffsetY = 0;  ///< of the centre of the top circle on the plan, like TopOffsetX
    double TopOffsetX = 0;
    double TopRad = 0;

    /// Fills results.ModelSurface: List1 the base, List2 the top. segs counts the rule lines and there is a
    /// station between each two of them: 2 * segs + 1 stations from JoinAngle round to the closing one, Flag
    /// the station number modulo 2. HalfPattern keeps the first half of the stations.
    void ConstructModel();

    /// Fills results.PatternSurface: the strip laid flat triangle by triangle from the origin, the first
    /// ruling along +x, turning clockwise from there, stations in the order of the model's; with laps when
    /// JoinType is above 0 and no reference point. Rulings have their true lengths and the steps of List1
    /// those of the base's arc; the steps of List2 come near to those of the top's arc with finer stations.
    /// Warning 25, as the user's error, when the ends of the sheet are nearer than the seam lap is wide: the
    /// lap is laid all the same. Throws ArithmeticError when an arc is too long for the sides that close its
    /// triangle.
    void DevelopModel();

  private:
    [[nodiscard]] CRuleSurf Unrolled() const;
};

}  // namespace korvet
