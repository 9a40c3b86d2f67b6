#include "form/fitting_form.h"

#include "core/fitting.h"

namespace korvet {

bool FittingForm::Refuse(int messageId) {
    ShowUserError(context_.boxes, GetMessage(messageId, context_.options.Language));
    return true;
}

bool FittingForm::CheckAxes(int topBox, int baseBox) {
    const bool topMissing = Value(topBox) != 0 && !options.optTopAngle.selected;
    const bool baseMissing = Value(baseBox) != 0 && !options.optBaseAngle.selected;
    return (topMissing || baseMissing) && Refuse(AxisMustBeSelected);
}

bool FittingForm::CheckPatternSelected() {
    return patternView_ && !options.optPatternSelect.selected && Refuse(PatternMustBeSelected);
}

void FittingForm::RefuseHalfPattern() {
    Refuse(HalfPatternNotApplicable);
    settings.HalfPattern = false;
}

}  // namespace korvet
