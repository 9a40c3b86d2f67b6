// What the user adds to a pattern: dimensions between two picked points, and the lines of the text block.
#pragma once

#include <string>

#include "core/one_based_list.h"

namespace korvet {

/// Which list of a display a point number counts in.
enum ListNumber : int {
    ReferencePointList = 0,  ///< the surface's RefPoint, point number 0
    FirstEdgeList = 1,       ///< List1
    SecondEdgeList = 2,      ///< List2
    ThirdLineList = 3,       ///< List3
    SpareList = 4,           ///< kept free: no point has this number
    ExtentFrameList = 5      ///< the display's extent frame; the surface number has no meaning
};

/// A dimension names its two ends by surface, list and point, all one-based (ListNumber as above), and so
/// follows the pattern when sizes change.
struct CDimension {
    int SurfaceNo2 = 0;
    int SurfaceNo1 = 0;
    int ListNo2 = 0;
    int ListNo1 = 0;
    int PointNo2 = 0;
    int PointNo1 = 0;
};
using CDimensions = OneBasedList<CDimension>;

/// One line of the text block.
struct CLabel {
    std::string LabelString;
};
using CLabels = OneBasedList<CLabel>;

}  // namespace korvet
