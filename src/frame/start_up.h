// What the program does before it has a frame.
#pragma once

#include <functional>
#include <string>

#include "frame/settings_store.h"
#include "window/context.h"

namespace korvet {

/// Reads the options from "settings.ini" of the current folder, which is made there when it is missing or out
/// of date. A file of that name whose first line is no version belongs to another program and is left alone,
/// as is a folder that can't be written to and has none: the settings are then those of the user's
/// `configurationFolder` (called when it is needed, made by it, empty when there is none), and the status
/// line says so. Where nothing can be written the built-in options hold for the run, after a box. Then the
/// printer is the system's default queue, or the PDF file where there is none and the user has chosen it
/// before (RememberPdf); with neither of them comes message 118.
///
/// When a line can't be used, a box names file, line and text, and a second one offers to set the file aside
/// and to go on with the built-in options. Refuses after Cancel, and when the file can't be read at all: the
/// program then has to end with exit code 1 before it shows a frame, and the file stays as it is for its
/// owner to mend.
Outcome SetupStartup(WindowContext& context, const SettingsStore& settings,
                     const std::function<std::string()>& configurationFolder);

/// Remembers for later starts that the PDF file is the printer, if it is.
void RememberPdf(const CPrintDialog& printer, SettingsStore& settings);

}  // namespace korvet
