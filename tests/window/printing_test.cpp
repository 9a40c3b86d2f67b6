// The commands that bring a fitting to paper, on printers without paper.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

#include "tests/window/printing_fixture.h"

namespace korvet {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Printing : public PrintingCone {};

TEST_F(Printing, FullSizePrintsEverySheetInOneJob) {
    PrintAllFull();
    ASSERT_EQ(Documents().size(), 1U);
    EXPECT_EQ(shell.printers.started, 1);
    const RecordingPrinters::Document& document = Documents()[0];
    EXPECT_EQ(document.setup, (SheetSetup{"Laser", {9, "A4", 210, 297}, Portrait}));
    EXPECT_EQ(document.title, "Right Cone");
    EXPECT_THAT(SheetsOf(document), ElementsAre("A1", "A2", "B1", "B2", "C1", "C2", "D1", "D2"));
    EXPECT_EQ(document.sheets.size(), 8U);  // none of them empty
    EXPECT_THAT(Said(), IsEmpty());
    EXPECT_EQ(shell.ui.progress.size(), 9U);
    EXPECT_EQ(shell.ui.progress.front().what, "Sheet A1");
    EXPECT_EQ(shell.ui.progress.back().done, shell.ui.progress.back().total);
}

TEST_F(Printing, TheScreenIsAsItWasAfterwards) {
    PrintAllFull();
    EXPECT_FALSE(window->printFrames.PrintFrameDisplayRequested);
    EXPECT_FALSE(shell.frame.menuEnabled["mnuSelectFrames"]);
    screen.calls.clear();
    window->Redraw();
    EXPECT_FALSE(ScreenHasFrames());
    TickFrames();
    screen.calls.clear();
    PrintAllFull();
    EXPECT_TRUE(window->printFrames.PrintFrameDisplayRequested);
    EXPECT_TRUE(ScreenHasFrames());
    EXPECT_TRUE(shell.frame.menuEnabled["mnuSelectFrames"]);
}

TEST_F(Printing, ALongLineIsTrueOnPaper) {
    // The seam lies along x from 177.1377 to 442.8443, on the sheets C1 and D1.
    window->printFrames = {};
    PrintAllFull();
    double seam = 0;
    for (const auto& sheet : Documents().at(0).sheets) {
        for (const RecordingDevice::Call& line : sheet->Lines()) {
            const bool level = line.points.size() == 2 && line.points[0].y == line.points[1].y;
            if (line.pen.DrawWidth == 3 && level) {
                seam += std::abs(line.points[1].x - line.points[0].x) / 7200.0 * 25.4;
            }
        }
    }
    EXPECT_NEAR(seam, std::hypot(90, 250), 0.01);
}

TEST_F(Printing, LandscapeAndAnotherPaperHaveOtherFrames) {
    Print([](PrintersDialog& dialog) {
        dialog.ClickScale(PrintersDialog::FullSize);
        dialog.ChoosePaper("A3");
        dialog.ClickOrientation(1);
    });
    // 400 by 277 millimetres each.
    EXPECT_THAT(SheetsOf(Documents().at(0)), ElementsAre("A1", "A2", "B1", "B2"));
    EXPECT_EQ(Documents()[0].setup.orientation, Landscape);
    EXPECT_NEAR(Documents()[0].sheets[0]->scaleSize.width / 7200 * 25.4, 410, 1e-9);
}

TEST_F(Printing, InchesAreInches) {
    shell.ui.files = {"cone.pdf"};
    Print([](PrintersDialog& dialog) {
        dialog.ClickScale(PrintersDialog::FullSize);
        dialog.optUnits.selected = 1;
        dialog.ChoosePrinter("PDF file");
        dialog.ChoosePaper("Roll 1067 x 5000 mm");
    });
    // 677 by 443 inches on frames of 41.6 by 196.5: 17 columns, 3 rows.
    ASSERT_EQ(Documents().size(), 1U);
    EXPECT_EQ(Documents()[0].sheets.size(), 51U);
}

TEST_F(Printing, ThePdfFileAsksForItsName) {
    shell.printDialog.TakePdf();
    PrintAllFull();
    ASSERT_EQ(shell.ui.fileDialogs.size(), 1U);
    EXPECT_EQ(shell.ui.fileDialogs[0].title, "Print to PDF");
    EXPECT_TRUE(shell.ui.fileDialogs[0].save);
    EXPECT_EQ(shell.printers.started, 0);
    shell.ui.files = {"cone.pdf"};
    PrintAllFull();
    EXPECT_EQ(Documents().at(0).path, "cone.pdf");
    EXPECT_EQ(Documents()[0].setup.printer, "PDF file");
    EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(Printing, ToFitIsOneSheetOfTheView) {
    Print([](PrintersDialog& dialog) { dialog.ClickScale(PrintersDialog::FitPage); });
    ASSERT_EQ(Documents().size(), 1U);
    EXPECT_EQ(Documents()[0].sheets.size(), 1U);
    EXPECT_FALSE(Documents()[0].sheets[0]->Lines().empty());
    window->ClickView(0);
    Print([](PrintersDialog& dialog) { dialog.ClickScale(PrintersDialog::FitPage); });
    EXPECT_EQ(Documents().size(), 2U);
    EXPECT_FALSE(Documents()[1].sheets[0]->Lines().empty());
    EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(Printing, AUserScaleIsNotPrinted) {
    Print([](PrintersDialog& dialog) { dialog.ClickScale(PrintersDialog::UserScale); });
    EXPECT_THAT(Said(), ElementsAre("Operation cannot be carried out at this time"));
    EXPECT_EQ(shell.printers.started, 0);
}

TEST_F(Printing, FullSizeIsOfPatternsOnly) {
    window->ClickView(0);
    PrintAllFull();
    EXPECT_THAT(Said(), ElementsAre(PatternViewAsked));
    EXPECT_EQ(shell.printers.started, 0);
}

TEST_F(Printing, WithoutRoomForAFrameNothingIsPrinted) {
    shell.printers.margin = 101;
    PrintAllFull();
    EXPECT_THAT(Said(), ElementsAre(PatternViewAsked));
    shell.printers.margin = 100;  // frames of no length
    PrintAllFull();
    EXPECT_THAT(Said(), ElementsAre(PatternViewAsked));
    EXPECT_EQ(shell.printers.started, 0);
    TickFrames();
    EXPECT_EQ(window->printFrames.PrinterPages.Count(), 0U);
}

TEST_F(Printing, MoreThanTwoThousandSheetsAreRefusedByTheirNumber) {
    shell.printers.margin = 99.5;  // frames of 1 by 88
    PrintAllFull();
    const std::vector<std::string> said = Said();
    ASSERT_EQ(said.size(), 1U);
    // 678 columns of a millimetre, 6 rows.
    EXPECT_THAT(said[0], HasSubstr("takes 4068 sheets of this paper. No more than 2000 can be printed."));
    EXPECT_EQ(shell.printers.started, 0);
    TickFrames();
    EXPECT_EQ(Said(), said);
    EXPECT_FALSE(shell.frame.menuEnabled["mnuSelectFrames"]);
    EXPECT_FALSE(ScreenHasFrames());
    window->Redraw();
    EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(Printing, ABoxSpoiltMeanwhileStopsThePrinting) {
    window->ChangeBox(4, "400");
    PrintAllFull();
    EXPECT_THAT(Said(), ElementsAre("This dimension must be less than 300"));
    EXPECT_EQ(shell.printers.started, 0);
    EXPECT_FALSE(window->hasModel);
    EXPECT_FALSE(window->printFrames.PrintFrameDisplayRequested);
}

TEST_F(Printing, AQueueThatTakesNothingIsAskedBefore) {
    shell.printers.queues[0].state = QueueState::Paused;
    PrintAllFull();
    EXPECT_THAT(Said(), ElementsAre("Printer Error The printer \"Laser\" is paused."));
    shell.printers.queues[0].state = QueueState::Rejecting;
    PrintAllFull();
    EXPECT_THAT(Said(), ElementsAre("Printer Error The printer \"Laser\" does not accept documents."));
    EXPECT_EQ(shell.printers.started, 0);
}

TEST_F(Printing, APrinterGoneBetweenDialogAndPrintIsToldOf) {
    Print([this](PrintersDialog& dialog) {
        dialog.ClickScale(PrintersDialog::FullSize);
        dialog.ClickOK();
        shell.printers.queues.clear();
    });
    EXPECT_THAT(Said(), ElementsAre("Printer Error There is no printer \"Laser\" any more."));
    EXPECT_EQ(shell.printers.started, 0);
    EXPECT_TRUE(window->hasModel);
}

TEST_F(Printing, ADocumentThatIsNotTakenIsToldOf) {
    shell.printers.fault = "cone.pdf: No space left on device";
    PrintAllFull();
    EXPECT_THAT(Said(), ElementsAre("Printer Error cone.pdf: No space left on device"));
    EXPECT_TRUE(Documents().empty());
}

TEST_F(Printing, ACancelledJobNeverComesToThePrinter) {
    shell.ui.goesOn = [](const WorkProgress& progress) { return progress.done != 3; };
    PrintAllFull();
    EXPECT_EQ(shell.printers.started, 1);
    EXPECT_TRUE(Documents().empty());
    EXPECT_THAT(Said(), IsEmpty());
    EXPECT_EQ(shell.ui.progress.back().done, 8U);  // the box was taken away
    EXPECT_FALSE(ScreenHasFrames());
}

TEST_F(Printing, CancelInTheDialogPrintsNothing) {
    Print([](PrintersDialog& dialog) { dialog.ClickCancel(); });
    EXPECT_EQ(shell.printers.started, 0);
    PrintAllFull();
    EXPECT_EQ(Documents().size(), 1U);  // and is no reason to refuse the next one
}

TEST_F(Printing, TheTableGoesOutAsText) {
    window->display.CoordTableRequested = true;
    window->Redraw();
    Print([](PrintersDialog& dialog) { dialog.ClickAction(PrintersDialog::PrintTable); });
    ASSERT_EQ(Documents().size(), 1U);
    const std::vector<std::string> lines = Documents()[0].sheets.at(0)->Strings();
    EXPECT_EQ(lines.at(0), " Korvet Development");
    EXPECT_EQ(lines.at(1), " Suface No: 1");
    EXPECT_TRUE(shell.files.files.contains("Coordinates.txt"));
    EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(Printing, ATableThatCannotBeWrittenOrReadIsToldOf) {
    window->display.CoordTableRequested = true;
    window->Redraw();
    const auto table = [](PrintersDialog& dialog) { dialog.ClickAction(PrintersDialog::PrintTable); };
    shell.files.unreadable = {"Coordinates.txt"};
    Print(table);
    EXPECT_THAT(Said(), ElementsAre("Error in CObjectDisplay:SendTableToPrinter"));
    shell.files.unwritable = {"Coordinates.txt"};
    Print(table);
    EXPECT_THAT(Said(), ElementsAre("Error in COptions:WriteTableFile"));
    EXPECT_TRUE(Documents().empty());
}

TEST_F(Printing, WarningsComeOnceACommand) {
    window->settings.JoinType = 1;
    window->settings.LapSize0 = 200;  // the apex is 177 away
    window->Redraw();
    const std::vector<std::string> once = Said();
    EXPECT_FALSE(once.empty());
    PrintAllFull();
    EXPECT_EQ(Said(), once);
}

TEST_F(Printing, APdfOfNamedSheets) {
    shell.printDialog.TakePdf();
    EXPECT_EQ(window->PrintToPdf("a.pdf", {false, {"B1", "A2"}}), Passed);
    EXPECT_EQ(Documents().at(0).path, "a.pdf");
    EXPECT_THAT(SheetsOf(Documents()[0]), ElementsAre("A2", "B1"));
    EXPECT_EQ(window->PrintToPdf("a.pdf", {false, {"A1", "Z9"}}), Refused);
    EXPECT_THAT(Said(),
                ElementsAre("There is no sheet \"Z9\". The sheets are A1, A2, B1, B2, C1, C2, D1, D2."));
    EXPECT_EQ(window->PrintToPdf("a.pdf", {true, {}}), Passed);
    EXPECT_EQ(Documents().back().sheets.size(), 1U);
}

}  // namespace
}  // namespace korvet
