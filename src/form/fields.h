// Tests of what is typed into a box, and the checks of limits that a build applies. A failed check shows its
// message, puts the focus on the box and returns true, so that a build returns at the first true.
#pragma once

#include "form/controls.h"
#include "form/message_boxes.h"
#include "form/options.h"

namespace korvet {

/// What the checks of one window or dialog work with.
struct FieldContext {
    MessageBoxes& boxes;
    const COptions& options;
    char decimalMark;    ///< the locale's; a point is always taken too
    std::string& focus;  ///< name of the control that has the focus
};

/// Two pages of a parameter panel, of which a failed check hides one and shows the other before the focus
/// moves.
struct PageSwap {
    Control* hide = nullptr;
    Control* show = nullptr;
};

/// Selects all the text of a box.
void SelectFieldText(TextBox& box);

/// The test while typing: message 9 unless the text is a number, empty, or a lone "-", "." or ",".
void CheckFieldChange(const FieldContext& context, TextBox& box);

/// The strict test: message 9, focus and selection on the box and false unless its text is a number.
bool IsNumericField(const FieldContext& context, TextBox& box);

/// The number in a box. Throws ArithmeticError when its text is none.
double FieldValue(const FieldContext& context, const TextBox& box);

/// A limit as a message shows it: rounded to the decimals of the options.
std::string FormatLimit(const FieldContext& context, double value);

/// Each Check first asks whether the box holds a number at all (message 9 when not), compares exactly, and
/// returns true after a failure. Limits are in the unit of the box.
bool CheckPositive(const FieldContext& context, TextBox& box, PageSwap pages = {});                // above 0
bool CheckLessThan(const FieldContext& context, TextBox& box, double limit, PageSwap pages = {});  // below
bool CheckGreaterThan(const FieldContext& context, TextBox& box, double limit, PageSwap pages = {});  // above
bool CheckAtMost(const FieldContext& context, TextBox& box, double limit, PageSwap pages = {});       // up to
bool CheckAtLeast(const FieldContext& context, TextBox& box, double limit, PageSwap pages = {});      // from
bool CheckNotEqual(const FieldContext& context, TextBox& box, double limit, PageSwap pages = {});
bool CheckInteger(const FieldContext& context, TextBox& box, PageSwap pages = {});

/// Fails with message 17 when the mean size `value` of the box is smaller than `allowance`, half the
/// material's thickness as the wall lies: there would be nothing left inside the wall.
bool CheckRoomForThickness(const FieldContext& context, TextBox& box, double value, double allowance,
                           PageSwap pages = {});

/// The same with the number in the box as the value.
bool CheckBoxRoomForThickness(const FieldContext& context, TextBox& box, double allowance,
                              PageSwap pages = {});

/// Fails without a word when a is below b: for use after a message of the caller.
bool CheckNotSmaller(const FieldContext& context, double a, double b, TextBox& box, PageSwap pages = {});

/// The tests of a free-text number of segments: a number (9), at least 1 (10), whole (18), at most 100,000
/// (13).
bool CheckSegs(const FieldContext& context, TextBox& box);

}  // namespace korvet
