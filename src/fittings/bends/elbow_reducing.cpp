#include "fittings/bends/elbow_reducing.h"

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/pieces.h"

namespace korvet {

/// Half the change of direction is the tilt of the mitre. As the angle comes with a minus, b is half a turn
/// more: the same plane, and turning by twice b the same as turning back by the change of direction.
CElbowReducing::Pieces CElbowReducing::CutPieces() const {
    const double b = QuarterTurn - BendAngle / 2;
    const tapered::StraightCone cone = tapered::ConeBetween(BigRad, SmallRad, Length2 + Length1);
    const double mitre = tapered::MitreHeight(cone, Length1, b);
    Pieces pieces = {b, tapered::PieceOf(cone, inputs, inputs.JoinAngle),
                     tapered::PieceOf(cone, inputs, inputs.JoinAngle + PI)};
    SetEnds(pieces.first, {.CPHeight1 = mitre, .CPHeight2 = 0, .CPAngle1 = -b, .CPAngle2 = 0});
    SetEnds(pieces.second, {.CPHeight1 = cone.length, .CPHeight2 = mitre, .CPAngle1 = 0, .CPAngle2 = b});
    return pieces;
}

void CElbowReducing::ConstructModel() {
    Pieces pieces = CutPieces();
    tapered::JoinedModel model(inputs.segs);
    pieces.first.ConstructModel();
    model.Add(pieces.first.results.ModelSurface, 0);
    pieces.second.ConstructModel();
    model.Add(pieces.second.results.ModelSurface, pieces.tilt + pieces.tilt);
    results.ModelSurfaceList = model.Surfaces();
}

void CElbowReducing::DevelopModel() {
    ConstructModel();
    Pieces pieces = CutPieces();
    const CRuleSurf& first = DevelopPiece(pieces.first, results);
    CRuleSurf second = DevelopPiece(pieces.second, results);
    second.Rotate(Axis::Z, {}, -PlanAngle(second.List1->Item(1), second.List2->Item(1)));
    PieceLayout layout;
    layout.Add(first);
    // The tab of a lap counts as a station here.
    layout.place = AlongRuling(layout.place, second, first.List1->Count() / 2 + 1, KerfSpacing);
    layout.Add(second);
    results.PatternSurfaceList = layout.Surfaces();
}

}  // namespace korvet
