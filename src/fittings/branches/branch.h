// Round branch pipe on a round trunk, at an angle and with a distance between the axes.
#pragma once

#include "core/fitting.h"
#include "fittings/ring.h"

namespace korvet {

/// The values of Miscellaneous that CBranch tells apart: which pattern is made. Any other value makes none.
enum BranchPattern : std::int16_t { TrunkPattern = 1, BranchPipePattern = 2 };

/// Lengths are mean dimensions in the user's unit, angles radians. The trunk's axis is z; a square branch
/// leaves it along +x, one at an acute angle along +x and downward. Branch and hole are cut against radii of
/// their own, which follow from the way the pipes are joined; in each pair the branch's radius and the
/// absolute Offset together must not exceed the trunk's radius.
struct CBranch {
    FittingInputs inputs;    ///< Miscellaneous is a BranchPattern; JoinAngle and Dtype are not read
    FittingResults results;  ///< ModelSurfaceList and PatternSurfaceList

    double AxialAngle = 0;         ///< between the axes of branch and trunk; QuarterTurn is a square branch
    double Offset = 0;             ///< of the branch's axis from the trunk's, along +y
    double LengthPipeA = 0;        ///< of the branch, along its axis from the trunk's axis
    double LengthPipeB = 0;        ///< of the trunk
    double LengthToIP = 0;         ///< along the trunk, from its lower end to where the axes meet
    double BranchRadiusPipeA = 0;  ///< of the branch, for the branch's edge
    double BranchRadiusPipeB = 0;  ///< of the trunk, for the branch's edge
    double TrunkRadiusPipeA = 0;   ///< of the branch, for the hole
    double TrunkRadiusPipeB = 0;   ///< of the trunk, for the hole and for the trunk itself
    double BranchThickness = 0;    ///< of the materials, for templates
    double TrunkThickness = 0;

    /// 0: a stretch-out is that of the radius; any other value: of the pipe's outside, to wrap round it.
    std::int16_t TemplateType = 0;

    /// ConstructModel throws for a branch so short that its edge runs past its free end. Where this is not
    /// set such a branch is built, and its pattern folds over.
    bool RefusesShortBranch = false;

    /// Fills results.ModelSurfaceList with the branch and the trunk, the trunk standing on z = 0. All lists
    /// have 2 * segs + 1 stations, Flag the station number modulo 2.
    /// Branch: List1 its free end, List2 the edge on the trunk, from its top round to it again; the edge has
    /// corners on both flanks (4 is added to the Flag), where arcs have to stop.
    /// Trunk: List1 its upper end, List2 the lower one, from a seam opposite the branch round to it again;
    /// List3 the edge of the hole, with the flags of the branch's edge.
    /// HalfPattern keeps stations 1 to segs + 1 of both pipes, and of the hole the half that lies on the kept
    /// half of the trunk, stations segs + 1 to the last.
    /// Throws ArithmeticError when the pipes don't meet, the axes don't cross, or the branch is refused as
    /// too short.
    void ConstructModel();

    /// Fills results.PatternSurfaceList with the pipe that Miscellaneous asks for, or with nothing; with laps
    /// when JoinType is above 0. No warnings. x runs along the circumference from the seam at 0.
    /// Branch: List1 at the length of each rule, List2 at y = 0, both with the flags of the model's List2.
    /// Trunk: the same with the flags of either end, and List3 the hole, in the middle of the whole plate and
    /// at the end of a half one. RefPoint, which laps take away, tells where the branch's axis stands.
    void DevelopModel();

  private:
    /// The two cylinders of a cut, and what follows from them.
    struct Cut {
        double rA;    ///< radius of the branch
        double rB;    ///< radius of the trunk
        double beta;  ///< plan angle at which the branch's axis meets the trunk's surface
    };

    [[nodiscard]] Cut MakeCut(double rA, double rB) const;
    [[nodiscard]] Ring Round() const;
    [[nodiscard]] C3DPoint IntersectionPoint(double theta, const Cut& cut) const;
    [[nodiscard]] PointList BuildIntersectionList(const Cut& cut) const;
    [[nodiscard]] C3DPoint BranchEndCentre(const Cut& cut) const;
    [[nodiscard]] PointList BuildBranchEndList(const C3DPoints& edge, const Cut& cut) const;
    [[nodiscard]] CRuleSurf BuildBranchSurface() const;
    [[nodiscard]] CRuleSurf BuildTrunkSurface() const;
    [[nodiscard]] C3DPoint FlatHolePoint(const C3DPoint& point, double c) const;
    [[nodiscard]] CRuleSurf DevelopBranch() const;
    [[nodiscard]] CRuleSurf DevelopTrunk() const;

    C3DPoint origin_;
    double lift_ = 0;  ///< height at which the trunk's lower end was built
};

}  // namespace korvet
