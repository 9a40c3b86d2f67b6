#include "window/armed_modes.h"

#include <array>
#include <string_view>

#include "core/number_text.h"
#include "window/fitting_window.h"
#include "window/views.h"

namespace korvet {
namespace {

struct ModePrompt {
    MouseMode mode;
    std::string_view first;
    std::string_view second = {};  ///< while the button is held; empty: the mode takes a click
};

constexpr std::array Prompts = {
    ModePrompt{MouseMode::RemoveDimension, "Click the dimension to be removed"},
    ModePrompt{MouseMode::Pan, "Press at a point of the drawing", "Release where the point is to go"},
    ModePrompt{MouseMode::ZoomWindow, "Press at a corner of the part to be seen",
               "Release at the other corner"},
    ModePrompt{MouseMode::Measure, "Click the first point of the distance",
               "Release at the second point of the distance"},
    ModePrompt{MouseMode::Dimension, "Click the first point of the dimension",
               "Release at the second point of the dimension"},
    ModePrompt{MouseMode::Rotate, "Click the first point of the line to be turned",
               "Release at the second point of the line to be turned"},
    ModePrompt{MouseMode::Label, "Click where the label is to stand"},
    ModePrompt{MouseMode::SelectFrames, "Click a print frame to choose it or to take it back"},
};

}  // namespace

bool IsArmed(const CFittingWindow& window, MouseMode mode) {
    const MouseModes& modes = window.modes;
    switch (mode) {
        case MouseMode::Pan:
            return modes.panMode;
        case MouseMode::ZoomWindow:
            return modes.zoomWindowMode;
        case MouseMode::Measure:
            return modes.measureMode;
        case MouseMode::Dimension:
            return modes.dimensionMode > 0;
        case MouseMode::RemoveDimension:
            return window.removeDimensionMode;
        case MouseMode::Label:
            return modes.labelMode;
        case MouseMode::SelectFrames:
            return modes.selectFramesMode;
        case MouseMode::Rotate:
            return modes.rotateMode;
    }
    return false;
}

std::string Prompt(const CFittingWindow& window) {
    std::string text;
    for (const ModePrompt& prompt : Prompts) {
        if (IsArmed(window, prompt.mode)) {
            const bool held = window.modes.mouseDown && !prompt.second.empty();
            text += (text.empty() ? "" : ". ") + std::string(held ? prompt.second : prompt.first);
        }
    }
    return text;
}

std::string PointerText(const CFittingWindow& window) {
    const std::optional<WorldPoint>& pointer = window.pointer;
    if (!pointer || !window.hasModel || !InPatternView(*window.views)) {
        return {};
    }
    const WindowContext& context = window.Context();
    const auto number = [&](float value) {
        return RoundedText(value, context.options.Decimals, context.decimalMark);
    };
    return "X = " + number(pointer->x) + "   Y = " + number(pointer->y);
}

}  // namespace korvet
