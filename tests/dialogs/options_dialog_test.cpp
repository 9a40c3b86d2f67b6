#include "dialogs/options_dialog.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "tests/dialogs/other_options.h"
#include "tests/support/memory_file_store.h"
#include "tests/support/recording_ui.h"

namespace korvet {
namespace {

constexpr const char* IniPath = "/home/user/settings.ini";

class GlobalOptions : public ::testing::Test {
  protected:
    GlobalOptions() { options.IniFileName = IniPath; }

    OptionsDialog Dialog(char decimalMark = '.') { return {options, ui, files, decimalMark}; }

    void ExpectUserError(const std::string& text) {
        ASSERT_EQ(ui.messages.size(), 1U);
        EXPECT_EQ(ui.messages[0].text, text);
        EXPECT_EQ(ui.messages[0].title, "User Error");
        EXPECT_EQ(ui.messages[0].style, ExclamationBox);
    }

    COptions options;
    RecordingUi ui;
    MemoryFileStore files;
};

TEST_F(GlobalOptions, AreShownAsTheyAre) {
    options = OtherOptions();
    const OptionsDialog dialog = Dialog(',');
    EXPECT_EQ(dialog.CmbDefaultSegs.edit.text, "60");
    EXPECT_EQ(dialog.cmbDecimals.selected, 3U);
    EXPECT_EQ(dialog.cmbLanguage.edit.text, "German");
    EXPECT_EQ(dialog.txtDisplayTextSize.text, "2,5");
    EXPECT_EQ(dialog.txtDXFTextSize.text, "0,75");
    EXPECT_EQ(dialog.pboxDisplayDimensionColor.backColor, 101);
    EXPECT_EQ(dialog.pboxDisplayFoldColor.backColor, 103);
    EXPECT_EQ(dialog.pboxDisplayCutColor.backColor, 104);
    EXPECT_EQ(dialog.pboxDisplayTextColor.backColor, 105);
    EXPECT_EQ(dialog.pboxDisplayBackColor.backColor, 106);
    EXPECT_EQ(dialog.txtDXFCutLayer.text, "Schnittlinien \xC3\xBC");
    EXPECT_EQ(dialog.txtDXFFoldLayer.text, "Fold");
    EXPECT_EQ(dialog.txtDXFTextLayer.text, "Text");
    EXPECT_EQ(dialog.txtDXFBorderLayer.text, "Border");
    EXPECT_EQ(dialog.txtDXFDimensionLayer.text, "Dimension");
    EXPECT_TRUE(dialog.optPolyMode.IsOn(1));
    EXPECT_TRUE(dialog.optUnits.IsOn(1));
    EXPECT_TRUE(dialog.optScale.IsOn(2));
    EXPECT_EQ(dialog.txtUserScale.text, "0,5");
    EXPECT_TRUE(dialog.txtUserScale.enabled);
    EXPECT_TRUE(dialog.optOrientation.IsOn(1));
    EXPECT_EQ(dialog.txtCalibrate[0].text, "1,01");
    EXPECT_EQ(dialog.txtCalibrate[1].text, "0,99");
    EXPECT_TRUE(dialog.visible);
    EXPECT_NE(dialog.lblStatus, "OK");
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(GlobalOptions, OfferTheListsAndCaptions) {
    const OptionsDialog dialog = Dialog();
    EXPECT_EQ(dialog.caption, "Global Options");
    EXPECT_EQ(dialog.tab, 1);
    EXPECT_EQ(OptionsDialog(options, ui, files, '.', 4).tab, 4);
    EXPECT_EQ(dialog.cmbLanguage.list, (std::vector<std::string>{"English", "French", "Italian", "German"}));
    EXPECT_EQ(dialog.cmbDecimals.captions,
              (std::vector<std::string>{"0", "0.0", "0.00", "0.000", "0.0000", "0.00000"}));
    EXPECT_EQ(dialog.CmbDefaultSegs.list,
              (std::vector<std::string>{"12", "24", "36", "48", "72", "96", "144"}));
    EXPECT_EQ(dialog.optPolyMode.captions, (std::vector<std::string>{"As arcs", "As polylines"}));
    EXPECT_EQ(dialog.optScale.captions,
              (std::vector<std::string>{"Scale to fit page", "Full size", "User scale"}));
    EXPECT_EQ(dialog.optUnits.captions, (std::vector<std::string>{"Millimeters", "Inches"}));
    EXPECT_EQ(dialog.optOrientation.captions, (std::vector<std::string>{"Portrait", "Landscape"}));
}

TEST_F(GlobalOptions, TheTwoNamedScalesFillTheBoxAndGreyIt) {
    OptionsDialog dialog = Dialog();
    EXPECT_TRUE(dialog.optScale.IsOn(OptionsDialog::FitPage));
    EXPECT_FALSE(dialog.txtUserScale.enabled);
    dialog.ClickScale(OptionsDialog::UserScale);
    EXPECT_EQ(dialog.txtUserScale.text, "0");
    EXPECT_TRUE(dialog.txtUserScale.enabled);
    dialog.ClickScale(OptionsDialog::FullSize);
    EXPECT_EQ(dialog.txtUserScale.text, "1");
    EXPECT_FALSE(dialog.txtUserScale.enabled);
    dialog.ClickScale(OptionsDialog::FitPage);
    EXPECT_EQ(dialog.txtUserScale.text, "0");

    options.PrintScale = 1;
    EXPECT_TRUE(Dialog().optScale.IsOn(OptionsDialog::FullSize));
}

TEST_F(GlobalOptions, TheSketchOfThePaperTurns) {
    OptionsDialog dialog = Dialog();
    const int middle = dialog.fraOrientation.place.height / 2 + 50;
    EXPECT_EQ(dialog.pboxOrient.place, (Place{350, middle - 650, 1000, 1300}));
    EXPECT_EQ(dialog.pboxOrientInner.place, (Place{0, 150, 1000, 1000}));
    dialog.ClickOrientation(1);
    EXPECT_TRUE(dialog.optOrientation.IsOn(1));
    EXPECT_EQ(dialog.pboxOrient.place, (Place{200, middle - 500, 1300, 1000}));
    EXPECT_EQ(dialog.pboxOrientInner.place, (Place{150, 0, 1000, 1000}));
    dialog.ClickOrientation(0);
    EXPECT_EQ(dialog.pboxOrient.place.height, 1300);
}

TEST_F(GlobalOptions, AColourIsStoredAtOnceAndOutlivesCancel) {
    OptionsDialog dialog = Dialog();
    dialog.StoreColor(dialog.pboxDisplayCutColor, 101);
    EXPECT_EQ(options.Colors.DisplayCutColor, 101);
    EXPECT_EQ(dialog.pboxDisplayCutColor.backColor, 101);
    dialog.StoreColor(dialog.pboxDisplayFoldColor, 102);
    dialog.StoreColor(dialog.pboxDisplayBackColor, 103);
    dialog.StoreColor(dialog.pboxDisplayTextColor, 104);
    dialog.StoreColor(dialog.pboxDisplayDimensionColor, 105);
    dialog.ClickCancel();
    EXPECT_EQ(options.Colors.DisplayCutColor, 101);
    EXPECT_EQ(options.Colors.DisplayFoldColor, 102);
    EXPECT_EQ(options.Colors.DisplayBackColor, 103);
    EXPECT_EQ(options.Colors.DisplayTextColor, 104);
    EXPECT_EQ(options.Colors.DisplayDimensionColor, 105);
    EXPECT_EQ(options.Colors.DisplayBorderColor, Cyan) << "has no swatch";
}

/// Changes every box of the dialog but the fold layer.
void ChangeAll(OptionsDialog& dialog) {
    dialog.cmbDecimals.selected = 4;
    dialog.CmbDefaultSegs.edit.text = "50";
    dialog.txtDXFCutLayer.text = "c";
    dialog.txtDXFTextLayer.text = "t";
    dialog.txtDXFBorderLayer.text = "b";
    dialog.txtDXFDimensionLayer.text = "d";
    dialog.ChangeNumber(dialog.txtDXFTextSize, "3");
    dialog.ChangeNumber(dialog.txtDisplayTextSize, "4");
    dialog.optPolyMode.selected = 1;
    dialog.ClickScale(OptionsDialog::UserScale);
    dialog.ChangeNumber(dialog.txtUserScale, "0.25");
    dialog.ChangeNumber(dialog.txtCalibrate[0], "1.5");
    dialog.ChangeNumber(dialog.txtCalibrate[1], "1.25");
    dialog.ClickOrientation(1);
    dialog.optUnits.selected = 1;
}

TEST_F(GlobalOptions, OkStoresForThisRunAndWritesNothing) {
    OptionsDialog dialog = Dialog();
    ChangeAll(dialog);
    dialog.ClickOK();
    EXPECT_EQ(options.Decimals, 4);
    EXPECT_EQ(options.DefaultSegs, 50);
    EXPECT_EQ(options.Language, "English");
    EXPECT_EQ(options.DXFCutLayer, "c");
    EXPECT_EQ(options.DXFTextLayer, "t");
    EXPECT_EQ(options.DXFBorderLayer, "b");
    EXPECT_EQ(options.DXFDimensionLayer, "d");
    EXPECT_EQ(options.DXFTextSize, 3);
    EXPECT_EQ(options.DisplayTextSize, 4);
    EXPECT_EQ(options.PolyMode, 1);
    EXPECT_EQ(options.PrintScale, 0.25);
    EXPECT_EQ(options.PrintXCalibration, 1.5);
    EXPECT_EQ(options.PrintYCalibration, 1.25);
    EXPECT_EQ(options.PrintOrientation, 2);
    EXPECT_EQ(options.PrintUnits, 5);
    EXPECT_FALSE(dialog.visible);
    EXPECT_EQ(dialog.lblStatus, "OK");
    EXPECT_TRUE(files.files.empty());
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(GlobalOptions, CancelStoresNothing) {
    OptionsDialog dialog = Dialog();
    ChangeAll(dialog);
    dialog.ClickCancel();
    EXPECT_FALSE(dialog.visible);
    EXPECT_EQ(dialog.lblStatus, "Cancel");
    EXPECT_EQ(options.DefaultSegs, 24);
    EXPECT_EQ(options.DXFCutLayer, "CutLayer");
    EXPECT_EQ(options.PrintUnits, 6);
}

TEST_F(GlobalOptions, AnUnchangedDialogChangesNothing) {
    OptionsDialog dialog = Dialog();
    dialog.ClickOK();
    EXPECT_EQ(options.PrintUnits, 6);
    EXPECT_EQ(options.PrintOrientation, 1);
    EXPECT_EQ(options.PolyMode, 0);
    EXPECT_EQ(options.PrintScale, 0);
    EXPECT_EQ(options.DefaultSegs, 24);
    EXPECT_EQ(options.DXFTextSize, 1);
    EXPECT_EQ(options.DisplayTextSize, 2);
}

TEST_F(GlobalOptions, AChangedFoldLayerDoesNotTakeEffect) {
    OptionsDialog dialog = Dialog();
    dialog.txtDXFFoldLayer.text = "bends";
    dialog.txtDXFCutLayer.text = "cuts";
    dialog.ClickOK();
    EXPECT_EQ(options.DXFFoldLayer, "FoldLayer");
    EXPECT_EQ(options.DXFCutLayer, "cuts");
    EXPECT_FALSE(dialog.visible);
}

TEST_F(GlobalOptions, AnotherLanguageIsNotTakenByOk) {
    OptionsDialog dialog = Dialog();
    dialog.cmbLanguage.edit.text = "French";
    dialog.CmbDefaultSegs.edit.text = "50";
    dialog.ClickOK();
    ASSERT_EQ(ui.messages.size(), 1U);
    EXPECT_EQ(ui.messages[0].text, "French is not yet available");
    EXPECT_EQ(ui.messages[0].style, PlainBox);
    EXPECT_EQ(dialog.cmbLanguage.edit.text, "English");
    EXPECT_TRUE(dialog.visible);
    EXPECT_EQ(options.DefaultSegs, 24);
    dialog.ClickOK();
    EXPECT_FALSE(dialog.visible);
    EXPECT_EQ(options.Language, "English");
}

TEST_F(GlobalOptions, SaveDoesNotTestTheLanguage) {
    OptionsDialog dialog = Dialog();
    dialog.cmbLanguage.edit.text = "French";
    dialog.ClickSave();
    EXPECT_EQ(options.Language, "French");
    EXPECT_NE(files.files[IniPath].find("\r\nFrench\r\n"), std::string::npos);
}

TEST_F(GlobalOptions, SaveWritesTheFileAndStays) {
    OptionsDialog dialog = Dialog();
    dialog.CmbDefaultSegs.edit.text = "50";
    dialog.ClickSave();
    EXPECT_EQ(files.files[IniPath].substr(0, 11), "3.b\r\n 50 \r\n");
    ASSERT_EQ(ui.messages.size(), 1U);
    EXPECT_EQ(ui.messages[0].text, "Current settings saved");
    EXPECT_EQ(ui.messages[0].style, 48);
    EXPECT_EQ(ui.messages[0].title, "Korvet Development");
    EXPECT_TRUE(dialog.visible);
    EXPECT_NE(dialog.lblStatus, "OK");
}

TEST_F(GlobalOptions, ASaveThatFailsSaysWhyAndNotThatItIsDone) {
    files.unwritable.insert(IniPath);
    OptionsDialog dialog = Dialog();
    dialog.ClickSave();
    EXPECT_EQ(ui.Texts(), (std::vector<std::string>{std::string(IniPath) + ": cannot be written"}));
    EXPECT_EQ(ui.messages[0].style, PlainBox);
    EXPECT_TRUE(dialog.visible);
}

TEST_F(GlobalOptions, SaveWritesNothingWhenABoxIsBad) {
    OptionsDialog dialog = Dialog();
    dialog.txtDXFTextSize.text = "0";
    dialog.ClickSave();
    ExpectUserError("DXF Text size not valid");
    EXPECT_TRUE(files.files.empty());
}

constexpr const char* LayerMarks =
    "A layer name cannot hold control characters nor any of < > / \\ \" : ; ? * | = `";

struct BadOption {
    const char* name;
    std::function<void(OptionsDialog&)> spoil;
    std::string message;
    std::string focus;
    int tab;
};

const std::string NotANumber = "Not a valid number";
const std::vector<BadOption> BadOptions = {
    {"scale", [](auto& d) { d.txtUserScale.text = "x"; }, NotANumber, "txtUserScale", 3},
    {"text size", [](auto& d) { d.txtDisplayTextSize.text = "x"; }, NotANumber, "txtDisplayTextSize", 2},
    {"dxf size", [](auto& d) { d.txtDXFTextSize.text = ""; }, NotANumber, "txtDXFTextSize", 4},
    {"x", [](auto& d) { d.txtCalibrate[0].text = "-"; }, NotANumber, "txtCalibrate_0", 3},
    {"y", [](auto& d) { d.txtCalibrate[1].text = "x"; }, NotANumber, "txtCalibrate_1", 3},
    {"x 0", [](auto& d) { d.txtCalibrate[0].text = "0"; }, "This dimension must be greater than 0",
     "txtCalibrate_0", 3},
    {"y -1", [](auto& d) { d.txtCalibrate[1].text = "-1"; }, "This dimension must be greater than 0",
     "txtCalibrate_1", 3},
    {"segs 0", [](auto& d) { d.CmbDefaultSegs.edit.text = "0"; }, "This dimension must be greater than 0",
     "CmbDefaultSegs", 1},
    {"segs 1.5", [](auto& d) { d.CmbDefaultSegs.edit.text = "1.5"; },
     "This dimension must be an integer (whole number)", "CmbDefaultSegs", 1},
    {"segs many", [](auto& d) { d.CmbDefaultSegs.edit.text = "100001"; },
     "This dimension must be equal to or less than 100000", "CmbDefaultSegs", 1},
    {"segs x", [](auto& d) { d.CmbDefaultSegs.edit.text = "x"; }, NotANumber, "CmbDefaultSegs", 1},
    {"cut", [](auto& d) { d.txtDXFCutLayer.text = " "; }, "No layer name for Cut Lines", "txtDXFCutLayer", 4},
    {"fold", [](auto& d) { d.txtDXFFoldLayer.text = ""; }, "No layer name for Fold Lines", "txtDXFFoldLayer",
     4},
    {"text", [](auto& d) { d.txtDXFTextLayer.text = "\t"; }, "No layer name for Text", "txtDXFTextLayer", 4},
    {"border", [](auto& d) { d.txtDXFBorderLayer.text = ""; }, "No layer name for Border",
     "txtDXFBorderLayer", 4},
    {"dimension", [](auto& d) { d.txtDXFDimensionLayer.text = ""; }, "No layer name for Border",
     "txtDXFDimensionLayer", 4},
    {"cut with a mark", [](auto& d) { d.txtDXFCutLayer.text = "a/b"; }, LayerMarks, "txtDXFCutLayer", 4},
    {"fold with a bell", [](auto& d) { d.txtDXFFoldLayer.text = "a\x07"; }, LayerMarks, "txtDXFFoldLayer", 4},
    {"dimension with a mark", [](auto& d) { d.txtDXFDimensionLayer.text = "`"; }, LayerMarks,
     "txtDXFDimensionLayer", 4},
    {"dxf size 0", [](auto& d) { d.txtDXFTextSize.text = "0"; }, "DXF Text size not valid", "txtDXFTextSize",
     4},
    {"text size -1", [](auto& d) { d.txtDisplayTextSize.text = "-1"; }, "Display Text size not valid",
     "txtDisplayTextSize", 2},
    {"dxf size huge", [](auto& d) { d.txtDXFTextSize.text = "1e39"; }, "DXF Text size not valid",
     "txtDXFTextSize", 4},
    {"text size huge", [](auto& d) { d.txtDisplayTextSize.text = "1e39"; }, "Display Text size not valid",
     "txtDisplayTextSize", 2}};

TEST_F(GlobalOptions, EveryBadBoxKeepsTheDialogOpenWithTheFocusOnIt) {
    for (const BadOption& bad : BadOptions) {
        SCOPED_TRACE(bad.name);
        options = COptions();
        ui.messages.clear();
        OptionsDialog dialog = Dialog();
        bad.spoil(dialog);
        int tabUnderMessage = 0;
        ui.onShow = [&](const MessageBox&) { tabUnderMessage = dialog.tab; };
        dialog.ClickOK();
        ui.onShow = nullptr;
        EXPECT_EQ(tabUnderMessage, bad.tab);
        EXPECT_EQ(ui.Texts(), std::vector<std::string>{bad.message});
        EXPECT_EQ(ui.messages.at(0).title, bad.message == NotANumber ? "Korvet Development" : "User Error");
        EXPECT_EQ(dialog.focus, bad.focus);
        EXPECT_EQ(dialog.tab, bad.tab);
        EXPECT_TRUE(dialog.visible);
        EXPECT_NE(dialog.lblStatus, "OK");
    }
}

TEST_F(GlobalOptions, BoxesAreTestedInTheirOrder) {
    OptionsDialog dialog = Dialog();
    const std::vector<std::pair<TextBox*, const char*>> order = {
        {&dialog.txtUserScale, "x"},       {&dialog.txtDisplayTextSize, "x"},
        {&dialog.txtDXFTextSize, "x"},     {&dialog.txtCalibrate[0], "x"},
        {&dialog.txtCalibrate[1], "x"},    {&dialog.CmbDefaultSegs.edit, "x"},
        {&dialog.txtDXFCutLayer, ""},      {&dialog.txtDXFFoldLayer, ""},
        {&dialog.txtDXFTextLayer, ""},     {&dialog.txtDXFBorderLayer, ""},
        {&dialog.txtDXFDimensionLayer, ""}};
    std::vector<std::string> right;
    for (const auto& [box, bad] : order) {
        right.push_back(box->text);
        box->text = bad;
    }
    for (std::size_t i = 0; i < order.size(); ++i) {
        EXPECT_EQ(dialog.ApplyDialog(), Refused);
        EXPECT_EQ(dialog.focus, order[i].first->name);
        order[i].first->text = right[i];
    }
    EXPECT_EQ(dialog.ApplyDialog(), Passed);

    dialog.txtDXFTextSize.text = "0";
    dialog.txtDisplayTextSize.text = "0";
    EXPECT_EQ(dialog.ApplyDialog(), Refused);
    EXPECT_EQ(dialog.focus, "txtDXFTextSize");
}

TEST_F(GlobalOptions, WhatStoodBeforeABadBoxIsStoredAllTheSame) {
    OptionsDialog dialog = Dialog();
    ChangeAll(dialog);
    dialog.txtDXFBorderLayer.text = "";
    dialog.ClickOK();
    EXPECT_EQ(options.Decimals, 4);
    EXPECT_EQ(options.DefaultSegs, 50);
    EXPECT_EQ(options.DXFCutLayer, "c");
    EXPECT_EQ(options.DXFTextLayer, "t");
    EXPECT_EQ(options.DXFBorderLayer, "BorderLayer");
    EXPECT_EQ(options.DXFDimensionLayer, "DimensionLayer");
    EXPECT_EQ(options.DXFTextSize, 1);
    EXPECT_EQ(options.PrintUnits, 6);
    dialog.ClickCancel();
    EXPECT_EQ(options.DefaultSegs, 50) << "Cancel takes nothing back";
}

TEST_F(GlobalOptions, ABadNumberStoresNothing) {
    OptionsDialog dialog = Dialog();
    ChangeAll(dialog);
    dialog.CmbDefaultSegs.edit.text = "0";
    dialog.ClickOK();
    EXPECT_EQ(options.Decimals, 1);
    EXPECT_EQ(options.DXFCutLayer, "CutLayer");
}

TEST_F(GlobalOptions, NumberBoxesAreTestedWhileTyping) {
    OptionsDialog dialog = Dialog();
    for (TextBox* box : {&dialog.txtFrameSize[0], &dialog.txtFrameSize[1], &dialog.txtUserScale}) {
        ui.messages.clear();
        dialog.ChangeNumber(*box, "-");
        EXPECT_TRUE(ui.messages.empty());
        dialog.ChangeNumber(*box, "-x");
        EXPECT_EQ(ui.Texts(), std::vector<std::string>{"Not a valid number"});
        EXPECT_EQ(box->text, "-x");
        EXPECT_EQ(box->selectionLength, 2U);
    }
}

TEST_F(GlobalOptions, FrameSizesAreNeverTestedOrStored) {
    OptionsDialog dialog = Dialog();
    dialog.txtFrameSize[0].text = "word";
    dialog.ClickOK();
    EXPECT_FALSE(dialog.visible);
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(GlobalOptions, TheCalibrationAssistantIsPromisedInAPlainBox) {
    OptionsDialog dialog = Dialog();
    dialog.ClickCalibAssist();
    ASSERT_EQ(ui.messages.size(), 1U);
    EXPECT_EQ(ui.messages[0].style, PlainBox);
    EXPECT_NE(ui.messages[0].text.find("calibration factors"), std::string::npos);
    EXPECT_NE(ui.messages[0].text.find("programmed"), std::string::npos);
    EXPECT_NE(ui.messages[0].text.find("measured"), std::string::npos);
}

}  // namespace
}  // namespace korvet
