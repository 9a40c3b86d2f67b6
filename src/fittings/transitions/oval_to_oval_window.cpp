// Oval to Oval: two ovals, each a rectangle with half circles at its ends.
#include <array>

#include "fittings/mean_sizes.h"
#include "fittings/transitions/transition_window.h"

namespace korvet {
namespace {

/// The half circles at the ends are as wide as the oval itself.
TransitionSection OvalOf(const FittingForm& form, LengthBoxes lengths) {
    return RectangleOf(form, lengths, MeanLength(form, lengths.y) / 2);
}

/// Room for the material in both widths, and both ovals longer than wide.
Outcome CheckOvals(FittingForm& form, LengthBoxes base, LengthBoxes top) {
    const double t = form.settings.Thickness;
    return RefusedIf(form.CheckRoomForThickness(base.y, MeanLength(form, base.y), t) ||
                     form.CheckRoomForThickness(top.y, MeanLength(form, top.y), t) ||
                     form.CheckAtLeast(base.x, form.Value(base.y)) ||
                     form.CheckAtLeast(top.x, form.Value(top.y)));
}

/// The boxes of one page.
struct OvalBoxes {
    LengthBoxes base;
    LengthBoxes top;
    int height;
};

constexpr OvalBoxes Centred = {{0, 1}, {2, 3}, 10};
constexpr OvalBoxes Placed = {{4, 5}, {6, 7}, 11};

template <OvalBoxes Page>
Outcome BuildOvals(FittingForm& form, CTransition& transition) {
    const auto& [base, top, height] = Page;
    if (form.CheckAllPositive(base.x, base.y, top.x, top.y) || form.CheckNotEqual(height, 0) ||
        CheckOvals(form, base, top)) {
        return Refused;
    }
    SetSections(transition, OvalOf(form, top), OvalOf(form, base), form.Value(height));
    return Passed;
}

/// Here alone the Y offset keeps its sign, and a half pattern stays selected with it.
Outcome BuildPlaced(FittingForm& form, CTransition& transition) {
    if (BuildOvals<Placed>(form, transition)) {
        return Refused;
    }
    transition.TopOffsetX = form.Value(8);
    transition.TopOffsetY = form.Value(9);
    return Passed;
}

constexpr std::array<BoxEntry, 5> CentredBoxes = {
    {{2, "Top length X", "200", DiameterSize(Side::Above, 1)},
     {3, "Top length Y", "100", LengthYSize(Side::Right, 100, 50, 250)},
     {0, "Base length X", "300", DiameterSize(Side::Below, 2)},
     {1, "Base length Y", "200", LengthYSize(Side::Left, 200, -50, 0)},
     {10, "Height", "250", HeightSize(Side::Right)}}};
constexpr std::array<BoxEntry, 7> PlacedBoxes = {
    {{6, "Top length X", "200", DiameterSize(Side::Above, 1)},
     {7, "Top length Y", "100", LinearSize(Side::Right, TopAt(50, -50), TopAt(50, 50), Plan)},
     {4, "Base length X", "300", DiameterSize(Side::Below, 2)},
     {5, "Base length Y", "200", LengthYSize(Side::Left, 200, -50, 0)},
     {8, "Offset X", "30", OffsetXSize(Side::Above, 30)},
     {9, "Offset Y", "20", OffsetYSize(Side::Right, 20)},
     {11, "Height", "250", HeightSize(Side::Right, 30, 20)}}};

constexpr auto CentredLabels =
    Joined(LengthLabels(Centred.top, Centred.base), LabelEntry{"Height = ", Centred.height});
constexpr auto PlacedLabels = Joined(LengthLabels(Placed.top, Placed.base), OffsetLabels({8, 9}),
                                     LabelEntry{"Height = ", Placed.height});

constexpr auto Pages = TransitionPages({CentredBoxes, CentredLabels},
                                       {PlacedBoxes, PlacedLabels, {}, PlacedAxes<100, 50>}, false);

}  // namespace

const WindowTable frmOvalToOval = TransitionTable<BuildOvals<Centred>, BuildPlaced>(Pages);

}  // namespace korvet
