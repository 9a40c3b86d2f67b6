#include "fittings/unrolled.h"

#include <memory>

#include "core/constants.h"
#include "core/math_module.h"

namespace korvet {

CRuleSurf UnrolledRules(const CRuleSurf& model, StraightEdge straight, double spacing) {
    if (!model.List1 || !model.List2 || model.List1->Count() != model.List2->Count()) {
        throw ListError("rules to unroll lack an end");
    }
    const std::size_t count = model.List1->Count();
    CRuleSurf pattern;
    pattern.List1 = std::make_shared<C3DPoints>();
    pattern.List2 = std::make_shared<C3DPoints>();
    pattern.List1->Reserve(count + 1);  // with the end of a seam lap
    pattern.List2->Reserve(count + 1);
    double x = 0;
    for (std::size_t i = 1; i <= count; ++i) {
        const C3DPoint& first = model.List1->Item(i);
        const C3DPoint& second = model.List2->Item(i);
        const double length = Distance3D(first, second);
        pattern.List1->Add({x, straight == StraightEdge::List1 ? 0 : length, 0, first.Flag});
        pattern.List2->Add({x, straight == StraightEdge::List2 ? 0 : length, 0, second.Flag});
        x += spacing;
    }
    return pattern;
}

double StretchOut(double radius, double thickness, std::int16_t templateType) {
    return FullTurn * (templateType == 0 ? radius : thickness / 2 + radius);
}

}  // namespace korvet
