// The flat patterns of a branch and of the trunk with its hole.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/branches/branch.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

constexpr double NearPattern = 1e-8;

/// Radius 60 on radius 100, trunk 700 long, the axes crossing 320 up.
CBranch Joint(BranchPattern pattern, double alpha = QuarterTurn, double offset = 0) {
    CBranch branch;
    branch.AxialAngle = alpha;
    branch.Offset = offset;
    branch.LengthPipeA = 400;
    branch.LengthPipeB = 700;
    branch.LengthToIP = 320;
    branch.BranchRadiusPipeA = branch.TrunkRadiusPipeA = 60;
    branch.BranchRadiusPipeB = branch.TrunkRadiusPipeB = 100;
    branch.BranchThickness = 4;
    branch.TrunkThickness = 6;
    branch.inputs.Miscellaneous = pattern;
    return branch;
}

const CRuleSurf& Developed(CBranch& branch) {
    branch.DevelopModel();
    EXPECT_EQ(branch.results.PatternSurfaceList.Count(), 1U);
    return branch.results.PatternSurfaceList.Item(1);
}

TEST(BranchPipePatternTest, RulesOfASquareBranchEndOnTheTrunk) {
    CBranch branch = Joint(BranchPipePattern);
    const CRuleSurf& pattern = Developed(branch);
    ASSERT_EQ(pattern.List1->Count(), 49U);
    ASSERT_EQ(pattern.List2->Count(), 49U);
    for (std::size_t i = 1; i <= 49; ++i) {
        const double theta = static_cast<double>(i - 1) * 2 * PI / 48;
        const double depth = std::sqrt(100 * 100 - 60 * 60 * std::sin(theta) * std::sin(theta));
        EXPECT_NEAR(pattern.List1->Item(i).x, 60 * theta, NearPattern);
        EXPECT_NEAR(pattern.List2->Item(i).x, 60 * theta, NearPattern);
        EXPECT_NEAR(pattern.List1->Item(i).y, 400 - depth, NearPattern);
        EXPECT_EQ(pattern.List2->Item(i).y, 0);
        EXPECT_EQ(pattern.List1->Item(i).z, 0);
    }
    EXPECT_FALSE(pattern.RefPoint);
    EXPECT_FALSE(pattern.List3);
}

TEST(BranchPipePatternTest, RulesOfASlantingBranchTakeTheCutWithThem) {
    const double alpha = DegToRad(50);
    CBranch branch = Joint(BranchPipePattern, alpha, 20);
    const CRuleSurf& pattern = Developed(branch);
    for (std::size_t i = 1; i <= 49; ++i) {
        const double theta = static_cast<double>(i - 1) * 2 * PI / 48;
        const double y = 20 + 60 * std::sin(theta);
        // Along the generator: the rule ends x / sin(alpha) from the axis of the trunk, and the slant of the
        // branch moves its foot by u / tan(alpha).
        const double foot =
            (std::sqrt(100 * 100 - y * y) - 60 * std::cos(theta) * std::cos(alpha)) / std::sin(alpha);
        EXPECT_NEAR(pattern.List1->Item(i).y, 400 - foot, NearPattern);
    }
}

TEST(BranchPipePatternTest, BothEdgesHaveTheFlagsOfTheCut) {
    CBranch branch = Joint(BranchPipePattern);
    const CRuleSurf& pattern = Developed(branch);
    for (std::size_t i = 1; i <= 49; ++i) {
        const int flag = i == 13 || i == 37 ? CornerRuleStation : static_cast<int>(i % 2);
        EXPECT_EQ(pattern.List1->Item(i).Flag, flag) << i;
        EXPECT_EQ(pattern.List2->Item(i).Flag, flag) << i;
    }
}

TEST(BranchPipePatternTest, IsAsLongAsTheCircumferenceAtEveryNumberOfSegments) {
    for (const int segs : {1, 2, 3, 7, 144, 1000}) {
        CBranch branch = Joint(BranchPipePattern);
        branch.inputs.segs = segs;
        const CRuleSurf& pattern = Developed(branch);
        ASSERT_EQ(pattern.List1->Count(), 2 * static_cast<std::size_t>(segs) + 1);
        EXPECT_NEAR(pattern.List2->Last().x, 2 * PI * 60, 1e-7) << segs;
    }
}

TEST(TrunkPatternTest, IsARectangleWithTheHoleInItsMiddle) {
    CBranch branch = Joint(TrunkPattern);
    const CRuleSurf& pattern = Developed(branch);
    ASSERT_EQ(pattern.List1->Count(), 49U);
    for (std::size_t i = 1; i <= 49; ++i) {
        const double x = static_cast<double>(i - 1) * 200 * PI / 48;
        EXPECT_NEAR(pattern.List1->Item(i).x, x, NearPattern);
        EXPECT_NEAR(pattern.List1->Item(i).y, 700, NearPattern);
        EXPECT_NEAR(pattern.List2->Item(i).x, x, NearPattern);
        EXPECT_EQ(pattern.List2->Item(i).y, 0);
        EXPECT_EQ(pattern.List1->Item(i).Flag, static_cast<int>(i % 2));
        EXPECT_EQ(pattern.List2->Item(i).Flag, static_cast<int>(i % 2));
    }
    ASSERT_EQ(pattern.List3->Count(), 49U);
    for (std::size_t i = 1; i <= 49; ++i) {
        const double theta = static_cast<double>(i - 1) * 2 * PI / 48;
        EXPECT_NEAR(pattern.List3->Item(i).x, 100 * PI + 100 * std::asin(0.6 * std::sin(theta)), NearPattern);
        EXPECT_NEAR(pattern.List3->Item(i).y, 320 + 60 * std::cos(theta), NearPattern);
        EXPECT_EQ(pattern.List3->Item(i).z, 0);
    }
    EXPECT_EQ(pattern.List3->Item(13).Flag, CornerRuleStation);
}

TEST(TrunkPatternTest, AnOffsetMovesTheHoleRoundTheTrunk) {
    for (const double offset : {15.0, -35.0}) {
        CBranch branch = Joint(TrunkPattern, QuarterTurn, offset);
        const CRuleSurf& pattern = Developed(branch);
        for (std::size_t i = 1; i <= 49; ++i) {
            const double theta = static_cast<double>(i - 1) * 2 * PI / 48;
            EXPECT_NEAR(pattern.List3->Item(i).x,
                        100 * PI + 100 * std::asin((offset + 60 * std::sin(theta)) / 100), NearPattern);
            EXPECT_NEAR(pattern.List3->Item(i).y, 320 + 60 * std::cos(theta), NearPattern);
        }
        ASSERT_TRUE(pattern.RefPoint);
        EXPECT_NEAR(pattern.RefPoint->x, 100 * PI + 100 * std::asin(offset / 100), NearPattern);
    }
}

TEST(TrunkPatternTest, AHoleAsWideAsTheTrunkTakesHalfOfItsCircumference) {
    CBranch branch = Joint(TrunkPattern);
    branch.TrunkRadiusPipeA = 100;
    const CRuleSurf& pattern = Developed(branch);
    EXPECT_NEAR(pattern.List3->Item(13).x, 150 * PI, 1e-5);
    EXPECT_NEAR(pattern.List3->Item(37).x, 50 * PI, 1e-5);
}

TEST(TrunkPatternTest, ReferencePointTellsWhereTheAxisStands) {
    CBranch square = Joint(TrunkPattern);
    const CRuleSurf& pattern = Developed(square);
    EXPECT_TRUE(pattern.RefPointDisplay);
    ASSERT_TRUE(pattern.RefPoint);
    EXPECT_NEAR(pattern.RefPoint->x, 100 * PI, NearPattern);
    EXPECT_NEAR(pattern.RefPoint->y, 320, NearPattern);
    // At 45 degrees the axis comes out of the trunk one radius below the crossing.
    CBranch slanting = Joint(TrunkPattern, DegToRad(45));
    EXPECT_NEAR(Developed(slanting).RefPoint->y, 220, NearPattern);
}

TEST(TrunkPatternTest, SlantingHoleIsStretchedAlongTheTrunk) {
    CBranch branch = Joint(TrunkPattern, DegToRad(30));
    const C3DPoints& hole = *Developed(branch).List3;
    // At the top and bottom u = +-60 and the hole lies 60 / sin 30 from where the axis comes out.
    EXPECT_NEAR(hole.Item(1).y - hole.Item(25).y, 240, NearPattern);
    EXPECT_NEAR(hole.Item(1).y, 320 - 100 / std::tan(PI / 6) + 120, NearPattern);
}

TEST(BranchTemplates, WrapRoundTheOutside) {
    for (const std::int16_t type : {std::int16_t{1}, std::int16_t{2}, std::int16_t{-1}}) {
        CBranch pipe = Joint(BranchPipePattern);
        pipe.TemplateType = type;
        EXPECT_NEAR(Developed(pipe).List1->Last().x, 2 * PI * 62, NearPattern);
        EXPECT_NEAR(Developed(pipe).List1->Item(1).y, 300, NearPattern);
        CBranch trunk = Joint(TrunkPattern);
        trunk.TemplateType = type;
        const CRuleSurf& pattern = Developed(trunk);
        EXPECT_NEAR(pattern.List2->Last().x, 2 * PI * 103, NearPattern);
        // The hole grows with the plate, about the plate's middle.
        EXPECT_NEAR(pattern.List3->Item(13).x, 103 * PI + 103 * std::asin(0.6), NearPattern);
        EXPECT_NEAR(pattern.List3->Item(13).y, 320, NearPattern);
    }
}

TEST(BranchHalfPatterns, BranchIsHalfAsWide) {
    CBranch branch = Joint(BranchPipePattern);
    branch.inputs.HalfPattern = true;
    const CRuleSurf& pattern = Developed(branch);
    ASSERT_EQ(pattern.List1->Count(), 25U);
    EXPECT_NEAR(pattern.List1->Last().x, 60 * PI, NearPattern);
    EXPECT_NEAR(pattern.List1->Item(13).y, 400 - 80, NearPattern);
}

TEST(BranchHalfPatterns, HalfTheHoleStandsOnTheEndOfTheHalfTrunk) {
    for (const int segs : {3, 24}) {
        CBranch branch = Joint(TrunkPattern);
        branch.inputs.segs = segs;
        branch.inputs.HalfPattern = true;
        const CRuleSurf& pattern = Developed(branch);
        const auto kept = static_cast<std::size_t>(segs) + 1;
        ASSERT_EQ(pattern.List1->Count(), kept);
        ASSERT_EQ(pattern.List3->Count(), kept);
        const double end = pattern.List1->Last().x;
        EXPECT_NEAR(end, 100 * PI, NearPattern);
        for (const C3DPoint& point : *pattern.List3) {
            EXPECT_LE(point.x, end + NearPattern);
            EXPECT_GT(point.x, 0);
        }
        EXPECT_NEAR(pattern.List3->Item(1).x, end, NearPattern);
        EXPECT_NEAR(pattern.List3->Item(1).y, 260, NearPattern);
        EXPECT_NEAR(pattern.List3->Last().x, end, NearPattern);
        EXPECT_NEAR(pattern.List3->Last().y, 380, NearPattern);
        ASSERT_TRUE(pattern.RefPoint);
        EXPECT_NEAR(pattern.RefPoint->x, end, NearPattern);
        EXPECT_NEAR(pattern.RefPoint->y, 320, NearPattern);
    }
}

TEST(BranchLaps, LieAlongBothEdgesAndTheSeam) {
    for (const BranchPattern which : {TrunkPattern, BranchPipePattern}) {
        CBranch plain = Joint(which);
        const CRuleSurf& bare = Developed(plain);
        CBranch branch = Joint(which);
        branch.inputs.JoinType = 1;
        branch.inputs.LapSize0 = 8;
        branch.inputs.LapSize1 = 12;
        branch.inputs.LapSize2 = 5;
        const CRuleSurf& lapped = Developed(branch);
        ASSERT_EQ(lapped.List1->Count(), 50U);
        ASSERT_EQ(lapped.LapList1->Count(), 50U);
        for (std::size_t i = 1; i <= 49; ++i) {
            EXPECT_NEAR(lapped.List1->Item(i).y, bare.List1->Item(i).y + 8, NearPattern);
            EXPECT_NEAR(lapped.List2->Item(i).y, -5, NearPattern);
            EXPECT_NEAR(lapped.LapList2->Item(i).y, 0, NearPattern);
        }
        EXPECT_NEAR(lapped.List2->Item(50).x, bare.List2->Item(49).x + 12, NearPattern);
        EXPECT_EQ(lapped.List1->Item(50).Flag, LapClosure);
        EXPECT_TRUE(branch.results.warnings.empty());
        if (which == TrunkPattern) {
            EXPECT_TRUE(SamePoints(*lapped.List3, *bare.List3));
        }
    }
}

TEST(BranchLaps, NoneWithoutAJoin) {
    CBranch branch = Joint(TrunkPattern);
    branch.inputs.LapSize0 = branch.inputs.LapSize1 = 10;
    EXPECT_EQ(Developed(branch).List1->Count(), 49U);
    EXPECT_FALSE(Developed(branch).LapList1);
}

TEST(BranchSelection, AnyOtherChoiceMakesTheModelAlone) {
    for (const std::int16_t choice : {std::int16_t{0}, std::int16_t{3}, std::int16_t{-1}}) {
        CBranch branch = Joint(TrunkPattern);
        branch.DevelopModel();
        branch.inputs.Miscellaneous = choice;
        branch.DevelopModel();
        EXPECT_EQ(branch.results.PatternSurfaceList.Count(), 0U);
        ASSERT_EQ(branch.results.ModelSurfaceList.Count(), 2U);
        EXPECT_EQ(branch.results.ModelSurfaceList.Item(2).List3->Count(), 49U);
    }
}

}  // namespace
}  // namespace korvet
