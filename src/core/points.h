// Points of models and patterns, and the lists that hold them.
#pragma once

#include <cstdint>
#include <memory>

#include "core/one_based_list.h"

namespace korvet {

/// What a writer of a drawing does at a station of a rule surface.
enum StationFlag : std::int16_t {
    PlainStation = 0,       ///< a point of the outline only
    RuleStation = 1,        ///< a rule line runs to the partner point in the other list
    CornerStation = 4,      ///< no rule line, but an arc fitted to the outline must stop here
    CornerRuleStation = 5,  ///< both
    LapClosure = 8          ///< the outer end of a seam lap
};

/// One point. Lengths are in the user's unit; z is 0 on every point of a pattern.
struct C3DPoint {
    double x = 0;
    double y = 0;
    double z = 0;
    std::int16_t Flag = PlainStation;
};

/// An ordered list of points, one-based.
using C3DPoints = OneBasedList<C3DPoint>;

/// A list as surfaces hold it: shared on purpose between surfaces.
using PointList = std::shared_ptr<C3DPoints>;

/// Whether the point is a rule station: Flag 1, 3, 5 or 7. (No fitting writes 3 and 7; files may hold them.)
inline bool IsRuleStation(const C3DPoint& point) {
    return point.Flag == 1 || point.Flag == 3 || point.Flag == 5 || point.Flag == 7;
}

/// Whether a list counts as present for a reader: there, with more than one point.
inline bool IsPresent(const PointList& list) {
    return list && list->Count() > 1;
}

/// The rule stations of a list, in order, as a new list. The other points are construction points that no
/// annotation shows.
C3DPoints FlaggedPoints(const C3DPoints& points);

/// A new list with copies of the points in reverse order.
C3DPoints ReversePoints(const C3DPoints& points);

}  // namespace korvet
