#include "fittings/bends/murok_mitre.h"

#include <cmath>

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/piece_layout.h"
#include "fittings/pieces.h"

namespace korvet {

/// The shortest rule of a leg is the hypotenuse of offset and run. The axis is longer by what both ends lean
/// over the radius:
///     height = tan(freeEnd) R + tan(mitre) R + Hypotenuse(Offset, run)
CMurokMitre::Leg CMurokMitre::LegOf(double run) const {
    const double mitre = std::atan(Quotient(Offset, run)) / 2;
    const double freeEnd = std::atan(Quotient(run, Offset));
    return {mitre, freeEnd,
            std::tan(freeEnd) * BaseRad + std::tan(mitre) * BaseRad + Hypotenuse(Offset, run)};
}

/// The seams: the ring of the first leg and that of the middle piece begin at the lowest rule and come to the
/// shortest one, the other way round on the second leg.
void CMurokMitre::SetPieces(const Leg& leg1, const Leg& leg2) {
    const auto set = [&](CRightCylinder& piece, double joinAngle, const PieceEnds& ends) {
        piece.inputs = PieceInputs(
            inputs, {.Dtype = TiltedEnds, .JoinAngle = joinAngle, .halved = false, .laps = NoLaps});
        piece.BaseRad = BaseRad;
        piece.Thickness = Thickness;
        SetEnds(piece, ends);
    };
    set(first_, ThreeQuarterTurns,
        {.CPHeight1 = leg1.height, .CPHeight2 = 0, .CPAngle1 = -leg1.mitre, .CPAngle2 = -leg1.freeEnd});
    set(second_, PI,
        {.CPHeight1 = leg2.height, .CPHeight2 = 0, .CPAngle1 = leg2.mitre, .CPAngle2 = leg2.freeEnd});
    const double height = std::tan(leg2.mitre) * BaseRad + std::tan(leg1.mitre) * BaseRad + OffsetLength;
    set(middle_, ThreeQuarterTurns,
        {.CPHeight1 = height, .CPHeight2 = 0, .CPAngle1 = -leg2.mitre, .CPAngle2 = -leg1.mitre});
}

/// The station a quarter of the ring past the lowest rule, to the nearest one: with an odd number of segments
/// that is the one behind the quarter that is kept.
std::size_t CMurokMitre::ShortestRule() const {
    const double count = 2.0 * inputs.segs + 1;
    return static_cast<std::size_t>(RoundToInt(count / 4 + 1));
}

void CMurokMitre::ConstructModel() {
    const Leg leg1 = LegOf(Length1);
    const Leg leg2 = LegOf(Length2);
    SetPieces(leg1, leg2);
    PieceLayout layout(Trim::Quarter);
    // A piece is laid down along -y and then turned in the plan, both about the place where it is joined.
    const auto laidDown = [&](CRightCylinder& piece, double turn) {
        piece.ConstructModel();
        CRuleSurf surface = piece.results.ModelSurface;
        surface.Rotate(Axis::X, layout.place, QuarterTurn);
        surface.Rotate(Axis::Z, layout.place, turn);
        return surface;
    };
    const CRuleSurf first = layout.Add(laidDown(first_, leg1.freeEnd));
    const std::size_t m = ShortestRule();
    layout.place = first.List1->Item(m);
    layout.place.x += OffsetLength;
    const CRuleSurf second = laidDown(second_, -leg2.freeEnd);
    layout.Add(second, second.List1->Item(1));
    const CRuleSurf middle = laidDown(middle_, QuarterTurn);
    layout.Add(middle, middle.List1->Item(m));
    results.ModelSurfaceList = layout.Surfaces();
}

void CMurokMitre::DevelopModel() {
    ConstructModel();
    PieceLayout layout(Trim::Quarter);
    layout.place = layout.Add(DevelopPiece(first_, results)).List1->Item(1);
    const CRuleSurf& second = DevelopPiece(second_, results);
    layout.place = layout.Add(second, second.List2->Item(1)).List1->Item(1);
    CRuleSurf middle = DevelopPiece(middle_, results);
    middle.Rotate(Axis::Z, layout.place, PI);
    layout.Add(middle, middle.List1->Item(ShortestRule()));
    results.PatternSurfaceList = layout.Surfaces();
}

}  // namespace korvet
