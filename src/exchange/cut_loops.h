// Lines joined end to end: what is closed, and what it encloses.
#pragma once

#include <span>

#include "exchange/box_tree.h"
#include "exchange/cut_nodes.h"

namespace korvet {

/// Ends of an outline that are farther apart leave a gap.
inline constexpr double LargestGap = 0.001;

/// An end at which an outline stays open.
struct OpenEnd {
    C3DPoint place;
    double toNext = 0;  ///< to the nearest other open end; infinite when there is none
};

/// A closed run of stretches that meets itself nowhere.
struct CutLoop {
    std::vector<CutCurve> curves;
    double area = 0;  ///< that it encloses
};

/// What a set of stretches makes.
struct JoinedLoops {
    std::vector<CutLoop> loops;  ///< none while an end is open
    std::vector<OpenEnd> openEnds;
    double widestGap = 0;  ///< of those that were bridged
};

/// Joins stretches of curves (by their numbers) into closed loops, over gaps of up to LargestGap, nearest
/// ends first. A loop no longer than there and back over such a gap is none.
JoinedLoops JoinLoops(const PieceCurves& curves, const CutNodes& nodes,
                      const std::vector<std::size_t>& stretches);

/// Loops as boundaries: a point is inside when an odd number of them goes round it.
class LoopRegion {
  public:
    explicit LoopRegion(std::span<const CutLoop> loops);

    [[nodiscard]] bool Contains(const C3DPoint& point) const;

  private:
    std::vector<CutCurve> curves_;
    BoxTree tree_;
};

/// The area that an odd number of the loops goes round, each loop taken whole: one inside another is a hole
/// of it, one inside that a part again.
double AreaOf(const std::vector<CutLoop>& loops);

/// The point in the middle of the loop's longest curve.
C3DPoint PointOf(const CutLoop& loop);

}  // namespace korvet
