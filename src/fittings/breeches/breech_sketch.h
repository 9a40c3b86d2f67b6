// The sketch of a breech of equal pipes: seen level, in the plane of its axes. The first pipe comes up from
// below, and the free end of every one is its List2.
#pragma once

#include <array>

#include "form/sketch_entry.h"

namespace korvet::breech {

inline constexpr std::array<SketchView, 1> Views = {{{.turn = 0, .tilt = 0}}};

/// The middle of a pipe's free end.
constexpr SketchPoint EndOf(int pipe) {
    return OfSurface(pipe, MiddleOf(2));
}

inline constexpr SketchDimension DiameterOfFirst = DiameterSize(Side::Below, 2);

constexpr SketchDimension LengthOfFirst(double length) {
    return LinearSize(Side::Left, EndOf(1), OnAxis(length));
}

/// The angle to a pipe from the one before it, at the meeting point.
constexpr SketchDimension AngleTo(int pipe, Side side, double length) {
    return AngleSize(side, OnAxis(length), EndOf(pipe - 1), EndOf(pipe), 0.65);
}

/// The axes of all pipes.
template <std::size_t Pipes>
constexpr std::array<SketchConstruction, Pipes> Axes(double length) {
    std::array<SketchConstruction, Pipes> axes = {};
    for (std::size_t i = 0; i < Pipes; ++i) {
        axes.at(i) = CentreLine(OnAxis(length), EndOf(static_cast<int>(i) + 1));
    }
    return axes;
}

}  // namespace korvet::breech
