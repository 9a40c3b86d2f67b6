// The commands that the main frame forwards to the active fitting window.
#include "core/constants.h"
#include "core/reason.h"
#include "dialogs/small_dialogs.h"
#include "window/fitting_window.h"
#include "window/views.h"

namespace korvet {

/// What most commands ask for first.
Outcome CFittingWindow::RequireModel() {
    if (hasModel) {
        return Passed;
    }
    ShowUserError(context_.ui, context_.Message(NotAtThisTime));
    return Refused;
}

void CFittingWindow::SetCategory(const std::string& name) {
    category = name;
}

void CFittingWindow::UpdateOptions() {
    if (hasModel) {
        UpdateFitting();
    }
}

void CFittingWindow::Redraw() {
    UpdateFitting();
}

void CFittingWindow::Settings() {
    settings.NoOfSides = noOfSides;
    (void)LoadDialog(context_.patternSettingsDialog, settings, context_.ui, context_.options,
                     context_.decimalMark);  // drawn anew all the same
    UpdateFitting();
}

void CFittingWindow::DimensionOptionsDialog() {
    if (RequireModel() || RequirePatternView(context_.ui, context_.options, *views)) {
        return;
    }
    korvet::DimensionOptionsDialog dialog;
    using Dialog = korvet::DimensionOptionsDialog;
    const std::array<std::pair<std::size_t, bool*>, 5> requests = {
        {{Dialog::TrueLengths, &display.TrueLengthsRequested},
         {Dialog::Diagonals, &display.DiagonalsRequested},
         {Dialog::CoordGrid, &display.CoordGridRequested},
         {Dialog::CoordTable, &display.CoordTableRequested},
         {Dialog::FrameAndArea, &display.FrameRequested}}};
    for (const auto& [index, request] : requests) {
        dialog.Click(index, *request);
    }
    dialog.chkDimensions[Dialog::Diagonals].enabled = diagonalsAllowed;
    context_.ui.RunModal(dialog);
    if (dialog.lblStatus == "OK") {
        for (const auto& [index, request] : requests) {
            *request = dialog.chkDimensions.at(index).checked;
        }
    }
    UpdateFitting();
}

void CFittingWindow::RotatePattern() {
    CancelMouseModes();
    if (RequireModel()) {
        return;
    }
    if (!InPatternView(*views)) {
        ShowUserError(context_.ui, context_.Message(PatternViewOnly));
        return;
    }
    modes.rotateMode = true;
    controls.pboxGraphicWindow.toolTip = context_.Message(RotationReferencePoints);
}

void CFittingWindow::PlaceLabel() {
    CancelMouseModes();
    if (RequireModel()) {
        return;
    }
    modes.labelMode = true;
    LabelDialog dialog;
    dialog.Load(*labels, display.LabelPoint.has_value(), labelSeen);
    context_.ui.RunModal(dialog);
    if (dialog.lblStatus != "OK") {
        modes.labelMode = false;
        return;
    }
    labelSeen = true;
    comment1 = dialog.txtLabelItem[0].text;
    comment2 = dialog.txtLabelItem[1].text;
    labels->Item(1).LabelString = comment1;
    labels->Item(2).LabelString = comment2;
    if (dialog.chkDisplayLabel.checked) {
        controls.pboxGraphicWindow.toolTip = context_.Message(PositionLabel);
    } else {
        display.LabelPoint.reset();
        modes.labelMode = false;
        UpdateFitting();
    }
}

void CFittingWindow::ZoomExtents() {
    try {
        if (AddViewOfExtents()) {
            return;
        }
    } catch (const std::exception& error) {
        ShowPlain(context_.ui, context_.Message(NoExtents), ReasonOf(error));
        return;
    }
    UpdateFitting();
}

/// Adds the view that the extents fill. Refuses with message 85 when nothing is drawn. Throws ArithmeticError
/// when they are too small or too large for a view.
Outcome CFittingWindow::AddViewOfExtents() {
    if (!hasModel) {
        ShowPlain(context_.ui, context_.Message(NoExtents));
        return Refused;
    }
    display.TextSize = DrawnTextSize();  // the picture to come sits by this much off the centre
    display.ZoomExtents();
    return Passed;
}

void CFittingWindow::ZoomPrevious() {
    PreviousView(context_.ui, *views);
    UpdateFitting();
}

void CFittingWindow::ZoomX(double factor) {
    CancelMouseModes();
    if (hasModel) {
        if (ZoomView(context_.ui, context_.options, factor, *views) == Passed) {
            keepsInSight = false;
        }
        UpdateFitting();
    }
}

void CFittingWindow::ZoomWindow() {
    CancelMouseModes();
    if (hasModel) {
        modes.zoomWindowMode = BeginZoomWindow(context_.ui, context_.options, *views) == Passed;
    }
}

/// Panning is armed with or without a model: a drag then works as soon as there is a view.
void CFittingWindow::PanView() {
    CancelMouseModes();
    modes.panMode = true;
    controls.pboxGraphicWindow.toolTip = context_.Message(FirstAndSecondPoint);
}

void CFittingWindow::MeasureDistance() {
    CancelMouseModes();
    if (RequireModel()) {
        return;
    }
    modes.measureMode = true;
    controls.pboxGraphicWindow.toolTip = context_.Message(FirstAndSecondPoint);
}

void CFittingWindow::AddDimension(int kind) {
    CancelMouseModes();
    if (RequireModel()) {
        return;
    }
    if (RequirePatternView(context_.ui, context_.options, *views) == Passed) {
        modes.dimensionMode = kind;
    }
    controls.pboxGraphicWindow.toolTip = context_.Message(FirstAndSecondPoint);
}

void CFittingWindow::RemoveDimension() {
    CancelMouseModes();
    controls.pboxGraphicWindow.mousePointer = Cursor::Arrow;
    controls.pboxGraphicWindow.toolTip = context_.Message(SelectDimensionForRemoval);
    removeDimensionMode = true;
}

void CFittingWindow::RemoveAllDimensions() {
    CancelMouseModes();
    dimensions = std::make_shared<CDimensions>();
    UpdateFitting();
}

}  // namespace korvet
