// Layout, types and the close question of fitting windows.
#pragma once

#include "shell/fitting_window.h"

namespace korvet {

/// Gives a parameter page its standard rectangle and hides it.
void PlaceParameterPage(Control& page);

/// Lays the window's areas out in its inner size, twips, and remembers its state for the next window.
void ArrangeFittingWindow(CFittingWindow& window);

/// The common part of a window's load: layout, captions, boxes, type label, status line.
void SetupFittingWindow(CFittingWindow& window);

/// Steps to the next (button 0) or previous (button 1) type, where there is one, and returns the new type.
std::int16_t StepFittingType(CFittingWindow& window, std::size_t button, std::int16_t dtype);

/// Enables the type buttons that have a type to go to from `dtype`.
void EnableTypeButtons(CFittingWindow& window, std::int16_t dtype);

/// Disables them for good: the type of a fitting is fixed by its first drawing.
void LockType(CFittingWindow& window);

/// The close question. Returns 0 when none was needed, 6 after a save, 7 for No, 2 when the window stays
/// open: Cancel, in the question or the file dialog, or a save that failed.
int ConfirmSave(CFittingWindow& window);

/// Composes the status line of the window's settings and puts it into the frame.
void UpdateSettings(CFittingWindow& window);

/// Saves the window's boxes, settings, view and annotations to `path`, which becomes its caption. False, with
/// a message, when the file could not be written; the caption and an old file then stay as they were.
bool SaveFitting(CFittingWindow& window, const std::string& path);

/// Fills the window from a parameter file. Throws FileError and ParameterFileError; what was read before the
/// fault stays in the controls.
CKvtFile LoadFitting(CFittingWindow& window, const std::string& path);

/// Asks under which name a parameter file is to be saved; nothing after Cancel.
std::optional<std::string> ChooseSaveName(UserInterface& ui);

/// Says that the header of a parameter file is faulty.
void ShowHeaderError(MessageBoxes& boxes, const std::exception& error);

/// Says what is wrong with a parameter file that could not be read: a box of its own for a foreign product or
/// a faulty header, before message 109.
void ShowLoadError(ShellContext& context, const std::exception& error);

/// Asks what goes out and writes it. True when the file was written.
bool ExportFitting(CFittingWindow& window, const std::string& path, ExportMode mode);

}  // namespace korvet
