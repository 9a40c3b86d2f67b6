#include "core/text_encoding.h"

#include <algorithm>
#include <array>
#include <optional>

namespace korvet {
namespace {

/// Code points of the bytes 0x80 to 0x9F in Windows-1252; the five bytes without a character stand for
/// themselves.
constexpr std::array<char32_t, 32> Windows1252 = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

struct Character {
    char32_t point;
    std::size_t length;  ///< in bytes
};

/// The first character of a UTF-8 text, or nothing when it is not valid (overlong forms and surrogates are
/// not).
std::optional<Character> FirstCharacter(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text[0]);
    const std::size_t length = lead < 0x80   ? 1
                               : lead < 0xC2 ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 0;
    if (length == 0 || length > text.size()) {
        return std::nullopt;
    }
    char32_t point = length == 1 ? lead : lead & (0xFFU >> (length + 1));
    for (std::size_t k = 1; k < length; ++k) {
        const auto next = static_cast<unsigned char>(text[k]);
        if ((next & 0xC0U) != 0x80) {
            return std::nullopt;
        }
        point = (point << 6U) | (next & 0x3FU);
    }
    constexpr std::array<char32_t, 5> Lowest = {0, 0, 0x80, 0x800, 0x10000};
    if (point < Lowest[length] || point > 0x10FFFF || (point >= 0xD800 && point <= 0xDFFF)) {
        return std::nullopt;
    }
    return Character{point, length};
}

/// The code points of a UTF-8 text, or nothing when it is not valid.
std::optional<std::u32string> CodePoints(std::string_view text) {
    std::u32string points;
    while (!text.empty()) {
        const auto character = FirstCharacter(text);
        if (!character) {
            return std::nullopt;
        }
        points.push_back(character->point);
        text.remove_prefix(character->length);
    }
    return points;
}

/// Whether a character has no picture of its own: controls, marks that only steer the layout, private use.
bool IsUnseen(char32_t point) {
    struct Range {
        char32_t first;
        char32_t last;
    };
    constexpr std::array Unseen = {Range{0x00, 0x1F},       Range{0x7F, 0x9F},       Range{0xAD, 0xAD},
                                   Range{0x61C, 0x61C},     Range{0x180E, 0x180E},   Range{0x200B, 0x200F},
                                   Range{0x2028, 0x202E},   Range{0x2060, 0x206F},   Range{0xE000, 0xF8FF},
                                   Range{0xFDD0, 0xFDEF},   Range{0xFEFF, 0xFEFF},   Range{0xFFF0, 0xFFFB},
                                   Range{0xE0000, 0xE0FFF}, Range{0xF0000, 0x10FFFF}};
    constexpr char32_t LastTwoOfAPlane = 0xFFFE;
    return (point & LastTwoOfAPlane) == LastTwoOfAPlane ||
           std::any_of(Unseen.begin(), Unseen.end(),
                       [point](const Range& range) { return point >= range.first && point <= range.last; });
}

/// Appends one code point as UTF-8.
void AppendUtf8(std::string& text, char32_t point) {
    const auto append = [&](unsigned lead, unsigned shift) {
        text.push_back(static_cast<char>(lead | (point >> shift)));
        while (shift > 0) {
            shift -= 6;
            text.push_back(static_cast<char>(0x80U | ((point >> shift) & 0x3FU)));
        }
    };
    if (point < 0x80) {
        append(0, 0);
    } else if (point < 0x800) {
        append(0xC0U, 6);
    } else if (point < 0x10000) {
        append(0xE0U, 12);
    } else {
        append(0xF0U, 18);
    }
}

std::optional<char> Windows1252Byte(char32_t point) {
    if (point < 0x80 || (point >= 0xA0 && point <= 0xFF)) {
        return static_cast<char>(point);
    }
    const auto* const found = std::find(Windows1252.begin(), Windows1252.end(), point);
    if (found == Windows1252.end()) {
        return std::nullopt;
    }
    return static_cast<char>(0x80 + (found - Windows1252.begin()));
}

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

std::string DecodeText(std::string_view bytes) {
    constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
    if (IsAscii(bytes)) {
        return std::string(bytes);
    }
    if (CodePoints(bytes)) {
        return std::string(bytes.substr(bytes.substr(0, 3) == ByteOrderMark ? 3 : 0));
    }
    std::string text;
    text.reserve(bytes.size() * 2);
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        AppendUtf8(text, byte >= 0x80 && byte < 0xA0 ? Windows1252[byte - 0x80U] : byte);
    }
    return text;
}

std::string EncodeText(std::string_view text) {
    const auto points = IsAscii(text) ? std::nullopt : CodePoints(text);
    if (!points) {
        return std::string(text);
    }
    std::string bytes;
    for (const char32_t point : *points) {
        const auto byte = Windows1252Byte(point);
        if (!byte) {
            return std::string(text);
        }
        bytes.push_back(*byte);
    }
    return CodePoints(bytes) ? std::string(text) : bytes;
}

std::string Printable(std::string_view text) {
    std::string shown;
    while (!text.empty()) {
        const auto character = FirstCharacter(text);
        const bool seen = character && !IsUnseen(character->point);
        const std::size_t length = character ? character->length : 1;
        shown += seen ? text.substr(0, length) : "?";
        text.remove_prefix(length);
    }
    return shown;
}

std::string_view Beginning(std::string_view text, std::size_t limit) {
    if (text.size() <= limit) {
        return text;
    }
    while (limit > 0 && (static_cast<unsigned char>(text[limit]) & 0xC0U) == 0x80) {
        --limit;
    }
    return text.substr(0, limit);
}

std::string_view Excerpt(std::string_view text) {
    constexpr std::size_t MostCharacters = 200;
    return Beginning(text, MostCharacters);
}

std::string ValidText(std::string_view text) {
    constexpr std::string_view Replacement = "\xEF\xBF\xBD";
    std::string valid;
    while (!text.empty()) {
        const auto character = FirstCharacter(text);
        const std::size_t length = character ? character->length : 1;
        valid += character ? text.substr(0, length) : Replacement;
        text.remove_prefix(length);
    }
    return valid;
}

std::u16string Utf16Units(std::string_view text) {
    std::u16string units;
    const auto points = CodePoints(DecodeText(text));
    for (const char32_t point : points.value_or(std::u32string())) {
        if (point < 0x10000) {
            units.push_back(static_cast<char16_t>(point));
        } else {
            const char32_t above = point - 0x10000;
            units.push_back(static_cast<char16_t>(0xD800U | (above >> 10U)));
            units.push_back(static_cast<char16_t>(0xDC00U | (above & 0x3FFU)));
        }
    }
    return units;
}

std::string Utf8Of(std::u16string_view units) {
    const auto isHalf = [&](std::size_t i, char16_t first) {
        return i < units.size() && units[i] >= first && units[i] < first + 0x400;
    };
    constexpr char16_t First = 0xD800;
    constexpr char16_t Second = 0xDC00;
    std::string text;
    for (std::size_t i = 0; i < units.size(); ++i) {
        if (isHalf(i, First) && isHalf(i + 1, Second)) {
            const auto high = static_cast<char32_t>(units[i] - First);
            ++i;
            AppendUtf8(text, 0x10000 + (high << 10U) + static_cast<char32_t>(units[i] - Second));
        } else {
            AppendUtf8(text, isHalf(i, First) || isHalf(i, Second) ? U'?' : units[i]);
        }
    }
    return text;
}

std::string OnOneLine(std::string_view text) {
    std::string line{text};
    std::replace_if(
        line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; }, ' ');
    return line;
}

}  // namespace korvet
