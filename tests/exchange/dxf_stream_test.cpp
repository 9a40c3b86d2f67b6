#include "exchange/dxf_stream.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <sstream>

#include "core/checked.h"
#include "core/constants.h"
#include "tests/exchange/dxf_reading.h"

namespace korvet {
namespace {

using dxf_reading::CrLf;
using dxf_reading::Points;

/// The text of the entities alone: what a stream holds between the start and the end of its section.
template <typename Write>
std::string EntitiesOf(Write write, double textSize = 0) {
    DxfStream out(textSize);
    write(out);
    const std::string text = out.Finish();
    const std::string start = CrLf({"0", "SECTION", "2", "ENTITIES"});
    const std::string end = CrLf({"0", "ENDSEC", "0", "EOF"});
    EXPECT_TRUE(text.starts_with(start) && text.ends_with(end)) << text;
    return text.substr(start.size(), text.size() - start.size() - end.size());
}

TEST(DxfStream, AnEmptyFileIsOneEmptySection) {
    DxfStream out(2.5);
    EXPECT_EQ(out.Finish(), "0\r\nSECTION\r\n2\r\nENTITIES\r\n0\r\nENDSEC\r\n0\r\nEOF\r\n");
}

TEST(DxfStream, ALineHasBothPointsWithTheirHeights) {
    EXPECT_EQ(EntitiesOf([](DxfStream& out) {
                  out.WriteLine({1, 2.5, -3}, {-0.25, 0, 1e6}, "CUT");
              }),
              CrLf({"0", "LINE", "8", "CUT", "10", " 1 ", "20", " 2.5 ", "30", "-3 ", "11", "-0.25 ", "21",
                    " 0 ", "31", " 1000000 "}));
}

TEST(DxfStream, AnArcTakesItsRadiusFromTheStartAndItsAnglesInDegrees) {
    // Centre 10, 20; the start 3, 4 away from it at atan(4 / 3) = 53.13010235 degrees, the end straight up.
    EXPECT_EQ(EntitiesOf([](DxfStream& out) {
                  out.WriteArc({13, 24}, {10, 25}, {10, 20}, "CUT");
              }),
              CrLf({"0", "ARC", "8", "CUT", "10", " 10 ", "20", " 20 ", "30", " 0 ", "40", " 5 ", "50",
                    " 53.130102 ", "51", " 90 "}));
}

TEST(DxfStream, ATextStandsAtItsPointTwiceWithItsSizeAndAngleUnrounded) {
    EXPECT_EQ(
        EntitiesOf(
            [](DxfStream& out) {
                out.WriteText("125.5", {1, -2, 0}, 1, "TXT", TextJustification::Centre);
            },
            0.12345678),
        // One radian is 57.2957795130823 degrees at 15 digits, with this program's PI a last digit more.
        CrLf({"0",  "TEXT", "8",  "TXT",          "10", " 1 ",   "20", "-2 ",
              "30", " 0 ",  "40", " 0.12345678 ", "11", " 1 ",   "21", "-2 ",
              "31", " 0 ",  "72", " 1 ",          "1",  "125.5", "50", " 57.2957795130824 "}));
}

TEST(DxfStream, AQuarterTurnOfTextIsNinetyDegrees) {
    const std::string text = EntitiesOf(
        [](DxfStream& out) { out.WriteText("5", {}, QuarterTurn, "T", TextJustification::Right); });
    EXPECT_TRUE(text.ends_with(CrLf({"72", " 2 ", "1", "5", "50", " 90 "}))) << text;
}

TEST(DxfStream, ControlCharactersInTextsAndLayersBecomeBlanks) {
    const std::string text = EntitiesOf(
        [](DxfStream& out) { out.WriteText("a\r\nb\tc\x7f", {}, 0, "L\n1", TextJustification::Left); });
    EXPECT_EQ(text,
              CrLf({"0",  "TEXT", "8",  "L 1", "10", " 0 ", "20", " 0 ", "30", " 0 ",     "40", " 0 ",
                    "11", " 0 ",  "21", " 0 ", "31", " 0 ", "72", " 0 ", "1",  "a  b c ", "50", " 0 "}));
}

/// A text and a layer name as they stand in the file.
std::pair<std::string, std::string> TextAndLayer(const std::string& text, const std::string& layer) {
    std::istringstream lines(
        EntitiesOf([&](DxfStream& out) { out.WriteText(text, {}, 0, layer, TextJustification::Left); }));
    std::map<std::string, std::string> groups;
    for (std::string code, value; std::getline(lines, code, '\r') && std::getline(lines, value, '\r');) {
        groups[code.substr(code.find_first_not_of('\n'))] = value.substr(1);
    }
    return {groups["1"], groups["8"]};
}

TEST(DxfStream, WhatIsNotAsciiIsEscapedInTextsAndLayers) {
    const auto [text, layer] = TextAndLayer("Gr\u00f6\u00dfe \u2300 \u677f~", "Schnitt \u00fc");
    EXPECT_EQ(text, "Gr\\U+00F6\\U+00DFe \\U+2300 \\U+677F~");
    EXPECT_EQ(layer, "Schnitt \\U+00FC");
}

TEST(DxfStream, ACharacterBeyondFourDigitsIsItsTwoUnits) {
    // U+1F527 less 0x10000 is 0xF527: the upper ten bits are 0x3D, the lower ten 0x127.
    EXPECT_EQ(TextAndLayer("\U0001F527", "L").first, "\\U+D83D\\U+DD27");
    EXPECT_EQ(TextAndLayer("\U0010FFFF", "L").first, "\\U+DBFF\\U+DFFF");
    EXPECT_EQ(TextAndLayer("\uffff\U00010000", "L").first, "\\U+FFFF\\U+D800\\U+DC00");
}

TEST(DxfStream, ATextThatHoldsAnEscapeKeepsIt) {
    EXPECT_EQ(TextAndLayer("\\U+00FC", "a\\M+1826E").first, "\\U+005CU+00FC");
    EXPECT_EQ(TextAndLayer("\\U+00FC", "a\\M+1826E").second, "a\\U+005CM+1826E");
    EXPECT_EQ(TextAndLayer("\\\\u+00fc\\m+", "L").first, "\\\\U+005Cu+00fc\\U+005Cm+");
    EXPECT_EQ(TextAndLayer("C:\\Users U+00FC \\U \\", "L").first, "C:\\Users U+00FC \\U \\");
}

TEST(DxfStream, WhatIsNoUtf8IsReadAsWindows1252) {
    EXPECT_EQ(TextAndLayer("\xFC\x80", "L").first, "\\U+00FC\\U+20AC");
    EXPECT_EQ(TextAndLayer("\xC2\x85|\x81", "L").first, "\\U+00C2\\U+2026| ");
}

TEST(DxfStream, ANewLineOfTheUpperControlCharactersIsABlank) {
    EXPECT_EQ(TextAndLayer("a\u0085b", "L").first, "a b");
}

TEST(DxfStream, APolylineHasAHeaderAtTheOriginAndAVertexPerPoint) {
    EXPECT_EQ(EntitiesOf([](DxfStream& out) { out.WritePolyline(Points("0 0,1.5 -2"), "CUT"); }),
              CrLf({"0", "POLYLINE", "8",  "CUT",   "66", "1",   "10", " 0 ", "20", " 0 ",    "30", " 0 ",
                    "0", "VERTEX",   "8",  "CUT",   "10", " 0 ", "20", " 0 ", "30", " 0 ",    "0",  "VERTEX",
                    "8", "CUT",      "10", " 1.5 ", "20", "-2 ", "30", " 0 ", "0",  "SEQEND", "8",  "CUT"}));
}

TEST(DxfStream, AMeshIsTwoRowsOfVertices) {
    EXPECT_EQ(EntitiesOf([](DxfStream& out) { out.WriteMesh(Points("0 0,1 0"), Points("0 5,1 5"), "FOLD"); }),
              CrLf({"0",  "POLYLINE", "8",  "FOLD", "66", "1",   "10", " 0 ",    "20", " 0 ",  "30", " 0 ",
                    "70", "16",       "71", "2",    "72", " 2 ", "0",  "VERTEX", "8",  "FOLD", "10", " 0 ",
                    "20", " 0 ",      "30", " 0 ",  "70", "64",  "0",  "VERTEX", "8",  "FOLD", "10", " 1 ",
                    "20", " 0 ",      "30", " 0 ",  "70", "64",  "0",  "VERTEX", "8",  "FOLD", "10", " 0 ",
                    "20", " 5 ",      "30", " 0 ",  "70", "64",  "0",  "VERTEX", "8",  "FOLD", "10", " 1 ",
                    "20", " 5 ",      "30", " 0 ",  "70", "64",  "0",  "SEQEND", "8",  "FOLD"}));
}

TEST(DxfStream, AMeshOfUnequalListsGoesUpToTheShorterOne) {
    const std::string text =
        EntitiesOf([](DxfStream& out) { out.WriteMesh(Points("0 0,1 0,2 0"), Points("0 5,1 5"), "FOLD"); });
    EXPECT_NE(text.find("72\r\n 2 \r\n"), std::string::npos);
    EXPECT_EQ(text.find("10\r\n 2 \r\n"), std::string::npos);
}

/// A number as a coordinate of a LINE.
std::string Coordinate(double value) {
    const std::string text = EntitiesOf([&](DxfStream& out) { out.WriteLine({value, 0}, {}, "L"); });
    const std::size_t start = std::string("0\r\nLINE\r\n8\r\nL\r\n10\r\n").size();
    return text.substr(start, text.find('\r', start) - start);
}

TEST(DxfStream, CoordinatesAreRoundedToSixPlacesHalvesToEven) {
    EXPECT_EQ(Coordinate(1.23456749), " 1.234567 ");
    EXPECT_EQ(Coordinate(2.0 / 3), " 0.666667 ");
    EXPECT_EQ(Coordinate(0.0000005), " 0 ");       // half of the last place, down to the even 0
    EXPECT_EQ(Coordinate(0.0000015), " 2e-06 ");   // and up to the even 2
    EXPECT_EQ(Coordinate(-0.0000025), "-2e-06 ");  // and down to the even 2
    EXPECT_EQ(Coordinate(0.00012), " 0.00012 ");
    EXPECT_EQ(Coordinate(123456789.123456), " 123456789.123456 ");
}

TEST(DxfStream, ANegativeZeroIsWrittenAsZero) {
    EXPECT_EQ(Coordinate(-0.0), " 0 ");
    EXPECT_EQ(Coordinate(-1e-9), " 0 ");
}

TEST(DxfStream, WhatIsNotFiniteIsRefused) {
    DxfStream out(std::numeric_limits<double>::infinity());
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_THROW(out.WriteLine({nan, 0}, {}, "L"), ArithmeticError);
    EXPECT_THROW(out.WriteText("x", {}, 0, "L", TextJustification::Left), ArithmeticError);
}

}  // namespace
}  // namespace korvet
