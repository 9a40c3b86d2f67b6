// Rectangle to Rectangle (folded): two rectangles with round corners, for folding.
#include <algorithm>
#include <array>

#include "fittings/mean_sizes.h"
#include "fittings/transitions/transition_window.h"

namespace korvet {
namespace {

/// The boxes of one rectangle.
struct FoldedBoxes {
    LengthBoxes lengths;
    int radius;
};

/// Room for the material in lengths as typed, in the order given.
Outcome CheckLengths(FittingForm& form, const std::array<int, 4>& boxes) {
    return RefusedIf(std::any_of(boxes.begin(), boxes.end(), [&](int box) {
        return form.CheckBoxRoomForThickness(box, form.settings.Thickness);
    }));
}

/// The radius of a rectangle: half of the thickness at least, and half of each mean length at most.
Outcome CheckCorner(FittingForm& form, const FoldedBoxes& boxes) {
    return RefusedIf(form.CheckAtLeast(boxes.radius, form.settings.Thickness / 2) ||
                     CheckRadiusFits(form, boxes.radius, MeanLength(form, boxes.lengths.x),
                                     MeanLength(form, boxes.lengths.y)));
}

TransitionSection SectionOf(const FittingForm& form, const FoldedBoxes& boxes) {
    return RectangleOf(form, boxes.lengths, MeanRadius(form, boxes.radius));
}

/// The boxes of one page.
struct FoldedPage {
    FoldedBoxes top;
    FoldedBoxes base;
    int height;
    std::array<int, 4> byThickness;  ///< the lengths in the order in which they are held against it
};

constexpr FoldedPage Centred = {{{0, 1}, 13}, {{4, 2}, 10}, 3, {0, 1, 4, 2}};
constexpr FoldedPage Placed = {{{6, 5}, 15}, {{7, 8}, 11}, 9, {5, 6, 7, 8}};

template <FoldedPage Page>
Outcome BuildFolded(FittingForm& form, CTransition& transition) {
    const LengthBoxes& top = Page.top.lengths;
    const LengthBoxes& base = Page.base.lengths;
    if (form.CheckAllPositive(top.x, top.y, base.x, base.y) || form.CheckNotEqual(Page.height, 0) ||
        CheckLengths(form, Page.byThickness) || CheckCorner(form, Page.base) || CheckCorner(form, Page.top)) {
        return Refused;
    }
    SetSections(transition, SectionOf(form, Page.top), SectionOf(form, Page.base), form.Value(Page.height));
    return Passed;
}

Outcome BuildPlaced(FittingForm& form, CTransition& transition) {
    if (BuildFolded<Placed>(form, transition)) {
        return Refused;
    }
    SetOffsets(form, transition, {12, 14});
    RefuseSkewHalf(form, transition);
    return Passed;
}

constexpr std::array<BoxEntry, 7> CentredBoxes = {
    {{0, "Top length X", "180", LengthXSize(Side::Above, 180, 60, 250)},
     {1, "Top length Y", "120", LengthYSize(Side::Right, 120, 90, 250)},
     {4, "Base length X", "300", LengthXSize(Side::Below, 300, -100, 0)},
     {2, "Base length Y", "200", LengthYSize(Side::Left, 200, -150, 0), "00"},
     {3, "Height", "250", HeightSize(Side::Right)},
     {13, "Top radius", "30", CornerSize(Side::Above, -60, 30, 30, 250)},
     {10, "Base radius", "50", CornerSize(Side::Right, 100, 50, 50)}}};
constexpr std::array<BoxEntry, 9> PlacedBoxes = {
    {{6, "Top length X", "180", LinearSize(Side::Above, TopAt(-90, 60), TopAt(90, 60), Elevation)},
     {5, "Top length Y", "120", LinearSize(Side::Right, TopAt(90, -60), TopAt(90, 60), Plan)},
     {7, "Base length X", "300", LengthXSize(Side::Below, 300, -100, 0)},
     {8, "Base length Y", "200", LengthYSize(Side::Left, 200, -150, 0)},
     {12, "Offset X", "40", OffsetXSize(Side::Above, 40)},
     {14, "Offset Y", "20", OffsetYSize(Side::Right, -20)},
     {9, "Height", "250", HeightSize(Side::Right, 40, -20)},
     {15, "Top radius", "30", RadiusSize(Side::Above, PointAt(-38, 34, 250), PointAt(-20, 10, 250), Plan)},
     {11, "Base radius", "50", CornerSize(Side::Right, 100, 50, 50)}}};

constexpr auto CentredLabels =
    Joined(LengthLabels(Centred.top.lengths, Centred.base.lengths), NoOffsetLabels,
           std::array<LabelEntry, 3>{{{"Height = ", 3}, {"Top Radius = ", 13}, {"Base Radius = ", 10}}});
constexpr auto PlacedLabels =
    Joined(LengthLabels(Placed.top.lengths, Placed.base.lengths), OffsetLabels({12, 14}),
           std::array<LabelEntry, 3>{{{"Height = ", 9}, {"Top radius = ", 15}, {"Base radius = ", 11}}});

constexpr auto Pages = TransitionPages({CentredBoxes, CentredLabels},
                                       {PlacedBoxes, PlacedLabels, {}, PlacedAxes<90, 60>}, false);

}  // namespace

const WindowTable frmRectToRectRad = TransitionTable<BuildFolded<Centred>, BuildPlaced>(Pages);

}  // namespace korvet
