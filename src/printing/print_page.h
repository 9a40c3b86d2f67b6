// Print frames: the part of a pattern that comes onto one sheet of paper.
#pragma once

#include <string>

#include "core/one_based_list.h"
#include "core/points.h"
#include "display/bounds.h"

namespace korvet {

/// One frame. Lengths are in print units, which a full-size pattern has in common with its paper.
struct CPrintPage {
    bool PrintMe = false;    ///< chosen for printing
    C3DPoint OriginPoint;    ///< lower left corner
    PointList BoundaryList;  ///< the closed rectangle; shared by copies of the page
    double PageWidth = 0;    ///< size in y
    double PageLength = 0;   ///< size in x
    std::string Name;        ///< of its sheet, "A1" for the first

    /// Fills BoundaryList: lower left, lower right, upper right, upper left, and the first corner again.
    void ListBoundaryPoints();
};

/// The frames of one layout, column by column from the left, each from below.
using CPrintPages = OneBasedList<CPrintPage>;

/// The frame as a box, from the corners of BoundaryList. Throws ListError when there are none.
Bounds BoxOf(const CPrintPage& page);

/// The name of the sheet in a column and row, both from 1: a letter for the column, which goes on behind "Z"
/// in the order of the characters as long as they can be printed, and the row's number. Columns behind the
/// last character go by their number: "63-1".
std::string SheetName(int column, int row);

}  // namespace korvet
