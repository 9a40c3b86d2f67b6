#include "platform/lines_once.h"

#include "core/number_hash.h"

namespace korvet {
namespace {

/// Lines that lie on one another mostly come soon after one another.
constexpr std::size_t LinesKept = 100000;

/// Whether b lies on the straight way from a to c.
bool IsOnTheWay(PixelPoint a, PixelPoint b, PixelPoint c) {
    const double x1 = static_cast<double>(b.x) - a.x;
    const double y1 = static_cast<double>(b.y) - a.y;
    const double x2 = static_cast<double>(c.x) - b.x;
    const double y2 = static_cast<double>(c.y) - b.y;
    return x1 * y2 == x2 * y1 && x1 * x2 + y1 * y2 >= 0;
}

}  // namespace

std::size_t LinesOnce::HashOfKey::operator()(const Key& key) const {
    return HashOfNumbers(key);
}

void LinesOnce::Straighten(std::span<const PixelPoint> points) {
    line_.clear();
    for (const PixelPoint point : points) {
        const std::size_t count = line_.size();
        if (count > 1 && IsOnTheWay(line_[count - 2], line_[count - 1], point)) {
            line_.back() = point;
        } else {
            line_.push_back(point);
        }
    }
}

std::span<const PixelPoint> LinesOnce::Take(const Pen& pen, std::span<const PixelPoint> points) {
    if (pen.ForeColor != color_ || taken_.size() == LinesKept) {
        color_ = pen.ForeColor;
        taken_.clear();
    }
    Straighten(points);
    key_ = {static_cast<std::int32_t>(pen.Style), pen.DrawWidth};
    for (const PixelPoint point : line_) {
        key_.push_back(point.x);
        key_.push_back(point.y);
    }
    return taken_.insert(key_).second ? std::span<const PixelPoint>(line_) : std::span<const PixelPoint>();
}

}  // namespace korvet
