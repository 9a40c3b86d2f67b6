// The window of the pipe on a bend: how it starts, every limit in its place, the sizes that it hands on, text
// lines. The sample is a pipe of 120 on a bend of 200 with a centre line of 300, 180 up.
#include <gtest/gtest.h>

#include "fittings/branches/pipe_to_bend.h"
#include "tests/support/refusals.h"
#include "tests/support/text_blocks.h"
#include "tests/support/window_start.h"

namespace korvet {
namespace {

constexpr const char* PipeToBend = "Pipe to Bend";

TEST(PipeToBendWindow, StartsAsAPipeOnABendDoes) {
    ExpectStart(PipeToBend, {.helpContextId = 2470,
                             .boxes = 5,
                             .laps = AllLaps,
                             .pieces = true,
                             .halfPattern = true,
                             .templateType = true});
}

class PipeToBendRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(PipeToBendRefusals, NameTheBox) {
    ExpectRefused(PipeToBend, GetParam());
}

// The box that is refused later in the order is wrong too. A pipe 180 up comes 120 up with its lowest rule,
// and 400 around the bend's centre that is 381.6 beside it.
INSTANTIATE_TEST_SUITE_P(Sizes, PipeToBendRefusals,
                         testing::Values(Refusal{1, {{0, "-120"}, {1, "-200"}}, NoRoom, 0},
                                         Refusal{1, {{1, "119.9"}, {3, "1"}}, AtLeast + "120", 1},
                                         Refusal{1, {{3, "59.9"}, {2, "1"}}, AtLeast + "60", 3},
                                         Refusal{1, {{2, "99.9"}, {4, "1"}}, AtLeast + "100", 2},
                                         Refusal{1, {{2, "130"}, {4, "1"}, {3, "170.1"}}, AtMost + "170", 3},
                                         Refusal{1, {{3, "340.1"}, {4, "1"}}, AtMost + "340", 3},
                                         Refusal{1, {{4, "381.5"}}, GreaterThan + "381.6", 4},
                                         Refusal{1, {{3, "340"}, {4, "285.6"}}, GreaterThan + "285.7", 4},
                                         Refusal{1, {{4, "-520"}}, GreaterThan + "381.6", 4}));

TEST(PipeToBendLimits, TheLimitsThemselvesAreAllowed) {
    ExpectMade(PipeToBend, {{1, {{1, "120"}}},
                            {1, {{0, "200"}}},
                            {1, {{0, "0.001"}}},
                            {1, {{3, "60"}}},
                            {1, {{2, "100"}, {3, "140"}}},
                            {1, {{3, "340"}}},
                            {1, {{3, "300"}, {4, "320.0001"}}},  // a triangle of 240, 320 and 400
                            {1, {{0, "200"}, {2, "100"}, {3, "100"}}}});
}

TEST(PipeToBendLimits, LengthMustBeBeyondTheBend) {
    ExpectRefused(PipeToBend, {1, {{3, "300"}, {4, "320"}}, GreaterThan + "320", 4});
}

TEST(PipeToBendLimits, WallMustFitIntoThePipe) {
    // The bend is too narrow as well, but comes after.
    ExpectRoomUpTo(60, PipeToBend, 1, 0, {{1, "1"}});
}

/// The sizes of the bend are taken as they are typed.
TEST(PipeToBendLimits, AreHeldAgainstTheMeanSizeOfThePipe) {
    const std::vector<std::pair<BoxTexts, std::string>> cases = {
        {{{1, "125"}}, AtLeast + "130"}, {{{3, "64"}}, AtLeast + "65"}, {{{3, "340"}}, AtMost + "335"}};
    for (const auto& [boxes, message] : cases) {
        TestShell shell;
        const auto window = shell.OpenSample(PipeToBend, 1);
        window->settings.Thickness = 10;
        window->settings.InOutMean = InsideDimension;
        TypeBoxes(*window, boxes);
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, message, boxes.begin()->first);
    }
}

TEST(PipeToBendLimits, APipeOfNoDiameterIsNotMade) {
    for (const BoxTexts& boxes :
         {BoxTexts{{0, "0"}, {1, "0"}, {2, "0"}, {3, "0"}, {4, "5"}}, BoxTexts{{0, "0"}}}) {
        ExpectShapeless(PipeToBend, {1, boxes, "a pipe with a diameter of 0 has no wall"});
    }
}

TEST(PipeToBendLimits, MoreStationsThanABendMayHaveAreNotMade) {
    TestShell shell;
    const auto window = shell.OpenSample(PipeToBend, 1);
    // 13 pieces of 2 segs + 1 stations, and the pipe of segs + 1, are two million at most.
    window->settings.segs = 74073;
    EXPECT_EQ(window->BuildFitting(), Passed);
    window->settings.segs = 74074;
    window->ClickView(0);
    ExpectNotMade(shell.ui, *window,
                  "a bend with 74074 fold lines on each piece is too much: make them fewer");
}

TEST(PipeToBendSizes, AreThoseOfTheBoxes) {
    TestShell shell;
    const auto window = shell.OpenSample(PipeToBend, 1);
    window->settings.Thickness = 4;
    window->settings.InOutMean = OutsideDimension;
    window->settings.TemplateType = 1;
    const CPipeToBend& fitting = Built<CPipeToBend>(*window);
    EXPECT_EQ(fitting.PipeRadius, 58);
    EXPECT_EQ(fitting.BendRadius, 100);
    EXPECT_EQ(fitting.BendCLRadius, 300);
    EXPECT_EQ(fitting.PipeCLHeight, 180);
    EXPECT_EQ(fitting.PipeLength, 520);
    EXPECT_EQ(fitting.Thickness, 4);
    EXPECT_EQ(fitting.TemplateType, 1);
    EXPECT_EQ(fitting.inputs.Dtype, 0);
}

TEST(PipeToBendTextBlock, TellsTheSizesAsTyped) {
    TestShell shell;
    const auto window = shell.OpenSample(PipeToBend, 1);
    ExpectTextBlock(*window, {"Pipe diameter = 120", "Bend diameter = 200", "Bend center line radius = 300",
                              "Pipe center height = 180", "Pipe length = 520"});
}

}  // namespace
}  // namespace korvet
