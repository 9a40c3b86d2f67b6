#include "batch/set_values.h"

#include <algorithm>
#include <functional>
#include <map>
#include <variant>

#include "batch/arguments.h"
#include "core/number_text.h"
#include "core/text_encoding.h"
#include "core/thick_compensator.h"

namespace korvet::batch {
namespace {

constexpr int LargestBox = 999;

std::optional<std::size_t> BoxIndex(const std::string& name) {
    constexpr std::string_view Prefix = "box";
    if (!name.starts_with(Prefix)) {
        return std::nullopt;
    }
    const auto index = ParseWholeNumber(name.substr(Prefix.size()), 0, LargestBox);
    return index ? std::optional<std::size_t>(static_cast<std::size_t>(*index)) : std::nullopt;
}

/// A number, an integer of limited range, or a switch of the pattern settings or of the display.
struct ShortMember {
    std::int16_t CPatternSettings::*member;
    int highest;
};
using Member =
    std::variant<double CPatternSettings::*, bool CPatternSettings::*, bool CObjectDisplay::*, ShortMember>;

const std::map<std::string, Member, std::less<>>& Members() {
    static const std::map<std::string, Member, std::less<>> members = {
        {"Thickness", &CPatternSettings::Thickness},
        {"ThicknessA", &CPatternSettings::ThicknessA},
        {"ThicknessB", &CPatternSettings::ThicknessB},
        {"JoinAngle", &CPatternSettings::JoinAngle},
        {"LapSize0", &CPatternSettings::LapSize0},
        {"LapSize1", &CPatternSettings::LapSize1},
        {"LapSize2", &CPatternSettings::LapSize2},
        {"KerfSpacing", &CPatternSettings::KerfSpacing},
        {"HalfPattern", &CPatternSettings::HalfPattern},
        {"JoinAngleDisable", &CPatternSettings::JoinAngleDisable},
        {"KerfEnabled", &CPatternSettings::KerfEnabled},
        {"TemplateTypeEnabled", &CPatternSettings::TemplateTypeEnabled},
        {"NoOfSides", ShortMember{&CPatternSettings::NoOfSides, 32767}},
        {"LapEnable", ShortMember{&CPatternSettings::LapEnable, AllLaps}},
        {"InOutMean", ShortMember{&CPatternSettings::InOutMean, OutsideDimension}},
        {"JoinType", ShortMember{&CPatternSettings::JoinType, 1}},
        {"TemplateType", ShortMember{&CPatternSettings::TemplateType, 1}},
        {"CoordGridRequested", &CObjectDisplay::CoordGridRequested},
        {"CoordTableRequested", &CObjectDisplay::CoordTableRequested},
        {"DiagonalsRequested", &CObjectDisplay::DiagonalsRequested},
        {"FrameRequested", &CObjectDisplay::FrameRequested},
        {"TrueLengthsRequested", &CObjectDisplay::TrueLengthsRequested}};
    return members;
}

const std::map<std::string, OptionGroup FittingOptions::*, std::less<>>& Groups() {
    static const std::map<std::string, OptionGroup FittingOptions::*, std::less<>> groups = {
        {"optTopAngle", &FittingOptions::optTopAngle},
        {"optBaseAngle", &FittingOptions::optBaseAngle},
        {"optFlushSide", &FittingOptions::optFlushSide}};
    return groups;
}

bool ParseBoolean(const std::string& name, const std::string& value) {
    if (EqualIgnoringCase(value, "True") || value == "-1") {
        return true;
    }
    if (EqualIgnoringCase(value, "False") || value == "0") {
        return false;
    }
    throw UsageError(name + " takes True or False, not " + InQuotes(value));
}

/// The value as it would stand in a box of the settings dialog, for the checks of boxes.
TextBox DialogBox(const std::string& name, const std::string& value) {
    return {.name = name, .text = value};
}

Outcome SetSegs(CFittingWindow& window, const std::string& value) {
    TextBox box = DialogBox("segs", value);
    if (CheckSegs(window.Fields(), box)) {
        return Refused;
    }
    window.settings.segs = static_cast<int>(FieldValue(window.Fields(), box));
    return Passed;
}

Outcome SetMember(CFittingWindow& window, const std::string& name, const std::string& value) {
    const Member& member = Members().at(name);
    if (const auto* number = std::get_if<double CPatternSettings::*>(&member)) {
        TextBox box = DialogBox(name, value);
        const auto thicknesses = GivenThicknesses(window.settings);
        const bool isThickness =
            std::find(thicknesses.begin(), thicknesses.end(), *number) != thicknesses.end();
        if (isThickness ? CheckAtLeast(window.Fields(), box, 0) : CheckNumber(window.Fields(), box)) {
            return Refused;
        }
        window.settings.** number = FieldValue(window.Fields(), box);
    } else if (const auto* flag = std::get_if<bool CPatternSettings::*>(&member)) {
        window.settings.** flag = ParseBoolean(name, value);
    } else if (const auto* request = std::get_if<bool CObjectDisplay::*>(&member)) {
        window.display.** request = ParseBoolean(name, value);
    } else {
        const auto& choice = std::get<ShortMember>(member);
        const auto index = ParseWholeNumber(value, 0, choice.highest);
        if (!index) {
            throw UsageError(name + " takes 0 to " + std::to_string(choice.highest) + ", not " +
                             InQuotes(value));
        }
        window.settings.*choice.member = static_cast<std::int16_t>(*index);
        if (choice.member == &CPatternSettings::InOutMean) {
            window.settings.PositionString = PositionWord(window.settings.InOutMean);
        }
    }
    return Passed;
}

void SetOption(CFittingWindow& window, const std::string& name, const std::string& value) {
    OptionGroup& group = window.controls.options.*Groups().at(name);
    if (value == "none" && !group.captions.empty()) {
        group.selected.reset();
        return;
    }
    const auto index = ParseWholeNumber(value, 0, static_cast<int>(group.captions.size()) - 1);
    if (!index) {
        throw UsageError(std::string(window.Row().window) + " has no " + name + " " +
                         std::string(Excerpt(value)));
    }
    group.selected = static_cast<std::size_t>(*index);
}

bool IsBranchOption(const std::string& name) {
    return name == "optInOrOn" || name == "chkHeelCompensation";
}

/// As the dialog of further options would store it.
void SetBranchOption(CFittingWindow& window, const std::string& name, const std::string& value) {
    if (!window.Table().branchMaterialEnable) {
        throw UsageError(std::string(window.Row().window) + " has no " + name);
    }
    if (name == "chkHeelCompensation") {
        window.branch.heelCompensation = ParseBoolean(name, value);
        return;
    }
    const auto join = ParseWholeNumber(value, SetInJoin, MeanToMeanJoin);
    if (!join) {
        throw UsageError(name + " takes 0 to 2, not " + InQuotes(value));
    }
    window.branch.join = static_cast<BranchJoin>(*join);
}

}  // namespace

std::string InQuotes(std::string_view value) {
    return '"' + std::string(Excerpt(value)) + '"';
}

bool IsSettableName(const std::string& name) {
    return BoxIndex(name) || name == "comment1" || name == "comment2" || name == "textsize" ||
           name == "segs" || Members().contains(name) || Groups().contains(name) || IsBranchOption(name);
}

Outcome SetValue(CFittingWindow& window, const std::string& name, const std::string& value) {
    if (const auto index = BoxIndex(name)) {
        if (*index >= window.controls.txtParameter.size()) {
            throw UsageError(std::string(window.Row().window) + " has no " + name);
        }
        window.ChangeBox(*index, value);
    } else if (name == "comment1") {
        window.comment1 = value;
    } else if (name == "comment2") {
        window.comment2 = value;
    } else if (name == "textsize") {
        window.ChangeTextSize(value);
    } else if (name == "segs") {
        return SetSegs(window, value);
    } else if (Members().contains(name)) {
        return SetMember(window, name, value);
    } else if (IsBranchOption(name)) {
        SetBranchOption(window, name, value);
    } else {
        SetOption(window, name, value);
    }
    return Passed;
}

}  // namespace korvet::batch
