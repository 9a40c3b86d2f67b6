// The window of the auger: how it starts, every limit in its place, the sizes that it hands on, text lines,
// saved files.
#include <gtest/gtest.h>

#include "fittings/augers/auger.h"
#include "tests/support/refusals.h"
#include "tests/support/text_blocks.h"
#include "tests/support/window_start.h"
#include "window/views.h"

namespace korvet {
namespace {

constexpr const char* AugerCategory = "Auger";

TEST(AugerWindow, StartsAsAnAugerDoes) {
    ExpectStart(AugerCategory, {.helpContextId = 2290, .boxes = 15, .laps = NoLaps, .pieces = true});
    TestShell shell;
    EXPECT_EQ(shell.Open(AugerCategory)->controls.btnMore.size(), 4U);
}

class AugerRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(AugerRefusals, NameTheBox) {
    ExpectRefused(AugerCategory, GetParam());
}

// The box that is refused later in the order is wrong too.
INSTANTIATE_TEST_SUITE_P(Parallel, AugerRefusals,
                         testing::Values(Refusal{1, {{0, "0"}, {1, "0"}}, AboveZero, 0},
                                         Refusal{1, {{1, "-280"}, {2, "0"}}, AboveZero, 1},
                                         Refusal{1, {{2, "0"}, {3, "0"}}, AboveZero, 2},
                                         Refusal{1, {{3, "-110"}}, AboveZero, 3},
                                         Refusal{1, {{3, "150.1"}}, AtMost + "150", 3},
                                         Refusal{1, {{0, "219.9"}}, AtMost + "110", 3}));

INSTANTIATE_TEST_SUITE_P(Tapered, AugerRefusals,
                         testing::Values(Refusal{2, {{4, "0"}, {5, "0"}}, AboveZero, 4},
                                         Refusal{2, {{5, "-240"}, {6, "0"}}, AboveZero, 5},
                                         Refusal{2, {{6, "0"}, {7, "0"}}, AboveZero, 6},
                                         Refusal{2, {{7, "0"}, {8, "0"}}, AboveZero, 7},
                                         Refusal{2, {{8, "0"}}, AboveZero, 8},
                                         Refusal{2, {{8, "120.1"}}, AtMost + "120", 8},
                                         Refusal{2, {{4, "100"}}, AtMost + "50", 8}));

INSTANTIATE_TEST_SUITE_P(Plates, AugerRefusals,
                         testing::Values(Refusal{3, {{9, "0"}, {10, "0"}}, AboveZero, 9},
                                         Refusal{3, {{10, "-190"}, {11, "0"}}, AboveZero, 10},
                                         Refusal{3, {{11, "0"}}, AboveZero, 11},
                                         Refusal{4, {{12, "-250"}, {13, "0"}}, AboveZero, 12},
                                         Refusal{4, {{13, "0"}, {14, "0"}}, AboveZero, 13},
                                         Refusal{4, {{14, "0"}}, AboveZero, 14}));

TEST(AugerLimits, TheLimitsThemselvesAreAllowed) {
    const std::vector<std::pair<int, BoxTexts>> cases = {
        {1, {{3, "150"}}},   {1, {{2, "0.001"}}}, {2, {{8, "120"}}}, {2, {{4, "150"}, {8, "75"}}},
        {3, {{11, "1000"}}}, {3, {{9, "0.001"}}}, {4, {{14, "125"}}}};
    ExpectMade(AugerCategory, cases);
}

class AugersWithoutAShape : public testing::TestWithParam<Shapeless> {};

TEST_P(AugersWithoutAShape, AreNotMade) {
    ExpectShapeless(AugerCategory, GetParam());
}

const std::string NoShaft = "the flight width leaves an inside diameter below 0";

INSTANTIATE_TEST_SUITE_P(
    Sizes, AugersWithoutAShape,
    testing::Values(Shapeless{4, {{12, "300"}, {13, "300"}, {14, "250"}}, NoShaft},
                    Shapeless{4, {{14, "125.01"}}, NoShaft},
                    Shapeless{1, {{2, "1e-10"}}, "the length is too short for any part of a turn"},
                    Shapeless{2,
                              {{6, "1e-5"}},
                              "so many turns with 24 fold lines each are too much: make one of the two "
                              "numbers smaller"},
                    Shapeless{1, {{0, "1.1e9"}}, "Outside diameter is above a thousand million"},
                    Shapeless{3, {{10, "1e300"}}, "Pitch is above a thousand million"},
                    Shapeless{3, {{11, "1e9"}}, "the fitting is larger than a thousand million"}));

TEST(AugerSizes, OfAParallelOneAreTheSameAtBothEnds) {
    TestShell shell;
    const auto window = shell.OpenSample(AugerCategory, 1);
    window->settings.Thickness = 4;
    window->settings.InOutMean = OutsideDimension;
    const CAuger& auger = Built<CAuger>(*window);
    EXPECT_EQ(auger.OutsideDia1, 300);
    EXPECT_EQ(auger.OutsideDia2, 300);
    EXPECT_EQ(auger.InsideDia1, 80);
    EXPECT_EQ(auger.InsideDia2, 80);
    EXPECT_EQ(auger.Pitch, 280);
    EXPECT_EQ(auger.Length, 700);
    EXPECT_EQ(auger.Thickness, 4);
    EXPECT_EQ(auger.inputs.Dtype, ParallelAuger);
}

TEST(AugerSizes, OfATaperedOneHaveTheFlightWidthAtBothEnds) {
    TestShell shell;
    const auto window = shell.OpenSample(AugerCategory, 2);
    const CAuger& auger = Built<CAuger>(*window);
    EXPECT_EQ(auger.OutsideDia1, 320);
    EXPECT_EQ(auger.OutsideDia2, 240);
    EXPECT_EQ(auger.InsideDia1, 170);
    EXPECT_EQ(auger.InsideDia2, 90);
    EXPECT_EQ(auger.Pitch, 260);
    EXPECT_EQ(auger.Length, 585);
    EXPECT_EQ(auger.inputs.Dtype, TaperedAuger);
}

TEST(AugerSizes, OfAPlateMakeOneTurn) {
    for (const auto& [type, outside, inside, pitch] :
         {std::tuple{3, 200.0, 60.0, 190.0}, {4, 250.0, 80.0, 230.0}}) {
        TestShell shell;
        const auto window = shell.OpenSample(AugerCategory, type);
        const CAuger& auger = Built<CAuger>(*window);
        EXPECT_EQ(auger.OutsideDia1, outside);
        EXPECT_EQ(auger.OutsideDia2, outside);
        EXPECT_EQ(auger.InsideDia1, inside);
        EXPECT_EQ(auger.InsideDia2, inside);
        EXPECT_EQ(auger.Pitch, pitch);
        EXPECT_EQ(auger.Length, pitch);
        EXPECT_EQ(auger.inputs.Dtype, type - 1);
    }
}

/// A half that a file asks for is not told of.
TEST(AugerTextBlock, TellsTheSizesAsTyped) {
    const std::map<int, std::vector<std::string>> sizesOfTypes = {
        {1, {"Outside diameter = 300", "Pitch = 280", "Fight width = 110", "Length = 700"}},
        {2,
         {"Outside diameter 1 = 320", "Outside diameter 2 = 240", "Pitch = 260", "Fight width = 75",
          "Length = 585"}},
        {3,
         {"Single plate type - based on ID", "Inside diameter = 60", "Pitch = 190", "Fight width = 70",
          "Length = Pitch"}},
        {4,
         {"Single plate type - based on OD", "Outside diameter = 250", "Pitch = 230", "Fight width = 85",
          "Length = Pitch"}}};
    for (const auto& [type, sizes] : sizesOfTypes) {
        TestShell shell;
        const auto window = shell.OpenSample(AugerCategory, type);
        window->settings.HalfPattern = true;
        ExpectTextBlock(*window, sizes);
    }
}

/// A file may ask for a half: the model says no. The flat ring is laid out without it.
TEST(AugerHalf, IsRefusedByTheModel) {
    for (int type = 1; type <= 4; ++type) {
        TestShell shell;
        const auto window = shell.OpenSample(AugerCategory, type);
        window->settings.HalfPattern = true;
        window->ClickView(PatternButton);
        EXPECT_EQ(shell.ui.messages.size(), type <= 2 ? 1U : 0U);
        window->ClickView(0);
        EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>{"Half pattern not applicable to this item"});
        EXPECT_FALSE(window->settings.HalfPattern);
        window->ClickView(PatternButton);
        EXPECT_EQ(shell.ui.messages.size(), 1U);
    }
}

}  // namespace
}  // namespace korvet
