#include "fittings/bends/elbow_pipe_to_cone_form.h"

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/mean_sizes.h"

namespace korvet::pipe_cone_elbow {
namespace {

/// The mean radii of both parts.
struct Radii {
    double cone;
    double pipe;
};

Radii RadiiOf(const FittingForm& form, const ElbowBoxes& boxes, Wide wide) {
    const double wideRadius = MeanRadiusOfDiameter(form, boxes.wideDiameter);
    const double narrowRadius = MeanRadiusOfDiameter(form, boxes.narrowDiameter);
    return wide == Wide::Cone ? Radii{wideRadius, narrowRadius} : Radii{narrowRadius, wideRadius};
}

Outcome CheckRoom(FittingForm& form, int diameterBox) {
    return CheckRoundWall(form, diameterBox, MeanRadiusOfDiameter(form, diameterBox));
}

}  // namespace

Outcome CheckEndsAndAngle(FittingForm& form, const ElbowBoxes& boxes) {
    return RefusedIf(CheckRoom(form, boxes.wideDiameter) || CheckRoom(form, boxes.narrowDiameter) ||
                     form.CheckLessThan(boxes.narrowDiameter, form.Value(boxes.wideDiameter)) ||
                     (boxes.angle != NoBox &&
                      (form.CheckAtLeast(boxes.angle, 90) || form.CheckLessThan(boxes.angle, 180))));
}

Outcome CheckLengths(FittingForm& form, const ElbowBoxes& boxes, Wide wide) {
    const Radii radii = RadiiOf(form, boxes, wide);
    return RefusedIf(form.CheckAtLeast(boxes.length1, radii.pipe) ||
                     form.CheckAtLeast(boxes.length2, radii.cone));
}

void SetElbow(const FittingForm& form, const ElbowBoxes& boxes, Wide wide, CElbowPipeToCone& elbow) {
    const Radii radii = RadiiOf(form, boxes, wide);
    elbow.Category = wide == Wide::Cone ? ConeToPipeElbow : PipeToConeElbow;
    elbow.ConeRad = radii.cone;
    elbow.PipeRad = radii.pipe;
    elbow.PipeAngle = boxes.angle == NoBox ? QuarterTurn : DegToRad(form.Value(boxes.angle));
    elbow.Length1 = form.Value(boxes.length1);
    elbow.Length2 = form.Value(boxes.length2);
}

}  // namespace korvet::pipe_cone_elbow
