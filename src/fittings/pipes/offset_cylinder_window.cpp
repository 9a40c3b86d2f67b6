// Offset Cylinder: a pipe with level ends, the top beside the base, by its offset or by its angle and length.
#include <cmath>

#include "core/math_module.h"
#include "fittings/makeable.h"
#include "fittings/mean_sizes.h"
#include "fittings/pipes/round_to_round.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

Outcome CheckDiameter(FittingForm& form, int diameterBox) {
    return CheckRoundWall(form, diameterBox, MeanRadiusOfDiameter(form, diameterBox));
}

/// Circles of one size, told by their box. Throws ArithmeticError when that leaves no wall.
void SetPipe(const FittingForm& form, CRoundToRound& pipe, int diameterBox, double height, double offset) {
    const double R = MeanRadiusOfDiameter(form, diameterBox);
    RequireWall(R);
    pipe.BaseRad = R;
    pipe.TopRad = R;
    pipe.Height = height;
    pipe.TopOffsetX = offset;
}

// The sketches: the base is List1, the top List2.

namespace by_offset {

enum Box : int { BaseDiameter = 0, CuttingPlaneHeight = 1, Offset = 2 };

Outcome Build(FittingForm& form, CRoundToRound& pipe) {
    if (CheckDiameter(form, BaseDiameter) || form.CheckPositive(CuttingPlaneHeight)) {
        return Refused;
    }
    SetPipe(form, pipe, BaseDiameter, form.Value(CuttingPlaneHeight), form.Value(Offset));
    return Passed;
}

constexpr SketchPoint OverBase = OnAxis(300);
constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "220", DiameterSize(Side::Below, 1)},
    {CuttingPlaneHeight, "Cutting plane height", "300", LinearSize(Side::Left, MiddleOf(1), OverBase)},
    {Offset, "Offset", "130", LinearSize(Side::Above, OverBase, MiddleOf(2))}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {CuttingPlaneHeight}, {Offset}};
constexpr SketchConstruction Lines[] = {CentreLine(MiddleOf(1), OverBase),
                                        CentreLine(MiddleOf(1), MiddleOf(2))};

}  // namespace by_offset

namespace by_angle {

enum Box : int { BaseDiameter = 3, Angle = 4, Length = 5 };

Outcome Build(FittingForm& form, CRoundToRound& pipe) {
    if (CheckDiameter(form, BaseDiameter) || form.CheckAllPositive(Length, Angle) ||
        form.CheckLessThan(Angle, 180)) {
        return Refused;
    }
    const double a = DegToRad(form.Value(Angle));
    const double length = form.Value(Length);
    SetPipe(form, pipe, BaseDiameter, std::sin(a) * length, std::cos(a) * length);
    return Passed;
}

constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "240", DiameterSize(Side::Below, 1)},
    {Angle, "Angle (degrees)", "60", AngleSize(Side::Right, MiddleOf(1), SpotOf(1, Spot::MaxX), MiddleOf(2))},
    {Length, "Length", "350", AlignedSize(Side::Left, MiddleOf(1), MiddleOf(2))}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {Length}, {Angle}};
constexpr SketchConstruction Lines[] = {CentreLine(MiddleOf(1), MiddleOf(2))};

}  // namespace by_angle

constexpr PageEntry Pages[] = {{by_offset::Boxes, by_offset::Labels, FrontView, by_offset::Lines},
                               {by_angle::Boxes, by_angle::Labels, FrontView, by_angle::Lines}};

}  // namespace

const WindowTable frmOffsetCylinder = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CRoundToRound>,
    .buildFitting = BuildByType<CRoundToRound, by_offset::Build, by_angle::Build>,
};

}  // namespace korvet
