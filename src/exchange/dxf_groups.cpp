#include "exchange/dxf_groups.h"

#include <algorithm>
#include <array>
#include <charconv>
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

}  // namespace

std::string DxfGroups::Take() {
    return std::exchange(text_, {});
}

void DxfGroups::WriteWord(int code, std::string_view word) {
    AppendCode(text_, code);
    AppendAscii(text_, word);
    text_ += LineEnd;
}

void DxfGroups::WriteNumber(int code, double value) {
    const std::string number = NumberText(value);
    AppendCode(text_, code);
    if (number.front() != '-') {
        text_ += ' ';
    }
    text_ += number;
    text_ += ' ';
    text_ += LineEnd;
}

void DxfGroups::WriteRounded(int code, double value) {
    WriteNumber(code, RoundPlaces(value, DxfPlaces));
}

}  // namespace korvet
