// Print frames over a pattern, shown and chosen.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "display/page_clip.h"
#include "tests/window/printing_fixture.h"

namespace korvet {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ChosenFrames : public PrintingCone {};

TEST_F(ChosenFrames, FramesAreShownAndHiddenByTheirEntry) {
    TickFrames();
    EXPECT_TRUE(ScreenHasFrames());
    EXPECT_TRUE(shell.frame.menuEnabled["mnuSelectFrames"]);
    EXPECT_EQ(window->printFrames.PrinterPages.Count(), 8U);
    screen.calls.clear();
    shell.frame.printFramesTicked = false;
    window->SetupPrintFrames();
    EXPECT_FALSE(ScreenHasFrames());
    EXPECT_FALSE(shell.frame.menuEnabled["mnuSelectFrames"]);
    EXPECT_EQ(window->printFrames.PrinterPages.Count(), 0U);
}

TEST_F(ChosenFrames, FramesNeedAPatternAndAPrinter) {
    window->ClickView(0);
    TickFrames();
    EXPECT_THAT(Said(), ElementsAre(PatternViewAsked));
    window->ClickView(PatternButton);
    shell.printers.queues.clear();
    TickFrames();
    EXPECT_THAT(Said(), ElementsAre("No printer"));
    EXPECT_FALSE(shell.frame.menuEnabled["mnuSelectFrames"]);
}

TEST_F(ChosenFrames, ClicksChooseFramesAndTakeThemBack) {
    TickFrames();
    window->SelectPrintFrames();
    shell.ui.messages.clear();
    screen.calls.clear();
    window->MouseUp(MouseButton::Left, 0, 10);
    const CPrintPages& pages = window->printFrames.PrinterPages;
    EXPECT_FALSE(pages.Item(1).PrintMe);
    EXPECT_TRUE(pages.Item(3).PrintMe);
    ASSERT_EQ(screen.Lines().size(), 4U);  // nothing but the box
    EXPECT_EQ(screen.Lines()[0].pen.ForeColor, Green);
    window->MouseUp(MouseButton::Left, 0, 10);
    EXPECT_FALSE(pages.Item(3).PrintMe);
    EXPECT_EQ(screen.Lines()[4].pen.ForeColor, Yellow);
    window->MouseUp(MouseButton::Left, 5000, 10);
    EXPECT_EQ(screen.Lines().size(), 8U);
}

TEST_F(ChosenFrames, TheWheelAndTheMiddleButtonKeepThem) {
    TickFrames();
    window->printFrames.PrinterPages.Item(3).PrintMe = true;
    screen.calls.clear();
    window->TurnWheel(1, 10, 10, 10000);
    EXPECT_TRUE(ScreenHasFrames());
    EXPECT_FALSE(window->MouseDown(MouseButton::Middle, 10, 10));
    window->MouseMove(MouseButton::Middle, 40, 40);
    window->MouseUp(MouseButton::Middle, 40, 40);
    EXPECT_TRUE(window->printFrames.PrinterPages.Item(3).PrintMe);
}

TEST_F(ChosenFrames, AClickOnASharedEdgeChoosesBothFrames) {
    TickFrames();
    window->SelectPrintFrames();
    const Bounds first = BoxOf(window->printFrames.PrinterPages.Item(1));
    window->display.RotationAngle = 0;
    const auto y = static_cast<float>(first.maxY);
    window->MouseUp(MouseButton::Left, static_cast<float>(first.minX + 50), y);
    EXPECT_EQ(window->printFrames.PrinterPages.Item(1).PrintMe,
              IsWithinPage({first.minX + 50, y, 0, 0}, first));
    EXPECT_TRUE(window->printFrames.PrinterPages.Item(2).PrintMe);
}

TEST_F(ChosenFrames, ChosenFramesArePrintedInTheirOrder) {
    TickFrames();
    window->SelectPrintFrames();
    shell.ui.messages.clear();
    window->MouseUp(MouseButton::Left, 400, 300);  // "D2"
    window->MouseUp(MouseButton::Left, 0, 10);     // "B1"
    Print([](PrintersDialog& dialog) {
        EXPECT_TRUE(dialog.actionEnabled[PrintersDialog::PrintSelected]);
        dialog.ClickAction(PrintersDialog::PrintSelected);
    });
    EXPECT_THAT(SheetsOf(Documents().at(0)), ElementsAre("B1", "D2"));
    EXPECT_THAT(Said(), IsEmpty());
    // The redraw behind it has them no more, and the mode has ended.
    EXPECT_FALSE(window->modes.selectFramesMode);
    for (const CPrintPage& page : window->printFrames.PrinterPages) {
        EXPECT_FALSE(page.PrintMe);
    }
    // On paper they are not drawn as chosen ones.
    for (const RecordingDevice::Call& line : Documents()[0].sheets[0]->Lines()) {
        EXPECT_LT(line.pen.DrawWidth, 8);
    }
}

TEST_F(ChosenFrames, WithNoneChosenTheActionIsGrey) {
    Print([](PrintersDialog& dialog) {
        EXPECT_FALSE(dialog.actionEnabled[PrintersDialog::PrintSelected]);
        EXPECT_FALSE(dialog.actionEnabled[PrintersDialog::PrintTable]);
        dialog.ClickCancel();
    });
}

TEST_F(ChosenFrames, FramesChosenOnALargerPaperAreNotPrintedOnASmallerOne) {
    shell.printDialog.CurrentPaperSize = 8;
    TickFrames();
    window->SelectPrintFrames();
    shell.ui.messages.clear();
    window->MouseUp(MouseButton::Left, 0, 10);
    Print([](PrintersDialog& dialog) {
        dialog.ClickAction(PrintersDialog::PrintSelected);
        dialog.ChoosePaper("A4");
    });
    EXPECT_THAT(Said(),
                ElementsAre("The frames were chosen on another paper. Set them up and choose them again."));
    EXPECT_EQ(shell.printers.started, 0);
}

TEST_F(ChosenFrames, ARedrawLosesTheChoice) {
    TickFrames();
    window->SelectPrintFrames();
    window->MouseUp(MouseButton::Left, 0, 10);
    window->Redraw();
    for (const CPrintPage& page : window->printFrames.PrinterPages) {
        EXPECT_FALSE(page.PrintMe);
    }
    window->ClickView(0);
    EXPECT_EQ(window->printFrames.PrinterPages.Count(), 0U);  // a model has none to choose
}

TEST_F(ChosenFrames, SetUpComputesTheFramesAnew) {
    TickFrames();
    shell.ui.onPrinters = [](PrintersDialog& dialog) {
        EXPECT_EQ(dialog.lblStatus, "SetupPrinter");
        dialog.ChoosePaper("A3");
        dialog.ClickOK();
    };
    window->PrinterSetup();
    EXPECT_EQ(window->printFrames.PrintFrameWidth, 400);
    EXPECT_EQ(window->printFrames.PrinterPages.Count(), 6U);  // 277 by 400: three columns, two rows
}

}  // namespace
}  // namespace korvet
