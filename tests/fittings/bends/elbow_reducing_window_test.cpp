// The window of the reducing elbow: how it starts, every limit in its place, the sizes that it hands on, text
// lines. The sample elbows go from a diameter of 220 to 130 and from 300 to 210.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "core/constants.h"
#include "fittings/bends/elbow_reducing.h"
#include "tests/support/refusals.h"
#include "tests/support/text_blocks.h"
#include "tests/support/window_start.h"

namespace korvet::reducing_elbow_window_test {
namespace {

constexpr const char* Category = "Reducing Elbow";

TEST(ReducingElbowWindow, StartsAsAReducingElbowDoes) {
    ExpectStart(Category,
                {.helpContextId = 2270, .boxes = 9, .pieces = true, .halfPattern = true, .kerf = true});
}

class ReducingElbowRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(ReducingElbowRefusals, NameTheBox) {
    ExpectRefused(Category, GetParam());
}

// The box that is refused later in the order is wrong too.
INSTANTIATE_TEST_SUITE_P(Square, ReducingElbowRefusals,
                         testing::Values(Refusal{1, {{0, "0"}, {1, "0"}}, AboveZero, 0},
                                         Refusal{1, {{1, "-130"}, {2, "1"}}, AboveZero, 1},
                                         Refusal{1, {{1, "220"}, {2, "1"}}, LessThan + "220", 1},
                                         Refusal{1, {{2, "64.9"}, {3, "1"}}, AtLeast + "65", 2},
                                         Refusal{1, {{3, "109.9"}}, AtLeast + "110", 3}));

INSTANTIATE_TEST_SUITE_P(AnyAngle, ReducingElbowRefusals,
                         testing::Values(Refusal{2, {{4, "-1"}, {5, "0"}}, AboveZero, 4},
                                         Refusal{2, {{5, "0"}, {8, "1"}}, AboveZero, 5},
                                         Refusal{2, {{5, "300"}, {8, "1"}}, LessThan + "300", 5},
                                         Refusal{2, {{8, "89.9"}, {6, "1"}}, AtLeast + "90", 8},
                                         Refusal{2, {{8, "180"}, {6, "1"}}, LessThan + "180", 8},
                                         Refusal{2, {{6, "104.9"}, {7, "1"}}, AtLeast + "105", 6},
                                         Refusal{2, {{7, "149.9"}}, AtLeast + "150", 7}));

TEST(ReducingElbowLimits, TheLimitsThemselvesAreAllowed) {
    const std::vector<std::pair<int, BoxTexts>> cases = {
        {1, {{1, "219.999"}}},         {1, {{1, "0.001"}}}, {1, {{2, "65"}, {3, "110"}}},
        {2, {{6, "105"}, {7, "150"}}}, {2, {{8, "90"}}},    {2, {{8, "179.999"}}}};
    ExpectMade(Category, cases);
}

/// Type 2 puts the focus on the diameters of Type 1, and stays Type 2.
TEST(ReducingElbowLimits, WallMustFitIntoTheNarrowEnd) {
    for (const auto& [type, thickness] : {std::pair{1, 65.0}, {2, 105.0}}) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, type);
        window->settings.InOutMean = OutsideDimension;
        window->settings.Thickness = thickness;
        EXPECT_EQ(window->BuildFitting(), Passed);
        // A length is wrong as well, but comes after.
        TypeBoxes(*window, {{type == 1 ? 2 : 6, "1"}});
        window->settings.Thickness = thickness + 0.1;
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, NoRoom, 1);
        EXPECT_EQ(window->dtype, type - 1);
    }
}

TEST(ReducingElbowLimits, WallMustFitIntoTheWideEndFirst) {
    for (const int type : {1, 2}) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, type);
        window->settings.Thickness = 1000;
        window->settings.InOutMean = OutsideDimension;
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, NoRoom, 0);
    }
}

TEST(ReducingElbowLimits, LengthsAreHeldAgainstTheMeanRadii) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 2);
    window->settings.Thickness = 10;
    window->settings.InOutMean = InsideDimension;
    TypeBoxes(*window, {{6, "109.9"}, {7, "154.9"}});
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectUserError(shell.ui, *window, AtLeast + "110", 6);
    TypeBoxes(*window, {{6, "110"}});
    shell.ui.messages.clear();
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectUserError(shell.ui, *window, AtLeast + "155", 7);
}

class ReducingElbowsWithoutAShape : public testing::TestWithParam<Shapeless> {};

TEST_P(ReducingElbowsWithoutAShape, AreNotMade) {
    ExpectShapeless(Category, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Sizes, ReducingElbowsWithoutAShape,
                         testing::Values(Shapeless{1, {{2, "1.1e9"}}, "Length 1 is above a thousand million"},
                                         Shapeless{2, {{7, "1e12"}}, "Length 2 is above a thousand million"},
                                         Shapeless{2,
                                                   {{6, "6e8"}, {7, "6e8"}, {8, "179"}},
                                                   "the fitting is larger than a thousand million"}));

TEST(ReducingElbowSizes, AreTaken) {
    TestShell shell;
    const auto square = shell.OpenSample(Category, 1);
    square->settings.KerfSpacing = 12.5;
    const CElbowReducing& elbow = Built<CElbowReducing>(*square);
    EXPECT_EQ(elbow.BigRad, 110);
    EXPECT_EQ(elbow.SmallRad, 65);
    EXPECT_EQ(elbow.Length1, 310);
    EXPECT_EQ(elbow.Length2, 250);
    EXPECT_EQ(elbow.BendAngle, -QuarterTurn);
    EXPECT_EQ(elbow.KerfSpacing, 12.5);
    EXPECT_EQ(elbow.inputs.Dtype, 0);
    const auto any = shell.OpenSample(Category, 2);
    any->settings.Thickness = 4;
    any->settings.InOutMean = OutsideDimension;
    const CElbowReducing& other = Built<CElbowReducing>(*any);
    EXPECT_EQ(other.BigRad, 148);
    EXPECT_EQ(other.SmallRad, 103);
    EXPECT_EQ(other.Length1, 360);
    EXPECT_EQ(other.Length2, 290);
    EXPECT_DOUBLE_EQ(other.BendAngle, -2 * std::numbers::pi / 3);
    EXPECT_EQ(other.KerfSpacing, 0);
    EXPECT_EQ(other.inputs.Dtype, 1);
}

TEST(ReducingElbowTextBlock, TellsTheSizesAsTyped) {
    ExpectTextBlocks(
        Category,
        {{1,
          {"Large diameter = 220", "Small diameter = 130", "Length 1 = 310", "Length 2 = 250", "Angle = 90"}},
         {2,
          {"Large diameter = 300", "Small diameter = 210", "Length 1 = 360", "Length 2 = 290",
           "Angle = 120"}}});
}

}  // namespace
}  // namespace korvet::reducing_elbow_window_test
