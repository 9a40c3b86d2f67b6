// A fitting window among others: its place in the frame, its status line, the dialogs it opens.
#include <gtest/gtest.h>

#include "core/constants.h"
#include "tests/support/test_context.h"
#include "window/views.h"

namespace korvet {
namespace {

class WindowInFrameTest : public testing::Test {
  protected:
    std::unique_ptr<CFittingWindow> ConeWithView(int button) {
        auto window = shell.OpenSample("Right Cone", 2);
        window->ClickView(button);
        EXPECT_TRUE(window->hasModel);
        return window;
    }

    TestShell shell;
};

TEST_F(WindowInFrameTest, LayoutFollowsTheFrame) {
    shell.frame.inner = {0, 0, 12000, 9000};
    const auto window = shell.Open("Right Cone");
    const WindowModel& controls = window->controls;
    EXPECT_EQ(controls.pboxGraphicWindow.place, (Place{3000, 100, 8700, 8850}));
    EXPECT_EQ(controls.fraControls1.place, (Place{0, -50, 3000, 7000}));
    EXPECT_EQ(controls.Picture1[1].place, (Place{165, 120, 2750, 2750}));
    EXPECT_EQ(controls.fraControls.place, (Place{165, 2920, 2750, 1850}));
    EXPECT_EQ(controls.fraControls2.place, (Place{165, 4820, 2750, 1000}));
    EXPECT_EQ(controls.btnView[PatternButton].place, (Place{2100, 200, 550, 550}));
    EXPECT_EQ(controls.fraControls2.caption, "Create or update pattern");
    EXPECT_EQ(controls.lblTextSize.caption, "Text size: ");
    EXPECT_EQ(controls.txtTextSize.text, "2");
    EXPECT_EQ(controls.pboxGraphicWindow.mousePointer, Cursor::Cross);
    EXPECT_FALSE(controls.txtTextSize.tabStop);
    window->Resize({0, 0, 2000, 100});
    EXPECT_EQ(controls.pboxGraphicWindow.place, (Place{3000, 100, 0, 0}));
}

TEST_F(WindowInFrameTest, ANewWindowOpensAsTheLastOneStood) {
    const auto first = shell.Open("Right Cone");
    EXPECT_EQ(first->controls.state, MaximisedWindow);
    first->controls.state = NormalWindow;
    first->Resize({0, 0, 5000, 5000});
    EXPECT_EQ(shell.options.WindowState, NormalWindow);
    EXPECT_EQ(shell.Open("Right Cone")->controls.state, NormalWindow);
}

TEST_F(WindowInFrameTest, OpeningEnablesTheCommandsOfTheFrame) {
    DisableFittingCommands(shell.frame);
    EXPECT_FALSE(shell.frame.menuEnabled["mnuFileSave"]);
    EXPECT_FALSE(shell.frame.toolEnabled[7]);
    const auto window = shell.Open("Right Cone");
    EXPECT_TRUE(shell.frame.menuEnabled["mnuFileSave"]);
    EXPECT_TRUE(shell.frame.toolEnabled[27]);
    EXPECT_FALSE(shell.frame.toolEnabled[7]);
    EXPECT_FALSE(shell.frame.menuEnabled["mnuSelectFrames"]);
}

TEST_F(WindowInFrameTest, AFittingThatIsInNoCatalogueHasNoWindow) {
    EXPECT_EQ(shell.Open("Teapot"), nullptr);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_EQ(shell.Open("Right Cone")->controls.caption, "Development 2");
}

TEST_F(WindowInFrameTest, TheSettingsDialogIsFollowedByAnUpdate) {
    const auto window = ConeWithView(PatternButton);
    shell.ui.onPatternSettings = [](PatternSettingsDialog& dialog) {
        dialog.cboSegs.edit.text = "12";
        dialog.ClickOK();
    };
    window->Settings();
    EXPECT_EQ(window->settings.segs, 12);
    EXPECT_EQ(window->display.Surfaces.Item(1).List1->Count(), 13U);
}

TEST_F(WindowInFrameTest, TheFramesCommandsAreSwitchedTogether) {
    const std::vector<std::string> menus = {
        "mnuZoomExtents",  "mnuZoomOut",     "mnuZoomIn",       "mnuPan",        "mnuZoomWindow",
        "mnuZoomPrevious", "mnuProperties",  "mnuFileSave",     "mnuFileSaveAs", "mnuFileClose",
        "mnuExportDXF",    "mnuExportHPGL",  "mnuDimension",    "mnuModify",     "mnuSendToAcad",
        "mnuFilePrint",    "mnuPrintFrames", "mnuFilePageSetup"};
    const std::vector<int> tools = {3, 5, 6, 9, 11, 12, 13, 14, 16, 17, 19, 20, 21, 22, 23, 24, 27};
    for (const bool enabled : {true, false}) {
        FrameModel frame;
        (enabled ? EnableFittingCommands : DisableFittingCommands)(frame);
        for (const std::string& menu : menus) {
            EXPECT_EQ(frame.menuEnabled.at(menu), enabled) << menu;
        }
        for (const int tool : tools) {
            EXPECT_EQ(frame.toolEnabled.at(tool), enabled) << tool;
        }
        // The choice of print frames is only ever taken away here.
        EXPECT_EQ(frame.menuEnabled.size(), menus.size() + (enabled ? 0 : 1));
        EXPECT_EQ(frame.toolEnabled.size(), tools.size() + (enabled ? 0 : 1));
    }
}

TEST_F(WindowInFrameTest, TheStatusLineIsThatOfTheLastDrawing) {
    const auto window = ConeWithView(PatternButton);
    window->settings.segs = 99;
    shell.frame.statusText = "of another window";
    window->Activate();
    EXPECT_EQ(shell.frame.statusText, " Segments = 24 | Thickness = 0 | Join Angle = 0");
    window->Redraw();
    EXPECT_EQ(shell.frame.statusText, " Segments = 99 | Thickness = 0 | Join Angle = 0");
}

TEST_F(WindowInFrameTest, PointersComeBackAfterTheHourglass) {
    const auto window = ConeWithView(PatternButton);
    window->RemoveDimension();
    window->Redraw();
    EXPECT_EQ(window->controls.mousePointer, Cursor::Default);
    EXPECT_EQ(window->controls.pboxGraphicWindow.mousePointer, Cursor::Arrow);
}

TEST_F(WindowInFrameTest, TheSettingsDialogLearnsTheNumberOfSides) {
    const auto window = shell.Open("Right Cone");
    window->noOfSides = 6;
    shell.ui.onPatternSettings = [](PatternSettingsDialog& dialog) { EXPECT_EQ(dialog.lblNoOfSides, 6); };
    window->Settings();
    EXPECT_EQ(window->settings.NoOfSides, 6);
}

TEST_F(WindowInFrameTest, FocusSelectsTheTextOfABox) {
    const auto window = shell.OpenSample("Right Cone", 2);
    window->FocusBox(4);
    EXPECT_EQ(window->controls.focus, "txtParameter_4");
    EXPECT_EQ(window->controls.txtParameter[4].selectionStart, 0U);
    EXPECT_EQ(window->controls.txtParameter[4].selectionLength, 3U);
}

TEST_F(WindowInFrameTest, MoreAndBackSwapTheTwoPagesOfAType) {
    const auto window = shell.Open("Right Cone");
    window->controls.pboxMore.resize(3);
    window->ClickMore(1);
    EXPECT_FALSE(window->controls.Picture1[1].visible);
    EXPECT_TRUE(window->controls.pboxMore[1].visible);
    window->ClickBack(1);
    EXPECT_TRUE(window->controls.Picture1[1].visible);
    EXPECT_FALSE(window->controls.pboxMore[1].visible);
}

TEST_F(WindowInFrameTest, APatternOptionIsTheFittingsSelector) {
    const auto window = shell.Open("Right Cone");
    window->controls.options.optPatternSelect.captions = {"Full Pattern", "First, Last"};
    window->SelectPattern(1);
    EXPECT_EQ(window->miscellaneous, 2);
    EXPECT_TRUE(window->controls.options.optPatternSelect.IsOn(1));
    EXPECT_EQ(window->views->Count(), 0U);  // the pattern button draws, not the option
}

TEST_F(WindowInFrameTest, TheCategoryIsWhatTheTextBlockAndFilesName) {
    const auto window = shell.OpenSample("Right Cone", 2);
    window->SetCategory("Hood");
    window->ClickView(PatternButton);
    EXPECT_EQ(window->labels->Last().LabelString, "Hood  Full pattern  21 Nov 2026");
}

TEST_F(WindowInFrameTest, ZoomPreviousUpdatesEvenWithoutAViewToGoTo) {
    const auto window = ConeWithView(PatternButton);
    window->settings.segs = 12;
    window->ZoomPrevious();
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>{"No Previous View"}));
    EXPECT_EQ(window->display.Surfaces.Item(1).List1->Count(), 13U);
}

TEST_F(WindowInFrameTest, ARefusedZoomUpdatesAllTheSame) {
    const auto window = ConeWithView(PatternButton);
    window->views->Item(1).ZoomFactor = 20000;
    window->settings.segs = 12;
    window->ZoomX(2);
    EXPECT_EQ(window->display.Surfaces.Item(1).List1->Count(), 13U);
}

TEST_F(WindowInFrameTest, NewOptionsReachAShownFitting) {
    const auto window = ConeWithView(PatternButton);
    shell.options.Decimals = 3;
    window->UpdateOptions();
    EXPECT_EQ(window->display.Decimals, 3);
}

TEST_F(WindowInFrameTest, ModesAreClearedBeforeACommandIsRefused) {
    const auto window = shell.Open("Right Cone");
    for (const auto& command :
         {&CFittingWindow::PlaceLabel, &CFittingWindow::RotatePattern, &CFittingWindow::MeasureDistance}) {
        window->PanView();
        ((*window).*command)();
        EXPECT_FALSE(window->modes.panMode);
    }
    window->RemoveDimension();
    window->PressKeyInDrawing();
    EXPECT_TRUE(window->removeDimensionMode);
}

TEST_F(WindowInFrameTest, ASaveKeepsWhatWasTypedEvenWhenItDoesNotBuild) {
    const auto window = ConeWithView(PatternButton);
    window->ChangeBox(4, "400");
    EXPECT_EQ(window->SaveFile("a.Kvt"), Passed);
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>{"This dimension must be less than 300"}));
    EXPECT_NE(shell.files.files["a.Kvt"].find("\r\n300\r\n400\r\n250\r\n"), std::string::npos);
}

TEST_F(WindowInFrameTest, AnExportHoldsWhatIsOnTheScreen) {
    const auto window = ConeWithView(PatternButton);
    AcceptExports(shell.ui);
    ASSERT_EQ(window->Export("shown.dxf", ExportMode::Dxf), Passed);
    window->ChangeBox(3, "500");
    ASSERT_EQ(window->Export("edited.dxf", ExportMode::Dxf), Passed);
    EXPECT_EQ(shell.files.files["shown.dxf"], shell.files.files["edited.dxf"]);
}

TEST_F(WindowInFrameTest, AFaultyFileLeavesAShownWindowWithoutAModel) {
    const auto window = ConeWithView(PatternButton);
    shell.files.files["bad.Kvt"] = "Korvet Development-3.3.3\r\nRight Cone\r\n";
    EXPECT_EQ(window->LoadFile("bad.Kvt"), Refused);
    EXPECT_EQ(shell.ui.messages.front().text.find("Error in CKVTFile:ReadHeader  line"), 0U);
    EXPECT_EQ(shell.ui.messages.back().text, "Error loading parameter file");
    shell.ui.messages.clear();
    EXPECT_EQ(window->SaveFile("a.Kvt"), Refused);
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>{"Operation cannot be carried out at this time"}));
    EXPECT_FALSE(shell.files.files.contains("a.Kvt"));
}

}  // namespace
}  // namespace korvet
