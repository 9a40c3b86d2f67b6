#include "window/measure.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

#include "core/checked.h"
#include "tests/support/recording_ui.h"

namespace korvet {
namespace {

/// The lines of the only box.
std::vector<std::string> Lines(const RecordingUi& ui) {
    std::vector<std::string> lines;
    std::string rest = ui.messages.at(0).text;
    while (!rest.empty()) {
        const std::size_t end = rest.find("\r\n");
        lines.push_back(rest.substr(0, end));
        rest.erase(0, end == std::string::npos ? end : end + 2);
    }
    return lines;
}

TEST(Measure, TellsDistanceBearingPointsAndDifferences) {
    RecordingUi ui;
    CMeasure{{1, 2, 3, 0}, {4, 6, 15, 0}, 1, '.'}.DisplayDistance(ui);  // 3, 4, 12: a diagonal of 13
    EXPECT_EQ(Lines(ui), (std::vector<std::string>{"Distance = 13", "Angle = 53.1", "  ",
                                                   "Point 1:", "    X = 1", "    Y = 2", "    Z = 3", "  ",
                                                   "Point 2:", "    X = 4", "    Y = 6", "    Z = 15", "  ",
                                                   "Distance X = 3", "Distance Y = 4", "Distance Z = 12"}));
    EXPECT_TRUE(ui.messages[0].text.ends_with("Z = 12\r\n"));
    EXPECT_EQ(ui.messages[0].style, InformationBox);
    EXPECT_EQ(ui.messages[0].title, "Korvet Development");
}

TEST(Measure, ThePointItselfIsNoDistanceAway) {
    RecordingUi ui;
    CMeasure{{7, 8, 9, 0}, {7, 8, 9, 0}, 1, '.'}.DisplayDistance(ui);
    EXPECT_EQ(Lines(ui)[0], "Distance = 0");
    EXPECT_EQ(Lines(ui)[1], "Angle = 0");
}

TEST(Measure, TheBearingRunsRoundWithoutASign) {
    for (const auto& [end, angle] : {std::pair{C3DPoint{-1, 0, 0, 0}, "Angle = 180"},
                                     {C3DPoint{0, -1, 0, 0}, "Angle = 270"},
                                     {C3DPoint{1, -1, 50, 0}, "Angle = 315"},
                                     {C3DPoint{265, -5e-14, 0, 0}, "Angle = 0"}}) {
        RecordingUi ui;
        CMeasure{{0, 0, 0, 0}, end, 1, '.'}.DisplayDistance(ui);
        EXPECT_EQ(Lines(ui)[1], angle);
    }
}

TEST(Measure, ABearingThatRoundsToAWholeTurnIsNone) {
    for (const auto& [end, decimals, angle] : {std::tuple{C3DPoint{1000, -0.5, 0, 0}, 1, "Angle = 0"},
                                               {C3DPoint{1000, -0.5, 0, 0}, 2, "Angle = 359.97"},
                                               {C3DPoint{1000, -5, 0, 0}, 0, "Angle = 0"},
                                               {C3DPoint{1000, -5, 0, 0}, 1, "Angle = 359.7"}}) {
        RecordingUi ui;
        CMeasure{{0, 0, 0, 0}, end, decimals, '.'}.DisplayDistance(ui);
        EXPECT_EQ(Lines(ui)[1], angle);
    }
}

TEST(Measure, NumbersAreRoundedHalfToEvenAndTakeTheDecimalMark) {
    RecordingUi ui;
    CMeasure{{0.125, 0.375, -0.001, 0}, {0.125, 100.375, 0, 0}, 2, ','}.DisplayDistance(ui);
    EXPECT_EQ(Lines(ui)[4], "    X = 0,12");
    EXPECT_EQ(Lines(ui)[5], "    Y = 0,38");
    EXPECT_EQ(Lines(ui)[6], "    Z = 0");
    EXPECT_EQ(Lines(ui)[10], "    Y = 100,38");
}

TEST(Measure, APointIsToldUnrounded) {
    RecordingUi ui;
    CMeasure{{0.125, -2.0 / 3, 1e20, 0}, {}, 1, '.'}.DisplayPoint(ui);
    EXPECT_EQ(Lines(ui), (std::vector<std::string>{"X = 0.125", "Y = -0.666666666666667", "Z = 1e+20"}));
    EXPECT_EQ(ui.messages[0].style, PlainBox);
}

TEST(Measure, WhatIsNotFiniteIsNotTold) {
    RecordingUi ui;
    const C3DPoint far = {std::numeric_limits<double>::max(), 0, 0, 0};
    EXPECT_THROW((CMeasure{{0, 0, 0, 0}, far, 1, '.'}.DisplayDistance(ui)), ArithmeticError);
    EXPECT_TRUE(ui.messages.empty());
}

}  // namespace
}  // namespace korvet
