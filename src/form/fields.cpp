#include "form/fields.h"

#include <cmath>

#include "core/checked.h"
#include "core/constants.h"
#include "core/number_text.h"
#include "form/messages.h"

namespace korvet {
namespace {

void Reveal(const FieldContext& context, const TextBox& box) {
    if (context.reveal) {
        context.reveal(box);
    }
}

/// A message about one box.
void ShowAbout(const FieldContext& context, const TextBox& box, BoxStyle style, std::string_view title,
               const std::string& text) {
    Reveal(context, box);
    context.boxes.Show({.text = text,
                        .style = style,
                        .title = std::string(title),
                        .box = box.parameterIndex,
                        .control = box.name});
}

void ShowNotANumber(const FieldContext& context, const TextBox& box) {
    ShowAbout(context, box, QuestionBox, ProductTitle, GetMessage(NotAValidNumber, context.options.Language));
}

/// Shows why a box is refused and puts the focus on it, which selects its text.
Outcome Refuse(const FieldContext& context, TextBox& box, const std::string& text) {
    ShowAbout(context, box, ExclamationBox, "User Error", text);
    context.focus = box.name;
    SelectFieldText(box);
    return Refused;
}

std::string LimitText(const FieldContext& context, int messageId, double limit) {
    return GetMessage(messageId, context.options.Language) + FormatLimit(context, limit);
}

/// The shape of all the checks of a number: message 9 when it is none, `text()` when `passes(value)` is
/// false.
template <typename Passes, typename Text>
Outcome Check(const FieldContext& context, TextBox& box, Passes passes, Text text) {
    if (CheckNumber(context, box)) {
        return Refused;
    }
    return passes(FieldValue(context, box)) ? Passed : Refuse(context, box, text());
}

}  // namespace

void SelectFieldText(TextBox& box) {
    box.selectionStart = 0;
    box.selectionLength = box.text.size();
}

void CheckFieldChange(const FieldContext& context, TextBox& box) {
    const bool underWay = box.text.empty() || box.text == "-" || box.text == "." || box.text == ",";
    if (!underWay && !ParseNumber(box.text, context.decimalMark)) {
        ShowNotANumber(context, box);
        SelectFieldText(box);
    }
}

Outcome CheckNumber(const FieldContext& context, TextBox& box) {
    if (ParseNumber(box.text, context.decimalMark)) {
        return Passed;
    }
    ShowNotANumber(context, box);
    context.focus = box.name;
    SelectFieldText(box);
    return Refused;
}

double FieldValue(const FieldContext& context, const TextBox& box) {
    const auto value = ParseNumber(box.text, context.decimalMark);
    if (!value) {
        throw ArithmeticError("\"" + box.text + "\" is not a number");
    }
    return *value;
}

std::string FormatLimit(const FieldContext& context, double value) {
    return RoundedText(value, context.options.Decimals, context.decimalMark);
}

Outcome CheckPositive(const FieldContext& context, TextBox& box) {
    return Check(
        context, box, [](double value) { return value > 0; },
        [&] { return GetMessage(MustBeAboveZero, context.options.Language); });
}

Outcome CheckLessThan(const FieldContext& context, TextBox& box, double limit) {
    return Check(
        context, box, [limit](double value) { return value < limit; },
        [&] { return LimitText(context, MustBeLessThan, limit); });
}

Outcome CheckGreaterThan(const FieldContext& context, TextBox& box, double limit) {
    return Check(
        context, box, [limit](double value) { return value > limit; },
        [&] { return LimitText(context, MustBeGreaterThan, limit); });
}

Outcome CheckAtMost(const FieldContext& context, TextBox& box, double limit) {
    return Check(
        context, box, [limit](double value) { return value <= limit; },
        [&] { return LimitText(context, MustBeAtMost, limit); });
}

Outcome CheckAtLeast(const FieldContext& context, TextBox& box, double limit) {
    return Check(
        context, box, [limit](double value) { return value >= limit; },
        [&] { return LimitText(context, MustBeAtLeast, limit); });
}

Outcome CheckNotEqual(const FieldContext& context, TextBox& box, double limit) {
    return Check(
        context, box, [limit](double value) { return value != limit; },
        [&] { return LimitText(context, CannotBeEqualTo, limit); });
}

Outcome CheckInteger(const FieldContext& context, TextBox& box) {
    return Check(
        context, box, [](double value) { return value == std::trunc(value); },
        [&] { return GetMessage(MustBeInteger, context.options.Language); });
}

Outcome CheckRoomForThickness(const FieldContext& context, TextBox& box, double value, double allowance) {
    return value >= allowance
               ? Passed
               : Refuse(context, box, GetMessage(NoRoomForThickness, context.options.Language));
}

Outcome CheckBoxRoomForThickness(const FieldContext& context, TextBox& box, double allowance) {
    if (CheckNumber(context, box)) {
        return Refused;
    }
    return CheckRoomForThickness(context, box, FieldValue(context, box), allowance);
}

Outcome CheckNotSmaller(const FieldContext& context, double a, double b, TextBox& box) {
    if (a >= b) {
        return Passed;
    }
    Reveal(context, box);
    context.focus = box.name;
    return Refused;
}

Outcome CheckSegs(const FieldContext& context, TextBox& box) {
    const auto reachesOne = [](double value) { return value >= MinSegs; };
    const auto aboveZeroText = [&] { return GetMessage(MustBeAboveZero, context.options.Language); };
    return RefusedIf(Check(context, box, reachesOne, aboveZeroText) || CheckInteger(context, box) ||
                     CheckAtMost(context, box, MaxSegs));
}

}  // namespace korvet
