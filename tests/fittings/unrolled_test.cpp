// Parallel rules laid side by side, and the length of the plate that they fill.
#include "fittings/unrolled.h"

#include <gtest/gtest.h>

#include <numbers>

#include "tests/support/point_lists.h"

namespace korvet {
namespace {

/// Three rules 5, 13 and 0 long.
CRuleSurf Rules() {
    return Strip({{3, 4, 0, 1}, {0, 5, 12, 4}, {1, 1, 1, 5}}, {{0, 0, 0, 0}, {0, 0, 0, 5}, {1, 1, 1, 1}});
}

TEST(UnrolledRules, StandOnTheStraightEdgeList2) {
    const CRuleSurf flat = UnrolledRules(Rules(), StraightEdge::List2, 2.5);
    EXPECT_TRUE(SamePoints(*flat.List1, PointsOf({{0, 5, 0, 1}, {2.5, 13, 0, 4}, {5, 0, 0, 5}})));
    EXPECT_TRUE(SamePoints(*flat.List2, PointsOf({{0, 0, 0, 0}, {2.5, 0, 0, 5}, {5, 0, 0, 1}})));
    EXPECT_FALSE(flat.List3);
    EXPECT_FALSE(flat.RefPoint);
}

TEST(UnrolledRules, OrOnList1) {
    const CRuleSurf flat = UnrolledRules(Rules(), StraightEdge::List1, 2.5);
    EXPECT_TRUE(SamePoints(*flat.List1, PointsOf({{0, 0, 0, 1}, {2.5, 0, 0, 4}, {5, 0, 0, 5}})));
    EXPECT_TRUE(SamePoints(*flat.List2, PointsOf({{0, 5, 0, 0}, {2.5, 13, 0, 5}, {5, 0, 0, 1}})));
}

TEST(UnrolledRules, SpacingGrowsByRepeatedAddition) {
    CRuleSurf model;
    model.List1 = std::make_shared<C3DPoints>();
    model.List2 = std::make_shared<C3DPoints>();
    for (int i = 0; i < 30; ++i) {
        model.List1->Add({});
        model.List2->Add({});
    }
    double x = 0;
    const CRuleSurf flat = UnrolledRules(model, StraightEdge::List1, 0.1);
    for (const C3DPoint& point : *flat.List2) {
        EXPECT_EQ(point.x, x);
        x += 0.1;
    }
}

TEST(UnrolledRules, NeedTwoEdgesOfOneCount) {
    CRuleSurf model = Rules();
    model.List2->Add({});
    EXPECT_THROW(UnrolledRules(model, StraightEdge::List1, 1), ListError);
    EXPECT_THROW(UnrolledRules(CRuleSurf(), StraightEdge::List1, 1), ListError);
}

TEST(StretchOut, IsTheCircumferenceOfTheMeanLineOrOfTheOutside) {
    EXPECT_NEAR(StretchOut(50, 3, 0), 100 * std::numbers::pi, 1e-9);
    EXPECT_NEAR(StretchOut(50, 3, 1), 103 * std::numbers::pi, 1e-9);
    EXPECT_EQ(StretchOut(50, 0, 1), StretchOut(50, 0, 0));
}

}  // namespace
}  // namespace korvet
