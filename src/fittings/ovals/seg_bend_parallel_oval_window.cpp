// Oval Segmented Bend: a bend of straight oval pipe pieces, of a quarter turn or of any angle.
#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/bends/bend_form.h"
#include "fittings/bends/bend_sketch.h"
#include "fittings/ovals/oval_form.h"
#include "fittings/ovals/oval_sketch.h"
#include "fittings/ovals/seg_bend_parallel_oval.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

/// Two pieces at least, and only then a whole number of them: the other way round than of a round bend.
Outcome CheckPieces(FittingForm& form, int piecesBox) {
    return RefusedIf(form.CheckAtLeast(piecesBox, 2) || form.CheckInteger(piecesBox));
}

void SetOvalBend(const FittingForm& form, const oval::Section& section, const bend::Sizes& sizes,
                 CSegBendParallelOval& bend) {
    bend::SetBend(form.settings, sizes, bend);
    oval::SetSection(bend, section);
}

namespace quarter {

enum Box : int { BaseDiameter = 0, BendRadius = 1, Segments = 2, Length1 = 3, Length2 = 4, BaseLength = 11 };

Outcome Build(FittingForm& form, CSegBendParallelOval& bend) {
    if (form.CheckPositive(BaseDiameter)) {
        return Refused;
    }
    const oval::Section section = oval::SectionOf(form, {BaseDiameter, BaseLength});
    if (oval::CheckSection(form, {BaseDiameter, BaseLength}, section) ||
        form.CheckAtLeast(BendRadius, section.radius) || form.CheckAtLeast(Length1, 0) ||
        form.CheckAtLeast(Length2, 0) || CheckPieces(form, Segments)) {
        return Refused;
    }
    SetOvalBend(form, section,
                {section.radius, form.Value(BendRadius), QuarterTurn, form.Value(Length1),
                 form.Value(Length2), form.Value(Segments)},
                bend);
    return Passed;
}

constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "160", oval::DiameterOfSection},
    {BaseLength, "Base length", "380", oval::LengthOfSection},
    {BendRadius, "Bend radius", "320", bend::BendRadiusSize(320, 90)},
    {Segments, "Number of segments", "5", bend::PieceCount},
    {Length1, "Length 1", "90", bend::FirstLengthSize(90)},
    {Length2, "Length 2", "140", LinearSize(Side::Above, bend::EndOf(5), bend::EndOf(5, 140))}};
// The last line has the bend radius of the other type: text blocks made so far have it so.
constexpr int OtherBendRadius = 6;
constexpr LabelEntry Labels[] = {{BaseDiameter},
                                 {BaseLength},
                                 {BendRadius},
                                 {NoBox, "Bend angle = ", "90"},
                                 {Length1},
                                 {Length2},
                                 {OtherBendRadius, "Number of segments = "}};
constexpr auto Lines = bend::Lines(320, AtXZ(-320, 320));

}  // namespace quarter

namespace any_angle {

enum Box : int {
    BaseDiameter = 5,
    BendRadius = 6,
    BendAngle = 7,
    Length1 = 8,
    Length2 = 9,
    Segments = 10,
    BaseLength = 12
};
static_assert(BendRadius == quarter::OtherBendRadius);

Outcome Build(FittingForm& form, CSegBendParallelOval& bend) {
    if (form.CheckPositive(BaseDiameter)) {
        return Refused;
    }
    const oval::Section section = oval::SectionOf(form, {BaseDiameter, BaseLength});
    // Here alone a length of just the diameter is refused.
    if (CheckRoundWall(form, BaseDiameter, section.radius) ||
        form.CheckGreaterThan(BaseLength, form.Value(BaseDiameter)) ||
        form.CheckAtLeast(BendRadius, section.radius) || form.CheckAtLeast(Length1, 0) ||
        form.CheckAtLeast(Length2, 0) || CheckPieces(form, Segments) || form.CheckPositive(BendAngle) ||
        form.CheckLessThan(BendAngle, 360)) {
        return Refused;
    }
    SetOvalBend(form, section,
                {section.radius, form.Value(BendRadius), DegToRad(form.Value(BendAngle)), form.Value(Length1),
                 form.Value(Length2), form.Value(Segments)},
                bend);
    return Passed;
}

constexpr SketchPoint ArcEnd = PolarXZ(bend::Centre(450), 60, 450);
constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "180", oval::DiameterOfSection},
    {BaseLength, "Base length", "420", oval::LengthOfSection},
    {BendRadius, "Bend radius", "450", bend::BendRadiusSize(450, 110)},
    {BendAngle, "Bend angle (degrees)", "60", bend::BendAngleSize(450, ArcEnd)},
    {Length1, "Length 1", "110", bend::FirstLengthSize(110)},
    {Length2, "Length 2", "130", AlignedSize(Side::Above, bend::EndOf(4), PolarXZ(bend::EndOf(4), -30, 130))},
    {Segments, "Number of segments", "4", bend::PieceCount}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {BaseLength}, {BendRadius}, {BendAngle},
                                 {Length1},      {Length2},    {Segments}};
constexpr auto Lines = bend::Lines(450, ArcEnd);

}  // namespace any_angle

constexpr PageEntry Pages[] = {{quarter::Boxes, quarter::Labels, oval::Views, quarter::Lines},
                               {any_angle::Boxes, any_angle::Labels, oval::Views, any_angle::Lines}};

}  // namespace

const WindowTable frmSegBendOval = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CSegBendParallelOval>,
    .buildFitting = BuildByType<CSegBendParallelOval, quarter::Build, any_angle::Build>,
    .multiple = true,
    .halfPatterns = HalfPatterns::None,
    .joinAngleDisable = true,
    .kerfEnabled = true,
    .patternSelect = bend::PatternChoices,
};

}  // namespace korvet
