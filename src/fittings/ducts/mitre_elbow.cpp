#include "fittings/ducts/mitre_elbow.h"

#include <array>
#include <cmath>
#include <memory>

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"
#include "core/triangulation.h"
#include "fittings/extruded.h"
#include "fittings/piece_layout.h"

namespace korvet {
namespace {

/// By this part of it a length may stay below the mitre: it is the same but for rounding.
constexpr double Rounding = 1e-12;

/// Stations of a line, in the order in which a piece runs through them.
using Stations = std::array<std::size_t, 3>;

PointList PointsAt(const C3DPoints& line, const Stations& stations) {
    auto points = std::make_shared<C3DPoints>();
    for (const std::size_t station : stations) {
        points->Add(line.Item(station));
    }
    return points;
}

/// The wall of the duct between these stations of its outline.
CRuleSurf WallOf(const CRuleSurf& duct, const Stations& stations) {
    CRuleSurf wall;
    wall.List1 = PointsAt(*duct.List1, stations);
    wall.List2 = PointsAt(*duct.List2, stations);
    return wall;
}

/// The cheek between these two sides of the outline. No line crosses it, and its mitre is a corner: an arc in
/// its place would round the edge that the wall is folded along.
CRuleSurf CheekOf(const C3DPoints& outline, const Stations& side, const Stations& otherSide) {
    CRuleSurf cheek;
    cheek.List1 = PointsAt(outline, side);
    cheek.List2 = PointsAt(outline, otherSide);
    for (const PointList& list : {cheek.List1, cheek.List2}) {
        for (C3DPoint& point : *list) {
            point.Flag = PlainStation;
        }
        list->Item(2).Flag = CornerStation;
    }
    return cheek;
}

}  // namespace

/// The mitre halves the angle between the limbs. Along the limbs it reaches
///     width / 2 |cot(angle / 2)|
/// to either side of where the centre lines meet: a shorter limb has a wall that would run backwards.
void CMitreElbow::RequireWalls() const {
    if (End1PlanWidth == 0 || End1Depth == 0) {
        throw ArithmeticError("a duct without width or depth has no wall");
    }
    const double slope = std::tan(CenterLineAngle / 2);
    if (slope == 0) {
        throw ArithmeticError("limbs that lie on one another have no mitre");
    }
    const double reach = AbsValue(Quotient(End1PlanWidth / 2, slope));
    const double shortest = reach * (1 - Rounding);
    if (End1Length < shortest || End2Length < shortest) {
        throw ArithmeticError("a length ends before the mitre");
    }
}

/// From the end of the first limb along its right side, round the end of the second one, and back along the
/// left sides. The mitre is as far from the ends as the centre lines are long, but for
///     k = width / 2 tan(t / 2)
/// by which the one side is shorter and the other longer.
C3DPoints CMitreElbow::MitreOutline() const {
    const C3DPoint O;
    const double t = PI - CenterLineAngle;
    const C3DPoint E1 = PolarPoint(O, PI, End1Length);
    const C3DPoint E2 = PolarPoint(O, t, End2Length);
    const C3DPoint A = PolarPoint(E1, QuarterTurn, End1PlanWidth / 2);
    const C3DPoint B = PolarPoint(E2, t + QuarterTurn, End2PlanWidth / 2);
    const C3DPoint C = PolarPoint(E1, ThreeQuarterTurns, End1PlanWidth / 2);
    const C3DPoint D = PolarPoint(E2, t - QuarterTurn, End2PlanWidth / 2);
    const double k = (End1PlanWidth / 2) * std::tan(t / 2);
    const C3DPoint F = PolarPoint(A, 0, End1Length - k);
    const C3DPoint G = PolarPoint(C, 0, k + End1Length);
    C3DPoints outline;
    for (const C3DPoint& corner : {C, G, D, B, F, A, C}) {
        outline.Add(corner);
    }
    return outline;
}

void CMitreElbow::ConstructModel() {
    RequireWalls();
    results.ModelSurface = Extruded(MitreOutline(), End1Depth);
    results.ModelSurfaceList = CRuleSurfs();
    results.ModelSurfaceList.Add(results.ModelSurface);
}

void CMitreElbow::DevelopModel() {
    ConstructModel();
    const CRuleSurf& duct = results.ModelSurface;
    PieceLayout layout;
    for (const CRuleSurf& piece :
         {WallOf(duct, {1, 2, 3}), WallOf(duct, {4, 5, 6}), CheekOf(*duct.List1, {1, 2, 3}, {6, 5, 4})}) {
        CRuleSurf pattern = Unfolded(piece);
        const C3DPoint start = pattern.List1->Item(1);
        pattern.Rotate(Axis::Z, start, QuarterTurn);
        layout.Add(pattern, start);
        layout.place = Below(layout.place, End1Depth);
    }
    results.PatternSurfaceList = layout.Surfaces();
}

}  // namespace korvet
