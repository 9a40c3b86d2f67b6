// The two windows of the reducing breech of two pieces: how they start, every limit in its place, the sizes
// that they hand on, text lines, saved files. The sample pipes have 250 and 240, their outlets 150 and 140.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "core/math_module.h"
#include "fittings/breeches/breech_reducing_2prt.h"
#include "tests/support/near.h"
#include "tests/support/refusals.h"
#include "tests/support/saved_fittings.h"
#include "tests/support/text_blocks.h"
#include "tests/support/window_start.h"
#include "window/views.h"

namespace korvet::two_piece_windows_test {
namespace {

constexpr const char* AngleTop = "Reducing Breech - Two Piece - Angle Top";
constexpr const char* ParallelTop = "Reducing Breech - Two Piece - Parallel Top";
const std::vector<std::string> Categories = {AngleTop, ParallelTop};

void ChooseFlushSide(CFittingWindow& window) {
    window.SelectOption(&FittingOptions::optFlushSide, 1);
}

TEST(TwoPieceWindows, StartAlike) {
    ExpectStart(AngleTop, {.helpContextId = 2440, .boxes = 4, .pieces = true, .halfPattern = true});
    ExpectStart(ParallelTop, {.helpContextId = 2450, .boxes = 4, .pieces = true, .halfPattern = true});
    for (const std::string& category : Categories) {
        TestShell shell;
        const OptionGroup sides = shell.Open(category)->controls.options.optFlushSide;
        EXPECT_EQ(sides.captions, (std::vector<std::string>{"Center line", " Flush side"}));
        EXPECT_TRUE(sides.IsOn(0));
    }
}

void ExpectRefusal(const char* category, const Refusal& refusal) {
    TestShell shell;
    const auto window = shell.OpenSample(category, refusal.type);
    TypeBoxes(*window, refusal.boxes);
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectUserError(shell.ui, *window, refusal.message, refusal.box);
}

class AngleTopRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(AngleTopRefusals, NameTheBox) {
    ExpectRefusal(AngleTop, GetParam());
}

// The box that is refused later in the order is wrong too.
INSTANTIATE_TEST_SUITE_P(All, AngleTopRefusals,
                         testing::Values(Refusal{1, {{0, "0"}, {1, "0"}}, AboveZero, 0},
                                         Refusal{1, {{1, "-1"}, {2, "0"}}, AboveZero, 1},
                                         Refusal{1, {{2, "0"}, {1, "300"}}, AboveZero, 2},
                                         Refusal{1, {{1, "250"}, {2, "1"}}, LessThan + "250", 1},
                                         Refusal{1, {{2, "124.9"}, {3, "0"}}, AtLeast + "125", 2},
                                         Refusal{1, {{3, "0"}}, GreaterThan + "0", 3},
                                         Refusal{1, {{3, "-70"}}, GreaterThan + "0", 3},
                                         Refusal{1, {{3, "180.1"}}, AtMost + "180", 3}));

class ParallelTopRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(ParallelTopRefusals, NameTheBox) {
    ExpectRefusal(ParallelTop, GetParam());
}

INSTANTIATE_TEST_SUITE_P(All, ParallelTopRefusals,
                         testing::Values(Refusal{1, {{0, "-1"}, {1, "0"}}, AboveZero, 0},
                                         Refusal{1, {{1, "0"}, {2, "0"}}, AboveZero, 1},
                                         Refusal{1, {{2, "-290"}, {1, "300"}}, AboveZero, 2},
                                         Refusal{1, {{1, "240"}, {3, "1"}}, LessThan + "240", 1},
                                         Refusal{1, {{3, "140"}}, GreaterThan + "140", 3},
                                         Refusal{1, {{3, "0"}}, GreaterThan + "140", 3}));

TEST(TwoPieceLimits, TheLimitsThemselvesAreAllowed) {
    const std::vector<std::pair<const char*, BoxTexts>> cases = {{AngleTop, {{1, "249.99"}}},
                                                                 {AngleTop, {{2, "125"}}},
                                                                 {AngleTop, {{3, "180"}}},
                                                                 {AngleTop, {{3, "0.001"}}},
                                                                 {ParallelTop, {{1, "239.999"}, {3, "240"}}},
                                                                 {ParallelTop, {{3, "140.001"}}},
                                                                 {ParallelTop, {{2, "0.001"}}}};
    for (const auto& [category, boxes] : cases) {
        for (const bool flush : {false, true}) {
            TestShell shell;
            const auto window = shell.OpenSample(category, 1);
            if (flush) {
                ChooseFlushSide(*window);
            }
            TypeBoxes(*window, boxes);
            window->ClickView(PatternButton);
            EXPECT_TRUE(window->hasModel) << category << " " << boxes.begin()->second;
            EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>());
        }
    }
}

TEST(TwoPieceLimits, WallsMustFitIntoPipeAndOutlets) {
    for (const std::string& category : Categories) {
        for (const int box : {0, 1}) {
            TestShell shell;
            const auto window = shell.OpenSample(category, 1);
            window->settings.InOutMean = OutsideDimension;
            window->settings.Thickness = 10;
            TypeBoxes(*window, {{1, "20"}});
            EXPECT_EQ(window->BuildFitting(), Passed);
            TypeBoxes(*window, {{box, "19.9"}});
            EXPECT_EQ(window->BuildFitting(), Refused);
            ExpectUserError(shell.ui, *window, NoRoom, box);
        }
    }
}

TEST(TwoPieceLimits, LengthIsHeldAgainstTheMeanRadius) {
    TestShell shell;
    const auto window = shell.OpenSample(AngleTop, 1);
    window->settings.Thickness = 10;
    window->settings.InOutMean = InsideDimension;
    TypeBoxes(*window, {{2, "129.9"}});
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectUserError(shell.ui, *window, AtLeast + "130", 2);
}

TEST(TwoPieceSizes, OfTheAngleTop) {
    TestShell shell;
    const auto window = shell.OpenSample(AngleTop, 1);
    window->settings.Thickness = 4;
    window->settings.InOutMean = InsideDimension;
    const CBreechReducing2Prt& breech = Built<CBreechReducing2Prt>(*window);
    EXPECT_EQ(breech.PipeRad, 127);
    EXPECT_EQ(breech.ConeRadA, 77);
    EXPECT_EQ(breech.ConeRadB, 77);
    EXPECT_EQ(breech.ConeLengthA, 310);
    EXPECT_EQ(breech.ConeLengthB, 310);
    EXPECT_NEAR(breech.CLAngleA, 35 * std::numbers::pi / 180, Near);
    EXPECT_EQ(breech.CLAngleB, -breech.CLAngleA);
    EXPECT_EQ(breech.ConeFaceAngleA, -breech.CLAngleA);
    EXPECT_EQ(breech.ConeFaceAngleB, breech.CLAngleA);
    EXPECT_EQ(breech.Offset, 0);
}

TEST(TwoPieceSizes, OfTheParallelTop) {
    TestShell shell;
    const auto window = shell.OpenSample(ParallelTop, 1);
    TypeBoxes(*window, {{2, "140"}});
    const CBreechReducing2Prt& breech = Built<CBreechReducing2Prt>(*window);
    EXPECT_EQ(breech.PipeRad, 120);
    EXPECT_EQ(breech.ConeRadB, 70);
    EXPECT_EQ(breech.ConeLengthA, 175);  // a triangle of 105, 140 and 175
    EXPECT_EQ(breech.ConeLengthB, 175);
    EXPECT_NEAR(RadToDeg(breech.CLAngleA), 36.86989764584402, Near);
    EXPECT_EQ(breech.CLAngleB, -breech.CLAngleA);
    EXPECT_EQ(breech.ConeFaceAngleA, 0);
    EXPECT_EQ(breech.ConeFaceAngleB, 0);
}

TEST(TwoPieceSizes, TheFlushSideMovesTheOutlets) {
    for (const std::string& category : Categories) {
        TestShell shell;
        const auto window = shell.OpenSample(category, 1);
        ChooseFlushSide(*window);
        EXPECT_EQ(Built<CBreechReducing2Prt>(*window).Offset, -50);
    }
}

TEST(TwoPieceHalves, AreRefusedOnTheFlushSide) {
    for (const std::string& category : Categories) {
        TestShell shell;
        const auto window = shell.OpenSample(category, 1);
        window->settings.HalfPattern = true;
        EXPECT_EQ(window->BuildFitting(), Passed);
        EXPECT_TRUE(window->settings.HalfPattern);
        EXPECT_TRUE(shell.ui.messages.empty());
        ChooseFlushSide(*window);
        window->ClickView(PatternButton);
        EXPECT_TRUE(window->hasModel);
        EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>{"Half pattern not applicable to this item"});
        EXPECT_FALSE(window->settings.HalfPattern);
        EXPECT_EQ(TextBlock(*window).back(), category + "  Full pattern  21 Nov 2026");
        EXPECT_EQ(Built<CBreechReducing2Prt>(*window).results.PatternSurfaceList.Item(1).List1->Count(), 49U);
    }
}

TEST(TwoPieceTextBlocks, TellTheSizesAsTyped) {
    ExpectTextBlocks(AngleTop, {{1,
                                 {"Pipe diameter = 250", "Cone diameter = 150", "Cone length = 310",
                                  "Included Angle of branch = 70"}}});
    ExpectTextBlocks(
        ParallelTop,
        {{1, {"Pipe diameter = 240", "Cone diameter = 140", "Cone Height = 290", "Center distance = 210"}}});
}

TEST(TwoPieceFiles, ReadBackToTheSameBytesAndSurfaces) {
    for (const std::string& category : Categories) {
        for (const bool flush : {false, true}) {
            TestShell shell;
            const auto window = shell.OpenSample(category, 1);
            window->settings.JoinType = 1;
            window->settings.LapSize1 = 12;
            if (flush) {
                ChooseFlushSide(*window);
            } else {
                window->settings.HalfPattern = true;
            }
            ExpectFileKeepsEverything(shell, *window);
        }
    }
}

}  // namespace
}  // namespace korvet::two_piece_windows_test
