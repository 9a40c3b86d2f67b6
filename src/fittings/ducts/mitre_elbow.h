// Elbow of rectangular duct with one mitre.
#pragma once

#include "core/fitting.h"

namespace korvet {

/// Lengths are in the user's unit and taken as they are, angles radians. The centre lines of both limbs lie
/// in the plan and meet at the origin, which the first limb leaves along -x; the depth runs up along z.
struct CMitreElbow {
    FittingInputs inputs;    ///< none of them is read
    FittingResults results;  ///< ModelSurface, ModelSurfaceList and PatternSurfaceList

    double SeamLapSmall = 0;  ///< held for the caller, like SeamLapLarge; not read
    double SeamLapLarge = 0;
    double End2Length = 0;       ///< of the second limb's centre line, to where the two meet
    double End1Length = 0;       ///< of the first limb's
    double CenterLineAngle = 0;  ///< minus the angle from the first limb counter-clockwise to the second
    double End2PlanWidth = 0;    ///< width of the limbs in the plan: of the second one's end
    double End1PlanWidth = 0;    ///< of the first one's end and of the mitre; both should be the same
    double End2Depth = 0;        ///< held for the caller; not read
    double End1Depth = 0;        ///< of the section, along z

    /// Fills results.ModelSurface, and ModelSurfaceList with this one surface: List1 is the outline in the
    /// plan, seven points that end on the first one, List2 the same points at z = End1Depth; every Flag 1.
    /// Throws ArithmeticError when the duct has no width or no depth, and when a limb ends before its mitre.
    void ConstructModel();

    /// Fills results.PatternSurfaceList with what is cut, each piece 1.5 depths below the one before: the
    /// wall along the right side of both limbs (as one walks through from the first), the wall along their
    /// left side, and one cheek, of which two are needed. A wall has a rule at its middle station, where it
    /// is folded. A cheek has no rule, and corners at the mitre. Walls begin with the end of the second limb
    /// and of the first limb, a cheek with that of the second limb.
    void DevelopModel();

  private:
    void RequireWalls() const;
    [[nodiscard]] C3DPoints MitreOutline() const;
};

}  // namespace korvet
