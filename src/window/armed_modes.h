// The mouse modes of a fitting window as its user sees them: which is armed, what it asks him to do, and
// where the pointer is.
#pragma once

#include <cstdint>
#include <string>

namespace korvet {

class CFittingWindow;

enum class MouseMode : std::uint8_t {
    Pan,
    ZoomWindow,
    Measure,
    Dimension,
    RemoveDimension,
    Label,
    SelectFrames,
    Rotate
};

/// Whether that mode is armed. The removal of a dimension can be so together with another one.
bool IsArmed(const CFittingWindow& window, MouseMode mode);

/// What the mouse is to do next, for each mode that is armed, in a sentence each without its full stop; empty
/// when none is.
std::string Prompt(const CFittingWindow& window);

/// Where the pointer is on the pattern, in its unit, at the decimals of the options: "X = 12.5   Y = -3".
/// Empty when it is not over a drawn pattern.
std::string PointerText(const CFittingWindow& window);

}  // namespace korvet
