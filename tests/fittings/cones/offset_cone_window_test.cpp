// The window of the offset cone: how it starts, every limit in its place, the sizes that it hands on, text
// lines, saved files. The sample cones go from a diameter of 320 to 200 and from 360 to 220.
#include <gtest/gtest.h>

#include "fittings/cones/offset_cone.h"
#include "tests/support/refusals.h"
#include "tests/support/saved_fittings.h"
#include "tests/support/text_blocks.h"
#include "tests/support/window_start.h"
#include "window/views.h"

namespace korvet::offset_cone_window_test {
namespace {

constexpr const char* Category = "Offset Cone";
const std::string NotZero = "This dimension cannot be equal to 0";

TEST(OffsetConeWindow, StartsAsAnOffsetConeDoes) {
    ExpectStart(Category,
                {.helpContextId = 2220, .boxes = 7, .laps = AllLaps, .seamAngle = true, .halfPattern = true});
}

class OffsetConeRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(OffsetConeRefusals, NameTheBox) {
    ExpectRefused(Category, GetParam());
}

// The box that is refused later in the order is wrong too.
INSTANTIATE_TEST_SUITE_P(ByOffset, OffsetConeRefusals,
                         testing::Values(Refusal{1, {{0, "0"}, {1, "0"}}, AboveZero, 0},
                                         Refusal{1, {{1, "-200"}, {2, "0"}}, AboveZero, 1},
                                         Refusal{1, {{2, "0"}, {3, "0"}}, NotZero, 2},
                                         Refusal{1, {{3, "0"}, {1, "400"}}, NotZero, 3},
                                         Refusal{1, {{1, "320"}}, LessThan + "320", 1}));

INSTANTIATE_TEST_SUITE_P(Flush, OffsetConeRefusals,
                         testing::Values(Refusal{2, {{4, "-360"}, {5, "0"}}, AboveZero, 4},
                                         Refusal{2, {{5, "0"}, {6, "0"}}, AboveZero, 5},
                                         Refusal{2, {{6, "0"}, {5, "400"}}, NotZero, 6},
                                         Refusal{2, {{5, "360"}}, LessThan + "360", 5}));

TEST(OffsetConeLimits, WallMustFitIntoTheBaseAndThenIntoTheTop) {
    for (const auto& [type, base, top, radius] : {std::tuple{1, 0, 1, 100.0}, {2, 4, 5, 110.0}}) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, type);
        window->settings.InOutMean = OutsideDimension;
        window->settings.Thickness = radius;
        EXPECT_EQ(window->BuildFitting(), Passed);
        window->settings.Thickness = radius + 0.1;
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, NoRoom, top);
        shell.ui.messages.clear();
        // A top as wide as the base comes after the room for the wall.
        TypeBoxes(*window, {{base, "150"}, {top, "150"}});
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, NoRoom, base);
    }
}

TEST(OffsetConeLimits, HeightAndOffsetMayGoEitherWay) {
    ExpectMade(Category, {{1, {{2, "-210"}}},
                          {1, {{3, "-90"}}},
                          {1, {{3, "0.001"}}},
                          {1, {{1, "319.99"}}},
                          {1, {{2, "-0.5"}, {3, "10"}}},
                          {1, {{3, "500"}}},
                          {2, {{6, "-280"}}},
                          {2, {{5, "0.001"}}}});
}

TEST(OffsetConeLimits, SizesWithoutAShapeAreNotMade) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->settings.segs = 12;
    TypeBoxes(*window, {{0, "500"}, {1, "300"}, {2, "20"}, {3, "300"}});
    window->ClickView(PatternButton);
    ExpectNotMade(shell.ui, *window, "the triangles of the pattern do not close");
    // With finer steps they do.
    window->settings.segs = 48;
    window->ClickView(PatternButton);
    EXPECT_TRUE(window->hasModel);
    window->settings.segs = 1;
    window->ClickView(PatternButton);
    ExpectNotMade(shell.ui, *window, "with one fold line the pattern has no width");
    window->settings.segs = 24;
    TypeBoxes(*window, {{1, "499.9999999999"}});
    window->ClickView(PatternButton);
    ExpectNotMade(shell.ui, *window, "the fitting is larger than a thousand million");
}

// The apex is 320 / (320 - 200) times as far out as the top.
TEST(OffsetConeSizes, LeadToTheApex) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    const COffsetCone& cone = Built<COffsetCone>(*window);
    EXPECT_EQ(cone.BaseRad, 160);
    EXPECT_EQ(cone.CPHeight, 210);
    EXPECT_TRUE(Same(cone.ApexPt, {240, 0, 560, 0}));
    EXPECT_EQ(cone.inputs.Dtype, 0);
    TypeBoxes(*window, {{2, "-210"}, {3, "-90"}});
    EXPECT_TRUE(Same(Built<COffsetCone>(*window).ApexPt, {-240, 0, -560, 0}));
}

// Both radii grow by 4, so that the slope stays and the apex moves out with the wall: 164 / 60 times.
TEST(OffsetConeSizes, ThicknessMovesTheApex) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->settings.Thickness = 8;
    window->settings.InOutMean = InsideDimension;
    EXPECT_EQ(Built<COffsetCone>(*window).BaseRad, 164);
    EXPECT_TRUE(Same(Built<COffsetCone>(*window).ApexPt, {246, 0, 574, 0}));
    window->settings.InOutMean = OutsideDimension;
    EXPECT_EQ(Built<COffsetCone>(*window).BaseRad, 156);
    EXPECT_TRUE(Same(Built<COffsetCone>(*window).ApexPt, {234, 0, 546, 0}));
}

// The top is 70 off the middle, the difference of the radii: the apex stands over the edge of the base.
TEST(OffsetConeSizes, OfTheSecondTypeMakeOneSideUpright) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 2);
    const COffsetCone& cone = Built<COffsetCone>(*window);
    EXPECT_EQ(cone.BaseRad, 180);
    EXPECT_EQ(cone.CPHeight, 280);
    EXPECT_TRUE(Same(cone.ApexPt, {180, 0, 720, 0}));
    EXPECT_EQ(cone.inputs.Dtype, 1);
    window->settings.Thickness = 8;
    window->settings.InOutMean = InsideDimension;
    EXPECT_TRUE(Same(Built<COffsetCone>(*window).ApexPt, {184, 0, 736, 0}));
    window->fitting->ConstructModel();
    const CRuleSurf& model = window->fitting->Results().ModelSurface;
    EXPECT_NEAR(model.List1->Item(1).x, 184, 1e-9);
    EXPECT_NEAR(model.List2->Item(1).x, 184, 1e-9);
}

TEST(OffsetConeWarnings, TopLapSpeaksWithoutAJoinToo) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->settings.LapSize0 = 360;
    window->ClickView(PatternButton);
    EXPECT_TRUE(window->hasModel);
    ASSERT_EQ(shell.ui.Texts(), std::vector<std::string>{"Top lap is too large"});
    EXPECT_EQ(shell.ui.messages[0].title, "Korvet Development");
}

TEST(OffsetConeTextBlock, TellsTheSizesAsTyped) {
    ExpectTextBlocks(
        Category,
        {{1, {"Base diameter = 320", "Top diameter = 200", "Cutting plane height = 210", "Offset = 90"}},
         {2, {"Base diameter = 360", "Top diameter = 220", "Cutting plane height = 280"}}});
}

TEST(OffsetConeFiles, ReadBackToTheSameBytesAndSurfaces) {
    for (const int type : {1, 2}) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, type);
        window->settings.Thickness = 2;
        window->settings.JoinAngle = 30;
        window->settings.HalfPattern = type == 2;
        window->settings.JoinType = 1;
        window->settings.LapSize1 = 15;
        ExpectFileKeepsEverything(shell, *window);
    }
}

}  // namespace
}  // namespace korvet::offset_cone_window_test
