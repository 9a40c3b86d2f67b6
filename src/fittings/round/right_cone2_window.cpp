// Truncated Right Cone: a cone cut by a tilted plane, by two planes, or by a roof of two planes at the top or
// bottom.
#include <array>
#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/round/right_cone.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

/// The angle, in degrees, up to a point y high and x away: the steepest tilt of a plane that ends there.
double ConeLimit(double y, double x) {
    return RadToDeg(std::atan(y / x));
}

/// Half of the material's thickness as it lies in a wall of this cone.
double HalfThickness(const FittingForm& form, double coneAngle) {
    return std::cos(coneAngle) * form.settings.Thickness / 2;
}

double MeanRadius(const FittingForm& form, int diameterBox, double coneAngle) {
    return form.Compensator(SlopingRoundWall).NewDistance(form.Value(diameterBox) / 2, coneAngle, 0);
}

/// The thickness test of a diameter whose mean radius is R.
bool CheckWall(FittingForm& form, int diameterBox, double R, double coneAngle) {
    return form.CheckRoomForThickness(diameterBox, R, HalfThickness(form, coneAngle));
}

/// The tilt in a box must stay below the cone limit of the height it turns about, to either side.
bool CheckTilt(FittingForm& form, int angleBox, double height, double R) {
    const double m = ConeLimit(height, R);
    return form.CheckGreaterThan(angleBox, -m) || form.CheckLessThan(angleBox, m);
}

bool BuildPlaneByConeAngle(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(0, 1, 2) || form.CheckLessThan(2, 180)) {
        return false;
    }
    // Here alone the whole half thickness counts, as the diameter is read before the angle of the wall.
    cone.BaseRad = MeanRadius(form, 0, 0);
    cone.CPHeight1 = form.Value(1);
    cone.ConeAngle = DegToRad(form.Value(2) / 2);
    cone.CPAngle1 = DegToRad(form.Value(3));
    if (CheckWall(form, 0, cone.BaseRad, cone.ConeAngle)) {
        return false;
    }
    const double H = cone.BaseRad / std::tan(cone.ConeAngle);
    return !form.CheckLessThan(1, H) && !CheckTilt(form, 3, cone.CPHeight1, cone.BaseRad);
}

bool BuildPlaneByApexHeight(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(4, 6, 7)) {
        return false;
    }
    cone.CPAngle1 = DegToRad(form.Value(5));
    cone.CPHeight1 = form.Value(7);
    cone.ConeAngle = std::atan((form.Value(4) / 2) / form.Value(6));
    cone.BaseRad = MeanRadius(form, 4, cone.ConeAngle);
    if (CheckWall(form, 4, cone.BaseRad, cone.ConeAngle)) {
        return false;
    }
    const double H = cone.BaseRad / std::tan(cone.ConeAngle);
    return !form.CheckLessThan(7, H) && !CheckTilt(form, 5, cone.CPHeight1, cone.BaseRad);
}

bool BuildTwoPlanes(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(8, 9, 11, 13)) {
        return false;
    }
    cone.CPHeight1 = form.Value(9);
    cone.CPHeight2 = form.Value(11);
    cone.CPAngle1 = DegToRad(form.Value(12));
    // A positive entry tilts the lower plane the opposite way to the upper one.
    cone.CPAngle2 = -DegToRad(form.Value(10));
    cone.ConeAngle = std::atan((form.Value(8) / 2) / form.Value(13));
    cone.BaseRad = MeanRadius(form, 8, cone.ConeAngle);
    if (CheckWall(form, 8, cone.BaseRad, cone.ConeAngle)) {
        return false;
    }
    const double H = cone.BaseRad / std::tan(cone.ConeAngle);
    return !form.CheckLessThan(9, H) && !form.CheckLessThan(11, H) &&
           !CheckTilt(form, 12, cone.CPHeight1, cone.BaseRad) &&
           !CheckTilt(form, 10, cone.CPHeight2, cone.BaseRad);
}

/// Both tilts of an upper roof: neither plane may leave the cone through its base, nor pass by its apex.
bool CheckUpperRoofTilts(FittingForm& form, const CRightCone& cone, double H) {
    const double toApex = H - cone.CPHeight1;
    if (form.CheckLessThan(14, ConeLimit(cone.CPHeight1, cone.BaseRad + cone.Offset))) {
        return true;
    }
    const double farLimit = cone.Offset > 0 ? ConeLimit(toApex, cone.Offset) : 90;
    if (form.CheckGreaterThan(14, -farLimit) ||
        form.CheckLessThan(16, ConeLimit(cone.CPHeight1, cone.BaseRad - cone.Offset))) {
        return true;
    }
    const double nearLimit = cone.Offset >= 0 ? 90 : -ConeLimit(toApex, cone.Offset);
    return form.CheckGreaterThan(16, -nearLimit);
}

bool BuildUpperRoof(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(19, 18, 17)) {
        return false;
    }
    cone.CPHeight1 = form.Value(18);
    cone.CPAngle3 = -DegToRad(form.Value(14));
    cone.CPAngle1 = DegToRad(form.Value(16));
    cone.Offset = form.Value(15);
    cone.ConeAngle = std::atan((form.Value(19) / 2) / form.Value(17));
    cone.BaseRad = MeanRadius(form, 19, cone.ConeAngle);
    if (CheckWall(form, 19, cone.BaseRad, cone.ConeAngle)) {
        return false;
    }
    const double H = cone.BaseRad / std::tan(cone.ConeAngle);
    if (form.CheckLessThan(18, H)) {
        return false;
    }
    // The ridge may touch the cone on the far side, where the radius at its height is rc.
    const double rc = ((H - cone.CPHeight1) * cone.BaseRad) / H;
    if (form.CheckAtLeast(15, -rc) || form.CheckLessThan(15, rc) || CheckUpperRoofTilts(form, cone, H)) {
        return false;
    }
    cone.ConeAngle = std::atan(cone.BaseRad / H);
    return true;
}

/// The upper limit, in degrees, of a lower plane's tilt: it must pass below the top edge, which on that side
/// lies `run` away from the ridge.
double BelowTopLimit(double run, double rise) {
    return run <= 0 ? 90 : 90 - ConeLimit(run, rise);
}

bool BuildLowerRoof(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(20, 21, 22, 23)) {
        return false;
    }
    cone.CPHeight1 = form.Value(22);
    cone.CPHeight2 = form.Value(23);
    cone.CPAngle3 = DegToRad(form.Value(25));
    cone.CPAngle2 = -DegToRad(form.Value(26));
    cone.Offset = form.Value(24);
    if (form.CheckLessThan(21, form.Value(20))) {
        return false;
    }
    const double typedR = form.Value(20) / 2;
    const double typedH = (form.Value(22) * typedR) / (typedR - form.Value(21) / 2);
    cone.ConeAngle = std::atan(typedR / typedH);
    cone.BaseRad = MeanRadius(form, 20, cone.ConeAngle);
    if (CheckWall(form, 20, cone.BaseRad, cone.ConeAngle)) {
        return false;
    }
    const double H = cone.BaseRad / std::tan(cone.ConeAngle);
    if (form.CheckLessThan(22, H) || form.CheckLessThan(23, cone.CPHeight1)) {
        return false;
    }
    const double r = MeanRadius(form, 21, cone.ConeAngle);
    if (CheckWall(form, 21, r, cone.ConeAngle)) {
        return false;
    }
    const double rc = ((H - cone.CPHeight2) * cone.BaseRad) / H;
    if (form.CheckGreaterThan(24, -rc) || form.CheckLessThan(24, rc)) {
        return false;
    }
    const double rise = cone.CPHeight1 - cone.CPHeight2;
    const double alongWall = -RadToDeg(QuarterTurn - cone.ConeAngle);
    return !form.CheckLessThan(26, BelowTopLimit(r - cone.Offset, rise)) &&
           !form.CheckGreaterThan(26, alongWall) &&
           !form.CheckLessThan(25, BelowTopLimit(r + cone.Offset, rise)) &&
           !form.CheckGreaterThan(25, alongWall);
}

/// Breaks of a roof are measured from plan angle 0, so the seam of types 4 and 5 stands there.
void HoldSeam(std::int16_t dtype, CPatternSettings& settings) {
    settings.JoinAngleDisable = dtype > 2;
    if (settings.JoinAngleDisable) {
        settings.JoinAngle = 0;
    }
}

bool Build(FittingForm& form, CRightCone& cone) {
    // A file may hold any seam angle, so that the change of type is not enough.
    HoldSeam(form.dtype, form.settings);
    cone.CPAngle1 = cone.CPAngle2 = cone.CPAngle3 = cone.Offset = cone.CPHeight2 = 0;
    switch (form.dtype) {
        case 0:
            return BuildPlaneByConeAngle(form, cone);
        case 1:
            return BuildPlaneByApexHeight(form, cone);
        case 2:
            return BuildTwoPlanes(form, cone);
        case 3:
            return BuildUpperRoof(form, cone);
        default:
            return BuildLowerRoof(form, cone);
    }
}

// The top is List1, the bottom List2. Planes are measured on the axis, a roof at its ridge, and every tilt
// against the level in the elevation.
constexpr SketchPoint BaseLeft = AtXZ(-200, 0);
constexpr SketchPoint BaseRight = AtXZ(200, 0);

/// A level ray to the right of the left end of a line.
constexpr SketchPoint LevelFromLeft(int list) {
    return SpotOf(list, Spot::MinX, 100);
}

/// The tilt of a plane between its left and its right end.
constexpr SketchDimension TiltSize(int list) {
    return AngleSize(Side::Right, SpotOf(list, Spot::MinX), SpotOf(list, Spot::MaxX), LevelFromLeft(list));
}

/// The tilt of one side of a roof, away from the ridge to the end of the roof given.
constexpr SketchDimension RoofTiltSize(Side side, const SketchPoint& ridge, int list) {
    const bool left = side == Side::Left;
    return AngleSize(side, ridge, SpotOf(list, left ? Spot::MinX : Spot::MaxX),
                     AtXZ(ridge.dx + (left ? -100 : 100), ridge.dz));
}

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
    .buildFitting = BuildAs<CRightCone, Build>,
    .onTypeChanged = HoldSeam,
    .positionLine = true,
};

}  // namespace korvet
