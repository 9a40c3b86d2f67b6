// Reducing Breech: a main pipe with two conical branches, by the angle between them or by the angle of each.
#include <algorithm>
#include <array>
#include <cmath>

#include "core/checked.h"
#include "core/math_module.h"
#include "fittings/breeches/breech_reducing.h"
#include "fittings/breeches/breech_reducing_sketch.h"
#include "fittings/joined.h"
#include "fittings/mean_sizes.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

/// The boxes of one page but for its angles. Both branches may have their diameter in one box.
struct BreechBoxes {
    int pipe;
    std::array<int, 2> cones;
    int mainLength;
    int branchLength;
};

/// Of the branches against the main pipe's axis, radians.
struct BranchAngles {
    double left;
    double right;
};

/// Diameters and main length above 0, and then room for the material in every diameter.
Outcome CheckPipes(FittingForm& form, const BreechBoxes& boxes) {
    if (form.CheckAllPositive(boxes.pipe, boxes.cones[0], boxes.cones[1], boxes.mainLength)) {
        return Refused;
    }
    const auto checkRoom = [&](int box) {
        return CheckRoundWall(form, box, MeanRadiusOfDiameter(form, box));
    };
    return RefusedIf(checkRoom(boxes.pipe) || checkRoom(boxes.cones[0]) || checkRoom(boxes.cones[1]));
}

/// Branches narrower than the main pipe.
Outcome CheckCones(FittingForm& form, const BreechBoxes& boxes) {
    const double pipe = form.Value(boxes.pipe);
    return RefusedIf(form.CheckLessThan(boxes.cones[0], pipe) || form.CheckLessThan(boxes.cones[1], pipe));
}

/// Checks the length of the branches and hands all sizes on. The ends of two branches of one radius r touch
/// when they are r / tan(half the angle between them) long. Throws ArithmeticError for branches that lie one
/// in the other.
Outcome Finish(FittingForm& form, CBreechReducing& breech, const BreechBoxes& boxes,
               const BranchAngles& angles) {
    breech.ConeRadA = MeanRadiusOfDiameter(form, boxes.cones[0]);
    breech.ConeRadB = MeanRadiusOfDiameter(form, boxes.cones[1]);
    const double opening = std::tan((angles.left + angles.right) / 2);
    if (opening == 0) {
        throw ArithmeticError("both branches go straight on: one of them needs an angle");
    }
    if (form.CheckGreaterThan(boxes.branchLength, std::max(breech.ConeRadA, breech.ConeRadB) / opening)) {
        return Refused;
    }
    breech.PipeRad = MeanRadiusOfDiameter(form, boxes.pipe);
    breech.PipeLength = form.Value(boxes.mainLength);
    breech.ConeLengthA = breech.ConeLengthB = form.Value(boxes.branchLength);
    breech.CLAngleA = angles.left;
    breech.CLAngleB = angles.right;
    return Passed;
}

/// A page with an angle for each branch.
Outcome BuildByAngles(FittingForm& form, CBreechReducing& breech, const BreechBoxes& boxes, int leftAngle,
                      int rightAngle, Outcome (*checkAngle)(FittingForm& form, int box)) {
    if (CheckPipes(form, boxes) || CheckCones(form, boxes) || checkAngle(form, leftAngle) ||
        checkAngle(form, rightAngle)) {
        return Refused;
    }
    return Finish(form, breech, boxes, {DegToRad(form.Value(leftAngle)), DegToRad(form.Value(rightAngle))});
}

/// The lines of both lengths and of the angles.
constexpr std::array<LabelEntry, 2> LengthLabels(int mainLength, int branchLength) {
    return {{{mainLength}, {branchLength, "Branch lengths = "}}};
}
constexpr std::array<LabelEntry, 2> AngleLabels(int leftAngle, int rightAngle) {
    // The same words for both: so this text block has always had it.
    return {{{leftAngle, "Angle from centerline 1 = "}, {rightAngle, "Angle from centerline 1 = "}}};
}

namespace forked {

enum Box : int { PipeDiameter = 0, ConeDiameter = 1, MainLength = 2, BranchLength = 3, IncludedAngle = 4 };
constexpr BreechBoxes Sizes = {PipeDiameter, {ConeDiameter, ConeDiameter}, MainLength, BranchLength};

Outcome Build(FittingForm& form, CBreechReducing& breech) {
    if (CheckPipes(form, Sizes) ||
        form.CheckAtLeast(BranchLength, MeanRadiusOfDiameter(form, PipeDiameter)) ||
        CheckCones(form, Sizes) || form.CheckGreaterThan(IncludedAngle, 0) ||
        form.CheckAtMost(IncludedAngle, 180)) {
        return Refused;
    }
    const double half = DegToRad(form.Value(IncludedAngle)) / 2;
    return Finish(form, breech, Sizes, {half, half});
}

constexpr BoxEntry Boxes[] = {{PipeDiameter, "Pipe diameter", "300", reducing_breech::PipeDiameter},
                              {ConeDiameter, "Cone diameter", "180", reducing_breech::LeftDiameter},
                              {MainLength, "Main pipe length", "280", reducing_breech::MainLengthAtLeft},
                              {BranchLength, "Branch length", "400", reducing_breech::RightLength},
                              {IncludedAngle, "Included angle (degrees)", "70", reducing_breech::Opening}};
constexpr auto Labels =
    Joined(LabelEntry{PipeDiameter}, LabelEntry{ConeDiameter}, LengthLabels(MainLength, BranchLength),
           LabelEntry{IncludedAngle, "Included Angle of branch = "});
constexpr auto Lines = reducing_breech::Axes;

}  // namespace forked

namespace leaning {

enum Box : int {
    PipeDiameter = 5,
    ConeDiameter = 6,
    MainLength = 7,
    BranchLength = 8,
    Angle1 = 9,
    Angle2 = 10
};
constexpr BreechBoxes Sizes = {PipeDiameter, {ConeDiameter, ConeDiameter}, MainLength, BranchLength};

/// One of the branches may go straight on.
Outcome CheckAngle(FittingForm& form, int box) {
    return RefusedIf(form.CheckAtLeast(box, 0) || form.CheckAtMost(box, 90));
}

Outcome Build(FittingForm& form, CBreechReducing& breech) {
    return BuildByAngles(form, breech, Sizes, Angle1, Angle2, CheckAngle);
}

constexpr BoxEntry Boxes[] = {{PipeDiameter, "Pipe diameter", "260", reducing_breech::PipeDiameter},
                              {ConeDiameter, "Cone diameter", "170", reducing_breech::LeftDiameter},
                              {MainLength, "Main pipe length", "240", reducing_breech::MainLengthAtRight},
                              {BranchLength, "Branch length", "330", reducing_breech::LeftLength},
                              {Angle1, "Angle 1 (degrees)", "20", reducing_breech::LeftAngle(330)},
                              {Angle2, "Angle 2 (degrees)", "50", reducing_breech::RightAngle(330)}};
constexpr auto Labels = Joined(LabelEntry{PipeDiameter}, LabelEntry{ConeDiameter},
                               LengthLabels(MainLength, BranchLength), AngleLabels(Angle1, Angle2));
constexpr auto Lines = reducing_breech::AxesWithUpright(330);

}  // namespace leaning

namespace unequal {

enum Box : int {
    PipeDiameter = 11,
    ConeDiameter1 = 12,
    ConeDiameter2 = 13,
    MainLength = 14,
    BranchLength = 15,
    Angle1 = 16,
    Angle2 = 17
};
constexpr BreechBoxes Sizes = {PipeDiameter, {ConeDiameter1, ConeDiameter2}, MainLength, BranchLength};

Outcome CheckAngle(FittingForm& form, int box) {
    return RefusedIf(form.CheckGreaterThan(box, 0) || form.CheckAtMost(box, 90));
}

Outcome Build(FittingForm& form, CBreechReducing& breech) {
    return BuildByAngles(form, breech, Sizes, Angle1, Angle2, CheckAngle);
}

constexpr BoxEntry Boxes[] = {{PipeDiameter, "Pipe diameter", "320", reducing_breech::PipeDiameter},
                              {ConeDiameter1, "Cone diameter 1", "150", reducing_breech::LeftDiameter},
                              {ConeDiameter2, "Cone diameter 2", "210", reducing_breech::RightDiameter},
                              {MainLength, "Main pipe length", "270", reducing_breech::MainLengthAtRight},
                              {BranchLength, "Branch length", "410", reducing_breech::LeftLength},
                              {Angle1, "Angle 1 (degrees)", "30", reducing_breech::LeftAngle(410)},
                              {Angle2, "Angle 2 (degrees)", "45", reducing_breech::RightAngle(410)}};
constexpr auto Labels = Joined(LabelEntry{PipeDiameter}, LabelEntry{ConeDiameter1}, LabelEntry{ConeDiameter2},
                               LengthLabels(MainLength, BranchLength), AngleLabels(Angle1, Angle2));
constexpr auto Lines = reducing_breech::AxesWithUpright(410);

}  // namespace unequal

constexpr PageEntry Pages[] = {{forked::Boxes, forked::Labels, reducing_breech::Views, forked::Lines},
                               {leaning::Boxes, leaning::Labels, reducing_breech::Views, leaning::Lines},
                               {unequal::Boxes, unequal::Labels, reducing_breech::Views, unequal::Lines}};

constexpr std::string_view Pieces[] = {"Trunk", "Left Branch", "Right Branch"};
constexpr int PieceSurfaces[] = {1, 2, 3};

}  // namespace

const WindowTable frmBreechReducing = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CBreechReducing>,
    .buildFitting = BuildByType<CBreechReducing, forked::Build, leaning::Build, unequal::Build>,
    .multiple = true,
    .joinAngleDisable = true,
    .patternSelect = Pieces,
    .patternSurface = PieceSurfaces,
};

}  // namespace korvet
