#include "form/fitting_form.h"

#include "core/fitting.h"

namespace korvet {
namespace {

Outcome RefuseAbout(const FieldContext& context, const char* group, int messageId) {
    ShowUserError(context.boxes, GetMessage(messageId, context.options.Language), group);
    return Refused;
}

}  // namespace

Outcome FittingForm::Refuse(int messageId) {
    return RefuseAbout(context_, "", messageId);
}

Outcome FittingForm::CheckAxes(int topBox, int baseBox) {
    const bool topMissing = Value(topBox) != 0 && !options.optTopAngle.selected;
    const bool baseMissing = Value(baseBox) != 0 && !options.optBaseAngle.selected;
    if (!topMissing && !baseMissing) {
        return Passed;
    }
    return RefuseAbout(context_, topMissing ? "optTopAngle" : "optBaseAngle", AxisMustBeSelected);
}

Outcome FittingForm::CheckPatternSelected() {
    const OptionGroup& patterns = options.optPatternSelect;
    const bool missing = patternView_ && !patterns.captions.empty() && !patterns.selected;
    return missing ? RefuseAbout(context_, "optPatternSelect", PatternMustBeSelected) : Passed;
}

void FittingForm::RefuseHalfPattern() {
    ShowUserError(context_.boxes, GetMessage(HalfPatternNotApplicable, context_.options.Language));
    settings.HalfPattern = false;
}

}  // namespace korvet
