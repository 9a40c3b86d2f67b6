// What goes out of a fitting window.
#pragma once

#include <string>

#include "window/fitting_window.h"

namespace korvet {

/// Asks what goes out and writes it. True when the file was written.
bool ExportFitting(CFittingWindow& window, const std::string& path, ExportMode mode);

}  // namespace korvet
