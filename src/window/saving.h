// Parameter files of fitting windows: saving, loading, and the question before a window closes.
#pragma once

#include <exception>
#include <optional>
#include <string>
#include <string_view>

#include "window/fitting_window.h"

namespace korvet {

/// How the caption of a window begins that has no file yet; the caption of any other one is its path.
inline constexpr std::string_view NewWindowCaption = "Development";

/// Whether the window has no file yet, by its caption.
bool HasNoFile(const CFittingWindow& window);

/// Saves the window's boxes, settings, view and annotations to `path`, which becomes its caption. Asks first
/// when the window has read or written that file before, and it is now another one. Refuses after No, and
/// with a message when the file could not be written; the caption and an old file then stay as they were.
Outcome SaveFitting(CFittingWindow& window, const std::string& path);

/// Fills the window from a parameter file and shows the page of its type; nothing is built. Returns what was
/// read. Throws FileError and ParameterFileError; what was read before the fault stays in the controls.
CKvtFile LoadFitting(CFittingWindow& window, const std::string& path);

/// Asks under which name the window's parameter file is to be saved; nothing after Cancel.
std::optional<std::string> ChooseSaveName(const CFittingWindow& window);

/// Asks for the name of a drawing of the window; nothing after Cancel.
std::optional<std::string> ChooseDrawingName(const CFittingWindow& window);

/// Says that the file at `path` is one of another product.
void ShowForeignProduct(WindowContext& context, const std::string& path, const std::exception& error);

/// Says that the header of the parameter file at `path` is faulty.
void ShowHeaderError(MessageBoxes& boxes, const std::string& path, const std::exception& error);

/// Says why the parameter file at `path` could not be loaded: a box of its own for a foreign product or a
/// faulty header, before message 109. Each names the file, and shows only what can be seen of its contents.
void ShowLoadError(WindowContext& context, const std::string& path, const std::exception& error);

/// Says what a file that has been loaded does not hold for this program, if there is such a thing.
void ShowLoadNotes(WindowContext& context, const CKvtFile& file);

/// Lets a window be closed: if it has changes, asks whether they are to be saved, builds and saves them.
/// Refuses when the window is to stay open: after Cancel, in the question or the file dialog, when the sizes
/// are refused, or when it could not be saved.
Outcome ConfirmSave(CFittingWindow& window);

}  // namespace korvet
