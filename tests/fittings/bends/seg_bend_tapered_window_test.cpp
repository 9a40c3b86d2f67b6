// The window of the tapered bend: how it starts, every limit in its place, the sizes that it hands on, text
// lines. The sample bends go from a diameter of 240 to 140 and from 280 to 200.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "core/constants.h"
#include "fittings/bends/seg_bend_tapered.h"
#include "tests/support/refusals.h"
#include "tests/support/text_blocks.h"
#include "tests/support/window_start.h"

namespace korvet::tapered_bend_window_test {
namespace {

constexpr const char* Category = "Tapered Bend";

TEST(TaperedBendWindow, StartsAsATaperedBendDoes) {
    ExpectStart(Category,
                {.helpContextId = 2340, .boxes = 9, .pieces = true, .halfPattern = true, .kerf = true});
}

class TaperedBendRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(TaperedBendRefusals, NameTheBox) {
    ExpectRefused(Category, GetParam());
}

// The box that is refused later in the order is wrong too.
INSTANTIATE_TEST_SUITE_P(Quarter, TaperedBendRefusals,
                         testing::Values(Refusal{1, {{0, "0"}, {1, "0"}}, AboveZero, 0},
                                         Refusal{1, {{1, "-140"}, {2, "1"}}, AboveZero, 1},
                                         Refusal{1, {{1, "240"}, {2, "1"}}, LessThan + "240", 1},
                                         Refusal{1, {{1, "240.1"}, {2, "1"}}, LessThan + "240", 1},
                                         Refusal{1, {{2, "119.9"}, {3, "1.5"}}, AtLeast + "120", 2},
                                         Refusal{1, {{2, "-320"}, {3, "1.5"}}, AtLeast + "120", 2},
                                         Refusal{1, {{3, "1.5"}}, WholeNumber, 3},
                                         Refusal{1, {{3, "1"}}, AtLeast + "2", 3}));

INSTANTIATE_TEST_SUITE_P(AnyAngle, TaperedBendRefusals,
                         testing::Values(Refusal{2, {{4, "-1"}, {5, "0"}}, AboveZero, 4},
                                         Refusal{2, {{5, "0"}, {6, "1"}}, AboveZero, 5},
                                         Refusal{2, {{5, "280"}, {6, "1"}}, LessThan + "280", 5},
                                         Refusal{2, {{6, "139.9"}, {7, "0"}}, AtLeast + "140", 6},
                                         Refusal{2, {{7, "0"}, {8, "1.5"}}, AboveZero, 7},
                                         Refusal{2, {{7, "-60"}, {8, "1.5"}}, AboveZero, 7},
                                         Refusal{2, {{8, "2.5"}}, WholeNumber, 8},
                                         Refusal{2, {{8, "1"}}, AtLeast + "2", 8},
                                         Refusal{2, {{8, "-4"}}, AtLeast + "2", 8}));

TEST(TaperedBendLimits, TheLimitsThemselvesAreAllowed) {
    const std::vector<std::pair<int, BoxTexts>> cases = {
        {1, {{1, "239.999"}}}, {1, {{1, "0.001"}}}, {1, {{2, "120"}}},   {1, {{3, "2"}}},
        {2, {{6, "140"}}},     {2, {{7, "0.1"}}},   {2, {{7, "539.9"}}}, {2, {{7, "179.9"}, {8, "2"}}}};
    ExpectMade(Category, cases);
}

TEST(TaperedBendLimits, WallMustFitIntoBothEnds) {
    // The half of the wall is as large as the mean radius where the wall is half the outside radius.
    const std::vector<std::tuple<int, int, double>> ends = {
        {1, 0, 120}, {1, 1, 70}, {2, 4, 140}, {2, 5, 100}};
    for (const auto& [type, box, thickness] : ends) {
        const bool top = box % 4 == 1;
        TestShell shell;
        const auto window = shell.OpenSample(Category, type);
        window->settings.InOutMean = OutsideDimension;
        if (!top) {  // as thick as the base, and then too large: but that is asked later
            TypeBoxes(*window, {{box + 1, std::to_string(4 * thickness)}});
        }
        window->settings.Thickness = thickness;
        EXPECT_EQ(window->BuildFitting(), top ? Passed : Refused);
        EXPECT_EQ(shell.ui.Texts(),
                  top ? std::vector<std::string>()
                      : std::vector<std::string>{LessThan + std::to_string(int(2 * thickness))});
        shell.ui.messages.clear();
        window->settings.Thickness = thickness + 0.1;
        EXPECT_EQ(window->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *window, NoRoom, box);
    }
}

TEST(TaperedBendLimits, BendRadiusIsHeldAgainstTheMeanRadius) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->settings.Thickness = 10;
    window->settings.InOutMean = InsideDimension;
    TypeBoxes(*window, {{2, "124"}});
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectUserError(shell.ui, *window, AtLeast + "125", 2);
}

class TaperedBendsWithoutAShape : public testing::TestWithParam<Shapeless> {};

TEST_P(TaperedBendsWithoutAShape, AreNotMade) {
    ExpectShapeless(Category, GetParam());
}

const std::string NoMitre = "no mitre turns a pipe by 180 degrees or more";

INSTANTIATE_TEST_SUITE_P(
    Sizes, TaperedBendsWithoutAShape,
    testing::Values(
        Shapeless{2, {{7, "180"}, {8, "2"}}, NoMitre}, Shapeless{2, {{7, "540"}}, NoMitre},
        Shapeless{2, {{7, "1000"}}, NoMitre},
        Shapeless{1, {{3, "32768"}}, "a bend has 32767 segments at most"},
        Shapeless{1,
                  {{3, "20001"}},
                  "so many segments with 99 fold lines each are too much: make one of the two numbers "
                  "smaller",
                  99},
        Shapeless{2, {{7, "1e-14"}}, "the bend is too short for the difference of its diameters"}));

TEST(TaperedBendLimits, AsManyStationsAsAllPiecesMayHaveAreMade) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->settings.segs = 99;
    TypeBoxes(*window, {{3, "20000"}});
    EXPECT_EQ(Built<CSegBendTapered>(*window).BendSegments, 20000);
    window->settings.segs = 1;
    TypeBoxes(*window, {{3, "32767"}});
    EXPECT_EQ(Built<CSegBendTapered>(*window).BendSegments, 32767);
}

TEST(TaperedBendSizes, AreTaken) {
    TestShell shell;
    const auto quarter = shell.OpenSample(Category, 1);
    quarter->settings.KerfSpacing = 12.5;
    const CSegBendTapered& bend = Built<CSegBendTapered>(*quarter);
    EXPECT_EQ(bend.BigRad, 120);
    EXPECT_EQ(bend.SmallRad, 70);
    EXPECT_EQ(bend.BendRadius, 320);
    EXPECT_EQ(bend.BendAngle, QuarterTurn);
    EXPECT_EQ(bend.BendSegments, 5);
    EXPECT_EQ(bend.KerfSpacing, 12.5);
    EXPECT_EQ(bend.inputs.Dtype, 0);
    const auto any = shell.OpenSample(Category, 2);
    any->settings.Thickness = 4;
    any->settings.InOutMean = OutsideDimension;
    const CSegBendTapered& other = Built<CSegBendTapered>(*any);
    EXPECT_EQ(other.BigRad, 138);
    EXPECT_EQ(other.SmallRad, 98);
    EXPECT_EQ(other.BendRadius, 450);
    EXPECT_DOUBLE_EQ(other.BendAngle, std::numbers::pi / 3);
    EXPECT_EQ(other.BendSegments, 4);
    EXPECT_EQ(other.KerfSpacing, 0);
    EXPECT_EQ(other.inputs.Dtype, 1);
}

TEST(TaperedBendTextBlock, TellsTheSizesAsTyped) {
    ExpectTextBlocks(Category, {{1,
                                 {"Base diameter = 240", "Top diameter = 140", "Bend radius = 320",
                                  "Bend angle = 90", "Number of segments = 5"}},
                                {2,
                                 {"Base diameter = 280", "Top diameter = 200", "Bend radius = 450",
                                  "Bend angle = 60", "Number of segments = 4"}}});
}

}  // namespace
}  // namespace korvet::tapered_bend_window_test
