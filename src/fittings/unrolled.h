// The stretch-out of surfaces whose rules are parallel.
#pragma once

#include "core/rule_surf.h"

namespace korvet {

/// A flat strip of the rules of `model`, from List1 to List2: station 1 at x = 0, the next ones `spacing`
/// apart (user's unit), each rule upward from y = 0 to its length. The stations of the upper edge, List1,
/// take their flags from `upperFlags`, those of the lower one, List2, from the model's List2. Both lists have
/// the count of the model's List2; throws ListError when List1 or upperFlags is shorter.
CRuleSurf UnrolledRules(const CRuleSurf& model, const C3DPoints& upperFlags, double spacing);

}  // namespace korvet
