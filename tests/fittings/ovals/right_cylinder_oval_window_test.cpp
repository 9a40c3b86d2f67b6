// The window of the oval pipe: how it starts, every limit in its place, the sizes that it hands on, text
// lines.
#include <gtest/gtest.h>

#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/ovals/right_cylinder_oval.h"
#include "tests/support/refusals.h"
#include "tests/support/text_blocks.h"
#include "tests/support/window_start.h"

namespace korvet {
namespace {

constexpr const char* OvalPipeCategory = "Oval Right Cylinder";

TEST(OvalPipeWindow, Starts) {
    ExpectStart(OvalPipeCategory, {.helpContextId = 2420, .boxes = 16, .laps = AllLaps});
}

class OvalPipeRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(OvalPipeRefusals, NameTheBox) {
    ExpectRefused(OvalPipeCategory, GetParam());
}

// The box that is refused later in the order is wrong too. atan(300 / 90) is 73.3 degrees, atan(260 /
// 100) 69.
INSTANTIATE_TEST_SUITE_P(
    EveryCheck, OvalPipeRefusals,
    testing::Values(
        Refusal{1, {{0, "0"}, {1, "0"}}, AboveZero, 0}, Refusal{1, {{1, "0"}, {2, "1"}}, AboveZero, 1},
        Refusal{1, {{2, "159.9"}}, AtLeast + "160", 2}, Refusal{2, {{5, "0"}, {3, "0"}}, AboveZero, 5},
        Refusal{2, {{3, "0"}, {15, "1"}}, AboveZero, 3},
        Refusal{2, {{15, "179.9"}, {4, "80"}}, AtLeast + "180", 15},
        Refusal{2, {{4, "-73.4"}}, GreaterThan + "-73.3", 4}, Refusal{2, {{4, "73.4"}}, LessThan + "73.3", 4},
        Refusal{3, {{12, "0"}, {6, "0"}}, AboveZero, 12}, Refusal{3, {{6, "0"}, {7, "0"}}, AboveZero, 6},
        Refusal{3, {{7, "0"}, {14, "1"}}, AboveZero, 7}, Refusal{3, {{14, "149.9"}}, AtLeast + "150", 14},
        Refusal{4, {{13, "0"}, {9, "0"}}, AboveZero, 13}, Refusal{4, {{9, "0"}, {11, "1"}}, AboveZero, 9},
        Refusal{4, {{11, "199.9"}, {8, "90"}}, AtLeast + "200", 11},
        Refusal{4, {{8, "-90"}, {10, "90"}}, GreaterThan + "-90", 8},
        Refusal{4, {{8, "69"}, {10, "90"}}, LessThan + "69", 8},
        Refusal{4, {{10, "-90"}}, GreaterThan + "-90", 10}, Refusal{4, {{10, "69"}}, LessThan + "69", 10}));

/// Of the two ends of Type 4 each is held against the height alone: the cuts may cross.
TEST(OvalPipeLimits, TheLimitsThemselvesAreAllowed) {
    ExpectMade(OvalPipeCategory, {{1, {{0, "0.001"}, {1, "0.001"}}},
                                  {1, {{2, "160"}}},
                                  {2, {{15, "180"}}},
                                  {2, {{4, "-73.2"}}},
                                  {2, {{4, "73.2"}}},
                                  {3, {{6, "0.001"}, {7, "0.001"}}},
                                  {3, {{14, "150"}}},
                                  {4, {{11, "200"}}},
                                  {4, {{8, "-89.9"}, {10, "-89.9"}}},
                                  {4, {{8, "68.9"}, {10, "68.9"}}}});
}

class OvalPipesWithoutAShape : public testing::TestWithParam<Shapeless> {};

TEST_P(OvalPipesWithoutAShape, AreNotMade) {
    ExpectShapeless(OvalPipeCategory, GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, OvalPipesWithoutAShape,
    testing::Values(Shapeless{1, {{1, "1.1e9"}}, "Cutting plane height is above a thousand million"},
                    Shapeless{2, {{15, "1.1e9"}}, "Base length is above a thousand million"},
                    Shapeless{3, {{6, "1.1e9"}}, "Height 1 is above a thousand million"},
                    Shapeless{4, {{8, "-89.9999999"}}, "the fitting is larger than a thousand million"}));

TEST(OvalPipeLimits, WallMustFitIntoTheHalfCircles) {
    // The length is wrong as well, but comes after.
    ExpectRoomUpTo(80, OvalPipeCategory, 1, 0, {{2, "1"}});
    ExpectRoomUpTo(90, OvalPipeCategory, 2, 5, {{15, "1"}});
    ExpectRoomUpTo(75, OvalPipeCategory, 3, 12, {{14, "1"}});
    ExpectRoomUpTo(100, OvalPipeCategory, 4, 13, {{11, "1"}});
}

TEST(OvalPipeSizes, OfTheMeanLine) {
    TestShell shell;
    const auto window = shell.OpenSample(OvalPipeCategory, 1);
    window->settings.Thickness = 6;
    window->settings.InOutMean = OutsideDimension;
    const CRightCylinderOval& pipe = Built<CRightCylinderOval>(*window);
    EXPECT_DOUBLE_EQ(pipe.BaseRad, 77);
    EXPECT_DOUBLE_EQ(pipe.OvalCenterDistance, 260);  // 420 - 160, whatever the material
    EXPECT_DOUBLE_EQ(pipe.CPHeight1, 280);
    EXPECT_EQ(pipe.CPAngle1, 0);
}

TEST(OvalPipeSizes, OfTiltedCuts) {
    TestShell shell;
    const CRightCylinderOval tilted = Built<CRightCylinderOval>(*shell.OpenSample(OvalPipeCategory, 2));
    EXPECT_EQ(tilted.BaseRad, 90);
    EXPECT_EQ(tilted.OvalCenterDistance, 220);  // 400 - 180
    EXPECT_EQ(tilted.CPHeight1, 300);
    EXPECT_DOUBLE_EQ(tilted.CPAngle1, -DegToRad(25));
    const CRightCylinderOval heights = Built<CRightCylinderOval>(*shell.OpenSample(OvalPipeCategory, 3));
    EXPECT_EQ(heights.BaseRad, 75);
    EXPECT_EQ(heights.OvalCenterDistance, 230);  // 380 - 150
    EXPECT_DOUBLE_EQ(heights.CPHeight1, 280);
    EXPECT_DOUBLE_EQ(heights.CPAngle1, -std::atan(120.0 / 150));
    const CRightCylinderOval ends = Built<CRightCylinderOval>(*shell.OpenSample(OvalPipeCategory, 4));
    EXPECT_EQ(ends.BaseRad, 100);
    EXPECT_EQ(ends.OvalCenterDistance, 250);  // 450 - 200
    EXPECT_EQ(ends.CPHeight1, 260);
    EXPECT_EQ(ends.CPHeight2, 0);
    EXPECT_DOUBLE_EQ(ends.CPAngle1, -DegToRad(20));
    EXPECT_DOUBLE_EQ(ends.CPAngle2, -DegToRad(15));
}

TEST(OvalPipeSizes, TiltedEndsStartAtTheSeamOfTheShape) {
    TestShell shell;
    for (const int type : {3, 4}) {
        const auto window = shell.OpenSample(OvalPipeCategory, type);
        window->settings.JoinAngle = 30;
        EXPECT_EQ(window->BuildFitting(), Passed);
        EXPECT_EQ(window->settings.JoinAngle, type == 4 ? 0 : 30);
    }
}

TEST(OvalPipeText, HasTheSizesAsTyped) {
    TestShell shell;
    const std::vector<std::vector<std::string>> expected = {
        {"Base diameter = 160", "Base length = 420", "Cutting plane height = 280"},
        {"Base diameter = 180", "Base length = 400", "Cutting plane height = 300",
         "Cutting plane angle = 25"},
        {"Base diameter = 150", "Base Length = 380", "Height 1 = 340", "Height 2  = 220"},
        {"Base diameter = 200", "Base diameter = 450", "Cutting plane height = 260",
         "Cutting plane angle 1 = 20", "Cutting plane angle 2 = 15"}};
    for (std::size_t type = 1; type <= expected.size(); ++type) {
        const auto window = shell.OpenSample(OvalPipeCategory, static_cast<int>(type));
        window->settings.HalfPattern = true;  // there is none
        ExpectTextBlock(*window, expected[type - 1]);
    }
}

}  // namespace
}  // namespace korvet
