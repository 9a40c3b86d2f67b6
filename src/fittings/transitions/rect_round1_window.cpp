// Rectangle to Round: a sharp rectangle below a circle.
#include "fittings/transitions/rectangle_base_form.h"

namespace korvet {
namespace {

/// The base as its corners are bent: each length of the mean line loses one thickness more.
transition::Section BaseOf(const FittingForm& form, transition::LengthBoxes lengths) {
    transition::Section base = transition::RectangleOf(form, lengths, 0);
    base.lengthX -= form.settings.Thickness;
    base.lengthY -= form.settings.Thickness;
    return base;
}

namespace centred {

enum Box : int { Diameter = 0 };
using namespace transition::centred;

Outcome Build(FittingForm& form, CTransition& fitting) {
    const double t = form.settings.Thickness;
    if (form.CheckAllPositive(Diameter, RectangleLengthX, RectangleLengthY) ||
        form.CheckBoxRoomForThickness(RectangleLengthX, t) ||
        form.CheckBoxRoomForThickness(RectangleLengthY, t) || form.CheckNotEqual(Height, 0)) {
        return Refused;
    }
    transition::SetSections(fitting, transition::CircleOf(form, Diameter), BaseOf(form, Rectangle),
                            form.Value(Height));
    return Passed;
}

constexpr auto Boxes = Joined(transition::CentredDiameter(Diameter), RectangleEntries);
constexpr auto Labels = Joined(LabelEntry{Diameter}, RectangleLabels);

}  // namespace centred

namespace placed {

enum Box : int { Diameter = 4, TopAngle = 10, BaseAngle = 11 };
using namespace transition::placed;

constexpr transition::TiltBoxes Tilts = {TopAngle, BaseAngle};

Outcome Build(FittingForm& form, CTransition& fitting) {
    if (form.CheckAllPositive(Diameter, RectangleLengthX, RectangleLengthY) ||
        form.CheckNotEqual(Height, 0) || transition::CheckTilts(form, Tilts)) {
        return Refused;
    }
    transition::SetSections(fitting, transition::CircleOf(form, Diameter), BaseOf(form, Rectangle),
                            form.Value(Height));
    transition::PlaceTop(form, fitting, Offsets, Tilts);
    return Passed;
}

constexpr auto Boxes = Joined(transition::PlacedDiameter(Diameter), RectangleEntries(100, "50", 50),
                              TiltEntries(Tilts, "20", 100));
constexpr auto Labels = Joined(LabelEntry{Diameter}, RectangleLabels);

}  // namespace placed

constexpr auto Pages =
    transition::Pages({centred::Boxes, centred::Labels},
                      {placed::Boxes, placed::Labels, {}, transition::PlacedAxes<60, 60>}, true);

}  // namespace

const WindowTable frmRectRound1 = transition::Table<centred::Build, placed::Build>(Pages);

}  // namespace korvet
