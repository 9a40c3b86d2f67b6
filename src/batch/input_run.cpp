#include "batch/input_run.h"

#include "batch/set_values.h"
#include "core/reason.h"
#include "frame/catalogue.h"
#include "frame/new_fitting.h"
#include "window/import_mesh.h"
#include "window/saving.h"

namespace korvet::batch {

InputRun::InputRun(const Arguments& arguments, WindowContext& context, BatchUi& ui, BatchInput input)
    : arguments_(arguments), context_(context), ui_(ui), input_(std::move(input)) {}

void InputRun::Run() {
    try {
        if (RequireSound() || OpenWindow() || SetValues()) {
            return;
        }
        outputs_.emplace(arguments_, ui_, *window_, input_.name);
        succeeded_ = outputs_->Write() == Passed;
    } catch (const UsageError& error) {
        if (!input_.isRow) {
            throw;
        }
        outputs_.reset();
        ShowPlain(ui_, error.what());
    } catch (const std::exception& error) {
        outputs_.reset();
        ShowPlain(ui_, ReasonOf(error));
    }
}

InputReport InputRun::Report() const {
    InputReport report = {input_.file,
                          input_.isRow ? input_.name : std::string(),
                          category_,
                          window_.get(),
                          {},
                          ui_.Messages(),
                          true,
                          nullptr,
                          arguments_.check,
                          nullptr};
    if (outputs_) {
        report.labels = outputs_->Labels();
        report.refused = !outputs_->Taken();
        report.surfaces = outputs_->Surfaces();
        report.check = outputs_->Check();
    }
    return report;
}

/// Says what is wrong with a row that can't be worked on.
Outcome InputRun::RequireSound() {
    if (input_.fault.empty()) {
        return Passed;
    }
    ShowPlain(ui_, input_.fault);
    return Refused;
}

/// The window of a parameter file, filled from it, or a new one.
Outcome InputRun::OpenWindow() {
    const bool isFile = !input_.file.empty();
    if (!isFile) {
        category_ = input_.category;
        if (FindCategory(category_) == nullptr) {
            throw UsageError("there is no fitting \"" + category_ + "\"; --list prints the catalogue");
        }
    } else if (ReadCategory()) {
        return Refused;
    }
    window_ = NewFitting(context_, category_, nullptr);
    if (!window_) {
        return Refused;
    }
    return RefusedIf((isFile ? window_->FillFromFile(input_.file) : PrepareNewWindow()) || RequireMesh());
}

/// A window that has no mesh to show says so as a file does that is opened without one.
Outcome InputRun::RequireMesh() {
    if (window_->Table().sampleMesh == nullptr || window_->mesh.DXFMeshOK) {
        return Passed;
    }
    ShowPlain(ui_, context_.Message(NoExtents), "no mesh has been imported");
    return Refused;
}

/// Takes the category from the header of the file. Refuses, with a message, when there is no such fitting.
Outcome InputRun::ReadCategory() {
    CKvtFile file;
    file.FileName = input_.file;
    try {
        file.ReadHeader(context_.files);
    } catch (const ForeignProductError& error) {
        // No window is opened for it, so nothing fails to load.
        ShowForeignProduct(context_, input_.file, error);
        return Refused;
    } catch (const std::exception& error) {
        ShowLoadError(context_, input_.file, error);
        return Refused;
    }
    category_ = file.Category;
    return RequireFitting(context_, input_.file, category_);
}

/// Steps to the type asked for, and fills the window as the command line says. Refused, which has then been
/// said, when the mesh could not be read.
Outcome InputRun::PrepareNewWindow() {
    const WindowTable& table = window_->Table();
    const int types = static_cast<int>(table.pages.size());
    if (input_.type > types) {
        throw UsageError(category_ + " has " + std::to_string(types) + " types");
    }
    while (input_.type != 0 && window_->dtype != input_.type - 1) {
        window_->ClickPoint(window_->dtype < input_.type - 1 ? 0 : 1);
    }
    if (arguments_.sample) {
        FillWithSample();
    }
    if (arguments_.meshFile.empty()) {
        return Passed;
    }
    if (table.sampleMesh == nullptr) {
        throw UsageError(category_ + " takes no mesh");
    }
    return ReadMeshDXF(*window_, arguments_.meshFile);
}

/// Types the sample sizes of the type and selects its first pattern, or takes the sample mesh.
void InputRun::FillWithSample() {
    const WindowTable& table = window_->Table();
    for (const BoxEntry& box : table.pages[static_cast<std::size_t>(window_->dtype)].boxes) {
        window_->ChangeBox(static_cast<std::size_t>(box.index), std::string(box.sample));
    }
    if (!table.patternSelect.empty()) {
        window_->SelectPattern(0);
    }
    if (table.sampleMesh != nullptr) {
        window_->mesh = table.sampleMesh();
    }
}

Outcome InputRun::SetValues() {
    if (input_.select != 0) {
        const auto index = static_cast<std::size_t>(input_.select - 1);
        if (index >= window_->controls.options.optPatternSelect.captions.size()) {
            throw UsageError(category_ + " has no pattern option " + std::to_string(input_.select));
        }
        window_->SelectPattern(index);
    }
    for (const CDimension& dimension : arguments_.dimensionLines) {
        window_->dimensions->Add(dimension);
    }
    bool refused = false;
    for (const auto& [name, value] : input_.sets) {
        refused = SetValue(*window_, name, value) || refused;
    }
    return RefusedIf(refused);
}

}  // namespace korvet::batch
