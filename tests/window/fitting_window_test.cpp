// The life of a fitting window: its states, its commands in each of them, and what they leave behind.
#include "window/fitting_window.h"

#include <gtest/gtest.h>

#include "core/constants.h"
#include "tests/support/test_context.h"
#include "window/views.h"

namespace korvet {
namespace {

const std::string NoModelText = "Operation cannot be carried out at this time";

class FittingWindowTest : public testing::Test {
  protected:
    /// A cone with good sizes, not yet drawn.
    std::unique_ptr<CFittingWindow> Cone() { return shell.OpenSample("Right Cone", 2); }

    std::unique_ptr<CFittingWindow> ConeWithView(int button) {
        auto window = Cone();
        window->ClickView(button);
        EXPECT_TRUE(window->hasModel);
        return window;
    }

    void ExpectMessage(const std::string& text, BoxStyle style, const std::string& title) {
        ASSERT_EQ(shell.ui.messages.size(), 1U);
        EXPECT_EQ(shell.ui.messages[0].text, text);
        EXPECT_EQ(shell.ui.messages[0].style, style);
        EXPECT_EQ(shell.ui.messages[0].title, title);
        shell.ui.messages.clear();
    }

    void ExpectUserError(const std::string& text) { ExpectMessage(text, ExclamationBox, "User Error"); }
    void ExpectPlain(const std::string& text) { ExpectMessage(text, PlainBox, "Korvet Development"); }

    TestShell shell;
};

TEST_F(FittingWindowTest, RedrawBeforeTheFirstViewDoesNothing) {
    const auto window = shell.Open("Right Cone");
    window->Redraw();
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_FALSE(window->hasModel);
    EXPECT_TRUE(window->edited);
}

TEST_F(FittingWindowTest, ABadFirstViewIsTakenBack) {
    const auto window = shell.Open("Right Cone");
    window->ClickView(PatternButton);
    ExpectUserError("This dimension must be greater than 0");
    EXPECT_EQ(window->views->Count(), 0U);
    EXPECT_EQ(window->controls.focus, "txtParameter_3");
}

TEST_F(FittingWindowTest, AGoodBuildBlackensTheBoxesAndLocksTheType) {
    const auto window = Cone();
    EXPECT_EQ(window->controls.txtParameter[3].textColor, Red);
    EXPECT_EQ(window->controls.txtTextSize.textColor, Red);
    EXPECT_TRUE(window->controls.btnPoint[0].enabled);
    window->ClickView(PatternButton);
    EXPECT_TRUE(window->hasModel);
    EXPECT_FALSE(window->edited);
    EXPECT_EQ(window->controls.txtParameter[3].textColor, Black);
    EXPECT_EQ(window->controls.txtTextSize.textColor, Black);
    EXPECT_FALSE(window->controls.btnPoint[0].enabled);
    EXPECT_FALSE(window->controls.btnPoint[1].enabled);
    window->ClickPoint(0);
    EXPECT_EQ(window->dtype, 1);
}

TEST_F(FittingWindowTest, AFailedRebuildKeepsTheDrawingButNotTheModel) {
    const auto window = ConeWithView(PatternButton);
    window->ChangeBox(4, "400");
    EXPECT_EQ(window->controls.txtParameter[4].textColor, Red);
    EXPECT_TRUE(window->edited);
    window->Redraw();
    ExpectUserError("This dimension must be less than 300");
    EXPECT_FALSE(window->hasModel);
    EXPECT_EQ(window->views->Count(), 1U);
    EXPECT_EQ(window->display.Surfaces.Count(), 1U);
    EXPECT_EQ(window->SaveFile("a.Kvt"), Refused);
    ExpectUserError(NoModelText);
    EXPECT_TRUE(shell.files.files.empty());
}

TEST_F(FittingWindowTest, ABadViewAfterAGoodOneIsTakenBack) {
    const auto window = ConeWithView(PatternButton);
    window->ChangeBox(3, "0");
    window->ClickView(0);
    EXPECT_EQ(window->views->Count(), 1U);
    EXPECT_TRUE(InPatternView(*window->views));
}

TEST_F(FittingWindowTest, TypingIsTestedAsItGoes) {
    const auto window = Cone();
    for (const std::string text : {"", "-", ".", ","}) {
        window->ChangeBox(3, text);
    }
    EXPECT_TRUE(shell.ui.messages.empty());
    window->ChangeBox(3, "12a");
    ExpectMessage("Not a valid number", QuestionBox, "Korvet Development");
    EXPECT_EQ(window->controls.txtParameter[3].selectionLength, 3U);
}

TEST_F(FittingWindowTest, TypeButtonsStepAndStopAtTheEnds) {
    const auto window = shell.Open("Truncated Right Cone");
    EXPECT_FALSE(window->controls.btnPoint[1].enabled);
    window->ClickPoint(1);
    EXPECT_EQ(window->dtype, 0);
    for (int i = 0; i < 6; ++i) {
        window->ClickPoint(0);
    }
    EXPECT_EQ(window->dtype, 4);
    EXPECT_EQ(window->controls.lblDtype.caption, "Type 5");
    EXPECT_TRUE(window->controls.Picture1[4].visible);
    EXPECT_FALSE(window->controls.Picture1[3].visible);
    EXPECT_FALSE(window->controls.btnPoint[0].enabled);
    EXPECT_TRUE(window->controls.btnPoint[1].enabled);
}

TEST_F(FittingWindowTest, CommandsWithoutAModelAreRefused) {
    const auto window = Cone();
    const std::vector<std::function<void()>> commands = {
        [&] { window->DimensionOptionsDialog(); },
        [&] { window->RotatePattern(); },
        [&] { window->PlaceLabel(); },
        [&] { window->MeasureDistance(); },
        [&] { window->AddDimension(1); },
        [&] { window->SetupPrintFrames(); },
        [&] { (void)window->SaveFile("a.Kvt"); },
        [&] { (void)window->Export("a.dxf", ExportMode::Dxf); }};
    for (const auto& command : commands) {
        command();
        ExpectUserError(NoModelText);
    }
    window->ZoomExtents();
    ExpectPlain("The item has no extents");
    window->PrintDrawing();
    ExpectUserError("Nothing to print!");
    window->ZoomX(0.9);
    window->ZoomWindow();
    window->UpdateOptions();
    EXPECT_TRUE(shell.ui.messages.empty());
    window->ZoomPrevious();
    ExpectPlain("No Previous View");
}

TEST_F(FittingWindowTest, PatternCommandsAreRefusedInAModelView) {
    const auto window = ConeWithView(0);
    const std::string patternOnly = "This option is only available in pattern view";
    window->RotatePattern();
    ExpectUserError(patternOnly);
    window->DimensionOptionsDialog();
    ExpectPlain(patternOnly);
    window->AddDimension(1);
    ExpectPlain(patternOnly);
    EXPECT_EQ(window->modes.dimensionMode, 0);
    EXPECT_EQ(window->controls.pboxGraphicWindow.toolTip,
              "Press left mouse button down at first point and release at second point");
    shell.frame.printFramesTicked = true;
    window->SetupPrintFrames();
    ExpectUserError(patternOnly);
}

TEST_F(FittingWindowTest, MouseModesExcludeEachOther) {
    const auto window = ConeWithView(PatternButton);
    window->PanView();
    EXPECT_TRUE(window->modes.panMode);
    window->MeasureDistance();
    EXPECT_FALSE(window->modes.panMode);
    EXPECT_TRUE(window->modes.measureMode);
    window->AddDimension(1);
    EXPECT_EQ(window->modes.dimensionMode, 1);
    window->RotatePattern();
    EXPECT_EQ(window->modes.dimensionMode, 0);
    EXPECT_TRUE(window->modes.rotateMode);
    EXPECT_EQ(window->controls.pboxGraphicWindow.toolTip,
              "Press left mouse button down at first rotation reference point and release at second point");
    window->ZoomWindow();
    EXPECT_TRUE(window->modes.zoomWindowMode);
    window->PressKeyInDrawing();
    EXPECT_FALSE(window->modes.zoomWindowMode);
    EXPECT_EQ(window->controls.pboxGraphicWindow.toolTip, "");
}

TEST_F(FittingWindowTest, RemovalOfADimensionOutlastsTheOtherModes) {
    const auto window = ConeWithView(PatternButton);
    window->RemoveDimension();
    EXPECT_EQ(window->controls.pboxGraphicWindow.mousePointer, Cursor::Arrow);
    EXPECT_EQ(window->controls.pboxGraphicWindow.toolTip, "Select dimension for removal");
    window->PanView();
    EXPECT_TRUE(window->removeDimensionMode);
}

TEST_F(FittingWindowTest, PanningIsArmedWithoutAModel) {
    const auto window = shell.Open("Right Cone");
    window->PanView();
    EXPECT_TRUE(window->modes.panMode);
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST_F(FittingWindowTest, SelectingPrintFramesSaysHow) {
    const auto window = shell.Open("Right Cone");
    window->SelectPrintFrames();
    ExpectPlain(
        "Select Frames for printing by left-clicking with the mouse. \r\n"
        "De-Select by left-clicking again on a selected frame");
    EXPECT_TRUE(window->modes.selectFramesMode);
}

TEST_F(FittingWindowTest, PrintFramesOffDisablesTheirChoice) {
    const auto window = ConeWithView(PatternButton);
    shell.frame.menuEnabled["mnuSelectFrames"] = true;
    window->SetupPrintFrames();
    EXPECT_FALSE(shell.frame.menuEnabled["mnuSelectFrames"]);
    shell.frame.printFramesTicked = true;
    window->SetupPrintFrames();
    ExpectPlain("No printer");
}

TEST_F(FittingWindowTest, ZoomingAddsViewsUpToTheLimits) {
    const auto window = ConeWithView(PatternButton);
    window->ZoomX(2);
    EXPECT_EQ(window->views->Count(), 2U);
    EXPECT_EQ(window->views->Last().ZoomFactor, 2);
    window->views->Item(2).ZoomFactor = 10001;
    window->ZoomX(2);
    ExpectPlain("Exceeded maximum zoom");
    EXPECT_EQ(window->views->Count(), 2U);
    window->ZoomWindow();
    ExpectPlain("Exceeded maximum zoom");
    EXPECT_FALSE(window->modes.zoomWindowMode);
    window->ZoomPrevious();
    EXPECT_EQ(window->views->Count(), 1U);
}

TEST_F(FittingWindowTest, TextSizeOfABadBoxIsTheLastGoodOne) {
    const auto window = ConeWithView(PatternButton);
    EXPECT_EQ(window->display.TextSize, 2);
    window->ChangeTextSize("5");
    window->Redraw();
    EXPECT_EQ(window->display.TextSize, 5);
    window->ChangeTextSize("-");
    window->Redraw();
    EXPECT_TRUE(window->hasModel);  // this window sweeps no boxes
    EXPECT_EQ(window->display.TextSize, 5);
}

TEST_F(FittingWindowTest, SettingsReachTheFitting) {
    const auto window = Cone();
    window->settings.JoinAngle = 90;
    window->settings.segs = 48;
    window->settings.HalfPattern = true;
    window->settings.JoinType = 1;
    window->settings.LapSize1 = 10;
    window->ClickView(PatternButton);
    const FittingInputs& inputs = window->fitting->Inputs();
    EXPECT_NEAR(inputs.JoinAngle, PI / 2, 1e-15);
    EXPECT_EQ(inputs.segs, 48);
    EXPECT_TRUE(inputs.HalfPattern);
    EXPECT_EQ(window->display.Surfaces.Item(1).List1->Count(), 26U);
    EXPECT_EQ(shell.frame.statusText, " Segments = 48 | Thickness = 0 | Join Angle = 90");
}

TEST_F(FittingWindowTest, TheLabelDialogSetsTheCommentsAndArmsTheMouse) {
    const auto window = ConeWithView(PatternButton);
    shell.ui.onLabel = [](LabelDialog& dialog) {
        EXPECT_TRUE(dialog.chkDisplayLabel.checked);
        EXPECT_EQ(dialog.lblLabelItem[0], "Base diameter = 300");
        dialog.txtLabelItem[0].text = "Order 1";
        dialog.lblStatus = "OK";
    };
    window->PlaceLabel();
    EXPECT_TRUE(window->modes.labelMode);
    EXPECT_EQ(window->comment1, "Order 1");
    EXPECT_EQ(window->labels->Item(1).LabelString, "Order 1");
    EXPECT_EQ(window->controls.pboxGraphicWindow.toolTip, "Position label");

    // Once placed, the dialog offers its removal.
    window->display.LabelPoint = C3DPoint{1, 2, 0, 0};
    shell.ui.onLabel = [](LabelDialog& dialog) {
        EXPECT_FALSE(dialog.chkDisplayLabel.checked);
        dialog.lblStatus = "OK";
    };
    window->PlaceLabel();
    EXPECT_FALSE(window->display.LabelPoint);
    EXPECT_FALSE(window->modes.labelMode);
}

TEST_F(FittingWindowTest, TheLabelDialogsCloseBoxIsCancel) {
    const auto window = ConeWithView(PatternButton);
    shell.ui.onLabel = [](LabelDialog& dialog) { dialog.txtLabelItem[0].text = "lost"; };
    window->PlaceLabel();
    EXPECT_FALSE(window->modes.labelMode);
    EXPECT_EQ(window->comment1, "");
}

TEST_F(FittingWindowTest, TheDimensionDialogSetsTheRequests) {
    const auto window = ConeWithView(PatternButton);
    window->display.CoordGridRequested = true;
    window->display.CoordTableRequested = true;
    window->diagonalsAllowed = false;
    shell.ui.onDimensionOptions = [](DimensionOptionsDialog& dialog) {
        // A file may ask for both; the table, ticked later, wins.
        EXPECT_FALSE(dialog.chkDimensions[DimensionOptionsDialog::CoordGrid].checked);
        EXPECT_TRUE(dialog.chkDimensions[DimensionOptionsDialog::CoordTable].checked);
        EXPECT_FALSE(dialog.chkDimensions[DimensionOptionsDialog::Diagonals].enabled);
        dialog.Click(DimensionOptionsDialog::FrameAndArea, true);
        dialog.lblStatus = "OK";
    };
    window->DimensionOptionsDialog();
    EXPECT_TRUE(window->display.FrameRequested);
    EXPECT_FALSE(window->display.CoordGridRequested);
    EXPECT_TRUE(window->display.CoordTableRequested);
}

TEST_F(FittingWindowTest, RemovingAllDimensionsEmptiesTheList) {
    const auto window = ConeWithView(PatternButton);
    window->dimensions->Add({1, 1, 2, 1, 1, 1});
    window->RemoveAllDimensions();
    EXPECT_EQ(window->dimensions->Count(), 0U);
    EXPECT_EQ(window->display.DimensionList, window->dimensions);
}

}  // namespace
}  // namespace korvet
