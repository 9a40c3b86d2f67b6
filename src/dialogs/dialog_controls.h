// What the settings dialogs have in common: boxes with a list, and controls made from their names.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "form/controls.h"

namespace korvet {

/// A box with a list to pick from. The text is what counts: it is picked, or typed where any text may stand.
struct ComboBox {
    TextBox edit;
    std::vector<std::string> list;
};

/// A text box under its control name.
inline TextBox NamedBox(const std::string& name) {
    TextBox box;
    box.name = name;
    return box;
}

/// A frame or label with its caption.
inline Control Captioned(const std::string& caption, const std::string& toolTip = {}) {
    Control control;
    control.caption = caption;
    control.toolTip = toolTip;
    return control;
}

/// Numbers of fold lines that every list of them offers.
inline constexpr std::array<const char*, 7> UsualSegs = {"12", "24", "36", "48", "72", "96", "144"};

/// A box for the number of fold lines: any text may stand in it.
inline ComboBox SegsBox(const std::string& name) {
    return {NamedBox(name), {UsualSegs.begin(), UsualSegs.end()}};
}

}  // namespace korvet
