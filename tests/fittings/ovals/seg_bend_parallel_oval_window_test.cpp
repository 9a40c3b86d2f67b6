// The window of the oval bend: how it starts, every limit in its place, the choice of the pattern, the sizes
// that it hands on, text lines.
#include <gtest/gtest.h>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/ovals/seg_bend_parallel_oval.h"
#include "tests/support/refusals.h"
#include "tests/support/text_blocks.h"
#include "tests/support/window_start.h"
#include "window/views.h"

namespace korvet {
namespace {

constexpr const char* OvalBendCategory = "Oval Segmented Bend";

TEST(OvalBendWindow, Starts) {
    ExpectStart(OvalBendCategory, {.helpContextId = 2410,
                                   .boxes = 13,
                                   .pieces = true,
                                   .kerf = true,
                                   .patterns = {"Full Pattern", "First, Last, one intermediate"}});
}

class OvalBendRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(OvalBendRefusals, NameTheBox) {
    ExpectRefused(OvalBendCategory, GetParam());
}

// The box that is refused later in the order is wrong too.
INSTANTIATE_TEST_SUITE_P(EveryCheck, OvalBendRefusals,
                         testing::Values(Refusal{1, {{0, "0"}, {11, "-1"}}, AboveZero, 0},
                                         Refusal{1, {{11, "159.9"}, {1, "0"}}, AtLeast + "160", 11},
                                         Refusal{1, {{1, "79.9"}, {3, "-1"}}, AtLeast + "80", 1},
                                         Refusal{1, {{3, "-0.1"}, {4, "-1"}}, AtLeast + "0", 3},
                                         Refusal{1, {{4, "-0.1"}, {2, "1"}}, AtLeast + "0", 4},
                                         Refusal{1, {{2, "1.5"}}, AtLeast + "2", 2},
                                         Refusal{1, {{2, "2.5"}}, WholeNumber, 2},
                                         Refusal{2, {{5, "0"}, {12, "-1"}}, AboveZero, 5},
                                         Refusal{2, {{12, "180"}, {6, "0"}}, GreaterThan + "180", 12},
                                         Refusal{2, {{6, "89.9"}, {8, "-1"}}, AtLeast + "90", 6},
                                         Refusal{2, {{8, "-0.1"}, {9, "-1"}}, AtLeast + "0", 8},
                                         Refusal{2, {{9, "-0.1"}, {10, "1"}}, AtLeast + "0", 9},
                                         Refusal{2, {{10, "1.5"}, {7, "0"}}, AtLeast + "2", 10},
                                         Refusal{2, {{10, "2.5"}, {7, "0"}}, WholeNumber, 10},
                                         Refusal{2, {{7, "0"}}, AboveZero, 7},
                                         Refusal{2, {{7, "360"}}, LessThan + "360", 7}));

TEST(OvalBendLimits, TheLimitsThemselvesAreAllowed) {
    const std::vector<std::pair<int, BoxTexts>> cases = {
        {1, {{11, "160"}}},   {1, {{1, "80"}}}, {1, {{3, "0"}, {4, "0"}}},     {1, {{2, "2"}}},
        {2, {{12, "180.1"}}}, {2, {{6, "90"}}}, {2, {{7, "359.9"}, {10, "9"}}}};
    ExpectMade(OvalBendCategory, cases);
}

TEST(OvalBendLimits, WallMustFitIntoTheHalfCircles) {
    // The length is wrong as well, but comes after.
    ExpectRoomUpTo(80, OvalBendCategory, 1, 0, {{11, "-1"}});
    ExpectRoomUpTo(90, OvalBendCategory, 2, 5, {{12, "-1"}});
}

class OvalBendsWithoutAShape : public testing::TestWithParam<Shapeless> {};

TEST_P(OvalBendsWithoutAShape, AreNotMade) {
    ExpectShapeless(OvalBendCategory, GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, OvalBendsWithoutAShape,
    testing::Values(
        Shapeless{2, {{7, "180"}, {10, "2"}}, "no mitre turns a pipe by 180 degrees or more"},
        Shapeless{2, {{7, "359"}, {10, "2"}}, "no mitre turns a pipe by 180 degrees or more"},
        Shapeless{1, {{3, "1.1e9"}}, "Length 1 is above a thousand million"},
        Shapeless{1, {{2, "32769"}}, "a bend has 32768 segments at most"},
        // A piece has 200,003 stations, and all pieces together may have two million.
        Shapeless{
            1,
            {{2, "10"}},
            "so many segments with 100000 fold lines each are too much: make one of the two numbers smaller",
            100000},
        Shapeless{2, {{7, "179.9999999"}, {10, "2"}}, "the fitting is larger than a thousand million"}));

TEST(OvalBendLimits, AsManyStationsAsAllPiecesMayHaveAreMade) {
    TestShell shell;
    const auto window = shell.OpenSample(OvalBendCategory, 1);
    window->settings.segs = 100000;
    TypeBoxes(*window, {{2, "9"}});
    EXPECT_EQ(Built<CSegBendParallelOval>(*window).BendSegments, 8);
}

TEST(OvalBendSizes, AreHandedOn) {
    TestShell shell;
    const auto window = shell.OpenSample(OvalBendCategory, 2);
    window->settings.Thickness = 4;
    window->settings.InOutMean = InsideDimension;
    window->settings.KerfSpacing = 7;
    const auto& bend = Built<CSegBendParallelOval>(*window);
    EXPECT_DOUBLE_EQ(bend.BaseRad, 92);
    EXPECT_DOUBLE_EQ(bend.OvalCenterDistance, 240);  // 420 - 180
    EXPECT_DOUBLE_EQ(bend.BendAngle, DegToRad(60));
    EXPECT_EQ(bend.BendSegments, 3);
    EXPECT_EQ(bend.BendRadius, 450);
    EXPECT_EQ(bend.Length1, 110);
    EXPECT_EQ(bend.Length2, 130);
    EXPECT_EQ(bend.KerfSpacing, 7);
    const auto quarter = shell.OpenSample(OvalBendCategory, 1);
    const auto& square = Built<CSegBendParallelOval>(*quarter);
    EXPECT_EQ(square.BaseRad, 80);
    EXPECT_EQ(square.OvalCenterDistance, 220);  // 380 - 160
    EXPECT_EQ(square.BendRadius, 320);
    EXPECT_EQ(square.BendAngle, QuarterTurn);
    EXPECT_EQ(square.BendSegments, 4);
    EXPECT_EQ(square.Length1, 90);
    EXPECT_EQ(square.Length2, 140);
}

TEST(OvalBendWindow, AsksForThePattern) {
    TestShell shell;
    const auto window = shell.OpenSample(OvalBendCategory, 1);
    window->ClickView(0);
    EXPECT_TRUE(shell.ui.messages.empty());
    window->ClickView(PatternButton);
    ExpectUserError(shell.ui, *window, "A pattern must be selected");
}

TEST(OvalBendText, HasTheSizesAsTyped) {
    TestShell shell;
    const auto quarter = shell.OpenSample(OvalBendCategory, 1);
    TypeBoxes(*quarter, {{6, "17"}});
    ExpectTextBlock(*quarter,
                    {"Base diameter = 160", "Base length = 380", "Bend radius = 320", "Bend angle = 90",
                     "Length 1 = 90", "Length 2 = 140", "Number of segments = 17"});
    const auto any = shell.OpenSample(OvalBendCategory, 2);
    any->settings.HalfPattern = true;  // there is none
    ExpectTextBlock(*any, {"Base diameter = 180", "Base length = 420", "Bend radius = 450", "Bend angle = 60",
                           "Length 1 = 110", "Length 2 = 130", "Number of segments = 4"});
}

}  // namespace
}  // namespace korvet
