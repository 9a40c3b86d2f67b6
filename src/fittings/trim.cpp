#include "fittings/trim.h"

namespace korvet {

CRuleSurf Trimmed(const CRuleSurf& surface, Trim trim) {
    return trim == Trim::Whole ? surface : TrimSurface(surface, trim == Trim::Quarter, false);
}

void RefuseHalf(FittingInputs& inputs, FittingResults& results) {
    if (inputs.HalfPattern) {
        results.warnings.push_back({.messageId = HalfPatternNotApplicable, .userError = true});
        inputs.HalfPattern = false;
    }
}

PointList SecondHalf(const C3DPoints& list) {
    auto half = std::make_shared<C3DPoints>();
    for (std::size_t i = list.Count() / 2 + 1; i <= list.Count(); ++i) {
        half->Add(list.Item(i));
    }
    return half;
}

}  // namespace korvet
