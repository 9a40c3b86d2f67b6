// The window of round to round: how it starts, every limit in its place, the sizes that it hands on, text
// lines, saved files. The sample fittings go from 300 to 180, from 320 to 200 and from 340 to 160.
#include <gtest/gtest.h>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/pipes/round_to_round.h"
#include "tests/support/refusals.h"
#include "tests/support/saved_fittings.h"
#include "tests/support/text_blocks.h"
#include "tests/support/window_start.h"
#include "window/views.h"

namespace korvet::round_to_round_window_test {
namespace {

constexpr const char* Category = "Round to Round";

void ExpectSizes(const CRoundToRound& fitting, double base, double top, double height, double offset,
                 double tilt) {
    EXPECT_EQ(fitting.BaseRad, base);
    EXPECT_EQ(fitting.TopRad, top);
    EXPECT_EQ(fitting.Height, height);
    EXPECT_EQ(fitting.TopOffsetX, offset);
    EXPECT_EQ(fitting.TopOffsetY, 0);
    EXPECT_DOUBLE_EQ(fitting.TopTiltY, tilt);
}

TEST(RoundToRoundWindow, StartsAsARoundToRoundDoes) {
    ExpectStart(
        Category,
        {.helpContextId = 2280, .boxes = 13, .laps = AllLaps, .seamAngle = true, .halfPattern = true});
}

class RoundToRoundRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(RoundToRoundRefusals, NameTheBox) {
    // The wall fits into no diameter of these, but comes last.
    ExpectRefused(Category, GetParam(), 1000);
}

INSTANTIATE_TEST_SUITE_P(OverBase, RoundToRoundRefusals,
                         testing::Values(Refusal{1, {{0, "0"}, {1, "0"}}, AboveZero, 0},
                                         Refusal{1, {{1, "-180"}, {2, "0"}}, AboveZero, 1},
                                         Refusal{1, {{2, "0"}, {3, "-91"}}, AboveZero, 2},
                                         Refusal{1, {{3, "-90.1"}}, AtLeast + "-90", 3},
                                         Refusal{1, {{3, "90.1"}}, AtMost + "90", 3}));

INSTANTIATE_TEST_SUITE_P(BesideBase, RoundToRoundRefusals,
                         testing::Values(Refusal{2, {{4, "-1"}, {5, "0"}}, AboveZero, 4},
                                         Refusal{2, {{5, "0"}, {6, "0"}}, AboveZero, 5},
                                         Refusal{2, {{6, "-280"}, {8, "91"}}, AboveZero, 6},
                                         Refusal{2, {{8, "-90.1"}}, AtLeast + "-90", 8},
                                         Refusal{2, {{8, "90.1"}}, AtMost + "90", 8}));

INSTANTIATE_TEST_SUITE_P(Upright, RoundToRoundRefusals,
                         testing::Values(Refusal{3, {{9, "0"}, {10, "0"}}, AboveZero, 9},
                                         Refusal{3, {{10, "0"}, {11, "0"}}, AboveZero, 10},
                                         Refusal{3, {{11, "-230"}}, AboveZero, 11}));

TEST(RoundToRoundLimits, WallMustFitIntoTheBaseAndThenIntoTheTop) {
    for (const auto& [type, base, top, radius] :
         {std::tuple{1, 0, 1, 90.0}, {2, 4, 5, 100.0}, {3, 9, 10, 80.0}}) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, type);
        window->settings.InOutMean = OutsideDimension;
        window->settings.Thickness = radius;
        EXPECT_EQ(window->BuildFitting(), Passed);
        window->settings.Thickness = radius + 0.1;
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, NoRoom, top);
        shell.ui.messages.clear();
        TypeBoxes(*window, {{base, "150"}});
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, NoRoom, base);
    }
}

TEST(RoundToRoundLimits, TheLimitsThemselvesAreAllowed) {
    ExpectMade(Category, {{1, {{3, "-90"}}},
                          {1, {{3, "90"}}},
                          {1, {{0, "0.5"}}},
                          {1, {{1, "1000"}}},
                          {2, {{8, "90"}}},
                          {2, {{8, "-90"}}},
                          {2, {{7, "0"}}},
                          {2, {{7, "-400"}}},
                          {3, {{12, "0"}}},
                          {3, {{12, "-250"}}}});
}

TEST(RoundToRoundLimits, SizesWithoutAShapeAreNotMade) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->settings.segs = 4;
    TypeBoxes(*window, {{0, "300"}, {1, "300"}, {2, "2"}, {3, "0"}});
    window->ClickView(PatternButton);
    ExpectNotMade(shell.ui, *window, "the triangles of the pattern do not close");
    window->settings.segs = 24;
    TypeBoxes(*window, {{2, "1e9"}, {3, "45"}});
    window->ClickView(PatternButton);
    ExpectNotMade(shell.ui, *window, "the fitting is larger than a thousand million");
}

TEST(RoundToRoundSizes, ComeFromTheBoxesOfTheType) {
    TestShell shell;
    ExpectSizes(Built<CRoundToRound>(*shell.OpenSample(Category, 1)), 150, 90, 260, 0, -DegToRad(25));
    ExpectSizes(Built<CRoundToRound>(*shell.OpenSample(Category, 2)), 160, 100, 280, 110, -DegToRad(20));
    ExpectSizes(Built<CRoundToRound>(*shell.OpenSample(Category, 3)), 170, 80, 230, 250, -QuarterTurn);
}

TEST(RoundToRoundSizes, ThicknessMovesBothRadiiByHalf) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 2);
    window->settings.Thickness = 6;
    window->settings.InOutMean = InsideDimension;
    ExpectSizes(Built<CRoundToRound>(*window), 163, 103, 280, 110, -DegToRad(20));
    window->settings.InOutMean = OutsideDimension;
    ExpectSizes(Built<CRoundToRound>(*window), 157, 97, 280, 110, -DegToRad(20));
}

TEST(RoundToRoundSizes, OfAnotherTypeAreForgotten) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 3);
    Built<CRoundToRound>(*window);
    window->dtype = 0;
    TypeBoxes(*window, {{0, "300"}, {1, "180"}, {2, "260"}});
    ExpectSizes(Built<CRoundToRound>(*window), 150, 90, 260, 0, 0);
}

/// Towards +x, where the top is offset to.
TEST(RoundToRoundSizes, TopFallsWhereThePositiveAngleLeans) {
    TestShell shell;
    for (const int type : {1, 2, 3}) {
        const auto window = shell.OpenSample(Category, type);
        Built<CRoundToRound>(*window);
        window->fitting->ConstructModel();
        const C3DPoints& top = *window->fitting->Results().ModelSurface.List2;
        EXPECT_LT(top.Item(1).z, top.Item(25).z - 50) << type;  // 24 fold lines, half way round
    }
}

TEST(RoundToRoundWarnings, SeamLapSpeaksAsTheUsersError) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->settings.JoinType = 1;
    window->settings.LapSize1 = 5000;
    window->ClickView(PatternButton);
    EXPECT_TRUE(window->hasModel);
    ASSERT_EQ(shell.ui.Texts(), std::vector<std::string>{"Lap join along seam may be too large"});
    EXPECT_EQ(shell.ui.messages[0].title, "User Error");
}

TEST(RoundToRoundTextBlock, TellsTheSizesAsTyped) {
    ExpectTextBlocks(
        Category,
        {{1,
          {"Base diameter = 300", "Top diameter = 180", "Cutting plane height = 260",
           "Cutting plane angle 1 = 25"}},
         {2,
          {"Base diameter = 320", "Top diameter = 200", "Cutting plane height = 280", "Offset X = 110",
           "Cutting plane angle 1 = 20"}},
         {3, {"Base diameter = 340", "Top diameter = 160", "Cutting plane height = 230", "Offset X = 250"}}});
}

TEST(RoundToRoundFiles, ReadBackToTheSameBytesAndSurfaces) {
    for (const int type : {1, 2, 3}) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, type);
        window->settings.Thickness = 2;
        window->settings.JoinAngle = -45;
        window->settings.HalfPattern = type == 2;
        ExpectFileKeepsEverything(shell, *window);
    }
}

}  // namespace
}  // namespace korvet::round_to_round_window_test
