// A drawing on a picture that nobody can pan: nothing of it may lie beyond the edges.
#pragma once

#include <functional>
#include <optional>

#include "display/bounds.h"
#include "display/drawing_record.h"
#include "display/world_window.h"

namespace korvet {

/// Draws onto the record at the scale of the window.
using DrawAtScale = std::function<void(DrawingRecord& record, const WorldWindow& window)>;

/// Leaves in the record the drawing that fills its picture as far as the shape of both allows, with a margin
/// about all lines and texts. `points` is the box about what the drawing is made of, in world units: where
/// the search for the scale begins, since only a drawing tells how far its texts reach. The record is empty
/// without points, or for a picture without size. Throws what `draw` throws.
void DrawFitted(DrawingRecord& record, const std::optional<Bounds>& points, const DrawAtScale& draw);

}  // namespace korvet
