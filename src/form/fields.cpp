#include "form/fields.h"

#include <cmath>

#include "core/checked.h"
#include "core/constants.h"
#include "core/number_text.h"
#include "form/messages.h"

namespace korvet {
namespace {

/// A message about one box.
void ShowAbout(const FieldContext& context, const TextBox& box, BoxStyle style, std::string_view title,
               const std::string& text) {
    context.boxes.Show({.text = text,
                        .style = style,
                        .title = std::string(title),
                        .box = box.parameterIndex,
                        .control = box.name});
}

void ShowNotANumber(const FieldContext& context, const TextBox& box) {
    ShowAbout(context, box, QuestionBox, ProductTitle, GetMessage(NotAValidNumber, context.options.Language));
}

void SwapPages(PageSwap pages) {
    if (pages.hide != nullptr && pages.show != nullptr) {
        pages.hide->visible = false;
        pages.show->visible = true;
    }
}

/// Whether the box holds no number: message 9 on its page, then.
bool HoldsNoNumber(const FieldContext& context, TextBox& box, PageSwap pages) {
    if (!ParseNumber(box.text, context.decimalMark)) {
        SwapPages(pages);
    }
    return !IsNumericField(context, box);
}

/// Shows the message of a failed check on its page and puts the focus on the box, which selects its text;
/// true, for the caller to return.
bool Fail(const FieldContext& context, TextBox& box, PageSwap pages, const std::string& text) {
    SwapPages(pages);
    ShowAbout(context, box, ExclamationBox, "User Error", text);
    context.focus = box.name;
    SelectFieldText(box);
    return true;
}

std::string LimitText(const FieldContext& context, int messageId, double limit) {
    return GetMessage(messageId, context.options.Language) + FormatLimit(context, limit);
}

/// The shape of all the checks of a number: message 9 when it is none, `text()` when `passes(value)` is
/// false.
template <typename Passes, typename Text>
bool Check(const FieldContext& context, TextBox& box, PageSwap pages, Passes passes, Text text) {
    if (HoldsNoNumber(context, box, pages)) {
        return true;
    }
    return passes(FieldValue(context, box)) ? false : Fail(context, box, pages, text());
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

bool IsNumericField(const FieldContext& context, TextBox& box) {
    if (ParseNumber(box.text, context.decimalMark)) {
        return true;
    }
    ShowNotANumber(context, box);
    context.focus = box.name;
    SelectFieldText(box);
    return false;
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

bool CheckPositive(const FieldContext& context, TextBox& box, PageSwap pages) {
    return Check(
        context, box, pages, [](double value) { return value > 0; },
        [&] { return GetMessage(MustBeAboveZero, context.options.Language); });
}

bool CheckLessThan(const FieldContext& context, TextBox& box, double limit, PageSwap pages) {
    return Check(
        context, box, pages, [limit](double value) { return value < limit; },
        [&] { return LimitText(context, MustBeLessThan, limit); });
}

bool CheckGreaterThan(const FieldContext& context, TextBox& box, double limit, PageSwap pages) {
    return Check(
        context, box, pages, [limit](double value) { return value > limit; },
        [&] { return LimitText(context, MustBeGreaterThan, limit); });
}

bool CheckAtMost(const FieldContext& context, TextBox& box, double limit, PageSwap pages) {
    return Check(
        context, box, pages, [limit](double value) { return value <= limit; },
        [&] { return LimitText(context, MustBeAtMost, limit); });
}

bool CheckAtLeast(const FieldContext& context, TextBox& box, double limit, PageSwap pages) {
    return Check(
        context, box, pages, [limit](double value) { return value >= limit; },
        [&] { return LimitText(context, MustBeAtLeast, limit); });
}

bool CheckNotEqual(const FieldContext& context, TextBox& box, double limit, PageSwap pages) {
    return Check(
        context, box, pages, [limit](double value) { return value != limit; },
        [&] { return LimitText(context, CannotBeEqualTo, limit); });
}

bool CheckInteger(const FieldContext& context, TextBox& box, PageSwap pages) {
    return Check(
        context, box, pages, [](double value) { return value == std::trunc(value); },
        [&] { return GetMessage(MustBeInteger, context.options.Language); });
}

bool CheckRoomForThickness(const FieldContext& context, TextBox& box, double value, double allowance,
                           PageSwap pages) {
    return value >= allowance
               ? false
               : Fail(context, box, pages, GetMessage(NoRoomForThickness, context.options.Language));
}

bool CheckBoxRoomForThickness(const FieldContext& context, TextBox& box, double allowance, PageSwap pages) {
    if (HoldsNoNumber(context, box, pages)) {
        return true;
    }
    return CheckRoomForThickness(context, box, FieldValue(context, box), allowance, pages);
}

bool CheckNotSmaller(const FieldContext& context, double a, double b, TextBox& box, PageSwap pages) {
    if (a >= b) {
        return false;
    }
    SwapPages(pages);
    context.focus = box.name;
    return true;
}

bool CheckSegs(const FieldContext& context, TextBox& box) {
    const auto reachesOne = [](double value) { return value >= MinSegs; };
    const auto aboveZeroText = [&] { return GetMessage(MustBeAboveZero, context.options.Language); };
    return Check(context, box, {}, reachesOne, aboveZeroText) || CheckInteger(context, box) ||
           CheckAtMost(context, box, MaxSegs);
}

}  // namespace korvet
