#include "fittings/ovals/right_cylinder_oval.h"

#include <memory>

#include "core/math_module.h"
#include "fittings/ring.h"
#include "fittings/trim.h"

namespace korvet {

void CRightCylinderOval::ConstructModel() {
    const C3DPoint firstCentre = {0, OvalCenterDistance / 2, 0, PlainStation};
    const C3DPoint secondCentre = {0, -OvalCenterDistance / 2, 0, PlainStation};
    const Ring ring = RuledRing(inputs.JoinAngle, inputs.segs);
    CRuleSurf surface;
    for (PointList* list : {&surface.List1, &surface.List2}) {
        *list = std::make_shared<C3DPoints>();
        (*list)->Reserve(ring.Count() + 2);
    }
    const auto add = [&](const C3DPoint& centre, const Station& station) {
        C3DPoint point = PolarPoint(centre, station.angle, BaseRad);
        point.Flag = station.flag;
        point.z = PlaneHeight(BaseRad, station.angle, {CPAngle1, CPHeight1});
        surface.List1->Add(point);
        point.z = PlaneHeight(BaseRad, station.angle, {-CPAngle2, CPHeight2});
        surface.List2->Add(point);
    };
    const int half = inputs.segs + 1;
    for (const Station station : ring) {
        if (station.index <= half) {
            add(firstCentre, station);
        }
        if (station.index >= half) {
            add(secondCentre, station);
        }
    }
    surface.List1->Add(surface.List1->Item(1));
    surface.List2->Add(surface.List2->Item(1));
    results.ModelSurface = Trimmed(surface, TrimOf(inputs));
}

/// Each half circle is PI R long. Behind its last station lies a straight side instead of a step.
void CRightCylinderOval::DevelopModel() {
    ConstructModel();
    const C3DPoints& top = *results.ModelSurface.List1;
    const C3DPoints& bottom = *results.ModelSurface.List2;
    const auto segs = static_cast<std::size_t>(inputs.segs);
    const double step = ((BaseRad + BaseRad) * PI) / (inputs.segs * 2);
    CRuleSurf pattern;
    for (PointList* list : {&pattern.List1, &pattern.List2}) {
        *list = std::make_shared<C3DPoints>();
        (*list)->Reserve(top.Count() + 1);
    }
    double x = 0;
    const auto add = [&](std::size_t station, std::size_t flags) {
        pattern.List1->Add({x, top.Item(station).z, 0, top.Item(flags).Flag});
        pattern.List2->Add({x, bottom.Item(station).z, 0, bottom.Item(flags).Flag});
    };
    const auto addHalfCircle = [&](std::size_t first) {
        for (std::size_t i = first; i <= first + segs; ++i) {
            add(i, i);
            x += step;
        }
        x = OvalCenterDistance + x - step;
    };
    addHalfCircle(1);
    addHalfCircle(segs + 2);
    add(1, 2 * segs + 2);  // the closing station goes on with the flag of the last one
    AddLaps(pattern, inputs);
    results.PatternSurface = pattern;
}

}  // namespace korvet
