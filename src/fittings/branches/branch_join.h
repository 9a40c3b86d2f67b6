// Against which radii a branch pipe and the hole in its trunk are cut, by the way the two are joined.
#pragma once

#include "core/branch_options.h"

namespace korvet::branch {

/// Both pipes of a joint: radii of their mean surfaces and their material, in the user's unit.
struct Walls {
    double r = 0;   ///< radius of the branch
    double R = 0;   ///< radius of the trunk
    double tA = 0;  ///< thickness of the branch
    double tB = 0;  ///< thickness of the trunk
};

/// The two cylinders whose intersection is a cut, in the user's unit.
struct CutRadii {
    double pipeA = 0;  ///< of the branch
    double pipeB = 0;  ///< of the trunk
};

/// The cylinders for the edge of the branch. The branch counts with its mean radius r. A set-on branch stands
/// on the trunk's outside, R + tB / 2; mean to mean it meets the mean surface R. A set-in branch reaches as
/// deep into the trunk as its size allows: to the inside R - tB / 2, or to R, or, when it is wider than that
/// and thinner than the trunk, to R + tB / 2 - tA / 2.
CutRadii EdgeRadii(BranchJoin join, const Walls& walls);

/// The cylinders for the hole, which is laid out on the trunk's mean surface R: the outside r + tA / 2 of a
/// branch that is set in, the inside r - tA / 2 of one that is set on, else r.
CutRadii HoleRadii(BranchJoin join, const Walls& walls);

/// Whether a branch at this distance of the axes meets the trunk all round: its far side lies no further from
/// the trunk's axis than the trunk's surface, but for rounding. Throws ArithmeticError when the branch has no
/// radius left to cut, its material being too thick for its diameter.
bool MeetsTrunk(const CutRadii& radii, double offset);

/// By how much the axial angle `alpha` (radians, below a quarter turn) of a set-on branch is made smaller so
/// that the outside of its wall touches the trunk at the heel; radians. `r` and `tA` as in Walls.
/// Throws ArithmeticError when the sizes leave no such triangle.
double BranchAngComp(double r, double alpha, double tA);

/// The axial angle at which the joint is cut: `alpha`, less BranchAngComp for a set-on joint with heel
/// compensation that is not square. Throws ArithmeticError when nothing is left of the angle.
double JointAngle(const BranchOptions& options, double r, double alpha, double tA);

}  // namespace korvet::branch
