#include "form/window_table.h"

#include <cmath>
#include <stdexcept>

#include "core/checked.h"

namespace korvet {
namespace {

OptionGroup MakeOptions(std::span<const std::string_view> captions) {
    return {std::vector<std::string>(captions.begin(), captions.end()), std::nullopt, true};
}

}  // namespace

std::string LabelOf(const PageEntry& page, const LabelEntry& line) {
    if (!line.label.empty()) {
        return std::string(line.label);
    }
    for (const BoxEntry& box : page.boxes) {
        if (box.index == line.box) {
            return std::string(box.label.substr(0, box.label.find(" ("))) + " = ";
        }
    }
    throw std::logic_error("the page has no box " + std::to_string(line.box) + " to label a line");
}

bool TellsOfHalf(const WindowTable& table, const CPatternSettings& settings) {
    const bool hasHalf =
        table.halfPatterns == HalfPatterns::Offered || table.halfPatterns == HalfPatterns::FromFiles;
    return hasHalf && settings.HalfPattern;
}

void RequireSizesWithinReach(const FittingForm& form, const PageEntry& page) {
    for (const BoxEntry& box : page.boxes) {
        if (std::fabs(form.Value(box.index)) > LargestSize) {
            throw ArithmeticError(std::string(box.label) + " is above a thousand million");
        }
    }
}

Outcome BuildChosenPattern(const WindowTable& table, FittingForm& form, const FittingHandle& fitting) {
    return RefusedIf(form.CheckPatternSelected() ||
                     (table.afterPatternChoice != nullptr && table.afterPatternChoice(form, fitting)));
}

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
