// The window of the branch: how it starts, every limit in its place, the sizes that it hands on, text lines.
#include <gtest/gtest.h>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/branches/branch.h"
#include "tests/support/refusals.h"
#include "tests/support/window_start.h"

namespace korvet {
namespace {

/// Material of the two pipes.
struct Material {
    double branch;
    double trunk;
    MaterialSide side;
};

void SetMaterial(CFittingWindow& window, const Material& material) {
    window.settings.ThicknessA = material.branch;
    window.settings.ThicknessB = material.trunk;
    window.settings.InOutMean = material.side;
}

TEST(BranchWindow, StartsAsABranchDoes) {
    ExpectStart("Branch", {.helpContextId = 2170,
                           .boxes = 13,
                           .laps = AllLaps,
                           .pieces = true,
                           .halfPattern = true,
                           .templateType = true,
                           .patterns = {"Trunk", "Branch"},
                           .miscellaneous = 1});
    TestShell shell;
    const auto window = shell.Open("Branch");
    EXPECT_TRUE(window->settings.MaterialDisable);
    EXPECT_TRUE(window->settings.BranchMaterialEnable);
    EXPECT_EQ(window->branch.join, MeanToMeanJoin);
    EXPECT_FALSE(window->branch.heelCompensation);
}

class BranchRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(BranchRefusals, NameTheBox) {
    ExpectRefused("Branch", GetParam());
}

// r = 60 and R = 100; the box that is refused later in the order is wrong too.
INSTANTIATE_TEST_SUITE_P(Square, BranchRefusals,
                         testing::Values(Refusal{1, {{0, "0"}, {1, "0"}}, AboveZero, 0},
                                         Refusal{1, {{1, "-1"}, {2, "0"}}, AboveZero, 1},
                                         Refusal{1, {{2, "0"}, {3, "0"}}, AboveZero, 2},
                                         Refusal{1, {{2, "99.9"}, {3, "0"}}, AtLeast + "100", 2},
                                         Refusal{1, {{3, "59.9"}, {4, "1"}}, AtLeast + "60", 3},
                                         Refusal{1, {{4, "219.9"}, {11, "90"}}, AtLeast + "220", 4},
                                         Refusal{1, {{11, "40.1"}}, AtMost + "40", 11},
                                         Refusal{1, {{11, "-40.1"}}, AtLeast + "-40", 11},
                                         // A branch wider than the trunk has no place beside its axis.
                                         Refusal{1, {{0, "210"}, {11, "1"}}, AtMost + "-5", 11}));

// r = 50 and R = 100 at 60 degrees.
INSTANTIATE_TEST_SUITE_P(
    Slanting, BranchRefusals,
    testing::Values(Refusal{2, {{5, "0"}, {6, "0"}}, AboveZero, 5},
                    Refusal{2, {{6, "-1"}, {7, "0"}}, AboveZero, 6},
                    Refusal{2, {{7, "0"}, {12, "60"}}, AboveZero, 7},
                    // The offset comes before the lengths here.
                    Refusal{2, {{12, "50.1"}, {7, "10"}}, AtMost + "50", 12},
                    Refusal{2, {{12, "-50.1"}, {7, "10"}}, AtLeast + "-50", 12},
                    Refusal{2, {{7, "99.9"}, {10, "0"}}, AtLeast + "100", 7},
                    Refusal{2, {{10, "0"}, {8, "0"}}, AboveZero, 10},
                    Refusal{2, {{10, "-60"}, {8, "0"}}, AboveZero, 10},
                    Refusal{2, {{10, "90.1"}, {8, "0"}}, AtMost + "90", 10},
                    // 50 / sin 60 + 100 / tan 60 = 115.470
                    Refusal{2, {{8, "115.4"}, {9, "0"}}, AtLeast + "115.5", 8},
                    // 50 / tan 60 + 100 / sin 60 = 144.338
                    Refusal{2, {{9, "144.3"}}, AtLeast + "144.3", 9},
                    // At 30 degrees 100 + 173.205, and 86.603 + 200.
                    Refusal{2, {{10, "30"}, {8, "273.2"}}, AtLeast + "273.2", 8},
                    Refusal{2, {{10, "30"}, {8, "274"}, {9, "286.6"}}, AtLeast + "286.6", 9}));

TEST(BranchLimits, TheLimitsThemselvesAreAllowed) {
    ExpectMade("Branch", {{1, {{2, "100"}, {3, "60"}, {4, "120"}, {11, "40"}}},
                          {1, {{11, "-40"}}},
                          {1, {{11, "0"}}},
                          {1, {{0, "200"}, {3, "100"}, {4, "200"}, {11, "0"}}},
                          {2, {{12, "50"}, {7, "100"}}},
                          {2, {{12, "-50"}}},
                          {2, {{8, "115.471"}}},
                          {2, {{10, "90"}}}});
}

TEST(BranchLimits, ASquareBranchOfTheSecondTypeMayTouchBothEnds) {
    TestShell shell;
    const auto window = shell.OpenSample("Branch", 2);
    // Half the branch from the end of the trunk; the trunk as long as half its diameter.
    TypeBoxes(*window, {{10, "90"}, {5, "100"}, {6, "200"}, {8, "50"}, {9, "100"}});
    EXPECT_EQ(window->BuildFitting(), Passed);
    EXPECT_TRUE(shell.ui.messages.empty());
    TypeBoxes(*window, {{8, "49.99"}});
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectUserError(shell.ui, *window, AtLeast + "50", 8);
}

TEST(BranchLimits, ASlantingBranchMayStandBeyondTheEndOfItsTrunk) {
    TestShell shell;
    const auto window = shell.OpenSample("Branch", 2);
    TypeBoxes(*window, {{8, "500"}, {9, "144.4"}});
    EXPECT_EQ(window->BuildFitting(), Passed);
    EXPECT_TRUE(shell.ui.messages.empty());
    // The square page asks for the branch's radius and the distance to the crossing.
    const auto square = shell.OpenSample("Branch", 1);
    TypeBoxes(*square, {{3, "500"}});
    EXPECT_EQ(square->BuildFitting(), Refused);
    ExpectUserError(shell.ui, *square, AtLeast + "560", 4);
}

struct MaterialCase {
    Material material;
    BoxTexts boxes;
    std::string message;
    int box;
};

TEST(BranchLimits, GoByTheMeanSizes) {
    const std::vector<MaterialCase> cases = {
        // The trunk's outside lies half its thickness beyond its mean radius.
        {{4, 10, MeanDimension}, {{2, "104.9"}}, AtLeast + "105", 2},
        {{4, 10, InsideDimension}, {{2, "109.9"}}, AtLeast + "110", 2},
        {{4, 10, OutsideDimension}, {{2, "99.9"}}, AtLeast + "100", 2},
        {{4, 10, InsideDimension}, {{3, "61.9"}}, AtLeast + "62", 3},
        {{4, 10, OutsideDimension}, {{3, "57.9"}}, AtLeast + "58", 3},
        {{4, 10, InsideDimension}, {{4, "221.9"}}, AtLeast + "222", 4},
        {{4, 10, InsideDimension}, {{11, "43.1"}}, AtMost + "43", 11},
        {{4, 10, OutsideDimension}, {{11, "-37.1"}}, AtLeast + "-37", 11}};
    for (const MaterialCase& example : cases) {
        TestShell shell;
        const auto window = shell.OpenSample("Branch", 1);
        SetMaterial(*window, example.material);
        TypeBoxes(*window, example.boxes);
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, example.message, example.box);
    }
}

TEST(BranchNumbers, BoxesOfBothPagesMustHoldNumbers) {
    TestShell shell;
    const auto window = shell.OpenSample("Branch", 1);
    window->controls.txtParameter[12].text = "";
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectNotANumber(shell.ui, *window, 12);
}

TEST(BranchSizes, OfASquareBranch) {
    TestShell shell;
    const auto window = shell.OpenSample("Branch", 1);
    SetMaterial(*window, {4, 10, MeanDimension});
    window->settings.TemplateType = 1;
    window->settings.JoinAngle = 30;
    const CBranch& branch = Built<CBranch>(*window);
    EXPECT_EQ(branch.AxialAngle, QuarterTurn);
    EXPECT_EQ(branch.Offset, -25);
    EXPECT_EQ(branch.LengthPipeA, 250);
    EXPECT_EQ(branch.LengthToIP, 160);
    EXPECT_EQ(branch.LengthPipeB, 320);
    EXPECT_EQ(branch.BranchThickness, 4);
    EXPECT_EQ(branch.TrunkThickness, 10);
    EXPECT_EQ(branch.TemplateType, 1);
    EXPECT_EQ(branch.inputs.Dtype, 0);
    EXPECT_EQ(window->settings.JoinAngle, 30) << "kept, though the seam stands opposite the branch";
}

TEST(BranchSizes, OfASlantingBranch) {
    TestShell shell;
    const auto window = shell.OpenSample("Branch", 2);
    const CBranch& branch = Built<CBranch>(*window);
    EXPECT_NEAR(branch.AxialAngle, PI / 3, 1e-12);
    EXPECT_EQ(branch.Offset, -15);
    EXPECT_EQ(branch.LengthPipeA, 280);
    EXPECT_EQ(branch.LengthToIP, 200);
    EXPECT_EQ(branch.LengthPipeB, 300);
    EXPECT_EQ(branch.BranchRadiusPipeA, 50);
    EXPECT_EQ(branch.BranchRadiusPipeB, 100);
    EXPECT_EQ(branch.inputs.Dtype, 1);
}

TEST(BranchTextBlock, TellsBothPipesAndTheirJoin) {
    TestShell shell;
    const auto window = shell.OpenSample("Branch", 1);
    SetMaterial(*window, {2.5, 4, MeanDimension});
    window->comment1 = "Order 17";
    TypeBoxes(*window, {{11, " 25.0"}});
    ASSERT_EQ(window->BuildFitting(), Passed);
    EXPECT_EQ(TextBlock(*window),
              (std::vector<std::string>{
                  "Order 17", "", "Branch pipe diameter = 120", "Main pipe diameter = 200",
                  "Branch pipe length = 250", "Distance to intersection = 160", "Main pipe length = 320",
                  "Offset =  25.0", "Thickness of branch pipe = 2.5", "Thickness of trunk pipe = 4",
                  "Branch type is Mean to Mean", "Branch  Full pattern  21 Nov 2026"}));
}

TEST(BranchTextBlock, TellsTheAngleOfASlantingBranch) {
    TestShell shell;
    const auto window = shell.OpenSample("Branch", 2);
    TypeBoxes(*window, {{12, "0"}});
    window->settings.HalfPattern = true;
    window->branch.join = SetOnJoin;
    ASSERT_EQ(window->BuildFitting(), Passed);
    EXPECT_EQ(TextBlock(*window),
              (std::vector<std::string>{"", "", "Branch pipe diameter = 100", "Main pipe diameter = 200",
                                        "Branch pipe length = 280", "Distance to intersection = 200",
                                        "Main pipe length = 300", "Branch angle = 60", "Offset = 0",
                                        "Thickness of branch pipe = 0", "Thickness of trunk pipe = 0",
                                        "Branch type is Set ON", "Branch  Half pattern  21 Nov 2026"}));
    window->branch.join = SetInJoin;
    ASSERT_EQ(window->BuildFitting(), Passed);
    EXPECT_EQ(window->labels->Item(12).LabelString, "Branch type is Set IN");
}

}  // namespace
}  // namespace korvet
