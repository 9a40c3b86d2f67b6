#include "exchange/box_tree.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>

namespace korvet {
namespace {

constexpr std::size_t LeafItems = 4;

}  // namespace

double DistanceOf(const Bounds& box, double x, double y) {
    const double dx = std::max({box.minX - x, 0.0, x - box.maxX});
    const double dy = std::max({box.minY - y, 0.0, y - box.maxY});
    return std::sqrt(dx * dx + dy * dy);  // asked millions of times, which std::hypot is too careful for
}

BoxTree::BoxTree(std::vector<Bounds> boxes) : boxes_(std::move(boxes)), items_(boxes_.size()) {
    std::iota(items_.begin(), items_.end(), std::size_t{0});
    branches_.reserve(boxes_.size());
    if (!items_.empty()) {
        Grow(0, items_.size());
    }
}

/// Makes the branch of some items, halved across the longer side of their box; its number.
std::size_t BoxTree::Grow(std::size_t begin, std::size_t end) {
    std::optional<Bounds> box;
    for (std::size_t i = begin; i < end; ++i) {
        const Bounds& own = boxes_[items_[i]];
        TakeIn(box, own.minX, own.minY);
        TakeIn(box, own.maxX, own.maxY);
    }
    const std::size_t self = branches_.size();
    branches_.push_back({*box, begin, end, 0});
    if (end - begin <= LeafItems) {
        return self;
    }
    const bool wide = box->maxX - box->minX > box->maxY - box->minY;
    const auto twiceMiddle = [&](std::size_t item) {
        const Bounds& own = boxes_[item];
        return wide ? own.minX + own.maxX : own.minY + own.maxY;
    };
    const std::size_t half = begin + (end - begin) / 2;
    std::nth_element(items_.begin() + static_cast<std::ptrdiff_t>(begin),
                     items_.begin() + static_cast<std::ptrdiff_t>(half),
                     items_.begin() + static_cast<std::ptrdiff_t>(end),
                     [&](std::size_t a, std::size_t b) { return twiceMiddle(a) < twiceMiddle(b); });
    Grow(begin, half);
    const std::size_t second = Grow(half, end);
    branches_[self].second = second;
    return self;
}

}  // namespace korvet
