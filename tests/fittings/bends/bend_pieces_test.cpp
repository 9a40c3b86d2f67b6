// The pieces of a bend from its sizes: tilts, heights, and what leaves none; what they hand to the bend.
#include "fittings/bends/bend_pieces.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "core/constants.h"
#include "core/math_module.h"
#include "tests/support/point_lists.h"

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

/// A piece of a bend that warns each time it is developed, by the number of the time.
struct WarningPiece {
    FittingInputs inputs;
    FittingResults results;
    double CPHeight1 = 0;
    double CPHeight2 = 0;
    double CPAngle1 = 0;
    double CPAngle2 = 0;
    int developed = 0;

    void ConstructModel() {}
    void DevelopModel() {
        results.PatternSurface = Strip({{}}, {{}});
        results.warnings.push_back({++developed});
    }
};

TEST(BendPieces, HandTheirWarningsToTheBend) {
    WarningPiece piece;
    FittingResults bend;
    bend.warnings = {{90}};
    bend::LayOut(piece, bend::PiecesOf(QuarterTurn, 120, 4, 70, 90), 2, 6, PI, bend);
    EXPECT_EQ(bend.PatternSurfaceList.Count(), 4U);
    std::vector<int> messages;
    for (const FittingWarning& warning : bend.warnings) {
        messages.push_back(warning.messageId);
    }
    EXPECT_EQ(messages, (std::vector<int>{90, 1, 2, 3, 4}));
}

}  // namespace
}  // namespace korvet
