// The stretch-out of surfaces whose rules are parallel.
#pragma once

#include <cstdint>

#include "core/rule_surf.h"

namespace korvet {

/// Which edge of a stretch-out is the straight one.
enum class StraightEdge { List1, List2 };

/// A flat strip of the rules of `model`: station 1 at x = 0, the next ones `spacing` apart (user's unit), the
/// straight edge at y = 0 and the other one above it, each point at the length of its rule. Both edges have
/// the flags of the model's. Throws ListError when List1 or List2 is absent or their counts differ.
CRuleSurf UnrolledRules(const CRuleSurf& model, StraightEdge straight, double spacing);

/// The length of the plate round a pipe of the mean `radius`: its circumference, for templateType 0, else
/// that of the outside of the material, for a template to wrap round it. User's unit.
double StretchOut(double radius, double thickness, std::int16_t templateType);

}  // namespace korvet
