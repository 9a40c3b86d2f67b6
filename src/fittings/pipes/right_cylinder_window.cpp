// Right Cylinder: a round pipe cut square, by a tilted plane at one end or both, or by a roof of two planes.
#include <cmath>

#include "core/math_module.h"
#include "fittings/mean_sizes.h"
#include "fittings/pipes/right_cylinder.h"
#include "fittings/tilt.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

/// One side of a roof may rise as steeply as it likes from a ridge at this height, `run` from the wall.
Outcome CheckRoofSide(FittingForm& form, int angleBox, double height, double run) {
    return CheckTiltWithin(form, angleBox, -90, TiltLimit(height, run));
}

/// Sets the radius from its box and makes the thickness test.
Outcome SetRadius(FittingForm& form, CRightCylinder& pipe, int diameterBox) {
    pipe.BaseRad = MeanRadiusOfDiameter(form, diameterBox);
    return CheckRoundWall(form, diameterBox, pipe.BaseRad);
}

/// Diameter and height of a pipe that has one: both above 0, and room for the material.
Outcome SetPipe(FittingForm& form, CRightCylinder& pipe, int diameterBox, int heightBox) {
    if (form.CheckAllPositive(diameterBox, heightBox)) {
        return Refused;
    }
    pipe.CPHeight1 = form.Value(heightBox);
    return SetRadius(form, pipe, diameterBox);
}

// The sketches: the top is List1, the base List2, about the axis at x = 0.

constexpr SketchConstruction Axis[] = {CentreLine(OnAxis(0), OnAxis(300))};

namespace square {

enum Box : int { BaseDiameter = 0, CuttingPlaneHeight = 1 };

Outcome Build(FittingForm& form, CRightCylinder& pipe) {
    return SetPipe(form, pipe, BaseDiameter, CuttingPlaneHeight);
}

constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "200", DiameterSize(Side::Below, 2)},
    {CuttingPlaneHeight, "Cutting plane height", "300", LinearSize(Side::Right, MiddleOf(2), MiddleOf(1))}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {CuttingPlaneHeight}};

}  // namespace square

namespace tilted_top {

enum Box : int { BaseDiameter = 2, CuttingPlaneHeight = 3, CuttingPlaneAngle = 4 };

Outcome Build(FittingForm& form, CRightCylinder& pipe) {
    if (SetPipe(form, pipe, BaseDiameter, CuttingPlaneHeight)) {
        return Refused;
    }
    pipe.CPAngle1 = -DegToRad(form.Value(CuttingPlaneAngle));
    return CheckPlaneTilt(form, CuttingPlaneAngle, pipe.CPHeight1, pipe.BaseRad);
}

constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "200", DiameterSize(Side::Below, 2)},
    {CuttingPlaneHeight, "Cutting plane height", "300", LinearSize(Side::Left, MiddleOf(2), MiddleOf(1))},
    {CuttingPlaneAngle, "Cutting plane angle (degrees)", "30", TiltSize(1)}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {CuttingPlaneHeight}, {CuttingPlaneAngle}};

}  // namespace tilted_top

namespace two_heights {

enum Box : int { BaseDiameter = 5, Height1 = 6, Height2 = 7 };

Outcome Build(FittingForm& form, CRightCylinder& pipe) {
    if (form.CheckAllPositive(BaseDiameter, Height1, Height2) || SetRadius(form, pipe, BaseDiameter)) {
        return Refused;
    }
    pipe.CPHeight1 = (form.Value(Height2) + form.Value(Height1)) / 2;
    pipe.CPAngle1 = -std::atan((form.Value(Height1) - form.Value(Height2)) / (pipe.BaseRad + pipe.BaseRad));
    return Passed;
}

constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "200", DiameterSize(Side::Below, 2)},
    {Height1, "Height 1", "350", LinearSize(Side::Left, SpotOf(2, Spot::MinX), SpotOf(1, Spot::MinX))},
    {Height2, "Height 2", "250", LinearSize(Side::Right, SpotOf(2, Spot::MaxX), SpotOf(1, Spot::MaxX))}};
// Two blanks before the last sign: text blocks made so far have it so.
constexpr LabelEntry Labels[] = {{BaseDiameter}, {Height1}, {Height2, "Height 2  = "}};

}  // namespace two_heights

namespace roof {

enum Box : int { BaseDiameter = 8, CuttingPlaneHeight = 9, CuttingPlaneAngle1 = 10, CuttingPlaneAngle2 = 11 };

Outcome Build(FittingForm& form, CRightCylinder& pipe) {
    if (SetPipe(form, pipe, BaseDiameter, CuttingPlaneHeight)) {
        return Refused;
    }
    pipe.CPAngle1 = DegToRad(form.Value(CuttingPlaneAngle1));
    pipe.CPAngle3 = DegToRad(form.Value(CuttingPlaneAngle2));
    return RefusedIf(CheckRoofSide(form, CuttingPlaneAngle1, pipe.CPHeight1, pipe.BaseRad) ||
                     CheckRoofSide(form, CuttingPlaneAngle2, pipe.CPHeight1, pipe.BaseRad));
}

constexpr SketchPoint Ridge = OnAxis(300);
constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "200", DiameterSize(Side::Below, 2)},
    {CuttingPlaneHeight, "Cutting plane height", "300", LinearSize(Side::Left, MiddleOf(2), Ridge)},
    {CuttingPlaneAngle1, "Cutting plane angle 1 (degrees)", "30", RoofTiltSize(Side::Left, Ridge, 1)},
    {CuttingPlaneAngle2, "Cutting plane angle 2 (degrees)", "40", RoofTiltSize(Side::Right, Ridge, 1)}};
constexpr LabelEntry Labels[] = {
    {BaseDiameter}, {CuttingPlaneHeight}, {CuttingPlaneAngle1}, {CuttingPlaneAngle2}};

}  // namespace roof

namespace tilted_ends {

enum Box : int {
    BaseDiameter = 12,
    CuttingPlaneHeight = 13,
    CuttingPlaneAngle1 = 14,
    CuttingPlaneAngle2 = 15,
    RotationOfBase = 21
};

Outcome Build(FittingForm& form, CRightCylinder& pipe) {
    if (SetPipe(form, pipe, BaseDiameter, CuttingPlaneHeight)) {
        return Refused;
    }
    pipe.CPAngle1 = -DegToRad(form.Value(CuttingPlaneAngle1));
    pipe.CPAngle2 = -DegToRad(form.Value(CuttingPlaneAngle2));
    pipe.Rotation = DegToRad(form.Value(RotationOfBase));
    if (CheckPlaneTilt(form, CuttingPlaneAngle1, pipe.CPHeight1, pipe.BaseRad)) {
        return Refused;
    }
    // Wherever the base is turned, it stays below the lowest point of the top edge.
    const double q = pipe.CPHeight1 - pipe.BaseRad * std::abs(std::tan(pipe.CPAngle1));
    return CheckPlaneTilt(form, CuttingPlaneAngle2, q, pipe.BaseRad);
}

// The base is turned by 60 degrees. A second view, turned as far, shows its tilt, and the plan shows by how
// much it is turned.
constexpr SketchView Views[] = {{.turn = 0, .tilt = 0}, {.turn = 60, .tilt = 0}, {.turn = 0, .tilt = 90}};
constexpr SketchPoint TurnedRay = PolarXY(OnAxis(0), -60, 100);
constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "200",
     LinearSize(Side::Below, SpotOf(2, Spot::MinX), SpotOf(2, Spot::MinX, 200))},
    {CuttingPlaneHeight, "Cutting plane height", "220", LinearSize(Side::Left, MiddleOf(2), MiddleOf(1))},
    {CuttingPlaneAngle1, "Cutting plane angle 1 (degrees)", "20", TiltSize(1)},
    {CuttingPlaneAngle2, "Cutting plane angle 2 (degrees)", "15",
     AngleSize(Side::Right, SpotOf(2, Spot::MinZ), SpotOf(2, Spot::MaxZ),
               PolarXY(SpotOf(2, Spot::MinZ), -60, 100), 1.15, 1)},
    {RotationOfBase, "Rotation of base (degrees)", "60",
     AngleSize(Side::Right, OnAxis(0), AtXZ(100, 0), TurnedRay, 1.15, 2)}};
constexpr LabelEntry Labels[] = {
    {BaseDiameter}, {CuttingPlaneHeight}, {CuttingPlaneAngle1}, {CuttingPlaneAngle2}, {RotationOfBase}};
constexpr SketchConstruction Lines[] = {
    CentreLine(OnAxis(0), OnAxis(220)), CentreLine(OnAxis(0), OnAxis(220), 1),
    CentreLine(AtXZ(-100, 0), AtXZ(100, 0), 2), CentreLine(PolarXY(OnAxis(0), 120, 100), TurnedRay, 2)};

}  // namespace tilted_ends

namespace offset_roof {

enum Box : int {
    BaseDiameter = 16,
    CuttingPlaneHeight = 17,
    CuttingPlaneAngle2 = 18,
    CuttingPlaneAngle1 = 19,
    Offset = 20
};

Outcome Build(FittingForm& form, CRightCylinder& pipe) {
    if (SetPipe(form, pipe, BaseDiameter, CuttingPlaneHeight)) {
        return Refused;
    }
    pipe.CPAngle1 = DegToRad(form.Value(CuttingPlaneAngle1));
    pipe.CPAngle3 = DegToRad(form.Value(CuttingPlaneAngle2));
    pipe.Offset = form.Value(Offset);
    const double R = pipe.BaseRad;
    return RefusedIf(form.CheckGreaterThan(Offset, -R) || form.CheckLessThan(Offset, R) ||
                     CheckRoofSide(form, CuttingPlaneAngle2, pipe.CPHeight1, R - pipe.Offset) ||
                     CheckRoofSide(form, CuttingPlaneAngle1, pipe.CPHeight1, R + pipe.Offset));
}

constexpr SketchPoint Ridge = AtXZ(30, 300);
constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "200", DiameterSize(Side::Below, 2)},
    {CuttingPlaneHeight, "Cutting plane height", "300", LinearSize(Side::Right, MiddleOf(2, 30), Ridge)},
    {CuttingPlaneAngle2, "Cutting plane angle 2 (degrees)", "40", RoofTiltSize(Side::Right, Ridge, 1)},
    {CuttingPlaneAngle1, "Cutting plane angle 1 (degrees)", "30", RoofTiltSize(Side::Left, Ridge, 1)},
    {Offset, "Offset", "30", LinearSize(Side::Above, OnAxis(300), Ridge)}};
constexpr LabelEntry Labels[] = {
    {BaseDiameter}, {CuttingPlaneHeight}, {CuttingPlaneAngle1}, {CuttingPlaneAngle2}, {Offset}};

}  // namespace offset_roof

/// The stations of a roof start at plan angle 0, so the seam of types 4 and 6 stands there.
void HoldSeamOfRoofs(std::int16_t dtype, CPatternSettings& settings) {
    HoldSeam(settings, dtype == RoofOverTracedBase || dtype == RoofTop);
}

Outcome Build(FittingForm& form, const FittingHandle& fitting) {
    // A file may hold any seam angle, so that the change of type is not enough.
    HoldSeamOfRoofs(form.dtype, form.settings);
    auto& pipe = fitting.As<CRightCylinder>();
    pipe.CPAngle1 = pipe.CPAngle2 = pipe.CPAngle3 = pipe.CPHeight2 = pipe.Offset = pipe.Rotation = 0;
    pipe.TemplateType = form.settings.TemplateType;
    pipe.Thickness = form.settings.Thickness;
    return BuildByType<CRightCylinder, square::Build, tilted_top::Build, two_heights::Build, roof::Build,
                       tilted_ends::Build, offset_roof::Build>(form, fitting);
}

constexpr PageEntry Pages[] = {
    {square::Boxes, square::Labels, FrontView, Axis},
    {tilted_top::Boxes, tilted_top::Labels, FrontView, Axis},
    {two_heights::Boxes, two_heights::Labels, FrontView, Axis},
    {roof::Boxes, roof::Labels, FrontView, Axis},
    {tilted_ends::Boxes, tilted_ends::Labels, tilted_ends::Views, tilted_ends::Lines},
    {offset_roof::Boxes, offset_roof::Labels, FrontView, Axis}};

}  // namespace

const WindowTable frmRightCylinder = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CRightCylinder>,
    .buildFitting = Build,
    .onTypeChanged = HoldSeamOfRoofs,
    .templateTypeEnabled = true,
};

}  // namespace korvet
