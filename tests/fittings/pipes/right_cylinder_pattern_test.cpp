// The right cylinder unrolled: a strip as wide as the circumference, with every ruling in its true length.
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"
#include "tests/fittings/pipes/right_cylinder_samples.h"

namespace korvet {
namespace {

TEST(RightCylinderPattern, IsAsWideAsTheCircumferenceWhereverTheSeamIs) {
    for (const int segs : {1, 2, 3, 7, 12, 144, 1000}) {
        for (const double seam : {0.0, 30.0, 90.0, 123.4, 180.0, 270.0, 359.9, 360.0}) {
            CRightCylinder pipe = TiltedPipe();
            pipe.inputs.segs = segs;
            pipe.inputs.JoinAngle = DegToRad(seam);
            pipe.DevelopModel();
            const C3DPoints& top = *pipe.results.PatternSurface.List1;
            ASSERT_EQ(top.Count(), static_cast<std::size_t>(2 * segs + 1));
            EXPECT_EQ(top.Item(1).x, 0) << segs << " " << seam;
            EXPECT_NEAR(top.Item(top.Count()).x, 376.99111843077515, Near) << segs << " " << seam;
            for (std::size_t i = 1; i < top.Count(); ++i) {
                EXPECT_NEAR(top.Item(i + 1).x - top.Item(i).x, 376.99111843077515 / (2 * segs), Near);
            }
        }
    }
}

TEST(RightCylinderPattern, EveryRulingStandsUprightInItsTrueLength) {
    for (CRightCylinder pipe : {Pipe(), TiltedPipe(), Roof(RoofTop, 20), Roof(RoofOverTracedBase, -20)}) {
        pipe.inputs.HalfPattern = pipe.Offset > 0;
        pipe.DevelopModel();
        const CRuleSurf& pattern = pipe.results.PatternSurface;
        ASSERT_EQ(pattern.List1->Count(), Top(pipe).Count());
        ASSERT_EQ(pattern.List2->Count(), Top(pipe).Count());
        for (std::size_t i = 1; i <= pattern.List1->Count(); ++i) {
            EXPECT_EQ(pattern.List1->Item(i).x, pattern.List2->Item(i).x);
            EXPECT_EQ(pattern.List1->Item(i).y, Top(pipe).Item(i).z);
            EXPECT_EQ(pattern.List2->Item(i).y, Bottom(pipe).Item(i).z);
            EXPECT_EQ(pattern.List1->Item(i).z, 0);
            EXPECT_EQ(pattern.List2->Item(i).z, 0);
            EXPECT_EQ(pattern.List1->Item(i).Flag, Top(pipe).Item(i).Flag);
            EXPECT_EQ(pattern.List2->Item(i).Flag, Bottom(pipe).Item(i).Flag);
        }
        EXPECT_FALSE(pattern.RefPoint);
        EXPECT_FALSE(pattern.LapList1);
        EXPECT_TRUE(pipe.results.warnings.empty());
    }
}

TEST(RightCylinderPattern, DevelopmentLeavesTheModelWhereItStands) {
    CRightCylinder pipe = TiltedPipe();
    pipe.inputs.JoinAngle = DegToRad(90);
    pipe.DevelopModel();
    EXPECT_NEAR(Top(pipe).Item(1).y, 60, Near);
    EXPECT_NEAR(Bottom(pipe).Item(1).y, 60, Near);
    // At 90 degrees the pipe is as high as on the axis, and a quarter further on it is at its lowest.
    EXPECT_NEAR(pipe.results.PatternSurface.List1->Item(1).y, 200, Near);
    EXPECT_NEAR(pipe.results.PatternSurface.List1->Item(7).y, 200 - 60 / std::sqrt(3.0), Near);
    EXPECT_NEAR(pipe.results.PatternSurface.List1->Item(7).x, PI * 30, Near);
}

TEST(RightCylinderPattern, TemplateWrapsRoundTheOutside) {
    for (const int type : {1, 2, -1}) {
        CRightCylinder pipe = TiltedPipe();
        pipe.Thickness = 8;
        pipe.DevelopModel();
        const CRuleSurf plate = pipe.results.PatternSurface;
        EXPECT_NEAR(plate.List1->Item(25).x, 2 * PI * 60, Near);
        pipe.TemplateType = static_cast<std::int16_t>(type);
        pipe.DevelopModel();
        const CRuleSurf& wrapped = pipe.results.PatternSurface;
        EXPECT_NEAR(wrapped.List1->Item(25).x, 2 * PI * 64, Near);
        EXPECT_NEAR(wrapped.List2->Item(13).x, PI * 64, Near);
        for (std::size_t i = 1; i <= 25; ++i) {
            EXPECT_EQ(wrapped.List1->Item(i).y, plate.List1->Item(i).y);
            EXPECT_EQ(wrapped.List2->Item(i).y, plate.List2->Item(i).y);
        }
    }
}

TEST(RightCylinderPattern, HalfOfALevelPipeIsARectangle) {
    CRightCylinder pipe = Pipe();
    pipe.inputs.HalfPattern = true;
    pipe.DevelopModel();
    const CRuleSurf& pattern = pipe.results.PatternSurface;
    ASSERT_EQ(pattern.List1->Count(), 13U);
    EXPECT_NEAR(Distance3D(pattern.List1->Item(1), pattern.List2->Item(13)), std::hypot(PI * 60, 200), Near);
}

// Below 0.0001 past the seam a station counts as the closing one. With 31,416 rule lines the second station
// of the ring stands at 0.000099999, and with 15,708 at 0.0002.
TEST(RightCylinderPattern, AStationJustPastTheSeamCountsAsTheClosingOne) {
    CRightCylinder pipe = Pipe(31416);
    pipe.DevelopModel();
    EXPECT_NEAR(pipe.results.PatternSurface.List1->Item(2).x, 2 * PI * 60, Near);
    EXPECT_NEAR(pipe.results.PatternSurface.List1->Item(3).x, 60 * 2 * 0.00009999976, 1e-6);
    pipe.inputs.segs = 15708;
    pipe.DevelopModel();
    EXPECT_NEAR(pipe.results.PatternSurface.List1->Item(2).x, 60 * 0.0002, 1e-6);
}

TEST(RightCylinderLaps, WidenThePatternOnAllSides) {
    CRightCylinder pipe = TiltedPipe();
    pipe.inputs.JoinType = 1;
    pipe.inputs.LapSize0 = 8;
    pipe.inputs.LapSize1 = 12;
    pipe.inputs.LapSize2 = 5;
    pipe.DevelopModel();
    const CRuleSurf& lapped = pipe.results.PatternSurface;
    ASSERT_EQ(lapped.List1->Count(), 26U);
    ASSERT_EQ(lapped.LapList1->Count(), 26U);
    ASSERT_EQ(lapped.LapList2->Count(), 26U);
    EXPECT_EQ(lapped.List1->Item(25).Flag, CornerRuleStation);
    EXPECT_EQ(lapped.List1->Item(26).Flag, LapClosure);
    EXPECT_NEAR(lapped.List1->Item(26).x, 2 * PI * 60 + 12, Near);
    for (std::size_t i = 1; i <= 25; ++i) {
        EXPECT_NEAR(lapped.List1->Item(i).y, Top(pipe).Item(i).z + 8, Near);
        EXPECT_NEAR(lapped.List2->Item(i).y, Bottom(pipe).Item(i).z - 5, Near);
        EXPECT_NEAR(lapped.LapList1->Item(i).y, Top(pipe).Item(i).z, Near);
    }
    EXPECT_TRUE(pipe.results.warnings.empty());
}

TEST(RightCylinderLaps, NoneWithoutAJoin) {
    CRightCylinder pipe = Pipe();
    pipe.inputs.LapSize0 = pipe.inputs.LapSize1 = pipe.inputs.LapSize2 = 10;
    pipe.DevelopModel();
    EXPECT_EQ(pipe.results.PatternSurface.List1->Count(), 25U);
    EXPECT_EQ(pipe.results.PatternSurface.List1->Item(5).y, 200);
}

// A pipe is turned round its seam once, not station by station: the finest one is done in a moment.
TEST(RightCylinderPattern, CostGrowsWithTheNumberOfStations) {
    CRightCylinder pipe = TiltedPipe();
    pipe.inputs.segs = MaxSegs;
    const auto start = std::chrono::steady_clock::now();
    pipe.DevelopModel();
    EXPECT_EQ(pipe.results.PatternSurface.List1->Count(), 200001U);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

}  // namespace
}  // namespace korvet
