// The one place where numbers become text and text becomes numbers.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace korvet {

/// value rounded to `places` decimal places (0 to 15), halves to even on the value scaled by ten to the
/// places. Throws ArithmeticError when value is not finite or the scaled value overflows.
double RoundPlaces(double value, int places);

/// General form: at most 15 significant digits, no trailing zeros, exponent form below 0.0001 and from 1e15
/// on. A negative zero is written as 0. Throws ArithmeticError when value is not finite.
std::string NumberText(double value, char decimalMark = '.');

/// NumberText of RoundPlaces.
std::string RoundedText(double value, int places, char decimalMark = '.');

/// The fewest digits that read back to the same double. Throws ArithmeticError when not finite.
std::string ShortestText(double value, char decimalMark = '.');

/// The number that a text holds: blanks around it are dropped, the decimal mark is `decimalMark` or a point,
/// an exponent is allowed, group separators are not. Nothing when it is no number, or not a finite one.
std::optional<double> ParseNumber(std::string_view text, char decimalMark = '.');

/// Whether a text is a number (ParseNumber), or what one has begun with while it is typed: "-", ".", "1e-".
bool IsNumberUnderWay(std::string_view text, char decimalMark = '.');

/// The number on a line of a file, which may have been written in any country: a point or a comma is its
/// decimal mark. Nothing when it is no number, or not a finite one.
std::optional<double> ParseFileNumber(std::string_view text);

/// A whole number in decimal digits with an optional sign, blanks around it dropped. Nothing when it is none
/// or does not lie in the given range.
std::optional<int> ParseWholeNumber(std::string_view text, int lowest, int highest);

/// The text without the blanks and control characters around it.
std::string_view Trimmed(std::string_view text);

/// Whether the two texts are equal but for the case of their ASCII letters.
bool EqualIgnoringCase(std::string_view a, std::string_view b);

}  // namespace korvet
