#include "shell/form_services.h"

#include <algorithm>

#include "core/number_text.h"
#include "shell/new_fitting.h"
#include "shell/views.h"

namespace korvet {
namespace {

constexpr int PanelWidth = 3000;

std::string TypeCaption(std::int16_t dtype) {
    return "Type " + std::to_string(dtype + 1);
}

/// The panel below the parameter page, and the frame of the pattern button below that.
void PlacePanels(CFittingWindow& window) {
    WindowModel& controls = window.controls;
    const ShellContext& context = window.Context();
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

/// Every button that leads to the next or the previous type.
void EnableSteps(WindowModel& controls, bool next, bool previous) {
    controls.btnPoint[0].enabled = next;
    controls.btnPoint[1].enabled = previous;
    for (Control& button : controls.btnMore) {
        button.enabled = next;
    }
    for (Control& button : controls.btnBack) {
        button.enabled = previous;
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

void ArrangeFittingWindow(CFittingWindow& window) {
    COptions& options = window.Context().options;
    WindowModel& controls = window.controls;
    if (options.WindowState == -1) {
        options.WindowState = MaximisedWindow;
        controls.state = MaximisedWindow;
    } else {
        options.WindowState = static_cast<std::int16_t>(controls.state);
    }
    const Place& scale = controls.scale;
    // A frame narrower than the panel leaves no drawing area, never a negative one.
    controls.pboxGraphicWindow.place = {scale.left + PanelWidth, scale.top + 100,
                                        std::max(0, scale.width - 3300), std::max(0, scale.height - 150)};
    controls.pboxGraphicWindow.mousePointer = Cursor::Cross;
    controls.fraControls1.place = {scale.left, scale.top - 50, PanelWidth, 7000};
}

void SetupFittingWindow(CFittingWindow& window) {
    WindowModel& controls = window.controls;
    ShellContext& context = window.Context();
    // A new window opens as the last one stood, and the first one of a run maximised.
    if (context.options.WindowState == MaximisedWindow) {
        controls.state = MaximisedWindow;
    }
    controls.place = {0, controls.place.top, context.frame.inner.width, context.frame.inner.height};
    controls.scale = {0, 0, context.frame.inner.width, context.frame.inner.height};
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
    EnableTypeButtons(window, window.dtype);
}

void EnableTypeButtons(CFittingWindow& window, std::int16_t dtype) {
    const auto last = static_cast<std::int16_t>(window.controls.Picture1.size() - 1);
    EnableSteps(window.controls, dtype != last, dtype != 0);
}

void LockType(CFittingWindow& window) {
    EnableSteps(window.controls, false, false);
}

std::int16_t StepFittingType(CFittingWindow& window, std::size_t button, std::int16_t dtype) {
    WindowModel& controls = window.controls;
    for (Control& page : controls.pboxMore) {
        page.visible = false;
    }
    const auto last = static_cast<std::int16_t>(controls.Picture1.size() - 1);
    const bool next = button == 0 && dtype < last;
    const bool previous = button == 1 && dtype > 0;
    if (next || previous) {
        Control& left = controls.Picture1[static_cast<std::size_t>(dtype)];
        left.visible = left.enabled = false;
        dtype = static_cast<std::int16_t>(next ? dtype + 1 : dtype - 1);
        Control& entered = controls.Picture1[static_cast<std::size_t>(dtype)];
        entered.visible = entered.enabled = true;
    }
    controls.lblDtype.caption = TypeCaption(dtype);
    EnableTypeButtons(window, dtype);
    return dtype;
}

std::optional<std::string> ChooseSaveName(UserInterface& ui) {
    return ui.ChooseFile({"SaveAs", std::string(ProductTitle) + " Files (*.Kvt)|*.Kvt", true});
}

int ConfirmSave(CFittingWindow& window) {
    if (!window.hasModel) {
        return 0;
    }
    ShellContext& context = window.Context();
    const std::string& caption = window.controls.caption;
    const Answer answer = context.ui.Show({context.Message(SaveParameterFile) + " for " + caption,
                                           YesNoCancelBox,
                                           std::string(ProductTitle),
                                           {},
                                           std::nullopt});
    if (answer != Answer::Yes) {
        return static_cast<int>(answer);
    }
    const std::optional<std::string> path = HasNoFile(window) ? ChooseSaveName(context.ui) : caption;
    // What was not written must not be thrown away with its window.
    return static_cast<int>(path && window.SaveFile(*path) ? Answer::Yes : Answer::Cancel);
}

void UpdateSettings(CFittingWindow& window) {
    ShellContext& context = window.Context();
    window.statusString = StatusString(window.settings, context.decimalMark);
    context.frame.statusText = window.statusString;
}

}  // namespace korvet
