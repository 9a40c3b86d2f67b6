#include "core/triangulation.h"

#include "core/math_module.h"

namespace korvet {
namespace {

/// The ruling of a station in the flat: where it starts and the plan angle in which it runs.
struct FlatRuling {
    C3DPoint start;
    double direction;
};

/// The ruling of the next station. a and b are the ends of this station's ruling in space and ab its length,
/// c and d the ends of the next. Both triangles are fanned from a: the one with c places the next start, the
/// one with d the line on which the next ruling lies. Each turns clockwise from this ruling. A side within
/// the snap of UnfoldingAngle is 0 from there on, ab for the caller too.
FlatRuling NextRuling(const FlatRuling& ruling, double& ab, const C3DPoint& a, const C3DPoint& b,
                      const C3DPoint& c, const C3DPoint& d) {
    double ac = Distance3D(a, c);
    double bd = Distance3D(b, d);
    double ad = Distance3D(a, d);
    double bc = Distance3D(b, c);
    const double u = UnfoldingAngle(bc, ac, ab);
    const double v = UnfoldingAngle(bd, ab, ad);
    const C3DPoint flatC = PolarPoint(ruling.start, ruling.direction - u, ac);
    const C3DPoint flatD = PolarPoint(ruling.start, ruling.direction - v, ad);
    return {flatC, PlanAngle(flatC, flatD)};
}

/// The edge as a list of its own, in the reverse order.
PointList Reversed(const C3DPoints& edge) {
    return std::make_shared<C3DPoints>(ReversePoints(edge));
}

}  // namespace

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
        double ab = Distance3D(a, b);
        // Behind the last station comes the first again, as round a closed fitting; only the last ruling
        // itself is used of that step.
        const std::size_t following = i < n ? i + 1 : 1;
        const FlatRuling next = NextRuling(ruling, ab, a, b, first.Item(following), second.Item(following));
        flatFirst.Add(ruling.start).Flag = a.Flag;
        flatSecond.Add(PolarPoint(ruling.start, ruling.direction, ab)).Flag = b.Flag;
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
