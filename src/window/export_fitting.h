// What goes out of a fitting window.
#pragma once

#include <string>

#include "window/fitting_window.h"

namespace korvet {

/// Asks what goes out and writes it. Refused when no file was written, after Cancel too.
Outcome ExportFitting(CFittingWindow& window, const std::string& path, ExportMode mode);

}  // namespace korvet
