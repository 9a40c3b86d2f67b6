// The windows of the elbows of a cone and a pipe: how they start, every limit in its place, the sizes that
// they hand on, text lines.
#include <gtest/gtest.h>

#include <numbers>

#include "core/constants.h"
#include "fittings/bends/elbow_pipe_to_cone.h"
#include "tests/support/refusals.h"
#include "tests/support/text_blocks.h"
#include "window/views.h"

namespace korvet::elbow_pipe_cone_windows_test {
namespace {

constexpr const char* ConeToPipe = "Cone to Pipe Elbow";
constexpr const char* PipeToCone = "Pipe to Cone Elbow";

TEST(PipeConeElbowWindows, StartAsElbowsDo) {
    TestShell shell;
    for (const auto& [category, help] : {std::pair{ConeToPipe, 2350}, {PipeToCone, 2360}}) {
        const auto window = shell.Open(category);
        EXPECT_EQ(window->Row().helpContextId, help);
        EXPECT_EQ(window->dtype, 0);
        EXPECT_EQ(window->miscellaneous, 0);
        EXPECT_TRUE(window->Table().multiple);
        EXPECT_EQ(window->settings.LapEnable, SeamLapOnly);
        EXPECT_TRUE(window->settings.JoinAngleDisable);
        EXPECT_FALSE(window->settings.TemplateTypeEnabled);
        EXPECT_FALSE(window->settings.KerfEnabled);
        EXPECT_FALSE(window->settings.HalfPatternDisable);
        const OptionGroup& patterns = window->controls.options.optPatternSelect;
        EXPECT_EQ(patterns.captions, (std::vector<std::string>{"Cone", "Pipe"}));
        EXPECT_FALSE(patterns.selected);
        EXPECT_EQ(window->controls.txtParameter.size(), 9U);
    }
}

class ConeToPipeElbowRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(ConeToPipeElbowRefusals, NameTheBox) {
    ExpectRefused(ConeToPipe, GetParam());
}

// Cones of 300 and 340 to pipes of 170 and 190. The box that is refused later in the order is wrong too.
INSTANTIATE_TEST_SUITE_P(Square, ConeToPipeElbowRefusals,
                         testing::Values(Refusal{1, {{0, "0"}, {1, "0"}}, AboveZero, 0},
                                         Refusal{1, {{1, "-1"}, {2, "1"}}, AboveZero, 1},
                                         Refusal{1, {{1, "300"}, {2, "1"}}, LessThan + "300", 1},
                                         Refusal{1, {{2, "84.9"}, {3, "1"}}, AtLeast + "85", 2},
                                         Refusal{1, {{2, "-1"}}, AtLeast + "85", 2},
                                         Refusal{1, {{3, "149.9"}}, AtLeast + "150", 3}));
INSTANTIATE_TEST_SUITE_P(AnyAngle, ConeToPipeElbowRefusals,
                         testing::Values(Refusal{2, {{4, "0"}, {5, "0"}}, AboveZero, 4},
                                         Refusal{2, {{5, "-1"}, {8, "1"}}, AboveZero, 5},
                                         Refusal{2, {{5, "340"}, {8, "1"}}, LessThan + "340", 5},
                                         Refusal{2, {{8, "89.9"}, {6, "1"}}, AtLeast + "90", 8},
                                         Refusal{2, {{8, "180"}, {6, "1"}}, LessThan + "180", 8},
                                         Refusal{2, {{6, "94.9"}, {7, "1"}}, AtLeast + "95", 6},
                                         Refusal{2, {{7, "169.9"}}, AtLeast + "170", 7}));

class PipeToConeElbowRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(PipeToConeElbowRefusals, NameTheBox) {
    ExpectRefused(PipeToCone, GetParam());
}

// Pipes of 260 and 280 to cones of 150 and 180.
INSTANTIATE_TEST_SUITE_P(Square, PipeToConeElbowRefusals,
                         testing::Values(Refusal{1, {{0, "0"}, {1, "0"}}, AboveZero, 0},
                                         Refusal{1, {{1, "0"}, {2, "0"}}, AboveZero, 1},
                                         Refusal{1, {{2, "0"}, {3, "0"}}, AboveZero, 2},
                                         Refusal{1, {{3, "-1"}, {1, "260"}}, AboveZero, 3},
                                         Refusal{1, {{1, "260"}, {2, "1"}}, LessThan + "260", 1},
                                         Refusal{1, {{2, "129.9"}, {3, "1"}}, AtLeast + "130", 2},
                                         Refusal{1, {{3, "74.9"}}, AtLeast + "75", 3}));
INSTANTIATE_TEST_SUITE_P(AnyAngle, PipeToConeElbowRefusals,
                         testing::Values(Refusal{2, {{4, "0"}, {5, "0"}}, AboveZero, 4},
                                         Refusal{2, {{5, "0"}, {6, "0"}}, AboveZero, 5},
                                         Refusal{2, {{6, "0"}, {7, "0"}}, AboveZero, 6},
                                         Refusal{2, {{7, "-1"}, {5, "280"}}, AboveZero, 7},
                                         Refusal{2, {{5, "280"}, {8, "1"}}, LessThan + "280", 5},
                                         Refusal{2, {{8, "89.9"}}, AtLeast + "90", 8},
                                         Refusal{2, {{8, "180"}}, LessThan + "180", 8}));

TEST(PipeConeElbowLimits, TheLimitsThemselvesAreAllowed) {
    ExpectMade(ConeToPipe, {{1, {{1, "299.999"}}},
                            {1, {{2, "85"}}},
                            {1, {{1, "10"}, {3, "150"}}},
                            {2, {{8, "90"}}},
                            {2, {{8, "179.999"}}},
                            {2, {{6, "95"}}},
                            {2, {{7, "170"}, {5, "10"}}}});
    ExpectMade(PipeToCone, {{1, {{1, "259.999"}}},
                            {1, {{2, "130"}}},
                            {2, {{8, "90"}}},
                            {2, {{8, "179.999"}}},
                            {2, {{6, "120"}, {8, "150"}}}});
}

/// A wall that needs all of the narrow end, and one that is too thick for the wide one as well.
TEST(PipeConeElbowLimits, WallsMustFit) {
    ExpectRoomUpTo(85, ConeToPipe, 1, 1, {{2, "1"}});
    ExpectRoomUpTo(95, ConeToPipe, 2, 5, {{6, "1"}});
    ExpectRoomUpTo(75, PipeToCone, 1, 1, {{2, "1"}});
    ExpectRoomUpTo(90, PipeToCone, 2, 5, {{8, "1"}});
    for (const auto& [category, type, box] :
         {std::tuple{ConeToPipe, 1, 0}, {ConeToPipe, 2, 4}, {PipeToCone, 1, 0}, {PipeToCone, 2, 4}}) {
        TestShell shell;
        const auto window = shell.OpenSample(category, type);
        window->settings.InOutMean = OutsideDimension;
        window->settings.Thickness = 1000;
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, NoRoom, box);
    }
}

TEST(PipeConeElbowLimits, LengthsAreHeldAgainstTheMeanRadii) {
    TestShell shell;
    const auto window = shell.OpenSample(ConeToPipe, 1);
    window->settings.InOutMean = InsideDimension;
    window->settings.Thickness = 10;
    TypeBoxes(*window, {{2, "89.9"}, {3, "1"}});
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectUserError(shell.ui, *window, AtLeast + "90", 2);
}

class ShortPipeConeElbows : public testing::TestWithParam<std::pair<std::string, Shapeless>> {};

TEST_P(ShortPipeConeElbows, AreNotMade) {
    ExpectShapeless(GetParam().first, GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, ShortPipeConeElbows,
    testing::Values(
        std::pair{PipeToCone, Shapeless{1,
                                        {{0, "400"}, {1, "250"}, {2, "250"}, {3, "130"}},
                                        "length 2 is too short: the cut runs past the free end"}},
        std::pair{PipeToCone, Shapeless{2,
                                        {{4, "250"}, {5, "120"}, {6, "50"}},
                                        "length 1 is too short: the cone cannot reach round the pipe"}},
        std::pair{PipeToCone,
                  Shapeless{2, {{7, "40"}}, "length 2 is too short: the cut runs past the free end"}},
        std::pair{
            PipeToCone,
            Shapeless{2, {{6, "115"}, {8, "90"}}, "length 1 is too short: the cut runs past the free end"}}));

TEST(PipeConeElbowSizes, AreTaken) {
    TestShell shell;
    const auto square = shell.OpenSample(ConeToPipe, 1);
    const CElbowPipeToCone& elbow = Built<CElbowPipeToCone>(*square);
    EXPECT_EQ(elbow.Category, ConeToPipe);
    EXPECT_EQ(elbow.ConeRad, 150);
    EXPECT_EQ(elbow.PipeRad, 85);
    EXPECT_EQ(elbow.Length1, 320);
    EXPECT_EQ(elbow.Length2, 280);
    EXPECT_EQ(elbow.PipeAngle, QuarterTurn);
    EXPECT_EQ(elbow.inputs.Dtype, 0);
    const auto any = shell.OpenSample(PipeToCone, 2);
    any->settings.Thickness = 4;
    any->settings.InOutMean = OutsideDimension;
    const CElbowPipeToCone& other = Built<CElbowPipeToCone>(*any);
    EXPECT_EQ(other.Category, PipeToCone);
    EXPECT_EQ(other.PipeRad, 138);
    EXPECT_EQ(other.ConeRad, 88);
    EXPECT_EQ(other.Length1, 380);
    EXPECT_EQ(other.Length2, 330);
    EXPECT_DOUBLE_EQ(other.PipeAngle, 2 * std::numbers::pi / 3);
    EXPECT_EQ(other.inputs.Dtype, 1);
}

TEST(PipeConeElbowChoice, TheSelectedPartIsDeveloped) {
    TestShell shell;
    const auto window = shell.OpenSample(PipeToCone, 1);
    window->ClickView(PatternButton);
    ExpectUserError(shell.ui, *window, "A pattern must be selected");
    shell.ui.messages.clear();
    window->SelectPattern(1);
    window->ClickView(PatternButton);
    ASSERT_TRUE(window->hasModel);
    EXPECT_NEAR(window->fitting->Results().PatternSurfaceList.Item(1).List1->Last().x, 260 * PI, 1e-9);
    window->SelectPattern(0);
    window->Redraw();
    EXPECT_TRUE(window->fitting->Results().PatternSurfaceList.Item(1).RefPoint);
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST(PipeConeElbowTextBlock, TellsTheSizesAsTyped) {
    ExpectTextBlocks(
        ConeToPipe,
        {{1,
          {"Cone diameter = 300", "Pipe diameter = 170", "Length 1 = 320", "Length 2 = 280", "Angle = 90"}},
         {2,
          {"Cone diameter = 340", "Pipe diameter = 190", "Length 1 = 360", "Length 2 = 310",
           "Angle = 125"}}});
    // The second type of the other one has the names of its diameters the wrong way round.
    ExpectTextBlocks(
        PipeToCone,
        {{1,
          {"Pipe diameter = 260", "Cone diameter = 150", "Length 1 = 350", "Length 2 = 290", "Angle = 90"}},
         {2,
          {"Cone diameter = 280", "Pipe diameter = 180", "Length 1 = 380", "Length 2 = 330",
           "Angle = 120"}}});
}

}  // namespace
}  // namespace korvet::elbow_pipe_cone_windows_test
