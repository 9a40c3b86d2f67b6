// Right pyramid of equal sides, whole or cut off by a plane that may be tilted.
#pragma once

#include "core/fitting.h"
#include "fittings/cone_unroller.h"

namespace korvet {

/// Lengths are mean dimensions in the user's unit, angles radians. The axis is z and the base lies at height
/// 0 about the origin. The corners stand on the cone round the pyramid: its edges are generators of that
/// cone, the first of them at JoinAngle. segs has no effect, and Dtype has none.
struct CPyramid {
    FittingInputs inputs;
    FittingResults results;  ///< ModelSurface and PatternSurface

    double BaseRad = 0;     ///< of the circle through the corners of the base
    double ApexHeight = 0;  ///< above the base
    double CPHeight = 0;    ///< height of the cutting plane on the axis; that of the apex: nothing is cut off
    double CPAngle = 0;     ///< tilt of the cutting plane: above 0 it falls towards +x
    std::int16_t NoOfSides = 0;

    /// Half the angle at the apex of the cone through the corners, arctan(BaseRad / ApexHeight).
    [[nodiscard]] double ConeAngle() const;

    /// Fills results.ModelSurface: List1 the corners on the cutting plane, List2 those of the base, NoOfSides
    /// + 1 of each, every one a rule corner; the last edge lies on the first. There is no half: warns with
    /// 19, as a user error, and takes HalfPattern back when it is set.
    void ConstructModel();

    /// Fills results.PatternSurface: the apex at the origin, every corner at its true distance from it, with
    /// laps when JoinType is above 0. The angle between two edges is that of the arc of the base circle on
    /// the cone, a little more than that of the flat side. The first edge stands at one such angle from +x.
    /// No reference point.
    void DevelopModel();

  private:
    [[nodiscard]] Cone ConeRound() const;
};

}  // namespace korvet
