// What a half or a quarter pattern keeps of a surface, with and without the tab of a seam lap.
#include "fittings/trim.h"

#include <gtest/gtest.h>

#include "core/lap_join.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

/// A flat strip of eight squares.
CRuleSurf Squares() {
    CRuleSurf surface;
    surface.List1 = std::make_shared<C3DPoints>();
    surface.List2 = std::make_shared<C3DPoints>();
    for (int i = 0; i <= 8; ++i) {
        surface.List1->Add({static_cast<double>(i), 1, 0, PlainStation});
        surface.List2->Add({static_cast<double>(i), 0, 0, PlainStation});
    }
    surface.RefPoint = C3DPoint();
    return surface;
}

TEST(Trim, FollowsHalfPattern) {
    FittingInputs inputs;
    EXPECT_EQ(TrimOf(inputs), Trim::Whole);
    inputs.HalfPattern = true;
    EXPECT_EQ(TrimOf(inputs), Trim::Half);
}

TEST(Trim, AWholeSurfaceIsTheSurfaceItself) {
    const CRuleSurf surface = Squares();
    const CRuleSurf kept = Trimmed(surface, Trim::Whole);
    EXPECT_EQ(kept.List1, surface.List1) << "not a copy";
    EXPECT_TRUE(kept.RefPoint);
}

TEST(Trim, AHalfEndsInTheMiddleAndAQuarterAtHalfOfThat) {
    const CRuleSurf half = Trimmed(Squares(), Trim::Half);
    EXPECT_EQ(half.List1->Count(), 5U);
    EXPECT_EQ(half.List2->Last().x, 4);
    const CRuleSurf quarter = Trimmed(Squares(), Trim::Quarter);
    EXPECT_EQ(quarter.List1->Count(), 3U);
    EXPECT_EQ(quarter.List2->Last().x, 2);
}

TEST(Trim, TheTabOfALapCountsAsAStation) {
    CRuleSurf lapped = Squares();
    ApplyLapJoin(lapped, 1, 0, 0.5, 0);
    const CRuleSurf half = Trimmed(lapped, Trim::Half);
    ASSERT_EQ(half.List1->Count(), 6U) << "one further than the half without a tab";
    EXPECT_EQ(half.List1->Last().x, 5);
    EXPECT_EQ(half.List1->Last().Flag, PlainStation) << "and the tab itself is gone";
}

TEST(Trim, AHalfIsRefusedOnce) {
    FittingInputs inputs;
    FittingResults results;
    RefuseHalf(inputs, results);
    EXPECT_TRUE(results.warnings.empty()) << "none was asked for";
    inputs.HalfPattern = true;
    RefuseHalf(inputs, results);
    RefuseHalf(inputs, results);
    ASSERT_EQ(results.warnings.size(), 1U);
    EXPECT_EQ(results.warnings[0].messageId, HalfPatternNotApplicable);
    EXPECT_TRUE(results.warnings[0].userError);
    EXPECT_FALSE(inputs.HalfPattern);
}

TEST(Trim, HalvesOfAListHaveItsMiddleInCommon) {
    const C3DPoints points = PointsOf({{1, 0, 0, 1}, {2, 0, 0, 0}, {3, 0, 0, 5}, {4, 0, 0, 0}, {5, 0, 0, 1}});
    EXPECT_TRUE(SamePoints(*FirstHalf(points), PointsOf({{1, 0, 0, 1}, {2, 0, 0, 0}, {3, 0, 0, 5}})));
    EXPECT_TRUE(SamePoints(*SecondHalf(points), PointsOf({{3, 0, 0, 5}, {4, 0, 0, 0}, {5, 0, 0, 1}})));
}

}  // namespace
}  // namespace korvet
