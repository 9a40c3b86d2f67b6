#include "sketch/solid_places.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

#include "sketch/sketch_plane.h"

namespace korvet {
namespace {

constexpr std::size_t SmallGroup = 4;

SketchXY Across(const SketchXY& along) {
    return {-along.y, along.x};
}

/// The smallest rectangle in this direction about points.
template <typename Points>
SolidPlace PlaceAlong(const SketchXY& along, const Points& points) {
    constexpr double Far = std::numeric_limits<double>::infinity();
    double left = Far;
    double right = -Far;
    double low = Far;
    double high = -Far;
    for (const SketchXY& point : points) {
        const double u = Dot(point, along);
        const double v = Dot(point, Across(along));
        left = std::min(left, u);
        right = std::max(right, u);
        low = std::min(low, v);
        high = std::max(high, v);
    }
    const double u = (left + right) / 2;
    const double v = (low + high) / 2;
    return {
        {u * along.x - v * along.y, u * along.y + v * along.x}, along, (right - left) / 2, (high - low) / 2};
}

std::array<SketchXY, 4> CornersOf(const SolidPlace& place) {
    const auto corner = [&](double length, double width) {
        return SketchXY{place.middle.x + length * place.along.x - width * place.along.y,
                        place.middle.y + length * place.along.y + width * place.along.x};
    };
    return {corner(-place.halfLength, -place.halfWidth), corner(place.halfLength, -place.halfWidth),
            corner(place.halfLength, place.halfWidth), corner(-place.halfLength, place.halfWidth)};
}

/// The direction with twice the angle of (x, y) halved: the one in which lines lie that were added up so.
SketchXY Halved(double x, double y) {
    const double length = std::hypot(x, y);
    if (length == 0) {
        return {1, 0};
    }
    const double cosine = std::sqrt(std::max(0.0, (1 + x / length) / 2));
    const double sine = std::sqrt(std::max(0.0, (1 - x / length) / 2));
    return {cosine, y < 0 ? -sine : sine};
}

}  // namespace

SolidPlace SolidPlace::About(const std::vector<SketchXY>& points) {
    SketchXY along = {1, 0};
    double longest = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const SketchXY& p = points[i];
        const SketchXY& q = points[(i + 1) % points.size()];
        const double length = Length(q - p);
        if (length > longest) {
            longest = length;
            along = {(q.x - p.x) / length, (q.y - p.y) / length};
        }
    }
    return PlaceAlong(along, points);
}

/// Two rectangles lie apart when they do so along or across one of them.
bool SolidPlace::Meets(const SolidPlace& other) const {
    const SketchXY apart = {other.middle.x - middle.x, other.middle.y - middle.y};
    const double cosine = std::fabs(Dot(along, other.along));
    const double sine = std::fabs(Dot(Across(along), other.along));
    return std::fabs(Dot(apart, along)) < halfLength + other.halfLength * cosine + other.halfWidth * sine &&
           std::fabs(Dot(apart, Across(along))) <
               halfWidth + other.halfLength * sine + other.halfWidth * cosine &&
           std::fabs(Dot(apart, other.along)) < other.halfLength + halfLength * cosine + halfWidth * sine &&
           std::fabs(Dot(apart, Across(other.along))) <
               other.halfWidth + halfLength * sine + halfWidth * cosine;
}

PlaceTree::PlaceTree(std::vector<SolidPlace> places) : places_(std::move(places)), order_(places_.size()) {
    std::iota(order_.begin(), order_.end(), std::size_t{0});
    if (!order_.empty()) {
        AddGroup(0, order_.size());
    }
}

/// About a group, in the direction that most of its members lie in.
SolidPlace PlaceTree::PlaceOf(std::size_t first, std::size_t end) const {
    SketchXY doubled;
    std::vector<SketchXY> corners;
    for (std::size_t i = first; i < end; ++i) {
        const SolidPlace& place = places_[order_[i]];
        const double weight = place.halfLength * place.halfLength - place.halfWidth * place.halfWidth;
        doubled.x += weight * (place.along.x * place.along.x - place.along.y * place.along.y);
        doubled.y += weight * 2 * place.along.x * place.along.y;
        for (const SketchXY& corner : CornersOf(place)) {
            corners.push_back(corner);
        }
    }
    return PlaceAlong(Halved(doubled.x, doubled.y), corners);
}

/// Halves a large group in the direction in which its members lie farthest apart.
void PlaceTree::AddGroup(std::size_t first, std::size_t end) {
    const std::size_t number = groups_.size();
    groups_.push_back({PlaceOf(first, end), first, end, number + 1});
    if (end - first <= SmallGroup) {
        return;
    }
    const auto at = [&](std::size_t i) { return order_.begin() + static_cast<std::ptrdiff_t>(i); };
    std::vector<SketchXY> middles;
    for (std::size_t i = first; i < end; ++i) {
        middles.push_back(places_[order_[i]].middle);
    }
    const SketchXY along = groups_[number].place.along;
    const SolidPlace spread = PlaceAlong(along, middles);
    const SketchXY direction = spread.halfLength >= spread.halfWidth ? along : Across(along);
    const std::size_t half = first + (end - first) / 2;
    std::nth_element(at(first), at(half), at(end), [&](std::size_t a, std::size_t b) {
        return Dot(places_[a].middle, direction) < Dot(places_[b].middle, direction);
    });
    AddGroup(first, half);
    AddGroup(half, end);
    groups_[number].next = groups_.size();
}

PlaceTree::Found PlaceTree::Meeting(const SolidPlace& place) const {
    Found found;
    for (std::size_t i = 0; i < groups_.size();) {
        const Group& group = groups_[i];
        ++found.compared;
        const bool meets = group.place.Meets(place);
        if (meets && group.end - group.first <= SmallGroup) {
            for (std::size_t k = group.first; k < group.end; ++k) {
                ++found.compared;
                if (places_[order_[k]].Meets(place)) {
                    found.numbers.push_back(order_[k]);
                }
            }
        }
        i = meets ? i + 1 : group.next;
    }
    std::sort(found.numbers.begin(), found.numbers.end());
    return found;
}

}  // namespace korvet
