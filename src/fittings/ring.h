// The stations round a ring: where the points of a section stand that is walked through at equal angles.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/constants.h"
#include "core/points.h"

namespace korvet {

/// The flag of a station by its number from 1: every second one is a rule station.
constexpr std::int16_t AlternatingFlag(int index) {
    return index % 2 == 0 ? PlainStation : RuleStation;
}

/// One station of a walk.
struct Station {
    int index = 1;                    ///< from 1
    double angle = 0;                 ///< plan angle, radians; runs on past a full turn
    std::int16_t flag = RuleStation;  ///< AlternatingFlag of the index
};

/// `count` stations from the plan angle `start`, `step` apart (radians), to be walked by a range-for loop.
/// The angle grows by repeated addition of the step: so does the last digit of every station.
class Ring {
  public:
    constexpr Ring(double start, double step, int count) : start_(start), step_(step), count_(count) {}

    [[nodiscard]] constexpr double Start() const { return start_; }
    [[nodiscard]] constexpr double Step() const { return step_; }
    [[nodiscard]] constexpr std::size_t Count() const { return static_cast<std::size_t>(count_); }

    class Walk {
      public:
        constexpr Walk(int index, double angle, double step) : index_(index), angle_(angle), step_(step) {}
        constexpr Station operator*() const { return {index_, angle_, AlternatingFlag(index_)}; }
        constexpr Walk& operator++() {
            ++index_;
            angle_ += step_;
            return *this;
        }
        constexpr bool operator!=(const Walk& other) const { return index_ != other.index_; }

      private:
        int index_;
        double angle_;
        double step_;
    };

    [[nodiscard]] constexpr Walk begin() const { return {1, start_, step_}; }
    [[nodiscard]] constexpr Walk end() const { return {count_ + 1, 0, 0}; }

  private:
    double start_;
    double step_;
    int count_;
};

/// A whole ring of `segments` (at least 1) equal steps: one station more, the closing one, which comes to lie
/// on the first.
constexpr Ring ClosedRing(double start, int segments) {
    return {start, FullTurn / segments, segments + 1};
}

/// A ring of a fitting whose `segs` counts rule lines, with a station between each two: 2 segs + 1 of them.
constexpr Ring RuledRing(double start, int segs) {
    return ClosedRing(start, 2 * segs);
}

/// The points of a circle in the plan about `centre` (radius in the user's unit), with the flags of their
/// stations.
PointList CirclePoints(const Ring& ring, const C3DPoint& centre, double radius);

}  // namespace korvet
