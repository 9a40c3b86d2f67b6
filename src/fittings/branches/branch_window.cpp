// Branch: a round pipe on a round trunk, square or at an angle, with the pattern of either pipe.
#include "fittings/branches/branch_form.h"
#include "fittings/branches/branch_sketch.h"
#include "fittings/joined.h"

namespace korvet {
namespace {

constexpr PipeBoxes Square = SquareBoxes(11);
constexpr PipeBoxes Slanting = SlantingBoxes(12);

template <PipeBoxes Boxes>
Outcome Build(FittingForm& form, CBranch& branch) {
    if (CheckPipes(form, Boxes)) {
        return Refused;
    }
    SetPipes(form, Boxes, branch);
    branch.Offset = -form.Value(Boxes.offset);
    return Passed;
}

/// The angle and the radii by the way the pipes are joined.
Outcome SetJoint(FittingForm& form, const PipeBoxes& boxes, CBranch& branch) {
    const BranchWalls walls = WallsOf(form, boxes);
    branch.AxialAngle = JointAngle(form.branch, walls.r, TypedAngle(form, boxes), walls.tA);
    const CutRadii edge = BranchCutRadii(form.branch.join, walls);
    SetEdgeRadii(branch, edge);
    if (CheckMeeting(form, edge, branch.Offset)) {
        return Refused;
    }
    const CutRadii hole = TrunkHoleRadii(form.branch.join, walls);
    SetHoleRadii(branch, hole);
    return CheckMeeting(form, hole, branch.Offset);
}

/// Half of a branch beside the trunk's axis is no mirror of the other half.
template <PipeBoxes Boxes>
Outcome Complete(FittingForm& form, CBranch& branch) {
    if (form.settings.HalfPattern && branch.Offset != 0) {
        form.RefuseHalfPattern();
    }
    return RefusedIf(form.CheckPatternSelected() || SetJoint(form, Boxes, branch));
}

namespace sketch = branch_sketch;

constexpr double SlantingOffset = 15;

constexpr auto SquareEntries =
    Joined(sketch::SquareEntries, BoxEntry{Square.offset, "Offset", "25", sketch::OffsetSize(25)});
constexpr auto SlantingEntries =
    Joined(sketch::SlantingEntries(-SlantingOffset),
           BoxEntry{Slanting.offset, "Offset", "15", sketch::OffsetSize(SlantingOffset)});
constexpr auto SquareLabels = Joined(sketch::SquareLabels, LabelEntry{"Offset = ", Square.offset});
constexpr auto SlantingLabels = Joined(sketch::SlantingLabels, LabelEntry{"Offset = ", Slanting.offset});
constexpr auto SlantingLines = sketch::SlantingLines(-SlantingOffset);

constexpr std::array<PageEntry, 2> Pages = {
    {{SquareEntries, SquareLabels, sketch::Views, sketch::SquareLines},
     {SlantingEntries, SlantingLabels, sketch::Views, SlantingLines}}};

}  // namespace

const WindowTable frmBranch = BranchTable(Pages, BuildByType<CBranch, Build<Square>, Build<Slanting>>,
                                          BuildByType<CBranch, Complete<Square>, Complete<Slanting>>);

}  // namespace korvet
