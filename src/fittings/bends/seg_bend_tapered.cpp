#include "fittings/bends/seg_bend_tapered.h"

#include <cmath>

#include "core/constants.h"
#include "fittings/bends/bend_pieces.h"

namespace korvet {

/// The centre lines of the pieces touch the arc of the bend: each reaches tan(tilt) * radius from there to
/// the one before and to the next.
CSegBendTapered::Mitres CSegBendTapered::CutsOfBend() const {
    const int cuts = BendSegments - 1;
    const double g = bend::MitreTilt(BendAngle, cuts);
    const double reach = std::tan(g) * BendRadius;
    return {g, reach, tapered::ConeBetween(BigRad, SmallRad, reach * (cuts * 2))};
}

/// The ends on the straight cone. Swinging, the mitres lean to and fro from cut to cut, so that each piece
/// fits on the one before as the cone stands; else both of a piece lean apart, and the seams swing.
std::vector<PieceEnds> CSegBendTapered::EndsOfPieces(const Mitres& mitres, bool swinging) const {
    std::vector<PieceEnds> pieces;
    pieces.reserve(static_cast<std::size_t>(BendSegments));
    double y = mitres.first;
    const double step = y + y;
    double lower = 0;
    for (int i = 1; i <= BendSegments; ++i) {
        const double tilt = swinging && i % 2 == 1 ? -mitres.tilt : mitres.tilt;
        const double upper = tapered::MitreHeight(mitres.cone, y, mitres.tilt);
        pieces.push_back(
            {.CPHeight1 = upper, .CPHeight2 = lower, .CPAngle1 = -tilt, .CPAngle2 = i == 1 ? 0 : tilt});
        lower = upper;
        y += step;
    }
    pieces.back().CPHeight1 = mitres.cone.length;
    pieces.back().CPAngle1 = 0;
    return pieces;
}

void CSegBendTapered::ConstructModel() {
    const Mitres mitres = CutsOfBend();
    CRightCone piece = tapered::PieceOf(mitres.cone, inputs, inputs.JoinAngle);
    tapered::JoinedModel model(inputs.segs);
    double turn = 0;
    for (const PieceEnds& ends : EndsOfPieces(mitres, false)) {
        SetEnds(piece, ends);
        piece.ConstructModel();
        model.Add(piece.results.ModelSurface, turn);
        turn = turn + mitres.tilt + mitres.tilt;
        piece.inputs.JoinAngle += PI;
    }
    results.ModelSurfaceList = model.Surfaces();
}

void CSegBendTapered::DevelopModel() {
    ConstructModel();
    const Mitres mitres = CutsOfBend();
    CRightCone piece = tapered::PieceOf(mitres.cone, inputs, inputs.JoinAngle);
    PieceLayout layout;
    for (const PieceEnds& ends : EndsOfPieces(mitres, true)) {
        SetEnds(piece, ends);
        const CRuleSurf& pattern = DevelopPiece(piece, results);
        // The middle ruling without the tab of a lap.
        const std::size_t middle = piece.results.ModelSurface.List1->Count() / 2 + 1;
        layout.place = AlongRuling(layout.place, pattern, middle, KerfSpacing);
        layout.Add(pattern);
    }
    results.PatternSurfaceList = layout.Surfaces();
}

}  // namespace korvet
