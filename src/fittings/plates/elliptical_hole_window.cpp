// Elliptical Hole: a flat plate with the hole of a round pipe that passes through it at an angle.
#include <array>

#include "core/math_module.h"
#include "fittings/plates/baffle.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

enum Box : int {
    PipeDiameter = 0,
    Angle = 1,
    PlateLengthX = 2,
    PlateLengthY = 3,
    DistanceX = 4,
    DistanceY = 5
};

/// The diameter is that of the hole as it is: nothing is added or taken for the material. The distances are
/// those to the corner that stands at the left and at the bottom of the pattern.
Outcome Build(FittingForm& form, CBaffle& plate) {
    if (form.CheckPositive(PipeDiameter)) {
        return Refused;
    }
    plate.BaseRad = form.Value(PipeDiameter) / 2;
    plate.CPAngle1 = -DegToRad(form.Value(Angle));
    plate.LengthX = form.Value(PlateLengthX);
    plate.LengthY = form.Value(PlateLengthY);
    plate.CenterDistanceX = form.Value(DistanceX);
    plate.CenterDistanceY = plate.LengthY - form.Value(DistanceY);
    return Passed;
}

// The sketch: the plate from below, square on, as the pattern shows it, and under it from the side of its
// edges across x. It falls towards +y by the angle.
constexpr double Tilt = 55;
constexpr int SquareOn = 0;
constexpr int FromSide = 1;
constexpr std::array<SketchView, 2> Views = {{{.turn = 0, .tilt = Tilt - 90}, {.turn = -90, .tilt = 0}}};

/// A step along the plate towards its lower edge, List2; against that for a length below 0.
constexpr SketchPoint DownPlate(SketchPoint from, double length) {
    from.step = {.length = length, .rise = -Tilt, .bearing = 90};
    return from;
}

/// A corner of the plate: of its lower edge (List2) or its upper one, on the left (1) or right (2).
constexpr SketchPoint Corner(int list, int number, double dx = 0) {
    SketchPoint corner = StationOf(list, number);
    corner.dx = dx;
    return corner;
}

/// A point of the plane through the axis that the view from the side shows.
constexpr SketchPoint AtYZ(double y, double z) {
    return {.dy = y, .dz = z};
}

constexpr SketchPoint Centre = OnAxis(0);
constexpr BoxEntry Boxes[] = {
    {PipeDiameter, "Pipe diameter", "120", LinearSize(Side::Above, AtYZ(-60, 240), AtYZ(60, 240), FromSide)},
    {Angle, "Angle (degrees)", "55",
     AngleSize(Side::Right, Centre, AtYZ(210, 0), DownPlate(Centre, 210), 0.6, FromSide)},
    {PlateLengthX, "Plate length X", "300", LinearSize(Side::Below, Corner(2, 1), Corner(2, 2), SquareOn)},
    {PlateLengthY, "Plate length Y", "380", LinearSize(Side::Left, Corner(2, 1), Corner(1, 1), SquareOn)},
    {DistanceX, "Distance X to center", "140",
     LinearSize(Side::Above, Corner(1, 1), Corner(1, 1, 140), SquareOn)},
    {DistanceY, "Distance Y to center", "210",
     LinearSize(Side::Right, Corner(2, 2), DownPlate(Corner(2, 2), -210), SquareOn)}};
constexpr LabelEntry Labels[] = {{PipeDiameter}, {Angle}};
constexpr SketchConstruction Lines[] = {CentreLine(DownPlate(Centre, -170), DownPlate(Centre, 210), SquareOn),
                                        CentreLine(AtXZ(-140, 0), AtXZ(160, 0), SquareOn),
                                        CentreLine(AtYZ(0, -240), AtYZ(0, 240), FromSide),
                                        ThinLine(AtYZ(-60, -240), AtYZ(-60, 240), FromSide),
                                        ThinLine(AtYZ(60, -240), AtYZ(60, 240), FromSide),
                                        ThinLine(Centre, AtYZ(210, 0), FromSide)};

constexpr PageEntry Pages[] = {{Boxes, Labels, Views, Lines}};

}  // namespace

const WindowTable frmEllipticalHole = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CBaffle>,
    .buildFitting = BuildAs<CBaffle, Build>,
    .joinAngleDisable = true,
};

}  // namespace korvet
