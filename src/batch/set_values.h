// The --set options: values that go into a window before it is built.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "window/fitting_window.h"

namespace korvet::batch {

/// A value, or a cell of a list, as messages quote it.
std::string InQuotes(std::string_view value);

/// Whether `name` can be set in some window. An unknown name is wrong usage whatever the input.
bool IsSettableName(const std::string& name);

/// Puts one value into the window: a box (box3), comment1, comment2, textsize, a pattern setting or an
/// annotation request by its member name, an option group by index or "none". Refuses a value that is
/// not one for its place. Throws UsageError when the window has no such place.
Outcome SetValue(CFittingWindow& window, const std::string& name, const std::string& value);

}  // namespace korvet::batch
