#include "fittings/branches/pipe_to_cone_form.h"

#include <cmath>

#include "core/checked.h"
#include "core/constants.h"
#include "fittings/mean_sizes.h"

namespace korvet::pipe_on_cone {
namespace {

double TypedRadius(const FittingForm& form, int diameterBox) {
    return form.Value(diameterBox) / 2;
}

/// The half angle of a cone with this apex height; a quarter turn where there is none.
double HalfAngle(double R, double A) {
    return A == 0 ? QuarterTurn : std::atan(R / A);
}

}  // namespace

double ApexHeightOf(double R, double r, double H) {
    return Quotient(H * R, R - r);
}

Sizes SizesOf(const FittingForm& form, const PartBoxes& boxes) {
    Sizes sizes = {.R = TypedRadius(form, boxes.baseDiameter),
                   .r = TypedRadius(form, boxes.topDiameter),
                   .p = TypedRadius(form, boxes.pipeDiameter),
                   .H = form.Value(boxes.height)};
    sizes.A = ApexHeightOf(sizes.R, sizes.r, sizes.H);
    sizes.theta = HalfAngle(sizes.R, sizes.A);
    if (form.miscellaneous == PipePattern) {
        sizes.p = MeanRadiusOfDiameter(form, boxes.pipeDiameter);
    } else {
        sizes.R = MeanConeRadius(form, boxes.baseDiameter, sizes.theta);
        sizes.r = MeanConeRadius(form, boxes.topDiameter, sizes.theta);
    }
    return sizes;
}

Outcome CheckWalls(FittingForm& form, const PartBoxes& boxes, const Sizes& sizes) {
    if (form.miscellaneous == PipePattern) {
        return CheckRoundWall(form, boxes.pipeDiameter, sizes.p);
    }
    return RefusedIf(CheckConeWall(form, boxes.baseDiameter, sizes.R, sizes.theta) ||
                     CheckConeWall(form, boxes.topDiameter, sizes.r, sizes.theta));
}

/// Across the axis the wall at the height C stands (A - C) R / A from it, and a pipe of radius p that touches
/// it p / cos(theta) nearer.
double TouchingOffset(const Sizes& sizes, double C) {
    return Quotient((sizes.A - C) * sizes.R, sizes.A) - sizes.p / std::cos(sizes.theta);
}

void SetParts(const Sizes& sizes, CPipeToCone& fitting) {
    fitting.BaseRad = sizes.R;
    fitting.ConeAngle = sizes.theta;
    fitting.CPHeight1 = sizes.H;
    fitting.PipeRad = sizes.p;
}

}  // namespace korvet::pipe_on_cone
