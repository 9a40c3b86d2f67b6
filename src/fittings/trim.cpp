#include "fittings/trim.h"

namespace korvet {
namespace {

PointList Stretch(const C3DPoints& list, std::size_t first, std::size_t last) {
    auto stretch = std::make_shared<C3DPoints>();
    stretch->Reserve(last - first + 1);
    for (std::size_t i = first; i <= last; ++i) {
        stretch->Add(list.Item(i));
    }
    return stretch;
}

}  // namespace

CRuleSurf Trimmed(const CRuleSurf& surface, Trim trim) {
    return trim == Trim::Whole ? surface : TrimSurface(surface, trim == Trim::Quarter, false);
}

void RefuseHalf(FittingInputs& inputs, FittingResults& results) {
    if (inputs.HalfPattern) {
        results.warnings.push_back({.messageId = HalfPatternNotApplicable, .userError = true});
        inputs.HalfPattern = false;
    }
}

PointList FirstHalf(const C3DPoints& list) {
    return Stretch(list, 1, list.Count() / 2 + 1);
}

PointList SecondHalf(const C3DPoints& list) {
    return Stretch(list, list.Count() / 2 + 1, list.Count());
}

}  // namespace korvet
