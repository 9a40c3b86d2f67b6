#include "fittings/cones/offset_cone.h"

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/lap_room.h"
#include "fittings/ring.h"
#include "fittings/trim.h"

namespace korvet {
namespace {

/// The pattern's apex.
constexpr C3DPoint ConeOrigin = {};

/// The angle between two generators of lengths a and b whose ends are c apart on the flat edge.
double GeneratorAngle(double a, double b, double c) {
    return UnfoldingAngle(c, a, b);
}

}  // namespace

/// The circle at height h. Towards the apex it shrinks as its centre approaches:
///     k = h / height of the apex,  centre = k apex,  radius = (1 - k) BaseRad
PointList COffsetCone::BuildRing(double h) const {
    const Ring ring = RuledRing(inputs.JoinAngle, inputs.segs);
    if (h == 0) {
        return CirclePoints(ring, {}, BaseRad);
    }
    const double k = Quotient(h, ApexPt.z);
    const C3DPoint centre = {ApexPt.x * k, ApexPt.y * k, ApexPt.z * k, PlainStation};
    return CirclePoints(ring, centre, (1 - k) * BaseRad);
}

void COffsetCone::ConstructModel() {
    CRuleSurf surface;
    surface.List1 = BuildRing(CPHeight);
    surface.List2 = BuildRing(0);
    results.ModelSurface = Trimmed(surface, TrimOf(inputs));
}

/// Stations 1 and segs are one step short of lying opposite, so that S is a little less than the arc.
PointList COffsetCone::DevelopRing(const C3DPoints& ring) const {
    const double D = Distance3D(ring.Item(1), ring.Item(static_cast<std::size_t>(inputs.segs)));
    const double S = (D * PI) / (2 * inputs.segs);
    double s = Distance3D(ring.Item(1), ApexPt);
    double a = 0;
    auto flat = std::make_shared<C3DPoints>();
    flat->Reserve(ring.Count() + 1);  // with the end of a seam lap
    for (const C3DPoint& station : ring) {
        // A ring that has come to the apex is a point, and stays there.
        if (flat->Count() > 0 && s != 0) {
            const double p = s;
            s = Distance3D(station, ApexPt);
            a += GeneratorAngle(p, s, S);
        }
        flat->Add(PolarPoint(ConeOrigin, a, s)).Flag = station.Flag;
    }
    return flat;
}

void COffsetCone::DevelopModel() {
    if (inputs.segs < 2) {
        throw ArithmeticError("with one fold line the pattern has no width");
    }
    ConstructModel();
    CRuleSurf pattern;
    pattern.List1 = DevelopRing(*results.ModelSurface.List1);
    pattern.List2 = DevelopRing(*results.ModelSurface.List2);
    pattern.RefPoint = ConeOrigin;
    pattern.RefPointDisplay = true;
    if (TopLapReachesApex(*pattern.List1, ConeOrigin, inputs.LapSize0)) {
        results.warnings.push_back({TopLapTooLarge});
    }
    if (AddLaps(pattern, inputs) && SeamLapPassesStart(*pattern.List1, ConeOrigin)) {
        results.warnings.push_back({SeamLapTooLarge});
    }
    results.PatternSurface = pattern;
}

}  // namespace korvet
