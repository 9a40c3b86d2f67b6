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

    const std::string ini = (std::filesystem::current_path() / "settings.ini").string();
    TestShell shell;
    MemorySettings store;
};

TEST_F(MainFrameStartTest, ReadsTheOptionsOfTheCurrentFolder) {
    PutSettings();
    EXPECT_EQ(SetupStartup(shell.context, store), Passed);
    EXPECT_EQ(shell.options.Decimals, 3);
    EXPECT_EQ(shell.options.IniFileName, ini);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_TRUE(shell.files.writes.empty());
}

TEST_F(MainFrameStartTest, MakesAMissingFile) {
    EXPECT_EQ(SetupStartup(shell.context, store), Passed);
    EXPECT_TRUE(shell.files.files.contains(ini));
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST_F(MainFrameStartTest, WithoutAPrinterItSaysSoAndGoesOn) {
    PutSettings();
    shell.printers.queues.clear();
    EXPECT_EQ(SetupStartup(shell.context, store), Passed);
    ASSERT_EQ(shell.ui.Texts(), (std::vector<std::string>{"No Printer available"}));
    EXPECT_EQ(shell.ui.messages[0].style, PlainBox);
    EXPECT_EQ(shell.ui.messages[0].title, "Korvet Development");
}

TEST_F(MainFrameStartTest, TakesTheDefaultQueueAndTheOptionsOfPrinting) {
    PutSettings(23, "5");
    EXPECT_EQ(SetupStartup(shell.context, store), Passed);
    EXPECT_EQ(shell.printDialog.CurrentPrinterName, "Plotter");
    EXPECT_EQ(shell.printDialog.PrintUnits, Inches);
}

TEST_F(MainFrameStartTest, APdfFileCountsAsPrinterOnceItWasChosen) {
    PutSettings();
    shell.printers.queues.clear();
    RememberPdf(shell.printDialog, store);
    EXPECT_EQ(SetupStartup(shell.context, store), Passed);
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>{"No Printer available"}));
    EXPECT_EQ(shell.printDialog.CurrentPrinterName, "");
    shell.ui.messages.clear();
    shell.printDialog.TakePdf();
    RememberPdf(shell.printDialog, store);
    EXPECT_EQ(SetupStartup(shell.context, store), Passed);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_EQ(shell.printDialog.CurrentPrinterName, "PDF file");
    EXPECT_EQ(shell.printDialog.CurrentPaperSize, 9);
    shell.printers.queues = {{.name = "Plotter"}};
    EXPECT_EQ(SetupStartup(shell.context, store), Passed);
    EXPECT_EQ(shell.printDialog.CurrentPrinterName, "Plotter");
}

TEST_F(MainFrameStartTest, AQueueThatCannotBeAskedIsToldOfBeforeThatThereIsNone) {
    PutSettings();
    shell.printers.queues = {{.name = "Deaf", .answers = false}};
    EXPECT_EQ(SetupStartup(shell.context, store), Passed);
    EXPECT_EQ(shell.ui.Texts(),
              (std::vector<std::string>{"No printer were settings retrieved!", "No Printer available"}));
}

TEST_F(MainFrameStartTest, ALineThatCannotBeUsedEndsTheRunWithOneBox) {
    PutSettings(5, "tall");
    const std::string before = shell.files.files[ini];
    EXPECT_EQ(SetupStartup(shell.context, store), Refused);
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>{ini + ", line 5: \"tall\" is not a number"}));
    EXPECT_EQ(shell.files.files[ini], before);
    EXPECT_TRUE(shell.files.writes.empty());
}

TEST_F(MainFrameStartTest, AFileThatCannotBeReadEndsTheRun) {
    PutSettings();
    shell.files.unreadable = {ini};
    EXPECT_EQ(SetupStartup(shell.context, store), Refused);
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>{ini + ": cannot be read"}));
}

TEST_F(MainFrameStartTest, AFolderThatCannotBeWrittenToIsToldOnceAndTheDefaultsHold) {
    shell.files.unwritable = {ini};
    EXPECT_EQ(SetupStartup(shell.context, store), Passed);
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>{ini + ": cannot be written"}));
    EXPECT_EQ(shell.options.DefaultSegs, 24);
}

}  // namespace
}  // namespace korvet
