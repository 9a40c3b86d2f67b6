#include "batch/outputs.h"

#include <utility>

#include "batch/json_text.h"
#include "window/saving.h"
#include "window/views.h"

namespace korvet::batch {

bool Outputs::Write() {
    if (!arguments_.json.empty() && !MakeJson()) {
        return false;
    }
    ui_.BeginOutputs();
    ChooseView();
    if (IsOfView() || arguments_.json.empty()) {
        Show();
        taken_ = shown_;
    } else {
        taken_ = window_.BuildFitting() == Passed;  // a pattern view may refuse what was made without one
    }
    return taken_ && WriteFiles();
}

/// Whether an output shows the view, be it of the model or of the pattern.
bool Outputs::IsOfView() const {
    return !arguments_.save.empty() || !arguments_.dxf.empty() || !arguments_.png.empty() ||
           !arguments_.svg.empty();
}

/// The view of the file, or the one that the command line asks for; a new window shows its pattern, and so
/// does a table that nothing else is to be shown beside.
void Outputs::ChooseView() {
    const bool hasView = window_.views->Count() > 0;
    const bool tableAlone = !arguments_.table.empty() && arguments_.json.empty() && !IsOfView();
    const bool asSaved = arguments_.view == ViewChoice::AsSaved && !tableAlone;
    const bool wantsPattern = arguments_.view == ViewChoice::Pattern || (asSaved && !hasView) || tableAlone;
    if (!hasView || (!asSaved && InPatternView(*window_.views) != wantsPattern)) {
        AddPresetView(wantsPattern ? PatternButton : 0, *window_.views);
    }
}

void Outputs::Show() {
    window_.UpdateFitting();
    shown_ = window_.hasModel;
}

/// Model and pattern of a fresh fitting. False when the build refuses.
bool Outputs::MakeJson() {
    const std::optional<ModelAndPattern> made = window_.MakeModelAndPattern();
    labels_ = window_.labels;
    if (made) {
        model_ = SurfacesJson(made->model);
        pattern_ = SurfacesJson(made->pattern);
    }
    taken_ = made.has_value();
    return taken_;
}

bool Outputs::WriteFiles() {
    bool written = true;
    if (!arguments_.save.empty()) {
        written = SaveFitting(window_, OutputPath(arguments_.save, name_)) == Passed && written;
    }
    if (!arguments_.dxf.empty()) {
        written = WriteDxf(OutputPath(arguments_.dxf, name_)) && written;
    }
    if (!arguments_.png.empty()) {
        written = WritePicture(OutputPath(arguments_.png, name_), PictureFormat::Png) && written;
    }
    if (!arguments_.svg.empty()) {
        written = WritePicture(OutputPath(arguments_.svg, name_), PictureFormat::Svg) && written;
    }
    // The last, since it may turn to the pattern.
    if (!arguments_.table.empty()) {
        written = WriteTable(OutputPath(arguments_.table, name_)) && written;
    }
    return written;
}

/// Exports the view. Diagonals that the command line asks for are shown for as long as this takes, so that
/// the export has them to offer; those that it forbids are not, since dimensions take the shown ones along.
bool Outputs::WriteDxf(const std::string& path) {
    bool& requested = window_.display.DiagonalsRequested;
    const bool shown = std::exchange(requested, arguments_.diagonals.value_or(requested));
    const bool written = window_.Export(path, ExportMode::Dxf) == Passed;
    requested = shown;
    return written;
}

bool Outputs::WritePicture(const std::string& path, PictureFormat format) {
    try {
        PictureDevice picture(format, arguments_.size.width, arguments_.size.height);
        window_.display.DrawPicture(picture);
        picture.Save(path, window_.Context().files);
        return true;
    } catch (const std::exception& error) {
        ShowPlain(ui_, error.what());
        return false;
    }
}

/// A table is of the pattern, whatever the view.
bool Outputs::WriteTable(const std::string& path) {
    if (!InPatternView(*window_.views)) {
        AddPresetView(PatternButton, *window_.views);
        shown_ = false;
    }
    if (!shown_) {
        Show();
    }
    return shown_ && window_.WriteTable(path) == Passed;
}

}  // namespace korvet::batch
