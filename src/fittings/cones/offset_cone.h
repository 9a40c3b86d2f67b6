// Frustum of an oblique cone: a level top beside the base circle, on the way to an apex beside the centre.
#pragma once

#include "core/fitting.h"

namespace korvet {

/// Lengths are mean dimensions in the user's unit, angles radians. The base circle lies at height 0 about the
/// origin.
struct COffsetCone {
    FittingInputs inputs;    ///< Dtype and Miscellaneous are not read
    FittingResults results;  ///< ModelSurface and PatternSurface

    C3DPoint ApexPt;      ///< where all generators meet, above the base or below it
    double CPHeight = 0;  ///< of the top, on the side of the apex; 0 is the base itself
    double BaseRad = 0;
    double TopOffsetX = 0;  ///< held for the caller, like TopOffsetY; not read: the apex tells the offset
    double TopOffsetY = 0;

    /// Fills results.ModelSurface: List1 the top, List2 the base. segs counts the rule lines and there is a
    /// station between each two of them: 2 * segs + 1 stations from JoinAngle round to the closing one, Flag
    /// the station number modulo 2. HalfPattern keeps the first half of the stations. Throws ArithmeticError
    /// when the apex lies in the base and the top does not.
    void ConstructModel();

    /// Fills results.PatternSurface, unrolled about the apex at the origin from +x on, RefPoint the apex,
    /// with laps when JoinType is above 0. Generators have their true lengths; between them lies the step of
    /// either circle, worked out on the chord of stations 1 and segs as its diameter. Warnings, in order: 28
    /// when the top lap reaches the apex, with or without a join; 25 when the seam lap does not fit; a lap
    /// that is too large is laid all the same. Throws ArithmeticError for one rule line, which leaves a
    /// pattern without width, and when neighbouring generators differ by more than the step between them.
    void DevelopModel();

  private:
    [[nodiscard]] PointList BuildRing(double h) const;
    [[nodiscard]] PointList DevelopRing(const C3DPoints& ring) const;
};

}  // namespace korvet
