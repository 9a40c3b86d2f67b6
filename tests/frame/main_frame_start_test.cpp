// What happens before there is a frame.
#include <gtest/gtest.h>

#include <filesystem>

#include "dialogs/options_file.h"
#include "frame/start_up.h"
#include "tests/support/recording_desktop.h"
#include "tests/support/test_context.h"

namespace korvet {
namespace {

class MainFrameStartTest : public testing::Test {
  protected:
    MainFrameStartTest() { shell.printers.queues = {{.name = "Plotter"}}; }

    /// A settings file as the program writes it, with one line (from 1) replaced.
    void PutSettings(int line = 0, const std::string& text = {}) {
        COptions written;
        written.IniFileName = ini;
        written.Decimals = 3;
        WriteIniFile(written, shell.files, '.');
        std::string& contents = shell.files.files[ini];
        std::size_t start = 0;
        for (int i = 1; i < line; ++i) {
            start = contents.find("\r\n", start) + 2;
        }
        if (line > 0) {
            contents.replace(start, contents.find("\r\n", start) - start, text);
        }
        shell.files.writes.clear();
    }

    Outcome Start() {
        return SetupStartup(shell.context, store, [this] { return configurationFolder; });
    }

    std::string configurationFolder = "/home/user/.config/Korvet";
    const std::string iniOfUser = "/home/user/.config/Korvet/settings.ini";
    const std::string ini = (std::filesystem::current_path() / "settings.ini").string();
    TestShell shell;
    MemorySettings store;
};

TEST_F(MainFrameStartTest, ReadsTheOptionsOfTheCurrentFolder) {
    PutSettings();
    EXPECT_EQ(Start(), Passed);
    EXPECT_EQ(shell.options.Decimals, 3);
    EXPECT_EQ(shell.options.IniFileName, ini);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_TRUE(shell.files.writes.empty());
}

TEST_F(MainFrameStartTest, MakesAMissingFile) {
    EXPECT_EQ(Start(), Passed);
    EXPECT_TRUE(shell.files.files.contains(ini));
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST_F(MainFrameStartTest, WithoutAPrinterItSaysSoAndGoesOn) {
    PutSettings();
    shell.printers.queues.clear();
    EXPECT_EQ(Start(), Passed);
    ASSERT_EQ(shell.ui.Texts(), (std::vector<std::string>{"No Printer available"}));
    EXPECT_EQ(shell.ui.messages[0].style, PlainBox);
    EXPECT_EQ(shell.ui.messages[0].title, "Korvet Development");
}

TEST_F(MainFrameStartTest, TakesTheDefaultQueueAndTheOptionsOfPrinting) {
    PutSettings(23, "5");
    EXPECT_EQ(Start(), Passed);
    EXPECT_EQ(shell.printDialog.CurrentPrinterName, "Plotter");
    EXPECT_EQ(shell.printDialog.PrintUnits, Inches);
}

TEST_F(MainFrameStartTest, APdfFileCountsAsPrinterOnceItWasChosen) {
    PutSettings();
    shell.printers.queues.clear();
    RememberPdf(shell.printDialog, store);
    EXPECT_EQ(Start(), Passed);
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>{"No Printer available"}));
    EXPECT_EQ(shell.printDialog.CurrentPrinterName, "");
    shell.ui.messages.clear();
    shell.printDialog.TakePdf();
    RememberPdf(shell.printDialog, store);
    EXPECT_EQ(Start(), Passed);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_EQ(shell.printDialog.CurrentPrinterName, "PDF file");
    EXPECT_EQ(shell.printDialog.CurrentPaperSize, 9);
    shell.printers.queues = {{.name = "Plotter"}};
    EXPECT_EQ(Start(), Passed);
    EXPECT_EQ(shell.printDialog.CurrentPrinterName, "Plotter");
}

TEST_F(MainFrameStartTest, AQueueThatCannotBeAskedIsToldOfBeforeThatThereIsNone) {
    PutSettings();
    shell.printers.queues = {{.name = "Deaf", .answers = false}};
    EXPECT_EQ(Start(), Passed);
    EXPECT_EQ(shell.ui.Texts(),
              (std::vector<std::string>{"No printer were settings retrieved!", "No Printer available"}));
}

TEST_F(MainFrameStartTest, ALineThatCannotBeUsedEndsTheRunUnlessTheFileIsSetAside) {
    PutSettings(5, "tall");
    const std::string before = shell.files.files[ini];
    EXPECT_EQ(Start(), Refused);
    EXPECT_EQ(shell.ui.Texts(),
              (std::vector<std::string>{ini + ", line 5: \"tall\" is not a number",
                                        "Set the file aside (.bad) and go on with the built-in options?"}));
    EXPECT_EQ(shell.files.files[ini], before);
    EXPECT_TRUE(shell.files.writes.empty());
}

TEST_F(MainFrameStartTest, AFileSetAsideIsKeptAndTheBuiltInOptionsHold) {
    PutSettings(5, "tall");
    const std::string before = shell.files.files[ini];
    shell.ui.answers = {Answer::Ok};
    EXPECT_EQ(Start(), Passed);
    EXPECT_EQ(shell.options.Decimals, 1);
    EXPECT_EQ(shell.files.files[ini + ".bad"], before);
    shell.ui.messages.clear();
    EXPECT_EQ(Start(), Passed);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_EQ(shell.options.Decimals, 1);
}

TEST_F(MainFrameStartTest, AFileThatCannotBeSetAsideStaysAndTheBuiltInOptionsHold) {
    PutSettings(5, "tall");
    shell.files.unwritable = {ini + ".bad"};
    shell.ui.answers = {Answer::Ok};
    EXPECT_EQ(Start(), Passed);
    EXPECT_EQ(shell.ui.messages.back().text, ini + ".bad: cannot be written");
    EXPECT_TRUE(shell.files.writes.empty());
}

TEST_F(MainFrameStartTest, AFileThatCannotBeReadEndsTheRun) {
    PutSettings();
    shell.files.unreadable = {ini};
    EXPECT_EQ(Start(), Refused);
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>{ini + ": cannot be read"}));
}

TEST_F(MainFrameStartTest, WhereTheFolderCannotBeWrittenToTheUsersOwnIsUsed) {
    shell.files.unwritable = {ini};
    EXPECT_EQ(Start(), Passed);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_EQ(shell.options.IniFileName, iniOfUser);
    EXPECT_TRUE(shell.files.files.contains(iniOfUser));
    EXPECT_EQ(shell.frame.statusText, ini + ": cannot be written; the settings are in " + iniOfUser);
}

TEST_F(MainFrameStartTest, AFileOfAnotherProgramIsLeftAlone) {
    shell.files.files[ini] = "[General]\nvolume=11\n";
    EXPECT_EQ(Start(), Passed);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_EQ(shell.files.files[ini], "[General]\nvolume=11\n");
    EXPECT_EQ(shell.options.IniFileName, iniOfUser);
    EXPECT_EQ(shell.frame.statusText, ini + " belongs to another program; the settings are in " + iniOfUser);
    EXPECT_FALSE(shell.files.files.contains(ini + ".bak"));
}

TEST_F(MainFrameStartTest, AFileOfAnotherProgramIsLeftAloneWithoutAnotherPlaceToo) {
    shell.files.files[ini] = "[General]\nvolume=11\n";
    configurationFolder.clear();
    EXPECT_EQ(Start(), Passed);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_TRUE(shell.files.writes.empty());
    EXPECT_EQ(shell.frame.statusText,
              ini + " belongs to another program; settings are kept for this run only");
    EXPECT_THROW(SaveIniFile(shell.options, shell.files, '.'), FileError);
}

TEST_F(MainFrameStartTest, WhatIsNoFileIsNotOurs) {
    const std::filesystem::path before = std::filesystem::current_path();
    const std::filesystem::path folder = std::filesystem::path(testing::TempDir()) / "korvet-start";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder / "settings.ini");
    std::filesystem::current_path(folder);
    EXPECT_EQ(Start(), Passed);
    EXPECT_EQ(shell.options.IniFileName, iniOfUser);
    EXPECT_NE(shell.frame.statusText.find("is no file; the settings are in"), std::string::npos);
    std::filesystem::remove(folder / "settings.ini");
    std::filesystem::create_symlink("gone", folder / "settings.ini");
    EXPECT_EQ(Start(), Passed);
    EXPECT_EQ(shell.options.IniFileName, iniOfUser);
    EXPECT_NE(shell.frame.statusText.find("is a link that leads nowhere"), std::string::npos);
    std::filesystem::current_path(before);
    std::filesystem::remove_all(folder);
}

TEST_F(MainFrameStartTest, AnOldFileInAFolderThatCannotBeWrittenToIsOurs) {
    shell.files.files[ini] = "3.a\r\n";
    shell.files.unwritable = {ini, ini + ".bak"};
    EXPECT_EQ(Start(), Passed);
    EXPECT_EQ(shell.options.IniFileName, ini);
    EXPECT_EQ(shell.ui.messages.back().text, ini + ".bak: cannot be written");
}

TEST_F(MainFrameStartTest, WhereNothingCanBeWrittenTheDefaultsHoldAndItIsTold) {
    shell.files.unwritable = {ini, iniOfUser};
    EXPECT_EQ(Start(), Passed);
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>{iniOfUser + ": cannot be written"}));
    EXPECT_EQ(shell.options.DefaultSegs, 24);
    configurationFolder.clear();
    EXPECT_EQ(Start(), Passed);
    EXPECT_EQ(shell.ui.messages.back().text, ini + ": cannot be written");
}

}  // namespace
}  // namespace korvet
