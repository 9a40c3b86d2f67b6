#include "exchange/dxf_groups.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <utility>

#include "core/number_text.h"
#include "core/text_encoding.h"

namespace korvet {
namespace {

constexpr std::string_view LineEnd = "\r\n";

constexpr bool IsControl(char16_t unit) {
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
}

/// Appends one unit of a text as \U+XXXX.
void AppendEscape(std::string& text, char16_t unit) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    text += "\\U+";
    for (const unsigned shift : {12U, 8U, 4U, 0U}) {
        text += Digits[(static_cast<unsigned>(unit) >> shift) & 0xFU];
    }
}

/// Whether a reader would take the rest of a text for an escaped character: \U+XXXX, or \M+NXXXX, which
/// stands for one of an eastern character set.
bool LooksEscaped(std::u16string_view rest) {
    constexpr std::u16string_view Kinds = u"UuMm";
    return rest.size() > 2 && rest[0] == u'\\' && Kinds.find(rest[1]) != Kinds.npos && rest[2] == u'+';
}

/// Whether a word goes out as it is, which nearly all do.
bool IsPlain(std::string_view word) {
    return std::all_of(word.begin(), word.end(), [](char c) { return c >= ' ' && c <= '~' && c != '\\'; });
}

/// Appends the text in ASCII, on one line.
void AppendAscii(std::string& text, std::string_view word) {
    if (IsPlain(word)) {
        text += word;
        return;
    }
    const std::u16string units = Utf16Units(word);
    for (std::size_t i = 0; i < units.size(); ++i) {
        if (IsControl(units[i])) {
            text += ' ';
        } else if (units[i] > 0x7F || LooksEscaped(std::u16string_view(units).substr(i))) {
            AppendEscape(text, units[i]);
        } else {
            text += static_cast<char>(units[i]);
        }
    }
}

void AppendCode(std::string& text, int code) {
    std::array<char, 12> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), code);
    text.append(digits.data(), end.ptr);
    text += LineEnd;
}

/// What a drawing has for a letter outside ASCII: \U+ and four hexadecimal digits, for a letter above U+FFFF
/// twice.
constexpr std::size_t EscapeLength = 7;

std::optional<char16_t> EscapedUnit(std::u16string_view text) {
    constexpr std::u16string_view Digits = u"0123456789ABCDEF";
    if (text.size() < EscapeLength || !text.starts_with(u"\\U+")) {
        return std::nullopt;
    }
    std::size_t unit = 0;
    for (const char16_t digit : text.substr(3, 4)) {
        const std::size_t value = Digits.find(digit);
        if (value == Digits.npos) {
            return std::nullopt;
        }
        unit = unit * Digits.size() + value;
    }
    return static_cast<char16_t>(unit);
}

}  // namespace

double WrittenNumber(double value) {
    return ParseNumber(NumberText(value)).value();
}

double WrittenRounded(double value) {
    // Up to here the digits of the text are all that a double has, so that they give the same one.
    constexpr double DigitsSuffice = 1e9;
    const double rounded = RoundPlaces(value, DxfPlaces);
    return std::fabs(rounded) < DigitsSuffice ? rounded + 0.0 : WrittenNumber(rounded);  // no negative zero
}

std::string Unescaped(std::string_view word) {
    if (word.find('\\') == word.npos) {
        return std::string(word);
    }
    const std::u16string units = Utf16Units(word);
    std::u16string letters;
    for (std::u16string_view rest = units; !rest.empty();) {
        const auto escaped = EscapedUnit(rest);
        letters += escaped.value_or(rest.front());
        rest.remove_prefix(escaped ? EscapeLength : 1);
    }
    return Utf8Of(letters);
}

std::string WrittenWord(std::string_view word) {
    std::string text;
    AppendAscii(text, word);
    return Unescaped(text);
}

std::string DxfGroups::Take() {
    return std::exchange(text_, {});
}

void DxfGroups::WriteWord(int code, std::string_view word) {
    AppendCode(text_, code);
    AppendAscii(text_, word);
    text_ += LineEnd;
}

void DxfGroups::WriteNumber(int code, double value) {
    WriteNumberText(code, NumberText(value));
}

void DxfGroups::WriteRounded(int code, double value) {
    WriteNumberText(code, RoundedText(value, DxfPlaces));
}

void DxfGroups::WriteNumberText(int code, std::string_view number) {
    AppendCode(text_, code);
    if (number.front() != '-') {
        text_ += ' ';
    }
    text_ += number;
    text_ += ' ';
    text_ += LineEnd;
}

}  // namespace korvet
