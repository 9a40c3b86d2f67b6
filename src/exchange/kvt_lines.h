// The lines of a parameter file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/points.h"

namespace korvet {

/// A line of the file as messages quote it.
std::string QuotedLine(std::string_view line);

/// Hands out the lines one by one, without the blanks around them, and knows the number of the last one. What
/// is asked for and does not stand there is a ParameterFileError that names the line.
class KvtLines {
  public:
    explicit KvtLines(std::string_view text) : rest_(text) {}

    /// The next line; an empty one at the end of the file.
    std::string_view ReadLine();

    /// Drops lines up to and with `marker`. False when the file ends before it.
    bool SkipTo(std::string_view marker);

    /// Drops empty lines. False at the end of the file.
    bool SkipBlank();

    /// Reads a line that must be `text`.
    void Expect(std::string_view text);

    /// A number. One whose 15 digits are those of one of the program's angles is that angle, to the last bit:
    /// a plan view is still a plan view after loading.
    double ReadNumber();

    /// A number just as it stands.
    double ReadExactly();

    /// A whole number from `lowest` to `highest`.
    int ReadInteger(int lowest, int highest);
    std::int16_t ReadShort(int lowest = -32768, int highest = 32767);

    /// True or False in any case, or the numbers behind the words, which some files hold.
    bool ReadBoolean();

    /// Three numbers.
    C3DPoint ReadPoint();

    /// The same from a line that has been read.
    [[nodiscard]] double Number(std::string_view line) const;
    [[nodiscard]] int Integer(std::string_view line, int lowest, int highest) const;

    /// True or False in any case, or nothing.
    static std::optional<bool> Boolean(std::string_view line);
    static bool IsNumber(std::string_view line);

    [[nodiscard]] std::size_t BytesLeft() const { return rest_.size(); }

    /// Refuses a file that ends before a line.
    [[noreturn]] void RefuseEnd(std::string_view missing) const;

    /// Refuses the line that was read last.
    [[noreturn]] void RefuseLine(const std::string& why) const;

  private:
    [[noreturn]] void Refuse(std::string_view line, const std::string& wanted) const;

    std::string_view rest_;
    int number_ = 0;
    bool ended_ = false;
};

}  // namespace korvet
