#include "dialogs/options_file.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/dialogs/other_options.h"
#include "tests/support/memory_file_store.h"
#include "tests/support/recording_ui.h"

namespace korvet {
namespace {

constexpr const char* Path = "/home/user/settings.ini";

/// The file that the first start leaves, line by line.
std::vector<std::string> DefaultLines() {
    return {"3.b",       " 24 ",       " 1 ",         "English",
            " 2 ",       " 16776960 ", " 255 ",       " 65280 ",
            " 0 ",       " 65535 ",    " 16776960 ",  "TextLayer",
            "FoldLayer", "CutLayer",   "BorderLayer", "DimensionLayer",
            " 1 ",       " 200 ",      " 150 ",       " 0 ",
            " 1 ",       " 0 ",        " 6 ",         " 1 ",
            " 1 "};
}

std::string Joined(const std::vector<std::string>& lines, const std::string& end = "\r\n") {
    std::string text;
    for (const std::string& line : lines) {
        text += line + end;
    }
    return text;
}

class OptionsFile : public ::testing::Test {
  protected:
    OptionsFile() { options.IniFileName = Path; }

    void Read(char decimalMark = '.') { ReadIniFile(options, files, ui, decimalMark); }

    /// The error of a file with one line replaced; line numbers count from 1.
    std::string ErrorWithLine(std::size_t number, const std::string& text) {
        std::vector<std::string> lines = DefaultLines();
        lines.at(number - 1) = text;
        return ErrorOf(Joined(lines));
    }

    /// The error of a file, after a look that nothing has changed.
    std::string ErrorOf(const std::string& contents) {
        files.files[Path] = contents;
        files.writes.clear();
        options.DefaultSegs = 77;
        options.DXFCutLayer = "kept";
        std::string error;
        try {
            Read();
        } catch (const OptionsFileError& e) {
            error = e.what();
        }
        if (!error.empty()) {
            EXPECT_EQ(options.DefaultSegs, 77);
            EXPECT_EQ(options.DXFCutLayer, "kept");
        }
        EXPECT_EQ(files.files[Path], contents);
        EXPECT_TRUE(files.writes.empty());
        EXPECT_TRUE(ui.messages.empty());
        return error;
    }

    COptions options;
    MemoryFileStore files;
    RecordingUi ui;
};

TEST_F(OptionsFile, HasTwentyFiveLinesInTheirOrder) {
    options = OtherOptions();
    options.IniFileName = Path;
    options.PrintScale = -0.5;
    WriteIniFile(options, files, '.');
    EXPECT_EQ(
        files.files[Path],
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
        written.IniFileName = Path;
        written.WindowState = 2;
        WriteIniFile(written, files, mark);
        const std::string bytes = files.files[Path];
        options = COptions();
        options.IniFileName = Path;
        Read(mark);
        EXPECT_EQ(options.DefaultSegs, 60);
        EXPECT_EQ(options.WindowState, -1) << "not in the file";
        EXPECT_EQ(options.IniFileName, Path);
        WriteIniFile(options, files, mark);
        EXPECT_EQ(files.files[Path], bytes);
    }
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(OptionsFile, WritesTheLocalesMarkAndReadsBoth) {
    options.DisplayTextSize = 2.5;
    WriteIniFile(options, files, ',');
    EXPECT_NE(files.files[Path].find("English\r\n 2,5 \r\n"), std::string::npos);

    std::vector<std::string> lines = DefaultLines();
    lines[4] = " 3.5 ";
    lines[23] = " 1,25 ";
    files.files[Path] = Joined(lines);
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

TEST_F(OptionsFile, AMissingFileBecomesTheDefaultsInSilence) {
    Read();
    EXPECT_EQ(files.files[Path], Joined(DefaultLines()));
    EXPECT_EQ(files.files.size(), 1U) << "there was nothing to keep";
    EXPECT_TRUE(ui.messages.empty());
    EXPECT_EQ(options.DefaultSegs, 24);
}

TEST_F(OptionsFile, AnotherVersionMakesWayAfterAMessageAndIsKeptBeside) {
    for (const char* old : {"3.a\r\n 99 \r\n", "3.b2\r\n", " 2.14 \n", "3.bx"}) {
        ui.messages.clear();
        files.files = {{Path, old}};
        files.writes.clear();
        options = COptions();
        options.IniFileName = Path;
        Read();
        ASSERT_EQ(ui.messages.size(), 1U) << old;
        EXPECT_EQ(ui.messages[0].text, "\r\n The Settings.ini file is being updated.");
        EXPECT_EQ(ui.messages[0].style, PlainBox);
        EXPECT_EQ(ui.messages[0].title, "Korvet Development");
        EXPECT_EQ(files.files[Path], Joined(DefaultLines()));
        EXPECT_EQ(files.files[std::string(Path) + ".bak"], old);
        ASSERT_EQ(files.writes.size(), 2U);
        EXPECT_EQ(files.writes[0].path, std::string(Path) + ".bak") << "kept before it is replaced";
        EXPECT_EQ(files.writes[0].flush, Flush::Yes);
        EXPECT_EQ(files.writes[1].flush, Flush::Yes);
        EXPECT_EQ(options.DefaultSegs, 24);
    }
}

TEST_F(OptionsFile, WhatIsReplacedIsKeptUnderANewNameEachTime) {
    const std::string bak = std::string(Path) + ".bak";
    files.files = {{Path, "3.a\r\nfirst"}, {bak, "of another time"}};
    Read();
    files.files[Path] = "3.a\r\nsecond";
    Read();
    EXPECT_EQ(files.files[bak], "of another time");
    EXPECT_EQ(files.files[bak + "2"], "3.a\r\nfirst");
    EXPECT_EQ(files.files[bak + "3"], "3.a\r\nsecond");
    EXPECT_EQ(files.files[Path], Joined(DefaultLines()));
}

TEST_F(OptionsFile, AFileThatNoVersionHasWrittenIsNotReplaced) {
    for (const char* foreign : {"", "settings\n", "x", "[General]\n", "Korvet Development-3.3.3\r\n", "3\r\n",
                                ".b", "3.", "3.b\xC3\xA4", "3.123456789"}) {
        files.files = {{Path, foreign}};
        options.DefaultSegs = 77;
        EXPECT_THROW(Read(), OptionsFileError) << foreign;
        EXPECT_EQ(files.files, (std::map<std::string, std::string>{{Path, foreign}}));
        EXPECT_EQ(options.DefaultSegs, 77);
    }
}

/// A store in which another program puts its own file as soon as a copy of the old one has been made.
TEST_F(OptionsFile, WhatAnotherProgramHasWrittenMeanwhileStays) {
    std::vector<std::string> lines = DefaultLines();
    lines[1] = " 48 ";
    files.files = {{Path, "3.a\r\n"}};
    files.afterWrite = [&](const std::string& path) {
        if (path.ends_with(".bak")) {
            files.files[Path] = Joined(lines);
        }
    };
    Read();
    EXPECT_EQ(options.DefaultSegs, 48);
    EXPECT_EQ(files.files[Path], Joined(lines));
    EXPECT_EQ(files.files[std::string(Path) + ".bak"], "3.a\r\n");
}

TEST_F(OptionsFile, ReadingForABatchRunWritesNothing) {
    for (const char* text : {"3.a\r\n", "", "shopping list"}) {
        files.files = {{Path, text}};
        EXPECT_THROW(ReadOptionsFile(options, files, ui), OptionsFileError);
        EXPECT_TRUE(files.writes.empty());
    }
    EXPECT_THROW(ReadOptionsFile(options, MemoryFileStore(), ui), FileError);
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(OptionsFile, ALayerNameThatNoDrawingHasGivesWayToTheBuiltInOne) {
    std::vector<std::string> lines = DefaultLines();
    lines[12] = "fold|lines";
    lines[15] = "a\x1b[2J";
    files.files[Path] = Joined(lines);
    options.DXFFoldLayer = "before";
    Read();
    EXPECT_EQ(options.DXFFoldLayer, "FoldLayer");
    EXPECT_EQ(options.DXFDimensionLayer, "DimensionLayer");
    EXPECT_EQ(options.DXFCutLayer, "CutLayer");
    ASSERT_EQ(ui.messages.size(), 2U);
    EXPECT_EQ(
        ui.messages[0].text,
        std::string(Path) + ", line 13: \"fold|lines\" cannot be the name of a layer: FoldLayer is used");
    EXPECT_EQ(ui.messages[1].text.find('\x1b'), std::string::npos);
}

TEST_F(OptionsFile, AMessageShowsLittleOfTheFile) {
    EXPECT_LT(ErrorWithLine(2, std::string(50000, 'x')).size(), 300U);
}

TEST_F(OptionsFile, WhatCouldNotBeReadAgainIsNotWritten) {
    options.DXFTextLayer = std::string(70000, 'x');
    EXPECT_THROW(WriteIniFile(options, files, '.'), FileError);
    options = COptions();
    options.IniFileName = Path;
    options.PrintXCalibration = 0;
    EXPECT_THROW(WriteIniFile(options, files, '.'), FileError);
    EXPECT_TRUE(files.files.empty());
}

TEST_F(OptionsFile, SavingKeepsWhatCouldNotBeKeptAtTheStart) {
    const std::string bak = std::string(Path) + ".bak";
    for (const char* old : {"3.a\r\n", "3.b\r\nspoilt", "of another program"}) {
        files.files = {{Path, old}};
        files.unwritable = {bak};
        EXPECT_THROW(SaveIniFile(options, files, '.'), FileError);
        EXPECT_EQ(files.files[Path], old);
        files.unwritable.clear();
        SaveIniFile(options, files, '.');
        EXPECT_EQ(files.files[bak], old);
        EXPECT_EQ(files.files[Path], Joined(DefaultLines()));
    }
    files.files = {{Path, Joined(DefaultLines())}};
    SaveIniFile(options, files, '.');
    EXPECT_EQ(files.files.size(), 1U) << "an ordinary save keeps nothing beside";
}

TEST_F(OptionsFile, AFileSetAsideIsKeptUnderANewName) {
    files.files = {{Path, "3.b\r\nspoilt"}, {std::string(Path) + ".bad", "older"}};
    SetIniFileAside(options, files, '.');
    EXPECT_EQ(files.files[std::string(Path) + ".bad"], "older");
    EXPECT_EQ(files.files[std::string(Path) + ".bad2"], "3.b\r\nspoilt");
    EXPECT_EQ(files.files[Path], Joined(DefaultLines()));
}

TEST_F(OptionsFile, TheVersionLineMayStandBetweenBlanks) {
    std::vector<std::string> lines = DefaultLines();
    lines[0] = "  3.b  ";
    lines[1] = " 48 ";
    files.files[Path] = Joined(lines);
    Read();
    EXPECT_EQ(options.DefaultSegs, 48);
    EXPECT_TRUE(ui.messages.empty());
    EXPECT_TRUE(files.writes.empty());
}

TEST_F(OptionsFile, AFirstStartInAnUnwritableFolderGoesOnWithTheDefaults) {
    files.unwritable.insert(Path);
    options.DefaultSegs = 48;
    Read();
    ASSERT_EQ(ui.messages.size(), 1U);
    EXPECT_EQ(ui.messages[0].text, std::string(Path) + ": cannot be written");
    EXPECT_EQ(ui.messages[0].style, PlainBox);
    EXPECT_EQ(options.DefaultSegs, 48);
    EXPECT_TRUE(files.files.empty());
}

TEST_F(OptionsFile, AnOldFileThatCannotBeReplacedOrKeptStays) {
    for (const std::string& unwritable : {std::string(Path), std::string(Path) + ".bak"}) {
        files.files = {{Path, "3.a\r\n"}};
        files.unwritable = {unwritable};
        ui.messages.clear();
        Read();
        EXPECT_EQ(ui.Texts(), (std::vector<std::string>{"\r\n The Settings.ini file is being updated.",
                                                        unwritable + ": cannot be written"}));
        EXPECT_EQ(files.files[Path], "3.a\r\n");
        EXPECT_EQ(options.DefaultSegs, 24);
    }
}

TEST_F(OptionsFile, TakesUnixLineEndsAndALastLineWithoutOne) {
    std::vector<std::string> lines = DefaultLines();
    lines[1] = "12";
    lines[24] = "1.5";
    std::string text = Joined(lines, "\n");
    text.pop_back();
    files.files[Path] = text;
    Read();
    EXPECT_EQ(options.DefaultSegs, 12);
    EXPECT_EQ(options.Language, "English");
    EXPECT_EQ(options.PrintYCalibration, 1.5);
    EXPECT_EQ(files.files[Path], text);
}

TEST_F(OptionsFile, TrimsLanguageAndLayerNames) {
    std::vector<std::string> lines = DefaultLines();
    lines[3] = "\tEnglish ";
    for (std::size_t i = 11; i <= 15; ++i) {
        lines[i] = "  My " + lines[i] + " \t";
    }
    files.files[Path] = Joined(lines);
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
    files.files[Path] = Joined(lines);
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
    files.files[Path] = Joined(lines);
    EXPECT_NO_THROW(Read());
    EXPECT_EQ(options.PolyMode, 0);
}

TEST_F(OptionsFile, AWordInLine20LeavesThePolyMode) {
    std::vector<std::string> lines = DefaultLines();
    lines[19] = "polylines";
    files.files[Path] = Joined(lines);
    options.PolyMode = 1;
    Read();
    EXPECT_EQ(options.PolyMode, 1);
}

TEST_F(OptionsFile, IntegersAreRoundedHalvesToEven) {
    std::vector<std::string> lines = DefaultLines();
    lines[2] = "2.5";
    lines[19] = "0.6";
    files.files[Path] = Joined(lines);
    Read();
    EXPECT_EQ(options.Decimals, 2);
    EXPECT_EQ(options.PolyMode, 1);
}

TEST_F(OptionsFile, AWordForANumberIsNamedWithItsFileAndLine) {
    for (const unsigned line : {2U, 3U, 5U, 6U, 7U, 8U, 9U, 10U, 11U, 17U, 21U, 22U, 23U, 24U, 25U}) {
        const std::string error = ErrorWithLine(line, " word ");
        EXPECT_EQ(error, std::string(Path) + ", line " + std::to_string(line) + ": \"word\" is not a number");
    }
    EXPECT_EQ(ErrorWithLine(5, ""), std::string(Path) + ", line 5: \"\" is not a number");
    EXPECT_EQ(ErrorWithLine(22, "inf"), std::string(Path) + ", line 22: \"inf\" is not a number");
    EXPECT_EQ(ErrorWithLine(22, "1e999"), std::string(Path) + ", line 22: \"1e999\" is not a number");
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
                std::string(Path) + ", line " + std::to_string(range.line) + ": \"" + text + "\" ";
            EXPECT_EQ(ErrorWithLine(range.line, text).substr(0, start.size()), start) << text;
        }
    }
}

TEST_F(OptionsFile, TooFewLinesAreAnErrorWhereverItEnds) {
    const std::vector<std::string> lines = DefaultLines();
    for (std::size_t count = 1; count < lines.size(); ++count) {
        const std::string error =
            ErrorOf(Joined({lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(count)}));
        EXPECT_EQ(error,
                  std::string(Path) + ", line " + std::to_string(count + 1) + ": the file ends before it");
    }
}

TEST_F(OptionsFile, AFileThatCannotBeReadIsAFileError) {
    files.files[Path] = Joined(DefaultLines());
    files.unreadable.insert(Path);
    EXPECT_THROW(Read(), FileError);
    EXPECT_EQ(files.files[Path], Joined(DefaultLines()));
}

TEST_F(OptionsFile, AFileOfMoreThan64KibibytesIsNotRead) {
    const std::string whole = Joined(DefaultLines());
    files.files[Path] = whole + std::string(64 * 1024 - whole.size(), ' ');
    EXPECT_NO_THROW(Read());
    files.files[Path] += ' ';
    EXPECT_THROW(Read(), FileError);
    EXPECT_TRUE(files.writes.empty());
}

TEST_F(OptionsFile, WritingToAFullDiskIsAFileError) {
    files.unwritable.insert(Path);
    EXPECT_THROW(WriteIniFile(options, files, '.'), FileError);
}

}  // namespace
}  // namespace korvet
