// The window of the breech: how it starts, every limit in its place, the sizes that it hands on, text lines,
// saved files. The samples have pipes of 160, 140 and 120, the narrowest angles being 105, 75 and 55.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "core/math_module.h"
#include "fittings/breeches/breech.h"
#include "tests/support/near.h"
#include "tests/support/refusals.h"
#include "tests/support/saved_fittings.h"
#include "tests/support/text_blocks.h"
#include "tests/support/window_start.h"
#include "window/views.h"

namespace korvet::breech_window_test {
namespace {

constexpr const char* Category = "Breech";

TEST(BreechWindow, StartsAsABreechDoes) {
    ExpectStart(Category, {.helpContextId = 2230,
                           .boxes = 15,
                           .pieces = true,
                           .halfPattern = true,
                           .templateType = true,
                           .kerf = true,
                           .patterns = {"Arrange Horizontally", "Arrange Vertically"}});
    TestShell shell;
    EXPECT_TRUE(shell.Open(Category)->Table().moreButtons);
}

class BreechRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(BreechRefusals, NameTheBox) {
    ExpectRefused(Category, GetParam());
}

// The box that is refused later in the order is wrong too.
INSTANTIATE_TEST_SUITE_P(ThreePipes, BreechRefusals,
                         testing::Values(Refusal{1, {{0, "-1"}, {1, "0"}}, NoRoom, 0},
                                         Refusal{1, {{1, "0"}, {2, "0"}}, GreaterThan + "0", 1},
                                         Refusal{1, {{2, "0"}, {3, "0"}}, GreaterThan + "0", 2},
                                         Refusal{1, {{2, "360"}, {3, "0"}}, LessThan + "360", 2},
                                         Refusal{1, {{3, "-5"}, {1, "1"}}, GreaterThan + "0", 3},
                                         Refusal{1, {{3, "230"}, {1, "1"}}, LessThan + "230", 3},
                                         // 80 / tan 52.5 = 61.386
                                         Refusal{1, {{1, "61.3"}}, AtLeast + "61.4", 1},
                                         // The last angle is 20 then: 80 / tan 10 = 453.703
                                         Refusal{1, {{3, "210"}, {1, "453.7"}}, AtLeast + "453.7", 1}));

INSTANTIATE_TEST_SUITE_P(FourPipes, BreechRefusals,
                         testing::Values(Refusal{2, {{4, "-140"}, {5, "0"}}, NoRoom, 4},
                                         Refusal{2, {{5, "-1"}, {6, "0"}}, GreaterThan + "0", 5},
                                         Refusal{2, {{6, "400"}, {7, "0"}}, LessThan + "360", 6},
                                         Refusal{2, {{7, "280"}, {8, "0"}}, LessThan + "280", 7},
                                         Refusal{2, {{8, "0"}, {5, "1"}}, GreaterThan + "0", 8},
                                         Refusal{2, {{8, "185"}, {5, "1"}}, LessThan + "185", 8},
                                         // 70 / tan 37.5 = 91.226
                                         Refusal{2, {{5, "91.2"}}, AtLeast + "91.2", 5}));

INSTANTIATE_TEST_SUITE_P(FivePipes, BreechRefusals,
                         testing::Values(Refusal{3, {{9, "-1"}, {10, "0"}}, NoRoom, 9},
                                         Refusal{3, {{10, "0"}, {11, "0"}}, GreaterThan + "0", 10},
                                         Refusal{3, {{11, "-60"}, {12, "0"}}, GreaterThan + "0", 11},
                                         Refusal{3, {{12, "300"}, {13, "0"}}, LessThan + "300", 12},
                                         Refusal{3, {{13, "215"}, {14, "0"}}, LessThan + "215", 13},
                                         Refusal{3, {{14, "145"}, {10, "1"}}, LessThan + "145", 14},
                                         // 60 / tan 27.5 = 115.259
                                         Refusal{3, {{10, "115.2"}}, AtLeast + "115.3", 10}));

TEST(BreechLimits, TheLimitsThemselvesAreAllowed) {
    const std::vector<std::pair<int, BoxTexts>> cases = {
        {1, {{1, "61.3862"}}},
        {1, {{2, "0.2"}, {3, "0.3"}, {1, "50000"}}},
        {1, {{2, "359"}, {3, "0.5"}, {1, "20000"}}},
        {1, {{2, "180"}, {3, "90"}, {1, "80"}}},                       // half the diameter for a right angle
        {2, {{6, "90"}, {7, "90"}, {8, "90"}, {4, "90"}, {5, "45"}}},  // the cross
        {3, {{10, "115.2590"}}}};
    for (const auto& [type, boxes] : cases) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, type);
        window->SelectPattern(0);
        TypeBoxes(*window, boxes);
        window->ClickView(PatternButton);
        EXPECT_TRUE(window->hasModel) << type << " " << boxes.begin()->second;
        EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>());
    }
}

TEST(BreechLimits, WallMustFitIntoThePipe) {
    for (const auto& [type, box, diameter] :
         {std::tuple{1, 0, 160.0}, std::tuple{2, 4, 140.0}, std::tuple{3, 9, 120.0}}) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, type);
        window->settings.InOutMean = OutsideDimension;
        window->settings.Thickness = diameter / 2;
        EXPECT_EQ(window->BuildFitting(), Passed);
        window->settings.Thickness = diameter / 2 + 0.1;
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, NoRoom, box);
    }
}

TEST(BreechLimits, LengthIsHeldAgainstTheMeanRadius) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->settings.Thickness = 10;
    window->settings.InOutMean = InsideDimension;
    TypeBoxes(*window, {{2, "90"}, {3, "120"}, {1, "84.9"}});
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectUserError(shell.ui, *window, AtLeast + "85", 1);
}

TEST(BreechLimits, SizesWithoutAShapeAreNotMade) {
    const std::vector<std::pair<BoxTexts, std::string>> cases = {
        {{{0, "0"}}, "a pipe with a diameter of 0 has no wall"},
        {{{1, "2e9"}}, "Pipe length is above a thousand million"}};
    for (const auto& [boxes, reason] : cases) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, 1);
        window->SelectPattern(0);
        TypeBoxes(*window, boxes);
        for (const int view : {0, PatternButton}) {
            window->ClickView(view);
            ExpectNotMade(shell.ui, *window, reason);
        }
    }
}

TEST(BreechChoice, APatternNeedsALayoutAndAModelNeedsNone) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->ClickView(0);
    EXPECT_TRUE(window->hasModel);
    window->ClickView(PatternButton);
    ExpectUserError(shell.ui, *window, "A pattern must be selected");
    shell.ui.messages.clear();
    window->SelectPattern(1);
    EXPECT_EQ(window->miscellaneous, PatternsInAColumn);
    window->ClickView(PatternButton);
    EXPECT_TRUE(window->hasModel);
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST(BreechChoice, TheLimitsComeBeforeIt) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 2);
    TypeBoxes(*window, {{5, "91.2"}});
    window->ClickView(PatternButton);
    ExpectUserError(shell.ui, *window, AtLeast + "91.2", 5);
}

TEST(BreechSizes, AreThoseOfTheBoxes) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 2);
    window->settings.Thickness = 4;
    window->settings.InOutMean = OutsideDimension;
    window->settings.TemplateType = 1;
    window->settings.KerfSpacing = 9;
    const CBreech& breech = Built<CBreech>(*window);
    EXPECT_EQ(breech.BaseRad, 68);
    EXPECT_EQ(breech.PipeLength1, 250);
    EXPECT_NEAR(breech.PipeAngle1, 80 * std::numbers::pi / 180, Near);
    EXPECT_NEAR(breech.PipeAngle2, 95 * std::numbers::pi / 180, Near);
    EXPECT_NEAR(breech.PipeAngle3, 110 * std::numbers::pi / 180, Near);
    EXPECT_EQ(breech.PipeAngle4, 0);
    EXPECT_EQ(breech.PipeAngle5, 0);
    EXPECT_EQ(breech.KerfSpacing, 9);
    EXPECT_EQ(breech.TemplateType, 1);
    EXPECT_EQ(breech.Thickness, 4);
    EXPECT_EQ(breech.inputs.Dtype, 1);
}

TEST(BreechSizes, OfFivePipesHaveFourAngles) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 3);
    const CBreech& breech = Built<CBreech>(*window);
    EXPECT_NEAR(RadToDeg(breech.PipeAngle1), 60, Near);
    EXPECT_NEAR(RadToDeg(breech.PipeAngle4), 90, Near);
    EXPECT_EQ(breech.inputs.Dtype, 2);
}

TEST(BreechTextBlock, TellsThePipesAndTheirAngles) {
    ExpectTextBlocks(Category, {{1,
                                 {"Pipe diameter = 160", "Pipe length = 260", "Number of pipes = 3",
                                  "Angle 1 = 130", "Angle 2 = 105"}},
                                {2,
                                 {"Pipe diameter = 140", "Pipe length = 250", "Number of pipes = 4",
                                  "Angle 1 = 80", "Angle 2 = 95", "Angle 3 = 110"}},
                                {3,
                                 {"Pipe diameter = 120", "Pipe length = 240", "Number of pipes = 5",
                                  "Angle 1 = 60", "Angle 2 = 85", "Angle 3 = 70", "Angle 4 = 90"}}});
}

TEST(BreechFiles, ReadBackToTheSameBytesAndSurfaces) {
    for (const int type : {1, 2, 3}) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, type);
        window->SelectPattern(type == 2 ? 0 : 1);
        window->settings.Thickness = 2;
        window->settings.KerfSpacing = 25;
        window->settings.JoinType = 1;
        window->settings.LapSize1 = 12;
        window->settings.HalfPattern = type == 3;
        ExpectFileKeepsEverything(shell, *window);
    }
}

}  // namespace
}  // namespace korvet::breech_window_test
