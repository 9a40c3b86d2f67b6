#include "dialogs/options_file.h"

#include "tests/dialogs/options_file_fixture.h"
#include "tests/dialogs/other_options.h"

namespace korvet {
namespace {

TEST_F(OptionsFile, HasTwentyFiveLinesInTheirOrder) {
    options = OtherOptions();
    options.IniFileName = SettingsPath;
    options.PrintScale = -0.5;
    WriteIniFile(options, files, '.');
    EXPECT_EQ(
        files.files[SettingsPath],
        "3.b\r\n 60 \r\n 3 \r\nGerman\r\n 2.5 \r\n 103 \r\n 104 \r\n 105 \r\n 106 \r\n 101 \r\n 102 \r\n"
        "Text\r\nFold\r\nSchnittlinien \xC3\xBC\r\nBorder\r\nDimension\r\n 0.75 \r\n 200 \r\n 150 \r\n 1 "
        "\r\n 2 \r\n"
        "-0.5 \r\n 5 \r\n 1.01 \r\n 0.99 \r\n");
    ASSERT_EQ(files.writes.size(), 1U);
    EXPECT_EQ(files.writes[0].flush, Flush::Yes);
}

/// The order of the lines is pinned above: values that change places in reading come out elsewhere.
TEST_F(OptionsFile, ReadsBackEverythingThatItWrites) {
    for (const char mark : {'.', ','}) {
        COptions written = OtherOptions();
        written.IniFileName = SettingsPath;
        written.WindowState = 2;
        WriteIniFile(written, files, mark);
        const std::string bytes = files.files[SettingsPath];
        options = COptions();
        options.IniFileName = SettingsPath;
        Read(mark);
        EXPECT_EQ(options.DefaultSegs, 60);
        EXPECT_EQ(options.WindowState, -1) << "not in the file";
        EXPECT_EQ(options.IniFileName, SettingsPath);
        WriteIniFile(options, files, mark);
        EXPECT_EQ(files.files[SettingsPath], bytes);
    }
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(OptionsFile, WritesTheLocalesMarkAndReadsBoth) {
    options.DisplayTextSize = 2.5;
    WriteIniFile(options, files, ',');
    EXPECT_NE(files.files[SettingsPath].find("English\r\n 2,5 \r\n"), std::string::npos);

    std::vector<std::string> lines = DefaultLines();
    lines[4] = " 3.5 ";
    lines[23] = " 1,25 ";
    files.files[SettingsPath] = Joined(lines);
    Read(',');
    EXPECT_EQ(options.DisplayTextSize, 3.5);
    EXPECT_EQ(options.PrintXCalibration, 1.25);
}

TEST_F(OptionsFile, ALineBreakInALayerNameMovesNoOtherLine) {
    options.DXFTextLayer = "two\r\nlines";
    WriteIniFile(options, files, '.');
    Read();
    EXPECT_EQ(options.DXFTextLayer, "two  lines");
    EXPECT_EQ(options.DXFFoldLayer, "FoldLayer");
}

TEST_F(OptionsFile, ALayerNameThatNoDrawingHasGivesWayToTheBuiltInOne) {
    std::vector<std::string> lines = DefaultLines();
    lines[12] = "fold|lines";
    lines[15] = "a\x1b[2J";
    files.files[SettingsPath] = Joined(lines);
    options.DXFFoldLayer = "before";
    Read();
    EXPECT_EQ(options.DXFFoldLayer, "FoldLayer");
    EXPECT_EQ(options.DXFDimensionLayer, "DimensionLayer");
    EXPECT_EQ(options.DXFCutLayer, "CutLayer");
    ASSERT_EQ(ui.messages.size(), 2U);
    EXPECT_EQ(ui.messages[0].text,
              std::string(SettingsPath) +
                  ", line 13: \"fold|lines\" cannot be the name of a layer: FoldLayer is used");
    EXPECT_EQ(ui.messages[1].text.find('\x1b'), std::string::npos);
}

TEST_F(OptionsFile, AMessageShowsLittleOfTheFile) {
    EXPECT_LT(ErrorWithLine(2, std::string(50000, 'x')).size(), 300U);
}

TEST_F(OptionsFile, TheVersionLineMayStandBetweenBlanks) {
    std::vector<std::string> lines = DefaultLines();
    lines[0] = "  3.b  ";
    lines[1] = " 48 ";
    files.files[SettingsPath] = Joined(lines);
    Read();
    EXPECT_EQ(options.DefaultSegs, 48);
    EXPECT_TRUE(ui.messages.empty());
    EXPECT_TRUE(files.writes.empty());
}

TEST_F(OptionsFile, TakesUnixLineEndsAndALastLineWithoutOne) {
    std::vector<std::string> lines = DefaultLines();
    lines[1] = "12";
    lines[24] = "1.5";
    std::string text = Joined(lines, "\n");
    text.pop_back();
    files.files[SettingsPath] = text;
    Read();
    EXPECT_EQ(options.DefaultSegs, 12);
    EXPECT_EQ(options.Language, "English");
    EXPECT_EQ(options.PrintYCalibration, 1.5);
    EXPECT_EQ(files.files[SettingsPath], text);
}

TEST_F(OptionsFile, TrimsLanguageAndLayerNames) {
    std::vector<std::string> lines = DefaultLines();
    lines[3] = "\tEnglish ";
    for (std::size_t i = 11; i <= 15; ++i) {
        lines[i] = "  My " + lines[i] + " \t";
    }
    files.files[SettingsPath] = Joined(lines);
    Read();
    EXPECT_EQ(options.Language, "English");
    EXPECT_EQ(options.DXFTextLayer, "My TextLayer");
    EXPECT_EQ(options.DXFFoldLayer, "My FoldLayer");
    EXPECT_EQ(options.DXFCutLayer, "My CutLayer");
    EXPECT_EQ(options.DXFBorderLayer, "My BorderLayer");
    EXPECT_EQ(options.DXFDimensionLayer, "My DimensionLayer");
}

TEST_F(OptionsFile, ReadsNamesFromTheTimeBeforeUnicode) {
    std::vector<std::string> lines = DefaultLines();
    lines[13] =
        "Au\xDF"
        "en";
    files.files[SettingsPath] = Joined(lines);
    Read();
    EXPECT_EQ(options.DXFCutLayer,
              "Au\xC3\x9F"
              "en");
}

TEST_F(OptionsFile, DropsTheTwoFormerLinesAndWhatFollowsTheLast) {
    std::vector<std::string> lines = DefaultLines();
    lines[17] = "anything";
    lines[18] = "";
    lines.emplace_back("and more");
    files.files[SettingsPath] = Joined(lines);
    EXPECT_NO_THROW(Read());
    EXPECT_EQ(options.PolyMode, 0);
}

TEST_F(OptionsFile, AWordInLine20LeavesThePolyMode) {
    std::vector<std::string> lines = DefaultLines();
    lines[19] = "polylines";
    files.files[SettingsPath] = Joined(lines);
    options.PolyMode = 1;
    Read();
    EXPECT_EQ(options.PolyMode, 1);
}

TEST_F(OptionsFile, IntegersAreRoundedHalvesToEven) {
    std::vector<std::string> lines = DefaultLines();
    lines[2] = "2.5";
    lines[19] = "0.6";
    files.files[SettingsPath] = Joined(lines);
    Read();
    EXPECT_EQ(options.Decimals, 2);
    EXPECT_EQ(options.PolyMode, 1);
}

TEST_F(OptionsFile, AWordForANumberIsNamedWithItsFileAndLine) {
    for (const unsigned line : {2U, 3U, 5U, 6U, 7U, 8U, 9U, 10U, 11U, 17U, 21U, 22U, 23U, 24U, 25U}) {
        const std::string error = ErrorWithLine(line, " word ");
        EXPECT_EQ(error, std::string(SettingsPath) + ", line " + std::to_string(line) +
                             ": \"word\" is not a number");
    }
    EXPECT_EQ(ErrorWithLine(5, ""), std::string(SettingsPath) + ", line 5: \"\" is not a number");
    EXPECT_EQ(ErrorWithLine(22, "inf"), std::string(SettingsPath) + ", line 22: \"inf\" is not a number");
    EXPECT_EQ(ErrorWithLine(22, "1e999"), std::string(SettingsPath) + ", line 22: \"1e999\" is not a number");
}

struct Range {
    std::size_t line;
    std::vector<const char*> good;
    std::vector<const char*> bad;
};

TEST_F(OptionsFile, ValuesThatWouldBreakLaterAreRefused) {
    const std::vector<Range> ranges = {{2, {"1", "100000", "24.0"}, {"0", "-1", "100001", "24.5", "1e300"}},
                                       {3, {"0", "5"}, {"-1", "6", "99999"}},
                                       {5, {"0.1", "0", "-1", "1e38"}, {"1e39", "-1e39"}},
                                       {6, {"0", "16777215", "-1"}, {"2147483648", "1e300"}},
                                       {17, {"1e-9", "1e38"}, {"0", "-1", "1e39"}},
                                       {20, {"1", "32767", "-32768"}, {"32768", "-32769", "150000"}},
                                       {21, {"1", "2"}, {"40000"}},
                                       {22, {"0", "1", "-0.5", "1e300"}, {}},
                                       {23, {"5", "6"}, {"70000"}},
                                       {24, {"0.5", "2"}, {"0", "-1"}},
                                       {25, {"0.5", "2"}, {"0", "-1"}}};
    for (const Range& range : ranges) {
        for (const char* text : range.good) {
            EXPECT_EQ(ErrorWithLine(range.line, text), "") << range.line;
        }
        for (const char* text : range.bad) {
            const std::string start =
                std::string(SettingsPath) + ", line " + std::to_string(range.line) + ": \"" + text + "\" ";
            EXPECT_EQ(ErrorWithLine(range.line, text).substr(0, start.size()), start) << text;
        }
    }
}

TEST_F(OptionsFile, TooFewLinesAreAnErrorWhereverItEnds) {
    const std::vector<std::string> lines = DefaultLines();
    for (std::size_t count = 1; count < lines.size(); ++count) {
        const std::string error =
            ErrorOf(Joined({lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(count)}));
        EXPECT_EQ(error, std::string(SettingsPath) + ", line " + std::to_string(count + 1) +
                             ": the file ends before it");
    }
}

TEST_F(OptionsFile, AFileThatCannotBeReadIsAFileError) {
    files.files[SettingsPath] = Joined(DefaultLines());
    files.unreadable.insert(SettingsPath);
    EXPECT_THROW(Read(), FileError);
    EXPECT_EQ(files.files[SettingsPath], Joined(DefaultLines()));
}

TEST_F(OptionsFile, AFileOfMoreThan64KibibytesIsNotRead) {
    const std::string whole = Joined(DefaultLines());
    files.files[SettingsPath] = whole + std::string(64 * 1024 - whole.size(), ' ');
    EXPECT_NO_THROW(Read());
    files.files[SettingsPath] += ' ';
    EXPECT_THROW(Read(), FileError);
    EXPECT_TRUE(files.writes.empty());
}

TEST_F(OptionsFile, WritingToAFullDiskIsAFileError) {
    files.unwritable.insert(SettingsPath);
    EXPECT_THROW(WriteIniFile(options, files, '.'), FileError);
}

}  // namespace
}  // namespace korvet
