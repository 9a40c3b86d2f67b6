// Right Cone: a cone frustum with level ends, given by its apex height, its own height or its angle.
#include <cmath>

#include "core/math_module.h"
#include "fittings/cones/cone_sketch.h"
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

/// The thickness tests of both diameters; then the sizes that every type comes down to go to the cone.
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

namespace by_apex_height {

enum Box : int { BaseDiameter = 0, TopDiameter = 1, ApexHeight = 2 };

Outcome Build(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(BaseDiameter, TopDiameter, ApexHeight)) {
        return Refused;
    }
    const double R = form.Value(BaseDiameter) / 2;
    const double r = form.Value(TopDiameter) / 2;
    const double H = form.Value(ApexHeight);
    if (CheckDiameters(form, {BaseDiameter, TopDiameter})) {
        return Refused;
    }
    // Similar triangles: the top lies r H / R below the apex.
    return SetFrustum(form, cone, {BaseDiameter, TopDiameter}, std::atan(R / H), H - (r * H) / R);
}

constexpr SketchPoint Apex = OnAxis(400);
constexpr BoxEntry Boxes[] = {{BaseDiameter, "Base diameter", "300", DiameterSize(Side::Below, 2)},
                              {TopDiameter, "Top diameter", "120", DiameterSize(Side::Above, 1)},
                              {ApexHeight, "Apex height", "400", LinearSize(Side::Right, MiddleOf(2), Apex)}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {TopDiameter}, {ApexHeight}};
constexpr auto Lines = cone::LinesToApex(Apex);

}  // namespace by_apex_height

namespace by_height {

enum Box : int { BaseDiameter = 3, TopDiameter = 4, CuttingPlaneHeight = 5 };

Outcome Build(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(BaseDiameter, TopDiameter, CuttingPlaneHeight)) {
        return Refused;
    }
    const double R = form.Value(BaseDiameter) / 2;
    const double r = form.Value(TopDiameter) / 2;
    if (CheckDiameters(form, {BaseDiameter, TopDiameter})) {
        return Refused;
    }
    const double H = (form.Value(CuttingPlaneHeight) * R) / (R - r);
    return SetFrustum(form, cone, {BaseDiameter, TopDiameter}, std::atan(R / H),
                      form.Value(CuttingPlaneHeight));
}

constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "300", DiameterSize(Side::Below, 2)},
    {TopDiameter, "Top diameter", "120", DiameterSize(Side::Above, 1)},
    {CuttingPlaneHeight, "Cutting plane height", "250", LinearSize(Side::Right, MiddleOf(2), MiddleOf(1))}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {TopDiameter}, {CuttingPlaneHeight}};
constexpr SketchConstruction Lines[] = {CentreLine(MiddleOf(2), MiddleOf(1))};

}  // namespace by_height

namespace by_cone_angle {

enum Box : int { BaseDiameter = 6, TopDiameter = 7, ConeAngle = 8 };

Outcome Build(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(BaseDiameter, TopDiameter) || form.CheckNumber(ConeAngle)) {
        return Refused;
    }
    const double R = form.Value(BaseDiameter) / 2;
    const double r = form.Value(TopDiameter) / 2;
    const double coneAngle = DegToRad(form.Value(ConeAngle) / 2);
    if (CheckDiameters(form, {BaseDiameter, TopDiameter}) || form.CheckPositive(ConeAngle) ||
        form.CheckLessThan(ConeAngle, 180)) {
        return Refused;
    }
    return SetFrustum(form, cone, {BaseDiameter, TopDiameter}, coneAngle, (R - r) / std::tan(coneAngle));
}

// Half the angle of 60 degrees lies between wall and axis, 60 between wall and base.
constexpr SketchPoint Apex = SlopeXZ(AtXZ(-150, 0), 60, 150);
constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "300", DiameterSize(Side::Below, 2)},
    {TopDiameter, "Top diameter", "120", DiameterSize(Side::Above, 1)},
    {ConeAngle, "Cone angle (degrees, included)", "60",
     AngleSize(Side::Right, Apex, SpotOf(2, Spot::MinX), SpotOf(2, Spot::MaxX), 0.2)}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {TopDiameter}, {ConeAngle}};
constexpr auto Lines = cone::LinesToApex(Apex);

}  // namespace by_cone_angle

constexpr PageEntry Pages[] = {
    {by_apex_height::Boxes, by_apex_height::Labels, FrontView, by_apex_height::Lines},
    {by_height::Boxes, by_height::Labels, FrontView, by_height::Lines},
    {by_cone_angle::Boxes, by_cone_angle::Labels, FrontView, by_cone_angle::Lines}};

}  // namespace

// The one window without a sweep over the boxes of all types: what stands in the other pages does not matter
// here.
const WindowTable frmRightCone1 = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CRightCone>,
    .buildFitting = BuildByType<CRightCone, by_apex_height::Build, by_height::Build, by_cone_angle::Build>,
    .firstDtype = 1,
    .checksAllFields = false,
    .positionLine = true,
};

}  // namespace korvet
