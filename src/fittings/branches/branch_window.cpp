// Branch: a round pipe on a round trunk, square or at an angle, with the pattern of either pipe.
#include "fittings/branches/beside_axis.h"
#include "fittings/branches/branch_form.h"
#include "fittings/branches/branch_sketch.h"
#include "fittings/joined.h"

namespace korvet {
namespace {

/// The boxes and the offset.
template <branch::PipeBoxes Pipes>
Outcome Build(FittingForm& form, CBranch& fitting) {
    if (branch::CheckPositiveSizes(form, Pipes) || branch::CheckLimits(form, Pipes)) {
        return Refused;
    }
    branch::SetPipes(form, Pipes, fitting);
    fitting.Offset = -form.Value(Pipes.offset);
    RefuseHalfBesideAxis(form, fitting.Offset);
    return Passed;
}

/// The angle and the radii by the way the pipes are joined.
template <branch::PipeBoxes Pipes>
Outcome Join(FittingForm& form, CBranch& fitting) {
    const branch::Walls walls = branch::WallsOf(form, Pipes);
    fitting.AxialAngle = branch::JointAngle(form.branch, walls.r, branch::TypedAngle(form, Pipes), walls.tA);
    const branch::CutRadii edge = branch::EdgeRadii(form.branch.join, walls);
    branch::SetEdgeRadii(fitting, edge);
    if (branch::CheckMeeting(form, edge, fitting.Offset)) {
        return Refused;
    }
    const branch::CutRadii hole = branch::HoleRadii(form.branch.join, walls);
    branch::SetHoleRadii(fitting, hole);
    return branch::CheckMeeting(form, hole, fitting.Offset);
}

namespace square {

enum Box : int { Offset = 11 };  // beside those of every square branch

constexpr branch::PipeBoxes Pipes = branch::square::PipesWith(Offset);
constexpr auto Boxes =
    Joined(branch::square::Boxes, BoxEntry{Offset, "Offset", "25", branch::OffsetSize(25)});
constexpr auto Labels = Joined(branch::square::Labels, LabelEntry{Offset});

}  // namespace square

namespace slanting {

enum Box : int { Offset = 12 };  // beside those of every slanting branch

constexpr branch::PipeBoxes Pipes = branch::slanting::PipesWith(Offset);
constexpr double SampleOffset = 15;
constexpr auto Boxes = Joined(branch::slanting::BoxesAt(-SampleOffset),
                              BoxEntry{Offset, "Offset", "15", branch::OffsetSize(SampleOffset)});
constexpr auto Labels = Joined(branch::slanting::Labels, LabelEntry{Offset});
constexpr auto Lines = branch::slanting::LinesAt(-SampleOffset);

}  // namespace slanting

constexpr PageEntry Pages[] = {{square::Boxes, square::Labels, branch::Views, branch::square::Lines},
                               {slanting::Boxes, slanting::Labels, branch::Views, slanting::Lines}};

}  // namespace

const WindowTable frmBranch =
    branch::Table(Pages, BuildByType<CBranch, Build<square::Pipes>, Build<slanting::Pipes>>,
                  BuildByType<CBranch, Join<square::Pipes>, Join<slanting::Pipes>>);

}  // namespace korvet
