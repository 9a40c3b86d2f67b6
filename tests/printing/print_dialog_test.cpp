// The printer of the program, and the dialog in which it is chosen.
#include "printing/printers_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/recording_printers.h"
#include "tests/support/recording_ui.h"

namespace korvet {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class PrintDialogTest : public testing::Test {
  protected:
    PrintDialogTest() {
        options.PrintUnits = Inches;
        options.PrintScale = 1;
        options.PrintOrientation = Landscape;
        options.PrintXCalibration = 1.01;
        options.PrintYCalibration = 0.99;
    }

    [[nodiscard]] PrintersDialog Open(PrintersUse use = PrintersUse::Print) {
        return {use, printer, ui, options, '.'};
    }

    /// What the one box said.
    std::string Said() {
        EXPECT_EQ(ui.messages.size(), 1U);
        const std::string text = ui.messages.empty() ? "" : ui.messages[0].text;
        ui.messages.clear();
        return text;
    }

    COptions options;
    RecordingUi ui;
    RecordingPrinters printers;
    CPrintDialog printer{printers};
};

TEST_F(PrintDialogTest, StartsWithTheDefaultQueueAndTheOptions) {
    printers.queues = {{.name = "Laser"}, {.name = "Plotter"}};
    printer.SetDefaultPapersize(options, ui);
    EXPECT_EQ(printer.CurrentPrinterName, "Laser");
    EXPECT_EQ(printer.CurrentPaperSize, 9);
    EXPECT_EQ(printer.CurrentOrientation, Landscape);
    EXPECT_EQ(printer.PrintUnits, Inches);
    EXPECT_EQ(printer.PrintScale, 1);
    EXPECT_EQ(printer.PrintXCalibration, 1.01);
    EXPECT_EQ(printer.PrintYCalibration, 0.99);
    EXPECT_TRUE(printer.EverythingOK);
    EXPECT_TRUE(printer.HasPrinter());
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(PrintDialogTest, WithoutAQueueTheOptionsHoldAllTheSame) {
    printer.SetDefaultPapersize(options, ui);
    EXPECT_EQ(printer.CurrentPrinterName, "");
    EXPECT_EQ(printer.PrintUnits, Inches);
    EXPECT_EQ(printer.PrintXCalibration, 1.01);
    EXPECT_FALSE(printer.EverythingOK);
    EXPECT_FALSE(printer.HasPrinter());
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(PrintDialogTest, AQueueThatCannotBeAskedIsToldOfAndIsNone) {
    printers.queues = {{.name = "Deaf", .answers = false}};
    printer.SetDefaultPapersize(options, ui);
    EXPECT_EQ(Said(), "No printer were settings retrieved!");
    EXPECT_EQ(printer.CurrentPrinterName, "");
}

TEST_F(PrintDialogTest, ThePdfFileIsAPrinterOnItsOwnPapers) {
    printer.TakePdf();
    EXPECT_TRUE(printer.HasPrinter());
    EXPECT_EQ(printer.Setup().paper.name, "A4");
    const PrintableSize printable = printer.Printable();
    EXPECT_EQ(printable.width, 210);
    EXPECT_EQ(printable.height, 297);
    printer.PrintUnits = Inches;
    printer.CurrentOrientation = Landscape;
    EXPECT_DOUBLE_EQ(printer.Printable().width, 297 / 25.4);
}

TEST_F(PrintDialogTest, EveryPdfPaperHasANumberAndANameOfItsOwn) {
    for (const Paper& paper : PdfPapers()) {
        for (const Paper& other : PdfPapers()) {
            EXPECT_TRUE(&paper == &other || (paper.number != other.number && paper.name != other.name))
                << paper.name;
        }
        EXPECT_LT(0, paper.width);
        EXPECT_LT(paper.width, paper.height) << paper.name;
    }
}

TEST_F(PrintDialogTest, APaperThatTheQueueLacksIsRefused) {
    printers.queues = {{.name = "Laser"}};
    printer.SetDefaultPapersize(options, ui);
    printer.CurrentPaperSize = 66;
    try {
        (void)printer.Setup();
        FAIL();
    } catch (const PrintError& error) {
        EXPECT_THAT(error.what(), HasSubstr("does not have the paper"));
    }
    printers.queues.clear();
    EXPECT_THROW((void)printer.Setup(), PrintError);
}

TEST_F(PrintDialogTest, AQueueThatTakesNothingSaysWhy) {
    printers.queues = {{.name = "Laser"}};
    printer.SetDefaultPapersize(options, ui);
    EXPECT_NO_THROW(printer.RequireReady());
    const std::vector<std::pair<QueueState, std::string>> states = {
        {QueueState::Paused, "is paused"}, {QueueState::Rejecting, "does not accept"}};
    for (const auto& [state, text] : states) {
        printers.queues[0].state = state;
        try {
            printer.RequireReady();
            FAIL();
        } catch (const PrintError& error) {
            EXPECT_THAT(error.what(), HasSubstr(text));
        }
    }
    printers.queues.clear();
    EXPECT_THROW(printer.RequireReady(), PrintError);
}

TEST_F(PrintDialogTest, FramesComeFromThePrintableAreaInPrintUnits) {
    printers.queues = {{.name = "Laser"}};
    options.PrintOrientation = Portrait;
    options.PrintUnits = Millimetres;
    options.PrintXCalibration = options.PrintYCalibration = 1;
    printer.SetDefaultPapersize(options, ui);
    PrintFrames frames;
    ComputePrintFrames(frames, printer);
    EXPECT_EQ(frames.PrintFrameLength, 190);
    EXPECT_EQ(frames.PrintFrameWidth, 277);
    EXPECT_EQ(frames.PrintUnits, Millimetres);
    EXPECT_TRUE(frames.PrintFrameDisplayRequested);
    printer.PrintUnits = Inches;
    ComputePrintFrames(frames, printer);
    EXPECT_DOUBLE_EQ(frames.PrintFrameLength, 200 / 25.4 - 0.3937007874015748);
    printers.queues.clear();
    EXPECT_THROW(ComputePrintFrames(frames, printer), PrintError);
}

TEST_F(PrintDialogTest, TheDialogShowsThePrinterAsItIs) {
    printers.queues = {{.name = "Laser"}, {.name = "Plotter"}};
    printer.SetDefaultPapersize(options, ui);
    printer.CurrentPaperSize = 8;
    const PrintersDialog dialog = Open();
    EXPECT_EQ(dialog.caption, "Print");
    EXPECT_THAT(dialog.cmbPrinters.list, ElementsAre("Laser", "Plotter", "PDF file"));
    EXPECT_EQ(dialog.cmbPrinters.edit.text, "Laser");
    EXPECT_THAT(dialog.cmbPapersize.list, ElementsAre("A4", "A3"));
    EXPECT_EQ(dialog.cmbPapersize.edit.text, "A3");
    EXPECT_TRUE(dialog.optOrientation.IsOn(1));
    EXPECT_TRUE(dialog.optUnits.IsOn(1));
    EXPECT_TRUE(dialog.optScale.IsOn(PrintersDialog::FullSize));
    EXPECT_EQ(dialog.txtUserScale.text, "1");
    EXPECT_TRUE(dialog.IsChosen(PrintersDialog::PrintAll));
    EXPECT_EQ(dialog.btnPrint[1].caption, "Print");
    EXPECT_EQ(dialog.btnPrint[2].caption, "Cancel");
    EXPECT_EQ(dialog.pboxOrient.place.width, 1300);
    EXPECT_EQ(dialog.pboxOrient.place.height, 1000);
    EXPECT_EQ(dialog.pboxOrientInner.place.width, 1000);
}

TEST_F(PrintDialogTest, SetUpHasNoScaleAndNoAction) {
    const PrintersDialog dialog = Open(PrintersUse::Setup);
    EXPECT_EQ(dialog.caption, "Print Setup");
    EXPECT_EQ(dialog.btnPrint[1].caption, "Continue");
    EXPECT_EQ(dialog.lblStatus, "SetupPrinter");
    EXPECT_FALSE(dialog.optAction.enabled);
    EXPECT_FALSE(dialog.optScale.enabled);
    EXPECT_FALSE(dialog.txtUserScale.enabled);
    EXPECT_EQ(dialog.cmbPrinters.edit.text, "");
    EXPECT_TRUE(dialog.cmbPapersize.list.empty());
}

TEST_F(PrintDialogTest, ScalesAreNoughtOneAndAnyOther) {
    const std::vector<std::pair<double, std::size_t>> scales = {
        {0, PrintersDialog::FitPage}, {1, PrintersDialog::FullSize}, {0.5, PrintersDialog::UserScale}};
    for (const auto& [scale, option] : scales) {
        printer.PrintScale = scale;
        const PrintersDialog dialog = Open();
        EXPECT_TRUE(dialog.optScale.IsOn(option));
        EXPECT_EQ(dialog.txtUserScale.text, scale == 0.5 ? "0.5" : scale == 1 ? "1" : "0");
        EXPECT_EQ(dialog.txtUserScale.enabled, option == PrintersDialog::UserScale);
    }
}

TEST_F(PrintDialogTest, AnotherPrinterKeepsThePaperWhereItHasIt) {
    printers.queues = {{.name = "Laser"},
                       {.name = "Plotter", .papers = {{300, "Roll", 914, 3000}, {8, "A3", 297, 420}}}};
    printer.SetDefaultPapersize(options, ui);
    PrintersDialog dialog = Open();
    dialog.ChoosePaper("A3");
    dialog.ChoosePrinter("Plotter");
    EXPECT_THAT(dialog.cmbPapersize.list, ElementsAre("Roll", "A3"));
    EXPECT_EQ(dialog.cmbPapersize.edit.text, "A3");
    dialog.ChoosePaper("Roll");
    dialog.ChoosePrinter("Laser");
    EXPECT_EQ(dialog.cmbPapersize.edit.text, "A4");
    dialog.ChoosePrinter("PDF file");
    EXPECT_EQ(dialog.cmbPapersize.edit.text, "A4");
    EXPECT_EQ(dialog.cmbPapersize.list.size(), PdfPapers().size());
}

TEST_F(PrintDialogTest, AQueueWithoutPapersLeavesTheListEmpty) {
    printers.queues = {{.name = "Laser"}, {.name = "Bare", .papers = {}}};
    printer.SetDefaultPapersize(options, ui);
    PrintersDialog dialog = Open();
    dialog.ChoosePrinter("Bare");
    EXPECT_TRUE(dialog.cmbPapersize.list.empty());
    EXPECT_EQ(dialog.cmbPapersize.edit.text, "");
    dialog.ClickOK();
    EXPECT_THAT(Said(), HasSubstr("Printer Error The printer \"Bare\" does not have the paper"));
    EXPECT_TRUE(dialog.visible);
    EXPECT_EQ(printer.CurrentPrinterName, "Laser");
}

TEST_F(PrintDialogTest, OkTakesTheChoiceOver) {
    printers.queues = {{.name = "Laser"}, {.name = "Plotter"}};
    printer.SetDefaultPapersize(options, ui);
    PrintersDialog dialog = Open();
    dialog.ChoosePrinter("Plotter");
    dialog.cmbPrinters.edit.text = " plotter ";
    dialog.ChoosePaper(" A3 ");
    dialog.ClickOrientation(0);
    dialog.optUnits.selected = 0;
    dialog.ClickScale(PrintersDialog::UserScale);
    dialog.ChangeUserScale(" 0.25 ");
    dialog.ClickOK();
    EXPECT_EQ(dialog.lblStatus, "OK");
    EXPECT_FALSE(dialog.visible);
    EXPECT_EQ(printer.CurrentPrinterName, "Plotter");
    EXPECT_EQ(printer.CurrentPaperSize, 8);
    EXPECT_EQ(printer.CurrentOrientation, Portrait);
    EXPECT_EQ(printer.PrintUnits, Millimetres);
    EXPECT_EQ(printer.PrintScale, 0.25);
    EXPECT_EQ(printer.PrintXCalibration, 1.01);
}

TEST_F(PrintDialogTest, AnUnlistedPaperNameLeavesThePaperAsItWas) {
    printers.queues = {{.name = "Laser"}};
    printer.SetDefaultPapersize(options, ui);
    printer.CurrentPaperSize = 8;
    PrintersDialog dialog = Open();
    dialog.ChoosePaper("Foolscap");
    dialog.ClickOK();
    EXPECT_EQ(dialog.lblStatus, "OK");
    EXPECT_EQ(printer.CurrentPaperSize, 8);
}

TEST_F(PrintDialogTest, AScaleThatIsNoNumberStopsOk) {
    printers.queues = {{.name = "Laser"}};
    printer.SetDefaultPapersize(options, ui);
    PrintersDialog dialog = Open();
    dialog.txtUserScale.text = "half";
    dialog.ClickOK();
    EXPECT_EQ(Said(), "Not a valid number");
    EXPECT_EQ(dialog.focus, "txtUserScale");
    EXPECT_TRUE(dialog.visible);
}

TEST_F(PrintDialogTest, APrinterThatIsGoneIsToldOfAndTheDialogStays) {
    printers.queues = {{.name = "Laser"}};
    printer.SetDefaultPapersize(options, ui);
    PrintersDialog dialog = Open();
    printers.queues.clear();
    dialog.ClickOK();
    ASSERT_EQ(ui.messages.size(), 1U);
    EXPECT_EQ(ui.messages[0].control, "cmbPrinters");
    EXPECT_EQ(Said(), "Printer Error There is no printer \"Laser\".");
    EXPECT_TRUE(dialog.visible);
    dialog.cmbPrinters.edit.text = "";
    dialog.ClickOK();
    EXPECT_EQ(Said(), "Printer Error No printer is chosen.");
}

TEST_F(PrintDialogTest, CancelLeavesThePrinterAsItWas) {
    printers.queues = {{.name = "Laser"}, {.name = "Plotter"}};
    printer.SetDefaultPapersize(options, ui);
    PrintersDialog dialog = Open();
    dialog.ChoosePrinter("Plotter");
    dialog.ClickCancel();
    EXPECT_EQ(dialog.lblStatus, "Cancel");
    EXPECT_FALSE(dialog.visible);
    EXPECT_FALSE(printer.EverythingOK);
    EXPECT_EQ(printer.CurrentPrinterName, "Laser");
    EXPECT_TRUE(printer.HasPrinter());
}

TEST_F(PrintDialogTest, AnActionThatIsGreyCannotBeChosen) {
    PrintersDialog dialog = Open();
    dialog.ClickAction(PrintersDialog::PrintTable);
    EXPECT_TRUE(dialog.IsChosen(PrintersDialog::PrintAll));
    dialog.actionEnabled[PrintersDialog::PrintTable] = true;
    dialog.ClickAction(PrintersDialog::PrintTable);
    EXPECT_TRUE(dialog.IsChosen(PrintersDialog::PrintTable));
    EXPECT_FALSE(dialog.IsChosen(PrintersDialog::PrintAll));
}

}  // namespace
}  // namespace korvet
