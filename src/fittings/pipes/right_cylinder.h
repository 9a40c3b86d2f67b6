// Straight round pipe whose ends may be cut by planes; bends, elbows and branches are made of it piece by
// piece.
#pragma once

#include "core/fitting.h"
#include "fittings/plane_cut.h"

namespace korvet {

/// The values of Dtype that CRightCylinder tells apart; any other one: a plane at the top and at the bottom.
enum CylinderCut : std::int16_t {
    RoofOverTracedBase = 3,  ///< two planes meet in a ridge at the top; List2 runs round the base twice
    TiltedEnds = 4,          ///< both ends are planes: what bends and elbows are made of
    RoofTop = 5              ///< two planes meet in a ridge at the top, over a level base
};

/// Lengths are mean dimensions in the user's unit, angles radians. The axis is z, through the origin.
struct CRightCylinder {
    FittingInputs inputs;
    FittingResults results;  ///< ModelSurface and PatternSurface; a driving fitting may put its own there

    double Thickness = 0;  ///< of the material, for a template

    /// 0: the stretch-out is that of BaseRad; any other value: of the pipe's outside, to wrap round it.
    std::int16_t TemplateType = 0;

    double Rotation = 0;   ///< turn of the bottom plane's tilt about the axis
    double Offset = 0;     ///< along +x, from the axis to the ridge of a roof; within BaseRad
    double CPAngle1 = 0;   ///< tilt of the top plane: above 0 it rises towards +x
    double CPAngle2 = 0;   ///< tilt of the bottom plane: above 0 it falls towards +x
    double CPAngle3 = 0;   ///< tilt of a roof on the +x side of the ridge: above 0 it falls towards +x
    double CPHeight1 = 0;  ///< height of the top plane on the axis, of a roof at its ridge
    double CPHeight2 = 0;  ///< height of the bottom plane on the axis
    double BaseRad = 0;

    /// Fills results.ModelSurface: List1 the top edge, List2 the bottom edge. segs counts the rule lines and
    /// there is a station between each two of them: a ring has 2 * segs + 1 stations from JoinAngle round to
    /// the closing one, Flag the station number modulo 2. A roof starts at plan angle 0 whatever JoinAngle
    /// is, and has one station more at each end of the ridge, a rule corner on the top edge; under a
    /// RoofOverTracedBase List2 goes on with a whole ring from JoinAngle. HalfPattern keeps the first half of
    /// the stations.
    void ConstructModel();

    /// Fills results.PatternSurface: the stretch-out, x along the circumference from station 1 at 0, y the
    /// heights, a station for each one of the model's List1; with laps when JoinType is above 0. No
    /// warnings and no reference point.
    void DevelopModel();

  private:
    void AddPoint(C3DPoints& edge, double t, double z, std::int16_t flag) const;
    void AddRing(C3DPoints& edge, double turn, CutPlane plane) const;
    void AddRoof(C3DPoints& top, C3DPoints& bottom) const;
};

}  // namespace korvet
