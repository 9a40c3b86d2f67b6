#include "exchange/dxf_lines.h"

#include <algorithm>

#include "core/number_text.h"

namespace korvet {

std::optional<std::string_view> DxfLines::NextWhole() {
    if (rest_.empty()) {
        return std::nullopt;
    }
    ++number_;
    std::size_t end = 0;
    while (end < rest_.size() && rest_[end] != '\n' && rest_[end] != '\r') {
        ++end;
    }
    const std::string_view line = rest_.substr(0, end);
    const bool pair = end + 1 < rest_.size() && rest_[end] == '\r' && rest_[end + 1] == '\n';
    rest_.remove_prefix(std::min(rest_.size(), end + (pair ? 2 : 1)));
    return line;
}

std::optional<std::string_view> DxfLines::Next() {
    const auto line = NextWhole();
    return line ? std::optional(Trimmed(*line)) : std::nullopt;
}

bool DxfLines::SkipTo(std::string_view word, std::string_view stop) {
    while (const auto line = Next()) {
        if (EqualIgnoringCase(*line, word)) {
            return true;
        }
        if (!stop.empty() && EqualIgnoringCase(*line, stop)) {
            return false;
        }
    }
    return false;
}

std::optional<double> DxfLines::Number() {
    const auto line = Next();
    return line ? ParseNumber(*line) : std::nullopt;
}

}  // namespace korvet
