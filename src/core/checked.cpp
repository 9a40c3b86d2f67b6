#include "core/checked.h"

#include <cmath>
#include <limits>

namespace korvet {

void ThrowNoItem(std::size_t index, std::size_t count) {
    throw ListError("item " + std::to_string(index) + " of a list of " + std::to_string(count));
}

double Finite(double value, const char* what) {
    if (!std::isfinite(value)) {
        throw ArithmeticError(std::string(what) + " is not a finite number");
    }
    return value;
}

double Quotient(double dividend, double divisor) {
    if (divisor == 0) {
        throw ArithmeticError("division by zero");
    }
    return Finite(dividend / divisor, "a quotient");
}

double SquareRoot(double value) {
    if (!(value >= 0)) {
        throw ArithmeticError("square root of a negative number");
    }
    return Finite(std::sqrt(value), "a square root");
}

namespace {

template <typename Integer>
Integer Rounded(double value) {
    using Limits = std::numeric_limits<Integer>;
    const double rounded = std::nearbyint(value);
    if (!(rounded >= Limits::min() && rounded <= Limits::max())) {
        throw ArithmeticError("a number is too large");
    }
    return static_cast<Integer>(rounded);
}

}  // namespace

int RoundToInt(double value) {
    return Rounded<int>(value);
}

std::int16_t RoundToInt16(double value) {
    return Rounded<std::int16_t>(value);
}

}  // namespace korvet
