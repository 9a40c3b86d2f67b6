// The controls of windows and dialogs as plain data. The desktop's widgets are a projection of these; the
// batch program and the tests use them with no screen.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/color.h"

namespace korvet {

/// Layouts, and the stored place of the frame, count in twips. This many of them are a pixel of a screen with
/// 96 to the inch.
inline constexpr int TwipsPerPixel = 10;

/// A rectangle within its window or screen, in twips.
struct Place {
    int left = 0;  ///< from the left edge of what it stands in
    int top = 0;   ///< from its upper edge
    int width = 0;
    int height = 0;
    bool operator==(const Place&) const = default;
};

/// A box of one line of text. What it holds stays text, exactly as typed, until a check or a build reads it.
struct TextBox {
    std::string name = {};           ///< control name, "txtParameter_3" for an item of an array
    std::string text = "0";          ///< UTF-8
    Color textColor = Black;         ///< red from an edit until the next good build
    bool enabled = true;             ///< can be typed into
    bool tabStop = true;             ///< the tabulator comes by
    std::size_t selectionStart = 0;  ///< of the selected text, in bytes from 0
    std::size_t selectionLength = 0;
    std::optional<int> parameterIndex = {};  ///< index in txtParameter, for a parameter box
};

/// An array of option buttons of which at most one is on.
struct OptionGroup {
    std::vector<std::string> captions = {};    ///< one for each button
    std::optional<std::size_t> selected = {};  ///< index of the button that is on
    bool enabled = true;                       ///< can be clicked

    /// Whether button `index`, from 0, is on.
    [[nodiscard]] bool IsOn(std::size_t index) const { return selected == index; }
};

/// The groups of option buttons of a fitting window; one without captions is not there.
struct FittingOptions {
    OptionGroup optTopAngle;       ///< the axis that the top is turned about: 0 X, 1 Y
    OptionGroup optBaseAngle;      ///< the same of the base
    OptionGroup optPatternSelect;  ///< the pattern that is drawn; Miscellaneous is its index plus 1
    OptionGroup optFlushSide;      ///< which sides of a joint align
};

/// A box to tick, with its caption.
struct CheckBox {
    std::string caption = {};
    bool checked = false;
    bool enabled = true;  ///< can be clicked
};

/// A button, a frame, a picture or a label.
struct Control {
    std::string caption = {};
    std::string toolTip = {};
    bool enabled = true;  ///< can be used, with all that stands on it
    bool visible = true;
    Place place = {};  ///< in what it stands on
};

}  // namespace korvet
