// A pattern on its way to the plotter: the files, the sending, and what is said.
#include "window/plotting.h"

#include <gtest/gtest.h>

#include "tests/support/test_context.h"
#include "window/views.h"

namespace korvet {
namespace {

class PlottingTest : public testing::Test {
  protected:
    PlottingTest() {
        AcceptExports(shell.ui);
        window->ClickView(PatternButton);
    }

    static bool IsTakenAway(const WorkProgress& step) { return step.done == step.total; }

    Outcome Plot() { return window->Export("work/Transfer.plt", ExportMode::Plotter); }

    TestShell shell;
    std::unique_ptr<CFittingWindow> window = shell.OpenSample("Right Cone", 2);
};

TEST_F(PlottingTest, ThePlotGoesThroughTheTransferFileToTheLine) {
    EXPECT_EQ(Plot(), Passed);
    const auto& files = shell.files.files;
    EXPECT_TRUE(files.at("work/Transfer.tmp").starts_with("0\r\nSECTION\r\n"));
    EXPECT_NE(files.at("work/Transfer.plt").find("\r\nAA"), std::string::npos);
    EXPECT_EQ(files.at("work/Plot.bat"), "mode com2:9600,n,8,1\r\ncopy \"work/Transfer.plt\" COM2\r\n");
    ASSERT_EQ(shell.plotter.jobs.size(), 1U);
    EXPECT_EQ(shell.plotter.jobs[0].plot, files.at("work/Transfer.plt"));
    EXPECT_EQ(shell.plotter.jobs[0].batchFile, "work/Plot.bat");
    EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>{"File sent"});
    EXPECT_EQ(shell.ui.messages[0].style, PlainBox);
    ASSERT_EQ(shell.ui.progress.size(), 2U);
    EXPECT_EQ(shell.ui.progress[0].what, "Sending the plot");
    EXPECT_TRUE(shell.ui.progress[0].eventsGoOn);
    EXPECT_EQ(shell.ui.progress[0].total, files.at("work/Transfer.plt").size());
    EXPECT_TRUE(IsTakenAway(shell.ui.progress[1]));
}

TEST_F(PlottingTest, TheUnitsOfTheOptionsAreThoseOfThePlot) {
    ASSERT_EQ(Plot(), Passed);
    const std::string millimetres = shell.files.files.at("work/Transfer.plt");
    shell.printDialog.PrintUnits = 5;
    ASSERT_EQ(Plot(), Passed);
    EXPECT_GT(shell.files.files.at("work/Transfer.plt").size(), millimetres.size()) << "25.4 times the steps";
}

TEST_F(PlottingTest, CancelInTheDialogWritesNothing) {
    shell.ui.onDxfOptions = [](DxfOptionsDialog&) {};
    EXPECT_EQ(Plot(), Refused);
    EXPECT_TRUE(shell.files.files.empty());
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST_F(PlottingTest, TheDialogAsksForThePort) {
    shell.plotter.port = PlotterPort{"/dev/ttyUSB7", Handshake::XonXoff};
    shell.ui.onDxfOptions = [](DxfOptionsDialog& dialog) {
        EXPECT_TRUE(dialog.toPlotter);
        EXPECT_TRUE(dialog.choosesPort);
        EXPECT_EQ(dialog.cmbPlotterPort.edit.text, "/dev/ttyUSB7");
        EXPECT_EQ(dialog.cmbPlotterPort.list, (std::vector<std::string>{"/dev/ttyS0", "/dev/ttyS1"}));
        EXPECT_TRUE(dialog.optHandshake.IsOn(1));
        dialog.cmbPlotterPort.edit.text = "/dev/ttyS0";
        dialog.optHandshake.selected = 2;
        dialog.ClickOK();
    };
    EXPECT_EQ(Plot(), Passed);
    EXPECT_EQ(shell.plotter.port, (PlotterPort{"/dev/ttyS0", Handshake::RtsCts}));
}

TEST_F(PlottingTest, ThePortIsNotAskedForWhereItIsFixedNorForADrawingFile) {
    bool asked = true;
    shell.ui.onDxfOptions = [&](DxfOptionsDialog& dialog) {
        asked = dialog.choosesPort;
        dialog.ClickOK();
    };
    shell.plotter.port.reset();
    EXPECT_EQ(Plot(), Passed);
    EXPECT_FALSE(asked);
    shell.plotter.port = PlotterPort{};
    asked = true;
    EXPECT_EQ(window->Export("a.dxf", ExportMode::Dxf), Passed);
    EXPECT_FALSE(asked);
}

TEST_F(PlottingTest, CancelOfTheDialogKeepsThePort) {
    shell.ui.onDxfOptions = [](DxfOptionsDialog& dialog) {
        dialog.cmbPlotterPort.edit.text = "/dev/null";
        dialog.ClickCancel();
    };
    EXPECT_EQ(Plot(), Refused);
    EXPECT_EQ(shell.plotter.port->name, "/dev/ttyS1");
}

TEST_F(PlottingTest, AFailureIsToldWithItsReasonAndTheFileStays) {
    shell.plotter.end = PlotSent::End::Failed;
    EXPECT_EQ(Plot(), Refused);
    ASSERT_EQ(shell.ui.Texts(),
              std::vector<std::string>{"The plot could not be sent. It is in the file work/Transfer.plt"});
    EXPECT_EQ(shell.ui.messages[0].detail, "No such file or directory");
    EXPECT_TRUE(shell.files.files.contains("work/Transfer.plt"));
    EXPECT_TRUE(IsTakenAway(shell.ui.progress.back()));
}

TEST_F(PlottingTest, CancelOfTheSendingSaysNothing) {
    shell.ui.goesOn = [](const WorkProgress&) { return false; };
    EXPECT_EQ(Plot(), Refused);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_TRUE(IsTakenAway(shell.ui.progress.back()));
}

TEST_F(PlottingTest, OneCopyAtATimeHasTheTransferFile) {
    shell.plotter.onSend = [&] { EXPECT_FALSE(shell.transferPlace.lastHold.expired()); };
    EXPECT_EQ(Plot(), Passed);
    EXPECT_TRUE(shell.transferPlace.lastHold.expired());
    shell.transferPlace.busy = true;
    shell.files.files["work/Transfer.tmp"] = "of the other copy";
    shell.ui.messages.clear();
    EXPECT_EQ(Plot(), Refused);
    EXPECT_EQ(shell.ui.Texts(),
              std::vector<std::string>{
                  "Another copy of the program is sending a drawing. Try again when it is done"});
    EXPECT_EQ(shell.files.files["work/Transfer.tmp"], "of the other copy");
    EXPECT_EQ(shell.plotter.jobs.size(), 1U);
}

TEST_F(PlottingTest, ADrawingThatCannotBeReadBackEndsThePlot) {
    ASSERT_EQ(Plot(), Passed);
    std::string& drawing = shell.files.files["work/Transfer.tmp"];
    drawing.replace(drawing.find("\r\n10\r\n") + 6, 1, "x");
    shell.ui.messages.clear();
    EXPECT_EQ(ExportHPGL(*window, "work/Transfer.plt"), Refused);
    ASSERT_EQ(shell.ui.messages.size(), 1U);
    EXPECT_TRUE(shell.ui.messages[0].text.starts_with("Error in ExportHPGL line "));
    EXPECT_EQ(shell.plotter.jobs.size(), 1U);
}

TEST_F(PlottingTest, WithoutATransferFileNothingIsDone) {
    EXPECT_EQ(ExportHPGL(*window, "work/Transfer.plt"), Refused);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_TRUE(shell.files.files.empty());
    EXPECT_TRUE(shell.plotter.jobs.empty());
}

TEST_F(PlottingTest, FilesThatCannotBeWrittenAreTold) {
    for (const char* path : {"work/Transfer.tmp", "work/Transfer.plt", "work/Plot.bat"}) {
        shell.files.unwritable = {path};
        shell.ui.messages.clear();
        EXPECT_EQ(Plot(), Refused);
        ASSERT_EQ(shell.ui.messages.size(), 1U) << path;
        const std::string said = shell.ui.messages[0].text + shell.ui.messages[0].detail;
        EXPECT_NE(said.find(std::string(path) + ": cannot be written"), std::string::npos) << said;
    }
    EXPECT_TRUE(shell.plotter.jobs.empty());
}

TEST_F(PlottingTest, WithoutALineThePlotFileIsAll) {
    shell.context.plotter = nullptr;
    EXPECT_EQ(window->Export("cone.plt", ExportMode::Plotter), Passed);
    EXPECT_EQ(shell.files.files.size(), 1U);
    EXPECT_TRUE(shell.files.files.at("cone.plt").starts_with("IN;\r\nSP1;\r\n"));
    EXPECT_TRUE(shell.ui.messages.empty());
}

}  // namespace
}  // namespace korvet
