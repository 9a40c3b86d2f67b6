// The sketch of an elbow of any section: it is seen level, in its own plane. The first leg stands upright on
// its square end, List2; the square end of the second is List1 of the second surface.
#pragma once

#include <array>

#include "form/sketch_entry.h"

namespace korvet::elbow {

inline constexpr std::array<SketchView, 1> Views = {{{.turn = 0, .tilt = 0}}};

/// The middle of the square end of the first leg.
inline constexpr SketchPoint Start = MiddleOf(2);

/// The point where the centre lines meet, at the height of the first one.
constexpr SketchPoint Corner(double length1) {
    return OnAxis(length1);
}

/// A point of the square end of the second leg.
constexpr SketchPoint EndAt(Spot spot) {
    return OfSurface(2, SpotOf(1, spot));
}

/// The middle of that end.
inline constexpr SketchPoint End = EndAt(Spot::Centre);

constexpr std::array<SketchConstruction, 2> CentreLines(double length1) {
    return {{CentreLine(Start, Corner(length1)), CentreLine(Corner(length1), End)}};
}

}  // namespace korvet::elbow
