#include "core/math_module.h"

#include <cmath>

#include "core/constants.h"
#include "core/number_text.h"

namespace korvet {
namespace {

double PlanAngleOf(double dx, double dy) {
    if (dx == 0) {
        if (dy == 0) {
            return 0;
        }
        return dy > 0 ? QuarterTurn : ThreeQuarterTurns;
    }
    const double slope = std::atan(dy / dx);
    if (dx < 0) {
        return slope + PI;
    }
    return dy >= 0 ? slope : slope + FullTurn;
}

/// Whether low < t < high.
bool IsStrictlyBetween(double t, double low, double high) {
    return t > low && t < high;
}

/// A side that is 0 in single precision, within 1e-08, becomes exactly 0.
void SnapSide(double& side) {
    const auto single = static_cast<float>(side);
    if (single > -1e-08 && single < 1e-08) {
        side = 0;
    }
}

/// Snaps the sides of a triangle; whether none of them is 0.
bool SnapSides(double& a, double& b, double& c) {
    SnapSide(a);
    SnapSide(b);
    SnapSide(c);
    return a != 0 && b != 0 && c != 0;
}

/// a^2 = b^2 + c^2 - 2 b c cos A
double TriangleCosine(double a, double b, double c) {
    return Quotient(b * b + c * c - a * a, (b + b) * c);
}

}  // namespace

C3DPoint PolarPoint(const C3DPoint& p, double a, double d) {
    return {p.x + d * std::cos(a), p.y + d * std::sin(a), p.z, PlainStation};
}

Point2D PolarPoint2D(Point2D c, double a, double d) {
    return {c.u + d * std::cos(a), c.v + d * std::sin(a)};
}

double DegToRad(double value) {
    return value * (PI / 180);
}

double RadToDeg(double value) {
    return (value * 180) / PI;
}

double Distance3D(const C3DPoint& a, const C3DPoint& b) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double dz = b.z - a.z;
    return std::sqrt(dx * dx + dy * dy + dz * dz);
}

double Distance2D(Point2D a, Point2D b) {
    const double du = b.u - a.u;
    const double dv = b.v - a.v;
    return std::sqrt(du * du + dv * dv);
}

double AbsValue(double value) {
    return value < 0 ? -value : value;
}

double PlanAngle(const C3DPoint& a, const C3DPoint& b) {
    return PlanAngleOf(b.x - a.x, b.y - a.y);
}

double PlanAngle2D(Point2D a, Point2D b) {
    return PlanAngleOf(b.u - a.u, b.v - a.v);
}

double ArcCos(double x) {
    const double rounded = RoundPlaces(x, 8);
    if (rounded == 1) {
        return 0;
    }
    if (rounded == -1) {
        return PI;
    }
    return std::atan(Quotient(-x, SquareRoot(-x * x + 1))) + 2 * std::atan(1.0);
}

double ArcSin(double x) {
    if (x == 1) {
        return QuarterTurn;
    }
    if (x == -1) {
        return -QuarterTurn;
    }
    return std::atan(Quotient(x, SquareRoot(-x * x + 1)));
}

double TriangleAngle(double& a, double& b, double& c) {
    return SnapSides(a, b, c) ? ArcCos(TriangleCosine(a, b, c)) : 0;
}

/// tan(A / 2) = sqrt((s - b)(s - c) / (s (s - a))), with s half the perimeter and each factor doubled: sides
/// that differ in their last digits alone still tell a small angle from none.
double UnfoldingAngle(double& a, double& b, double& c) {
    if (!SnapSides(a, b, c)) {
        return 0;
    }
    const double cosine = TriangleCosine(a, b, c);
    const double rounded = RoundPlaces(cosine, 8);
    if (rounded > 1 || rounded < -1) {
        throw ArithmeticError("the triangles of the pattern do not close");
    }
    if (rounded != 1 && rounded != -1) {
        return ArcCos(cosine);
    }
    const double perimeter = a + b + c;
    const auto factor = [perimeter](double excess) { return excess < 1e-12 * perimeter ? 0 : excess; };
    const double excessA = factor(b + c - a);
    if (excessA == 0) {
        return PI;
    }
    return 2 * std::atan2(std::sqrt(factor(a - b + c) * factor(a + b - c)), std::sqrt(perimeter * excessA));
}

double Hypotenuse(double a, double b) {
    return std::sqrt(a * a + b * b);
}

double OtherLeg(double a, double b) {
    return SquareRoot(b * b - a * a);
}

Crossing Inters(const C3DPoint& p1, const C3DPoint& p2, const C3DPoint& p3, const C3DPoint& p4) {
    Crossing crossing;
    crossing.zPresent = p1.z != 0 || p2.z != 0 || p3.z != 0 || p4.z != 0;

    const double a1 = PlanAngle(p2, p1);
    const double alpha = a1 - PlanAngle(p2, p4);
    const double beta = PlanAngle(p4, p2) - PlanAngle(p4, p3);
    if (alpha + beta >= PI) {
        return crossing;
    }
    // Sine rule: r / sin(beta) = d / sin(gamma).
    const double d = Distance3D(p2, p4);
    const double gamma = PI - (beta + alpha);
    crossing.point = PolarPoint(p2, a1, Quotient(std::sin(beta) * d, std::sin(gamma)));
    return crossing;
}

C3DPoint MidPoint(const C3DPoint& a, const C3DPoint& b) {
    return {(a.x + b.x) / 2, (a.y + b.y) / 2, (a.z + b.z) / 2, PlainStation};
}

double EllipseRadius(double a, double b, double t) {
    if (a == 0 || b == 0) {
        return 0;
    }
    if (IsStrictlyBetween(t, 1.570796316794895, 1.570796336794895) ||
        IsStrictlyBetween(t, 4.712388970384685, 4.712388990384685)) {
        return std::fabs(b);
    }
    // The parameter angle u of the point at polar angle t has tan u = a tan t / b; its x is a cos u.
    return std::fabs(Quotient(a * std::cos(std::atan(Quotient(a * std::tan(t), b))), std::cos(t)));
}

}  // namespace korvet
