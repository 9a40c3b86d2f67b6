// Segmented bend that grows narrower from its first end to its last: pieces of one straight cone, cut on the
// slant and turned one after the other round the centre of the bend.
#pragma once

#include <vector>

#include "core/fitting.h"
#include "fittings/bends/tapered_pieces.h"
#include "fittings/pieces.h"

namespace korvet {

/// Lengths are mean dimensions in the user's unit, angles radians. The first piece stands on its square end
/// in the plan, about the origin, and the bend turns on from there towards -x, about the line x =
/// -BendRadius, z = 0.
struct CSegBendTapered {
    FittingInputs inputs;    ///< Miscellaneous is not read
    FittingResults results;  ///< ModelSurfaceList and PatternSurfaceList

    double KerfSpacing = 0;         ///< gap between two patterns of the layout
    double SmallRad = 0;            ///< at the last end
    std::int16_t BendSegments = 0;  ///< number of pieces, one above the number of cuts; at least 2
    double BendAngle = 0;           ///< of the whole bend
    double BendRadius = 0;          ///< of the centre line
    double BigRad = 0;              ///< at the first end

    /// Fills results.ModelSurfaceList: BendSegments pieces, the first and the last with one square end. Of
    /// each, List1 is the edge towards the last end. The seam swings half a turn from piece to piece, so that
    /// no two seams meet; with HalfPattern, the halves alternate likewise. With an odd segs no station lies
    /// opposite the seam, and each piece is set on the one before up to a step off its place.
    void ConstructModel();

    /// Fills results.PatternSurfaceList: the pieces unrolled one inside the other, as they come out of the
    /// straight cone, all seams at JoinAngle and each piece KerfSpacing further towards the apex. The mitres
    /// swing here instead of the seams, so that each piece has its seam opposite to where the model shows it:
    /// the first one inside the bend. RefPoint is the apex of each piece. The warnings are those of the
    /// pieces.
    void DevelopModel();

  private:
    /// What the sizes come down to.
    struct Mitres {
        double tilt;
        double first;  ///< height at which the centre lines of the first two pieces meet
        tapered::StraightCone cone;
    };

    [[nodiscard]] Mitres CutsOfBend() const;
    [[nodiscard]] std::vector<PieceEnds> EndsOfPieces(const Mitres& mitres, bool swinging) const;
};

}  // namespace korvet
