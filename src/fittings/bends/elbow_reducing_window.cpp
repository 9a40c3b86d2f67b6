// Reducing Elbow: two pieces of one cone on a mitre, square or with any angle between them from there on.
#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/bends/elbow_reducing.h"
#include "fittings/bends/elbow_sketch.h"
#include "fittings/bends/tapered_form.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

/// The sizes of an elbow, on the mean line; the angle between the legs in radians.
struct Sizes {
    double bigRadius;
    double smallRadius;
    double length1;
    double length2;
    double angle;
};

void SetElbow(const CPatternSettings& settings, const Sizes& sizes, CElbowReducing& elbow) {
    elbow.BigRad = sizes.bigRadius;
    elbow.SmallRad = sizes.smallRadius;
    elbow.Length1 = sizes.length1;
    elbow.Length2 = sizes.length2;
    elbow.BendAngle = -sizes.angle;
    elbow.KerfSpacing = settings.KerfSpacing;
}

/// The wide leg is held against the narrow end, and the narrow leg against the wide one.
Outcome CheckLengths(FittingForm& form, int length1Box, int length2Box, tapered::EndBoxes ends) {
    return RefusedIf(form.CheckAtLeast(length1Box, MeanRadiusOfDiameter(form, ends.small)) ||
                     form.CheckAtLeast(length2Box, MeanRadiusOfDiameter(form, ends.big)));
}

namespace square {

enum Box : int { LargeDiameter = 0, SmallDiameter = 1, Length1 = 2, Length2 = 3 };
constexpr tapered::EndBoxes Ends = {LargeDiameter, SmallDiameter};

Outcome Build(FittingForm& form, CElbowReducing& elbow) {
    if (tapered::CheckEnds(form, Ends) || CheckLengths(form, Length1, Length2, Ends)) {
        return Refused;
    }
    SetElbow(form.settings,
             {MeanRadiusOfDiameter(form, LargeDiameter), MeanRadiusOfDiameter(form, SmallDiameter),
              form.Value(Length1), form.Value(Length2), QuarterTurn},
             elbow);
    return Passed;
}

constexpr BoxEntry Boxes[] = {
    {LargeDiameter, "Large diameter", "220", DiameterSize(Side::Below, 2)},
    {SmallDiameter, "Small diameter", "130",
     LinearSize(Side::Right, elbow::EndAt(Spot::MinZ), elbow::EndAt(Spot::MaxZ))},
    {Length1, "Length 1", "310", LinearSize(Side::Left, elbow::Start, elbow::Corner(310))},
    {Length2, "Length 2", "250", LinearSize(Side::Above, elbow::Corner(310), elbow::End)}};
constexpr LabelEntry Labels[] = {
    {LargeDiameter}, {SmallDiameter}, {Length1}, {Length2}, {NoBox, "Angle = ", "90"}};
constexpr auto Lines = elbow::CentreLines(310);

}  // namespace square

namespace any_angle {

enum Box : int { LargeDiameter = 4, SmallDiameter = 5, Length1 = 6, Length2 = 7, Angle = 8 };
constexpr tapered::EndBoxes Ends = {LargeDiameter, SmallDiameter};

Outcome Build(FittingForm& form, CElbowReducing& elbow) {
    // Want of room is told of the boxes of the other type: so this window has always done it.
    if (tapered::CheckEnds(form, Ends, square::Ends) || form.CheckAtLeast(Angle, 90) ||
        form.CheckLessThan(Angle, 180) || CheckLengths(form, Length1, Length2, Ends)) {
        return Refused;
    }
    SetElbow(form.settings,
             {MeanRadiusOfDiameter(form, LargeDiameter), MeanRadiusOfDiameter(form, SmallDiameter),
              form.Value(Length1), form.Value(Length2), DegToRad(form.Value(Angle))},
             elbow);
    return Passed;
}

constexpr BoxEntry Boxes[] = {
    {LargeDiameter, "Large diameter", "300", DiameterSize(Side::Below, 2)},
    {SmallDiameter, "Small diameter", "210",
     LinearSize(Side::Above, elbow::EndAt(Spot::MinY), elbow::EndAt(Spot::MaxY), 1)},
    {Length1, "Length 1", "360", LinearSize(Side::Left, elbow::Start, elbow::Corner(360))},
    {Length2, "Length 2", "290", AlignedSize(Side::Above, elbow::Corner(360), elbow::End)},
    {Angle, "Angle (degrees)", "120",
     AngleSize(Side::Right, elbow::Corner(360), elbow::Start, elbow::End, 0.5)}};
constexpr LabelEntry Labels[] = {{LargeDiameter}, {SmallDiameter}, {Length1}, {Length2}, {Angle}};
constexpr auto Lines = elbow::CentreLines(360);

}  // namespace any_angle

constexpr PageEntry Pages[] = {{square::Boxes, square::Labels, elbow::Views, square::Lines},
                               {any_angle::Boxes, any_angle::Labels, tapered::TwoViews, any_angle::Lines}};

}  // namespace

const WindowTable frmElbowReducing = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CElbowReducing>,
    .buildFitting = BuildByType<CElbowReducing, square::Build, any_angle::Build>,
    .multiple = true,
    .joinAngleDisable = true,
    .kerfEnabled = true,
};

}  // namespace korvet
