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

/// CheckNumber, with the message on the page of the box.
Outcome CheckNumberOnPage(const FieldContext& context, TextBox& box, PageSwap pages) {
    if (!ParseNumber(box.text, context.decimalMark)) {
        SwapPages(pages);
    }
    return CheckNumber(context, box);
}

/// Shows why a box is refused on its page and puts the focus on it, which selects its text.
Outcome Refuse(const FieldContext& context, TextBox& box, PageSwap pages, const std::string& text) {
    SwapPages(pages);
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
Outcome Check(const FieldContext& context, TextBox& box, PageSwap pages, Passes passes, Text text) {
    if (CheckNumberOnPage(context, box, pages)) {
        return Refused;
    }
    return passes(FieldValue(context, box)) ? Passed : Refuse(context, box, pages, text());
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

Outcome CheckPositive(const FieldContext& context, TextBox& box, PageSwap pages) {
    return Check(
        context, box, pages, [](double value) { return value > 0; },
        [&] { return GetMessage(MustBeAboveZero, context.options.Language); });
}

Outcome CheckLessThan(const FieldContext& context, TextBox& box, double limit, PageSwap pages) {
    return Check(
        context, box, pages, [limit](double value) { return value < limit; },
        [&] { return LimitText(context, MustBeLessThan, limit); });
}

Outcome CheckGreaterThan(const FieldContext& context, TextBox& box, double limit, PageSwap pages) {
    return Check(
        context, box, pages, [limit](double value) { return value > limit; },
        [&] { return LimitText(context, MustBeGreaterThan, limit); });
}

Outcome CheckAtMost(const FieldContext& context, TextBox& box, double limit, PageSwap pages) {
    return Check(
        context, box, pages, [limit](double value) { return value <= limit; },
        [&] { return LimitText(context, MustBeAtMost, limit); });
}

Outcome CheckAtLeast(const FieldContext& context, TextBox& box, double limit, PageSwap pages) {
    return Check(
        context, box, pages, [limit](double value) { return value >= limit; },
        [&] { return LimitText(context, MustBeAtLeast, limit); });
}

Outcome CheckNotEqual(const FieldContext& context, TextBox& box, double limit, PageSwap pages) {
    return Check(
        context, box, pages, [limit](double value) { return value != limit; },
        [&] { return LimitText(context, CannotBeEqualTo, limit); });
}

Outcome CheckInteger(const FieldContext& context, TextBox& box, PageSwap pages) {
    return Check(
        context, box, pages, [](double value) { return value == std::trunc(value); },
        [&] { return GetMessage(MustBeInteger, context.options.Language); });
}

Outcome CheckRoomForThickness(const FieldContext& context, TextBox& box, double value, double allowance,
                              PageSwap pages) {
    return value >= allowance
               ? Passed
               : Refuse(context, box, pages, GetMessage(NoRoomForThickness, context.options.Language));
}

Outcome CheckBoxRoomForThickness(const FieldContext& context, TextBox& box, double allowance,
                                 PageSwap pages) {
    if (CheckNumberOnPage(context, box, pages)) {
        return Refused;
    }
    return CheckRoomForThickness(context, box, FieldValue(context, box), allowance, pages);
}

Outcome CheckNotSmaller(const FieldContext& context, double a, double b, TextBox& box, PageSwap pages) {
    if (a >= b) {
        return Passed;
    }
    SwapPages(pages);
    context.focus = box.name;
    return Refused;
}

Outcome CheckSegs(const FieldContext& context, TextBox& box) {
    const auto reachesOne = [](double value) { return value >= MinSegs; };
    const auto aboveZeroText = [&] { return GetMessage(MustBeAboveZero, context.options.Language); };
    return RefusedIf(Check(context, box, {}, reachesOne, aboveZeroText) || CheckInteger(context, box) ||
                     CheckAtMost(context, box, MaxSegs));
}

}  // namespace korvet
