// The parts of the sketches of a pipe on a cone. Surface 1 is the cone about z, List1 its upper end and List2
// the lower one before it is turned over; surface 2 is the pipe, List1 its free end.
#pragma once

#include "form/sketch_entry.h"

namespace korvet::pipe_on_cone {

/// A point of the pipe's free end, moved.
constexpr SketchPoint EndOfPipe(Spot spot, double dx = 0, double dy = 0, double dz = 0) {
    return OfSurface(2, SpotOf(1, spot, dx, dy, dz));
}

/// The height of the cone, beside it.
inline constexpr SketchDimension ConeHeightSize = LinearSize(Side::Left, MiddleOf(2), MiddleOf(1));
inline constexpr SketchConstruction ConeAxis = CentreLine(MiddleOf(2), MiddleOf(1));

/// The front, and from above for the distance of the pipe from the cone's axis; a little less than straight
/// down, so that the wall is seen.
inline constexpr SketchView Views[] = {{}, {.turn = 0, .tilt = 89}};
inline constexpr int Plan = 1;

/// The diameter of the upper end on the plan.
inline constexpr SketchDimension TopSize =
    LinearSize(Side::Left, SpotOf(1, Spot::MinY), SpotOf(1, Spot::MaxY), Plan);

/// The offset of a pipe on the near side of the cone's axis, y below 0.
constexpr SketchDimension OffsetSize(double offset) {
    return LinearSize(Side::Right, EndOfPipe(Spot::Centre), EndOfPipe(Spot::Centre, 0, offset), Plan);
}

}  // namespace korvet::pipe_on_cone
