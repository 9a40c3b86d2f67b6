// The pipe on a bend against the bodies that meet: its edge lies on the torus of the bend and on the cylinder
// of the pipe, and the pattern rolled up again comes to lie there too.
#include "fittings/branches/pipe_to_bend.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "core/checked.h"
#include "core/constants.h"
#include "core/pattern_settings.h"
#include "fittings/bends/seg_bend_parallel.h"
#include "tests/support/near.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

/// A pipe of 60 across on a bend of 100 with a centre line of 150.
CPipeToBend PipeOnBend() {
    CPipeToBend fitting;
    fitting.PipeRadius = 30;
    fitting.BendRadius = 50;
    fitting.BendCLRadius = 150;
    fitting.PipeCLHeight = 90;
    fitting.PipeLength = 260;
    fitting.inputs.segs = 24;
    return fitting;
}

/// Pipes of many proportions: low, high, as wide as the bend, on a bend whose inside has no radius; many
/// fold lines and few.
std::vector<CPipeToBend> PipesOnBends() {
    std::vector<CPipeToBend> pipes;
    for (const double r : {0.5, 30.0, 50.0}) {
        for (const double c : {50.0, 150.0, 1000.0}) {
            for (const double level : {0.0, 0.4, 1.0}) {
                for (const int segs : {1, 2, 5, 12, 24, 25}) {
                    CPipeToBend fitting = PipeOnBend();
                    fitting.PipeRadius = r;
                    fitting.BendCLRadius = c;
                    fitting.PipeCLHeight = r + level * (c + 50 - 2 * r);
                    fitting.PipeLength = c + 60;
                    fitting.inputs.segs = segs;
                    fitting.inputs.HalfPattern = segs == 12;
                    pipes.push_back(fitting);
                }
            }
        }
    }
    return pipes;
}

const CRuleSurf& PipeOf(const CPipeToBend& fitting) {
    return fitting.results.ModelSurfaceList.Item(fitting.results.ModelSurfaceList.Count());
}

const CRuleSurf& PatternOf(const CPipeToBend& fitting) {
    return fitting.results.PatternSurfaceList.Item(1);
}

/// How far a point is off the round bend's wall: the distance from the circle of its centre line, less the
/// radius of its section.
double OffTheBend(const CPipeToBend& fitting, double x, double y, double z) {
    const double fromAxis = std::hypot(x + fitting.BendCLRadius, z);
    return std::hypot(fromAxis - fitting.BendCLRadius, y) - fitting.BendRadius;
}

TEST(PipeToBendModel, ShowsABendOfThirteenPiecesAndThenThePipe) {
    for (const bool half : {false, true}) {
        CPipeToBend fitting = PipeOnBend();
        fitting.inputs.HalfPattern = half;
        fitting.inputs.JoinAngle = 1;  // that of the window is greyed: the bend stands as it does
        fitting.ConstructModel();
        CSegBendParallel bend;
        bend.inputs.segs = 24;
        bend.inputs.HalfPattern = half;
        bend.BaseRad = 50;
        bend.BendRadius = 150;
        bend.BendAngle = QuarterTurn;
        bend.BendSegments = 12;
        bend.ConstructModel();
        ASSERT_EQ(bend.results.ModelSurfaceList.Count(), 13U);
        ASSERT_EQ(fitting.results.ModelSurfaceList.Count(), 14U);
        for (std::size_t i = 1; i <= 13; ++i) {
            const CRuleSurf& piece = bend.results.ModelSurfaceList.Item(i);
            const CRuleSurf& shown = fitting.results.ModelSurfaceList.Item(i);
            EXPECT_TRUE(SamePoints(*shown.List1, *piece.List1)) << i;
            EXPECT_TRUE(SamePoints(*shown.List2, *piece.List2)) << i;
        }
    }
}

TEST(PipeToBendModel, EdgeLiesOnTheBendAndOnThePipe) {
    for (CPipeToBend fitting : PipesOnBends()) {
        fitting.ConstructModel();
        const double tolerance = Near * fitting.PipeLength;
        for (const C3DPoint& point : *PipeOf(fitting).List2) {
            EXPECT_NEAR(OffTheBend(fitting, point.x, point.y, point.z), 0, tolerance);
            EXPECT_NEAR(std::hypot(point.y, point.z - fitting.PipeCLHeight), fitting.PipeRadius, tolerance);
            EXPECT_GE(point.x, -fitting.BendCLRadius) << "on the outside of the bend";
        }
    }
}

TEST(PipeToBendModel, FreeEndIsSquareAndItsRulesAreLevel) {
    for (CPipeToBend fitting : PipesOnBends()) {
        fitting.ConstructModel();
        const CRuleSurf& pipe = PipeOf(fitting);
        ASSERT_EQ(pipe.List1->Count(), pipe.List2->Count());
        for (std::size_t i = 1; i <= pipe.List1->Count(); ++i) {
            const C3DPoint& end = pipe.List1->Item(i);
            const C3DPoint& edge = pipe.List2->Item(i);
            EXPECT_EQ(end.x, fitting.PipeLength - fitting.BendCLRadius);
            EXPECT_EQ(end.y, edge.y);
            EXPECT_EQ(end.z, edge.z);
            EXPECT_GT(end.x, edge.x);
            EXPECT_EQ(end.Flag, edge.Flag);
        }
    }
}

/// From the lowest rule, round by +y to the highest and back.
TEST(PipeToBendModel, StationsRunFromTheLowestRule) {
    CPipeToBend fitting = PipeOnBend();
    fitting.ConstructModel();
    const C3DPoints& end = *PipeOf(fitting).List1;
    ASSERT_EQ(end.Count(), 25U);
    EXPECT_NEAR(end.Item(1).z, 60, Near);
    EXPECT_NEAR(end.Item(7).y, 30, Near);
    EXPECT_NEAR(end.Item(13).z, 120, Near);
    EXPECT_NEAR(end.Item(19).y, -30, Near);
    EXPECT_NEAR(end.Item(25).z, 60, Near);
    // 50 + 150 off the bend's centre in its plane: 60 and 120 up that is 190.8 and 160 beside it.
    const C3DPoints& edge = *PipeOf(fitting).List2;
    EXPECT_NEAR(edge.Item(1).x, std::sqrt(36400.0) - 150, Near);
    EXPECT_NEAR(edge.Item(13).x, 160 - 150, Near);
    // At the sides 40 + 150 is left of the bend, and the rule is 90 up: 167.3 from the centre.
    EXPECT_NEAR(edge.Item(7).x, std::sqrt(28000.0) - 150, Near);
}

TEST(PipeToBendModel, HalfHasTheStationsUpToTheHighestRule) {
    CPipeToBend fitting = PipeOnBend();
    fitting.inputs.HalfPattern = true;
    fitting.ConstructModel();
    ASSERT_EQ(PipeOf(fitting).List1->Count(), 13U);
    EXPECT_NEAR(PipeOf(fitting).List1->Last().z, 120, Near);
    EXPECT_EQ(fitting.results.ModelSurfaceList.Item(3).List1->Count(), 25U);
    fitting.inputs.segs = 13;  // 14 stations: half a step beyond
    fitting.ConstructModel();
    EXPECT_EQ(PipeOf(fitting).List1->Count(), 8U);
}

TEST(PipeToBendModel, APipeAsWideAsTheBendHasCornersWhereItTouchesTheSides) {
    for (const int segs : {3, 4, 24, 25, 26, 27}) {
        for (const double r : {50.0, 49.999}) {
            CPipeToBend fitting = PipeOnBend();
            fitting.PipeRadius = r;
            fitting.inputs.segs = segs;
            fitting.ConstructModel();
            for (const PointList& list : {PipeOf(fitting).List1, PipeOf(fitting).List2}) {
                for (int i = 1; i <= segs + 1; ++i) {
                    const bool corner = r == 50 && (i == segs / 4 + 1 || i == segs / 4 * 3 + 1);
                    EXPECT_EQ(list->Item(static_cast<std::size_t>(i)).Flag, i % 2 + (corner ? 4 : 0));
                }
            }
        }
    }
    CPipeToBend fitting = PipeOnBend();
    fitting.PipeRadius = 50;
    fitting.ConstructModel();
    EXPECT_EQ(PipeOf(fitting).List2->Item(7).Flag, CornerRuleStation);
    EXPECT_EQ(PipeOf(fitting).List2->Item(19).Flag, CornerRuleStation);
    EXPECT_NEAR(PipeOf(fitting).List2->Item(7).y, 50, Near);
}

/// No window lets a pipe stand so high.
TEST(PipeToBendModel, RulesOverTheTopEndAboveTheCentre) {
    CPipeToBend fitting = PipeOnBend();
    fitting.PipeCLHeight = 185;
    fitting.ConstructModel();
    int over = 0;
    for (const C3DPoint& point : *PipeOf(fitting).List2) {
        if (point.z >= 150 + std::sqrt(50 * 50 - point.y * point.y)) {
            EXPECT_EQ(point.x, -150);
            ++over;
        } else {
            EXPECT_NEAR(OffTheBend(fitting, point.x, point.y, point.z), 0, 1e-7);
        }
    }
    EXPECT_GT(over, 3);
    EXPECT_LT(over, 20);
}

/// Rolled round the pipe from its lowest rule on, the edge of the pattern comes to lie on the bend.
TEST(PipeToBendPattern, RolledUpMeetsTheBend) {
    for (CPipeToBend fitting : PipesOnBends()) {
        fitting.DevelopModel();
        ASSERT_EQ(fitting.results.PatternSurfaceList.Count(), 1U);
        ASSERT_EQ(PatternOf(fitting).List2->Count(), PipeOf(fitting).List2->Count());
        for (const C3DPoint& flat : *PatternOf(fitting).List2) {
            const double t = flat.x / fitting.PipeRadius - std::numbers::pi / 2;
            EXPECT_NEAR(OffTheBend(fitting, fitting.PipeLength - fitting.BendCLRadius - flat.y,
                                   fitting.PipeRadius * std::cos(t),
                                   fitting.PipeCLHeight + fitting.PipeRadius * std::sin(t)),
                        0, Near * fitting.PipeLength);
            EXPECT_EQ(flat.z, 0);
        }
    }
}

TEST(PipeToBendPattern, IsTheCircumferenceLongAndStandsOnTheFreeEnd) {
    CPipeToBend fitting = PipeOnBend();
    fitting.DevelopModel();
    const CRuleSurf& pattern = PatternOf(fitting);
    ASSERT_EQ(pattern.List1->Count(), 25U);
    for (std::size_t i = 1; i <= 25; ++i) {
        EXPECT_EQ(pattern.List1->Item(i).y, 0);
        EXPECT_EQ(pattern.List1->Item(i).x, pattern.List2->Item(i).x);
        EXPECT_NEAR(pattern.List1->Item(i).x, static_cast<double>(i - 1) * 2.5 * std::numbers::pi, Near);
        EXPECT_EQ(pattern.List1->Item(i).Flag, i % 2);
        EXPECT_EQ(pattern.List2->Item(i).Flag, i % 2);
    }
    // The longest rule is the highest one: 260 less 160.
    EXPECT_NEAR(pattern.List2->Item(13).y, 100, Near);
    EXPECT_NEAR(pattern.List2->Item(1).y, 260 - std::sqrt(36400.0), Near);
}

TEST(PipeToBendPattern, TemplateWrapsRoundTheOutside) {
    CPipeToBend fitting = PipeOnBend();
    fitting.Thickness = 4;
    fitting.DevelopModel();
    const CRuleSurf plain = PatternOf(fitting);
    EXPECT_NEAR(plain.List1->Last().x, 2 * PI * 30, Near);
    fitting.TemplateType = 1;
    fitting.DevelopModel();
    EXPECT_NEAR(PatternOf(fitting).List1->Last().x, 2 * PI * 32, Near);
    for (std::size_t i = 1; i <= 25; ++i) {
        EXPECT_EQ(PatternOf(fitting).List2->Item(i).y, plain.List2->Item(i).y);
    }
}

/// The free end, List1, lies below the edge that meets the bend: laps go out from the pattern all the same.
TEST(PipeToBendPattern, LapsLieOutsideThePattern) {
    CPipeToBend plain = PipeOnBend();
    plain.DevelopModel();
    const double seam = PatternOf(plain).List2->Last().y;
    CPipeToBend fitting = PipeOnBend();
    fitting.inputs.JoinType = 1;
    fitting.inputs.LapSize0 = 7;
    fitting.inputs.LapSize1 = 11;
    fitting.inputs.LapSize2 = 13;
    fitting.DevelopModel();
    const CRuleSurf& lapped = PatternOf(fitting);
    ASSERT_EQ(lapped.List1->Count(), 26U);
    EXPECT_EQ(lapped.List1->Item(25).Flag, 1 + CornerStation);
    EXPECT_EQ(lapped.List1->Last().Flag, LapClosure);
    EXPECT_NEAR(lapped.List1->Last().x, 2 * PI * 30 + 11, Near);
    EXPECT_NEAR(lapped.List2->Last().x, 2 * PI * 30 + 11, Near);
    EXPECT_NEAR(lapped.List1->Last().y, -7, Near);
    EXPECT_NEAR(lapped.List2->Last().y, seam + 13, Near);
    for (std::size_t i = 1; i <= 25; ++i) {
        EXPECT_NEAR(lapped.List1->Item(i).y, -7, Near);
        EXPECT_NEAR(lapped.List2->Item(i).y, PatternOf(plain).List2->Item(i).y + 13, Near);
        EXPECT_EQ(lapped.LapList1->Item(i).y, 0);
        EXPECT_EQ(lapped.LapList2->Item(i).y, PatternOf(plain).List2->Item(i).y);
    }
    // The model has none of them.
    EXPECT_EQ(PipeOf(fitting).List1->Count(), 25U);
    EXPECT_EQ(fitting.results.ModelSurfaceList.Item(1).List1->Count(), 49U);
}

TEST(PipeToBendPattern, BuildsStartFromNothing) {
    CPipeToBend fitting = PipeOnBend();
    fitting.inputs.JoinType = 1;
    fitting.inputs.LapSize1 = 11;
    fitting.DevelopModel();
    const CRuleSurf before = PatternOf(fitting);
    fitting.DevelopModel();
    EXPECT_EQ(fitting.results.ModelSurfaceList.Count(), 14U);
    ASSERT_EQ(fitting.results.PatternSurfaceList.Count(), 1U);
    EXPECT_TRUE(SamePoints(*PatternOf(fitting).List1, *before.List1));
    EXPECT_TRUE(SamePoints(*PatternOf(fitting).List2, *before.List2));
}

TEST(PipeToBendPattern, APipeWithoutAWallIsNotMade) {
    CPipeToBend fitting;
    fitting.PipeLength = 5;
    EXPECT_THROW(fitting.ConstructModel(), ArithmeticError);
    EXPECT_THROW(fitting.DevelopModel(), ArithmeticError);
}

}  // namespace
}  // namespace korvet
