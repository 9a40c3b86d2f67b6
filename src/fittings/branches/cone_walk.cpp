#include "fittings/branches/cone_walk.h"

#include <cmath>

#include "core/checked.h"
#include "core/math_module.h"

namespace korvet {
namespace {

constexpr double FirstStep = 0.01;  ///< as a part of the frustum's height
constexpr double ShrinkFactor = 0.5;
constexpr double Tolerance = 1e-05;
constexpr int MostSteps = 20000;

/// How far, as a part of the base radius, a rule may start on the wrong side of the wall by rounding.
constexpr double RoundingBand = 1e-9;

/// A point of the rule, and the wall over it.
struct Probe {
    double d = 0;  ///< from the start of the rule
    C3DPoint p;
    double height = 0;
};

class Walk {
  public:
    Walk(const WalkedCone& cone, const C3DPoint& from, const C3DPoint& to)
        : cone_(cone), from_(from), to_(to), length_(Distance3D(from, to)) {}

    [[nodiscard]] double Length() const { return length_; }

    [[nodiscard]] Probe At(double d) const {
        const C3DPoint p = PointAlongRule(d);
        return {d, p, ConeHeightAt(cone_, p)};
    }

    /// Below the wall. Beside the base circle there is none, though the height grows again there.
    [[nodiscard]] bool IsInside(const Probe& probe) const {
        const C3DPoint& p = probe.p;
        return p.z < probe.height && p.x * p.x + p.y * p.y <= cone_.baseRadius * cone_.baseRadius;
    }

    /// Whether the walk has gone too far at a point at which it stopped.
    [[nodiscard]] bool IsPast(const Probe& probe) const {
        return probe.p.z > probe.height || Distance3D({}, probe.p) > cone_.baseRadius;
    }

    [[nodiscard]] bool IsOutside(const Probe& probe) const {
        const double slack = RoundingBand * cone_.baseRadius;
        return probe.p.z - probe.height > slack ||
               Hypotenuse(probe.p.x, probe.p.y) - cone_.baseRadius > slack;
    }

  private:
    [[nodiscard]] C3DPoint PointAlongRule(double d) const {
        return {from_.x + ((to_.x - from_.x) * d) / length_, from_.y + ((to_.y - from_.y) * d) / length_,
                from_.z + ((to_.z - from_.z) * d) / length_, PlainStation};
    }

    WalkedCone cone_;
    C3DPoint from_;
    C3DPoint to_;
    double length_;
};

void RequireStart(const Walk& walk, const Probe& start) {
    if (walk.IsOutside(start)) {
        throw ArithmeticError("the pipe starts outside the cone");
    }
}

}  // namespace

void RequireWalkable(double height) {
    if (!(height * FirstStep > Tolerance)) {
        throw ArithmeticError("the cone is too low for a pipe");
    }
}

/// As far as the point lies in from the base circle, by the slope of the wall.
double ConeHeightAt(const WalkedCone& cone, const C3DPoint& point) {
    const C3DPoint rim = PolarPoint({}, PlanAngle({}, point), cone.baseRadius);
    return Quotient(cone.apexHeight, cone.baseRadius) * Distance3D({point.x, point.y, 0, PlainStation}, rim);
}

C3DPoint FindConeIntersection(const WalkedCone& cone, const C3DPoint& inside, const C3DPoint& outside) {
    RequireWalkable(cone.height);
    const Walk walk(cone, inside, outside);
    if (!(walk.Length() > 0)) {
        throw ArithmeticError("the pipe length is too short: a pipe of length 0 has no wall");
    }
    double step = cone.height * FirstStep;
    Probe probe = walk.At(0);
    RequireStart(walk, probe);
    Probe before = probe;
    int steps = 0;
    while (step > Tolerance) {
        while (walk.IsInside(probe)) {
            if (steps == MostSteps) {
                throw ArithmeticError("the pipe does not come out of the cone");
            }
            before = probe;
            probe = walk.At(probe.d + step);
            ++steps;
        }
        step *= ShrinkFactor;
        if (walk.IsPast(probe)) {
            probe = before;
        }
    }
    return probe.p;
}

}  // namespace korvet
