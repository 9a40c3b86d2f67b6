// The stations of a pattern that are marked out: those with a rule line.
#pragma once

#include <algorithm>

#include "core/rule_surf.h"
#include "display/extent_frame.h"

namespace korvet {

/// The rule stations of a surface's lists; C is empty where List3 is not present.
struct Stations {
    explicit Stations(const CRuleSurf& surface)
        : A(FlaggedPoints(PointsOf(surface.List1))), B(FlaggedPoints(PointsOf(surface.List2))) {
        if (IsPresent(surface.List3)) {
            C = FlaggedPoints(*surface.List3);
        }
    }

    /// How many rulings have both ends.
    [[nodiscard]] std::size_t Rulings() const { return std::min(A.Count(), B.Count()); }

    C3DPoints A;
    C3DPoints B;
    C3DPoints C;
};

}  // namespace korvet
