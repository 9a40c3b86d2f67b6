// The parameter file, line by line.
#include "exchange/kvt_file.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/constants.h"
#include "tests/support/memory_file_store.h"

namespace korvet {
namespace {

using Lines = std::vector<std::string>;

std::string Joined(const Lines& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

Lines SplitLines(const std::string& text) {
    Lines lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = text.find("\r\n", at);
        lines.push_back(text.substr(at, end - at));
        at = end + 2;
    }
    return lines;
}

/// A file with something in every section.
CKvtFile FullFile() {
    CKvtFile file;
    file.FileName = "a.Kvt";
    file.Category = "Right Cone";
    file.Dtype = 1;
    file.ViewPoint = {true, 1.25, -3, 40, QuarterTurn, QuarterTurn};
    file.PatternSettings.Thickness = 1.2;
    file.PatternSettings.segs = 36;
    file.PatternSettings.JoinAngle = 12.5;
    file.PatternSettings.InOutMean = 2;
    file.PatternSettings.PositionString = "outside";
    file.PatternSettings.LapEnable = 7;
    file.PatternSettings.JoinType = 1;
    file.PatternSettings.LapSize0 = 5;
    file.PatternSettings.LapSize1 = 6.5;
    file.PatternSettings.LapSize2 = 7;
    file.PatternSettings.HalfPattern = true;
    file.Controls.txtParameter = {"300", "120.0", "1e2"};
    file.Controls.optPatternSelect = {true, false};
    file.RotationPoint = {1, 2, 0, 0};
    file.RotationAngle = 0.1;
    file.MovePoint1 = {1, 2, 0, 0};
    file.MovePoint2 = {3, 4, 0, 0};
    file.FrameRequested = true;
    file.LabelPoint = C3DPoint{10, -20, 0, 0};
    file.DimensionList.emplace().Add({1, 1, 2, 1, 25, 3});
    file.Comment1 = "first comment";
    return file;
}

const Lines FullFileLines = {"Korvet Development-3.3.3",
                             "Right Cone",
                             "1",
                             "End Header",
                             " ",
                             "Start ViewPoint",
                             "1.5707963267949",
                             "1.5707963267949",
                             "40",
                             "-3",
                             "1.25",
                             "True",
                             "End ViewPoint",
                             " ",
                             "Start Pattern Settings",
                             "1.2",
                             "36",
                             "12.5",
                             "False",
                             "0",
                             "True",
                             "2",
                             "200",
                             "150",
                             "No Border",
                             " ",
                             "7",
                             "1",
                             "5",
                             "6.5",
                             "7",
                             "0",
                             "False",
                             "outside",
                             "0",
                             "False",
                             "End Pattern Settings",
                             " ",
                             "Start Standard TextBoxes",
                             "300",
                             "120.0",
                             "1e2",
                             "End Standard TextBoxes",
                             " ",
                             "Start Angle Option Buttons",
                             "End Angle Option Buttons",
                             " ",
                             "Start Pattern Select Option Buttons",
                             "True",
                             "False",
                             "End Pattern Select Option Buttons",
                             " ",
                             "Start Flush Side Option Buttons",
                             "End Flush Side Option Buttons",
                             " ",
                             "Start Rotation",
                             "1",
                             "2",
                             "0",
                             "0.1",
                             "End Rotation",
                             " ",
                             "Start Move",
                             "1",
                             "2",
                             "0",
                             "3",
                             "4",
                             "0",
                             "End Move",
                             " ",
                             "Start Requests",
                             "False",
                             "False",
                             "False",
                             "True",
                             "False",
                             "End Requests",
                             "",
                             "Start LabelPoint",
                             "10",
                             "-20",
                             "0",
                             "End LabelPoint",
                             " ",
                             "Start Dimensions",
                             "3",
                             "25",
                             "1",
                             "2",
                             "1",
                             "1",
                             "End Dimensions",
                             " ",
                             "Start Comments",
                             "first comment",
                             "",
                             "End Comments",
                             " "};

/// A file object with room for the controls of FullFile.
CKvtFile Reader() {
    CKvtFile file;
    file.Controls.txtParameter.resize(3);
    file.Controls.optPatternSelect.resize(2);
    return file;
}

CKvtFile Parsed(const Lines& lines) {
    CKvtFile file = Reader();
    file.Parse(Joined(lines), 24);
    return file;
}

/// FullFileLines with line `number` (from 1) replaced.
Lines WithLine(std::size_t number, const std::string& text) {
    Lines lines = FullFileLines;
    lines.at(number - 1) = text;
    return lines;
}

TEST(KvtWriter, LaysOutEveryLine) {
    EXPECT_EQ(SplitLines(FullFile().Compose('.')), FullFileLines);
}

TEST(KvtWriter, EndsEveryLineWithCrLf) {
    EXPECT_EQ(FullFile().Compose('.'), Joined(FullFileLines));
}

TEST(KvtWriter, SavesInOneFlushedStep) {
    MemoryFileStore files;
    FullFile().SaveFile(files, '.');
    ASSERT_EQ(files.writes.size(), 1U);
    EXPECT_EQ(files.writes[0].flush, Flush::Yes);
    EXPECT_EQ(files.files["a.Kvt"], Joined(FullFileLines));
}

TEST(KvtWriter, AFailedSaveLeavesTheOldFile) {
    MemoryFileStore files;
    files.files["a.Kvt"] = "old";
    files.unwritable.insert("a.Kvt");
    EXPECT_THROW(FullFile().SaveFile(files, '.'), FileError);
    EXPECT_EQ(files.files["a.Kvt"], "old");
}

TEST(KvtWriter, KeepsTypedTextOnItsLine) {
    CKvtFile file = FullFile();
    file.Comment1 = "two\r\nlines";
    const Lines lines = SplitLines(file.Compose('.'));
    EXPECT_EQ(lines.size(), FullFileLines.size());
    EXPECT_EQ(lines[FullFileLines.size() - 4], "two  lines");
}

TEST(KvtWriter, UsesTheDecimalMarkOfTheLocaleAndReadsBoth) {
    EXPECT_EQ(SplitLines(FullFile().Compose(','))[15], "1,2");
    CKvtFile file = Reader();
    file.Parse(FullFile().Compose(','), 24);
    EXPECT_EQ(file.PatternSettings.Thickness, 1.2);
    file.Parse(Joined(FullFileLines), 24);
    EXPECT_EQ(file.PatternSettings.Thickness, 1.2);
}

TEST(KvtReader, GivesBackEverything) {
    const CKvtFile file = Parsed(FullFileLines);
    EXPECT_EQ(file.Product, "Korvet Development");
    EXPECT_EQ(file.Version, "3.3.3");
    EXPECT_EQ(file.VersionNo * 100 + file.SubVersion * 10 + file.SubVersionIndex, 333);
    EXPECT_EQ(file.Category, "Right Cone");
    EXPECT_EQ(file.Dtype, 1);
    EXPECT_EQ(file.PatternSettings.LapSize1, 6.5);
    EXPECT_EQ(file.PatternSettings.PositionString, "outside");
    EXPECT_EQ(file.Controls.txtParameter[1], "120.0");
    EXPECT_EQ(file.Controls.optPatternSelect[0], true);
    EXPECT_EQ(file.Controls.optPatternSelect[1], false);
    EXPECT_EQ(file.MovePoint2.y, 4);
    EXPECT_TRUE(file.FrameRequested);
    EXPECT_EQ(file.LabelPoint->y, -20);
    ASSERT_TRUE(file.DimensionList);
    EXPECT_EQ(file.DimensionList->Item(1).PointNo2, 25);
    EXPECT_EQ(file.DimensionList->Item(1).ListNo2, 2);
    EXPECT_EQ(file.Comment1, "first comment");
    CKvtFile again = file;
    again.FileName = "b.Kvt";
    EXPECT_EQ(SplitLines(again.Compose('.')), FullFileLines);
}

TEST(KvtReader, AnAngleOfTheProgramComesBackToTheLastBit) {
    const CKvtFile file = Parsed(FullFileLines);
    EXPECT_EQ(file.ViewPoint.FromXY, QuarterTurn);
    EXPECT_EQ(Parsed(WithLine(8, "-1.5707963267949")).ViewPoint.FromXY, -QuarterTurn);
    EXPECT_EQ(Parsed(WithLine(8, "4.71238898038469")).ViewPoint.FromXY, ThreeQuarterTurns);
    EXPECT_EQ(Parsed(WithLine(8, "3.14159265358979")).ViewPoint.FromXY, PI);
    EXPECT_EQ(Parsed(WithLine(8, "1.5707963267948")).ViewPoint.FromXY, 1.5707963267948);
}

TEST(KvtReader, AStoredZeroIsAnOldPlanView) {
    EXPECT_EQ(Parsed(WithLine(7, "0")).ViewPoint.AroundZ, -QuarterTurn);
    EXPECT_EQ(Parsed(WithLine(8, "0")).ViewPoint.FromXY, 0);
}

TEST(KvtReader, OldVersionsHoldOneLapSize) {
    for (const std::string version : {"3.2.9", "2.3.3", "4.0.0", "", "3", "x.y.z"}) {
        Lines lines = WithLine(1, "Korvet Development-" + version);
        lines.erase(lines.begin() + 29, lines.begin() + 31);
        const CKvtFile file = Parsed(lines);
        EXPECT_EQ(file.PatternSettings.LapSize0, 5) << version;
        EXPECT_EQ(file.PatternSettings.LapSize1, 5) << version;
        EXPECT_EQ(file.PatternSettings.LapSize2, 5) << version;
        EXPECT_EQ(file.PatternSettings.PositionString, "outside") << version;
    }
}

TEST(KvtReader, VersionDigitsAreSingle) {
    const CKvtFile file = Parsed(WithLine(1, "Korvet Development-3.4.71"));
    EXPECT_EQ(file.SubVersion, 4);
    EXPECT_EQ(file.SubVersionIndex, 7);
    EXPECT_EQ(file.PatternSettings.LapSize2, 7);
}

TEST(KvtReader, AForeignProductIsTold) {
    EXPECT_THROW(Parsed(WithLine(1, "Another Program-3.3.3")), ForeignProductError);
    CKvtFile file = Reader();
    EXPECT_THROW(file.Parse("", 24), ForeignProductError);
    EXPECT_THROW(file.ParseHeader("Korvet\r\n"), ForeignProductError);
}

TEST(KvtReader, TheProductsNameAloneIsThatOfAnotherProduct) {
    CKvtFile file = Reader();
    for (const std::string line : {"Korvet Development", "  Korvet Development  ", "Korvet Developmen"}) {
        EXPECT_THROW(file.ParseHeader(line + "\r\nRight Cone\r\n1\r\n"), ForeignProductError) << line;
    }
    EXPECT_EQ(file.Product, "");
    file.ParseHeader("Korvet Development-\r\nRight Cone\r\n1\r\n");
    EXPECT_EQ(file.Product, "Korvet Development");
    EXPECT_EQ(file.VersionNo, 0);
}

TEST(KvtReader, NoDimensionLeavesTheListUnset) {
    Lines lines = FullFileLines;
    const auto first = std::find(lines.begin(), lines.end(), "Start Dimensions") + 1;
    lines.erase(first, first + 6);
    EXPECT_FALSE(Parsed(lines).DimensionList);
}

TEST(KvtReader, ALabelWithoutNumbersIsNone) {
    Lines lines = FullFileLines;
    const auto first = std::find(lines.begin(), lines.end(), "Start LabelPoint") + 1;
    lines.erase(first, first + 3);
    EXPECT_FALSE(Parsed(lines).LabelPoint);
}

TEST(KvtReader, AnEndMarkerEndsTheWholeOptionSection) {
    // A window with both angle groups reads a file that has an empty section: nothing behind it may be lost.
    CKvtFile file = Reader();
    file.Controls.optTopAngle.resize(2);
    file.Controls.optBaseAngle.resize(2);
    file.Parse(Joined(FullFileLines), 24);
    EXPECT_FALSE(file.Controls.optTopAngle[0]);
    EXPECT_FALSE(file.Controls.optBaseAngle[0]);
    EXPECT_EQ(file.Controls.optPatternSelect[0], true);
}

TEST(KvtReader, AWordThatIsNoBooleanEndsItsGroupOnly) {
    Lines lines = FullFileLines;
    const auto at = std::find(lines.begin(), lines.end(), "Start Angle Option Buttons") + 1;
    const Lines options = {"perhaps", "False", "TRUE"};
    lines.insert(at, options.begin(), options.end());
    CKvtFile file = Reader();
    file.Controls.optTopAngle.resize(2);
    file.Controls.optBaseAngle.resize(2);
    file.Parse(Joined(lines), 24);
    EXPECT_FALSE(file.Controls.optTopAngle[0]);
    EXPECT_EQ(file.Controls.optBaseAngle[0], false);
    EXPECT_EQ(file.Controls.optBaseAngle[1], true);
}

TEST(KvtReader, FewerBoxesTakeTheEndMarkerAsText) {
    CKvtFile file;
    file.Controls.txtParameter.resize(4);
    file.Controls.optPatternSelect.resize(2);
    file.Parse(Joined(FullFileLines), 24);
    EXPECT_EQ(file.Controls.txtParameter[3], "End Standard TextBoxes");
}

TEST(KvtReader, TrimsBlanksAndTakesBareLineFeeds) {
    std::string text;
    for (const std::string& line : FullFileLines) {
        text += "  " + line + "\t\n";
    }
    CKvtFile file = Reader();
    file.Parse(text, 24);
    EXPECT_EQ(file.Comment1, "first comment");
}

TEST(KvtReader, BooleansMayBeNumbers) {
    EXPECT_TRUE(Parsed(WithLine(12, "-1")).ViewPoint.Patternview);
    EXPECT_FALSE(Parsed(WithLine(12, "0")).ViewPoint.Patternview);
    EXPECT_TRUE(Parsed(WithLine(12, "tRUE")).ViewPoint.Patternview);
}

TEST(KvtReader, NamesTheLineOfAFault) {
    const std::vector<std::pair<std::size_t, std::string>> faults = {
        {3, "one"},      {7, "nan"},    {8, "inf"},    {11, "1e400"}, {12, "yes"},      {16, ""},
        {17, "0"},       {17, "-4"},    {17, "2.5"},   {17, "abc"},   {17, "10000000"}, {17, "100001"},
        {18, "1,234.5"}, {22, "3"},     {27, "99999"}, {28, "x"},     {29, "0x10"},     {33, "maybe"},
        {57, "--1"},     {60, "Start"}, {73, ""},      {82, "1 2"},   {87, "2.0"},      {88, "1e3"}};
    for (const auto& [number, text] : faults) {
        try {
            Parsed(WithLine(number, text));
            ADD_FAILURE() << "line " << number << " was taken: " << text;
        } catch (const ParameterFileError& error) {
            EXPECT_EQ(std::string(error.what()).find("line " + std::to_string(number) + ":"), 0U)
                << error.what();
        }
    }
}

TEST(KvtReader, ATruncatedFileIsRefusedWhereverItIsCut) {
    const std::string whole = Joined(FullFileLines);
    const std::size_t contentEnd = whole.find("End Comments") + std::string("End Comments").size();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        CKvtFile file = Reader();
        if (length < contentEnd) {
            EXPECT_THROW(file.Parse(whole.substr(0, length), 24), ParameterFileError) << length;
        } else {
            EXPECT_NO_THROW(file.Parse(whole.substr(0, length), 24)) << length;
        }
    }
}

TEST(KvtReader, WhatStoodBeforeAFaultIsKept) {
    CKvtFile file = Reader();
    EXPECT_THROW(file.Parse(Joined(WithLine(57, "x")), 24), ParameterFileError);
    EXPECT_EQ(file.Controls.txtParameter[2], "1e2");
}

TEST(KvtReader, ReadsWindows1252AndUtf8) {
    MemoryFileStore files;
    for (const std::string bytes : {"Stra\xDF"
                                    "e",
                                    "Stra\xC3\x9F"
                                    "e"}) {
        files.files["a.Kvt"] = Joined(WithLine(FullFileLines.size() - 3, bytes));
        CKvtFile file = Reader();
        file.FileName = "a.Kvt";
        file.LoadFile(files, 24);
        EXPECT_EQ(file.Comment1,
                  "Stra\xC3\x9F"
                  "e");
    }
}

TEST(KvtWriter, WritesWindows1252WhereItCan) {
    MemoryFileStore files;
    CKvtFile file = FullFile();
    file.Comment1 =
        "Stra\xC3\x9F"
        "e";
    file.SaveFile(files, '.');
    EXPECT_NE(files.files["a.Kvt"].find("Stra\xDF"
                                        "e"),
              std::string::npos);
    file.Comment1 = "\xE6\x9D\xBF";  // a Chinese character has no place there
    file.SaveFile(files, '.');
    EXPECT_NE(files.files["a.Kvt"].find("\xE6\x9D\xBF"), std::string::npos);
}

}  // namespace
}  // namespace korvet
