#include "display/drawing_record.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "tests/support/recording_device.h"

namespace korvet {
namespace {

using Kind = RecordingDevice::Kind;

constexpr std::array Path = {PixelPoint{10, 20}, PixelPoint{-5, 30}, PixelPoint{7, 7}};

TEST(DrawingRecord, PlaysLinesInTheirOrderAndThenTexts) {
    RecordingDevice device;
    DrawingRecord record(device);
    record.TextOut("one", {4, 5}, {-12, 900}, 77);
    record.Polyline({1, DrawStyle::Solid, 3}, Path);
    record.Polyline({2, DrawStyle::Dotted, 1}, {});
    record.TextOut("two", {6, 7}, {-13, 0}, 78);
    record.Polyline({3, DrawStyle::Dotted, 1}, std::span(Path).first(2));
    EXPECT_TRUE(device.calls.empty());
    record.PlayOn(device);
    ASSERT_EQ(device.calls.size(), 5U);
    EXPECT_EQ(device.calls[0].pen, (Pen{1, DrawStyle::Solid, 3}));
    EXPECT_THAT(device.calls[0].points, testing::ElementsAreArray(Path));
    EXPECT_EQ(device.calls[1].kind, Kind::Polyline);
    EXPECT_TRUE(device.calls[1].points.empty());
    EXPECT_EQ(device.calls[2].points.size(), 2U);
    EXPECT_EQ(device.calls[2].pen, (Pen{3, DrawStyle::Dotted, 1}));
    EXPECT_EQ(device.calls[3].text, "one");
    EXPECT_EQ(device.calls[3].points.at(0), (PixelPoint{4, 5}));
    EXPECT_EQ(device.calls[3].font, (TextFont{-12, 900}));
    EXPECT_EQ(device.calls[3].color, 77);
    EXPECT_EQ(device.calls[4].text, "two");
}

/// The texts that a record plays, after all of them have been drawn at (4, 5).
std::vector<std::string> Played(const TextFont& font, const std::vector<std::string>& texts) {
    RecordingDevice device;
    DrawingRecord record(device);
    for (const std::string& text : texts) {
        record.TextOut(text, {4, 5}, font, 77);
    }
    record.PlayOn(device);
    std::vector<std::string> played;
    for (const RecordingDevice::Call& call : device.calls) {
        played.push_back(call.text);
    }
    return played;
}

TEST(DrawingRecord, PlaysATextOnceThatLiesOnTheSame) {
    EXPECT_THAT(Played({-6, 900}, {"12", "13", "12", "123", "13"}), testing::ElementsAre("12", "13", "123"));
}

TEST(DrawingRecord, OfTextsThatCannotBeReadItPlaysOneOfEachLength) {
    EXPECT_THAT(Played({-5, 900}, {"12", "13", "12", "123", "13"}), testing::ElementsAre("12", "123"));
}

TEST(DrawingRecord, ATextElsewhereOrOfAnotherLookIsAnother) {
    RecordingDevice device;
    DrawingRecord record(device);
    for (int i = 0; i < 2; ++i) {
        record.TextOut("12", {4, 5}, {-3, 0}, 77);
        record.TextOut("12", {5, 5}, {-3, 0}, 77);
        record.TextOut("12", {4, 6}, {-3, 0}, 77);
        record.TextOut("12", {4, 5}, {-4, 0}, 77);
        record.TextOut("12", {4, 5}, {-3, 900}, 77);
        record.TextOut("12", {4, 5}, {-3, 0}, 78);
    }
    record.PlayOn(device);
    EXPECT_EQ(device.calls.size(), 6U);
    record.Clear();
    record.TextOut("12", {4, 5}, {-3, 0}, 77);
    record.PlayOn(device);
    EXPECT_EQ(device.calls.size(), 7U);
}

TEST(DrawingRecord, IsAsLargeAsTheNextPicture) {
    RecordingDevice device(400, 200);
    device.nextSize = PixelSize{100, 50};
    device.outerSize = {10, 5};
    device.dpi = 300;
    const DrawingRecord record(device);
    EXPECT_EQ(record.ScaleSize().width, 100);
    EXPECT_EQ(record.OuterSize().width, 10);
    EXPECT_EQ(record.LogicalDpiY(), 300);
    EXPECT_EQ(record.TextExtent("ab", 10).width, 16);
}

TEST(DrawingRecord, ExtentHoldsLinesAndTexts) {
    RecordingDevice device;
    DrawingRecord record(device);
    EXPECT_FALSE(record.Extent());
    record.Polyline({}, Path);
    EXPECT_EQ(record.Extent(), (Bounds{-5, 7, 10, 30}));
    // 10 points of 96 to the inch are 13 and a third pixels; 12 pixels are 9 points.
    record.TextOut("abcde", {100, 40}, {-12, 0}, 0);
    EXPECT_EQ(record.Extent(), (Bounds{-5, 7, 100 + 5 * 7.2, 40 + 14.4}));
    record.Clear();
    EXPECT_FALSE(record.Extent());
    record.TextOut("abcde", {100, 40}, {-12, 900}, 0);  // upward from its corner, its lines to the right
    const Bounds upward = record.Extent().value();
    EXPECT_NEAR(upward.minX, 100, 1e-9);
    EXPECT_NEAR(upward.maxX, 114.4, 1e-9);
    EXPECT_NEAR(upward.minY, 4, 1e-9);
    EXPECT_NEAR(upward.maxY, 40, 1e-9);
}

}  // namespace
}  // namespace korvet
