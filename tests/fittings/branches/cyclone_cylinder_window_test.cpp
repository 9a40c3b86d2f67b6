// The window of the cyclone on a cylinder: how it starts, its checks of the walls, the offset by the way the
// pipes are joined, and where the branch comes to stand. The samples are branches of 120 and 100 on a main
// pipe of 200; the limits that are those of a branch are tested with it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "core/constants.h"
#include "fittings/branches/branch.h"
#include "tests/support/near.h"
#include "tests/support/refusals.h"
#include "tests/support/saved_fittings.h"
#include "window/views.h"

namespace korvet::cyclone_cylinder_window_test {
namespace {

constexpr const char* Category = "Cyclone (Cylinder)";
const std::string TooLarge =
    "\r\n Either the branch pipe diameter or the offset distance is too large. \r\n This may also be due to "
    "the values for material thickness and Set-In/Set-On.";

TEST(CycloneCylinderWindow, StartsAsACycloneDoes) {
    TestShell shell;
    const auto window = shell.Open(Category);
    EXPECT_EQ(window->Row().helpContextId, 2370);
    EXPECT_EQ(window->miscellaneous, 1);
    EXPECT_TRUE(window->Table().multiple);
    EXPECT_EQ(window->settings.LapEnable, SeamLapOnly);
    EXPECT_TRUE(window->settings.JoinAngleDisable);
    EXPECT_TRUE(window->settings.TemplateTypeEnabled);
    EXPECT_TRUE(window->settings.MaterialDisable);
    EXPECT_TRUE(window->settings.BranchMaterialEnable);
    EXPECT_TRUE(window->settings.HalfPatternDisable);
    EXPECT_EQ(window->branch.join, MeanToMeanJoin);
    const OptionGroup& patterns = window->controls.options.optPatternSelect;
    EXPECT_EQ(patterns.captions, (std::vector<std::string>{"Trunk", "Branch"}));
    EXPECT_FALSE(patterns.selected);
    EXPECT_EQ(window->controls.txtParameter.size(), 11U);
}

class CycloneRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(CycloneRefusals, NameTheBox) {
    ExpectRefused(Category, GetParam());
}

// The box that is refused later in the order is wrong too.
INSTANTIATE_TEST_SUITE_P(Square, CycloneRefusals,
                         testing::Values(Refusal{1, {{0, "0"}, {1, "0"}}, AboveZero, 0},
                                         Refusal{1, {{1, "-1"}, {2, "0"}}, AboveZero, 1},
                                         Refusal{1, {{2, "0"}, {3, "0"}}, AboveZero, 2},
                                         Refusal{1, {{2, "99.9"}, {3, "0"}}, AtLeast + "100", 2},
                                         Refusal{1, {{3, "59.9"}, {4, "1"}}, AtLeast + "60", 3},
                                         Refusal{1, {{4, "219.9"}}, AtLeast + "220", 4}));

INSTANTIATE_TEST_SUITE_P(Slanting, CycloneRefusals,
                         testing::Values(Refusal{2, {{5, "0"}, {6, "0"}}, AboveZero, 5},
                                         Refusal{2, {{6, "-1"}, {7, "0"}}, AboveZero, 6},
                                         Refusal{2, {{7, "0"}, {10, "0"}}, AboveZero, 7},
                                         Refusal{2, {{7, "99.9"}, {10, "0"}}, AtLeast + "100", 7},
                                         Refusal{2, {{10, "0"}, {8, "0"}}, GreaterThan + "0", 10},
                                         Refusal{2, {{10, "90.1"}, {8, "0"}}, AtMost + "90", 10},
                                         Refusal{2, {{8, "115.4"}, {9, "0"}}, AtLeast + "115.5", 8},
                                         Refusal{2, {{9, "144.3"}}, AtLeast + "144.3", 9}));

TEST(CycloneLimits, TheLimitsThemselvesAreAllowed) {
    ExpectMade(Category, {{1, {{2, "100"}}},
                          {1, {{3, "60"}}},
                          {1, {{4, "220"}}},
                          {1, {{0, "200"}}},
                          {2, {{8, "115.471"}}},
                          {2, {{9, "144.338"}}},
                          {2, {{10, "90"}}}});
}

/// At 30 degrees the rule 202.5 degrees round from the top, 50 sin 22.5 = 19.1 nearer to the main pipe's axis
/// than the branch's own 50, ends (sqrt(100^2 - 30.9^2) + 50 cos 22.5 cos 30) / sin 30 = 270.2 along.
TEST(CycloneLimits, ABranchThatEndsInTheMainPipeIsNotMade) {
    for (const char* length : {"101", "270.2"}) {
        ExpectShapeless(Category, {2,
                                   {{10, "30"}, {7, length}, {8, "300"}, {9, "300"}},
                                   "the branch pipe length is too short: the cut runs past the free end"});
    }
    ExpectMade(Category, {{2, {{10, "30"}, {7, "270.3"}, {8, "300"}, {9, "300"}}}});
}

/// The square sample with material of 4 and 10, R = 100.
class CycloneJoinTest : public testing::Test {
  protected:
    CycloneJoinTest() : window(shell.OpenSample(Category, 1)) {
        window->settings.ThicknessA = 4;
        window->settings.ThicknessB = 10;
    }

    const CBranch& Fitting() { return window->fitting->As<CBranch>(); }

    TestShell shell;
    std::unique_ptr<CFittingWindow> window;
};

TEST_F(CycloneJoinTest, EveryJoinHasItsRadiiAndItsOffset) {
    struct JoinCase {
        BranchJoin join;
        double branchB, trunkA, offset;
    };
    for (const JoinCase& example : {JoinCase{MeanToMeanJoin, 100, 60, 40}, JoinCase{SetOnJoin, 105, 58, 42},
                                    JoinCase{SetInJoin, 103, 62, 38}}) {
        window->branch.join = example.join;
        ASSERT_EQ(window->BuildFitting(), Passed);
        EXPECT_EQ(Fitting().BranchRadiusPipeA, 60);
        EXPECT_EQ(Fitting().BranchRadiusPipeB, example.branchB);
        EXPECT_EQ(Fitting().TrunkRadiusPipeA, example.trunkA);
        EXPECT_EQ(Fitting().TrunkRadiusPipeB, 100);
        EXPECT_EQ(Fitting().Offset, example.offset);
        EXPECT_TRUE(Fitting().RefusesShortBranch);
    }
}

/// Of the two shapes the one with less room touches the wall it is cut against.
TEST_F(CycloneJoinTest, TheTighterShapeTouchesTheWall) {
    for (const BranchJoin join : {SetInJoin, SetOnJoin, MeanToMeanJoin}) {
        for (const std::int16_t side : {MeanDimension, InsideDimension, OutsideDimension}) {
            for (const char* diameter : {"30", "120.7", "180"}) {
                window->branch.join = join;
                window->settings.InOutMean = side;
                TypeBoxes(*window, {{0, diameter}});
                window->ClickView(0);
                ASSERT_TRUE(window->hasModel);
                const CBranch& cyclone = Fitting();
                const bool edge = cyclone.BranchRadiusPipeB - cyclone.BranchRadiusPipeA <=
                                  cyclone.TrunkRadiusPipeB - cyclone.TrunkRadiusPipeA;
                const CRuleSurf& part = cyclone.results.ModelSurfaceList.Item(edge ? 1 : 2);
                double farthest = 0;
                for (const C3DPoint& point : edge ? *part.List2 : *part.List3) {
                    farthest = std::max(farthest, point.y);
                }
                EXPECT_NEAR(farthest, edge ? cyclone.BranchRadiusPipeB : cyclone.TrunkRadiusPipeB, Near);
            }
        }
    }
}

struct FitCase {
    std::size_t pattern;
    BranchJoin join;
    std::string fits;  ///< the widest branch for this pattern
    std::string tooWide;
    std::string message;
};

/// What is said of a branch that is too wide for the pattern that is made: three of the four have no words.
TEST_F(CycloneJoinTest, TheBranchMustFitIntoTheMainPipe) {
    const std::vector<FitCase> cases = {
        {0, SetInJoin, "196", "196.01", ""},      {0, SetOnJoin, "204", "204.01", ""},
        {0, MeanToMeanJoin, "200", "200.01", ""}, {1, MeanToMeanJoin, "200", "200.01", ""},
        {1, SetInJoin, "196", "206.01", ""},      {1, SetOnJoin, "204", "210.01", TooLarge}};
    for (const FitCase& example : cases) {
        SCOPED_TRACE(example.tooWide);
        window->branch.join = example.join;
        window->SelectPattern(example.pattern);
        TypeBoxes(*window, {{0, example.fits}, {2, "250"}});
        window->ClickView(PatternButton);
        EXPECT_TRUE(window->hasModel);
        EXPECT_TRUE(shell.ui.messages.empty());
        TypeBoxes(*window, {{0, example.tooWide}, {2, "1"}});  // a length is wrong as well, but comes after
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, example.message);
        shell.ui.messages.clear();
    }
}

/// A branch that its own pattern takes, and the hole cannot.
TEST_F(CycloneJoinTest, TheOtherShapeMustBeThereToo) {
    window->SelectPattern(1);
    for (const auto& [join, diameter] :
         {std::pair{SetInJoin, "196.01"}, {SetInJoin, "206"}, {SetOnJoin, "210"}}) {
        window->branch.join = join;
        TypeBoxes(*window, {{0, diameter}});
        window->ClickView(PatternButton);
        ExpectUserError(shell.ui, *window, TooLarge);
        shell.ui.messages.clear();
    }
}

TEST_F(CycloneJoinTest, BothPipesNeedAnInside) {
    window->settings.InOutMean = OutsideDimension;
    TypeBoxes(*window, {{0, "8"}, {2, "300"}});
    EXPECT_EQ(window->BuildFitting(), Passed);
    TypeBoxes(*window, {{0, "7.9"}, {1, "19"}, {2, "1"}});
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectUserError(shell.ui, *window, NoRoom, 0);
    shell.ui.messages.clear();
    TypeBoxes(*window, {{0, "9"}});
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectUserError(shell.ui, *window, NoRoom, 1);
}

TEST_F(CycloneJoinTest, HalfPatternsAreOfABranchAsWideAsTheMainPipe) {
    window->settings.HalfPattern = true;
    TypeBoxes(*window, {{0, "200"}});
    ASSERT_EQ(window->BuildFitting(), Passed);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_EQ(Fitting().Offset, 0);
    EXPECT_EQ(window->labels->Last().LabelString, "Cyclone (Cylinder)  Half pattern  21 Nov 2026");
    TypeBoxes(*window, {{0, "199"}});
    ASSERT_EQ(window->BuildFitting(), Passed);
    EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>{"Half pattern not applicable to this item"});
    EXPECT_FALSE(window->settings.HalfPattern);
    EXPECT_EQ(window->labels->Last().LabelString, "Cyclone (Cylinder)  Full pattern  21 Nov 2026");
}

TEST_F(CycloneJoinTest, APatternIsAskedForInAPatternView) {
    window->ClickView(PatternButton);
    ExpectUserError(shell.ui, *window, "A pattern must be selected");
}

TEST(CycloneHeel, IsCompensatedAsThatOfABranch) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 2);
    window->settings.ThicknessA = 4;
    window->branch = {SetOnJoin, true};
    const double turned = std::atan2(2, 96 / std::sin(PI / 3) - 4 * std::cos(PI / 6));
    EXPECT_NEAR(Built<CBranch>(*window).AxialAngle, PI / 3 - turned, 1e-10);
    window->branch.heelCompensation = false;
    EXPECT_NEAR(Built<CBranch>(*window).AxialAngle, PI / 3, 1e-12);
}

TEST(CycloneTextBlock, TellsBothPipesAndTheirJoin) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 2);
    window->settings.ThicknessA = 2.5;
    window->settings.ThicknessB = 4;
    window->branch.join = SetOnJoin;
    ASSERT_EQ(window->BuildFitting(), Passed);
    EXPECT_EQ(TextBlock(*window),
              (std::vector<std::string>{
                  "", "", "Branch pipe diameter = 100", "Main pipe diameter = 200",
                  "Branch pipe length = 280", "Distance to intersection = 200", "Main pipe length = 300",
                  "Branch angle = 60", "Thickness of branch pipe = 2.5", "Thickness of trunk pipe = 4",
                  "Branch type is Set ON", "Cyclone (Cylinder)  Full pattern  21 Nov 2026"}));
}

TEST(CycloneFiles, KeepBothThicknessesAndTheJoin) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 2);
    window->settings.ThicknessA = 3;
    window->settings.ThicknessB = 5;
    window->branch = {SetOnJoin, true};
    window->SelectPattern(1);
    ExpectFileKeepsEverything(shell, *window);
    EXPECT_NE(shell.files.files["a.Kvt"].find("Start Branch Material"), std::string::npos);
    const auto opened = shell.Open(Category);
    ASSERT_EQ(opened->FillFromFile("a.Kvt"), Passed);
    EXPECT_EQ(opened->settings.ThicknessA, 3);
    EXPECT_EQ(opened->settings.ThicknessB, 5);
    EXPECT_EQ(opened->branch.join, SetOnJoin);
    EXPECT_TRUE(opened->branch.heelCompensation);
    EXPECT_TRUE(opened->settings.BranchMaterialEnable);
    EXPECT_TRUE(opened->settings.HalfPatternDisable);
}

}  // namespace
}  // namespace korvet::cyclone_cylinder_window_test
