// Every menu entry and tool button in every state of the frame.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <stdexcept>

#include "frame/frame_menu.h"
#include "tests/frame/main_frame_fixture.h"
#include "window/parameter_file.h"

namespace korvet {
namespace {

/// A text for each state: without a window, before the first view, after a failed build, in a model, in a
/// pattern.
using Texts = std::array<std::string, 5>;

Texts Everywhere(const std::string& text) {
    return {text, text, text, text, text};
}

/// Without a window the commands that need one are greyed without a word.
Texts OnWindow(const std::string& text) {
    return {"disabled", text, text, text, text};
}

Texts OnModel(const std::string& text) {
    return {"disabled", "", "", text, text};
}

const std::string NoSave = "T48 Nothing to save!";
const std::string NoCommand = "T48 Operation cannot be carried out at this time";
const std::string NotNow = "UE Operation cannot be carried out at this time";
const std::string Bad = "UE This dimension must be less than 300";
const std::string NoCad = "P Could not locate an active AutoCAD 2000 drawing.";
const std::string Saved = "64 DXF successfully saved to: part";
const std::string PatternOnly = " This option is only available in pattern view";
const std::string Select =
    "P Select Frames for printing by left-clicking with the mouse. \r\nDe-Select by left-clicking again on a "
    "selected frame";
const std::string Preview = "P Add 'mnuFilePrintPreview_Click' code.";
const std::string Question = "35 Save parameter file for Development 1";
const std::string NoExtentsSaid = "P The item has no extents";
const std::string NoView = "P No Previous View";
const std::string NoFrames = "P No printer";

/// Commands that are not listed say nothing in any state.
const std::map<std::string_view, Texts> Said = {
    {"mnuFileClose", {NoSave, Question, Question, Question, Question}},
    {"mnuFileSave", {NoSave, NotNow, NotNow, "", ""}},
    {"mnuFileSaveAs", {NoSave, NotNow, NotNow, "", ""}},
    {"mnuExportDXF", {NoCommand, NotNow, NotNow, Saved, Saved}},
    {"mnuExportHPGL", {NoCommand, NotNow, NotNow, "P File sent", "P File sent"}},
    {"mnuSendToAcad", {NoCommand, NoCad, NoCad, NoCad, NoCad}},
    {"mnuPrintFrames", {"", NotNow, NotNow, "UE" + PatternOnly, NoFrames}},
    {"mnuSelectFrames", {"", Select, Select, Select, Select}},
    {"mnuFilePrintPreview", {Preview, Preview, Preview, Preview, Preview}},
    {"mnuFilePrint", {"T48 Nothing to print!", "UE Nothing to print!", "UE Nothing to print!", "", ""}},
    {"mnuRedraw", {"", "", Bad, "", ""}},
    {"mnuZoomExtents", {"", NoExtentsSaid, NoExtentsSaid, "", ""}},
    {"mnuZoomPrevious", {"", NoView, NoView + " / " + Bad, NoView, NoView}},
    {"mnuProperties", {"", "", Bad, "", ""}},
    {"mnuMeasure", {"", NotNow, NotNow, "", ""}},
    {"mnuAlignedDim", {"", NotNow, NotNow, "P" + PatternOnly, ""}},
    {"mnuRemoveAllDims", {"", "", Bad, "", ""}},
    {"mnuDimensionOptions", {NoCommand, NotNow, NotNow, "P" + PatternOnly, ""}},
    {"AddLabel", {"", NotNow, NotNow, "", ""}},
    {"mnuRotatePattern", {"", NotNow, NotNow, "UE" + PatternOnly, ""}},
};

const std::string SaveAs = "SaveAs|Korvet Development Files (*.Kvt)|*.Kvt|save";
const std::string Saves = SaveAs + ", wrote part, drew, now part";
const std::string Export = "Export DXF|Drawing eXchange File (*.DXF)|*.DXF|save";
const std::string Exports = Export + ", wrote part, Exporting part";
const std::string Plots =
    "wrote work/Transfer.tmp, wrote work/Transfer.plt, wrote work/Plot.bat, Exporting work/Transfer.plt";

/// Commands that are not listed leave everything as it is.
const std::map<std::string_view, Texts> Done = {
    {"mnuFileNew", Everywhere("category menu")},
    {"mnuFileOpen", Everywhere("Open|All Files (*.Kvt)|*.Kvt|open")},
    {"mnuFileSave", {"", "", "", Saves, Saves}},
    {"mnuFileSaveAs", {"", "", "", Saves, Saves}},
    {"mnuExportDXF", {"", Export, Export, Exports, Exports}},
    {"mnuExportHPGL", {"", "", "", Plots, Plots}},
    {"mnuFilePageSetup",
     {"disabled", "Print Setup", "Print Setup", "Print Setup, drew", "Print Setup, drew"}},
    {"mnuFilePrint", {"", "", "", "Print", "Print"}},
    {"mnuPrintFrames", OnWindow("frames ticked, tool 7")},
    {"mnuSelectFrames", OnWindow("select frames armed")},
    {"mnuFileExit", Everywhere("close")},
    {"mnuViewToolbar", Everywhere("no tool bar")},
    {"mnuViewStatusBar", Everywhere("no status bar")},
    {"mnuRedraw", OnModel("drew")},
    {"mnuPan", OnWindow("pan armed")},
    {"mnuZoomWindow", OnModel("zoom window armed")},
    {"mnuZoomIn", OnModel("drew, zoom 1.111111")},
    {"mnuZoomOut", OnModel("drew, zoom 0.9")},
    {"mnuZoomExtents", OnModel("drew, zoom ")},
    {"mnuZoomPrevious", OnModel("drew")},
    {"mnuProperties", {"disabled", "settings", "settings", "settings, drew", "settings, drew"}},
    {"mnuToolsOptions", {"options", "options", "options", "options, drew", "options, drew"}},
    {"mnuMeasure", OnModel("measure armed")},
    {"mnuAlignedDim", {"disabled", "", "", "", "dimension 1 armed"}},
    {"mnuRemoveDim", OnWindow("remove dimension armed")},
    {"mnuRemoveAllDims", OnModel("drew")},
    {"mnuDimensionOptions", {"", "", "", "", "dimension options, drew"}},
    {"AddLabel", OnModel("label, label armed")},
    {"mnuMovePattern", OnWindow("")},
    {"mnuRotatePattern", {"disabled", "", "", "", "rotate armed"}},
    {"mnuWindowNewWindow", Everywhere("category menu")},
    {"mnuWindowCascade", Everywhere("arrange 0")},
    {"mnuWindowTileHorizontal", Everywhere("arrange 1")},
    {"mnuWindowTileVertical", Everywhere("arrange 2")},
    {"mnuWindowArrangeIcons", Everywhere("arrange 3")},
    {"mnuHelpContents",
     {"help contents", "help topic 2100", "help topic 2100", "help topic 2100", "help topic 2100"}},
    {"mnuHelpSearchForHelpOn", Everywhere("help search")},
    {"mnuDisclaimer", Everywhere("disclaimer")},
    {"mnuHelpAbout", Everywhere("about")},
};

std::string In(const std::map<std::string_view, Texts>& table, std::string_view command, FrameState state) {
    const auto row = table.find(command);
    return row == table.end() ? std::string() : row->second.at(static_cast<std::size_t>(state));
}

/// A rig whose user names "part" to save and cancels every other dialog and question.
std::unique_ptr<FrameRig> Ready(FrameState state, std::string_view command) {
    auto rig = FrameRig::In(state);
    rig->desktop.pick.reset();
    if (command != "mnuFileOpen") {
        rig->shell.ui.files = {"part"};
    }
    return rig;
}

void ExpectInAllStates(std::string_view command, const std::function<void(CMainFrame&)>& run) {
    for (const FrameState state : AllStates) {
        SCOPED_TRACE(std::string(command) + " in state " + std::to_string(static_cast<int>(state)));
        const auto rig = Ready(state, command);
        run(rig->frame);
        EXPECT_EQ(rig->Said(), In(Said, command, state));
        const std::string did = In(Done, command, state);
        // How far the extents zoom out is no matter of the frame.
        EXPECT_EQ(command == "mnuZoomExtents" ? rig->Did().substr(0, did.size()) : rig->Did(), did);
    }
}

TEST(MainFrameCommandsTest, EveryMenuEntryDoesItsWorkOrRefusesInEveryState) {
    for (const MenuEntry& entry : FrameMenu()) {
        ExpectInAllStates(entry.name, [&](CMainFrame& frame) { frame.RunMenu(entry.name); });
    }
}

TEST(MainFrameCommandsTest, EveryToolDoesWhatItsMenuEntryDoes) {
    for (const ToolButton& button : FrameToolBar()) {
        ExpectInAllStates(button.menu.empty() ? button.key : button.menu,
                          [&](CMainFrame& frame) { frame.ClickTool(button.position); });
    }
}

TEST(MainFrameCommandsTest, TheTablesNameRealCommands) {
    for (const auto* const table : {&Said, &Done}) {
        for (const auto& entryAndTexts : *table) {
            const auto& name = entryAndTexts.first;
            const auto menu = FrameMenu();
            const bool known = std::any_of(menu.begin(), menu.end(),
                                           [&](const MenuEntry& entry) { return entry.name == name; });
            EXPECT_TRUE(known || name == "AddLabel") << name;
        }
    }
}

TEST(MainFrameCommandsTest, SeparatorsOfTheToolBarAndUnknownNamesDoNothing) {
    const auto rig = Ready(FrameState::Pattern, "");
    for (const int position : {-1, 0, 4, 8, 10, 15, 18, 25, 28, 30}) {
        rig->frame.ClickTool(position);
    }
    rig->frame.RunMenu("mnuEditUndo");
    EXPECT_EQ(rig->Said() + rig->Did(), "");
}

TEST(MainFrameCommandsTest, AnUntickedSwitchTakesTheFramesAway) {
    const auto rig = Ready(FrameState::Pattern, "");
    rig->frame.RunMenu("mnuPrintFrames");
    rig->shell.frame.menuEnabled["mnuSelectFrames"] = true;
    rig->Forget();
    rig->frame.ClickTool(6);
    EXPECT_EQ(rig->Said(), "");
    EXPECT_EQ(rig->Did(), "drew");  // neither tick nor tool 7 are left
    EXPECT_FALSE(rig->shell.frame.menuEnabled["mnuSelectFrames"]);
}

TEST(MainFrameCommandsTest, SizesThatAreRefusedAskForNoName) {
    for (const std::string_view menu : {"mnuFileSave", "mnuFileSaveAs"}) {
        const auto rig = Ready(FrameState::Pattern, menu);
        rig->frame.ActiveChild()->ChangeBox(4, "400");
        rig->Forget();
        rig->frame.RunMenu(menu);
        EXPECT_EQ(rig->Said(), Bad);
        EXPECT_EQ(rig->Did(), "");
        EXPECT_TRUE(rig->shell.files.files.empty());
        EXPECT_TRUE(HasChanges(*rig->frame.ActiveChild()));
    }
}

TEST(MainFrameCommandsTest, SizesThatAreNotBuiltYetAreSaved) {
    for (const std::string_view menu : {"mnuFileSave", "mnuFileSaveAs"}) {
        const auto rig = Ready(FrameState::Pattern, menu);
        rig->frame.ActiveChild()->ChangeBox(4, "110");
        rig->Forget();
        rig->frame.RunMenu(menu);
        EXPECT_EQ(rig->Said(), "");
        EXPECT_EQ(rig->Did(), Saves);
        EXPECT_NE(rig->shell.files.files["part"].find("\r\n110\r\n"), std::string::npos);
    }
}

TEST(MainFrameCommandsTest, RefusedSizesAreSavedOnceTheyAreMended) {
    for (const std::string_view menu : {"mnuFileSave", "mnuFileSaveAs"}) {
        const auto rig = Ready(FrameState::Invalid, menu);
        rig->frame.RunMenu(menu);
        EXPECT_EQ(rig->Said(), NotNow);
        rig->frame.ActiveChild()->ChangeBox(4, "110");
        rig->Forget();
        rig->frame.RunMenu(menu);
        EXPECT_EQ(rig->Said(), "");
        EXPECT_EQ(rig->Did(), Saves) << "and built once";
    }
}

TEST(MainFrameCommandsTest, BarsComeBackAtTheSecondClick) {
    const auto rig = Ready(FrameState::NoChild, "");
    for (const std::string_view menu : {"mnuViewToolbar", "mnuViewStatusBar"}) {
        rig->frame.RunMenu(menu);
        EXPECT_FALSE(IsTicked(rig->shell.frame, menu));
        rig->frame.RunMenu(menu);
        EXPECT_TRUE(IsTicked(rig->shell.frame, menu));
    }
}

TEST(MainFrameCommandsTest, NewOptionsReachTheActiveWindowAlone) {
    FrameRig rig;
    const CFittingWindow& first = rig.OpenDrawnCone();
    const CFittingWindow& second = rig.OpenDrawnCone();
    rig.shell.ui.onOptions = [&](OptionsDialog&) { rig.shell.options.Decimals = 3; };
    rig.frame.RunMenu("mnuToolsOptions");
    EXPECT_EQ(first.display.Decimals, 1);
    EXPECT_EQ(second.display.Decimals, 3);
}

TEST(MainFrameCommandsTest, AFileThatAnotherProgramHoldsIsNotExportedTo) {
    const auto rig = Ready(FrameState::Pattern, "");
    rig->desktop.openElsewhere = {"part"};
    rig->frame.RunMenu("mnuExportDXF");
    EXPECT_EQ(rig->Said(), "P This file is already open by another process");
    EXPECT_EQ(rig->Did(), Export);
}

TEST(MainFrameCommandsTest, AnExportOfOldSizesAsksFirst) {
    for (const std::string_view menu : {"mnuExportDXF", "mnuExportHPGL", "mnuSendToAcad"}) {
        const auto rig = Ready(FrameState::Pattern, menu);
        rig->frame.ActiveChild()->ChangeBox(3, "350");
        rig->shell.ui.answers = {Answer::No, Answer::Yes};
        rig->shell.ui.files = {"part", "part"};
        const std::string question =
            "52 The sizes in red have been changed since this was drawn, and the file will not have them. "
            "Do you want to export what is drawn?";
        rig->frame.RunMenu(menu);
        EXPECT_EQ(rig->Said(), question);
        EXPECT_EQ(rig->Did(), "");
        rig->Forget();
        rig->frame.RunMenu(menu);
        EXPECT_EQ(rig->Said(), question + " / " + In(Said, menu, FrameState::Pattern));
        EXPECT_EQ(rig->Did(), In(Done, menu, FrameState::Pattern));
        // What is built again needs no question.
        rig->frame.RunMenu("mnuRedraw");
        rig->Forget();
        rig->frame.RunMenu(menu);
        EXPECT_EQ(rig->Said(), In(Said, menu, FrameState::Pattern));
    }
}

TEST(MainFrameCommandsTest, ACancelledFileDialogEndsACommandWithoutAWord) {
    for (const std::string_view menu : {"mnuFileSave", "mnuFileSaveAs", "mnuExportDXF", "mnuFileOpen"}) {
        const auto rig = FrameRig::In(FrameState::Pattern);
        rig->frame.RunMenu(menu);
        EXPECT_EQ(rig->shell.ui.fileDialogs.size(), 1U) << menu;
        EXPECT_EQ(rig->Said(), "") << menu;
        EXPECT_TRUE(rig->shell.files.writes.empty()) << menu;
        EXPECT_EQ(rig->frame.ActiveChild()->controls.caption, "Development 1") << menu;
    }
}

TEST(MainFrameCommandsTest, WithoutAHelpFileHelpSaysSo) {
    for (const FrameState state : {FrameState::NoChild, FrameState::Model}) {
        for (const std::string_view menu : {"mnuHelpContents", "mnuHelpSearchForHelpOn"}) {
            const auto rig = FrameRig::In(state);
            rig->help.hasHelp = false;
            rig->frame.RunMenu(menu);
            EXPECT_EQ(rig->Said(),
                      "64 Unable to display Help Contents. There is no Help associated with this project.");
            EXPECT_TRUE(rig->help.calls.empty());
        }
    }
}

TEST(MainFrameCommandsTest, AWindowWithoutATopicHasNoHelp) {
    const auto rig = FrameRig::In(FrameState::Model);
    rig->help.topics.clear();
    rig->frame.ClickTool(29);
    EXPECT_EQ(rig->Said(), "P No help for this item");
    EXPECT_EQ(rig->Did(), "help topic 2100");
    rig->Forget();
    ShowHelp(rig->shell.ui, rig->shell.options, rig->help, 0);
    EXPECT_EQ(rig->Said(), "P No help for this item");
    EXPECT_TRUE(rig->help.calls.empty());
}

TEST(MainFrameCommandsTest, WhatFailsInACommandIsToldAndGoesNoFurther) {
    const auto rig = FrameRig::In(FrameState::Pattern);
    rig->shell.ui.onOptions = [](OptionsDialog&) { throw std::runtime_error("the dialog broke"); };
    rig->frame.RunMenu("mnuToolsOptions");
    rig->shell.ui.onPatternSettings = [](PatternSettingsDialog&) { throw std::runtime_error("and this"); };
    rig->frame.ClickTool(27);
    EXPECT_EQ(rig->Said(), "P the dialog broke / P and this");
}

}  // namespace
}  // namespace korvet
