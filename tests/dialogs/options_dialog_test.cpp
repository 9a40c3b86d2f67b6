#include "dialogs/options_dialog.h"

#include <vector>

#include "tests/dialogs/options_dialog_fixture.h"
#include "tests/dialogs/other_options.h"

namespace korvet {
namespace {

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
    EXPECT_EQ(ui.messages[0].control, "cmbLanguage");
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
