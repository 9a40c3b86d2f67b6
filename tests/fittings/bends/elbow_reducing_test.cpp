// The reducing elbow against the geometry of its centre lines: as far as one has come along them, so far has
// the diameter shrunk, and the mitre halves the angle between them.
#include "fittings/bends/elbow_reducing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <tuple>

#include "core/constants.h"
#include "tests/fittings/bends/tapered_reading.h"

namespace korvet::reducing_elbow_test {
namespace {

constexpr double Big = 110;
constexpr double Small = 65;
constexpr double Length1 = 310;
constexpr double Length2 = 250;
constexpr double Slope = (Big - Small) / (Length1 + Length2);
constexpr double Near = 1e-9 * (Length1 + Length2);

/// With so many degrees between its legs and its seam at 0.
CElbowReducing Elbow(double degrees = 120, int segs = 12) {
    CElbowReducing elbow;
    elbow.BigRad = Big;
    elbow.SmallRad = Small;
    elbow.Length1 = Length1;
    elbow.Length2 = Length2;
    elbow.BendAngle = -DegToRad(degrees);
    elbow.inputs.segs = segs;
    return elbow;
}

const CRuleSurf& Piece(const CElbowReducing& elbow, std::size_t number) {
    return elbow.results.ModelSurfaceList.Item(number);
}

const CRuleSurf& Pattern(const CElbowReducing& elbow, std::size_t number) {
    return elbow.results.PatternSurfaceList.Item(number);
}

/// What the second leg turns by, towards +x.
double Turn(const CElbowReducing& elbow) {
    return std::numbers::pi + elbow.BendAngle;
}

/// Both legs, told from where they meet.
CentreLineOfPiece LineOf(const CElbowReducing& elbow, std::size_t number) {
    return {0, Length1, Length1, number == 1 ? 0 : -Turn(elbow)};
}

double SinHalfAngle() {
    return (Big - Small) / std::hypot(Big - Small, Length1 + Length2);
}

/// Degrees between the legs, and fold lines.
class ReducingElbows : public testing::TestWithParam<std::tuple<double, int>> {
  protected:
    [[nodiscard]] static CElbowReducing Shape() {
        const auto [degrees, segs] = GetParam();
        return Elbow(degrees, segs);
    }

    [[nodiscard]] static bool Even() { return std::get<1>(GetParam()) % 2 == 0; }

    /// With an odd number of segs the second piece is joined half a step beside the station opposite the
    /// seam.
    [[nodiscard]] static double Tolerance(std::size_t piece) {
        return piece == 1 || Even() ? Near : 2 * std::numbers::pi * Big / std::get<1>(GetParam());
    }
};

TEST_P(ReducingElbows, DiameterShrinksAlongTheCentreLines) {
    CElbowReducing elbow = Shape();
    elbow.ConstructModel();
    ASSERT_EQ(elbow.results.ModelSurfaceList.Count(), 2U);
    for (const std::size_t i : {1U, 2U}) {
        const CentreLineOfPiece line = LineOf(elbow, i);
        for (const PointList& edge : {Piece(elbow, i).List1, Piece(elbow, i).List2}) {
            ASSERT_EQ(edge->Count(), static_cast<std::size_t>(elbow.inputs.segs) + 1);
            for (const C3DPoint& p : *edge) {
                EXPECT_NEAR(OffCentreLine(p, line), Big - AlongCentreLine(p, line) * Slope, Tolerance(i))
                    << i;
            }
        }
    }
}

TEST_P(ReducingElbows, EndsAreTheTypedCircles) {
    CElbowReducing elbow = Shape();
    elbow.ConstructModel();
    for (const C3DPoint& p : *Piece(elbow, 1).List2) {
        EXPECT_NEAR(p.z, 0, Near);
        EXPECT_NEAR(std::hypot(p.x, p.y), Big, Near);
    }
    for (const C3DPoint& p : *Piece(elbow, 2).List1) {
        EXPECT_NEAR(AlongCentreLine(p, LineOf(elbow, 2)), Length1 + Length2, Tolerance(2));
        EXPECT_NEAR(OffCentreLine(p, LineOf(elbow, 2)), Small, Tolerance(2));
    }
}

/// Its normal goes half way between the legs.
TEST_P(ReducingElbows, MitreHalvesTheAngle) {
    CElbowReducing elbow = Shape();
    elbow.ConstructModel();
    const double half = Turn(elbow) / 2;
    const C3DPoint& start = Piece(elbow, 1).List1->Item(1);
    for (const C3DPoint& p : *Piece(elbow, 1).List1) {
        EXPECT_NEAR((p.x - start.x) * std::sin(half) + (p.z - start.z) * std::cos(half), 0, Near);
    }
    for (const C3DPoint& p : *Piece(elbow, 2).List2) {
        EXPECT_NEAR((p.x - start.x) * std::sin(half) + (p.z - start.z) * std::cos(half), 0, Tolerance(2));
    }
}

TEST_P(ReducingElbows, PiecesMeetAtTheSeamAndOppositeToIt) {
    CElbowReducing elbow = Shape();
    elbow.ConstructModel();
    const std::size_t opposite = static_cast<std::size_t>(elbow.inputs.segs) / 2 + 1;
    EXPECT_LT(Distance3D(Piece(elbow, 1).List1->Item(opposite), Piece(elbow, 2).List2->Item(1)), Near);
    if (Even()) {
        EXPECT_LT(Distance3D(Piece(elbow, 1).List1->Item(1), Piece(elbow, 2).List2->Item(opposite)), Near);
    }
}

/// The stations of both cuts are points of one ellipse: between them lies no more than the sagitta of a step,
/// which falls with the square of the number of segs.
TEST_P(ReducingElbows, MitreIsOneEllipse) {
    for (const int finer : {1, 4, 16}) {
        CElbowReducing elbow = Shape();
        elbow.inputs.segs *= finer;
        elbow.ConstructModel();
        const C3DPoints& first = *Piece(elbow, 1).List1;
        const C3DPoints& second = *Piece(elbow, 2).List2;
        const double allowed = elbow.inputs.segs % 2 == 0 ? 1.01 * SagittaOfEllipse(first)
                                                          : 2 * std::numbers::pi * Big / elbow.inputs.segs;
        EXPECT_LT(LargestGap(first, second), allowed) << finer;
        EXPECT_LT(LargestGap(second, first), allowed) << finer;
    }
}

TEST_P(ReducingElbows, HalvesLieOnOppositeSidesAndMeetAtTheirEnds) {
    CElbowReducing elbow = Shape();
    elbow.inputs.HalfPattern = true;
    elbow.ConstructModel();
    const std::size_t kept = (static_cast<std::size_t>(elbow.inputs.segs) + 1) / 2 + 1;
    const C3DPoints& first = *Piece(elbow, 1).List1;
    const C3DPoints& second = *Piece(elbow, 2).List2;
    ASSERT_EQ(first.Count(), kept);
    ASSERT_EQ(second.Count(), kept);
    if (!Even()) {
        return;
    }
    EXPECT_LT(Distance3D(first.Last(), second.Item(1)), Near);
    EXPECT_LT(Distance3D(first.Item(1), second.Last()), Near);
    for (std::size_t k = 1; k <= kept; ++k) {
        EXPECT_GT(first.Item(k).y, -Near);
        EXPECT_LT(second.Item(k).y, Near);
    }
}

TEST_P(ReducingElbows, PatternsAreTheStraightConeCutInTwo) {
    CElbowReducing elbow = Shape();
    elbow.DevelopModel();
    ExpectNested(elbow.results.PatternSurfaceList, Near);
    const double sine = SinHalfAngle();
    for (const CRuleSurf& pattern : elbow.results.PatternSurfaceList) {
        ExpectSectorOfCone(pattern, sine, 1e-9);
        ASSERT_TRUE(pattern.RefPoint);
        EXPECT_LT(Distance3D(*pattern.RefPoint, {}), Near);
    }
    for (std::size_t k = 1; k <= Pattern(elbow, 1).List2->Count(); ++k) {
        EXPECT_NEAR(Distance3D({}, Pattern(elbow, 1).List2->Item(k)), Big / sine, Near);
        EXPECT_NEAR(Distance3D({}, Pattern(elbow, 2).List1->Item(k)), Small / sine, Near);
    }
}

TEST_P(ReducingElbows, PatternsHaveTheRulingsOfTheModel) {
    CElbowReducing elbow = Shape();
    elbow.DevelopModel();
    for (const std::size_t i : {1U, 2U}) {
        const CRuleSurf& model = Piece(elbow, i);
        const CRuleSurf& flat = Pattern(elbow, i);
        ASSERT_EQ(flat.List1->Count(), model.List1->Count());
        for (std::size_t k = 1; k <= flat.List1->Count(); ++k) {
            EXPECT_NEAR(Distance3D(flat.List1->Item(k), flat.List2->Item(k)),
                        Distance3D(model.List1->Item(k), model.List2->Item(k)), Near);
        }
    }
}

TEST_P(ReducingElbows, AreasOfThePatternsAddUpToTheCone) {
    CElbowReducing elbow = Shape();
    const double area = FrustumArea(Big, Small, Length1 + Length2);
    const auto missing = [&](int segs) {
        elbow.inputs.segs = segs;
        elbow.DevelopModel();
        return std::fabs(FlatArea(elbow.results.PatternSurfaceList) / area - 1);
    };
    const double coarse = missing(24);
    EXPECT_LT(coarse, 0.01);
    EXPECT_LT(missing(48), coarse / 3.9);
    EXPECT_LT(missing(96), coarse / 15);
}

INSTANTIATE_TEST_SUITE_P(All, ReducingElbows,
                         testing::Combine(testing::Values(90.0, 105.0, 120.0, 165.0),
                                          testing::Values(4, 12, 13, 24)));

/// The short side of the first piece is where its seam is, and that of the second lies opposite.
TEST(ReducingElbowModel, SeamsLieOnTheInsideAndTheOutside) {
    CElbowReducing elbow = Elbow();
    elbow.ConstructModel();
    EXPECT_GT(Piece(elbow, 1).List2->Item(1).x, Big - Near);
    EXPECT_LT(Piece(elbow, 1).List1->Item(1).z, Piece(elbow, 1).List1->Item(7).z);
    EXPECT_GT(Piece(elbow, 2).List1->Item(1).z, Piece(elbow, 2).List1->Item(7).z);
}

TEST(ReducingElbowLayout, KerfMovesTheSecondPatternTowardsTheApex) {
    CElbowReducing close = Elbow();
    CElbowReducing apart = Elbow();
    apart.KerfSpacing = 14;
    close.DevelopModel();
    apart.DevelopModel();
    const double ray = std::numbers::pi * SinHalfAngle();
    EXPECT_TRUE(SamePoints(*Pattern(close, 1).List1, *Pattern(apart, 1).List1));
    for (std::size_t k = 1; k <= 13; ++k) {
        const C3DPoint& from = Pattern(close, 2).List2->Item(k);
        const C3DPoint& to = Pattern(apart, 2).List2->Item(k);
        EXPECT_NEAR(to.x, from.x - 14 * std::cos(ray), Near);
        EXPECT_NEAR(to.y, from.y - 14 * std::sin(ray), Near);
    }
}

/// The tab counts as a station of the ruling along which the second pattern moves: the one behind the middle.
TEST(ReducingElbowLayout, BothPiecesTakeTheLap) {
    CElbowReducing elbow = Elbow();
    elbow.KerfSpacing = 14;
    elbow.inputs.JoinType = 1;
    elbow.inputs.LapSize1 = 15;
    elbow.DevelopModel();
    CElbowReducing plain = Elbow();
    plain.DevelopModel();
    const double ray = std::numbers::pi * SinHalfAngle() * 7 / 6;
    for (const std::size_t i : {1U, 2U}) {
        const C3DPoints& edge = *Pattern(elbow, i).List1;
        ASSERT_EQ(edge.Count(), 14U);
        EXPECT_NEAR(Distance3D(edge.Item(13), edge.Item(14)), 15, Near);
        const double by = i == 1 ? 0 : 14;
        EXPECT_NEAR(edge.Item(5).x, Pattern(plain, i).List1->Item(5).x - by * std::cos(ray), Near);
        EXPECT_NEAR(edge.Item(5).y, Pattern(plain, i).List1->Item(5).y - by * std::sin(ray), Near);
    }
    EXPECT_EQ(Piece(elbow, 1).List1->Count(), 13U);
}

/// Wherever the seam is, the second pattern is turned to lie along +x.
TEST(ReducingElbowLayout, FirstRulingOfTheSecondPieceLiesAlongX) {
    for (const double seam : {0.0, 40.0, -100.0}) {
        CElbowReducing elbow = Elbow();
        elbow.inputs.JoinAngle = DegToRad(seam);
        elbow.DevelopModel();
        const CRuleSurf& second = Pattern(elbow, 2);
        EXPECT_NEAR(second.List1->Item(1).y, 0, Near);
        EXPECT_NEAR(second.List2->Item(1).y, 0, Near);
        EXPECT_GT(second.List2->Item(1).x, second.List1->Item(1).x);
        EXPECT_NEAR(std::hypot(second.List1->Item(4).x, second.List1->Item(4).y), Small / SinHalfAngle(),
                    Near);
    }
}

TEST(ReducingElbowLayout, TakesOverTheWarningsOfBothPieces) {
    CElbowReducing elbow = Elbow();
    elbow.inputs.JoinType = 1;
    elbow.inputs.LapSize0 = 2000;
    elbow.DevelopModel();
    ASSERT_EQ(elbow.results.warnings.size(), 2U);
    EXPECT_EQ(elbow.results.warnings[0].messageId, TopLapTooLarge);
    EXPECT_EQ(elbow.results.warnings[1].messageId, TopLapTooLarge);
}

TEST(ReducingElbowModel, BuildsStartFromNothing) {
    CElbowReducing elbow = Elbow();
    elbow.DevelopModel();
    const C3DPoint seam = Piece(elbow, 2).List2->Item(1);
    elbow.DevelopModel();
    EXPECT_EQ(elbow.results.ModelSurfaceList.Count(), 2U);
    EXPECT_EQ(elbow.results.PatternSurfaceList.Count(), 2U);
    EXPECT_TRUE(Same(seam, Piece(elbow, 2).List2->Item(1)));
}

}  // namespace
}  // namespace korvet::reducing_elbow_test
