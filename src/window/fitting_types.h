// The types of a fitting window: one is shown, and its neighbours can be stepped to until the first drawing.
#pragma once

#include "window/fitting_window.h"

namespace korvet {

/// "Type " and the number of a type, counted from 1.
std::string TypeCaption(std::int16_t dtype);

/// Shows the parameter page of that index, from 0, and hides the others.
void ShowPage(WindowModel& controls, std::size_t index);

/// Shows the page with the parameter box of that index: the one of the type, or the first that bears it.
void ShowPageOfBox(CFittingWindow& window, int box);

/// Shows the page of the type again where that of a box of another type is shown.
void ReturnToPageOfType(CFittingWindow& window);

/// Steps to the next (button 0) or previous (button 1) type, where there is one, and returns the new type.
std::int16_t StepFittingType(CFittingWindow& window, std::size_t button, std::int16_t dtype);

/// Enables the type buttons that have a type to go to from `dtype`.
void EnableTypeButtons(CFittingWindow& window, std::int16_t dtype);

/// Disables them for good: the type of a fitting is fixed by its first drawing.
void LockType(CFittingWindow& window);

}  // namespace korvet
