// The window of the pyramid: how it starts, every limit in its place, the sizes that it hands on, its seam,
// text lines.
#include <gtest/gtest.h>

#include <numbers>

#include "fittings/pyramids/pyramid.h"
#include "tests/fittings/pyramids/sides_windows.h"
#include "tests/support/text_blocks.h"

namespace korvet::pyramid_window_test {
namespace {

constexpr const char* Category = "Pyramid";

TEST(PyramidWindow, StartsAsAPyramidDoes) {
    ExpectStartOfSides(Category, 2260, 16);
}

class PyramidRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(PyramidRefusals, NameTheBox) {
    ExpectRefused(Category, GetParam());
}

// The box that is refused later in the order is wrong too.
INSTANTIATE_TEST_SUITE_P(Whole, PyramidRefusals,
                         testing::Values(Refusal{1, {{0, "0"}, {1, "0"}}, AboveZero, 0},
                                         Refusal{1, {{1, "-1"}, {2, "2"}}, AboveZero, 1},
                                         Refusal{1, {{2, "2.5"}}, WholeNumber, 2},
                                         Refusal{1, {{2, "2"}}, AtLeast + "3", 2}));

INSTANTIATE_TEST_SUITE_P(LevelCut, PyramidRefusals,
                         testing::Values(Refusal{2, {{3, "0"}, {4, "0"}}, AboveZero, 3},
                                         Refusal{2, {{4, "0"}, {5, "0"}}, AboveZero, 4},
                                         Refusal{2, {{5, "0"}, {6, "2"}}, AboveZero, 5},
                                         Refusal{2, {{5, "540"}, {6, "2"}}, LessThan + "540", 5},
                                         Refusal{2, {{6, "4.5"}}, WholeNumber, 6},
                                         Refusal{2, {{6, "0"}}, AtLeast + "3", 6}));

// m = atan(280 / 240) = 49.399
INSTANTIATE_TEST_SUITE_P(TiltedCut, PyramidRefusals,
                         testing::Values(Refusal{3, {{7, "0"}, {8, "0"}}, AboveZero, 7},
                                         Refusal{3, {{8, "0"}, {9, "0"}}, AboveZero, 8},
                                         Refusal{3, {{9, "0"}, {11, "2"}}, AboveZero, 9},
                                         Refusal{3, {{9, "600"}, {11, "2"}}, LessThan + "600", 9},
                                         Refusal{3, {{11, "3.1"}, {10, "80"}}, WholeNumber, 11},
                                         Refusal{3, {{11, "-3"}, {10, "80"}}, AtLeast + "3", 11},
                                         Refusal{3, {{10, "-49.4"}}, GreaterThan + "-49.4", 10},
                                         Refusal{3, {{10, "49.4"}}, LessThan + "49.4", 10},
                                         // 45 degrees where the plane is as high as the radius
                                         Refusal{3, {{9, "240"}, {10, "45.01"}}, LessThan + "45", 10}));

INSTANTIATE_TEST_SUITE_P(TwoDiameters, PyramidRefusals,
                         testing::Values(Refusal{4, {{12, "0"}, {13, "0"}}, AboveZero, 12},
                                         Refusal{4, {{13, "0"}, {14, "0"}}, AboveZero, 13},
                                         Refusal{4, {{14, "0"}, {13, "600"}}, AboveZero, 14},
                                         Refusal{4, {{13, "520"}, {15, "2"}}, LessThan + "520", 13},
                                         Refusal{4, {{15, "1e-3"}}, WholeNumber, 15},
                                         Refusal{4, {{15, "2"}}, AtLeast + "3", 15}));

TEST(PyramidLimits, SizesWithinThemAreTaken) {
    ExpectMade(Category, {{1, {{2, "3"}}},
                          {2, {{5, "539.999"}}},
                          {3, {{10, "49.39"}}},
                          {3, {{10, "-49.39"}}},
                          {4, {{13, "519.99"}}},
                          {1, {{2, "32767"}, {0, "1"}}}});
}

TEST(PyramidLimits, TooManySidesAreNotMade) {
    ExpectShapeless(Category, {1, {{2, "32768"}}, "there can be no more than 32767 sides"});
}

TEST(PyramidSizes, AreTakenWithoutRegardToTheMaterial) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->settings.Thickness = 10;
    window->settings.InOutMean = OutsideDimension;
    const CPyramid& pyramid = Built<CPyramid>(*window);
    EXPECT_EQ(pyramid.BaseRad, 250);
    EXPECT_EQ(pyramid.ApexHeight, 420);
    EXPECT_EQ(pyramid.CPHeight, 420);
    EXPECT_EQ(pyramid.CPAngle, 0);
    EXPECT_EQ(pyramid.NoOfSides, 6);
}

TEST(PyramidSizes, ComeFromTheBoxesOfTheType) {
    TestShell shell;
    const auto level = shell.OpenSample(Category, 2);
    EXPECT_EQ(Built<CPyramid>(*level).BaseRad, 230);
    EXPECT_EQ(Built<CPyramid>(*level).ApexHeight, 540);
    EXPECT_EQ(Built<CPyramid>(*level).CPHeight, 260);
    EXPECT_EQ(Built<CPyramid>(*level).NoOfSides, 4);
    const auto tilted = shell.OpenSample(Category, 3);
    EXPECT_EQ(Built<CPyramid>(*tilted).CPHeight, 280);
    EXPECT_NEAR(Built<CPyramid>(*tilted).CPAngle, 25 * std::numbers::pi / 180, 1e-12);
    EXPECT_EQ(Built<CPyramid>(*tilted).NoOfSides, 8);
    // 260 : H = (260 - 105) : 310
    const auto two = shell.OpenSample(Category, 4);
    EXPECT_EQ(Built<CPyramid>(*two).BaseRad, 260);
    EXPECT_DOUBLE_EQ(Built<CPyramid>(*two).ApexHeight, 520);
    EXPECT_EQ(Built<CPyramid>(*two).CPHeight, 310);
    EXPECT_EQ(Built<CPyramid>(*two).NoOfSides, 12);
}

TEST(PyramidSizes, OnlyTheTiltedCutIsTilted) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 2);
    Built<CPyramid>(*window);
    window->fitting->As<CPyramid>().CPAngle = 1;
    EXPECT_EQ(Built<CPyramid>(*window).CPAngle, 0);
}

TEST(PyramidSeam, StartsAnewWithTheNumberOfSides) {
    ExpectSeamOfSides(Category, 3, 11);
}

TEST(PyramidHalf, IsRefusedOnceAndNotToldOf) {
    ExpectNoHalfOfSides(Category);
}

TEST(PyramidTextBlock, TellsTheSizesAsTyped) {
    ExpectTextBlocks(
        Category,
        {{1, {"Base diameter = 500", "Apex height = 420", "Number of sides = 6"}},
         {2,
          {"Base diameter = 460", "Apex height = 540", "Cutting plane height = 260", "Number of sides = 4"}},
         {3,
          {"Base diameter = 480", "Apex height = 600", "Cutting plane height = 280",
           "Cutting plane angle = 25", "Number of sides = 8"}},
         {4,
          {"Base diameter = 520", "Top diameter = 210", "Cutting plane height = 310",
           "Number of sides = 12"}}},
        false);
}

}  // namespace
}  // namespace korvet::pyramid_window_test
