// Oval to Oval: two ovals, each a rectangle with half circles at its ends.
#include "fittings/mean_sizes.h"
#include "fittings/transitions/transition_sketch.h"

namespace korvet {
namespace {

/// The boxes of both ends of a page.
struct EndBoxes {
    transition::LengthBoxes base;
    transition::LengthBoxes top;
    int height;
};

/// The half circles at the ends are as wide as the oval itself.
transition::Section OvalOf(const FittingForm& form, transition::LengthBoxes lengths) {
    return transition::RectangleOf(form, lengths, MeanLength(form, lengths.y) / 2);
}

/// Room for the material in both widths, and both ovals longer than wide.
Outcome CheckOvals(FittingForm& form, transition::LengthBoxes base, transition::LengthBoxes top) {
    const double t = form.settings.Thickness;
    return RefusedIf(form.CheckRoomForThickness(base.y, MeanLength(form, base.y), t) ||
                     form.CheckRoomForThickness(top.y, MeanLength(form, top.y), t) ||
                     form.CheckAtLeast(base.x, form.Value(base.y)) ||
                     form.CheckAtLeast(top.x, form.Value(top.y)));
}

Outcome BuildEnds(FittingForm& form, const EndBoxes& boxes, CTransition& fitting) {
    const auto& [base, top, height] = boxes;
    if (form.CheckAllPositive(base.x, base.y, top.x, top.y) || form.CheckNotEqual(height, 0) ||
        CheckOvals(form, base, top)) {
        return Refused;
    }
    transition::SetSections(fitting, OvalOf(form, top), OvalOf(form, base), form.Value(height));
    return Passed;
}

namespace centred {

enum Box : int { BaseLengthX = 0, BaseLengthY = 1, TopLengthX = 2, TopLengthY = 3, Height = 10 };

Outcome Build(FittingForm& form, CTransition& fitting) {
    return BuildEnds(form, {{BaseLengthX, BaseLengthY}, {TopLengthX, TopLengthY}, Height}, fitting);
}

constexpr BoxEntry Boxes[] = {
    {TopLengthX, "Top length X", "200", DiameterSize(Side::Above, 1)},
    {TopLengthY, "Top length Y", "100", transition::LengthYSize(Side::Right, 100, 50, 250)},
    {BaseLengthX, "Base length X", "300", DiameterSize(Side::Below, 2)},
    {BaseLengthY, "Base length Y", "200", transition::LengthYSize(Side::Left, 200, -50, 0)},
    {Height, "Height", "250", transition::HeightSize(Side::Right)}};
constexpr LabelEntry Labels[] = {{TopLengthX}, {TopLengthY}, {BaseLengthX}, {BaseLengthY}, {Height}};

}  // namespace centred

namespace placed {

enum Box : int {
    BaseLengthX = 4,
    BaseLengthY = 5,
    TopLengthX = 6,
    TopLengthY = 7,
    OffsetX = 8,
    OffsetY = 9,
    Height = 11
};

/// Here alone the Y offset keeps its sign, and a half pattern stays selected with it.
Outcome Build(FittingForm& form, CTransition& fitting) {
    if (BuildEnds(form, {{BaseLengthX, BaseLengthY}, {TopLengthX, TopLengthY}, Height}, fitting)) {
        return Refused;
    }
    fitting.TopOffsetX = form.Value(OffsetX);
    fitting.TopOffsetY = form.Value(OffsetY);
    return Passed;
}

constexpr BoxEntry Boxes[] = {
    {TopLengthX, "Top length X", "200", DiameterSize(Side::Above, 1)},
    {TopLengthY, "Top length Y", "100",
     LinearSize(Side::Right, transition::TopAt(50, -50), transition::TopAt(50, 50), transition::Plan)},
    {BaseLengthX, "Base length X", "300", DiameterSize(Side::Below, 2)},
    {BaseLengthY, "Base length Y", "200", transition::LengthYSize(Side::Left, 200, -50, 0)},
    {OffsetX, "Offset X", "30", transition::OffsetXSize(Side::Above, 30)},
    {OffsetY, "Offset Y", "20", transition::OffsetYSize(Side::Right, 20)},
    {Height, "Height", "250", transition::HeightSize(Side::Right, 30, 20)}};
constexpr LabelEntry Labels[] = {{TopLengthX}, {TopLengthY}, {BaseLengthX}, {BaseLengthY},
                                 {OffsetX},    {OffsetY},    {Height}};

}  // namespace placed

constexpr auto Pages =
    transition::Pages({centred::Boxes, centred::Labels},
                      {placed::Boxes, placed::Labels, {}, transition::PlacedAxes<100, 50>}, false);

}  // namespace

const WindowTable frmOvalToOval = transition::Table<centred::Build, placed::Build>(Pages);

}  // namespace korvet
