#include "fittings/bends/tapered_pieces.h"

#include <cmath>
#include <utility>

#include "core/checked.h"
#include "core/constants.h"
#include "fittings/pieces.h"

namespace korvet::tapered {
namespace {

/// Radians by which the wall must at least rise from level.
constexpr double LeastRise = 1e-12;

}  // namespace

StraightCone ConeBetween(double bigRadius, double smallRadius, double length) {
    const double c = std::atan(Quotient(bigRadius - smallRadius, length));
    if (c > QuarterTurn - LeastRise) {
        throw ArithmeticError("the bend is too short for the difference of its diameters");
    }
    return {bigRadius, length, c};
}

/// Both pieces touch one sphere about the point where their centre lines meet, w its radius: only then do two
/// cones of one slope share a plane cut. The plane crosses the axis
///     w sin c / cos^2(tilt)
/// further towards the apex, here by the sine rule.
double MitreHeight(const StraightCone& cone, double y, double tilt) {
    const double c = cone.halfAngle;
    const double w = std::cos(c) * (cone.bigRadius - std::tan(c) * y);
    const double v = Quotient(w, std::cos(tilt));
    return Quotient(std::sin(c) * v, std::sin(tilt + QuarterTurn)) + y;
}

CRightCone PieceOf(const StraightCone& cone, const FittingInputs& whole, double seam) {
    CRightCone piece;
    piece.inputs = PieceInputs(whole, {.JoinAngle = seam});
    piece.BaseRad = cone.bigRadius;
    piece.ConeAngle = cone.halfAngle;
    return piece;
}

void JoinedModel::Add(CRuleSurf piece, double turn) {
    C3DPoint grip;
    if (Surfaces().Count() > 0) {
        piece.Rotate(Axis::Y, {}, turn);
        grip = piece.List2->Item(1);
    }
    const CRuleSurf placed = layout_.Add(std::move(piece), grip);
    layout_.place = placed.List1->Item(static_cast<std::size_t>(segs_) / 2 + 1);
}

}  // namespace korvet::tapered
