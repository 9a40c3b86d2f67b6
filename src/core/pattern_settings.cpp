#include "core/pattern_settings.h"

#include "core/number_text.h"
#include "core/thick_compensator.h"

namespace korvet {

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
