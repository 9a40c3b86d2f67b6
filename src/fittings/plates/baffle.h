// Flat plate with the hole of a round pipe that passes through it at an angle.
#pragma once

#include "core/fitting.h"

namespace korvet {

/// Lengths are in the user's unit, the angle radians. The pipe's axis is z; it crosses the plate at the
/// origin.
struct CBaffle {
    FittingInputs inputs;    ///< of these only segs is read
    FittingResults results;  ///< ModelSurface and PatternSurface

    double BaseRad = 0;          ///< radius of the pipe
    double CPAngle1 = 0;         ///< tilt of the plate about x: above 0 it rises towards +y; level at 0
    double LengthX = 0;          ///< of the plate, along x
    double LengthY = 0;          ///< of the plate, across x
    double CenterDistanceX = 0;  ///< of the axis from the side of the plate at small x
    double CenterDistanceY = 0;  ///< of the axis from List1, along the plate

    /// Fills results.ModelSurface: List1 and List2 the edges of the plate along x, from small x on, that of
    /// List1 on the -y side; List3 the hole, 2 * segs + 1 points from +x round to it, Flag the number modulo
    /// 2. Throws ArithmeticError when the plate stands along the pipe.
    void ConstructModel();

    /// Fills results.PatternSurface: the plate as it is seen from below, List1 on the +y side, all corners
    /// rule stations; List3 an ellipse with the pipe's radius along x and
    ///     BaseRad / cos(CPAngle1)
    /// along y. No laps, no half. Throws as ConstructModel.
    void DevelopModel();

  private:
    [[nodiscard]] PointList EdgeAt(double y, double z, std::int16_t flag) const;
    [[nodiscard]] PointList BuildModelHole() const;
    [[nodiscard]] PointList BuildPatternHole() const;
};

}  // namespace korvet
