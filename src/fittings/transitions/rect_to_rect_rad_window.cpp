// Rectangle to Rectangle (folded): two rectangles with round corners, for folding.
#include <algorithm>

#include "fittings/mean_sizes.h"
#include "fittings/transitions/transition_sketch.h"

namespace korvet {
namespace {

/// The boxes of one rectangle.
struct RectangleBoxes {
    transition::LengthBoxes lengths;
    int radius;
};

/// The boxes of both ends of a page.
struct EndBoxes {
    RectangleBoxes top;
    RectangleBoxes base;
    int height;
    std::array<int, 4> byThickness;  ///< the lengths in the order in which they are held against it
};

/// Room for the material in lengths as typed, in the order given.
Outcome CheckLengths(FittingForm& form, const std::array<int, 4>& boxes) {
    return RefusedIf(std::any_of(boxes.begin(), boxes.end(), [&](int box) {
        return form.CheckBoxRoomForThickness(box, form.settings.Thickness);
    }));
}

/// The radius of a rectangle: half of the thickness at least, and half of each mean length at most.
Outcome CheckCorner(FittingForm& form, const RectangleBoxes& boxes) {
    return RefusedIf(form.CheckAtLeast(boxes.radius, form.settings.Thickness / 2) ||
                     transition::CheckRadiusFits(form, boxes.radius, MeanLength(form, boxes.lengths.x),
                                                 MeanLength(form, boxes.lengths.y)));
}

transition::Section SectionOf(const FittingForm& form, const RectangleBoxes& boxes) {
    return transition::RoundedRectangleOf(form, boxes.lengths, boxes.radius);
}

Outcome BuildEnds(FittingForm& form, const EndBoxes& boxes, CTransition& fitting) {
    const transition::LengthBoxes& top = boxes.top.lengths;
    const transition::LengthBoxes& base = boxes.base.lengths;
    if (form.CheckAllPositive(top.x, top.y, base.x, base.y) || form.CheckNotEqual(boxes.height, 0) ||
        CheckLengths(form, boxes.byThickness) || CheckCorner(form, boxes.base) ||
        CheckCorner(form, boxes.top)) {
        return Refused;
    }
    transition::SetSections(fitting, SectionOf(form, boxes.top), SectionOf(form, boxes.base),
                            form.Value(boxes.height));
    return Passed;
}

namespace centred {

enum Box : int {
    TopLengthX = 0,
    TopLengthY = 1,
    BaseLengthY = 2,
    Height = 3,
    BaseLengthX = 4,
    BaseRadius = 10,
    TopRadius = 13
};

Outcome Build(FittingForm& form, CTransition& fitting) {
    return BuildEnds(form,
                     {{{TopLengthX, TopLengthY}, TopRadius},
                      {{BaseLengthX, BaseLengthY}, BaseRadius},
                      Height,
                      {TopLengthX, TopLengthY, BaseLengthX, BaseLengthY}},
                     fitting);
}

constexpr BoxEntry Boxes[] = {
    {TopLengthX, "Top length X", "180", transition::LengthXSize(Side::Above, 180, 60, 250)},
    {TopLengthY, "Top length Y", "120", transition::LengthYSize(Side::Right, 120, 90, 250)},
    {BaseLengthX, "Base length X", "300", transition::LengthXSize(Side::Below, 300, -100, 0)},
    {BaseLengthY, "Base length Y", "200", transition::LengthYSize(Side::Left, 200, -150, 0), "00"},
    {Height, "Height", "250", transition::HeightSize(Side::Right)},
    {TopRadius, "Top radius", "30", transition::CornerSize(Side::Above, -60, 30, 30, 250)},
    {BaseRadius, "Base radius", "50", transition::CornerSize(Side::Right, 100, 50, 50)}};
constexpr auto Labels =
    Joined(LabelEntry{TopLengthX}, LabelEntry{TopLengthY}, LabelEntry{BaseLengthX}, LabelEntry{BaseLengthY},
           transition::NoOffsetLabels, LabelEntry{Height}, LabelEntry{TopRadius, "Top Radius = "},
           LabelEntry{BaseRadius, "Base Radius = "});

}  // namespace centred

namespace placed {

enum Box : int {
    TopLengthY = 5,
    TopLengthX = 6,
    BaseLengthX = 7,
    BaseLengthY = 8,
    Height = 9,
    BaseRadius = 11,
    OffsetX = 12,
    OffsetY = 14,
    TopRadius = 15
};

Outcome Build(FittingForm& form, CTransition& fitting) {
    if (BuildEnds(form,
                  {{{TopLengthX, TopLengthY}, TopRadius},
                   {{BaseLengthX, BaseLengthY}, BaseRadius},
                   Height,
                   {TopLengthY, TopLengthX, BaseLengthX, BaseLengthY}},
                  fitting)) {
        return Refused;
    }
    transition::SetOffsets(form, fitting, {OffsetX, OffsetY});
    transition::RefuseSkewHalf(form, fitting);
    return Passed;
}

constexpr BoxEntry Boxes[] = {
    {TopLengthX, "Top length X", "180",
     LinearSize(Side::Above, transition::TopAt(-90, 60), transition::TopAt(90, 60), transition::Elevation)},
    {TopLengthY, "Top length Y", "120",
     LinearSize(Side::Right, transition::TopAt(90, -60), transition::TopAt(90, 60), transition::Plan)},
    {BaseLengthX, "Base length X", "300", transition::LengthXSize(Side::Below, 300, -100, 0)},
    {BaseLengthY, "Base length Y", "200", transition::LengthYSize(Side::Left, 200, -150, 0)},
    {OffsetX, "Offset X", "40", transition::OffsetXSize(Side::Above, 40)},
    {OffsetY, "Offset Y", "20", transition::OffsetYSize(Side::Right, -20)},
    {Height, "Height", "250", transition::HeightSize(Side::Right, 40, -20)},
    {TopRadius, "Top radius", "30",
     RadiusSize(Side::Above, transition::PointAt(-38, 34, 250), transition::PointAt(-20, 10, 250),
                transition::Plan)},
    {BaseRadius, "Base radius", "50", transition::CornerSize(Side::Right, 100, 50, 50)}};
constexpr LabelEntry Labels[] = {{TopLengthX}, {TopLengthY}, {BaseLengthX}, {BaseLengthY}, {OffsetX},
                                 {OffsetY},    {Height},     {TopRadius},   {BaseRadius}};

}  // namespace placed

constexpr auto Pages =
    transition::Pages({centred::Boxes, centred::Labels},
                      {placed::Boxes, placed::Labels, {}, transition::PlacedAxes<90, 60>}, false);

}  // namespace

const WindowTable frmRectToRectRad = transition::Table<centred::Build, placed::Build>(Pages);

}  // namespace korvet
