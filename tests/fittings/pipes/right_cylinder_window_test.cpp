// The window of the right cylinder: how it starts, every limit in its place, the sizes that it hands on, the
// seam of the roofs, text lines. The sample pipes have a diameter of 200.
#include <gtest/gtest.h>

#include <cmath>

#include "core/math_module.h"
#include "fittings/pipes/right_cylinder.h"
#include "tests/support/refusals.h"
#include "tests/support/text_blocks.h"
#include "tests/support/window_start.h"

namespace korvet {
namespace {

constexpr const char* Category = "Right Cylinder";

TEST(RightCylinderWindow, StartsAsACylinderDoes) {
    ExpectStart(Category, {.helpContextId = 2150,
                           .boxes = 22,
                           .laps = AllLaps,
                           .seamAngle = true,
                           .halfPattern = true,
                           .templateType = true});
}

class RightCylinderRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(RightCylinderRefusals, NameTheBox) {
    ExpectRefused(Category, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Square, RightCylinderRefusals,
                         testing::Values(Refusal{1, {{0, "0"}, {1, "0"}}, AboveZero, 0},
                                         Refusal{1, {{0, "-200"}}, AboveZero, 0},
                                         Refusal{1, {{1, "0"}}, AboveZero, 1}));

// m = atan(300 / 100) = 71.565
INSTANTIATE_TEST_SUITE_P(TiltedTop, RightCylinderRefusals,
                         testing::Values(Refusal{2, {{2, "0"}, {3, "0"}}, AboveZero, 2},
                                         Refusal{2, {{3, "0"}, {4, "80"}}, AboveZero, 3},
                                         Refusal{2, {{4, "71.6"}}, LessThan + "71.6", 4},
                                         Refusal{2, {{4, "-71.6"}}, GreaterThan + "-71.6", 4},
                                         // 45 degrees where the pipe is as high as its radius
                                         Refusal{2, {{3, "100"}, {4, "45.01"}}, LessThan + "45", 4}));

INSTANTIATE_TEST_SUITE_P(TwoHeights, RightCylinderRefusals,
                         testing::Values(Refusal{3, {{5, "0"}, {6, "0"}}, AboveZero, 5},
                                         Refusal{3, {{6, "0"}, {7, "0"}}, AboveZero, 6},
                                         Refusal{3, {{7, "-1"}}, AboveZero, 7}));

INSTANTIATE_TEST_SUITE_P(Roof, RightCylinderRefusals,
                         testing::Values(Refusal{4, {{8, "0"}, {9, "0"}}, AboveZero, 8},
                                         Refusal{4, {{9, "0"}, {10, "80"}}, AboveZero, 9},
                                         Refusal{4, {{10, "-90"}, {11, "-90"}}, GreaterThan + "-90", 10},
                                         Refusal{4, {{10, "71.6"}, {11, "-90"}}, LessThan + "71.6", 10},
                                         Refusal{4, {{11, "-90"}}, GreaterThan + "-90", 11},
                                         Refusal{4, {{11, "71.6"}}, LessThan + "71.6", 11}));

// m = atan(220 / 100) = 65.556; the top is at its lowest at 220 - 100 tan 20 = 183.603, and
// m2 = atan(1.83603) = 61.425
INSTANTIATE_TEST_SUITE_P(TiltedEnds, RightCylinderRefusals,
                         testing::Values(Refusal{5, {{12, "0"}, {13, "0"}}, AboveZero, 12},
                                         Refusal{5, {{13, "0"}, {14, "80"}}, AboveZero, 13},
                                         Refusal{5, {{14, "65.6"}, {15, "80"}}, LessThan + "65.6", 14},
                                         Refusal{5, {{14, "-65.6"}, {15, "80"}}, GreaterThan + "-65.6", 14},
                                         Refusal{5, {{15, "61.5"}}, LessThan + "61.4", 15},
                                         Refusal{5, {{15, "-61.5"}}, GreaterThan + "-61.4", 15},
                                         // However the base is turned and whichever way the top falls.
                                         Refusal{5, {{15, "61.5"}, {21, "180"}}, LessThan + "61.4", 15},
                                         Refusal{5, {{15, "61.5"}, {14, "-20"}}, LessThan + "61.4", 15}));

// atan(300 / 70) = 76.866, atan(300 / 130) = 66.571
INSTANTIATE_TEST_SUITE_P(OffsetRoof, RightCylinderRefusals,
                         testing::Values(Refusal{6, {{16, "0"}, {17, "0"}}, AboveZero, 16},
                                         Refusal{6, {{17, "0"}, {20, "100"}}, AboveZero, 17},
                                         Refusal{6, {{20, "-100"}, {18, "-90"}}, GreaterThan + "-100", 20},
                                         Refusal{6, {{20, "100"}, {18, "-90"}}, LessThan + "100", 20},
                                         Refusal{6, {{18, "-90"}, {19, "-90"}}, GreaterThan + "-90", 18},
                                         Refusal{6, {{18, "76.9"}, {19, "-90"}}, LessThan + "76.9", 18},
                                         Refusal{6, {{19, "-90"}}, GreaterThan + "-90", 19},
                                         Refusal{6, {{19, "66.6"}}, LessThan + "66.6", 19},
                                         // With the ridge on the other side the limits change places.
                                         Refusal{6, {{20, "-30"}, {18, "66.6"}}, LessThan + "66.6", 18},
                                         Refusal{6, {{20, "-30"}, {19, "76.9"}}, LessThan + "76.9", 19}));

TEST(RightCylinderLimits, SizesWithinThemAreTaken) {
    const std::vector<std::pair<int, BoxTexts>> cases = {
        {2, {{4, "71.5"}}},
        {2, {{4, "-71.5"}}},
        {2, {{4, "0"}}},
        {3, {{6, "1000"}, {7, "0.1"}}},
        {4, {{10, "71.5"}, {11, "-89.9"}}},
        {4, {{10, "-89.9"}, {11, "71.5"}}},
        {5, {{14, "65.5"}, {15, "0"}}},
        {5, {{14, "-65.5"}, {15, "0"}, {21, "-400"}}},
        {5, {{15, "61.4"}}},
        {5, {{15, "-61.4"}}},
        {6, {{18, "76.8"}, {19, "66.5"}}},
        {6, {{18, "-89.9"}, {19, "-89.9"}}},
        {6, {{20, "99.9"}}},
        {6, {{20, "-99.9"}}},
    };
    ExpectMade(Category, cases);
}

/// The boxes of a type: diameter, height, and an angle that its other limits refuse.
struct ThicknessCase {
    int type;
    int diameter;
    int height;
    BoxTexts wrongLater;
};

TEST(RightCylinderThickness, IsTestedBetweenTheSizesAboveZeroAndTheOthers) {
    const std::vector<ThicknessCase> cases = {
        {1, 0, 1, {}},           {2, 2, 3, {{4, "89"}}},    {3, 5, 6, {}},
        {4, 8, 9, {{10, "89"}}}, {5, 12, 13, {{14, "89"}}}, {6, 16, 17, {{20, "500"}}}};
    for (const ThicknessCase& one : cases) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, one.type);
        // A mean radius of 100 - 50.05 with half a thickness of 50.05.
        window->settings.Thickness = 100.1;
        window->settings.InOutMean = OutsideDimension;
        TypeBoxes(*window, one.wrongLater);
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, NoRoom, one.diameter);
        shell.ui.messages.clear();
        TypeBoxes(*window, {{one.height, "0"}});
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, AboveZero, one.height);
    }
}

TEST(RightCylinderThickness, AWallThatJustFitsIsTaken) {
    for (const auto& [side, most] : {std::pair{OutsideDimension, 100.0}, {MeanDimension, 200.0}}) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, 1);
        window->settings.InOutMean = side;
        window->settings.Thickness = most;
        EXPECT_EQ(window->BuildFitting(), Passed);
        window->settings.Thickness = most + 0.1;
        EXPECT_EQ(window->BuildFitting(), Refused);
    }
}

TEST(RightCylinderSizes, ThicknessMovesTheRadiusByHalf) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 3);
    window->settings.Thickness = 6;
    EXPECT_EQ(Built<CRightCylinder>(*window).BaseRad, 100);
    window->settings.InOutMean = InsideDimension;
    EXPECT_EQ(Built<CRightCylinder>(*window).BaseRad, 103);
    // The two heights stand on the mean line.
    EXPECT_DOUBLE_EQ(Built<CRightCylinder>(*window).CPAngle1, -std::atan(100.0 / 206));
    window->settings.InOutMean = OutsideDimension;
    EXPECT_EQ(Built<CRightCylinder>(*window).BaseRad, 97);
}

TEST(RightCylinderSizes, ComeFromTheBoxesOfTheType) {
    TestShell shell;
    const auto square = shell.OpenSample(Category, 1);
    EXPECT_EQ(Built<CRightCylinder>(*square).CPHeight1, 300);
    const auto tilted = shell.OpenSample(Category, 2);
    EXPECT_DOUBLE_EQ(Built<CRightCylinder>(*tilted).CPAngle1, -DegToRad(30));
    const auto heights = shell.OpenSample(Category, 3);
    EXPECT_EQ(Built<CRightCylinder>(*heights).CPHeight1, 300);
    EXPECT_DOUBLE_EQ(Built<CRightCylinder>(*heights).CPAngle1, -std::atan(0.5));
    const auto roof = shell.OpenSample(Category, 4);
    EXPECT_DOUBLE_EQ(Built<CRightCylinder>(*roof).CPAngle1, DegToRad(30));
    EXPECT_DOUBLE_EQ(Built<CRightCylinder>(*roof).CPAngle3, DegToRad(40));
    const auto ends = shell.OpenSample(Category, 5);
    EXPECT_DOUBLE_EQ(Built<CRightCylinder>(*ends).CPAngle1, -DegToRad(20));
    EXPECT_DOUBLE_EQ(Built<CRightCylinder>(*ends).CPAngle2, -DegToRad(15));
    EXPECT_DOUBLE_EQ(Built<CRightCylinder>(*ends).Rotation, DegToRad(60));
    const auto offset = shell.OpenSample(Category, 6);
    EXPECT_DOUBLE_EQ(Built<CRightCylinder>(*offset).CPAngle1, DegToRad(30));
    EXPECT_DOUBLE_EQ(Built<CRightCylinder>(*offset).CPAngle3, DegToRad(40));
    EXPECT_EQ(Built<CRightCylinder>(*offset).Offset, 30);
    EXPECT_EQ(Built<CRightCylinder>(*offset).inputs.Dtype, RoofTop);
}

TEST(RightCylinderSizes, HeightOneIsOnTheSideAwayFromTheSeam) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 3);
    Built<CRightCylinder>(*window);
    window->fitting->ConstructModel();
    const C3DPoints& top = *window->fitting->Results().ModelSurface.List1;
    EXPECT_NEAR(top.Item(1).z, 250, 1e-9);
    EXPECT_NEAR(top.Item(25).z, 350, 1e-9);  // 24 rule lines, half way round
}

TEST(RightCylinderSizes, WhatATypeLacksIsZero) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 6);
    Built<CRightCylinder>(*window);
    auto& pipe = window->fitting->As<CRightCylinder>();
    pipe.CPAngle2 = pipe.Rotation = pipe.CPHeight2 = 7;
    EXPECT_EQ(Built<CRightCylinder>(*window).CPAngle2, 0);
    EXPECT_EQ(pipe.Rotation, 0);
    EXPECT_EQ(pipe.CPHeight2, 0);
    window->dtype = 0;
    TypeBoxes(*window, {{0, "200"}, {1, "300"}});
    EXPECT_EQ(Built<CRightCylinder>(*window).CPAngle1, 0);
    EXPECT_EQ(pipe.CPAngle3, 0);
    EXPECT_EQ(pipe.Offset, 0);
}

TEST(RightCylinderSizes, TemplateComesFromTheSettings) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->settings.Thickness = 5;
    window->settings.TemplateType = 1;
    const CRightCylinder& pipe = Built<CRightCylinder>(*window);
    EXPECT_EQ(pipe.Thickness, 5);
    EXPECT_EQ(pipe.TemplateType, 1);
}

TEST(RightCylinderSeam, IsHeldAtZeroForRoofs) {
    TestShell shell;
    const auto window = shell.Open(Category);
    for (const int type : {2, 3, 4, 5, 6}) {
        window->settings.JoinAngle = 30;
        window->ClickPoint(0);
        ASSERT_EQ(window->dtype, type - 1);
        const bool roof = type == 4 || type == 6;
        EXPECT_EQ(window->settings.JoinAngleDisable, roof) << type;
        EXPECT_EQ(window->settings.JoinAngle, roof ? 0 : 30) << type;
    }
}

TEST(RightCylinderSeam, ALoadedAngleDoesNotPassARoof) {
    for (const int type : {4, 6}) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, type);
        window->settings.JoinAngle = 30;
        window->settings.JoinAngleDisable = false;
        EXPECT_EQ(window->BuildFitting(), Passed);
        EXPECT_EQ(window->settings.JoinAngle, 0);
        EXPECT_TRUE(window->settings.JoinAngleDisable);
    }
    TestShell shell;
    const auto plain = shell.OpenSample(Category, 5);
    plain->settings.JoinAngle = 30;
    EXPECT_EQ(plain->BuildFitting(), Passed);
    EXPECT_EQ(plain->settings.JoinAngle, 30);
}

TEST(RightCylinderNumbers, BoxesOfAllTypesMustHoldOne) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->controls.txtParameter[21].text = "";
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectNotANumber(shell.ui, *window, 21);
}

TEST(RightCylinderTextBlock, TellsTheSizesAsTyped) {
    ExpectTextBlocks(Category,
                     {{1, {"Base diameter = 200", "Cutting plane height = 300"}},
                      {2, {"Base diameter = 200", "Cutting plane height = 300", "Cutting plane angle = 30"}},
                      {3, {"Base diameter = 200", "Height 1 = 350", "Height 2  = 250"}},
                      {4,
                       {"Base diameter = 200", "Cutting plane height = 300", "Cutting plane angle 1 = 30",
                        "Cutting plane angle 2 = 40"}},
                      {5,
                       {"Base diameter = 200", "Cutting plane height = 220", "Cutting plane angle 1 = 20",
                        "Cutting plane angle 2 = 15", "Rotation of base = 60"}},
                      {6,
                       {"Base diameter = 200", "Cutting plane height = 300", "Cutting plane angle 1 = 30",
                        "Cutting plane angle 2 = 40", "Offset = 30"}}});
}

}  // namespace
}  // namespace korvet
