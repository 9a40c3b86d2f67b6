#include "fittings/pipes/right_cylinder.h"

#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/roof.h"
#include "fittings/trim.h"
#include "fittings/unrolled.h"

namespace korvet {
namespace {

/// A station within this plan angle past the seam is the closing one: it belongs at the far end of the
/// stretch-out.
constexpr double ClosingAngle = 0.0001;

}  // namespace

void CRightCylinder::AddPoint(C3DPoints& edge, double t, double z, std::int16_t flag) const {
    C3DPoint& point = edge.Add(PolarPoint({}, t, BaseRad));
    point.z = z;
    point.Flag = flag;
}

/// Appends a whole ring from the seam on, cut by a plane whose tilt is turned about the axis.
void CRightCylinder::AddRing(C3DPoints& edge, double turn, CutPlane plane) const {
    for (const Station& station : RuledRing(inputs.JoinAngle, inputs.segs)) {
        AddPoint(edge, station.angle, PlaneHeight(BaseRad, turn + station.angle, plane), station.flag);
    }
}

/// Stations of a top of two planes that meet in a ridge at x = Offset, height CPHeight1, over a level bottom.
/// A plane through the ridge crosses the axis at CPHeight1 minus its slope times Offset.
void CRightCylinder::AddRoof(C3DPoints& top, C3DPoints& bottom) const {
    const CutPlane nearPlane = {-CPAngle3, std::tan(CPAngle3) * Offset + CPHeight1};
    const CutPlane farPlane = {CPAngle1, CPHeight1 - std::tan(CPAngle1) * Offset};
    WalkRoof(RuledRing(0, inputs.segs), {BaseRad, Offset}, [&](const RoofStation& station) {
        const double z = PlaneHeight(BaseRad, station.angle, station.far ? farPlane : nearPlane);
        AddPoint(top, station.angle, station.ridgeEnd ? CPHeight1 : z, station.brokenFlag);
        AddPoint(bottom, station.angle, CPHeight2, station.flag);
    });
}

void CRightCylinder::ConstructModel() {
    CRuleSurf surface;
    surface.List1 = std::make_shared<C3DPoints>();
    surface.List2 = std::make_shared<C3DPoints>();
    const auto count = 2 * static_cast<std::size_t>(inputs.segs) + 4;  // with both ends of a ridge
    surface.List1->Reserve(count);
    surface.List2->Reserve(inputs.Dtype == RoofOverTracedBase ? 2 * count : count);

    if (inputs.Dtype == RoofOverTracedBase || inputs.Dtype == RoofTop) {
        AddRoof(*surface.List1, *surface.List2);
    } else {
        AddRing(*surface.List1, 0, {CPAngle1, CPHeight1});
    }
    // Under a RoofOverTracedBase the bottom is there already; readers go by List1 and pass over the ring that
    // is added here.
    if (inputs.Dtype != RoofTop) {
        AddRing(*surface.List2, Rotation, {-CPAngle2, CPHeight2});
    }
    results.ModelSurface = Trimmed(surface, TrimOf(inputs));
}

void CRightCylinder::DevelopModel() {
    ConstructModel();
    const CRuleSurf& model = results.ModelSurface;
    const double C = StretchOut(BaseRad, Thickness, TemplateType);
    const C3DPoint c;
    // A copy shares the model's lists until it is turned, which gives it lists of its own.
    CRuleSurf turned = model;
    turned.RotateList(1, Axis::Z, c, -PlanAngle(c, model.List1->Item(1)));

    CRuleSurf pattern;
    pattern.List1 = std::make_shared<C3DPoints>();
    pattern.List2 = std::make_shared<C3DPoints>();
    pattern.List1->Reserve(turned.List1->Count() + 1);
    pattern.List2->Reserve(turned.List1->Count() + 1);
    for (std::size_t i = 1; i <= turned.List1->Count(); ++i) {
        const C3DPoint& top = turned.List1->Item(i);
        const C3DPoint& bottom = model.List2->Item(i);
        const double planAngle = PlanAngle(c, top);
        const double a = i > 1 && planAngle < ClosingAngle ? FullTurn : planAngle;
        const double x = (a / FullTurn) * C;
        pattern.List1->Add({x, top.z, 0, top.Flag});
        pattern.List2->Add({x, bottom.z, 0, bottom.Flag});
    }
    AddLaps(pattern, inputs);
    results.PatternSurface = pattern;
}

}  // namespace korvet
