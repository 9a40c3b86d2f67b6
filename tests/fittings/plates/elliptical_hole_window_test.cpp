// The window of the elliptical hole: how it starts, its limit, the sizes that it hands on, text lines.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "fittings/plates/baffle.h"
#include "tests/support/refusals.h"
#include "tests/support/text_blocks.h"
#include "tests/support/window_start.h"
#include "window/views.h"

namespace korvet {
namespace {

constexpr const char* HoleCategory = "Elliptical Hole";

TEST(EllipticalHoleWindow, StartsAsAPlateDoes) {
    ExpectStart(HoleCategory, {.helpContextId = 2480, .boxes = 6, .laps = AllLaps, .halfPattern = true});
}

TEST(EllipticalHoleLimits, ThePipeNeedsADiameter) {
    for (const char* diameter : {"0", "-120"}) {
        ExpectRefused(HoleCategory, {1, {{0, diameter}, {1, "90"}}, AboveZero, 0});
    }
}

TEST(EllipticalHoleLimits, AnyOtherSizeIsTaken) {
    ExpectMade(HoleCategory, {{1, {{0, "0.001"}}},
                              {1, {{1, "0"}}},
                              {1, {{1, "-89"}}},
                              {1, {{1, "180"}}},
                              {1, {{2, "0"}, {3, "0"}, {4, "0"}, {5, "0"}}},
                              {1, {{2, "-50"}, {4, "-7"}}},
                              {1, {{0, "1000"}, {5, "2000"}}}});
}

class HolesWithoutAShape : public testing::TestWithParam<Shapeless> {};

TEST_P(HolesWithoutAShape, AreNotMade) {
    ExpectShapeless(HoleCategory, GetParam());
}

const std::string AlongThePipe =
    "a plate at 90 degrees stands along the pipe, which does not pass through it";

INSTANTIATE_TEST_SUITE_P(
    Sizes, HolesWithoutAShape,
    testing::Values(Shapeless{1, {{1, "90"}}, AlongThePipe}, Shapeless{1, {{1, "-270"}}, AlongThePipe},
                    Shapeless{
                        1, {{0, "5"}, {1, "89.9999999"}}, "the fitting is larger than a thousand million"},
                    Shapeless{1, {{3, "1.1e9"}}, "Plate length Y is above a thousand million"}));

/// Nothing is added to the diameter for the material. 380 high with the pipe 210 from below leaves 170 above.
TEST(EllipticalHoleSizes, AreThoseOfTheBoxes) {
    TestShell shell;
    const auto window = shell.OpenSample(HoleCategory, 1);
    window->settings.Thickness = 8;
    window->settings.InOutMean = InsideDimension;
    const CBaffle& plate = Built<CBaffle>(*window);
    EXPECT_EQ(plate.BaseRad, 60);
    EXPECT_NEAR(plate.CPAngle1, -55 * std::numbers::pi / 180, 1e-13);
    EXPECT_EQ(plate.LengthX, 300);
    EXPECT_EQ(plate.LengthY, 380);
    EXPECT_EQ(plate.CenterDistanceX, 140);
    EXPECT_EQ(plate.CenterDistanceY, 170);
}

TEST(EllipticalHoleSizes, DistancesAreThoseToTheCornerAtTheLeftAndBelow) {
    TestShell shell;
    const auto window = shell.OpenSample(HoleCategory, 1);
    window->ClickView(PatternButton);
    const CRuleSurf& pattern = window->fitting->Results().PatternSurface;
    EXPECT_EQ(pattern.List2->Item(1).x, -140);
    EXPECT_EQ(pattern.List2->Item(1).y, -210);
    EXPECT_EQ(pattern.List1->Item(2).x, 160);
    EXPECT_EQ(pattern.List1->Item(2).y, 170);
}

TEST(EllipticalHoleTextBlock, TellsPipeAndAngle) {
    ExpectTextBlocks(HoleCategory, {{1, {"Pipe diameter = 120", "Angle = 55"}}});
}

}  // namespace
}  // namespace korvet
