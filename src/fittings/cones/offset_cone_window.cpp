// Offset Cone: a cone frustum whose level top stands beside the base, by its offset or flush with one side.
#include "core/checked.h"
#include "fittings/cones/offset_cone.h"
#include "fittings/mean_sizes.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

/// The boxes of a cone's two diameters.
struct DiameterBoxes {
    int base;
    int top;
};

/// Both ends with room for the material, then the top the smaller one.
Outcome CheckEnds(FittingForm& form, DiameterBoxes boxes) {
    return RefusedIf(CheckRoundWall(form, boxes.base, MeanRadiusOfDiameter(form, boxes.base)) ||
                     CheckRoundWall(form, boxes.top, MeanRadiusOfDiameter(form, boxes.top)) ||
                     form.CheckLessThan(boxes.top, form.Value(boxes.base)));
}

/// A cone of base radius R with a top of radius r, h above it and o beside it. All sizes shrink evenly
/// towards the apex, where none is left: it lies R / (R - r) times as far out as the top.
void SetCone(COffsetCone& cone, double R, double r, double h, double o) {
    cone.ApexPt = {Quotient(o * R, R - r), 0, Quotient(R * h, R - r), PlainStation};
    cone.BaseRad = R;
    cone.CPHeight = h;
}

// The sketches: the top is List1, the base List2, about the axis at x = 0.

namespace by_offset {

enum Box : int { BaseDiameter = 0, TopDiameter = 1, CuttingPlaneHeight = 2, Offset = 3 };

Outcome Build(FittingForm& form, COffsetCone& cone) {
    if (form.CheckAllPositive(BaseDiameter, TopDiameter) || form.CheckNotEqual(CuttingPlaneHeight, 0) ||
        form.CheckNotEqual(Offset, 0) || CheckEnds(form, {BaseDiameter, TopDiameter})) {
        return Refused;
    }
    SetCone(cone, MeanRadiusOfDiameter(form, BaseDiameter), MeanRadiusOfDiameter(form, TopDiameter),
            form.Value(CuttingPlaneHeight), form.Value(Offset));
    return Passed;
}

constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "320", DiameterSize(Side::Below, 2)},
    {TopDiameter, "Top diameter", "200", DiameterSize(Side::Above, 1)},
    {CuttingPlaneHeight, "Cutting plane height", "210", LinearSize(Side::Left, MiddleOf(2), OnAxis(210))},
    {Offset, "Offset", "90", LinearSize(Side::Above, OnAxis(210), MiddleOf(1))}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {TopDiameter}, {CuttingPlaneHeight}, {Offset}};
constexpr SketchConstruction Lines[] = {CentreLine(OnAxis(0), OnAxis(210)),
                                        CentreLine(MiddleOf(2), MiddleOf(1))};

}  // namespace by_offset

namespace flush {

enum Box : int { BaseDiameter = 4, TopDiameter = 5, CuttingPlaneHeight = 6 };

Outcome Build(FittingForm& form, COffsetCone& cone) {
    if (form.CheckAllPositive(BaseDiameter, TopDiameter) || form.CheckNotEqual(CuttingPlaneHeight, 0) ||
        CheckEnds(form, {BaseDiameter, TopDiameter})) {
        return Refused;
    }
    const double R = MeanRadiusOfDiameter(form, BaseDiameter);
    const double r = MeanRadiusOfDiameter(form, TopDiameter);
    SetCone(cone, R, r, form.Value(CuttingPlaneHeight), R - r);
    return Passed;
}

constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "360", DiameterSize(Side::Below, 2)},
    {TopDiameter, "Top diameter", "220", DiameterSize(Side::Above, 1)},
    {CuttingPlaneHeight, "Cutting plane height", "280", LinearSize(Side::Left, MiddleOf(2), OnAxis(280))}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {TopDiameter}, {CuttingPlaneHeight}};
constexpr SketchConstruction Lines[] = {CentreLine(MiddleOf(2), MiddleOf(1))};

}  // namespace flush

constexpr PageEntry Pages[] = {{by_offset::Boxes, by_offset::Labels, FrontView, by_offset::Lines},
                               {flush::Boxes, flush::Labels, FrontView, flush::Lines}};

}  // namespace

const WindowTable frmOffsetCone = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<COffsetCone>,
    .buildFitting = BuildByType<COffsetCone, by_offset::Build, flush::Build>,
};

}  // namespace korvet
