// Opening fitting windows.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "shell/fitting_window.h"

namespace korvet {

/// How the caption of a window begins that has no file yet.
inline constexpr std::string_view NewWindowCaption = "Development";

/// Whether the window has no file yet, by its caption.
bool HasNoFile(const CFittingWindow& window);

/// A new window of a category, captioned "Development " and its number. Null, with nothing said, for a
/// category that the catalogue does not have; null, with a plain box that says so, for one whose window is
/// not built yet. The number counts up in either case.
std::unique_ptr<CFittingWindow> NewFitting(ShellContext& context, const std::string& category,
                                           DrawingDevice* drawingArea);

}  // namespace korvet
