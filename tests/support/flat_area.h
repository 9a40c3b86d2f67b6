// The area of a pattern as it lies on the sheet.
#pragma once

#include "core/rule_surf.h"

namespace korvet {

/// The area of a flat strip, by the shoelace formula round its outline; where its edges cross, what lies
/// beyond the crossing counts against it.
inline double FlatArea(const CRuleSurf& pattern) {
    double twice = 0;
    C3DPoint before = pattern.List2->Item(1);
    const auto goTo = [&](const C3DPoint& p) {
        twice += before.x * p.y - p.x * before.y;
        before = p;
    };
    for (const C3DPoint& p : *pattern.List2) {
        goTo(p);
    }
    for (std::size_t i = pattern.List1->Count(); i >= 1; --i) {
        goTo(pattern.List1->Item(i));
    }
    goTo(pattern.List2->Item(1));
    return twice / 2;
}

/// The area of all patterns.
inline double FlatArea(const CRuleSurfs& patterns) {
    double area = 0;
    for (const CRuleSurf& pattern : patterns) {
        area += FlatArea(pattern);
    }
    return area;
}

}  // namespace korvet
