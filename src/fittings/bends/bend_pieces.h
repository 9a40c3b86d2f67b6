// The pieces of a segmented bend of any section: their ends, their places in the bend and in the layout. A
// piece is a pipe along z, such as CRightCylinder, with tilted ends.
#pragma once

#include <concepts>

#include "core/fitting.h"

namespace korvet {

/// The ends of a piece on its own axis: heights in the user's unit, tilts against square in radians.
struct PieceEnds {
    double CPHeight1 = 0;
    double CPHeight2 = 0;
    double CPAngle1 = 0;
    double CPAngle2 = 0;
};

/// What a bend's pieces have to know of it. Lengths in the user's unit, angles radians.
struct BendPieces {
    double BendAngle = 0;
    double BendRadius = 0;  ///< of the centre line
    int gores = 1;          ///< one below the number of pieces
    double goreAngle = 0;   ///< between the axes of two neighbours
    double halfGore = 0;    ///< half the length of a middle piece on its axis
    PieceEnds first;
    PieceEnds middle;
    PieceEnds last;
};

/// The pieces of a bend with `gores` cuts and straight lengths at its ends. Throws ArithmeticError when there
/// is no cut, when a gore would turn by half a turn or more, or when the numbers leave no length.
BendPieces PiecesOfBend(double bendAngle, double bendRadius, int gores, double length1, double length2);

/// A pipe that can be a piece of a bend.
template <typename T>
concept BendPiece = FittingClass<T> && requires(T piece) {
    { piece.CPHeight1 } -> std::same_as<double&>;
    { piece.CPHeight2 } -> std::same_as<double&>;
    { piece.CPAngle1 } -> std::same_as<double&>;
    { piece.CPAngle2 } -> std::same_as<double&>;
};

template <BendPiece Piece>
void SetEnds(Piece& piece, const PieceEnds& ends) {
    piece.CPHeight1 = ends.CPHeight1;
    piece.CPHeight2 = ends.CPHeight2;
    piece.CPAngle1 = ends.CPAngle1;
    piece.CPAngle2 = ends.CPAngle2;
}

/// The model of a bend, first piece to last, built by `piece`, whose JoinAngle is the seam of the first one
/// and grows by `swing` from piece to piece. The first piece stands on its own axis; the bend turns from
/// there towards -x, about the line x = -BendRadius, z = 0.
template <BendPiece Piece>
CRuleSurfs AssembleBend(Piece& piece, const BendPieces& pieces, double swing) {
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
/// JoinAngle and `swing` as in AssembleBend: with a swing of half a turn neighbouring cuts run parallel. The
/// bend takes over the warnings of its pieces.
template <BendPiece Piece>
void LayOutBend(Piece& piece, const BendPieces& pieces, int middlePieces, double kerf, double swing,
                FittingResults& bend) {
    CRuleSurfs patterns;
    C3DPoint place;
    const auto add = [&](const PieceEnds& ends) {
        SetEnds(piece, ends);
        DevelopPiece(piece, bend);
        CRuleSurf pattern = piece.results.PatternSurface;
        pattern.Move({}, place);
        patterns.Add(pattern);
        piece.inputs.JoinAngle += swing;
        place.y += pieces.halfGore + pieces.halfGore + kerf;
    };
    add(pieces.first);
    for (int i = 1; i <= middlePieces; ++i) {
        add(pieces.middle);
    }
    add(pieces.last);
    bend.PatternSurfaceList = patterns;
}

}  // namespace korvet
