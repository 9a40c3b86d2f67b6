#include "exchange/dxf.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "core/checked.h"
#include "tests/exchange/dxf_reading.h"
#include "tests/support/memory_file_store.h"

namespace korvet {
namespace {

using dxf_reading::CrLf;
using dxf_reading::DescribeByLayer;
using dxf_reading::List;
using Lines = std::vector<std::string>;

/// A pattern of five stations on circles of radius 5 and 10 around 0,0, with both kinds of lines asked for.
CDXF Pattern() {
    CRuleSurf surface;
    surface.List1 = List("5 0 1,4 3 0,3 4 1,0 5 3,-3 4 1");
    surface.List2 = List("10 0 1,8 6 0,6 8 1,0 10 1,-6 8 1");
    CDXF dxf;
    dxf.Pattern = true;
    dxf.CutLayer = "CUT";
    dxf.FoldLayer = "FOLD";
    dxf.OutlinesRequested = true;
    dxf.BendLinesRequested = true;
    dxf.SurfaceList.Add(surface);
    dxf.FileName = "cone.dxf";
    return dxf;
}

TEST(Dxf, APatternIsEndsBendLinesAndArcs) {
    EXPECT_EQ(DescribeByLayer(Pattern().Text()),
              (Lines{"CUT LINE 5,0 10,0", "FOLD LINE 3,4 6,8", "FOLD LINE 0,5 0,10", "CUT LINE -3,4 -6,8",
                     "CUT ARC 0,0 r5 0..36.87", "CUT ARC 0,0 r5 36.87..90", "CUT ARC 0,0 r5 90..126.87",
                     "CUT ARC 0,0 r10 0..36.87", "CUT ARC 0,0 r10 36.87..90", "CUT ARC 0,0 r10 90..126.87"}));
}

TEST(Dxf, TheWholeFileByteByByte) {
    CDXF dxf = Pattern();
    CRuleSurf triangle;
    triangle.List1 = List("0 0 1,0 0 1");
    triangle.List2 = List("-1.5 2 1,1.5 2 1");
    dxf.SurfaceList = {};
    dxf.SurfaceList.Add(triangle);
    EXPECT_EQ(
        dxf.Text(),
        CrLf(
            {"0",  "SECTION",  "2",  "ENTITIES", "0",  "LINE",  "8",  "CUT",   "10", " 0 ",    "20", " 0 ",
             "30", " 0 ",      "11", "-1.5 ",    "21", " 2 ",   "31", " 0 ",   "0",  "LINE",   "8",  "CUT",
             "10", " 0 ",      "20", " 0 ",      "30", " 0 ",   "11", " 1.5 ", "21", " 2 ",    "31", " 0 ",
             "0",  "POLYLINE", "8",  "CUT",      "66", "1",     "10", " 0 ",   "20", " 0 ",    "30", " 0 ",
             "0",  "VERTEX",   "8",  "CUT",      "10", " 0 ",   "20", " 0 ",   "30", " 0 ",    "0",  "VERTEX",
             "8",  "CUT",      "10", " 0 ",      "20", " 0 ",   "30", " 0 ",   "0",  "SEQEND", "8",  "CUT",
             "0",  "POLYLINE", "8",  "CUT",      "66", "1",     "10", " 0 ",   "20", " 0 ",    "30", " 0 ",
             "0",  "VERTEX",   "8",  "CUT",      "10", "-1.5 ", "20", " 2 ",   "30", " 0 ",    "0",  "VERTEX",
             "8",  "CUT",      "10", " 1.5 ",    "20", " 2 ",   "30", " 0 ",   "0",  "SEQEND", "8",  "CUT",
             "0",  "ENDSEC",   "0",  "EOF"}));
}

TEST(Dxf, PolylineModeKeepsEveryStation) {
    CDXF dxf = Pattern();
    dxf.PolyMode = PolylineEdges;
    dxf.BendLinesRequested = false;
    EXPECT_EQ(DescribeByLayer(dxf.Text()),
              (Lines{"CUT LINE 5,0 10,0", "CUT LINE -3,4 -6,8", "CUT POLYLINE 5,0 4,3 3,4 0,5 -3,4",
                     "CUT POLYLINE 10,0 8,6 6,8 0,10 -6,8"}));
}

TEST(Dxf, AModelIsLinesWhateverTheEdgeMode) {
    CDXF dxf = Pattern();
    dxf.Pattern = false;
    dxf.SurfaceList.Item(1).List1 = List("5 0 1,4 3 1,4 3 1,3 4 1");
    dxf.SurfaceList.Item(1).List2 = List("0 0 1,0 0 1,0 0 1,0 0 1");
    for (const std::int16_t mode : {ArcEdges, PolylineEdges}) {
        dxf.PolyMode = mode;
        EXPECT_EQ(DescribeByLayer(dxf.Text()),
                  (Lines{"CUT LINE 5,0 0,0", "FOLD LINE 4,3 0,0", "FOLD LINE 4,3 0,0", "CUT LINE 3,4 0,0",
                         "CUT LINE 5,0 4,3", "CUT LINE 4,3 3,4"}));
    }
}

TEST(Dxf, ATwoPointEdgeIsAPolylineInArcModeToo) {
    CDXF dxf = Pattern();
    dxf.SurfaceList.Item(1).List1 = List("0 0,10 0");
    dxf.SurfaceList.Item(1).List2 = List("0 5,10 5 8");
    EXPECT_EQ(DescribeByLayer(dxf.Text()), (Lines{"CUT LINE 0,0 0,5", "CUT LINE 10,0 10,5",
                                                  "CUT POLYLINE 0,0 10,0", "CUT POLYLINE 0,5 10,5"}));
}

TEST(Dxf, OnlyWhatIsAskedFor) {
    CDXF dxf = Pattern();
    dxf.OutlinesRequested = false;
    EXPECT_EQ(DescribeByLayer(dxf.Text()), (Lines{"FOLD LINE 3,4 6,8", "FOLD LINE 0,5 0,10"}));
    dxf.BendLinesRequested = false;
    EXPECT_EQ(DescribeByLayer(dxf.Text()), Lines{});
}

TEST(Dxf, AMeshGoesBeforeItsSurface) {
    CDXF dxf = Pattern();
    dxf.AcadPolygonMesh = true;
    const Lines lines = DescribeByLayer(dxf.Text());
    ASSERT_EQ(lines.size(), 11U);
    EXPECT_EQ(lines[0], "FOLD POLYLINE 5,0 4,3 3,4 0,5 -3,4 10,0 8,6 6,8 0,10 -6,8");
    EXPECT_EQ(lines[1], "CUT LINE 5,0 10,0");
    dxf.OutlinesRequested = false;
    dxf.BendLinesRequested = false;
    EXPECT_EQ(DescribeByLayer(dxf.Text()).size(), 1U);
}

TEST(Dxf, ThirdLineAndLapFoldLinesLieOnTheCutLayerToo) {
    CDXF dxf = Pattern();
    dxf.PolyMode = PolylineEdges;
    CRuleSurf& surface = dxf.SurfaceList.Item(1);
    surface.List1 = List("0 0,9 0");
    surface.List2 = List("0 5,9 5");
    surface.List3 = List("1 1,2 1");
    surface.LapList1 = List("1 2,2 2");
    surface.LapList2 = List("1 3,2 3");
    const Lines lines = DescribeByLayer(dxf.Text());
    EXPECT_EQ(lines,
              (Lines{"CUT LINE 0,0 0,5", "CUT LINE 9,0 9,5", "CUT POLYLINE 0,0 9,0", "CUT POLYLINE 0,5 9,5",
                     "CUT POLYLINE 1,1 2,1", "CUT POLYLINE 1,2 2,2", "CUT POLYLINE 1,3 2,3"}));
    surface.List3 = List("1 1");
    surface.LapList1 = List("");
    surface.LapList2 = nullptr;
    EXPECT_EQ(DescribeByLayer(dxf.Text()).size(), 4U);
}

TEST(Dxf, ASurfaceWithoutBothEdgesIsNothing) {
    CDXF dxf = Pattern();
    dxf.AcadPolygonMesh = true;
    dxf.FrameRequested = true;
    dxf.CoordinatesRequested = true;
    dxf.TrueLengthsRequested = true;
    dxf.SurfaceList.Item(1).List2 = nullptr;
    dxf.SurfaceList.Item(1).List3 = List("1 1 1,2 1 1");
    EXPECT_EQ(DescribeByLayer(dxf.Text()), Lines{});
    dxf.SurfaceList.Item(1).List2 = dxf.SurfaceList.Item(1).List1;
    dxf.SurfaceList.Item(1).List1 = List("1 1");
    EXPECT_EQ(DescribeByLayer(dxf.Text()), Lines{});
}

TEST(Dxf, RulingsOfUnequalEdgesGoUpToTheShorterOne) {
    CDXF dxf = Pattern();
    dxf.PolyMode = PolylineEdges;
    dxf.SurfaceList.Item(1).List1 = List("0 0 1,4 0 1,8 0 1,9 0 1");
    dxf.SurfaceList.Item(1).List2 = List("0 3 1,4 3 1,8 3 1");
    EXPECT_EQ(DescribeByLayer(dxf.Text()),
              (Lines{"CUT LINE 0,0 0,3", "FOLD LINE 4,0 4,3", "CUT LINE 8,0 8,3",
                     "CUT POLYLINE 0,0 4,0 8,0 9,0", "CUT POLYLINE 0,3 4,3 8,3"}));
}

TEST(Dxf, WithoutSurfacesThereIsNoEntity) {
    CDXF dxf = Pattern();
    dxf.SurfaceList = {};
    dxf.LabelRequested = true;
    dxf.LabelPoint = C3DPoint();
    dxf.LabelList.Add({"Label"});
    dxf.FrameRequested = true;
    dxf.DimensionsRequested = true;
    dxf.DimensionList.Add({1, 1, 1, 1, 1, 1});
    EXPECT_EQ(dxf.Text(), CrLf({"0", "SECTION", "2", "ENTITIES", "0", "ENDSEC", "0", "EOF"}));
}

TEST(WriteDXF, PutsTheTextInTheFile) {
    MemoryFileStore files;
    const CDXF dxf = Pattern();
    dxf.WriteDXF(files);
    EXPECT_EQ(files.files.at("cone.dxf"), dxf.Text());
    ASSERT_EQ(files.writes.size(), 1U);
    EXPECT_EQ(files.writes[0].flush, Flush::No);
}

TEST(WriteDXF, AFailureLeavesTheOldFileWhole) {
    MemoryFileStore files;
    files.files["cone.dxf"] = "old";
    files.unwritable.insert("cone.dxf");
    CDXF dxf = Pattern();
    EXPECT_THROW(dxf.WriteDXF(files), FileError);
    EXPECT_EQ(files.files.at("cone.dxf"), "old");

    files.unwritable.clear();
    dxf.SurfaceList.Item(1).List2->Item(5).x = std::numeric_limits<double>::quiet_NaN();
    EXPECT_THROW(dxf.WriteDXF(files), ArithmeticError);
    EXPECT_EQ(files.files.at("cone.dxf"), "old");
}

TEST(WriteDXF, AFailureLeavesNoFileWhereThereWasNone) {
    MemoryFileStore files;
    CDXF dxf = Pattern();
    dxf.SurfaceList.Item(1).List2->Item(5).x = std::numeric_limits<double>::infinity();
    EXPECT_THROW(dxf.WriteDXF(files), ArithmeticError);
    EXPECT_FALSE(files.Exists("cone.dxf"));
}

}  // namespace
}  // namespace korvet
