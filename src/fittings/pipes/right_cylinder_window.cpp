// Right Cylinder: a round pipe cut square, by a tilted plane at one end or both, or by a roof of two planes.
#include <array>
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

Outcome BuildSquare(FittingForm& form, CRightCylinder& pipe) {
    if (form.CheckAllPositive(0, 1) || SetRadius(form, pipe, 0)) {
        return Refused;
    }
    pipe.CPHeight1 = form.Value(1);
    return Passed;
}

Outcome BuildTiltedTop(FittingForm& form, CRightCylinder& pipe) {
    if (form.CheckAllPositive(2, 3) || SetRadius(form, pipe, 2)) {
        return Refused;
    }
    pipe.CPHeight1 = form.Value(3);
    pipe.CPAngle1 = -DegToRad(form.Value(4));
    return CheckPlaneTilt(form, 4, pipe.CPHeight1, pipe.BaseRad);
}

Outcome BuildTwoHeights(FittingForm& form, CRightCylinder& pipe) {
    if (form.CheckAllPositive(5, 6, 7) || SetRadius(form, pipe, 5)) {
        return Refused;
    }
    pipe.CPHeight1 = (form.Value(7) + form.Value(6)) / 2;
    pipe.CPAngle1 = -std::atan((form.Value(6) - form.Value(7)) / (pipe.BaseRad + pipe.BaseRad));
    return Passed;
}

Outcome BuildRoof(FittingForm& form, CRightCylinder& pipe) {
    if (form.CheckAllPositive(8, 9) || SetRadius(form, pipe, 8)) {
        return Refused;
    }
    pipe.CPHeight1 = form.Value(9);
    pipe.CPAngle1 = DegToRad(form.Value(10));
    pipe.CPAngle3 = DegToRad(form.Value(11));
    return RefusedIf(CheckRoofSide(form, 10, pipe.CPHeight1, pipe.BaseRad) ||
                     CheckRoofSide(form, 11, pipe.CPHeight1, pipe.BaseRad));
}

Outcome BuildTiltedEnds(FittingForm& form, CRightCylinder& pipe) {
    if (form.CheckAllPositive(12, 13) || SetRadius(form, pipe, 12)) {
        return Refused;
    }
    pipe.CPHeight1 = form.Value(13);
    pipe.CPAngle1 = -DegToRad(form.Value(14));
    pipe.CPAngle2 = -DegToRad(form.Value(15));
    pipe.Rotation = DegToRad(form.Value(21));
    if (CheckPlaneTilt(form, 14, pipe.CPHeight1, pipe.BaseRad)) {
        return Refused;
    }
    // Wherever the base is turned, it stays below the lowest point of the top edge.
    const double q = pipe.CPHeight1 - pipe.BaseRad * std::abs(std::tan(pipe.CPAngle1));
    return CheckPlaneTilt(form, 15, q, pipe.BaseRad);
}

Outcome BuildOffsetRoof(FittingForm& form, CRightCylinder& pipe) {
    if (form.CheckAllPositive(16, 17) || SetRadius(form, pipe, 16)) {
        return Refused;
    }
    pipe.CPHeight1 = form.Value(17);
    pipe.CPAngle1 = DegToRad(form.Value(19));
    pipe.CPAngle3 = DegToRad(form.Value(18));
    pipe.Offset = form.Value(20);
    const double R = pipe.BaseRad;
    return RefusedIf(form.CheckGreaterThan(20, -R) || form.CheckLessThan(20, R) ||
                     CheckRoofSide(form, 18, pipe.CPHeight1, R - pipe.Offset) ||
                     CheckRoofSide(form, 19, pipe.CPHeight1, R + pipe.Offset));
}

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
    return BuildByType<CRightCylinder, BuildSquare, BuildTiltedTop, BuildTwoHeights, BuildRoof,
                       BuildTiltedEnds, BuildOffsetRoof>(form, fitting);
}

// The top is List1, the base List2, about the axis at x = 0.

constexpr std::array<SketchConstruction, 1> PipeAxis = {{CentreLine(OnAxis(0), OnAxis(300))}};

constexpr std::array<BoxEntry, 2> SquareBoxes = {
    {{0, "Base diameter", "200", DiameterSize(Side::Below, 2)},
     {1, "Cutting plane height", "300", LinearSize(Side::Right, MiddleOf(2), MiddleOf(1))}}};

constexpr std::array<BoxEntry, 3> TiltedTopBoxes = {
    {{2, "Base diameter", "200", DiameterSize(Side::Below, 2)},
     {3, "Cutting plane height", "300", LinearSize(Side::Left, MiddleOf(2), MiddleOf(1))},
     {4, "Cutting plane angle (degrees)", "30", TiltSize(1)}}};

constexpr std::array<BoxEntry, 3> TwoHeightsBoxes = {
    {{5, "Base diameter", "200", DiameterSize(Side::Below, 2)},
     {6, "Height 1", "350", LinearSize(Side::Left, SpotOf(2, Spot::MinX), SpotOf(1, Spot::MinX))},
     {7, "Height 2", "250", LinearSize(Side::Right, SpotOf(2, Spot::MaxX), SpotOf(1, Spot::MaxX))}}};

constexpr std::array<BoxEntry, 4> RoofBoxes = {
    {{8, "Base diameter", "200", DiameterSize(Side::Below, 2)},
     {9, "Cutting plane height", "300", LinearSize(Side::Left, MiddleOf(2), OnAxis(300))},
     {10, "Cutting plane angle 1 (degrees)", "30", RoofTiltSize(Side::Left, OnAxis(300), 1)},
     {11, "Cutting plane angle 2 (degrees)", "40", RoofTiltSize(Side::Right, OnAxis(300), 1)}}};

// The base of a pipe with both ends tilted is turned by 60 degrees. A second view, turned as far, shows its
// tilt, and the plan shows by how much it is turned.
constexpr std::array<SketchView, 3> TiltedEndsViews = {
    {{.turn = 0, .tilt = 0}, {.turn = 60, .tilt = 0}, {.turn = 0, .tilt = 90}}};
constexpr SketchPoint TurnedRay = {.dx = 50, .dy = -86.60254037844386};
constexpr std::array<BoxEntry, 5> TiltedEndsBoxes = {
    {{12, "Base diameter", "200",
      LinearSize(Side::Below, SpotOf(2, Spot::MinX), SpotOf(2, Spot::MaxX, 0, 0, -26.79491924311227))},
     {13, "Cutting plane height", "220", LinearSize(Side::Left, MiddleOf(2), MiddleOf(1))},
     {14, "Cutting plane angle 1 (degrees)", "20", TiltSize(1)},
     {15, "Cutting plane angle 2 (degrees)", "15",
      AngleSize(Side::Right, SpotOf(2, Spot::MinZ), SpotOf(2, Spot::MaxZ),
                SpotOf(2, Spot::MinZ, 50, -86.60254037844386), 1.15, 1)},
     {21, "Rotation of base (degrees)", "60",
      AngleSize(Side::Right, OnAxis(0), AtXZ(100, 0), TurnedRay, 1.15, 2)}}};
constexpr std::array<SketchConstruction, 4> TiltedEndsLines = {
    {CentreLine(OnAxis(0), OnAxis(220)), CentreLine(OnAxis(0), OnAxis(220), 1),
     CentreLine(AtXZ(-100, 0), AtXZ(100, 0), 2),
     CentreLine({.dx = -50, .dy = 86.60254037844386}, TurnedRay, 2)}};

constexpr SketchPoint OffsetRidge = AtXZ(30, 300);
constexpr std::array<BoxEntry, 5> OffsetRoofBoxes = {
    {{16, "Base diameter", "200", DiameterSize(Side::Below, 2)},
     {17, "Cutting plane height", "300", LinearSize(Side::Right, MiddleOf(2, 30), OffsetRidge)},
     {18, "Cutting plane angle 2 (degrees)", "40", RoofTiltSize(Side::Right, OffsetRidge, 1)},
     {19, "Cutting plane angle 1 (degrees)", "30", RoofTiltSize(Side::Left, OffsetRidge, 1)},
     {20, "Offset", "30", LinearSize(Side::Above, OnAxis(300), OffsetRidge)}}};

constexpr std::array<LabelEntry, 2> SquareLabels = {
    {{"Base diameter = ", 0}, {"Cutting plane height = ", 1}}};
constexpr std::array<LabelEntry, 3> TiltedTopLabels = {
    {{"Base diameter = ", 2}, {"Cutting plane height = ", 3}, {"Cutting plane angle = ", 4}}};
// Two blanks before the last sign: text blocks made so far have it so.
constexpr std::array<LabelEntry, 3> TwoHeightsLabels = {
    {{"Base diameter = ", 5}, {"Height 1 = ", 6}, {"Height 2  = ", 7}}};
constexpr std::array<LabelEntry, 4> RoofLabels = {{{"Base diameter = ", 8},
                                                   {"Cutting plane height = ", 9},
                                                   {"Cutting plane angle 1 = ", 10},
                                                   {"Cutting plane angle 2 = ", 11}}};
constexpr std::array<LabelEntry, 5> TiltedEndsLabels = {{{"Base diameter = ", 12},
                                                         {"Cutting plane height = ", 13},
                                                         {"Cutting plane angle 1 = ", 14},
                                                         {"Cutting plane angle 2 = ", 15},
                                                         {"Rotation of base = ", 21}}};
constexpr std::array<LabelEntry, 5> OffsetRoofLabels = {{{"Base diameter = ", 16},
                                                         {"Cutting plane height = ", 17},
                                                         {"Cutting plane angle 1 = ", 19},
                                                         {"Cutting plane angle 2 = ", 18},
                                                         {"Offset = ", 20}}};

constexpr std::array<PageEntry, 6> Pages = {
    {{SquareBoxes, SquareLabels, FrontView, PipeAxis},
     {TiltedTopBoxes, TiltedTopLabels, FrontView, PipeAxis},
     {TwoHeightsBoxes, TwoHeightsLabels, FrontView, PipeAxis},
     {RoofBoxes, RoofLabels, FrontView, PipeAxis},
     {TiltedEndsBoxes, TiltedEndsLabels, TiltedEndsViews, TiltedEndsLines},
     {OffsetRoofBoxes, OffsetRoofLabels, FrontView, PipeAxis}}};

}  // namespace

const WindowTable frmRightCylinder = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CRightCylinder>,
    .buildFitting = Build,
    .onTypeChanged = HoldSeamOfRoofs,
    .templateTypeEnabled = true,
};

}  // namespace korvet
