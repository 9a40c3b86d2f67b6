// Cyclone (Cone): a round pipe that runs level into a cone standing on its narrow end, against the inside of
// its wall.
#include "fittings/branches/beside_axis.h"
#include "fittings/branches/pipe_to_cone_form.h"
#include "fittings/branches/pipe_to_cone_sketch.h"

namespace korvet {
namespace {

using pipe_on_cone::EndOfPipe;
using pipe_on_cone::Plan;
using pipe_on_cone::Sizes;

// The cone is built upright and turned over: its base is what stands at the top here.
enum Box : int {
    TopDiameter = 0,
    BaseDiameter = 1,
    PipeDiameter = 2,
    CuttingPlaneHeight = 3,
    PipeLength = 4,
    Distance = 5
};
constexpr pipe_on_cone::PartBoxes Parts = {TopDiameter, BaseDiameter, PipeDiameter, CuttingPlaneHeight};

/// The pipe enters between the ends of the cone and reaches out of it.
Outcome CheckPipe(FittingForm& form, const Sizes& sizes) {
    return RefusedIf(form.CheckAtLeast(Distance, sizes.p) ||
                     form.CheckAtLeast(CuttingPlaneHeight, form.Value(Distance) + sizes.p) ||
                     form.CheckAtLeast(PipeLength, sizes.R));
}

/// The pipe touches the wall. With a thickness the height of the apex is still that of the typed cone: the
/// pipe then stands a little off it.
Outcome Build(FittingForm& form, CPipeToCone& fitting) {
    if (form.CheckAllPositive(TopDiameter, BaseDiameter, PipeDiameter) ||
        form.CheckLessThan(BaseDiameter, form.Value(TopDiameter))) {
        return Refused;
    }
    const Sizes sizes = SizesOf(form, Parts);
    if (CheckWalls(form, Parts, sizes) || CheckPipe(form, sizes)) {
        return Refused;
    }
    SetParts(sizes, fitting);
    fitting.PipeLength = -form.Value(PipeLength);  // turned over, it runs towards +x
    fitting.PipeAngle = 0;
    fitting.CenterDistance = form.Value(Distance);
    fitting.Offset = TouchingOffset(sizes, fitting.CenterDistance);
    fitting.Invert = true;
    RefuseHalfBesideAxis(form, fitting.Offset);
    return Passed;
}

constexpr SketchPoint PipeStart = EndOfPipe(Spot::Centre, -480);
constexpr BoxEntry Boxes[] = {
    {TopDiameter, "Top diameter", "640", DiameterSize(Side::Above, 2)},
    {BaseDiameter, "Base diameter", "240", DiameterSize(Side::Below, 1)},
    {PipeDiameter, "Branch pipe diameter", "160",
     LinearSize(Side::Right, EndOfPipe(Spot::MinZ), EndOfPipe(Spot::MaxZ))},
    {CuttingPlaneHeight, "Cutting plane height", "700", pipe_on_cone::ConeHeightSize},
    {PipeLength, "Branch pipe length", "480",
     LinearSize(Side::Above, PipeStart, EndOfPipe(Spot::Centre), Plan)},
    {Distance, "Distance to intersection", "150", LinearSize(Side::Left, OnAxis(-150), MiddleOf(2))}};
constexpr LabelEntry Labels[] = {{TopDiameter}, {BaseDiameter}, {PipeDiameter},
                                 {PipeLength},  {Distance},     {CuttingPlaneHeight}};
constexpr SketchConstruction Lines[] = {pipe_on_cone::ConeAxis, CentreLine(OnAxis(-150), AtXZ(480, -150)),
                                        CentreLine(PipeStart, EndOfPipe(Spot::Centre), Plan),
                                        CentreLine(AtXZ(-320, 0), AtXZ(320, 0), Plan)};

constexpr PageEntry Pages[] = {{Boxes, Labels, pipe_on_cone::Views, Lines}};

}  // namespace

const WindowTable frmCyclone2 = pipe_on_cone::Table(Pages, BuildAs<CPipeToCone, Build>);

}  // namespace korvet
