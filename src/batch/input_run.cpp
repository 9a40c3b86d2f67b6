#include "batch/input_run.h"

#include "batch/set_values.h"
#include "frame/catalogue.h"
#include "frame/new_fitting.h"
#include "window/saving.h"
#include "window/views.h"

namespace korvet::batch {
namespace {

/// The factor of the Zoom Out command.
constexpr double ZoomOutStep = 0.9;

CRuleSurfs OneSurface(const CRuleSurf& surface) {
    CRuleSurfs surfaces;
    if (surface.List1) {
        surfaces.Add(surface);
    }
    return surfaces;
}

}  // namespace

InputRun::InputRun(const Arguments& arguments, WindowContext& context, BatchUi& ui, std::string input)
    : arguments_(arguments), context_(context), ui_(ui), input_(std::move(input)) {}

void InputRun::Run() {
    try {
        if (!OpenWindow() || !SetValues() || !BuildForReport()) {
            return;
        }
        ui_.BeginOutputs();
        ChooseView();
        taken_ = window_->hasModel;
        succeeded_ = taken_ && WriteOutputs();
    } catch (const UsageError&) {
        throw;
    } catch (const std::exception& error) {
        taken_ = false;
        ShowPlain(ui_, error.what());
    }
}

InputReport InputRun::Report() const {
    const std::string none = "[]";
    return {input_,         category_, window_.get(),          labels_,
            ui_.Messages(), !taken_,   taken_ ? model_ : none, taken_ ? pattern_ : none};
}

/// The window of a parameter file, filled from it, or a new one.
bool InputRun::OpenWindow() {
    const bool isFile = !input_.empty();
    if (!isFile) {
        category_ = arguments_.newCategory;
        if (FindCategory(category_) == nullptr) {
            throw UsageError("there is no fitting \"" + category_ + "\"; --list prints the catalogue");
        }
    } else if (!ReadCategory()) {
        return false;
    }
    window_ = NewFitting(context_, category_, nullptr);
    if (!window_) {
        return false;
    }
    if (isFile) {
        return window_->FillFromFile(input_) == Passed;
    }
    PrepareNewWindow();
    return true;
}

/// Takes the category from the header of the file. False, with a message, when there is no such fitting.
bool InputRun::ReadCategory() {
    CKvtFile file;
    file.FileName = input_;
    try {
        file.ReadHeader(context_.files);
    } catch (const ForeignProductError& error) {
        // No window is opened for it, so nothing fails to load.
        ShowForeignProduct(context_, input_, error);
        return false;
    } catch (const std::exception& error) {
        ShowLoadError(context_, input_, error);
        return false;
    }
    category_ = file.Category;
    return RequireFitting(context_, input_, category_) == Passed;
}

/// Steps to the type asked for, types its sample sizes and selects its first pattern.
void InputRun::PrepareNewWindow() {
    const WindowTable& table = window_->Table();
    const int types = static_cast<int>(table.pages.size());
    if (arguments_.type > types) {
        throw UsageError(category_ + " has " + std::to_string(types) + " types");
    }
    while (arguments_.type != 0 && window_->dtype != arguments_.type - 1) {
        window_->ClickPoint(window_->dtype < arguments_.type - 1 ? 0 : 1);
    }
    if (arguments_.sample) {
        for (const BoxEntry& box : table.pages[static_cast<std::size_t>(window_->dtype)].boxes) {
            window_->ChangeBox(static_cast<std::size_t>(box.index), std::string(box.sample));
        }
        if (!table.patternSelect.empty()) {
            window_->SelectPattern(0);
        }
    }
}

bool InputRun::SetValues() {
    if (arguments_.select != 0) {
        const auto index = static_cast<std::size_t>(arguments_.select - 1);
        if (index >= window_->controls.options.optPatternSelect.captions.size()) {
            throw UsageError(category_ + " has no pattern option " + std::to_string(arguments_.select));
        }
        window_->SelectPattern(index);
    }
    for (const CDimension& dimension : arguments_.dimensionLines) {
        window_->dimensions->Add(dimension);
    }
    bool good = true;
    for (const auto& [name, value] : arguments_.sets) {
        good = SetValue(*window_, name, value) == Passed && good;
    }
    return good;
}

/// Model and pattern of a fresh fitting for the JSON output. False when the build refuses.
bool InputRun::BuildForReport() {
    if (arguments_.json.empty()) {
        return true;
    }
    try {
        const bool built = window_->BuildFitting() == Passed;
        labels_ = window_->labels;
        if (!built) {
            return false;
        }
        window_->ApplySettings();
        const FittingHandle& fitting = *window_->fitting;
        const FittingResults& results = fitting.Results();
        const bool many = window_->Table().multiple;
        fitting.ConstructModel();
        model_ = SurfacesJson(many ? results.ModelSurfaceList : OneSurface(results.ModelSurface));
        fitting.DevelopModel();
        pattern_ = SurfacesJson(many ? results.PatternSurfaceList : OneSurface(results.PatternSurface));
        window_->ShowWarnings(results.warnings);
    } catch (const std::exception& error) {
        window_->RefuseBuild(error);
    }
    return window_->hasModel;
}

/// Builds in the view of the file, or the one that the command line asks for; a new window shows its pattern.
void InputRun::ChooseView() {
    const bool hasView = window_->views->Count() > 0;
    const bool asSaved = arguments_.view == ViewChoice::AsSaved;
    const bool wantsPattern = arguments_.view == ViewChoice::Pattern || (asSaved && !hasView);
    if (hasView && (asSaved || InPatternView(*window_->views) == wantsPattern)) {
        window_->UpdateFitting();
    } else {
        window_->ClickView(wantsPattern ? PatternButton : 0);
    }
}

bool InputRun::WriteOutputs() {
    const std::string name = InputName(arguments_, input_);
    bool written = true;
    if (!arguments_.save.empty()) {
        written = window_->SaveFile(OutputPath(arguments_.save, name)) == Passed && written;
    }
    if (!arguments_.dxf.empty()) {
        written = ExportDxf(OutputPath(arguments_.dxf, name)) && written;
    }
    if (!arguments_.png.empty()) {
        written = WritePicture(OutputPath(arguments_.png, name), PictureFormat::Png) && written;
    }
    if (!arguments_.svg.empty()) {
        written = WritePicture(OutputPath(arguments_.svg, name), PictureFormat::Svg) && written;
    }
    // The last, since it may turn to the pattern.
    if (!arguments_.table.empty()) {
        written = WriteTable(OutputPath(arguments_.table, name)) && written;
    }
    return written;
}

/// A table is of the pattern, whatever the view.
bool InputRun::WriteTable(const std::string& path) {
    if (!InPatternView(*window_->views)) {
        window_->ClickView(PatternButton);
    }
    return window_->WriteTable(path) == Passed;
}

/// Exports the view. Diagonals that the command line asks for are shown for as long as this takes, so that
/// the export has them to offer.
bool InputRun::ExportDxf(const std::string& path) {
    const bool shown = window_->display.DiagonalsRequested;
    window_->display.DiagonalsRequested = shown || arguments_.diagonals;
    const bool written = window_->Export(path, ExportMode::Dxf) == Passed;
    window_->display.DiagonalsRequested = shown;
    return written;
}

/// Draws the view as an opened window shows it, zoomed to the extents; then out by one step, since a drawing
/// sits one text height off the centre and a picture has nobody to pan it.
bool InputRun::WritePicture(const std::string& path, PictureFormat format) {
    PictureDevice picture(format, arguments_.size.width, arguments_.size.height);
    window_->display.DisplayDevice = &picture;
    window_->UpdateFitting();
    window_->ZoomExtents();
    window_->ZoomX(ZoomOutStep);
    window_->display.DisplayDevice = nullptr;
    if (!window_->hasModel) {
        return false;
    }
    try {
        picture.Save(path, context_.files);
    } catch (const FileError& error) {
        ShowPlain(ui_, error.what());
        return false;
    }
    return true;
}

}  // namespace korvet::batch
