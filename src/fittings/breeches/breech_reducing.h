// A main pipe that divides into two branches, each a cone that grows narrower.
#pragma once

#include "core/fitting.h"
#include "fittings/cones/right_cone.h"
#include "fittings/pipes/right_cylinder.h"

namespace korvet {

/// The values of Miscellaneous that CBreechReducing tells apart: which pattern is made. Any other value makes
/// none.
enum ReducingBreechPattern : std::int16_t {
    MainPipePattern = 1,
    LeftBranchPattern = 2,
    RightBranchPattern = 3
};

/// Lengths are mean dimensions in the user's unit, angles radians. All axes lie in the plane of x and z and
/// meet in the origin. The main pipe comes up to it along z from -PipeLength; branch A leans from there
/// towards -x, to the left, branch B towards +x. The walls of all three touch the sphere of PipeRad about the
/// origin: that is why they meet in plane curves.
struct CBreechReducing {
    FittingInputs inputs;    ///< Miscellaneous is a ReducingBreechPattern; JoinAngle is not read
    FittingResults results;  ///< ModelSurfaceList and PatternSurfaceList

    double PipeRad = 0;     ///< of the main pipe
    double PipeLength = 0;  ///< of the main pipe, from its free end to the origin
    double ConeRadA = 0;    ///< of each branch at its free end; below PipeRad
    double ConeRadB = 0;
    double ConeLengthA = 0;  ///< of each branch, from the origin to its free end
    double ConeLengthB = 0;
    double CLAngleA = 0;  ///< of each branch against the main pipe's axis
    double CLAngleB = 0;

    /// Fills results.ModelSurfaceList: the main pipe (List1 its cut by the two planes to the branches, List2
    /// its free end), branch A and branch B (List1 the free end, List2 the cut by the planes to the other
    /// branch and to the main pipe). For the stations see the RoofTop of CRightCylinder and the LowerRoof of
    /// CRightCone, which begin on the right of the main pipe and on the side of a branch that looks to the
    /// other one. HalfPattern keeps halves on one side of the plane of the axes. Throws ArithmeticError when
    /// there is no such shape: a branch with its end inside the sphere, one nearly as wide as the main pipe,
    /// a cut that runs past the free end of any piece.
    void ConstructModel();

    /// Fills results.PatternSurfaceList with the piece that Miscellaneous asks for, or with nothing; the
    /// warnings are those of the piece.
    void DevelopModel();

  private:
    CRightCylinder mainPipe_;
    CRightCone branchA_;
    CRightCone branchB_;
};

}  // namespace korvet
