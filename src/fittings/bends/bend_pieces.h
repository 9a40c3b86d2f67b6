// The pieces of a segmented bend of any section: their ends, their places in the bend and in the layout. A
// piece is a pipe along z, such as CRightCylinder, with tilted ends.
#pragma once

#include "fittings/piece_layout.h"
#include "fittings/pieces.h"

namespace korvet {

/// The value of Miscellaneous by which a segmented bend lays out every piece; any other one: the first piece,
/// one of those between, and the last.
inline constexpr std::int16_t LayOutEveryPiece = 1;

}  // namespace korvet

namespace korvet::bend {

/// How many middle pieces of a bend with `gores` cuts are laid out. The short layout shows one even of two
/// pieces, which have none between them.
constexpr int MiddlePieces(std::int16_t miscellaneous, int gores) {
    return miscellaneous == LayOutEveryPiece ? gores - 1 : 1;
}

/// What a bend's pieces have to know of it. Lengths in the user's unit, angles radians.
struct Pieces {
    double BendAngle = 0;
    double BendRadius = 0;  ///< of the centre line
    int gores = 1;          ///< one below the number of pieces
    double goreAngle = 0;   ///< between the axes of two neighbours
    double halfGore = 0;    ///< half the length of a middle piece on its axis
    PieceEnds first;
    PieceEnds middle;
    PieceEnds last;
};

/// How far each of so many equal mitres leans against square, when together they turn a bend by `bendAngle`
/// (both radians). Throws ArithmeticError when there is no cut, or a mitre would have to turn the pipe by 180
/// degrees or more.
double MitreTilt(double bendAngle, int cuts);

/// The pieces of a bend with `gores` cuts and straight lengths at its ends. Throws ArithmeticError as
/// MitreTilt, or when the numbers leave no length.
Pieces PiecesOf(double bendAngle, double bendRadius, int gores, double length1, double length2);

/// The model of a bend, first piece to last, built by `piece`, whose JoinAngle is the seam of the first one
/// and grows by `swing` (radians) from piece to piece. The first piece stands on its own axis; the bend turns
/// from there towards -x, about the line x = -BendRadius, z = 0.
template <CutPiece Piece>
CRuleSurfs Assemble(Piece& piece, const Pieces& pieces, double swing) {
    CRuleSurfs surfaces;
    const C3DPoint centre = {-pieces.BendRadius, 0, 0};
    const auto add = [&](const PieceEnds& ends, double turn) {
        SetEnds(piece, ends);
        piece.ConstructModel();
        CRuleSurf surface = piece.results.ModelSurface;
        surface.Rotate(Axis::Y, centre, turn);
        surfaces.Add(surface);
        piece.inputs.JoinAngle += swing;
    };
    add(pieces.first, 0);
    double turn = 0;
    for (int i = 1; i < pieces.gores; ++i) {
        turn += pieces.goreAngle;
        add(pieces.middle, turn);
    }
    add(pieces.last, pieces.BendAngle);
    return surfaces;
}

/// Gives the results of a bend its patterns: those of its first piece, `middlePieces` of its middle ones and
/// its last, one above the other along y, each the length of a middle piece and `kerf` above the one before.
/// JoinAngle and `swing` as in Assemble: with a swing of half a turn neighbouring cuts run parallel. The bend
/// takes over the warnings of its pieces.
template <CutPiece Piece>
void LayOut(Piece& piece, const Pieces& pieces, int middlePieces, double kerf, double swing,
            FittingResults& bend) {
    PieceLayout layout;
    const auto add = [&](const PieceEnds& ends) {
        SetEnds(piece, ends);
        layout.Add(DevelopPiece(piece, bend));
        layout.place = Above(layout.place, pieces.halfGore + pieces.halfGore, kerf);
        piece.inputs.JoinAngle += swing;
    };
    add(pieces.first);
    for (int i = 1; i <= middlePieces; ++i) {
        add(pieces.middle);
    }
    add(pieces.last);
    bend.PatternSurfaceList = layout.Surfaces();
}

}  // namespace korvet::bend
