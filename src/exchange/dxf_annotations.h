// What stands around the pattern in a drawing file: lengths, dimensions, coordinates, the frame, the text
// block.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "core/rule_surf.h"
#include "exchange/dxf.h"
#include "exchange/dxf_stream.h"

namespace korvet {

/// The rectangle around a drawing: lower left, lower right, upper right, upper left, and lower left again,
/// all with z 0.
using DrawingFrame = std::array<C3DPoint, 5>;

/// The smallest rectangle with sides along x and y around List1 and List2 of all surfaces. List3 and laps do
/// not count. Nothing when no surface has both edges.
std::optional<DrawingFrame> BuildDXFFrame(const CRuleSurfs& surfaces);

/// Stations of a surface that have a point on both edges, which is the count of either list on a sound
/// surface; 0 when an edge is absent (has no more than one point).
std::size_t StationCount(const CRuleSurf& surface);

/// Writes what `dxf` asks for, in this order: dimensions, true lengths, diagonals, label, grid, frame.
/// Lengths in texts are in the user's unit, rounded to Decimals.
///
/// Dimensions end at the first one with an end that names no point. An end names none, too, when its point
/// number is above the count of List1 of surface 1, whichever list it means. True lengths, diagonals and grid
/// go by the rule stations of the lists; what joins the two edges goes up to the shorter one.
///
/// In the grid every rule station has its y at the nearer of the frame's left and right edge, level, and its
/// x at the nearer of bottom and top, upright, both measured from the frame's lower left corner; the texts
/// stand outside the frame. A leader of at most 1e-8 is left out, its text is not.
void WriteAnnotations(DxfStream& out, const CDXF& dxf);

}  // namespace korvet
