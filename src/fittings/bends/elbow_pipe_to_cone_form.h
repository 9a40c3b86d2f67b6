// What the windows of the elbows of a cone and a pipe share. The part with the wide end is typed first: the
// cone of the one window, the pipe of the other.
#pragma once

#include "fittings/bends/elbow_pipe_to_cone.h"
#include "fittings/windows.h"

namespace korvet::pipe_cone_elbow {

/// Which part has the wide end.
enum class Wide { Cone, Pipe };

/// The boxes of one page.
struct ElbowBoxes {
    int wideDiameter;
    int narrowDiameter;
    int length1;        ///< of the cone
    int length2;        ///< of the pipe
    int angle = NoBox;  ///< between the centre lines, in degrees; none: the elbow is square
};

/// Both diameters have room for the material, the narrow end is the narrower one, and an angle lies from 90
/// to below 180.
Outcome CheckEndsAndAngle(FittingForm& form, const ElbowBoxes& boxes);

/// Length 1 is at least the mean radius of the pipe, and length 2 that of the cone.
Outcome CheckLengths(FittingForm& form, const ElbowBoxes& boxes, Wide wide);

/// Sets the sizes, on the mean line, and the category.
void SetElbow(const FittingForm& form, const ElbowBoxes& boxes, Wide wide, CElbowPipeToCone& elbow);

inline constexpr std::string_view Patterns[] = {"Cone", "Pipe"};
inline constexpr int PatternSurfaces[] = {1, 2};

/// The table of such a window. The seams have their places; JoinAngle of the settings, which a file may have
/// brought, turns them.
constexpr WindowTable Table(std::span<const PageEntry> pages, BuildStep* build) {
    return {.pages = pages,
            .newFitting = FittingHandle::Make<CElbowPipeToCone>,
            .buildFitting = build,
            .multiple = true,
            .joinAngleDisable = true,
            .patternSelect = Patterns,
            .patternSurface = PatternSurfaces};
}

}  // namespace korvet::pipe_cone_elbow
