#include "fittings/branches/branch_form.h"

#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/mean_sizes.h"

namespace korvet::branch {
namespace {

/// The branch reaches out of the trunk.
Outcome CheckBranchLength(FittingForm& form, const PipeBoxes& boxes, const Walls& walls) {
    return form.CheckAtLeast(boxes.branchLength, walls.tB / 2 + walls.R);
}

/// A branch beside the trunk's axis stays within the trunk's width.
Outcome CheckOffset(FittingForm& form, const PipeBoxes& boxes, const Walls& walls) {
    const int box = boxes.offset;
    const double limit = walls.R - walls.r;
    return RefusedIf(box != NoBox && form.Value(box) != 0 &&
                     (form.CheckAtMost(box, limit) || form.CheckAtLeast(box, -limit)));
}

/// The hole lies between the ends of the trunk.
Outcome CheckSquare(FittingForm& form, const PipeBoxes& boxes) {
    const Walls walls = WallsOf(form, boxes);
    return RefusedIf(CheckBranchLength(form, boxes, walls) || form.CheckAtLeast(boxes.distance, walls.r) ||
                     form.CheckAtLeast(boxes.mainLength, walls.r + form.Value(boxes.distance)) ||
                     CheckOffset(form, boxes, walls));
}

/// The hole of a slanting branch lies r / sin(alpha) to either side of where the axis comes out of the trunk,
/// R / tan(alpha) from where the axes cross. The trunk's length is asked for without the distance to the
/// crossing, and a trunk that is shorter than its hole needs is thus let through.
Outcome CheckSlanting(FittingForm& form, const PipeBoxes& boxes) {
    const Walls walls = WallsOf(form, boxes);
    if (CheckOffset(form, boxes, walls) || CheckBranchLength(form, boxes, walls) ||
        form.CheckGreaterThan(boxes.angle, 0) || form.CheckAtMost(boxes.angle, 90)) {
        return Refused;
    }
    const double alpha = TypedAngle(form, boxes);
    const double sine = std::sin(alpha);
    // Nothing for a square branch: a size at its limit is not refused for the rounding of a quarter turn.
    const auto overTangent = [&](double radius) {
        return alpha < QuarterTurn ? radius / std::tan(alpha) : 0;
    };
    return RefusedIf(form.CheckAtLeast(boxes.distance, walls.r / sine + overTangent(walls.R)) ||
                     form.CheckAtLeast(boxes.mainLength, overTangent(walls.r) + walls.R / sine));
}

}  // namespace

double TypedAngle(const FittingForm& form, const PipeBoxes& boxes) {
    return boxes.angle == NoBox ? QuarterTurn : DegToRad(form.Value(boxes.angle));
}

Walls WallsOf(const FittingForm& form, const PipeBoxes& boxes) {
    const double tA = form.settings.ThicknessA;
    const double tB = form.settings.ThicknessB;
    return {MeanRadiusOfDiameter(form, boxes.branchDiameter, tA),
            MeanRadiusOfDiameter(form, boxes.mainDiameter, tB), tA, tB};
}

Outcome CheckPositiveSizes(FittingForm& form, const PipeBoxes& boxes) {
    return form.CheckAllPositive(boxes.branchDiameter, boxes.mainDiameter, boxes.branchLength);
}

Outcome CheckLimits(FittingForm& form, const PipeBoxes& boxes) {
    return boxes.angle == NoBox ? CheckSquare(form, boxes) : CheckSlanting(form, boxes);
}

Outcome CheckMeeting(FittingForm& form, const CutRadii& radii, double offset) {
    return MeetsTrunk(radii, offset) ? Passed : form.Refuse(BranchTooLarge);
}

void SetPipes(const FittingForm& form, const PipeBoxes& boxes, CBranch& branch) {
    branch.LengthPipeA = form.Value(boxes.branchLength);
    branch.LengthPipeB = form.Value(boxes.mainLength);
    branch.LengthToIP = form.Value(boxes.distance);
    branch.BranchThickness = form.settings.ThicknessA;
    branch.TrunkThickness = form.settings.ThicknessB;
    branch.TemplateType = form.settings.TemplateType;
}

void SetEdgeRadii(CBranch& branch, const CutRadii& edge) {
    branch.BranchRadiusPipeA = edge.pipeA;
    branch.BranchRadiusPipeB = edge.pipeB;
}

void SetHoleRadii(CBranch& branch, const CutRadii& hole) {
    branch.TrunkRadiusPipeA = hole.pipeA;
    branch.TrunkRadiusPipeB = hole.pipeB;
}

}  // namespace korvet::branch
