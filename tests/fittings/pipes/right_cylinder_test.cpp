// The right cylinder as a model against closed forms: its edges lie on the pipe and on the planes that cut
// it.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "core/constants.h"
#include "core/math_module.h"
#include "tests/fittings/pipes/right_cylinder_samples.h"

namespace korvet {
namespace {

TEST(RightCylinderModel, HasAStationBetweenEachTwoRuleLines) {
    CRightCylinder pipe = Pipe();
    pipe.ConstructModel();
    ASSERT_EQ(Top(pipe).Count(), 25U);
    ASSERT_EQ(Bottom(pipe).Count(), 25U);
    const std::vector<std::size_t> odd = {1, 3, 5, 7, 9, 11, 13, 15, 17, 19, 21, 23, 25};
    EXPECT_EQ(StationsFlagged(Top(pipe), RuleStation), odd);
    EXPECT_EQ(StationsFlagged(Bottom(pipe), RuleStation), odd);
    EXPECT_EQ(StationsFlagged(Top(pipe), PlainStation).size(), 12U);
    // Rule lines are 30 degrees apart.
    EXPECT_NEAR(Top(pipe).Item(3).x, 60 * std::sqrt(3.0) / 2, Near);
    EXPECT_NEAR(Top(pipe).Item(3).y, 30, Near);
    EXPECT_LT(Distance3D(Top(pipe).Item(1), Top(pipe).Item(25)), Near);
}

TEST(RightCylinderModel, SquareEndsLieAtTheirHeights) {
    CRightCylinder pipe = Pipe();
    pipe.CPHeight2 = -15;
    pipe.ConstructModel();
    for (std::size_t i = 1; i <= 25; ++i) {
        ExpectOnPipe(Top(pipe).Item(i));
        ExpectOnPipe(Bottom(pipe).Item(i));
        EXPECT_NEAR(Top(pipe).Item(i).z, 200, Near);
        EXPECT_NEAR(Bottom(pipe).Item(i).z, -15, Near);
    }
}

TEST(RightCylinderModel, TiltedEndsLieOnTheirPlanes) {
    for (const int segs : {1, 2, 7, 12}) {
        for (const double seam : {0.0, 1.0, DegToRad(90), DegToRad(275)}) {
            CRightCylinder pipe = TiltedPipe();
            pipe.inputs.segs = segs;
            pipe.inputs.JoinAngle = seam;
            pipe.ConstructModel();
            ASSERT_EQ(Top(pipe).Count(), static_cast<std::size_t>(2 * segs + 1));
            EXPECT_NEAR(PlanAngle({}, Top(pipe).Item(1)), seam, Near);
            for (std::size_t i = 1; i <= Top(pipe).Count(); ++i) {
                const C3DPoint& top = Top(pipe).Item(i);
                const C3DPoint& bottom = Bottom(pipe).Item(i);
                ExpectOnPipe(top);
                EXPECT_EQ(top.x, bottom.x);
                EXPECT_EQ(top.y, bottom.y);
                // The top rises towards +x at 30 degrees, the bottom falls at 20.
                EXPECT_NEAR(top.z, 200 + top.x / std::sqrt(3.0), Near);
                EXPECT_NEAR(bottom.z, 40 - bottom.x * 0.36397023426620236, Near);
            }
        }
    }
}

TEST(RightCylinderModel, RotationTurnsTheTiltOfTheBottomAlone) {
    CRightCylinder pipe = TiltedPipe();
    pipe.ConstructModel();
    const C3DPoints unturned = Top(pipe);
    pipe.Rotation = DegToRad(90);
    pipe.ConstructModel();
    for (std::size_t i = 1; i <= 25; ++i) {
        const C3DPoint& bottom = Bottom(pipe).Item(i);
        // cos(t + 90) = -sin t: the bottom now rises towards +y.
        EXPECT_NEAR(bottom.z, 40 + bottom.y * std::tan(DegToRad(20)), Near);
        EXPECT_EQ(Top(pipe).Item(i).z, unturned.Item(i).z);
    }
}

TEST(RightCylinderModel, AnyTypeButTheRoofsHasPlaneEnds) {
    for (const int type : {0, 1, 2, 4, 6}) {
        CRightCylinder pipe = TiltedPipe();
        pipe.inputs.Dtype = static_cast<std::int16_t>(type);
        pipe.CPAngle3 = 1;
        pipe.Offset = 20;
        pipe.ConstructModel();
        EXPECT_EQ(Top(pipe).Count(), 25U) << type;
        EXPECT_NEAR(Top(pipe).Item(1).z, 200 + 60 / std::sqrt(3.0), Near) << type;
        EXPECT_NEAR(Bottom(pipe).Item(1).z, 40 - 60 * std::tan(DegToRad(20)), Near) << type;
    }
}

TEST(RightCylinderModel, HalfPatternKeepsHalfTheStations) {
    for (const int segs : {1, 3, 12}) {
        CRightCylinder pipe = TiltedPipe();
        pipe.inputs.segs = segs;
        pipe.inputs.HalfPattern = true;
        pipe.ConstructModel();
        const auto kept = static_cast<std::size_t>(segs + 1);
        ASSERT_EQ(Top(pipe).Count(), kept);
        ASSERT_EQ(Bottom(pipe).Count(), kept);
        EXPECT_NEAR(Top(pipe).Item(kept).x, -60, Near);
        EXPECT_NEAR(Top(pipe).Item(kept).y, 0, Near);
    }
}

TEST(RightCylinderModel, BuildsStartFromNothing) {
    CRightCylinder pipe = Roof(RoofOverTracedBase, 12);
    pipe.ConstructModel();
    pipe.ConstructModel();
    EXPECT_EQ(Top(pipe).Count(), 27U);
    pipe.inputs.Dtype = 0;
    pipe.ConstructModel();
    EXPECT_EQ(Bottom(pipe).Count(), 25U);
}

class CylinderRoof : public testing::TestWithParam<double> {};

TEST_P(CylinderRoof, PlanesMeetInTheRidge) {
    const double offset = GetParam();
    for (const std::int16_t type : {RoofOverTracedBase, RoofTop}) {
        CRightCylinder pipe = Roof(type, offset);
        pipe.ConstructModel();
        ASSERT_EQ(Top(pipe).Count(), 27U);
        const std::vector<std::size_t> ends = StationsFlagged(Top(pipe), CornerRuleStation);
        ASSERT_EQ(ends.size(), 2U);
        for (const std::size_t station : ends) {
            EXPECT_NEAR(Top(pipe).Item(station).x, offset, Near);
            EXPECT_EQ(Top(pipe).Item(station).z, 200);
            EXPECT_EQ(Bottom(pipe).Item(station).Flag, RuleStation);
        }
        EXPECT_GT(Top(pipe).Item(ends[0]).y, 0);
        EXPECT_LT(Top(pipe).Item(ends[1]).y, 0);
        for (std::size_t i = 1; i <= 27; ++i) {
            const C3DPoint& top = Top(pipe).Item(i);
            ExpectOnPipe(top);
            // It falls away from the ridge on both sides: at 25 degrees towards +x, at 35 towards -x.
            const double slope = top.x > offset ? std::tan(DegToRad(25)) : std::tan(DegToRad(35));
            EXPECT_NEAR(top.z, 200 - slope * std::abs(top.x - offset), Near);
            EXPECT_EQ(Bottom(pipe).Item(i).x, top.x);
            EXPECT_EQ(Bottom(pipe).Item(i).y, top.y);
            EXPECT_EQ(Bottom(pipe).Item(i).z, 10);
        }
    }
}

TEST_P(CylinderRoof, EndsOfTheRidgeLeaveTheSpacingAlone) {
    CRightCylinder pipe = Roof(RoofTop, GetParam());
    pipe.ConstructModel();
    std::size_t regular = 0;
    for (const C3DPoint& point : Top(pipe)) {
        if (point.Flag != CornerRuleStation) {
            const double stations = RadToDeg(PlanAngle({}, point)) / 15;
            EXPECT_NEAR(stations, std::round(stations), 1e-6);
            ++regular;
            EXPECT_EQ(point.Flag, static_cast<int>(regular % 2));
        }
    }
    EXPECT_EQ(regular, 25U);
}

// 50 and 55 put the ridge within the first 15 degrees.
INSTANTIATE_TEST_SUITE_P(Offsets, CylinderRoof, testing::Values(-59.0, -20.0, 0.0, 12.0, 50.0, 59.5));

TEST(RightCylinderRoof, StartsAtZeroWhateverTheSeamIs) {
    for (const double seam : {0.0, 1.0, 4.0}) {
        CRightCylinder pipe = Roof(RoofTop, 12);
        pipe.inputs.JoinAngle = seam;
        pipe.ConstructModel();
        EXPECT_EQ(Top(pipe).Item(1).x, 60);
        EXPECT_EQ(Top(pipe).Item(1).y, 0);
        EXPECT_EQ(Top(pipe).Count(), 27U);
    }
}

TEST(RightCylinderRoof, TracedBaseGoesRoundOnceMore) {
    CRightCylinder pipe = Roof(RoofOverTracedBase, 12);
    pipe.inputs.JoinAngle = DegToRad(90);
    pipe.ConstructModel();
    ASSERT_EQ(Top(pipe).Count(), 27U);
    ASSERT_EQ(Bottom(pipe).Count(), 27U + 25U);
    // The second round starts at the seam and is flagged like a ring of its own.
    EXPECT_NEAR(Bottom(pipe).Item(28).y, 60, Near);
    EXPECT_EQ(Bottom(pipe).Item(28).Flag, RuleStation);
    EXPECT_EQ(Bottom(pipe).Item(29).Flag, PlainStation);
    EXPECT_NEAR(Bottom(pipe).Item(52).y, 60, Near);
    for (std::size_t i = 28; i <= 52; ++i) {
        ExpectOnPipe(Bottom(pipe).Item(i));
        EXPECT_NEAR(Bottom(pipe).Item(i).z, 10, Near);
    }
}

TEST(RightCylinderRoof, RoofTopTracesItsBaseOnce) {
    CRightCylinder pipe = Roof(RoofTop, 12);
    pipe.ConstructModel();
    EXPECT_EQ(Bottom(pipe).Count(), 27U);
}

TEST(RightCylinderRoof, HalfPatternEndsOppositeTheSeam) {
    for (const std::int16_t type : {RoofOverTracedBase, RoofTop}) {
        CRightCylinder pipe = Roof(type, 12);
        pipe.inputs.HalfPattern = true;
        pipe.DevelopModel();
        // 13 regular stations and one end of the ridge.
        ASSERT_EQ(Top(pipe).Count(), 14U);
        ASSERT_EQ(Bottom(pipe).Count(), 14U);
        EXPECT_NEAR(Top(pipe).Item(14).x, -60, Near);
        EXPECT_NEAR(pipe.results.PatternSurface.List1->Item(14).x, PI * 60, Near);
    }
}

TEST(RightCylinderRoof, PatternHasTheStationsOfTheTop) {
    CRightCylinder pipe = Roof(RoofOverTracedBase, -7);
    pipe.DevelopModel();
    const CRuleSurf& pattern = pipe.results.PatternSurface;
    ASSERT_EQ(pattern.List1->Count(), 27U);
    ASSERT_EQ(pattern.List2->Count(), 27U);
    EXPECT_NEAR(pattern.List1->Item(27).x, 2 * PI * 60, Near);
    const std::vector<std::size_t> ends = StationsFlagged(*pattern.List1, CornerRuleStation);
    ASSERT_EQ(ends.size(), 2U);
    // The ridge ends at R * arccos(offset / R) along the circumference, and as far from the other end.
    const double ridge = 60 * std::acos(-7.0 / 60);
    EXPECT_NEAR(pattern.List1->Item(ends[0]).x, ridge, Near);
    EXPECT_NEAR(pattern.List1->Item(ends[1]).x, 2 * PI * 60 - ridge, Near);
    EXPECT_EQ(pattern.List1->Item(ends[0]).y, 200);
}

TEST(RightCylinderModel, ARidgeOutsideThePipeIsAnError) {
    CRightCylinder pipe = Roof(RoofTop, 61);
    EXPECT_THROW(pipe.DevelopModel(), ArithmeticError);
    pipe.BaseRad = 0;
    EXPECT_THROW(pipe.DevelopModel(), ArithmeticError);
}

}  // namespace
}  // namespace korvet
