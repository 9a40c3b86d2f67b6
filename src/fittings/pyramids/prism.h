// Right prism of equal sides, its ends cut by planes: the many-sided counterpart of the straight round pipe.
#pragma once

#include "core/fitting.h"

namespace korvet {

/// The value of Dtype that CPrism tells apart; with any other one the top is one plane.
enum PrismCut : std::int16_t { TwoPlaneTop = 3 };

/// Lengths are mean dimensions in the user's unit, angles radians. The axis is z, through the origin; the
/// first edge stands at JoinAngle. segs has no effect.
struct CPrism {
    FittingInputs inputs;
    FittingResults results;  ///< ModelSurface and PatternSurface

    double BaseRad = 0;  ///< of the circle through the corners
    std::int16_t NoOfSides = 0;
    double CPHeight1 = 0;  ///< height of the top plane, or of both, on the axis
    double CPHeight2 = 0;  ///< height of the bottom plane on the axis
    double CPAngle1 = 0;   ///< tilt of the top plane: above 0 it rises towards +x
    double CPAngle2 = 0;   ///< tilt of the bottom plane: above 0 it falls towards +x
    double CPAngle3 = 0;   ///< tilt of the second plane of a TwoPlaneTop: above 0 it falls towards +x

    /// Fills results.ModelSurface: List1 the top corners, List2 those of the bottom, NoOfSides + 1 of each,
    /// every one a rule corner; the last edge stands on the first. Of a TwoPlaneTop the second plane has the
    /// corners by their number: the first quarter of NoOfSides and those behind three quarters, wherever they
    /// stand. It is a roof with a ridge over the axis when NoOfSides can be divided by 4 and JoinAngle is 0;
    /// with 3 sides the last edge is on the second plane and the first is not, so that the seam does not
    /// close. There is no half: warns with 19, as a user error, and takes HalfPattern back when it is set.
    void ConstructModel();

    /// Fills results.PatternSurface: the edges upright beside each other from x = 0 on, y their heights, with
    /// laps when JoinType is above 0. Every side is as wide as the arc between its corners, a little more
    /// than the flat side. No reference point.
    void DevelopModel();

  private:
    [[nodiscard]] double TopTilt(int index) const;
};

}  // namespace korvet
