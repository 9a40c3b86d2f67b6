// The sketch of a reducing breech of two pieces, which stands on the circle of the pipe, List2, about the
// origin. The piece on the right is surface 1, that on the left surface 2; the outlets are their List1.
#pragma once

#include <array>

#include "form/sketch_entry.h"

namespace korvet::two_piece {

/// Level from the front, and from above for outlets that slant: a little less than straight down, so that
/// walls are seen.
inline constexpr std::array<SketchView, 2> FrontAndPlan = {{{.turn = 0, .tilt = 0}, {.turn = 0, .tilt = 89}}};
inline constexpr std::array<SketchView, 1> Front = {FrontAndPlan[0]};
inline constexpr int Plan = 1;

inline constexpr SketchPoint PipeCentre = OnAxis(0);

constexpr SketchPoint OutletAt(int surface, Spot spot) {
    return OfSurface(surface, SpotOf(1, spot));
}

inline constexpr SketchPoint RightOutlet = OutletAt(1, Spot::Centre);
inline constexpr SketchPoint LeftOutlet = OutletAt(2, Spot::Centre);

/// The pipe's circle is that of both pieces: its left end is on the one, its right end on the other.
inline constexpr SketchDimension PipeDiameterSize =
    LinearSize(Side::Below, OfSurface(2, SpotOf(2, Spot::MinX)), OfSurface(1, SpotOf(2, Spot::MaxX)));

inline constexpr std::array<SketchConstruction, 2> Axes = {
    {CentreLine(PipeCentre, LeftOutlet), CentreLine(PipeCentre, RightOutlet)}};

}  // namespace korvet::two_piece
