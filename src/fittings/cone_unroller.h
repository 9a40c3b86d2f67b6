// The right circular cone that fittings are cut from: points on its wall, and the wall laid flat about its
// apex.
#pragma once

#include "core/points.h"
#include "fittings/plane_cut.h"

namespace korvet {

/// A cone on the axis z: its base circle lies about the origin, its apex above. Lengths in the user's unit.
/// The three belong together, tan(halfAngle) = baseRadius / apexHeight; who drives a cone by two of them
/// works out the third in its own way.
struct Cone {
    double baseRadius = 0;
    double apexHeight = 0;
    double halfAngle = 0;  ///< at the apex, between axis and wall; radians
};

/// The apex, flag 0.
C3DPoint ApexOf(const Cone& cone);

/// The slant, the distance from the apex along a generator, at which the one at plan angle t (radians) meets
/// a plane, which falls towards +x for a tilt above 0. Throws ArithmeticError when the two are parallel.
double SlantToPlane(const Cone& cone, double t, CutPlane plane);

/// The point of the generator at plan angle t (radians) at a slant from the apex; flag 0.
C3DPoint PointAtSlant(const Cone& cone, double t, double slant);

/// The point of the generator at plan angle t (radians) on a plane; flag 0.
C3DPoint PointOnPlane(const Cone& cone, double t, CutPlane plane);

/// Lays the wall of a cone flat. The apex comes to the origin, the generator at plan angle 0 along +x, the
/// others counter-clockwise from there; an arc of the base circle keeps its length on the slant height.
class ConeUnroller {
  public:
    /// Throws ArithmeticError for a cone without slant height, by the first angle.
    explicit ConeUnroller(const Cone& cone);

    /// The flat angle of a plan angle, radians: for single points of the wall, such as those of a hole.
    [[nodiscard]] double FlatAngle(double planAngle) const;

    /// The flat angle of the next station of an edge that is walked through counter-clockwise: a plan angle
    /// (radians) below that of the station before is one of the turn that follows.
    double NextFlatAngle(double planAngle);

    /// Distance of a point of the wall from the apex, in the user's unit.
    [[nodiscard]] double Slant(const C3DPoint& point) const;

    /// Where a point of the wall at this flat angle (radians) comes to lie; with its flag.
    [[nodiscard]] C3DPoint Flat(const C3DPoint& point, double flatAngle) const;

  private:
    C3DPoint apex_;
    double circumference_;
    double slantHeight_;
    double planAngle_ = 0;  ///< of the station before
};

}  // namespace korvet
