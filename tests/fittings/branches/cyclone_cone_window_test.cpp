// The window of the cyclone on a cone: how it starts, every limit in its place, the sizes that it hands on,
// and where the pipe comes to stand. The sample is a pipe of 160, 150 down in a cone from 640 to 240 over
// 700: its wall leans by atan(2 / 7).
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <tuple>

#include "fittings/branches/pipe_to_cone.h"
#include "tests/support/near.h"
#include "tests/support/refusals.h"
#include "tests/support/text_blocks.h"
#include "window/views.h"

namespace korvet::cyclone_cone_window_test {
namespace {

constexpr const char* Category = "Cyclone (Cone)";
constexpr double ApexHeight = 1120;  // 700 * 320 / 200

const double CosTheta = 7 / std::sqrt(53.0);

TEST(CycloneConeWindow, StartsAsACycloneDoes) {
    TestShell shell;
    const auto window = shell.Open(Category);
    EXPECT_EQ(window->Row().helpContextId, 2380);
    EXPECT_EQ(window->miscellaneous, 1);
    EXPECT_TRUE(window->Table().multiple);
    EXPECT_EQ(window->Table().pages.size(), 1U);
    EXPECT_EQ(window->settings.LapEnable, SeamLapOnly);
    EXPECT_TRUE(window->settings.JoinAngleDisable);
    EXPECT_FALSE(window->settings.HalfPatternDisable);
    const OptionGroup& patterns = window->controls.options.optPatternSelect;
    EXPECT_EQ(patterns.captions, (std::vector<std::string>{"Cone", "Pipe"}));
    EXPECT_FALSE(patterns.selected);
    EXPECT_EQ(window->controls.txtParameter.size(), 6U);
}

class CycloneConeRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(CycloneConeRefusals, NameTheBox) {
    ExpectRefused(Category, GetParam());
}

// The box that is refused later in the order is wrong too.
INSTANTIATE_TEST_SUITE_P(Sizes, CycloneConeRefusals,
                         testing::Values(Refusal{1, {{0, "0"}, {1, "0"}}, AboveZero, 0},
                                         Refusal{1, {{1, "-1"}, {2, "0"}}, AboveZero, 1},
                                         Refusal{1, {{2, "0"}, {1, "640"}}, AboveZero, 2},
                                         Refusal{1, {{1, "640"}, {5, "1"}}, LessThan + "640", 1},
                                         Refusal{1, {{5, "79.9"}, {3, "1"}}, AtLeast + "80", 5},
                                         Refusal{1, {{3, "229.9"}, {4, "1"}}, AtLeast + "230", 3},
                                         Refusal{1, {{3, "0"}, {4, "1"}}, AtLeast + "230", 3},
                                         Refusal{1, {{4, "319.9"}}, AtLeast + "320", 4}));

TEST(CycloneConeLimits, TheLimitsThemselvesAreAllowed) {
    ExpectMade(Category, {{1, {{5, "80"}}},
                          {1, {{3, "230"}}},
                          {1, {{4, "320"}}},
                          {1, {{1, "639.999"}}},
                          {1, {{5, "620"}, {2, "60"}}}});
}

TEST(CycloneConeLimits, MaterialMustFitIntoThePartWhosePatternIsMade) {
    const std::vector<std::tuple<std::size_t, BoxTexts, int>> cases = {
        {0, {{0, "5"}, {1, "4"}}, 0}, {0, {{1, "10.9"}}, 1}, {1, {{2, "11.9"}}, 2}};
    for (const auto& [pattern, boxes, box] : cases) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, 1);
        window->settings.InOutMean = OutsideDimension;
        window->settings.Thickness = 6;
        TypeBoxes(*window, boxes);
        TypeBoxes(*window, {{5, "1"}});  // wrong as well, but comes after
        window->SelectPattern(pattern);
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, NoRoom, box);
    }
}

/// The pipe leads to the other side, and turned over to the one where it is drawn.
TEST(CycloneConeSizes, AreThoseOfThePartsTurnedOver) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    const CPipeToCone& cyclone = Built<CPipeToCone>(*window);
    EXPECT_EQ(cyclone.inputs.Dtype, 0);
    EXPECT_EQ(cyclone.BaseRad, 320);
    EXPECT_DOUBLE_EQ(std::tan(cyclone.ConeAngle), 2.0 / 7);
    EXPECT_EQ(cyclone.CPHeight1, 700);
    EXPECT_EQ(cyclone.PipeRad, 80);
    EXPECT_EQ(cyclone.PipeLength, -480);
    EXPECT_EQ(cyclone.PipeAngle, 0);
    EXPECT_EQ(cyclone.CenterDistance, 150);
    EXPECT_TRUE(cyclone.Invert);
    // The wall stands 970 / 3.5 off the axis there.
    EXPECT_NEAR(cyclone.Offset, 970 / 3.5 - 80 / CosTheta, Near);
}

/// The height of the apex stays that of the typed cone: inside sizes leave a little air between pipe and
/// wall.
TEST(CycloneConeSizes, OffsetOfThePlateKeepsTheTypedApex) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->settings.Thickness = 6;
    for (const auto& [side, sign] : {std::pair{InsideDimension, 1.0}, {OutsideDimension, -1.0}}) {
        window->settings.InOutMean = side;
        window->SelectPattern(0);
        const CPipeToCone& cyclone = Built<CPipeToCone>(*window);
        const double R = 320 + sign * 3 * CosTheta;
        EXPECT_NEAR(cyclone.BaseRad, R, Near);
        EXPECT_EQ(cyclone.PipeRad, 80);
        EXPECT_NEAR(cyclone.Offset, (ApexHeight - 150) * R / ApexHeight - 80 / CosTheta, Near);
        const double touching = R - 150 / 3.5 - 80 / CosTheta;
        EXPECT_LT((cyclone.Offset - touching) * sign, 0);
        EXPECT_NEAR(cyclone.Offset, touching, 0.4);
    }
}

/// Told at right angles from the wall, in the plane of the cone's axis in which the pipe starts.
TEST(CycloneConeSizes, PipeTouchesTheWall) {
    for (const auto& [pattern, thickness] : {std::pair{0U, 0.0}, {1U, 0.0}, {1U, 6.0}}) {
        for (const std::int16_t side : {MeanDimension, InsideDimension, OutsideDimension}) {
            for (const BoxTexts& boxes : {BoxTexts{}, {{5, "500"}}, {{1, "600"}}, {{2, "35"}, {3, "190"}}}) {
                TestShell shell;
                const auto window = shell.OpenSample(Category, 1);
                window->settings.Thickness = thickness;
                window->settings.InOutMean = side;
                window->SelectPattern(pattern);
                TypeBoxes(*window, boxes);
                window->ClickView(0);
                EXPECT_TRUE(window->hasModel);
                const CPipeToCone& cyclone = window->fitting->As<CPipeToCone>();
                const C3DPoint& top = cyclone.results.ModelSurfaceList.Item(1).List2->Item(1);
                const C3DPoint& bottom = cyclone.results.ModelSurfaceList.Item(1).List1->Item(1);
                const double run = std::hypot(bottom.x, bottom.y) - std::hypot(top.x, top.y);
                const double fall = bottom.z - top.z;
                // Of the wall through (radius, 0) with this slope, the distance of (Offset, -CenterDistance).
                const double distance = ((std::hypot(top.x, top.y) - cyclone.Offset) * fall -
                                         (top.z + cyclone.CenterDistance) * run) /
                                        std::hypot(run, fall);
                EXPECT_NEAR(std::fabs(distance), cyclone.PipeRad, Near);
            }
        }
    }
}

TEST(CycloneConeModel, StandsOnItsNarrowEnd) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->ClickView(0);
    const CRuleSurfs& model = window->fitting->Results().ModelSurfaceList;
    ASSERT_EQ(model.Count(), 2U);
    for (const C3DPoint& point : *model.Item(1).List2) {
        EXPECT_NEAR(point.z, 0, 1e-9);
        EXPECT_NEAR(std::hypot(point.x, point.y), 320, 1e-9);
    }
    for (const C3DPoint& point : *model.Item(1).List1) {
        EXPECT_NEAR(point.z, -700, 1e-9);
        EXPECT_NEAR(std::hypot(point.x, point.y), 120, 1e-9);
    }
    for (const C3DPoint& point : *model.Item(2).List1) {
        EXPECT_NEAR(point.x, 480, 1e-9);
    }
    for (const C3DPoint& point : *model.Item(2).List2) {
        EXPECT_GT(point.x, 0) << "the edge lies on the side to which the pipe leads";
    }
}

/// The plate of the cone by outside sizes leaves the pipe a hair beside the typed cone: where a rule comes to
/// stand just there, it has no start in the cone.
TEST(CycloneConeLimits, ARuleThatStartsOutsideTheConeIsNotMade) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->settings.Thickness = 6;
    window->settings.InOutMean = OutsideDimension;
    window->settings.segs = 100;
    window->SelectPattern(0);
    window->ClickView(PatternButton);
    ExpectNotMade(shell.ui, *window, "the pipe starts outside the cone");
    window->SelectPattern(1);
    window->ClickView(PatternButton);
    EXPECT_TRUE(window->hasModel);
}

TEST(CycloneConeHalfPatterns, AreRefused) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->settings.HalfPattern = true;
    EXPECT_EQ(window->BuildFitting(), Passed);
    EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>{"Half pattern not applicable to this item"});
    EXPECT_FALSE(window->settings.HalfPattern);
    EXPECT_EQ(window->labels->Last().LabelString, "Cyclone (Cone)  Full pattern  21 Nov 2026");
}

TEST(CycloneConeChoice, APatternIsAskedForInAPatternView) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->ClickView(PatternButton);
    ExpectUserError(shell.ui, *window, "A pattern must be selected");
}

TEST(CycloneConeTextBlock, TellsTheSizesAsTyped) {
    TestShell shell;
    ExpectTextBlock(
        *shell.OpenSample(Category, 1),
        {"Top diameter = 640", "Base diameter = 240", "Branch pipe diameter = 160",
         "Branch pipe length = 480", "Distance to intersection = 150", "Cutting plane height = 700"});
}

}  // namespace
}  // namespace korvet::cyclone_cone_window_test
