#include "core/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "core/checked.h"

namespace korvet {
namespace {

constexpr int SignificantDigits = 15;

constexpr std::array<double, 16> PowersOfTen = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

template <typename... Format>
std::string CharsOf(double value, Format... format) {
    std::array<char, 40> buffer{};
    // Adding 0 turns a negative zero into a plain one.
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                   Finite(value, "a number") + 0.0, format...);
    return {buffer.data(), end.ptr};
}

/// Whether a number that no double can hold is too small for one, and not too large: by the place of its
/// first digit that is not 0.
bool IsTooSmall(std::string_view number) {
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    const std::string_view digits = number.substr(0, mark);
    const std::string_view exponent = number.substr(std::min(mark + 1, number.size()));
    const std::optional<int> power =
        exponent.empty()
            ? 0
            : ParseWholeNumber(exponent, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    if (!power) {
        return exponent.front() == '-';
    }
    const std::size_t point = std::min(digits.find('.'), digits.size());
    const std::size_t first = std::min(digits.find_first_of("123456789"), digits.size());
    return static_cast<double>(point) - static_cast<double>(first) + *power < 0;
}

constexpr double FirstOfSixteenDigits = 1e15;

/// A value as a whole number of units of the last place that is to be kept, halves to even.
double UnitsOf(double value, int places) {
    return std::nearbyint(
        Finite(value * PowersOfTen.at(static_cast<std::size_t>(places)), "a rounded number"));
}

/// Whether a number of so many units has no more digits than a double holds, and no exponent in its text.
bool IsPlain(double units, int places) {
    constexpr int PlacesWithoutExponent = 4;
    const double least =
        PowersOfTen.at(static_cast<std::size_t>(std::max(places - PlacesWithoutExponent, 0)));
    const double size = std::fabs(units);
    return size < FirstOfSixteenDigits && (size >= least || size == 0);
}

/// The text of a number of units that is plain.
std::string TextOfUnits(long long units, int places, char decimalMark) {
    std::array<char, 24> buffer{};
    char* const end = buffer.data() + buffer.size();
    char* begin = end;
    long long rest = std::llabs(units);
    for (; places > 0 && rest % 10 == 0; --places) {
        rest /= 10;
    }
    const auto putDigit = [&] {
        *--begin = static_cast<char>('0' + rest % 10);
        rest /= 10;
    };
    if (places > 0) {
        for (; places > 0; --places) {
            putDigit();
        }
        *--begin = decimalMark;
    }
    do {
        putDigit();
    } while (rest > 0);
    if (units < 0) {
        *--begin = '-';
    }
    return {begin, end};
}

}  // namespace

double RoundPlaces(double value, int places) {
    return UnitsOf(value, places) / PowersOfTen.at(static_cast<std::size_t>(places));
}

std::string NumberText(double value, char decimalMark) {
    if (std::fabs(value) < FirstOfSixteenDigits && value == std::trunc(value)) {
        return std::to_string(static_cast<long long>(value));
    }
    std::string text = CharsOf(value, std::chars_format::general, SignificantDigits);
    std::replace(text.begin(), text.end(), '.', decimalMark);
    return text;
}

std::string RoundedText(double value, int places, char decimalMark) {
    // A large drawing has coordinates by the million.
    const double units = UnitsOf(value, places);
    return IsPlain(units, places) ? TextOfUnits(static_cast<long long>(units), places, decimalMark)
                                  : NumberText(RoundPlaces(value, places), decimalMark);
}

std::string ShortestText(double value, char decimalMark) {
    std::string text = CharsOf(value);
    std::replace(text.begin(), text.end(), '.', decimalMark);
    return text;
}

std::optional<double> ParseNumber(std::string_view text, char decimalMark) {
    std::string_view digits = Trimmed(text);
    std::string withPoint;
    if (decimalMark != '.') {
        withPoint = digits;
        std::replace(withPoint.begin(), withPoint.end(), decimalMark, '.');
        digits = withPoint;
    }
    const bool plus = digits.size() > 1 && digits[0] == '+' && digits[1] != '-';
    const char* first = digits.data() + (plus ? 1 : 0);
    const char* last = digits.data() + digits.size();
    double value = 0;
    const auto [end, error] = std::from_chars(first, last, value);
    // A number too small for a double is 0; one too large is none. The words for infinity are letters.
    if (end != last || first == last || !std::isfinite(value)) {
        return std::nullopt;
    }
    if (error == std::errc::result_out_of_range) {
        return IsTooSmall(digits) ? std::optional<double>(0) : std::nullopt;
    }
    return error == std::errc() ? std::optional<double>(value) : std::nullopt;
}

bool IsNumberUnderWay(std::string_view text, char decimalMark) {
    if (ParseNumber(text, decimalMark)) {
        return true;
    }
    // A digit is all that is missing.
    return !Trimmed(text).empty() && ParseNumber(std::string(text) + '0', decimalMark);
}

std::optional<double> ParseFileNumber(std::string_view text) {
    return ParseNumber(text, ',');
}

std::optional<int> ParseWholeNumber(std::string_view text, int lowest, int highest) {
    text = Trimmed(text);
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < lowest || value > highest) {
        return std::nullopt;
    }
    return value;
}

std::string_view Trimmed(std::string_view text) {
    const auto isBlank = [](char c) { return static_cast<unsigned char>(c) <= ' '; };
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return lower(x) == lower(y); });
}

}  // namespace korvet
