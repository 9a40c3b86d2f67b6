#include "fittings/pipes/round_to_round.h"

#include "core/constants.h"
#include "core/math_module.h"
#include "core/triangulation.h"
#include "fittings/lap_room.h"
#include "fittings/ring.h"
#include "fittings/trim.h"

namespace korvet {

void CRoundToRound::ConstructModel() {
    const C3DPoint topCentre = {TopOffsetX, TopOffsetY, Height, PlainStation};
    const Ring ring = RuledRing(inputs.JoinAngle, inputs.segs);
    CRuleSurf surface;
    surface.List1 = CirclePoints(ring, {}, BaseRad);
    surface.List2 = CirclePoints(ring, topCentre, TopRad);
    surface.RotateList(2, Axis::Y, topCentre, TopTiltY);
    results.ModelSurface = Trimmed(surface, TrimOf(inputs));
}

/// Between its rulings the strip has the steps of the arcs, which the chords of the stations would fall short
/// of. The last ruling has no step behind it.
CRuleSurf CRoundToRound::Unrolled() const {
    const C3DPoints& base = *results.ModelSurface.List1;
    const C3DPoints& top = *results.ModelSurface.List2;
    const std::size_t n = base.Count();
    CRuleSurf pattern;
    pattern.List1 = std::make_shared<C3DPoints>();
    pattern.List2 = std::make_shared<C3DPoints>();
    pattern.List1->Reserve(n + 1);
    pattern.List2->Reserve(n + 1);
    FlatRuling next;
    for (std::size_t i = 1; i <= n; ++i) {
        const FlatRuling ruling = next;
        const C3DPoint& a = base.Item(i);
        const C3DPoint& b = top.Item(i);
        RulingStep step = {.ab = Distance3D(a, b),
                           .ac = (BaseRad * FullTurn) / (2 * inputs.segs),
                           .bd = (TopRad * FullTurn) / (2 * inputs.segs)};
        if (i < n) {
            step.ad = Distance3D(a, top.Item(i + 1));
            step.bc = Distance3D(b, base.Item(i + 1));
            next = NextRuling(ruling, step);
        }
        pattern.List1->Add(ruling.start).Flag = a.Flag;
        pattern.List2->Add(PolarPoint(ruling.start, ruling.direction, step.ab)).Flag = b.Flag;
    }
    return pattern;
}

void CRoundToRound::DevelopModel() {
    ConstructModel();
    CRuleSurf pattern = Unrolled();
    if (AddLaps(pattern, inputs) && SeamGapIsBelow(pattern, inputs.LapSize1)) {
        results.warnings.push_back({SeamLapTooLarge, true});
    }
    results.PatternSurface = pattern;
}

}  // namespace korvet
