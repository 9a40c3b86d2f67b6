#include "core/number_text.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <vector>

#include "core/checked.h"

namespace korvet {
namespace {

TEST(NumberText, HasNoTrailingZeros) {
    EXPECT_EQ(NumberText(0), "0");
    EXPECT_EQ(NumberText(12), "12");
    EXPECT_EQ(NumberText(12.5), "12.5");
    EXPECT_EQ(NumberText(-0.25), "-0.25");
    EXPECT_EQ(NumberText(1200), "1200");
}

TEST(NumberText, HasAtMostFifteenDigits) {
    EXPECT_EQ(NumberText(0.1 + 0.2), "0.3");
    EXPECT_EQ(NumberText(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(NumberText(2.0 / 3), "0.666666666666667");
    EXPECT_EQ(NumberText(123456789.123456789), "123456789.123457");
    EXPECT_EQ(NumberText(3.14159265358979), "3.14159265358979");
}

/// The C library's general form is another maker's.
TEST(NumberText, WholeNumbersReadAsInGeneralForm) {
    for (double value = 1; value < 1e17; value *= 3) {
        for (const double number : {value, -value, value - 1, value + 0.5, std::nextafter(value, 0)}) {
            std::array<char, 40> general{};
            std::snprintf(general.data(), general.size(), "%.15g", number);
            EXPECT_EQ(NumberText(number), general.data());
        }
    }
}

TEST(NumberText, TurnsToExponentsOutsideItsRange) {
    EXPECT_EQ(NumberText(0.0001), "0.0001");
    EXPECT_EQ(NumberText(0.00009), "9e-05");
    EXPECT_EQ(NumberText(-0.000012345), "-1.2345e-05");
    EXPECT_EQ(NumberText(999999999999999.0), "999999999999999");
    EXPECT_EQ(NumberText(1e15), "1e+15");
    EXPECT_EQ(NumberText(999999999999999.9), "1e+15");
    EXPECT_EQ(NumberText(1.5e300), "1.5e+300");
}

TEST(NumberText, KnowsNoNegativeZero) {
    EXPECT_EQ(NumberText(-0.0), "0");
    EXPECT_EQ(RoundedText(-0.04, 1), "0");
    EXPECT_EQ(ShortestText(-0.0), "0");
}

TEST(NumberText, WritesTheLocalesMark) {
    EXPECT_EQ(NumberText(12.5, ','), "12,5");
    EXPECT_EQ(NumberText(1.5e-05, ','), "1,5e-05");
    EXPECT_EQ(NumberText(1234567.5, ','), "1234567,5");
    EXPECT_EQ(RoundedText(2.25, 1, ','), "2,2");
}

TEST(NumberText, ARoundedTextIsTheTextOfTheRoundedNumber) {
    std::vector<double> values = {0,      -0.0000004, 0.0001, 0.00009999995,     0.00009,  1e-15, 0.5,
                                  0.9995, 99.9999995, 1e9,    999999999.9999994, 1e15 - 1, 1e15,  1e17};
    std::mt19937 random(20260);
    std::uniform_real_distribution<double> digits(-1, 1);
    std::uniform_real_distribution<double> power(-8, 17);
    for (int i = 0; i < 2000; ++i) {
        values.push_back(digits(random) * std::pow(10, power(random)));
    }
    for (const double value : values) {
        for (int places = 0; places <= 15; ++places) {
            std::array<char, 40> text{};
            (void)std::snprintf(text.data(), text.size(), "%.15g", RoundPlaces(value, places) + 0.0);
            EXPECT_EQ(RoundedText(value, places), text.data()) << value << " to " << places;
        }
    }
}

TEST(NumberText, WhatIsNotFiniteHasNone) {
    for (const double value : {HUGE_VAL, -HUGE_VAL, std::nan("")}) {
        EXPECT_THROW(NumberText(value), ArithmeticError);
        EXPECT_THROW(ShortestText(value), ArithmeticError);
        EXPECT_THROW(RoundedText(value, 1), ArithmeticError);
    }
}

TEST(RoundPlaces, RoundsHalvesToEven) {
    EXPECT_EQ(RoundPlaces(0.5, 0), 0);
    EXPECT_EQ(RoundPlaces(1.5, 0), 2);
    EXPECT_EQ(RoundPlaces(2.5, 0), 2);
    EXPECT_EQ(RoundPlaces(-1.5, 0), -2);
    EXPECT_EQ(RoundPlaces(-2.5, 0), -2);
    EXPECT_EQ(RoundPlaces(0.25, 1), 0.2);
    EXPECT_EQ(RoundPlaces(0.75, 1), 0.8);
    EXPECT_EQ(RoundPlaces(2.125, 2), 2.12);
}

TEST(RoundPlaces, AHalfIsAHalfOnceItIsScaled) {
    // 2.675 is a hair below its digits, but 2.675 * 100 is 267.5 exactly: a half, and 268 is even.
    EXPECT_EQ(RoundPlaces(2.675, 2), 2.68);
    // 1.005 * 100 stays below the half.
    EXPECT_EQ(RoundPlaces(1.005, 2), 1.0);
}

TEST(RoundPlaces, ToMoreAndFewerPlaces) {
    EXPECT_EQ(RoundPlaces(1234.5678, 0), 1235);
    EXPECT_EQ(RoundPlaces(1234.5678, 2), 1234.57);
    EXPECT_EQ(RoundPlaces(1.23456789, 5), 1.23457);
    EXPECT_EQ(RoundPlaces(0.1, 15), 0.1);
}

TEST(RoundPlaces, OverflowIsAnError) {
    EXPECT_THROW(RoundPlaces(1e300, 15), ArithmeticError);
    EXPECT_THROW(RoundPlaces(HUGE_VAL, 0), ArithmeticError);
    EXPECT_THROW(RoundPlaces(std::nan(""), 2), ArithmeticError);
    EXPECT_EQ(RoundPlaces(1e300, 0), 1e300);
}

TEST(RoundedText, RoundsBeforeItWrites) {
    EXPECT_EQ(RoundedText(12.96, 1), "13");
    EXPECT_EQ(RoundedText(12.94, 1), "12.9");
    EXPECT_EQ(RoundedText(1234.5678, 3), "1234.568");
}

TEST(ShortestText, ReadsBackToTheSameDouble) {
    EXPECT_EQ(ShortestText(0.1), "0.1");
    EXPECT_EQ(ShortestText(3), "3");
    for (const double value :
         {0.1 + 0.2, 1.0 / 3, 1e-310, 1.7976931348623157e308, -2.2250738585072014e-308}) {
        EXPECT_EQ(ParseNumber(ShortestText(value)), value);
    }
    EXPECT_EQ(ShortestText(0.1 + 0.2), "0.30000000000000004");
}

TEST(ParseNumber, TakesPlainNumbers) {
    EXPECT_EQ(ParseNumber("12"), 12);
    EXPECT_EQ(ParseNumber("12.5"), 12.5);
    EXPECT_EQ(ParseNumber(".5"), 0.5);
    EXPECT_EQ(ParseNumber("5."), 5);
    EXPECT_EQ(ParseNumber("-.5"), -0.5);
    EXPECT_EQ(ParseNumber("007"), 7);
}

TEST(ParseNumber, DropsBlanksAroundButNotWithin) {
    EXPECT_EQ(ParseNumber("  12.5\t "), 12.5);
    EXPECT_EQ(ParseNumber("\r\n3\r\n"), 3);
    EXPECT_FALSE(ParseNumber("1 2"));
    EXPECT_FALSE(ParseNumber("- 2"));
    EXPECT_FALSE(ParseNumber("+ 2"));
}

TEST(ParseNumber, TakesOneSign) {
    EXPECT_EQ(ParseNumber("-3"), -3);
    EXPECT_EQ(ParseNumber("+3"), 3);
    for (const char* text : {"+-3", "-+3", "--3", "++3", "+", "-", "3-"}) {
        EXPECT_FALSE(ParseNumber(text)) << text;
    }
}

TEST(ParseNumber, TakesExponents) {
    EXPECT_EQ(ParseNumber("1.5e3"), 1500);
    EXPECT_EQ(ParseNumber("1.5E+3"), 1500);
    EXPECT_EQ(ParseNumber("25e-1"), 2.5);
    for (const char* text : {"e3", "1e", "1e+", "1e1.5", "1d3"}) {
        EXPECT_FALSE(ParseNumber(text)) << text;
    }
}

TEST(ParseNumber, TakesTheLocalesMarkAndThePoint) {
    EXPECT_EQ(ParseNumber("12,5", ','), 12.5);
    EXPECT_EQ(ParseNumber("12.5", ','), 12.5);
    EXPECT_EQ(ParseNumber("-,5", ','), -0.5);
    EXPECT_FALSE(ParseNumber("12,5", '.'));
}

TEST(ParseNumber, TakesNoGroupSeparators) {
    EXPECT_FALSE(ParseNumber("1,234", '.'));
    EXPECT_FALSE(ParseNumber("1,234.5", '.'));
    EXPECT_FALSE(ParseNumber("1.234,5", ','));
    EXPECT_FALSE(ParseNumber("1.234.567", ','));
    EXPECT_FALSE(ParseNumber("1'234"));
    EXPECT_FALSE(ParseNumber("1 234"));
}

TEST(ParseNumber, RefusesEverythingElse) {
    for (const char* text :
         {"",     " ",    ".",        ",",   "abc", "12abc", "12 mm", "0x10",   "0x1p3", "#FF", "inf",
          "-inf", "+inf", "Infinity", "INF", "nan", "NaN",   "-nan",  "nan(1)", "1/2",   "(5)", "5%"}) {
        EXPECT_FALSE(ParseNumber(text)) << text;
        EXPECT_FALSE(ParseNumber(text, ',')) << text;
    }
}

TEST(ParseNumber, RefusesWhatOverflowsADouble) {
    EXPECT_FALSE(ParseNumber("1e309"));
    EXPECT_FALSE(ParseNumber("-1e309"));
    EXPECT_FALSE(ParseNumber("1e99999999999999999999"));
    EXPECT_FALSE(ParseNumber(std::string(400, '9')));
    EXPECT_FALSE(ParseNumber(std::string(400, '9') + "e-5"));
    EXPECT_EQ(ParseNumber("1.7976931348623157e308"), std::numeric_limits<double>::max());
    EXPECT_EQ(ParseNumber(std::string(400, '9') + "e-399"), 10);
}

TEST(ParseNumber, WhatIsTooSmallForADoubleIsZero) {
    EXPECT_EQ(ParseNumber("1e-400"), 0);
    EXPECT_EQ(ParseNumber("-1E-400"), 0);
    EXPECT_EQ(ParseNumber("1e-99999999999999999999"), 0);
    EXPECT_EQ(ParseNumber("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(ParseNumber("0." + std::string(400, '0') + "1e+20"), 0);
    EXPECT_EQ(ParseNumber("0." + std::string(400, '0') + "1e401"), 1);
    EXPECT_EQ(ParseNumber("0e999999"), 0);
}

TEST(ParseWholeNumber, TakesDigitsWithinItsRange) {
    EXPECT_EQ(ParseWholeNumber("12", 0, 100), 12);
    EXPECT_EQ(ParseWholeNumber(" -12 ", -100, 100), -12);
    EXPECT_EQ(ParseWholeNumber("+7", 0, 100), 7);
    EXPECT_EQ(ParseWholeNumber("0", 0, 100), 0);
    EXPECT_EQ(ParseWholeNumber("100", 0, 100), 100);
    EXPECT_FALSE(ParseWholeNumber("101", 0, 100));
    EXPECT_FALSE(ParseWholeNumber("-1", 0, 100));
}

TEST(ParseWholeNumber, RefusesEverythingElse) {
    constexpr int Max = std::numeric_limits<int>::max();
    for (const char* text : {"", "1.0", "1e2", "0x1", "a", "1 2", "+-1", "+", "99999999999"}) {
        EXPECT_FALSE(ParseWholeNumber(text, -Max, Max)) << text;
    }
}

TEST(Trimmed, DropsBlanksAround) {
    EXPECT_EQ(Trimmed("  a b\t\r\n"), "a b");
    EXPECT_EQ(Trimmed(" \t "), "");
    EXPECT_EQ(Trimmed(""), "");
    EXPECT_EQ(Trimmed("x"), "x");
}

TEST(EqualIgnoringCase, IsAboutAsciiLettersOnly) {
    EXPECT_TRUE(EqualIgnoringCase("Drawing.DXF", "drawing.dxf"));
    EXPECT_TRUE(EqualIgnoringCase("", ""));
    EXPECT_FALSE(EqualIgnoringCase("a", "ab"));
    EXPECT_FALSE(EqualIgnoringCase("a", "b"));
    EXPECT_FALSE(EqualIgnoringCase("[", "{"));
    EXPECT_FALSE(EqualIgnoringCase("\xC3\x84", "\xC3\xA4"));
}

TEST(ParseFileNumber, TakesThePointAndTheCommaOfAnyCountry) {
    EXPECT_EQ(ParseFileNumber("1.5"), 1.5);
    EXPECT_EQ(ParseFileNumber(" 1,5 "), 1.5);
    EXPECT_FALSE(ParseFileNumber("1,234.5"));
    EXPECT_FALSE(ParseFileNumber("nan"));
}

}  // namespace
}  // namespace korvet
