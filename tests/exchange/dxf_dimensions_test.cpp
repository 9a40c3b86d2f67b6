#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "exchange/dxf.h"
#include "tests/exchange/dxf_reading.h"

namespace korvet {
namespace {

using dxf_reading::List;
using Lines = std::vector<std::string>;

struct End {
    int surface = 1;
    int list = 1;
    int point = 1;
};

CDimension Between(const End& first, const End& second) {
    return {second.surface, first.surface, second.list, first.list, second.point, first.point};
}

/// Two surfaces: three stations with a third line and a reference point, and six stations without either.
class DxfDimensions : public testing::Test {
  protected:
    DxfDimensions() {
        CRuleSurf first;
        first.List1 = List("0 0,4 0,8 0");
        first.List2 = List("0 3,4 3,8 3");
        first.List3 = List("0 1,4 1,8 1,8 2");
        first.RefPoint = C3DPoint{-3, -4, 0, 0};
        CRuleSurf second;
        second.List1 = List("0 10,1 10,2 10,3 10,4 10,5 10");
        second.List2 = List("0 12,1 12,2 12,3 12,4 12,5 12");
        dxf_.SurfaceList.Add(first);
        dxf_.SurfaceList.Add(second);
        dxf_.DimensionsRequested = true;
        dxf_.DimensionLayer = "DIM";
        dxf_.TextLayer = "TXT";
        dxf_.Decimals = 1;
    }

    void Add(const End& first, const End& second) { dxf_.DimensionList.Add(Between(first, second)); }

    [[nodiscard]] Lines Written() const { return dxf_reading::DescribeByLayer(dxf_.Text()); }

    /// Whether a dimension from the first point of all to this end is drawn.
    [[nodiscard]] bool Resolves(const End& end) {
        dxf_.DimensionList = {};
        Add({}, end);
        const std::size_t forward = Written().size();
        dxf_.DimensionList = {};
        Add(end, {});
        EXPECT_EQ(Written().size(), forward);
        return forward == 2;
    }

    CDXF dxf_;
};

TEST_F(DxfDimensions, AreALineAndItsLength) {
    Add({1, 1, 1}, {1, 2, 2});
    EXPECT_EQ(Written(), (Lines{"DIM LINE 0,0 4,3", "TXT TEXT 5 at 2,1.5"}));
}

TEST_F(DxfDimensions, FollowTheListNumbers) {
    Add({1, 3, 3}, {2, 1, 2});
    EXPECT_EQ(Written(), (Lines{"DIM LINE 8,1 1,10", "TXT TEXT 11.4 at 4.5,5.5"}));
}

TEST_F(DxfDimensions, EndsThatNameNoPoint) {
    EXPECT_TRUE(Resolves({1, 1, 3}));
    EXPECT_FALSE(Resolves({1, 1, 0}));
    EXPECT_FALSE(Resolves({1, 1, -1}));
    EXPECT_FALSE(Resolves({0, 1, 1}));
    EXPECT_FALSE(Resolves({3, 1, 1}));
    EXPECT_FALSE(Resolves({2, 3, 1}));  // no third line there
    EXPECT_FALSE(Resolves({1, 4, 1}));  // the spare list
    EXPECT_FALSE(Resolves({1, 6, 1}));
    EXPECT_FALSE(Resolves({1, -1, 1}));
}

TEST_F(DxfDimensions, ThePointCountOfTheFirstEdgeOfAllLimitsEveryList) {
    EXPECT_TRUE(Resolves({2, 1, 3}));
    EXPECT_FALSE(Resolves({2, 1, 4}));  // the list has it
    EXPECT_FALSE(Resolves({1, 3, 4}));  // this one too
    EXPECT_TRUE(Resolves({1, 5, 3}));
    EXPECT_FALSE(Resolves({1, 5, 4}));  // the frame has it
}

TEST_F(DxfDimensions, StopAtTheFirstThatIsNotResolved) {
    Add({1, 1, 1}, {1, 1, 2});
    Add({1, 1, 1}, {1, 1, 9});
    Add({1, 1, 1}, {1, 1, 3});
    EXPECT_EQ(Written(), (Lines{"DIM LINE 0,0 4,0", "TXT TEXT 4 at 2,0"}));
}

TEST_F(DxfDimensions, TheFirstEndOnAReferencePointHasPointNumber0) {
    Add({1, 0, 0}, {1, 1, 1});
    EXPECT_EQ(Written(), (Lines{"DIM LINE -3,-4 0,0", "TXT TEXT 5 at -1.5,-2"}));
    dxf_.DimensionList = {};
    Add({1, 0, 1}, {1, 1, 1});
    EXPECT_EQ(Written(), Lines{});
    dxf_.DimensionList = {};
    Add({2, 0, 0}, {1, 1, 1});  // no reference point there
    EXPECT_EQ(Written(), Lines{});
}

TEST_F(DxfDimensions, TheSecondEndOnAReferencePointLooksAtTheFirstPointNumber) {
    Add({1, 1, 1}, {1, 0, 0});
    EXPECT_EQ(Written(), Lines{});
    dxf_.DimensionList = {};
    Add({1, 0, 0}, {1, 0, 2});
    EXPECT_EQ(Written(), (Lines{"DIM LINE -3,-4 -3,-4", "TXT TEXT 0 at -3,-4"}));
}

TEST_F(DxfDimensions, AnEndOnTheFrameNeedsNoFrameOnTheDrawing) {
    Add({0, 5, 3}, {1, 1, 3});
    EXPECT_EQ(Written(), (Lines{"DIM LINE 8,12 8,0", "TXT TEXT 12 at 8,6"}));
}

TEST_F(DxfDimensions, AnEndOnTheFrameOfNothingEndsThem) {
    dxf_.SurfaceList = {};
    dxf_.SurfaceList.Add(CRuleSurf());
    Add({1, 5, 1}, {1, 5, 1});
    EXPECT_EQ(Written(), Lines{});
    dxf_.DimensionList = {};
    Add({1, 5, 0}, {1, 5, 0});
    EXPECT_EQ(Written(), Lines{});
}

TEST_F(DxfDimensions, AreNotWrittenUnasked) {
    Add({1, 1, 1}, {1, 1, 2});
    dxf_.DimensionsRequested = false;
    EXPECT_EQ(Written(), Lines{});
}

}  // namespace
}  // namespace korvet
