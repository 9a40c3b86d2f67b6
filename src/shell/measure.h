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

    /// Distance in space, bearing in x and y in degrees, both points and their differences.
    void DisplayDistance(MessageBoxes& boxes) const;

    /// The coordinates of Pt1, unrounded.
    void DisplayPoint(MessageBoxes& boxes) const;
};

}  // namespace korvet
