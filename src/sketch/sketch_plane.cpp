#include "sketch/sketch_plane.h"

#include <algorithm>
#include <cmath>

namespace korvet {
namespace {

/// Narrows the stretch of a segment to one strip: from + t * step between low and high.
bool ClipToStrip(double from, double step, double low, double high, std::pair<double, double>& stretch) {
    if (step == 0) {
        return from > low && from < high;
    }
    const double t0 = (low - from) / step;
    const double t1 = (high - from) / step;
    stretch.first = std::max(stretch.first, std::min(t0, t1));
    stretch.second = std::min(stretch.second, std::max(t0, t1));
    return stretch.first < stretch.second;
}

/// Which side of the line through a segment a point lies on, by sign.
double SideOf(const SketchSegment& segment, SketchXY point) {
    const SketchXY along = segment.b - segment.a;
    const SketchXY to = point - segment.a;
    return along.x * to.y - along.y * to.x;
}

/// The stretches of a segment outside all rectangles.
std::vector<std::pair<double, double>> Outside(const SketchSegment& segment,
                                               const std::vector<SketchRect>& rects) {
    std::vector<std::pair<double, double>> covered;
    for (const SketchRect& rect : rects) {
        if (const auto stretch = StretchInside(segment, rect)) {
            covered.push_back(*stretch);
        }
    }
    std::sort(covered.begin(), covered.end());
    std::vector<std::pair<double, double>> open;
    double from = 0;
    for (const auto& [start, end] : covered) {
        if (start > from) {
            open.emplace_back(from, start);
        }
        from = std::max(from, end);
    }
    if (from < 1) {
        open.emplace_back(from, 1);
    }
    return open;
}

}  // namespace

double Length(SketchXY p) {
    return std::hypot(p.x, p.y);
}

SketchXY Direction(SketchXY p) {
    const double length = Length(p);
    return length > 0 ? p * (1 / length) : SketchXY{1, 0};
}

SketchRect Inflated(const SketchRect& rect, double by) {
    return {rect.x - by, rect.y - by, rect.width + 2 * by, rect.height + 2 * by};
}

SketchXY CentreOf(const SketchRect& rect) {
    return {rect.x + rect.width / 2, rect.y + rect.height / 2};
}

SketchRect RectAbout(SketchXY centre, SketchXY size) {
    return {centre.x - size.x / 2, centre.y - size.y / 2, size.x, size.y};
}

double Extent(SketchXY size, SketchXY direction) {
    return std::abs(size.x * direction.x) + std::abs(size.y * direction.y);
}

SketchRect Union(const SketchRect& a, const SketchRect& b) {
    const double left = std::min(a.x, b.x);
    const double top = std::min(a.y, b.y);
    return {left, top, std::max(a.x + a.width, b.x + b.width) - left,
            std::max(a.y + a.height, b.y + b.height) - top};
}

SketchRect Union(const SketchRect& a, SketchXY point) {
    return Union(a, SketchRect{point.x, point.y, 0, 0});
}

SketchXY ClosestPoint(const SketchRect& rect, SketchXY to) {
    return {std::clamp(to.x, rect.x, rect.x + rect.width), std::clamp(to.y, rect.y, rect.y + rect.height)};
}

std::optional<std::pair<double, double>> StretchInside(const SketchSegment& segment, const SketchRect& rect) {
    std::pair<double, double> stretch = {0, 1};
    const SketchXY step = segment.b - segment.a;
    if (ClipToStrip(segment.a.x, step.x, rect.x, rect.x + rect.width, stretch) &&
        ClipToStrip(segment.a.y, step.y, rect.y, rect.y + rect.height, stretch)) {
        return stretch;
    }
    return std::nullopt;
}

bool RunsThrough(const SketchLine& line, const SketchRect& rect) {
    for (std::size_t i = 0; i + 1 < line.points.size(); ++i) {
        if (StretchInside({line.points[i], line.points[i + 1]}, rect)) {
            return true;
        }
    }
    return false;
}

bool Cross(const SketchSegment& a, const SketchSegment& b) {
    return SideOf(a, b.a) * SideOf(a, b.b) < 0 && SideOf(b, a.a) * SideOf(b, a.b) < 0;
}

std::vector<SketchLine> CutAround(const SketchLine& line, const std::vector<SketchRect>& rects) {
    std::vector<SketchLine> pieces;
    bool joined = false;  // the last piece goes on into the next segment
    for (std::size_t i = 0; i + 1 < line.points.size(); ++i) {
        const SketchSegment segment = {line.points[i], line.points[i + 1]};
        const SketchXY step = segment.b - segment.a;
        for (const auto& [from, to] : Outside(segment, rects)) {
            if (!joined || from > 0) {
                pieces.push_back({.kind = line.kind, .points = {segment.a + step * from}});
                pieces.back().arrowAtStart = line.arrowAtStart && i == 0 && from == 0;
            }
            pieces.back().points.push_back(segment.a + step * to);
            joined = to == 1;
        }
        joined = joined && !pieces.empty() && pieces.back().points.back() == segment.a + step;
    }
    if (joined) {
        pieces.back().arrowAtEnd = line.arrowAtEnd;
    }
    return pieces;
}

}  // namespace korvet
