// A large model for what grows with the number of strips: a pipe that stands on a mitred bend.
#pragma once

#include <cmath>
#include <memory>
#include <numbers>

#include "core/rule_surf.h"

namespace korvet {

/// A bend of `pieces` mitred pieces through a right angle, with radius 500 and a pipe of diameter 200 about
/// it, and on its back an upright pipe of 120: `around` strips to each piece, in the plane y = 0.
inline CRuleSurfs PipeOnBend(int pieces, int around) {
    constexpr double BendRadius = 500;
    constexpr double PipeRadius = 100;
    constexpr double StandingRadius = 60;
    constexpr double StandingTop = 900;
    const double step = std::numbers::pi / 2 / pieces;
    const auto turned = [&](int station) { return 2 * std::numbers::pi * station / around; };
    // The joint planes hold the bend's axis, the y axis; a mitre is wider than its pipe in its plane.
    const auto joint = [&](int number) {
        const double angle = number * step;
        const double wider = number == 0 || number == pieces ? 1 : 1 / std::cos(step / 2);
        auto ring = std::make_shared<C3DPoints>();
        for (int i = 0; i <= around; ++i) {
            const double out = wider * (BendRadius + PipeRadius * std::cos(turned(i)));
            ring->Add({out * std::cos(angle), PipeRadius * std::sin(turned(i)), out * std::sin(angle), 0});
        }
        return ring;
    };
    CRuleSurfs model;
    for (int piece = 0; piece < pieces; ++piece) {
        CRuleSurf surface;
        surface.List1 = joint(piece);
        surface.List2 = joint(piece + 1);
        model.Add(surface);
    }
    CRuleSurf standing;
    standing.List1 = std::make_shared<C3DPoints>();
    standing.List2 = std::make_shared<C3DPoints>();
    for (int i = 0; i <= around; ++i) {
        const double x = BendRadius / 2 + StandingRadius * std::cos(turned(i));
        const double y = StandingRadius * std::sin(turned(i));
        const double out = BendRadius + std::sqrt(PipeRadius * PipeRadius - y * y);
        standing.List1->Add({x, y, StandingTop, 0});
        standing.List2->Add({x, y, std::sqrt(out * out - x * x), 0});
    }
    model.Add(standing);
    return model;
}

}  // namespace korvet
