// Right Cone: a cone frustum with level ends, given by its apex height, its own height or its angle.
#include <array>
#include <cmath>

#include "core/math_module.h"
#include "fittings/cones/right_cone.h"
#include "fittings/mean_sizes.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

/// The boxes of a cone's two diameters.
struct DiameterBoxes {
    int base;
    int top;
};

/// The top must be the smaller one.
Outcome CheckDiameters(FittingForm& form, DiameterBoxes boxes) {
    return form.CheckLessThan(boxes.top, form.Value(boxes.base));
}

/// The thickness tests of both diameters; then the sizes that every group comes down to go to the cone.
Outcome SetFrustum(FittingForm& form, CRightCone& cone, DiameterBoxes boxes, double coneAngle,
                   double height) {
    const double R = MeanConeRadius(form, boxes.base, coneAngle);
    if (CheckConeWall(form, boxes.base, R, coneAngle) ||
        CheckConeWall(form, boxes.top, MeanConeRadius(form, boxes.top, coneAngle), coneAngle)) {
        return Refused;
    }
    cone.BaseRad = R;
    cone.ConeAngle = coneAngle;
    cone.CPHeight1 = height;
    return Passed;
}

Outcome BuildFromApexHeight(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(0, 1, 2)) {
        return Refused;
    }
    const double R = form.Value(0) / 2;
    const double r = form.Value(1) / 2;
    const double H = form.Value(2);
    if (CheckDiameters(form, {0, 1})) {
        return Refused;
    }
    // Similar triangles: the top lies r H / R below the apex.
    return SetFrustum(form, cone, {0, 1}, std::atan(R / H), H - (r * H) / R);
}

Outcome BuildFromHeight(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(3, 4, 5)) {
        return Refused;
    }
    const double R = form.Value(3) / 2;
    const double r = form.Value(4) / 2;
    if (CheckDiameters(form, {3, 4})) {
        return Refused;
    }
    const double H = (form.Value(5) * R) / (R - r);
    return SetFrustum(form, cone, {3, 4}, std::atan(R / H), form.Value(5));
}

Outcome BuildFromConeAngle(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(6, 7) || form.CheckNumber(8)) {
        return Refused;
    }
    const double R = form.Value(6) / 2;
    const double r = form.Value(7) / 2;
    const double coneAngle = DegToRad(form.Value(8) / 2);
    if (CheckDiameters(form, {6, 7}) || form.CheckPositive(8) || form.CheckLessThan(8, 180)) {
        return Refused;
    }
    return SetFrustum(form, cone, {6, 7}, coneAngle, (R - r) / std::tan(coneAngle));
}

// The top is List1, the base List2.
constexpr SketchPoint ApexByHeight = OnAxis(400);
constexpr SketchPoint ApexByAngle = OnAxis(259.8076211353316);  // 150 / tan 30 degrees

constexpr std::array<BoxEntry, 3> ApexHeightBoxes = {
    {{0, "Base diameter", "300", DiameterSize(Side::Below, 2)},
     {1, "Top diameter", "120", DiameterSize(Side::Above, 1)},
     {2, "Apex height", "400", LinearSize(Side::Right, MiddleOf(2), ApexByHeight)}}};
constexpr std::array<BoxEntry, 3> HeightBoxes = {
    {{3, "Base diameter", "300", DiameterSize(Side::Below, 2)},
     {4, "Top diameter", "120", DiameterSize(Side::Above, 1)},
     {5, "Cutting plane height", "250", LinearSize(Side::Right, MiddleOf(2), MiddleOf(1))}}};
constexpr std::array<BoxEntry, 3> ConeAngleBoxes = {
    {{6, "Base diameter", "300", DiameterSize(Side::Below, 2)},
     {7, "Top diameter", "120", DiameterSize(Side::Above, 1)},
     {8, "Cone angle (degrees, included)", "60",
      AngleSize(Side::Right, ApexByAngle, SpotOf(2, Spot::MinX), SpotOf(2, Spot::MaxX), 0.2)}}};

constexpr std::array<SketchConstruction, 3> ApexHeightLines = {{ThinLine(SpotOf(1, Spot::MinX), ApexByHeight),
                                                                ThinLine(SpotOf(1, Spot::MaxX), ApexByHeight),
                                                                CentreLine(OnAxis(0), ApexByHeight)}};
constexpr std::array<SketchConstruction, 1> HeightLines = {{CentreLine(MiddleOf(2), MiddleOf(1))}};
constexpr std::array<SketchConstruction, 3> ConeAngleLines = {{ThinLine(SpotOf(1, Spot::MinX), ApexByAngle),
                                                               ThinLine(SpotOf(1, Spot::MaxX), ApexByAngle),
                                                               CentreLine(OnAxis(0), ApexByAngle)}};

constexpr std::array<LabelEntry, 3> ApexHeightLabels = {
    {{"Base diameter = ", 0}, {"Top diameter = ", 1}, {"Apex height = ", 2}}};
constexpr std::array<LabelEntry, 3> HeightLabels = {
    {{"Base diameter = ", 3}, {"Top diameter = ", 4}, {"Cutting plane height = ", 5}}};
constexpr std::array<LabelEntry, 3> ConeAngleLabels = {
    {{"Base diameter = ", 6}, {"Top diameter = ", 7}, {"Cone angle = ", 8}}};

constexpr std::array<PageEntry, 3> Pages = {{{ApexHeightBoxes, ApexHeightLabels, FrontView, ApexHeightLines},
                                             {HeightBoxes, HeightLabels, FrontView, HeightLines},
                                             {ConeAngleBoxes, ConeAngleLabels, FrontView, ConeAngleLines}}};

}  // namespace

// The one window without a sweep over the boxes of all types: what stands in the other pages does not matter
// here.
const WindowTable frmRightCone1 = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CRightCone>,
    .buildFitting = BuildByType<CRightCone, BuildFromApexHeight, BuildFromHeight, BuildFromConeAngle>,
    .firstDtype = 1,
    .checksAllFields = false,
    .positionLine = true,
};

}  // namespace korvet
