#include "exchange/kvt_lines.h"

#include <algorithm>
#include <cmath>

#include "core/constants.h"
#include "core/number_text.h"
#include "core/text_encoding.h"
#include "exchange/kvt_file.h"

namespace korvet {
namespace {

double Snapped(double value) {
    for (const double literal : AngleLiterals) {
        for (const double angle : {literal, -literal}) {
            // Most numbers are nowhere near, and are spared the comparison of texts.
            if (std::fabs(value - angle) < 1e-12 && NumberText(value) == NumberText(angle)) {
                return angle;
            }
        }
    }
    return value;
}

}  // namespace

std::string QuotedLine(std::string_view line) {
    constexpr std::size_t LongestQuote = 60;
    return '"' + Printable(Beginning(line, LongestQuote)) + '"';
}

std::string_view KvtLines::ReadLine() {
    if (rest_.empty()) {
        ended_ = true;
        return {};
    }
    ++number_;
    const std::size_t end = std::min(rest_.find('\n'), rest_.size());
    const std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    return Trimmed(line);
}

bool KvtLines::SkipTo(std::string_view marker) {
    while (!rest_.empty()) {
        if (ReadLine() == marker) {
            return true;
        }
    }
    return false;
}

bool KvtLines::SkipBlank() {
    while (!rest_.empty() && Trimmed(rest_.substr(0, rest_.find('\n'))).empty()) {
        ReadLine();
    }
    return !rest_.empty();
}

void KvtLines::Expect(std::string_view text) {
    const std::string_view line = ReadLine();
    if (line != text) {
        Refuse(line, "\"" + std::string(text) + "\"");
    }
}

double KvtLines::ReadNumber() {
    return Number(ReadLine());
}

double KvtLines::ReadExactly() {
    const std::string_view line = ReadLine();
    const auto value = ParseFileNumber(line);
    if (!value) {
        Refuse(line, "a number");
    }
    return *value;
}

int KvtLines::ReadInteger(int lowest, int highest) {
    return Integer(ReadLine(), lowest, highest);
}

std::int16_t KvtLines::ReadShort(int lowest, int highest) {
    return static_cast<std::int16_t>(ReadInteger(lowest, highest));
}

bool KvtLines::ReadBoolean() {
    const std::string_view line = ReadLine();
    if (const auto value = Boolean(line)) {
        return *value;
    }
    const auto number = ParseWholeNumber(line, -1, 0);
    if (!number) {
        Refuse(line, "True or False");
    }
    return *number != 0;
}

C3DPoint KvtLines::ReadPoint() {
    C3DPoint point;
    point.x = ReadNumber();
    point.y = ReadNumber();
    point.z = ReadNumber();
    return point;
}

double KvtLines::Number(std::string_view line) const {
    const auto value = ParseFileNumber(line);
    if (!value) {
        Refuse(line, "a number");
    }
    return Snapped(*value);
}

int KvtLines::Integer(std::string_view line, int lowest, int highest) const {
    const auto value = ParseWholeNumber(line, lowest, highest);
    if (!value) {
        Refuse(line, "a whole number from " + std::to_string(lowest) + " to " + std::to_string(highest));
    }
    return *value;
}

std::optional<bool> KvtLines::Boolean(std::string_view line) {
    if (EqualIgnoringCase(line, "True")) {
        return true;
    }
    return EqualIgnoringCase(line, "False") ? std::optional<bool>(false) : std::nullopt;
}

bool KvtLines::IsNumber(std::string_view line) {
    return ParseFileNumber(line).has_value();
}

void KvtLines::RefuseEnd(std::string_view missing) const {
    throw ParameterFileError("line " + std::to_string(number_ + 1) + ": the file ends before \"" +
                             std::string(missing) + "\"");
}

void KvtLines::RefuseLine(const std::string& why) const {
    throw ParameterFileError("line " + std::to_string(number_) + ": " + why);
}

void KvtLines::Refuse(std::string_view line, const std::string& wanted) const {
    if (ended_) {
        throw ParameterFileError("line " + std::to_string(number_ + 1) + ": the file ends where " + wanted +
                                 " should stand");
    }
    RefuseLine(QuotedLine(line) + " is not " + wanted);
}

}  // namespace korvet
