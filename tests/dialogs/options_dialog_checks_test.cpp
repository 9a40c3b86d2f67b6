// What the dialog of the global options takes, and what it refuses.
#include <functional>
#include <utility>
#include <vector>

#include "tests/dialogs/options_dialog_fixture.h"

namespace korvet {
namespace {

using GlobalOptionsChecked = GlobalOptions;

TEST_F(GlobalOptionsChecked, SaveWritesNothingWhenABoxIsBad) {
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

TEST_F(GlobalOptionsChecked, EveryBadBoxKeepsTheDialogOpenWithTheFocusOnIt) {
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
        EXPECT_EQ(ui.messages.at(0).control, bad.focus);
        EXPECT_EQ(dialog.focus, bad.focus);
        EXPECT_EQ(dialog.tab, bad.tab);
        EXPECT_TRUE(dialog.visible);
        EXPECT_NE(dialog.lblStatus, "OK");
    }
}

TEST_F(GlobalOptionsChecked, BoxesAreTestedInTheirOrder) {
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

TEST_F(GlobalOptionsChecked, WhatStoodBeforeABadBoxIsStoredAllTheSame) {
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

TEST_F(GlobalOptionsChecked, ABadNumberStoresNothing) {
    OptionsDialog dialog = Dialog();
    ChangeAll(dialog);
    dialog.CmbDefaultSegs.edit.text = "0";
    dialog.ClickOK();
    EXPECT_EQ(options.Decimals, 1);
    EXPECT_EQ(options.DXFCutLayer, "CutLayer");
}

TEST_F(GlobalOptionsChecked, NumberBoxesAreTestedWhileTyping) {
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

TEST_F(GlobalOptionsChecked, FrameSizesAreNeverTestedOrStored) {
    OptionsDialog dialog = Dialog();
    dialog.txtFrameSize[0].text = "word";
    dialog.ClickOK();
    EXPECT_FALSE(dialog.visible);
    EXPECT_TRUE(ui.messages.empty());
}

}  // namespace
}  // namespace korvet
