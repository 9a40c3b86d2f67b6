#include "form/fitting_form.h"

#include "core/fitting.h"

namespace korvet {

Outcome FittingForm::Refuse(int messageId) {
    ShowUserError(context_.boxes, GetMessage(messageId, context_.options.Language));
    return Refused;
}

Outcome FittingForm::CheckAxes(int topBox, int baseBox) {
    const bool topMissing = Value(topBox) != 0 && !options.optTopAngle.selected;
    const bool baseMissing = Value(baseBox) != 0 && !options.optBaseAngle.selected;
    return topMissing || baseMissing ? Refuse(AxisMustBeSelected) : Passed;
}

Outcome FittingForm::CheckPatternSelected() {
    const OptionGroup& patterns = options.optPatternSelect;
    const bool missing = patternView_ && !patterns.captions.empty() && !patterns.selected;
    return missing ? Refuse(PatternMustBeSelected) : Passed;
}

void FittingForm::RefuseHalfPattern() {
    ShowUserError(context_.boxes, GetMessage(HalfPatternNotApplicable, context_.options.Language));
    settings.HalfPattern = false;
}

}  // namespace korvet
