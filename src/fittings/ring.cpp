#include "fittings/ring.h"

#include "core/math_module.h"

namespace korvet {

PointList CirclePoints(const Ring& ring, const C3DPoint& centre, double radius) {
    auto points = std::make_shared<C3DPoints>();
    points->Reserve(ring.Count() + 1);  // with the end of a seam lap
    for (const Station& station : ring) {
        points->Add(PolarPoint(centre, station.angle, radius)).Flag = station.flag;
    }
    return points;
}

}  // namespace korvet
