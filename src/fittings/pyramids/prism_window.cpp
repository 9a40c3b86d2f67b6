// Prism: equal sides, cut square, by a tilted plane at one end or both, or by two planes at the top.
#include <cmath>

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/pyramids/prism.h"
#include "fittings/pyramids/sides_form.h"
#include "fittings/tilt.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

/// The boxes that every type has.
struct PrismBoxes {
    int diameter;
    int height;
    int sides;
};

/// The corners stand further from the middle of the material than its flat sides do: across a corner, half
/// the thickness counts (t / 2) / cos(half the angle of a side).
Outcome SetSection(FittingForm& form, CPrism& prism, const PrismBoxes& boxes) {
    if (sides::CheckSides(form, boxes.sides)) {
        return Refused;
    }
    const std::int16_t n = sides::SidesOf(form, boxes.sides);
    const double t = form.settings.Thickness;
    prism.NoOfSides = n;
    prism.BaseRad = form.Compensator(PolygonCorner).NewDistance(form.Value(boxes.diameter) / 2, 0, n);
    return form.CheckRoomForThickness(boxes.diameter, prism.BaseRad, (t / 2) / std::cos((FullTurn / n) / 2));
}

Outcome SetWalls(FittingForm& form, CPrism& prism, const PrismBoxes& boxes) {
    if (SetSection(form, prism, boxes) || form.CheckPositive(boxes.height)) {
        return Refused;
    }
    prism.CPHeight1 = form.Value(boxes.height);
    return Passed;
}

// The sketches: the top is List1, the base List2, about the axis at x = 0; corners at the left and the right.

namespace square {

enum Box : int { BaseDiameter = 0, CuttingPlaneHeight = 1, Sides = 2 };

Outcome Build(FittingForm& form, CPrism& prism) {
    return SetWalls(form, prism, {BaseDiameter, CuttingPlaneHeight, Sides});
}

constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "240", DiameterSize(Side::Below, 2)},
    {CuttingPlaneHeight, "Cutting plane height", "350", LinearSize(Side::Right, MiddleOf(2), MiddleOf(1))},
    {Sides, "Number of sides", "6", CountNote(Side::Left)}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {CuttingPlaneHeight}, {Sides}};
constexpr SketchConstruction Axis[] = {CentreLine(OnAxis(0), OnAxis(350))};

}  // namespace square

namespace tilted_top {

enum Box : int { BaseDiameter = 3, CuttingPlaneHeight = 4, CuttingPlaneAngle = 5, Sides = 6 };

Outcome Build(FittingForm& form, CPrism& prism) {
    if (SetWalls(form, prism, {BaseDiameter, CuttingPlaneHeight, Sides})) {
        return Refused;
    }
    prism.CPAngle1 = -DegToRad(form.Value(CuttingPlaneAngle));
    return CheckPlaneTilt(form, CuttingPlaneAngle, prism.CPHeight1, prism.BaseRad);
}

constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "280", DiameterSize(Side::Below, 2)},
    {CuttingPlaneHeight, "Cutting plane height", "330", LinearSize(Side::Left, MiddleOf(2), MiddleOf(1))},
    {CuttingPlaneAngle, "Cutting plane angle (degrees)", "32", TiltSize(1)},
    {Sides, "Number of sides", "4", CountNote(Side::Left)}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {CuttingPlaneHeight}, {CuttingPlaneAngle}, {Sides}};
constexpr SketchConstruction Axis[] = {CentreLine(OnAxis(0), OnAxis(330))};

}  // namespace tilted_top

namespace tilted_ends {

enum Box : int {
    BaseDiameter = 7,
    CuttingPlaneHeight = 8,
    CuttingPlaneAngle1 = 9,
    CuttingPlaneAngle2 = 10,
    Sides = 11
};

Outcome Build(FittingForm& form, CPrism& prism) {
    if (SetWalls(form, prism, {BaseDiameter, CuttingPlaneHeight, Sides})) {
        return Refused;
    }
    prism.CPAngle1 = -DegToRad(form.Value(CuttingPlaneAngle1));
    prism.CPAngle2 = -DegToRad(form.Value(CuttingPlaneAngle2));
    // The base is held against the top as it stands at +x, so that a top which falls the other way may meet
    // it.
    const double q = std::tan(prism.CPAngle1) * prism.BaseRad + prism.CPHeight1;
    return RefusedIf(CheckPlaneTilt(form, CuttingPlaneAngle1, prism.CPHeight1, prism.BaseRad) ||
                     CheckPlaneTilt(form, CuttingPlaneAngle2, q, prism.BaseRad));
}

constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "220",
     LinearSize(Side::Below, SpotOf(2, Spot::MinX), SpotOf(2, Spot::MinX, 220))},
    {CuttingPlaneHeight, "Cutting plane height", "380", LinearSize(Side::Left, MiddleOf(2), MiddleOf(1))},
    {CuttingPlaneAngle1, "Cutting plane angle 1 (degrees)", "28", TiltSize(1)},
    {CuttingPlaneAngle2, "Cutting plane angle 2 (degrees)", "18", TiltSize(2)},
    {Sides, "Number of sides", "8", CountNote(Side::Left)}};
constexpr LabelEntry Labels[] = {
    {BaseDiameter}, {CuttingPlaneHeight}, {CuttingPlaneAngle1}, {CuttingPlaneAngle2}, {Sides}};
constexpr SketchConstruction Axis[] = {CentreLine(OnAxis(0), OnAxis(380))};

}  // namespace tilted_ends

namespace two_planes {

enum Box : int {
    BaseDiameter = 12,
    CuttingPlaneHeight = 13,
    CuttingPlaneAngle1 = 14,
    CuttingPlaneAngle2 = 15,
    Sides = 16
};

Outcome Build(FittingForm& form, CPrism& prism) {
    if (SetWalls(form, prism, {BaseDiameter, CuttingPlaneHeight, Sides})) {
        return Refused;
    }
    prism.CPAngle3 = DegToRad(form.Value(CuttingPlaneAngle1));
    prism.CPAngle1 = DegToRad(form.Value(CuttingPlaneAngle2));
    const double m = TiltLimit(prism.CPHeight1, prism.BaseRad);
    return RefusedIf(CheckTiltWithin(form, CuttingPlaneAngle1, -90, m) ||
                     CheckTiltWithin(form, CuttingPlaneAngle2, -90, m));
}

constexpr SketchPoint Ridge = OnAxis(320);
constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "260", DiameterSize(Side::Below, 2)},
    {CuttingPlaneHeight, "Cutting plane height", "320", LinearSize(Side::Left, MiddleOf(2), Ridge)},
    {CuttingPlaneAngle1, "Cutting plane angle 1 (degrees)", "40", RoofTiltSize(Side::Right, Ridge, 1)},
    {CuttingPlaneAngle2, "Cutting plane angle 2 (degrees)", "24", RoofTiltSize(Side::Left, Ridge, 1)},
    {Sides, "Number of sides", "12", CountNote(Side::Left)}};
constexpr LabelEntry Labels[] = {
    {BaseDiameter}, {CuttingPlaneHeight}, {CuttingPlaneAngle1}, {CuttingPlaneAngle2}, {Sides}};
constexpr SketchConstruction Axis[] = {CentreLine(OnAxis(0), Ridge)};

}  // namespace two_planes

/// A diameter of 0 passes its check where the material has no thickness.
Outcome Build(FittingForm& form, const FittingHandle& fitting) {
    auto& prism = fitting.As<CPrism>();
    prism.CPHeight2 = prism.CPAngle1 = prism.CPAngle2 = prism.CPAngle3 = 0;
    if (BuildByType<CPrism, square::Build, tilted_top::Build, tilted_ends::Build, two_planes::Build>(
            form, fitting)) {
        return Refused;
    }
    if (prism.BaseRad == 0) {
        throw ArithmeticError("a prism with a diameter of 0 has no sides");
    }
    return Passed;
}

constexpr PageEntry Pages[] = {
    {square::Boxes, square::Labels, FrontView, square::Axis, false, square::Sides},
    {tilted_top::Boxes, tilted_top::Labels, FrontView, tilted_top::Axis, false, tilted_top::Sides},
    {tilted_ends::Boxes, tilted_ends::Labels, FrontView, tilted_ends::Axis, false, tilted_ends::Sides},
    {two_planes::Boxes, two_planes::Labels, FrontView, two_planes::Axis, false, two_planes::Sides}};

}  // namespace

const WindowTable frmPrism = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CPrism>,
    .buildFitting = Build,
    .halfPatterns = HalfPatterns::RefusedByClass,
    .moreButtons = true,
};

}  // namespace korvet
