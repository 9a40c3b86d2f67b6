// Straight pipe of oval section whose ends may be cut by planes; oval bends and elbows are made of it piece
// by piece.
#pragma once

#include "core/fitting.h"
#include "fittings/plane_cut.h"

namespace korvet {

/// Lengths are mean dimensions in the user's unit, angles radians. The section is two half circles about
/// points of the y axis, joined by two straight sides along y; the pipe's axis is z, through the origin.
/// Dtype is not read. A half of an oval is no pattern: HalfPattern keeps half of the model's stations, and
/// DevelopModel then ends in ListError.
struct CRightCylinderOval {
    FittingInputs inputs;
    FittingResults results;  ///< ModelSurface and PatternSurface

    double OvalCenterDistance = 0;  ///< of the half circles: the length of a straight side
    double Rotation = 0;            ///< held for the caller, like Offset and CPAngle3; not read
    double Offset = 0;
    double CPAngle1 = 0;  ///< tilt of the top plane: above 0 it rises towards +x
    double CPAngle2 = 0;  ///< tilt of the bottom plane: above 0 it falls towards +x
    double CPAngle3 = 0;
    double CPHeight1 = 0;  ///< height of the top plane on the axis
    double CPHeight2 = 0;  ///< height of the bottom plane on the axis
    double BaseRad = 0;    ///< of the half circles

    /// Fills results.ModelSurface: List1 the top edge, List2 the bottom one. The half circles have the
    /// stations of a ring of 2 * segs steps from JoinAngle on, Flag the station number modulo 2; where the
    /// walk passes from the first half circle to the second that station stands twice, at either end of the
    /// straight side, and the first point closes the second side: 2 * segs + 3 points in all. JoinAngle 0 is
    /// the seam of the shape; from another one the same walk starts at that plan angle on the first half
    /// circle, which tells the heights of a pattern cut open there but is no oval in space.
    void ConstructModel();

    /// Fills results.PatternSurface: the stretch-out, x along the circumference from station 1 at 0, y the
    /// heights, a station for each one of the model; with laps when JoinType is above 0. No warnings and no
    /// reference point.
    void DevelopModel();
};

}  // namespace korvet
