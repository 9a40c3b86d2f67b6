// What goes out of a fitting window.
#pragma once

#include <optional>
#include <string>

#include "window/check_export.h"
#include "window/fitting_window.h"

namespace korvet {

/// The name of the piece whose pattern is drawn, in a window whose pieces are developed one by one; else
/// empty.
std::string DrawnPiece(const CFittingWindow& window);

/// Asks before what is drawn goes out while boxes hold other sizes. Refused when it is not to go out.
Outcome ConfirmExportOfOldSizes(const CFittingWindow& window);

/// Asks what goes out and writes it. Refused when no file was written, after Cancel too.
Outcome ExportFitting(CFittingWindow& window, const std::string& path, ExportMode mode);

/// The check of what an export of the shown pattern writes, with its edges as arcs or as polylines. Nothing
/// when a model is shown. Throws ArithmeticError as CheckExport.
std::optional<ExportCheck> CheckPattern(const CFittingWindow& window, bool polylines);

}  // namespace korvet
