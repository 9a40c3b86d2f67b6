#include "batch/outputs.h"

#include <utility>

#include "batch/json_text.h"
#include "core/reason.h"
#include "window/saving.h"
#include "window/views.h"

namespace korvet::batch {

Outcome Outputs::Write() {
    if (!arguments_.json.empty() && MakeJson()) {
        return Refused;
    }
    ui_.BeginOutputs();
    ChooseView();
    if (IsOfView() || arguments_.json.empty()) {
        Show();
        taken_ = shown_;
    } else {
        taken_ = window_.BuildFitting() == Passed;  // a pattern view may refuse what was made without one
    }
    return taken_ ? WriteFiles() : Refused;
}

/// Whether an output shows the view, be it of the model or of the pattern.
bool Outputs::IsOfView() const {
    return !arguments_.save.empty() || !arguments_.dxf.empty() || !arguments_.hpgl.empty() ||
           !arguments_.png.empty() || !arguments_.svg.empty() || (!arguments_.pdf.empty() && arguments_.fit);
}

/// The view of the file, or the one that the command line asks for; a new window shows its pattern, and so
/// do table and full-size sheets that nothing else is to be shown beside.
void Outputs::ChooseView() {
    const bool hasView = window_.views->Count() > 0;
    const bool ofPattern = !arguments_.table.empty() || !arguments_.pdf.empty() || arguments_.check;
    const bool patternAlone = ofPattern && arguments_.json.empty() && !IsOfView();
    const bool asSaved = arguments_.view == ViewChoice::AsSaved && !patternAlone;
    const bool wantsPattern = arguments_.view == ViewChoice::Pattern || (asSaved && !hasView) || patternAlone;
    if (!hasView || (!asSaved && InPatternView(*window_.views) != wantsPattern)) {
        AddPresetView(wantsPattern ? PatternButton : 0, *window_.views);
    }
}

void Outputs::Show() {
    window_.UpdateFitting();
    shown_ = window_.hasModel;
}

/// Model and pattern of a fresh fitting.
Outcome Outputs::MakeJson() {
    made_ = window_.MakeModelAndPattern();
    labels_ = window_.labels;
    if (made_) {
        RequireFinite(made_->model);
        RequireFinite(made_->pattern);
    }
    taken_ = made_.has_value();
    return RefusedIf(!taken_);
}

/// All of them, though one may fail.
Outcome Outputs::WriteFiles() {
    bool refused = false;
    if (!arguments_.save.empty()) {
        refused = SaveFitting(window_, OutputPath(arguments_.save, name_)) || refused;
    }
    if (!arguments_.dxf.empty()) {
        refused = Export(OutputPath(arguments_.dxf, name_), ExportMode::Dxf) || refused;
    }
    if (!arguments_.hpgl.empty()) {
        refused = Export(OutputPath(arguments_.hpgl, name_), ExportMode::Plotter) || refused;
    }
    if (!arguments_.png.empty()) {
        refused = WritePicture(OutputPath(arguments_.png, name_), PictureFormat::Png) || refused;
    }
    if (!arguments_.svg.empty()) {
        refused = WritePicture(OutputPath(arguments_.svg, name_), PictureFormat::Svg) || refused;
    }
    if (!arguments_.pdf.empty() && arguments_.fit) {
        refused = WritePdf(OutputPath(arguments_.pdf, name_)) || refused;
    }
    // The last, since they may turn to the pattern.
    if (arguments_.check) {
        refused = CheckCutFile() || refused;
    }
    if (!arguments_.table.empty()) {
        refused = WriteTable(OutputPath(arguments_.table, name_)) || refused;
    }
    if (!arguments_.pdf.empty() && !arguments_.fit) {
        refused = ShowPattern() || WritePdf(OutputPath(arguments_.pdf, name_)) || refused;
    }
    return RefusedIf(refused);
}

/// Exports the view. Diagonals that the command line asks for are shown for as long as this takes, so that
/// the export has them to offer; those that it forbids are not, since dimensions take the shown ones along.
Outcome Outputs::Export(const std::string& path, ExportMode mode) {
    bool& requested = window_.display.DiagonalsRequested;
    const bool shown = std::exchange(requested, arguments_.diagonals.value_or(requested));
    const Outcome outcome = window_.Export(path, mode);
    requested = shown;
    return RefusedIf(outcome || ui_.LacksSomethingAsked());
}

Outcome Outputs::WritePicture(const std::string& path, PictureFormat format) {
    try {
        PictureDevice picture(format, arguments_.size.width, arguments_.size.height);
        window_.display.DrawPicture(picture);
        picture.Save(path, window_.Context().files);
        return Passed;
    } catch (const std::exception& error) {
        ShowPlain(ui_, ReasonOf(error));
        return Refused;
    }
}

/// Table and full-size sheets are of the pattern, whatever the view.
Outcome Outputs::ShowPattern() {
    if (!InPatternView(*window_.views)) {
        AddPresetView(PatternButton, *window_.views);
        shown_ = false;
    }
    if (!shown_) {
        Show();
    }
    return RefusedIf(!shown_);
}

/// Refused when the check finds a fault.
Outcome Outputs::CheckCutFile() {
    if (ShowPattern()) {
        return Refused;
    }
    try {
        const WindowContext& context = window_.Context();
        check_ = CheckPattern(window_, arguments_.polylines || context.options.PolyMode == PolylineEdges);
        for (const std::string& line :
             check_ ? CheckLines(*check_, context.decimalMark) : std::vector<std::string>()) {
            ui_.PrintAbout(line);
        }
        return RefusedIf(!check_ || !check_->cut.faults.empty());
    } catch (const std::exception& error) {
        ShowPlain(ui_, ReasonOf(error));
        return Refused;
    }
}

Outcome Outputs::WriteTable(const std::string& path) {
    return RefusedIf(ShowPattern() || window_.WriteTable(path));
}

Outcome Outputs::WritePdf(const std::string& path) {
    return window_.PrintToPdf(path, {arguments_.fit, arguments_.sheets});
}

}  // namespace korvet::batch
