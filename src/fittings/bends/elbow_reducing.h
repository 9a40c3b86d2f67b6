// Elbow of two pieces that grows narrower from its first end to its last: both are cut from one straight cone
// and meet on one mitre.
#pragma once

#include "core/fitting.h"
#include "fittings/bends/tapered_pieces.h"

namespace korvet {

/// Lengths are mean dimensions in the user's unit, angles radians. The first piece stands on its square end
/// in the plan, about the origin; the centre lines meet at (0, 0, Length1), and the second piece goes on from
/// there in the plane of x and z.
struct CElbowReducing {
    FittingInputs inputs;    ///< Miscellaneous is not read
    FittingResults results;  ///< ModelSurfaceList and PatternSurfaceList

    double KerfSpacing = 0;  ///< gap between the two patterns of the layout
    double Length2 = 0;      ///< centre line of the second piece
    double Length1 = 0;      ///< centre line of the first piece
    double SmallRad = 0;     ///< at the last end

    /// Minus the angle between the pieces: the second one then leans towards +x.
    double BendAngle = 0;

    double BigRad = 0;  ///< at the first end

    /// Fills results.ModelSurfaceList: of the first piece List1 is the mitre, of the second one List2. The
    /// seam of the second piece stands half a turn from JoinAngle, that of the first; with HalfPattern, the
    /// halves lie on opposite sides. With an odd segs no station lies opposite the seam, and the second piece
    /// is set on the first up to a step off its place.
    void ConstructModel();

    /// Fills results.PatternSurfaceList: both pieces unrolled about the apex, the first ruling of the second
    /// one along +x, and the second KerfSpacing further towards the apex than it fits into the first.
    /// RefPoint is the apex of each piece. The warnings are those of the pieces.
    void DevelopModel();

  private:
    struct Pieces {
        double tilt;  ///< of the mitre against square
        CRightCone first;
        CRightCone second;
    };

    [[nodiscard]] Pieces CutPieces() const;
};

}  // namespace korvet
