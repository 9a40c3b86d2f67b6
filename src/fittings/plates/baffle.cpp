#include "fittings/plates/baffle.h"

#include <cmath>
#include <memory>

#include "core/checked.h"
#include "core/math_module.h"
#include "fittings/ring.h"

namespace korvet {
namespace {

/// The cosine of a tilt that is a quarter turn but for its last digits.
constexpr double AlongThePipe = 1e-12;

}  // namespace

/// A line along x from the left to the right side of the plate.
PointList CBaffle::EdgeAt(double y, double z, std::int16_t flag) const {
    auto edge = std::make_shared<C3DPoints>();
    edge->Add({-CenterDistanceX, y, z, flag});
    edge->Add({LengthX - CenterDistanceX, y, z, flag});
    return edge;
}

/// The plate lies in z = tan(CPAngle1) y, and the hole below or above the circle of the pipe.
PointList CBaffle::BuildModelHole() const {
    PointList hole = CirclePoints(RuledRing(0, inputs.segs), {}, BaseRad);
    for (C3DPoint& point : *hole) {
        point.z = std::tan(CPAngle1) * point.y;
    }
    return hole;
}

PointList CBaffle::BuildPatternHole() const {
    const double radiusY = CPAngle1 == 0 ? BaseRad : Quotient(BaseRad, std::cos(CPAngle1));
    auto hole = std::make_shared<C3DPoints>();
    for (const Station& station : RuledRing(0, inputs.segs)) {
        const double radius = EllipseRadius(BaseRad, radiusY, station.angle);
        hole->Add(PolarPoint({}, station.angle, radius)).Flag = station.flag;
    }
    return hole;
}

void CBaffle::ConstructModel() {
    if (std::fabs(std::cos(CPAngle1)) < AlongThePipe) {
        throw ArithmeticError("a plate at 90 degrees stands along the pipe, which does not pass through it");
    }
    const auto edge = [this](double across) {
        const double y = std::cos(CPAngle1) * across;
        return EdgeAt(y, std::tan(CPAngle1) * y, PlainStation);
    };
    results.ModelSurface = CRuleSurf();
    results.ModelSurface.List1 = edge(-CenterDistanceY);
    results.ModelSurface.List2 = edge(LengthY - CenterDistanceY);
    results.ModelSurface.List3 = BuildModelHole();
}

void CBaffle::DevelopModel() {
    ConstructModel();
    results.PatternSurface = CRuleSurf();
    results.PatternSurface.List1 = EdgeAt(CenterDistanceY, 0, RuleStation);
    results.PatternSurface.List2 = EdgeAt(-(LengthY - CenterDistanceY), 0, RuleStation);
    results.PatternSurface.List3 = BuildPatternHole();
}

}  // namespace korvet
