#include "fittings/bends/elbow.h"

#include "core/constants.h"
#include "fittings/makeable.h"
#include "fittings/piece_layout.h"

namespace korvet {

/// Everything of a piece but its model; it is built whole.
void CElbow::SetPiece(CRightCylinder& piece, double seam, const PieceEnds& ends) const {
    piece.inputs = PieceInputs(inputs, {.Dtype = TiltedEnds, .JoinAngle = seam, .halved = false});
    piece.BaseRad = BaseRad;
    TakeTemplate(piece, *this);
    SetEnds(piece, ends);
}

/// t is the change of direction, and the mitre's plane is tilted by half of it. The second piece comes down
/// to its mitre like the first one turned over; it is turned into its place about the point where the centre
/// lines meet.
void CElbow::ConstructModel() {
    RequireWall(BaseRad);
    const double t = PI - BendAngle;
    const double a = t / 2;
    PieceLayout layout(TrimOf(inputs));
    SetPiece(first_, first_.inputs.JoinAngle,
             {.CPHeight1 = Length1, .CPHeight2 = 0, .CPAngle1 = a, .CPAngle2 = 0});
    ConstructWithSeamBefore(first_, inputs.JoinAngle);
    layout.Add(first_.results.ModelSurface);

    SetPiece(second_, first_.inputs.JoinAngle + PI,
             {.CPHeight1 = 0, .CPHeight2 = -Length2, .CPAngle1 = 0, .CPAngle2 = a});
    second_.ConstructModel();
    CRuleSurf second = second_.results.ModelSurface;
    second.Move({}, {0, 0, Length2 + Length1});
    second.Rotate(Axis::Y, {0, 0, Length1}, t);
    layout.Add(second);
    results.ModelSurfaceList = layout.Surfaces();
}

void CElbow::DevelopModel() {
    ConstructModel();
    PieceLayout layout(TrimOf(inputs));
    layout.Add(DevelopPiece(first_, results));
    layout.place = Above(layout.place, Length2 + Length1, KerfSpacing);
    layout.Add(DevelopPiece(second_, results));
    results.PatternSurfaceList = layout.Surfaces();
}

}  // namespace korvet
