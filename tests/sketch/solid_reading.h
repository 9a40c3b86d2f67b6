// Small models, and pictures of models read back.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <vector>

#include "sketch/solid.h"

namespace korvet {

inline constexpr double Close = 1e-9;

inline PointList ListOf(const std::vector<C3DPoint>& points) {
    auto list = std::make_shared<C3DPoints>();
    for (const C3DPoint& point : points) {
        list->Add(point);
    }
    return list;
}

inline CRuleSurf Strip(const std::vector<C3DPoint>& list1, const std::vector<C3DPoint>& list2) {
    CRuleSurf surface;
    surface.List1 = ListOf(list1);
    surface.List2 = ListOf(list2);
    return surface;
}

inline CRuleSurfs Model(const std::vector<CRuleSurf>& surfaces) {
    CRuleSurfs model;
    for (const CRuleSurf& surface : surfaces) {
        model.Add(surface);
    }
    return model;
}

/// A ring of `steps` about the z axis, from +x to +y.
inline std::vector<C3DPoint> Ring(double radius, double z, int steps = 96) {
    std::vector<C3DPoint> points;
    for (int i = 0; i <= steps; ++i) {
        const double t = 2 * std::numbers::pi * i / steps;
        points.push_back({radius * std::cos(t), radius * std::sin(t), z, 0});
    }
    return points;
}

inline std::vector<C3DPoint> Rectangle(double x, double y, double z) {
    return {{-x, -y, z}, {x, -y, z}, {x, y, z}, {-x, y, z}, {-x, -y, z}};
}

/// A straight piece of a line on the picture, its left (or else lower) end first.
struct Segment {
    SketchXY from;
    SketchXY to;
};

inline bool Before(const SketchXY& a, const SketchXY& b) {
    return std::fabs(a.x - b.x) > 1e-6 ? a.x < b.x : a.y < b.y - 1e-6;
}

inline Segment Ordered(const SketchXY& a, const SketchXY& b) {
    return Before(b, a) ? Segment{b, a} : Segment{a, b};
}

inline bool SameSegment(const Segment& a, const Segment& b) {
    return std::hypot(a.from.x - b.from.x, a.from.y - b.from.y) < 1e-6 &&
           std::hypot(a.to.x - b.to.x, a.to.y - b.to.y) < 1e-6;
}

inline std::vector<Segment> Segments(const SolidPicture& picture, bool outline = true) {
    std::vector<Segment> segments;
    for (const SolidEdge& edge : picture.edges) {
        for (std::size_t i = 0; i + 1 < edge.points.size() && edge.outline == outline; ++i) {
            segments.push_back(Ordered(edge.points[i], edge.points[i + 1]));
        }
    }
    return segments;
}

/// Each expected piece is there once, and nothing else is.
inline void ExpectSegments(const std::vector<Segment>& found, const std::vector<Segment>& expected) {
    EXPECT_EQ(found.size(), expected.size());
    for (const Segment& segment : expected) {
        const Segment wanted = Ordered(segment.from, segment.to);
        EXPECT_EQ(std::count_if(found.begin(), found.end(),
                                [&](const Segment& s) { return SameSegment(s, wanted); }),
                  1)
            << "(" << wanted.from.x << ", " << wanted.from.y << ") to (" << wanted.to.x << ", " << wanted.to.y
            << ")";
    }
}

inline bool Contains(const SolidFace& face, const SketchXY& p) {
    int left = 0;
    int right = 0;
    for (std::size_t i = 0; i < face.corners.size(); ++i) {
        const SketchXY& a = face.corners[i];
        const SketchXY& b = face.corners[(i + 1) % face.corners.size()];
        ((b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x) > 0 ? left : right) += 1;
    }
    return left == 0 || right == 0;
}

/// The face that is seen at a place: the one painted last.
inline const SolidFace* SeenAt(const SolidPicture& picture, const SketchXY& place) {
    const auto found = std::find_if(picture.faces.rbegin(), picture.faces.rend(),
                                    [&](const SolidFace& face) { return Contains(face, place); });
    return found == picture.faces.rend() ? nullptr : &*found;
}

}  // namespace korvet
