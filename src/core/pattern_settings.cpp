#include "core/pattern_settings.h"

#include <array>

#include "core/number_text.h"
#include "core/thick_compensator.h"

namespace korvet {

std::span<double CPatternSettings::*const> GivenThicknesses(const CPatternSettings& settings) {
    static constexpr std::array Two = {&CPatternSettings::ThicknessA, &CPatternSettings::ThicknessB};
    static constexpr std::array One = {&CPatternSettings::Thickness};
    if (settings.BranchMaterialEnable) {
        return Two;
    }
    return settings.MaterialDisable ? std::span<double CPatternSettings::*const>() : One;
}

const char* PositionWord(std::int16_t inOutMean) {
    switch (inOutMean) {
        case InsideDimension:
            return "inside";
        case OutsideDimension:
            return "outside";
        default:
            return "mean";
    }
}

std::string StatusString(const CPatternSettings& settings, char decimalMark) {
    return " Segments = " + std::to_string(settings.segs) +
           " | Thickness = " + NumberText(settings.Thickness, decimalMark) +
           " | Join Angle = " + NumberText(settings.JoinAngle, decimalMark);
}

}  // namespace korvet
