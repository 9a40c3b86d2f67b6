// The sketch of a segmented bend of any section: it is seen level, in its own plane, turning to the left. The
// first piece stands on the right, with the square end, List2, at the bottom; the square end of the last
// piece is List1 of the last surface. The straight lengths end where the centre line's arc begins, square
// beside the bend's centre.
#pragma once

#include <array>

#include "form/sketch_entry.h"

namespace korvet::bend {

inline constexpr std::array<SketchView, 1> Views = {{{.turn = 0, .tilt = 0}}};

/// The middle of the square end of the last piece, or a point of its axis before it.
constexpr SketchPoint EndOf(int surface, double dx = 0, double dz = 0) {
    return {.list = 1, .spot = Spot::Centre, .dx = dx, .dz = dz, .surface = surface};
}

/// The middle of the square end of the first piece, or the point of its axis `up` above it.
constexpr SketchPoint Start(double up = 0) {
    return SpotOf(2, Spot::Centre, 0, 0, up);
}

constexpr SketchPoint Centre(double bendRadius) {
    return AtXZ(-bendRadius, 0);
}

/// The bend radius, below the bend whose first straight length is length1.
constexpr SketchDimension BendRadiusSize(double bendRadius, double length1) {
    return LinearSize(Side::Below, Centre(bendRadius), Start(length1));
}

/// The bend angle, to the end of the centre line's arc.
constexpr SketchDimension BendAngleSize(double bendRadius, const SketchPoint& arcEnd) {
    return AngleSize(Side::Left, Centre(bendRadius), OnAxis(0), arcEnd, 0.5);
}

/// The straight length of the first piece.
constexpr SketchDimension FirstLengthSize(double length1) {
    return LinearSize(Side::Right, Start(), Start(length1));
}

inline constexpr SketchDimension PieceCount = CountNote(Side::Above);

/// Both ends of the centre line's arc, seen from the bend's centre.
constexpr std::array<SketchConstruction, 2> Lines(double bendRadius, const SketchPoint& arcEnd) {
    return {{CentreLine(Centre(bendRadius), OnAxis(0)), CentreLine(Centre(bendRadius), arcEnd)}};
}

}  // namespace korvet::bend
