#include "display/projection.h"

#include <cmath>
#include <memory>

#include "core/constants.h"
#include "core/math_module.h"

namespace korvet {

C3DPoints ProjectList(const C3DPoints& points, const CViewPoint& view) {
    const double turn = view.FromXY != QuarterTurn ? view.AroundZ + QuarterTurn : 0;
    const double rise = std::cos(view.FromXY);
    const double depth = std::sin(view.FromXY);
    C3DPoints projected;
    projected.Reserve(points.Count());
    for (const C3DPoint& p : points) {
        const C3DPoint axis = {0, 0, p.z, PlainStation};
        const C3DPoint q = PolarPoint(axis, PlanAngle(axis, p) + turn, Distance3D(axis, p));
        projected.Add({q.x, rise * q.z - depth * q.y, 0, p.Flag});
    }
    return projected;
}

CRuleSurf ProjectSurface(const CRuleSurf& surface, const CViewPoint& view) {
    const auto projected = [&](const PointList& list) {
        return list ? std::make_shared<C3DPoints>(ProjectList(*list, view)) : nullptr;
    };
    CRuleSurf work;
    work.List1 = projected(surface.List1);
    work.List2 = projected(surface.List2);
    work.List3 = IsPresent(surface.List3) ? projected(surface.List3) : nullptr;
    return work;
}

}  // namespace korvet
