// Arithmetic that refuses to go on. A division by zero or the root of a negative number would put a NaN on
// the plate; here it becomes an error that the command turns into a message.
#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>

namespace korvet {

/// A value left the domain of an operation: division by zero, root of a negative number, a result that is not
/// finite, an integer that does not fit.
class ArithmeticError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// A list was asked for an item that it does not have, or a surface for a list that it does not have.
class ListError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Throws the ListError for item `index` of a list of `count` items.
[[noreturn]] void ThrowNoItem(std::size_t index, std::size_t count);

/// value itself. Throws ArithmeticError, naming `what`, when it is a NaN or infinite.
double Finite(double value, const char* what);

/// dividend / divisor. Throws ArithmeticError for a divisor of 0 and for a result that is not finite.
double Quotient(double dividend, double divisor);

/// The square root. Throws ArithmeticError for a negative or non-finite value.
double SquareRoot(double value);

/// value rounded to a whole number, halves to even, as a 32-bit integer. Throws ArithmeticError when it does
/// not fit.
int RoundToInt(double value);

/// The same as a 16-bit integer.
std::int16_t RoundToInt16(double value);

}  // namespace korvet
