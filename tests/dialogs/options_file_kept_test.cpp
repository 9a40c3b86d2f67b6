// What becomes of a settings file: when it is made, replaced, kept or left alone.
#include "tests/dialogs/options_file_fixture.h"

namespace korvet {
namespace {

using OptionsFileKept = OptionsFile;

TEST_F(OptionsFileKept, AMissingFileBecomesTheDefaultsInSilence) {
    Read();
    EXPECT_EQ(files.files[SettingsPath], Joined(DefaultLines()));
    EXPECT_EQ(files.files.size(), 1U) << "there was nothing to keep";
    EXPECT_TRUE(ui.messages.empty());
    EXPECT_EQ(options.DefaultSegs, 24);
}

TEST_F(OptionsFileKept, AnotherVersionMakesWayAfterAMessageAndIsKeptBeside) {
    for (const char* old : {"3.a\r\n 99 \r\n", "3.b2\r\n", " 2.14 \n", "3.bx"}) {
        ui.messages.clear();
        files.files = {{SettingsPath, old}};
        files.writes.clear();
        options = COptions();
        options.IniFileName = SettingsPath;
        Read();
        ASSERT_EQ(ui.messages.size(), 1U) << old;
        EXPECT_EQ(ui.messages[0].text, "\r\n The Settings.ini file is being updated.");
        EXPECT_EQ(ui.messages[0].style, PlainBox);
        EXPECT_EQ(ui.messages[0].title, "Korvet Development");
        EXPECT_EQ(files.files[SettingsPath], Joined(DefaultLines()));
        EXPECT_EQ(files.files[std::string(SettingsPath) + ".bak"], old);
        ASSERT_EQ(files.writes.size(), 2U);
        EXPECT_EQ(files.writes[0].path, std::string(SettingsPath) + ".bak") << "kept before it is replaced";
        EXPECT_EQ(files.writes[0].flush, Flush::Yes);
        EXPECT_EQ(files.writes[1].flush, Flush::Yes);
        EXPECT_EQ(options.DefaultSegs, 24);
    }
}

TEST_F(OptionsFileKept, WhatIsReplacedIsKeptUnderANewNameEachTime) {
    const std::string bak = std::string(SettingsPath) + ".bak";
    files.files = {{SettingsPath, "3.a\r\nfirst"}, {bak, "of another time"}};
    Read();
    files.files[SettingsPath] = "3.a\r\nsecond";
    Read();
    EXPECT_EQ(files.files[bak], "of another time");
    EXPECT_EQ(files.files[bak + "2"], "3.a\r\nfirst");
    EXPECT_EQ(files.files[bak + "3"], "3.a\r\nsecond");
    EXPECT_EQ(files.files[SettingsPath], Joined(DefaultLines()));
}

TEST_F(OptionsFileKept, AFileThatNoVersionHasWrittenIsNotReplaced) {
    for (const char* foreign : {"", "settings\n", "x", "[General]\n", "Korvet Development-3.3.3\r\n", "3\r\n",
                                ".b", "3.", "3.b\xC3\xA4", "3.123456789"}) {
        files.files = {{SettingsPath, foreign}};
        options.DefaultSegs = 77;
        EXPECT_THROW(Read(), OptionsFileError) << foreign;
        EXPECT_EQ(files.files, (std::map<std::string, std::string>{{SettingsPath, foreign}}));
        EXPECT_EQ(options.DefaultSegs, 77);
    }
}

/// A store in which another program puts its own file as soon as a copy of the old one has been made.
TEST_F(OptionsFileKept, WhatAnotherProgramHasWrittenMeanwhileStays) {
    std::vector<std::string> lines = DefaultLines();
    lines[1] = " 48 ";
    files.files = {{SettingsPath, "3.a\r\n"}};
    files.afterWrite = [&](const std::string& path) {
        if (path.ends_with(".bak")) {
            files.files[SettingsPath] = Joined(lines);
        }
    };
    Read();
    EXPECT_EQ(options.DefaultSegs, 48);
    EXPECT_EQ(files.files[SettingsPath], Joined(lines));
    EXPECT_EQ(files.files[std::string(SettingsPath) + ".bak"], "3.a\r\n");
}

TEST_F(OptionsFileKept, ReadingForABatchRunWritesNothing) {
    for (const char* text : {"3.a\r\n", "", "shopping list"}) {
        files.files = {{SettingsPath, text}};
        EXPECT_THROW(ReadOptionsFile(options, files, ui), OptionsFileError);
        EXPECT_TRUE(files.writes.empty());
    }
    EXPECT_THROW(ReadOptionsFile(options, MemoryFileStore(), ui), FileError);
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(OptionsFileKept, WhatCouldNotBeReadAgainIsNotWritten) {
    options.DXFTextLayer = std::string(70000, 'x');
    EXPECT_THROW(WriteIniFile(options, files, '.'), FileError);
    options = COptions();
    options.IniFileName = SettingsPath;
    options.PrintXCalibration = 0;
    EXPECT_THROW(WriteIniFile(options, files, '.'), FileError);
    EXPECT_TRUE(files.files.empty());
}

TEST_F(OptionsFileKept, SavingKeepsWhatCouldNotBeKeptAtTheStart) {
    const std::string bak = std::string(SettingsPath) + ".bak";
    for (const char* old : {"3.a\r\n", "3.b\r\nspoilt", "of another program"}) {
        files.files = {{SettingsPath, old}};
        files.unwritable = {bak};
        EXPECT_THROW(SaveIniFile(options, files, '.'), FileError);
        EXPECT_EQ(files.files[SettingsPath], old);
        files.unwritable.clear();
        SaveIniFile(options, files, '.');
        EXPECT_EQ(files.files[bak], old);
        EXPECT_EQ(files.files[SettingsPath], Joined(DefaultLines()));
    }
    files.files = {{SettingsPath, Joined(DefaultLines())}};
    SaveIniFile(options, files, '.');
    EXPECT_EQ(files.files.size(), 1U) << "an ordinary save keeps nothing beside";
}

TEST_F(OptionsFileKept, AFileSetAsideIsKeptUnderANewName) {
    files.files = {{SettingsPath, "3.b\r\nspoilt"}, {std::string(SettingsPath) + ".bad", "older"}};
    SetIniFileAside(options, files, '.');
    EXPECT_EQ(files.files[std::string(SettingsPath) + ".bad"], "older");
    EXPECT_EQ(files.files[std::string(SettingsPath) + ".bad2"], "3.b\r\nspoilt");
    EXPECT_EQ(files.files[SettingsPath], Joined(DefaultLines()));
}

TEST_F(OptionsFileKept, AFirstStartInAnUnwritableFolderGoesOnWithTheDefaults) {
    files.unwritable.insert(SettingsPath);
    options.DefaultSegs = 48;
    Read();
    ASSERT_EQ(ui.messages.size(), 1U);
    EXPECT_EQ(ui.messages[0].text, std::string(SettingsPath) + ": cannot be written");
    EXPECT_EQ(ui.messages[0].style, PlainBox);
    EXPECT_EQ(options.DefaultSegs, 48);
    EXPECT_TRUE(files.files.empty());
}

TEST_F(OptionsFileKept, AnOldFileThatCannotBeReplacedOrKeptStays) {
    for (const std::string& unwritable : {std::string(SettingsPath), std::string(SettingsPath) + ".bak"}) {
        files.files = {{SettingsPath, "3.a\r\n"}};
        files.unwritable = {unwritable};
        ui.messages.clear();
        Read();
        EXPECT_EQ(ui.Texts(), (std::vector<std::string>{"\r\n The Settings.ini file is being updated.",
                                                        unwritable + ": cannot be written"}));
        EXPECT_EQ(files.files[SettingsPath], "3.a\r\n");
        EXPECT_EQ(options.DefaultSegs, 24);
    }
}

}  // namespace
}  // namespace korvet
