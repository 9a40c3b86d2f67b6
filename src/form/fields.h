// Tests of what is typed into a box, and the checks of limits that a build applies. A check that refuses
// brings its box into sight, shows its message, and puts the focus on the box.
#pragma once

#include <functional>
#include <string>

#include "form/controls.h"
#include "form/message_boxes.h"
#include "form/options.h"
#include "form/outcome.h"

namespace korvet {

/// What the checks of one window or dialog work with.
struct FieldContext {
    MessageBoxes& boxes;
    const COptions& options;
    char decimalMark;    ///< the locale's; a point is always taken too
    std::string& focus;  ///< name of the control that has the focus

    /// Brings a box into sight before a message is about it, where it may stand on a page that is not shown.
    std::function<void(const TextBox&)> reveal = {};
};

/// Selects all the text of a box.
void SelectFieldText(TextBox& box);

/// The test while typing: message 9 unless the text is a number or the beginning of one (IsNumberUnderWay),
/// empty, or a lone ",".
void CheckFieldChange(const FieldContext& context, TextBox& box);

/// The text that an edit from `before` to `after` leaves in a number box: what came in at once has been
/// pasted, and stands there without the blanks, tabs and line ends around it.
std::string WithoutPastedBlanks(const std::string& before, const std::string& after);

/// The strict test: refuses a text that is no number with message 9, focus and selection on the box.
Outcome CheckNumber(const FieldContext& context, TextBox& box);

/// The number in a box. Throws ArithmeticError when its text is none.
double FieldValue(const FieldContext& context, const TextBox& box);

/// A limit as a message shows it: rounded to the decimals of the options.
std::string FormatLimit(const FieldContext& context, double value);

/// Each of these asks for a number first (CheckNumber), and then compares exactly. Limits are in the unit of
/// the box.
Outcome CheckPositive(const FieldContext& context, TextBox& box);                   // above 0
Outcome CheckLessThan(const FieldContext& context, TextBox& box, double limit);     // below
Outcome CheckGreaterThan(const FieldContext& context, TextBox& box, double limit);  // above
Outcome CheckAtMost(const FieldContext& context, TextBox& box, double limit);       // up to
Outcome CheckAtLeast(const FieldContext& context, TextBox& box, double limit);      // from
Outcome CheckNotEqual(const FieldContext& context, TextBox& box, double limit);
Outcome CheckInteger(const FieldContext& context, TextBox& box);

/// Refuses with message 17 when the mean size `value` of the box is smaller than `allowance`, half the
/// material's thickness as the wall lies: there would be nothing left inside the wall.
Outcome CheckRoomForThickness(const FieldContext& context, TextBox& box, double value, double allowance);

/// The same with the number in the box as the value.
Outcome CheckBoxRoomForThickness(const FieldContext& context, TextBox& box, double allowance);

/// Refuses a box whose size has no shape, though it passes every check: the message that the fitting cannot
/// be made, with the reason below it.
Outcome RefuseAsNotMakeable(const FieldContext& context, TextBox& box, const std::string& reason);

/// Refuses without a word when a is below b: for use after a message of the caller.
Outcome CheckNotSmaller(const FieldContext& context, double a, double b, TextBox& box);

/// The tests of a free-text number of segments: a number (9), at least 1 (10), whole (18), at most 100,000
/// (13).
Outcome CheckSegs(const FieldContext& context, TextBox& box);

}  // namespace korvet
