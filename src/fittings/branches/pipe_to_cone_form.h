// What the windows of a round pipe on a cone share: the mean sizes of both, and the tests on them.
#pragma once

#include "fittings/branches/pipe_to_cone.h"
#include "fittings/windows.h"

namespace korvet::pipe_on_cone {

/// The boxes of the sizes that make the two parts.
struct PartBoxes {
    int baseDiameter;  ///< of the wide end
    int topDiameter;   ///< of the narrow one
    int pipeDiameter;
    int height;  ///< of the cone, between its ends
};

/// The mean sizes of the part whose pattern is made; those of the other one as they are typed. While no
/// pattern is selected the cone's is meant. In the user's unit.
struct Sizes {
    double R = 0;  ///< radius of the cone's base
    double r = 0;  ///< of its top
    double p = 0;  ///< of the pipe
    double H = 0;  ///< height of the cone

    /// Height at which the typed walls of the cone meet; nothing or below 0 for a cone without a height.
    double A = 0;
    double theta = 0;  ///< half angle of the cone, radians
};

/// The height of the apex of a cone that narrows from R to r over H: H R / (R - r). Throws ArithmeticError
/// where R and r are the same.
double ApexHeightOf(double R, double r, double H);

/// The sizes from their boxes, which must hold numbers, the two diameters of the cone different ones.
Sizes SizesOf(const FittingForm& form, const PartBoxes& boxes);

/// The part whose pattern is made must have room for its material.
Outcome CheckWalls(FittingForm& form, const PartBoxes& boxes, const Sizes& sizes);

/// How far the axis of a level pipe that touches the cone's wall, its middle C above the base, stands from
/// the plane of the cone's axis.
double TouchingOffset(const Sizes& sizes, double C);

/// Sets the sizes of both parts.
void SetParts(const Sizes& sizes, CPipeToCone& fitting);

inline constexpr std::string_view Patterns[] = {"Cone", "Pipe"};
inline constexpr int PatternSurfaces[] = {1, 2};

/// The table of such a window. The seams have their places, whatever JoinAngle the settings hold: they keep
/// what a file has brought.
constexpr WindowTable Table(std::span<const PageEntry> pages, BuildStep* build) {
    return {.pages = pages,
            .newFitting = FittingHandle::Make<CPipeToCone>,
            .buildFitting = build,
            .multiple = true,
            .miscellaneous = ConePattern,
            .joinAngleDisable = true,
            .patternSelect = Patterns,
            .patternSurface = PatternSurfaces};
}

}  // namespace korvet::pipe_on_cone
