// What fitting windows see of the main frame: its menu entries and tool buttons, the status line, its size.
#pragma once

#include <map>
#include <string>

#include "form/controls.h"

namespace korvet {

struct FrameModel {
    std::map<std::string, bool> menuEnabled;  ///< by control name; an entry that is not named is enabled
    std::map<int, bool> toolEnabled;          ///< by position on the tool bar, from 1
    bool printFramesTicked = false;           ///< mnuPrintFrames
    std::string statusText;                   ///< panel 1 of the status bar
    int documentCounter = 0;                  ///< fitting windows made so far
    Place inner;                              ///< the area that child windows fill, in twips
};

/// Enables the menu entries and tool buttons that act on a fitting, except the choice of print frames.
void EnableFittingCommands(FrameModel& frame);

/// Disables them all, the choice of print frames (mnuSelectFrames, tool button 7) included.
void DisableFittingCommands(FrameModel& frame);

}  // namespace korvet
