#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "exchange/dxf_arcs.h"
#include "tests/exchange/dxf_reading.h"

namespace korvet {
namespace {

using Lines = std::vector<std::string>;

/// What an edge through the points goes out as. Stations of the circle around 0,0 with radius 5 have whole
/// coordinates: 5 0 (0 degrees), 4 3 (36.87), 3 4 (53.13), 0 5 (90), -3 4 (126.87), -4 3 (143.13), -5 0
/// (180).
Lines PathOf(const std::string& points) {
    DxfStream out(0);
    WriteArcPath(out, dxf_reading::Points(points), "L");
    return dxf_reading::DescribeAll(out.Finish());
}

TEST(WriteArcPath, AnOddCountGoesByTwoWithHalfSteps) {
    EXPECT_EQ(PathOf("5 0,4 3,3 4,0 5,-3 4"),
              (Lines{"ARC 0,0 r5 0..36.87", "ARC 0,0 r5 36.87..90", "ARC 0,0 r5 90..126.87"}));
    EXPECT_EQ(PathOf("-3 4,0 5,3 4,4 3,5 0"),
              (Lines{"ARC 0,0 r5 90..126.87", "ARC 0,0 r5 36.87..90", "ARC 0,0 r5 0..36.87"}));
}

TEST(WriteArcPath, AnEvenCountWritesTheLastSegmentTwice) {
    EXPECT_EQ(PathOf("5 0,4 3,3 4,0 5"),
              (Lines{"ARC 0,0 r5 0..36.87", "ARC 0,0 r5 36.87..90", "ARC 0,0 r5 53.13..90"}));
}

TEST(WriteArcPath, ThreePointsAreTwoHalves) {
    EXPECT_EQ(PathOf("5 0,4 3,3 4"), (Lines{"ARC 0,0 r5 0..36.87", "ARC 0,0 r5 36.87..53.13"}));
}

TEST(WriteArcPath, TheFirstSegmentByTheKindOfTheFirstTriple) {
    EXPECT_EQ(PathOf("1 1,1 1,1 1"), Lines{});
    EXPECT_EQ(PathOf("1 1,1 1,2 1"), Lines{"LINE 1,1 2,1"});                      // from the last step
    EXPECT_EQ(PathOf("1 1,2 1,2 1"), Lines{"LINE 1,1 2,1"});                      // from the first step
    EXPECT_EQ(PathOf("0 0,1 0,3 0"), (Lines{"LINE 0,0 1,0", "LINE 1,0 3,0"}));    // straight
    EXPECT_EQ(PathOf("0 0,3 0,1 0"), (Lines{"LINE 0,0 3,0", "LINE 3,0 1,0"}));    // doubles back
    EXPECT_EQ(PathOf("5 0,4 3 4,3 4"), (Lines{"LINE 5,0 4,3", "LINE 4,3 3,4"}));  // a corner
}

TEST(WriteArcPath, Row1WritesNothingWhereAllCoincide) {
    EXPECT_EQ(PathOf("5 0,4 3,4 3,4 3,0 5"), (Lines{"LINE 5,0 4,3", "LINE 4,3 0,5"}));
}

TEST(WriteArcPath, Row2StartsAnArcBehindADoubledPoint) {
    EXPECT_EQ(PathOf("5 0,4 3,4 3,3 4,0 5"),
              (Lines{"LINE 5,0 4,3", "ARC 0,0 r5 36.87..53.13", "ARC 0,0 r5 53.13..90"}));
}

TEST(WriteArcPath, Row2WritesALineWhereTheNextTripleIsNotSmooth) {
    EXPECT_EQ(PathOf("5 0,4 3,4 3,3 4,2 5"), (Lines{"LINE 5,0 4,3", "LINE 4,3 3,4", "LINE 3,4 2,5"}));
}

TEST(WriteArcPath, Row2WritesALineWhereTheListEnds) {
    EXPECT_EQ(PathOf("5 0,4 3,4 3,3 4"), (Lines{"LINE 5,0 4,3", "LINE 4,3 3,4", "LINE 4,3 3,4"}));
}

TEST(WriteArcPath, Row3EndsAnArcBeforeADoubledPoint) {
    EXPECT_EQ(PathOf("5 0,4 3,3 4,3 4,0 5"),
              (Lines{"ARC 0,0 r5 0..36.87", "ARC 0,0 r5 36.87..53.13", "LINE 3,4 0,5"}));
}

TEST(WriteArcPath, Row3LosesNoSegmentWhereTheTripleBeforeIsNotSmooth) {
    EXPECT_EQ(PathOf("0 0,10 0,20 0,20 0,20 10"),
              (Lines{"LINE 0,0 10,0", "LINE 10,0 20,0", "LINE 20,0 20,10"}));
    EXPECT_EQ(PathOf("0 0,10 0 4,10 5,10 5,20 10"),
              (Lines{"LINE 0,0 10,0", "LINE 10,0 10,5", "LINE 10,5 20,10"}));
}

TEST(WriteArcPath, Row3EndsItsLineInTheLastOfTheCoincidingPoints) {
    // The points lie 4e-07 apart, which is no distance, yet their sixth places differ.
    DxfStream out(0);
    WriteArcPath(out, dxf_reading::Points("0 0,10 0 4,10 5.0000002,10 5.0000006,20 10"), "L");
    const auto entities = dxf_reading::ReadEntities(out.Finish());
    ASSERT_EQ(entities.size(), 3U);
    EXPECT_EQ(entities[1].Word(21), " 5.000001 ");
    EXPECT_EQ(entities[2].Word(20), " 5.000001 ");
}

TEST(WriteArcPath, Row4LaysOneLineOverTwoStraightSegments) {
    EXPECT_EQ(PathOf("0 0,10 0,20 0,30 0,40 0,50 0,60 0"),
              (Lines{"LINE 0,0 10,0", "LINE 10,0 30,0", "LINE 30,0 50,0", "LINE 50,0 60,0"}));
}

TEST(WriteArcPath, Row4KeepsAPointThatOneLineWouldMiss) {
    // Sides of 100.00000008 and 100: straight at 6 places, with the middle point 0.004 off the line.
    EXPECT_EQ(
        PathOf("100 50,100 0,200 0.004,300 0,300 50"),
        (Lines{"LINE 100,50 100,0", "LINE 100,0 200,0.004", "LINE 200,0.004 300,0", "LINE 300,0 300,50"}));
    EXPECT_EQ(PathOf("100 50,100 0,200 0.0009,300 0,300 50"),
              (Lines{"LINE 100,50 100,0", "LINE 100,0 300,0", "LINE 300,0 300,50"}));
}

TEST(WriteArcPath, Row5WritesBothSegmentsWhereTheEdgeDoublesBack) {
    EXPECT_EQ(PathOf("0 0,10 0,20 0,15 0,10 0"),
              (Lines{"LINE 0,0 10,0", "LINE 10,0 20,0", "LINE 20,0 15,0", "LINE 15,0 10,0"}));
}

TEST(WriteArcPath, Row6KeepsACornerBetweenTwoArcs) {
    // Two circles of radius 5, around 0,0 and around 0,10, meet in 0,5.
    for (const char* flag : {"4", "5"}) {
        EXPECT_EQ(PathOf(std::string("4 3,3 4,0 5 ") + flag + ",3 6,4 7"),
                  (Lines{"ARC 0,0 r5 36.87..53.13", "ARC 0,0 r5 53.13..90", "ARC 0,10 r5 270..306.87",
                         "ARC 0,10 r5 306.87..323.13"}));
    }
}

TEST(WriteArcPath, Row6BetweenALineAndAnArc) {
    EXPECT_EQ(
        PathOf("6 5,3 5,0 5 4,3 6,4 7"),
        (Lines{"LINE 6,5 3,5", "LINE 3,5 0,5", "ARC 0,10 r5 270..306.87", "ARC 0,10 r5 306.87..323.13"}));
}

TEST(WriteArcPath, Row6BetweenAnArcAndALine) {
    EXPECT_EQ(PathOf("4 3,3 4,0 5 4,3 5,6 5"),
              (Lines{"ARC 0,0 r5 36.87..53.13", "ARC 0,0 r5 53.13..90", "LINE 0,5 3,5", "LINE 3,5 6,5"}));
}

TEST(WriteArcPath, Row6AtTheEndOfTheList) {
    EXPECT_EQ(PathOf("4 3,3 4,0 5 4,3 6"),
              (Lines{"ARC 0,0 r5 36.87..53.13", "ARC 0,0 r5 53.13..90", "LINE 0,5 3,6", "LINE 0,5 3,6"}));
}

TEST(WriteArcPath, TheEndOfASeamLapIsNoPartOfTheCurve) {
    EXPECT_EQ(PathOf("5 0,4 3,3 4 5,1 6 8"),
              (Lines{"ARC 0,0 r5 0..36.87", "ARC 0,0 r5 36.87..53.13", "LINE 3,4 1,6"}));
    EXPECT_EQ(PathOf("5 0,4 3,3 4,0 5 5,0 9 8"),
              (Lines{"ARC 0,0 r5 0..36.87", "ARC 0,0 r5 36.87..90", "ARC 0,0 r5 53.13..90", "LINE 0,5 0,9"}));
}

/// The kinds of the entities of an S-shaped edge of radius 1e05 that turns over between its second point, at
/// `degrees` as seen from the first centre, and its third, which the second centre sees at 190.
std::string KindsOfSCurve(double degrees) {
    const auto around = [](const C3DPoint& centre, double bearing) {
        const double angle = bearing * std::numbers::pi / 180;
        return C3DPoint{centre.x + 1e5 * std::cos(angle), centre.y + 1e5 * std::sin(angle), 0, 0};
    };
    const C3DPoint p2 = around({}, degrees);
    const C3DPoint p3 = around({}, 10.1000004);
    const C3DPoint other{p2.x + p3.x, p2.y + p3.y, 0, 0};
    C3DPoints list;
    for (const C3DPoint& p : {around({}, 9.9), p2, p3, around(other, 189.9000004), around(other, 189.8)}) {
        list.Add(p);
    }
    DxfStream out(0);
    WriteArcPath(out, list, "L");
    std::string kinds;
    for (const dxf_reading::Entity& entity : dxf_reading::ReadEntities(out.Finish())) {
        kinds += entity.kind + " ";
    }
    return kinds;
}

TEST(WriteArcPath, OfTwoArcsThatBothMissTheirJointAsWrittenTheSecondIsLines) {
    // The sixth place of a degree is 0.0017 units here. The second arc ends 0.0007 units short of the joint;
    // 10.0000006 is written as 10.000001, so that the first reaches over it, and 10.0000004 as 10.
    EXPECT_EQ(KindsOfSCurve(10.0000006), "ARC ARC ARC ");
    EXPECT_EQ(KindsOfSCurve(10.0000004), "ARC LINE LINE ARC ");
}

TEST(WriteArcPath, TwoPointsWithALapAreTwoLines) {
    EXPECT_EQ(PathOf("0 0,10 0 5,10 3 8"), (Lines{"LINE 0,0 10,0", "LINE 10,0 10,3"}));
}

TEST(WriteArcPath, TwoPointsAreOneLineAndOneIsNothing) {
    EXPECT_EQ(PathOf("0 0,10 0"), Lines{"LINE 0,0 10,0"});
    EXPECT_EQ(PathOf("0 0,10 0 8"), Lines{"LINE 0,0 10,0"});
    EXPECT_EQ(PathOf("0 0"), Lines{});
    EXPECT_EQ(PathOf(""), Lines{});
}

}  // namespace
}  // namespace korvet
