// A drawing taken apart at every end of a line, so that what lies on one another can be told by its ends.
#pragma once

#include "exchange/cut_drawing.h"

namespace korvet {

/// Ends that are this near to each other are one: coordinates in a file have six places.
inline constexpr double SamePlace = 5e-6;

/// A stretch of a curve between two ends of curves, be they its own or others that lie on it.
struct CutStretch {
    double from = 0;        ///< the part of its curve's length at which it begins
    double to = 1;          ///< and at which it ends
    std::size_t curve = 0;  ///< number of its curve, from 0
    std::size_t a = 0;      ///< the node at its start
    std::size_t b = 0;      ///< the node at its end
    std::size_t same = 0;   ///< number of the first stretch that lies on this one: its own when there is none

    /// Whether the stretch is all of its curve.
    [[nodiscard]] bool IsWhole() const { return from == 0 && to == 1; }
};

/// A drawing as nodes and the stretches between them.
struct CutNodes {
    std::vector<C3DPoint> places;
    std::vector<CutStretch> stretches;  ///< those of a curve one after the other, in the order of the curves
};

/// What a stretch of one of the curves looks like.
CutCurve ShapeOf(const PieceCurves& curves, const CutStretch& stretch);

/// Takes curves apart. One that is no longer than SamePlace gives no stretch. Time and room grow hardly
/// faster than the number of curves for drawings of strips.
CutNodes NodesOf(const PieceCurves& curves);

}  // namespace korvet
