// The lines of an ASCII drawing file, for those who read one.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace korvet {

/// Goes through the lines of a text that end with CR LF, LF or CR. The text must outlive it.
class DxfLines {
  public:
    explicit DxfLines(std::string_view text) : rest_(text) {}

    /// The next line as it stands; nothing at the end of the text.
    std::optional<std::string_view> NextWhole();

    /// The next line without the blanks around it.
    std::optional<std::string_view> Next();

    /// Drops lines up to and with `word`, which is compared without regard to case. False when the text ends
    /// or `stop` comes before it.
    bool SkipTo(std::string_view word, std::string_view stop = {});

    /// The number on the next line; nothing when that holds none, or the text ends.
    std::optional<double> Number();

    [[nodiscard]] std::size_t BytesLeft() const { return rest_.size(); }

    /// The number of the last line, as a fault begins.
    [[nodiscard]] std::string Here() const { return "line " + std::to_string(number_) + ": "; }

  private:
    std::string_view rest_;
    std::size_t number_ = 0;
};

}  // namespace korvet
