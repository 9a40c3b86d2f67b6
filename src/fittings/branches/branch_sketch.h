// The parts of the sketch of a branch pipe on a trunk. Surface 1 is the branch, List1 its free end; surface 2
// is the trunk, List1 its upper end and List2 its lower one, about z.
#pragma once

#include <array>

#include "fittings/branches/branch_form.h"

namespace korvet::branch {

/// The middle of the branch's free end, moved in the plane of the elevation.
constexpr SketchPoint BranchEnd(double dx = 0, double dz = 0) {
    return {.list = 1, .spot = Spot::Centre, .dx = dx, .dz = dz};
}
constexpr SketchPoint BranchRim(Spot spot, double dx = 0, double dz = 0) {
    return {.list = 1, .spot = spot, .dx = dx, .dz = dz};
}
constexpr SketchPoint Trunk(int list, Spot spot, double dz = 0) {
    return {.list = list, .spot = spot, .dz = dz, .surface = 2};
}

inline constexpr SketchDimension MainLengthSize =
    LinearSize(Side::Left, Trunk(2, Spot::Centre), Trunk(1, Spot::Centre));
constexpr SketchDimension DistanceSize(double distance) {
    return LinearSize(Side::Left, Trunk(2, Spot::Centre), Trunk(2, Spot::Centre, distance));
}
inline constexpr SketchConstruction TrunkAxis = CentreLine(Trunk(2, Spot::Centre), Trunk(1, Spot::Centre));

/// The front, and from above for the distance of the axes; a little less than straight down, so that the
/// trunk's wall is seen.
inline constexpr SketchView Views[] = {{}, {.turn = 0, .tilt = 89}};
inline constexpr int Plan = 1;

/// The offset of a branch on the near side of the trunk's axis, y below 0.
constexpr SketchDimension OffsetSize(double offset) {
    return LinearSize(Side::Right, BranchEnd(), {.list = 1, .spot = Spot::Centre, .dy = offset}, Plan);
}

namespace square {

/// The boxes but for the offset.
inline constexpr std::array<BoxEntry, 5> Boxes = {
    {{BranchDiameter, "Branch pipe diameter", "120",
      LinearSize(Side::Right, BranchRim(Spot::MinZ), BranchRim(Spot::MaxZ))},
     {MainDiameter, "Main pipe diameter", "200",
      LinearSize(Side::Above, Trunk(1, Spot::MinX), Trunk(1, Spot::MaxX))},
     {BranchLength, "Branch pipe length", "250", LinearSize(Side::Below, BranchEnd(-250), BranchEnd())},
     {Distance, "Distance to intersection", "160", DistanceSize(160)},
     {MainLength, "Main pipe length", "320", MainLengthSize}}};
inline constexpr std::array<LabelEntry, 5> Labels = {
    {{BranchDiameter}, {MainDiameter}, {BranchLength}, {Distance}, {MainLength}}};
inline constexpr std::array<SketchConstruction, 4> Lines = {
    {TrunkAxis, CentreLine(BranchEnd(-250), BranchEnd()), CentreLine(BranchEnd(-250), BranchEnd(), Plan),
     CentreLine({.dx = -100, .dz = 160}, {.dx = 250, .dz = 160}, Plan)}};

}  // namespace square

namespace slanting {

// At 60 degrees to the trunk the branch falls by 30.
inline constexpr SketchPoint Crossing = PolarXZ(BranchEnd(), 150, 280);

/// The boxes but for the offset of the axis, which stands at `y` in the sample.
constexpr std::array<BoxEntry, 6> BoxesAt(double y) {
    return {{{BranchDiameter, "Branch pipe diameter", "100",
              AlignedSize(Side::Right, BranchRim(Spot::MinZ), BranchRim(Spot::MaxZ))},
             {MainDiameter, "Main pipe diameter", "200",
              LinearSize(Side::Left, Trunk(1, Spot::MinY), Trunk(1, Spot::MaxY), Plan)},
             {BranchLength, "Branch pipe length", "280",
              AlignedSize(Side::Above, PolarXZ(BranchRim(Spot::MaxZ), 150, 280), BranchRim(Spot::MaxZ))},
             {Distance, "Distance to intersection", "200", DistanceSize(200)},
             {MainLength, "Main pipe length", "300", MainLengthSize},
             {BranchAngle, "Branch angle (degrees)", "60",
              AngleSize(Side::Below, Crossing, {.dy = y, .dz = 20}, PolarXZ(BranchRim(Spot::MinZ), 60, 50),
                        0.7)}}};
}
inline constexpr std::array<LabelEntry, 6> Labels = {
    {{BranchDiameter}, {MainDiameter}, {BranchLength}, {Distance}, {MainLength}, {BranchAngle}}};
constexpr std::array<SketchConstruction, 4> LinesAt(double y) {
    return {{TrunkAxis, CentreLine(Crossing, BranchEnd()), CentreLine(Crossing, BranchEnd(), Plan),
             CentreLine({.list = 1, .dx = -342, .dy = -y}, {.list = 1, .dy = -y}, Plan)}};
}

}  // namespace slanting

}  // namespace korvet::branch
