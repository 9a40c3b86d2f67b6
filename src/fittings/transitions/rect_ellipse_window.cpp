// Rectangle to Ellipse: a rectangle with round corners below an ellipse.
#include <array>

#include "fittings/mean_sizes.h"
#include "fittings/transitions/transition_window.h"

namespace korvet {
namespace {

constexpr TiltBoxes Tilts = {14, 15};

Outcome BuildCentred(FittingForm& form, CTransition& transition) {
    if (form.CheckAllPositive(0, 12, 1, 2, 3) ||
        form.CheckBoxRoomForThickness(10, form.settings.Thickness / 2) || CheckRadiusFits(form, 10, {1, 2})) {
        return Refused;
    }
    SetSections(transition, EllipseOf(form, {0, 12}), RectangleOf(form, {1, 2}, MeanRadius(form, 10)),
                form.Value(3));
    return Passed;
}

/// The radius is held against the thickness twice; the first one always speaks.
Outcome BuildPlaced(FittingForm& form, CTransition& transition) {
    const double halfThickness = form.settings.Thickness / 2;
    if (form.CheckAllPositive(4, 13, 5, 6, 9) || form.CheckBoxRoomForThickness(11, halfThickness) ||
        CheckTilts(form, Tilts) || form.CheckBoxRoomForThickness(11, halfThickness) ||
        CheckRadiusFits(form, 11, {5, 6})) {
        return Refused;
    }
    SetSections(transition, EllipseOf(form, {4, 13}), RectangleOf(form, {5, 6}, MeanRadius(form, 11)),
                form.Value(9));
    PlaceTop(form, transition, {7, 8}, Tilts);
    return Passed;
}

constexpr SketchDimension LengthY =
    LinearSize(Side::Right, SpotOf(1, Spot::MinY), SpotOf(1, Spot::MaxY), Plan);
constexpr std::array<LabelEntry, 2> EllipseLabels(LengthBoxes boxes) {
    return {{{"Ellipse length X = ", boxes.x}, {"Ellipse length Y = ", boxes.y}}};
}

constexpr auto CentredBoxes =
    Joined(BoxEntry{0, "Ellipse length X", "180", DiameterSize(Side::Above, 1)},
           BoxEntry{12, "Ellipse length Y", "100", LengthY}, CentredRectangle, CentredCorner);
constexpr auto PlacedBoxes = Joined(
    BoxEntry{4, "Ellipse length X", "200", TiltedTopSize}, BoxEntry{13, "Ellipse length Y", "110", LengthY},
    PlacedRectangle(50, "40", 40), PlacedCorner, TiltEntries(Tilts, "10", 50));
constexpr auto CentredLabels = Joined(EllipseLabels({0, 12}), CentredRectangleLabels, CentredCornerLabel);
constexpr auto PlacedLabels = Joined(EllipseLabels({4, 13}), PlacedRectangleLabels, PlacedCornerLabel);

constexpr auto Pages = TransitionPages({CentredBoxes, CentredLabels},
                                       {PlacedBoxes, PlacedLabels, {}, PlacedAxes<100, 55>}, true);

}  // namespace

const WindowTable frmRectEllipse = TransitionTable<BuildCentred, BuildPlaced>(Pages);

}  // namespace korvet
