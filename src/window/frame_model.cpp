#include "window/frame_model.h"

#include <array>
#include <string_view>

namespace korvet {
namespace {

constexpr std::array<std::string_view, 18> FittingMenus = {
    "mnuZoomExtents", "mnuZoomOut",  "mnuZoomIn",     "mnuPan",       "mnuZoomWindow",  "mnuZoomPrevious",
    "mnuProperties",  "mnuFileSave", "mnuFileSaveAs", "mnuFileClose", "mnuExportDXF",   "mnuExportHPGL",
    "mnuDimension",   "mnuModify",   "mnuSendToAcad", "mnuFilePrint", "mnuPrintFrames", "mnuFilePageSetup"};

constexpr std::array<int, 17> FittingTools = {3, 5, 6, 9, 11, 12, 13, 14, 16, 17, 19, 20, 21, 22, 23, 24, 27};

constexpr int SelectFramesTool = 7;

/// Older versions of the CAD program are not spoken to.
constexpr int LastSilentAutoCad = 14;

void SetFittingCommands(FrameModel& frame, bool enabled) {
    for (const std::string_view menu : FittingMenus) {
        frame.menuEnabled[std::string(menu)] = enabled;
    }
    for (const int tool : FittingTools) {
        frame.toolEnabled[tool] = enabled;
    }
}

}  // namespace

bool IsTicked(const FrameModel& frame, std::string_view menu) {
    return (menu == "mnuPrintFrames" && frame.printFramesTicked) ||
           (menu == "mnuViewToolbar" && frame.toolBarVisible) ||
           (menu == "mnuViewStatusBar" && frame.statusBarVisible);
}

void EnableFittingCommands(FrameModel& frame) {
    SetFittingCommands(frame, true);
    ShowCadLink(frame);
}

void DisableFittingCommands(FrameModel& frame) {
    SetFittingCommands(frame, false);
    frame.menuEnabled["mnuSelectFrames"] = false;
    frame.toolEnabled[SelectFramesTool] = false;
}

void ShowCadLink(FrameModel& frame) {
    frame.menuVisible["mnuSendToAcad"] = AutoCadVersion > LastSilentAutoCad;
}

void EnableSelectFramesTool(FrameModel& frame) {
    frame.toolEnabled[SelectFramesTool] = frame.printFramesTicked;
}

}  // namespace korvet
