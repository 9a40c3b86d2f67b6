// What the menu entries and tool buttons of the main frame do.
#include <algorithm>
#include <array>
#include <variant>

#include "core/constants.h"
#include "dialogs/options_dialog.h"
#include "frame/about.h"
#include "frame/frame_menu.h"
#include "frame/main_frame.h"
#include "frame/new_fitting.h"
#include "frame/start_up.h"
#include "window/armed_modes.h"
#include "window/auto_cad.h"
#include "window/export_fitting.h"
#include "window/parameter_file.h"
#include "window/saving.h"
#include "window/transfer.h"
#include "window/transfer_place.h"
#include "window/views.h"

namespace korvet {
namespace {

/// No message: without a window the command only greys those that need one.
constexpr int Silent = 0;

}  // namespace

/// A command by the control name of its menu entry, or the key of a tool button that has no entry. With
/// `action` a member of the frame that takes a window, or one of the window itself, it acts on the active
/// window; `refusal` is what is said when there is none.
struct CMainFrame::Command {
    using OfFrame = void (CMainFrame::*)();
    using OnChild = void (CMainFrame::*)(CFittingWindow&);
    using OfChild = void (CFittingWindow::*)();

    std::string_view name;
    std::variant<OfFrame, OnChild, OfChild> action;
    int refusal = Silent;
};

std::span<const CMainFrame::Command> CMainFrame::Commands() {
    using Frame = CMainFrame;
    using Child = CFittingWindow;
    static const std::array commands = {
        Command{"mnuFileNew", &Frame::FileNew},
        Command{"mnuFileOpen", &Frame::FileOpen},
        Command{"mnuFileClose", &Frame::FileClose, NothingToSave},
        Command{"mnuFileSave", &Frame::FileSave, NothingToSave},
        Command{"mnuFileSaveAs", &Frame::FileSaveAs, NothingToSave},
        Command{"mnuExportDXF", &Frame::ExportDxf, NotAtThisTime},
        Command{"mnuExportHPGL", &Frame::ExportHpgl, NotAtThisTime},
        Command{"mnuSendToAcad", &Frame::SendToAcad, NotAtThisTime},
        Command{"mnuFilePageSetup", &Frame::PageSetup},
        Command{"mnuPrintFrames", &Frame::PrintFrames},
        Command{"mnuSelectFrames", &Child::SelectPrintFrames},
        Command{"mnuFilePrintPreview", &Frame::FilePrintPreview},
        Command{"mnuFilePrint", &Frame::FilePrint, NothingToPrint},
        Command{"mnuFileExit", &Frame::FileExit},
        Command{"mnuViewToolbar", &Frame::ViewToolbar},
        Command{"mnuViewStatusBar", &Frame::ViewStatusBar},
        Command{"mnuRedraw", &Child::Redraw},
        Command{"mnuPan", &Child::PanView},
        Command{"mnuZoomWindow", &Child::ZoomWindow},
        Command{"mnuZoomIn", &Frame::ZoomIn},
        Command{"mnuZoomOut", &Frame::ZoomOut},
        Command{"mnuZoomExtents", &Child::ZoomExtents},
        Command{"mnuZoomPrevious", &Child::ZoomPrevious},
        Command{"mnuProperties", &Child::Settings},
        Command{"mnuToolsOptions", &Frame::ToolsOptions},
        Command{"mnuMeasure", &Child::MeasureDistance},
        Command{"mnuAlignedDim", &Frame::AlignedDimension},
        Command{"mnuRemoveDim", &Child::RemoveDimension},
        Command{"mnuRemoveAllDims", &Child::RemoveAllDimensions},
        Command{"mnuDimensionOptions", &Child::DimensionOptionsDialog, NotAtThisTime},
        Command{"AddLabel", &Child::PlaceLabel},
        Command{"mnuMovePattern", &Frame::MovePattern},
        Command{"mnuRotatePattern", &Child::RotatePattern},
        Command{"mnuWindowNewWindow", &Frame::FileNew},
        Command{"mnuWindowCascade", &Frame::WindowCascade},
        Command{"mnuWindowTileHorizontal", &Frame::WindowTileHorizontal},
        Command{"mnuWindowTileVertical", &Frame::WindowTileVertical},
        Command{"mnuWindowArrangeIcons", &Frame::WindowArrangeIcons},
        Command{"mnuHelpContents", &Frame::HelpContents},
        Command{"mnuHelpSearchForHelpOn", &Frame::HelpSearch},
        Command{"mnuDisclaimer", &Frame::Disclaimer},
        Command{"mnuHelpAbout", &Frame::HelpAbout},
    };
    return commands;
}

void CMainFrame::RunMenu(std::string_view name) {
    Guarded([&] { RunCommand(name); });
}

void CMainFrame::ClickTool(int position) {
    for (const ToolButton& button : FrameToolBar()) {
        if (button.position == position) {
            RunMenu(button.menu.empty() ? button.key : button.menu);
        }
    }
}

bool CMainFrame::IsToolPressed(int position) const {
    const auto tools = FrameToolBar();
    const auto tool = std::find_if(tools.begin(), tools.end(),
                                   [&](const ToolButton& entry) { return entry.position == position; });
    if (tool == tools.end()) {
        return false;
    }
    return tool->mode ? active_ != nullptr && IsArmed(*active_, *tool->mode)
                      : tool->checkable && IsTicked(context_.frame, tool->menu);
}

void CMainFrame::RunCommand(std::string_view name) {
    const auto commands = Commands();
    const auto command = std::find_if(commands.begin(), commands.end(),
                                      [&](const Command& entry) { return entry.name == name; });
    if (command == commands.end()) {
        return;
    }
    if (const auto* const ofFrame = std::get_if<Command::OfFrame>(&command->action)) {
        (this->**ofFrame)();
    } else if (active_ == nullptr) {
        Refuse(command->refusal);
    } else if (const auto* const onChild = std::get_if<Command::OnChild>(&command->action)) {
        (this->**onChild)(*active_);
    } else {
        (active_->*std::get<Command::OfChild>(command->action))();
    }
}

/// What a command does that finds no window to act on.
void CMainFrame::Refuse(int message) {
    if (message == Silent) {
        DisableFittingCommands(context_.frame);
        return;
    }
    context_.ui.Show(
        {.text = context_.Message(message), .style = ExclamationBox, .title = std::string(ProductTitle)});
}

void CMainFrame::FileNew() {
    NewFitting(false);
}

void CMainFrame::FileOpen() {
    if (const auto path = context_.ui.ChooseFile({"Open", "All Files (*.Kvt)|*.Kvt"})) {
        OpenFile(*path);
    }
}

void CMainFrame::FileClose(CFittingWindow& child) {
    (void)CloseChild(child);
}

/// What is typed and not built is built before a name is asked for. Sizes that a build has refused are asked
/// for again once something is mended. The caption is the name that later saves write to, and stays what it
/// was unless the file was written.
void CMainFrame::Save(CFittingWindow& child, bool underNewName) {
    const bool isNew = child.views->Count() == 0 && child.saved;
    const bool isToBuild = child.hasModel ? child.edited : !isNew && child.refused != StateOf(child);
    if (isToBuild ? child.RequireBuild() : child.RequireModel()) {
        return;
    }
    const auto path = underNewName || HasNoFile(child) ? ChooseSaveName(child) : child.controls.caption;
    if (path) {
        (void)(isToBuild ? SaveFitting(child, *path) : child.SaveFile(*path));
    }
}

void CMainFrame::FileSave(CFittingWindow& child) {
    Save(child, false);
}

void CMainFrame::FileSaveAs(CFittingWindow& child) {
    Save(child, true);
}

void CMainFrame::ExportDxf(CFittingWindow& child) {
    if (ConfirmExportOfOldSizes(child)) {
        return;
    }
    const auto path = ChooseDrawingName(child);
    if (!path) {
        return;
    }
    if (desktop_.IsFileAlreadyOpen(*path)) {
        ShowPlain(context_.ui, context_.Message(OpenElsewhere));
        return;
    }
    (void)child.Export(*path, ExportMode::Dxf);
}

void CMainFrame::ExportHpgl(CFittingWindow& child) {
    if (ConfirmExportOfOldSizes(child)) {
        return;
    }
    constexpr const char* PlotFile = "Transfer.plt";
    const TransferPlace* const folder = context_.transfer;
    (void)child.Export(folder != nullptr ? folder->PathOf(PlotFile) : PlotFile, ExportMode::Plotter);
}

void CMainFrame::SendToAcad(CFittingWindow& child) {
    if (ConfirmExportOfOldSizes(child) == Passed && ConnectGlobalAcad(context_) == Passed) {
        (void)child.Export(TransferFile(context_), ExportMode::CadLink);
    }
}

void CMainFrame::PageSetup(CFittingWindow& child) {
    child.PrinterSetup();
    RememberPdf(context_.printDialog, settings_);
}

void CMainFrame::FilePrint(CFittingWindow& child) {
    child.PrintDrawing();
    RememberPdf(context_.printDialog, settings_);
}

void CMainFrame::PrintFrames(CFittingWindow& child) {
    FrameModel& frame = context_.frame;
    frame.printFramesTicked = !frame.printFramesTicked;
    EnableSelectFramesTool(frame);
    child.SetupPrintFrames();
}

void CMainFrame::FilePrintPreview() {
    ShowPlain(context_.ui, "Add 'mnuFilePrintPreview_Click' code.");
}

void CMainFrame::FileExit() {
    desktop_.Close();
}

void CMainFrame::ViewToolbar() {
    context_.frame.toolBarVisible = !context_.frame.toolBarVisible;
}

void CMainFrame::ViewStatusBar() {
    context_.frame.statusBarVisible = !context_.frame.statusBarVisible;
}

void CMainFrame::ZoomIn(CFittingWindow& child) {
    child.ZoomX(1 / ZoomStep);
}

void CMainFrame::ZoomOut(CFittingWindow& child) {
    child.ZoomX(ZoomStep);
}

/// Only the active window is told: the others take the new options at their next update.
void CMainFrame::ToolsOptions() {
    OptionsDialog dialog(context_.options, context_.ui, context_.files, context_.decimalMark);
    context_.ui.RunModal(dialog);
    if (active_ != nullptr) {
        active_->UpdateOptions();
    }
}

void CMainFrame::AlignedDimension(CFittingWindow& child) {
    constexpr int Aligned = 1;
    child.AddDimension(Aligned);
}

/// Patterns are not moved; their move points are only kept and saved.
void CMainFrame::MovePattern(CFittingWindow& /*child*/) {}

void CMainFrame::WindowCascade() {
    desktop_.Arrange(Arrangement::Cascade);
}

void CMainFrame::WindowTileHorizontal() {
    desktop_.Arrange(Arrangement::TileHorizontally);
}

void CMainFrame::WindowTileVertical() {
    desktop_.Arrange(Arrangement::TileVertically);
}

void CMainFrame::WindowArrangeIcons() {
    desktop_.Arrange(Arrangement::ArrangeIcons);
}

/// The topic of the active window; the contents when there is none.
void CMainFrame::HelpContents() {
    if (active_ != nullptr) {
        ShowHelp(context_.ui, context_.options, help_, active_->Row().helpContextId);
    } else if (RequireHelp(context_.ui, help_) == Passed) {
        help_.ShowContents();
    }
}

void CMainFrame::HelpSearch() {
    if (RequireHelp(context_.ui, help_) == Passed) {
        help_.ShowSearch();
    }
}

void CMainFrame::Disclaimer() {
    DisclaimerDialog dialog;
    desktop_.RunModal(dialog);
}

void CMainFrame::HelpAbout() {
    AboutDialog dialog;
    desktop_.RunModal(dialog);
}

}  // namespace korvet
