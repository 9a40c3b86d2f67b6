// Rectangle to Round: a sharp rectangle below a circle.
#include <array>

#include "fittings/transitions/transition_window.h"

namespace korvet {
namespace {

constexpr TiltBoxes Tilts = {10, 11};

/// The base as its corners are bent: each length of the mean line loses one thickness more.
TransitionSection BaseOf(const FittingForm& form, LengthBoxes lengths) {
    TransitionSection base = RectangleOf(form, lengths, 0);
    base.lengthX -= form.settings.Thickness;
    base.lengthY -= form.settings.Thickness;
    return base;
}

Outcome BuildCentred(FittingForm& form, CTransition& transition) {
    const double t = form.settings.Thickness;
    if (form.CheckAllPositive(0, 1, 2) || form.CheckBoxRoomForThickness(1, t) ||
        form.CheckBoxRoomForThickness(2, t) || form.CheckNotEqual(3, 0)) {
        return Refused;
    }
    SetSections(transition, EllipseOf(form, {0, 0}), BaseOf(form, {1, 2}), form.Value(3));
    return Passed;
}

/// The sizes are asked for twice, the second time with another message; the first one always speaks.
Outcome BuildPlaced(FittingForm& form, CTransition& transition) {
    if (form.CheckAllPositive(4, 5, 6) || form.CheckNotEqual(9, 0) || CheckTilts(form, Tilts) ||
        form.CheckGreaterThan(4, 0) || form.CheckGreaterThan(5, 0) || form.CheckGreaterThan(6, 0) ||
        form.CheckNotEqual(9, 0)) {
        return Refused;
    }
    SetSections(transition, EllipseOf(form, {4, 4}), BaseOf(form, {5, 6}), form.Value(9));
    PlaceTop(form, transition, {7, 8}, Tilts);
    return Passed;
}

constexpr auto CentredBoxes = Joined(CentredDiameter, CentredRectangle);
constexpr auto PlacedBoxes =
    Joined(PlacedDiameter, PlacedRectangle(100, "50", 50), TiltEntries(Tilts, "20", 100));
constexpr auto CentredLabels = Joined(LabelEntry{"Diameter = ", 0}, CentredRectangleLabels);
constexpr auto PlacedLabels = Joined(LabelEntry{"Diameter = ", 4}, PlacedRectangleLabels);

constexpr auto Pages =
    TransitionPages({CentredBoxes, CentredLabels}, {PlacedBoxes, PlacedLabels, {}, PlacedAxes<60, 60>}, true);

}  // namespace

const WindowTable frmRectRound1 = TransitionTable<BuildCentred, BuildPlaced>(Pages);

}  // namespace korvet
