// Rectangle (Radius) to Round: a rectangle with round corners below a circle.
#include <array>

#include "fittings/mean_sizes.h"
#include "fittings/transitions/transition_window.h"

namespace korvet {
namespace {

constexpr TiltBoxes Tilts = {12, 13};

Outcome BuildCentred(FittingForm& form, CTransition& transition) {
    const double t = form.settings.Thickness;
    if (form.CheckAllPositive(0, 1, 2) || form.CheckBoxRoomForThickness(10, t / 2) ||
        CheckRadiusFits(form, 10, {1, 2}) || form.CheckBoxRoomForThickness(1, t) ||
        form.CheckBoxRoomForThickness(2, t) || form.CheckNotEqual(3, 0)) {
        return Refused;
    }
    SetSections(transition, EllipseOf(form, {0, 0}), RectangleOf(form, {1, 2}, MeanRadius(form, 10)),
                form.Value(3));
    return Passed;
}

Outcome BuildPlaced(FittingForm& form, CTransition& transition) {
    if (form.CheckAllPositive(4, 5, 6) || CheckTilts(form, Tilts) || form.CheckNotEqual(9, 0) ||
        form.CheckBoxRoomForThickness(11, form.settings.Thickness / 2) || CheckRadiusFits(form, 11, {5, 6})) {
        return Refused;
    }
    SetSections(transition, EllipseOf(form, {4, 4}), RectangleOf(form, {5, 6}, MeanRadius(form, 11)),
                form.Value(9));
    PlaceTop(form, transition, {7, 8}, Tilts);
    return Passed;
}

constexpr auto CentredBoxes = Joined(CentredDiameter, CentredRectangle, CentredCorner);
constexpr auto PlacedBoxes =
    Joined(PlacedDiameter, PlacedRectangle(50, "50", 50), PlacedCorner, TiltEntries(Tilts, "20", 50));
constexpr auto CentredLabels =
    Joined(LabelEntry{"Diameter = ", 0}, CentredRectangleLabels, CentredCornerLabel);
constexpr auto PlacedLabels = Joined(LabelEntry{"Diameter = ", 4}, PlacedRectangleLabels, PlacedCornerLabel);

constexpr auto Pages =
    TransitionPages({CentredBoxes, CentredLabels}, {PlacedBoxes, PlacedLabels, {}, PlacedAxes<60, 60>}, true);

}  // namespace

const WindowTable frmRectRound2 = TransitionTable<BuildCentred, BuildPlaced>(Pages);

}  // namespace korvet
