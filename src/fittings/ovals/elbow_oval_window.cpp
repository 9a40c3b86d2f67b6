// Oval Elbow: two oval pipes on one mitre, by their lengths and the angle between them, square, or on a bend
// radius.
#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/ovals/elbow_oval.h"
#include "fittings/ovals/oval_form.h"
#include "fittings/ovals/oval_sketch.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

void SetElbow(const FittingForm& form, const oval::Section& section, double bendAngle, double length1,
              double length2, CElbowOval& elbow) {
    oval::SetSection(elbow, section);
    elbow.BendAngle = bendAngle;
    elbow.BendRadius = 0;
    elbow.Length1 = length1;
    elbow.Length2 = length2;
    elbow.KerfSpacing = form.settings.KerfSpacing;
}

/// Some change of direction, short of turning back.
Outcome CheckAngle(FittingForm& form, int angleBox) {
    return RefusedIf(form.CheckPositive(angleBox) || form.CheckLessThan(angleBox, 180));
}

// The sketches: the first piece hangs from the mitre at the origin, square at its List2, and so does the
// second one, turned to the right.

constexpr SketchPoint Start = MiddleOf(2);
constexpr SketchPoint Corner = OnAxis(0);
constexpr SketchPoint End = {.list = 2, .spot = Spot::Centre, .surface = 2};
constexpr SketchDimension Length1Size = LinearSize(Side::Left, Start, Corner);
constexpr SketchConstruction CentreLines[] = {CentreLine(Start, Corner), CentreLine(Corner, End)};

namespace legs {

enum Box : int { BaseDiameter = 0, Length1 = 1, Length2 = 2, Angle = 3, BaseLength = 10 };

Outcome Build(FittingForm& form, CElbowOval& elbow) {
    if (form.CheckPositive(BaseDiameter)) {
        return Refused;
    }
    const oval::Section section = oval::SectionOf(form, {BaseDiameter, BaseLength});
    // The length is held against the radius here, and against the diameter in the other types.
    if (CheckRoundWall(form, BaseDiameter, section.radius) || form.CheckAtLeast(BaseLength, section.radius) ||
        CheckAngle(form, Angle)) {
        return Refused;
    }
    const double b = DegToRad(form.Value(Angle));
    // In this type the limit has a minus: pieces that run past the mitre pass, negative ones even, and files
    // made so far may hold them.
    const double m = -(section.radius / std::tan(b / 2));
    if (form.CheckAtLeast(Length1, m) || form.CheckAtLeast(Length2, m)) {
        return Refused;
    }
    SetElbow(form, section, b, form.Value(Length1), form.Value(Length2), elbow);
    return Passed;
}

constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "150", oval::DiameterOfSection},
    {BaseLength, "Base length", "360", oval::LengthOfSection},
    {Length1, "Length 1", "340", Length1Size},
    {Length2, "Length 2", "280", AlignedSize(Side::Above, Corner, End)},
    {Angle, "Angle (degrees)", "120", AngleSize(Side::Right, Corner, Start, End, 0.5)}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {BaseLength}, {Length1}, {Length2}, {Angle}};

}  // namespace legs

namespace square {

enum Box : int { BaseDiameter = 4, Length1 = 5, Length2 = 6, BaseLength = 11 };

Outcome Build(FittingForm& form, CElbowOval& elbow) {
    if (form.CheckPositive(BaseDiameter)) {
        return Refused;
    }
    const oval::Section section = oval::SectionOf(form, {BaseDiameter, BaseLength});
    if (oval::CheckSection(form, {BaseDiameter, BaseLength}, section) ||
        form.CheckAtLeast(Length1, section.radius) || form.CheckAtLeast(Length2, section.radius)) {
        return Refused;
    }
    SetElbow(form, section, QuarterTurn, form.Value(Length1), form.Value(Length2), elbow);
    return Passed;
}

constexpr BoxEntry Boxes[] = {{BaseDiameter, "Base diameter", "140", oval::DiameterOfSection},
                              {BaseLength, "Base length", "330", oval::LengthOfSection},
                              {Length1, "Length 1", "250", Length1Size},
                              {Length2, "Length 2", "200", LinearSize(Side::Above, Corner, End)}};
constexpr LabelEntry Labels[] = {
    {BaseDiameter}, {BaseLength}, {Length1}, {Length2}, {NoBox, "Angle = ", "90"}};

}  // namespace square

namespace on_radius {

enum Box : int { BaseDiameter = 7, BendRadius = 8, Angle = 9, BaseLength = 12 };

/// Both square ends touch an arc of the bend radius, which turns by the angle: each piece is a tangent.
Outcome Build(FittingForm& form, CElbowOval& elbow) {
    if (form.CheckPositive(BaseDiameter)) {
        return Refused;
    }
    const oval::Section section = oval::SectionOf(form, {BaseDiameter, BaseLength});
    if (oval::CheckSection(form, {BaseDiameter, BaseLength}, section) ||
        form.CheckAtLeast(BendRadius, section.radius) || CheckAngle(form, Angle)) {
        return Refused;
    }
    const double b = DegToRad(form.Value(Angle));
    const double length = std::tan(b / 2) * form.Value(BendRadius);
    SetElbow(form, section, PI - b, length, length, elbow);
    elbow.BendRadius = form.Value(BendRadius);
    return Passed;
}

constexpr SketchPoint BendCentre = MiddleOf(2, 300);
constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "160", oval::DiameterOfSection},
    {BaseLength, "Base length", "400", oval::LengthOfSection},
    {BendRadius, "Bend radius", "300", LinearSize(Side::Below, Start, BendCentre)},
    {Angle, "Angle (degrees)", "60", AngleSize(Side::Right, BendCentre, Start, End, 0.5)}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {BaseLength}, {BendRadius}, {Angle}};
constexpr SketchConstruction Lines[] = {CentreLine(BendCentre, Start), CentreLine(BendCentre, End)};

}  // namespace on_radius

constexpr PageEntry Pages[] = {{legs::Boxes, legs::Labels, oval::Views, CentreLines},
                               {square::Boxes, square::Labels, oval::Views, CentreLines},
                               {on_radius::Boxes, on_radius::Labels, oval::Views, on_radius::Lines}};

}  // namespace

const WindowTable frmElbowOval = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CElbowOval>,
    .buildFitting = BuildByType<CElbowOval, legs::Build, square::Build, on_radius::Build>,
    .multiple = true,
    .halfPatterns = HalfPatterns::None,
    .joinAngleDisable = true,
    .kerfEnabled = true,
};

}  // namespace korvet
