// What comes out of one filled window: its surfaces, for the JSON, files and pictures.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "batch/arguments.h"
#include "batch/batch_ui.h"
#include "platform/picture_device.h"
#include "window/export_fitting.h"
#include "window/fitting_window.h"

namespace korvet::batch {

class Outputs {
  public:
    /// `name` is what {name} stands for in the names of the files.
    Outputs(const Arguments& arguments, BatchUi& ui, CFittingWindow& window, std::string name)
        : arguments_(arguments), ui_(ui), window_(window), name_(std::move(name)) {}

    /// Makes the fitting and writes what the command line asks for; with nothing asked for it is made all the
    /// same, to see whether it is. Refused unless all is written. No output has the fitting made more than
    /// once: it is made for the JSON, for all that is of the view, and for table and full-size sheets when
    /// the view is of the model.
    Outcome Write();

    // What Write leaves to tell.

    /// Whether the window was built; false until then, and after a refusal.
    [[nodiscard]] bool Taken() const { return taken_; }

    /// The text block of the build that the JSON tells of, as far as it came; null without JSON.
    [[nodiscard]] const std::shared_ptr<const CLabels>& Labels() const { return labels_; }

    /// Model and pattern that the JSON tells of; null without JSON and when the window was refused.
    [[nodiscard]] const ModelAndPattern* Surfaces() const { return taken_ && made_ ? &*made_ : nullptr; }

    /// What the check of the cut file has found; null when none was asked for or made.
    [[nodiscard]] const ExportCheck* Check() const { return check_ ? &*check_ : nullptr; }

  private:
    Outcome MakeJson();
    [[nodiscard]] bool IsOfView() const;
    void ChooseView();
    void Show();
    Outcome WriteFiles();
    Outcome Export(const std::string& path, ExportMode mode);
    Outcome WritePicture(const std::string& path, PictureFormat format);
    Outcome WriteTable(const std::string& path);
    Outcome WritePdf(const std::string& path);
    Outcome ShowPattern();
    Outcome CheckCutFile();

    const Arguments& arguments_;
    BatchUi& ui_;
    CFittingWindow& window_;
    std::string name_;
    std::shared_ptr<const CLabels> labels_;
    std::optional<ModelAndPattern> made_;
    std::optional<ExportCheck> check_;
    bool taken_ = false;
    bool shown_ = false;  ///< the display holds the current view
};

}  // namespace korvet::batch
