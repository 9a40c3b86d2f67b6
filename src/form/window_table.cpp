#include "form/window_table.h"

namespace korvet {
namespace {

OptionGroup MakeOptions(std::span<const std::string_view> captions) {
    return {std::vector<std::string>(captions.begin(), captions.end()), std::nullopt, true};
}

}  // namespace

FittingOptions StartOptions(const WindowTable& table) {
    FittingOptions options;
    if (table.HasAngleOptions()) {
        options.optTopAngle = options.optBaseAngle = MakeOptions(AxisCaptions);
        options.optTopAngle.selected = options.optBaseAngle.selected = 1;
    }
    options.optPatternSelect = MakeOptions(table.patternSelect);
    options.optFlushSide = MakeOptions(table.flushSide);
    if (!table.flushSide.empty()) {
        options.optFlushSide.selected = 0;
    }
    return options;
}

}  // namespace korvet
