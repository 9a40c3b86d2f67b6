// Segmented Bend: a bend of straight pipe pieces, of a quarter turn or of any angle.
#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/bends/bend_form.h"
#include "fittings/bends/bend_sketch.h"
#include "fittings/bends/seg_bend_parallel.h"
#include "fittings/mean_sizes.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

Outcome CheckRadius(FittingForm& form, int diameterBox, int bendRadiusBox, double R) {
    return RefusedIf(CheckRoundWall(form, diameterBox, R) || form.CheckGreaterThan(bendRadiusBox, R));
}

void SetPipeBend(const CPatternSettings& settings, const bend::Sizes& sizes, CSegBendParallel& bend) {
    bend::SetBend(settings, sizes, bend);
    bend.TemplateType = settings.TemplateType;
    bend.Thickness = settings.Thickness;
}

namespace quarter {

enum Box : int { BaseDiameter = 0, BendRadius = 1, Segments = 2, Length1 = 3, Length2 = 4 };

Outcome Build(FittingForm& form, CSegBendParallel& bend) {
    const double R = MeanRadiusOfDiameter(form, BaseDiameter);
    if (CheckRadius(form, BaseDiameter, BendRadius, R) || bend::CheckPieces(form, Segments) ||
        form.CheckAtLeast(Length1, 0) || form.CheckAtLeast(Length2, 0)) {
        return Refused;
    }
    SetPipeBend(form.settings,
                {R, form.Value(BendRadius), QuarterTurn, form.Value(Length1), form.Value(Length2),
                 form.Value(Segments)},
                bend);
    return Passed;
}

constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "200", DiameterSize(Side::Below, 2)},
    {BendRadius, "Bend radius", "300", bend::BendRadiusSize(300, 100)},
    {Segments, "Number of segments", "5", bend::PieceCount},
    {Length1, "Length 1", "100", bend::FirstLengthSize(100)},
    {Length2, "Length 2", "150", LinearSize(Side::Above, bend::EndOf(5), bend::EndOf(5, 150))}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {BendRadius}, {NoBox, "Bend angle = ", "90"},
                                 {Length1},      {Length2},    {Segments}};
constexpr auto Lines = bend::Lines(300, AtXZ(-300, 300));

}  // namespace quarter

namespace any_angle {

enum Box : int { BaseDiameter = 5, BendRadius = 6, BendAngle = 7, Length1 = 8, Length2 = 9, Segments = 10 };

Outcome Build(FittingForm& form, CSegBendParallel& bend) {
    const double R = MeanRadiusOfDiameter(form, BaseDiameter);
    if (CheckRadius(form, BaseDiameter, BendRadius, R) || form.CheckAtMost(BendAngle, 360) ||
        form.CheckPositive(BendAngle) || form.CheckAtLeast(Length1, 0) || form.CheckAtLeast(Length2, 0) ||
        bend::CheckPieces(form, Segments)) {
        return Refused;
    }
    SetPipeBend(form.settings,
                {R, form.Value(BendRadius), DegToRad(form.Value(BendAngle)), form.Value(Length1),
                 form.Value(Length2), form.Value(Segments)},
                bend);
    return Passed;
}

// 400 from the centre at 60 degrees, and 120 further along the last piece.
constexpr SketchPoint ArcEnd = PolarXZ(bend::Centre(400), 60, 400);
constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "200", DiameterSize(Side::Below, 2)},
    {BendRadius, "Bend radius", "400", bend::BendRadiusSize(400, 100)},
    {BendAngle, "Bend angle (degrees)", "60", bend::BendAngleSize(400, ArcEnd)},
    {Length1, "Length 1", "100", bend::FirstLengthSize(100)},
    {Length2, "Length 2", "120", AlignedSize(Side::Above, bend::EndOf(4), PolarXZ(bend::EndOf(4), -30, 120))},
    {Segments, "Number of segments", "4", bend::PieceCount}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {BendRadius}, {BendAngle}, {Length1}, {Length2}, {Segments}};
constexpr auto Lines = bend::Lines(400, ArcEnd);

}  // namespace any_angle

constexpr PageEntry Pages[] = {{quarter::Boxes, quarter::Labels, bend::Views, quarter::Lines},
                               {any_angle::Boxes, any_angle::Labels, bend::Views, any_angle::Lines}};

}  // namespace

const WindowTable frmSegBendParallel = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CSegBendParallel>,
    .buildFitting = BuildByType<CSegBendParallel, quarter::Build, any_angle::Build>,
    .multiple = true,
    .templateTypeEnabled = true,
    .kerfEnabled = true,
    .patternSelect = bend::PatternChoices,
};

}  // namespace korvet
