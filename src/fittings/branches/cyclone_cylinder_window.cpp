// Cyclone (Cylinder): a round pipe that runs into a round main pipe against the inside of its wall, with the
// pattern of either.
#include <algorithm>
#include <array>

#include "fittings/branches/beside_axis.h"
#include "fittings/branches/branch_form.h"
#include "fittings/branches/branch_sketch.h"
#include "fittings/mean_sizes.h"

namespace korvet {
namespace {

/// Against which cylinders branch and hole are cut.
struct Cuts {
    branch::CutRadii edge;
    branch::CutRadii hole;

    /// Of the axes: the larger of the two shapes touches the wall. Below 0 for a branch wider than the main
    /// pipe.
    [[nodiscard]] double TouchingOffset() const {
        return std::min(edge.pipeB - edge.pipeA, hole.pipeB - hole.pipeA);
    }
};

/// Those of a branch, but one that is set in reaches with its outside to the outside of the main pipe.
Cuts CutsOf(BranchJoin join, const branch::Walls& walls) {
    Cuts cuts = {branch::EdgeRadii(join, walls), branch::HoleRadii(join, walls)};
    if (join == SetInJoin) {
        cuts.edge.pipeB = walls.R + walls.tB / 2 - walls.tA / 2;
    }
    return cuts;
}

/// What of the branch must find room in what of the main pipe, and the message when it does not.
struct Fit {
    double branch;
    double main;
    MessageId message;
};

/// For the pattern that is made; the trunk's while none is selected.
Fit FitOf(const FittingForm& form, const branch::Walls& walls) {
    const double outside = walls.R + walls.tB / 2;
    const Fit meanToMean = {walls.r, walls.R, CycloneBranchTooLarge};
    const bool edge = form.miscellaneous == BranchPipePattern;
    switch (form.branch.join) {
        case SetInJoin:
            return edge ? Fit{walls.r + walls.tA / 2, outside, CycloneSetInTooLarge}
                        : Fit{walls.r + walls.tA / 2, walls.R, CycloneSetInHoleTooLarge};
        case SetOnJoin:
            return edge ? Fit{walls.r, outside, BranchTooLarge}
                        : Fit{walls.r - walls.tA / 2, walls.R, CycloneSetOnHoleTooLarge};
        case MeanToMeanJoin:
            break;
    }
    return meanToMean;
}

/// Both pipes have an inside, and the branch finds room in the main pipe.
Outcome CheckWalls(FittingForm& form, const branch::PipeBoxes& boxes) {
    const branch::Walls walls = branch::WallsOf(form, boxes);
    if (form.CheckRoomForThickness(boxes.branchDiameter, walls.r, walls.tA / 2) ||
        form.CheckRoomForThickness(boxes.mainDiameter, walls.R, walls.tB / 2)) {
        return Refused;
    }
    const Fit fit = FitOf(form, walls);
    return fit.branch > fit.main ? form.Refuse(fit.message) : Passed;
}

template <branch::PipeBoxes Pipes>
Outcome Build(FittingForm& form, CBranch& fitting) {
    if (branch::CheckPositiveSizes(form, Pipes) || CheckWalls(form, Pipes) ||
        branch::CheckLimits(form, Pipes)) {
        return Refused;
    }
    branch::SetPipes(form, Pipes, fitting);
    fitting.RefusesShortBranch = true;
    fitting.Offset = CutsOf(form.branch.join, branch::WallsOf(form, Pipes)).TouchingOffset();
    RefuseHalfBesideAxis(form, fitting.Offset);
    return Passed;
}

/// The angle, and the radii: also of the part whose pattern is not made.
template <branch::PipeBoxes Pipes>
Outcome Join(FittingForm& form, CBranch& fitting) {
    const branch::Walls walls = branch::WallsOf(form, Pipes);
    fitting.AxialAngle = branch::JointAngle(form.branch, walls.r, branch::TypedAngle(form, Pipes), walls.tA);
    const Cuts cuts = CutsOf(form.branch.join, walls);
    branch::SetEdgeRadii(fitting, cuts.edge);
    branch::SetHoleRadii(fitting, cuts.hole);
    return RefusedIf(branch::CheckMeeting(form, cuts.edge, fitting.Offset) ||
                     branch::CheckMeeting(form, cuts.hole, fitting.Offset));
}

constexpr branch::PipeBoxes Square = branch::square::PipesWith(NoBox);
constexpr branch::PipeBoxes Slanting = branch::slanting::PipesWith(NoBox);

// Mean to mean without thickness the axis of the sample stands the difference of the radii off that of the
// main pipe.
constexpr double SampleOffset = 50;
constexpr auto SlantingBoxes = branch::slanting::BoxesAt(SampleOffset);
constexpr auto SlantingLines = branch::slanting::LinesAt(SampleOffset);

constexpr PageEntry Pages[] = {
    {branch::square::Boxes, branch::square::Labels, branch::Views, branch::square::Lines},
    {SlantingBoxes, branch::slanting::Labels, branch::Views, SlantingLines}};

}  // namespace

const WindowTable frmCyclone1 =
    branch::Table(Pages, BuildByType<CBranch, Build<Square>, Build<Slanting>>,
                  BuildByType<CBranch, Join<Square>, Join<Slanting>>, HalfPatterns::FromFiles);

}  // namespace korvet
