// What a fabricator marks out by hand: true lengths, diagonals, grid, coordinates, frame and dimensions.
#pragma once

#include "core/dimensions.h"
#include "core/points.h"
#include "core/rule_surf.h"
#include "display/drawing.h"

namespace korvet {

// All of these show rule stations only. Of edges with unequal numbers of them, lengths and diagonals go up to
// the shorter one.

/// The drawn surfaces with the frame about them (BuildExtentFrame), which is empty when there is no point.
struct AnnotatedPattern {
    const CRuleSurfs& surfaces;
    const C3DPoints& extentFrame;
};

/// Each dimension's line, and its length on the middle of it. A dimension without two ends stops the drawing
/// of those after it.
void DisplayDimensions(const Drawing& drawing, const AnnotatedPattern& pattern,
                       const CDimensions& dimensions);

/// Lengths as texts: the segments of both edges and the rulings, then the segments of List3.
void DisplayTrueLengths(const Drawing& drawing, const CRuleSurfs& surfaces);

/// From each station of List1 to the next one of List2, with the lengths.
void DisplayDiagonals(const Drawing& drawing, const CRuleSurfs& surfaces);

/// The frame without texts, then from every station a leader to the nearer side and to the nearer of bottom
/// and top, with the distance from the frame's lower left corner. From the middle they go left and down.
void DisplayDimensionGrid(const Drawing& drawing, const AnnotatedPattern& pattern);

/// "A1", "B1", "C1" at the stations of List1, List2 and List3; with `numbered` the surface's number stands
/// before.
void DisplayCoordinates(const Drawing& drawing, const CRuleSurfs& surfaces, bool numbered);

/// The frame; with text the lengths of its upper and left sides, and the area. Nothing for an empty frame.
void DrawExtentFrame(const Drawing& drawing, const C3DPoints& extentFrame, bool withText);

}  // namespace korvet
