#include "fittings/cone_unroller.h"

#include <cmath>

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"

namespace korvet {

C3DPoint ApexOf(const Cone& cone) {
    return {0, 0, cone.apexHeight, PlainStation};
}

/// In the section through the axis along +x, the apex, the point of the plane on the axis and the point of
/// the generator's projection make a triangle with side H - h and the angles d (half angle of the section), b
/// and g:
///     L / sin b = (H - h) / sin g
/// and L, which lies in the section, is L cos d high and so L cos d / cos a long on the generator itself.
double SlantToPlane(const Cone& cone, double t, CutPlane plane) {
    const double d = std::atan(Quotient(cone.baseRadius * std::cos(t), cone.apexHeight));
    const double b = plane.tilt + QuarterTurn;
    const double g = PI - (b + d);
    const double L = Quotient((cone.apexHeight - plane.height) * std::sin(b), std::sin(g));
    return Quotient(L * std::cos(d), std::cos(cone.halfAngle));
}

/// sin a * slant out, cos a * slant down from the apex.
C3DPoint PointAtSlant(const Cone& cone, double t, double slant) {
    const double q = std::sin(cone.halfAngle) * slant;
    return {std::cos(t) * q, std::sin(t) * q, cone.apexHeight - std::cos(cone.halfAngle) * slant,
            PlainStation};
}

C3DPoint PointOnPlane(const Cone& cone, double t, CutPlane plane) {
    return PointAtSlant(cone, t, SlantToPlane(cone, t, plane));
}

ConeUnroller::ConeUnroller(const Cone& cone)
    : apex_(ApexOf(cone)),
      circumference_(cone.baseRadius * FullTurn),
      slantHeight_(Hypotenuse(cone.baseRadius, cone.apexHeight)) {}

/// Arc of the base circle over the slant height.
double ConeUnroller::FlatAngle(double planAngle) const {
    return Quotient((planAngle / FullTurn) * circumference_, slantHeight_);
}

/// The angle runs on past a full turn; a seam at 360 degrees takes its last station past two.
double ConeUnroller::NextFlatAngle(double planAngle) {
    const double before = planAngle_;
    planAngle_ = planAngle;
    while (planAngle_ < before) {
        planAngle_ += FullTurn;
    }
    return FlatAngle(planAngle_);
}

double ConeUnroller::Slant(const C3DPoint& point) const {
    return Distance3D(apex_, point);
}

C3DPoint ConeUnroller::Flat(const C3DPoint& point, double flatAngle) const {
    C3DPoint flat = PolarPoint({}, flatAngle, Slant(point));
    flat.Flag = point.Flag;
    return flat;
}

}  // namespace korvet
