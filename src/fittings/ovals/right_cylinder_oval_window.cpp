// Oval Right Cylinder: an oval pipe cut square, by a tilted plane at one end or both.
#include <array>
#include <cmath>

#include "core/math_module.h"
#include "fittings/ovals/oval_form.h"
#include "fittings/ovals/oval_sketch.h"
#include "fittings/ovals/right_cylinder_oval.h"
#include "fittings/tilt.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

/// Sets the section and makes the tests on it.
Outcome SetSection(FittingForm& form, CRightCylinderOval& pipe, oval::SectionBoxes boxes) {
    const oval::Section section = oval::SectionOf(form, boxes);
    oval::SetSection(pipe, section);
    return oval::CheckSection(form, boxes, section);
}

/// Section and height of a pipe that has one height: diameter and height above 0, then the section.
Outcome SetPipe(FittingForm& form, CRightCylinderOval& pipe, oval::SectionBoxes boxes, int heightBox) {
    if (form.CheckAllPositive(boxes.diameter, heightBox)) {
        return Refused;
    }
    pipe.CPHeight1 = form.Value(heightBox);
    return SetSection(form, pipe, boxes);
}

// The sketches: the top is List1, the base List2, about the axis at x = 0.

constexpr SketchDimension HeightSize(Side side) {
    return LinearSize(side, MiddleOf(2), MiddleOf(1));
}

constexpr std::array<SketchConstruction, 2> AxisInBothViews(double height) {
    return {{CentreLine(OnAxis(0), OnAxis(height)), CentreLine(OnAxis(0), OnAxis(height), 1)}};
}

namespace square {

enum Box : int { BaseDiameter = 0, CuttingPlaneHeight = 1, BaseLength = 2 };

Outcome Build(FittingForm& form, CRightCylinderOval& pipe) {
    return SetPipe(form, pipe, {BaseDiameter, BaseLength}, CuttingPlaneHeight);
}

constexpr BoxEntry Boxes[] = {{BaseDiameter, "Base diameter", "160", oval::DiameterOfSection},
                              {BaseLength, "Base length", "420", oval::LengthOfSection},
                              {CuttingPlaneHeight, "Cutting plane height", "280", HeightSize(Side::Right)}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {BaseLength}, {CuttingPlaneHeight}};
constexpr auto Lines = AxisInBothViews(280);

}  // namespace square

namespace tilted_top {

enum Box : int { CuttingPlaneHeight = 3, CuttingPlaneAngle = 4, BaseDiameter = 5, BaseLength = 15 };

Outcome Build(FittingForm& form, CRightCylinderOval& pipe) {
    if (SetPipe(form, pipe, {BaseDiameter, BaseLength}, CuttingPlaneHeight)) {
        return Refused;
    }
    pipe.CPAngle1 = -DegToRad(form.Value(CuttingPlaneAngle));
    return CheckPlaneTilt(form, CuttingPlaneAngle, pipe.CPHeight1, pipe.BaseRad);
}

constexpr BoxEntry Boxes[] = {{BaseDiameter, "Base diameter", "180", oval::DiameterOfSection},
                              {BaseLength, "Base length", "400", oval::LengthOfSection},
                              {CuttingPlaneHeight, "Cutting plane height", "300", HeightSize(Side::Left)},
                              {CuttingPlaneAngle, "Cutting plane angle (degrees)", "25", TiltSize(1)}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {BaseLength}, {CuttingPlaneHeight}, {CuttingPlaneAngle}};
constexpr auto Lines = AxisInBothViews(300);

}  // namespace tilted_top

namespace two_heights {

enum Box : int { Height1 = 6, Height2 = 7, BaseDiameter = 12, BaseLength = 14 };

Outcome Build(FittingForm& form, CRightCylinderOval& pipe) {
    if (form.CheckAllPositive(BaseDiameter, Height1, Height2) ||
        SetSection(form, pipe, {BaseDiameter, BaseLength})) {
        return Refused;
    }
    pipe.CPHeight1 = (form.Value(Height1) + form.Value(Height2)) / 2;
    pipe.CPAngle1 = -std::atan((form.Value(Height1) - form.Value(Height2)) / (pipe.BaseRad + pipe.BaseRad));
    return Passed;
}

constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "150", oval::DiameterOfSection},
    {BaseLength, "Base length", "380", oval::LengthOfSection},
    {Height1, "Height 1", "340", LinearSize(Side::Left, SpotOf(2, Spot::MinX), SpotOf(1, Spot::MinX))},
    {Height2, "Height 2", "220", LinearSize(Side::Right, SpotOf(2, Spot::MaxX), SpotOf(1, Spot::MaxX))}};
// Two blanks before the last sign, as in the block of the round pipe; and its own spelling of the length.
constexpr LabelEntry Labels[] = {
    {BaseDiameter}, {BaseLength, "Base Length = "}, {Height1}, {Height2, "Height 2  = "}};
constexpr auto Lines = AxisInBothViews(280);

}  // namespace two_heights

namespace tilted_ends {

enum Box : int {
    CuttingPlaneAngle1 = 8,
    CuttingPlaneHeight = 9,
    CuttingPlaneAngle2 = 10,
    BaseLength = 11,
    BaseDiameter = 13
};

Outcome Build(FittingForm& form, CRightCylinderOval& pipe) {
    if (SetPipe(form, pipe, {BaseDiameter, BaseLength}, CuttingPlaneHeight)) {
        return Refused;
    }
    pipe.CPAngle1 = -DegToRad(form.Value(CuttingPlaneAngle1));
    pipe.CPAngle2 = -DegToRad(form.Value(CuttingPlaneAngle2));
    form.settings.JoinAngle = 0;
    const double m = TiltLimit(pipe.CPHeight1, pipe.BaseRad);
    return RefusedIf(CheckTiltWithin(form, CuttingPlaneAngle1, -90, m) ||
                     CheckTiltWithin(form, CuttingPlaneAngle2, -90, m));
}

// The right end of the base stands above the left one.
constexpr SketchPoint BelowRightEnd = SpotOf(2, Spot::MinX, 200);
constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "200", LinearSize(Side::Below, SpotOf(2, Spot::MinX), BelowRightEnd)},
    {BaseLength, "Base length", "450", oval::LengthOfSection},
    {CuttingPlaneHeight, "Cutting plane height", "260", HeightSize(Side::Left)},
    {CuttingPlaneAngle1, "Cutting plane angle 1 (degrees)", "20", TiltSize(1)},
    {CuttingPlaneAngle2, "Cutting plane angle 2 (degrees)", "15", TiltSize(2)}};
// The length has the diameter's label: text blocks made so far have it so.
constexpr LabelEntry Labels[] = {{BaseDiameter},
                                 {BaseLength, "Base diameter = "},
                                 {CuttingPlaneHeight},
                                 {CuttingPlaneAngle1},
                                 {CuttingPlaneAngle2}};
constexpr auto Lines = AxisInBothViews(260);

}  // namespace tilted_ends

Outcome Build(FittingForm& form, const FittingHandle& fitting) {
    auto& pipe = fitting.As<CRightCylinderOval>();
    pipe.CPAngle1 = pipe.CPAngle2 = pipe.CPAngle3 = pipe.CPHeight2 = pipe.Offset = pipe.Rotation = 0;
    return BuildByType<CRightCylinderOval, square::Build, tilted_top::Build, two_heights::Build,
                       tilted_ends::Build>(form, fitting);
}

constexpr PageEntry Pages[] = {{square::Boxes, square::Labels, oval::Views, square::Lines},
                               {tilted_top::Boxes, tilted_top::Labels, oval::Views, tilted_top::Lines},
                               {two_heights::Boxes, two_heights::Labels, oval::Views, two_heights::Lines},
                               {tilted_ends::Boxes, tilted_ends::Labels, oval::Views, tilted_ends::Lines}};

}  // namespace

const WindowTable frmOvalRightCylinder = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CRightCylinderOval>,
    .buildFitting = Build,
    .halfPatterns = HalfPatterns::None,
    .joinAngleDisable = true,
};

}  // namespace korvet
