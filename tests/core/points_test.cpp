#include "core/points.h"

#include <gtest/gtest.h>

#include "tests/support/point_lists.h"

namespace korvet {
namespace {

TEST(Point, StartsAtTheOriginAsAPlainStation) {
    const C3DPoint point;
    EXPECT_TRUE(Same(point, {0, 0, 0, 0}));
}

TEST(PointList, KeepsCopiesOfWhatIsAdded) {
    C3DPoints list;
    C3DPoint point = {1, 2, 3, RuleStation};
    list.Add(point);
    point.x = 9;
    list.Add(point);
    EXPECT_EQ(list.Count(), 2U);
    EXPECT_TRUE(Same(list.Item(1), {1, 2, 3, 1}));
    EXPECT_TRUE(Same(list.Item(2), {9, 2, 3, 1}));
}

TEST(PointList, TheSamePointAddedTwiceIsTwoPoints) {
    C3DPoints list;
    const C3DPoint point = {1, 2, 3, 0};
    list.Add(point);
    list.Add(point);
    list.Item(1).y = 7;
    EXPECT_EQ(list.Item(1).y, 7);
    EXPECT_EQ(list.Item(2).y, 2);
}

TEST(PointList, AddReturnsTheStoredPoint) {
    C3DPoints list;
    list.Add({1, 0, 0, 0}).Flag = CornerStation;
    EXPECT_EQ(list.Item(1).Flag, 4);
}

TEST(PointList, ItemIsThePointItself) {
    C3DPoints list = PointsOf({{1, 0, 0, 0}, {2, 0, 0, 0}});
    list.Item(2).x = 5;
    EXPECT_EQ(list.Last().x, 5);
}

TEST(PointList, CountsFromOne) {
    C3DPoints list = PointsOf({{1, 0, 0, 0}, {2, 0, 0, 0}});
    EXPECT_EQ(list.Item(1).x, 1);
    EXPECT_EQ(list.Item(2).x, 2);
    EXPECT_THROW((void)list.Item(0), ListError);
    EXPECT_THROW((void)list.Item(3), ListError);
}

TEST(PointList, AnEmptyListHasNoItems) {
    C3DPoints list;
    EXPECT_EQ(list.Count(), 0U);
    EXPECT_THROW((void)list.Item(1), ListError);
    EXPECT_THROW((void)list.Last(), ListError);
    EXPECT_THROW(list.Remove(1), ListError);
}

TEST(PointList, RemoveMovesLaterPointsUp) {
    C3DPoints list = PointsOf({{1, 0, 0, 0}, {2, 0, 0, 0}, {3, 0, 0, 0}});
    list.Remove(2);
    EXPECT_TRUE(SamePoints(list, PointsOf({{1, 0, 0, 0}, {3, 0, 0, 0}})));
    EXPECT_THROW(list.Remove(3), ListError);
    EXPECT_THROW(list.Remove(0), ListError);
    EXPECT_EQ(list.Count(), 2U);
}

TEST(PointList, ALoopSeesThePointsInTheirOrder) {
    double sum = 0;
    double weight = 1;
    for (const C3DPoint& point : PointsOf({{1, 0, 0, 0}, {2, 0, 0, 0}, {3, 0, 0, 0}})) {
        sum += weight * point.x;
        weight *= 10;
    }
    EXPECT_EQ(sum, 321);
}

TEST(PointList, TheErrorNamesItemAndLength) {
    const C3DPoints list = PointsOf({{1, 0, 0, 0}});
    try {
        (void)list.Item(4);
        FAIL() << "item 4 of 1 was there";
    } catch (const ListError& error) {
        EXPECT_STREQ(error.what(), "item 4 of a list of 1");
    }
}

TEST(Stations, RuleLinesStandAtOddFlagsOfTheRange) {
    for (const int flag : {1, 3, 5, 7}) {
        EXPECT_TRUE(IsRuleStation({0, 0, 0, static_cast<std::int16_t>(flag)})) << flag;
    }
    for (const int flag : {-1, 0, 2, 4, 6, 8, 9}) {
        EXPECT_FALSE(IsRuleStation({0, 0, 0, static_cast<std::int16_t>(flag)})) << flag;
    }
}

TEST(Stations, FlaggedPointsKeepsRuleStationsInOrder) {
    const C3DPoints points =
        PointsOf({{1, 0, 0, 1}, {2, 0, 0, 0}, {3, 0, 0, 5}, {4, 0, 0, 4}, {5, 0, 0, 8}, {6, 0, 0, 3}});
    EXPECT_TRUE(SamePoints(FlaggedPoints(points), PointsOf({{1, 0, 0, 1}, {3, 0, 0, 5}, {6, 0, 0, 3}})));
    EXPECT_EQ(FlaggedPoints(C3DPoints()).Count(), 0U);
}

TEST(PointList, ReversedIsANewListFromLastToFirst) {
    C3DPoints list = PointsOf({{1, 2, 3, 1}, {4, 5, 6, 0}, {7, 8, 9, 5}});
    C3DPoints reversed = ReversePoints(list);
    EXPECT_TRUE(SamePoints(reversed, PointsOf({{7, 8, 9, 5}, {4, 5, 6, 0}, {1, 2, 3, 1}})));
    reversed.Item(1).x = 100;
    EXPECT_EQ(list.Item(3).x, 7);
    EXPECT_EQ(ReversePoints(C3DPoints()).Count(), 0U);
}

TEST(PointList, CountsAsPresentFromTwoPointsOn) {
    EXPECT_FALSE(IsPresent(nullptr));
    EXPECT_FALSE(IsPresent(ListOf({})));
    EXPECT_FALSE(IsPresent(ListOf({{1, 0, 0, 0}})));
    EXPECT_TRUE(IsPresent(ListOf({{1, 0, 0, 0}, {2, 0, 0, 0}})));
}

}  // namespace
}  // namespace korvet
