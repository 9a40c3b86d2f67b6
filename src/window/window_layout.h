// What a fitting window shows at its start and where its areas stand.
#pragma once

#include "window/fitting_window.h"

namespace korvet {

/// Gives a parameter page its standard rectangle and hides it.
void PlaceParameterPage(Control& page);

/// Lays the window's areas out in its inner size, twips, and remembers its state for the next window.
void ArrangeFittingWindow(CFittingWindow& window);

/// The common part of a window's load: layout, captions, boxes, type label, status line.
void SetupFittingWindow(CFittingWindow& window);

/// Composes the status line of the window's settings and puts it into the frame.
void UpdateSettings(CFittingWindow& window);

}  // namespace korvet
