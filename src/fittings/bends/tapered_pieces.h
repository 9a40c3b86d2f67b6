// The pieces of a bend or an elbow that grows narrower: stretches of one straight cone between mitres, each
// turned and set on the one before.
#pragma once

#include "fittings/cones/right_cone.h"
#include "fittings/piece_layout.h"

namespace korvet::tapered {

/// The cone that all pieces are cut from: as long as the centre lines of the pieces together. Its axis is z,
/// with the wide end at height 0. Lengths in the user's unit.
struct StraightCone {
    double bigRadius = 0;
    double length = 0;
    double halfAngle = 0;  ///< between axis and wall, radians
};

/// The cone from one radius to the other over `length`. Throws ArithmeticError when that is nothing against
/// the difference of the radii, so that there is no cone but a flat ring.
StraightCone ConeBetween(double bigRadius, double smallRadius, double length);

/// The height at which a mitre crosses the cone's axis. It leans by `tilt` (radians) against square, and the
/// centre lines of the two pieces that it joins meet at the height y of the straight cone: there the bend
/// turns by twice the tilt. On a pipe it would be y itself; on a cone it lies further towards the apex.
double MitreHeight(const StraightCone& cone, double y, double tilt);

/// A piece of the cone, its ends still to be set, with its own seam (plan angle, radians). It takes segs,
/// laps and HalfPattern of the whole.
CRightCone PieceOf(const StraightCone& cone, const FittingInputs& whole, double seam);

/// A model in the making, piece by piece.
class JoinedModel {
  public:
    explicit JoinedModel(int segs) : segs_(segs) {}

    /// Adds the model of a piece, turned in the plane of the bend (radians, from x towards z). The first
    /// stays where it is; of the others, whose seams each lie half a turn from that of the piece before, the
    /// first station of List2 is set on the station half a turn from the seam in the List1 before it. With an
    /// odd number of segs there is no station just opposite, and the next lower one is taken.
    void Add(CRuleSurf piece, double turn);

    [[nodiscard]] const CRuleSurfs& Surfaces() const { return layout_.Surfaces(); }

  private:
    int segs_;
    PieceLayout layout_;
};

}  // namespace korvet::tapered
