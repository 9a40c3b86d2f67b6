// Port: everything a window asks of the user. The dialogs are plain models with their rules; the user
// interface shows one, lets the user work on it and returns when it is closed.
#pragma once

#include <optional>
#include <string>

#include "form/message_boxes.h"

namespace korvet {

struct BranchAdditionalDialog;
struct DimensionOptionsDialog;
struct DxfOptionsDialog;
struct LabelDialog;
struct OptionsDialog;
struct PatternSettingsDialog;
struct PrintersDialog;
struct RotateDialog;

/// A file dialog.
struct FileChoice {
    std::string title;
    std::string filter;       ///< description, an upright bar, and the pattern
    bool save = false;        ///< asks for a name to write to, and before it replaces a file
    std::string name = {};    ///< that is offered
    std::string folder = {};  ///< to open in as long as the user has chosen no file in another; may be empty
};

/// How far work is that takes its time.
struct WorkProgress {
    std::string what;  ///< "Sheet A1"
    std::size_t done = 0;
    std::size_t total = 0;
    bool eventsGoOn = false;  ///< the program works on its events meanwhile: the user must be kept off them
};

class UserInterface : public MessageBoxes {
  public:
    /// The path chosen, or nothing after Cancel.
    virtual std::optional<std::string> ChooseFile(const FileChoice& choice) = 0;

    /// Shows how far the work is, with a way to cancel it: false once the user has. It comes up over
    /// everything else, at once when events go on, else when the work takes its time. With all done it is
    /// taken away again.
    virtual bool GoesOn(const WorkProgress& progress) = 0;

    // Each shows its dialog modally. The dialog's lblStatus tells how it was left: "OK", or anything else for
    // Cancel, Esc and the close box.
    virtual void RunModal(PatternSettingsDialog& dialog) = 0;
    virtual void RunModal(OptionsDialog& dialog) = 0;
    virtual void RunModal(DimensionOptionsDialog& dialog) = 0;
    virtual void RunModal(LabelDialog& dialog) = 0;
    virtual void RunModal(DxfOptionsDialog& dialog) = 0;
    virtual void RunModal(RotateDialog& dialog) = 0;
    virtual void RunModal(BranchAdditionalDialog& dialog) = 0;
    virtual void RunModal(PrintersDialog& dialog) = 0;
};

}  // namespace korvet
