// Unfolding of surfaces that no closed formula develops: the strip is laid flat triangle by triangle.
#pragma once

#include <optional>

#include "core/rule_surf.h"

namespace korvet {

/// A ruling in the flat: where it starts and the plan angle in which it runs, radians.
struct FlatRuling {
    C3DPoint start = {};
    double direction = 0;
};

/// The lengths from one ruling of a strip, a to b, to the next one, c to d, in the user's unit.
struct RulingStep {
    double ab = 0;
    double ac = 0;  ///< along List1
    double bd = 0;  ///< along List2
    double ad = 0;
    double bc = 0;
};

/// The next ruling in the flat. Both triangles are fanned from a: the one with c places the next start, the
/// one with d the line on which the next ruling lies. Each turns clockwise from this ruling, by
/// UnfoldingAngle; a side within its snap is 0 from there on, in the step too. Throws ArithmeticError when
/// the sides of a triangle do not close.
FlatRuling NextRuling(const FlatRuling& ruling, RulingStep& step);

/// Lays the strip between List1 and List2 of ModelSurface flat, one station after the other, from true
/// lengths in the user's unit. What holds in the flat: every ruling, every edge of List1, and the diagonal
/// from each point of List2 to the next one of List1. Each List2 point is placed by its ruling alone, on the
/// line that the second diagonal gives; where the four points of a station do not lie in one plane its edge
/// of List2 therefore comes out a little different from the model's.
struct CTriangulation {
    bool HalfPattern = false;           ///< held for the caller; not read
    std::optional<C3DPoint> BasePoint;  ///< where the first point of List1 lands; none: the origin
    CRuleSurf Pattern;                  ///< the result
    CRuleSurf ModelSurface;             ///< the surface to unfold

    /// Makes Pattern from ModelSurface: new lists of the same count n in the reverse order, station 1 of the
    /// model being station n of the pattern, flags with their points. The first ruling runs from BasePoint
    /// along +x and the strip turns clockwise from there. A side shorter than 1e-08 counts as 0, and a
    /// triangle with such a side as closed flat: it turns nothing. Angles are UnfoldingAngle's, so that
    /// narrow triangles keep their width. BasePoint takes the flag of the first station. Throws ListError
    /// when List1 or List2 is absent or List2 the shorter, ArithmeticError when the sides of a triangle do
    /// not close.
    void DevelopSurface();
};

/// The pattern of a surface, laid flat by a CTriangulation.
CRuleSurf Unfolded(const CRuleSurf& model);

}  // namespace korvet
