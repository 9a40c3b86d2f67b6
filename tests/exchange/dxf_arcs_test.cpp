#include "exchange/dxf_arcs.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>
#include <utility>
#include <vector>

#include "tests/exchange/dxf_reading.h"

namespace korvet {
namespace {

using dxf_reading::DescribeAll;
using dxf_reading::Points;
using Lines = std::vector<std::string>;

Triple KindOf(const std::string& text) {
    const C3DPoints p = Points(text);
    return ClassifyTriple(p.Item(1), p.Item(2), p.Item(3));
}

TEST(ClassifyTriple, TellsEveryKind) {
    EXPECT_EQ(KindOf("1 1,1 1,1 1"), Triple::AllCoincide);
    EXPECT_EQ(KindOf("1 1,1 1,2 1"), Triple::FirstPairCoincides);
    EXPECT_EQ(KindOf("1 1,2 1,2 1"), Triple::SecondPairCoincides);
    EXPECT_EQ(KindOf("0 0,3 4,6 8"), Triple::Straight);
    EXPECT_EQ(KindOf("0 0,6 8,3 4"), Triple::DoublesBack);
    EXPECT_EQ(KindOf("0 0,1 0 4,1 1"), Triple::Corner);
    EXPECT_EQ(KindOf("0 0,1 0 5,1 1"), Triple::Corner);
    EXPECT_EQ(KindOf("0 0,1 0,1 1"), Triple::Smooth);
}

TEST(ClassifyTriple, OnlyACornerFlagOfTheMiddlePointMakesACorner) {
    EXPECT_EQ(KindOf("0 0 5,1 0 1,1 1 4"), Triple::Smooth);
    EXPECT_EQ(KindOf("0 0,1 0 9,1 1"), Triple::Smooth);
    EXPECT_EQ(KindOf("0 0,1 0 8,1 1"), Triple::Smooth);
}

TEST(ClassifyTriple, EarlierRowsGoBeforeACornerFlag) {
    EXPECT_EQ(KindOf("1 1,1 1 5,1 1"), Triple::AllCoincide);
    EXPECT_EQ(KindOf("1 1,1 1 5,2 1"), Triple::FirstPairCoincides);
    EXPECT_EQ(KindOf("0 0,3 4 5,6 8"), Triple::Straight);
    EXPECT_EQ(KindOf("0 0,6 8 4,3 4"), Triple::DoublesBack);
    EXPECT_EQ(KindOf("0 0,6 8 4,0 0"), Triple::DoublesBack);
}

TEST(ClassifyTriple, DistancesCountToSixPlaces) {
    EXPECT_EQ(KindOf("0 0,0.0000004 0,1 0"), Triple::FirstPairCoincides);
    EXPECT_EQ(KindOf("0 0,0.0000006 0,1 1"), Triple::Smooth);
    EXPECT_EQ(KindOf("0 0,1 0.0004,2 0"), Triple::Straight);  // each side is 1.00000008
    EXPECT_EQ(KindOf("0 0,1 0.002,2 0"), Triple::Smooth);     // each side is 1.000002
}

C3DPoint OnCircle(const C3DPoint& centre, double radius, double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    return {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle), 0, 0};
}

TEST(ThreePointCentre, FindsTheCentreOfSmallAndLargeCirclesBothWaysRound) {
    for (const double radius : {1.0, 200.0, 1e5}) {
        for (const double step : {-40.0, -7.5, 3.0, 60.0}) {
            const C3DPoint centre{12.5, -3 * radius, 0, 0};
            const C3DPoint found =
                ThreePointCentre(OnCircle(centre, radius, 100), OnCircle(centre, radius, 100 + step),
                                 OnCircle(centre, radius, 100 + 2.5 * step));
            // The angle is rounded to 10 places.
            EXPECT_NEAR(found.x, centre.x, radius * 2e-10 / std::sin(std::fabs(step) / 57.3));
            EXPECT_NEAR(found.y, centre.y, radius * 2e-10 / std::sin(std::fabs(step) / 57.3));
        }
    }
}

TEST(ThreePointCentre, TakesTheSideOfTheMiddlePointWhateverTheSize) {
    // The two candidates lie 2 sqrt(1e10 - 1e4) apart. The right one misses p2 by more than 1e-08 here.
    const C3DPoint right = ThreePointCentre({-100, 0}, {0, 0.05}, {100, 0});
    EXPECT_LT(right.y, -9e4);
    const C3DPoint left = ThreePointCentre({-100, 0}, {0, -0.05}, {100, 0});
    EXPECT_GT(left.y, 9e4);
}

TEST(ThreePointCentre, ATurnTooSmallForTheCosineGetsARadiusOf1e5Chords) {
    const C3DPoint centre = ThreePointCentre({0, 0}, {1, -0.00002}, {2, 0});
    // r = 1 / sin(5e-06), measured along the normal in the middle of the chord.
    EXPECT_NEAR(centre.x, 1, 1e-4);
    EXPECT_NEAR(centre.y, 200000, 1);
}

Lines ArcOf(const std::string& text, ArcPart part) {
    const C3DPoints p = Points(text);
    DxfStream out(0);
    WriteTripleArc(out, p.Item(1), p.Item(2), p.Item(3), "L", part);
    return DescribeAll(out.Finish());
}

TEST(WriteTripleArc, DrawsTheWholeOrEitherPart) {
    const std::string triple = "5 0,4 3,0 5";
    EXPECT_EQ(ArcOf(triple, ArcPart::First), Lines{"ARC 0,0 r5 0..36.87"});
    EXPECT_EQ(ArcOf(triple, ArcPart::Whole), Lines{"ARC 0,0 r5 0..90"});
    EXPECT_EQ(ArcOf(triple, ArcPart::Second), Lines{"ARC 0,0 r5 36.87..90"});
}

TEST(WriteTripleArc, AClockwiseTripleGivesTheSameArcs) {
    const std::string triple = "0 5,4 3,5 0";
    EXPECT_EQ(ArcOf(triple, ArcPart::First), Lines{"ARC 0,0 r5 36.87..90"});
    EXPECT_EQ(ArcOf(triple, ArcPart::Whole), Lines{"ARC 0,0 r5 0..90"});
    EXPECT_EQ(ArcOf(triple, ArcPart::Second), Lines{"ARC 0,0 r5 0..36.87"});
}

TEST(WriteTripleArc, PassesTheZeroBearingEitherWay) {
    EXPECT_EQ(ArcOf("4 -3,4 3,3 4", ArcPart::Whole), Lines{"ARC 0,0 r5 323.13..53.13"});
    EXPECT_EQ(ArcOf("3 4,4 3,4 -3", ArcPart::Second), Lines{"ARC 0,0 r5 323.13..36.87"});
    EXPECT_EQ(ArcOf("4 3,4 -3,3 -4", ArcPart::First), Lines{"ARC 0,0 r5 323.13..36.87"});
    EXPECT_EQ(ArcOf("3 -4,4 -3,4 3", ArcPart::Whole), Lines{"ARC 0,0 r5 306.87..36.87"});
}

TEST(WriteTripleArc, AWholeMoreThanHalfACircleKeepsItsWay) {
    EXPECT_EQ(ArcOf("3 4,-4 3,0 -5", ArcPart::Whole), Lines{"ARC 0,0 r5 53.13..270"});
    EXPECT_EQ(ArcOf("0 -5,-4 3,3 4", ArcPart::Whole), Lines{"ARC 0,0 r5 53.13..270"});
}

TEST(WriteTripleArc, ATurnWithin1e08IsALineOverThePart) {
    EXPECT_EQ(ArcOf("0 0,1 0,2 0.00000001", ArcPart::Whole), Lines{"LINE 0,0 2,0"});
    EXPECT_EQ(ArcOf("0 0,1 0,2 0.00000001", ArcPart::First), Lines{"LINE 0,0 1,0"});
    EXPECT_EQ(ArcOf("0 0,1 0,2 0.00000001", ArcPart::Second), Lines{"LINE 1,0 2,0"});
    EXPECT_TRUE(ArcOf("0 0,1 0,2 0.00000002", ArcPart::Whole)[0].starts_with("ARC"));
}

TEST(WriteTripleArc, AFullTurnOfBearingIsNoTurn) {
    // Bearings 0.0000002 and 6.2831851: the directions differ by 4e-07.
    EXPECT_EQ(ArcOf("0 0,1 0.0000002,2 0", ArcPart::Whole), Lines{"LINE 0,0 2,0"});
}

TEST(WriteTripleArc, LinesWhereTheCircleMissesItsPoints) {
    // The cosine at the middle point rounds to -1: a circle of 1e05 chords would pass it at 0.0375.
    const std::string flat = "0 0,1000 0.04,2000 0";
    EXPECT_EQ(ArcOf(flat, ArcPart::First), Lines{"LINE 0,0 1000,0.04"});
    EXPECT_EQ(ArcOf(flat, ArcPart::Whole), (Lines{"LINE 0,0 1000,0.04", "LINE 1000,0.04 2000,0"}));
    EXPECT_EQ(ArcOf(flat, ArcPart::Second), Lines{"LINE 1000,0.04 2000,0"});
}

TEST(WriteTripleArc, LinesWhereThereIsNoCircle) {
    EXPECT_EQ(ArcOf("1 -0.000000001,0 0,1 0", ArcPart::Whole), (Lines{"LINE 1,0 0,0", "LINE 0,0 1,0"}));
}

TEST(WriteTripleArc, LinesWhereTheArcWouldGoTheWrongWayRound) {
    // From 0 over 250 to 260 degrees: p1 to p2 is the long way, while arcs run the short way.
    const C3DPoint p1 = OnCircle({}, 10, 0);
    const C3DPoint p2 = OnCircle({}, 10, 250);
    const C3DPoint p3 = OnCircle({}, 10, 260);
    for (const auto& [part, count] : {std::pair(ArcPart::First, 1), std::pair(ArcPart::Whole, 2)}) {
        DxfStream out(0);
        WriteTripleArc(out, p1, p2, p3, "L", part);
        const Lines lines = DescribeAll(out.Finish());
        EXPECT_EQ(lines.size(), static_cast<std::size_t>(count));
        EXPECT_EQ(lines[0], "LINE 10,0 -3.42,-9.397");
    }
}

TEST(WriteTripleArc, ALineWhereTheAnglesWouldBeEqualAsWritten) {
    // 1e-07 on a radius of 500 is 1e-08 degrees: readers would draw a full circle.
    const C3DPoint p1{500, 0};
    const C3DPoint p2{500, 1e-07};
    const C3DPoint p3 = OnCircle({}, 500, 20);
    DxfStream out(0);
    WriteTripleArc(out, p1, p2, p3, "L", ArcPart::First);
    WriteTripleArc(out, p1, p2, p3, "L", ArcPart::Whole);
    const auto entities = dxf_reading::ReadEntities(out.Finish());
    ASSERT_EQ(entities.size(), 2U);
    EXPECT_EQ(dxf_reading::Describe(entities[0]), "LINE 500,0 500,0");
    EXPECT_EQ(entities[1].kind, "ARC");
    EXPECT_NEAR(dxf_reading::Course(entities[1]).Length(), 500 * 20 * std::numbers::pi / 180, 1e-4);
}

TEST(WriteTripleArc, LinesWhereTheAnglesAsWrittenMissAnEnd) {
    // On a radius of 1e06 the sixth place of a degree is 0.017 units.
    const auto kindFrom = [](double degrees) {
        DxfStream out(0);
        WriteTripleArc(out, OnCircle({}, 1e6, degrees), OnCircle({}, 1e6, 10.0065), OnCircle({}, 1e6, 10.013),
                       "L", ArcPart::Whole);
        const auto entities = dxf_reading::ReadEntities(out.Finish());
        return entities[0].kind + (entities.size() == 2 ? " twice" : "");
    };
    EXPECT_EQ(kindFrom(10), "ARC");
    EXPECT_EQ(kindFrom(10.00000005), "ARC");         // written 0.0009 units before its start
    EXPECT_EQ(kindFrom(10.00000007), "LINE twice");  // 0.0012 units before it
    EXPECT_EQ(kindFrom(9.99999995), "ARC");          // 0.0009 units behind it
    EXPECT_EQ(kindFrom(9.99999993), "LINE twice");   // 0.0012 units behind it
}

TEST(WriteTripleArc, KeepsTheHeightOfItsPoints) {
    DxfStream out(0);
    WriteTripleArc(out, {5, 0, 7}, {4, 3, 7}, {0, 5, 7}, "L", ArcPart::Whole);
    EXPECT_EQ(dxf_reading::ReadEntities(out.Finish())[0].Word(30), " 7 ");
}

}  // namespace
}  // namespace korvet
