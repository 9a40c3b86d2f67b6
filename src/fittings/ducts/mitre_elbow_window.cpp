// Mitre Elbow: an elbow of rectangular duct with one mitre.
#include "core/math_module.h"
#include "fittings/ducts/mitre_elbow.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

enum Box : int { PlanWidth = 0, Length1 = 1, Length2 = 2, Angle = 3, Depth = 4 };

/// Every number is taken; what makes no elbow, the fitting itself says.
Outcome Build(FittingForm& form, CMitreElbow& elbow) {
    elbow.End1PlanWidth = elbow.End2PlanWidth = form.Value(PlanWidth);
    elbow.End1Length = form.Value(Length1);
    elbow.End2Length = form.Value(Length2);
    elbow.CenterLineAngle = -DegToRad(form.Value(Angle));
    elbow.End1Depth = elbow.End2Depth = form.Value(Depth);
    return Passed;
}

// The sketch: the plan, with the first limb to the left, and the duct from in front and above. The outline
// begins at the end of the first limb; its sixth corner is the other one of that end.
constexpr SketchView Views[] = {{.turn = 0, .tilt = 90}, {.turn = 20, .tilt = 25}};
constexpr SketchPoint Crossing = OnAxis(0);
constexpr SketchPoint End1 = AtXZ(-350, 0);
constexpr SketchPoint End2 = PolarXY(Crossing, 180 + 135, 310);

constexpr BoxEntry Boxes[] = {
    {PlanWidth, "Width in plan", "120", LinearSize(Side::Left, StationOf(1, 1), StationOf(1, 6))},
    {Length1, "Length 1", "350", LinearSize(Side::Above, End1, Crossing)},
    {Length2, "Length 2", "310", AlignedSize(Side::Right, Crossing, End2)},
    {Angle, "Angle (degrees)", "135", AngleSize(Side::Below, Crossing, End1, End2, 0.5)},
    {Depth, "Depth", "260", LinearSize(Side::Left, StationOf(1, 1), StationOf(2, 1), 1)}};
constexpr SketchConstruction Lines[] = {CentreLine(End1, Crossing), CentreLine(Crossing, End2)};

constexpr PageEntry Pages[] = {{Boxes, {}, Views, Lines}};

}  // namespace

const WindowTable frmMitreElbow = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CMitreElbow>,
    .buildFitting = BuildAs<CMitreElbow, Build>,
    .multiple = true,
    .joinAngleDisable = true,
};

}  // namespace korvet
