// Everything about a pattern that is not a dimension of the fitting: material, seam, laps, segments, kerf.
// Lengths are in the user's unit, angles in degrees.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace korvet {

/// Which laps a fitting has, bit by bit: 1 the top (List1) side, 2 the seam, 4 the bottom (List2) side.
enum LapMask : std::int16_t { NoLaps = 0, SeamLapOnly = 2, AllLaps = 7 };

/// The settings of one fitting window, with what the settings dialog may offer for its fitting.
struct CPatternSettings {
    double LapSize0 = 0;                  ///< width of the lap along the top (List1)
    double LapSize1 = 0;                  ///< width of the lap along the seam
    double LapSize2 = 0;                  ///< width of the lap along the bottom (List2)
    bool HalfPatternDisable = false;      ///< the dialog forces and greys a full pattern
    bool BranchMaterialEnable = false;    ///< the dialog shows the two-thickness frame
    bool MaterialDisable = false;         ///< the single-material frame is greyed
    bool TemplateTypeEnabled = false;     ///< template options are offered
    std::int16_t TemplateType = 0;        ///< 0 mean thickness, 1 wraps around the outside diameter
    std::string PositionString = "mean";  ///< the PositionWord of InOutMean, as the text block says it
    bool KerfEnabled = false;             ///< the kerf is offered
    double KerfSpacing = 0;               ///< gap between neighbouring pieces of a pattern
    std::int16_t LapEnable = NoLaps;      ///< a LapMask: the laps that the dialog offers
    std::int16_t JoinType = 0;            ///< 0 butt, 1 lap: laps are added
    bool JoinAngleDisable = false;        ///< the seam angle is greyed
    std::int16_t InOutMean = 0;           ///< the line that sizes are measured on, a MaterialSide
    bool HalfPattern = false;             ///< a half pattern is made, where the fitting has one
    std::int16_t NoOfSides = 0;  ///< of a polygonal section, 0 for a round one; the list of seams goes by it
    double JoinAngle = 0;        ///< plan angle of the seam, as the user sees it
    int segs = 24;               ///< fold lines of a full pattern: straight segments of a full circle
    double Thickness = 0;        ///< of the material
    double ThicknessA = 0;       ///< of the first of two sections (the branch pipe)
    double ThicknessB = 0;       ///< of the second (the trunk pipe)
};

/// The thicknesses that the user gives: of branch and trunk where the fitting has both, of its one material
/// else; none where that is greyed. None of them may be below 0.
std::span<double CPatternSettings::*const> GivenThicknesses(const CPatternSettings& settings);

/// The word for a MaterialSide: "mean", "inside" or "outside".
const char* PositionWord(std::int16_t inOutMean);

/// The line for the status bar: segments, thickness and join angle, with `decimalMark` in the numbers.
std::string StatusString(const CPatternSettings& settings, char decimalMark);

}  // namespace korvet
