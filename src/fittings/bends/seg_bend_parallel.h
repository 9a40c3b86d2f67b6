// Lobster-back bend: straight pipe pieces, cut on the slant and turned one after the other round the centre
// of the bend.
#pragma once

#include "core/fitting.h"
#include "fittings/bends/bend_pieces.h"
#include "fittings/pipes/right_cylinder.h"

namespace korvet {

/// Lengths are mean dimensions in the user's unit, angles radians. The first piece runs up along z from
/// -Length1, and the bend turns on from it towards -x, about the line x = -BendRadius, z = 0.
struct CSegBendParallel {
    FittingInputs inputs;
    FittingResults results;  ///< ModelSurfaceList and PatternSurfaceList

    double Thickness = 0;           ///< handed to the pieces, like TemplateType
    std::int16_t TemplateType = 0;  ///< see CRightCylinder
    double KerfSpacing = 0;         ///< gap between two patterns of the layout
    double Length2 = 0;             ///< straight length at the last end
    double Length1 = 0;             ///< straight length at the first end
    std::int16_t BendSegments = 0;  ///< number of gores, one below the number of pieces; at least 1
    double BendAngle = 0;           ///< of the whole bend
    double BendRadius = 0;          ///< of the centre line
    double BaseRad = 0;             ///< of the pipe

    /// Fills results.ModelSurfaceList: the first piece, BendSegments - 1 pieces cut at both ends, the last.
    /// Of each, List1 is the edge towards the last end. The seam swings half a turn from piece to piece, so
    /// that no two seams meet; with HalfPattern, the halves alternate likewise.
    void ConstructModel();

    /// Fills results.PatternSurfaceList: the stretch-outs, one above the other along y, neighbouring cuts
    /// parallel and KerfSpacing apart. Miscellaneous picks the pieces; with another value than
    /// LayOutEveryPiece a middle piece is laid out even for a bend of two pieces, which has none. The
    /// warnings are those of the pieces.
    void DevelopModel();

  private:
    [[nodiscard]] bend::Pieces Pieces() const;
    [[nodiscard]] CRightCylinder Pipe() const;
};

}  // namespace korvet
