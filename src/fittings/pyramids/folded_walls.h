// Walls of fittings of equal sides: flat from edge to edge, each edge a bend line.
#pragma once

#include "core/rule_surf.h"
#include "fittings/ring.h"

namespace korvet {

/// One edge of a fitting of equal sides, where two of its walls meet.
struct WallEdge {
    C3DPoint upper;
    C3DPoint lower;
};

/// The strip of the edges that `edgeAt` gives for each station of a ring: List1 the upper ends, List2 the
/// lower ones, all with the flag of a rule corner.
template <typename EdgeAt>
CRuleSurf FoldedWalls(const Ring& ring, EdgeAt edgeAt) {
    CRuleSurf walls;
    walls.List1 = std::make_shared<C3DPoints>();
    walls.List2 = std::make_shared<C3DPoints>();
    walls.List1->Reserve(ring.Count() + 1);  // with the end of a seam lap
    walls.List2->Reserve(ring.Count() + 1);
    for (const Station& station : ring) {
        const WallEdge edge = edgeAt(station);
        walls.List1->Add(edge.upper).Flag = CornerRuleStation;
        walls.List2->Add(edge.lower).Flag = CornerRuleStation;
    }
    return walls;
}

}  // namespace korvet
