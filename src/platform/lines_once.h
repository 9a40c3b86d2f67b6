// What a picture of vectors or a sheet need not hold: points on straight ways, and lines that lie on one
// another.
#pragma once

#include <cstdint>
#include <span>
#include <unordered_set>
#include <vector>

#include "display/drawing_device.h"

namespace korvet {

/// Thins out the lines of a picture, which looks the same. A fitting with a million bend lines has a few
/// thousand different ones in a picture of a thousand pixels, and a file would hold each of the million; on
/// paper every seam comes twice, as an edge of both its pieces.
class LinesOnce {
  public:
    /// The points of a line without those that lie on the straight way between their neighbours, two at
    /// least; none when the same line has come in the same pen since the colour last changed: it would show
    /// nothing. Holds until the next call.
    std::span<const PixelPoint> Take(const Pen& pen, std::span<const PixelPoint> points);

  private:
    /// A line and how it is drawn, as numbers.
    using Key = std::vector<std::int32_t>;
    struct HashOfKey {
        std::size_t operator()(const Key& key) const;
    };

    void Straighten(std::span<const PixelPoint> points);

    Color color_ = Black;
    std::unordered_set<Key, HashOfKey> taken_;  ///< lines of this colour
    std::vector<PixelPoint> line_;
    Key key_;
};

}  // namespace korvet
