// What a picture of vectors need not hold: lines that lie on one another.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <unordered_set>
#include <vector>

#include "display/drawing_device.h"

namespace korvet {

/// Thins out the lines of a picture. A fitting with a million bend lines has a few thousand different ones in
/// a picture of a thousand pixels, and a vector file would hold each of the million.
class LinesOnce {
  public:
    /// The points of a line without those that repeat the one before, two at least; none when a line between
    /// the same two points has come since the pen last changed: it would show nothing. Holds until the next
    /// call.
    std::span<const PixelPoint> Take(const Pen& pen, std::span<const PixelPoint> points);

  private:
    using Ends = std::array<std::int32_t, 4>;
    struct HashOfEnds {
        std::size_t operator()(const Ends& ends) const;
    };

    Pen pen_;
    std::unordered_set<Ends, HashOfEnds> taken_;  ///< lines of two points that pen_ has drawn
    std::vector<PixelPoint> line_;
};

}  // namespace korvet
