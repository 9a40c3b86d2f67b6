// The outline of a shape's picture, as far as dimension lines and texts have to keep clear of it.
#pragma once

#include <vector>

#include "sketch/solid.h"

namespace korvet {

/// The picture in level strips from the bottom to the top, each as wide as the shape is there.
std::vector<SolidBounds> StripsOf(const SolidPicture& picture);

/// Where the level (or upright) line through a point last leaves the shape on the way to `side`; the point
/// itself when it does not lie within the shape.
SketchXY LeavesShape(const SolidPicture& picture, SketchXY from, Side side);

}  // namespace korvet
