#include "printing/print_page.h"

#include <gtest/gtest.h>

namespace korvet {
namespace {

TEST(PrintPage, ItsBoundaryRunsRoundFromTheLowerLeft) {
    CPrintPage page;
    page.OriginPoint = {3, 4, 0, PlainStation};
    page.PageLength = 200;
    page.PageWidth = 287;
    page.ListBoundaryPoints();
    const std::vector<std::pair<double, double>> corners = {{3, 4}, {203, 4}, {203, 291}, {3, 291}, {3, 4}};
    ASSERT_EQ(page.BoundaryList->Count(), corners.size());
    for (std::size_t i = 0; i < corners.size(); ++i) {
        EXPECT_EQ(page.BoundaryList->Item(i + 1).x, corners[i].first) << i;
        EXPECT_EQ(page.BoundaryList->Item(i + 1).y, corners[i].second) << i;
    }
    EXPECT_EQ(BoxOf(page), (Bounds{3, 4, 203, 291}));
}

TEST(PrintPage, AStoredPageSharesItsBoundaryAndNothingElse) {
    CPrintPage page;
    page.ListBoundaryPoints();
    CPrintPages pages;
    const CPrintPage& stored = pages.Add(page);
    page.PrintMe = true;
    page.OriginPoint.x = 9;
    EXPECT_FALSE(stored.PrintMe);
    EXPECT_EQ(stored.OriginPoint.x, 0);
    EXPECT_EQ(stored.BoundaryList, page.BoundaryList);
}

TEST(PrintPage, WithoutCornersItHasNoBox) {
    EXPECT_THROW((void)BoxOf(CPrintPage()), ListError);
}

TEST(SheetName, GoesOnBehindZAsTheCharactersDo) {
    EXPECT_EQ(SheetName(1, 1), "A1");
    EXPECT_EQ(SheetName(26, 12), "Z12");
    EXPECT_EQ(SheetName(27, 1), "[1");
    EXPECT_EQ(SheetName(33, 4), "a4");
    EXPECT_EQ(SheetName(62, 7), "~7");
    EXPECT_EQ(SheetName(63, 1), "63-1");
    EXPECT_EQ(SheetName(300, 25), "300-25");
}

}  // namespace
}  // namespace korvet
