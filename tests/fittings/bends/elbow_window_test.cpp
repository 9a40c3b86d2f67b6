// The window of the elbow: how it starts, every limit in its place, the sizes that it hands on, text lines.
// The sample elbows have diameters of 200, 150 and 180.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/bends/elbow.h"
#include "tests/support/refusals.h"
#include "tests/support/text_blocks.h"
#include "tests/support/window_start.h"

namespace korvet {
namespace {

constexpr const char* ElbowCategory = "Elbow";

TEST(ElbowWindow, StartsAsAnElbowDoes) {
    ExpectStart(ElbowCategory, {.helpContextId = 2320,
                                .boxes = 10,
                                .pieces = true,
                                .seamAngle = true,
                                .halfPattern = true,
                                .templateType = true,
                                .kerf = true});
}

class ElbowRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(ElbowRefusals, NameTheBox) {
    ExpectRefused(ElbowCategory, GetParam());
}

// The box that is refused later in the order is wrong too. The shortest leg at 120 degrees is
// 100 / tan(60 degrees) = 57.7 long.
INSTANTIATE_TEST_SUITE_P(Legs, ElbowRefusals,
                         testing::Values(Refusal{1, {{0, "0"}, {3, "0"}}, AboveZero, 0},
                                         Refusal{1, {{0, "-200"}, {3, "0"}}, AboveZero, 0},
                                         Refusal{1, {{3, "0"}, {1, "1"}}, AboveZero, 3},
                                         Refusal{1, {{3, "-120"}, {1, "1"}}, AboveZero, 3},
                                         Refusal{1, {{3, "180"}, {1, "-1"}}, LessThan + "180", 3},
                                         Refusal{1, {{3, "180.5"}, {1, "-1"}}, LessThan + "180", 3},
                                         Refusal{1, {{1, "57.7"}, {2, "1"}}, AtLeast + "57.7", 1},
                                         Refusal{1, {{2, "57.7"}}, AtLeast + "57.7", 2},
                                         Refusal{1, {{3, "90"}, {2, "99.999999"}}, AtLeast + "100", 2},
                                         Refusal{1, {{1, "-57.8"}, {2, "1"}}, AtLeast + "57.7", 1}));

INSTANTIATE_TEST_SUITE_P(Square, ElbowRefusals,
                         testing::Values(Refusal{2, {{4, "-150"}, {5, "-1"}}, NoRoom, 4},
                                         Refusal{2, {{5, "74.9"}, {6, "1"}}, AtLeast + "75", 5},
                                         Refusal{2, {{6, "74.9"}}, AtLeast + "75", 6}));

INSTANTIATE_TEST_SUITE_P(Bend, ElbowRefusals,
                         testing::Values(Refusal{3, {{7, "-180"}, {8, "-1"}}, NoRoom, 7},
                                         Refusal{3, {{8, "89.9"}, {9, "0"}}, AtLeast + "90", 8},
                                         Refusal{3, {{9, "0"}}, AboveZero, 9},
                                         Refusal{3, {{9, "-60"}}, AboveZero, 9},
                                         Refusal{3, {{9, "180"}}, LessThan + "180", 9}));

TEST(ElbowLimits, TheLimitsThemselvesAreAllowed) {
    const std::vector<std::pair<int, BoxTexts>> cases = {{1, {{0, "0.001"}}},
                                                         {1, {{1, "57.735026919"}, {2, "57.735026919"}}},
                                                         {1, {{3, "90"}, {1, "100"}, {2, "100"}}},
                                                         {1, {{3, "179.999"}}},
                                                         {1, {{3, "0.1"}, {1, "115000"}, {2, "115000"}}},
                                                         {2, {{5, "75"}, {6, "75"}}},
                                                         {2, {{4, "0.001"}}},
                                                         {3, {{8, "90"}}},
                                                         {3, {{9, "0.001"}}},
                                                         {3, {{9, "179.999"}}}};
    ExpectMade(ElbowCategory, cases);
}

TEST(ElbowLimits, WallMustFitIntoThePipe) {
    const std::map<int, std::pair<int, double>> boxes = {{1, {0, 100}}, {2, {4, 75}}, {3, {7, 90}}};
    for (const auto& [type, box] : boxes) {
        // The size after it is wrong as well, but comes after.
        ExpectRoomUpTo(box.second, ElbowCategory, type, box.first, {{type == 1 ? 3 : box.first + 1, "0"}});
    }
}

TEST(ElbowLimits, LengthsAreHeldAgainstTheMeanRadius) {
    const std::map<int, std::pair<int, std::string>> limits = {
        {1, {2, "60.6"}}, {2, {6, "80"}}, {3, {8, "95"}}};  // 105 / tan(60 degrees), then half plus 5
    for (const auto& [type, limit] : limits) {
        TestShell shell;
        const auto window = shell.OpenSample(ElbowCategory, type);
        window->settings.Thickness = 10;
        window->settings.InOutMean = InsideDimension;
        TypeBoxes(*window, {{limit.first, "60"}});
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, AtLeast + limit.second, limit.first);
    }
}

class ElbowsWithoutAShape : public testing::TestWithParam<Shapeless> {};

TEST_P(ElbowsWithoutAShape, AreNotMade) {
    ExpectShapeless(ElbowCategory, GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, ElbowsWithoutAShape,
    testing::Values(Shapeless{2, {{4, "0"}}, "a pipe with a diameter of 0 has no wall"},
                    Shapeless{3, {{7, "0"}, {8, "0"}}, "a pipe with a diameter of 0 has no wall"},
                    Shapeless{1, {{1, "1.1e9"}}, "Length 1 is above a thousand million"},
                    Shapeless{2, {{6, "1e300"}}, "Length 2 is above a thousand million"},
                    Shapeless{3, {{8, "2e9"}, {9, "1e-6"}}, "Bend radius is above a thousand million"},
                    Shapeless{3, {{9, "179.99999999"}}, "the fitting is larger than a thousand million"}));

TEST(ElbowSizes, OfTwoLegsAreTaken) {
    TestShell shell;
    const auto window = shell.OpenSample(ElbowCategory, 1);
    const CElbow& elbow = Built<CElbow>(*window);
    EXPECT_EQ(elbow.BaseRad, 100);
    EXPECT_EQ(elbow.Length1, 320);
    EXPECT_EQ(elbow.Length2, 260);
    EXPECT_DOUBLE_EQ(elbow.BendAngle, -2 * std::numbers::pi / 3);
    EXPECT_EQ(elbow.inputs.Dtype, 0);
}

TEST(ElbowSizes, OfASquareElbowHaveTheRightAngle) {
    TestShell shell;
    const auto window = shell.OpenSample(ElbowCategory, 2);
    const CElbow& elbow = Built<CElbow>(*window);
    EXPECT_EQ(elbow.BaseRad, 75);
    EXPECT_EQ(elbow.Length1, 240);
    EXPECT_EQ(elbow.Length2, 190);
    EXPECT_EQ(elbow.BendAngle, QuarterTurn);
    EXPECT_EQ(elbow.inputs.Dtype, 1);
}

/// A change of direction by 60 degrees leaves 120 between the legs; a tangent to an arc of 300 over half of
/// that is 300 tan(30 degrees) = 100 times the root of 3 long.
TEST(ElbowSizes, OfAnElbowOnABendRadiusAreItsTangents) {
    TestShell shell;
    const auto window = shell.OpenSample(ElbowCategory, 3);
    const CElbow& elbow = Built<CElbow>(*window);
    EXPECT_EQ(elbow.BaseRad, 90);
    EXPECT_EQ(elbow.BendRadius, 300);
    EXPECT_NEAR(elbow.Length1, 100 * std::numbers::sqrt3, 1e-10);
    EXPECT_EQ(elbow.Length2, elbow.Length1);
    EXPECT_NEAR(elbow.BendAngle, -2 * std::numbers::pi / 3, 1e-13);
    EXPECT_EQ(elbow.inputs.Dtype, 2);
}

TEST(ElbowSizes, MaterialAndKerfComeFromTheSettings) {
    TestShell shell;
    for (const auto& [type, R] : {std::pair{1, 98.0}, {2, 73.0}, {3, 88.0}}) {
        const auto window = shell.OpenSample(ElbowCategory, type);
        window->settings.Thickness = 4;
        window->settings.InOutMean = OutsideDimension;
        window->settings.TemplateType = 1;
        window->settings.KerfSpacing = 12.5;
        const CElbow& elbow = Built<CElbow>(*window);
        EXPECT_EQ(elbow.BaseRad, R);
        EXPECT_EQ(elbow.Thickness, 4);
        EXPECT_EQ(elbow.TemplateType, 1);
        EXPECT_EQ(elbow.KerfSpacing, 12.5);
    }
}

TEST(ElbowTextBlock, TellsTheSizesAsTyped) {
    ExpectTextBlocks(ElbowCategory,
                     {{1, {"Pipe diameter = 200", "Length 1 = 320", "Length 2 = 260", "Angle = 120"}},
                      {2, {"Pipe diameter = 150", "Length 1 = 240", "Length 2 = 190", "Angle = 90"}},
                      {3, {"Pipe diameter = 180", "Bend radius = 300", "Angle = 60"}}});
}

}  // namespace
}  // namespace korvet
