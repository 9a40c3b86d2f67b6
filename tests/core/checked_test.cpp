#include "core/checked.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace korvet {
namespace {

constexpr double Infinite = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double Largest = std::numeric_limits<double>::max();

TEST(Finite, LetsNumbersThroughAndNamesTheRest) {
    EXPECT_EQ(Finite(-2.5, "a length"), -2.5);
    EXPECT_EQ(Finite(Largest, "a length"), Largest);
    EXPECT_THROW(Finite(NotANumber, "a length"), ArithmeticError);
    EXPECT_THROW(Finite(-Infinite, "a length"), ArithmeticError);
    try {
        Finite(Infinite, "a length");
        FAIL() << "infinity went through";
    } catch (const ArithmeticError& error) {
        EXPECT_NE(std::string(error.what()).find("a length"), std::string::npos);
    }
}

TEST(Quotient, RefusesWhatHasNoValue) {
    EXPECT_EQ(Quotient(7, 2), 3.5);
    EXPECT_EQ(Quotient(0, 5), 0);
    EXPECT_THROW(Quotient(1, 0), ArithmeticError);
    EXPECT_THROW(Quotient(0, 0), ArithmeticError);
    EXPECT_THROW(Quotient(1, -0.0), ArithmeticError);
    EXPECT_THROW(Quotient(Largest, 0.5), ArithmeticError);
    EXPECT_THROW(Quotient(NotANumber, 1), ArithmeticError);
    EXPECT_THROW(Quotient(1, NotANumber), ArithmeticError);
}

TEST(SquareRoot, RefusesNegativeAndInfiniteValues) {
    EXPECT_EQ(SquareRoot(9), 3);
    EXPECT_EQ(SquareRoot(0), 0);
    EXPECT_THROW(SquareRoot(-1e-300), ArithmeticError);
    EXPECT_THROW(SquareRoot(Infinite), ArithmeticError);
    EXPECT_THROW(SquareRoot(NotANumber), ArithmeticError);
}

TEST(RoundToInt, RoundsHalvesToEvenWithinTheRange) {
    EXPECT_EQ(RoundToInt(2.5), 2);
    EXPECT_EQ(RoundToInt(3.5), 4);
    EXPECT_EQ(RoundToInt(-0.5), 0);
    EXPECT_EQ(RoundToInt(2147483647.4), 2147483647);
    EXPECT_EQ(RoundToInt(-2147483648.5), std::numeric_limits<int>::min());
    EXPECT_THROW(RoundToInt(2147483647.5), ArithmeticError);
    EXPECT_THROW(RoundToInt(-2147483649.0), ArithmeticError);
    EXPECT_THROW(RoundToInt(1e300), ArithmeticError);
    EXPECT_THROW(RoundToInt(NotANumber), ArithmeticError);
}

TEST(RoundToInt16, KeepsWhatFits) {
    EXPECT_EQ(RoundToInt16(32767.4), 32767);
    EXPECT_EQ(RoundToInt16(-32768), -32768);
    EXPECT_EQ(RoundToInt16(2.5), 2);
    EXPECT_THROW(static_cast<void>(RoundToInt16(32768)), ArithmeticError);
    EXPECT_THROW(static_cast<void>(RoundToInt16(std::nan(""))), ArithmeticError);
}

}  // namespace
}  // namespace korvet
