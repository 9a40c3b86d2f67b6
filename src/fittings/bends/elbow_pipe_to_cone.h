// Elbow of a cone and a round pipe that meet on one mitre.
#pragma once

#include <string>

#include "fittings/cones/right_cone.h"
#include "fittings/pipes/right_cylinder.h"

namespace korvet {

/// The value of Miscellaneous that asks for the pattern of the cone; any other one asks for that of the pipe.
inline constexpr std::int16_t ConeOfElbow = 1;

/// The two elbows by their names in the catalogue. Of the second the pipe is the wide part; it hangs down,
/// and the cone leads to the right.
inline constexpr const char* ConeToPipeElbow = "Cone to Pipe Elbow";
inline constexpr const char* PipeToConeElbow = "Pipe to Cone Elbow";

/// Lengths are mean dimensions in the user's unit, angles radians. The cone stands on its base about the
/// origin, its axis is z; the centre lines meet at (0, 0, Length1), and the pipe goes on from there in the
/// plane of x and z, towards -x. Both touch a sphere about that point with the pipe's radius, and so meet in
/// a plane. A cone narrower than the pipe has its apex below.
struct CElbowPipeToCone {
    FittingInputs inputs;    ///< Miscellaneous may be ConeOfElbow; Dtype is not read
    FittingResults results;  ///< ModelSurfaceList and PatternSurfaceList

    /// The name in the catalogue. For PipeToConeElbow the finished model is turned by PipeAngle about y
    /// through the origin, and its seams stand half a turn further.
    std::string Category;

    double ConeRad = 0;    ///< of the cone's base
    double PipeRad = 0;    ///< of the pipe
    double PipeAngle = 0;  ///< between the centre lines of the two, from a quarter turn to below a half
    double Length1 = 0;    ///< centre line of the cone, from its base to where the centre lines meet
    double Length2 = 0;    ///< centre line of the pipe, from there to its free end

    /// Fills results.ModelSurfaceList: the cone with segs + 1 stations, List1 its mitre and List2 its base;
    /// the pipe with 2 * segs + 1, List1 its free end and List2 its mitre. Flag is the station number modulo
    /// 2. Both seams lie on the inside of the elbow, those of PipeToConeElbow on its outside; JoinAngle turns
    /// them on. HalfPattern keeps the first half of either part's stations, on one side.
    /// Throws ArithmeticError, saying why, when there is no such cone and when a mitre runs past the end of
    /// its part.
    void ConstructModel();

    /// Fills results.PatternSurfaceList with one part: the cone unrolled about its apex, with its warnings,
    /// or the stretch-out of the pipe. Of laps there is only that of the seam, when JoinType is above 0.
    void DevelopModel();

  private:
    /// The mitre as each part's own cutting plane.
    struct Mitre {
        CutPlane cone;
        CutPlane pipe;
    };

    [[nodiscard]] bool IsPipeToCone() const { return Category == PipeToConeElbow; }
    [[nodiscard]] double Seam() const;
    [[nodiscard]] double HalfAngle() const;
    [[nodiscard]] Mitre MitreOf(double c) const;
    void SetParts();

    CRightCone cone_;
    CRightCylinder pipe_;
};

}  // namespace korvet
