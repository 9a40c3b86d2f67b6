// The three pieces of the offset against its plan: their shortest rules have the typed lengths, the pipes lie
// about their axes, the mitres halve the angles, and neighbours meet there.
#include "fittings/bends/murok_mitre.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "core/constants.h"
#include "core/math_module.h"
#include "core/pattern_settings.h"
#include "tests/support/near.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

enum PieceOfOffset : std::size_t { FirstLeg = 1, SecondLeg = 2, MiddlePiece = 3 };

/// Legs of 3 to 4 and of 5 to 12.
CMurokMitre MurokOffset() {
    CMurokMitre mitre;
    mitre.BaseRad = 40;
    mitre.Length1 = 160;
    mitre.Length2 = 50;
    mitre.Offset = 120;
    mitre.OffsetLength = 220;
    mitre.inputs.segs = 12;
    return mitre;
}

/// Offsets of many proportions, at these numbers of fold lines.
std::vector<CMurokMitre> MurokOffsets(const std::vector<int>& segs) {
    std::vector<CMurokMitre> offsets;
    for (const int number : segs) {
        for (const double offset : {3.0, 120.0, 900.0}) {
            for (const double length1 : {20.0, 160.0}) {
                for (const double length2 : {50.0, 700.0}) {
                    CMurokMitre mitre = MurokOffset();
                    mitre.inputs.segs = number;
                    mitre.Offset = offset;
                    mitre.Length1 = length1;
                    mitre.Length2 = length2;
                    offsets.push_back(mitre);
                }
            }
        }
    }
    return offsets;
}

const std::vector<int> EvenSegs = {2, 4, 12, 24, 26};

/// About the largest coordinate: a leg that falls little runs far beyond its length to its free end.
double SizeOf(const CMurokMitre& mitre) {
    const double run = std::max(mitre.Length1, mitre.Length2);
    return run + mitre.Offset + mitre.OffsetLength + mitre.BaseRad * (2 + run / mitre.Offset);
}

const CRuleSurf& Piece(const CMurokMitre& mitre, std::size_t number) {
    return mitre.results.ModelSurfaceList.Item(number);
}

const CRuleSurf& Pattern(const CMurokMitre& mitre, std::size_t number) {
    return mitre.results.PatternSurfaceList.Item(number);
}

/// The point of an edge on the shortest rule: the first station of the second leg, else the last one.
const C3DPoint& OnShortestRule(const PointList& edge, std::size_t piece) {
    return edge->Item(piece == SecondLeg ? 1 : edge->Count());
}

/// A direction in the plan.
struct Direction {
    double x;
    double y;
};

/// Where the pieces run, from the first free end to the last: down by the offset, level, and up.
Direction RunOf(const CMurokMitre& mitre, std::size_t piece) {
    if (piece == MiddlePiece) {
        return {1, 0};
    }
    const double run = piece == FirstLeg ? mitre.Length1 : mitre.Length2;
    const double length = std::hypot(run, mitre.Offset);
    return {run / length, (piece == FirstLeg ? -1 : 1) * mitre.Offset / length};
}

TEST(MurokMitreModel, HasTwoLegsAndThenTheMiddlePiece) {
    CMurokMitre mitre = MurokOffset();
    mitre.ConstructModel();
    EXPECT_EQ(mitre.results.ModelSurfaceList.Count(), 3U);
    EXPECT_EQ(mitre.results.PatternSurfaceList.Count(), 0U);
}

TEST(MurokMitreModel, KeepsAQuarterOfTheStations) {
    // Of 25 stations 1 to 7; of 27 the same, and of 3 just the first.
    for (const auto& [segs, kept] : {std::pair{12, 7U}, {13, 7U}, {14, 8U}, {2, 2U}, {1, 1U}}) {
        CMurokMitre mitre = MurokOffset();
        mitre.inputs.segs = segs;
        mitre.DevelopModel();
        for (const CRuleSurfs& surfaces :
             {mitre.results.ModelSurfaceList, mitre.results.PatternSurfaceList}) {
            ASSERT_EQ(surfaces.Count(), 3U);
            for (const CRuleSurf& surface : surfaces) {
                ASSERT_EQ(surface.List1->Count(), kept) << segs;
                ASSERT_EQ(surface.List2->Count(), kept) << segs;
                for (std::size_t i = 1; i <= kept; ++i) {
                    EXPECT_EQ(surface.List1->Item(i).Flag, i % 2);
                    EXPECT_EQ(surface.List2->Item(i).Flag, i % 2);
                }
            }
        }
    }
}

TEST(MurokMitreModel, ShortestRulesHaveTheSizesOfThePlan) {
    for (CMurokMitre mitre : MurokOffsets(EvenSegs)) {
        mitre.ConstructModel();
        const double tolerance = Near * SizeOf(mitre);
        const auto expectRun = [&](const C3DPoint& from, const C3DPoint& to, double dx, double dy) {
            EXPECT_NEAR(to.x - from.x, dx, tolerance);
            EXPECT_NEAR(to.y - from.y, dy, tolerance);
            EXPECT_NEAR(from.z, 0, tolerance);
            EXPECT_NEAR(to.z, 0, tolerance);
        };
        const CRuleSurf& first = Piece(mitre, FirstLeg);
        const CRuleSurf& second = Piece(mitre, SecondLeg);
        const CRuleSurf& middle = Piece(mitre, MiddlePiece);
        expectRun(OnShortestRule(first.List2, FirstLeg), OnShortestRule(first.List1, FirstLeg), mitre.Length1,
                  -mitre.Offset);
        expectRun(OnShortestRule(middle.List2, MiddlePiece), OnShortestRule(middle.List1, MiddlePiece),
                  mitre.OffsetLength, 0);
        expectRun(OnShortestRule(second.List1, SecondLeg), OnShortestRule(second.List2, SecondLeg),
                  mitre.Length2, mitre.Offset);
    }
}

TEST(MurokMitreModel, NeighboursMeetAtEveryStation) {
    for (CMurokMitre mitre : MurokOffsets(EvenSegs)) {
        mitre.ConstructModel();
        const double tolerance = Near * SizeOf(mitre);
        const CRuleSurf& middle = Piece(mitre, MiddlePiece);
        const std::size_t count = middle.List1->Count();
        for (std::size_t i = 1; i <= count; ++i) {
            EXPECT_LT(Distance3D(Piece(mitre, FirstLeg).List1->Item(i), middle.List2->Item(i)), tolerance);
            // The second leg is walked through the other way round.
            EXPECT_LT(Distance3D(Piece(mitre, SecondLeg).List1->Item(count + 1 - i), middle.List1->Item(i)),
                      tolerance);
        }
    }
}

/// The axis lies a radius beside the shortest rule, on the outside of the bends: below it in the plan.
TEST(MurokMitreModel, PiecesLieOnPipesAboutTheirAxes) {
    for (CMurokMitre mitre : MurokOffsets(EvenSegs)) {
        mitre.ConstructModel();
        for (const std::size_t number : {FirstLeg, SecondLeg, MiddlePiece}) {
            const Direction run = RunOf(mitre, number);
            const C3DPoint& start = OnShortestRule(Piece(mitre, number).List1, number);
            for (const PointList& edge : {Piece(mitre, number).List1, Piece(mitre, number).List2}) {
                for (const C3DPoint& point : *edge) {
                    const double aside = run.x * (point.y - start.y) - run.y * (point.x - start.x);
                    EXPECT_NEAR(std::hypot(aside + mitre.BaseRad, point.z), mitre.BaseRad,
                                Near * SizeOf(mitre));
                    EXPECT_LT(point.z, Near * SizeOf(mitre)) << "below the plan";
                    EXPECT_GT(aside, -mitre.BaseRad - Near * SizeOf(mitre)) << "towards the shortest rule";
                }
            }
        }
    }
}

/// A mitre is upright and as far from square on one pipe as on the other.
TEST(MurokMitreModel, MitresHalveTheAngle) {
    for (CMurokMitre mitre : MurokOffsets(EvenSegs)) {
        mitre.ConstructModel();
        for (const std::size_t leg : {FirstLeg, SecondLeg}) {
            const Direction run = RunOf(mitre, leg);
            const C3DPoint& corner = OnShortestRule(Piece(mitre, leg).List1, leg);
            for (const C3DPoint& point : *Piece(mitre, leg).List1) {
                EXPECT_NEAR((point.x - corner.x) * (1 + run.x) + (point.y - corner.y) * run.y, 0,
                            Near * SizeOf(mitre));
            }
        }
    }
}

TEST(MurokMitreModel, FreeEndsLieInOnePlane) {
    for (CMurokMitre mitre : MurokOffsets(EvenSegs)) {
        mitre.ConstructModel();
        for (const std::size_t leg : {FirstLeg, SecondLeg}) {
            for (const C3DPoint& point : *Piece(mitre, leg).List2) {
                EXPECT_NEAR(point.y, 0, Near * SizeOf(mitre));
            }
        }
    }
}

/// With 13 fold lines no station lies at a quarter: the quarters end half a step below the shortest rule, and
/// the pieces are joined by the station after it, half a step above.
TEST(MurokMitreModel, AnOddNumberOfFoldLinesJoinsTheStationBehindTheQuarter) {
    CMurokMitre mitre = MurokOffset();
    mitre.inputs.segs = 13;
    mitre.ConstructModel();
    const double half = 40 * std::sin(std::numbers::pi / 26);
    EXPECT_NEAR(Piece(mitre, FirstLeg).List1->Last().z, -half, Near);
    EXPECT_NEAR(Piece(mitre, SecondLeg).List1->Item(1).z, half, Near);
    EXPECT_NEAR(Piece(mitre, MiddlePiece).List1->Last().z, -half, Near);
}

/// Unrolled from the lowest rule, the rule at the angle t from the shortest one is longer than that by what
/// both ends lean over the radius, R (1 - cos t) for each unit of slope.
TEST(MurokMitrePattern, QuartersAreThoseOfTheFullRings) {
    for (CMurokMitre mitre : MurokOffsets({1, 2, 5, 12, 13, 24})) {
        mitre.DevelopModel();
        const double offset = mitre.Offset;
        const auto leanOfMitre = [&](double run) { return std::tan(std::atan2(offset, run) / 2); };
        const double lean1 = leanOfMitre(mitre.Length1);
        const double lean2 = leanOfMitre(mitre.Length2);
        const std::vector<std::pair<double, double>> lengths = {
            {std::hypot(mitre.Length1, offset), lean1 + mitre.Length1 / offset},
            {std::hypot(mitre.Length2, offset), lean2 + mitre.Length2 / offset},
            {mitre.OffsetLength, lean1 + lean2}};
        const double step = std::numbers::pi / mitre.inputs.segs;
        for (const std::size_t number : {FirstLeg, SecondLeg, MiddlePiece}) {
            const CRuleSurf& flat = Pattern(mitre, number);
            const auto [shortest, lean] = lengths[number - 1];
            const double start = number == SecondLeg ? 0 : -std::numbers::pi / 2;
            for (std::size_t i = 1; i <= flat.List1->Count(); ++i) {
                const double walked = static_cast<double>(i - 1) * step;
                const double length = shortest + mitre.BaseRad * lean * (1 - std::cos(start + walked));
                const double tolerance = Near * SizeOf(mitre);
                EXPECT_NEAR(Distance3D(flat.List1->Item(i), flat.List2->Item(i)), length, tolerance);
                EXPECT_NEAR(std::abs(flat.List1->Item(i).x - flat.List1->Item(1).x), mitre.BaseRad * walked,
                            tolerance);
                EXPECT_NEAR(flat.List1->Item(i).x, flat.List2->Item(i).x, tolerance);
                EXPECT_EQ(flat.List1->Item(i).z, 0);
            }
        }
        if (mitre.inputs.segs % 2 == 0) {
            const C3DPoints& edge = *Pattern(mitre, MiddlePiece).List1;
            EXPECT_NEAR(std::abs(edge.Last().x - edge.Item(1).x), std::numbers::pi * 40 / 2,
                        Near * SizeOf(mitre));
        }
    }
}

/// The second leg stands on the mitre of the first, and the middle piece, turned over, hangs with its
/// shortest rule on the second one's.
TEST(MurokMitrePattern, PiecesAreLaidCornerToCorner) {
    for (CMurokMitre mitre : MurokOffsets(EvenSegs)) {
        mitre.DevelopModel();
        const double tolerance = Near * SizeOf(mitre);
        const CRuleSurf& first = Pattern(mitre, FirstLeg);
        const CRuleSurf& second = Pattern(mitre, SecondLeg);
        const CRuleSurf& middle = Pattern(mitre, MiddlePiece);
        EXPECT_EQ(first.List1->Item(1).x, 0);
        EXPECT_LT(Distance3D(second.List2->Item(1), first.List1->Item(1)), tolerance);
        EXPECT_LT(Distance3D(middle.List1->Last(), second.List1->Item(1)), tolerance);
        EXPECT_GT(middle.List1->Item(1).x, middle.List1->Last().x) << "turned over";
        EXPECT_GT(middle.List2->Item(1).y, middle.List1->Item(1).y);
    }
}

TEST(MurokMitrePattern, TakesNeitherHalfNorLapsNorKerfNorSeamNorTemplate) {
    CMurokMitre plain = MurokOffset();
    plain.DevelopModel();
    CMurokMitre mitre = MurokOffset();
    mitre.inputs.HalfPattern = true;
    mitre.inputs.JoinType = 1;
    mitre.inputs.LapSize0 = mitre.inputs.LapSize1 = mitre.inputs.LapSize2 = 9;
    mitre.inputs.JoinAngle = 1;
    mitre.inputs.Dtype = 3;
    mitre.KerfSpacing = 25;
    mitre.TemplateType = 1;
    mitre.Thickness = 4;
    mitre.DevelopModel();
    mitre.DevelopModel();  // from nothing again
    ASSERT_EQ(mitre.results.PatternSurfaceList.Count(), 3U);
    for (const std::size_t number : {FirstLeg, SecondLeg, MiddlePiece}) {
        EXPECT_TRUE(SamePoints(*Pattern(mitre, number).List1, *Pattern(plain, number).List1));
        EXPECT_TRUE(SamePoints(*Pattern(mitre, number).List2, *Pattern(plain, number).List2));
        EXPECT_TRUE(SamePoints(*Piece(mitre, number).List1, *Piece(plain, number).List1));
        EXPECT_FALSE(Pattern(mitre, number).LapList1);
    }
}

}  // namespace
}  // namespace korvet
