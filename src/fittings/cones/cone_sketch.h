// The parts of the sketches of cones. The top is List1, the bottom List2, about the axis at x = 0.
#pragma once

#include <array>

#include "form/sketch_entry.h"

namespace korvet::cone {

/// The walls drawn on to the apex, and the axis.
constexpr std::array<SketchConstruction, 3> LinesToApex(const SketchPoint& apex) {
    return {{ThinLine(SpotOf(1, Spot::MinX), apex), ThinLine(SpotOf(1, Spot::MaxX), apex),
             CentreLine(OnAxis(0), apex)}};
}

}  // namespace korvet::cone
