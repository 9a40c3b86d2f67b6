// What tests read off the pieces of a breech: where an edge breaks, how long it is between the breaks, and
// whether a cut file holds all of its points.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "core/math_module.h"
#include "core/rule_surf.h"
#include "exchange/dxf.h"
#include "tests/exchange/dxf_reading.h"

namespace korvet {

/// The stations at which an edge breaks, from 1: both ends of its ridge.
inline std::vector<std::size_t> RidgeStations(const C3DPoints& edge) {
    std::vector<std::size_t> stations;
    for (std::size_t i = 1; i <= edge.Count(); ++i) {
        if (edge.Item(i).Flag == CornerRuleStation) {
            stations.push_back(i);
        }
    }
    return stations;
}

/// The length of an edge between two of its stations.
inline double LengthBetween(const C3DPoints& edge, std::size_t first, std::size_t last) {
    double length = 0;
    for (std::size_t i = first; i < last; ++i) {
        length += Distance3D(edge.Item(i), edge.Item(i + 1));
    }
    return length;
}

/// The lengths of a cut that breaks at a ridge: beyond the ridge, and on the side where its stations begin
/// and end.
struct CutLengths {
    double far;
    double near;
};

inline CutLengths LengthsOfCut(const C3DPoints& cut) {
    const std::vector<std::size_t> ridge = RidgeStations(cut);
    if (ridge.size() != 2) {
        ADD_FAILURE() << "the cut has " << ridge.size() << " ends of a ridge";
        return {};
    }
    const double far = LengthBetween(cut, ridge[0], ridge[1]);
    return {far, LengthBetween(cut, 1, cut.Count()) - far};
}

/// Every point of every pattern lies on a line or an arc of the cut file, to a thousandth.
inline void ExpectCutFileKeepsPoints(const CRuleSurfs& patterns) {
    CDXF dxf;
    dxf.Pattern = true;
    dxf.CutLayer = "CUT";
    dxf.OutlinesRequested = true;
    dxf.SurfaceList = patterns;
    std::vector<dxf_reading::Course> courses;
    for (const dxf_reading::Entity& entity : dxf_reading::ReadEntities(dxf.Text())) {
        courses.emplace_back(entity);
    }
    for (const CRuleSurf& pattern : patterns) {
        for (const PointList& edge : {pattern.List1, pattern.List2}) {
            for (const C3DPoint& point : *edge) {
                const bool kept = std::any_of(
                    courses.begin(), courses.end(),
                    [&](const dxf_reading::Course& course) { return course.DistanceTo(point) <= 0.001; });
                EXPECT_TRUE(kept) << point.x << " " << point.y;
            }
        }
    }
}

}  // namespace korvet
