// Both cone windows: every check in its place, derived sizes, text lines. Limits are worked out by hand
// beside them.
#include <gtest/gtest.h>

#include <cmath>

#include "core/math_module.h"
#include "fittings/cones/right_cone.h"
#include "tests/support/refusals.h"

namespace korvet {
namespace {

class RightCone1Refusals : public testing::TestWithParam<Refusal> {};
TEST_P(RightCone1Refusals, NamesTheBox) {
    ExpectRefused("Right Cone", GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Checks, RightCone1Refusals,
    testing::Values(Refusal{1, {{0, "0"}, {1, "0"}}, AboveZero, 0},
                    Refusal{1, {{1, "-1"}, {2, "0"}}, AboveZero, 1}, Refusal{1, {{2, "0"}}, AboveZero, 2},
                    Refusal{1, {{1, "300"}}, LessThan + "300", 1}, Refusal{2, {{3, "0"}}, AboveZero, 3},
                    Refusal{2, {{4, "0"}}, AboveZero, 4}, Refusal{2, {{5, "0"}, {4, "400"}}, AboveZero, 5},
                    Refusal{2, {{4, "300.01"}}, LessThan + "300", 4}, Refusal{3, {{6, "0"}}, AboveZero, 6},
                    Refusal{3, {{7, "0"}, {8, "0"}}, AboveZero, 7},
                    // The diameters are compared before the angle is asked for.
                    Refusal{3, {{7, "300"}, {8, "0"}}, LessThan + "300", 7},
                    Refusal{3, {{8, "0"}}, AboveZero, 8}, Refusal{3, {{8, "-5"}}, AboveZero, 8},
                    Refusal{3, {{8, "180"}}, LessThan + "180", 8},
                    Refusal{3, {{8, "360"}}, LessThan + "180", 8}));

class RightCone2Refusals : public testing::TestWithParam<Refusal> {};
TEST_P(RightCone2Refusals, NamesTheBox) {
    ExpectRefused("Truncated Right Cone", GetParam());
}

INSTANTIATE_TEST_SUITE_P(PlaneByAngle, RightCone2Refusals,
                         testing::Values(Refusal{1, {{0, "0"}}, AboveZero, 0},
                                         Refusal{1, {{1, "0"}}, AboveZero, 1},
                                         Refusal{1, {{2, "0"}}, AboveZero, 2},
                                         Refusal{1, {{2, "180"}}, LessThan + "180", 2},
                                         // H = 150 / tan 25 = 321.676
                                         Refusal{1, {{1, "322"}}, LessThan + "321.7", 1},
                                         // m = atan(150 / 150)
                                         Refusal{1, {{3, "-45.01"}}, GreaterThan + "-45", 3},
                                         Refusal{1, {{3, "45.01"}}, LessThan + "45", 3}));

INSTANTIATE_TEST_SUITE_P(PlaneByApex, RightCone2Refusals,
                         testing::Values(Refusal{2, {{4, "0"}}, AboveZero, 4},
                                         Refusal{2, {{6, "0"}, {7, "0"}}, AboveZero, 6},
                                         Refusal{2, {{7, "0"}}, AboveZero, 7},
                                         Refusal{2, {{7, "400.1"}}, LessThan + "400", 7},
                                         // m = atan(200 / 150) = 53.130
                                         Refusal{2, {{5, "-53.2"}}, GreaterThan + "-53.1", 5},
                                         Refusal{2, {{5, "53.2"}}, LessThan + "53.1", 5}));

INSTANTIATE_TEST_SUITE_P(TwoPlanes, RightCone2Refusals,
                         testing::Values(Refusal{3, {{8, "0"}}, AboveZero, 8},
                                         Refusal{3, {{9, "0"}, {11, "0"}}, AboveZero, 9},
                                         Refusal{3, {{11, "0"}, {13, "0"}}, AboveZero, 11},
                                         Refusal{3, {{13, "0"}}, AboveZero, 13},
                                         Refusal{3, {{9, "600.1"}}, LessThan + "600", 9},
                                         Refusal{3, {{11, "600.1"}}, LessThan + "600", 11},
                                         // m1 = atan(320 / 200) = 57.995, m2 = atan(80 / 200) = 21.801
                                         Refusal{3, {{12, "58"}}, LessThan + "58", 12},
                                         Refusal{3, {{12, "-58"}}, GreaterThan + "-58", 12},
                                         Refusal{3, {{10, "21.9"}}, LessThan + "21.8", 10},
                                         Refusal{3, {{10, "-21.9"}}, GreaterThan + "-21.8", 10}));

INSTANTIATE_TEST_SUITE_P(
    UpperRoof, RightCone2Refusals,
    testing::Values(Refusal{4, {{19, "0"}, {18, "0"}, {17, "0"}}, AboveZero, 19},
                    Refusal{4, {{18, "0"}, {17, "0"}}, AboveZero, 18}, Refusal{4, {{17, "0"}}, AboveZero, 17},
                    Refusal{4, {{18, "600.1"}}, LessThan + "600", 18},
                    // rc = (600 - 320) 200 / 600 = 93.333
                    Refusal{4, {{15, "-93.4"}}, AtLeast + "-93.3", 15},
                    Refusal{4, {{15, "93.4"}}, LessThan + "93.3", 15},
                    // atan(320 / 215) = 56.103, atan(280 / 15) = 86.934, atan(320 / 185) = 59.966
                    Refusal{4, {{14, "56.2"}}, LessThan + "56.1", 14},
                    Refusal{4, {{14, "-87"}}, GreaterThan + "-86.9", 14},
                    Refusal{4, {{16, "60"}}, LessThan + "60", 16},
                    Refusal{4, {{16, "-90"}}, GreaterThan + "-90", 16},
                    // With the ridge on the other side the limits change places.
                    Refusal{4, {{15, "-15"}, {14, "-90"}}, GreaterThan + "-90", 14},
                    Refusal{4, {{15, "-15"}, {16, "-87"}}, GreaterThan + "-86.9", 16}));

INSTANTIATE_TEST_SUITE_P(
    LowerRoof, RightCone2Refusals,
    testing::Values(
        Refusal{5, {{20, "0"}}, AboveZero, 20}, Refusal{5, {{21, "0"}}, AboveZero, 21},
        Refusal{5, {{22, "0"}, {23, "0"}}, AboveZero, 22}, Refusal{5, {{23, "0"}}, AboveZero, 23},
        Refusal{5, {{21, "400"}}, LessThan + "400", 21}, Refusal{5, {{23, "350"}}, LessThan + "350", 23},
        // H = 350 200 / 120 = 583.333, rc = (583.333 - 120) 200 / 583.333 = 158.857
        Refusal{5, {{24, "-158.9"}}, GreaterThan + "-158.9", 24},
        Refusal{5, {{24, "158.9"}}, LessThan + "158.9", 24},
        // 90 - atan(60 / 230) = 75.379, 90 - atan(200 / 583.333) = 71.075, 90 - atan(100 / 230) = 66.501
        Refusal{5, {{26, "75.4"}, {25, "80"}}, LessThan + "75.4", 26},
        Refusal{5, {{26, "-71.1"}}, GreaterThan + "-71.1", 26},
        Refusal{5, {{25, "66.6"}}, LessThan + "66.5", 25},
        Refusal{5, {{25, "-71.1"}}, GreaterThan + "-71.1", 25},
        // With the ridge outside the top circle the steep limit is 90.
        Refusal{5, {{24, "80"}, {26, "90"}}, LessThan + "90", 26},
        Refusal{5, {{24, "-80"}, {25, "90"}}, LessThan + "90", 25}));

/// Outside dimensions with a wall so thick that nothing is left inside it.
void ExpectNoRoom(const std::string& category, int type, double thickness, int box) {
    TestShell shell;
    const auto window = shell.OpenSample(category, type);
    window->settings.Thickness = thickness;
    window->settings.InOutMean = OutsideDimension;
    EXPECT_EQ(window->BuildFitting(), Refused);
    SCOPED_TRACE(category + " " + std::to_string(type));
    ExpectUserError(shell.ui, *window, NoRoom, box);
}

TEST(ConeThickness, LeavesRoomInEveryDiameter) {
    for (const auto& [type, box] : {std::pair{1, 0}, {2, 3}, {3, 6}}) {
        ExpectNoRoom("Right Cone", type, 200, box);
        ExpectNoRoom("Right Cone", type, 100, box + 1);
    }
    for (const auto& [type, box] : {std::pair{1, 0}, {2, 4}, {3, 8}, {4, 19}, {5, 20}}) {
        ExpectNoRoom("Truncated Right Cone", type, 300, box);
    }
    ExpectNoRoom("Truncated Right Cone", 5, 100, 21);
}

TEST(RightCone1Sizes, AllTypesOfOneConeAgree) {
    // 300 to 120 over 250: the apex lies at 250 300 / 180 = 416.667 and the included angle is 2 atan(150 /
    // 416.667).
    const double halfAngle = std::atan(150 / (250 * 300.0 / 180));
    const std::map<int, BoxTexts> boxes = {
        {1, {{0, "300"}, {1, "120"}, {2, "416.666666666667"}}},
        {2, {{3, "300"}, {4, "120"}, {5, "250"}}},
        {3, {{6, "300"}, {7, "120"}, {8, std::to_string(RadToDeg(2 * halfAngle))}}}};
    for (const auto& [type, texts] : boxes) {
        TestShell shell;
        const auto window = shell.OpenSample("Right Cone", type);
        TypeBoxes(*window, texts);
        const CRightCone& cone = Built<CRightCone>(*window);
        EXPECT_NEAR(cone.BaseRad, 150, 1e-12);
        EXPECT_NEAR(cone.CPHeight1, 250, 1e-4);
        EXPECT_NEAR(cone.ConeAngle, halfAngle, 1e-7);
        EXPECT_EQ(cone.inputs.Dtype, type - 1);
    }
}

TEST(RightCone1Sizes, ThicknessMovesTheRadiiByTheSlopeOfTheWall) {
    TestShell shell;
    const auto window = shell.OpenSample("Right Cone", 1);
    window->settings.Thickness = 6;
    window->settings.InOutMean = InsideDimension;
    const double half = 3 * std::cos(std::atan(150.0 / 400));
    EXPECT_NEAR(Built<CRightCone>(*window).BaseRad, 150 + half, 1e-12);
    // The height of the cut is that of the typed cone.
    EXPECT_NEAR(Built<CRightCone>(*window).CPHeight1, 400 - 60.0 * 400 / 150, 1e-12);
    window->settings.InOutMean = OutsideDimension;
    EXPECT_NEAR(Built<CRightCone>(*window).BaseRad, 150 - half, 1e-12);
}

TEST(RightCone2Sizes, FirstTypeTakesTheWholeHalfThickness) {
    TestShell shell;
    const auto window = shell.OpenSample("Truncated Right Cone", 1);
    window->settings.Thickness = 6;
    window->settings.InOutMean = OutsideDimension;
    EXPECT_EQ(Built<CRightCone>(*window).BaseRad, 147);
}

TEST(RightCone2Sizes, LowerAnglesTurnTheirSign) {
    TestShell shell;
    const auto two = shell.OpenSample("Truncated Right Cone", 3);
    EXPECT_DOUBLE_EQ(Built<CRightCone>(*two).CPAngle2, -DegToRad(15));
    EXPECT_DOUBLE_EQ(Built<CRightCone>(*two).CPAngle1, DegToRad(20));
    const auto upper = shell.OpenSample("Truncated Right Cone", 4);
    EXPECT_DOUBLE_EQ(Built<CRightCone>(*upper).CPAngle3, -DegToRad(25));
    EXPECT_DOUBLE_EQ(Built<CRightCone>(*upper).CPAngle1, DegToRad(35));
    const auto lower = shell.OpenSample("Truncated Right Cone", 5);
    EXPECT_DOUBLE_EQ(Built<CRightCone>(*lower).CPAngle3, DegToRad(25));
    EXPECT_DOUBLE_EQ(Built<CRightCone>(*lower).CPAngle2, -DegToRad(30));
}

TEST(RightCone2Sizes, RidgeMayTouchTheConeOnTheFarSide) {
    TestShell shell;
    const auto window = shell.OpenSample("Truncated Right Cone", 4);
    // rc = (600 - 300) 200 / 600 = 100, exactly
    TypeBoxes(*window, {{18, "300"}, {15, "-100"}, {14, "0"}, {16, "0"}});
    EXPECT_EQ(window->BuildFitting(), Passed);
    TypeBoxes(*window, {{15, "100"}});
    EXPECT_EQ(window->BuildFitting(), Refused);
}

TEST(ConeSeam, IsHeldAtZeroForRoofs) {
    TestShell shell;
    const auto window = shell.OpenSample("Truncated Right Cone", 3);
    window->settings.JoinAngle = 30;
    window->ClickPoint(0);
    EXPECT_EQ(window->settings.JoinAngle, 0);
    EXPECT_TRUE(window->settings.JoinAngleDisable);
    window->ClickPoint(1);
    EXPECT_FALSE(window->settings.JoinAngleDisable);
}

TEST(ConeSeam, ALoadedAngleDoesNotPassARoof) {
    TestShell shell;
    const auto window = shell.OpenSample("Truncated Right Cone", 5);
    window->settings.JoinAngle = 30;
    window->settings.JoinAngleDisable = false;
    EXPECT_EQ(window->BuildFitting(), Passed);
    EXPECT_EQ(window->settings.JoinAngle, 0);
    EXPECT_TRUE(window->settings.JoinAngleDisable);
}

/// The build of a sample with a text in one of its boxes that is no number.
void ExpectAsksForNumber(const std::string& category, int type, int box, const std::string& text) {
    TestShell shell;
    const auto window = shell.OpenSample(category, type);
    window->controls.txtParameter.at(static_cast<std::size_t>(box)).text = text;
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectNotANumber(shell.ui, *window, box);
}

TEST(ConeNumbers, FirstWindowAsksOnlyForTheBoxesItNeeds) {
    TestShell shell;
    const auto window = shell.OpenSample("Right Cone", 2);
    window->controls.txtParameter[0].text = "abc";
    EXPECT_EQ(window->BuildFitting(), Passed);
    ExpectAsksForNumber("Right Cone", 2, 4, "abc");
}

TEST(ConeNumbers, FirstWindowAsksForTheAngleBeforeItComparesDiameters) {
    ExpectAsksForNumber("Right Cone", 3, 8, "-");
}

TEST(ConeNumbers, SecondWindowSweepsTheBoxesOfAllTypes) {
    ExpectAsksForNumber("Truncated Right Cone", 1, 26, "");
}

TEST(ConeTextBlock, TellsTheSizesAsTyped) {
    TestShell shell;
    const auto window = shell.OpenSample("Right Cone", 2);
    TypeBoxes(*window, {{3, " 300.50"}});
    window->comment1 = "Order 17";
    window->settings.Thickness = 1.5;
    window->settings.PositionString = "inside";
    window->settings.HalfPattern = true;
    ASSERT_EQ(window->BuildFitting(), Passed);
    EXPECT_EQ(TextBlock(*window),
              (std::vector<std::string>{"Order 17", "", "Base diameter =  300.50", "Top diameter = 120",
                                        "Cutting plane height = 250", "Thickness = 1.5",
                                        "Dimensions are based on the inside",
                                        "Right Cone  Half pattern  21 Nov 2026"}));
}

TEST(ConeTextBlock, HasTheLinesOfEachType) {
    const std::map<std::pair<std::string, int>, std::vector<std::string>> expected = {
        {{"Right Cone", 1}, {"Base diameter = 300", "Top diameter = 120", "Apex height = 400"}},
        {{"Right Cone", 3}, {"Base diameter = 300", "Top diameter = 120", "Cone angle = 60"}},
        // The two angles stand the other way round than in the boxes.
        {{"Truncated Right Cone", 1},
         {"Base diameter = 300", "Cone angle = 20", "Cutting plane angle = 50",
          "Cutting plane height = 150"}},
        {{"Truncated Right Cone", 2},
         {"Base diameter = 300", "Apex height = 400", "Cutting plane angle = 25",
          "Cutting plane height = 200"}},
        {{"Truncated Right Cone", 3},
         {"Base diameter = 400", "Apex height = 600", "Cutting plane angle 1 = 20",
          "Cutting plane angle 2 = 15", "Cutting plane height 1 = 320", "Cutting plane height 2 = 80"}},
        {{"Truncated Right Cone", 4},
         {"Base diameter = 400", "Apex height = 600", "Cutting plane angle 1 = 25",
          "Cutting plane angle 2 = 35", "Cutting plane height 1 = 320", "Offset = 15"}},
        {{"Truncated Right Cone", 5},
         {"Base diameter = 400", "Top diameter = 160", "Cutting plane angle 1 = 25",
          "Cutting plane angle 2 = 30", "Cutting plane height 1 = 350", "Cutting plane height 2 = 120",
          "Offset = 20"}}};
    for (const auto& [page, lines] : expected) {
        TestShell shell;
        const auto window = shell.OpenSample(page.first, page.second);
        ASSERT_EQ(window->BuildFitting(), Passed);
        const std::vector<std::string> block = TextBlock(*window);
        ASSERT_EQ(block.size(), lines.size() + 5);
        EXPECT_EQ(std::vector<std::string>(block.begin() + 2, block.end() - 3), lines);
        EXPECT_EQ(block.back(), page.first + "  Full pattern  21 Nov 2026");
    }
}

TEST(ConeWindows, StartAsTheirTablesSay) {
    TestShell shell;
    const auto first = shell.Open("Right Cone");
    EXPECT_EQ(first->dtype, 1);
    EXPECT_EQ(first->controls.lblDtype.caption, "Type 2");
    EXPECT_EQ(first->settings.LapEnable, AllLaps);
    EXPECT_FALSE(first->settings.JoinAngleDisable);
    EXPECT_EQ(first->controls.txtParameter.size(), 9U);
    const auto second = shell.Open("Truncated Right Cone");
    EXPECT_EQ(second->dtype, 0);
    EXPECT_EQ(second->controls.txtParameter.size(), 27U);
    EXPECT_EQ(second->controls.txtParameter[26].text, "0");
}

}  // namespace
}  // namespace korvet
