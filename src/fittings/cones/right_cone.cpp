#include "fittings/cones/right_cone.h"

#include <cmath>

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/lap_room.h"

namespace korvet {

/// Distance from the apex along the generator at polar angle t to a plane. In the section through the axis
/// along +x, the apex, the point of the plane on the axis and the point of the generator's projection make a
/// triangle with side H - h and the angles d (half angle of the section), b and g:
///     L / sin b = (H - h) / sin g
/// and L, which lies in the section, is L cos d high and so L cos d / cos a long on the generator itself.
double CRightCone::SlantDistance(double t, CutPlane plane) const {
    const double d = std::atan(Quotient(BaseRad * std::cos(t), ApexHeight));
    const double b = plane.tilt + QuarterTurn;
    const double g = PI - (b + d);
    const double L = Quotient((ApexHeight - plane.height) * std::sin(b), std::sin(g));
    return Quotient(L * std::cos(d), std::cos(ConeAngle));
}

/// The point at a distance from the apex along the generator at polar angle t: sin a * r out, cos a * r down.
C3DPoint CRightCone::SlantPoint(double t, double distance) const {
    const double q = std::sin(ConeAngle) * distance;
    return {std::cos(t) * q, std::sin(t) * q, ApexHeight - std::cos(ConeAngle) * distance, PlainStation};
}

C3DPoint CRightCone::RingPoint(double t, CutPlane plane) const {
    return SlantPoint(t, SlantDistance(t, plane));
}

void CRightCone::AddStation(double t, const Cut& cut, int upperFlag, int lowerFlag) {
    const C3DPoint& base = baseRing_.Add(PolarPoint(baseCentre_, t, BaseRad));
    upperEdge_.Add(RingPoint(t, cut.upper)).Flag = static_cast<std::int16_t>(upperFlag);
    lowerEdge_.Add(cut.lower ? RingPoint(t, *cut.lower) : base).Flag = static_cast<std::int16_t>(lowerFlag);
}

void CRightCone::AddPlainCut() {
    const Cut cut = {{CPAngle1, CPHeight1}, CutPlane{CPAngle2, CPHeight2}};
    const double step = FullTurn / inputs.segs;
    double t = inputs.JoinAngle;
    for (int i = 1; i <= inputs.segs + 1; ++i) {
        AddStation(t, cut, i % 2, i % 2);
        t += step;
    }
}

/// Stations of a cut with a ridge at x = Offset: `near` holds on the +x side of the ridge and `far` beyond
/// it. The ridge meets the cone where rc cos s = Offset, rc being the radius at the ridge's height; there a
/// station of its own is added, and the spacing of the others runs on undisturbed.
void CRightCone::AddRoof(double ridgeHeight, const Cut& near, const Cut& far, int upperFlag, int lowerFlag) {
    const double rc = Quotient((ApexHeight - ridgeHeight) * BaseRad, ApexHeight);
    const double s1 = ArcCos(Quotient(Offset, rc));
    const double s2 = FullTurn - s1;
    const double step = FullTurn / inputs.segs;
    double t = inputs.JoinAngle;
    int i = 1;
    const auto addStationsBelow = [&](double limit, const Cut& cut) {
        while (t < limit) {
            AddStation(t, cut, i % 2, i % 2);
            t += step;
            ++i;
        }
    };
    addStationsBelow(s1, near);
    AddStation(s1, near, upperFlag, lowerFlag);
    addStationsBelow(s2, far);
    AddStation(s2, far, upperFlag, lowerFlag);
    addStationsBelow(ClosingLimit, near);
}

/// The planes of a roof cross the axis at h = tan(tilt) * Offset + ridge height, so that both meet in the
/// ridge.
void CRightCone::AddUpperRoof() {
    const CutPlane nearPlane = {CPAngle1, std::tan(CPAngle1) * Offset + CPHeight1};
    const CutPlane farPlane = {CPAngle3, std::tan(CPAngle3) * Offset + CPHeight1};
    AddRoof(CPHeight1, {nearPlane, {}}, {farPlane, {}}, CornerRuleStation, RuleStation);
}

void CRightCone::AddLowerRoof() {
    const CutPlane top = {CPAngle1, CPHeight1};
    const CutPlane nearPlane = {CPAngle2, std::tan(CPAngle2) * Offset + CPHeight2};
    const CutPlane farPlane = {CPAngle3, std::tan(CPAngle3) * Offset + CPHeight2};
    AddRoof(CPHeight2, {top, nearPlane}, {top, farPlane}, RuleStation, CornerRuleStation);
}

void CRightCone::ConstructModel() {
    ApexHeight = std::tan(QuarterTurn - ConeAngle) * BaseRad;
    apexPoint_ = baseCentre_;
    apexPoint_.z = ApexHeight + baseCentre_.z;
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
    results.ModelSurface = inputs.HalfPattern ? TrimSurface(surface, false, false) : surface;
}

void CRightCone::DevelopModel() {
    ConstructModel();
    const C3DPoints& upper = *results.ModelSurface.List1;
    const C3DPoints& lower = *results.ModelSurface.List2;
    const double C = BaseRad * FullTurn;
    const double L = Hypotenuse(BaseRad, ApexHeight);
    const C3DPoint F;
    CRuleSurf pattern;
    pattern.List1 = std::make_shared<C3DPoints>();
    pattern.List2 = std::make_shared<C3DPoints>();
    pattern.List1->Reserve(upper.Count() + 1);
    pattern.List2->Reserve(upper.Count() + 1);
    double a = 0;
    for (std::size_t i = 1; i <= upper.Count(); ++i) {
        const double prev = a;
        a = PlanAngle(baseCentre_, baseRing_.Item(i));
        // The angle runs on past a full turn; a seam at 360 degrees takes its last station past two.
        while (a < prev) {
            a += FullTurn;
        }
        // Arc of the base circle over the slant height.
        const double f = Quotient((a / FullTurn) * C, L);
        const double s1 = Distance3D(apexPoint_, upper.Item(i));
        const double s2 = Distance3D(apexPoint_, lower.Item(i));
        pattern.List1->Add(PolarPoint(F, f, s1)).Flag = upper.Item(i).Flag;
        pattern.List2->Add(PolarPoint(F, f, s2)).Flag = lower.Item(i).Flag;
    }
    pattern.RefPoint = F;
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
