// The tapered bend against the geometry of its centre line: that is made of tangents to the arc of the bend,
// and as far as one has come along it, so far has the diameter shrunk. How high the mitres cut the straight
// cone is not asked here: only whether what comes of it fits together.
#include "fittings/bends/seg_bend_tapered.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <tuple>
#include <vector>

#include "core/checked.h"
#include "core/constants.h"
#include "tests/fittings/bends/tapered_reading.h"

namespace korvet::tapered_bend_test {
namespace {

constexpr double Big = 120;
constexpr double Small = 70;
constexpr double BendRadius = 320;
constexpr double Near = 1e-9 * (Big + BendRadius);

/// By degrees and number of pieces, its seam at 0.
CSegBendTapered Bend(double degrees = 90, int pieces = 5, int segs = 12) {
    CSegBendTapered bend;
    bend.BigRad = Big;
    bend.SmallRad = Small;
    bend.BendRadius = BendRadius;
    bend.BendAngle = DegToRad(degrees);
    bend.BendSegments = static_cast<std::int16_t>(pieces);
    bend.inputs.segs = segs;
    return bend;
}

const CRuleSurf& Piece(const CSegBendTapered& bend, std::size_t number) {
    return bend.results.ModelSurfaceList.Item(number);
}

const CRuleSurf& Pattern(const CSegBendTapered& bend, std::size_t number) {
    return bend.results.PatternSurfaceList.Item(number);
}

/// Half the angle by which the bend turns at a cut.
double HalfTurn(const CSegBendTapered& bend) {
    return bend.BendAngle / (2.0 * (bend.BendSegments - 1));
}

/// The centre line of a piece, from 1: a tangent of the arc, which is touched every two half tangents.
CentreLineOfPiece LineOf(const CSegBendTapered& bend, std::size_t number) {
    const double pieces = static_cast<double>(number - 1);
    const double turn = pieces * 2 * HalfTurn(bend);
    return {BendRadius * (std::cos(turn) - 1), BendRadius * std::sin(turn),
            pieces * 2 * std::tan(HalfTurn(bend)) * BendRadius, turn};
}

double LengthOf(const CSegBendTapered& bend) {
    return LineOf(bend, static_cast<std::size_t>(bend.BendSegments)).along;
}

double SinHalfAngle(const CSegBendTapered& bend) {
    return (Big - Small) / std::hypot(Big - Small, LengthOf(bend));
}

/// Degrees, pieces and fold lines.
class TaperedBends : public testing::TestWithParam<std::tuple<double, int, int>> {
  protected:
    [[nodiscard]] static CSegBendTapered Shape() {
        const auto [degrees, pieces, segs] = GetParam();
        return Bend(degrees, pieces, segs);
    }

    /// How far off the place a piece may be at most: with an odd number of segs each of the pieces before it
    /// was joined half a step beside the station opposite the seam.
    [[nodiscard]] static double Tolerance(const CSegBendTapered& bend) {
        const double step = 2 * std::numbers::pi * Big / bend.inputs.segs;
        return bend.inputs.segs % 2 == 0 ? Near : step * (bend.BendSegments - 1);
    }
};

TEST_P(TaperedBends, DiameterShrinksAlongTheCentreLine) {
    CSegBendTapered bend = Shape();
    bend.ConstructModel();
    ASSERT_EQ(bend.results.ModelSurfaceList.Count(), static_cast<std::size_t>(bend.BendSegments));
    const double slope = (Big - Small) / LengthOf(bend);
    for (std::size_t i = 1; i <= bend.results.ModelSurfaceList.Count(); ++i) {
        const CentreLineOfPiece line = LineOf(bend, i);
        for (const PointList& edge : {Piece(bend, i).List1, Piece(bend, i).List2}) {
            ASSERT_EQ(edge->Count(), static_cast<std::size_t>(bend.inputs.segs) + 1);
            for (const C3DPoint& p : *edge) {
                EXPECT_NEAR(OffCentreLine(p, line), Big - AlongCentreLine(p, line) * slope, Tolerance(bend))
                    << i;
            }
        }
    }
}

/// Half way between the directions of both pieces.
TEST_P(TaperedBends, CutsLieSquareToTheirMitre) {
    CSegBendTapered bend = Shape();
    bend.ConstructModel();
    for (std::size_t i = 1; i < bend.results.ModelSurfaceList.Count(); ++i) {
        const double turn = LineOf(bend, i).turn + HalfTurn(bend);
        const C3DPoint& start = Piece(bend, i).List1->Item(1);
        for (const PointList& edge : {Piece(bend, i).List1, Piece(bend, i + 1).List2}) {
            for (const C3DPoint& p : *edge) {
                const double off = (p.z - start.z) * std::cos(turn) - (p.x - start.x) * std::sin(turn);
                EXPECT_NEAR(off, 0, bend.inputs.segs % 2 == 0 ? Near : Tolerance(bend)) << i;
            }
        }
    }
}

TEST_P(TaperedBends, EndsAreTheTypedCircles) {
    CSegBendTapered bend = Shape();
    bend.ConstructModel();
    for (const C3DPoint& p : *Piece(bend, 1).List2) {
        EXPECT_NEAR(p.z, 0, Near);
        EXPECT_NEAR(std::hypot(p.x, p.y), Big, Near);
    }
    const auto last = static_cast<std::size_t>(bend.BendSegments);
    const CentreLineOfPiece line = LineOf(bend, last);
    for (const C3DPoint& p : *Piece(bend, last).List1) {
        EXPECT_NEAR(AlongCentreLine(p, line), LengthOf(bend), Tolerance(bend));
        EXPECT_NEAR(OffCentreLine(p, line), Small, Tolerance(bend));
    }
}

/// A piece is joined at its seam, half a turn from the seam before.
TEST_P(TaperedBends, NeighboursMeetAtTheSeamAndOppositeToIt) {
    CSegBendTapered bend = Shape();
    bend.ConstructModel();
    const std::size_t opposite = static_cast<std::size_t>(bend.inputs.segs) / 2 + 1;
    for (std::size_t i = 1; i < bend.results.ModelSurfaceList.Count(); ++i) {
        const C3DPoints& before = *Piece(bend, i).List1;
        const C3DPoints& after = *Piece(bend, i + 1).List2;
        EXPECT_LT(Distance3D(before.Item(opposite), after.Item(1)), Near);
        if (bend.inputs.segs % 2 == 0) {
            EXPECT_LT(Distance3D(before.Item(1), after.Item(opposite)), Near);
        }
    }
}

/// The stations of both cuts are points of one ellipse, at other places of it: between them lies no more than
/// the sagitta of a step, which falls with the square of the number of segs. With an odd number the cuts are
/// a step apart at most.
TEST_P(TaperedBends, CutsAreOneEllipse) {
    for (const int finer : {1, 4, 16}) {
        CSegBendTapered bend = Shape();
        bend.inputs.segs *= finer;
        bend.ConstructModel();
        const bool even = bend.inputs.segs % 2 == 0;
        for (std::size_t i = 1; i < bend.results.ModelSurfaceList.Count(); ++i) {
            const C3DPoints& before = *Piece(bend, i).List1;
            const C3DPoints& after = *Piece(bend, i + 1).List2;
            const double allowed =
                even ? 1.01 * SagittaOfEllipse(before) : 2 * std::numbers::pi * Big / bend.inputs.segs;
            EXPECT_LT(LargestGap(before, after), allowed) << i << " " << finer;
            EXPECT_LT(LargestGap(after, before), allowed) << i << " " << finer;
        }
    }
}

/// Halves begin and end in the plane of the bend, on alternate sides of it.
TEST_P(TaperedBends, HalvesAlternateAndMeetAtTheirEnds) {
    CSegBendTapered bend = Shape();
    bend.inputs.HalfPattern = true;
    bend.ConstructModel();
    const std::size_t kept = (static_cast<std::size_t>(bend.inputs.segs) + 1) / 2 + 1;
    const bool even = bend.inputs.segs % 2 == 0;
    for (std::size_t i = 1; i <= bend.results.ModelSurfaceList.Count(); ++i) {
        const C3DPoints& before = *Piece(bend, i).List1;
        ASSERT_EQ(before.Count(), kept);
        for (std::size_t k = 1; k <= kept && even; ++k) {
            EXPECT_GT((i % 2 == 1 ? 1 : -1) * before.Item(k).y, -Near);
        }
        if (i < bend.results.ModelSurfaceList.Count() && even) {
            EXPECT_LT(Distance3D(before.Last(), Piece(bend, i + 1).List2->Item(1)), Near);
            EXPECT_LT(Distance3D(before.Item(1), Piece(bend, i + 1).List2->Last()), Near);
        }
    }
}

TEST_P(TaperedBends, PatternsAreTheStraightConeCutUp) {
    CSegBendTapered bend = Shape();
    bend.DevelopModel();
    ExpectNested(bend.results.PatternSurfaceList, Near);
    const double sine = SinHalfAngle(bend);
    for (const CRuleSurf& pattern : bend.results.PatternSurfaceList) {
        ExpectSectorOfCone(pattern, sine, 1e-9);
        ASSERT_TRUE(pattern.RefPoint);
        EXPECT_LT(Distance3D(*pattern.RefPoint, {}), Near);
    }
    // From one end of the cone to the other, by the radii over the sine.
    for (std::size_t k = 1; k <= Pattern(bend, 1).List2->Count(); ++k) {
        EXPECT_NEAR(Distance3D({}, Pattern(bend, 1).List2->Item(k)), Big / sine, Near);
        const auto last = static_cast<std::size_t>(bend.BendSegments);
        EXPECT_NEAR(Distance3D({}, Pattern(bend, last).List1->Item(k)), Small / sine, Near);
    }
}

/// Cut open on the other side, the pieces are those of the model: each ruling has the length of the one half
/// a turn on.
TEST_P(TaperedBends, PatternsHaveTheRulingsOfTheModel) {
    CSegBendTapered bend = Shape();
    if (bend.inputs.segs % 2 != 0) {
        return;
    }
    bend.DevelopModel();
    const std::size_t half = static_cast<std::size_t>(bend.inputs.segs) / 2;
    for (std::size_t i = 1; i <= bend.results.PatternSurfaceList.Count(); ++i) {
        const CRuleSurf& model = Piece(bend, i);
        const CRuleSurf& flat = Pattern(bend, i);
        for (std::size_t k = 1; k <= half + 1; ++k) {
            EXPECT_NEAR(Distance3D(flat.List1->Item(k), flat.List2->Item(k)),
                        Distance3D(model.List1->Item(k + half), model.List2->Item(k + half)), Near);
        }
    }
}

TEST_P(TaperedBends, AreasOfThePatternsAddUpToTheCone) {
    CSegBendTapered bend = Shape();
    const double area = FrustumArea(Big, Small, LengthOf(bend));
    const auto missing = [&](int segs) {
        bend.inputs.segs = segs;
        bend.DevelopModel();
        return std::fabs(FlatArea(bend.results.PatternSurfaceList) / area - 1);
    };
    const double coarse = missing(24);
    EXPECT_LT(coarse, 0.01);
    EXPECT_LT(missing(48), coarse / 3.9);
    EXPECT_LT(missing(96), coarse / 15);
}

INSTANTIATE_TEST_SUITE_P(All, TaperedBends,
                         testing::Combine(testing::Values(25.0, 90.0, 150.0), testing::Values(2, 3, 5, 8),
                                          testing::Values(4, 12, 13, 24)));

TEST(TaperedBendLayout, KerfPartsThePatternsAlongTheirMiddleRulings) {
    CSegBendTapered close = Bend();
    CSegBendTapered apart = Bend();
    apart.KerfSpacing = 6;
    close.DevelopModel();
    apart.DevelopModel();
    // All middle rulings lie on one ray, half the sector on; each piece slides on towards the apex, the first
    // one too.
    const double ray = std::numbers::pi * SinHalfAngle(close);
    for (std::size_t i = 1; i <= 5; ++i) {
        const double by = 6.0 * static_cast<double>(i);
        for (std::size_t k = 1; k <= 13; ++k) {
            const C3DPoint& from = Pattern(close, i).List1->Item(k);
            const C3DPoint& to = Pattern(apart, i).List1->Item(k);
            EXPECT_NEAR(to.x, from.x - by * std::cos(ray), Near);
            EXPECT_NEAR(to.y, from.y - by * std::sin(ray), Near);
        }
    }
}

/// The middle ruling of a half is that of its own stations.
TEST(TaperedBendLayout, HalvesArePartedAlongTheMiddleOfTheHalf) {
    CSegBendTapered bend = Bend();
    bend.inputs.HalfPattern = true;
    bend.KerfSpacing = 10;
    bend.DevelopModel();
    ASSERT_EQ(Pattern(bend, 1).List1->Count(), 7U);
    const double ray = std::numbers::pi / 2 * SinHalfAngle(bend);  // the fourth of seven stations
    EXPECT_NEAR(Pattern(bend, 1).RefPoint->x, -10 * std::cos(ray), Near);
    EXPECT_NEAR(Pattern(bend, 1).RefPoint->y, -10 * std::sin(ray), Near);
}

/// The middle is counted without the tab, so that a lap moves nothing.
TEST(TaperedBendLayout, EveryPieceTakesTheLap) {
    CSegBendTapered plain = Bend();
    plain.KerfSpacing = 6;
    CSegBendTapered lapped = plain;
    lapped.inputs.JoinType = 1;
    lapped.inputs.LapSize1 = 15;
    plain.DevelopModel();
    lapped.DevelopModel();
    for (std::size_t i = 1; i <= 5; ++i) {
        const C3DPoints& edge = *Pattern(lapped, i).List1;
        ASSERT_EQ(edge.Count(), 14U);
        EXPECT_NEAR(Distance3D(edge.Item(13), edge.Item(14)), 15, Near);
        for (std::size_t k = 1; k <= 13; ++k) {
            EXPECT_LT(Distance3D(edge.Item(k), Pattern(plain, i).List1->Item(k)), Near);
        }
    }
    EXPECT_EQ(Piece(lapped, 1).List1->Count(), 13U);
}

/// A lap of more than the sector leaves, told by each of the pieces.
TEST(TaperedBendLayout, TakesOverTheWarningsOfItsPieces) {
    CSegBendTapered bend = Bend();
    bend.inputs.JoinType = 1;
    bend.inputs.LapSize0 = 2000;
    bend.DevelopModel();
    ASSERT_EQ(bend.results.warnings.size(), 5U);
    for (const FittingWarning& warning : bend.results.warnings) {
        EXPECT_EQ(warning.messageId, TopLapTooLarge);
    }
}

/// On the throat the first piece of the pattern is shorter than on its back: there is its seam. The model
/// shows it on the back.
TEST(TaperedBendLayout, SeamsOfThePatternStartAtTheThroat) {
    CSegBendTapered bend = Bend();
    bend.DevelopModel();
    const auto ruling = [](const CRuleSurf& piece, std::size_t k) {
        return Distance3D(piece.List1->Item(k), piece.List2->Item(k));
    };
    for (const std::size_t i : {1U, 2U, 3U, 4U, 5U}) {
        EXPECT_EQ(ruling(Pattern(bend, i), 1) < ruling(Pattern(bend, i), 7), i % 2 == 1) << i;
        EXPECT_EQ(ruling(Piece(bend, i), 1) > ruling(Piece(bend, i), 7), i % 2 == 1) << i;
    }
}

TEST(TaperedBendModel, BuildsStartFromNothing) {
    CSegBendTapered bend = Bend();
    bend.DevelopModel();
    const C3DPoint seam = Piece(bend, 2).List2->Item(1);
    bend.DevelopModel();
    EXPECT_EQ(bend.results.ModelSurfaceList.Count(), 5U);
    EXPECT_EQ(bend.results.PatternSurfaceList.Count(), 5U);
    EXPECT_TRUE(Same(seam, Piece(bend, 2).List2->Item(1)));
    EXPECT_EQ(bend.inputs.JoinAngle, 0);
}

TEST(TaperedBendShape, ACutTurnsByLessThanHalfATurn) {
    for (const auto& [degrees, pieces] : {std::pair{180.0, 2}, {270.0, 2}, {360.0, 3}, {400.0, 3}}) {
        EXPECT_THROW(Bend(degrees, pieces).ConstructModel(), ArithmeticError) << degrees << " in " << pieces;
        EXPECT_THROW(Bend(degrees, pieces).DevelopModel(), ArithmeticError);
        EXPECT_NO_THROW(Bend(179 * (pieces - 1), pieces).DevelopModel());
    }
    EXPECT_NO_THROW(Bend(720, 9).DevelopModel());
}

TEST(TaperedBendShape, NeedsAHeightForItsTaper) {
    EXPECT_THROW(Bend(1e-14).ConstructModel(), ArithmeticError);
    EXPECT_NO_THROW(Bend(1e-6).ConstructModel());
    EXPECT_THROW(Bend(90, 1).ConstructModel(), ArithmeticError);
}

}  // namespace
}  // namespace korvet::tapered_bend_test
