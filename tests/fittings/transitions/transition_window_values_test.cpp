// What the five windows of transitions make of their boxes: properties of the fitting and text lines.
#include <gtest/gtest.h>

#include <array>

#include "tests/fittings/transitions/transition_window_fixture.h"

namespace korvet {
namespace {

/// A window at its sample sizes with plate 4 thick, sizes measured on one side of it.
std::unique_ptr<CFittingWindow> OpenWithPlate(TestShell& shell, const std::string& category, int type,
                                              MaterialSide side) {
    auto window = shell.OpenSample(category, type);
    window->settings.Thickness = 4;
    window->settings.InOutMean = side;
    return window;
}

/// What a page at its sample sizes comes to by the side of the plate that they are measured on.
struct MeanSizes {
    std::string category;
    int type;
    MaterialSide side;
    std::array<double, 4> top;     ///< lengths along x and y, and the semi-axes of the corners
    std::array<double, 3> base;    ///< lengths, and the corner radius
    std::array<double, 3> placed;  ///< offsets and height
};

void PrintTo(const MeanSizes& sizes, std::ostream* out) {
    *out << sizes.category << ", type " << sizes.type << ", side " << sizes.side;
}

class TransitionMeanSizes : public testing::TestWithParam<MeanSizes> {};

TEST_P(TransitionMeanSizes, AreThoseOfTheMiddleOfThePlate) {
    const auto& [category, type, side, top, base, placed] = GetParam();
    TestShell shell;
    const auto window = OpenWithPlate(shell, category, type, side);
    const auto& transition = Built(*window);
    EXPECT_DOUBLE_EQ(transition.TopLengthX, top[0]);
    EXPECT_DOUBLE_EQ(transition.TopLengthY, top[1]);
    EXPECT_DOUBLE_EQ(transition.TopRad1, top[2]);
    EXPECT_DOUBLE_EQ(transition.TopRad2, top[3]);
    EXPECT_DOUBLE_EQ(transition.BaseLengthX, base[0]);
    EXPECT_DOUBLE_EQ(transition.BaseLengthY, base[1]);
    EXPECT_DOUBLE_EQ(transition.BaseRad1, base[2]);
    EXPECT_DOUBLE_EQ(transition.BaseRad2, base[2]);
    EXPECT_EQ(transition.TopOffsetX, placed[0]);
    EXPECT_EQ(transition.TopOffsetY, placed[1]);
    EXPECT_EQ(transition.Height, placed[2]);
    if (!window->Table().pages[static_cast<std::size_t>(type - 1)].angleOptions) {
        ExpectLevel(transition);
    }
}

// The sample base is 300 by 200 in all windows, with radii of 50 where it has any. A sharp rectangle loses
// one thickness more where it is bent.
INSTANTIATE_TEST_SUITE_P(
    Sharp, TransitionMeanSizes,
    testing::Values(
        MeanSizes{RectRound1, 1, InsideDimension, {154, 154, 77, 77}, {300, 200, 0}, {0, 0, 250}},
        MeanSizes{RectRound1, 2, OutsideDimension, {116, 116, 58, 58}, {292, 192, 0}, {50, -25, 250}},
        MeanSizes{RectRound1, 2, MeanDimension, {120, 120, 60, 60}, {296, 196, 0}, {50, -25, 250}}));
INSTANTIATE_TEST_SUITE_P(
    Rounded, TransitionMeanSizes,
    testing::Values(
        MeanSizes{RectRound2, 1, InsideDimension, {154, 154, 77, 77}, {304, 204, 52}, {0, 0, 250}},
        MeanSizes{RectRound2, 2, OutsideDimension, {116, 116, 58, 58}, {296, 196, 48}, {50, -25, 250}},
        MeanSizes{RectEllipse, 1, InsideDimension, {184, 104, 92, 52}, {304, 204, 52}, {0, 0, 250}},
        MeanSizes{RectEllipse, 2, OutsideDimension, {196, 106, 98, 53}, {296, 196, 48}, {40, -25, 250}},
        MeanSizes{Folded, 1, InsideDimension, {184, 124, 32, 32}, {304, 204, 52}, {0, 0, 250}},
        MeanSizes{Folded, 2, OutsideDimension, {176, 116, 28, 28}, {296, 196, 48}, {40, -20, 250}}));
// The Y offset of ovals keeps its sign.
INSTANTIATE_TEST_SUITE_P(
    Oval, TransitionMeanSizes,
    testing::Values(MeanSizes{Oval, 1, InsideDimension, {204, 104, 52, 52}, {304, 204, 102}, {0, 0, 250}},
                    MeanSizes{Oval, 2, OutsideDimension, {196, 96, 48, 48}, {296, 196, 98}, {30, 20, 250}}));

TEST(TransitionSizes, CompensatedLimitsFollowTheSideOfThePlate) {
    // A folded base of 200 outside is 196 on the mean line: its radius may be 98.
    TestShell shell;
    const auto folded = OpenWithPlate(shell, Folded, 1, OutsideDimension);
    TypeBoxes(*folded, {{10, "98"}});
    EXPECT_EQ(folded->BuildFitting(), Passed);
    TypeBoxes(*folded, {{10, "98.1"}});
    EXPECT_EQ(folded->BuildFitting(), Refused);
    ExpectUserError(shell.ui, *folded, AtMost + "98", 10);
}

TEST(TransitionSizes, AnOvalIsHeldAgainstTheThicknessOnTheMeanLine) {
    // 7.9 outside is 3.9 on the mean line of plate 4 thick.
    for (const auto& [type, box] : {std::pair{1, 1}, {1, 3}, {2, 5}, {2, 7}}) {
        TestShell shell;
        const auto oval = OpenWithPlate(shell, Oval, type, OutsideDimension);
        TypeBoxes(*oval, {{box, "7.9"}});
        EXPECT_EQ(oval->BuildFitting(), Refused);
        ExpectUserError(shell.ui, *oval, NoRoom, box);
        TypeBoxes(*oval, {{box, "8"}});
        EXPECT_EQ(oval->BuildFitting(), Passed);
    }
}

TEST(TransitionSizes, ALevelBuildForgetsTheLastTilts) {
    TestShell shell;
    const auto window = shell.OpenSample(RectRound1, 2);
    EXPECT_NE(Built(*window).TopTiltY, 0);
    window->ClickPoint(1);
    TypeBoxes(*window, {{0, "100"}, {1, "200"}, {2, "200"}, {3, "90"}});
    const auto& transition = Built(*window);
    ExpectLevel(transition);
    EXPECT_EQ(transition.TopOffsetX, 0);
    EXPECT_EQ(transition.TopOffsetY, 0);
    EXPECT_EQ(transition.Height, 90);
    EXPECT_EQ(transition.inputs.Dtype, 0);
}

/// The lines of a page at its sample sizes, between the comments and the thickness.
std::vector<std::string> SizeLines(const std::string& category, int type) {
    TestShell shell;
    const auto window = shell.OpenSample(category, type);
    window->settings.Thickness = 1.5;
    EXPECT_EQ(window->BuildFitting(), Passed);
    const std::vector<std::string> block = TextBlock(*window);
    EXPECT_EQ(block[block.size() - 2], "Thickness = 1.5");
    EXPECT_EQ(block.back(), category + "  Full pattern  21 Nov 2026");
    return {block.begin() + 2, block.end() - 2};
}

TEST(TransitionTextBlock, HasTheLinesOfEachPage) {
    using Lines = std::vector<std::string>;
    EXPECT_EQ(SizeLines(RectRound1, 1),
              (Lines{"Diameter = 150", "Rectangle length X = 300", "Rectangle length Y = 200", "Offset X = 0",
                     "Offset Y = 0", "Height = 250"}));
    EXPECT_EQ(SizeLines(RectRound1, 2),
              (Lines{"Diameter = 120", "Rectangle length X = 300", "Rectangle length Y = 200",
                     "Offset X = 50", "Offset Y = 25", "Height = 250"}));
    EXPECT_EQ(SizeLines(RectRound2, 1),
              (Lines{"Diameter = 150", "Rectangle length X = 300", "Rectangle length Y = 200", "Offset X = 0",
                     "Offset Y = 0", "Height = 250", "Radius = 50"}));
    EXPECT_EQ(SizeLines(RectRound2, 2),
              (Lines{"Diameter = 120", "Rectangle length X = 300", "Rectangle length Y = 200",
                     "Offset X = 50", "Offset Y = 25", "Height = 250", "Radius = 50"}));
    EXPECT_EQ(
        SizeLines(RectEllipse, 1),
        (Lines{"Ellipse length X = 180", "Ellipse length Y = 100", "Rectangle length X = 300",
               "Rectangle length Y = 200", "Offset X = 0", "Offset Y = 0", "Height = 250", "Radius = 50"}));
    EXPECT_EQ(
        SizeLines(RectEllipse, 2),
        (Lines{"Ellipse length X = 200", "Ellipse length Y = 110", "Rectangle length X = 300",
               "Rectangle length Y = 200", "Offset X = 40", "Offset Y = 25", "Height = 250", "Radius = 50"}));
    EXPECT_EQ(SizeLines(Folded, 1),
              (Lines{"Top length X = 180", "Top length Y = 120", "Base length X = 300", "Base length Y = 200",
                     "Offset X = 0", "Offset Y = 0", "Height = 250", "Top Radius = 30", "Base Radius = 50"}));
    EXPECT_EQ(SizeLines(Folded, 2), (Lines{"Top length X = 180", "Top length Y = 120", "Base length X = 300",
                                           "Base length Y = 200", "Offset X = 40", "Offset Y = 20",
                                           "Height = 250", "Top radius = 30", "Base radius = 50"}));
    EXPECT_EQ(SizeLines(Oval, 1), (Lines{"Top length X = 200", "Top length Y = 100", "Base length X = 300",
                                         "Base length Y = 200", "Height = 250"}));
    EXPECT_EQ(SizeLines(Oval, 2),
              (Lines{"Top length X = 200", "Top length Y = 100", "Base length X = 300", "Base length Y = 200",
                     "Offset X = 30", "Offset Y = 20", "Height = 250"}));
}

TEST(TransitionWindows, StartAsTheirTablesSay) {
    struct Start {
        std::string category;
        std::size_t boxes;
        int laps;
        bool axes;
    };
    for (const Start& start :
         {Start{RectRound1, 12, SeamLapOnly, true}, Start{RectRound2, 14, SeamLapOnly, true},
          Start{RectEllipse, 16, SeamLapOnly, true}, Start{Folded, 16, AllLaps, false},
          Start{Oval, 12, AllLaps, false}}) {
        SCOPED_TRACE(start.category);
        TestShell shell;
        const auto window = shell.Open(start.category);
        EXPECT_EQ(window->dtype, 0);
        EXPECT_EQ(window->settings.LapEnable, start.laps);
        EXPECT_TRUE(window->settings.JoinAngleDisable);
        EXPECT_FALSE(window->settings.HalfPatternDisable);
        EXPECT_FALSE(window->Table().multiple);
        EXPECT_EQ(window->miscellaneous, 0);
        EXPECT_EQ(window->Table().pages[1].angleOptions, start.axes);
        EXPECT_FALSE(window->Table().pages[0].angleOptions);
        ASSERT_EQ(window->controls.txtParameter.size(), start.boxes);
        for (std::size_t i = 0; i < start.boxes; ++i) {
            EXPECT_EQ(window->controls.txtParameter[i].text, start.category == Folded && i == 2 ? "00" : "0");
        }
    }
}

TEST(TransitionWindows, StepBetweenTheShortAndTheLongPage) {
    TestShell shell;
    const auto window = shell.Open(Oval);
    window->ClickMore(0);
    EXPECT_EQ(window->dtype, 1);
    window->ClickBack(1);
    EXPECT_EQ(window->dtype, 0);
}

}  // namespace
}  // namespace korvet
