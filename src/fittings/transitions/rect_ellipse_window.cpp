// Rectangle to Ellipse: a rectangle with round corners below an ellipse.
#include "fittings/transitions/rectangle_base_form.h"

namespace korvet {
namespace {

constexpr SketchDimension LengthY =
    LinearSize(Side::Right, SpotOf(1, Spot::MinY), SpotOf(1, Spot::MaxY), transition::Plan);

namespace centred {

enum Box : int { EllipseLengthX = 0, EllipseLengthY = 12 };
using namespace transition::centred;

Outcome Build(FittingForm& form, CTransition& fitting) {
    if (form.CheckAllPositive(EllipseLengthX, EllipseLengthY, RectangleLengthX, RectangleLengthY, Height) ||
        form.CheckBoxRoomForThickness(CornerRadius, form.settings.Thickness / 2) ||
        transition::CheckRadiusFits(form, CornerRadius, Rectangle)) {
        return Refused;
    }
    transition::SetSections(fitting, transition::EllipseOf(form, {EllipseLengthX, EllipseLengthY}),
                            transition::RoundedRectangleOf(form, Rectangle, CornerRadius),
                            form.Value(Height));
    return Passed;
}

constexpr auto Boxes =
    Joined(BoxEntry{EllipseLengthX, "Ellipse length X", "180", DiameterSize(Side::Above, 1)},
           BoxEntry{EllipseLengthY, "Ellipse length Y", "100", LengthY}, RectangleEntries, CornerEntry);
constexpr auto Labels =
    Joined(LabelEntry{EllipseLengthX}, LabelEntry{EllipseLengthY}, RectangleLabels, CornerLabel);

}  // namespace centred

namespace placed {

enum Box : int { EllipseLengthX = 4, EllipseLengthY = 13, TopAngle = 14, BaseAngle = 15 };
using namespace transition::placed;

constexpr transition::TiltBoxes Tilts = {TopAngle, BaseAngle};

Outcome Build(FittingForm& form, CTransition& fitting) {
    if (form.CheckAllPositive(EllipseLengthX, EllipseLengthY, RectangleLengthX, RectangleLengthY, Height) ||
        form.CheckBoxRoomForThickness(CornerRadius, form.settings.Thickness / 2) ||
        transition::CheckTilts(form, Tilts) || transition::CheckRadiusFits(form, CornerRadius, Rectangle)) {
        return Refused;
    }
    transition::SetSections(fitting, transition::EllipseOf(form, {EllipseLengthX, EllipseLengthY}),
                            transition::RoundedRectangleOf(form, Rectangle, CornerRadius),
                            form.Value(Height));
    transition::PlaceTop(form, fitting, Offsets, Tilts);
    return Passed;
}

constexpr auto Boxes = Joined(BoxEntry{EllipseLengthX, "Ellipse length X", "200", TiltedTopSize},
                              BoxEntry{EllipseLengthY, "Ellipse length Y", "110", LengthY},
                              RectangleEntries(50, "40", 40), CornerEntry, TiltEntries(Tilts, "10", 50));
constexpr auto Labels =
    Joined(LabelEntry{EllipseLengthX}, LabelEntry{EllipseLengthY}, RectangleLabels, CornerLabel);

}  // namespace placed

constexpr auto Pages =
    transition::Pages({centred::Boxes, centred::Labels},
                      {placed::Boxes, placed::Labels, {}, transition::PlacedAxes<100, 55>}, true);

}  // namespace

const WindowTable frmRectEllipse = transition::Table<centred::Build, placed::Build>(Pages);

}  // namespace korvet
