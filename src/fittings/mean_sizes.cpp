#include "fittings/mean_sizes.h"

#include <cmath>

namespace korvet {

double MeanRadiusOfDiameter(const FittingForm& form, int diameterBox) {
    return MeanRadiusOfDiameter(form, diameterBox, form.settings.Thickness);
}

double MeanRadiusOfDiameter(const FittingForm& form, int diameterBox, double thickness) {
    return form.Compensator(RoundWall, thickness).NewDistance(form.Value(diameterBox) / 2, 0, 0);
}

double MeanRadius(const FittingForm& form, int radiusBox) {
    return form.Compensator(RoundWall).NewDistance(form.Value(radiusBox), 0, 0);
}

double MeanLength(const FittingForm& form, int lengthBox) {
    return form.Compensator(TwoWalls).NewDistance(form.Value(lengthBox), 0, 0);
}

double MeanConeRadius(const FittingForm& form, int diameterBox, double coneAngle) {
    return form.Compensator(SlopingRoundWall).NewDistance(form.Value(diameterBox) / 2, coneAngle, 0);
}

Outcome CheckRoundWall(FittingForm& form, int diameterBox, double R) {
    return form.CheckRoomForThickness(diameterBox, R, form.settings.Thickness / 2);
}

Outcome CheckConeWall(FittingForm& form, int diameterBox, double R, double coneAngle) {
    return form.CheckRoomForThickness(diameterBox, R, std::cos(coneAngle) * form.settings.Thickness / 2);
}

}  // namespace korvet
