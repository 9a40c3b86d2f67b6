// Pyramid: equal sides up to the apex, cut off level or by a tilted plane, or given by both diameters.
#include "core/checked.h"
#include "core/math_module.h"
#include "fittings/cones/cone_sketch.h"
#include "fittings/pyramids/pyramid.h"
#include "fittings/pyramids/sides_form.h"
#include "fittings/tilt.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

/// What every type comes down to; the tilt in degrees.
struct PyramidSizes {
    double baseDiameter;
    double apexHeight;
    double planeHeight;
    double planeAngle;
    std::int16_t sides;
};

void SetPyramid(CPyramid& pyramid, const PyramidSizes& sizes) {
    pyramid.BaseRad = sizes.baseDiameter / 2;
    pyramid.ApexHeight = sizes.apexHeight;
    pyramid.CPHeight = sizes.planeHeight;
    pyramid.CPAngle = DegToRad(sizes.planeAngle);
    pyramid.NoOfSides = sizes.sides;
}

// The sketches: corners at the left and at the right end, the base List2, the cut List1.

namespace whole {

enum Box : int { BaseDiameter = 0, ApexHeight = 1, Sides = 2 };

Outcome Build(FittingForm& form, CPyramid& pyramid) {
    if (form.CheckAllPositive(BaseDiameter, ApexHeight) || sides::CheckSides(form, Sides)) {
        return Refused;
    }
    const double H = form.Value(ApexHeight);
    SetPyramid(pyramid, {form.Value(BaseDiameter), H, H, 0, sides::SidesOf(form, Sides)});
    return Passed;
}

constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "500", DiameterSize(Side::Below, 2)},
    {ApexHeight, "Apex height", "420", LinearSize(Side::Right, MiddleOf(2), MiddleOf(1))},
    {Sides, "Number of sides", "6", CountNote(Side::Left)}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {ApexHeight}, {Sides}};
constexpr SketchConstruction Lines[] = {CentreLine(MiddleOf(2), MiddleOf(1))};

}  // namespace whole

namespace level_cut {

enum Box : int { BaseDiameter = 3, ApexHeight = 4, CuttingPlaneHeight = 5, Sides = 6 };

Outcome Build(FittingForm& form, CPyramid& pyramid) {
    if (form.CheckAllPositive(BaseDiameter, ApexHeight, CuttingPlaneHeight) ||
        form.CheckLessThan(CuttingPlaneHeight, form.Value(ApexHeight)) || sides::CheckSides(form, Sides)) {
        return Refused;
    }
    SetPyramid(pyramid, {form.Value(BaseDiameter), form.Value(ApexHeight), form.Value(CuttingPlaneHeight), 0,
                         sides::SidesOf(form, Sides)});
    return Passed;
}

constexpr SketchPoint Apex = OnAxis(540);
constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "460", DiameterSize(Side::Below, 2)},
    {ApexHeight, "Apex height", "540", LinearSize(Side::Right, MiddleOf(2), Apex)},
    {CuttingPlaneHeight, "Cutting plane height", "260", LinearSize(Side::Left, MiddleOf(2), MiddleOf(1))},
    {Sides, "Number of sides", "4", CountNote(Side::Left)}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {ApexHeight}, {CuttingPlaneHeight}, {Sides}};
constexpr auto Lines = cone::LinesToApex(Apex);

}  // namespace level_cut

namespace tilted_cut {

enum Box : int {
    BaseDiameter = 7,
    ApexHeight = 8,
    CuttingPlaneHeight = 9,
    CuttingPlaneAngle = 10,
    Sides = 11
};

Outcome Build(FittingForm& form, CPyramid& pyramid) {
    if (form.CheckAllPositive(BaseDiameter, ApexHeight, CuttingPlaneHeight) ||
        form.CheckLessThan(CuttingPlaneHeight, form.Value(ApexHeight)) || sides::CheckSides(form, Sides) ||
        CheckPlaneTilt(form, CuttingPlaneAngle, form.Value(CuttingPlaneHeight),
                       form.Value(BaseDiameter) / 2)) {
        return Refused;
    }
    SetPyramid(pyramid, {form.Value(BaseDiameter), form.Value(ApexHeight), form.Value(CuttingPlaneHeight),
                         form.Value(CuttingPlaneAngle), sides::SidesOf(form, Sides)});
    return Passed;
}

constexpr SketchPoint Apex = OnAxis(600);
constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "480", DiameterSize(Side::Below, 2)},
    {ApexHeight, "Apex height", "600", LinearSize(Side::Right, MiddleOf(2), Apex)},
    {CuttingPlaneHeight, "Cutting plane height", "280", LinearSize(Side::Left, MiddleOf(2), OnAxis(280))},
    {CuttingPlaneAngle, "Cutting plane angle (degrees)", "25", TiltSize(1)},
    {Sides, "Number of sides", "8", CountNote(Side::Left)}};
constexpr LabelEntry Labels[] = {
    {BaseDiameter}, {ApexHeight}, {CuttingPlaneHeight}, {CuttingPlaneAngle}, {Sides}};
constexpr auto Lines = cone::LinesToApex(Apex);

}  // namespace tilted_cut

namespace two_diameters {

enum Box : int { BaseDiameter = 12, TopDiameter = 13, CuttingPlaneHeight = 14, Sides = 15 };

Outcome Build(FittingForm& form, CPyramid& pyramid) {
    if (form.CheckAllPositive(BaseDiameter, TopDiameter, CuttingPlaneHeight) ||
        form.CheckLessThan(TopDiameter, form.Value(BaseDiameter)) || sides::CheckSides(form, Sides)) {
        return Refused;
    }
    // Similar triangles: R : H = (R - r) : h.
    const double R = form.Value(BaseDiameter) / 2;
    const double r = form.Value(TopDiameter) / 2;
    const double h = form.Value(CuttingPlaneHeight);
    SetPyramid(pyramid,
               {form.Value(BaseDiameter), Quotient(R * h, R - r), h, 0, sides::SidesOf(form, Sides)});
    return Passed;
}

constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "520", DiameterSize(Side::Below, 2)},
    {TopDiameter, "Top diameter", "210", DiameterSize(Side::Above, 1)},
    {CuttingPlaneHeight, "Cutting plane height", "310", LinearSize(Side::Right, MiddleOf(2), MiddleOf(1))},
    {Sides, "Number of sides", "12", CountNote(Side::Left)}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {TopDiameter}, {CuttingPlaneHeight}, {Sides}};
constexpr SketchConstruction Lines[] = {CentreLine(MiddleOf(2), MiddleOf(1))};

}  // namespace two_diameters

constexpr PageEntry Pages[] = {
    {whole::Boxes, whole::Labels, FrontView, whole::Lines, false, whole::Sides},
    {level_cut::Boxes, level_cut::Labels, FrontView, level_cut::Lines, false, level_cut::Sides},
    {tilted_cut::Boxes, tilted_cut::Labels, FrontView, tilted_cut::Lines, false, tilted_cut::Sides},
    {two_diameters::Boxes, two_diameters::Labels, FrontView, two_diameters::Lines, false,
     two_diameters::Sides}};

}  // namespace

const WindowTable frmPyramid = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CPyramid>,
    .buildFitting =
        BuildByType<CPyramid, whole::Build, level_cut::Build, tilted_cut::Build, two_diameters::Build>,
    .halfPatterns = HalfPatterns::RefusedByClass,
    .moreButtons = true,
};

}  // namespace korvet
