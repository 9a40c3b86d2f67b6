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

/// The text on one line: every control character becomes a blank.
std::string OnOneLine(std::string_view text);

}  // namespace korvet
