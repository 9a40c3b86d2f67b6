// Frustum of a right circular cone, cut at the top and the bottom by planes that may be tilted.
#pragma once

#include <optional>

#include "core/fitting.h"
#include "fittings/cone_unroller.h"

namespace korvet {

/// The values of Dtype that CRightCone tells apart.
enum ConeCut : std::int16_t {
    UpperRoof = 3,  ///< the top is two planes that meet along a ridge
    LowerRoof = 4   ///< the bottom is; any other value: one plane at the top and one at the bottom
};

/// Lengths are mean dimensions in the user's unit, angles radians; the axis is z, the base circle lies at
/// height 0 about the origin. A roof needs JoinAngle 0 and Offset from minus the cone's radius at the ridge
/// height to below it.
struct CRightCone {
    FittingInputs inputs;
    FittingResults results;  ///< ModelSurface and PatternSurface

    double ConeAngle = 0;   ///< half angle at the apex
    double CPAngle3 = 0;    ///< tilt of the second half of a roof
    double Offset = 0;      ///< along +x, from the axis to the ridge of a roof
    double CPAngle1 = 0;    ///< tilt of the upper plane: above 0 it falls towards +x
    double CPAngle2 = 0;    ///< tilt of the lower plane
    double ApexHeight = 0;  ///< of the apex above the base; set by ConstructModel
    double CPHeight1 = 0;   ///< height on the axis of the upper plane
    double CPHeight2 = 0;   ///< height on the axis of the lower plane
    double BaseRad = 0;     ///< radius at height 0

    /// Fills results.ModelSurface: List1 the upper edge, List2 the lower one, a station each at every step of
    /// FullTurn / segs from JoinAngle round to the closing station (segs + 1 of them), and in a roof one more
    /// at each end of the ridge. Flag is the station number modulo 2; ends of a ridge are rule corners on the
    /// edge that breaks. HalfPattern keeps the first half of the stations.
    void ConstructModel();

    /// Fills results.PatternSurface, unrolled about the apex at the origin, RefPoint the apex, with laps when
    /// JoinType is above 0. Warnings, in order: 28 when the top lap reaches the apex, 25 when the seam lap
    /// does not fit; a lap that is too large is laid all the same.
    void DevelopModel();

  private:
    /// The planes that bound a stretch of the cone; without a lower plane it stands on the base circle.
    struct Cut {
        CutPlane upper;
        std::optional<CutPlane> lower;
    };

    [[nodiscard]] Cone Wall() const;
    void AddStation(double t, const Cut& cut, std::int16_t upperFlag, std::int16_t lowerFlag);
    void AddPlainCut();
    void AddRoof(double ridgeHeight, const Cut& near, const Cut& far, ConeCut roof);
    void AddUpperRoof();
    void AddLowerRoof();
    void ApplyLaps(CRuleSurf& pattern);

    C3DPoints baseRing_;  ///< the base circle at each station
    C3DPoints upperEdge_;
    C3DPoints lowerEdge_;
};

}  // namespace korvet
