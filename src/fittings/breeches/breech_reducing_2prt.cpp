#include "fittings/breeches/breech_reducing_2prt.h"

#include <cmath>

#include "core/checked.h"
#include "core/constants.h"
#include "core/number_text.h"
#include "core/triangulation.h"
#include "fittings/ring.h"
#include "fittings/trim.h"

namespace korvet {
namespace {

/// The side of the plane x = 0 on which a piece lies.
constexpr double PlusX = 1;
constexpr double MinusX = -1;

/// x of a point of the pipe, with what rounding leaves of it on the plane taken away.
double Across(const C3DPoint& point) {
    return RoundPlaces(point.x, 5);
}

/// Lets a rule from `top` to a foot on the other side begin on the plane x = 0:
///     y = top.y - top.x dy / dx,  z = -foot.x top.z / dx
/// with dx and dy from foot to top, and marks a foot that is there.
void EndOnPlane(const C3DPoint& top, C3DPoint& foot, double side) {
    if (Across(foot) * side < 0) {
        const double dx = top.x - foot.x;
        const double dy = top.y - foot.y;
        foot = {0, top.y - Quotient(top.x * dy, dx), -Quotient(foot.x * top.z, dx), foot.Flag};
    }
    if (Across(foot) == 0) {
        foot.Flag = static_cast<std::int16_t>(foot.Flag + CornerStation);
    }
}

}  // namespace

CRuleSurf CBreechReducing2Prt::Piece(const Outlet& outlet, double start, double side) const {
    const C3DPoint centre = {std::sin(outlet.clAngle) * outlet.length, Offset,
                             std::cos(outlet.clAngle) * outlet.length, PlainStation};
    const Ring ring = RuledRing(start, inputs.segs);
    CRuleSurf piece;
    piece.List1 = CirclePoints(ring, centre, outlet.radius);
    piece.List2 = CirclePoints(ring, {}, PipeRad);
    piece.RotateList(1, Axis::Y, centre, outlet.faceAngle);
    for (std::size_t i = 1; i <= ring.Count(); ++i) {
        EndOnPlane(piece.List1->Item(i), piece.List2->Item(i), side);
    }
    return Trimmed(piece, TrimOf(inputs));
}

void CBreechReducing2Prt::ConstructModel() {
    results.ModelSurfaceList = CRuleSurfs();
    results.ModelSurfaceList.Add(
        Piece({ConeRadA, ConeLengthA, CLAngleA, ConeFaceAngleA}, inputs.JoinAngle + PI, PlusX));
    results.ModelSurfaceList.Add(
        Piece({ConeRadB, ConeLengthB, CLAngleB, ConeFaceAngleB}, inputs.JoinAngle, MinusX));
}

void CBreechReducing2Prt::DevelopModel() {
    ConstructModel();
    CRuleSurf pattern = Unfolded(results.ModelSurfaceList.Item(1));
    AddLaps(pattern, inputs);
    results.PatternSurfaceList = CRuleSurfs();
    results.PatternSurfaceList.Add(pattern);
}

}  // namespace korvet
