// The segmented bend against the geometry of its centre line: pieces are pipes about the tangents of the arc,
// every cut lies in a plane through the centre of the bend, and neighbours meet there at every station.
#include "fittings/bends/seg_bend_parallel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <tuple>
#include <vector>

#include "core/constants.h"
#include "core/math_module.h"
#include "tests/support/near.h"

namespace korvet {
namespace {

constexpr double Radius = 50;
constexpr double BendRadius = 120;

/// A quarter bend of five pieces, its seam at 0.
CSegBendParallel QuarterBend(std::int16_t gores = 4) {
    CSegBendParallel bend;
    bend.BaseRad = Radius;
    bend.BendRadius = BendRadius;
    bend.BendAngle = QuarterTurn;
    bend.BendSegments = gores;
    bend.Length1 = 70;
    bend.Length2 = 90;
    bend.KerfSpacing = 6;
    bend.inputs.segs = 12;
    bend.inputs.Miscellaneous = LayOutEveryPiece;
    return bend;
}

const CRuleSurf& Piece(const CSegBendParallel& bend, std::size_t number) {
    return bend.results.ModelSurfaceList.Item(number);
}

const CRuleSurf& Pattern(const CSegBendParallel& bend, std::size_t number) {
    return bend.results.PatternSurfaceList.Item(number);
}

/// Angle about the bend's centre, in its plane.
double BendAngleAt(const C3DPoint& point) {
    return std::atan2(point.z, point.x + BendRadius);
}

/// Whether every point of `ring` has its like in `other`.
bool IsPartOf(const C3DPoints& ring, const C3DPoints& other) {
    return std::all_of(ring.begin(), ring.end(), [&](const C3DPoint& point) {
        return std::any_of(other.begin(), other.end(),
                           [&](const C3DPoint& like) { return Distance3D(point, like) < 1e-8; });
    });
}

/// Distance from the axis of piece `number`: a tangent of the centre line at (number - 1) gores' angles.
double DistanceFromAxis(const C3DPoint& point, std::size_t number, double goreAngle) {
    const double turn = static_cast<double>(number - 1) * goreAngle;
    const double outward = (point.x + BendRadius) * std::cos(turn) + point.z * std::sin(turn);
    return std::hypot(outward - BendRadius, point.y);
}

TEST(SegBendModel, HasAPieceMoreThanCuts) {
    for (const int gores : {1, 2, 3, 4, 9}) {
        CSegBendParallel bend = QuarterBend(static_cast<std::int16_t>(gores));
        bend.ConstructModel();
        EXPECT_EQ(bend.results.ModelSurfaceList.Count(), static_cast<std::size_t>(gores + 1));
    }
}

TEST(SegBendModel, FirstPieceStandsOnItsAxis) {
    CSegBendParallel bend = QuarterBend();
    bend.ConstructModel();
    // A cut at 11.25 degrees from square, tan(11.25 degrees) * 120 above the plane of the bend's centre.
    for (const C3DPoint& point : *Piece(bend, 1).List2) {
        EXPECT_NEAR(point.z, -70, Near);
        EXPECT_NEAR(std::hypot(point.x, point.y), Radius, Near);
    }
    for (const C3DPoint& point : *Piece(bend, 1).List1) {
        EXPECT_NEAR(point.z, 0.198912367379658 * (120 + point.x), Near);
    }
}

TEST(SegBendModel, LastPieceEndsSquareBeyondTheBend) {
    CSegBendParallel bend = QuarterBend();
    bend.ConstructModel();
    // After a quarter turn towards -x the pipe runs along -x, 120 above the centre, 90 beyond it.
    const C3DPoints& end = *Piece(bend, 5).List1;
    ASSERT_EQ(end.Count(), 25U);
    for (const C3DPoint& point : end) {
        EXPECT_NEAR(point.x, -BendRadius - 90, Near);
        EXPECT_NEAR(std::hypot(point.z - BendRadius, point.y), Radius, Near);
    }
}

/// Number of cuts, and whether half patterns are made.
class BendShapes : public testing::TestWithParam<std::tuple<int, bool>> {
  protected:
    /// Bends of several angles, numbers of segments and seams.
    static std::vector<CSegBendParallel> Bends() {
        const auto [gores, half] = GetParam();
        std::vector<CSegBendParallel> bends;
        for (const double degrees : {30.0, 90.0, 145.0}) {
            for (const int segs : {1, 5, 12}) {
                for (const double seam : {0.0, 33.0, 90.0}) {
                    CSegBendParallel bend = QuarterBend(static_cast<std::int16_t>(gores));
                    bend.BendAngle = DegToRad(degrees);
                    bend.inputs.segs = segs;
                    bend.inputs.JoinAngle = DegToRad(seam);
                    bend.inputs.HalfPattern = half;
                    bends.push_back(bend);
                }
            }
        }
        return bends;
    }
};

TEST_P(BendShapes, PiecesLieOnPipesAlongTheBend) {
    for (CSegBendParallel bend : Bends()) {
        bend.ConstructModel();
        const double g = bend.BendAngle / bend.BendSegments;
        for (std::size_t i = 1; i <= bend.results.ModelSurfaceList.Count(); ++i) {
            for (const PointList& ring : {Piece(bend, i).List1, Piece(bend, i).List2}) {
                for (const C3DPoint& point : *ring) {
                    EXPECT_NEAR(DistanceFromAxis(point, i, g), Radius, 1e-8);
                }
            }
        }
    }
}

TEST_P(BendShapes, CutsLieInPlanesThroughTheCentre) {
    for (CSegBendParallel bend : Bends()) {
        bend.ConstructModel();
        const double g = bend.BendAngle / bend.BendSegments;
        for (std::size_t cut = 1; cut < bend.results.ModelSurfaceList.Count(); ++cut) {
            const double angle = (static_cast<double>(cut) - 0.5) * g;
            for (const PointList& ring : {Piece(bend, cut).List1, Piece(bend, cut + 1).List2}) {
                for (const C3DPoint& point : *ring) {
                    EXPECT_NEAR(std::remainder(BendAngleAt(point) - angle, 2 * PI), 0, 1e-9);
                }
            }
        }
    }
}

/// The halves of a half pattern alternate like the seams, so that two neighbours together make up the whole
/// ring, and share its two ends.
TEST_P(BendShapes, NeighboursMeetAtEveryStation) {
    for (CSegBendParallel bend : Bends()) {
        bend.ConstructModel();
        CSegBendParallel whole = bend;
        whole.inputs.HalfPattern = false;
        whole.ConstructModel();
        const auto rings = static_cast<std::size_t>(bend.inputs.segs);
        for (std::size_t cut = 1; cut < bend.results.ModelSurfaceList.Count(); ++cut) {
            const C3DPoints& last = *Piece(bend, cut).List1;
            const C3DPoints& first = *Piece(bend, cut + 1).List2;
            if (!bend.inputs.HalfPattern) {
                ASSERT_EQ(last.Count(), 2 * rings + 1);
                EXPECT_TRUE(IsPartOf(last, first)) << cut;
                EXPECT_TRUE(IsPartOf(first, last)) << cut;
                continue;
            }
            ASSERT_EQ(last.Count(), rings + 1);
            ASSERT_EQ(first.Count(), rings + 1);
            EXPECT_LT(Distance3D(last.Item(1), first.Item(rings + 1)), 1e-8);
            EXPECT_LT(Distance3D(last.Item(rings + 1), first.Item(1)), 1e-8);
            C3DPoints both = last;
            for (const C3DPoint& point : first) {
                both.Add(point);
            }
            const C3DPoints& ring = *Piece(whole, cut).List1;
            EXPECT_TRUE(IsPartOf(ring, both)) << cut;
            EXPECT_TRUE(IsPartOf(both, ring)) << cut;
        }
    }
}

/// The seam of a piece and that of the next lie on opposite sides of the pipe.
TEST_P(BendShapes, SeamSwingsHalfATurnFromPieceToPiece) {
    for (CSegBendParallel bend : Bends()) {
        bend.ConstructModel();
        const std::size_t half = static_cast<std::size_t>(bend.inputs.segs) + 1;
        for (std::size_t cut = 1; cut < bend.results.ModelSurfaceList.Count(); ++cut) {
            const C3DPoint& seam = Piece(bend, cut).List1->Item(1);
            EXPECT_LT(Distance3D(seam, Piece(bend, cut + 1).List2->Item(half)), 1e-8);
            EXPECT_GT(Distance3D(seam, Piece(bend, cut + 1).List2->Item(1)), 2 * Radius - 1e-8);
        }
    }
}

TEST_P(BendShapes, NeighbouringCutsOfTheLayoutRunParallelAtTheKerf) {
    for (CSegBendParallel bend : Bends()) {
        bend.DevelopModel();
        const std::size_t count = bend.results.PatternSurfaceList.Count();
        ASSERT_EQ(count, bend.results.ModelSurfaceList.Count());
        for (std::size_t i = 1; i < count; ++i) {
            const C3DPoints& below = *Pattern(bend, i).List1;
            const C3DPoints& above = *Pattern(bend, i + 1).List2;
            ASSERT_EQ(below.Count(), above.Count());
            for (std::size_t k = 1; k <= below.Count(); ++k) {
                EXPECT_NEAR(above.Item(k).x, below.Item(k).x, 1e-8);
                EXPECT_NEAR(above.Item(k).y, below.Item(k).y + 6, 1e-8);
            }
        }
    }
}

TEST_P(BendShapes, PatternsKeepTheRulingsOfTheModel) {
    for (CSegBendParallel bend : Bends()) {
        bend.DevelopModel();
        const double width = (bend.inputs.HalfPattern ? 1 : 2) * PI * Radius;
        for (std::size_t i = 1; i <= bend.results.PatternSurfaceList.Count(); ++i) {
            const CRuleSurf& model = Piece(bend, i);
            const CRuleSurf& flat = Pattern(bend, i);
            ASSERT_EQ(flat.List1->Count(), model.List1->Count());
            EXPECT_EQ(flat.List1->Item(1).x, 0);
            EXPECT_NEAR(flat.List1->Last().x, width, 1e-9);
            for (std::size_t k = 1; k <= flat.List1->Count(); ++k) {
                EXPECT_EQ(flat.List1->Item(k).x, flat.List2->Item(k).x);
                EXPECT_NEAR(flat.List1->Item(k).y - flat.List2->Item(k).y,
                            Distance3D(model.List1->Item(k), model.List2->Item(k)), 1e-8);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, BendShapes, testing::Combine(testing::Values(1, 2, 4, 7), testing::Bool()));

TEST(SegBendModel, TwoPiecesMeetInOneCutOfHalfTheAngle) {
    CSegBendParallel bend = QuarterBend(1);
    bend.ConstructModel();
    ASSERT_EQ(bend.results.ModelSurfaceList.Count(), 2U);
    for (const C3DPoint& point : *Piece(bend, 1).List1) {
        EXPECT_NEAR(point.z, 120 + point.x, Near);  // 45 degrees
    }
}

TEST(SegBendModel, AWholeTurnComesBackToItsStart) {
    CSegBendParallel bend = QuarterBend(12);
    bend.BendAngle = DegToRad(360);
    bend.Length1 = bend.Length2 = 0;
    bend.ConstructModel();
    EXPECT_TRUE(IsPartOf(*Piece(bend, 13).List1, *Piece(bend, 1).List2));
}

TEST(SegBendModel, BuildsStartFromNothing) {
    CSegBendParallel bend = QuarterBend();
    bend.DevelopModel();
    const C3DPoint seam = Piece(bend, 1).List2->Item(1);
    bend.DevelopModel();
    EXPECT_EQ(bend.results.ModelSurfaceList.Count(), 5U);
    EXPECT_EQ(bend.results.PatternSurfaceList.Count(), 5U);
    EXPECT_EQ(Distance3D(seam, Piece(bend, 1).List2->Item(1)), 0);
    EXPECT_EQ(bend.inputs.JoinAngle, 0);
}

TEST(SegBendLayout, FullPatternHasEveryPiece) {
    CSegBendParallel bend = QuarterBend();
    bend.DevelopModel();
    EXPECT_EQ(bend.results.PatternSurfaceList.Count(), 5U);
    EXPECT_EQ(bend.results.ModelSurfaceList.Count(), 5U);
}

TEST(SegBendLayout, OtherwiseFirstLastAndOneBetween) {
    for (const int choice : {0, 2, 3}) {
        CSegBendParallel bend = QuarterBend();
        bend.DevelopModel();
        const C3DPoint first = Pattern(bend, 1).List1->Item(4);
        const C3DPoint middle = Pattern(bend, 2).List1->Item(4);
        bend.inputs.Miscellaneous = static_cast<std::int16_t>(choice);
        bend.DevelopModel();
        ASSERT_EQ(bend.results.PatternSurfaceList.Count(), 3U) << choice;
        EXPECT_EQ(bend.results.ModelSurfaceList.Count(), 5U);
        EXPECT_EQ(Distance3D(Pattern(bend, 1).List1->Item(4), first), 0);
        EXPECT_EQ(Distance3D(Pattern(bend, 2).List1->Item(4), middle), 0);
        // The last one: square at the top, its seam inside again as that of the first.
        EXPECT_NEAR(Pattern(bend, 3).List1->Item(9).y, Pattern(bend, 3).List1->Item(1).y, Near);
    }
}

// A bend of two pieces has no piece between them, but this layout has: one cut at 45 degrees at both ends,
// 2 * 120 long on its axis.
TEST(SegBendLayout, TwoPiecesAndOneBetween) {
    CSegBendParallel bend = QuarterBend(1);
    bend.inputs.Miscellaneous = 2;
    bend.DevelopModel();
    EXPECT_EQ(bend.results.ModelSurfaceList.Count(), 2U);
    ASSERT_EQ(bend.results.PatternSurfaceList.Count(), 3U);
    const CRuleSurf& between = Pattern(bend, 2);
    // Its seam lies on the inside, where it is 2 * (120 - 50) long; opposite it is 2 * (120 + 50).
    EXPECT_NEAR(between.List1->Item(1).y - between.List2->Item(1).y, 140, Near);
    EXPECT_NEAR(between.List1->Item(13).y - between.List2->Item(13).y, 340, Near);
    bend.inputs.Miscellaneous = LayOutEveryPiece;
    bend.DevelopModel();
    EXPECT_EQ(bend.results.PatternSurfaceList.Count(), 2U);
}

TEST(SegBendLayout, GapsDoNotDependOnTheEnds) {
    for (const double length : {0.0, 70.0, 500.0}) {
        CSegBendParallel bend = QuarterBend();
        bend.Length1 = length;
        bend.Length2 = 2 * length;
        bend.DevelopModel();
        EXPECT_NEAR(Pattern(bend, 1).List2->Item(1).y, -length, Near);
        // Middles of the gores are 2 h + 6 apart, with h = tan(11.25 degrees) * 120 = 23.869484.
        for (std::size_t i = 2; i <= 4; ++i) {
            const CRuleSurf& gore = Pattern(bend, i);
            const double middle = (gore.List1->Item(1).y + gore.List2->Item(1).y) / 2;
            EXPECT_NEAR(middle, static_cast<double>(i - 1) * 53.73896817111792, 1e-9);
        }
        EXPECT_NEAR(Pattern(bend, 5).List1->Item(1).y, 4 * 53.73896817111792 + 2 * length, 1e-9);
    }
}

TEST(SegBendLayout, TemplatesWrapRoundTheOutside) {
    CSegBendParallel bend = QuarterBend();
    bend.Thickness = 4;
    bend.DevelopModel();
    EXPECT_NEAR(Pattern(bend, 3).List1->Last().x, 2 * PI * 50, Near);
    bend.TemplateType = 1;
    bend.DevelopModel();
    for (const CRuleSurf& pattern : bend.results.PatternSurfaceList) {
        EXPECT_NEAR(pattern.List1->Last().x, 2 * PI * 52, Near);
    }
}

TEST(SegBendLayout, EveryPieceTakesTheLaps) {
    CSegBendParallel bend = QuarterBend();
    bend.inputs.JoinType = 1;
    bend.inputs.LapSize1 = 15;
    bend.DevelopModel();
    for (const CRuleSurf& pattern : bend.results.PatternSurfaceList) {
        ASSERT_EQ(pattern.List1->Count(), 26U);
        EXPECT_EQ(pattern.List1->Last().Flag, LapClosure);
        EXPECT_NEAR(pattern.List1->Last().x, 2 * PI * 50 + 15, Near);
    }
    EXPECT_EQ(Piece(bend, 2).List1->Count(), 25U);
}

TEST(SegBendModel, ABendWithoutAWallIsAnError) {
    CSegBendParallel bend = QuarterBend();
    bend.BaseRad = 0;
    EXPECT_THROW(bend.ConstructModel(), ArithmeticError);
}

TEST(SegBendModel, ACutTurnsByLessThanHalfATurn) {
    for (const auto& [degrees, gores] : {std::pair{180.0, 1}, {270.0, 1}, {360.0, 1}, {360.0, 2}}) {
        CSegBendParallel bend = QuarterBend(static_cast<std::int16_t>(gores));
        bend.BendAngle = DegToRad(degrees);
        EXPECT_THROW(bend.ConstructModel(), ArithmeticError) << degrees << " in " << gores;
        bend.BendAngle = DegToRad(degrees - 181);
        EXPECT_NO_THROW(bend.ConstructModel());
    }
}

TEST(SegBendLayout, StaysWithinReach) {
    const auto bend = std::make_shared<CSegBendParallel>(QuarterBend());
    const FittingHandle fitting(bend);
    bend->KerfSpacing = 0.3e9;
    EXPECT_NO_THROW(fitting.ConstructModel());
    EXPECT_THROW(fitting.DevelopModel(), ArithmeticError);
    bend->inputs.Miscellaneous = 0;  // three pieces instead of five
    EXPECT_NO_THROW(fitting.DevelopModel());
}

TEST(SegBendModel, ABendWithoutCutsIsAnError) {
    CSegBendParallel bend = QuarterBend(0);
    EXPECT_THROW(bend.ConstructModel(), ArithmeticError);
}

}  // namespace
}  // namespace korvet
