// The cone of a tapered bend and where its mitres cut it, against the section through the axis.
#include "fittings/bends/tapered_pieces.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "core/checked.h"
#include "core/math_module.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

TEST(TaperedCone, HasTheSlopeOfItsEnds) {
    const tapered::StraightCone cone = tapered::ConeBetween(100, 40, 60);
    EXPECT_EQ(cone.bigRadius, 100);
    EXPECT_EQ(cone.length, 60);
    EXPECT_DOUBLE_EQ(cone.halfAngle, std::numbers::pi / 4);
}

TEST(TaperedCone, NeedsALength) {
    EXPECT_THROW(tapered::ConeBetween(100, 40, 0), ArithmeticError);
    EXPECT_THROW(tapered::ConeBetween(100, 40, 1e-11), ArithmeticError);
    EXPECT_NO_THROW(tapered::ConeBetween(100, 40, 1e-9));
}

TEST(MitreHeight, OfASquareCutOrOfAPipeIsWhereTheAxesMeet) {
    const tapered::StraightCone cone = tapered::ConeBetween(100, 40, 200);
    // Square the piece would touch its ball at both sides: the cut goes a little above the ball's centre.
    const double c = std::atan(0.3);
    EXPECT_NEAR(tapered::MitreHeight(cone, 50, 0), 50 + 85 * std::cos(c) * std::sin(c), 1e-12);
    EXPECT_NEAR(tapered::MitreHeight(tapered::ConeBetween(100, 100, 200), 50, 0.4), 50, 1e-12);
}

/// In the section through the bend's plane the two straight cones show their walls as lines. The cut goes
/// through the points where the inner walls and the outer walls cross; found here by crossing these lines.
TEST(MitreHeight, IsWhereTheWallsOfBothPiecesCross) {
    const double R = 100;
    const double slope = 0.2;
    const tapered::StraightCone cone = tapered::ConeBetween(R, R - slope * 300, 300);
    for (const double tilt : {0.1, 0.5, 1.0}) {
        for (const double y : {30.0, 120.0, 290.0}) {
            // A wall on side s of the first piece: x = s (R - slope z). On the second, from the meeting of
            // the axes (0, y) on, turned by twice the tilt towards -x: across = s (R - slope (y + along)).
            const double turn = 2 * tilt;
            double x[2];
            double z[2];
            for (const int k : {0, 1}) {
                const double s = k == 0 ? 1 : -1;
                // across = x cos + (z - y) sin, along = -x sin + (z - y) cos; put x of the first wall in.
                const double r = R - slope * y;
                const double inX = std::cos(turn) - s * slope * std::sin(turn);
                const double inZ = std::sin(turn) + s * slope * std::cos(turn);
                const double h = (s * r - s * r * inX) / (inZ - s * slope * inX);
                x[k] = s * (r - slope * h);
                z[k] = y + h;
            }
            const double onAxis = z[0] - x[0] * (z[1] - z[0]) / (x[1] - x[0]);
            EXPECT_NEAR(tapered::MitreHeight(cone, y, tilt), onAxis, 1e-9) << tilt << " " << y;
            EXPECT_NEAR((z[0] - z[1]) / (x[0] - x[1]), std::tan(tilt), 1e-12);
        }
    }
}

TEST(TaperedPiece, IsBuiltOnTheConeWithItsOwnSeam) {
    FittingInputs whole;
    whole.segs = 8;
    whole.HalfPattern = true;
    whole.JoinType = 1;
    whole.LapSize1 = 5;
    whole.JoinAngle = 0.5;
    whole.Dtype = 4;  // of the bend, not of the piece
    const CRightCone piece = tapered::PieceOf(tapered::ConeBetween(100, 40, 60), whole, 2);
    EXPECT_EQ(piece.BaseRad, 100);
    EXPECT_DOUBLE_EQ(piece.ConeAngle, std::numbers::pi / 4);
    EXPECT_EQ(piece.inputs.segs, 8);
    EXPECT_TRUE(piece.inputs.HalfPattern);
    EXPECT_EQ(piece.inputs.LapSize1, 5);
    EXPECT_EQ(piece.inputs.JoinAngle, 2);
    EXPECT_EQ(piece.inputs.Dtype, 0);
}

TEST(TaperedModel, SetsAPieceOnTheStationOppositeTheSeam) {
    const CRuleSurf piece = Strip({{0, 0, 10}, {1, 0, 10}, {2, 0, 10}, {3, 0, 10}, {4, 0, 10}},
                                  {{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}, {4, 0, 0}});
    for (const auto& [segs, x] : {std::pair{4, 2.0}, {3, 1.0}, {2, 1.0}, {1, 0.0}}) {
        tapered::JoinedModel model(segs);
        model.Add(piece, 0);
        model.Add(piece, std::numbers::pi / 2);
        ASSERT_EQ(model.Surfaces().Count(), 2U);
        EXPECT_TRUE(SamePoints(*model.Surfaces().Item(1).List1, *piece.List1));
        // A quarter turn takes +x to +z, and +z to -x.
        const CRuleSurf& second = model.Surfaces().Item(2);
        EXPECT_LT(Distance3D(second.List2->Item(1), {x, 0, 10}), 1e-12);
        EXPECT_LT(Distance3D(second.List2->Item(5), {x, 0, 14}), 1e-12);
        EXPECT_LT(Distance3D(second.List1->Item(1), {x - 10, 0, 10}), 1e-12);
    }
}

}  // namespace
}  // namespace korvet
