// The group pairs that a drawing file is made of, and the form of words and numbers in them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace korvet {

/// Decimal places of coordinates, radii and arc angles in the file.
inline constexpr int DxfPlaces = 6;

// Group codes of entities and of the tables before them.
inline constexpr int NameCode = 2;
inline constexpr int SizeCode = 40;  ///< the radius of an arc, the height of a text

/// Builds text of group pairs: the code on one line and the value on the next, each ended by CR LF. Numbers
/// are in general form with a point, a blank in front unless negative, and one blank behind.
///
/// Words are given as UTF-8. A file names no character set, so they go out in ASCII: what is none as \U+XXXX,
/// each unit of its UTF-16 in four capital hexadecimal digits (a character above U+FFFF so takes two), and a
/// backslash that would itself begin such a sequence as \U+005C. A control character becomes a blank, since a
/// line break would tear the pair apart.
///
/// Throws ArithmeticError for a number that is not finite.
class DxfGroups {
  public:
    /// Makes room for so many bytes.
    void Reserve(std::size_t bytes) { text_.reserve(bytes); }

    /// The bytes of the text so far.
    [[nodiscard]] std::size_t Size() const { return text_.size(); }

    /// The whole text, which is empty afterwards.
    [[nodiscard]] std::string Take();

    void WriteWord(int code, std::string_view word);
    void WriteNumber(int code, double value);

    /// The number rounded to DxfPlaces, halves to even.
    void WriteRounded(int code, double value);

  private:
    std::string text_;
};

}  // namespace korvet
