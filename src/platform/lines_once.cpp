#include "platform/lines_once.h"

#include <algorithm>
#include <iterator>

namespace korvet {

std::size_t LinesOnce::HashOfEnds::operator()(const Ends& ends) const {
    constexpr std::uint64_t Prime = 0x100000001B3;
    constexpr unsigned Half = 32;
    std::uint64_t hash = 0xCBF29CE484222325;
    for (const std::int32_t end : ends) {
        hash = (hash ^ static_cast<std::uint32_t>(end)) * Prime;
        hash ^= hash >> Half;
    }
    return static_cast<std::size_t>(hash);
}

std::span<const PixelPoint> LinesOnce::Take(const Pen& pen, std::span<const PixelPoint> points) {
    if (pen != pen_) {
        pen_ = pen;
        taken_.clear();
    }
    line_.clear();
    std::unique_copy(points.begin(), points.end(), std::back_inserter(line_));
    if (line_.size() == 1 && points.size() > 1) {
        line_.push_back(line_.front());  // a dot
    }
    if (line_.size() == 2) {
        const Ends ends = {line_[0].x, line_[0].y, line_[1].x, line_[1].y};
        if (!taken_.insert(ends).second) {
            return {};
        }
    }
    return line_;
}

}  // namespace korvet
