// What a fitting window shows at its start and where its areas stand.
#pragma once

#include "window/fitting_window.h"

namespace korvet {

/// Gives a parameter page its standard rectangle, in twips, and hides it.
void PlaceParameterPage(Control& page);

/// The state of a window is that of the next one: it is stored for it. The first window of a run is
/// maximised.
void ShareWindowState(CFittingWindow& window);

/// Places drawing and panel of the window in its inner area; all in twips.
void ArrangeFittingWindow(CFittingWindow& window);

/// What all windows do when they are made: state, layout, captions, boxes, page and label of the type, status
/// line, and the commands of the frame that need a window.
void SetupFittingWindow(CFittingWindow& window);

/// Composes the status line of the window's settings anew and puts it into the frame.
void UpdateSettings(CFittingWindow& window);

}  // namespace korvet
