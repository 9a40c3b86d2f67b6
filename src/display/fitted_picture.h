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

/// The scale that shows what lies in a box of the world on a surface of that size.
using ScaleFor = std::function<WorldWindow(const Bounds& content, PixelSize size)>;

/// The scale of a picture: the content fills it as far as the shape of both allows, with a margin about it.
WorldWindow WindowAbout(const Bounds& content, PixelSize size);

/// Leaves in the record the drawing at the scale that `scaleFor` gives for all of its lines and texts.
/// `points` is the box about what the drawing is made of, in world units: where the search for the scale
/// begins, since only a drawing tells how far its texts reach. The record is empty without points, or for a
/// surface without size. Throws what `draw` and `scaleFor` throw.
void DrawFitted(DrawingRecord& record, const std::optional<Bounds>& points, const DrawAtScale& draw,
                const ScaleFor& scaleFor);

}  // namespace korvet
