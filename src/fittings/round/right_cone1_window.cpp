// Right Cone: a cone frustum with level ends, given by its apex height, its own height or its angle.
#include <array>
#include <cmath>

#include "core/math_module.h"
#include "fittings/round/right_cone.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

/// The sizes that every group comes down to; radii as typed, not yet those of the mean line.
struct Frustum {
    double baseRadius;
    double topRadius;
    double coneAngle;
    double height;
};

struct MeanRadii {
    double base;
    double top;
};

MeanRadii Compensated(const FittingForm& form, const Frustum& frustum) {
    const CThickCompensator compensator = form.Compensator(SlopingRoundWall);
    return {compensator.NewDistance(frustum.baseRadius, frustum.coneAngle, 0),
            compensator.NewDistance(frustum.topRadius, frustum.coneAngle, 0)};
}

/// The thickness tests of both diameters; then the sizes go to the cone.
bool SetFrustum(FittingForm& form, CRightCone& cone, const Frustum& frustum, int baseBox, int topBox) {
    const MeanRadii mean = Compensated(form, frustum);
    const double allowance = std::cos(frustum.coneAngle) * form.settings.Thickness / 2;
    if (form.CheckRoomForThickness(baseBox, mean.base, allowance) ||
        form.CheckRoomForThickness(topBox, mean.top, allowance)) {
        return false;
    }
    cone.BaseRad = mean.base;
    cone.ConeAngle = frustum.coneAngle;
    cone.CPHeight1 = frustum.height;
    return true;
}

bool BuildFromApexHeight(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(0, 1, 2)) {
        return false;
    }
    const double R = form.Value(0) / 2;
    const double r = form.Value(1) / 2;
    const double H = form.Value(2);
    if (form.CheckLessThan(1, form.Value(0))) {
        return false;
    }
    // Similar triangles: the top lies r H / R below the apex.
    return SetFrustum(form, cone, {R, r, std::atan(R / H), H - (r * H) / R}, 0, 1);
}

bool BuildFromHeight(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(3, 4, 5)) {
        return false;
    }
    const double R = form.Value(3) / 2;
    const double r = form.Value(4) / 2;
    if (form.CheckLessThan(4, form.Value(3))) {
        return false;
    }
    const double H = (form.Value(5) * R) / (R - r);
    return SetFrustum(form, cone, {R, r, std::atan(R / H), form.Value(5)}, 3, 4);
}

bool BuildFromConeAngle(FittingForm& form, CRightCone& cone) {
    if (form.CheckAllPositive(6, 7) || form.CheckNumber(8)) {
        return false;
    }
    const double R = form.Value(6) / 2;
    const double r = form.Value(7) / 2;
    const double coneAngle = DegToRad(form.Value(8) / 2);
    if (form.CheckLessThan(7, form.Value(6)) || form.CheckPositive(8) || form.CheckLessThan(8, 180)) {
        return false;
    }
    return SetFrustum(form, cone, {R, r, coneAngle, (R - r) / std::tan(coneAngle)}, 6, 7);
}

bool Build(FittingForm& form, CRightCone& cone) {
    switch (form.dtype) {
        case 0:
            return BuildFromApexHeight(form, cone);
        case 1:
            return BuildFromHeight(form, cone);
        default:
            return BuildFromConeAngle(form, cone);
    }
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
    .buildFitting = BuildAs<CRightCone, Build>,
    .firstDtype = 1,
    .checksAllFields = false,
    .positionLine = true,
};

}  // namespace korvet
