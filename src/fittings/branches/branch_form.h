// What the windows of a branch pipe on a trunk share: reading and checking the boxes of both pipes.
#pragma once

#include <span>

#include "fittings/branches/branch.h"
#include "fittings/branches/branch_join.h"
#include "fittings/windows.h"

namespace korvet {

/// The boxes of one page, by their index in txtParameter.
struct PipeBoxes {
    int branchDiameter;
    int mainDiameter;
    int branchLength;
    int distance;
    int mainLength;
    int angle = NoBox;   ///< between the axes, in degrees; none: the branch is square
    int offset = NoBox;  ///< of the axes; none: the window finds it itself
};

/// The boxes of a page with a square branch and of one with a slanting branch, as all these windows have
/// them.
constexpr PipeBoxes SquareBoxes(int offsetBox = NoBox) {
    return {0, 1, 2, 3, 4, NoBox, offsetBox};
}
constexpr PipeBoxes SlantingBoxes(int offsetBox = NoBox) {
    return {5, 6, 7, 8, 9, 10, offsetBox};
}

/// The angle between the axes as typed, in radians; QuarterTurn of a square branch.
double TypedAngle(const FittingForm& form, const PipeBoxes& boxes);

/// Mean radii and material of both pipes, in the user's unit.
BranchWalls WallsOf(const FittingForm& form, const PipeBoxes& boxes);

// Checks, with the focus on the box after a refusal or, without one, left alone.

/// Every limit of a page in its fixed order, that of a square or of a slanting branch. Throws ArithmeticError
/// when a diameter holds no number.
Outcome CheckPipes(FittingForm& form, const PipeBoxes& boxes);

/// The branch with these radii at `offset` between the axes is too large for its trunk.
Outcome CheckMeeting(FittingForm& form, const CutRadii& radii, double offset);

/// Sets lengths, material and template type. Angle, offset and radii are the window's matter.
void SetPipes(const FittingForm& form, const PipeBoxes& boxes, CBranch& branch);

/// The radii against which the edge of the branch is cut, and those for the hole.
void SetEdgeRadii(CBranch& branch, const CutRadii& edge);
void SetHoleRadii(CBranch& branch, const CutRadii& hole);

inline constexpr std::string_view BranchPatterns[] = {"Trunk", "Branch"};
inline constexpr int BranchPatternSurfaces[] = {2, 1};

/// The table of such a window. The seam lies opposite the branch, whatever JoinAngle the settings hold: they
/// keep what a file has brought.
constexpr WindowTable BranchTable(std::span<const PageEntry> pages, BuildStep* build, BuildStep* complete) {
    return {.pages = pages,
            .newFitting = FittingHandle::Make<CBranch>,
            .buildFitting = build,
            .completeFitting = complete,
            .multiple = true,
            .miscellaneous = TrunkPattern,
            .joinAngleDisable = true,
            .templateTypeEnabled = true,
            .materialDisable = true,
            .branchMaterialEnable = true,
            .patternSelect = BranchPatterns,
            .patternSurface = BranchPatternSurfaces};
}

}  // namespace korvet
