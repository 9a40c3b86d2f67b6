// Auger: the flight of a screw conveyor, turn by turn or as a single flat ring.
#include <algorithm>

#include "fittings/augers/auger.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

/// The diameters of a flight at one end.
struct Diameters {
    double outside;
    double inside;
};

Diameters FromOutside(double outside, double flightWidth) {
    return {outside, outside - 2 * flightWidth};
}

void SetAuger(const FittingForm& form, const Diameters& start, const Diameters& end, CAuger& auger) {
    auger.OutsideDia1 = start.outside;
    auger.InsideDia1 = start.inside;
    auger.OutsideDia2 = end.outside;
    auger.InsideDia2 = end.inside;
    auger.Thickness = form.settings.Thickness;
}

// The sketch: the flight starts at the origin's right, List1 inside and List2 outside, and climbs along z.

/// A point of the plane of a diameter: across from the start of an edge, and above it.
constexpr SketchPoint FromStart(int list, double dx = 0, double dz = 0) {
    SketchPoint point = StationOf(list, 1);
    point.dx = dx;
    point.dz = dz;
    return point;
}

constexpr SketchDimension StartDiameterSize(int list, double diameter) {
    return LinearSize(Side::Below, FromStart(list, -diameter), FromStart(list));
}

constexpr SketchDimension EndDiameterSize(double diameter, double length) {
    return LinearSize(Side::Above, AtXZ(-diameter / 2, length), AtXZ(diameter / 2, length));
}

constexpr SketchDimension PitchSize(double pitch) {
    return LinearSize(Side::Right, FromStart(2), FromStart(2, 0, pitch));
}

constexpr SketchDimension LengthSize(double outside, double length) {
    return LinearSize(Side::Left, FromStart(2, -outside), FromStart(2, -outside, length));
}

constexpr SketchDimension FlightWidthSize = LinearSize(Side::Below, FromStart(1), FromStart(2));

template <int Length>
constexpr SketchConstruction Axis[] = {CentreLine(OnAxis(0), OnAxis(Length))};

namespace parallel {

enum Box : int { OutsideDiameter = 0, Pitch = 1, Length = 2, FlightWidth = 3 };

Outcome Build(FittingForm& form, CAuger& auger) {
    if (form.CheckAllPositive(OutsideDiameter, Pitch, Length, FlightWidth) ||
        form.CheckAtMost(FlightWidth, form.Value(OutsideDiameter) / 2)) {
        return Refused;
    }
    const Diameters both = FromOutside(form.Value(OutsideDiameter), form.Value(FlightWidth));
    SetAuger(form, both, both, auger);
    auger.Pitch = form.Value(Pitch);
    auger.Length = form.Value(Length);
    return Passed;
}

constexpr BoxEntry Boxes[] = {{OutsideDiameter, "Outside diameter", "300", StartDiameterSize(2, 300)},
                              {Pitch, "Pitch", "280", PitchSize(280)},
                              {Length, "Length", "700", LengthSize(300, 700)},
                              {FlightWidth, "Flight width", "110", FlightWidthSize}};
constexpr LabelEntry Labels[] = {{OutsideDiameter}, {Pitch}, {FlightWidth, "Fight width = "}, {Length}};

}  // namespace parallel

namespace tapered {

enum Box : int { OutsideDiameter1 = 4, OutsideDiameter2 = 5, Pitch = 6, Length = 7, FlightWidth = 8 };

Outcome Build(FittingForm& form, CAuger& auger) {
    if (form.CheckAllPositive(OutsideDiameter1, OutsideDiameter2, Pitch, Length, FlightWidth)) {
        return Refused;
    }
    const double d1 = form.Value(OutsideDiameter1);
    const double d2 = form.Value(OutsideDiameter2);
    if (form.CheckAtMost(FlightWidth, std::min(d1, d2) / 2)) {
        return Refused;
    }
    SetAuger(form, FromOutside(d1, form.Value(FlightWidth)), FromOutside(d2, form.Value(FlightWidth)), auger);
    auger.Pitch = form.Value(Pitch);
    auger.Length = form.Value(Length);
    return Passed;
}

constexpr BoxEntry Boxes[] = {{OutsideDiameter1, "Outside diameter 1", "320", StartDiameterSize(2, 320)},
                              {OutsideDiameter2, "Outside diameter 2", "240", EndDiameterSize(240, 585)},
                              {Pitch, "Pitch", "260", PitchSize(260)},
                              {Length, "Length", "585", LengthSize(320, 585)},
                              {FlightWidth, "Flight width", "75", FlightWidthSize}};
constexpr LabelEntry Labels[] = {
    {OutsideDiameter1}, {OutsideDiameter2}, {Pitch}, {FlightWidth, "Fight width = "}, {Length}};

}  // namespace tapered

/// One plate makes one turn.
void SetPlate(const FittingForm& form, const Diameters& diameters, int pitchBox, CAuger& auger) {
    SetAuger(form, diameters, diameters, auger);
    auger.Pitch = form.Value(pitchBox);
    auger.Length = auger.Pitch;
}

namespace from_inside {

enum Box : int { InsideDiameter = 9, Pitch = 10, FlightWidth = 11 };

Outcome Build(FittingForm& form, CAuger& auger) {
    if (form.CheckAllPositive(InsideDiameter, Pitch, FlightWidth)) {
        return Refused;
    }
    const double inside = form.Value(InsideDiameter);
    SetPlate(form, {2 * form.Value(FlightWidth) + inside, inside}, Pitch, auger);
    return Passed;
}

constexpr BoxEntry Boxes[] = {{InsideDiameter, "Inside diameter", "60", StartDiameterSize(1, 60)},
                              {Pitch, "Pitch", "190", PitchSize(190)},
                              {FlightWidth, "Flight width", "70", FlightWidthSize}};
constexpr LabelEntry Labels[] = {{NoBox, "Single plate type - based on ID"},
                                 {InsideDiameter},
                                 {Pitch},
                                 {FlightWidth, "Fight width = "},
                                 {NoBox, "Length = ", "Pitch"}};

}  // namespace from_inside

namespace from_outside {

enum Box : int { OutsideDiameter = 12, Pitch = 13, FlightWidth = 14 };

Outcome Build(FittingForm& form, CAuger& auger) {
    if (form.CheckAllPositive(OutsideDiameter, Pitch, FlightWidth)) {
        return Refused;
    }
    SetPlate(form, FromOutside(form.Value(OutsideDiameter), form.Value(FlightWidth)), Pitch, auger);
    return Passed;
}

constexpr BoxEntry Boxes[] = {{OutsideDiameter, "Outside diameter", "250", StartDiameterSize(2, 250)},
                              {Pitch, "Pitch", "230", PitchSize(230)},
                              {FlightWidth, "Flight width", "85", FlightWidthSize}};
constexpr LabelEntry Labels[] = {{NoBox, "Single plate type - based on OD"},
                                 {OutsideDiameter},
                                 {Pitch},
                                 {FlightWidth, "Fight width = "},
                                 {NoBox, "Length = ", "Pitch"}};

}  // namespace from_outside

constexpr PageEntry Pages[] = {{parallel::Boxes, parallel::Labels, FrontView, Axis<700>},
                               {tapered::Boxes, tapered::Labels, FrontView, Axis<585>},
                               {from_inside::Boxes, from_inside::Labels, FrontView, Axis<190>},
                               {from_outside::Boxes, from_outside::Labels, FrontView, Axis<230>}};

}  // namespace

const WindowTable frmAuger = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CAuger>,
    .buildFitting =
        BuildByType<CAuger, parallel::Build, tapered::Build, from_inside::Build, from_outside::Build>,
    .multiple = true,
    .halfPatterns = HalfPatterns::RefusedByClass,
    .joinAngleDisable = true,
    .moreButtons = true,
};

}  // namespace korvet
