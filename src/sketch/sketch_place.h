// Where one dimension and its box go on a drawing that has others on it already.
#pragma once

#include "sketch/sketch_board.h"

namespace korvet {

/// A dimension in pixels, y downward, with the sizes of its texts.
struct SketchTask {
    std::size_t owner = 0;  ///< its number in the page
    DimensionKind kind = DimensionKind::Note;
    Side side = Side::Below;
    SketchXY a;
    SketchXY b;
    SketchXY vertex;
    bool aDrawn = false;
    bool bDrawn = false;
    double reach = 1;
    SketchXY box;
    SketchXY label;
    double gap = 6;
    double arrow = 8;
};

/// The unit vector to a side of the page.
SketchXY Outward(Side side);

/// The extension lines that a Linear dimension needs wherever it stands, as long as `length`.
std::vector<SketchLine> FixedLines(const SketchTask& task, double length);

/// The cheapest way to draw the dimension on the board; nothing when there is no place left in its room.
std::optional<SketchPlacement> PlaceDimension(const SketchTask& task, const SketchBoard& board);

}  // namespace korvet
