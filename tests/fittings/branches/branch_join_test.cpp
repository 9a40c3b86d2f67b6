// The radii and angles of a joint of two pipes, worked out by hand.
#include "fittings/branches/branch_join.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"

namespace korvet::branch {
namespace {

struct JoinCase {
    BranchJoin join;
    Walls walls;
    CutRadii branch;
    CutRadii hole;
};

void PrintTo(const JoinCase& example, std::ostream* out) {
    *out << "join " << static_cast<int>(example.join) << " r " << example.walls.r << " tA "
         << example.walls.tA;
}

class JoinRadii : public testing::TestWithParam<JoinCase> {};

TEST_P(JoinRadii, FollowFromTheJoin) {
    const JoinCase& example = GetParam();
    const CutRadii branch = EdgeRadii(example.join, example.walls);
    EXPECT_DOUBLE_EQ(branch.pipeA, example.branch.pipeA);
    EXPECT_DOUBLE_EQ(branch.pipeB, example.branch.pipeB);
    const CutRadii hole = HoleRadii(example.join, example.walls);
    EXPECT_DOUBLE_EQ(hole.pipeA, example.hole.pipeA);
    EXPECT_DOUBLE_EQ(hole.pipeB, example.hole.pipeB);
}

INSTANTIATE_TEST_SUITE_P(
    Joins, JoinRadii,
    testing::Values(JoinCase{MeanToMeanJoin, {50, 100, 4, 10}, {50, 100}, {50, 100}},
                    JoinCase{SetOnJoin, {50, 100, 4, 10}, {50, 105}, {48, 100}},
                    JoinCase{SetInJoin, {50, 100, 4, 10}, {50, 95}, {52, 100}},
                    // The widest branch that still reaches the trunk's inside, and the one just above.
                    JoinCase{SetInJoin, {95, 100, 4, 10}, {95, 95}, {97, 100}},
                    JoinCase{SetInJoin, {95.5, 100, 4, 10}, {95.5, 100}, {97.5, 100}},
                    JoinCase{SetInJoin, {100, 100, 4, 10}, {100, 100}, {102, 100}},
                    // Wider than the trunk's mean surface: its own wall decides.
                    JoinCase{SetInJoin, {101, 100, 12, 10}, {101, 100}, {107, 100}},
                    JoinCase{SetInJoin, {101, 100, 10, 10}, {101, 100}, {106, 100}},
                    JoinCase{SetInJoin, {101, 100, 4, 10}, {101, 103}, {103, 100}},
                    // Without material all joins are one.
                    JoinCase{SetInJoin, {60, 90, 0, 0}, {60, 90}, {60, 90}},
                    JoinCase{SetOnJoin, {60, 90, 0, 0}, {60, 90}, {60, 90}}));

TEST(MeetsTrunk, UpToTheEdgeOfTheTrunk) {
    EXPECT_TRUE(MeetsTrunk({50, 80}, 30));
    EXPECT_TRUE(MeetsTrunk({50, 80}, -30));
    EXPECT_TRUE(MeetsTrunk({80, 80}, 0));
    EXPECT_FALSE(MeetsTrunk({50, 80}, 30.001));
    EXPECT_FALSE(MeetsTrunk({50, 80}, -30.001));
    EXPECT_FALSE(MeetsTrunk({80.001, 80}, 0));
}

/// A set-in branch that just touches the inside of a trunk, its radius typed to the hundredth of a
/// millimetre.
TEST(MeetsTrunk, RoundingIsNoGap) {
    int above = 0;
    for (int i = 1; i < 2000; ++i) {
        const double pipeA = (50500 - 5 * i) / 1000.0;
        const double pipeB = 50 + 1.5 - (2 + i * 0.01) / 2;
        const double offset = pipeB - pipeA;
        above += pipeA + std::fabs(offset) > pipeB ? 1 : 0;
        EXPECT_TRUE(MeetsTrunk({pipeA, pipeB}, offset));
        EXPECT_FALSE(MeetsTrunk({pipeA, pipeB}, offset + 1e-9));
    }
    EXPECT_GT(above, 10) << "the sum comes out above the radius";
}

TEST(MeetsTrunk, APipeWithoutARadiusIsAnError) {
    EXPECT_THROW((void)MeetsTrunk({0, 80}, 0), ArithmeticError);
    EXPECT_THROW((void)MeetsTrunk({-2, 80}, 0), ArithmeticError);
}

TEST(HeelCompensation, IsTheAngleUnderWhichTheWallStandsOffTheTrunk) {
    // At 30 degrees an inside diameter of 90 covers 180 of the trunk; the wall of 10 stands 10 sin 60 off it,
    // 180 - 10 cos 60 from the other end.
    const double expected = std::atan2(10 * std::sin(PI / 3), 175);
    EXPECT_NEAR(BranchAngComp(50, PI / 6, 10), expected, 1e-12);
    EXPECT_NEAR(RadToDeg(expected), 2.8331, 1e-4);
    // At 45 degrees an inside diameter of 96 covers 96 sqrt(2); 4 sin 45 = 4 cos 45 = 2 sqrt(2).
    EXPECT_NEAR(BranchAngComp(50, PI / 4, 4), std::atan2(2.0, 94.0), 1e-12);
}

TEST(HeelCompensation, IsNothingWithoutMaterial) {
    EXPECT_EQ(BranchAngComp(50, PI / 4, 0), 0);
}

TEST(HeelCompensation, SizesWithoutATriangleAreErrors) {
    EXPECT_THROW((void)BranchAngComp(50, 0, 4), ArithmeticError);
    EXPECT_THROW((void)BranchAngComp(0, PI / 4, 0), ArithmeticError);  // p and q are 0
    EXPECT_THROW((void)BranchAngComp(2, PI / 4, 4), ArithmeticError);  // no inside diameter: p is 0
    EXPECT_THROW((void)BranchAngComp(50, PI / 4, std::nan("")), ArithmeticError);
    EXPECT_THROW((void)BranchAngComp(1e200, PI / 4, 1), ArithmeticError);
}

TEST(JointAngle, IsCompensatedForSetOnBranchesOnly) {
    const double alpha = PI / 6;
    const double turned = alpha - std::atan2(10 * std::sin(PI / 3), 175);
    EXPECT_NEAR(JointAngle({SetOnJoin, true}, 50, alpha, 10), turned, 1e-12);
    EXPECT_EQ(JointAngle({SetOnJoin, false}, 50, alpha, 10), alpha);
    EXPECT_EQ(JointAngle({SetInJoin, true}, 50, alpha, 10), alpha);
    EXPECT_EQ(JointAngle({MeanToMeanJoin, true}, 50, alpha, 10), alpha);
    EXPECT_EQ(JointAngle({SetOnJoin, true}, 50, QuarterTurn, 10), QuarterTurn);
}

TEST(JointAngle, ThatIsUsedUpIsAnError) {
    // Material as thick as the mean radius: the compensation of a flat branch is the whole angle and more.
    EXPECT_THROW((void)JointAngle({SetOnJoin, true}, 10, PI / 180, 12), ArithmeticError);
}

}  // namespace
}  // namespace korvet::branch
