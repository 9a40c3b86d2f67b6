// What a measurement tells.
#pragma once

#include <string>

#include "core/points.h"
#include "form/message_boxes.h"

namespace korvet {

/// Distances and coordinates of picked points, in the user's length unit, in a message box.
struct CMeasure {
    C3DPoint Pt1;
    C3DPoint Pt2;
    int Decimals = 1;  ///< places of every number of DisplayDistance
    char DecimalMark = '.';

    /// Distance in space, bearing in x and y in degrees (from 0 to below 360, as it is shown), both points
    /// and the differences from Pt1 to Pt2, each on a line of its own that ends in CR LF. Throws
    /// ArithmeticError for coordinates too large to be told.
    void DisplayDistance(MessageBoxes& boxes) const;

    /// The coordinates of Pt1, unrounded, in three such lines. Throws ArithmeticError when one is not finite.
    void DisplayPoint(MessageBoxes& boxes) const;
};

}  // namespace korvet
