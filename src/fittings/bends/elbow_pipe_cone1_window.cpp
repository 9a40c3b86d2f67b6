// Cone to Pipe Elbow: a cone that narrows into a pipe on a mitre, square or by the angle between the two.
#include "fittings/bends/elbow_pipe_to_cone_form.h"
#include "fittings/bends/elbow_sketch.h"
#include "fittings/bends/tapered_form.h"

namespace korvet {
namespace {

using pipe_cone_elbow::ElbowBoxes;
using pipe_cone_elbow::Wide;

template <ElbowBoxes All>
Outcome Build(FittingForm& form, CElbowPipeToCone& elbow) {
    if (form.CheckAllPositive(All.wideDiameter, All.narrowDiameter) || CheckEndsAndAngle(form, All) ||
        CheckLengths(form, All, Wide::Cone)) {
        return Refused;
    }
    SetElbow(form, All, Wide::Cone, elbow);
    return Passed;
}

// The sketch: the cone stands upright, the pipe leads to the left.

namespace square {

enum Box : int { ConeDiameter = 0, PipeDiameter = 1, Length1 = 2, Length2 = 3 };
constexpr ElbowBoxes All = {ConeDiameter, PipeDiameter, Length1, Length2};

constexpr BoxEntry Boxes[] = {
    {ConeDiameter, "Cone diameter", "300", DiameterSize(Side::Below, 2)},
    {PipeDiameter, "Pipe diameter", "170",
     LinearSize(Side::Left, elbow::EndAt(Spot::MinZ), elbow::EndAt(Spot::MaxZ))},
    {Length1, "Length 1", "320", LinearSize(Side::Right, elbow::Start, elbow::Corner(320))},
    {Length2, "Length 2", "280", LinearSize(Side::Above, elbow::End, elbow::Corner(320))}};
constexpr LabelEntry Labels[] = {
    {ConeDiameter}, {PipeDiameter}, {Length1}, {Length2}, {NoBox, "Angle = ", "90"}};
constexpr auto Lines = elbow::CentreLines(320);

}  // namespace square

namespace any_angle {

enum Box : int { ConeDiameter = 4, PipeDiameter = 5, Length1 = 6, Length2 = 7, Angle = 8 };
constexpr ElbowBoxes All = {ConeDiameter, PipeDiameter, Length1, Length2, Angle};

constexpr BoxEntry Boxes[] = {
    {ConeDiameter, "Cone diameter", "340", DiameterSize(Side::Below, 2)},
    {PipeDiameter, "Pipe diameter", "190",
     LinearSize(Side::Above, elbow::EndAt(Spot::MinY), elbow::EndAt(Spot::MaxY), 1)},
    {Length1, "Length 1", "360", LinearSize(Side::Right, elbow::Start, elbow::Corner(360))},
    {Length2, "Length 2", "310", AlignedSize(Side::Above, elbow::End, elbow::Corner(360))},
    {Angle, "Angle (degrees)", "125",
     AngleSize(Side::Left, elbow::Corner(360), elbow::Start, elbow::End, 0.5)}};
constexpr LabelEntry Labels[] = {{ConeDiameter}, {PipeDiameter}, {Length1}, {Length2}, {Angle}};
constexpr auto Lines = elbow::CentreLines(360);

}  // namespace any_angle

constexpr PageEntry Pages[] = {{square::Boxes, square::Labels, elbow::Views, square::Lines},
                               {any_angle::Boxes, any_angle::Labels, tapered::TwoViews, any_angle::Lines}};

}  // namespace

const WindowTable frmElbowPipeCone1 =
    pipe_cone_elbow::Table(Pages, BuildByType<CElbowPipeToCone, Build<square::All>, Build<any_angle::All>>);

}  // namespace korvet
