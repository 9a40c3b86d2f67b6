#include "fittings/unrolled.h"

#include <memory>

#include "core/math_module.h"

namespace korvet {

CRuleSurf UnrolledRules(const CRuleSurf& model, const C3DPoints& upperFlags, double spacing) {
    const C3DPoints& upper = *model.List1;
    const C3DPoints& lower = *model.List2;
    CRuleSurf pattern;
    pattern.List1 = std::make_shared<C3DPoints>();
    pattern.List2 = std::make_shared<C3DPoints>();
    pattern.List1->Reserve(lower.Count() + 1);
    pattern.List2->Reserve(lower.Count() + 1);
    double x = 0;
    for (std::size_t i = 1; i <= lower.Count(); ++i) {
        const double length = Distance3D(upper.Item(i), lower.Item(i));
        pattern.List1->Add({x, length, 0, upperFlags.Item(i).Flag});
        pattern.List2->Add({x, 0, 0, lower.Item(i).Flag});
        x += spacing;
    }
    return pattern;
}

}  // namespace korvet
