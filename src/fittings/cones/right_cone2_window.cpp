// Truncated Right Cone: a cone cut by a tilted plane, by two planes, or by a roof of two planes at the top or
// bottom.
#include <array>
#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"
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

Outcome BuildPlaneByConeAngle(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(0, 1, 2) || form.CheckLessThan(2, 180)) {
        return Refused;
    }
    // Here alone the whole half thickness counts, as the diameter is read before the angle of the wall.
    cone.BaseRad = MeanConeRadius(form, 0, 0);
    cone.CPHeight1 = form.Value(1);
    cone.ConeAngle = DegToRad(form.Value(2) / 2);
    cone.CPAngle1 = DegToRad(form.Value(3));
    if (CheckConeWall(form, 0, cone.BaseRad, cone.ConeAngle)) {
        return Refused;
    }
    const double H = MeanApexHeight(cone);
    return RefusedIf(form.CheckLessThan(1, H) || CheckPlaneTilt(form, 3, cone.CPHeight1, cone.BaseRad));
}

Outcome BuildPlaneByApexHeight(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(4, 6, 7)) {
        return Refused;
    }
    cone.CPAngle1 = DegToRad(form.Value(5));
    cone.CPHeight1 = form.Value(7);
    if (SetWall(form, cone, 4, TypedConeAngle(form, 4, 6))) {
        return Refused;
    }
    const double H = MeanApexHeight(cone);
    return RefusedIf(form.CheckLessThan(7, H) || CheckPlaneTilt(form, 5, cone.CPHeight1, cone.BaseRad));
}

Outcome BuildTwoPlanes(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(8, 9, 11, 13)) {
        return Refused;
    }
    cone.CPHeight1 = form.Value(9);
    cone.CPHeight2 = form.Value(11);
    cone.CPAngle1 = DegToRad(form.Value(12));
    // A positive entry tilts the lower plane the opposite way to the upper one.
    cone.CPAngle2 = -DegToRad(form.Value(10));
    if (SetWall(form, cone, 8, TypedConeAngle(form, 8, 13))) {
        return Refused;
    }
    const double H = MeanApexHeight(cone);
    return RefusedIf(form.CheckLessThan(9, H) || form.CheckLessThan(11, H) ||
                     CheckPlaneTilt(form, 12, cone.CPHeight1, cone.BaseRad) ||
                     CheckPlaneTilt(form, 10, cone.CPHeight2, cone.BaseRad));
}

/// Both tilts of an upper roof: neither plane may leave the cone through its base, nor pass by its apex.
Outcome CheckUpperRoofTilts(FittingForm& form, const CRightCone& cone, double H) {
    const double toApex = H - cone.CPHeight1;
    if (form.CheckLessThan(14, TiltLimit(cone.CPHeight1, cone.BaseRad + cone.Offset))) {
        return Refused;
    }
    const double farLimit = cone.Offset > 0 ? TiltLimit(toApex, cone.Offset) : 90;
    if (form.CheckGreaterThan(14, -farLimit) ||
        form.CheckLessThan(16, TiltLimit(cone.CPHeight1, cone.BaseRad - cone.Offset))) {
        return Refused;
    }
    const double nearLimit = cone.Offset >= 0 ? 90 : TiltLimit(toApex, -cone.Offset);
    return form.CheckGreaterThan(16, -nearLimit);
}

Outcome BuildUpperRoof(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(19, 18, 17)) {
        return Refused;
    }
    cone.CPHeight1 = form.Value(18);
    cone.CPAngle3 = -DegToRad(form.Value(14));
    cone.CPAngle1 = DegToRad(form.Value(16));
    cone.Offset = form.Value(15);
    if (SetWall(form, cone, 19, TypedConeAngle(form, 19, 17))) {
        return Refused;
    }
    const double H = MeanApexHeight(cone);
    if (form.CheckLessThan(18, H)) {
        return Refused;
    }
    // The ridge may touch the cone on the far side, where the radius at its height is rc.
    const double rc = ((H - cone.CPHeight1) * cone.BaseRad) / H;
    if (form.CheckAtLeast(15, -rc) || form.CheckLessThan(15, rc) || CheckUpperRoofTilts(form, cone, H)) {
        return Refused;
    }
    cone.ConeAngle = std::atan(cone.BaseRad / H);
    return Passed;
}

/// The upper limit, in degrees, of a lower plane's tilt: it must pass below the top edge, which on that side
/// lies `run` away from the ridge.
double BelowTopLimit(double run, double rise) {
    return run <= 0 ? 90 : 90 - TiltLimit(run, rise);
}

Outcome BuildLowerRoof(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(20, 21, 22, 23)) {
        return Refused;
    }
    cone.CPHeight1 = form.Value(22);
    cone.CPHeight2 = form.Value(23);
    cone.CPAngle3 = DegToRad(form.Value(25));
    cone.CPAngle2 = -DegToRad(form.Value(26));
    cone.Offset = form.Value(24);
    if (form.CheckLessThan(21, form.Value(20))) {
        return Refused;
    }
    const double typedR = form.Value(20) / 2;
    const double typedH = (form.Value(22) * typedR) / (typedR - form.Value(21) / 2);
    if (SetWall(form, cone, 20, std::atan(typedR / typedH))) {
        return Refused;
    }
    const double H = MeanApexHeight(cone);
    if (form.CheckLessThan(22, H) || form.CheckLessThan(23, cone.CPHeight1)) {
        return Refused;
    }
    const double r = MeanConeRadius(form, 21, cone.ConeAngle);
    if (CheckConeWall(form, 21, r, cone.ConeAngle)) {
        return Refused;
    }
    const double rc = ((H - cone.CPHeight2) * cone.BaseRad) / H;
    if (form.CheckGreaterThan(24, -rc) || form.CheckLessThan(24, rc)) {
        return Refused;
    }
    const double rise = cone.CPHeight1 - cone.CPHeight2;
    const double alongWall = -RadToDeg(QuarterTurn - cone.ConeAngle);
    return RefusedIf(form.CheckLessThan(26, BelowTopLimit(r - cone.Offset, rise)) ||
                     form.CheckGreaterThan(26, alongWall) ||
                     form.CheckLessThan(25, BelowTopLimit(r + cone.Offset, rise)) ||
                     form.CheckGreaterThan(25, alongWall));
}

/// Breaks of a roof are measured from plan angle 0, so the seam of types 4 and 5 stands there.
void HoldSeamOfRoofs(std::int16_t dtype, CPatternSettings& settings) {
    HoldSeam(settings, dtype > 2);
}

Outcome Build(FittingForm& form, const FittingHandle& fitting) {
    // A file may hold any seam angle, so that the change of type is not enough.
    HoldSeamOfRoofs(form.dtype, form.settings);
    auto& cone = fitting.As<CRightCone>();
    cone.CPAngle1 = cone.CPAngle2 = cone.CPAngle3 = cone.Offset = cone.CPHeight2 = 0;
    return BuildByType<CRightCone, BuildPlaneByConeAngle, BuildPlaneByApexHeight, BuildTwoPlanes,
                       BuildUpperRoof, BuildLowerRoof>(form, fitting);
}

// The top is List1, the bottom List2. Planes are measured on the axis, a roof at its ridge, and every tilt
// against the level in the elevation.
constexpr SketchPoint BaseLeft = AtXZ(-200, 0);
constexpr SketchPoint BaseRight = AtXZ(200, 0);

constexpr SketchPoint ConeAngleApex = OnAxis(321.6760380764337);  // 150 / tan 25 degrees
constexpr std::array<BoxEntry, 4> ConeAngleBoxes = {
    {{0, "Base diameter", "300", DiameterSize(Side::Below, 2)},
     {1, "Cutting plane height", "150", LinearSize(Side::Left, MiddleOf(2), OnAxis(150))},
     {2, "Cone angle (degrees, included)", "50",
      AngleSize(Side::Left, ConeAngleApex, SpotOf(2, Spot::MinX), SpotOf(2, Spot::MaxX), 0.2)},
     {3, "Cutting plane angle (degrees)", "20", TiltSize(1)}}};
constexpr std::array<SketchConstruction, 3> ConeAngleLines = {{ThinLine(SpotOf(1, Spot::MinX), ConeAngleApex),
                                                               ThinLine(SpotOf(1, Spot::MaxX), ConeAngleApex),
                                                               CentreLine(OnAxis(0), ConeAngleApex)}};

constexpr SketchPoint ApexHeightApex = OnAxis(400);
constexpr std::array<BoxEntry, 4> ApexHeightBoxes = {
    {{4, "Base diameter", "300", DiameterSize(Side::Below, 2)},
     {5, "Cutting plane angle (degrees)", "25", TiltSize(1)},
     {6, "Apex height", "400", LinearSize(Side::Right, MiddleOf(2), ApexHeightApex)},
     {7, "Cutting plane height", "200", LinearSize(Side::Left, MiddleOf(2), OnAxis(200))}}};
constexpr std::array<SketchConstruction, 3> ApexHeightLines = {
    {ThinLine(SpotOf(1, Spot::MinX), ApexHeightApex), ThinLine(SpotOf(1, Spot::MaxX), ApexHeightApex),
     CentreLine(OnAxis(0), ApexHeightApex)}};

constexpr SketchPoint TwoPlaneApex = OnAxis(600);
constexpr std::array<BoxEntry, 6> TwoPlaneBoxes = {
    {{8, "Base diameter", "400", LinearSize(Side::Below, BaseLeft, BaseRight)},
     {9, "Cutting plane height 1", "320", LinearSize(Side::Left, OnAxis(0), OnAxis(320))},
     {10, "Cutting plane angle 2 (degrees)", "15", TiltSize(2)},
     {11, "Cutting plane height 2", "80", LinearSize(Side::Left, OnAxis(0), OnAxis(80))},
     {12, "Cutting plane angle 1 (degrees)", "20", TiltSize(1)},
     {13, "Apex height", "600", LinearSize(Side::Right, OnAxis(0), TwoPlaneApex)}}};
constexpr std::array<SketchConstruction, 6> TwoPlaneLines = {
    {ThinLine(SpotOf(1, Spot::MinX), TwoPlaneApex), ThinLine(SpotOf(1, Spot::MaxX), TwoPlaneApex),
     ThinLine(SpotOf(2, Spot::MinX), BaseLeft), ThinLine(SpotOf(2, Spot::MaxX), BaseRight),
     ThinLine(BaseLeft, BaseRight), CentreLine(OnAxis(0), TwoPlaneApex)}};

constexpr SketchPoint UpperRoofApex = OnAxis(600);
constexpr SketchPoint UpperRidge = AtXZ(15, 320);
constexpr std::array<BoxEntry, 6> UpperRoofBoxes = {
    {{14, "Cutting plane angle 1 (degrees)", "25", RoofTiltSize(Side::Left, UpperRidge, 1)},
     {15, "Offset", "15", LinearSize(Side::Above, OnAxis(320), UpperRidge)},
     {16, "Cutting plane angle 2 (degrees)", "35", RoofTiltSize(Side::Right, UpperRidge, 1)},
     {17, "Apex height", "600", LinearSize(Side::Left, MiddleOf(2), UpperRoofApex)},
     {18, "Cutting plane height 1", "320", LinearSize(Side::Right, MiddleOf(2, 15), UpperRidge)},
     {19, "Base diameter", "400", DiameterSize(Side::Below, 2)}}};
constexpr std::array<SketchConstruction, 3> UpperRoofLines = {{ThinLine(SpotOf(1, Spot::MinX), UpperRoofApex),
                                                               ThinLine(SpotOf(1, Spot::MaxX), UpperRoofApex),
                                                               CentreLine(OnAxis(0), UpperRoofApex)}};

// The lower roof is seen level: from above, the near wall would hang over the ridge and its tilts.
constexpr std::array<SketchView, 1> LevelView = {{{.turn = 0, .tilt = 0}}};
constexpr SketchPoint LowerRidge = AtXZ(20, 120);
constexpr std::array<BoxEntry, 7> LowerRoofBoxes = {
    {{20, "Base diameter", "400", LinearSize(Side::Below, BaseLeft, BaseRight)},
     {21, "Top diameter", "160", DiameterSize(Side::Above, 1)},
     {22, "Cutting plane height 1", "350", LinearSize(Side::Left, OnAxis(0), MiddleOf(1))},
     {23, "Cutting plane height 2", "120", LinearSize(Side::Right, AtXZ(20, 0), LowerRidge)},
     {24, "Offset", "20", LinearSize(Side::Below, OnAxis(120), LowerRidge)},
     {25, "Cutting plane angle 1 (degrees)", "25", RoofTiltSize(Side::Left, LowerRidge, 2)},
     {26, "Cutting plane angle 2 (degrees)", "30", RoofTiltSize(Side::Right, LowerRidge, 2)}}};
constexpr std::array<SketchConstruction, 4> LowerRoofLines = {
    {ThinLine(SpotOf(2, Spot::MinX), BaseLeft), ThinLine(SpotOf(2, Spot::MaxX), BaseRight),
     ThinLine(BaseLeft, BaseRight), CentreLine(OnAxis(0), MiddleOf(1))}};

// The two angle boxes stand the other way round here than in the sizes: files and drawings made so far have
// it so.
constexpr std::array<LabelEntry, 4> ConeAngleLabels = {{{"Base diameter = ", 0},
                                                        {"Cone angle = ", 3},
                                                        {"Cutting plane angle = ", 2},
                                                        {"Cutting plane height = ", 1}}};
constexpr std::array<LabelEntry, 4> ApexHeightLabels = {{{"Base diameter = ", 4},
                                                         {"Apex height = ", 6},
                                                         {"Cutting plane angle = ", 5},
                                                         {"Cutting plane height = ", 7}}};
constexpr std::array<LabelEntry, 6> TwoPlaneLabels = {{{"Base diameter = ", 8},
                                                       {"Apex height = ", 13},
                                                       {"Cutting plane angle 1 = ", 12},
                                                       {"Cutting plane angle 2 = ", 10},
                                                       {"Cutting plane height 1 = ", 9},
                                                       {"Cutting plane height 2 = ", 11}}};
constexpr std::array<LabelEntry, 6> UpperRoofLabels = {{{"Base diameter = ", 19},
                                                        {"Apex height = ", 17},
                                                        {"Cutting plane angle 1 = ", 14},
                                                        {"Cutting plane angle 2 = ", 16},
                                                        {"Cutting plane height 1 = ", 18},
                                                        {"Offset = ", 15}}};
constexpr std::array<LabelEntry, 7> LowerRoofLabels = {{{"Base diameter = ", 20},
                                                        {"Top diameter = ", 21},
                                                        {"Cutting plane angle 1 = ", 25},
                                                        {"Cutting plane angle 2 = ", 26},
                                                        {"Cutting plane height 1 = ", 22},
                                                        {"Cutting plane height 2 = ", 23},
                                                        {"Offset = ", 24}}};

constexpr std::array<PageEntry, 5> Pages = {{{ConeAngleBoxes, ConeAngleLabels, FrontView, ConeAngleLines},
                                             {ApexHeightBoxes, ApexHeightLabels, FrontView, ApexHeightLines},
                                             {TwoPlaneBoxes, TwoPlaneLabels, FrontView, TwoPlaneLines},
                                             {UpperRoofBoxes, UpperRoofLabels, FrontView, UpperRoofLines},
                                             {LowerRoofBoxes, LowerRoofLabels, LevelView, LowerRoofLines}}};

}  // namespace

const WindowTable frmRightCone2 = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CRightCone>,
    .buildFitting = Build,
    .onTypeChanged = HoldSeamOfRoofs,
    .positionLine = true,
};

}  // namespace korvet
