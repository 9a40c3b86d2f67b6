#include "display/picking.h"

#include <gtest/gtest.h>

#include <optional>

#include "display/extent_frame.h"
#include "tests/display/display_log.h"

namespace korvet {
namespace {

CRuleSurfs SheetsAt(std::initializer_list<double> positions) {
    CRuleSurfs surfaces;
    for (const double x : positions) {
        surfaces.Add(Sheet(x));
    }
    return surfaces;
}

CNearestPoint Nearest(double x, double y, const CRuleSurfs& surfaces, const C3DPoints& frame = {}) {
    return FindClosestPoint({x, y, 0, 0}, surfaces, surfaces, frame).value();
}

void ExpectNumbers(const CNearestPoint& nearest, int surfaceNo, int listNo, int pointNo) {
    EXPECT_EQ(nearest.surfaceNo, surfaceNo);
    EXPECT_EQ(nearest.ListNo, listNo);
    EXPECT_EQ(nearest.PointNo, pointNo);
}

TEST(ExtentFrame, IsTheClosedRectangleAboutBothEdges) {
    CRuleSurfs surfaces = SheetsAt({0, 100});
    surfaces.Item(1).List3 = Points({{-500, -500, 0, 0}, {500, 500, 0, 0}});
    surfaces.Item(1).LapList1 = surfaces.Item(1).List3;
    const C3DPoints frame = BuildExtentFrame(surfaces, surfaces);
    const double expected[5][2] = {{0, 0}, {130, 0}, {130, 40}, {0, 40}, {0, 0}};
    ASSERT_EQ(frame.Count(), 5U);
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(frame.Item(i + 1).x, expected[i][0]) << i;
        EXPECT_EQ(frame.Item(i + 1).y, expected[i][1]) << i;
    }
}

TEST(ExtentFrame, TakesInWhereTheFirstTrueSurfaceBegins) {
    const C3DPoints frame = BuildExtentFrame(SheetsAt({-70}), SheetsAt({0}));
    EXPECT_EQ(frame.Item(1).x, -70);  // the true sheet's upper left corner
    EXPECT_EQ(frame.Item(3).x, 30);
}

TEST(ExtentFrame, IsEmptyWithoutAPoint) {
    EXPECT_EQ(BuildExtentFrame({}, {}).Count(), 0U);
    CRuleSurfs hollow;
    hollow.Add({});
    EXPECT_EQ(BuildExtentFrame(hollow, hollow).Count(), 0U);
}

TEST(FindClosestPoint, FindsEveryListHoweverFarAway) {
    CRuleSurfs surfaces = SheetsAt({0, 100});
    surfaces.Item(2).List3 = Points({{200, 0, 0, 0}, {300, 0, 0, 0}});
    ExpectNumbers(Nearest(-900, 900, surfaces), 1, 1, 1);
    ExpectNumbers(Nearest(31, 39, surfaces), 1, 1, 2);
    ExpectNumbers(Nearest(1, -1, surfaces), 1, 2, 1);
    ExpectNumbers(Nearest(131, 1, surfaces), 2, 2, 2);
    ExpectNumbers(Nearest(9000, 0, surfaces), 2, 3, 2);
}

TEST(FindClosestPoint, ALineOfOnePointDoesNotCompete) {
    CRuleSurfs surfaces = SheetsAt({0});
    surfaces.Item(1).List3 = Points({{200, 0, 0, 0}});
    ExpectNumbers(Nearest(200, 0, surfaces), 1, 2, 2);
}

TEST(FindClosestPoint, TheFirstOfEqualsStays) {
    ExpectNumbers(Nearest(15, 40, SheetsAt({0})), 1, 1, 1);  // midway on List1
    ExpectNumbers(Nearest(15, 20, SheetsAt({0})), 1, 1, 1);  // the centre: all four corners
    ExpectNumbers(Nearest(0, 0, SheetsAt({0, 0})), 1, 2, 1);
    ExpectNumbers(Nearest(65, 0, SheetsAt({0, 100})), 1, 2, 2);  // midway between the sheets
}

TEST(FindClosestPoint, TheReferencePointCompetesWhenDisplayed) {
    CRuleSurfs surfaces = SheetsAt({0, 100});
    surfaces.Item(2).RefPoint = C3DPoint{115, 20, 0, 0};
    ExpectNumbers(Nearest(115, 20, surfaces), 2, 1, 1);
    surfaces.Item(2).RefPointDisplay = true;
    const CNearestPoint nearest = Nearest(115, 20, surfaces);
    ExpectNumbers(nearest, 2, 0, 0);
    EXPECT_EQ(nearest.ScreenPoint.x, 115);
    EXPECT_EQ(nearest.TruePoint.y, 20);
}

TEST(FindClosestPoint, AFrameCornerKeepsTheSurfaceNumberOfTheLastWinner) {
    CRuleSurf triangle;  // without a point in the upper right corner of its frame
    triangle.List1 = Points({{0, 40, 0, 0}, {0, 40, 0, 0}});
    triangle.List2 = Points({{0, 0, 0, 0}, {30, 0, 0, 0}});
    CRuleSurfs surfaces = SheetsAt({-100});
    surfaces.Add(triangle);
    const C3DPoints frame = BuildExtentFrame(surfaces, surfaces);
    ExpectNumbers(Nearest(29, 41, surfaces), 2, 1, 1);
    const CNearestPoint corner = Nearest(29, 41, surfaces, frame);
    ExpectNumbers(corner, 2, 5, 3);
    EXPECT_EQ(corner.ScreenPoint.x, 30);
    EXPECT_EQ(corner.TruePoint.y, 40);
}

TEST(FindClosestPoint, AFrameCornerLosesToAnEqualPointOfTheSurface) {
    const CRuleSurfs surfaces = SheetsAt({0});
    ExpectNumbers(Nearest(-1, -1, surfaces, BuildExtentFrame(surfaces, surfaces)), 1, 2, 1);
}

TEST(FindClosestPoint, GivesTheTruePointOfWhatIsSeen) {
    const CNearestPoint nearest = FindClosestPoint({0, 0, 0, 0}, SheetsAt({0}), SheetsAt({1000}), {}).value();
    EXPECT_EQ(nearest.ScreenPoint.x, 0);
    EXPECT_EQ(nearest.TruePoint.x, 1000);
}

TEST(FindClosestPoint, MeasuresInSpace) {
    CRuleSurfs surfaces;
    CRuleSurf surface;
    surface.List1 = Points({{0, 0, 100, 1}});  // right under the click, but far behind it
    surface.List2 = Points({{3, 0, 0, 1}});
    surfaces.Add(surface);
    ExpectNumbers(Nearest(0, 0, surfaces), 1, SecondEdgeList, 1);
}

TEST(FindClosestPoint, FindsNothingWithoutAPoint) {
    EXPECT_FALSE(FindClosestPoint({}, {}, {}, {}).has_value());
    CRuleSurfs hollow;
    hollow.Add({});
    EXPECT_FALSE(FindClosestPoint({}, hollow, hollow, {}).has_value());
}

TEST(DimensionEnds, AreFoundByTheirNumbers) {
    CRuleSurfs surfaces = SheetsAt({0, 100});
    surfaces.Item(2).List3 = Points({{200, 1, 0, 0}, {300, 2, 0, 0}});
    surfaces.Item(2).RefPoint = C3DPoint{115, 20, 0, 0};
    const C3DPoints frame = BuildExtentFrame(surfaces, surfaces);
    const auto first = [&](int surfaceNo, int listNo, int pointNo) {
        CDimension dimension;
        dimension.SurfaceNo1 = surfaceNo;
        dimension.ListNo1 = listNo;
        dimension.PointNo1 = pointNo;
        return DimensionPoint1(dimension, surfaces, frame);
    };
    EXPECT_EQ(first(2, 0, 0)->x, 115);
    EXPECT_EQ(first(1, 1, 2)->x, 30);
    EXPECT_EQ(first(2, 2, 1)->x, 100);
    EXPECT_EQ(first(2, 3, 2)->x, 300);
    EXPECT_EQ(first(99, 5, 3)->x, 130);
    EXPECT_FALSE(first(1, 0, 0).has_value());  // no reference point there
    EXPECT_FALSE(first(2, 0, 1).has_value());
    EXPECT_FALSE(first(1, 1, 3).has_value());
    EXPECT_FALSE(first(1, 1, 0).has_value());
    EXPECT_FALSE(first(1, 3, 1).has_value());
    EXPECT_FALSE(first(3, 1, 1).has_value());
    EXPECT_FALSE(first(0, 1, 1).has_value());
    EXPECT_FALSE(first(1, 4, 1).has_value());
    EXPECT_FALSE(first(1, 5, 6).has_value());
    EXPECT_FALSE(first(1, 6, 1).has_value());
    EXPECT_FALSE(first(1, -1, 1).has_value());
}

TEST(DimensionEnds, TheSecondIsThatOfTheSecondNumbers) {
    const CDimension dimension = {
        .SurfaceNo2 = 2, .SurfaceNo1 = 1, .ListNo2 = 2, .ListNo1 = 1, .PointNo2 = 2, .PointNo1 = 1};
    const CRuleSurfs surfaces = SheetsAt({0, 100});
    EXPECT_EQ(DimensionPoint1(dimension, surfaces, {})->x, 0);
    EXPECT_EQ(DimensionPoint1(dimension, surfaces, {})->y, 40);
    EXPECT_EQ(DimensionPoint2(dimension, surfaces, {})->x, 130);
    EXPECT_EQ(DimensionPoint2(dimension, surfaces, {})->y, 0);
}

TEST(NearestDimension, IsTheOneWithTheNearestMiddleAndTheFirstOfEquals) {
    const CRuleSurfs surfaces = SheetsAt({0});
    const auto between = [](int list1, int point1, int list2, int point2) {
        return CDimension{.SurfaceNo2 = 1,
                          .SurfaceNo1 = 1,
                          .ListNo2 = list2,
                          .ListNo1 = list1,
                          .PointNo2 = point2,
                          .PointNo1 = point1};
    };
    CDimensions dimensions;
    dimensions.Add(between(FirstEdgeList, 1, FirstEdgeList, 9));   // no second end
    dimensions.Add(between(FirstEdgeList, 1, FirstEdgeList, 2));   // middle (15, 40)
    dimensions.Add(between(FirstEdgeList, 1, SecondEdgeList, 1));  // middle (0, 20)
    dimensions.Add(between(FirstEdgeList, 2, SecondEdgeList, 2));  // middle (30, 20)
    EXPECT_EQ(NearestDimension({15, 0, 0, 0}, dimensions, surfaces, {}), 3U);
    EXPECT_EQ(NearestDimension({16, 0, 0, 0}, dimensions, surfaces, {}), 4U);
    EXPECT_EQ(NearestDimension({0, 40, 0, 0}, dimensions, surfaces, {}), 2U);
    EXPECT_EQ(NearestDimension({}, {}, surfaces, {}), std::nullopt);
    EXPECT_EQ(NearestDimension({}, dimensions, {}, {}), std::nullopt);
}

}  // namespace
}  // namespace korvet
