// The types of a fitting window and their parameter pages: one is shown, and its neighbours can be stepped to
// until the first drawing. Page k is that of type k; the user counts both from 1.
#pragma once

#include "window/fitting_window.h"

namespace korvet {

/// What the label of the types says of a type, from 0: "Type " and its number, counted from 1.
std::string TypeCaption(std::int16_t dtype);

/// Shows the parameter page of that index, from 0, and hides the others.
void ShowPage(WindowModel& controls, std::size_t index);

/// Shows the page with the parameter box of that index: the one of the type, or the first that bears it.
void ShowPageOfBox(CFittingWindow& window, int box);

/// Shows the page of the type again where that of a box of another type is shown.
void ReturnToPageOfType(CFittingWindow& window);

/// Steps the window to its next (button 0) or previous (button 1) type, where there is one, and shows the
/// page of the type that it then has.
void StepFittingType(CFittingWindow& window, std::size_t button);

/// Enables the type buttons that have a type to go to from that of the window.
void EnableTypeButtons(CFittingWindow& window);

/// Disables them for good: the type of a fitting is fixed by its first drawing.
void LockType(CFittingWindow& window);

}  // namespace korvet
