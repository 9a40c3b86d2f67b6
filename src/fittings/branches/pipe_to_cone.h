// Round pipe that enters a right cone from the side, from above or at an angle.
#pragma once

#include "core/fitting.h"
#include "fittings/cone_unroller.h"

namespace korvet {

/// The values of Miscellaneous that CPipeToCone tells apart: which pattern is made. Any other value makes
/// none.
enum PipeToConePattern : std::int16_t { ConePattern = 1, PipePattern = 2 };

/// The values of Dtype: how the pipe enters. Any other value is as PipeAtAngle.
enum PipeEntry : std::int16_t {
    PipeFromSide = 0,  ///< its axis lies level, along x
    PipeFromTop = 1,   ///< upright
    PipeAtAngle = 2    ///< in the plane of x and z
};

/// Lengths are mean dimensions in the user's unit, angles radians. The cone stands upright on its base circle
/// about the origin, its axis is z.
struct CPipeToCone {
    FittingInputs inputs;  ///< Miscellaneous is a PipeToConePattern, Dtype a PipeEntry; JoinAngle is not read
    FittingResults results;  ///< ModelSurfaceList and PatternSurfaceList

    double BaseRad = 0;     ///< of the cone
    double ConeAngle = 0;   ///< half angle of the cone
    double ApexHeight = 0;  ///< of the cone, above its base; set by ConstructModel
    double CPHeight1 = 0;   ///< of the cone's upper end
    double PipeRad = 0;
    double PipeLength =
        0;  ///< from the plane x = 0, from above from the plane of the base; below 0: towards -x

    /// What an upright pipe is turned by from z towards -x, for one at an angle: -QuarterTurn lies level
    /// along x.
    double PipeAngle = 0;

    double CenterDistance = 0;  ///< of the pipe's axis: its height at x = 0, from above its x
    double Offset = 0;          ///< of the pipe's axis from the plane of x and z, along +y
    bool Invert = false;        ///< the finished model is turned upside down, about y

    /// Fills results.ModelSurfaceList with the cone and the pipe.
    /// Cone: segs + 1 stations from a seam at -x round to it again, List1 the upper end, List2 the base;
    /// List3 the edge of the hole. Pipe: 2 * segs + 1 stations from its lowest rule, from above from the one
    /// nearest to the cone's axis, round to it again; List1 its free end, List2 the edge on the cone. Flag is
    /// the station number modulo 2 everywhere. HalfPattern keeps the first half of either part's stations,
    /// and of the hole the half that lies on the kept half of the cone. Throws ArithmeticError, saying why,
    /// when a rule of the pipe starts outside the cone or ends in it, and when the hole is not all on the
    /// cone or lies across its seam.
    void ConstructModel();

    /// Fills results.PatternSurfaceList with the part that Miscellaneous asks for, or with nothing; with laps
    /// when JoinType is above 0. No warnings.
    /// Pipe: unrolled, List1 at the length of each rule, List2 at y = 0.
    void DevelopModel();

    /// The cone of the last ConstructModel, as it stands before it is turned upside down, unrolled about the
    /// apex at the origin, the seam along +x; List3 the hole, RefPoint the apex, which laps take away.
    [[nodiscard]] CRuleSurf DevelopB() const;

  private:
    [[nodiscard]] Cone Wall() const;
    [[nodiscard]] CRuleSurf BuildCone();
    [[nodiscard]] CRuleSurf BuildPipe() const;
    [[nodiscard]] PointList BuildIntersectionList(const CRuleSurf& pipe) const;
    [[nodiscard]] PointList KeptHole(const PointList& hole) const;
    [[nodiscard]] CRuleSurf DevelopPipe() const;

    CRuleSurf uprightCone_;
};

}  // namespace korvet
