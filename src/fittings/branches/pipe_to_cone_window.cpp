// Pipe to Cone: a round pipe into a cone from the side, from above or at an angle, with the pattern of
// either.
#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/branches/beside_axis.h"
#include "fittings/branches/pipe_to_cone_form.h"
#include "fittings/branches/pipe_to_cone_sketch.h"

namespace korvet {
namespace {

using pipe_on_cone::EndOfPipe;
using pipe_on_cone::Plan;
using pipe_on_cone::Sizes;

/// The boxes of one page.
struct PageBoxes {
    pipe_on_cone::PartBoxes parts;
    int pipeLength;
    int center;
    int offset;
};

/// What the angle means that a pipe from the side and one from above have no use for.
constexpr double LevelPipe = 0;
constexpr double UprightPipe = 90;

Outcome CheckDiameters(FittingForm& form, const PageBoxes& boxes) {
    return form.CheckAllPositive(boxes.parts.baseDiameter, boxes.parts.topDiameter, boxes.parts.pipeDiameter);
}

/// The cone narrows upward.
Outcome CheckTop(FittingForm& form, const PageBoxes& boxes) {
    return form.CheckLessThan(boxes.parts.topDiameter, form.Value(boxes.parts.baseDiameter));
}

/// The sizes of a page whose cone narrows, A that of the mean walls.
Sizes MeanSizes(const FittingForm& form, const PageBoxes& boxes) {
    Sizes sizes = SizesOf(form, boxes.parts);
    sizes.A = pipe_on_cone::ApexHeightOf(sizes.R, sizes.r, sizes.H);
    return sizes;
}

Outcome CheckOffset(FittingForm& form, const PageBoxes& boxes, double L) {
    return RefusedIf(form.CheckLessThan(boxes.offset, L) || form.CheckGreaterThan(boxes.offset, -L));
}

/// A pipe that starts in the plane of the cone's axis, C up: it is narrower than the ball that just fits into
/// the cone there, and starts between its walls.
Outcome CheckStart(FittingForm& form, const PageBoxes& boxes, const Sizes& sizes) {
    const double C = form.Value(boxes.center);
    const double W = 2 * std::sin(sizes.theta) * (sizes.A - C) * 0.99;
    return RefusedIf(form.CheckLessThan(boxes.parts.pipeDiameter, W) ||
                     CheckOffset(form, boxes, TouchingOffset(sizes, C)));
}

void SetFitting(FittingForm& form, const PageBoxes& boxes, const Sizes& sizes, double pipeAngle,
                CPipeToCone& fitting) {
    SetParts(sizes, fitting);
    fitting.PipeLength = form.Value(boxes.pipeLength);
    fitting.CenterDistance = form.Value(boxes.center);
    fitting.Offset = -form.Value(boxes.offset);
    fitting.PipeAngle = pipeAngle;
    fitting.Invert = false;
    RefuseHalfBesideAxis(form, fitting.Offset);
}

namespace from_side {

enum Box : int {
    BaseDiameter = 0,
    TopDiameter = 1,
    PipeDiameter = 2,
    CuttingPlaneHeight = 3,
    PipeLength = 4,
    CenterDistance = 5,
    Offset = 19
};
constexpr PageBoxes All = {
    {BaseDiameter, TopDiameter, PipeDiameter, CuttingPlaneHeight}, PipeLength, CenterDistance, Offset};

/// The pipe lies between the ends of the cone.
Outcome Build(FittingForm& form, CPipeToCone& fitting) {
    if (CheckDiameters(form, All) || CheckTop(form, All)) {
        return Refused;
    }
    const Sizes sizes = MeanSizes(form, All);
    if (CheckWalls(form, All.parts, sizes) || form.CheckGreaterThan(CenterDistance, sizes.p) ||
        form.CheckLessThan(CenterDistance, sizes.H - sizes.p) || CheckStart(form, All, sizes)) {
        return Refused;
    }
    SetFitting(form, All, sizes, LevelPipe, fitting);
    return Passed;
}

constexpr SketchPoint Start = EndOfPipe(Spot::Centre, -400);
constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "500", DiameterSize(Side::Below, 2)},
    {TopDiameter, "Top diameter", "200", DiameterSize(Side::Above, 1)},
    {PipeDiameter, "Pipe diameter", "150",
     LinearSize(Side::Right, EndOfPipe(Spot::MinZ), EndOfPipe(Spot::MaxZ))},
    {CuttingPlaneHeight, "Cutting plane height", "450", pipe_on_cone::ConeHeightSize},
    {PipeLength, "Pipe length", "400", LinearSize(Side::Below, Start, EndOfPipe(Spot::Centre))},
    {CenterDistance, "Center distance", "180", LinearSize(Side::Left, MiddleOf(2), OnAxis(180))},
    {Offset, "Offset", "40", pipe_on_cone::OffsetSize(40)}};
constexpr LabelEntry Labels[] = {
    {BaseDiameter}, {TopDiameter},    {PipeDiameter}, {CuttingPlaneHeight},
    {PipeLength},   {CenterDistance}, {Offset},       {NoBox, "Pipe angle = ", "0"}};
constexpr SketchConstruction Lines[] = {pipe_on_cone::ConeAxis, CentreLine(Start, EndOfPipe(Spot::Centre)),
                                        CentreLine(Start, EndOfPipe(Spot::Centre), Plan),
                                        CentreLine(AtXZ(-250, 180), AtXZ(400, 180), Plan)};

}  // namespace from_side

namespace from_top {

enum Box : int {
    BaseDiameter = 6,
    TopDiameter = 7,
    PipeDiameter = 8,
    CuttingPlaneHeight = 9,
    PipeLength = 10,
    CenterDistance = 11,
    Offset = 20
};
constexpr PageBoxes All = {
    {BaseDiameter, TopDiameter, PipeDiameter, CuttingPlaneHeight}, PipeLength, CenterDistance, Offset};

/// The pipe stands beside the top of the cone, and within its base.
Outcome Build(FittingForm& form, CPipeToCone& fitting) {
    if (CheckDiameters(form, All) || CheckTop(form, All)) {
        return Refused;
    }
    const Sizes sizes = MeanSizes(form, All);
    const double outermost = sizes.R - sizes.p;
    if (CheckWalls(form, All.parts, sizes) || form.CheckGreaterThan(CenterDistance, sizes.r + sizes.p) ||
        form.CheckLessThan(CenterDistance, outermost) ||
        CheckOffset(form, All, OtherLeg(form.Value(CenterDistance), outermost))) {
        return Refused;
    }
    SetFitting(form, All, sizes, UprightPipe, fitting);
    return Passed;
}

constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "620", DiameterSize(Side::Below, 2)},
    {TopDiameter, "Top diameter", "190", pipe_on_cone::TopSize},
    {PipeDiameter, "Pipe diameter", "120",
     LinearSize(Side::Above, EndOfPipe(Spot::MinX), EndOfPipe(Spot::MaxX))},
    {CuttingPlaneHeight, "Cutting plane height", "380", pipe_on_cone::ConeHeightSize},
    {PipeLength, "Pipe length", "460",
     LinearSize(Side::Right, EndOfPipe(Spot::Centre, 0, 0, -460), EndOfPipe(Spot::Centre))},
    {CenterDistance, "Center distance", "175",
     LinearSize(Side::Above, OnAxis(460), EndOfPipe(Spot::Centre, 0, 45), Plan)},
    {Offset, "Offset", "45", pipe_on_cone::OffsetSize(45)}};
constexpr LabelEntry Labels[] = {
    {BaseDiameter}, {TopDiameter},    {PipeDiameter}, {CuttingPlaneHeight},
    {PipeLength},   {CenterDistance}, {Offset},       {NoBox, "Pipe angle = ", "90"}};
constexpr SketchConstruction Lines[] = {
    pipe_on_cone::ConeAxis, CentreLine(EndOfPipe(Spot::Centre, 0, 0, -460), EndOfPipe(Spot::Centre)),
    CentreLine(AtXZ(-310, 460), AtXZ(310, 460), Plan)};

}  // namespace from_top

namespace at_angle {

enum Box : int {
    BaseDiameter = 12,
    TopDiameter = 13,
    PipeDiameter = 14,
    CuttingPlaneHeight = 15,
    PipeLength = 16,
    CenterDistance = 17,
    PipeAngle = 18,
    Offset = 21
};
constexpr PageBoxes All = {
    {BaseDiameter, TopDiameter, PipeDiameter, CuttingPlaneHeight}, PipeLength, CenterDistance, Offset};

/// The lowest start of the axis whose pipe still meets the wall above the base.
double LowestCenter(const Sizes& sizes, double b) {
    const double E = sizes.p / std::cos(b - sizes.theta);
    return -(std::tan(b) * (sizes.R - std::sin(sizes.theta) * E) - std::cos(sizes.theta) * E);
}

/// How high the hole reaches follows from all sizes together: the fitting itself looks at it.
Outcome Build(FittingForm& form, CPipeToCone& fitting) {
    if (CheckDiameters(form, All) || form.CheckAllPositive(CuttingPlaneHeight, PipeLength) ||
        CheckTop(form, All)) {
        return Refused;
    }
    const Sizes sizes = MeanSizes(form, All);
    const double b = DegToRad(form.Value(PipeAngle));
    if (CheckWalls(form, All.parts, sizes) || form.CheckGreaterThan(CenterDistance, LowestCenter(sizes, b)) ||
        CheckStart(form, All, sizes)) {
        return Refused;
    }
    SetFitting(form, All, sizes, b - QuarterTurn, fitting);
    return Passed;
}

constexpr double SampleAngle = 35;
constexpr SketchPoint Start = PolarXZ(EndOfPipe(Spot::Centre), 180 + SampleAngle, 520);
constexpr BoxEntry Boxes[] = {
    {BaseDiameter, "Base diameter", "560", DiameterSize(Side::Below, 2)},
    {TopDiameter, "Top diameter", "220", pipe_on_cone::TopSize},
    {PipeDiameter, "Pipe diameter", "130",
     LinearSize(Side::Right, EndOfPipe(Spot::MinY), EndOfPipe(Spot::MaxY), Plan)},
    {CuttingPlaneHeight, "Cutting plane height", "420", pipe_on_cone::ConeHeightSize},
    {PipeLength, "Pipe length", "520",
     AlignedSize(Side::Above, PolarXZ(EndOfPipe(Spot::MaxZ), 180 + SampleAngle, 520), EndOfPipe(Spot::MaxZ))},
    {CenterDistance, "Center distance", "110", LinearSize(Side::Left, MiddleOf(2), OnAxis(110))},
    {PipeAngle, "Pipe angle (degrees)", "35",
     AngleSize(Side::Right, AtXZ(0, 110), AtXZ(520, 110), EndOfPipe(Spot::Centre, 0, 60), 0.9)},
    {Offset, "Offset", "60", pipe_on_cone::OffsetSize(60)}};
constexpr LabelEntry Labels[] = {{BaseDiameter}, {TopDiameter},    {PipeDiameter}, {CuttingPlaneHeight},
                                 {PipeLength},   {CenterDistance}, {Offset},       {PipeAngle}};
constexpr SketchConstruction Lines[] = {pipe_on_cone::ConeAxis, CentreLine(Start, EndOfPipe(Spot::Centre)),
                                        CentreLine(Start, EndOfPipe(Spot::Centre), Plan),
                                        CentreLine(AtXZ(-280, 110), AtXZ(430, 110), Plan)};

}  // namespace at_angle

constexpr PageEntry Pages[] = {{from_side::Boxes, from_side::Labels, pipe_on_cone::Views, from_side::Lines},
                               {from_top::Boxes, from_top::Labels, pipe_on_cone::Views, from_top::Lines},
                               {at_angle::Boxes, at_angle::Labels, pipe_on_cone::Views, at_angle::Lines}};

}  // namespace

const WindowTable frmPipeToCone =
    pipe_on_cone::Table(Pages, BuildByType<CPipeToCone, from_side::Build, from_top::Build, at_angle::Build>);

}  // namespace korvet
