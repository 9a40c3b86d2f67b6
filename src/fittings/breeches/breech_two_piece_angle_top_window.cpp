// Reducing Breech - Two Piece - Angle Top: outlets square to their own centre lines.
#include "fittings/breeches/two_piece_form.h"
#include "fittings/breeches/two_piece_sketch.h"

namespace korvet {
namespace {

using namespace two_piece;

enum Box : int { ConeLength = Reach, IncludedAngle = 3 };  // beside the diameters

/// The cone's diameter is asked for twice, the second time with another message; the first one always speaks.
Outcome Build(FittingForm& form, CBreechReducing2Prt& breech) {
    if (CheckDiameters(form) || form.CheckGreaterThan(ConeDiameter, 0) ||
        form.CheckLessThan(ConeDiameter, form.Value(PipeDiameter)) ||
        form.CheckAtLeast(ConeLength, RadiiOf(form).pipe) || form.CheckGreaterThan(IncludedAngle, 0) ||
        form.CheckAtMost(IncludedAngle, 180)) {
        return Refused;
    }
    const double clAngle = DegToRad(form.Value(IncludedAngle)) / 2;
    SetBreech(form, {form.Value(ConeLength), clAngle, -clAngle}, breech);
    return Passed;
}

constexpr BoxEntry Boxes[] = {
    {PipeDiameter, "Pipe diameter", "250", PipeDiameterSize},
    {ConeDiameter, "Cone diameter", "150",
     LinearSize(Side::Left, OutletAt(2, Spot::MinY), OutletAt(2, Spot::MaxY), Plan)},
    {ConeLength, "Cone length", "310", AlignedSize(Side::Right, PipeCentre, RightOutlet)},
    {IncludedAngle, "Included angle (degrees)", "70",
     AngleSize(Side::Above, PipeCentre, LeftOutlet, RightOutlet, 1.15)}};
constexpr LabelEntry Labels[] = {
    {PipeDiameter}, {ConeDiameter}, {ConeLength}, {IncludedAngle, "Included Angle of branch = "}};
constexpr PageEntry Pages[] = {{Boxes, Labels, FrontAndPlan, Axes}};

}  // namespace

const WindowTable frmBreechTwoPieceAngleTop = two_piece::Table<Build>(Pages);

}  // namespace korvet
