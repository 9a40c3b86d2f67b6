// The window of the segmented bend: how it starts, every limit in its place, the choice of the pattern, the
// sizes that it hands on, text lines. The sample bends have a diameter of 200.
#include <gtest/gtest.h>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/bends/seg_bend_parallel.h"
#include "tests/support/refusals.h"
#include "tests/support/text_blocks.h"
#include "tests/support/window_start.h"
#include "window/views.h"

namespace korvet {
namespace {

constexpr const char* Category = "Segmented Bend";

TEST(SegBendWindow, StartsAsABendDoes) {
    ExpectStart(Category, {.helpContextId = 2160,
                           .boxes = 11,
                           .pieces = true,
                           .seamAngle = true,
                           .halfPattern = true,
                           .templateType = true,
                           .kerf = true,
                           .patterns = {"Full Pattern", "First, Last, one intermediate"}});
}

class SegBendRefusals : public testing::TestWithParam<Refusal> {};

TEST_P(SegBendRefusals, NameTheBox) {
    ExpectRefused(Category, GetParam());
}

// The box that is refused later in the order is wrong too.
INSTANTIATE_TEST_SUITE_P(Quarter, SegBendRefusals,
                         testing::Values(Refusal{1, {{0, "-200"}, {1, "-200"}}, NoRoom, 0},
                                         Refusal{1, {{1, "100"}, {2, "2.5"}}, GreaterThan + "100", 1},
                                         Refusal{1, {{2, "1.5"}, {3, "-1"}}, WholeNumber, 2},
                                         Refusal{1, {{2, "2.5"}, {3, "-1"}}, WholeNumber, 2},
                                         Refusal{1, {{2, "1"}, {3, "-1"}}, AtLeast + "2", 2},
                                         Refusal{1, {{2, "-5"}}, AtLeast + "2", 2},
                                         Refusal{1, {{3, "-0.1"}, {4, "-1"}}, AtLeast + "0", 3},
                                         Refusal{1, {{4, "-0.1"}}, AtLeast + "0", 4}));

INSTANTIATE_TEST_SUITE_P(AnyAngle, SegBendRefusals,
                         testing::Values(Refusal{2, {{5, "-200"}, {6, "0"}}, NoRoom, 5},
                                         Refusal{2, {{6, "100"}, {7, "0"}}, GreaterThan + "100", 6},
                                         Refusal{2, {{7, "360.1"}, {8, "-1"}}, AtMost + "360", 7},
                                         Refusal{2, {{7, "0"}, {8, "-1"}}, AboveZero, 7},
                                         Refusal{2, {{7, "-60"}, {8, "-1"}}, AboveZero, 7},
                                         Refusal{2, {{8, "-0.1"}, {9, "-1"}}, AtLeast + "0", 8},
                                         Refusal{2, {{9, "-0.1"}, {10, "1.5"}}, AtLeast + "0", 9},
                                         Refusal{2, {{10, "3.2"}}, WholeNumber, 10},
                                         Refusal{2, {{10, "1"}}, AtLeast + "2", 10}));

TEST(SegBendLimits, TheLimitsThemselvesAreAllowed) {
    const std::vector<std::pair<int, BoxTexts>> cases = {{1, {{1, "100.1"}}},
                                                         {1, {{2, "2"}}},
                                                         {1, {{3, "0"}, {4, "0"}}},
                                                         {2, {{6, "100.1"}}},
                                                         {2, {{7, "360"}, {10, "12"}}},
                                                         {2, {{7, "0.1"}}},
                                                         {2, {{8, "0"}, {9, "0"}, {10, "2"}}}};
    ExpectMade(Category, cases);
}

TEST(SegBendLimits, WallMustFitIntoThePipe) {
    for (const auto& [type, box] : {std::pair{1, 0}, {2, 5}}) {
        // The bend radius is wrong as well, but comes after.
        ExpectRoomUpTo(100, Category, type, box, {{box + 1, "1"}});
    }
}

TEST(SegBendLimits, BendRadiusIsHeldAgainstTheMeanRadius) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->settings.Thickness = 10;
    window->settings.InOutMean = InsideDimension;
    TypeBoxes(*window, {{1, "105"}});
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectUserError(shell.ui, *window, GreaterThan + "105", 1);
}

TEST(SegBendLimits, MorePiecesThanCanBeCountedAreNotMade) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    TypeBoxes(*window, {{2, "32769"}});
    window->ClickView(0);
    ExpectNotMade(shell.ui, *window, "a bend has 32768 segments at most");
    TypeBoxes(*window, {{2, "32768"}});
    EXPECT_EQ(Built<CSegBendParallel>(*window).BendSegments, 32767);
}

TEST(SegBendLimits, ManyPiecesOfManyFoldLinesAreNotMade) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->settings.segs = 100000;
    // A piece has 200,001 stations, and all pieces together may have two million.
    TypeBoxes(*window, {{2, "9"}});
    EXPECT_EQ(Built<CSegBendParallel>(*window).BendSegments, 8);
    TypeBoxes(*window, {{2, "10"}});
    window->ClickView(0);
    ExpectNotMade(
        shell.ui, *window,
        "so many segments with 100000 fold lines each are too much: make one of the two numbers smaller");
}

class BendsWithoutAShape : public testing::TestWithParam<Shapeless> {};

TEST_P(BendsWithoutAShape, AreNotMade) {
    ExpectShapeless(Category, GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, BendsWithoutAShape,
    testing::Values(
        Shapeless{2, {{5, "0"}}, "a pipe with a diameter of 0 has no wall"},
        Shapeless{2, {{7, "180"}, {10, "2"}}, "no mitre turns a pipe by 180 degrees or more"},
        Shapeless{2, {{7, "360"}, {10, "3"}}, "no mitre turns a pipe by 180 degrees or more"},
        Shapeless{2, {{8, "1.1e9"}}, "Length 1 is above a thousand million"},
        Shapeless{2, {{7, "179.9999999"}, {10, "2"}}, "the fitting is larger than a thousand million"}));

TEST(SegBendSizes, ComeFromTheBoxesOfTheType) {
    TestShell shell;
    const auto quarter = shell.OpenSample(Category, 1);
    EXPECT_EQ(Built<CSegBendParallel>(*quarter).BendAngle, QuarterTurn);
    EXPECT_EQ(Built<CSegBendParallel>(*quarter).BaseRad, 100);
    EXPECT_EQ(Built<CSegBendParallel>(*quarter).BendRadius, 300);
    EXPECT_EQ(Built<CSegBendParallel>(*quarter).BendSegments, 4);
    EXPECT_EQ(Built<CSegBendParallel>(*quarter).Length1, 100);
    EXPECT_EQ(Built<CSegBendParallel>(*quarter).Length2, 150);
    EXPECT_EQ(Built<CSegBendParallel>(*quarter).inputs.Dtype, 0);
    const auto any = shell.OpenSample(Category, 2);
    EXPECT_DOUBLE_EQ(Built<CSegBendParallel>(*any).BendAngle, DegToRad(60));
    EXPECT_EQ(Built<CSegBendParallel>(*any).BendRadius, 400);
    EXPECT_EQ(Built<CSegBendParallel>(*any).BendSegments, 3);
    EXPECT_EQ(Built<CSegBendParallel>(*any).Length1, 100);
    EXPECT_EQ(Built<CSegBendParallel>(*any).Length2, 120);
    EXPECT_EQ(Built<CSegBendParallel>(*any).inputs.Dtype, 1);
}

TEST(SegBendSizes, MaterialAndKerfComeFromTheSettings) {
    TestShell shell;
    for (const int type : {1, 2}) {
        const auto window = shell.OpenSample(Category, type);
        window->settings.Thickness = 4;
        window->settings.InOutMean = OutsideDimension;
        window->settings.TemplateType = 1;
        window->settings.KerfSpacing = 12.5;
        const CSegBendParallel& bend = Built<CSegBendParallel>(*window);
        EXPECT_EQ(bend.BaseRad, 98);
        EXPECT_EQ(bend.Thickness, 4);
        EXPECT_EQ(bend.TemplateType, 1);
        EXPECT_EQ(bend.KerfSpacing, 12.5);
    }
}

TEST(SegBendPattern, MustBeChosenForAPatternView) {
    TestShell shell;
    for (const int type : {1, 2}) {
        const auto window = shell.OpenSample(Category, type);
        window->ClickView(PatternButton);
        ExpectUserError(shell.ui, *window, "A pattern must be selected");
        EXPECT_EQ(window->views->Count(), 0U);
        shell.ui.messages.clear();
    }
}

TEST(SegBendPattern, ComesAfterAllLimits) {
    TestShell shell;
    const auto quarter = shell.OpenSample(Category, 1);
    TypeBoxes(*quarter, {{4, "-1"}});
    quarter->ClickView(PatternButton);
    ExpectUserError(shell.ui, *quarter, AtLeast + "0", 4);
    shell.ui.messages.clear();
    const auto any = shell.OpenSample(Category, 2);
    TypeBoxes(*any, {{10, "1"}});
    any->ClickView(PatternButton);
    ExpectUserError(shell.ui, *any, AtLeast + "2", 10);
}

TEST(SegBendPattern, NeedNotBeChosenForTheModel) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->ClickView(0);
    EXPECT_TRUE(window->hasModel);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_EQ(window->fitting->Results().ModelSurfaceList.Count(), 5U);
}

TEST(SegBendPattern, ChoiceTellsThePiecesLaidOut) {
    TestShell shell;
    const auto window = shell.OpenSample(Category, 1);
    window->SelectPattern(0);
    EXPECT_EQ(window->miscellaneous, 1);
    window->ClickView(PatternButton);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_EQ(window->fitting->Results().PatternSurfaceList.Count(), 5U);
    window->SelectPattern(1);
    EXPECT_EQ(window->miscellaneous, 2);
    window->Redraw();
    EXPECT_EQ(window->fitting->Results().PatternSurfaceList.Count(), 3U);
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST(SegBendTextBlock, TellsTheSizesAsTyped) {
    ExpectTextBlocks(Category, {{1,
                                 {"Base diameter = 200", "Bend radius = 300", "Bend angle = 90",
                                  "Length 1 = 100", "Length 2 = 150", "Number of segments = 5"}},
                                {2,
                                 {"Base diameter = 200", "Bend radius = 400", "Bend angle = 60",
                                  "Length 1 = 100", "Length 2 = 120", "Number of segments = 4"}}});
}

}  // namespace
}  // namespace korvet
