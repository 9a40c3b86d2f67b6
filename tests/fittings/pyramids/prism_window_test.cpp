// The window of the prism: how it starts, every limit in its place, the sizes that it hands on, its seam,
// text lines.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "fittings/pyramids/prism.h"
#include "tests/fittings/pyramids/sides_windows.h"
#include "tests/support/text_blocks.h"

namespace korvet::prism_window_test {
namespace {

constexpr const char* Category = "Prism";

double Radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

TEST(PrismWindow, StartsAsAPrismDoes) {
    ExpectStartOfSides(Category, 2310, 17);
}

class PrismRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(PrismRefusals, NameTheBox) {
    ExpectRefused(Category, GetParam());
}

// First the sides, then the room for the material, which a diameter below 0 lacks without any, the height,
// the tilts. The box that is refused later in the order is wrong too.
INSTANTIATE_TEST_SUITE_P(Square, PrismRefusals,
                         testing::Values(Refusal{1, {{2, "6.5"}, {0, "-1"}}, WholeNumber, 2},
                                         Refusal{1, {{2, "2"}, {0, "-1"}}, AtLeast + "3", 2},
                                         Refusal{1, {{0, "-0.001"}, {1, "0"}}, NoRoom, 0},
                                         Refusal{1, {{1, "0"}}, AboveZero, 1}));

// m = atan(330 / 140) = 67.011
INSTANTIATE_TEST_SUITE_P(TiltedTop, PrismRefusals,
                         testing::Values(Refusal{2, {{6, "0.5"}, {3, "-1"}}, WholeNumber, 6},
                                         Refusal{2, {{6, "-4"}, {3, "-1"}}, AtLeast + "3", 6},
                                         Refusal{2, {{3, "-1"}, {4, "0"}}, NoRoom, 3},
                                         Refusal{2, {{4, "-1"}, {5, "89"}}, AboveZero, 4},
                                         Refusal{2, {{5, "67.1"}}, LessThan + "67", 5},
                                         Refusal{2, {{5, "-67.1"}}, GreaterThan + "-67", 5}));

// m = atan(380 / 110) = 73.856; at +x the top stands at 380 - 110 tan 28 = 321.512, and m2 = 71.112; falling
// the other way it stands at 438.488 there, and m2 = 75.917.
INSTANTIATE_TEST_SUITE_P(TiltedEnds, PrismRefusals,
                         testing::Values(Refusal{3, {{11, "8.5"}, {7, "-1"}}, WholeNumber, 11},
                                         Refusal{3, {{11, "1"}, {7, "-1"}}, AtLeast + "3", 11},
                                         Refusal{3, {{7, "-1"}, {8, "0"}}, NoRoom, 7},
                                         Refusal{3, {{8, "0"}, {9, "89"}}, AboveZero, 8},
                                         Refusal{3, {{9, "73.9"}, {10, "89"}}, LessThan + "73.9", 9},
                                         Refusal{3, {{9, "-73.9"}, {10, "89"}}, GreaterThan + "-73.9", 9},
                                         Refusal{3, {{10, "71.2"}}, LessThan + "71.1", 10},
                                         Refusal{3, {{10, "-71.2"}}, GreaterThan + "-71.1", 10},
                                         Refusal{3, {{9, "-28"}, {10, "76"}}, LessThan + "75.9", 10}));

// m = atan(320 / 130) = 67.891
INSTANTIATE_TEST_SUITE_P(TwoPlanes, PrismRefusals,
                         testing::Values(Refusal{4, {{16, "12.5"}, {12, "-1"}}, WholeNumber, 16},
                                         Refusal{4, {{16, "0"}, {12, "-1"}}, AtLeast + "3", 16},
                                         Refusal{4, {{12, "-1"}, {13, "0"}}, NoRoom, 12},
                                         Refusal{4, {{13, "0"}, {14, "89"}}, AboveZero, 13},
                                         Refusal{4, {{14, "67.9"}, {15, "89"}}, LessThan + "67.9", 14},
                                         Refusal{4, {{14, "-90"}, {15, "89"}}, GreaterThan + "-90", 14},
                                         Refusal{4, {{15, "67.9"}}, LessThan + "67.9", 15},
                                         Refusal{4, {{15, "-90"}}, GreaterThan + "-90", 15}));

TEST(PrismLimits, SizesWithinThemAreTaken) {
    ExpectMade(Category, {{1, {{2, "3"}, {1, "0.001"}}},
                          {2, {{5, "67"}}},
                          {2, {{5, "-67"}}},
                          {3, {{9, "73.8"}, {10, "0"}}},
                          {3, {{10, "71.1"}}},
                          {3, {{9, "-28"}, {10, "75.9"}}},
                          {4, {{14, "67.8"}}},
                          {4, {{15, "67.8"}}},
                          {4, {{14, "-89.9"}, {15, "-89.9"}}},
                          {4, {{16, "3"}}},
                          {1, {{2, "32767"}}}});
}

TEST(PrismLimits, SizesWithoutAShapeAreNotMade) {
    ExpectShapeless(Category, {1, {{0, "0"}}, "a prism with a diameter of 0 has no sides"});
    ExpectShapeless(Category, {2, {{3, "-0"}}, "a prism with a diameter of 0 has no sides"});
    ExpectShapeless(Category, {4, {{16, "32768"}}, "there can be no more than 32767 sides"});
}

/// The other checks come before.
TEST(PrismLimits, ADiameterOfZeroIsMetLast) {
    for (const auto& [type, boxes, box] : {std::tuple{1, BoxTexts{{0, "0"}, {1, "0"}}, 1},
                                           {2, BoxTexts{{3, "0"}, {5, "90.1"}}, 5},
                                           {3, BoxTexts{{7, "0"}, {10, "-90.1"}}, 10},
                                           {4, BoxTexts{{12, "0"}, {15, "-90"}}, 15}}) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, type);
        TypeBoxes(*window, boxes);
        EXPECT_EQ(window->BuildFitting(), Refused);
        ASSERT_EQ(shell.ui.messages.size(), 1U);
        EXPECT_EQ(shell.ui.messages[0].box, box);
    }
}

/// Across the corners of a square half the thickness counts 1.41421 times.
TEST(PrismThickness, CountsAcrossTheCorners) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 2);
    window->settings.Thickness = 10;
    EXPECT_EQ(Built<CPrism>(*window).BaseRad, 140);
    window->settings.InOutMean = InsideDimension;
    EXPECT_NEAR(Built<CPrism>(*window).BaseRad, 140 + 5 * std::numbers::sqrt2, 1e-9);
    window->settings.InOutMean = OutsideDimension;
    EXPECT_NEAR(Built<CPrism>(*window).BaseRad, 140 - 5 * std::numbers::sqrt2, 1e-9);
}

TEST(PrismThickness, MustLeaveRoomInside) {
    // Of a square of mean material the thickness goes up to 2 x 140 / 1.41421, of outside sizes to half that.
    for (const auto& [side, most] : {std::pair{MeanDimension, 197.989}, {OutsideDimension, 98.994}}) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, 2);
        window->settings.InOutMean = side;
        window->settings.Thickness = most;
        EXPECT_EQ(window->BuildFitting(), Passed);
        window->settings.Thickness = most + 0.01;
        // The height is wrong as well, but comes after.
        TypeBoxes(*window, {{4, "0"}});
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, NoRoom, 3);
    }
}

/// An inside diameter of 0 is made: the material has a middle all the same.
TEST(PrismThickness, InsideSizesMayBeZero) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 2);
    window->settings.InOutMean = InsideDimension;
    window->settings.Thickness = 10;
    TypeBoxes(*window, {{3, "0"}});
    EXPECT_NEAR(Built<CPrism>(*window).BaseRad, 5 * std::numbers::sqrt2, 1e-9);
}

TEST(PrismSizes, ComeFromTheBoxesOfTheType) {
    TestShell shell;
    const auto square = shell.OpenSample(Category, 1);
    EXPECT_EQ(Built<CPrism>(*square).BaseRad, 120);
    EXPECT_EQ(Built<CPrism>(*square).CPHeight1, 350);
    EXPECT_EQ(Built<CPrism>(*square).NoOfSides, 6);
    const auto tilted = shell.OpenSample(Category, 2);
    EXPECT_NEAR(Built<CPrism>(*tilted).CPAngle1, -Radians(32), 1e-12);
    EXPECT_EQ(Built<CPrism>(*tilted).CPAngle2, 0);
    const auto ends = shell.OpenSample(Category, 3);
    EXPECT_NEAR(Built<CPrism>(*ends).CPAngle1, -Radians(28), 1e-12);
    EXPECT_NEAR(Built<CPrism>(*ends).CPAngle2, -Radians(18), 1e-12);
    const auto planes = shell.OpenSample(Category, 4);
    EXPECT_NEAR(Built<CPrism>(*planes).CPAngle3, Radians(40), 1e-12);
    EXPECT_NEAR(Built<CPrism>(*planes).CPAngle1, Radians(24), 1e-12);
    EXPECT_EQ(Built<CPrism>(*planes).CPAngle2, 0);
    EXPECT_EQ(Built<CPrism>(*planes).inputs.Dtype, TwoPlaneTop);
}

TEST(PrismSizes, WhatATypeLacksIsZero) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    Built<CPrism>(*window);
    auto& prism = window->fitting->As<CPrism>();
    prism.CPAngle1 = prism.CPAngle2 = prism.CPAngle3 = prism.CPHeight2 = 7;
    Built<CPrism>(*window);
    EXPECT_EQ(prism.CPAngle1, 0);
    EXPECT_EQ(prism.CPAngle2, 0);
    EXPECT_EQ(prism.CPAngle3, 0);
    EXPECT_EQ(prism.CPHeight2, 0);
}

TEST(PrismSeam, StartsAnewWithTheNumberOfSides) {
    ExpectSeamOfSides(Category, 2, 6);
}

TEST(PrismHalf, IsRefusedOnceAndNotToldOf) {
    ExpectNoHalfOfSides(Category);
}

TEST(PrismTextBlock, TellsTheSizesAsTyped) {
    ExpectTextBlocks(Category,
                     {{1, {"Base diameter = 240", "Cutting plane height = 350", "Number of sides = 6"}},
                      {2,
                       {"Base diameter = 280", "Cutting plane height = 330", "Cutting plane angle = 32",
                        "Number of sides = 4"}},
                      {3,
                       {"Base diameter = 220", "Cutting plane height = 380", "Cutting plane angle 1 = 28",
                        "Cutting plane angle 2 = 18", "Number of sides = 8"}},
                      {4,
                       {"Base diameter = 260", "Cutting plane height = 320", "Cutting plane angle 1 = 40",
                        "Cutting plane angle 2 = 24", "Number of sides = 12"}}},
                     false);
}

}  // namespace
}  // namespace korvet::prism_window_test
