// Breech: three, four or five equal pipes that meet in one point, by the angles between them.
#include <algorithm>
#include <cmath>
#include <span>

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/breeches/breech.h"
#include "fittings/breeches/breech_sketch.h"
#include "fittings/mean_sizes.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

/// The boxes of one page; the angle behind the last pipe has none.
struct PipeBoxes {
    int diameter;
    int length;
    std::span<const int> angles;
};

/// Each angle leaves some of the full turn for those that follow.
Outcome CheckAngles(FittingForm& form, std::span<const int> boxes) {
    double degreesLeft = 360;
    for (const int box : boxes) {
        if (form.CheckGreaterThan(box, 0) || form.CheckLessThan(box, degreesLeft)) {
            return Refused;
        }
        degreesLeft -= form.Value(box);
    }
    return Passed;
}

/// The longest of the cuts of a pipe of radius r: a plane that leans by c runs down r tan(c) from the meeting
/// point to the wall, and c is a quarter turn less half the angle to the neighbour. Throws ArithmeticError
/// when the angles leave nothing for the last one.
double LongestCut(double r, const FittingForm& form, std::span<const int> angleBoxes) {
    double left = FullTurn;
    double steepest = -QuarterTurn;
    for (const int box : angleBoxes) {
        const double angle = DegToRad(form.Value(box));
        left -= angle;
        steepest = std::max(steepest, BreechCutAngle(angle));
    }
    if (left <= 0) {
        throw ArithmeticError("the angles leave nothing for the last one");
    }
    return r * std::tan(std::max(steepest, BreechCutAngle(left)));
}

Outcome BuildPipes(FittingForm& form, CBreech& breech, const PipeBoxes& boxes) {
    const double r = MeanRadiusOfDiameter(form, boxes.diameter);
    if (CheckRoundWall(form, boxes.diameter, r) || form.CheckGreaterThan(boxes.length, 0) ||
        CheckAngles(form, boxes.angles) ||
        form.CheckAtLeast(boxes.length, LongestCut(r, form, boxes.angles))) {
        return Refused;
    }
    breech.BaseRad = r;
    breech.PipeLength1 = form.Value(boxes.length);
    for (std::size_t i = 0; i < PipeAnglesOfBreech.size(); ++i) {
        breech.*PipeAnglesOfBreech.at(i) =
            i < boxes.angles.size() ? DegToRad(form.Value(boxes.angles[i])) : 0;
    }
    breech.KerfSpacing = form.settings.KerfSpacing;
    breech.TemplateType = form.settings.TemplateType;
    breech.Thickness = form.settings.Thickness;
    return Passed;
}

namespace three_pipes {

enum Box : int { Diameter = 0, Length = 1, Angle1 = 2, Angle2 = 3 };
constexpr int Angles[] = {Angle1, Angle2};

Outcome Build(FittingForm& form, CBreech& breech) {
    return BuildPipes(form, breech, {Diameter, Length, Angles});
}

constexpr BoxEntry Boxes[] = {{Diameter, "Pipe diameter", "160", breech::DiameterOfFirst},
                              {Length, "Pipe length", "260", breech::LengthOfFirst(260)},
                              {Angle1, "Angle 1 (degrees)", "130", breech::AngleTo(2, Side::Right, 260)},
                              {Angle2, "Angle 2 (degrees)", "105", breech::AngleTo(3, Side::Above, 260)}};
constexpr LabelEntry Labels[] = {
    {Diameter}, {Length}, {NoBox, "Number of pipes = ", "3"}, {Angle1}, {Angle2}};
constexpr auto Lines = breech::Axes<3>(260);

}  // namespace three_pipes

namespace four_pipes {

enum Box : int { Diameter = 4, Length = 5, Angle1 = 6, Angle2 = 7, Angle3 = 8 };
constexpr int Angles[] = {Angle1, Angle2, Angle3};

Outcome Build(FittingForm& form, CBreech& breech) {
    return BuildPipes(form, breech, {Diameter, Length, Angles});
}

constexpr BoxEntry Boxes[] = {{Diameter, "Pipe diameter", "140", breech::DiameterOfFirst},
                              {Length, "Pipe length", "250", breech::LengthOfFirst(250)},
                              {Angle1, "Angle 1 (degrees)", "80", breech::AngleTo(2, Side::Right, 250)},
                              {Angle2, "Angle 2 (degrees)", "95", breech::AngleTo(3, Side::Right, 250)},
                              {Angle3, "Angle 3 (degrees)", "110", breech::AngleTo(4, Side::Left, 250)}};
constexpr LabelEntry Labels[] = {{Diameter}, {Length}, {NoBox, "Number of pipes = ", "4"},
                                 {Angle1},   {Angle2}, {Angle3}};
constexpr auto Lines = breech::Axes<4>(250);

}  // namespace four_pipes

namespace five_pipes {

enum Box : int { Diameter = 9, Length = 10, Angle1 = 11, Angle2 = 12, Angle3 = 13, Angle4 = 14 };
constexpr int Angles[] = {Angle1, Angle2, Angle3, Angle4};

Outcome Build(FittingForm& form, CBreech& breech) {
    return BuildPipes(form, breech, {Diameter, Length, Angles});
}

constexpr BoxEntry Boxes[] = {{Diameter, "Pipe diameter", "120", breech::DiameterOfFirst},
                              {Length, "Pipe length", "240", breech::LengthOfFirst(240)},
                              {Angle1, "Angle 1 (degrees)", "60", breech::AngleTo(2, Side::Right, 240)},
                              {Angle2, "Angle 2 (degrees)", "85", breech::AngleTo(3, Side::Right, 240)},
                              {Angle3, "Angle 3 (degrees)", "70", breech::AngleTo(4, Side::Above, 240)},
                              {Angle4, "Angle 4 (degrees)", "90", breech::AngleTo(5, Side::Left, 240)}};
constexpr LabelEntry Labels[] = {{Diameter}, {Length}, {NoBox, "Number of pipes = ", "5"}, {Angle1}, {Angle2},
                                 {Angle3},   {Angle4}};
constexpr auto Lines = breech::Axes<5>(240);

}  // namespace five_pipes

constexpr PageEntry Pages[] = {{three_pipes::Boxes, three_pipes::Labels, breech::Views, three_pipes::Lines},
                               {four_pipes::Boxes, four_pipes::Labels, breech::Views, four_pipes::Lines},
                               {five_pipes::Boxes, five_pipes::Labels, breech::Views, five_pipes::Lines}};

constexpr std::string_view Layouts[] = {"Arrange Horizontally", "Arrange Vertically"};

}  // namespace

const WindowTable frmBreech = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CBreech>,
    .buildFitting = BuildByType<CBreech, three_pipes::Build, four_pipes::Build, five_pipes::Build>,
    .multiple = true,
    .joinAngleDisable = true,
    .templateTypeEnabled = true,
    .kerfEnabled = true,
    .moreButtons = true,
    .patternSelect = Layouts,
};

}  // namespace korvet
