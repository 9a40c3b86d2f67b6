#include "core/triangulation.h"

#include "core/math_module.h"

namespace korvet {
namespace {

/// The edge as a list of its own, in the reverse order.
PointList Reversed(const C3DPoints& edge) {
    return std::make_shared<C3DPoints>(ReversePoints(edge));
}

}  // namespace

FlatRuling NextRuling(const FlatRuling& ruling, RulingStep& step) {
    const double u = UnfoldingAngle(step.bc, step.ac, step.ab);
    const double v = UnfoldingAngle(step.bd, step.ab, step.ad);
    const C3DPoint flatC = PolarPoint(ruling.start, ruling.direction - u, step.ac);
    const C3DPoint flatD = PolarPoint(ruling.start, ruling.direction - v, step.ad);
    return {flatC, PlanAngle(flatC, flatD)};
}

void CTriangulation::DevelopSurface() {
    if (!ModelSurface.List1 || !ModelSurface.List2) {
        throw ListError("a surface to unfold lacks an edge");
    }
    const C3DPoints& first = *ModelSurface.List1;
    const C3DPoints& second = *ModelSurface.List2;
    const std::size_t n = first.Count();
    C3DPoints flatFirst;
    C3DPoints flatSecond;
    flatFirst.Reserve(n);
    flatSecond.Reserve(n);
    FlatRuling ruling = {BasePoint.value_or(C3DPoint{}), 0};
    for (std::size_t i = 1; i <= n; ++i) {
        const C3DPoint& a = first.Item(i);
        const C3DPoint& b = second.Item(i);
        // Behind the last station comes the first again, as round a closed fitting; only the last ruling
        // itself is used of that step.
        const std::size_t following = i < n ? i + 1 : 1;
        const C3DPoint& c = first.Item(following);
        const C3DPoint& d = second.Item(following);
        RulingStep step = {.ab = Distance3D(a, b),
                           .ac = Distance3D(a, c),
                           .bd = Distance3D(b, d),
                           .ad = Distance3D(a, d),
                           .bc = Distance3D(b, c)};
        const FlatRuling next = NextRuling(ruling, step);
        flatFirst.Add(ruling.start).Flag = a.Flag;
        flatSecond.Add(PolarPoint(ruling.start, ruling.direction, step.ab)).Flag = b.Flag;
        ruling = next;
    }
    if (BasePoint && n > 0) {
        BasePoint->Flag = first.Item(1).Flag;
    }
    Pattern = CRuleSurf();
    Pattern.List1 = Reversed(flatFirst);
    Pattern.List2 = Reversed(flatSecond);
}

CRuleSurf Unfolded(const CRuleSurf& model) {
    CTriangulation triangulation;
    triangulation.ModelSurface = model;
    triangulation.DevelopSurface();
    return triangulation.Pattern;
}

}  // namespace korvet
