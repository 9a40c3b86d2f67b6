// The controls of windows and dialogs as plain data. The desktop's widgets are a projection of these; the
// batch program and the tests use them with no screen.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/color.h"

namespace korvet {

/// A place on a window, in twips (a 1440th of an inch).
struct Place {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool operator==(const Place&) const = default;
};

struct TextBox {
    std::string name = {};  ///< control name, "txtParameter_3" for an item of an array
    std::string text = "0";
    Color textColor = Black;  ///< red from an edit until the next good build
    bool enabled = true;
    bool tabStop = true;
    std::size_t selectionStart = 0;
    std::size_t selectionLength = 0;
    std::optional<int> parameterIndex = {};  ///< index in txtParameter, for a parameter box
};

/// An array of option buttons of which at most one is on.
struct OptionGroup {
    std::vector<std::string> captions = {};
    std::optional<std::size_t> selected = {};
    bool enabled = true;

    /// Whether button `index` is on.
    [[nodiscard]] bool IsOn(std::size_t index) const { return selected == index; }
};

/// The groups of option buttons of a fitting window; one without captions is not there.
struct FittingOptions {
    OptionGroup optTopAngle;
    OptionGroup optBaseAngle;
    OptionGroup optPatternSelect;
    OptionGroup optFlushSide;
};

struct CheckBox {
    std::string caption = {};
    bool checked = false;
    bool enabled = true;
};

/// A button, a frame, a picture or a label.
struct Control {
    std::string caption = {};
    std::string toolTip = {};
    bool enabled = true;
    bool visible = true;
    Place place = {};
};

}  // namespace korvet
