#include "fittings/ducts/rect_tee.h"

#include <cmath>
#include <initializer_list>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/extruded.h"

namespace korvet {
namespace {

C3DPoints OutlineOf(std::initializer_list<C3DPoint> corners) {
    C3DPoints outline;
    outline.Reserve(corners.size());
    for (const C3DPoint& corner : corners) {
        outline.Add(corner);
    }
    return outline;
}

}  // namespace

C3DPoints CRectTee::BuildSquarePlan() const {
    const double half = End1PlanWidth / 2;
    const C3DPoint inletLeft = PolarPoint({}, QuarterTurn, half);
    const C3DPoint inletRight = PolarPoint({}, ThreeQuarterTurns, half);
    const C3DPoint leftThroat = PolarPoint(inletLeft, 0, End1Length - End2LeftPlanWidth);
    const C3DPoint leftEndNear = PolarPoint(leftThroat, QuarterTurn, End2LeftLength - half);
    const C3DPoint leftEndFar = PolarPoint(leftEndNear, 0, End2LeftPlanWidth);
    const C3DPoint rightEndFar = PolarPoint(leftEndFar, ThreeQuarterTurns, End2RightLength + End2LeftLength);
    const C3DPoint rightEndNear = PolarPoint(rightEndFar, PI, End2RightPlanWidth);
    const C3DPoint rightThroat = PolarPoint(inletRight, 0, End1Length - End2RightPlanWidth);
    return OutlineOf({inletLeft, leftThroat, leftEndNear, leftEndFar, rightEndFar, rightEndNear, rightThroat,
                      inletRight, inletLeft});
}

/// The left throat is where walls of one width on either side of the bend from inlet to left outlet meet:
/// (width / 2) tan(turn / 2) before the centre.
C3DPoints CRectTee::BuildAngledPlan() const {
    const double turn = PI - CenterLineAngle;
    const double half = End1PlanWidth / 2;
    const C3DPoint inlet = PolarPoint({}, PI, End1Length);
    const C3DPoint leftEnd = PolarPoint({}, turn, End2LeftLength);
    const C3DPoint inletLeft = PolarPoint(inlet, QuarterTurn, half);
    const C3DPoint inletRight = PolarPoint(inlet, ThreeQuarterTurns, half);
    const C3DPoint leftEndNear = PolarPoint(leftEnd, turn + QuarterTurn, End2LeftPlanWidth / 2);
    const C3DPoint leftEndFar = PolarPoint(leftEnd, turn - QuarterTurn, End2LeftPlanWidth / 2);
    const C3DPoint leftThroat = PolarPoint(inletLeft, 0, End1Length - half * std::tan(turn / 2));
    const C3DPoint rightEnd = PolarPoint(leftEndFar, CenterLineAngle - PI, End2RightLength + End2LeftLength);
    return OutlineOf({inletRight, rightEnd, leftEndFar, leftEndNear, leftThroat, inletLeft, inletRight});
}

void CRectTee::ConstructModel() {
    results.ModelSurface =
        Extruded(inputs.Dtype == SquareTee ? BuildSquarePlan() : BuildAngledPlan(), End1Depth);
}

}  // namespace korvet
