#include "window/fitting_window.h"

#include <cmath>

#include "core/constants.h"
#include "core/number_text.h"
#include "core/reason.h"
#include "core/work_watch.h"
#include "dialogs/branch_additional_dialog.h"
#include "window/export_fitting.h"
#include "window/fitting_types.h"
#include "window/parameter_file.h"
#include "window/saving.h"
#include "window/views.h"
#include "window/window_layout.h"

namespace korvet {

CFittingWindow::CFittingWindow(WindowContext& context, const CatalogueRow& row, DrawingDevice* drawingArea)
    : dimensions(std::make_shared<CDimensions>()),
      views(std::make_shared<CViewList>()),
      category(row.category),
      context_(context),
      row_(&row),
      goodTextSize_(context.options.DisplayTextSize) {
    display.DisplayDevice = drawingArea;
    printFrames.PrintUnits = context.printDialog.PrintUnits;
    InitialiseFitting();
    SetupFittingWindow(*this);
    edited = true;
    CountAsSaved(*this);
}

/// The defaults of the window and the flags of its pattern settings.
void CFittingWindow::InitialiseFitting() {
    const WindowTable& table = Table();
    settings = StartSettings(table, context_.options.DefaultSegs);
    settings.LapEnable = row_->lapEnable;
    dtype = table.firstDtype;
    miscellaneous = table.miscellaneous;
    controls.Picture1.resize(table.pages.size());
    controls.txtParameter.resize(table.BoxCount());
    for (std::size_t i = 0; i < controls.txtParameter.size(); ++i) {
        controls.txtParameter[i].name = "txtParameter_" + std::to_string(i);
        controls.txtParameter[i].parameterIndex = static_cast<int>(i);
    }
    for (const PageEntry& page : table.pages) {
        for (const BoxEntry& box : page.boxes) {
            controls.txtParameter.at(static_cast<std::size_t>(box.index)).text = box.start;
        }
    }
    controls.options = StartOptions(table);
    if (table.moreButtons) {
        controls.btnMore.resize(table.pages.size());
        controls.btnBack.resize(table.pages.size());
        controls.btnMore.back().visible = controls.btnBack.front().visible = false;
    }
    controls.btnPosition.visible = table.branchMaterialEnable;
    controls.btnImportMesh.resize(table.sampleMesh != nullptr ? 2 : 0);
}

FieldContext CFittingWindow::Fields() {
    return {context_.ui, context_.options, context_.decimalMark, controls.focus,
            [this](const TextBox& box) { RevealBox(box); }};
}

/// A box of another type than the one that is built is shown on its own page, until the next build.
void CFittingWindow::RevealBox(const TextBox& box) {
    controls.boxToReveal = box.name;
    if (box.parameterIndex) {
        ShowPageOfBox(*this, *box.parameterIndex);
    }
}

void CFittingWindow::ChangeBox(std::size_t index, const std::string& text) {
    TextBox& box = controls.txtParameter.at(index);
    if (box.text == text) {
        return;
    }
    box.text = text;
    CheckFieldChange(Fields(), box);
    box.textColor = Red;
    edited = true;
}

void CFittingWindow::FocusBox(std::size_t index) {
    TextBox& box = controls.txtParameter.at(index);
    controls.focus = box.name;
    SelectFieldText(box);
}

void CFittingWindow::ChangeTextSize(const std::string& text) {
    controls.txtTextSize.text = text;
    CheckFieldChange(Fields(), controls.txtTextSize);
    controls.txtTextSize.textColor = Red;
}

void CFittingWindow::EditBox(std::size_t index, const std::string& text) {
    ChangeBox(index, WithoutPastedBlanks(controls.txtParameter.at(index).text, text));
}

void CFittingWindow::EditTextSize(const std::string& text) {
    ChangeTextSize(WithoutPastedBlanks(controls.txtTextSize.text, text));
}

/// The views of a window that is opened with sizes to be mended are not seen yet.
std::string CFittingWindow::Hint() const {
    if (display.DisplayWindow().ScaleWidth != 0) {
        return {};
    }
    const std::string first = Table().sampleMesh != nullptr ? "Import a mesh" : "Type the sizes";
    return first + ", then press the pattern button.";
}

void CFittingWindow::ClickView(int button) {
    if (RequireMesh()) {
        return;
    }
    AddPresetView(button, *views);
    UpdateFitting();
    if (hasModel) {
        BringIntoSight();
    } else {
        views->Remove(views->Count());
    }
}

void CFittingWindow::ClickPoint(std::size_t index) {
    if (!controls.btnPoint.at(index).enabled) {
        return;
    }
    StepFittingType(*this, index);
    if (Table().onTypeChanged != nullptr) {
        Table().onTypeChanged(dtype, settings);
    }
}

/// A type with one page only has the next type behind it.
void CFittingWindow::ClickMore(std::size_t page) {
    if (controls.pboxMore.empty()) {
        ClickPoint(0);
        return;
    }
    controls.Picture1.at(page).visible = false;
    controls.pboxMore.at(page).visible = true;
}

void CFittingWindow::ClickBack(std::size_t page) {
    if (controls.pboxMore.empty()) {
        ClickPoint(1);
        return;
    }
    controls.Picture1.at(page).visible = true;
    controls.pboxMore.at(page).visible = false;
}

void CFittingWindow::SelectPattern(std::size_t index) {
    controls.options.optPatternSelect.selected = index;
    miscellaneous = static_cast<std::int16_t>(index + 1);
}

void CFittingWindow::SelectOption(OptionGroup FittingOptions::*group, std::size_t index) {
    (controls.options.*group).selected = index;
}

void CFittingWindow::ClickPosition() {
    BranchAdditionalDialog dialog(branch);
    context_.ui.RunModal(dialog);
    if (dialog.lblStatus == "OK") {
        branch = dialog.Chosen();
    }
    Redraw();
}

void CFittingWindow::PressKeyInDrawing() {
    CancelMouseModes();
    UpdateFitting();
}

void CFittingWindow::PressEscape() {
    CancelMouseModes();
    if (removeDimensionMode) {
        EndRemoval();
    }
}

void CFittingWindow::Resize(const Place& scale) {
    controls.scale = scale;
    ShareWindowState(*this);
    ArrangeFittingWindow(*this);
}

/// The line is not composed anew: it tells of the settings that the drawing was made with.
void CFittingWindow::Activate() {
    context_.frame.statusText = statusString;
}

/// Clears every mouse mode but the removal of a dimension, which ends by itself.
void CFittingWindow::CancelMouseModes() {
    modes = MouseModes();
    controls.pboxGraphicWindow.rubberBand.reset();
    controls.pboxGraphicWindow.toolTip.clear();
}

Outcome CFittingWindow::CloseForm() {
    if (ConfirmSave(*this)) {
        return Refused;
    }
    context_.patternSettingsDialog = PatternSettingsDialog();
    closed = true;
    return Passed;
}

Outcome CFittingWindow::FillFromFile(const std::string& path) {
    views = std::make_shared<CViewList>();
    hasModel = false;  // no view, no model: there is nothing to save until the next build
    try {
        const CKvtFile file = LoadFitting(*this, path);
        comment1 = file.Comment1;
        comment2 = file.Comment2;
        ShowLoadNotes(context_, file);
        return Passed;
    } catch (const std::exception& error) {
        ShowLoadError(context_, path, error);
        return Refused;
    }
}

/// A window that could not be filled and drawn stays a new one, with what was read: under the file's name its
/// next save would replace a good file by half of it. Sizes that a check refuses have been read in full.
Outcome CFittingWindow::LoadFile(const std::string& path) {
    const std::string newCaption = controls.caption;
    if (FillFromFile(path)) {
        return Refused;
    }
    try {
        Rebuild();
        if (AddViewOfExtents() == Passed) {
            Rebuild();
        }
        CountAsSaved(*this);
        return Passed;
    } catch (const WorkCancelled&) {
        hasModel = false;
        controls.caption = newCaption;
        return Refused;
    } catch (const std::exception& error) {
        hasModel = false;
        controls.caption = newCaption;
        ShowLoadError(context_, path, error);
        return Refused;
    }
}

/// The first view is one of the model, which asks least of the user.
Outcome CFittingWindow::RequireBuild() {
    if (views->Count() == 0) {
        ClickView(0);
    } else {
        UpdateFitting();
    }
    return RefusedIf(!hasModel);
}

Outcome CFittingWindow::SaveFile(const std::string& path) {
    return RefusedIf(RequireModel() || UpdateUnlessCancelled() || SaveFitting(*this, path));
}

Outcome CFittingWindow::WriteTable(const std::string& path) {
    if (RequireModel() || RequirePatternView(context_.ui, context_.options, *views)) {
        return Refused;
    }
    try {
        display.PrintCoordinateTable(context_.files, path);
        return Passed;
    } catch (const std::exception& error) {
        ShowPlain(context_.ui, "Error in COptions:WriteTableFile", ReasonOf(error));
        return Refused;
    }
}

Outcome CFittingWindow::Export(const std::string& path, ExportMode mode) {
    return RefusedIf(RequireModel() || ExportFitting(*this, path, mode));
}

}  // namespace korvet
