#include "fittings/branches/pipe_to_cone.h"

#include <cmath>

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/branches/cone_walk.h"
#include "fittings/cones/right_cone.h"
#include "fittings/cut_past_end.h"
#include "fittings/pieces.h"
#include "fittings/pipes/right_cylinder.h"
#include "fittings/ring.h"
#include "fittings/trim.h"
#include "fittings/unrolled.h"

namespace korvet {
namespace {

/// How far, as a part of the cone's height, a hole that just touches an end may reach beyond it by rounding.
constexpr double TouchingBand = 1e-9;

/// The hole is cut into the wall between the two ends of the cone.
void RequireOnWall(const C3DPoints& hole, double height) {
    const double slack = TouchingBand * height;
    for (const C3DPoint& point : hole) {
        if (point.z > height + slack) {
            throw ArithmeticError("the hole reaches above the top of the cone");
        }
        if (point.z < -slack) {
            throw ArithmeticError("the hole reaches below the base of the cone");
        }
    }
}

/// From one station to the next the hole never runs round more than half of the cone: on the plate, which is
/// cut open at -x, it would come in again at the other end.
void RequireClearOfSeam(const C3DPoints& hole) {
    double before = 0;
    for (std::size_t i = 1; i <= hole.Count(); ++i) {
        const double angle = std::atan2(hole.Item(i).y, hole.Item(i).x);
        if (i > 1 && std::fabs(angle - before) > PI) {
            throw ArithmeticError("the hole lies across the seam of the cone");
        }
        before = angle;
    }
}

}  // namespace

Cone CPipeToCone::Wall() const {
    return {BaseRad, ApexHeight, ConeAngle};
}

/// The cone without its hole, and its ApexHeight.
CRuleSurf CPipeToCone::BuildCone() {
    CRightCone cone;
    cone.inputs = PieceInputs(inputs, {.JoinAngle = PI, .laps = NoLaps});
    cone.BaseRad = BaseRad;
    cone.ConeAngle = ConeAngle;
    SetEnds(cone, {.CPHeight1 = CPHeight1});
    cone.ConstructModel();
    ApexHeight = cone.ApexHeight;
    return cone.results.ModelSurface;
}

/// The whole pipe in its place, still with the start of its rules in List2.
CRuleSurf CPipeToCone::BuildPipe() const {
    const bool fromTop = inputs.Dtype == PipeFromTop;
    CRightCylinder pipe;
    pipe.inputs = PieceInputs(inputs, {.JoinAngle = fromTop ? PI : 0, .halved = false, .laps = NoLaps});
    pipe.BaseRad = PipeRad;
    SetEnds(pipe, {.CPHeight1 = PipeLength});
    pipe.ConstructModel();
    CRuleSurf surface = pipe.results.ModelSurface;
    if (fromTop) {
        surface.Move({}, {CenterDistance, Offset, 0, PlainStation});
        return surface;
    }
    surface.Rotate(Axis::Y, {}, inputs.Dtype == PipeFromSide ? -QuarterTurn : PipeAngle);
    surface.Move({}, {0, Offset, CenterDistance, PlainStation});
    return surface;
}

/// Where each rule of the pipe comes out of the cone.
PointList CPipeToCone::BuildIntersectionList(const CRuleSurf& pipe) const {
    const WalkedCone cone = {BaseRad, ApexHeight, CPHeight1};
    auto list = std::make_shared<C3DPoints>();
    list->Reserve(pipe.List1->Count());
    for (std::size_t i = 1; i <= pipe.List1->Count(); ++i) {
        C3DPoint point = FindConeIntersection(cone, pipe.List2->Item(i), pipe.List1->Item(i));
        point.Flag = pipe.List1->Item(i).Flag;
        list->Add(point);
    }
    const C3DPoint& start = pipe.List2->Item(1);
    const C3DPoint& end = pipe.List1->Item(1);
    RequireCutWithinEnd(*list, *pipe.List1, {end.x - start.x, end.y - start.y, end.z - start.z, PlainStation},
                        "the pipe length");
    RequireOnWall(*list, CPHeight1);
    RequireClearOfSeam(*list);
    return list;
}

/// The first half of the cone has y below 0. That is where the first half of a hole from above lies, which
/// starts next to the axis, and the second half of one that starts below the pipe.
PointList CPipeToCone::KeptHole(const PointList& hole) const {
    if (!inputs.HalfPattern) {
        return std::make_shared<C3DPoints>(*hole);
    }
    return inputs.Dtype == PipeFromTop ? FirstHalf(*hole) : SecondHalf(*hole);
}

void CPipeToCone::ConstructModel() {
    RequireWalkable(CPHeight1);
    uprightCone_ = BuildCone();
    CRuleSurf pipe = BuildPipe();
    pipe.List2 = BuildIntersectionList(pipe);
    uprightCone_.List3 = KeptHole(pipe.List2);

    CRuleSurf cone = uprightCone_;
    if (Invert) {
        cone.Rotate(Axis::Y, {}, PI);
        pipe.Rotate(Axis::Y, {}, PI);
    }
    results.ModelSurfaceList = CRuleSurfs();
    results.ModelSurfaceList.Add(cone);
    results.ModelSurfaceList.Add(Trimmed(pipe, TrimOf(inputs)));
}

void CPipeToCone::DevelopModel() {
    results.PatternSurfaceList = CRuleSurfs();
    ConstructModel();
    if (inputs.Miscellaneous == PipePattern) {
        results.PatternSurfaceList.Add(DevelopPipe());
    } else if (inputs.Miscellaneous == ConePattern) {
        results.PatternSurfaceList.Add(DevelopB());
    }
}

CRuleSurf CPipeToCone::DevelopPipe() const {
    CRuleSurf pattern = UnrolledRules(results.ModelSurfaceList.Item(2), StraightEdge::List2,
                                      PipeRad * FullTurn / (2 * inputs.segs));
    AddLaps(pattern, inputs);
    return pattern;
}

CRuleSurf CPipeToCone::DevelopB() const {
    CRuleSurf cone = uprightCone_;
    // By half a turn, the seam's own plan angle: it comes to 0.
    cone.Rotate(Axis::Z, {}, PlanAngle({}, cone.List2->Item(1)));
    ConeUnroller unroller(Wall());
    CRuleSurf pattern;
    for (PointList* list : {&pattern.List1, &pattern.List2, &pattern.List3}) {
        *list = std::make_shared<C3DPoints>();
    }
    pattern.List1->Reserve(cone.List1->Count() + 1);  // with the end of a seam lap
    pattern.List2->Reserve(cone.List1->Count() + 1);
    for (std::size_t i = 1; i <= cone.List2->Count(); ++i) {
        const double f = unroller.NextFlatAngle(i == 1 ? 0 : PlanAngle({}, cone.List2->Item(i)));
        pattern.List1->Add(unroller.Flat(cone.List1->Item(i), f));
        pattern.List2->Add(unroller.Flat(cone.List2->Item(i), f));
    }
    pattern.List3->Reserve(cone.List3->Count());
    for (const C3DPoint& point : *cone.List3) {
        pattern.List3->Add(unroller.Flat(point, unroller.FlatAngle(PlanAngle({}, point))));
    }
    pattern.RefPoint = C3DPoint();
    pattern.RefPointDisplay = true;
    AddLaps(pattern, inputs);
    return pattern;
}

}  // namespace korvet
