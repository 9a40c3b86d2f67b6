// What tests read off the stretch-out of an oval pipe.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "core/points.h"

namespace korvet {

/// An edge of a stretch-out that begins on a half circle, at one end of the section's short axis.
struct OvalEdge {
    double radius;    ///< of the half circles
    double straight;  ///< length of a straight side
    double middle;    ///< height of the cut on the axis of the pipe
    double crest;     ///< how much higher the cut is at its first station, lower when below 0
};

/// Over each half circle the edge is the sine curve of a plane cut, over the straight sides it is level, and
/// in all it is as long as the section is round.
inline void ExpectSineBetweenLevels(const C3DPoints& edge, const OvalEdge& cut) {
    constexpr double NearOnSheet = 1e-7;
    const std::size_t segs = (edge.Count() - 3) / 2;
    ASSERT_EQ(edge.Count(), 2 * segs + 3);
    const double halfCircle = std::numbers::pi * cut.radius;
    for (std::size_t i = 1; i <= segs + 1; ++i) {
        const double arc = static_cast<double>(i - 1) / static_cast<double>(segs) * halfCircle;
        const double rise = cut.crest * std::cos(arc / cut.radius);
        EXPECT_NEAR(edge.Item(i).x, arc, NearOnSheet);
        EXPECT_NEAR(edge.Item(i).y, cut.middle + rise, NearOnSheet);
        EXPECT_NEAR(edge.Item(i + segs + 1).x, halfCircle + cut.straight + arc, NearOnSheet);
        EXPECT_NEAR(edge.Item(i + segs + 1).y, cut.middle - rise, NearOnSheet);
    }
    EXPECT_NEAR(edge.Item(segs + 2).y, edge.Item(segs + 1).y, NearOnSheet);
    EXPECT_NEAR(edge.Last().x, 2 * halfCircle + 2 * cut.straight, NearOnSheet);
    EXPECT_NEAR(edge.Last().y, edge.Item(2 * segs + 2).y, NearOnSheet);
}

}  // namespace korvet
