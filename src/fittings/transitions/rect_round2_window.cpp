// Rectangle (Radius) to Round: a rectangle with round corners below a circle.
#include "fittings/transitions/rectangle_base_form.h"

namespace korvet {
namespace {

namespace centred {

enum Box : int { Diameter = 0 };
using namespace transition::centred;

Outcome Build(FittingForm& form, CTransition& fitting) {
    const double t = form.settings.Thickness;
    if (form.CheckAllPositive(Diameter, RectangleLengthX, RectangleLengthY) ||
        form.CheckBoxRoomForThickness(CornerRadius, t / 2) ||
        transition::CheckRadiusFits(form, CornerRadius, Rectangle) ||
        form.CheckBoxRoomForThickness(RectangleLengthX, t) ||
        form.CheckBoxRoomForThickness(RectangleLengthY, t) || form.CheckNotEqual(Height, 0)) {
        return Refused;
    }
    transition::SetSections(fitting, transition::CircleOf(form, Diameter),
                            transition::RoundedRectangleOf(form, Rectangle, CornerRadius),
                            form.Value(Height));
    return Passed;
}

constexpr auto Boxes = Joined(transition::CentredDiameter(Diameter), RectangleEntries, CornerEntry);
constexpr auto Labels = Joined(LabelEntry{Diameter}, RectangleLabels, CornerLabel);

}  // namespace centred

namespace placed {

enum Box : int { Diameter = 4, TopAngle = 12, BaseAngle = 13 };
using namespace transition::placed;

constexpr transition::TiltBoxes Tilts = {TopAngle, BaseAngle};

Outcome Build(FittingForm& form, CTransition& fitting) {
    if (form.CheckAllPositive(Diameter, RectangleLengthX, RectangleLengthY) ||
        transition::CheckTilts(form, Tilts) || form.CheckNotEqual(Height, 0) ||
        form.CheckBoxRoomForThickness(CornerRadius, form.settings.Thickness / 2) ||
        transition::CheckRadiusFits(form, CornerRadius, Rectangle)) {
        return Refused;
    }
    transition::SetSections(fitting, transition::CircleOf(form, Diameter),
                            transition::RoundedRectangleOf(form, Rectangle, CornerRadius),
                            form.Value(Height));
    transition::PlaceTop(form, fitting, Offsets, Tilts);
    return Passed;
}

constexpr auto Boxes = Joined(transition::PlacedDiameter(Diameter), RectangleEntries(50, "50", 50),
                              CornerEntry, TiltEntries(Tilts, "20", 50));
constexpr auto Labels = Joined(LabelEntry{Diameter}, RectangleLabels, CornerLabel);

}  // namespace placed

constexpr auto Pages =
    transition::Pages({centred::Boxes, centred::Labels},
                      {placed::Boxes, placed::Labels, {}, transition::PlacedAxes<60, 60>}, true);

}  // namespace

const WindowTable frmRectRound2 = transition::Table<centred::Build, placed::Build>(Pages);

}  // namespace korvet
