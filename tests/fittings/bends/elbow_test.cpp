// The elbow against the geometry of two crossing axes: pieces are pipes about them, and both are cut by the
// plane that halves the angle between them.
#include "fittings/bends/elbow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <tuple>
#include <vector>

#include "core/constants.h"
#include "core/math_module.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

constexpr double ElbowRadius = 50;
constexpr double Leg1 = 400;
constexpr double Leg2 = 520;
constexpr double ElbowKerf = 6;
/// A millionth of a thousandth of the size.
constexpr double Close = 1e-9 * (Leg1 + Leg2);

/// With so many degrees between the legs, leaning towards +x, and its seam at 0.
CElbow Elbow(double degrees = 75, int segs = 12) {
    CElbow elbow;
    elbow.BaseRad = ElbowRadius;
    elbow.Length1 = Leg1;
    elbow.Length2 = Leg2;
    elbow.BendAngle = -DegToRad(degrees);
    elbow.KerfSpacing = ElbowKerf;
    elbow.inputs.segs = segs;
    return elbow;
}

const CRuleSurf& Piece(const CElbow& elbow, std::size_t number) {
    return elbow.results.ModelSurfaceList.Item(number);
}

const CRuleSurf& Pattern(const CElbow& elbow, std::size_t number) {
    return elbow.results.PatternSurfaceList.Item(number);
}

const C3DPoints& FirstMitre(const CElbow& elbow) {
    return *Piece(elbow, 1).List1;
}

const C3DPoints& SecondMitre(const CElbow& elbow) {
    return *Piece(elbow, 2).List2;
}

/// Half the angle between the legs, below 0 for one towards -x, by the library's own pi.
double HalfAngle(const CElbow& elbow) {
    return -elbow.BendAngle / PI * std::numbers::pi / 2;
}

TEST(ElbowModel, FirstPieceStandsOnItsSquareEnd) {
    CElbow elbow = Elbow();
    elbow.ConstructModel();
    ASSERT_EQ(elbow.results.ModelSurfaceList.Count(), 2U);
    for (const C3DPoint& point : *Piece(elbow, 1).List2) {
        EXPECT_NEAR(point.z, 0, Close);
        EXPECT_NEAR(std::hypot(point.x, point.y), ElbowRadius, Close);
    }
    for (const C3DPoint& point : FirstMitre(elbow)) {
        EXPECT_NEAR(std::hypot(point.x, point.y), ElbowRadius, Close);
    }
}

TEST(ElbowModel, SquareElbowRunsOnTowardsMinusX) {
    CElbow elbow = Elbow();
    elbow.BendAngle = QuarterTurn;
    elbow.ConstructModel();
    for (const C3DPoint& point : *Piece(elbow, 2).List1) {
        EXPECT_NEAR(point.x, -Leg2, Close);
        EXPECT_NEAR(std::hypot(point.y, point.z - Leg1), ElbowRadius, Close);
    }
    // A cut at 45 degrees: its point furthest out is a radius above the corner.
    for (const C3DPoint& point : FirstMitre(elbow)) {
        EXPECT_NEAR(point.z, Leg1 + point.x, Close);
    }
}

/// Degrees between the legs, below 0 towards -x, fold lines, and whether half patterns are made.
class ElbowShapes : public testing::TestWithParam<std::tuple<double, int, bool>> {
  protected:
    [[nodiscard]] static CElbow Shape() {
        const auto [degrees, segs, half] = GetParam();
        CElbow elbow = Elbow(degrees, segs);
        elbow.inputs.HalfPattern = half;
        return elbow;
    }

    /// The shape with several seams, each a whole number of station steps on.
    static std::vector<CElbow> WithSeams() {
        std::vector<CElbow> elbows;
        for (const int steps : {0, 1, 5, -3}) {
            CElbow elbow = Shape();
            elbow.inputs.JoinAngle = steps * FullTurn / (2 * elbow.inputs.segs);
            elbows.push_back(elbow);
        }
        return elbows;
    }

    /// Stations of a half, or of the whole ring.
    [[nodiscard]] static std::size_t Stations(const CElbow& elbow) {
        const auto segs = static_cast<std::size_t>(elbow.inputs.segs);
        return elbow.inputs.HalfPattern ? segs + 1 : 2 * segs + 1;
    }
};

TEST_P(ElbowShapes, SecondPieceIsAPipeAtTheAngleToTheFirst) {
    for (CElbow elbow : WithSeams()) {
        elbow.ConstructModel();
        // From the corner, the first axis runs down; the second one is turned away from it by the angle.
        const double angle = 2 * HalfAngle(elbow);
        const double dx = std::sin(angle);
        const double dz = -std::cos(angle);
        const auto along = [&](const C3DPoint& p) { return p.x * dx + (p.z - Leg1) * dz; };
        for (const PointList& ring : {Piece(elbow, 2).List1, Piece(elbow, 2).List2}) {
            ASSERT_EQ(ring->Count(), Stations(elbow));
            for (const C3DPoint& p : *ring) {
                EXPECT_NEAR(std::hypot(p.x * dz - (p.z - Leg1) * dx, p.y), ElbowRadius, Close);
            }
        }
        for (const C3DPoint& p : *Piece(elbow, 2).List1) {
            EXPECT_NEAR(along(p), Leg2, Close);
        }
    }
}

TEST_P(ElbowShapes, BothCutsLieInThePlaneThatHalvesTheAngle) {
    for (CElbow elbow : WithSeams()) {
        elbow.ConstructModel();
        const double half = HalfAngle(elbow);
        for (const C3DPoints* cut : {&FirstMitre(elbow), &SecondMitre(elbow)}) {
            for (const C3DPoint& p : *cut) {
                EXPECT_NEAR(p.x * std::cos(half) + (p.z - Leg1) * std::sin(half), 0, Close);
            }
        }
    }
}

/// From the second build on both pieces have the seam of that build, half a turn from each other.
TEST_P(ElbowShapes, WholePiecesMeetAtEveryStationOfTheSecondBuild) {
    for (CElbow elbow : WithSeams()) {
        elbow.inputs.HalfPattern = false;
        elbow.ConstructModel();
        elbow.ConstructModel();
        const auto rings = static_cast<std::size_t>(elbow.inputs.segs);
        const C3DPoints& first = FirstMitre(elbow);
        const C3DPoints& second = SecondMitre(elbow);
        ASSERT_EQ(first.Count(), 2 * rings + 1);
        ASSERT_EQ(second.Count(), 2 * rings + 1);
        for (std::size_t i = 1; i <= rings + 1; ++i) {
            EXPECT_LT(Distance3D(first.Item(i), second.Item(i + rings)), Close);
            EXPECT_LT(Distance3D(first.Item(i + rings), second.Item(i)), Close);
        }
    }
}

/// In the first build the first piece has its seam at 0, whole steps from that of the second.
TEST_P(ElbowShapes, WholePiecesMeetInTheFirstBuildWhereSeamsAreWholeStepsApart) {
    for (CElbow elbow : WithSeams()) {
        elbow.inputs.HalfPattern = false;
        elbow.ConstructModel();
        for (const C3DPoint& point : FirstMitre(elbow)) {
            EXPECT_TRUE(std::any_of(SecondMitre(elbow).begin(), SecondMitre(elbow).end(),
                                    [&](const C3DPoint& like) { return Distance3D(point, like) < Close; }));
        }
    }
}

TEST_P(ElbowShapes, HalvesMeetWithTheirEndsInThePlaneOfTheElbow) {
    CElbow elbow = Shape();
    elbow.inputs.HalfPattern = true;
    elbow.ConstructModel();
    const C3DPoints& first = FirstMitre(elbow);
    const C3DPoints& second = SecondMitre(elbow);
    EXPECT_LT(Distance3D(first.Item(1), second.Last()), Close);
    EXPECT_LT(Distance3D(first.Last(), second.Item(1)), Close);
    // One half on either side of that plane.
    EXPECT_NEAR(first.Item(1).y, 0, Close);
    EXPECT_NEAR(first.Last().y, 0, Close);
    for (std::size_t i = 1; i <= first.Count(); ++i) {
        EXPECT_GT(first.Item(i).y, -Close);
        EXPECT_LT(second.Item(i).y, Close);
    }
}

/// The cut of the first piece is as high as its centre line, less R / tan(half the angle) times the cosine of
/// the angle from where the elbow leans to; that of the second runs parallel.
TEST_P(ElbowShapes, CutEdgesAreTheSineCurveOfTheMitre) {
    for (CElbow elbow : WithSeams()) {
        elbow.DevelopModel();
        const double amplitude = ElbowRadius / std::tan(HalfAngle(elbow));
        const auto wave = [&](const C3DPoint& p) {
            return amplitude * std::cos(elbow.inputs.JoinAngle + p.x / ElbowRadius);
        };
        ASSERT_EQ(elbow.results.PatternSurfaceList.Count(), 2U);
        for (const C3DPoint& p : *Pattern(elbow, 1).List1) {
            EXPECT_NEAR(p.y, Leg1 - wave(p), Close);
        }
        for (const C3DPoint& p : *Pattern(elbow, 2).List2) {
            EXPECT_NEAR(p.y, Leg1 + ElbowKerf - wave(p), Close);
        }
        for (std::size_t i = 1; i <= Stations(elbow); ++i) {
            EXPECT_NEAR(Pattern(elbow, 1).List2->Item(i).y, 0, Close);
            EXPECT_NEAR(Pattern(elbow, 2).List1->Item(i).y, Leg1 + Leg2 + ElbowKerf, Close);
        }
    }
}

TEST_P(ElbowShapes, PatternsAreAsLongAsTheGirthAndKeepTheRulings) {
    for (CElbow elbow : WithSeams()) {
        elbow.DevelopModel();  // the model that it makes still has the seam at 0
        elbow.ConstructModel();
        const double girth = (elbow.inputs.HalfPattern ? 1 : 2) * std::numbers::pi * ElbowRadius;
        for (const std::size_t number : {1U, 2U}) {
            const CRuleSurf& model = Piece(elbow, number);
            const CRuleSurf& flat = Pattern(elbow, number);
            ASSERT_EQ(flat.List1->Count(), Stations(elbow));
            EXPECT_EQ(flat.List1->Item(1).x, 0);
            EXPECT_NEAR(flat.List1->Last().x, girth, Close);
            for (std::size_t i = 1; i <= flat.List1->Count(); ++i) {
                EXPECT_EQ(flat.List1->Item(i).x, flat.List2->Item(i).x);
                EXPECT_NEAR(flat.List1->Item(i).y - flat.List2->Item(i).y,
                            Distance3D(model.List1->Item(i), model.List2->Item(i)), Close);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, ElbowShapes,
                         testing::Combine(testing::Values(20.0, 75.0, 90.0, 150.0, -90.0),
                                          testing::Values(1, 5, 12, 13), testing::Bool()));

TEST(ElbowSeam, FirstModelHasThatOfTheBuildBefore) {
    CElbow elbow = Elbow();
    const auto seamOf = [&](std::size_t number) {
        const C3DPoint& station = Piece(elbow, number).List1->Item(1);
        return number == 1 ? std::atan2(station.y, station.x) : std::asin(station.y / ElbowRadius);
    };
    elbow.inputs.JoinAngle = DegToRad(40);
    elbow.ConstructModel();
    EXPECT_NEAR(seamOf(1), 0, 1e-12);
    EXPECT_NEAR(seamOf(2), -DegToRad(40), 1e-12);
    elbow.inputs.JoinAngle = DegToRad(70);
    elbow.ConstructModel();
    EXPECT_NEAR(seamOf(1), DegToRad(40), 1e-12);
    EXPECT_NEAR(seamOf(2), -DegToRad(70), 1e-12);
    elbow.DevelopModel();
    EXPECT_NEAR(seamOf(1), DegToRad(70), 1e-12);
}

/// A pattern has the seam of its own build, whatever was built before.
TEST(ElbowSeam, PatternsHaveThatOfTheirBuild) {
    CElbow fresh = Elbow();
    fresh.inputs.JoinAngle = DegToRad(70);
    CElbow used = fresh;
    used.inputs.JoinAngle = DegToRad(40);
    used.DevelopModel();
    used.inputs.JoinAngle = DegToRad(70);
    used.DevelopModel();
    fresh.DevelopModel();
    for (const std::size_t number : {1U, 2U}) {
        EXPECT_TRUE(SamePoints(*Pattern(fresh, number).List1, *Pattern(used, number).List1));
        EXPECT_TRUE(SamePoints(*Pattern(fresh, number).List2, *Pattern(used, number).List2));
    }
}

TEST(ElbowLayout, KerfOnlyPartsThePatterns) {
    CElbow close = Elbow();
    close.KerfSpacing = 0;
    CElbow apart = Elbow();
    apart.KerfSpacing = 31;
    close.DevelopModel();
    apart.DevelopModel();
    EXPECT_TRUE(SamePoints(*Pattern(close, 1).List1, *Pattern(apart, 1).List1));
    for (std::size_t i = 1; i <= 25; ++i) {
        EXPECT_NEAR(Pattern(close, 1).List1->Item(i).y, Pattern(close, 2).List2->Item(i).y, Close);
        EXPECT_NEAR(Pattern(apart, 2).List2->Item(i).y, Pattern(close, 2).List2->Item(i).y + 31, Close);
        EXPECT_NEAR(Pattern(apart, 2).List1->Item(i).y, Pattern(close, 2).List1->Item(i).y + 31, Close);
    }
}

TEST(ElbowLayout, TemplatesWrapRoundTheOutside) {
    CElbow elbow = Elbow();
    elbow.Thickness = 4;
    for (const auto& [type, girth] : {std::pair{0, 50.0}, {1, 52.0}}) {
        elbow.TemplateType = static_cast<std::int16_t>(type);
        elbow.DevelopModel();
        for (const CRuleSurf& pattern : elbow.results.PatternSurfaceList) {
            EXPECT_NEAR(pattern.List1->Last().x, 2 * std::numbers::pi * girth, Close);
        }
    }
}

TEST(ElbowLayout, BothPiecesTakeTheLap) {
    CElbow elbow = Elbow();
    elbow.inputs.JoinType = 1;
    elbow.inputs.LapSize1 = 15;
    elbow.DevelopModel();
    for (const CRuleSurf& pattern : elbow.results.PatternSurfaceList) {
        ASSERT_EQ(pattern.List1->Count(), 26U);
        EXPECT_EQ(pattern.List1->Last().Flag, LapClosure);
        EXPECT_NEAR(pattern.List1->Last().x, 2 * std::numbers::pi * ElbowRadius + 15, Close);
    }
    EXPECT_EQ(Piece(elbow, 1).List1->Count(), 25U);
    elbow.inputs.JoinType = 0;
    elbow.DevelopModel();
    EXPECT_EQ(Pattern(elbow, 1).List1->Count(), 25U);
    EXPECT_EQ(Pattern(elbow, 2).List1->Count(), 25U);
}

/// The tab is one station more to halve: one of the girth's is kept in its place, and the tab is not.
TEST(ElbowLayout, HalfWithALapEndsAStationLateWithoutTheLap) {
    for (const int segs : {12, 13}) {
        CElbow elbow = Elbow(75, segs);
        elbow.inputs.HalfPattern = true;
        elbow.inputs.JoinType = 1;
        elbow.inputs.LapSize1 = 15;
        elbow.DevelopModel();
        for (const CRuleSurf& pattern : elbow.results.PatternSurfaceList) {
            ASSERT_EQ(pattern.List1->Count(), static_cast<std::size_t>(segs) + 2);
            EXPECT_NEAR(pattern.List1->Last().x, std::numbers::pi * ElbowRadius * (1 + 1.0 / segs), Close);
            EXPECT_LT(pattern.List1->Last().Flag, LapClosure);
        }
        EXPECT_EQ(Piece(elbow, 1).List1->Count(), static_cast<std::size_t>(segs) + 1);
    }
}

/// Laps along the edges are halved with them.
TEST(ElbowLayout, FoldLinesAreHalvedToo) {
    CElbow elbow = Elbow();
    elbow.inputs.HalfPattern = true;
    elbow.inputs.JoinType = 1;
    elbow.inputs.LapSize0 = 8;
    elbow.DevelopModel();
    for (const CRuleSurf& pattern : elbow.results.PatternSurfaceList) {
        ASSERT_EQ(pattern.LapList1->Count(), 13U);
        EXPECT_NEAR(pattern.List1->Item(13).y, pattern.LapList1->Item(13).y + 8, Close);
        EXPECT_EQ(pattern.LapList2, nullptr);
    }
}

TEST(ElbowShape, NeedsAWall) {
    CElbow elbow = Elbow();
    elbow.BaseRad = 0;
    EXPECT_THROW(elbow.ConstructModel(), ArithmeticError);
    EXPECT_THROW(elbow.DevelopModel(), ArithmeticError);
}

TEST(ElbowShape, StaysWithinReach) {
    const auto elbow = std::make_shared<CElbow>(Elbow(90));
    const FittingHandle fitting(elbow);
    elbow->Length1 = 0.6e9;
    elbow->Length2 = 0.3e9;
    EXPECT_NO_THROW(fitting.DevelopModel());
    elbow->KerfSpacing = 0.2e9;  // the second pattern lies beyond it, the model not
    EXPECT_NO_THROW(fitting.ConstructModel());
    EXPECT_THROW(fitting.DevelopModel(), ArithmeticError);
    elbow->Length1 = 1.1e9;
    EXPECT_THROW(fitting.ConstructModel(), ArithmeticError);
}

}  // namespace
}  // namespace korvet
