// Character sets of text files. Inside the program all text is UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace korvet {

/// The text of a file's bytes as UTF-8: as they stand when they are valid UTF-8 (a byte order mark is
/// dropped), else read as Windows-1252.
std::string DecodeText(std::string_view bytes);

/// The bytes to write for a UTF-8 text: Windows-1252 where every character has a place there and the bytes
/// will not be taken for UTF-8 when they are read back, else UTF-8. Plain ASCII is the same in both.
std::string EncodeText(std::string_view text);

/// A UTF-8 text with a question mark for each character that can't be seen in a message or changes how the
/// rest is read (control and format characters, private use), and for each byte that is no UTF-8.
std::string Printable(std::string_view text);

/// The beginning of a UTF-8 text, of at most `limit` bytes and of whole characters.
std::string_view Beginning(std::string_view text, std::size_t limit);

/// The beginning of a file's text, as much of it as a message shows.
std::string_view Excerpt(std::string_view text);

/// A text that is UTF-8 in any case: a byte that is none becomes the replacement character.
std::string ValidText(std::string_view text);

/// The UTF-16 units of a text, a character above U+FFFF as two. What is no valid UTF-8 is read as DecodeText
/// reads it.
std::u16string Utf16Units(std::string_view text);

/// The UTF-8 text of UTF-16 units. A half of a pair without the other one becomes a question mark.
std::string Utf8Of(std::u16string_view units);

/// The text on one line: every control character becomes a blank.
std::string OnOneLine(std::string_view text);

}  // namespace korvet
