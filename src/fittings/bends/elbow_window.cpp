// Elbow: two round pipes on one mitre, by their lengths and the angle between them, square, or on a bend
// radius.
#include <array>
#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/bends/elbow.h"
#include "fittings/bends/elbow_sketch.h"
#include "fittings/mean_sizes.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

/// The sizes of an elbow, on the mean line; the angle as CElbow takes it, in radians.
struct Sizes {
    double radius;
    double length1;
    double length2;
    double bendAngle;
};

void SetElbow(const CPatternSettings& settings, const Sizes& sizes, CElbow& elbow) {
    elbow.BaseRad = sizes.radius;
    elbow.Length1 = sizes.length1;
    elbow.Length2 = sizes.length2;
    elbow.BendAngle = sizes.bendAngle;
    elbow.KerfSpacing = settings.KerfSpacing;
    elbow.TemplateType = settings.TemplateType;
    elbow.Thickness = settings.Thickness;
}

Outcome CheckAngle(FittingForm& form, int angleBox) {
    return RefusedIf(form.CheckPositive(angleBox) || form.CheckLessThan(angleBox, 180));
}

namespace legs {

enum Box : int { PipeDiameter = 0, Length1 = 1, Length2 = 2, Angle = 3 };

/// The shortest leg: its square end meets the mitre at the inside, R / tan(angle / 2) from where the centre
/// lines meet. At a right angle that is R, which the literal of the angle would miss by a hair.
double ShortestLeg(double R, double degrees) {
    return degrees == 90 ? R : R / std::tan(DegToRad(degrees) / 2);
}

Outcome Build(FittingForm& form, CElbow& elbow) {
    if (form.CheckPositive(PipeDiameter)) {
        return Refused;
    }
    const double R = MeanRadiusOfDiameter(form, PipeDiameter);
    if (CheckRoundWall(form, PipeDiameter, R) || CheckAngle(form, Angle)) {
        return Refused;
    }
    const double m = ShortestLeg(R, form.Value(Angle));
    if (form.CheckAtLeast(Length1, m) || form.CheckAtLeast(Length2, m)) {
        return Refused;
    }
    SetElbow(form.settings, {R, form.Value(Length1), form.Value(Length2), -DegToRad(form.Value(Angle))},
             elbow);
    return Passed;
}

constexpr BoxEntry Boxes[] = {
    {PipeDiameter, "Pipe diameter", "200", DiameterSize(Side::Below, 2)},
    {Length1, "Length 1", "320", LinearSize(Side::Left, elbow::Start, elbow::Corner(320))},
    {Length2, "Length 2", "260", AlignedSize(Side::Above, elbow::Corner(320), elbow::End)},
    {Angle, "Angle (degrees)", "120",
     AngleSize(Side::Right, elbow::Corner(320), elbow::Start, elbow::End, 0.5)}};
constexpr LabelEntry Labels[] = {{PipeDiameter}, {Length1}, {Length2}, {Angle}};
constexpr auto Lines = elbow::CentreLines(320);

}  // namespace legs

namespace square {

enum Box : int { PipeDiameter = 4, Length1 = 5, Length2 = 6 };

Outcome Build(FittingForm& form, CElbow& elbow) {
    const double R = MeanRadiusOfDiameter(form, PipeDiameter);
    if (CheckRoundWall(form, PipeDiameter, R) || form.CheckAtLeast(Length1, R) ||
        form.CheckAtLeast(Length2, R)) {
        return Refused;
    }
    SetElbow(form.settings, {R, form.Value(Length1), form.Value(Length2), QuarterTurn}, elbow);
    return Passed;
}

constexpr BoxEntry Boxes[] = {
    {PipeDiameter, "Pipe diameter", "150", DiameterSize(Side::Below, 2)},
    {Length1, "Length 1", "240", LinearSize(Side::Right, elbow::Start, elbow::Corner(240))},
    {Length2, "Length 2", "190", LinearSize(Side::Above, elbow::End, elbow::Corner(240))}};
constexpr LabelEntry Labels[] = {{PipeDiameter}, {Length1}, {Length2}, {NoBox, "Angle = ", "90"}};
constexpr auto Lines = elbow::CentreLines(240);

}  // namespace square

namespace on_bend_radius {

enum Box : int { PipeDiameter = 7, BendRadius = 8, Angle = 9 };

/// Both square ends touch an arc of the bend radius, which turns by the angle: each leg is a tangent.
Outcome Build(FittingForm& form, CElbow& elbow) {
    const double R = MeanRadiusOfDiameter(form, PipeDiameter);
    if (CheckRoundWall(form, PipeDiameter, R) || form.CheckAtLeast(BendRadius, R) ||
        CheckAngle(form, Angle)) {
        return Refused;
    }
    elbow.BendRadius = form.Value(BendRadius);
    const double b = DegToRad(form.Value(Angle));
    const double length = std::tan(b / 2) * elbow.BendRadius;
    SetElbow(form.settings, {R, length, length, -(PI - b)}, elbow);
    return Passed;
}

constexpr SketchPoint Centre = AtXZ(300, 0);
constexpr BoxEntry Boxes[] = {
    {PipeDiameter, "Pipe diameter", "180", DiameterSize(Side::Below, 2)},
    {BendRadius, "Bend radius", "300", LinearSize(Side::Below, elbow::Start, Centre)},
    {Angle, "Angle (degrees)", "60", AngleSize(Side::Right, Centre, elbow::Start, elbow::End, 0.5)}};
constexpr LabelEntry Labels[] = {{PipeDiameter}, {BendRadius}, {Angle}};
constexpr std::array<SketchConstruction, 2> Lines = {
    {CentreLine(Centre, elbow::Start), CentreLine(Centre, elbow::End)}};

}  // namespace on_bend_radius

constexpr PageEntry Pages[] = {
    {legs::Boxes, legs::Labels, elbow::Views, legs::Lines},
    {square::Boxes, square::Labels, elbow::Views, square::Lines},
    {on_bend_radius::Boxes, on_bend_radius::Labels, elbow::Views, on_bend_radius::Lines}};

}  // namespace

const WindowTable frmElbow = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CElbow>,
    .buildFitting = BuildByType<CElbow, legs::Build, square::Build, on_bend_radius::Build>,
    .multiple = true,
    .templateTypeEnabled = true,
    .kerfEnabled = true,
};

}  // namespace korvet
