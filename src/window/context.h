// What all fitting windows of a run share.
#pragma once

#include <chrono>
#include <memory>
#include <optional>

#include "core/file_store.h"
#include "dialogs/pattern_settings_dialog.h"
#include "dialogs/user_interface.h"
#include "form/fields.h"
#include "form/messages.h"
#include "form/options.h"
#include "printing/print_dialog.h"
#include "window/clock.h"
#include "window/frame_model.h"

namespace korvet {

class Automation;
class CAutoCAD;
class PlotterLine;
class TransferPlace;

struct WindowContext {
    COptions& options;
    UserInterface& ui;
    FileStore& files;
    const Clock& clock;
    FrameModel& frame;
    PatternSettingsDialog& patternSettingsDialog;  ///< one for the whole program
    CPrintDialog& printDialog;                     ///< the printer, for the whole program too
    char decimalMark = '.';
    TransferPlace* transfer = nullptr;    ///< null: drawings go nowhere but into files
    PlotterLine* plotter = nullptr;       ///< null: plots go into files
    Automation* automation = nullptr;     ///< null: no other program can be driven here
    std::shared_ptr<CAutoCAD> acad = {};  ///< the link to the drawing program, once it has been asked for

    /// How long work may take before its user sees how it goes on; without one nobody waits for it.
    std::optional<std::chrono::milliseconds> patience = {};

    /// The text of a message in the language of the options.
    [[nodiscard]] std::string Message(int id) const { return GetMessage(id, options.Language); }
};

}  // namespace korvet
