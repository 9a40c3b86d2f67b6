// What the five windows of transitions refuse: every check in its order and at its limit, with its message,
// box and focus.
#include <gtest/gtest.h>

#include "core/checked.h"
#include "fittings/transitions/transition_form.h"
#include "tests/fittings/transitions/transition_window_fixture.h"
#include "window/views.h"

namespace korvet {
namespace {

const std::string NotZero = "This dimension cannot be equal to 0";
constexpr double PlateThickness = 6;

/// Sizes that pass every check, of which a plate of 6 leaves nothing, or less.
struct TooThick {
    std::string category;
    int type;
    BoxTexts boxes;
    std::string size;
    MaterialSide side = OutsideDimension;
};

void PrintTo(const TooThick& example, std::ostream* out) {
    *out << example.category << ", type " << example.type << ", " << example.size;
}

class TransitionThickness : public testing::TestWithParam<TooThick> {};

std::unique_ptr<CFittingWindow> OpenWithPlate(TestShell& shell, const TooThick& example) {
    auto window = shell.OpenSample(example.category, example.type);
    window->settings.Thickness = PlateThickness;
    window->settings.InOutMean = example.side;
    TypeBoxes(*window, example.boxes);
    return window;
}

TEST_P(TransitionThickness, ThatTakesMoreThanThereIsEndsTheBuild) {
    TestShell shell;
    const auto window = OpenWithPlate(shell, GetParam());
    window->ClickView(0);
    ExpectNotMade(shell.ui, *window, "the material is too thick for the " + GetParam().size);
}

// Outside sizes: a radius or half length loses 3, a length 6, and that of a sharp rectangle 12. The top
// speaks before the base, X before Y.
INSTANTIATE_TEST_SUITE_P(
    Sizes, TransitionThickness,
    testing::Values(TooThick{RectRound1, 1, {{0, "5.9"}, {1, "6"}}, "diameter of the top"},
                    TooThick{RectRound1, 2, {{4, "1"}, {5, "11"}}, "diameter of the top"},
                    TooThick{RectRound1, 1, {{1, "11.9"}, {2, "11"}}, "length X of the base"},
                    TooThick{RectRound1, 1, {{2, "11.9"}}, "length Y of the base"},
                    TooThick{RectRound1, 2, {{5, "1"}}, "length X of the base", MeanDimension},
                    TooThick{RectRound1, 2, {{6, "11.9"}}, "length Y of the base"},
                    TooThick{RectRound2, 1, {{0, "5.9"}}, "diameter of the top"},
                    TooThick{RectRound2, 2, {{4, "5.9"}}, "diameter of the top"},
                    TooThick{RectEllipse, 1, {{0, "5.9"}, {12, "5"}}, "length X of the top"},
                    TooThick{RectEllipse, 1, {{12, "5"}}, "length Y of the top"},
                    TooThick{RectEllipse, 2, {{4, "5.9"}}, "length X of the top"},
                    TooThick{RectEllipse, 2, {{13, "5.9"}}, "length Y of the top"}));

class TransitionKnifeEdges : public testing::TestWithParam<TooThick> {};

TEST_P(TransitionKnifeEdges, AreMadeWhenTheMaterialUsesUpASizeExactly) {
    TestShell shell;
    const auto window = OpenWithPlate(shell, GetParam());
    window->ClickView(PatternButton);
    EXPECT_TRUE(window->hasModel);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_GT(window->fitting->Results().PatternSurface.List1->Count(), 1U);
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, TransitionKnifeEdges,
    testing::Values(TooThick{RectRound1, 1, {{0, "6"}}, "diameter of the top"},
                    TooThick{RectRound1, 1, {{1, "12"}}, "length X of the base"},
                    TooThick{RectRound1, 1, {{1, "12"}, {2, "12"}}, "both lengths of the base"},
                    TooThick{RectRound1, 1, {{1, "6"}}, "length X of the base", MeanDimension},
                    TooThick{RectRound1, 2, {{4, "6"}}, "diameter of the top"},
                    TooThick{RectRound1, 2, {{6, "6"}}, "length Y of the base", MeanDimension},
                    TooThick{RectRound2, 1, {{10, "3"}, {1, "6"}}, "length X of the base"},
                    TooThick{RectRound2, 2, {{11, "3"}, {6, "6"}}, "length Y of the base"},
                    TooThick{RectEllipse, 1, {{0, "6"}, {12, "6"}}, "both lengths of the top"},
                    TooThick{RectEllipse, 2, {{13, "6"}}, "length Y of the top"},
                    TooThick{RectEllipse, 2, {{11, "3"}, {5, "6"}}, "length X of the base"}));

TEST(TransitionThickSizes, IsMetAfterEveryCheck) {
    // The diameter leaves less than nothing; the height, the axis and the half pattern are asked for later.
    TestShell shell;
    const auto window = shell.OpenSample(RectRound1, 2);
    window->settings.Thickness = 6;
    window->settings.InOutMean = OutsideDimension;
    window->settings.HalfPattern = true;
    TypeBoxes(*window, {{4, "5.99"}, {11, "91"}});
    EXPECT_EQ(window->BuildFitting(), Refused);
    ExpectUserError(shell.ui, *window, AtMost + "90", 11);
    shell.ui.messages.clear();
    TypeBoxes(*window, {{11, "0"}});
    EXPECT_THROW((void)window->BuildFitting(), ArithmeticError);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_TRUE(window->settings.HalfPattern);
    TypeBoxes(*window, {{4, "6"}});
    EXPECT_EQ(window->BuildFitting(), Passed);
}

TEST(TransitionThickSizes, MayLeaveSharpCornersButNotLess) {
    const transition::Section sharp = {300, 200, 0, 0};
    CTransition fitting;
    EXPECT_NO_THROW(transition::SetSections(fitting, sharp, sharp, 100));
    for (const transition::Section& bad : {transition::Section{300, 200, -0.5, 1}, {300, 200, 1, -0.5}}) {
        try {
            transition::SetSections(fitting, sharp, bad, 100);
            FAIL() << "the corner is less than sharp";
        } catch (const ArithmeticError& error) {
            EXPECT_STREQ(error.what(), "the material is too thick for the corner radius of the base");
        }
    }
}

TEST(TransitionThickSizes, MustLeaveSomethingOfAnEnd) {
    const transition::Section nothing = {0, 0, 0, 0};
    CTransition fitting;
    EXPECT_NO_THROW(transition::SetSections(fitting, nothing, {300, 0, 0, 0}, 100));
    EXPECT_NO_THROW(transition::SetSections(fitting, {0, 200, 0, 0}, nothing, 100));
    try {
        transition::SetSections(fitting, nothing, nothing, 100);
        FAIL() << "a line has no area";
    } catch (const ArithmeticError& error) {
        EXPECT_STREQ(error.what(), "the material leaves nothing of the top and the base");
    }
}

// The boxes that would stop the build too come later in the order of the checks.

/// Sizes on their limits, which pass.
struct Pass {
    std::string category;
    int type;
    BoxTexts boxes;
};

void PrintTo(const Pass& pass, std::ostream* out) {
    *out << pass.category << ", type " << pass.type;
}

class TransitionLimits : public testing::TestWithParam<Pass> {};
TEST_P(TransitionLimits, AreAllowed) {
    TestShell shell;
    const auto window = shell.OpenSample(GetParam().category, GetParam().type);
    window->settings.Thickness = PlateThickness;
    TypeBoxes(*window, GetParam().boxes);
    EXPECT_EQ(window->BuildFitting(), Passed);
    EXPECT_TRUE(shell.ui.messages.empty());
}

class RectRound1Refusals : public testing::TestWithParam<Refusal> {};
TEST_P(RectRound1Refusals, NamesTheBox) {
    ExpectRefused(RectRound1, GetParam(), PlateThickness);
}

INSTANTIATE_TEST_SUITE_P(Short, RectRound1Refusals,
                         testing::Values(Refusal{1, {{0, "0"}, {1, "0"}, {2, "0"}, {3, "0"}}, AboveZero, 0},
                                         Refusal{1, {{1, "-1"}, {2, "0"}, {3, "0"}}, AboveZero, 1},
                                         Refusal{1, {{2, "0"}, {1, "5"}, {3, "0"}}, AboveZero, 2},
                                         Refusal{1, {{1, "5.99"}, {2, "5"}, {3, "0"}}, NoRoom, 1},
                                         Refusal{1, {{2, "5.99"}, {3, "0"}}, NoRoom, 2},
                                         Refusal{1, {{3, "0"}}, NotZero, 3}));
INSTANTIATE_TEST_SUITE_P(Long, RectRound1Refusals,
                         testing::Values(Refusal{2, {{4, "0"}, {5, "0"}, {6, "0"}, {9, "0"}}, AboveZero, 4},
                                         Refusal{2, {{5, "0"}, {6, "0"}, {9, "0"}}, AboveZero, 5},
                                         Refusal{2, {{6, "-3"}, {9, "0"}, {10, "91"}}, AboveZero, 6},
                                         Refusal{2, {{9, "0"}, {10, "91"}, {11, "91"}}, NotZero, 9},
                                         Refusal{2, {{10, "90.01"}, {11, "91"}}, AtMost + "90", 10},
                                         Refusal{2, {{10, "-90.01"}, {11, "91"}}, AtLeast + "-90", 10},
                                         Refusal{2, {{11, "90.01"}}, AtMost + "90", 11},
                                         Refusal{2, {{11, "-90.01"}}, AtLeast + "-90", 11}));
INSTANTIATE_TEST_SUITE_P(RectRound1, TransitionLimits,
                         testing::Values(Pass{RectRound1, 1, {{1, "6.01"}, {2, "6.01"}, {3, "-250"}}},
                                         Pass{RectRound1, 2, {{9, "-250"}, {10, "90"}, {11, "-90"}}},
                                         Pass{RectRound1, 2, {{10, "-90"}, {11, "90"}}}));

class RectRound2Refusals : public testing::TestWithParam<Refusal> {};
TEST_P(RectRound2Refusals, NamesTheBox) {
    ExpectRefused(RectRound2, GetParam(), PlateThickness);
}

INSTANTIATE_TEST_SUITE_P(Short, RectRound2Refusals,
                         testing::Values(Refusal{1, {{0, "0"}, {1, "0"}, {2, "0"}, {10, "0"}}, AboveZero, 0},
                                         Refusal{1, {{1, "0"}, {2, "0"}, {10, "0"}}, AboveZero, 1},
                                         Refusal{1, {{2, "0"}, {10, "0"}}, AboveZero, 2},
                                         Refusal{1, {{10, "2.99"}, {1, "5"}, {3, "0"}}, NoRoom, 10},
                                         Refusal{1, {{10, "150.1"}}, AtMost + "150", 10},
                                         // The X length is compared before the Y length.
                                         Refusal{1, {{10, "100.1"}, {3, "0"}}, AtMost + "100", 10},
                                         Refusal{1, {{10, "100.1"}, {1, "80"}}, AtMost + "40", 10},
                                         // A radius of half the thickness needs a length of the thickness.
                                         Refusal{1, {{10, "3"}, {1, "5.99"}}, AtMost + "3", 10},
                                         Refusal{1, {{3, "0"}}, NotZero, 3}));
INSTANTIATE_TEST_SUITE_P(
    Long, RectRound2Refusals,
    testing::Values(Refusal{2, {{4, "0"}, {5, "0"}, {6, "0"}, {12, "91"}}, AboveZero, 4},
                    Refusal{2, {{5, "0"}, {6, "0"}, {12, "91"}}, AboveZero, 5},
                    Refusal{2, {{6, "0"}, {12, "91"}}, AboveZero, 6},
                    Refusal{2, {{12, "90.01"}, {13, "91"}, {9, "0"}}, AtMost + "90", 12},
                    Refusal{2, {{12, "-90.01"}, {13, "91"}, {9, "0"}}, AtLeast + "-90", 12},
                    Refusal{2, {{13, "90.01"}, {9, "0"}}, AtMost + "90", 13},
                    Refusal{2, {{13, "-90.01"}, {9, "0"}}, AtLeast + "-90", 13},
                    Refusal{2, {{9, "0"}, {11, "0"}}, NotZero, 9}, Refusal{2, {{11, "2.99"}}, NoRoom, 11},
                    Refusal{2, {{11, "100.1"}}, AtMost + "100", 11},
                    Refusal{2, {{11, "100.1"}, {5, "90"}}, AtMost + "45", 11}));
INSTANTIATE_TEST_SUITE_P(
    RectRound2, TransitionLimits,
    testing::Values(Pass{RectRound2, 1, {{10, "3"}, {1, "6"}, {2, "6"}, {3, "-1"}}},
                    Pass{RectRound2, 1, {{10, "100"}}},
                    Pass{RectRound2, 2, {{11, "3"}, {5, "6"}, {9, "-1"}, {12, "90"}, {13, "-90"}}}));

class RectEllipseRefusals : public testing::TestWithParam<Refusal> {};
TEST_P(RectEllipseRefusals, NamesTheBox) {
    ExpectRefused(RectEllipse, GetParam(), PlateThickness);
}

INSTANTIATE_TEST_SUITE_P(
    Short, RectEllipseRefusals,
    testing::Values(Refusal{1, {{0, "0"}, {12, "0"}, {1, "0"}, {2, "0"}, {3, "0"}, {10, "0"}}, AboveZero, 0},
                    Refusal{1, {{12, "0"}, {1, "0"}, {2, "0"}, {3, "0"}, {10, "0"}}, AboveZero, 12},
                    Refusal{1, {{1, "0"}, {2, "0"}, {3, "0"}, {10, "0"}}, AboveZero, 1},
                    Refusal{1, {{2, "0"}, {3, "0"}, {10, "0"}}, AboveZero, 2},
                    Refusal{1, {{3, "-250"}, {10, "0"}}, AboveZero, 3},
                    Refusal{1, {{10, "2.99"}, {1, "5"}}, NoRoom, 10},
                    Refusal{1, {{10, "100.1"}, {1, "80"}}, AtMost + "40", 10},
                    Refusal{1, {{10, "100.1"}}, AtMost + "100", 10}));
INSTANTIATE_TEST_SUITE_P(
    Long, RectEllipseRefusals,
    testing::Values(Refusal{2, {{4, "0"}, {13, "0"}, {5, "0"}, {6, "0"}, {9, "0"}}, AboveZero, 4},
                    Refusal{2, {{13, "0"}, {5, "0"}, {6, "0"}, {9, "0"}}, AboveZero, 13},
                    Refusal{2, {{5, "0"}, {6, "0"}, {9, "0"}}, AboveZero, 5},
                    Refusal{2, {{6, "0"}, {9, "0"}}, AboveZero, 6},
                    Refusal{2, {{9, "-250"}, {11, "0"}}, AboveZero, 9},
                    Refusal{2, {{11, "2.99"}, {14, "91"}}, NoRoom, 11},
                    Refusal{2, {{14, "90.01"}, {15, "91"}, {11, "120"}}, AtMost + "90", 14},
                    Refusal{2, {{14, "-90.01"}, {15, "91"}}, AtLeast + "-90", 14},
                    Refusal{2, {{15, "90.01"}, {11, "120"}}, AtMost + "90", 15},
                    Refusal{2, {{15, "-90.01"}, {11, "120"}}, AtLeast + "-90", 15},
                    Refusal{2, {{11, "100.1"}, {5, "80"}}, AtMost + "40", 11},
                    Refusal{2, {{11, "100.1"}}, AtMost + "100", 11}));
INSTANTIATE_TEST_SUITE_P(RectEllipse, TransitionLimits,
                         testing::Values(Pass{RectEllipse, 1, {{10, "3"}, {1, "6"}}},
                                         Pass{RectEllipse, 1, {{10, "100"}}},
                                         Pass{RectEllipse, 2, {{11, "3"}, {14, "-90"}, {15, "90"}}}));

class FoldedRefusals : public testing::TestWithParam<Refusal> {};
TEST_P(FoldedRefusals, NamesTheBox) {
    ExpectRefused(Folded, GetParam(), PlateThickness);
}

INSTANTIATE_TEST_SUITE_P(
    Short, FoldedRefusals,
    testing::Values(Refusal{1, {{0, "0"}, {1, "0"}, {4, "0"}, {2, "0"}, {3, "0"}}, AboveZero, 0},
                    Refusal{1, {{1, "0"}, {4, "0"}, {2, "0"}, {3, "0"}}, AboveZero, 1},
                    Refusal{1, {{4, "0"}, {2, "0"}, {3, "0"}}, AboveZero, 4},
                    Refusal{1, {{2, "0"}, {3, "0"}}, AboveZero, 2},
                    Refusal{1, {{3, "0"}, {0, "5"}}, NotZero, 3},
                    Refusal{1, {{0, "5.99"}, {1, "5"}, {4, "5"}, {2, "5"}, {10, "0"}}, NoRoom, 0},
                    Refusal{1, {{1, "5.99"}, {4, "5"}, {2, "5"}, {10, "0"}}, NoRoom, 1},
                    Refusal{1, {{4, "5.99"}, {2, "5"}, {10, "0"}}, NoRoom, 4},
                    Refusal{1, {{2, "5.99"}, {10, "0"}}, NoRoom, 2},
                    Refusal{1, {{10, "2.99"}, {13, "0"}}, AtLeast + "3", 10},
                    Refusal{1, {{10, "150.1"}, {2, "900"}, {13, "0"}}, AtMost + "150", 10},
                    Refusal{1, {{10, "100.1"}, {13, "0"}}, AtMost + "100", 10},
                    Refusal{1, {{13, "2.99"}}, AtLeast + "3", 13},
                    Refusal{1, {{13, "90.1"}, {1, "900"}}, AtMost + "90", 13},
                    Refusal{1, {{13, "60.1"}}, AtMost + "60", 13}));
INSTANTIATE_TEST_SUITE_P(
    Long, FoldedRefusals,
    testing::Values(Refusal{2, {{6, "0"}, {5, "0"}, {7, "0"}, {8, "0"}, {9, "0"}}, AboveZero, 6},
                    Refusal{2, {{5, "0"}, {7, "0"}, {8, "0"}, {9, "0"}}, AboveZero, 5},
                    Refusal{2, {{7, "0"}, {8, "0"}, {9, "0"}}, AboveZero, 7},
                    Refusal{2, {{8, "0"}, {9, "0"}}, AboveZero, 8},
                    Refusal{2, {{9, "0"}, {5, "5"}}, NotZero, 9},
                    // Here the thickness comes in the order of the boxes.
                    Refusal{2, {{5, "5.99"}, {6, "5"}, {7, "5"}, {8, "5"}, {11, "0"}}, NoRoom, 5},
                    Refusal{2, {{6, "5.99"}, {7, "5"}, {8, "5"}, {11, "0"}}, NoRoom, 6},
                    Refusal{2, {{7, "5.99"}, {8, "5"}, {11, "0"}}, NoRoom, 7},
                    Refusal{2, {{8, "5.99"}, {11, "0"}}, NoRoom, 8},
                    Refusal{2, {{11, "2.99"}, {15, "0"}}, AtLeast + "3", 11},
                    Refusal{2, {{11, "150.1"}, {8, "900"}, {15, "0"}}, AtMost + "150", 11},
                    Refusal{2, {{11, "100.1"}, {15, "0"}}, AtMost + "100", 11},
                    Refusal{2, {{15, "2.99"}}, AtLeast + "3", 15},
                    Refusal{2, {{15, "90.1"}, {5, "900"}}, AtMost + "90", 15},
                    Refusal{2, {{15, "60.1"}}, AtMost + "60", 15}));
INSTANTIATE_TEST_SUITE_P(
    Folded, TransitionLimits,
    testing::Values(
        Pass{Folded, 1, {{0, "6"}, {1, "6"}, {4, "6"}, {2, "6"}, {10, "3"}, {13, "3"}, {3, "-1"}}},
        Pass{Folded, 1, {{10, "100"}, {13, "60"}}},
        Pass{Folded, 2, {{5, "6"}, {6, "6"}, {7, "6"}, {8, "6"}, {11, "3"}, {15, "3"}, {9, "-1"}}}));

class OvalRefusals : public testing::TestWithParam<Refusal> {};
TEST_P(OvalRefusals, NamesTheBox) {
    ExpectRefused(Oval, GetParam(), PlateThickness);
}

INSTANTIATE_TEST_SUITE_P(
    Short, OvalRefusals,
    testing::Values(Refusal{1, {{0, "0"}, {1, "0"}, {2, "0"}, {3, "0"}, {10, "0"}}, AboveZero, 0},
                    Refusal{1, {{1, "0"}, {2, "0"}, {3, "0"}, {10, "0"}}, AboveZero, 1},
                    Refusal{1, {{2, "0"}, {3, "0"}, {10, "0"}}, AboveZero, 2},
                    Refusal{1, {{3, "0"}, {10, "0"}}, AboveZero, 3},
                    Refusal{1, {{10, "0"}, {1, "5"}}, NotZero, 10},
                    Refusal{1, {{1, "5.99"}, {3, "5"}, {0, "5"}}, NoRoom, 1},
                    Refusal{1, {{3, "5.99"}, {0, "5"}}, NoRoom, 3},
                    Refusal{1, {{0, "199.9"}, {2, "50"}}, AtLeast + "200", 0},
                    Refusal{1, {{2, "99.9"}}, AtLeast + "100", 2}));
INSTANTIATE_TEST_SUITE_P(
    Long, OvalRefusals,
    testing::Values(Refusal{2, {{4, "0"}, {5, "0"}, {6, "0"}, {7, "0"}, {11, "0"}}, AboveZero, 4},
                    Refusal{2, {{5, "0"}, {6, "0"}, {7, "0"}, {11, "0"}}, AboveZero, 5},
                    Refusal{2, {{6, "0"}, {7, "0"}, {11, "0"}}, AboveZero, 6},
                    Refusal{2, {{7, "0"}, {11, "0"}}, AboveZero, 7},
                    Refusal{2, {{11, "0"}, {5, "5"}}, NotZero, 11},
                    Refusal{2, {{5, "5.99"}, {7, "5"}, {4, "5"}}, NoRoom, 5},
                    Refusal{2, {{7, "5.99"}, {4, "5"}}, NoRoom, 7},
                    Refusal{2, {{4, "199.9"}, {6, "50"}}, AtLeast + "200", 4},
                    Refusal{2, {{6, "99.9"}}, AtLeast + "100", 6}));
INSTANTIATE_TEST_SUITE_P(Oval, TransitionLimits,
                         testing::Values(Pass{Oval, 1, {{0, "6"}, {1, "6"}, {2, "6"}, {3, "6"}, {10, "-1"}}},
                                         Pass{
                                             Oval, 2, {{4, "6"}, {5, "6"}, {6, "6"}, {7, "6"}, {11, "-1"}}}));

}  // namespace
}  // namespace korvet
