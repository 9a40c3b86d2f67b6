#include "fittings/ovals/elbow_oval.h"

#include "core/constants.h"
#include "fittings/piece_layout.h"
#include "fittings/pieces.h"

namespace korvet {
namespace {

/// Tilt of the mitre, which halves the angle between the pieces.
double MitreTilt(double bendAngle) {
    return QuarterTurn - bendAngle / 2;
}

}  // namespace

void CElbowOval::ConstructModel() {
    const double a = MitreTilt(BendAngle);
    first_.inputs = PieceInputs(inputs, {.JoinAngle = first_.inputs.JoinAngle});
    second_.inputs = PieceInputs(inputs, {.JoinAngle = inputs.JoinAngle});
    for (CRightCylinderOval* piece : {&first_, &second_}) {
        piece->BaseRad = BaseRad;
        piece->OvalCenterDistance = OvalCenterDistance;
    }
    CRuleSurfs surfaces;
    SetEnds(first_, {.CPHeight1 = 0, .CPHeight2 = -Length1, .CPAngle1 = -a, .CPAngle2 = 0});
    ConstructWithSeamBefore(first_, inputs.JoinAngle);
    surfaces.Add(first_.results.ModelSurface);

    SetEnds(second_, {.CPHeight1 = 0, .CPHeight2 = -Length2, .CPAngle1 = a, .CPAngle2 = 0});
    second_.ConstructModel();
    CRuleSurf second = second_.results.ModelSurface;
    second.Rotate(Axis::Y, {}, BendAngle);
    surfaces.Add(second);
    results.ModelSurfaceList = surfaces;
}

void CElbowOval::DevelopModel() {
    ConstructModel();
    PieceLayout layout;
    layout.Add(DevelopPiece(first_, results));
    layout.place = Above(layout.place, 0, KerfSpacing);
    // The second piece is turned over, so that its pattern stands on the mitre.
    const double a = MitreTilt(BendAngle);
    SetEnds(second_, {.CPHeight1 = Length2, .CPHeight2 = 0, .CPAngle1 = 0, .CPAngle2 = a});
    layout.Add(DevelopPiece(second_, results));
    results.PatternSurfaceList = layout.Surfaces();
}

}  // namespace korvet
