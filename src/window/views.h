// The commands that manage the view history of a window.
#pragma once

#include <optional>

#include "display/view_point.h"
#include "form/message_boxes.h"
#include "form/options.h"
#include "form/outcome.h"

namespace korvet {

/// Number of the pattern button among the view buttons; the others show the model.
inline constexpr int PatternButton = 9;

/// Zoom In and a turn of the wheel divide by it what the picture spans, Zoom Out multiplies.
inline constexpr double ZoomStep = 0.9;

/// Whether a zoom, as single precision, lies in 0.0001 to 10000, where it can be changed step by step.
bool IsWithinZoomLimits(double zoomFactor);

/// Appends the view of button 0 to 9: a copy of the last view (pan and zoom kept), or the default view when
/// there is none, with the button's angles. Throws ListError for another number.
void AddPresetView(int button, CViewList& views);

/// The button whose view the last one is, in pan and zoom as it may be; nothing for another view or none.
/// Angles of a file, which has fewer digits and whole turns of its own, are told apart by a millionth of a
/// degree.
std::optional<int> ShownButton(const CViewList& views);

/// A copy of the last view. Throws ListError when there is none.
CViewPoint CopyCurrentView(const CViewList& views);

/// Takes the last view away; the box "No Previous View" when it is the only one or there is none.
void PreviousView(MessageBoxes& boxes, CViewList& views);

/// Appends a copy of the last view with its zoom multiplied by `factor`. Refuses with message 81 when the
/// last zoom lies outside 0.0001 to 10000 as single precision.
Outcome ZoomView(MessageBoxes& boxes, const COptions& options, double factor, CViewList& views);

/// Lets a zoom window be drawn on the last view, by the same limits and message as ZoomView.
Outcome BeginZoomWindow(MessageBoxes& boxes, const COptions& options, const CViewList& views);

/// Whether there is a view and the last one shows the pattern.
bool InPatternView(const CViewList& views);

/// Refuses any other view than one of the pattern, by a plain box with message 71.
Outcome RequirePatternView(MessageBoxes& boxes, const COptions& options, const CViewList& views);

}  // namespace korvet
