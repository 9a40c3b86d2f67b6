// The window of the reducing breech: how it starts, every limit in its place, the sizes that it hands on,
// text lines, saved files. The sample pipes have 300, 260 and 320.
#include <gtest/gtest.h>

#include <numbers>

#include "core/math_module.h"
#include "fittings/breeches/breech_reducing.h"
#include "tests/support/near.h"
#include "tests/support/refusals.h"
#include "tests/support/saved_fittings.h"
#include "tests/support/text_blocks.h"
#include "tests/support/window_start.h"
#include "window/views.h"

namespace korvet::reducing_breech_window_test {
namespace {

constexpr const char* Category = "Reducing Breech";

TEST(ReducingBreechWindow, StartsAsAReducingBreechDoes) {
    ExpectStart(Category, {.helpContextId = 2240,
                           .boxes = 18,
                           .pieces = true,
                           .halfPattern = true,
                           .patterns = {"Trunk", "Left Branch", "Right Branch"}});
}

class ReducingBreechRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(ReducingBreechRefusals, NameTheBox) {
    ExpectRefused(Category, GetParam());
}

// The box that is refused later in the order is wrong too.
INSTANTIATE_TEST_SUITE_P(IncludedAngle, ReducingBreechRefusals,
                         testing::Values(Refusal{1, {{0, "0"}, {1, "0"}}, AboveZero, 0},
                                         Refusal{1, {{1, "-1"}, {2, "0"}}, AboveZero, 1},
                                         Refusal{1, {{2, "0"}, {3, "1"}}, AboveZero, 2},
                                         Refusal{1, {{3, "149.9"}, {1, "400"}}, AtLeast + "150", 3},
                                         Refusal{1, {{1, "300"}, {4, "0"}}, LessThan + "300", 1},
                                         Refusal{1, {{4, "0"}}, GreaterThan + "0", 4},
                                         Refusal{1, {{4, "180.1"}}, AtMost + "180", 4},
                                         // 90 / tan 10 = 510.415
                                         Refusal{1, {{4, "20"}}, GreaterThan + "510.4", 3}));

INSTANTIATE_TEST_SUITE_P(TwoAngles, ReducingBreechRefusals,
                         testing::Values(Refusal{2, {{5, "-1"}, {6, "0"}}, AboveZero, 5},
                                         Refusal{2, {{6, "0"}, {7, "0"}}, AboveZero, 6},
                                         Refusal{2, {{7, "-1"}, {9, "91"}}, AboveZero, 7},
                                         Refusal{2, {{6, "260"}, {9, "91"}}, LessThan + "260", 6},
                                         Refusal{2, {{9, "-0.1"}, {10, "91"}}, AtLeast + "0", 9},
                                         Refusal{2, {{9, "90.1"}, {10, "91"}}, AtMost + "90", 9},
                                         Refusal{2, {{10, "-0.1"}, {8, "1"}}, AtLeast + "0", 10},
                                         Refusal{2, {{10, "90.1"}, {8, "1"}}, AtMost + "90", 10},
                                         // 85 / tan 10 = 482.059
                                         Refusal{2, {{10, "0"}, {8, "482"}}, GreaterThan + "482.1", 8},
                                         Refusal{
                                             2, {{9, "90"}, {10, "90"}, {8, "0"}}, GreaterThan + "0", 8}));

INSTANTIATE_TEST_SUITE_P(UnlikeBranches, ReducingBreechRefusals,
                         testing::Values(Refusal{3, {{11, "0"}, {12, "0"}}, AboveZero, 11},
                                         Refusal{3, {{12, "0"}, {13, "0"}}, AboveZero, 12},
                                         Refusal{3, {{13, "-210"}, {14, "0"}}, AboveZero, 13},
                                         Refusal{3, {{14, "0"}, {12, "400"}}, AboveZero, 14},
                                         Refusal{3, {{12, "320"}, {13, "400"}}, LessThan + "320", 12},
                                         Refusal{3, {{13, "320"}, {16, "0"}}, LessThan + "320", 13},
                                         Refusal{3, {{16, "0"}, {17, "0"}}, GreaterThan + "0", 16},
                                         Refusal{3, {{16, "90.1"}, {17, "0"}}, AtMost + "90", 16},
                                         Refusal{3, {{17, "-1"}, {15, "1"}}, GreaterThan + "0", 17},
                                         Refusal{3, {{17, "91"}, {15, "1"}}, AtMost + "90", 17},
                                         // The wider of both counts: 105 / tan 10 = 595.485
                                         Refusal{3, {{16, "8"}, {17, "12"}}, GreaterThan + "595.5", 15}));

TEST(ReducingBreechLimits, TheLimitsThemselvesAreAllowed) {
    const std::vector<std::pair<int, BoxTexts>> cases = {{1, {{1, "299.99"}}},
                                                         {1, {{4, "180"}}},
                                                         {1, {{3, "150"}, {4, "150"}}},
                                                         {1, {{4, "20"}, {3, "510.4154"}}},
                                                         {2, {{9, "0"}}},
                                                         {2, {{10, "0"}, {8, "500"}}},
                                                         {2, {{9, "90"}, {10, "90"}}},
                                                         {2, {{9, "0"}, {10, "90"}}},
                                                         {3, {{16, "90"}, {17, "90"}}},
                                                         {3, {{16, "8"}, {17, "12"}, {15, "595.4850"}}}};
    for (const auto& [type, boxes] : cases) {
        for (const int piece : {0, 1, 2}) {
            TestShell shell;
            const auto window = shell.OpenSample(Category, type);
            window->SelectPattern(static_cast<std::size_t>(piece));
            TypeBoxes(*window, boxes);
            window->ClickView(PatternButton);
            EXPECT_TRUE(window->hasModel) << type << " " << boxes.begin()->second;
            EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>());
        }
    }
}

TEST(ReducingBreechLimits, WallsMustFitIntoPipeAndCones) {
    for (const auto& [type, box] : {std::pair{1, 0}, {1, 1}, {2, 5}, {2, 6}, {3, 11}, {3, 12}, {3, 13}}) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, type);
        window->settings.InOutMean = OutsideDimension;
        window->settings.Thickness = 10;
        TypeBoxes(*window, {{box, "20"}});
        // At the limit; a pipe of that size is then too narrow for its branches.
        if (window->BuildFitting() == Refused) {
            ASSERT_EQ(shell.ui.messages.size(), 1U);
            EXPECT_NE(shell.ui.messages[0].text, NoRoom);
        }
        shell.ui.messages.clear();
        TypeBoxes(*window, {{box, "19.9"}});
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, NoRoom, box);
    }
}

TEST(ReducingBreechLimits, GoByTheMeanSizes) {
    const std::vector<std::tuple<int, BoxTexts, std::string, int>> cases = {
        {1, {{3, "154.9"}}, AtLeast + "155", 3},
        {1, {{4, "20"}}, GreaterThan + "538.8", 3},  // 95 / tan 10
        {3, {{16, "8"}, {17, "12"}}, GreaterThan + "623.8", 15}};
    for (const auto& [type, boxes, message, box] : cases) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, type);
        window->settings.Thickness = 10;
        window->settings.InOutMean = InsideDimension;
        TypeBoxes(*window, boxes);
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, message, box);
    }
}

/// They pass every check. It is said for the model and for every pattern.
TEST(ReducingBreechLimits, SizesWithoutAShapeAreNotMade) {
    const std::vector<std::tuple<int, BoxTexts, std::string>> cases = {
        {1, {{2, "5"}}, "the main pipe length is too short: the cut runs past the free end"},
        {2,
         {{8, "131"}, {9, "90"}, {10, "80"}, {7, "20"}},
         "the main pipe length is too short: the cut runs past the free end"},
        {2, {{8, "129"}, {9, "90"}}, "the branch length is too short: the cut runs past the free end"},
        {2,
         {{8, "90"}, {9, "90"}, {10, "80"}},
         "the branch length is too short: its end lies within half the pipe diameter of where the axes meet"},
        {2, {{9, "0"}, {10, "0"}}, "both branches go straight on: one of them needs an angle"},
        {3,
         {{12, "319.99999999"}},
         "a branch is nearly as wide as the main pipe: its cone has no point within reach"}};
    for (const auto& [type, boxes, reason] : cases) {
        for (const int piece : {0, 1, 2}) {
            TestShell shell;
            const auto window = shell.OpenSample(Category, type);
            window->SelectPattern(static_cast<std::size_t>(piece));
            TypeBoxes(*window, boxes);
            for (const int view : {0, PatternButton}) {
                window->ClickView(view);
                ExpectNotMade(shell.ui, *window, reason);
            }
            EXPECT_EQ(window->SaveFile("a.Kvt"), Refused);
            EXPECT_TRUE(shell.files.files.empty());
        }
    }
}

TEST(ReducingBreechChoice, APatternNeedsOneAndAModelNeedsNone) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 3);
    window->ClickView(0);
    EXPECT_TRUE(window->hasModel);
    window->ClickView(PatternButton);
    ExpectUserError(shell.ui, *window, "A pattern must be selected");
    window->SelectPattern(2);
    EXPECT_EQ(window->miscellaneous, RightBranchPattern);
}

TEST(ReducingBreechSizes, OfTheIncludedAngleAreLikeOnBothSides) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->settings.Thickness = 6;
    window->settings.InOutMean = InsideDimension;
    const CBreechReducing& breech = Built<CBreechReducing>(*window);
    EXPECT_EQ(breech.PipeRad, 153);
    EXPECT_EQ(breech.PipeLength, 280);
    EXPECT_EQ(breech.ConeRadA, 93);
    EXPECT_EQ(breech.ConeRadB, 93);
    EXPECT_EQ(breech.ConeLengthA, 400);
    EXPECT_EQ(breech.ConeLengthB, 400);
    EXPECT_NEAR(breech.CLAngleA, 35 * std::numbers::pi / 180, Near);
    EXPECT_EQ(breech.CLAngleB, breech.CLAngleA);
    EXPECT_EQ(breech.inputs.Dtype, 0);
}

TEST(ReducingBreechSizes, OfTwoAngles) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 2);
    const CBreechReducing& breech = Built<CBreechReducing>(*window);
    EXPECT_EQ(breech.PipeRad, 130);
    EXPECT_EQ(breech.PipeLength, 240);
    EXPECT_EQ(breech.ConeRadA, 85);
    EXPECT_EQ(breech.ConeRadB, 85);
    EXPECT_EQ(breech.ConeLengthA, 330);
    EXPECT_EQ(breech.ConeLengthB, 330);
    EXPECT_NEAR(RadToDeg(breech.CLAngleA), 20, Near);
    EXPECT_NEAR(RadToDeg(breech.CLAngleB), 50, Near);
}

TEST(ReducingBreechSizes, OfUnlikeBranches) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 3);
    window->settings.Thickness = 6;
    window->settings.InOutMean = OutsideDimension;
    const CBreechReducing& breech = Built<CBreechReducing>(*window);
    EXPECT_EQ(breech.PipeRad, 157);
    EXPECT_EQ(breech.ConeRadA, 72);
    EXPECT_EQ(breech.ConeRadB, 102);
    EXPECT_EQ(breech.PipeLength, 270);
    EXPECT_EQ(breech.ConeLengthA, 410);
    EXPECT_EQ(breech.ConeLengthB, 410);
    EXPECT_NEAR(RadToDeg(breech.CLAngleA), 30, Near);
    EXPECT_NEAR(RadToDeg(breech.CLAngleB), 45, Near);
    EXPECT_EQ(breech.inputs.Dtype, 2);
}

/// Both angles bear the same words.
TEST(ReducingBreechTextBlock, TellsTheSizesAsTyped) {
    ExpectTextBlocks(
        Category,
        {{1,
          {"Pipe diameter = 300", "Cone diameter = 180", "Main pipe length = 280", "Branch lengths = 400",
           "Included Angle of branch = 70"}},
         {2,
          {"Pipe diameter = 260", "Cone diameter = 170", "Main pipe length = 240", "Branch lengths = 330",
           "Angle from centerline 1 = 20", "Angle from centerline 1 = 50"}},
         {3,
          {"Pipe diameter = 320", "Cone diameter 1 = 150", "Cone diameter 2 = 210", "Main pipe length = 270",
           "Branch lengths = 410", "Angle from centerline 1 = 30", "Angle from centerline 1 = 45"}}});
}

TEST(ReducingBreechFiles, ReadBackToTheSameBytesAndSurfaces) {
    for (const int type : {1, 2, 3}) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, type);
        window->SelectPattern(static_cast<std::size_t>(type) - 1);
        window->settings.Thickness = 2;
        window->settings.JoinType = 1;
        window->settings.LapSize1 = 12;
        window->settings.HalfPattern = type == 2;
        ExpectFileKeepsEverything(shell, *window);
    }
}

}  // namespace
}  // namespace korvet::reducing_breech_window_test
