#include "fittings/pyramids/pyramid.h"

#include <cmath>

#include "core/checked.h"
#include "core/constants.h"
#include "fittings/pyramids/folded_walls.h"
#include "fittings/trim.h"

namespace korvet {

double CPyramid::ConeAngle() const {
    return std::atan(Quotient(BaseRad, ApexHeight));
}

Cone CPyramid::ConeRound() const {
    return {BaseRad, ApexHeight, ConeAngle()};
}

void CPyramid::ConstructModel() {
    const Cone cone = ConeRound();
    const CutPlane top = {CPAngle, CPHeight};
    const CutPlane base = {0, 0};
    results.ModelSurface = FoldedWalls(ClosedRing(inputs.JoinAngle, NoOfSides), [&](const Station& station) {
        return WallEdge{PointOnPlane(cone, station.angle, top), PointOnPlane(cone, station.angle, base)};
    });
    RefuseHalf(inputs, results);
}

/// An arc of the base circle between two edges, on the slant height of the cone: g = (2 PI R / n) / s.
void CPyramid::DevelopModel() {
    ConstructModel();
    const CRuleSurf& model = results.ModelSurface;
    const ConeUnroller unroller(ConeRound());
    const double g = unroller.FlatAngle(FullTurn / NoOfSides);
    results.PatternSurface = FoldedWalls(Ring(g, g, NoOfSides + 1), [&](const Station& station) {
        const auto i = static_cast<std::size_t>(station.index);
        return WallEdge{unroller.Flat(model.List1->Item(i), station.angle),
                        unroller.Flat(model.List2->Item(i), station.angle)};
    });
    AddLaps(results.PatternSurface, inputs);
}

}  // namespace korvet
