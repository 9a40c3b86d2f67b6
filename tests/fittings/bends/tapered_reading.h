// What tests read off the pieces of a tapered bend or elbow, by the geometry of its centre line alone.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/math_module.h"
#include "core/rule_surf.h"
#include "tests/support/flat_area.h"
#include "tests/support/point_lists.h"

namespace korvet {

/// The centre line of one piece, in the plane of x and z: a point of it, how far along the whole centre line
/// that lies, and where it goes (radians from +z towards -x).
struct CentreLineOfPiece {
    double x;
    double z;
    double along;
    double turn;
};

/// How far the way from the wide end has come beside a point of a piece.
inline double AlongCentreLine(const C3DPoint& p, const CentreLineOfPiece& line) {
    return line.along - (p.x - line.x) * std::sin(line.turn) + (p.z - line.z) * std::cos(line.turn);
}

/// Distance of a point from the centre line.
inline double OffCentreLine(const C3DPoint& p, const CentreLineOfPiece& line) {
    return std::hypot((p.x - line.x) * std::cos(line.turn) + (p.z - line.z) * std::sin(line.turn), p.y);
}

/// The largest distance of the points of an edge from the polyline of another one.
inline double LargestGap(const C3DPoints& edge, const C3DPoints& other) {
    double largest = 0;
    for (const C3DPoint& p : edge) {
        double gap = Distance3D(p, other.Item(1));
        for (std::size_t i = 1; i < other.Count(); ++i) {
            const C3DPoint& a = other.Item(i);
            const C3DPoint& b = other.Item(i + 1);
            const C3DPoint ab = {b.x - a.x, b.y - a.y, b.z - a.z};
            const double length2 = ab.x * ab.x + ab.y * ab.y + ab.z * ab.z;
            const double dot = (p.x - a.x) * ab.x + (p.y - a.y) * ab.y + (p.z - a.z) * ab.z;
            const double f = length2 > 0 ? std::clamp(dot / length2, 0.0, 1.0) : 0.0;
            gap = std::min(gap, Distance3D(p, {a.x + f * ab.x, a.y + f * ab.y, a.z + f * ab.z}));
        }
        largest = std::max(largest, gap);
    }
    return largest;
}

/// How far a chord of an ellipse may run inside it, when the ellipse goes through the points of an edge that
/// is symmetric about y = 0: sagitta of the longest chord on the sharpest bend, a / b^2. Its first point and
/// the one half way round are the ends of one axis.
inline double SagittaOfEllipse(const C3DPoints& edge) {
    double chord = 0;
    double across = 0;
    for (std::size_t i = 1; i <= edge.Count(); ++i) {
        across = std::max(across, std::fabs(edge.Item(i).y));
        if (i > 1) {
            chord = std::max(chord, Distance3D(edge.Item(i - 1), edge.Item(i)));
        }
    }
    const double along = Distance3D(edge.Item(1), edge.Item(edge.Count() / 2 + 1)) / 2;
    const double a = std::max(along, across);
    const double b = std::min(along, across);
    return chord * chord / 8 * a / (b * b);
}

/// The lateral area of a cone between two circles, `length` apart on its axis.
inline double FrustumArea(double bigRadius, double smallRadius, double length) {
    return std::numbers::pi * (bigRadius + smallRadius) * std::hypot(bigRadius - smallRadius, length);
}

/// With no kerf the patterns lie one inside the other as on the cone: the lower edge of each on the upper one
/// of the piece before.
inline void ExpectNested(const CRuleSurfs& patterns, double near) {
    for (std::size_t i = 1; i < patterns.Count(); ++i) {
        const C3DPoints& upper = *patterns.Item(i).List1;
        const C3DPoints& lower = *patterns.Item(i + 1).List2;
        ASSERT_EQ(upper.Count(), lower.Count());
        for (std::size_t k = 1; k <= upper.Count(); ++k) {
            EXPECT_LT(Distance3D(upper.Item(k), lower.Item(k)), near) << i << " " << k;
        }
    }
}

/// The rulings of a whole pattern lie on rays from the apex at the origin, evenly over the sector that a cone
/// unrolls to: a full turn times the sine of its half angle.
inline void ExpectSectorOfCone(const CRuleSurf& pattern, double sinHalfAngle, double near) {
    const std::size_t last = pattern.List1->Count();
    for (std::size_t i = 1; i <= last; ++i) {
        const double expected =
            2 * std::numbers::pi * sinHalfAngle * static_cast<double>(i - 1) / static_cast<double>(last - 1);
        for (const C3DPoint& p : {pattern.List1->Item(i), pattern.List2->Item(i)}) {
            EXPECT_NEAR(std::remainder(std::atan2(p.y, p.x) - expected, 2 * std::numbers::pi), 0, near) << i;
        }
    }
}

}  // namespace korvet
