// Offset of three round pipes, each kept as a quarter of its ring: templates to mark the mitres with.
#pragma once

#include "core/fitting.h"
#include "fittings/pipes/right_cylinder.h"

namespace korvet {

/// Lengths are mean dimensions in the user's unit, angles radians. The axes of the pipes lie in the plan: the
/// first leg falls towards -y as it goes along +x, the middle piece runs on level, and the second leg rises
/// again. The lengths are those of the pipes' edges on the inside of both bends, their shortest rules. The
/// free ends of the legs lie in the plane y = 0.
struct CMurokMitre {
    FittingInputs inputs;    ///< of these only segs is read
    FittingResults results;  ///< ModelSurfaceList and PatternSurfaceList: first leg, second leg, middle piece

    double Thickness = 0;           ///< handed to the pieces
    std::int16_t TemplateType = 0;  ///< held for the caller, like KerfSpacing; not read
    double KerfSpacing = 0;
    double BaseRad = 0;
    double Length2 = 0;       ///< run of the second leg along x
    double Length1 = 0;       ///< run of the first leg along x
    double Offset = 0;        ///< by which the legs fall and rise; above 0
    double OffsetLength = 0;  ///< of the middle piece

    /// Fills results.ModelSurfaceList. Of the 2 * segs + 1 stations of each ring a quarter is kept, as
    /// TrimSurface does: below the plan, between the lowest rule and the shortest one. With an even segs the
    /// pieces meet there at every station; with an odd one the quarter ends half a step beside the shortest
    /// rule of the first leg and the middle piece, and beside the lowest of the second leg. Of a leg List1 is
    /// the mitre and List2 the free end, of the middle piece List1 meets the second leg.
    void ConstructModel();

    /// Fills results.PatternSurfaceList with the quarters of the stretch-outs, each put to a corner of the
    /// one before; they may overlap.
    void DevelopModel();

  private:
    /// What the pipe of a leg comes down to.
    struct Leg {
        double mitre;    ///< tilt of the mitre with the middle piece: half the change of direction
        double freeEnd;  ///< tilt of the free end
        double height;   ///< length of the axis
    };

    [[nodiscard]] Leg LegOf(double run) const;
    void SetPieces(const Leg& leg1, const Leg& leg2);
    [[nodiscard]] std::size_t ShortestRule() const;

    CRightCylinder first_;
    CRightCylinder second_;
    CRightCylinder middle_;
};

}  // namespace korvet
