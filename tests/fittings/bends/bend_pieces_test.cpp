// The pieces of a bend from its sizes: tilts, heights, and what leaves none.
#include "fittings/bends/bend_pieces.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"

namespace korvet {
namespace {

TEST(BendPieces, CutsCrossTheAxesWhereTheyMeet) {
    const bend::Pieces pieces = bend::PiecesOf(DegToRad(120), 300, 4, 70, 90);
    EXPECT_NEAR(pieces.goreAngle, DegToRad(30), 1e-12);
    // A regular polygon round the centre line's arc: half a side is radius tan(half the angle).
    EXPECT_NEAR(pieces.halfGore, 300 * std::tan(DegToRad(15)), 1e-9);
    for (const PieceEnds& piece : {pieces.first, pieces.middle}) {
        EXPECT_EQ(piece.CPHeight1, pieces.halfGore);
        EXPECT_NEAR(piece.CPAngle1, DegToRad(15), 1e-12);
    }
    for (const PieceEnds& piece : {pieces.middle, pieces.last}) {
        EXPECT_EQ(piece.CPHeight2, -pieces.halfGore);
        EXPECT_NEAR(piece.CPAngle2, DegToRad(15), 1e-12);
    }
    EXPECT_EQ(pieces.first.CPHeight2, -70);
    EXPECT_EQ(pieces.first.CPAngle2, 0);
    EXPECT_EQ(pieces.last.CPHeight1, 90);
    EXPECT_EQ(pieces.last.CPAngle1, 0);
}

TEST(BendPieces, NoCutOrAMitreOfHalfATurnIsAnError) {
    EXPECT_THROW(bend::PiecesOf(1, 300, 0, 0, 0), ArithmeticError);
    EXPECT_THROW(bend::PiecesOf(PI, 300, 1, 0, 0), ArithmeticError);
    EXPECT_NO_THROW(bend::PiecesOf(3.1, 300, 1, 0, 0));
}

}  // namespace
}  // namespace korvet
