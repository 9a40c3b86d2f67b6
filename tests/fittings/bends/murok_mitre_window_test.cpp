// The window of the Murok mitre: how it starts, every limit in its place, the sizes that it hands on, text
// lines.
#include <gtest/gtest.h>

#include "fittings/bends/murok_mitre.h"
#include "tests/support/refusals.h"
#include "tests/support/text_blocks.h"
#include "tests/support/window_start.h"

namespace korvet {
namespace {

constexpr const char* MurokMitre = "Murok Mitre";

TEST(MurokMitreWindow, StartsAsAMurokMitreDoes) {
    ExpectStart(MurokMitre, {.helpContextId = 0,
                             .boxes = 5,
                             .laps = NoLaps,
                             .pieces = true,
                             .seamAngle = true,
                             .halfPattern = true,
                             .kerf = true});
}

class MurokMitreRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(MurokMitreRefusals, NameTheBox) {
    ExpectRefused(MurokMitre, GetParam());
}

// The box that is refused later in the order is wrong too.
INSTANTIATE_TEST_SUITE_P(Sizes, MurokMitreRefusals,
                         testing::Values(Refusal{1, {{0, "0"}, {1, "0"}}, AboveZero, 0},
                                         Refusal{1, {{0, "-70"}, {1, "0"}}, AboveZero, 0},
                                         Refusal{1, {{1, "0"}, {2, "0"}}, AboveZero, 1},
                                         Refusal{1, {{1, "-180"}, {2, "0"}}, AboveZero, 1},
                                         Refusal{1, {{2, "0"}, {3, "-1"}}, AboveZero, 2},
                                         Refusal{1, {{3, "0"}, {4, "-1"}}, AboveZero, 3},
                                         Refusal{1, {{4, "0"}}, AboveZero, 4},
                                         Refusal{1, {{4, "-280"}}, AboveZero, 4}));

TEST(MurokMitreLimits, EverySizeAboveNothingIsAllowed) {
    for (const int box : {0, 1, 2, 3, 4}) {
        ExpectMade(MurokMitre, {{1, {{box, "0.001"}}}});
    }
}

TEST(MurokMitreLimits, WallMustFitIntoThePipe) {
    // The next size is wrong as well, but comes after.
    ExpectRoomUpTo(70, MurokMitre, 1, 0, {{1, "0"}});
}

/// An offset next to nothing: legs all but level, which run out of reach before they come to their free ends.
TEST(MurokMitreLimits, FreeEndsOutOfReachAreNotMade) {
    ExpectShapeless(MurokMitre, {1, {{4, "1e-6"}}, "the fitting is larger than a thousand million"});
}

TEST(MurokMitreSizes, AreThoseOfTheBoxes) {
    TestShell shell;
    const auto window = shell.OpenSample(MurokMitre, 1);
    window->settings.Thickness = 4;
    window->settings.InOutMean = InsideDimension;
    window->settings.TemplateType = 1;
    window->settings.KerfSpacing = 12.5;
    const auto& mitre = Built<CMurokMitre>(*window);
    EXPECT_EQ(mitre.BaseRad, 72);
    EXPECT_EQ(mitre.OffsetLength, 180);
    EXPECT_EQ(mitre.Length1, 200);
    EXPECT_EQ(mitre.Length2, 150);
    EXPECT_EQ(mitre.Offset, 280);
    EXPECT_EQ(mitre.Thickness, 4);
    EXPECT_EQ(mitre.TemplateType, 1);
    EXPECT_EQ(mitre.KerfSpacing, 12.5);
}

TEST(MurokMitreTextBlock, TellsTheSizesAsTyped) {
    TestShell shell;
    const auto window = shell.OpenSample(MurokMitre, 1);
    ExpectTextBlock(*window, {"Radius = 70", "Offset Length = 180", "Length 1 = 200", "Length 2 = 150",
                              "Offset Distance = 280"});
}

}  // namespace
}  // namespace korvet
