#include "window/fitting_types.h"

#include <algorithm>

namespace korvet {
namespace {

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

}  // namespace

std::string TypeCaption(std::int16_t dtype) {
    return "Type " + std::to_string(dtype + 1);
}

void EnableTypeButtons(CFittingWindow& window) {
    const auto last = static_cast<std::int16_t>(window.controls.Picture1.size() - 1);
    EnableSteps(window.controls, window.dtype != last, window.dtype != 0);
}

void LockType(CFittingWindow& window) {
    EnableSteps(window.controls, false, false);
}

void ShowPage(WindowModel& controls, std::size_t index) {
    for (std::size_t i = 0; i < controls.Picture1.size(); ++i) {
        controls.Picture1[i].visible = controls.Picture1[i].enabled = i == index;
    }
    for (Control& page : controls.pboxMore) {
        page.visible = false;
    }
}

void ShowPageOfBox(CFittingWindow& window, int box) {
    const auto bearsIt = [box](const PageEntry& page) {
        return std::any_of(page.boxes.begin(), page.boxes.end(),
                           [box](const BoxEntry& entry) { return entry.index == box; });
    };
    const auto pages = window.Table().pages;
    const auto ofType = pages.begin() + window.dtype;
    const auto page = bearsIt(*ofType) ? ofType : std::find_if(pages.begin(), pages.end(), bearsIt);
    if (page != pages.end()) {
        ShowPage(window.controls, static_cast<std::size_t>(page - pages.begin()));
    }
}

void ReturnToPageOfType(CFittingWindow& window) {
    const auto ofType = static_cast<std::size_t>(window.dtype);
    for (std::size_t i = 0; i < window.controls.Picture1.size(); ++i) {
        if (i != ofType && window.controls.Picture1[i].visible) {
            ShowPage(window.controls, ofType);
        }
    }
}

void StepFittingType(CFittingWindow& window, std::size_t button) {
    WindowModel& controls = window.controls;
    std::int16_t& dtype = window.dtype;
    const auto last = static_cast<std::int16_t>(controls.Picture1.size() - 1);
    const bool next = button == 0 && dtype < last;
    const bool previous = button == 1 && dtype > 0;
    if (next || previous) {
        dtype = static_cast<std::int16_t>(next ? dtype + 1 : dtype - 1);
    }
    ShowPage(controls, static_cast<std::size_t>(dtype));
    controls.lblDtype.caption = TypeCaption(dtype);
    EnableTypeButtons(window);
}

}  // namespace korvet
