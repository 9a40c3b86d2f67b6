#include "core/lap_join.h"

#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"

namespace korvet {
namespace {

/// A ruling whose midpoint is nearer to the seam's than this lies on it and tells nothing of the strip's
/// side.
constexpr double SameRuling = 1e-6;

/// Direction in which the seam tab leaves the strip: a quarter turn counter-clockwise from the seam, or
/// clockwise where the last ruling that does not lie on the seam shows that the pattern itself is on that
/// side.
double TabDirection(const C3DPoints& list1, const C3DPoints& list2) {
    const std::size_t n = list1.Count();
    const C3DPoint seam = MidPoint(list1.Item(n), list2.Item(n));
    const double direction = PlanAngle(list1.Item(n), list2.Item(n)) + QuarterTurn;
    for (std::size_t i = n - 1; i >= 1; --i) {
        const C3DPoint middle = MidPoint(list1.Item(i), list2.Item(i));
        if (Distance3D(seam, middle) > SameRuling) {
            const double towardsPattern =
                (middle.x - seam.x) * std::cos(direction) + (middle.y - seam.y) * std::sin(direction);
            return towardsPattern > 0 ? direction - PI : direction;
        }
    }
    return direction;
}

void AddSeamLap(C3DPoints& list1, C3DPoints& list2, double width) {
    const std::size_t n = list1.Count();
    const double direction = TabDirection(list1, list2);
    for (C3DPoints* list : {&list1, &list2}) {
        list->Item(n).Flag = static_cast<std::int16_t>(list->Item(n).Flag + CornerStation);
        C3DPoint tab = PolarPoint(list->Item(n), direction, width);
        tab.Flag = LapClosure;
        list->Add(tab);
    }
}

/// Moves every point of `edge` out by `width` along its ruling, away from `opposite`, and keeps the old edge
/// as the fold line.
void AddEdgeLap(C3DPoints& edge, const C3DPoints& opposite, double width, C3DPoints& foldLine) {
    foldLine.Reserve(edge.Count());
    for (std::size_t i = 1; i <= edge.Count(); ++i) {
        C3DPoint& point = edge.Item(i);
        foldLine.Add(point);
        const C3DPoint moved = PolarPoint(point, PlanAngle(opposite.Item(i), point), width);
        point.x = moved.x;
        point.y = moved.y;
    }
}

}  // namespace

void CLapJoin::AddLapJoin() {
    if (!Surface.List1 || !Surface.List2 || Surface.List1->Count() == 0 ||
        Surface.List2->Count() < Surface.List1->Count()) {
        throw ListError("a lap needs a pattern");
    }
    LappedSurface = CRuleSurf();
    LappedSurface.List1 = Surface.List1;
    LappedSurface.List2 = Surface.List2;
    LappedSurface.List3 = Surface.List3;
    LappedSurface.LapList1 = std::make_shared<C3DPoints>();
    LappedSurface.LapList2 = std::make_shared<C3DPoints>();

    C3DPoints& list1 = *LappedSurface.List1;
    C3DPoints& list2 = *LappedSurface.List2;
    if (LapSize1 > 0) {
        AddSeamLap(list1, list2, LapSize1);
    }
    if (LapSize0 > 0) {
        AddEdgeLap(list1, list2, LapSize0, *LappedSurface.LapList1);
    }
    if (LapSize2 > 0) {
        AddEdgeLap(list2, list1, LapSize2, *LappedSurface.LapList2);
    }
}

CRuleSurf& ApplyLapJoin(CRuleSurf& surface, std::int16_t joinType, double lap0, double lap1, double lap2) {
    CLapJoin join;
    join.Surface = surface;
    join.JoinType = joinType;
    join.LapSize0 = lap0;
    join.LapSize1 = lap1;
    join.LapSize2 = lap2;
    join.AddLapJoin();
    surface = join.LappedSurface;
    return surface;
}

}  // namespace korvet
