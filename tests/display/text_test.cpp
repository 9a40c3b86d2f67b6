#include "display/text.h"

#include <gtest/gtest.h>

#include "core/checked.h"
#include "tests/display/display_log.h"

namespace korvet {
namespace {

constexpr C3DPoint Anchor = {100, 100, 0, PlainStation};  // pixel 100, 100

/// "AB" in 10 points: 16 pixels wide and 16 high, and a unit is a pixel.
CText TwoLetters(RecordingDevice& device) {
    CText text(device, OnePixelToAUnit);
    text.TextSize = 10;
    text.TextString = "AB";
    text.TextColor = Green;
    return text;
}

PixelPoint CornerOf(const RecordingDevice& device) {
    return device.calls.back().points.front();
}

struct CornerCase {
    Justification justification;
    PixelPoint horizontal;
    PixelPoint vertical;
};

class Justified : public testing::TestWithParam<CornerCase> {};

TEST_P(Justified, HorizontalTextHasItsBoxAboutThePoint) {
    RecordingDevice device;
    TwoLetters(device).HorizontalText(Anchor, GetParam().justification);
    EXPECT_EQ(CornerOf(device), GetParam().horizontal);
}

TEST_P(Justified, VerticalTextHasTheBoxTurnedAboutThePoint) {
    RecordingDevice device;
    TwoLetters(device).VerticalText(Anchor, GetParam().justification);
    EXPECT_EQ(CornerOf(device), GetParam().vertical);
}

// Upright, the corner lies w to the left and h up; a quarter turn carries left to down and up to left.
INSTANTIATE_TEST_SUITE_P(AllNine, Justified,
                         testing::Values(CornerCase{Justification::TopLeft, {100, 100}, {100, 100}},
                                         CornerCase{Justification::TopRight, {84, 100}, {100, 116}},
                                         CornerCase{Justification::TopCentre, {92, 100}, {100, 108}},
                                         CornerCase{Justification::MiddleLeft, {100, 92}, {92, 100}},
                                         CornerCase{Justification::MiddleRight, {84, 92}, {92, 116}},
                                         CornerCase{Justification::MiddleCentre, {92, 92}, {92, 108}},
                                         CornerCase{Justification::BottomLeft, {100, 84}, {84, 100}},
                                         CornerCase{Justification::BottomRight, {84, 84}, {84, 116}},
                                         CornerCase{Justification::BottomCentre, {92, 84}, {84, 108}}));

TEST(Text, HorizontalCallHasTheStringFontAndColour) {
    RecordingDevice device;
    TwoLetters(device).HorizontalText(Anchor, Justification::TopLeft);
    ASSERT_EQ(device.calls.size(), 1U);
    EXPECT_EQ(device.calls[0].text, "AB");
    EXPECT_EQ(device.calls[0].font, (TextFont{-13, 0}));  // 960 / 72 = 13.33, cut
    EXPECT_EQ(device.calls[0].color, Green);
}

TEST(Text, VerticalOneIsTurnedByNinetyDegrees) {
    RecordingDevice device;
    TwoLetters(device).VerticalText(Anchor, Justification::TopLeft);
    EXPECT_EQ(device.calls[0].font.lfEscapement, 900);
}

TEST(Text, IsBlackOnPaper) {
    RecordingDevice device;
    CText text = TwoLetters(device);
    text.Printing = true;
    text.HorizontalText(Anchor, Justification::TopLeft);
    EXPECT_EQ(device.calls[0].color, Black);
}

TEST(Text, HeightIsCutToWholePixelsTowardsZero) {
    RecordingDevice device;
    CText text = TwoLetters(device);
    text.TextSize = 11;  // 1056 / 72 = 14.67
    text.HorizontalText(Anchor, Justification::TopLeft);
    EXPECT_EQ(device.calls[0].font.lfHeight, -14);
}

TEST(Text, HeightFollowsTheDevice) {
    RecordingDevice device;
    device.dpi = 600;
    TwoLetters(device).HorizontalText(Anchor, Justification::TopLeft);
    EXPECT_EQ(device.calls[0].font.lfHeight, -83);  // 6000 / 72 = 83.33
}

TEST(Text, SmallSizesAreDrawnAtOnePoint) {
    RecordingDevice device;
    CText text = TwoLetters(device);
    for (const float size : {0.4F, 0.0F, -0.4F}) {
        text.TextSize = size;
        text.HorizontalText(Anchor, Justification::BottomRight);
        EXPECT_EQ(device.calls.back().font.lfHeight, -1) << size;   // 96 / 72, cut
        EXPECT_EQ(CornerOf(device), (PixelPoint{98, 98})) << size;  // 1.6 pixels each way
    }
    EXPECT_EQ(DrawnTextSize(1), 1);
}

TEST(Text, LargeSizesAreCutToTenThousandPoints) {
    RecordingDevice device;
    CText text = TwoLetters(device);
    text.TextSize = 20000;
    text.HorizontalText(Anchor, Justification::TopRight);
    EXPECT_EQ(device.calls[0].font.lfHeight, -13333);
    EXPECT_EQ(CornerOf(device), (PixelPoint{100 - 16000, 100}));
}

TEST(AlignedText, IsTheLengthOnTheMiddleAlongTheLine) {
    RecordingDevice device;
    CText text = TwoLetters(device);
    text.AlignedText({100, 100, 0, 0}, {130, 140, 0, 0}, Justification::TopLeft);
    EXPECT_EQ(device.calls[0].text, "50");
    EXPECT_EQ(device.calls[0].font.lfEscapement, 531);  // 53.13 degrees
    EXPECT_EQ(CornerOf(device), (PixelPoint{115, 80}));
    EXPECT_EQ(text.TextString, "50");
}

TEST(AlignedText, StandsOnItsHeadOnALineThatRunsLeftward) {
    RecordingDevice device;
    CText text = TwoLetters(device);
    text.AlignedText({130, 100, 0, 0}, {100, 100, 0, 0}, Justification::BottomCentre);
    EXPECT_EQ(device.calls[0].text, "30");
    EXPECT_EQ(device.calls[0].font.lfEscapement, 1800);
    // The corner, 8 left of and 16 above the middle (115, 100), comes to be 8 right of and 16 below it.
    EXPECT_EQ(CornerOf(device), (PixelPoint{123, 116}));
}

TEST(AlignedText, RoundsToTheDecimals) {
    RecordingDevice device;
    CText text = TwoLetters(device);
    text.Decimals = 3;
    text.AlignedText({0, 0, 0, 0}, {1, 1, 0, 0}, Justification::MiddleCentre);
    EXPECT_EQ(device.calls[0].text, "1.414");
    text.Decimals = 0;
    text.AlignedText({0, 0, 0, 0}, {2.5, 0, 0, 0}, Justification::MiddleCentre);
    EXPECT_EQ(device.calls[1].text, "2");
}

TEST(Text, RefusesADeviceWithoutSize) {
    RecordingDevice device(0, 0);
    EXPECT_THROW(TwoLetters(device).HorizontalText(Anchor, Justification::MiddleCentre), ArithmeticError);
}

}  // namespace
}  // namespace korvet
