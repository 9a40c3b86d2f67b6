#include "fittings/pyramids/prism.h"

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/plane_cut.h"
#include "fittings/pyramids/folded_walls.h"
#include "fittings/trim.h"

namespace korvet {

/// The tilt of the plane that a top corner lies on, by its number from 1.
double CPrism::TopTilt(int index) const {
    const bool onSecond = index <= NoOfSides / 4.0 || index > NoOfSides * 3 / 4.0;
    return inputs.Dtype == TwoPlaneTop && onSecond ? -CPAngle3 : CPAngle1;
}

void CPrism::ConstructModel() {
    const auto cornerOn = [this](double angle, CutPlane plane) {
        C3DPoint corner = PolarPoint({}, angle, BaseRad);
        corner.z = PlaneHeight(BaseRad, angle, plane);
        return corner;
    };
    results.ModelSurface = FoldedWalls(ClosedRing(inputs.JoinAngle, NoOfSides), [&](const Station& station) {
        return WallEdge{cornerOn(station.angle, {TopTilt(station.index), CPHeight1}),
                        cornerOn(station.angle, {-CPAngle2, CPHeight2})};
    });
    RefuseHalf(inputs, results);
}

void CPrism::DevelopModel() {
    ConstructModel();
    const CRuleSurf& model = results.ModelSurface;
    const double width = Quotient(BaseRad * FullTurn, NoOfSides);
    results.PatternSurface = FoldedWalls(ClosedRing(0, NoOfSides), [&](const Station& station) {
        const auto i = static_cast<std::size_t>(station.index);
        const double x = (station.index - 1) * width;
        return WallEdge{{x, model.List1->Item(i).z, 0, PlainStation},
                        {x, model.List2->Item(i).z, 0, PlainStation}};
    });
    AddLaps(results.PatternSurface, inputs);
}

}  // namespace korvet
