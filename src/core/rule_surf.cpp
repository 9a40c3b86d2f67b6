#include "core/rule_surf.h"

#include <array>
#include <cmath>

#include "core/math_module.h"
#include "core/work_watch.h"

namespace korvet {
namespace {

C3DPoint MovePoint(const C3DPoint& point, const C3DPoint& from, const C3DPoint& to) {
    return {(to.x - from.x) + point.x, (to.y - from.y) + point.y, (to.z - from.z) + point.z, point.Flag};
}

Point2D RotatePair(Point2D centre, Point2D point, double angle) {
    const double radius = Distance2D(centre, point);
    const double start = PlanAngle2D(centre, point);
    return PolarPoint2D(centre, start + angle, radius);
}

C3DPoint RotatePoint(Axis axis, const C3DPoint& p, const C3DPoint& c, double angle) {
    switch (axis) {
        case Axis::X: {
            const Point2D r = RotatePair({c.y, c.z}, {p.y, p.z}, angle);
            return {p.x, r.u, r.v, p.Flag};
        }
        case Axis::Y: {
            const Point2D r = RotatePair({c.x, c.z}, {p.x, p.z}, angle);
            return {r.u, p.y, r.v, p.Flag};
        }
        case Axis::Z: {
            const Point2D r = RotatePair({c.x, c.y}, {p.x, p.y}, angle);
            return {r.u, r.v, p.z, p.Flag};
        }
    }
    return {0, 0, 0, p.Flag};
}

const C3DPoints& Required(const PointList& list) {
    if (!list) {
        throw ListError("a surface has no such list");
    }
    return *list;
}

/// The member of the surface that a list number of RotateList means; null for a number without a list.
PointList* ListByNumber(CRuleSurf& surface, int number) {
    const std::array<PointList*, 5> lists = {&surface.List1, &surface.List2, &surface.List3,
                                             &surface.LapList1, &surface.LapList2};
    return number >= 1 && number <= 5 ? lists[static_cast<std::size_t>(number - 1)] : nullptr;
}

void RequirePointWithinReach(const C3DPoint& point) {
    for (const double coordinate : {point.x, point.y, point.z}) {
        if (std::fabs(Finite(coordinate, "a coordinate")) > LargestSize) {
            throw ArithmeticError("the fitting is larger than a thousand million");
        }
    }
}

}  // namespace

void CRuleSurf::Move(const C3DPoint& from, const C3DPoint& to) {
    for (PointList* list : {&List1, &List2, &List3, &LapList1, &LapList2}) {
        if (*list) {
            *list = MoveList(**list, from, to);
        }
    }
    if (RefPoint) {
        RefPoint = MovePoint(*RefPoint, from, to);
    }
}

PointList CRuleSurf::MoveList(const C3DPoints& list, const C3DPoint& from, const C3DPoint& to) {
    auto moved = std::make_shared<C3DPoints>();
    moved->Reserve(list.Count());
    for (const C3DPoint& point : list) {
        moved->Add(MovePoint(point, from, to));
    }
    return moved;
}

void CRuleSurf::Rotate(Axis axis, const C3DPoint& centre, double angle) {
    for (int number = 1; number <= 5; ++number) {
        RotateList(number, axis, centre, angle);
    }
    if (RefPoint) {
        RefPoint = RotatePoint(axis, *RefPoint, centre, angle);
    }
}

void CRuleSurf::RotateList(int listNumber, Axis axis, const C3DPoint& centre, double angle) {
    PointList* list = ListByNumber(*this, listNumber);
    if (list == nullptr || !*list) {
        return;
    }
    auto rotated = std::make_shared<C3DPoints>();
    rotated->Reserve((*list)->Count());
    for (const C3DPoint& point : **list) {
        rotated->Add(RotatePoint(axis, point, centre, angle));
    }
    *list = rotated;
}

CRuleSurf& CRuleSurfs::Add(const CRuleSurf& surface) {
    WorkWatch::Look();
    CRuleSurf& stored = surfaces_.Add(surface);
    stored.DimensionList = nullptr;
    return stored;
}

CRuleSurf TrimSurface(const CRuleSurf& surface, bool quarter, bool fromEnd) {
    const C3DPoints& first = Required(surface.List1);
    const std::size_t count = first.Count();
    const std::size_t last = count / (quarter ? 4U : 2U) + 1;

    const auto trimmed = [&](const C3DPoints& list) {
        auto kept = std::make_shared<C3DPoints>();
        if (fromEnd) {
            for (std::size_t i = count; i >= last; --i) {
                kept->Add(list.Item(i));
            }
        } else {
            for (std::size_t i = 1; i <= last; ++i) {
                kept->Add(list.Item(i));
            }
        }
        return kept;
    };

    CRuleSurf result;
    result.List1 = trimmed(first);
    result.List2 = trimmed(Required(surface.List2));
    result.List3 = IsPresent(surface.List3) ? trimmed(*surface.List3) : nullptr;
    result.LapList1 = IsPresent(surface.LapList1) ? trimmed(*surface.LapList1) : nullptr;
    result.LapList2 = IsPresent(surface.LapList2) ? trimmed(*surface.LapList2) : nullptr;
    return result;
}

void RequireWithinReach(const CRuleSurf& surface) {
    for (const PointList& list :
         {surface.List1, surface.List2, surface.List3, surface.LapList1, surface.LapList2}) {
        if (list) {
            for (const C3DPoint& point : *list) {
                RequirePointWithinReach(point);
            }
        }
    }
    if (surface.RefPoint) {
        RequirePointWithinReach(*surface.RefPoint);
    }
}

}  // namespace korvet
