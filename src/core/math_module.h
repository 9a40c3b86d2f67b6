// Plane and solid geometry of the whole program. Angles are radians unless a name says degrees; lengths are
// in the user's unit. There is no vector type: everything is points, plan angles and distances.
#pragma once

#include <optional>

#include "core/points.h"

namespace korvet {

/// A plain pair of coordinates, used inside rotation.
struct Point2D {
    double u = 0;
    double v = 0;
};

/// The point at distance d (negative: backwards) from p along plan angle a: x + d cos a, y + d sin a, z of p.
/// Flag of the result is 0.
C3DPoint PolarPoint(const C3DPoint& p, double a, double d);
Point2D PolarPoint2D(Point2D c, double a, double d);

/// value * (PI / 180).
double DegToRad(double value);

/// (value * 180) / PI.
double RadToDeg(double value);

/// Distance in space.
double Distance3D(const C3DPoint& a, const C3DPoint& b);
double Distance2D(Point2D a, Point2D b);

double AbsValue(double value);

/// Plan angle of the vector from a to b, counter-clockwise from +x, from 0 to below a full turn, never
/// negative; 0 when the points coincide in plan. z is ignored. Comparisons with 0 are exact.
double PlanAngle(const C3DPoint& a, const C3DPoint& b);
double PlanAngle2D(Point2D a, Point2D b);

/// Arc cosine, 0 to PI. A value that rounds to 1 or -1 at 8 decimals counts as such, which takes in what the
/// law of cosines leaves a rounding above 1. Throws ArithmeticError beyond that band.
double ArcCos(double x);

/// Arc sine, -QuarterTurn to QuarterTurn. There is no band here: throws ArithmeticError for |x| above 1.
double ArcSin(double x);

/// Angle opposite side a of the triangle with sides a, b, c (law of cosines), 0 when a side is 0. A side
/// whose single-precision value lies strictly between -1e-08 and 1e-08 becomes exactly 0 in the caller's
/// variable too. Throws ArithmeticError when the sides cannot close.
double TriangleAngle(double& a, double& b, double& c);

/// The same angle for laying a surface flat, where the small angles of many narrow triangles add up:
/// TriangleAngle's, but where its cosine rounds to 1 or -1 at 8 decimals (below 1e-04, above PI - 1e-04) it
/// is worked out from the sides' differences and comes out right to the digits that they leave. A side within
/// 1e-12 of the perimeter of the sum or the difference of the other two makes the angle 0 or PI. Sides snap
/// as in TriangleAngle. Throws ArithmeticError when the sides cannot close.
double UnfoldingAngle(double& a, double& b, double& c);

/// sqrt(a * a + b * b).
double Hypotenuse(double a, double b);

/// The other leg of a right triangle with leg a and hypotenuse b: sqrt(b * b - a * a). Throws ArithmeticError
/// when the leg is longer than the hypotenuse.
double OtherLeg(double a, double b);

/// What Inters finds.
struct Crossing {
    std::optional<C3DPoint> point;  ///< nothing when the rays do not meet
    bool zPresent = false;          ///< a point lay outside the plan: the caller warns with IntersZWarning
};

inline constexpr const char* IntersZWarning = "Error in MathModule:Inters 'Z value present'";

/// Crossing of the ray from p2 through p1 with the ray from p4 through p3, by the sine rule on the triangle
/// p2, p4, crossing. p1 must be reached counter-clockwise from p4 as seen from p2, and p3 clockwise from p2
/// as seen from p4; with the rays the other way round the result is not the crossing. Only x and y are used.
Crossing Inters(const C3DPoint& p1, const C3DPoint& p2, const C3DPoint& p3, const C3DPoint& p4);

/// The mean of two points in x, y and z; Flag 0.
C3DPoint MidPoint(const C3DPoint& a, const C3DPoint& b);

/// Distance from the centre of an ellipse (semi-axis a along x, b along y) to its edge on the ray at polar
/// angle t; 0 when a semi-axis is 0. Within 1e-08 of a quarter or three quarter turns it is |b| outright.
double EllipseRadius(double a, double b, double t);

}  // namespace korvet
