// The parameter file as it is read: what comes back, old versions, faults.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/exchange/kvt_lines.h"
#include "tests/support/memory_file_store.h"

namespace korvet {
namespace {

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

TEST(KvtReader, AFaultInAFileOfALaterVersionNamesTheVersion) {
    for (const std::string version : {"4.0.0", "3.10.0", "3.3.30", "10.0"}) {
        KvtLines lines = WithLine(1, "Korvet Development-" + version);
        lines.resize(12);
        try {
            (void)Parsed(lines);
            ADD_FAILURE() << version;
        } catch (const ParameterFileError& error) {
            EXPECT_EQ(
                std::string(error.what()).find("the file is of the later version " + version + ", line "), 0U)
                << error.what();
        }
    }
    for (const char* version : {"3.3.3", "3.3.2", "3.2.10", "2.14", "3", "x"}) {
        CKvtFile file;
        file.ParseHeader(JoinedLines(WithLine(1, std::string("Korvet Development-") + version)));
        EXPECT_FALSE(file.IsOfLaterVersion()) << version;
    }
}

TEST(KvtReader, AQuoteOfAFileEndsNoMessage) {
    try {
        (void)Parsed(WithLine(1, std::string("K\0o\0r", 5)));
        ADD_FAILURE();
    } catch (const ForeignProductError& error) {
        EXPECT_EQ(std::string(error.what()).find("line 1: \"K?o?r\" is not "), 0U) << error.what();
    }
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
        KvtLines lines = WithLine(1, "Korvet Development-" + version);
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
    KvtLines lines = FullFileLines;
    const auto first = std::find(lines.begin(), lines.end(), "Start Dimensions") + 1;
    lines.erase(first, first + 6);
    EXPECT_FALSE(Parsed(lines).DimensionList);
}

TEST(KvtReader, ALabelWithoutNumbersIsNone) {
    KvtLines lines = FullFileLines;
    const auto first = std::find(lines.begin(), lines.end(), "Start LabelPoint") + 1;
    lines.erase(first, first + 3);
    EXPECT_FALSE(Parsed(lines).LabelPoint);
}

TEST(KvtReader, AnEndMarkerEndsTheWholeOptionSection) {
    // A window with both angle groups reads a file that has an empty section: nothing behind it may be lost.
    CKvtFile file = Reader();
    file.Controls.optTopAngle.resize(2);
    file.Controls.optBaseAngle.resize(2);
    file.Parse(JoinedLines(FullFileLines), 24);
    EXPECT_FALSE(file.Controls.optTopAngle[0]);
    EXPECT_FALSE(file.Controls.optBaseAngle[0]);
    EXPECT_EQ(file.Controls.optPatternSelect[0], true);
}

TEST(KvtReader, AWordThatIsNoBooleanEndsItsGroupOnly) {
    KvtLines lines = FullFileLines;
    const auto at = std::find(lines.begin(), lines.end(), "Start Angle Option Buttons") + 1;
    const KvtLines options = {"perhaps", "False", "TRUE"};
    lines.insert(at, options.begin(), options.end());
    CKvtFile file = Reader();
    file.Controls.optTopAngle.resize(2);
    file.Controls.optBaseAngle.resize(2);
    file.Parse(JoinedLines(lines), 24);
    EXPECT_FALSE(file.Controls.optTopAngle[0]);
    EXPECT_EQ(file.Controls.optBaseAngle[0], false);
    EXPECT_EQ(file.Controls.optBaseAngle[1], true);
}

TEST(KvtReader, FewerBoxesTakeTheEndMarkerAsText) {
    CKvtFile file;
    file.Controls.txtParameter.resize(4);
    file.Controls.optPatternSelect.resize(2);
    file.Parse(JoinedLines(FullFileLines), 24);
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
    const std::string whole = JoinedLines(FullFileLines);
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
    EXPECT_THROW(file.Parse(JoinedLines(WithLine(57, "x")), 24), ParameterFileError);
    EXPECT_EQ(file.Controls.txtParameter[2], "1e2");
}

TEST(KvtReader, ReadsWindows1252AndUtf8) {
    MemoryFileStore files;
    for (const std::string bytes : {"Stra\xDF"
                                    "e",
                                    "Stra\xC3\x9F"
                                    "e"}) {
        files.files["a.Kvt"] = JoinedLines(WithLine(FullFileLines.size() - 3, bytes));
        CKvtFile file = Reader();
        file.FileName = "a.Kvt";
        file.LoadFile(files, 24);
        EXPECT_EQ(file.Comment1,
                  "Stra\xC3\x9F"
                  "e");
    }
}

}  // namespace
}  // namespace korvet
