// The window of the oval elbow: how it starts, every limit in its place, the sizes that it hands on, text
// lines.
#include <gtest/gtest.h>

#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/ovals/elbow_oval.h"
#include "tests/support/refusals.h"
#include "tests/support/text_blocks.h"
#include "tests/support/window_start.h"

namespace korvet {
namespace {

constexpr const char* OvalElbowCategory = "Oval Elbow";

TEST(OvalElbowWindow, Starts) {
    ExpectStart(OvalElbowCategory, {.helpContextId = 2430, .boxes = 13, .pieces = true, .kerf = true});
}

class OvalElbowRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(OvalElbowRefusals, NameTheBox) {
    ExpectRefused(OvalElbowCategory, GetParam());
}

// The box that is refused later in the order is wrong too. 75 / tan 60 degrees is 43.3.
INSTANTIATE_TEST_SUITE_P(EveryCheck, OvalElbowRefusals,
                         testing::Values(Refusal{1, {{0, "0"}, {10, "-1"}}, AboveZero, 0},
                                         Refusal{1, {{10, "74.9"}, {3, "0"}}, AtLeast + "75", 10},
                                         Refusal{1, {{3, "0"}, {1, "-500"}}, AboveZero, 3},
                                         Refusal{1, {{3, "180"}, {1, "-500"}}, LessThan + "180", 3},
                                         Refusal{1, {{1, "-43.4"}, {2, "-50"}}, AtLeast + "-43.3", 1},
                                         Refusal{1, {{2, "-43.4"}}, AtLeast + "-43.3", 2},
                                         Refusal{2, {{4, "0"}, {11, "-1"}}, AboveZero, 4},
                                         Refusal{2, {{11, "139.9"}, {5, "1"}}, AtLeast + "140", 11},
                                         Refusal{2, {{5, "69.9"}, {6, "1"}}, AtLeast + "70", 5},
                                         Refusal{2, {{6, "69.9"}}, AtLeast + "70", 6},
                                         Refusal{3, {{7, "0"}, {12, "-1"}}, AboveZero, 7},
                                         Refusal{3, {{12, "159.9"}, {8, "1"}}, AtLeast + "160", 12},
                                         Refusal{3, {{8, "79.9"}, {9, "0"}}, AtLeast + "80", 8},
                                         Refusal{3, {{9, "0"}}, AboveZero, 9},
                                         Refusal{3, {{9, "180"}}, LessThan + "180", 9}));

TEST(OvalElbowLimits, TheLimitsThemselvesAreAllowed) {
    const std::vector<std::pair<int, BoxTexts>> cases = {
        {1, {{10, "75"}}},  {1, {{1, "-43.3"}, {2, "-43.3"}}},
        {2, {{11, "140"}}}, {2, {{5, "70"}, {6, "70"}}},
        {3, {{12, "160"}}}, {3, {{8, "80"}}}};
    ExpectMade(OvalElbowCategory, cases);
}

TEST(OvalElbowLimits, WallMustFitIntoTheHalfCircles) {
    // The length is wrong as well, but comes after.
    ExpectRoomUpTo(75, OvalElbowCategory, 1, 0, {{10, "-1"}});
    ExpectRoomUpTo(70, OvalElbowCategory, 2, 4, {{11, "-1"}});
    ExpectRoomUpTo(80, OvalElbowCategory, 3, 7, {{12, "-1"}});
}

class OvalElbowsWithoutAShape : public testing::TestWithParam<Shapeless> {};

TEST_P(OvalElbowsWithoutAShape, AreNotMade) {
    ExpectShapeless(OvalElbowCategory, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Sizes, OvalElbowsWithoutAShape,
                         testing::Values(Shapeless{1, {{1, "1.1e9"}}, "Length 1 is above a thousand million"},
                                         Shapeless{2, {{6, "1.1e9"}}, "Length 2 is above a thousand million"},
                                         Shapeless{3,
                                                   {{8, "9e8"}, {9, "179.9"}},
                                                   "the fitting is larger than a thousand million"}));

TEST(OvalElbowSizes, OfEachType) {
    TestShell shell;
    const auto legs = shell.OpenSample(OvalElbowCategory, 1);
    legs->settings.KerfSpacing = 7;
    legs->settings.Thickness = 4;
    legs->settings.InOutMean = InsideDimension;
    const auto& elbow = Built<CElbowOval>(*legs);
    EXPECT_DOUBLE_EQ(elbow.BaseRad, 77);
    EXPECT_DOUBLE_EQ(elbow.OvalCenterDistance, 210);  // 360 - 150
    EXPECT_DOUBLE_EQ(elbow.BendAngle, DegToRad(120));
    EXPECT_EQ(elbow.Length1, 340);
    EXPECT_EQ(elbow.Length2, 280);
    EXPECT_EQ(elbow.KerfSpacing, 7);
    EXPECT_EQ(elbow.BendRadius, 0);
    const auto square = shell.OpenSample(OvalElbowCategory, 2);
    const auto& squared = Built<CElbowOval>(*square);
    EXPECT_EQ(squared.BaseRad, 70);
    EXPECT_EQ(squared.OvalCenterDistance, 190);  // 330 - 140
    EXPECT_EQ(squared.BendAngle, QuarterTurn);
    EXPECT_EQ(squared.Length1, 250);
    EXPECT_EQ(squared.Length2, 200);
    const auto onRadius = shell.OpenSample(OvalElbowCategory, 3);
    const auto& turned = Built<CElbowOval>(*onRadius);
    EXPECT_EQ(turned.BaseRad, 80);
    EXPECT_EQ(turned.OvalCenterDistance, 240);                // 400 - 160
    EXPECT_NEAR(turned.BendAngle, DegToRad(120), 1e-12);      // a change of direction of 60
    EXPECT_NEAR(turned.Length1, 300 / std::sqrt(3.0), 1e-9);  // 300 tan 30 degrees
    EXPECT_EQ(turned.Length2, turned.Length1);
    EXPECT_EQ(turned.BendRadius, 300);
}

TEST(OvalElbowText, HasTheSizesAsTyped) {
    TestShell shell;
    const std::vector<std::vector<std::string>> expected = {
        {"Base diameter = 150", "Base length = 360", "Length 1 = 340", "Length 2 = 280", "Angle = 120"},
        {"Base diameter = 140", "Base length = 330", "Length 1 = 250", "Length 2 = 200", "Angle = 90"},
        {"Base diameter = 160", "Base length = 400", "Bend radius = 300", "Angle = 60"}};
    for (std::size_t type = 1; type <= expected.size(); ++type) {
        const auto window = shell.OpenSample(OvalElbowCategory, static_cast<int>(type));
        window->settings.HalfPattern = true;  // there is none
        ExpectTextBlock(*window, expected[type - 1]);
    }
}

}  // namespace
}  // namespace korvet
