#include "fittings/lap_room.h"

#include <algorithm>

#include "core/math_module.h"

namespace korvet {

bool TopLapReachesApex(const C3DPoints& edge, const C3DPoint& apex, double lap) {
    return std::any_of(edge.begin(), edge.end(),
                       [&](const C3DPoint& point) { return Distance3D(apex, point) < lap; });
}

bool SeamLapPassesStart(const C3DPoints& lappedEdge, const C3DPoint& apex) {
    const std::size_t m = lappedEdge.Count();
    return m > 1 && PlanAngle(apex, lappedEdge.Item(m - 1)) > PlanAngle(apex, lappedEdge.Item(m));
}

bool SeamGapIsBelow(const CRuleSurf& lapped, double lap) {
    const auto gap = [](const C3DPoints& edge) {
        return Distance3D(edge.Item(edge.Count() - 1), edge.Item(1));
    };
    return gap(*lapped.List1) < lap || gap(*lapped.List2) < lap;
}

}  // namespace korvet
