// Pipe to Bend: a round pipe into the outside of a quarter bend.
#include <string>

#include "core/checked.h"
#include "core/math_module.h"
#include "fittings/bends/bend_sketch.h"
#include "fittings/branches/pipe_to_bend.h"
#include "fittings/makeable.h"
#include "fittings/mean_sizes.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

enum Box : int {
    PipeDiameter = 0,
    BendDiameter = 1,
    BendCenterLineRadius = 2,
    PipeCenterHeight = 3,
    PipeLength = 4
};

/// Throws ArithmeticError when the bend that is shown and the pipe would have more stations than a bend may.
void RequireCountable(int segs) {
    const double pipe = segs + 1.0;
    if (ShownBendPieces * (2.0 * segs + 1) + pipe > MostStations) {
        throw ArithmeticError("a bend with " + std::to_string(segs) +
                              " fold lines on each piece is too much: make them fewer");
    }
}

/// The bend is as wide as the pipe or wider, the pipe meets it between its start and its outside, and is long
/// enough to come out of it.
Outcome Build(FittingForm& form, CPipeToBend& fitting) {
    const double r = MeanRadiusOfDiameter(form, PipeDiameter);
    const double b = form.Value(BendDiameter) / 2;
    const double c = form.Value(BendCenterLineRadius);
    const double h = form.Value(PipeCenterHeight);
    if (CheckRoundWall(form, PipeDiameter, r) || form.CheckAtLeast(BendDiameter, r + r) ||
        form.CheckAtLeast(PipeCenterHeight, r) || form.CheckAtLeast(BendCenterLineRadius, b) ||
        form.CheckAtMost(PipeCenterHeight, (c + b) - r) ||
        form.CheckGreaterThan(PipeLength, OtherLeg(h - r, c + b))) {
        return Refused;
    }
    RequireCountable(form.settings.segs);
    fitting.BendRadius = b;
    fitting.BendCLRadius = c;
    fitting.PipeRadius = r;
    fitting.PipeCLHeight = h;
    fitting.PipeLength = form.Value(PipeLength);
    fitting.TemplateType = form.settings.TemplateType;
    fitting.Thickness = form.settings.Thickness;
    return Passed;
}

// The sketch: the bend turns to the left from the origin and the pipe comes from the right. Its surface
// stands behind those of the bend, and its free end is List1.
constexpr SketchPoint PipeEnd(Spot spot, double dx = 0) {
    return OfSurface(ShownBendPieces + 1, SpotOf(1, spot, dx));
}

constexpr SketchPoint PipeEndMiddle = PipeEnd(Spot::Centre);
constexpr SketchPoint AboveBendCentre = PipeEnd(Spot::Centre, -520);

constexpr BoxEntry Boxes[] = {
    {PipeDiameter, "Pipe diameter", "120", LinearSize(Side::Right, PipeEnd(Spot::MinZ), PipeEnd(Spot::MaxZ))},
    {BendDiameter, "Bend diameter", "200", DiameterSize(Side::Below, 2)},
    {BendCenterLineRadius, "Bend center line radius", "300", bend::BendRadiusSize(300, 0)},
    {PipeCenterHeight, "Pipe center height", "180",
     LinearSize(Side::Left, bend::Centre(300), AboveBendCentre)},
    {PipeLength, "Pipe length", "520", LinearSize(Side::Above, AboveBendCentre, PipeEndMiddle)}};
constexpr LabelEntry Labels[] = {
    {PipeDiameter}, {BendDiameter}, {BendCenterLineRadius}, {PipeCenterHeight}, {PipeLength}};
constexpr SketchConstruction Lines[] = {CentreLine(AboveBendCentre, PipeEndMiddle),
                                        CentreLine(bend::Centre(300), OnAxis(0)),
                                        CentreLine(bend::Centre(300), AboveBendCentre)};

constexpr PageEntry Pages[] = {{Boxes, Labels, bend::Views, Lines}};

}  // namespace

const WindowTable frmPipeToBend = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CPipeToBend>,
    .buildFitting = BuildAs<CPipeToBend, Build>,
    .multiple = true,
    .joinAngleDisable = true,
    .templateTypeEnabled = true,
};

}  // namespace korvet
