// Reducing Breech - Two Piece - Parallel Top: outlets parallel to the pipe's end.
#include <cmath>

#include "fittings/breeches/two_piece_form.h"
#include "fittings/breeches/two_piece_sketch.h"

namespace korvet {
namespace {

using namespace two_piece;

enum Box : int { ConeHeight = Reach, CenterDistance = 3 };  // beside the diameters

/// Both diameters are asked for twice, the second time with another message; the first one always speaks.
Outcome Build(FittingForm& form, CBreechReducing2Prt& breech) {
    if (CheckDiameters(form) || form.CheckGreaterThan(PipeDiameter, 0) ||
        form.CheckGreaterThan(ConeDiameter, 0) ||
        form.CheckLessThan(ConeDiameter, form.Value(PipeDiameter)) ||
        form.CheckGreaterThan(CenterDistance, form.Value(ConeDiameter))) {
        return Refused;
    }
    const double aside = form.Value(CenterDistance) / 2;
    const double height = form.Value(ConeHeight);
    SetBreech(form, {Hypotenuse(aside, height), std::atan(aside / height), 0}, breech);
    return Passed;
}

constexpr BoxEntry Boxes[] = {
    {PipeDiameter, "Pipe diameter", "240", PipeDiameterSize},
    {ConeDiameter, "Cone diameter", "140",
     LinearSize(Side::Above, OutletAt(2, Spot::MinX), OutletAt(2, Spot::MaxX))},
    {ConeHeight, "Cone height", "290", LinearSize(Side::Right, PipeCentre, OnAxis(290))},
    {CenterDistance, "Center distance", "210", LinearSize(Side::Above, LeftOutlet, RightOutlet)}};
constexpr LabelEntry Labels[] = {
    {PipeDiameter}, {ConeDiameter}, {ConeHeight, "Cone Height = "}, {CenterDistance}};
constexpr PageEntry Pages[] = {{Boxes, Labels, Front, Axes}};

}  // namespace

const WindowTable frmBreechTwoPieceParallelTop = two_piece::Table<Build>(Pages);

}  // namespace korvet
