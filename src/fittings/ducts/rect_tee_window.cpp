// Rectangular Tee: the plan of a tee of ducts, square or at an angle. It shows a model and has no pattern.
#include <array>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/ducts/rect_tee.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

/// The boxes of one page.
struct TeeBoxes {
    int end1PlanWidth;
    int end1Length;
    int end2LeftLength;
    int end2RightLength;
    int end2LeftPlanWidth;
    int end2RightPlanWidth;
    int depth;
};

/// No size is refused.
void SetTee(const FittingForm& form, const TeeBoxes& boxes, double centerLineAngle, CRectTee& tee) {
    tee.End1PlanWidth = form.Value(boxes.end1PlanWidth);
    tee.End1Length = form.Value(boxes.end1Length);
    tee.End2LeftLength = form.Value(boxes.end2LeftLength);
    tee.End2RightLength = form.Value(boxes.end2RightLength);
    tee.End2LeftPlanWidth = form.Value(boxes.end2LeftPlanWidth);
    tee.End2RightPlanWidth = form.Value(boxes.end2RightPlanWidth);
    tee.End1Depth = tee.End2Depth = form.Value(boxes.depth);
    tee.CenterLineAngle = centerLineAngle;
}

// The sketch: the plan above a view from the front right, which shows the depth. Corners of the outline are
// told by their numbers in List1.
constexpr int Plan = 0;
constexpr int Outside = 1;
constexpr std::array<SketchView, 2> Views = {{{.turn = 0, .tilt = 90}, {.turn = 20, .tilt = 25}}};

constexpr SketchPoint Corner(int number, double dx = 0) {
    SketchPoint corner = StationOf(1, number);
    corner.dx = dx;
    return corner;
}

constexpr SketchDimension DepthSize(int corner) {
    return LinearSize(Side::Right, StationOf(1, corner), StationOf(2, corner), Outside);
}

namespace square {

enum Box : int {
    End1PlanWidth = 0,
    End1Length = 1,
    End2LeftLength = 2,
    End2RightLength = 3,
    End2LeftPlanWidth = 4,
    End2RightPlanWidth = 5,
    Depth = 6
};

Outcome Build(FittingForm& form, CRectTee& tee) {
    SetTee(form,
           {End1PlanWidth, End1Length, End2LeftLength, End2RightLength, End2LeftPlanWidth, End2RightPlanWidth,
            Depth},
           QuarterTurn, tee);
    return Passed;
}

enum CornerNumber : int {
    LeftEndNear = 3,
    LeftEndFar = 4,
    RightEndFar = 5,
    RightEndNear = 6,
    InletRight = 8,
    InletLeft = 9
};

constexpr SketchPoint Opposite = AtXZ(420, 0);
constexpr BoxEntry Boxes[] = {
    {End1PlanWidth, "End 1 width", "200",
     LinearSize(Side::Left, Corner(InletRight), Corner(InletLeft), Plan)},
    {End1Length, "End 1 length", "420",
     LinearSize(Side::Below, Corner(InletRight), Corner(InletRight, 420), Plan)},
    {End2LeftLength, "Left length", "260", LinearSize(Side::Right, Opposite, Corner(LeftEndFar), Plan)},
    {End2RightLength, "Right length", "300", LinearSize(Side::Right, Corner(RightEndFar), Opposite, Plan)},
    {End2LeftPlanWidth, "Left width", "150",
     LinearSize(Side::Above, Corner(LeftEndNear), Corner(LeftEndFar), Plan)},
    {End2RightPlanWidth, "Right width", "180",
     LinearSize(Side::Below, Corner(RightEndNear), Corner(RightEndFar), Plan)},
    {Depth, "Depth", "240", DepthSize(RightEndFar)}};
constexpr SketchConstruction Lines[] = {CentreLine(OnAxis(0), Opposite, Plan)};

}  // namespace square

namespace angled {

enum Box : int {
    End1PlanWidth = 7,
    End1Length = 8,
    End2LeftLength = 9,
    End2RightLength = 10,
    End2PlanWidth = 11,
    CenterLineAngle = 12,
    Depth = 13
};

Outcome Build(FittingForm& form, CRectTee& tee) {
    SetTee(form,
           {End1PlanWidth, End1Length, End2LeftLength, End2RightLength, End2PlanWidth, End2PlanWidth, Depth},
           DegToRad(form.Value(CenterLineAngle)), tee);
    return Passed;
}

enum CornerNumber : int { InletRight = 1, RightEnd = 2, LeftEndFar = 3, LeftEndNear = 4, InletLeft = 6 };

// The inlet comes at an angle of 100 degrees to the left outlet, which so turns by 80.
constexpr SketchPoint Centre = OnAxis(0);
constexpr SketchPoint Inlet = AtXZ(-350, 0);
constexpr SketchPoint LeftEnd = PolarXY(Centre, 80, 310);
constexpr SketchPoint OnWallOpposite = PolarXY(Corner(LeftEndFar), -80, 310);
constexpr BoxEntry Boxes[] = {
    {End1PlanWidth, "End 1 width", "190",
     LinearSize(Side::Left, Corner(InletRight), Corner(InletLeft), Plan)},
    {End1Length, "End 1 length", "350", LinearSize(Side::Below, Inlet, Centre, Plan)},
    {End2LeftLength, "Left length", "310", AlignedSize(Side::Right, Centre, LeftEnd, Plan)},
    {End2RightLength, "Right length", "280",
     AlignedSize(Side::Right, OnWallOpposite, Corner(RightEnd), Plan)},
    {End2PlanWidth, "End 2 width", "140",
     AlignedSize(Side::Above, Corner(LeftEndNear), Corner(LeftEndFar), Plan)},
    {CenterLineAngle, "Center line angle (degrees)", "100",
     AngleSize(Side::Left, Centre, Inlet, LeftEnd, 0.5, Plan)},
    {Depth, "Depth", "220", DepthSize(RightEnd)}};
constexpr SketchConstruction Lines[] = {CentreLine(Inlet, Centre, Plan), CentreLine(Centre, LeftEnd, Plan)};

}  // namespace angled

constexpr PageEntry Pages[] = {{square::Boxes, {}, Views, square::Lines},
                               {angled::Boxes, {}, Views, angled::Lines}};

}  // namespace

const WindowTable frmRectTee = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CRectTee>,
    .buildFitting = BuildByType<CRectTee, square::Build, angled::Build>,
    .joinAngleDisable = true,
};

}  // namespace korvet
