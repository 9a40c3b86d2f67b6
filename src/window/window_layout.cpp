#include "window/window_layout.h"

#include <algorithm>

#include "core/number_text.h"
#include "window/fitting_types.h"
#include "window/views.h"

namespace korvet {
namespace {

constexpr int PanelWidth = 3000;

/// The panel below the parameter page, and the frame of the pattern button below that.
void PlacePanels(CFittingWindow& window) {
    WindowModel& controls = window.controls;
    const WindowContext& context = window.Context();
    const Place& page = controls.Picture1.at(static_cast<std::size_t>(window.dtype)).place;
    controls.fraControls.caption = context.Message(ControlsCaption);
    controls.fraControls.place = {page.left, page.top + page.height + 50, page.width, 1850};
    const Place& panel = controls.fraControls.place;
    controls.fraControls2.caption = context.Message(PatternCaption);
    controls.fraControls2.place = {panel.left, panel.top + panel.height + 50, panel.width, 1000};
    controls.btnView[PatternButton].place = {controls.fraControls2.place.width - 550 - 100, 200, 550, 550};
    controls.lblTextSize.caption = "Text size: ";
    controls.lblTextSize.place = {100, 250, 0, 0};
}

void NameMeshButtons(WindowModel& controls) {
    if (!controls.btnImportMesh.empty()) {
        controls.btnImportMesh.at(MeshOfDxf).caption = "Import Mesh from DXF File...";
        controls.btnImportMesh.at(MeshOfCad).caption = "Import Mesh from AutoCAD...";
        controls.btnImportMesh.at(MeshOfCad).enabled = AutoCadVersion != 0;
    }
}

void NameControls(WindowModel& controls) {
    controls.btnPoint[0].toolTip = "Next item";
    controls.btnPoint[1].toolTip = "Previous Item";
    for (Control& button : controls.btnView) {
        button.toolTip = "View Model";
    }
    controls.btnRedraw.caption = "Redraw";
    controls.btnSettings.toolTip = "Pattern settings for this item";
    controls.btnClose.toolTip = "Close this pattern";
    controls.btnPosition.caption = "Additional Options";
    NameMeshButtons(controls);
    for (Control& button : controls.btnMore) {
        button.caption = "More";
    }
    for (Control& button : controls.btnBack) {
        button.caption = "Back";
    }
}

}  // namespace

void PlaceParameterPage(Control& page) {
    page.place = {165, 120, 2750, 2750};
    page.visible = false;
}

void ShareWindowState(CFittingWindow& window) {
    COptions& options = window.Context().options;
    WindowModel& controls = window.controls;
    if (options.WindowState == -1) {
        options.WindowState = MaximisedWindow;
        controls.state = MaximisedWindow;
    } else {
        options.WindowState = static_cast<std::int16_t>(controls.state);
    }
}

void ArrangeFittingWindow(CFittingWindow& window) {
    WindowModel& controls = window.controls;
    const Place& scale = controls.scale;
    // A frame narrower than the panel leaves no drawing area, never a negative one.
    controls.pboxGraphicWindow.place = {scale.left + PanelWidth, scale.top + 100,
                                        std::max(0, scale.width - 3300), std::max(0, scale.height - 150)};
    controls.pboxGraphicWindow.mousePointer = Cursor::Cross;
    controls.fraControls1.place = {scale.left, scale.top - 50, PanelWidth, 7000};
}

void SetupFittingWindow(CFittingWindow& window) {
    WindowModel& controls = window.controls;
    WindowContext& context = window.Context();
    // A new window opens as the last one stood, and the first one of a run maximised.
    if (context.options.WindowState == MaximisedWindow) {
        controls.state = MaximisedWindow;
    }
    controls.place = {0, controls.place.top, context.frame.inner.width, context.frame.inner.height};
    controls.scale = {0, 0, context.frame.inner.width, context.frame.inner.height};
    ShareWindowState(window);
    ArrangeFittingWindow(window);
    std::for_each(controls.Picture1.begin(), controls.Picture1.end(), PlaceParameterPage);
    std::for_each(controls.pboxMore.begin(), controls.pboxMore.end(), PlaceParameterPage);
    controls.txtTextSize.tabStop = false;
    NameControls(controls);
    controls.lblDtype.caption = TypeCaption(window.dtype);
    controls.Picture1.at(static_cast<std::size_t>(window.dtype)).visible = true;
    controls.pboxGraphicWindow.backColor = context.options.Colors.DisplayBackColor;
    PlacePanels(window);
    window.ChangeTextSize(NumberText(context.options.DisplayTextSize, context.decimalMark));
    EnableFittingCommands(context.frame);
    UpdateSettings(window);
    EnableTypeButtons(window);
}

void UpdateSettings(CFittingWindow& window) {
    WindowContext& context = window.Context();
    window.statusString = StatusString(window.settings, context.decimalMark);
    context.frame.statusText = window.statusString;
}

}  // namespace korvet
