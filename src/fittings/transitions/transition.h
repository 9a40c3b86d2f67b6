// Transition between two closed sections, each a rectangle whose corners are quarters of an ellipse.
#pragma once

#include "core/fitting.h"

namespace korvet {

/// Lengths are mean dimensions in the user's unit, angles radians. A section with radii 0 is a sharp
/// rectangle, with radii of half its short length an oval, with radii of both half lengths an ellipse or
/// circle. JoinAngle, Dtype and Miscellaneous have no effect: the seam lies in the middle of the +x side,
/// towards which the Y offset of the top may move it.
struct CTransition {
    FittingInputs inputs;
    FittingResults results;  ///< ModelSurface and PatternSurface

    double Height = 0;       ///< of the top section's centre above the base section's; may be negative
    double BaseLengthX = 0;  ///< full lengths of the base section
    double BaseLengthY = 0;
    double BaseRad1 = 0;   ///< semi-axis of the base corners along x
    double BaseRad2 = 0;   ///< along y
    double BaseTiltX = 0;  ///< rotation of the base section about the x axis through its centre
    double BaseTiltY = 0;  ///< and about the y axis, from x to z
    double TopLengthX = 0;
    double TopLengthY = 0;
    double TopRad1 = 0;
    double TopRad2 = 0;
    double TopOffsetX = 0;  ///< position of the top centre from the base centre
    double TopOffsetY = 0;
    double TopTiltX = 0;
    double TopTiltY = 0;

    /// Fills results.ModelSurface: List1 the top section, List2 the base section. With K points to a corner,
    /// K = segs / 2 + 1 rounded to even, both have 4 K + 2 stations: the start on the +x side, the corners
    /// counter-clockwise from (+x, +y), the start again. A half pattern needs TopOffsetY 0: then a point
    /// opposite the start is added to both lists and the stations up to it are kept; with another TopOffsetY
    /// the surface stays whole. Flags: 1 at the start, its repetition and the opposite point; in a corner the
    /// number of the point modulo 2, and 4 more on its first and last one.
    void ConstructModel();

    /// Fills results.PatternSurface by triangulation, the first ruling along +x from the origin, with laps
    /// when JoinType is above 0. Warns with 25, as a user error, when the ends of the pattern lie nearer to
    /// each other than the seam lap is wide; the lap is laid all the same.
    void DevelopModel();

  private:
    /// What a section is built from.
    struct Section {
        C3DPoint centre;
        double lengthX;
        double lengthY;
        double offsetY;
        double rad1;
        double rad2;
    };

    [[nodiscard]] C3DPoints BuildSectionList(const Section& section) const;
    [[nodiscard]] bool IsHalved() const { return inputs.HalfPattern && TopOffsetY == 0; }
};

}  // namespace korvet
