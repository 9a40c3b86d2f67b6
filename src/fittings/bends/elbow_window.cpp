// Elbow: two round pipes on one mitre, by their lengths and the angle between them, square, or on a bend
// radius.
#include <array>
#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/bends/elbow.h"
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

// The sketch shows the elbow level, in its own plane: the first leg upright on its square end.

constexpr std::array<SketchView, 1> LevelView = {{{.turn = 0, .tilt = 0}}};

/// The middles of the square ends, and the point where the centre lines meet.
constexpr SketchPoint Start = MiddleOf(2);
constexpr SketchPoint End = {.list = 1, .spot = Spot::Centre, .surface = 2};
constexpr SketchPoint Corner(double length1) {
    return OnAxis(length1);
}

constexpr std::array<SketchConstruction, 2> CentreLines(double length1) {
    return {{CentreLine(Start, Corner(length1)), CentreLine(Corner(length1), End)}};
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
    {Length1, "Length 1", "320", LinearSize(Side::Left, Start, Corner(320))},
    {Length2, "Length 2", "260", AlignedSize(Side::Above, Corner(320), End)},
    {Angle, "Angle (degrees)", "120", AngleSize(Side::Right, Corner(320), Start, End, 0.5)}};
constexpr LabelEntry Labels[] = {{PipeDiameter}, {Length1}, {Length2}, {Angle}};
constexpr auto Lines = CentreLines(320);

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

constexpr BoxEntry Boxes[] = {{PipeDiameter, "Pipe diameter", "150", DiameterSize(Side::Below, 2)},
                              {Length1, "Length 1", "240", LinearSize(Side::Right, Start, Corner(240))},
                              {Length2, "Length 2", "190", LinearSize(Side::Above, End, Corner(240))}};
constexpr LabelEntry Labels[] = {{PipeDiameter}, {Length1}, {Length2}, {NoBox, "Angle = ", "90"}};
constexpr auto Lines = CentreLines(240);

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
    {BendRadius, "Bend radius", "300", LinearSize(Side::Below, Start, Centre)},
    {Angle, "Angle (degrees)", "60", AngleSize(Side::Right, Centre, Start, End, 0.5)}};
constexpr LabelEntry Labels[] = {{PipeDiameter}, {BendRadius}, {Angle}};
constexpr std::array<SketchConstruction, 2> Lines = {{CentreLine(Centre, Start), CentreLine(Centre, End)}};

}  // namespace on_bend_radius

constexpr PageEntry Pages[] = {
    {legs::Boxes, legs::Labels, LevelView, legs::Lines},
    {square::Boxes, square::Labels, LevelView, square::Lines},
    {on_bend_radius::Boxes, on_bend_radius::Labels, LevelView, on_bend_radius::Lines}};

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
