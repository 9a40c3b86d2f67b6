// What the program does before it has a frame.
#pragma once

#include "frame/settings_store.h"
#include "window/context.h"

namespace korvet {

/// Reads the options from "settings.ini" of the current folder, which is made there when it is missing or out
/// of date. A folder that can't be written to is told about, and the built-in options hold for the run. Then
/// the printer is the system's default queue, or the PDF file where there is none and the user has chosen it
/// before (RememberPdf); with neither of them comes message 118. Refuses, with a box that names file, line
/// and text, when the options can't be used: the program then has to end with exit code 1 before it shows a
/// frame, and the file stays as it is for its owner to mend.
Outcome SetupStartup(WindowContext& context, const SettingsStore& settings);

/// Remembers for later starts that the PDF file is the printer, if it is.
void RememberPdf(const CPrintDialog& printer, SettingsStore& settings);

}  // namespace korvet
