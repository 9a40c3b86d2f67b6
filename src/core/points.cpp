#include "core/points.h"

namespace korvet {

C3DPoints FlaggedPoints(const C3DPoints& points) {
    C3DPoints flagged;
    for (const C3DPoint& point : points) {
        if (IsRuleStation(point)) {
            flagged.Add(point);
        }
    }
    return flagged;
}

C3DPoints ReversePoints(const C3DPoints& points) {
    C3DPoints reversed;
    reversed.Reserve(points.Count());
    for (std::size_t i = points.Count(); i >= 1; --i) {
        reversed.Add(points.Item(i));
    }
    return reversed;
}

}  // namespace korvet
