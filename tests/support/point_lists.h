// Point lists written down in a test.
#pragma once

#include <initializer_list>
#include <memory>

#include "core/points.h"
#include "core/rule_surf.h"

namespace korvet {

inline C3DPoints PointsOf(std::initializer_list<C3DPoint> points) {
    C3DPoints list;
    for (const C3DPoint& point : points) {
        list.Add(point);
    }
    return list;
}

inline PointList ListOf(std::initializer_list<C3DPoint> points) {
    return std::make_shared<C3DPoints>(PointsOf(points));
}

/// A surface of the two lists, and nothing else.
inline CRuleSurf Strip(std::initializer_list<C3DPoint> first, std::initializer_list<C3DPoint> second) {
    CRuleSurf surface;
    surface.List1 = ListOf(first);
    surface.List2 = ListOf(second);
    return surface;
}

/// Whether two points are the same to the last bit, flags included.
inline bool Same(const C3DPoint& a, const C3DPoint& b) {
    return a.x == b.x && a.y == b.y && a.z == b.z && a.Flag == b.Flag;
}

/// Whether two lists hold the same points in the same order.
inline bool SamePoints(const C3DPoints& a, const C3DPoints& b) {
    if (a.Count() != b.Count()) {
        return false;
    }
    for (std::size_t i = 1; i <= a.Count(); ++i) {
        if (!Same(a.Item(i), b.Item(i))) {
            return false;
        }
    }
    return true;
}

}  // namespace korvet
