#include "display/polyline.h"

#include <gtest/gtest.h>

#include "core/checked.h"
#include "tests/display/display_log.h"

namespace korvet {
namespace {

struct PenCase {
    LineType type;
    Pen screen;
    Pen paper;
};

class PenTable : public testing::TestWithParam<PenCase> {};

TEST_P(PenTable, ColoursOnTheScreenAndWidthsOnPaper) {
    // Six colours that differ from each other and from the standard ones.
    const DisplayColors colors = {11, 12, 13, 14, 15, 16};
    EXPECT_EQ(PenFor(GetParam().type, colors, false), GetParam().screen);
    EXPECT_EQ(PenFor(GetParam().type, colors, true), GetParam().paper);
}

INSTANTIATE_TEST_SUITE_P(
    AllTypes, PenTable,
    testing::Values(
        PenCase{LineType::Cut, {14, DrawStyle::Solid, 1}, {0, DrawStyle::Solid, 3}},
        PenCase{LineType::Fold, {13, DrawStyle::Solid, 1}, {0, DrawStyle::Solid, 1}},
        PenCase{LineType::Mark, {11, DrawStyle::Solid, 1}, {0, DrawStyle::Solid, 1}},
        PenCase{LineType::GridLeader, {11, DrawStyle::Dotted, 1}, {0, DrawStyle::Dotted, 1}},
        PenCase{LineType::Diagonal, {11, DrawStyle::Dotted, 1}, {0, DrawStyle::Dotted, 1}},
        PenCase{LineType::SheetMark, {0xFF00FF, DrawStyle::Solid, 1}, {0, DrawStyle::Solid, 5}},
        PenCase{LineType::FrameNotChosen, {0x00FFFF, DrawStyle::Solid, 1}, {0, DrawStyle::Solid, 1}},
        PenCase{LineType::FrameChosen, {0x00FF00, DrawStyle::Solid, 1}, {0, DrawStyle::Solid, 8}}));

TEST(DisplayColors, StandardOnesAreYellowCyanRedAndGreenOnBlack) {
    const DisplayColors colors;
    EXPECT_EQ(colors.DisplayDimensionColor, 65535);
    EXPECT_EQ(colors.DisplayBorderColor, 16776960);
    EXPECT_EQ(colors.DisplayFoldColor, 16776960);
    EXPECT_EQ(colors.DisplayCutColor, 255);
    EXPECT_EQ(colors.DisplayTextColor, 65280);
    EXPECT_EQ(colors.DisplayBackColor, 0);
}

TEST(Polyline, GoesToTheDeviceInOneCallAndIsEmptyAfterwards) {
    RecordingDevice device(400, 200);
    CPolyline line(device, OnePixelToAUnit);
    line.Type = LineType::Fold;
    line.Point(0, 0);
    line.Point(10, 50);
    line.Point(400, 200);
    line.Draw({});
    ASSERT_EQ(device.calls.size(), 1U);
    EXPECT_EQ(device.calls[0].pen, (Pen{Cyan, DrawStyle::Solid, 1}));
    EXPECT_EQ(device.calls[0].points, (std::vector<PixelPoint>{{0, 200}, {10, 150}, {400, 0}}));

    line.Point(1, 1);
    line.Draw({});
    EXPECT_EQ(device.calls[1].points, (std::vector<PixelPoint>{{1, 199}}));
}

TEST(Polyline, EmptyOneIsACallWithoutPoints) {
    RecordingDevice device(400, 200);
    CPolyline line(device, OnePixelToAUnit);
    line.Draw({});
    ASSERT_EQ(device.calls.size(), 1U);
    EXPECT_EQ(device.calls[0].kind, RecordingDevice::Kind::Polyline);
    EXPECT_TRUE(device.calls[0].points.empty());
}

TEST(Polyline, OnPaperOutlinesAreBlackAndThreePixelsWide) {
    RecordingDevice device(400, 200);
    CPolyline line(device, OnePixelToAUnit);
    line.PrintRequested = true;
    line.Draw({});
    EXPECT_EQ(device.calls[0].pen, (Pen{Black, DrawStyle::Solid, 3}));
}

TEST(Polyline, RefusesAWindowWithoutSize) {
    RecordingDevice device(400, 200);
    EXPECT_THROW(CPolyline(device, {0, 0, 0, 0}), ArithmeticError);
}

TEST(Box, HasFourSidesInTheirOrder) {
    RecordingDevice device(400, 200);
    DrawBox(device, OnePixelToAUnit, {10, 20, 5, 0}, {40, 60, 7, 0}, Green);
    ASSERT_EQ(device.calls.size(), 4U);
    // y runs upward in the world and downward on the device: 200 - 20 = 180, 200 - 60 = 140.
    const std::vector<std::vector<PixelPoint>> sides = {
        {{10, 180}, {40, 180}}, {{40, 180}, {40, 140}}, {{40, 140}, {10, 140}}, {{10, 140}, {10, 180}}};
    for (std::size_t i = 0; i < sides.size(); ++i) {
        EXPECT_EQ(device.calls[i].points, sides[i]);
        EXPECT_EQ(device.calls[i].pen, (Pen{Green, DrawStyle::Solid, 1}));
    }
}

}  // namespace
}  // namespace korvet
