// The sketch of a reducing breech: seen level, in the plane of its axes, which meet in the origin, and from
// above. The main pipe, surface 1, comes up from its free end, List2; the branches, surfaces 2 and 3, end in
// their List1.
#pragma once

#include <array>

#include "form/sketch_entry.h"

namespace korvet::reducing_breech {

/// From above the slanting ends show their diameters; a little less than straight down, so that walls are
/// seen.
inline constexpr std::array<SketchView, 2> Views = {{{.turn = 0, .tilt = 0}, {.turn = 0, .tilt = 89}}};
inline constexpr int Plan = 1;

inline constexpr SketchPoint Meeting = OnAxis(0);

constexpr SketchPoint LeftEndAt(Spot spot) {
    return OfSurface(2, SpotOf(1, spot));
}
constexpr SketchPoint RightEndAt(Spot spot) {
    return OfSurface(3, SpotOf(1, spot));
}

inline constexpr SketchPoint LeftEnd = LeftEndAt(Spot::Centre);
inline constexpr SketchPoint RightEnd = RightEndAt(Spot::Centre);

inline constexpr SketchDimension PipeDiameter = DiameterSize(Side::Below, 2);
inline constexpr SketchDimension LeftDiameter =
    LinearSize(Side::Left, LeftEndAt(Spot::MinY), LeftEndAt(Spot::MaxY), Plan);
inline constexpr SketchDimension RightDiameter =
    LinearSize(Side::Right, RightEndAt(Spot::MinY), RightEndAt(Spot::MaxY), Plan);

/// The length of the main pipe on one side, and on the other that of the branches, on the one that stands
/// there.
inline constexpr SketchDimension MainLengthAtLeft = LinearSize(Side::Left, MiddleOf(2), Meeting);
inline constexpr SketchDimension RightLength = AlignedSize(Side::Right, Meeting, RightEnd);
inline constexpr SketchDimension MainLengthAtRight = LinearSize(Side::Right, MiddleOf(2), Meeting);

inline constexpr SketchDimension LeftLength = AlignedSize(Side::Left, Meeting, LeftEnd);

/// The angle between the branches.
inline constexpr SketchDimension Opening = AngleSize(Side::Above, Meeting, LeftEnd, RightEnd, 0.8);

/// The angle of each branch against the main pipe's axis, which is drawn on for the length of a branch.
constexpr SketchDimension LeftAngle(double branchLength) {
    return AngleSize(Side::Left, Meeting, OnAxis(branchLength), LeftEnd, 1.15);
}
constexpr SketchDimension RightAngle(double branchLength) {
    return AngleSize(Side::Right, Meeting, OnAxis(branchLength), RightEnd, 0.8);
}

inline constexpr std::array<SketchConstruction, 3> Axes = {
    {CentreLine(MiddleOf(2), Meeting), CentreLine(Meeting, LeftEnd), CentreLine(Meeting, RightEnd)}};

/// The axes, that of the main pipe drawn on as far as a branch is long.
constexpr std::array<SketchConstruction, 3> AxesWithUpright(double branchLength) {
    return {{CentreLine(MiddleOf(2), OnAxis(branchLength)), Axes[1], Axes[2]}};
}

}  // namespace korvet::reducing_breech
