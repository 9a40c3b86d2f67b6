// Pipe to Cone Elbow: a pipe that goes on on a mitre in a cone narrowing to its end, square or by the angle
// between the two.
#include "fittings/bends/elbow_pipe_to_cone_form.h"
#include "fittings/bends/elbow_sketch.h"
#include "fittings/bends/tapered_form.h"

namespace korvet {
namespace {

using pipe_cone_elbow::ElbowBoxes;
using pipe_cone_elbow::Wide;

Outcome CheckPositiveSizes(FittingForm& form, const ElbowBoxes& boxes) {
    return form.CheckAllPositive(boxes.wideDiameter, boxes.narrowDiameter, boxes.length1, boxes.length2);
}

// The sketch: the pipe hangs down, and the cone leads to the right from there to its end at the origin.

constexpr SketchPoint ConeEnd = MiddleOf(2);

/// The point where the centre lines meet, up the pipe from its free end.
constexpr SketchPoint Corner(double length2) {
    return OfSurface(2, SpotOf(1, Spot::Centre, 0, 0, length2));
}

constexpr std::array<SketchConstruction, 2> CentreLines(double length2) {
    return {{CentreLine(elbow::End, Corner(length2)), CentreLine(Corner(length2), ConeEnd)}};
}

namespace square {

enum Box : int { PipeDiameter = 0, ConeDiameter = 1, Length1 = 2, Length2 = 3 };
constexpr ElbowBoxes All = {PipeDiameter, ConeDiameter, Length1, Length2};

Outcome Build(FittingForm& form, CElbowPipeToCone& elbow) {
    if (CheckPositiveSizes(form, All) || CheckEndsAndAngle(form, All) ||
        CheckLengths(form, All, Wide::Pipe)) {
        return Refused;
    }
    SetElbow(form, All, Wide::Pipe, elbow);
    return Passed;
}

constexpr BoxEntry Boxes[] = {{PipeDiameter, "Pipe diameter", "260",
                               LinearSize(Side::Below, elbow::EndAt(Spot::MinX), elbow::EndAt(Spot::MaxX))},
                              {ConeDiameter, "Cone diameter", "150",
                               LinearSize(Side::Right, SpotOf(2, Spot::MinZ), SpotOf(2, Spot::MaxZ))},
                              {Length1, "Length 1", "350", LinearSize(Side::Above, Corner(290), ConeEnd)},
                              {Length2, "Length 2", "290", LinearSize(Side::Left, elbow::End, Corner(290))}};
constexpr LabelEntry Labels[] = {
    {PipeDiameter}, {ConeDiameter}, {Length1}, {Length2}, {NoBox, "Angle = ", "90"}};
constexpr auto Lines = CentreLines(290);

}  // namespace square

namespace any_angle {

enum Box : int { PipeDiameter = 4, ConeDiameter = 5, Length1 = 6, Length2 = 7, Angle = 8 };
constexpr ElbowBoxes All = {PipeDiameter, ConeDiameter, Length1, Length2, Angle};

/// The lengths have no lower limit here; the fitting itself tells which one is too short.
Outcome Build(FittingForm& form, CElbowPipeToCone& elbow) {
    if (CheckPositiveSizes(form, All) || CheckEndsAndAngle(form, All)) {
        return Refused;
    }
    SetElbow(form, All, Wide::Pipe, elbow);
    return Passed;
}

constexpr BoxEntry Boxes[] = {
    {PipeDiameter, "Pipe diameter", "280",
     LinearSize(Side::Below, elbow::EndAt(Spot::MinX), elbow::EndAt(Spot::MaxX))},
    {ConeDiameter, "Cone diameter", "180",
     LinearSize(Side::Above, SpotOf(2, Spot::MinY), SpotOf(2, Spot::MaxY), 1)},
    {Length1, "Length 1", "380", AlignedSize(Side::Above, Corner(330), ConeEnd)},
    {Length2, "Length 2", "330", LinearSize(Side::Left, elbow::End, Corner(330))},
    {Angle, "Angle (degrees)", "120", AngleSize(Side::Right, Corner(330), elbow::End, ConeEnd, 0.5)}};
// The two diameters change names here: text blocks made so far have it so.
constexpr LabelEntry Labels[] = {
    {PipeDiameter, "Cone diameter = "}, {ConeDiameter, "Pipe diameter = "}, {Length1}, {Length2}, {Angle}};
constexpr auto Lines = CentreLines(330);

}  // namespace any_angle

constexpr PageEntry Pages[] = {{square::Boxes, square::Labels, elbow::Views, square::Lines},
                               {any_angle::Boxes, any_angle::Labels, tapered::TwoViews, any_angle::Lines}};

}  // namespace

const WindowTable frmElbowPipeCone2 =
    pipe_cone_elbow::Table(Pages, BuildByType<CElbowPipeToCone, square::Build, any_angle::Build>);

}  // namespace korvet
