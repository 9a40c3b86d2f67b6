#include "form/fields.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string_view>
#include <utility>

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
void ShowAbout(const FieldContext& context, const TextBox& box, MessageBox message) {
    Reveal(context, box);
    message.box = box.parameterIndex;
    message.control = box.name;
    context.boxes.Show(message);
}

MessageBox NotANumber(const FieldContext& context) {
    return {.text = GetMessage(NotAValidNumber, context.options.Language),
            .style = QuestionBox,
            .title = std::string(ProductTitle)};
}

/// Shows why a box is refused and puts the focus on it, which selects its text.
Outcome Refuse(const FieldContext& context, TextBox& box, MessageBox message) {
    ShowAbout(context, box, std::move(message));
    context.focus = box.name;
    SelectFieldText(box);
    return Refused;
}

Outcome Refuse(const FieldContext& context, TextBox& box, const std::string& text) {
    return Refuse(context, box, MessageBox{.text = text, .style = ExclamationBox, .title = "User Error"});
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
    const bool underWay =
        box.text.empty() || box.text == "," || IsNumberUnderWay(box.text, context.decimalMark);
    if (!underWay) {
        ShowAbout(context, box, NotANumber(context));
        SelectFieldText(box);
    }
}

std::string WithoutPastedBlanks(const std::string& before, const std::string& after) {
    const auto [cut, start] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const auto behind = std::mismatch(before.rbegin(), std::make_reverse_iterator(cut), after.rbegin(),
                                      std::make_reverse_iterator(start));
    const auto end = behind.second.base();
    const std::string_view came(start, end);
    if (came == " ") {
        return after;  // typed
    }
    return std::string(after.begin(), start).append(Trimmed(came)).append(end, after.end());
}

Outcome CheckNumber(const FieldContext& context, TextBox& box) {
    return ParseNumber(box.text, context.decimalMark) ? Passed : Refuse(context, box, NotANumber(context));
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

Outcome RefuseAsNotMakeable(const FieldContext& context, TextBox& box, const std::string& reason) {
    return Refuse(context, box, NotMakeable(reason));
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
