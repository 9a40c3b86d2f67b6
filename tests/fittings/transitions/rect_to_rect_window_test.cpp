// The window of the rectangle to rectangle: how it starts, what it refuses, the sizes that it hands on, text
// lines.
#include <gtest/gtest.h>

#include <numbers>

#include "fittings/transitions/rect_to_rect.h"
#include "tests/support/text_blocks.h"
#include "tests/support/window_start.h"

namespace korvet::rect_to_rect_window_test {
namespace {

constexpr const char* Category = "Rectangle to Rectangle";
const std::string NotZero = "This dimension cannot be equal to 0";

TEST(RectToRectWindow, StartsAsASharpTransitionDoes) {
    ExpectStart(Category, {.helpContextId = 2200, .boxes = 33, .laps = NoLaps});
    TestShell shell;
    const auto window = shell.Open(Category);
    EXPECT_EQ(window->settings.InOutMean, InsideDimension);
    EXPECT_EQ(window->settings.PositionString, "inside");
    EXPECT_TRUE(window->settings.MaterialDisable);
}

TEST(RectToRectWindow, StepsThroughFourPages) {
    TestShell shell;
    const auto window = shell.Open(Category);
    for (std::size_t page = 0; page < 3; ++page) {
        window->ClickMore(page);
    }
    EXPECT_EQ(window->dtype, 3);
    window->ClickBack(3);
    EXPECT_EQ(window->dtype, 2);
}

class RectToRectRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(RectToRectRefusals, NameTheBox) {
    ExpectRefused(Category, GetParam());
}

// On every page top Y, base Y, top X, base X and the height, of which the next one is wrong too.
INSTANTIATE_TEST_SUITE_P(Plain, RectToRectRefusals,
                         testing::Values(Refusal{1, {{0, "0"}, {1, "0"}}, AboveZero, 0},
                                         Refusal{1, {{1, "-1"}, {3, "0"}}, AboveZero, 1},
                                         Refusal{1, {{3, "0"}, {4, "0"}}, AboveZero, 3},
                                         Refusal{1, {{4, "0"}, {6, "0"}}, AboveZero, 4},
                                         Refusal{1, {{6, "0"}}, NotZero, 6}));

INSTANTIATE_TEST_SUITE_P(RisingToTheRight, RectToRectRefusals,
                         testing::Values(Refusal{2, {{7, "0"}, {8, "0"}}, AboveZero, 7},
                                         Refusal{2, {{8, "-1"}, {10, "0"}}, AboveZero, 8},
                                         Refusal{2, {{10, "0"}, {11, "0"}}, AboveZero, 10},
                                         Refusal{2, {{11, "0"}, {13, "0"}}, AboveZero, 11},
                                         Refusal{2, {{13, "-0"}}, NotZero, 13}));

INSTANTIATE_TEST_SUITE_P(RisingToTheLeft, RectToRectRefusals,
                         testing::Values(Refusal{3, {{16, "0"}, {17, "0"}}, AboveZero, 16},
                                         Refusal{3, {{17, "-1"}, {19, "0"}}, AboveZero, 17},
                                         Refusal{3, {{19, "0"}, {20, "0"}}, AboveZero, 19},
                                         Refusal{3, {{20, "0"}, {21, "0"}}, AboveZero, 20},
                                         Refusal{3, {{21, "0"}}, NotZero, 21}));

INSTANTIATE_TEST_SUITE_P(Rotated, RectToRectRefusals,
                         testing::Values(Refusal{4, {{26, "0"}, {28, "0"}}, AboveZero, 26},
                                         Refusal{4, {{28, "-1"}, {25, "0"}}, AboveZero, 28},
                                         Refusal{4, {{25, "0"}, {27, "0"}}, AboveZero, 25},
                                         Refusal{4, {{27, "0"}, {32, "0"}}, AboveZero, 27},
                                         Refusal{4, {{32, "0"}}, NotZero, 32}));

TEST(RectToRectLimits, SmallSizesNegativeHeightsAndAnyAngleAreTaken) {
    ExpectMade(Category, {{1, {{0, "0.001"}, {1, "0.001"}, {3, "0.001"}, {4, "0.001"}}},
                          {1, {{6, "-350"}, {2, "-500"}, {5, "-500"}}},
                          {1, {{6, "0.001"}}},
                          {2, {{14, "-270"}, {15, "720"}}},
                          {3, {{23, "90"}, {24, "-90"}}},
                          {4, {{31, "-12.5"}, {23, "0"}, {24, "0"}}}});
}

/// Whatever the settings of a file say of it.
TEST(RectToRectSizes, AreNotChangedByTheMaterial) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->settings.Thickness = 5;
    const CRectToRect& fitting = Built<CRectToRect>(*window);
    EXPECT_EQ(fitting.TopLengthX, 250);
    EXPECT_EQ(fitting.TopLengthY, 180);
    EXPECT_EQ(fitting.BaseLengthX, 400);
    EXPECT_EQ(fitting.BaseLengthY, 300);
    EXPECT_EQ(fitting.TopOffsetX, 70);
    EXPECT_EQ(fitting.TopOffsetY, 45);
    EXPECT_EQ(fitting.Height, 350);
    EXPECT_EQ(fitting.Diagonal, NoCrease);
}

TEST(RectToRectSizes, AnglesAreTypedInDegreesAndTheRotationInRadians) {
    TestShell shell;
    const auto right = shell.OpenSample(Category, 2);
    EXPECT_NEAR(Built<CRectToRect>(*right).BaseTiltY, std::numbers::pi / 18, 1e-12);
    EXPECT_NEAR(Built<CRectToRect>(*right).TopTiltY, 25 * std::numbers::pi / 180, 1e-12);
    EXPECT_EQ(Built<CRectToRect>(*right).Diagonal, RisingToTheRight);
    const auto left = shell.OpenSample(Category, 3);
    EXPECT_NEAR(Built<CRectToRect>(*left).BaseTiltY, std::numbers::pi / 15, 1e-12);
    EXPECT_NEAR(Built<CRectToRect>(*left).TopTiltY, 22 * std::numbers::pi / 180, 1e-12);
    EXPECT_EQ(Built<CRectToRect>(*left).TopRotation, 0);
    EXPECT_EQ(Built<CRectToRect>(*left).Diagonal, RisingToTheLeft);
    const auto rotated = shell.OpenSample(Category, 4);
    EXPECT_NEAR(Built<CRectToRect>(*rotated).BaseTiltY, std::numbers::pi / 15, 1e-12);
    EXPECT_NEAR(Built<CRectToRect>(*rotated).TopTiltY, 22 * std::numbers::pi / 180, 1e-12);
    EXPECT_EQ(Built<CRectToRect>(*rotated).TopRotation, 0.35);
    EXPECT_EQ(Built<CRectToRect>(*rotated).Diagonal, RoundACorner);
    EXPECT_EQ(Built<CRectToRect>(*rotated).inputs.Dtype, FromCentreToCentre);
}

TEST(RectToRectSizes, WhatATypeLacksIsZero) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    Built<CRectToRect>(*window);
    auto& fitting = window->fitting->As<CRectToRect>();
    fitting.TopTiltX = fitting.TopTiltY = fitting.BaseTiltX = fitting.BaseTiltY = fitting.TopRotation = 7;
    Built<CRectToRect>(*window);
    EXPECT_EQ(fitting.TopTiltX, 0);
    EXPECT_EQ(fitting.TopTiltY, 0);
    EXPECT_EQ(fitting.BaseTiltX, 0);
    EXPECT_EQ(fitting.BaseTiltY, 0);
    EXPECT_EQ(fitting.TopRotation, 0);
}

/// Types 3 and 4 have the boxes of their angles in common.
TEST(RectToRectWindow, TheLastPagesShareTheirAngles) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 3);
    TypeBoxes(*window, {{23, "7"}, {24, "9"}});
    window->ClickMore(2);
    for (const BoxEntry& box : window->Table().pages[3].boxes) {
        if (box.index < 23 || box.index > 24) {
            TypeBoxes(*window, {{box.index, std::string(box.sample)}});
        }
    }
    EXPECT_NEAR(Built<CRectToRect>(*window).BaseTiltY, 7 * std::numbers::pi / 180, 1e-12);
    EXPECT_NEAR(Built<CRectToRect>(*window).TopTiltY, 9 * std::numbers::pi / 180, 1e-12);
}

TEST(RectToRectSizes, ASharpThroatNeedsTheOtherCrease) {
    TestShell shell;
    const auto right = shell.OpenSample(Category, 2);
    TypeBoxes(*right, {{7, "310"}, {10, "340"}, {12, "0"}, {9, "0"}, {14, "0"}, {15, "-90"}});
    right->ClickView(PatternButton);
    ExpectNotMade(shell.ui, *right,
                  "a corner of the top lies on the corner of the base to which its fold line goes");
    const auto left = shell.OpenSample(Category, 3);
    TypeBoxes(*left, {{16, "290"}, {19, "330"}, {22, "0"}, {18, "0"}, {23, "0"}, {24, "-90"}});
    left->ClickView(PatternButton);
    EXPECT_TRUE(left->hasModel);
    EXPECT_TRUE(shell.ui.messages.empty());
}

/// A half that a file asks for is passed over without a word.
TEST(RectToRectWindow, HasNoHalf) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->settings.HalfPattern = true;
    Built<CRectToRect>(*window);
    EXPECT_FALSE(window->settings.HalfPattern);
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST(RectToRectTextBlock, HasTheLinesOfEachPage) {
    ExpectTextBlocks(
        Category,
        {{1,
          {"Top length X = 250", "Top length Y = 180", "Base length X = 400", "Base length Y = 300",
           "Offset X = 70", "Offset Y = 45", "Height = 350"}},
         {2,
          {"Top length X = 260", "Top length Y = 190", "Base length X = 420", "Base length Y = 310",
           "Offset X = 60", "Offset Y = 50", "Height = 340", "Top angle = 25", "Base angle = 10"}},
         {4,
          {"Top length X = 270", "Top length Y = 200", "Base length X = 410", "Base length Y = 320",
           "Offset X = 75", "Offset Y = 40", "Height = 360", "Top angle = 22", "Base angle = 12",
           "Top rotation = 0.35"}}},
        false);
}

/// On purpose: the lines of Type 3 are those of the boxes of Type 2.
TEST(RectToRectTextBlock, OfTypeThreeReadsTheBoxesOfTypeTwo) {
    ExpectTextBlocks(Category,
                     {{3,
                       {"Top length X = 0", "Top length Y = 0", "Base length X = 0", "Base length Y = 0",
                        "Offset X = 0", "Offset Y = 0", "Height = 0", "Top angle = 0", "Base angle = 0"}}},
                     false);
    TestShell shell;
    const auto window = shell.OpenSample(Category, 3);
    for (int box = 7; box <= 15; ++box) {
        TypeBoxes(*window, {{box, "0." + std::to_string(box)}});
    }
    Built<CRectToRect>(*window);
    const std::vector<std::string> block = TextBlock(*window);
    EXPECT_EQ(std::vector<std::string>(block.begin() + 2, block.end() - 2),
              (std::vector<std::string>{"Top length X = 0.10", "Top length Y = 0.7", "Base length X = 0.11",
                                        "Base length Y = 0.8", "Offset X = 0.12", "Offset Y = 0.9",
                                        "Height = 0.13", "Top angle = 0.15", "Base angle = 0.14"}));
}

}  // namespace
}  // namespace korvet::rect_to_rect_window_test
