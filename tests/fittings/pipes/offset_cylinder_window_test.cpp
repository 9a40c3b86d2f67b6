// The window of the offset cylinder: how it starts, every limit in its place, the sizes that it hands on,
// text lines, saved files. The sample pipes have a diameter of 220 and of 240.
#include <gtest/gtest.h>

#include <cmath>

#include "fittings/pipes/round_to_round.h"
#include "tests/support/refusals.h"
#include "tests/support/saved_fittings.h"
#include "tests/support/text_blocks.h"
#include "tests/support/window_start.h"
#include "window/views.h"

namespace korvet::offset_cylinder_window_test {
namespace {

constexpr const char* Category = "Offset Cylinder";

TEST(OffsetCylinderWindow, StartsAsAnOffsetCylinderDoes) {
    ExpectStart(Category,
                {.helpContextId = 2250, .boxes = 6, .laps = AllLaps, .seamAngle = true, .halfPattern = true});
}

class OffsetCylinderRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(OffsetCylinderRefusals, NameTheBox) {
    ExpectRefused(Category, GetParam());
}

// The box that is refused later in the order is wrong too. A diameter is only asked for room.
INSTANTIATE_TEST_SUITE_P(ByOffset, OffsetCylinderRefusals,
                         testing::Values(Refusal{1, {{0, "-220"}, {1, "0"}}, NoRoom, 0},
                                         Refusal{1, {{1, "0"}}, AboveZero, 1},
                                         Refusal{1, {{0, "0"}, {1, "-1"}}, AboveZero, 1}));

INSTANTIATE_TEST_SUITE_P(ByAngle, OffsetCylinderRefusals,
                         testing::Values(Refusal{2, {{3, "-240"}, {5, "0"}}, NoRoom, 3},
                                         Refusal{2, {{5, "0"}, {4, "0"}}, AboveZero, 5},
                                         Refusal{2, {{4, "0"}}, AboveZero, 4},
                                         Refusal{2, {{4, "-60"}}, AboveZero, 4},
                                         Refusal{2, {{4, "180"}}, LessThan + "180", 4}));

TEST(OffsetCylinderLimits, WallMustFitIntoThePipe) {
    ExpectRoomUpTo(110, Category, 1, 0, {{1, "0"}});
    ExpectRoomUpTo(120, Category, 2, 3, {{5, "0"}});
}

TEST(OffsetCylinderLimits, OffsetMayGoEitherWay) {
    ExpectMade(Category,
               {{1, {{2, "0"}}}, {1, {{2, "-130"}}}, {1, {{2, "900"}}}, {2, {{4, "90"}}}, {2, {{4, "150"}}}});
}

TEST(OffsetCylinderLimits, ADiameterOfZeroIsNoPipe) {
    for (const auto& [type, diameter] : {std::pair{1, 0}, {2, 3}}) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, type);
        TypeBoxes(*window, {{diameter, "0"}});
        window->ClickView(PatternButton);
        ExpectNotMade(shell.ui, *window, "a pipe with a diameter of 0 has no wall");
        // The wall of an inside diameter of 0 is a pipe as thick as its wall.
        window->settings.Thickness = 5;
        window->settings.InOutMean = InsideDimension;
        EXPECT_EQ(Built<CRoundToRound>(*window).BaseRad, 2.5);
    }
}

TEST(OffsetCylinderSizes, AreThoseOfEqualCircles) {
    TestShell shell;
    const auto offset = shell.OpenSample(Category, 1);
    offset->settings.Thickness = 6;
    offset->settings.InOutMean = InsideDimension;
    const CRoundToRound& pipe = Built<CRoundToRound>(*offset);
    EXPECT_EQ(pipe.BaseRad, 113);
    EXPECT_EQ(pipe.TopRad, 113);
    EXPECT_EQ(pipe.Height, 300);
    EXPECT_EQ(pipe.TopOffsetX, 130);
    EXPECT_EQ(pipe.TopOffsetY, 0);
    EXPECT_EQ(pipe.TopTiltY, 0);
}

// 60 degrees over a length of 350: half of it along, and the height of the triangle with equal sides.
TEST(OffsetCylinderSizes, ComeFromAngleAndLength) {
    TestShell shell;
    const auto angle = shell.OpenSample(Category, 2);
    const CRoundToRound& pipe = Built<CRoundToRound>(*angle);
    EXPECT_EQ(pipe.BaseRad, 120);
    EXPECT_EQ(pipe.TopRad, 120);
    EXPECT_NEAR(pipe.TopOffsetX, 175, 1e-9);
    EXPECT_NEAR(pipe.Height, 175 * std::sqrt(3.0), 1e-9);
    TypeBoxes(*angle, {{4, "120"}});
    EXPECT_NEAR(Built<CRoundToRound>(*angle).TopOffsetX, -175, 1e-9);
    EXPECT_NEAR(Built<CRoundToRound>(*angle).Height, 175 * std::sqrt(3.0), 1e-9);
}

TEST(OffsetCylinderTextBlock, TellsTheSizesAsTyped) {
    ExpectTextBlocks(Category, {{1, {"Base diameter = 220", "Cutting plane height = 300", "Offset = 130"}},
                                {2, {"Base diameter = 240", "Length = 350", "Angle = 60"}}});
}

TEST(OffsetCylinderFiles, ReadBackToTheSameBytesAndSurfaces) {
    for (const int type : {1, 2}) {
        TestShell shell;
        const auto window = shell.OpenSample(Category, type);
        window->settings.Thickness = 2;
        window->settings.JoinAngle = 90;
        window->settings.HalfPattern = type == 1;
        ExpectFileKeepsEverything(shell, *window);
    }
}

}  // namespace
}  // namespace korvet::offset_cylinder_window_test
