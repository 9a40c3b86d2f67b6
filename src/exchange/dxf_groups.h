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

/// The number that a reader of a drawing finds where WriteRounded has written one. Throws ArithmeticError for
/// one that is not finite.
double WrittenRounded(double value);

/// The same for WriteNumber.
double WrittenNumber(double value);

/// A word that a drawing has in ASCII, as UTF-8: escaped letters are letters again.
std::string Unescaped(std::string_view word);

/// The same for a word that WriteWord has written: control characters have become blanks.
std::string WrittenWord(std::string_view word);

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
    /// The text so far.
    [[nodiscard]] std::string_view Text() const { return text_; }

    /// Forgets the text, but not the room that it took.
    void Clear() { text_.clear(); }

    /// The whole text, which is empty afterwards.
    [[nodiscard]] std::string Take();

    void WriteWord(int code, std::string_view word);
    void WriteNumber(int code, double value);

    /// The number rounded to DxfPlaces, halves to even.
    void WriteRounded(int code, double value);

  private:
    void WriteNumberText(int code, std::string_view number);

    std::string text_;
};

}  // namespace korvet
