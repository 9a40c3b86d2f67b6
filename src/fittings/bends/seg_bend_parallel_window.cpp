// Segmented Bend: a bend of straight pipe pieces, of a quarter turn or of any angle.
#include <array>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/bends/bend_form.h"
#include "fittings/bends/bend_sketch.h"
#include "fittings/bends/seg_bend_parallel.h"
#include "fittings/makeable.h"
#include "fittings/mean_sizes.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

Outcome CheckRadius(FittingForm& form, int diameterBox, int bendRadiusBox, double R) {
    return RefusedIf(CheckRoundWall(form, diameterBox, R) || form.CheckGreaterThan(bendRadiusBox, R));
}

Outcome SetPipeBend(FittingForm& form, CSegBendParallel& bend, const BendSizes& sizes) {
    if (SetBend(form, bend, sizes)) {
        return Refused;
    }
    bend.TemplateType = form.settings.TemplateType;
    bend.Thickness = form.settings.Thickness;
    return Passed;
}

Outcome BuildQuarterBend(FittingForm& form, CSegBendParallel& bend) {
    const double R = MeanRadiusOfDiameter(form, 0);
    if (CheckRadius(form, 0, 1, R) || CheckPieces(form, 2) || form.CheckAtLeast(3, 0) ||
        form.CheckAtLeast(4, 0)) {
        return Refused;
    }
    return SetPipeBend(form, bend,
                       {R, form.Value(1), QuarterTurn, form.Value(3), form.Value(4), form.Value(2)});
}

Outcome BuildBend(FittingForm& form, CSegBendParallel& bend) {
    const double R = MeanRadiusOfDiameter(form, 5);
    if (CheckRadius(form, 5, 6, R) || form.CheckAtMost(7, 360) || form.CheckPositive(7) ||
        form.CheckAtLeast(8, 0) || form.CheckAtLeast(9, 0) || CheckPieces(form, 10)) {
        return Refused;
    }
    return SetPipeBend(
        form, bend,
        {R, form.Value(6), DegToRad(form.Value(7)), form.Value(8), form.Value(9), form.Value(10)});
}

constexpr std::array<BoxEntry, 5> QuarterBoxes = {
    {{0, "Base diameter", "200", DiameterSize(Side::Below, 2)},
     {1, "Bend radius", "300", BendRadiusSize(300, 100)},
     {2, "Number of segments", "5", PieceCount},
     {3, "Length 1", "100", FirstLengthSize(100)},
     {4, "Length 2", "150", LinearSize(Side::Above, BendEndOf(5), BendEndOf(5, 150))}}};
constexpr std::array QuarterLines = BendLines(300, AtXZ(-300, 300));

// 400 from the centre at 60 degrees, and 120 further along the last piece.
constexpr SketchPoint ArcEnd = AtXZ(-200, 346.4101615137755);
constexpr std::array<BoxEntry, 6> BendBoxes = {
    {{5, "Base diameter", "200", DiameterSize(Side::Below, 2)},
     {6, "Bend radius", "400", BendRadiusSize(400, 100)},
     {7, "Bend angle (degrees)", "60", BendAngleSize(400, ArcEnd)},
     {8, "Length 1", "100", FirstLengthSize(100)},
     {9, "Length 2", "120", AlignedSize(Side::Above, BendEndOf(4), BendEndOf(4, 103.92304845413264, -60))},
     {10, "Number of segments", "4", PieceCount}}};
constexpr std::array BendToArcEnd = BendLines(400, ArcEnd);

constexpr std::array<LabelEntry, 6> QuarterLabels = {{{"Base diameter = ", 0},
                                                      {"Bend radius = ", 1},
                                                      {"Bend angle = ", NoBox, "90"},
                                                      {"Length 1 = ", 3},
                                                      {"Length 2 = ", 4},
                                                      {"Number of segments = ", 2}}};
constexpr std::array<LabelEntry, 6> BendLabels = {{{"Base diameter = ", 5},
                                                   {"Bend radius = ", 6},
                                                   {"Bend angle = ", 7},
                                                   {"Length 1 = ", 8},
                                                   {"Length 2 = ", 9},
                                                   {"Number of segments = ", 10}}};

constexpr std::array<PageEntry, 2> Pages = {
    {{QuarterBoxes, QuarterLabels, BendView, QuarterLines}, {BendBoxes, BendLabels, BendView, BendToArcEnd}}};

constexpr std::array<std::string_view, 2> PatternChoices = {"Full Pattern", "First, Last, one intermediate"};

}  // namespace

const WindowTable frmSegBendParallel = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CSegBendParallel>,
    .buildFitting = WithinReach<Pages, BuildByType<CSegBendParallel, BuildQuarterBend, BuildBend>>,
    .multiple = true,
    .templateTypeEnabled = true,
    .kerfEnabled = true,
    .patternSelect = PatternChoices,
};

}  // namespace korvet
