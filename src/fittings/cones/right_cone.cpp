#include "fittings/cones/right_cone.h"

#include <cmath>

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/lap_room.h"
#include "fittings/roof.h"
#include "fittings/trim.h"

namespace korvet {

Cone CRightCone::Wall() const {
    return {BaseRad, ApexHeight, ConeAngle};
}

void CRightCone::AddStation(double t, const Cut& cut, std::int16_t upperFlag, std::int16_t lowerFlag) {
    const C3DPoint& base = baseRing_.Add(PolarPoint({}, t, BaseRad));
    upperEdge_.Add(PointOnPlane(Wall(), t, cut.upper)).Flag = upperFlag;
    lowerEdge_.Add(cut.lower ? PointOnPlane(Wall(), t, *cut.lower) : base).Flag = lowerFlag;
}

void CRightCone::AddPlainCut() {
    const Cut cut = {{CPAngle1, CPHeight1}, CutPlane{CPAngle2, CPHeight2}};
    for (const Station& station : ClosedRing(inputs.JoinAngle, inputs.segs)) {
        AddStation(station.angle, cut, station.flag, station.flag);
    }
}

/// Stations of a cut with a ridge: `near` holds on the +x side of it and `far` beyond.
void CRightCone::AddRoof(double ridgeHeight, const Cut& near, const Cut& far, ConeCut roof) {
    const double radius = Quotient((ApexHeight - ridgeHeight) * BaseRad, ApexHeight);
    WalkRoof(ClosedRing(inputs.JoinAngle, inputs.segs), {radius, Offset}, [&](const RoofStation& station) {
        const bool breaksAbove = roof == UpperRoof;
        AddStation(station.angle, station.far ? far : near, breaksAbove ? station.brokenFlag : station.flag,
                   breaksAbove ? station.flag : station.brokenFlag);
    });
}

/// The planes of a roof cross the axis at h = tan(tilt) * Offset + ridge height, so that both meet in the
/// ridge.
void CRightCone::AddUpperRoof() {
    const CutPlane nearPlane = {CPAngle1, std::tan(CPAngle1) * Offset + CPHeight1};
    const CutPlane farPlane = {CPAngle3, std::tan(CPAngle3) * Offset + CPHeight1};
    AddRoof(CPHeight1, {nearPlane, {}}, {farPlane, {}}, UpperRoof);
}

void CRightCone::AddLowerRoof() {
    const CutPlane top = {CPAngle1, CPHeight1};
    const CutPlane nearPlane = {CPAngle2, std::tan(CPAngle2) * Offset + CPHeight2};
    const CutPlane farPlane = {CPAngle3, std::tan(CPAngle3) * Offset + CPHeight2};
    AddRoof(CPHeight2, {top, nearPlane}, {top, farPlane}, LowerRoof);
}

void CRightCone::ConstructModel() {
    ApexHeight = std::tan(QuarterTurn - ConeAngle) * BaseRad;
    for (C3DPoints* list : {&baseRing_, &upperEdge_, &lowerEdge_}) {
        *list = C3DPoints();
        list->Reserve(static_cast<std::size_t>(inputs.segs) + 4);
    }
    switch (inputs.Dtype) {
        case UpperRoof:
            AddUpperRoof();
            break;
        case LowerRoof:
            AddLowerRoof();
            break;
        default:
            AddPlainCut();
            break;
    }
    CRuleSurf surface;
    surface.List1 = std::make_shared<C3DPoints>(std::move(upperEdge_));
    surface.List2 = std::make_shared<C3DPoints>(std::move(lowerEdge_));
    results.ModelSurface = Trimmed(surface, TrimOf(inputs));
}

void CRightCone::DevelopModel() {
    ConstructModel();
    const C3DPoints& upper = *results.ModelSurface.List1;
    const C3DPoints& lower = *results.ModelSurface.List2;
    ConeUnroller unroller(Wall());
    CRuleSurf pattern;
    pattern.List1 = std::make_shared<C3DPoints>();
    pattern.List2 = std::make_shared<C3DPoints>();
    pattern.List1->Reserve(upper.Count() + 1);
    pattern.List2->Reserve(upper.Count() + 1);
    for (std::size_t i = 1; i <= upper.Count(); ++i) {
        const double f = unroller.NextFlatAngle(PlanAngle({}, baseRing_.Item(i)));
        pattern.List1->Add(unroller.Flat(upper.Item(i), f));
        pattern.List2->Add(unroller.Flat(lower.Item(i), f));
    }
    pattern.RefPoint = C3DPoint();
    pattern.RefPointDisplay = true;
    ApplyLaps(pattern);
    results.PatternSurface = pattern;
}

void CRightCone::ApplyLaps(CRuleSurf& pattern) {
    const C3DPoint F;
    const bool reachesApex = TopLapReachesApex(*pattern.List1, F, inputs.LapSize0);
    if (!AddLaps(pattern, inputs)) {
        return;
    }
    if (reachesApex) {
        results.warnings.push_back({TopLapTooLarge});
    }
    if (SeamLapPassesStart(*pattern.List1, F)) {
        results.warnings.push_back({SeamLapTooLarge});
    }
}

}  // namespace korvet
