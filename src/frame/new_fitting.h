// Opening fitting windows.
#pragma once

#include <memory>
#include <string>

#include "window/fitting_window.h"

namespace korvet {

/// A new window of a category, captioned "Development " and its number. Null, with nothing said, for a
/// category that the catalogue does not have. The number counts up in either case.
std::unique_ptr<CFittingWindow> NewFitting(WindowContext& context, const std::string& category,
                                           DrawingDevice* drawingArea);

/// Refuses the file at `path`, with message 109, when the catalogue has no fitting of its category.
Outcome RequireFitting(WindowContext& context, const std::string& path, const std::string& category);

}  // namespace korvet
