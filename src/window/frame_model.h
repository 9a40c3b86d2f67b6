// What fitting windows see of the main frame: its menu entries and tool buttons, the status line, its size.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "form/controls.h"

namespace korvet {

/// The version of the CAD program that the link speaks to.
inline constexpr int AutoCadVersion = 15;

struct FrameModel {
    std::string caption;
    std::map<std::string, bool> menuEnabled;  ///< by control name; an entry that is not named is enabled
    std::map<std::string, bool> menuVisible;  ///< by control name; an entry that is not named is visible
    std::map<int, bool> toolEnabled;          ///< by position on the tool bar, from 1
    bool printFramesTicked = false;           ///< mnuPrintFrames
    bool toolBarVisible = true;               ///< tbToolBar, and the tick of mnuViewToolbar
    bool statusBarVisible = true;             ///< sbStatusBar, and the tick of mnuViewStatusBar
    std::string statusText;                   ///< panel 1 of the status bar
    bool completeDrawings = false;            ///< chkComplete, as the last export to a file left it
    int documentCounter = 0;                  ///< fitting windows made so far
    Place inner;                              ///< the area that child windows fill, in twips
};

/// Whether the menu entry of that control name is ticked; one without a tick never is.
bool IsTicked(const FrameModel& frame, std::string_view menu);

/// Enables the menu entries and tool buttons that act on a fitting, except the choice of print frames, and
/// shows the entry of the CAD link.
void EnableFittingCommands(FrameModel& frame);

/// Disables them all, the choice of print frames (mnuSelectFrames, tool button 7) included.
void DisableFittingCommands(FrameModel& frame);

/// The entry of the CAD link is shown for versions of the CAD program that it can speak to.
void ShowCadLink(FrameModel& frame);

/// Tool button 7, the choice of print frames, can be used exactly while frames are shown.
void EnableSelectFramesTool(FrameModel& frame);

}  // namespace korvet
