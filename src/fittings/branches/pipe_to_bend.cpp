#include "fittings/branches/pipe_to_bend.h"

#include <cmath>
#include <memory>

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/bends/seg_bend_parallel.h"
#include "fittings/makeable.h"
#include "fittings/pieces.h"
#include "fittings/ring.h"
#include "fittings/trim.h"
#include "fittings/unrolled.h"

namespace korvet {

CRuleSurfs CPipeToBend::Bend() const {
    CSegBendParallel bend;
    bend.inputs = PieceInputs(inputs, {.laps = NoLaps});
    bend.BendSegments = ShownBendPieces - 1;
    bend.BaseRad = BendRadius;
    bend.BendRadius = BendCLRadius;
    bend.BendAngle = QuarterTurn;
    bend.ConstructModel();
    return bend.results.ModelSurfaceList;
}

/// Whether a station is one of the two at which a pipe as wide as the bend touches it.
bool CPipeToBend::IsTouchingSide(int station) const {
    const int quarter = inputs.segs / 4;
    return PipeRadius == BendRadius && (station == quarter + 1 || station == quarter * 3 + 1);
}

/// Where the rule at (y, z) meets the bend. At y beside its plane the outer wall of the bend runs on a circle
///     rho = cos(a) BendRadius + BendCLRadius,  sin(a) = y / BendRadius
/// about its centre, and x + BendCLRadius is the other leg of the triangle of z and rho.
double CPipeToBend::MeetingX(double y, double z) const {
    const double a = ArcSin(Quotient(y, BendRadius));
    const double rho = std::cos(a) * BendRadius + BendCLRadius;
    return rho - z > 0 ? OtherLeg(z, rho) - BendCLRadius : -BendCLRadius;
}

CRuleSurf CPipeToBend::Pipe() const {
    CRuleSurf pipe;
    pipe.List1 = std::make_shared<C3DPoints>();
    pipe.List2 = std::make_shared<C3DPoints>();
    for (const Station& station : ClosedRing(-QuarterTurn, inputs.segs)) {
        C3DPoint point = {PipeLength - BendCLRadius, std::cos(station.angle) * PipeRadius,
                          std::sin(station.angle) * PipeRadius + PipeCLHeight, station.flag};
        if (IsTouchingSide(station.index)) {
            point.Flag = static_cast<std::int16_t>(point.Flag + CornerStation);
        }
        pipe.List1->Add(point);
        point.x = MeetingX(point.y, point.z);
        pipe.List2->Add(point);
    }
    return Trimmed(pipe, TrimOf(inputs));
}

void CPipeToBend::ConstructModel() {
    RequireWall(PipeRadius);
    CRuleSurfs surfaces = Bend();
    surfaces.Add(Pipe());
    results.ModelSurfaceList = surfaces;
}

void CPipeToBend::DevelopModel() {
    ConstructModel();
    const CRuleSurf& pipe = results.ModelSurfaceList.Item(results.ModelSurfaceList.Count());
    const double c = StretchOut(PipeRadius, Thickness, TemplateType);
    CRuleSurf pattern = UnrolledRules(pipe, StraightEdge::List1, c / inputs.segs);
    AddLaps(pattern, inputs);
    results.PatternSurfaceList = CRuleSurfs();
    results.PatternSurfaceList.Add(pattern);
}

}  // namespace korvet
