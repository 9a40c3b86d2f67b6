// The window of the pipe on a cone: how it starts, every limit in its place, the sizes that it hands on, text
// lines. The samples are a pipe of 150 on a cone from 500 to 200 from the side, one of 120 on a cone from 620
// to 190 from above, and one of 130 on a cone from 560 to 220 at 35 degrees.
#include <gtest/gtest.h>

#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/branches/pipe_to_cone.h"
#include "tests/support/near.h"
#include "tests/support/refusals.h"
#include "tests/support/text_blocks.h"
#include "window/views.h"

namespace korvet::pipe_to_cone_window_test {
namespace {

constexpr const char* Category = "Pipe to Cone";
const std::string NoHalf = "Half pattern not applicable to this item";

const CPipeToCone& PipeOn(CFittingWindow& window) {
    return Built<CPipeToCone>(window);
}

TEST(PipeToConeWindow, StartsAsAPipeOnAConeDoes) {
    TestShell shell;
    const auto window = shell.Open(Category);
    EXPECT_EQ(window->Row().helpContextId, 2190);
    EXPECT_EQ(window->dtype, 0);
    EXPECT_EQ(window->miscellaneous, 1);
    EXPECT_TRUE(window->Table().multiple);
    EXPECT_EQ(window->settings.LapEnable, AllLaps);
    EXPECT_TRUE(window->settings.JoinAngleDisable);
    EXPECT_FALSE(window->settings.TemplateTypeEnabled);
    EXPECT_FALSE(window->settings.HalfPatternDisable);
    const OptionGroup& patterns = window->controls.options.optPatternSelect;
    EXPECT_EQ(patterns.captions, (std::vector<std::string>{"Cone", "Pipe"}));
    EXPECT_FALSE(patterns.selected);
    ASSERT_EQ(window->controls.txtParameter.size(), 22U);
    for (const TextBox& box : window->controls.txtParameter) {
        EXPECT_EQ(box.text, "0");
    }
}

class PipeToConeRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(PipeToConeRefusals, NameTheBox) {
    ExpectRefused(Category, GetParam());
}

// The box that is refused later in the order is wrong too. The wall leans by atan(1 / 3).
INSTANTIATE_TEST_SUITE_P(FromSide, PipeToConeRefusals,
                         testing::Values(Refusal{1, {{0, "0"}, {1, "0"}}, AboveZero, 0},
                                         Refusal{1, {{1, "-1"}, {2, "0"}}, AboveZero, 1},
                                         Refusal{1, {{2, "0"}, {1, "500"}}, AboveZero, 2},
                                         Refusal{1, {{1, "500"}, {5, "1"}}, LessThan + "500", 1},
                                         Refusal{1, {{5, "75"}, {19, "999"}}, GreaterThan + "75", 5},
                                         Refusal{1, {{5, "375"}, {19, "999"}}, LessThan + "375", 5},
                                         // The ball 180 up: 570 sin 18.4 across, less a hundredth.
                                         Refusal{1, {{2, "357"}, {19, "999"}}, LessThan + "356.9", 2},
                                         // 570 / 3 - 75 / cos 18.4
                                         Refusal{1, {{19, "111"}}, LessThan + "110.9", 19},
                                         Refusal{1, {{19, "-111"}}, GreaterThan + "-110.9", 19}));

// r + p = 155 and R - p = 250; a triangle of 175 and 178.5.
INSTANTIATE_TEST_SUITE_P(FromTop, PipeToConeRefusals,
                         testing::Values(Refusal{2, {{6, "0"}, {7, "0"}}, AboveZero, 6},
                                         Refusal{2, {{7, "0"}, {8, "0"}}, AboveZero, 7},
                                         Refusal{2, {{8, "-1"}, {7, "620"}}, AboveZero, 8},
                                         Refusal{2, {{7, "620"}, {11, "1"}}, LessThan + "620", 7},
                                         Refusal{2, {{11, "155"}, {20, "999"}}, GreaterThan + "155", 11},
                                         Refusal{2, {{11, "250"}, {20, "999"}}, LessThan + "250", 11},
                                         Refusal{2, {{20, "178.6"}}, LessThan + "178.5", 20},
                                         Refusal{2, {{20, "-178.6"}}, GreaterThan + "-178.5", 20}));

INSTANTIATE_TEST_SUITE_P(AtAngle, PipeToConeRefusals,
                         testing::Values(Refusal{3, {{12, "0"}, {13, "0"}}, AboveZero, 12},
                                         Refusal{3, {{13, "0"}, {14, "0"}}, AboveZero, 13},
                                         Refusal{3, {{14, "0"}, {15, "0"}}, AboveZero, 14},
                                         Refusal{3, {{15, "0"}, {16, "0"}}, AboveZero, 15},
                                         Refusal{3, {{16, "-1"}, {13, "560"}}, AboveZero, 16},
                                         Refusal{3, {{13, "560"}, {17, "-999"}}, LessThan + "560", 13},
                                         Refusal{
                                             3, {{17, "-116.8"}, {21, "999"}}, GreaterThan + "-116.7", 17},
                                         // Level, its lowest rule stands on the base.
                                         Refusal{3, {{18, "0"}, {17, "64.9"}}, GreaterThan + "65", 17},
                                         Refusal{3, {{14, "433"}, {21, "999"}}, LessThan + "432.2", 14},
                                         Refusal{3, {{21, "165.5"}}, LessThan + "165.4", 21},
                                         Refusal{3, {{21, "-165.5"}}, GreaterThan + "-165.4", 21}));

TEST(PipeToConeLimits, SizesWithinAreAllowed) {
    const std::vector<std::pair<int, BoxTexts>> cases = {{1, {{5, "75.001"}}},
                                                         {1, {{5, "374.999"}}},
                                                         {1, {{2, "356.8"}, {19, "0"}}},
                                                         {1, {{19, "110.9"}}},
                                                         {1, {{19, "-110.9"}}},
                                                         {1, {{1, "499.999"}, {2, "100"}}},
                                                         {2, {{11, "155.001"}}},
                                                         {2, {{11, "249.999"}, {20, "0"}}},
                                                         {2, {{20, "178.5"}}},
                                                         {2, {{20, "-178.5"}}},
                                                         {3, {{18, "0"}, {17, "65.001"}, {21, "0"}}},
                                                         {3, {{21, "165.3"}}},
                                                         {3, {{21, "-165.3"}}}};
    ExpectMade(Category, cases);
}

TEST(PipeToConeLimits, MaterialMustFitIntoThePartWhosePatternIsMade) {
    struct RoomCase {
        std::size_t pattern;
        BoxTexts boxes;
        int box;
    };
    // Outside sizes and a thickness of 6: the pipe needs 12, the top of the cone 10.54 with the wall that
    // leads to it.
    const std::vector<RoomCase> cases = {
        {0, {{0, "10"}, {1, "9"}}, 0}, {0, {{1, "10.5"}}, 1}, {1, {{2, "11.9"}}, 2}};
    for (const RoomCase& example : cases) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, 1);
        window->settings.InOutMean = OutsideDimension;
        window->settings.Thickness = 6;
        TypeBoxes(*window, example.boxes);
        TypeBoxes(*window, {{5, "1"}});  // wrong as well, but comes after
        window->SelectPattern(example.pattern);
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, NoRoom, example.box);
        shell.ui.messages.clear();
        window->SelectPattern(1 - example.pattern);
        EXPECT_EQ(window->BuildFitting(), Refused);
        EXPECT_NE(shell.ui.messages.at(0).text, NoRoom) << "the other part is taken as typed";
    }
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->settings.InOutMean = OutsideDimension;
    window->settings.Thickness = 6;
    for (const auto& [pattern, boxes] :
         {std::pair{0U, BoxTexts{{1, "10.6"}}}, {1U, BoxTexts{{1, "200"}, {2, "12"}}}}) {
        TypeBoxes(*window, boxes);
        window->SelectPattern(pattern);
        EXPECT_EQ(window->BuildFitting(), Passed);
    }
}

TEST(PipeToConeSizes, OfAPipeFromTheSide) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    const CPipeToCone& fitting = PipeOn(*window);
    EXPECT_EQ(fitting.BaseRad, 250);
    EXPECT_DOUBLE_EQ(std::tan(fitting.ConeAngle), 1.0 / 3);
    EXPECT_EQ(fitting.CPHeight1, 450);
    EXPECT_EQ(fitting.PipeRad, 75);
    EXPECT_EQ(fitting.PipeLength, 400);
    EXPECT_EQ(fitting.PipeAngle, 0);
    EXPECT_EQ(fitting.CenterDistance, 180);
    EXPECT_EQ(fitting.Offset, -40);
    EXPECT_FALSE(fitting.Invert);
    EXPECT_EQ(fitting.inputs.Dtype, 0);
}

TEST(PipeToConeSizes, OfTheOtherTypes) {
    TestShell shell;
    const auto top = shell.OpenSample(Category, 2);
    const CPipeToCone& upright = PipeOn(*top);
    EXPECT_EQ(upright.BaseRad, 310);
    EXPECT_EQ(upright.CenterDistance, 175);
    EXPECT_EQ(upright.PipeAngle, 90);
    EXPECT_EQ(upright.inputs.Dtype, 1);
    const auto angle = shell.OpenSample(Category, 3);
    const CPipeToCone& slanting = PipeOn(*angle);
    EXPECT_EQ(slanting.PipeAngle, DegToRad(35) - QuarterTurn);
    EXPECT_EQ(slanting.PipeLength, 520);
    EXPECT_EQ(slanting.Offset, -60);
    EXPECT_EQ(slanting.inputs.Dtype, 2);
}

/// Either part counts with its mean size where its own pattern is made, and as typed where it is the other's.
TEST(PipeToConeSizes, AreMeanForThePatternThatIsMade) {
    const double half = 3 * std::cos(std::atan(1.0 / 3));
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->settings.Thickness = 6;
    for (const auto& [side, sign] : {std::pair{InsideDimension, 1.0}, {OutsideDimension, -1.0}}) {
        window->settings.InOutMean = side;
        window->SelectPattern(0);
        EXPECT_NEAR(PipeOn(*window).BaseRad, 250 + sign * half, Near);
        EXPECT_EQ(PipeOn(*window).PipeRad, 75);
        EXPECT_NEAR(std::tan(PipeOn(*window).ConeAngle), 1.0 / 3, Near) << "the wall leans as typed";
        window->SelectPattern(1);
        EXPECT_EQ(PipeOn(*window).BaseRad, 250);
        EXPECT_EQ(PipeOn(*window).PipeRad, 75 + sign * 3);
    }
}

TEST(PipeToConeSizes, AreThoseOfTheConeUntilAPatternIsSelected) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->settings.Thickness = 6;
    window->settings.InOutMean = InsideDimension;
    EXPECT_GT(PipeOn(*window).BaseRad, 252);
    EXPECT_EQ(PipeOn(*window).PipeRad, 75);
}

TEST(PipeToConeChoice, APatternIsAskedForInAPatternView) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 3);
    window->ClickView(0);
    EXPECT_TRUE(window->hasModel);
    window->ClickView(PatternButton);
    ExpectUserError(shell.ui, *window, "A pattern must be selected");
}

TEST(PipeToConeHalfPatterns, NeedAnOffsetOfNothing) {
    for (const auto& [type, offsetBox] : {std::pair{1, 19}, {2, 20}, {3, 21}}) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, type);
        window->settings.HalfPattern = true;
        EXPECT_EQ(window->BuildFitting(), Passed);
        ASSERT_EQ(shell.ui.Texts(), std::vector<std::string>{NoHalf});
        EXPECT_EQ(shell.ui.messages[0].title, "User Error");
        EXPECT_FALSE(window->settings.HalfPattern);
        EXPECT_EQ(window->labels->Last().LabelString, "Pipe to Cone  Full pattern  21 Nov 2026");
        shell.ui.messages.clear();
        window->settings.HalfPattern = true;
        TypeBoxes(*window, {{offsetBox, "0"}});
        EXPECT_EQ(window->BuildFitting(), Passed);
        EXPECT_TRUE(shell.ui.messages.empty());
        EXPECT_EQ(window->labels->Last().LabelString, "Pipe to Cone  Half pattern  21 Nov 2026");
    }
}

class PipesWithoutAHole : public testing::TestWithParam<Shapeless> {};

TEST_P(PipesWithoutAHole, AreNotMade) {
    ExpectShapeless(Category, GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, PipesWithoutAHole,
    testing::Values(
        Shapeless{1, {{4, "150"}}, "the pipe length is too short: the cut runs past the free end"},
        Shapeless{1, {{4, "0"}}, "the pipe length is too short: a pipe of length 0 has no wall"},
        Shapeless{1, {{4, "-400"}}, "the hole lies across the seam of the cone"},
        Shapeless{2, {{9, "0"}}, "the cone is too low for a pipe"},
        Shapeless{2, {{9, "-380"}}, "the cone is too low for a pipe"},
        Shapeless{2, {{9, "0.001"}}, "the cone is too low for a pipe"},
        Shapeless{3, {{18, "70"}, {17, "150"}}, "the hole reaches above the top of the cone"},
        Shapeless{3, {{18, "145"}, {17, "130"}}, "the hole lies across the seam of the cone"}));

TEST(PipeToConeTextBlock, TellsTheSizesAsTyped) {
    const std::map<int, std::vector<std::string>> expected = {
        {1,
         {"Base diameter = 500", "Top diameter = 200", "Pipe diameter = 150", "Cutting plane height = 450",
          "Pipe length = 400", "Center distance = 180", "Offset = 40", "Pipe angle = 0"}},
        {2,
         {"Base diameter = 620", "Top diameter = 190", "Pipe diameter = 120", "Cutting plane height = 380",
          "Pipe length = 460", "Center distance = 175", "Offset = 45", "Pipe angle = 90"}},
        {3,
         {"Base diameter = 560", "Top diameter = 220", "Pipe diameter = 130", "Cutting plane height = 420",
          "Pipe length = 520", "Center distance = 110", "Offset = 60", "Pipe angle = 35"}}};
    for (const auto& [type, sizes] : expected) {
        TestShell shell;
        ExpectTextBlock(*shell.OpenSample(Category, type), sizes);
    }
}

}  // namespace
}  // namespace korvet::pipe_to_cone_window_test
