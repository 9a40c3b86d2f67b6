// What the window of the branch works out behind its text block: half pattern, choice of pattern, heel and
// radii, worked out by hand.
#include <gtest/gtest.h>

#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/branches/branch.h"
#include "tests/support/refusals.h"
#include "window/views.h"

namespace korvet {
namespace {

const std::string TooLarge =
    "\r\n Either the branch pipe diameter or the offset distance is too large. \r\n This may also be due to "
    "the values for material thickness and Set-In/Set-On.";
const std::string TooThick = "the material is too thick for the diameter of the branch pipe";
const std::string NoHalf = "Half pattern not applicable to this item";

/// The square sample without its offset: R = 100, and material of 4 and 10.
class JoinWindowTest : public testing::Test {
  protected:
    JoinWindowTest() : window(shell.OpenSample("Branch", 1)) {
        TypeBoxes(*window, {{11, "0"}});
        window->settings.ThicknessA = 4;
        window->settings.ThicknessB = 10;
    }

    const CBranch& Fitting() { return window->fitting->As<CBranch>(); }

    void ExpectRadii(double branchA, double branchB, double trunkA, double trunkB) {
        EXPECT_DOUBLE_EQ(Fitting().BranchRadiusPipeA, branchA);
        EXPECT_DOUBLE_EQ(Fitting().BranchRadiusPipeB, branchB);
        EXPECT_DOUBLE_EQ(Fitting().TrunkRadiusPipeA, trunkA);
        EXPECT_DOUBLE_EQ(Fitting().TrunkRadiusPipeB, trunkB);
    }

    TestShell shell;
    std::unique_ptr<CFittingWindow> window;
};

TEST_F(JoinWindowTest, EveryJoinHasItsRadii) {
    ASSERT_EQ(window->BuildFitting(), Passed);
    ExpectRadii(60, 100, 60, 100);
    window->branch.join = SetOnJoin;
    ASSERT_EQ(window->BuildFitting(), Passed);
    ExpectRadii(60, 105, 58, 100);
    window->branch.join = SetInJoin;
    ASSERT_EQ(window->BuildFitting(), Passed);
    ExpectRadii(60, 95, 62, 100);
}

TEST_F(JoinWindowTest, RadiiComeFromTheMeanSizes) {
    window->branch.join = SetInJoin;
    window->settings.InOutMean = OutsideDimension;
    ASSERT_EQ(window->BuildFitting(), Passed);
    ExpectRadii(58, 90, 60, 95);
    window->settings.InOutMean = InsideDimension;
    ASSERT_EQ(window->BuildFitting(), Passed);
    ExpectRadii(62, 100, 64, 105);
}

TEST_F(JoinWindowTest, AWideSetInBranchReachesTheMeanSurface) {
    window->branch.join = SetInJoin;
    TypeBoxes(*window, {{0, "190"}});
    ASSERT_EQ(window->BuildFitting(), Passed);
    ExpectRadii(95, 95, 97, 100);
    TypeBoxes(*window, {{0, "191"}});
    ASSERT_EQ(window->BuildFitting(), Passed);
    ExpectRadii(95.5, 100, 97.5, 100);
}

TEST_F(JoinWindowTest, ASetInBranchAsWideAsTheTrunkHasNoHole) {
    window->branch.join = SetInJoin;
    TypeBoxes(*window, {{0, "200"}});
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectUserError(shell.ui, *window, TooLarge);
    ExpectRadii(100, 100, 102, 100);
}

TEST_F(JoinWindowTest, AWiderThinSetInBranchPassesAtItsEdgeOnly) {
    window->branch.join = SetInJoin;
    TypeBoxes(*window, {{0, "202"}});
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectUserError(shell.ui, *window, TooLarge);
    ExpectRadii(101, 103, 103, 100);
}

TEST_F(JoinWindowTest, TheBranchsEdgeIsTestedBeforeTheHole) {
    window->branch.join = SetInJoin;
    window->settings.ThicknessA = 12;
    TypeBoxes(*window, {{0, "202"}});
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectUserError(shell.ui, *window, TooLarge);
    ExpectRadii(101, 100, 0, 0);
}

TEST_F(JoinWindowTest, AnOffsetCountsWithTheRadius) {
    for (const std::string offset : {"40", "-40"}) {
        TypeBoxes(*window, {{11, offset}});
        window->branch.join = MeanToMeanJoin;
        EXPECT_EQ(window->BuildFitting(), Passed) << "60 + 40 is all of the trunk";
        window->branch.join = SetOnJoin;
        EXPECT_EQ(window->BuildFitting(), Passed);
        EXPECT_TRUE(shell.ui.messages.empty());
        window->branch.join = SetInJoin;
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, TooLarge);
        shell.ui.messages.clear();
    }
    // Set in, the edge is cut against 95.
    TypeBoxes(*window, {{11, "35"}});
    EXPECT_EQ(window->BuildFitting(), Passed);
    TypeBoxes(*window, {{11, "35.1"}});
    EXPECT_EQ(window->BuildFitting(), Refused);
}

TEST_F(JoinWindowTest, ABranchWiderThanTheTrunkIsRefusedWithoutAnOffset) {
    TypeBoxes(*window, {{0, "201"}});
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectUserError(shell.ui, *window, TooLarge);
}

TEST_F(JoinWindowTest, MaterialThatFillsTheBranchIsRefused) {
    window->branch.join = SetOnJoin;
    window->settings.ThicknessA = 130;
    window->settings.ThicknessB = 0;
    window->ClickView(0);
    ExpectNotMade(shell.ui, *window, TooThick);
}

TEST_F(JoinWindowTest, HalfPatternsNeedCrossingAxes) {
    window->settings.HalfPattern = true;
    ASSERT_EQ(window->BuildFitting(), Passed);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_TRUE(window->settings.HalfPattern);
    TypeBoxes(*window, {{11, "-5"}});
    ASSERT_EQ(window->BuildFitting(), Passed);
    ASSERT_EQ(shell.ui.Texts(), std::vector<std::string>{NoHalf});
    EXPECT_EQ(shell.ui.messages[0].title, "User Error");
    EXPECT_FALSE(window->settings.HalfPattern);
    EXPECT_EQ(window->labels->Last().LabelString, "Branch  Full pattern  21 Nov 2026");
    ASSERT_EQ(window->BuildFitting(), Passed);
    EXPECT_EQ(window->labels->Last().LabelString, "Branch  Full pattern  21 Nov 2026");
    EXPECT_EQ(shell.ui.messages.size(), 1U);
}

TEST_F(JoinWindowTest, AHalfPatternIsRefusedBeforeTheRadii) {
    window->settings.HalfPattern = true;
    window->branch.join = SetInJoin;
    TypeBoxes(*window, {{11, "40"}});
    EXPECT_EQ(window->BuildFitting(), Refused);
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>{NoHalf, TooLarge}));
}

TEST_F(JoinWindowTest, APatternIsAskedForOnlyInAPatternView) {
    window->ClickView(0);
    EXPECT_TRUE(window->hasModel);
    EXPECT_EQ(Fitting().results.ModelSurfaceList.Count(), 2U);
    window->FocusBox(3);
    window->ClickView(PatternButton);
    // Miscellaneous is 1 from the start, and yet nothing is selected.
    EXPECT_EQ(window->miscellaneous, TrunkPattern);
    ExpectUserError(shell.ui, *window, "A pattern must be selected");
    EXPECT_EQ(window->controls.focus, "txtParameter_3");
}

TEST_F(JoinWindowTest, APatternIsAskedForBeforeTheRadii) {
    window->branch.join = SetInJoin;
    TypeBoxes(*window, {{0, "200"}});
    window->ClickView(PatternButton);
    ExpectUserError(shell.ui, *window, "A pattern must be selected");
}

TEST_F(JoinWindowTest, TheSelectedPipeIsDeveloped) {
    window->SelectPattern(0);
    window->ClickView(PatternButton);
    EXPECT_EQ(window->miscellaneous, TrunkPattern);
    ASSERT_EQ(Fitting().results.PatternSurfaceList.Count(), 1U);
    EXPECT_NEAR(Fitting().results.PatternSurfaceList.Item(1).List1->Last().x, 200 * PI, 1e-9);
    EXPECT_TRUE(Fitting().results.PatternSurfaceList.Item(1).List3);
    window->SelectPattern(1);
    window->Redraw();
    EXPECT_EQ(window->miscellaneous, BranchPipePattern);
    ASSERT_EQ(Fitting().results.PatternSurfaceList.Count(), 1U);
    EXPECT_NEAR(Fitting().results.PatternSurfaceList.Item(1).List1->Last().x, 120 * PI, 1e-9);
    EXPECT_TRUE(shell.ui.messages.empty());
}

/// The slanting sample without material: r = 50 at 60 degrees.
class HeelTest : public testing::Test {
  protected:
    HeelTest() : window(shell.OpenSample("Branch", 2)) { window->settings.ThicknessA = 4; }

    double Angle() {
        EXPECT_EQ(window->BuildFitting(), Passed);
        return window->fitting->As<CBranch>().AxialAngle;
    }

    TestShell shell;
    std::unique_ptr<CFittingWindow> window;
};

TEST_F(HeelTest, LeansASetOnBranch) {
    window->branch = {SetOnJoin, true};
    // An inside diameter of 96 covers 96 / sin 60 of the trunk, and the wall of 4 stands 4 sin 30 = 2 off it,
    // 4 cos 30 nearer.
    const double turned = std::atan2(2, 96 / std::sin(PI / 3) - 4 * std::cos(PI / 6));
    EXPECT_NEAR(RadToDeg(turned), 1.067, 1e-3);
    EXPECT_NEAR(Angle(), PI / 3 - turned, 1e-10);
    // The limits are those of the angle as typed.
    TypeBoxes(*window, {{8, "115.471"}});
    EXPECT_NEAR(Angle(), PI / 3 - turned, 1e-10);
}

TEST_F(HeelTest, IsForSetOnBranchesWithTheOptionOnly) {
    for (const BranchOptions& options :
         {BranchOptions{SetOnJoin, false}, {SetInJoin, true}, {MeanToMeanJoin, true}}) {
        window->branch = options;
        EXPECT_NEAR(Angle(), PI / 3, 1e-12);
    }
}

TEST_F(HeelTest, LeavesSquareBranchesAlone) {
    window->branch = {SetOnJoin, true};
    TypeBoxes(*window, {{10, "90"}});
    EXPECT_NEAR(Angle(), QuarterTurn, 1e-9);
    const auto square = shell.OpenSample("Branch", 1);
    square->settings.ThicknessA = 4;
    square->branch = {SetOnJoin, true};
    ASSERT_EQ(square->BuildFitting(), Passed);
    EXPECT_EQ(square->fitting->As<CBranch>().AxialAngle, QuarterTurn);
}

TEST_F(HeelTest, NeedsAnInsideOfTheBranch) {
    window->branch = {SetOnJoin, true};
    window->settings.ThicknessA = 8;
    // On the mean a diameter of 8 is all wall, and one of 6 less than that.
    for (const char* diameter : {"8", "6"}) {
        TypeBoxes(*window, {{5, diameter}});
        window->ClickView(0);
        ExpectNotMade(shell.ui, *window, TooThick);
    }
}

TEST_F(HeelTest, ThatLeavesNoAngleIsRefused) {
    window->branch = {SetOnJoin, true};
    window->settings.ThicknessA = 95;
    TypeBoxes(*window, {{10, "2"}, {8, "9000"}, {9, "9000"}});
    window->ClickView(0);
    ExpectNotMade(shell.ui, *window, "heel compensation leaves no angle between branch and trunk");
}

}  // namespace
}  // namespace korvet
