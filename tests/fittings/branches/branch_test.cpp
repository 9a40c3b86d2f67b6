// The model of a branch and its trunk against the solid geometry of two cylinders.
#include "fittings/branches/branch.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

constexpr double NearModel = 1e-8;

/// A joint of mean radii r and R.
CBranch Joint(double alpha, double offset, double r, double R) {
    CBranch branch;
    branch.AxialAngle = alpha;
    branch.Offset = offset;
    branch.LengthPipeA = 400;
    branch.LengthPipeB = 700;
    branch.LengthToIP = 320;
    branch.BranchRadiusPipeA = branch.TrunkRadiusPipeA = r;
    branch.BranchRadiusPipeB = branch.TrunkRadiusPipeB = R;
    branch.inputs.Miscellaneous = BranchPipePattern;
    return branch;
}

struct Vector {
    double x;
    double y;
    double z;
};

double Dot(const Vector& a, const Vector& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

Vector Between(const C3DPoint& from, const C3DPoint& to) {
    return {to.x - from.x, to.y - from.y, to.z - from.z};
}

/// The direction in which the branch leaves the trunk: down, at the axial angle to the trunk's axis.
Vector AxisOf(const CBranch& branch) {
    return {std::sin(branch.AxialAngle), 0, -std::cos(branch.AxialAngle)};
}

/// The point of the branch's axis over the trunk's axis. An offset leaves the level at which the branch's
/// axis comes out of the trunk as it is, and so the shorter chord moves this point along the trunk.
C3DPoint AxisOrigin(const CBranch& branch) {
    const double R = branch.BranchRadiusPipeB;
    const double chord = std::sqrt(R * R - branch.Offset * branch.Offset);
    return {0, branch.Offset,
            branch.LengthToIP + (chord - branch.TrunkRadiusPipeB) / std::tan(branch.AxialAngle),
            PlainStation};
}

double DistanceFromAxis(const CBranch& branch, const C3DPoint& point) {
    const Vector to = Between(AxisOrigin(branch), point);
    const double along = Dot(to, AxisOf(branch));
    return std::sqrt(Dot(to, to) - along * along);
}

struct Sizes {
    double degrees;
    double offset;
    double r;
    double R;
};

class JointTest : public testing::TestWithParam<Sizes> {
  protected:
    [[nodiscard]] static CBranch Built() {
        const auto [degrees, offset, r, R] = GetParam();
        CBranch branch = Joint(degrees == 90 ? QuarterTurn : DegToRad(degrees), offset, r, R);
        branch.ConstructModel();
        return branch;
    }
};

TEST_P(JointTest, EdgeLiesOnBothPipes) {
    const CBranch branch = Built();
    for (const C3DPoint& point : *branch.results.ModelSurfaceList.Item(1).List2) {
        EXPECT_NEAR(std::hypot(point.x, point.y), GetParam().R, NearModel);
        EXPECT_GE(point.x, 0);
        EXPECT_NEAR(DistanceFromAxis(branch, point), GetParam().r, NearModel);
    }
}

TEST_P(JointTest, FreeEndIsACircleSquareToTheAxis) {
    const CBranch branch = Built();
    const Vector axis = AxisOf(branch);
    for (const C3DPoint& point : *branch.results.ModelSurfaceList.Item(1).List1) {
        EXPECT_NEAR(Dot(Between(AxisOrigin(branch), point), axis), 400, NearModel);
        EXPECT_NEAR(DistanceFromAxis(branch, point), GetParam().r, NearModel);
    }
}

TEST_P(JointTest, RulesRunAlongTheAxisFromTheFreeEndToTheTrunk) {
    const CBranch branch = Built();
    const Vector axis = AxisOf(branch);
    const C3DPoint origin = AxisOrigin(branch);
    const double r = GetParam().r;
    const double R = GetParam().R;
    const CRuleSurf& model = branch.results.ModelSurfaceList.Item(1);
    for (int i = 0; i <= 48; ++i) {
        const double theta = i * 2 * PI / 48;
        // A generator of the branch: from its free end back along the axis until x^2 + y^2 = R^2.
        const C3DPoint start = {origin.x + 400 * axis.x - r * std::cos(theta) * axis.z,
                                origin.y + r * std::sin(theta),
                                origin.z + 400 * axis.z + r * std::cos(theta) * axis.x, PlainStation};
        const double halfChord = std::sqrt(std::max(0.0, R * R - start.y * start.y));
        const double length = (start.x - halfChord) / axis.x;
        const auto station = static_cast<std::size_t>(i) + 1;
        // Where the branch is as wide as the trunk, the root turns a rounding into 1e-6.
        const double near = std::abs(R - std::abs(start.y)) < 1e-6 ? 1e-4 : NearModel;
        EXPECT_NEAR(Distance3D(model.List1->Item(station), start), 0, 1e-7);
        EXPECT_NEAR(Distance3D(model.List1->Item(station), model.List2->Item(station)), length, near);
        const Vector rule = Between(model.List2->Item(station), model.List1->Item(station));
        EXPECT_NEAR(Dot(rule, axis), length, near);
    }
}

TEST_P(JointTest, HoleIsTheBranchsEdgeWhenTheRadiiAgree) {
    const CBranch branch = Built();
    const C3DPoints& edge = *branch.results.ModelSurfaceList.Item(1).List2;
    EXPECT_TRUE(SamePoints(*branch.results.ModelSurfaceList.Item(2).List3, edge));
}

TEST_P(JointTest, TrunkStandsOnZeroWithItsSeamBehind) {
    const CBranch branch = Built();
    const CRuleSurf& trunk = branch.results.ModelSurfaceList.Item(2);
    ASSERT_EQ(trunk.List1->Count(), 49U);
    for (std::size_t i = 1; i <= 49; ++i) {
        const double angle = PI + static_cast<double>(i - 1) * 2 * PI / 48;
        for (const C3DPoints* ring : {trunk.List1.get(), trunk.List2.get()}) {
            EXPECT_NEAR(ring->Item(i).x, GetParam().R * std::cos(angle), NearModel);
            EXPECT_NEAR(ring->Item(i).y, GetParam().R * std::sin(angle), NearModel);
            EXPECT_EQ(ring->Item(i).Flag, static_cast<int>(i % 2));
        }
        EXPECT_NEAR(trunk.List1->Item(i).z, 700, NearModel);
        EXPECT_EQ(trunk.List2->Item(i).z, 0);
    }
}

INSTANTIATE_TEST_SUITE_P(Joints, JointTest,
                         testing::Values(Sizes{90, 0, 60, 100}, Sizes{90, 25, 60, 100},
                                         Sizes{90, -40, 60, 100}, Sizes{90, 0, 100, 100},
                                         Sizes{60, 0, 60, 100}, Sizes{35, 30, 45, 100},
                                         Sizes{35, -30, 45, 100}, Sizes{50, 50, 50, 100},
                                         Sizes{45, 0, 80, 80}));

TEST(BranchModel, EqualPipesMeetSquareInTwoPlanes) {
    CBranch branch = Joint(QuarterTurn, 0, 80, 80);
    branch.inputs.segs = 12;
    branch.ConstructModel();
    const C3DPoints& edge = *branch.results.ModelSurfaceList.Item(1).List2;
    ASSERT_EQ(edge.Count(), 25U);
    for (std::size_t i = 1; i <= 25; ++i) {
        const double theta = static_cast<double>(i - 1) * PI / 12;
        EXPECT_NEAR(edge.Item(i).y, 80 * std::sin(theta), NearModel);
        EXPECT_NEAR(edge.Item(i).z - 320, 80 * std::cos(theta), NearModel);
        EXPECT_NEAR(edge.Item(i).x, std::abs(edge.Item(i).z - 320), 1e-5);
    }
}

TEST(BranchModel, AFarSideOnTheTrunksEdgeIsAllowed) {
    for (const double offset : {30.0, -30.0}) {
        CBranch branch = Joint(DegToRad(60), offset, 50, 80);
        branch.inputs.segs = 2;  // theta runs by quarter turns
        branch.ConstructModel();
        const C3DPoint& far = branch.results.ModelSurfaceList.Item(1).List2->Item(offset > 0 ? 2 : 4);
        EXPECT_NEAR(far.x, 0, 1e-5);
        EXPECT_NEAR(far.y, offset > 0 ? 80 : -80, NearModel);
    }
}

TEST(BranchModel, RoundingBeyondTheTrunksEdgeCountsAsTheEdge) {
    // 0.1 + 0.2 lies one rounding above 0.3.
    CBranch branch = Joint(QuarterTurn, 0.2, 0.1, 0.3);
    branch.inputs.segs = 2;
    branch.ConstructModel();
    EXPECT_EQ(branch.results.ModelSurfaceList.Item(1).List2->Item(2).x, 0);
}

TEST(BranchModel, AxesThatMissEachOtherAreErrors) {
    EXPECT_THROW(Joint(QuarterTurn, 30.01, 50, 80).ConstructModel(), ArithmeticError);
    EXPECT_THROW(Joint(QuarterTurn, 0, 80.01, 80).ConstructModel(), ArithmeticError);
    EXPECT_THROW(Joint(QuarterTurn, 90, 5, 80).ConstructModel(), ArithmeticError);
    EXPECT_THROW(Joint(0, 0, 50, 80).ConstructModel(), ArithmeticError);
    EXPECT_THROW(CBranch().DevelopModel(), ArithmeticError);
}

std::vector<int> FlagsOf(const C3DPoints& list) {
    std::vector<int> flags;
    for (const C3DPoint& point : list) {
        flags.push_back(point.Flag);
    }
    return flags;
}

TEST(BranchFlags, EdgesHaveCornersOnTheFlanks) {
    const std::vector<std::pair<int, std::vector<int>>> expected = {
        {1, {5, 4, 1}},
        {2, {1, 4, 1, 4, 1}},
        {3, {1, 4, 1, 0, 5, 0, 1}},
        {4, {1, 0, 5, 0, 1, 0, 5, 0, 1}},
        {7, {1, 0, 1, 4, 1, 0, 1, 0, 1, 0, 5, 0, 1, 0, 1}}};
    for (const auto& [segs, flags] : expected) {
        CBranch branch = Joint(QuarterTurn, 0, 50, 80);
        branch.inputs.segs = segs;
        branch.ConstructModel();
        const CRuleSurf& pipe = branch.results.ModelSurfaceList.Item(1);
        EXPECT_EQ(FlagsOf(*pipe.List2), flags) << segs;
        EXPECT_EQ(FlagsOf(*branch.results.ModelSurfaceList.Item(2).List3), flags) << segs;
        for (std::size_t i = 1; i <= pipe.List1->Count(); ++i) {
            EXPECT_EQ(pipe.List1->Item(i).Flag, static_cast<int>(i % 2));
        }
    }
}

TEST(BranchRadii, EachPairCutsItsOwnPipe) {
    CBranch branch = Joint(DegToRad(50), 0, 60, 100);
    branch.BranchRadiusPipeB = 105;
    branch.TrunkRadiusPipeA = 55;
    branch.ConstructModel();
    for (const C3DPoint& point : *branch.results.ModelSurfaceList.Item(1).List2) {
        EXPECT_NEAR(std::hypot(point.x, point.y), 105, NearModel);
        EXPECT_NEAR(DistanceFromAxis(branch, point), 60, NearModel);
    }
    const CBranch trunkOnly = Joint(DegToRad(50), 0, 55, 100);
    for (const C3DPoint& point : *branch.results.ModelSurfaceList.Item(2).List3) {
        EXPECT_NEAR(std::hypot(point.x, point.y), 100, NearModel);
        EXPECT_NEAR(DistanceFromAxis(trunkOnly, point), 55, NearModel);
    }
    EXPECT_NEAR(branch.results.ModelSurfaceList.Item(2).List1->Item(1).x, -100, NearModel);
}

TEST(BranchRadii, ASetOnBranchDiffersFromAMeanOneInItsTrunkAlone) {
    CBranch mean = Joint(QuarterTurn, 0, 60, 100);
    CBranch setOn = Joint(QuarterTurn, 0, 60, 100);
    setOn.BranchRadiusPipeB = 105;
    mean.ConstructModel();
    setOn.ConstructModel();
    const CRuleSurf& a = mean.results.ModelSurfaceList.Item(1);
    const CRuleSurf& b = setOn.results.ModelSurfaceList.Item(1);
    for (std::size_t i = 1; i <= a.List1->Count(); ++i) {
        EXPECT_NEAR(Distance3D(a.List1->Item(i), b.List1->Item(i)), 0, NearModel);
        EXPECT_EQ(a.List2->Item(i).y, b.List2->Item(i).y);
        EXPECT_LT(a.List2->Item(i).x, b.List2->Item(i).x);
    }
}

TEST(BranchModel, HalfPatternsKeepMatchingHalves) {
    for (const int segs : {1, 5, 24}) {
        CBranch whole = Joint(DegToRad(55), 0, 60, 100);
        whole.inputs.segs = segs;
        whole.ConstructModel();
        CBranch half = whole;
        half.inputs.HalfPattern = true;
        half.ConstructModel();
        const auto kept = static_cast<std::size_t>(segs) + 1;
        for (std::size_t surface : {1U, 2U}) {
            const CRuleSurf& all = whole.results.ModelSurfaceList.Item(surface);
            const CRuleSurf& part = half.results.ModelSurfaceList.Item(surface);
            ASSERT_EQ(part.List1->Count(), kept);
            ASSERT_EQ(part.List2->Count(), kept);
            for (std::size_t i = 1; i <= kept; ++i) {
                EXPECT_TRUE(Same(part.List1->Item(i), all.List1->Item(i)));
                EXPECT_TRUE(Same(part.List2->Item(i), all.List2->Item(i)));
            }
        }
        // The kept half of the trunk has y up to 0, and so has its half of the hole.
        const C3DPoints& hole = *half.results.ModelSurfaceList.Item(2).List3;
        ASSERT_EQ(hole.Count(), kept);
        for (std::size_t i = 1; i <= kept; ++i) {
            EXPECT_TRUE(Same(hole.Item(i), whole.results.ModelSurfaceList.Item(2).List3->Item(i + kept - 1)));
            EXPECT_LE(hole.Item(i).y, 1e-9);
            EXPECT_LE(half.results.ModelSurfaceList.Item(2).List1->Item(i).y, 1e-9);
        }
    }
}

TEST(BranchModel, ALaterBuildReplacesTheEarlierOne) {
    CBranch branch = Joint(QuarterTurn, 0, 60, 100);
    branch.inputs.HalfPattern = true;
    branch.ConstructModel();
    branch.inputs.HalfPattern = false;
    branch.inputs.segs = 10;
    branch.ConstructModel();
    EXPECT_EQ(branch.results.ModelSurfaceList.Count(), 2U);
    EXPECT_EQ(branch.results.ModelSurfaceList.Item(2).List3->Count(), 21U);
}

/// At 30 degrees the heel lies (100 + 60 cos 30) / sin 30 = 303.9 from the trunk's axis, along the branch.
TEST(ShortBranch, IsRefusedOnlyWhereItIsAskedFor) {
    CBranch branch = Joint(PI / 6, 0, 60, 100);
    branch.LengthPipeA = 303.92;
    branch.ConstructModel();
    branch.RefusesShortBranch = true;
    EXPECT_THROW(branch.ConstructModel(), ArithmeticError);
    branch.LengthPipeA = 303.93;
    branch.ConstructModel();
}

}  // namespace
}  // namespace korvet
