// Elbow of two round pipes that meet on one mitre.
#pragma once

#include "core/fitting.h"
#include "fittings/pieces.h"
#include "fittings/pipes/right_cylinder.h"

namespace korvet {

/// Lengths are mean dimensions in the user's unit, angles radians. The first piece runs up along z from its
/// square end in the plan to the mitre; the centre lines meet at (0, 0, Length1), and the second piece goes
/// on from there in the plane of x and z.
struct CElbow {
    FittingInputs inputs;    ///< Miscellaneous is not read
    FittingResults results;  ///< ModelSurfaceList and PatternSurfaceList

    double Thickness = 0;           ///< handed to the pieces, like TemplateType
    std::int16_t TemplateType = 0;  ///< see CRightCylinder
    double KerfSpacing = 0;         ///< gap between the two patterns of the layout
    double Length2 = 0;             ///< centre line of the second piece
    double Length1 = 0;             ///< centre line of the first piece

    /// The angle between the pieces. Above 0 the second one leans towards -x, below 0 towards +x.
    double BendAngle = 0;

    double BendRadius = 0;  ///< of the arc that the lengths come from; not read
    double BaseRad = 0;     ///< of the pipe

    /// Fills results.ModelSurfaceList: of the first piece List1 is the mitre, of the second one List2. The
    /// seam of the second piece stands half a turn from JoinAngle; that of the first stands where JoinAngle
    /// was in the build before, at 0 in the first build. HalfPattern keeps half the stations of each piece
    /// from its seam on: the halves lie on opposite sides.
    void ConstructModel();

    /// Fills results.PatternSurfaceList: the stretch-out of the first piece, and that of the second above it,
    /// their mitres parallel and KerfSpacing apart. Both have the seams of this build. HalfPattern keeps half
    /// of what is laid out, a seam lap counted as a station: with one a half ends a station late, without the
    /// lap. The warnings are those of the pieces.
    void DevelopModel();

  private:
    void SetPiece(CRightCylinder& piece, double seam, const PieceEnds& ends) const;

    CRightCylinder first_;  ///< keeps the seam from build to build
    CRightCylinder second_;
};

}  // namespace korvet
