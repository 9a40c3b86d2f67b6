// The pipe on a cone by halves, with laps, pattern by pattern, and with sizes that make none.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>

#include "core/checked.h"
#include "tests/fittings/branches/pipe_on_cone.h"
#include "tests/support/near.h"
#include "tests/support/point_lists.h"

namespace korvet::pipe_to_cone_test {
namespace {

TEST(PipeToConeHalf, KeepsTheHalfHoleOnTheHalfPlate) {
    for (const PipeEntry entry : {PipeFromSide, PipeFromTop, PipeAtAngle}) {
        for (const int segs : {12, 13}) {
            CPipeToCone fitting = PipeOnCone(entry, 0, segs);
            fitting.inputs.HalfPattern = true;
            fitting.inputs.Miscellaneous = ConePattern;
            fitting.DevelopModel();
            const std::size_t ring = (static_cast<std::size_t>(segs) + 1) / 2 + 1;
            EXPECT_EQ(ConeOf(fitting).List1->Count(), ring);
            const C3DPoints& hole = *ConeOf(fitting).List3;
            ASSERT_EQ(hole.Count(), static_cast<std::size_t>(segs) + 1);
            EXPECT_NEAR(hole.Item(1).y, 0, Near * Base);
            EXPECT_NEAR(hole.Last().y, 0, Near * Base);
            for (const C3DPoint& point : hole) {
                EXPECT_LT(point.y, Near * Base);
            }
            const double half = std::numbers::pi * Base / std::hypot(Base, Apex);
            for (const C3DPoint& point : *PatternOf(fitting).List3) {
                EXPECT_LT(PlanAngle({}, point), half + Near);
            }
            EXPECT_EQ(PatternOf(fitting).List1->Count(), ring);
            EXPECT_EQ(PipeOf(fitting).List1->Count(), static_cast<std::size_t>(segs) + 1);
        }
    }
}

TEST(PipeToConeLaps, AreLaidRoundEitherPattern) {
    for (const std::int16_t which : {ConePattern, PipePattern}) {
        CPipeToCone plain = PipeOnCone(PipeAtAngle);
        plain.inputs.Miscellaneous = which;
        plain.DevelopModel();
        CPipeToCone fitting = plain;
        fitting.inputs.JoinType = 1;
        fitting.inputs.LapSize0 = 7;
        fitting.inputs.LapSize1 = 11;
        fitting.inputs.LapSize2 = 13;
        fitting.DevelopModel();
        const CRuleSurf& bare = PatternOf(plain);
        const CRuleSurf& lapped = PatternOf(fitting);
        const std::size_t n = bare.List1->Count();
        ASSERT_EQ(lapped.List1->Count(), n + 1);
        EXPECT_EQ(lapped.List1->Last().Flag, LapClosure);
        EXPECT_FALSE(lapped.RefPoint);
        for (std::size_t i = 1; i <= n; ++i) {
            EXPECT_NEAR(Distance3D(lapped.List1->Item(i), bare.List1->Item(i)), 7, Near * Base);
            EXPECT_NEAR(Distance3D(lapped.List2->Item(i), bare.List2->Item(i)), 13, Near * Base);
        }
        EXPECT_NEAR(Distance3D(lapped.LapList2->Item(n), lapped.LapList2->Item(n + 1)), 11, Near * Base);
        if (which == ConePattern) {
            EXPECT_TRUE(SamePoints(*lapped.List3, *bare.List3));
        }
        EXPECT_TRUE(fitting.results.warnings.empty());
    }
}

TEST(PipeToConeSelection, AnyOtherChoiceMakesTheModelAlone) {
    for (const int choice : {0, 3, -1}) {
        CPipeToCone fitting = PipeOnCone(PipeFromSide);
        fitting.inputs.Miscellaneous = ConePattern;
        fitting.DevelopModel();
        fitting.inputs.Miscellaneous = static_cast<std::int16_t>(choice);
        fitting.DevelopModel();
        EXPECT_EQ(fitting.results.PatternSurfaceList.Count(), 0U);
        EXPECT_EQ(fitting.results.ModelSurfaceList.Count(), 2U);
    }
}

TEST(PipeToConeModel, BuildsStartFromNothing) {
    CPipeToCone fitting = PipeOnCone(PipeAtAngle, 20);
    fitting.inputs.Miscellaneous = ConePattern;
    fitting.inputs.JoinType = 1;
    fitting.inputs.LapSize1 = 11;
    fitting.DevelopModel();
    const CRuleSurf before = PatternOf(fitting);
    fitting.DevelopModel();
    EXPECT_EQ(fitting.results.ModelSurfaceList.Count(), 2U);
    ASSERT_EQ(fitting.results.PatternSurfaceList.Count(), 1U);
    EXPECT_TRUE(SamePoints(*PatternOf(fitting).List1, *before.List1));
    EXPECT_TRUE(SamePoints(*PatternOf(fitting).List3, *before.List3));
}

std::string ReasonFor(CPipeToCone fitting) {
    try {
        fitting.ConstructModel();
    } catch (const ArithmeticError& error) {
        return error.what();
    }
    return "";
}

TEST(PipeToConeRefused, WhatHasNoHoleOnTheWall) {
    CPipeToCone over = PipeOnCone(PipeAtAngle);
    over.PipeAngle = DegToRad(65) - QuarterTurn;
    EXPECT_EQ(ReasonFor(over), "the hole reaches above the top of the cone");
    CPipeToCone under = PipeOnCone(PipeAtAngle);
    under.PipeAngle = DegToRad(-30) - QuarterTurn;
    EXPECT_EQ(ReasonFor(under), "the hole reaches below the base of the cone");
    CPipeToCone back = PipeOnCone(PipeFromSide);
    back.PipeLength = -480;
    EXPECT_EQ(ReasonFor(back), "the hole lies across the seam of the cone");
    // Steep and wide, it takes off the top of the cone all round.
    CPipeToCone round = PipeOnCone(PipeAtAngle);
    round.PipeAngle = 0;
    round.PipeRad = 110;
    round.PipeLength = 900;
    EXPECT_EQ(ReasonFor(round), "the hole lies across the seam of the cone");
}

TEST(PipeToConeRefused, APipeThatEndsInTheCone) {
    CPipeToCone fitting = PipeOnCone(PipeFromSide);
    // Its lowest rule, 60 up, comes out at 230.
    fitting.PipeLength = 229.99;
    EXPECT_EQ(ReasonFor(fitting), "the pipe length is too short: the cut runs past the free end");
    fitting.PipeLength = 230.01;
    EXPECT_EQ(ReasonFor(fitting), "");
}

TEST(PipeToConeRefused, AConeWithoutAHeight) {
    CPipeToCone fitting = PipeOnCone(PipeFromTop);
    for (const double height : {0.0, -450.0}) {
        fitting.CPHeight1 = height;
        fitting.ConeAngle = height == 0 ? QuarterTurn : std::atan(Base / -Apex);
        EXPECT_EQ(ReasonFor(fitting), "the cone is too low for a pipe");
    }
}

}  // namespace
}  // namespace korvet::pipe_to_cone_test
