#include "exchange/dxf_annotations.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/exchange/dxf_reading.h"

namespace korvet {
namespace {

using dxf_reading::DescribeByLayer;
using dxf_reading::Entity;
using dxf_reading::List;
using dxf_reading::ReadEntities;
using Lines = std::vector<std::string>;

CRuleSurf Surface(const std::string& list1, const std::string& list2, const std::string& list3 = "") {
    CRuleSurf surface;
    surface.List1 = List(list1);
    surface.List2 = List(list2);
    surface.List3 = list3.empty() ? nullptr : List(list3);
    return surface;
}

/// A writer that has been asked for nothing yet.
CDXF Drawing(const CRuleSurf& surface) {
    CDXF dxf;
    dxf.Pattern = true;
    dxf.DimensionLayer = "DIM";
    dxf.TextLayer = "TXT";
    dxf.CutLayer = "CUT";
    dxf.FoldLayer = "FOLD";
    dxf.Decimals = 2;
    dxf.TextSize = 3;
    dxf.SurfaceList.Add(surface);
    return dxf;
}

/// A strip 8 wide and 3 high, with a plain station between its three rule stations.
CRuleSurf Strip() {
    return Surface("0 0 1,2 0 0,4 0 1,8 0 1", "0 3 1,2 3 0,4 3 1,8 3 1");
}

TEST(DxfTrueLengths, AreTheSidesAndRulingsOfTheRuleStations) {
    CDXF dxf = Drawing(Strip());
    dxf.TrueLengthsRequested = true;
    EXPECT_EQ(DescribeByLayer(dxf.Text()),
              (Lines{"TXT TEXT 4 at 2,0", "TXT TEXT 4 at 2,3", "TXT TEXT 3 at 0,1.5", "TXT TEXT 4 at 6,0",
                     "TXT TEXT 4 at 6,3", "TXT TEXT 3 at 4,1.5", "TXT TEXT 3 at 8,1.5"}));
}

TEST(DxfTrueLengths, StandAlongTheirLengthCentredAndRounded) {
    CDXF dxf = Drawing(Surface("0 0 1,0 0 0", "1 1 1,2 2 0"));
    dxf.TrueLengthsRequested = true;
    const std::vector<Entity> entities = ReadEntities(dxf.Text());
    ASSERT_EQ(entities.size(), 1U);
    EXPECT_EQ(entities[0].Word(1), "1.41");
    EXPECT_EQ(entities[0].Word(10), " 0.5 ");
    EXPECT_EQ(entities[0].Word(11), " 0.5 ");
    EXPECT_EQ(entities[0].Word(40), " 3 ");
    EXPECT_EQ(entities[0].Word(72), " 1 ");
    EXPECT_NEAR(entities[0].Number(50), 45, 1e-9);
}

TEST(DxfTrueLengths, FollowTheThirdLine) {
    CDXF dxf = Drawing(Surface("0 0 1,8 0 0", "0 3 1,8 3 0", "0 1 1,3 1 0,6 1 1,6 5 1"));
    dxf.TrueLengthsRequested = true;
    EXPECT_EQ(DescribeByLayer(dxf.Text()),
              (Lines{"TXT TEXT 3 at 0,1.5", "TXT TEXT 6 at 3,1", "TXT TEXT 4 at 6,3"}));
}

TEST(DxfTrueLengths, GoUpToTheShorterEdge) {
    CDXF dxf = Drawing(Surface("0 0 1,4 0 1,8 0 1", "0 3 1,4 3 1,8 3 0"));
    dxf.TrueLengthsRequested = true;
    EXPECT_EQ(DescribeByLayer(dxf.Text()), (Lines{"TXT TEXT 4 at 2,0", "TXT TEXT 4 at 2,3",
                                                  "TXT TEXT 3 at 0,1.5", "TXT TEXT 3 at 4,1.5"}));
    dxf.DiagonalsRequested = true;
    dxf.TrueLengthsRequested = false;
    EXPECT_EQ(DescribeByLayer(dxf.Text()), (Lines{"DIM LINE 0,0 4,3", "TXT TEXT 5 at 2,1.5"}));
}

TEST(DxfDiagonals, RunFromEachRuleStationToTheNextOppositeOne) {
    CDXF dxf = Drawing(Strip());
    dxf.DiagonalsRequested = true;
    EXPECT_EQ(DescribeByLayer(dxf.Text()),
              (Lines{"DIM LINE 0,0 4,3", "TXT TEXT 5 at 2,1.5", "DIM LINE 4,0 8,3", "TXT TEXT 5 at 6,1.5"}));
}

TEST(DxfAnnotations, DecimalsBeyondWhatANumberHoldsCountAsFifteen) {
    CDXF dxf = Drawing(Surface("0 0 1,0 0 0", "0.75 1 1,2 2 0"));
    dxf.TrueLengthsRequested = true;
    dxf.Decimals = 40;
    EXPECT_EQ(ReadEntities(dxf.Text())[0].Word(1), "1.25");
    dxf.Decimals = -1;
    EXPECT_EQ(ReadEntities(dxf.Text())[0].Word(1), "1");
}

TEST(DxfLabel, StandsLineUnderLineTwoTextHeightsApart) {
    CDXF dxf = Drawing(Strip());
    dxf.LabelRequested = true;
    dxf.LabelPoint = C3DPoint{100, 50, 0, 0};
    dxf.LabelList.Add({"Right cone"});
    dxf.LabelList.Add({""});
    dxf.LabelList.Add({"Thickness = 3"});
    EXPECT_EQ(DescribeByLayer(dxf.Text()), (Lines{"TXT TEXT Right cone at 100,50", "TXT TEXT  at 100,44",
                                                  "TXT TEXT Thickness = 3 at 100,38"}));
    const Entity first = ReadEntities(dxf.Text())[0];
    EXPECT_EQ(first.Word(72), " 1 ");
    EXPECT_EQ(first.Word(50), " 0 ");
}

TEST(DxfLabel, IsNothingWithoutAPlace) {
    CDXF dxf = Drawing(Strip());
    dxf.LabelRequested = true;
    dxf.LabelList.Add({"Right cone"});
    EXPECT_EQ(DescribeByLayer(dxf.Text()), Lines{});
}

TEST(BuildDXFFrame, HoldsBothEdgesOfAllSurfacesAndNoOtherLine) {
    CRuleSurfs surfaces;
    surfaces.Add(Surface("3 4,5 4", "3 9,5 6", "-100 -100,200 200"));
    surfaces.Add(Surface("-1 7,2 7", "-1 8,2 8"));
    const auto frame = BuildDXFFrame(surfaces);
    ASSERT_TRUE(frame);
    Lines corners;
    for (const C3DPoint& corner : *frame) {
        corners.push_back(dxf_reading::Short(corner));
    }
    EXPECT_EQ(corners, (Lines{"-1,4", "5,4", "5,9", "-1,9", "-1,4"}));
}

TEST(BuildDXFFrame, IsNothingWithoutEdges) {
    CRuleSurfs surfaces;
    EXPECT_FALSE(BuildDXFFrame(surfaces));
    surfaces.Add(CRuleSurf());
    EXPECT_FALSE(BuildDXFFrame(surfaces));
    surfaces.Add(Surface("3 4,5 4", "3 9,5 6"));
    EXPECT_EQ((*BuildDXFFrame(surfaces))[0].x, 3);
}

TEST(DxfFrame, HasItsSidesTwoLengthsAndTheArea) {
    CDXF dxf = Drawing(Surface("1 0,9 0", "1 3.5,9 3.5"));
    dxf.FrameRequested = true;
    EXPECT_EQ(DescribeByLayer(dxf.Text()),
              (Lines{"DIM LINE 1,0 9,0", "DIM LINE 9,0 9,3.5", "DIM LINE 9,3.5 1,3.5", "DIM LINE 1,3.5 1,0",
                     "TXT TEXT 8 at 5,3.5", "TXT TEXT 3.5 at 1,1.75", "TXT TEXT Area = 28 at 9,3.5"}));
    const std::vector<Entity> entities = ReadEntities(dxf.Text());
    EXPECT_EQ(entities[4].Word(50), " 0 ");
    EXPECT_EQ(entities[5].Word(50), " 90 ");
    EXPECT_EQ(entities[6].Word(50), " 0 ");
    EXPECT_EQ(entities[6].Word(72), " 2 ");
}

/// The grid behind the four lines of its frame.
std::vector<Entity> GridOf(const std::string& list1, const std::string& list2,
                           const std::string& list3 = "") {
    CDXF dxf = Drawing(Surface(list1, list2, list3));
    dxf.CoordinatesRequested = true;
    std::vector<Entity> entities = ReadEntities(dxf.Text());
    EXPECT_GE(entities.size(), 4U);
    entities.erase(entities.begin(), entities.begin() + 4);
    return entities;
}

std::string TextForm(const Entity& text) {
    return text.Word(1) + " just" + text.Word(72) + "angle" + text.Word(50) + "at " +
           dxf_reading::Short(text.Point(10));
}

TEST(DxfGrid, LeadsFromEachRuleStationToTheNearerEdges) {
    // One rule station at 4, 2 in a frame from 1, 0 to 11, 6.
    const auto grid = GridOf("1 0,4 2 1,11 0", "1 6,4 6,11 6");
    ASSERT_EQ(grid.size(), 4U);
    EXPECT_EQ(dxf_reading::Describe(grid[0]), "LINE 4,2 1,2");
    EXPECT_EQ(TextForm(grid[1]), "2 just 2 angle 0 at 1,2");
    EXPECT_EQ(dxf_reading::Describe(grid[2]), "LINE 4,2 4,0");
    EXPECT_EQ(TextForm(grid[3]), "3 just 2 angle 90 at 4,0");
    EXPECT_EQ(grid[0].Layer(), "DIM");
    EXPECT_EQ(grid[1].Layer(), "TXT");
}

TEST(DxfGrid, LeadsToTheRightAndToTheTop) {
    const auto grid = GridOf("1 0,8 5 1,11 0", "1 6,4 6,11 6");
    ASSERT_EQ(grid.size(), 4U);
    EXPECT_EQ(dxf_reading::Describe(grid[0]), "LINE 8,5 11,5");
    EXPECT_EQ(TextForm(grid[1]), "5 just 0 angle 0 at 11,5");
    EXPECT_EQ(dxf_reading::Describe(grid[2]), "LINE 8,5 8,6");
    EXPECT_EQ(TextForm(grid[3]), "7 just 0 angle 90 at 8,6");
}

TEST(DxfGrid, InTheMiddleTheRightAndTheTopEdgeWin) {
    const auto grid = GridOf("1 0,6 3 1,11 0", "1 6,4 6,11 6");
    ASSERT_EQ(grid.size(), 4U);
    EXPECT_EQ(dxf_reading::Describe(grid[0]), "LINE 6,3 11,3");
    EXPECT_EQ(dxf_reading::Describe(grid[2]), "LINE 6,3 6,6");
}

/// What the grid holds for one station of a frame from 1, 0 to 11, 6, a leader or a text each.
Lines GridAt(const std::string& station) {
    Lines lines;
    for (const Entity& entity : GridOf("1 0," + station + " 1,11 0", "1 6,4 6,11 6")) {
        lines.push_back(entity.kind == "TEXT" ? TextForm(entity) : dxf_reading::Describe(entity));
    }
    return lines;
}

TEST(DxfGrid, AStationOnTheFrameHasBothTextsAndNoLeaderToItsOwnSide) {
    EXPECT_EQ(GridAt("4 0"), (Lines{"LINE 4,0 1,0", "0 just 2 angle 0 at 1,0", "3 just 2 angle 90 at 4,0"}));
    EXPECT_EQ(GridAt("4 6"), (Lines{"LINE 4,6 1,6", "6 just 2 angle 0 at 1,6", "3 just 0 angle 90 at 4,6"}));
    EXPECT_EQ(GridAt("1 2"), (Lines{"2 just 2 angle 0 at 1,2", "LINE 1,2 1,0", "0 just 2 angle 90 at 1,0"}));
    EXPECT_EQ(GridAt("11 2"),
              (Lines{"2 just 0 angle 0 at 11,2", "LINE 11,2 11,0", "10 just 2 angle 90 at 11,0"}));
    EXPECT_EQ(GridAt("11 6"), (Lines{"6 just 0 angle 0 at 11,6", "10 just 0 angle 90 at 11,6"}));
}

TEST(DxfGrid, ALeaderWithinTheNoiseOfRoundingIsNoLine) {
    EXPECT_EQ(GridAt("4 0.000000009").size(), 3U);
    EXPECT_EQ(GridAt("4 0.000000011").size(), 4U);
}

TEST(DxfGrid, TakesTheEdgesAndTheThirdLineWhereItHasMoreThanOnePoint) {
    EXPECT_EQ(GridOf("1 0,4 2 1,11 0", "1 6,4 5 1,11 6").size(), 8U);
    EXPECT_EQ(GridOf("1 0,4 2 1,11 0", "1 6,4 5 1,11 6", "2 2 1").size(), 8U);
    EXPECT_EQ(GridOf("1 0,4 2 1,11 0", "1 6,4 5 1,11 6", "2 2 1,3 3 0").size(), 12U);
}

TEST(DxfGrid, DrawsItsFrameWithoutText) {
    CDXF dxf = Drawing(Surface("1 0,9 0", "1 3,9 3"));
    dxf.CoordinatesRequested = true;
    EXPECT_EQ(DescribeByLayer(dxf.Text()),
              (Lines{"DIM LINE 1,0 9,0", "DIM LINE 9,0 9,3", "DIM LINE 9,3 1,3", "DIM LINE 1,3 1,0"}));
}

TEST(DxfAnnotations, ComeInTheirOrder) {
    CDXF dxf = Drawing(Surface("0 0 1,8 0 0,8 0 1", "0 6 1,8 6 0,8 6 1"));
    dxf.FrameRequested = true;
    dxf.CoordinatesRequested = true;
    dxf.LabelRequested = true;
    dxf.DiagonalsRequested = true;
    dxf.TrueLengthsRequested = true;
    dxf.DimensionsRequested = true;
    dxf.LabelPoint = C3DPoint{50, 50, 0, 0};
    dxf.LabelList.Add({"Label"});
    dxf.DimensionList.Add({1, 1, 2, 1, 1, 3});
    const Lines lines = DescribeByLayer(dxf.Text());
    ASSERT_EQ(lines.size(), 2U + 4 + 2 + 1 + (4 + 8) + 7);
    EXPECT_EQ(lines[0], "DIM LINE 8,0 0,6");               // the dimension
    EXPECT_EQ(lines[2], "TXT TEXT 8 at 4,0");              // the first true length
    EXPECT_EQ(lines[6], "DIM LINE 0,0 8,6");               // the diagonal
    EXPECT_EQ(lines[8], "TXT TEXT Label at 50,50");        // the label
    EXPECT_EQ(lines[9], "DIM LINE 0,0 8,0");               // the frame of the grid
    EXPECT_EQ(lines.back(), "TXT TEXT Area = 48 at 8,6");  // the frame
}

}  // namespace
}  // namespace korvet
