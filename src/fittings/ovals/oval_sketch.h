// The sketch of oval pipes: seen from the front the pipe shows its diameter, and from the side, the second
// view, its length.
#pragma once

#include "form/sketch_entry.h"

namespace korvet::oval {

inline constexpr SketchView Views[] = {{.turn = 0, .tilt = 0}, {.turn = 90, .tilt = 0}};

/// Both sizes of the section, on the lower edge of the first piece.
inline constexpr SketchDimension DiameterOfSection = DiameterSize(Side::Below, 2);
inline constexpr SketchDimension LengthOfSection =
    LinearSize(Side::Below, SpotOf(2, Spot::MinY), SpotOf(2, Spot::MaxY), 1);

}  // namespace korvet::oval
