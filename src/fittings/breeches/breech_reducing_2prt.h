// Round pipe that divides into two round outlets, made of two like pieces that meet on a plane.
#pragma once

#include "core/fitting.h"

namespace korvet {

/// Lengths are mean dimensions in the user's unit, angles radians. The pipe's circle lies in the plan about
/// the origin. Outlet A stands on the side of +x and outlet B on that of -x, by the signs of their angles,
/// each the end of a piece of its own; the pieces meet on the plane x = 0.
struct CBreechReducing2Prt {
    FittingInputs inputs;    ///< Dtype and Miscellaneous are not read
    FittingResults results;  ///< ModelSurfaceList and PatternSurfaceList

    double PipeRad = 0;
    double ConeRadA = 0;  ///< of each outlet
    double ConeRadB = 0;
    double ConeLengthA = 0;  ///< from the origin to the centre of each outlet, in the plane of x and z
    double ConeLengthB = 0;
    double CLAngleA = 0;  ///< of that line from z towards +x
    double CLAngleB = 0;
    double ConeFaceAngleA = 0;  ///< turn of each outlet's circle about y through its centre, from x to z
    double ConeFaceAngleB = 0;
    double Offset = 0;  ///< y of the outlets' centres

    /// Fills results.ModelSurfaceList with the pieces of outlet A and outlet B: List1 the outlet, List2 the
    /// circle of the pipe. Rules to a point of that circle on the other piece's side (its x, rounded to 5
    /// places, decides) begin where they pass x = 0 instead. Each list has 2 * segs + 1 stations, Flag the
    /// station number modulo 2; 4 is added on List2 where a rule begins on x = 0. The stations of A start at
    /// JoinAngle and half a turn, those of B at JoinAngle, on the plane's side both. HalfPattern keeps the
    /// first half of the stations. Outlets that reach over the plane are made as they come.
    void ConstructModel();

    /// Fills results.PatternSurfaceList with piece A, laid flat triangle by triangle (see CTriangulation),
    /// with laps when JoinType is above 0. The one pattern serves both pieces. No warnings.
    void DevelopModel();

  private:
    /// One of the outlets.
    struct Outlet {
        double radius;
        double length;
        double clAngle;
        double faceAngle;
    };

    [[nodiscard]] CRuleSurf Piece(const Outlet& outlet, double start, double side) const;
};

}  // namespace korvet
