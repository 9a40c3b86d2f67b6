// Round to Round: a base circle to a top circle of any size, tilted over the base, tilted beside it, or
// upright beside it.
#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/mean_sizes.h"
#include "fittings/pipes/round_to_round.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

/// The boxes of both diameters and of the height of the top's centre.
struct EndBoxes {
    int base;
    int top;
    int height;
};

/// Makes the thickness tests and hands the sizes on; the offset of the top in the user's unit, its tilt in
/// radians.
Outcome SetEnds(FittingForm& form, CRoundToRound& fitting, EndBoxes ends, double offsetX, double tiltY) {
    fitting.BaseRad = MeanRadiusOfDiameter(form, ends.base);
    fitting.TopRad = MeanRadiusOfDiameter(form, ends.top);
    fitting.Height = form.Value(ends.height);
    fitting.TopOffsetX = offsetX;
    fitting.TopTiltY = tiltY;
    return RefusedIf(CheckRoundWall(form, ends.base, fitting.BaseRad) ||
                     CheckRoundWall(form, ends.top, fitting.TopRad));
}

/// With a top that leans by the degrees in a box: up to upright, to either side.
Outcome BuildTilted(FittingForm& form, CRoundToRound& fitting, EndBoxes ends, double offsetX, int angleBox) {
    if (form.CheckAllPositive(ends.base, ends.top, ends.height) || form.CheckAtLeast(angleBox, -90) ||
        form.CheckAtMost(angleBox, 90)) {
        return Refused;
    }
    return SetEnds(form, fitting, ends, offsetX, -DegToRad(form.Value(angleBox)));
}

// The sketches: the base is List1, the top List2, which leans to the right.

constexpr SketchDimension TiltedDiameter =
    AlignedSize(Side::Above, SpotOf(2, Spot::MinX), SpotOf(2, Spot::MaxX));

namespace over_base {

enum Box : int { BaseDiameter = 0, TopDiameter = 1, CuttingPlaneHeight = 2, CuttingPlaneAngle1 = 3 };

Outcome Build(FittingForm& form, CRoundToRound& fitting) {
    return BuildTilted(form, fitting, {BaseDiameter, TopDiameter, CuttingPlaneHeight}, 0, CuttingPlaneAngle1);
}

constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "300", DiameterSize(Side::Below, 1)},
    {TopDiameter, "Top diameter", "180", TiltedDiameter},
    {CuttingPlaneHeight, "Cutting plane height", "260", LinearSize(Side::Left, MiddleOf(1), MiddleOf(2))},
    {CuttingPlaneAngle1, "Cutting plane angle 1 (degrees)", "25", TiltSize(2)}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {TopDiameter}, {CuttingPlaneHeight}, {CuttingPlaneAngle1}};
constexpr SketchConstruction Lines[] = {CentreLine(MiddleOf(1), MiddleOf(2))};

}  // namespace over_base

namespace beside_base {

enum Box : int {
    BaseDiameter = 4,
    TopDiameter = 5,
    CuttingPlaneHeight = 6,
    OffsetX = 7,
    CuttingPlaneAngle1 = 8
};

Outcome Build(FittingForm& form, CRoundToRound& fitting) {
    return BuildTilted(form, fitting, {BaseDiameter, TopDiameter, CuttingPlaneHeight}, form.Value(OffsetX),
                       CuttingPlaneAngle1);
}

constexpr SketchPoint OverBase = OnAxis(280);
constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "320", DiameterSize(Side::Below, 1)},
    {TopDiameter, "Top diameter", "200", TiltedDiameter},
    {CuttingPlaneHeight, "Cutting plane height", "280", LinearSize(Side::Left, MiddleOf(1), OverBase)},
    {OffsetX, "Offset X", "110", LinearSize(Side::Above, OverBase, MiddleOf(2))},
    {CuttingPlaneAngle1, "Cutting plane angle 1 (degrees)", "20", TiltSize(2)}};
constexpr LabelEntry Labels[] = {
    {BaseDiameter}, {TopDiameter}, {CuttingPlaneHeight}, {OffsetX}, {CuttingPlaneAngle1}};
constexpr SketchConstruction Lines[] = {CentreLine(MiddleOf(1), OverBase),
                                        CentreLine(MiddleOf(1), MiddleOf(2))};

}  // namespace beside_base

namespace upright {

enum Box : int { BaseDiameter = 9, TopDiameter = 10, CuttingPlaneHeight = 11, OffsetX = 12 };

Outcome Build(FittingForm& form, CRoundToRound& fitting) {
    if (form.CheckAllPositive(BaseDiameter, TopDiameter, CuttingPlaneHeight)) {
        return Refused;
    }
    return SetEnds(form, fitting, {BaseDiameter, TopDiameter, CuttingPlaneHeight}, form.Value(OffsetX),
                   -QuarterTurn);
}

constexpr SketchPoint OverBase = OnAxis(230);
constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "340", DiameterSize(Side::Below, 1)},
    {TopDiameter, "Top diameter", "160",
     LinearSize(Side::Right, SpotOf(2, Spot::MinZ), SpotOf(2, Spot::MaxZ))},
    {CuttingPlaneHeight, "Cutting plane height", "230", LinearSize(Side::Left, MiddleOf(1), OverBase)},
    {OffsetX, "Offset X", "250", LinearSize(Side::Above, OverBase, MiddleOf(2))}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {TopDiameter}, {CuttingPlaneHeight}, {OffsetX}};
constexpr SketchConstruction Lines[] = {CentreLine(MiddleOf(1), OverBase), CentreLine(OverBase, MiddleOf(2))};

}  // namespace upright

constexpr PageEntry Pages[] = {{over_base::Boxes, over_base::Labels, FrontView, over_base::Lines},
                               {beside_base::Boxes, beside_base::Labels, FrontView, beside_base::Lines},
                               {upright::Boxes, upright::Labels, FrontView, upright::Lines}};

}  // namespace

const WindowTable frmRoundToRound = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CRoundToRound>,
    .buildFitting = BuildByType<CRoundToRound, over_base::Build, beside_base::Build, upright::Build>,
};

}  // namespace korvet
