// Elbow of two oval pipes that meet on one mitre.
#pragma once

#include "core/fitting.h"
#include "fittings/ovals/right_cylinder_oval.h"

namespace korvet {

/// Lengths are mean dimensions in the user's unit, angles radians. The centre lines meet at the origin: the
/// first piece runs from there down along z, the second one leaves it in the plane of x and z. The straight
/// sides of the oval lie along y, square to that plane.
struct CElbowOval {
    FittingInputs inputs;    ///< Dtype and Miscellaneous are not read
    FittingResults results;  ///< ModelSurfaceList and PatternSurfaceList

    double KerfSpacing = 0;         ///< how much higher the pattern of the second piece lies
    double OvalCenterDistance = 0;  ///< see CRightCylinderOval
    double Length2 = 0;             ///< centre line of the second piece
    double Length1 = 0;             ///< centre line of the first piece
    double BendAngle = 0;           ///< between the pieces; the second one leans towards +x
    double BendRadius = 0;          ///< of the arc that the lengths come from; not read
    double BaseRad = 0;             ///< of the half circles

    /// Fills results.ModelSurfaceList: of both pieces List1 is the mitre. The seam of the second piece stands
    /// at JoinAngle; that of the first stands where JoinAngle was in the build before, at 0 in the first
    /// build.
    void ConstructModel();

    /// Fills results.PatternSurfaceList: the stretch-outs. The first hangs down from y = 0, its mitre at the
    /// top; the second stands upright on its mitre, KerfSpacing higher. Both have the seam of this build. The
    /// warnings are those of the pieces.
    void DevelopModel();

  private:
    CRightCylinderOval first_;  ///< keeps the seam from build to build
    CRightCylinderOval second_;
};

}  // namespace korvet
