// Lobster-back bend of oval pipe pieces.
#pragma once

#include "core/fitting.h"
#include "fittings/bends/bend_pieces.h"
#include "fittings/ovals/right_cylinder_oval.h"

namespace korvet {

/// Lengths are mean dimensions in the user's unit, angles radians. The bend stands as CSegBendParallel does,
/// in the plane of x and z; the straight sides of the oval lie along y, square to it.
struct CSegBendParallelOval {
    FittingInputs inputs;    ///< JoinAngle and Dtype are not read; Miscellaneous as in CSegBendParallel
    FittingResults results;  ///< ModelSurfaceList and PatternSurfaceList

    double KerfSpacing = 0;         ///< gap between two patterns of the layout
    double Length2 = 0;             ///< straight length at the last end
    double Length1 = 0;             ///< straight length at the first end
    double OvalCenterDistance = 0;  ///< see CRightCylinderOval
    std::int16_t BendSegments = 0;  ///< number of gores, one below the number of pieces; at least 1
    double BendAngle = 0;           ///< of the whole bend
    double BendRadius = 0;          ///< of the centre line
    double BaseRad = 0;             ///< of the half circles

    /// Fills results.ModelSurfaceList: the first piece, BendSegments - 1 pieces cut at both ends, the last.
    /// Of each, List1 is the edge towards the last end and the seam stands at plan angle 0.
    void ConstructModel();

    /// Fills results.PatternSurfaceList: the stretch-outs, one above the other along y, neighbouring cuts
    /// parallel and KerfSpacing apart, for the pieces are cut open on the outside of the bend and on its
    /// inside in turn, the first one at plan angle 0. Miscellaneous picks the pieces.
    void DevelopModel();

  private:
    [[nodiscard]] bend::Pieces Pieces() const;
    [[nodiscard]] CRightCylinderOval Pipe() const;
};

}  // namespace korvet
