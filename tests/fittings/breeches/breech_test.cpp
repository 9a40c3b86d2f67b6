// The breech of equal pipes against the geometry of its axes: every pipe is round about its own, and the cut
// between two pipes lies half way between them.
#include "fittings/breeches/breech.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "core/checked.h"
#include "core/constants.h"
#include "tests/fittings/breeches/breech_reading.h"
#include "tests/support/near.h"
#include "tests/support/point_lists.h"

namespace korvet::breech_test {
namespace {

constexpr double Radius = 70;
constexpr double Length = 230;

/// Of pipes with these angles, in degrees, between each and the next; the one behind the last is left.
CBreech Breech(const std::vector<double>& degrees, int segs = 12) {
    CBreech breech;
    breech.BaseRad = Radius;
    breech.PipeLength1 = Length;
    for (std::size_t i = 0; i < degrees.size(); ++i) {
        breech.*PipeAnglesOfBreech.at(i) = DegToRad(degrees[i]);
    }
    breech.inputs.Dtype = static_cast<std::int16_t>(degrees.size() - 2);
    breech.inputs.segs = segs;
    return breech;
}

/// Breeches of three to five pipes: even ones, crooked ones, some with more than half a turn in one place.
std::vector<CBreech> Breeches() {
    std::vector<CBreech> breeches;
    for (const std::vector<double>& degrees :
         {std::vector{120.0, 120.0}, std::vector{80.0, 170.0}, std::vector{215.0, 70.0},
          std::vector{90.0, 180.0}, std::vector{90.0, 90.0, 90.0}, std::vector{60.0, 75.0, 50.0},
          std::vector{72.0, 72.0, 72.0, 72.0}, std::vector{45.0, 100.0, 55.0, 70.0}}) {
        for (const int segs : {1, 2, 7, 12, 24}) {
            breeches.push_back(Breech(degrees, segs));
        }
    }
    return breeches;
}

/// The direction of a pipe from the meeting point to its free end.
C3DPoint DirectionOf(const CBreech& breech, std::size_t pipe) {
    double turn = -std::numbers::pi / 2;
    for (std::size_t i = 0; i + 1 < pipe; ++i) {
        turn += breech.*PipeAnglesOfBreech.at(i);
    }
    return {std::cos(turn), 0, std::sin(turn), PlainStation};
}

/// How far along a pipe a point lies, from the meeting point.
double Along(const C3DPoint& p, const C3DPoint& direction) {
    return p.x * direction.x + (p.z - Length) * direction.z;
}

double OffAxis(const C3DPoint& p, const C3DPoint& direction) {
    return std::hypot(p.x * direction.z - (p.z - Length) * direction.x, p.y);
}

std::size_t PipesOf(const CBreech& breech) {
    return static_cast<std::size_t>(breech.inputs.Dtype) + 3;
}

const CRuleSurf& Model(const CBreech& breech, std::size_t pipe) {
    return breech.results.ModelSurfaceList.Item(pipe);
}
const CRuleSurf& Pattern(const CBreech& breech, std::size_t pipe) {
    return breech.results.PatternSurfaceList.Item(pipe);
}

/// The pipe behind another one, round the ring.
std::size_t After(const CBreech& breech, std::size_t pipe) {
    return pipe % PipesOf(breech) + 1;
}

TEST(BreechModel, EveryPipeIsRoundAboutItsAxisAndAsLongAsItIs) {
    for (CBreech breech : Breeches()) {
        breech.ConstructModel();
        ASSERT_EQ(breech.results.ModelSurfaceList.Count(), PipesOf(breech));
        for (std::size_t k = 1; k <= PipesOf(breech); ++k) {
            const C3DPoint direction = DirectionOf(breech, k);
            for (const PointList& edge : {Model(breech, k).List1, Model(breech, k).List2}) {
                for (const C3DPoint& p : *edge) {
                    EXPECT_NEAR(OffAxis(p, direction), Radius, Near * Length);
                }
            }
            for (const C3DPoint& p : *Model(breech, k).List2) {
                EXPECT_NEAR(Along(p, direction), Length, Near * Length);
            }
        }
    }
}

/// As far along the one pipe as along the other: that is the plane half way between them.
TEST(BreechModel, CutsLieHalfWayToTheNeighbours) {
    for (CBreech breech : Breeches()) {
        breech.ConstructModel();
        for (std::size_t k = 1; k <= PipesOf(breech); ++k) {
            const C3DPoints& cut = *Model(breech, k).List1;
            const C3DPoint direction = DirectionOf(breech, k);
            const C3DPoint next = DirectionOf(breech, After(breech, k));
            const C3DPoint before = DirectionOf(breech, k == 1 ? PipesOf(breech) : k - 1);
            const std::vector<std::size_t> ridge = RidgeStations(cut);
            ASSERT_EQ(ridge.size(), 2U);
            for (std::size_t i = 1; i <= cut.Count(); ++i) {
                const C3DPoint& p = cut.Item(i);
                if (i <= ridge[0] || i >= ridge[1]) {
                    EXPECT_NEAR(Along(p, direction), Along(p, next), Near * Length);
                }
                if (i >= ridge[0] && i <= ridge[1]) {
                    EXPECT_NEAR(Along(p, direction), Along(p, before), Near * Length);
                }
            }
        }
    }
}

TEST(BreechModel, RidgesOfAllPipesAreTheSamePoints) {
    for (CBreech breech : Breeches()) {
        breech.ConstructModel();
        for (std::size_t k = 1; k <= PipesOf(breech); ++k) {
            const C3DPoints& cut = *Model(breech, k).List1;
            const std::vector<std::size_t> ridge = RidgeStations(cut);
            EXPECT_LT(Distance3D(cut.Item(ridge[0]), {0, Radius, Length, 0}), Near * Length);
            EXPECT_LT(Distance3D(cut.Item(ridge[1]), {0, -Radius, Length, 0}), Near * Length);
        }
    }
}

/// With an even number of fold lines a station lies opposite each one, and the joint closes point by point:
/// the near side of a pipe runs on from its seam, the far side of the next one backwards to meet it.
TEST(BreechModel, NeighboursMeetPointByPoint) {
    for (CBreech breech : Breeches()) {
        const auto quarter = static_cast<std::size_t>(breech.inputs.segs) / 2;
        if (breech.inputs.segs % 2 != 0) {
            continue;
        }
        breech.ConstructModel();
        for (std::size_t k = 1; k <= PipesOf(breech); ++k) {
            const C3DPoints& near = *Model(breech, k).List1;
            const C3DPoints& far = *Model(breech, After(breech, k)).List1;
            for (std::size_t i = 0; i < quarter; ++i) {
                const C3DPoint& p = near.Item(i + 1);
                double gap = Length;
                for (const C3DPoint& q : far) {
                    gap = std::min(gap, Distance3D(p, q));
                }
                EXPECT_LT(gap, Near * Length) << k << " " << i;
            }
        }
    }
}

TEST(BreechModel, BreaksAtTwoStationsMoreThanAPipeHas) {
    CBreech breech = Breech({100, 150}, 24);
    breech.ConstructModel();
    EXPECT_EQ(Model(breech, 1).List1->Count(), 51U);
    EXPECT_EQ(Model(breech, 1).List2->Count(), 100U) << "a second time round the free end";
    // At a quarter turn stands a station of its own as well.
    const C3DPoints& cut = *Model(breech, 1).List1;
    ASSERT_EQ(RidgeStations(cut).size(), 2U);
    EXPECT_LT(Distance3D(cut.Item(13), cut.Item(14)), Near);
    EXPECT_LT(Distance3D(cut.Item(38), cut.Item(39)), Near);
    breech.inputs.HalfPattern = true;
    breech.ConstructModel();
    for (std::size_t k = 1; k <= 3; ++k) {
        ASSERT_EQ(Model(breech, k).List1->Count(), 26U);
        ASSERT_EQ(Model(breech, k).List2->Count(), 26U);
        for (const C3DPoint& p : *Model(breech, k).List1) {
            EXPECT_GT(p.y, -Near);
        }
        EXPECT_NEAR(Model(breech, k).List1->Item(1).y, 0, Near);
        EXPECT_NEAR(Model(breech, k).List1->Last().y, 0, Near);
    }
}

TEST(BreechModel, TheLastAngleIsWhatTheOthersLeave) {
    CBreech three = Breech({100, 150});
    three.ConstructModel();
    EXPECT_NEAR(RadToDeg(three.PipeAngle3), 110, Near);
    EXPECT_EQ(three.PipeAngle4, 0);
    CBreech four = Breech({50, 60, 70});
    four.DevelopModel();
    EXPECT_NEAR(RadToDeg(four.PipeAngle4), 180, Near);
    CBreech five = Breech({50, 60, 70, 80});
    five.PipeAngle5 = 7;
    five.ConstructModel();
    EXPECT_NEAR(RadToDeg(five.PipeAngle5), 100, Near);
}

/// 120 degrees between all: every cut leans by 30, on either side.
TEST(BreechModel, AnEvenOneIsCutAlikeOnBothSides) {
    CBreech breech = Breech({120, 120}, 24);
    breech.ConstructModel();
    const C3DPoints& cut = *Model(breech, 1).List1;
    EXPECT_NEAR(cut.Item(1).z, Length - Radius * std::tan(std::numbers::pi / 6), Near);
    EXPECT_NEAR(cut.Item(26).z, Length - Radius * std::tan(std::numbers::pi / 6), Near);
}

TEST(BreechModel, PipesShorterThanTheirCutsAreNotMade) {
    // Half of the narrowest angle is 30 degrees: 70 / tan 30 = 121.24.
    CBreech breech = Breech({60, 130});
    breech.PipeLength1 = 121.25;
    EXPECT_NO_THROW(breech.ConstructModel());
    breech.PipeLength1 = 121.24;
    EXPECT_THROW(breech.ConstructModel(), ArithmeticError);
    EXPECT_THROW(breech.DevelopModel(), ArithmeticError);
    CBreech flat = Breech({100, 100});
    flat.BaseRad = 0;
    EXPECT_THROW(flat.ConstructModel(), ArithmeticError);
}

TEST(BreechPattern, StretchOutKeepsTheRules) {
    for (CBreech breech : Breeches()) {
        breech.DevelopModel();
        for (std::size_t k = 1; k <= PipesOf(breech); ++k) {
            const CRuleSurf& flat = Pattern(breech, k);
            const CRuleSurf& model = Model(breech, k);
            ASSERT_EQ(flat.List1->Count(), model.List1->Count());
            ASSERT_EQ(flat.List2->Count(), model.List1->Count());
            EXPECT_NEAR(flat.List1->Last().x, 2 * std::numbers::pi * Radius, Near * Length);
            for (std::size_t i = 1; i <= flat.List1->Count(); ++i) {
                EXPECT_NEAR(flat.List1->Item(i).y, Distance3D(model.List1->Item(i), model.List2->Item(i)),
                            Near * Length);
                EXPECT_EQ(flat.List2->Item(i).y, 0);
                EXPECT_EQ(flat.List1->Item(i).x, flat.List2->Item(i).x);
            }
        }
    }
}

/// The edges that are welded together.
TEST(BreechPattern, NeighboursHaveCutsOfOneLength) {
    for (CBreech breech : Breeches()) {
        breech.DevelopModel();
        const double tolerance = breech.inputs.segs % 2 == 0 ? Near : 0.2;
        for (std::size_t k = 1; k <= PipesOf(breech) && breech.inputs.segs > 2; ++k) {
            const double near = LengthsOfCut(*Pattern(breech, k).List1).near;
            const double far = LengthsOfCut(*Pattern(breech, After(breech, k)).List1).far;
            EXPECT_NEAR(near, far, tolerance * far);
        }
    }
}

double SeamDifference(int segs) {
    CBreech breech = Breech({80, 150}, segs);
    breech.DevelopModel();
    const double near = LengthsOfCut(*Pattern(breech, 1).List1).near;
    return std::fabs(near / LengthsOfCut(*Pattern(breech, 2).List1).far - 1);
}

TEST(BreechPattern, CutsOfOddStationsComeNearerAsTheyGrowFiner) {
    EXPECT_LT(SeamDifference(25), 2e-3);
    EXPECT_LT(SeamDifference(401), 1e-5);
}

TEST(BreechLayout, ARowStandsAKerfApart) {
    CBreech breech = Breech({80, 150, 70});
    breech.inputs.Miscellaneous = PatternsInARow;
    breech.KerfSpacing = 15;
    breech.DevelopModel();
    const double width = 2 * std::numbers::pi * Radius;
    for (std::size_t k = 1; k <= 4; ++k) {
        const C3DPoints& edge = *Pattern(breech, k).List2;
        EXPECT_NEAR(edge.Item(1).x, static_cast<double>(k - 1) * (width + 15), Near * width);
        EXPECT_NEAR(edge.Last().x - edge.Item(1).x, width, Near * width);
        EXPECT_EQ(edge.Item(1).y, 0);
    }
}

TEST(BreechLayout, ARowOfLappedPatternsStandsApartFromTheLaps) {
    CBreech breech = Breech({80, 150});
    breech.inputs.Miscellaneous = PatternsInARow;
    breech.inputs.JoinType = 1;
    breech.inputs.LapSize1 = 12;
    breech.KerfSpacing = 15;
    breech.DevelopModel();
    ASSERT_EQ(Pattern(breech, 1).List1->Count(), 28U);
    EXPECT_NEAR(Pattern(breech, 2).List1->Item(1).x, 2 * std::numbers::pi * Radius + 12 + 15, Near * Length);
    EXPECT_EQ(Model(breech, 1).List1->Count(), 27U);
}

TEST(BreechLayout, AColumnStandsAKerfAboveTheHighestPoint) {
    CBreech breech = Breech({80, 210});
    breech.inputs.Miscellaneous = PatternsInAColumn;
    breech.KerfSpacing = 15;
    breech.DevelopModel();
    // Between the first two pipes the cuts run down; behind 210 degrees one runs up beyond the meeting point.
    const double up = Radius * std::tan(15 * std::numbers::pi / 180);
    EXPECT_NEAR(Pattern(breech, 2).List2->Item(1).y, Length + 15, Near * Length);
    EXPECT_NEAR(Pattern(breech, 3).List2->Item(1).y, 2 * (Length + 15) + up, Near * Length);
    for (std::size_t k = 1; k <= 3; ++k) {
        EXPECT_EQ(Pattern(breech, k).List1->Item(1).x, 0);
    }
}

TEST(BreechLayout, WithoutAChoiceAllStandAtTheOrigin) {
    CBreech breech = Breech({80, 150});
    breech.KerfSpacing = 15;
    breech.DevelopModel();
    for (std::size_t k = 1; k <= 3; ++k) {
        EXPECT_LT(Distance3D(Pattern(breech, k).List2->Item(1), {}), Near);
    }
}

TEST(BreechPattern, TemplatesWrapRoundTheOutside) {
    CBreech breech = Breech({80, 150});
    breech.Thickness = 6;
    breech.DevelopModel();
    EXPECT_NEAR(Pattern(breech, 2).List1->Last().x, 2 * std::numbers::pi * Radius, Near * Length);
    breech.TemplateType = 1;
    breech.DevelopModel();
    EXPECT_NEAR(Pattern(breech, 2).List1->Last().x, 2 * std::numbers::pi * (Radius + 3), Near * Length);
}

TEST(BreechPattern, TheSeamStandsStill) {
    CBreech breech = Breech({80, 150});
    breech.DevelopModel();
    const C3DPoints before = *Pattern(breech, 2).List1;
    breech.inputs.JoinAngle = 1;
    breech.DevelopModel();
    EXPECT_TRUE(SamePoints(before, *Pattern(breech, 2).List1));
}

TEST(BreechPattern, CutFilesKeepEveryPoint) {
    for (CBreech breech : Breeches()) {
        for (const bool half : {false, true}) {
            breech.inputs.HalfPattern = half;
            breech.inputs.Miscellaneous = PatternsInARow;
            breech.DevelopModel();
            ExpectCutFileKeepsPoints(breech.results.PatternSurfaceList);
        }
    }
}

TEST(BreechPattern, BuildsStartFromNothing) {
    CBreech breech = Breech({80, 150});
    breech.DevelopModel();
    const C3DPoints before = *Pattern(breech, 3).List1;
    breech.DevelopModel();
    EXPECT_EQ(breech.results.ModelSurfaceList.Count(), 3U);
    ASSERT_EQ(breech.results.PatternSurfaceList.Count(), 3U);
    EXPECT_TRUE(SamePoints(before, *Pattern(breech, 3).List1));
}

}  // namespace
}  // namespace korvet::breech_test
