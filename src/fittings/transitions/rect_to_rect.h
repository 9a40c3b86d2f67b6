// Transition between two rectangles with sharp corners, its sides flat or creased along a diagonal.
#pragma once

#include "core/fitting.h"

namespace korvet {

/// The value of Dtype that CRectToRect tells apart: the offset goes from centre to centre. With any other one
/// it goes from the front left corner of the base to that of the top.
enum RectangleOffset : std::int16_t { FromCentreToCentre = 3 };

/// Along which diagonals the sides are creased.
enum RectangleCrease : std::int16_t {
    NoCrease = 0,
    RisingToTheRight = 1,  ///< front and rear: from the left corners of the base to the right ones of the top
    RisingToTheLeft = 2,   ///< front and rear: from the right corners of the base to the left ones of the top
    RoundACorner = 3       ///< the front to the right, the right side from its front corner to the rear
};

/// Lengths are the sizes as given, in the user's unit, angles radians. The base lies about the origin. Of a
/// rectangle the corners stand front left, front right, rear right, rear left: x goes to the right and y to
/// the rear. JoinAngle, segs, laps and HalfPattern have no effect.
struct CRectToRect {
    FittingInputs inputs;
    FittingResults results;  ///< ModelSurface and PatternSurface

    double BaseLengthX = 0;
    double BaseLengthY = 0;
    double TopLengthX = 0;
    double TopLengthY = 0;
    double TopOffsetX = 0;             ///< to the left, as Dtype says from where to where
    double TopOffsetY = 0;             ///< towards the front
    double Height = 0;                 ///< of the top above the base; may be negative
    double BaseTiltX = 0;              ///< held, without effect
    double BaseTiltY = 0;              ///< turn about the left side: above 0 the right side rises
    double TopTiltX = 0;               ///< held, without effect
    double TopTiltY = 0;               ///< as that of the base
    double TopRotation = 0;            ///< counter-clockwise turn about the vertical through the top's centre
    std::int16_t Diagonal = NoCrease;  ///< a RectangleCrease

    /// Fills results.ModelSurface: List1 the base, List2 the top, each round its corners from the front left
    /// one back to it, every point a rule corner. A corner from which creases fan is repeated, against the
    /// corners of the other list that they lead to: 5, 9, 9 or 13 points for the four values of Diagonal.
    void ConstructModel();

    /// Fills results.PatternSurface: unfolded, the seam at the front left corners, no laps. Flat sides and
    /// triangles come out as they are. A side that is neither, because a rotation or unequal tilts twist it,
    /// keeps its rulings, its edge of the base and one diagonal.
    /// Throws ArithmeticError when a rule has no length, as that of a crease into a sharp throat: how far the
    /// sides beside it turn could not be told then.
    void DevelopModel();

  private:
    void Crease(CRuleSurf& surface) const;
};

}  // namespace korvet
