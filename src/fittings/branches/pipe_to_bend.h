// Round pipe that runs into the outside of a quarter bend.
#pragma once

#include "core/fitting.h"

namespace korvet {

/// Pieces of the bend that the model shows.
inline constexpr int ShownBendPieces = 13;

/// Lengths are mean dimensions in the user's unit, angles radians. The bend stands as CSegBendParallel does:
/// it starts square at the origin, going up, and turns towards -x about the line x = -BendCLRadius, z = 0.
/// The pipe lies level in the plane of the bend and comes from +x.
struct CPipeToBend {
    FittingInputs inputs;    ///< JoinAngle, Dtype and Miscellaneous are not read
    FittingResults results;  ///< ModelSurfaceList and PatternSurfaceList

    double Thickness = 0;           ///< of the pipe's material, for a template
    std::int16_t TemplateType = 0;  ///< see StretchOut
    double PipeCLHeight = 0;        ///< of the pipe's axis above the start of the bend
    double PipeLength = 0;          ///< from the centre of the bend to the pipe's free end, along x
    double BendRadius = 0;          ///< of the bend's section; at least PipeRadius
    double PipeRadius = 0;
    double BendCLRadius = 0;  ///< of the bend's centre line

    /// Fills results.ModelSurfaceList: the ShownBendPieces of the bend, which only show it, and behind them
    /// the pipe. Of the pipe List1 is the free end and List2 the edge that meets the wall of the bend as if
    /// it were round, a torus; segs + 1 stations run from the lowest rule round to it again, Flag the station
    /// number modulo 2. A pipe as wide as the bend touches it at either side: 4 is added to the Flag of those
    /// stations, corners where arcs have to stop. A rule that passes over the top of the bend ends above its
    /// centre. HalfPattern keeps the first half of the stations of every piece.
    void ConstructModel();

    /// Fills results.PatternSurfaceList with the stretch-out of the pipe: List1, the free end, along y = 0,
    /// List2 at the length of each rule; with laps when JoinType is above 0. The bend has no pattern. No
    /// warnings.
    void DevelopModel();

  private:
    [[nodiscard]] CRuleSurfs Bend() const;
    [[nodiscard]] bool IsTouchingSide(int station) const;
    [[nodiscard]] double MeetingX(double y, double z) const;
    [[nodiscard]] CRuleSurf Pipe() const;
};

}  // namespace korvet
