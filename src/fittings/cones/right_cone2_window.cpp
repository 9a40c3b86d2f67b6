// Truncated Right Cone: a cone cut by a tilted plane, by two planes, or by a roof of two planes at the top or
// bottom.
#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/cones/cone_sketch.h"
#include "fittings/cones/right_cone.h"
#include "fittings/mean_sizes.h"
#include "fittings/tilt.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

/// Sets the wall of the cone and makes the thickness test.
Outcome SetWall(FittingForm& form, CRightCone& cone, int diameterBox, double coneAngle) {
    cone.ConeAngle = coneAngle;
    cone.BaseRad = MeanConeRadius(form, diameterBox, coneAngle);
    return CheckConeWall(form, diameterBox, cone.BaseRad, coneAngle);
}

/// The half angle of the cone as typed, by its diameter and the height of its apex.
double TypedConeAngle(const FittingForm& form, int diameterBox, int apexBox) {
    return std::atan((form.Value(diameterBox) / 2) / form.Value(apexBox));
}

/// Height of the mean cone's apex above its base.
double MeanApexHeight(const CRightCone& cone) {
    return cone.BaseRad / std::tan(cone.ConeAngle);
}

// The sketches: planes are measured on the axis, a roof at its ridge, and every tilt against the level in the
// elevation.

constexpr SketchPoint BaseLeft = AtXZ(-200, 0);
constexpr SketchPoint BaseRight = AtXZ(200, 0);

namespace plane_by_cone_angle {

enum Box : int { BaseDiameter = 0, CuttingPlaneHeight = 1, ConeAngle = 2, CuttingPlaneAngle = 3 };

Outcome Build(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(BaseDiameter, CuttingPlaneHeight, ConeAngle) ||
        form.CheckLessThan(ConeAngle, 180)) {
        return Refused;
    }
    // Here alone the whole half thickness counts, as the diameter is read before the angle of the wall.
    cone.BaseRad = MeanConeRadius(form, BaseDiameter, 0);
    cone.CPHeight1 = form.Value(CuttingPlaneHeight);
    cone.ConeAngle = DegToRad(form.Value(ConeAngle) / 2);
    cone.CPAngle1 = DegToRad(form.Value(CuttingPlaneAngle));
    if (CheckConeWall(form, BaseDiameter, cone.BaseRad, cone.ConeAngle)) {
        return Refused;
    }
    const double H = MeanApexHeight(cone);
    return RefusedIf(form.CheckLessThan(CuttingPlaneHeight, H) ||
                     CheckPlaneTilt(form, CuttingPlaneAngle, cone.CPHeight1, cone.BaseRad));
}

// Half the angle of 50 degrees lies between wall and axis, 65 between wall and base.
constexpr SketchPoint Apex = SlopeXZ(AtXZ(-150, 0), 65, 150);
constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "300", DiameterSize(Side::Below, 2)},
    {CuttingPlaneHeight, "Cutting plane height", "150", LinearSize(Side::Left, MiddleOf(2), OnAxis(150))},
    {ConeAngle, "Cone angle (degrees, included)", "50",
     AngleSize(Side::Left, Apex, SpotOf(2, Spot::MinX), SpotOf(2, Spot::MaxX), 0.2)},
    {CuttingPlaneAngle, "Cutting plane angle (degrees)", "20", TiltSize(1)}};
// The two angles stand the other way round here than in the sizes: files and drawings made so far have it so.
constexpr LabelEntry Labels[] = {{BaseDiameter},
                                 {CuttingPlaneAngle, "Cone angle = "},
                                 {ConeAngle, "Cutting plane angle = "},
                                 {CuttingPlaneHeight}};
constexpr auto Lines = cone::LinesToApex(Apex);

}  // namespace plane_by_cone_angle

namespace plane_by_apex_height {

enum Box : int { BaseDiameter = 4, CuttingPlaneAngle = 5, ApexHeight = 6, CuttingPlaneHeight = 7 };

Outcome Build(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(BaseDiameter, ApexHeight, CuttingPlaneHeight)) {
        return Refused;
    }
    cone.CPAngle1 = DegToRad(form.Value(CuttingPlaneAngle));
    cone.CPHeight1 = form.Value(CuttingPlaneHeight);
    if (SetWall(form, cone, BaseDiameter, TypedConeAngle(form, BaseDiameter, ApexHeight))) {
        return Refused;
    }
    const double H = MeanApexHeight(cone);
    return RefusedIf(form.CheckLessThan(CuttingPlaneHeight, H) ||
                     CheckPlaneTilt(form, CuttingPlaneAngle, cone.CPHeight1, cone.BaseRad));
}

constexpr SketchPoint Apex = OnAxis(400);
constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "300", DiameterSize(Side::Below, 2)},
    {CuttingPlaneAngle, "Cutting plane angle (degrees)", "25", TiltSize(1)},
    {ApexHeight, "Apex height", "400", LinearSize(Side::Right, MiddleOf(2), Apex)},
    {CuttingPlaneHeight, "Cutting plane height", "200", LinearSize(Side::Left, MiddleOf(2), OnAxis(200))}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {ApexHeight}, {CuttingPlaneAngle}, {CuttingPlaneHeight}};
constexpr auto Lines = cone::LinesToApex(Apex);

}  // namespace plane_by_apex_height

namespace two_planes {

enum Box : int {
    BaseDiameter = 8,
    CuttingPlaneHeight1 = 9,
    CuttingPlaneAngle2 = 10,
    CuttingPlaneHeight2 = 11,
    CuttingPlaneAngle1 = 12,
    ApexHeight = 13
};

Outcome Build(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(BaseDiameter, CuttingPlaneHeight1, CuttingPlaneHeight2, ApexHeight)) {
        return Refused;
    }
    cone.CPHeight1 = form.Value(CuttingPlaneHeight1);
    cone.CPHeight2 = form.Value(CuttingPlaneHeight2);
    cone.CPAngle1 = DegToRad(form.Value(CuttingPlaneAngle1));
    // A positive entry tilts the lower plane the opposite way to the upper one.
    cone.CPAngle2 = -DegToRad(form.Value(CuttingPlaneAngle2));
    if (SetWall(form, cone, BaseDiameter, TypedConeAngle(form, BaseDiameter, ApexHeight))) {
        return Refused;
    }
    const double H = MeanApexHeight(cone);
    return RefusedIf(form.CheckLessThan(CuttingPlaneHeight1, H) ||
                     form.CheckLessThan(CuttingPlaneHeight2, H) ||
                     CheckPlaneTilt(form, CuttingPlaneAngle1, cone.CPHeight1, cone.BaseRad) ||
                     CheckPlaneTilt(form, CuttingPlaneAngle2, cone.CPHeight2, cone.BaseRad));
}

constexpr SketchPoint Apex = OnAxis(600);
constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "400", LinearSize(Side::Below, BaseLeft, BaseRight)},
    {CuttingPlaneHeight1, "Cutting plane height 1", "320", LinearSize(Side::Left, OnAxis(0), OnAxis(320))},
    {CuttingPlaneAngle2, "Cutting plane angle 2 (degrees)", "15", TiltSize(2)},
    {CuttingPlaneHeight2, "Cutting plane height 2", "80", LinearSize(Side::Left, OnAxis(0), OnAxis(80))},
    {CuttingPlaneAngle1, "Cutting plane angle 1 (degrees)", "20", TiltSize(1)},
    {ApexHeight, "Apex height", "600", LinearSize(Side::Right, OnAxis(0), Apex)}};
constexpr LabelEntry Labels[] = {{BaseDiameter},       {ApexHeight},          {CuttingPlaneAngle1},
                                 {CuttingPlaneAngle2}, {CuttingPlaneHeight1}, {CuttingPlaneHeight2}};
constexpr SketchConstruction Lines[] = {ThinLine(SpotOf(1, Spot::MinX), Apex),
                                        ThinLine(SpotOf(1, Spot::MaxX), Apex),
                                        ThinLine(SpotOf(2, Spot::MinX), BaseLeft),
                                        ThinLine(SpotOf(2, Spot::MaxX), BaseRight),
                                        ThinLine(BaseLeft, BaseRight),
                                        CentreLine(OnAxis(0), Apex)};

}  // namespace two_planes

namespace upper_roof {

enum Box : int {
    CuttingPlaneAngle1 = 14,
    Offset = 15,
    CuttingPlaneAngle2 = 16,
    ApexHeight = 17,
    CuttingPlaneHeight1 = 18,
    BaseDiameter = 19
};

/// Both tilts: neither plane may leave the cone through its base, nor pass by its apex.
Outcome CheckTilts(FittingForm& form, const CRightCone& cone, double H) {
    const double toApex = H - cone.CPHeight1;
    if (form.CheckLessThan(CuttingPlaneAngle1, TiltLimit(cone.CPHeight1, cone.BaseRad + cone.Offset))) {
        return Refused;
    }
    const double farLimit = cone.Offset > 0 ? TiltLimit(toApex, cone.Offset) : 90;
    if (form.CheckGreaterThan(CuttingPlaneAngle1, -farLimit) ||
        form.CheckLessThan(CuttingPlaneAngle2, TiltLimit(cone.CPHeight1, cone.BaseRad - cone.Offset))) {
        return Refused;
    }
    const double nearLimit = cone.Offset >= 0 ? 90 : TiltLimit(toApex, -cone.Offset);
    return form.CheckGreaterThan(CuttingPlaneAngle2, -nearLimit);
}

Outcome Build(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(BaseDiameter, CuttingPlaneHeight1, ApexHeight)) {
        return Refused;
    }
    cone.CPHeight1 = form.Value(CuttingPlaneHeight1);
    cone.CPAngle3 = -DegToRad(form.Value(CuttingPlaneAngle1));
    cone.CPAngle1 = DegToRad(form.Value(CuttingPlaneAngle2));
    cone.Offset = form.Value(Offset);
    if (SetWall(form, cone, BaseDiameter, TypedConeAngle(form, BaseDiameter, ApexHeight))) {
        return Refused;
    }
    const double H = MeanApexHeight(cone);
    if (form.CheckLessThan(CuttingPlaneHeight1, H)) {
        return Refused;
    }
    // The ridge may touch the cone on the far side, where the radius at its height is rc.
    const double rc = ((H - cone.CPHeight1) * cone.BaseRad) / H;
    if (form.CheckAtLeast(Offset, -rc) || form.CheckLessThan(Offset, rc) || CheckTilts(form, cone, H)) {
        return Refused;
    }
    cone.ConeAngle = std::atan(cone.BaseRad / H);
    return Passed;
}

constexpr SketchPoint Apex = OnAxis(600);
constexpr SketchPoint Ridge = AtXZ(15, 320);
constexpr BoxEntry Boxes[] = {
    {CuttingPlaneAngle1, "Cutting plane angle 1 (degrees)", "25", RoofTiltSize(Side::Left, Ridge, 1)},
    {Offset, "Offset", "15", LinearSize(Side::Above, OnAxis(320), Ridge)},
    {CuttingPlaneAngle2, "Cutting plane angle 2 (degrees)", "35", RoofTiltSize(Side::Right, Ridge, 1)},
    {ApexHeight, "Apex height", "600", LinearSize(Side::Left, MiddleOf(2), Apex)},
    {CuttingPlaneHeight1, "Cutting plane height 1", "320", LinearSize(Side::Right, MiddleOf(2, 15), Ridge)},
    {BaseDiameter, "Base diameter", "400", DiameterSize(Side::Below, 2)}};
constexpr LabelEntry Labels[] = {{BaseDiameter},       {ApexHeight},          {CuttingPlaneAngle1},
                                 {CuttingPlaneAngle2}, {CuttingPlaneHeight1}, {Offset}};
constexpr auto Lines = cone::LinesToApex(Apex);

}  // namespace upper_roof

namespace lower_roof {

enum Box : int {
    BaseDiameter = 20,
    TopDiameter = 21,
    CuttingPlaneHeight1 = 22,
    CuttingPlaneHeight2 = 23,
    Offset = 24,
    CuttingPlaneAngle1 = 25,
    CuttingPlaneAngle2 = 26
};

/// The upper limit, in degrees, of a plane's tilt: it must pass below the top edge, which on that side lies
/// `run` away from the ridge and `rise` above it.
double BelowTopLimit(double run, double rise) {
    return run <= 0 ? 90 : 90 - TiltLimit(run, rise);
}

Outcome Build(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(BaseDiameter, TopDiameter, CuttingPlaneHeight1, CuttingPlaneHeight2)) {
        return Refused;
    }
    cone.CPHeight1 = form.Value(CuttingPlaneHeight1);
    cone.CPHeight2 = form.Value(CuttingPlaneHeight2);
    cone.CPAngle3 = DegToRad(form.Value(CuttingPlaneAngle1));
    cone.CPAngle2 = -DegToRad(form.Value(CuttingPlaneAngle2));
    cone.Offset = form.Value(Offset);
    if (form.CheckLessThan(TopDiameter, form.Value(BaseDiameter))) {
        return Refused;
    }
    const double typedR = form.Value(BaseDiameter) / 2;
    const double typedH = (form.Value(CuttingPlaneHeight1) * typedR) / (typedR - form.Value(TopDiameter) / 2);
    if (SetWall(form, cone, BaseDiameter, std::atan(typedR / typedH))) {
        return Refused;
    }
    const double H = MeanApexHeight(cone);
    if (form.CheckLessThan(CuttingPlaneHeight1, H) ||
        form.CheckLessThan(CuttingPlaneHeight2, cone.CPHeight1)) {
        return Refused;
    }
    const double r = MeanConeRadius(form, TopDiameter, cone.ConeAngle);
    if (CheckConeWall(form, TopDiameter, r, cone.ConeAngle)) {
        return Refused;
    }
    const double rc = ((H - cone.CPHeight2) * cone.BaseRad) / H;
    if (form.CheckGreaterThan(Offset, -rc) || form.CheckLessThan(Offset, rc)) {
        return Refused;
    }
    const double rise = cone.CPHeight1 - cone.CPHeight2;
    const double alongWall = -RadToDeg(QuarterTurn - cone.ConeAngle);
    return RefusedIf(form.CheckLessThan(CuttingPlaneAngle2, BelowTopLimit(r - cone.Offset, rise)) ||
                     form.CheckGreaterThan(CuttingPlaneAngle2, alongWall) ||
                     form.CheckLessThan(CuttingPlaneAngle1, BelowTopLimit(r + cone.Offset, rise)) ||
                     form.CheckGreaterThan(CuttingPlaneAngle1, alongWall));
}

/// Seen level: from above, the near wall would hang over the ridge and its tilts.
constexpr SketchView LevelView[] = {{.turn = 0, .tilt = 0}};
constexpr SketchPoint Ridge = AtXZ(20, 120);
constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "400", LinearSize(Side::Below, BaseLeft, BaseRight)},
    {TopDiameter, "Top diameter", "160", DiameterSize(Side::Above, 1)},
    {CuttingPlaneHeight1, "Cutting plane height 1", "350", LinearSize(Side::Left, OnAxis(0), MiddleOf(1))},
    {CuttingPlaneHeight2, "Cutting plane height 2", "120", LinearSize(Side::Right, AtXZ(20, 0), Ridge)},
    {Offset, "Offset", "20", LinearSize(Side::Below, OnAxis(120), Ridge)},
    {CuttingPlaneAngle1, "Cutting plane angle 1 (degrees)", "25", RoofTiltSize(Side::Left, Ridge, 2)},
    {CuttingPlaneAngle2, "Cutting plane angle 2 (degrees)", "30", RoofTiltSize(Side::Right, Ridge, 2)}};
constexpr LabelEntry Labels[] = {
    {BaseDiameter},        {TopDiameter}, {CuttingPlaneAngle1}, {CuttingPlaneAngle2}, {CuttingPlaneHeight1},
    {CuttingPlaneHeight2}, {Offset}};
constexpr SketchConstruction Lines[] = {ThinLine(SpotOf(2, Spot::MinX), BaseLeft),
                                        ThinLine(SpotOf(2, Spot::MaxX), BaseRight),
                                        ThinLine(BaseLeft, BaseRight), CentreLine(OnAxis(0), MiddleOf(1))};

}  // namespace lower_roof

/// Breaks of a roof are measured from plan angle 0, so the seam of types 4 and 5 stands there.
void HoldSeamOfRoofs(std::int16_t dtype, CPatternSettings& settings) {
    HoldSeam(settings, dtype > 2);
}

Outcome Build(FittingForm& form, const FittingHandle& fitting) {
    // A file may hold any seam angle, so that the change of type is not enough.
    HoldSeamOfRoofs(form.dtype, form.settings);
    auto& cone = fitting.As<CRightCone>();
    cone.CPAngle1 = cone.CPAngle2 = cone.CPAngle3 = cone.Offset = cone.CPHeight2 = 0;
    return BuildByType<CRightCone, plane_by_cone_angle::Build, plane_by_apex_height::Build, two_planes::Build,
                       upper_roof::Build, lower_roof::Build>(form, fitting);
}

constexpr PageEntry Pages[] = {
    {plane_by_cone_angle::Boxes, plane_by_cone_angle::Labels, FrontView, plane_by_cone_angle::Lines},
    {plane_by_apex_height::Boxes, plane_by_apex_height::Labels, FrontView, plane_by_apex_height::Lines},
    {two_planes::Boxes, two_planes::Labels, FrontView, two_planes::Lines},
    {upper_roof::Boxes, upper_roof::Labels, FrontView, upper_roof::Lines},
    {lower_roof::Boxes, lower_roof::Labels, lower_roof::LevelView, lower_roof::Lines}};

}  // namespace

const WindowTable frmRightCone2 = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CRightCone>,
    .buildFitting = Build,
    .onTypeChanged = HoldSeamOfRoofs,
    .positionLine = true,
};

}  // namespace korvet
