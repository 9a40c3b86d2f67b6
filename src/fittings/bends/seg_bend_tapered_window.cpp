// Tapered Bend: a segmented bend that grows narrower, of a quarter turn or of any angle.
#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/bends/bend_form.h"
#include "fittings/bends/bend_sketch.h"
#include "fittings/bends/seg_bend_tapered.h"
#include "fittings/bends/tapered_form.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

/// The bend may be as tight as the wide end is round.
Outcome CheckBendRadius(FittingForm& form, int bendRadiusBox, int diameterBox) {
    return form.CheckAtLeast(bendRadiusBox, MeanRadiusOfDiameter(form, diameterBox));
}

/// The sizes of a bend: the radii and the centre line on the mean line, the angle in radians.
struct Sizes {
    double bigRadius;
    double smallRadius;
    double bendRadius;
    double bendAngle;
    double pieces;
};

void SetTaperedBend(const CPatternSettings& settings, const Sizes& sizes, CSegBendTapered& bend) {
    bend::RequireCountable(sizes.pieces, {bend::MostCounted, settings.segs + 1.0}, settings.segs);
    bend.BigRad = sizes.bigRadius;
    bend.SmallRad = sizes.smallRadius;
    bend.BendRadius = sizes.bendRadius;
    bend.BendAngle = sizes.bendAngle;
    bend.BendSegments = RoundToInt16(sizes.pieces);
    bend.KerfSpacing = settings.KerfSpacing;
}

namespace quarter {

enum Box : int { BaseDiameter = 0, TopDiameter = 1, BendRadius = 2, Segments = 3 };

Outcome Build(FittingForm& form, CSegBendTapered& bend) {
    if (tapered::CheckEnds(form, {BaseDiameter, TopDiameter}) ||
        CheckBendRadius(form, BendRadius, BaseDiameter) || bend::CheckPieces(form, Segments)) {
        return Refused;
    }
    SetTaperedBend(form.settings,
                   {MeanRadiusOfDiameter(form, BaseDiameter), MeanRadiusOfDiameter(form, TopDiameter),
                    form.Value(BendRadius), QuarterTurn, form.Value(Segments)},
                   bend);
    return Passed;
}

constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "240", DiameterSize(Side::Below, 2)},
    {TopDiameter, "Top diameter", "140",
     LinearSize(Side::Left, OfSurface(5, SpotOf(1, Spot::MinZ)), OfSurface(5, SpotOf(1, Spot::MaxZ)))},
    {BendRadius, "Bend radius", "320", bend::BendRadiusSize(320, 0)},
    {Segments, "Number of segments", "5", bend::PieceCount}};
constexpr LabelEntry Labels[] = {
    {BaseDiameter}, {TopDiameter}, {BendRadius}, {NoBox, "Bend angle = ", "90"}, {Segments}};
constexpr auto Lines = bend::Lines(320, AtXZ(-320, 320));

}  // namespace quarter

namespace any_angle {

enum Box : int { BaseDiameter = 4, TopDiameter = 5, BendRadius = 6, BendAngle = 7, Segments = 8 };

Outcome Build(FittingForm& form, CSegBendTapered& bend) {
    if (tapered::CheckEnds(form, {BaseDiameter, TopDiameter}) ||
        CheckBendRadius(form, BendRadius, BaseDiameter) || form.CheckPositive(BendAngle) ||
        bend::CheckPieces(form, Segments)) {
        return Refused;
    }
    SetTaperedBend(form.settings,
                   {MeanRadiusOfDiameter(form, BaseDiameter), MeanRadiusOfDiameter(form, TopDiameter),
                    form.Value(BendRadius), DegToRad(form.Value(BendAngle)), form.Value(Segments)},
                   bend);
    return Passed;
}

constexpr SketchPoint ArcEnd = PolarXZ(bend::Centre(450), 60, 450);
constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "280", DiameterSize(Side::Below, 2)},
    {TopDiameter, "Top diameter", "200",
     LinearSize(Side::Above, OfSurface(4, SpotOf(1, Spot::MinY)), OfSurface(4, SpotOf(1, Spot::MaxY)), 1)},
    {BendRadius, "Bend radius", "450", bend::BendRadiusSize(450, 0)},
    {BendAngle, "Bend angle (degrees)", "60", bend::BendAngleSize(450, ArcEnd)},
    {Segments, "Number of segments", "4", bend::PieceCount}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {TopDiameter}, {BendRadius}, {BendAngle}, {Segments}};
constexpr auto Lines = bend::Lines(450, ArcEnd);

}  // namespace any_angle

constexpr PageEntry Pages[] = {{quarter::Boxes, quarter::Labels, bend::Views, quarter::Lines},
                               {any_angle::Boxes, any_angle::Labels, tapered::TwoViews, any_angle::Lines}};

}  // namespace

const WindowTable FrmSegBendTapered = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CSegBendTapered>,
    .buildFitting = BuildByType<CSegBendTapered, quarter::Build, any_angle::Build>,
    .multiple = true,
    .joinAngleDisable = true,
    .kerfEnabled = true,
};

}  // namespace korvet
