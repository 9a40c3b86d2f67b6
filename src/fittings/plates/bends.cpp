#include "fittings/plates/bends.h"

#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/extruded.h"

namespace korvet {
namespace {

/// A corner where it lies in the plan.
C3DPoint PlanPoint(const C3DPoints& corners, std::size_t index) {
    const C3DPoint& corner = corners.Item(index);
    return {corner.x, corner.y, 0, PlainStation};
}

/// Adds the arc that begins at `start`, turns clockwise about `centre`, and sweeps an angle in segs steps.
void AddArc(const C3DPoint& centre, const C3DPoint& start, double radius, double sweep, int segs,
            C3DPoints& edge) {
    const double step = sweep / segs;
    double angle = PlanAngle(centre, start);
    for (int k = 0; k <= segs; ++k) {
        edge.Add(PolarPoint(centre, angle, radius));
        angle -= step;
    }
}

}  // namespace

double InsideAngle(const C3DPoints& corners, std::size_t index) {
    const C3DPoint before = PlanPoint(corners, index - 1);
    const C3DPoint corner = PlanPoint(corners, index);
    const C3DPoint after = PlanPoint(corners, index + 1);
    double leg1 = Distance3D(before, corner);
    double leg2 = Distance3D(corner, after);
    double across = Distance3D(before, after);
    return TriangleAngle(across, leg1, leg2);
}

double TangentOfUnitRadius(double insideAngle) {
    return std::tan(QuarterTurn - insideAngle / 2);
}

void CBends::ConstructModel() {
    const std::size_t count = PointsList.Count();
    C3DPoints edge;
    edge.Add(PlanPoint(PointsList, 1));
    double tangent = 0;  // stays that of the corner before where the line doubles back
    for (std::size_t i = 2; i < count; ++i) {
        const C3DPoint before = PlanPoint(PointsList, i - 1);
        const C3DPoint corner = PlanPoint(PointsList, i);
        const double radius = PointsList.Item(i).z;
        const double insideAngle = InsideAngle(PointsList, i);
        if (insideAngle > 0) {
            tangent = TangentOfUnitRadius(insideAngle) * radius;
        }
        const double heading = PlanAngle(before, corner);
        const C3DPoint start = PolarPoint(before, heading, Distance3D(before, corner) - tangent);
        const C3DPoint centre = PolarPoint(start, heading - QuarterTurn, radius);
        AddArc(centre, start, radius, insideAngle, inputs.segs, edge);
    }
    edge.Add(PlanPoint(PointsList, count));
    results.ModelSurface = Extruded(std::move(edge), PlateWidth);
    PointsList.Item(1).z = PlateWidth;
    PointsList.Item(count).z = PlateWidth;
}

}  // namespace korvet
