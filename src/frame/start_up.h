// What the program does before it has a frame.
#pragma once

#include <string>

#include "window/context.h"

namespace korvet {

/// Reads the options from "settings.ini" of the current folder, which is made there when it is missing or out
/// of date. A folder that can't be written to is told about, and the built-in options hold for the run. An
/// empty `currentPrinterName` (no printer) gives message 118. Refuses, with a box that names file, line and
/// text, when the options can't be used: the program then has to end with exit code 1 before it shows a
/// frame, and the file stays as it is for its owner to mend.
Outcome SetupStartup(WindowContext& context, const std::string& currentPrinterName);

}  // namespace korvet
