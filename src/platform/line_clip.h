// Lines cut to what a picture shows: a painter takes its time, or gives up, on points a million pixels away.
#pragma once

#include <span>
#include <vector>

#include "display/drawing_device.h"

namespace korvet {

struct ClippedPoint {
    double x = 0;
    double y = 0;
};

/// A line of two or more points.
using ClippedLine = std::vector<ClippedPoint>;

/// The parts of the line through the points that lie within `margin` pixels about the rectangle from (0, 0)
/// to the size.
std::vector<ClippedLine> ClipLine(std::span<const PixelPoint> points, PixelSize size, double margin);

}  // namespace korvet
