// What the windows of a branch pipe on a trunk share: reading and checking the boxes of both pipes.
#pragma once

#include <span>

#include "fittings/branches/branch.h"
#include "fittings/branches/branch_join.h"
#include "fittings/windows.h"

namespace korvet::branch {

/// The boxes of one page.
struct PipeBoxes {
    int branchDiameter;
    int mainDiameter;
    int branchLength;
    int distance;
    int mainLength;
    int angle = NoBox;   ///< between the axes, in degrees; none: the branch is square
    int offset = NoBox;  ///< of the axes; none: the window finds it itself
};

/// The page with a square branch, as all these windows have it. The box of an offset is the window's own.
namespace square {

enum Box : int { BranchDiameter = 0, MainDiameter = 1, BranchLength = 2, Distance = 3, MainLength = 4 };

constexpr PipeBoxes PipesWith(int offsetBox) {
    return {BranchDiameter, MainDiameter, BranchLength, Distance, MainLength, NoBox, offsetBox};
}

}  // namespace square

/// The page with a slanting branch.
namespace slanting {

enum Box : int {
    BranchDiameter = 5,
    MainDiameter = 6,
    BranchLength = 7,
    Distance = 8,
    MainLength = 9,
    BranchAngle = 10
};

constexpr PipeBoxes PipesWith(int offsetBox) {
    return {BranchDiameter, MainDiameter, BranchLength, Distance, MainLength, BranchAngle, offsetBox};
}

}  // namespace slanting

/// The angle between the axes as typed, in radians; QuarterTurn of a square branch.
double TypedAngle(const FittingForm& form, const PipeBoxes& boxes);

/// Mean radii and material of both pipes, in the user's unit.
Walls WallsOf(const FittingForm& form, const PipeBoxes& boxes);

// Checks, with the focus on the box after a refusal or, without one, left alone.

/// The first checks of a page: both diameters and the length of the branch are above 0.
Outcome CheckPositiveSizes(FittingForm& form, const PipeBoxes& boxes);

/// Every limit behind these in its fixed order, that of a square or of a slanting branch. Throws
/// ArithmeticError when a diameter holds no number.
Outcome CheckLimits(FittingForm& form, const PipeBoxes& boxes);

/// The branch with these radii at `offset` between the axes is too large for its trunk.
Outcome CheckMeeting(FittingForm& form, const CutRadii& radii, double offset);

/// Sets lengths, material and template type. Angle, offset and radii are the window's matter.
void SetPipes(const FittingForm& form, const PipeBoxes& boxes, CBranch& branch);

/// The radii against which the edge of the branch is cut, and those for the hole.
void SetEdgeRadii(CBranch& branch, const CutRadii& edge);
void SetHoleRadii(CBranch& branch, const CutRadii& hole);

inline constexpr std::string_view Patterns[] = {"Trunk", "Branch"};
inline constexpr int PatternSurfaces[] = {2, 1};

/// The table of such a window. The seam lies opposite the branch, whatever JoinAngle the settings hold: they
/// keep what a file has brought.
constexpr WindowTable Table(std::span<const PageEntry> pages, BuildStep* build, BuildStep* afterPatternChoice,
                            HalfPatterns halfPatterns = HalfPatterns::Offered) {
    return {.pages = pages,
            .newFitting = FittingHandle::Make<CBranch>,
            .buildFitting = build,
            .afterPatternChoice = afterPatternChoice,
            .multiple = true,
            .miscellaneous = TrunkPattern,
            .halfPatterns = halfPatterns,
            .joinAngleDisable = true,
            .templateTypeEnabled = true,
            .materialDisable = true,
            .branchMaterialEnable = true,
            .patternSelect = Patterns,
            .patternSurface = PatternSurfaces};
}

}  // namespace korvet::branch
