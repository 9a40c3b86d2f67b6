// A fitting window is this table and one build function; everything else is the template that all windows
// share.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "core/fitting.h"
#include "form/fitting_form.h"
#include "form/sketch_entry.h"

namespace korvet {

/// One parameter box of a page.
struct BoxEntry {
    int index;                       ///< in txtParameter; fixed, since files hold the boxes by it
    std::string_view label;          ///< what the size means, with the unit where it is not a length
    std::string_view sample;         ///< a realistic size; those of one page together make a valid fitting
    SketchDimension dimension = {};  ///< what the box measures on the page's sketch
    std::string_view start = "0";    ///< what stands in it before anything is typed
};

/// The box of a line of the text block that has none.
inline constexpr int NoBox = -1;

/// One line of the text block: the label and then the text of the box as typed.
struct LabelEntry {
    std::string_view label;
    int box;
    std::string_view text = {};  ///< what follows the label where there is no box
};

/// The views of a sketch that shows the shape once, from the front.
inline constexpr SketchView FrontView[] = {{}};

/// The parameters of one type of a fitting. Page k is shown as Type k + 1.
struct PageEntry {
    std::span<const BoxEntry> boxes;
    std::span<const LabelEntry> labels;             ///< in the order of the text block
    std::span<const SketchView> views = FrontView;  ///< of the sketch, one above the other
    std::span<const SketchConstruction> construction = {};
    bool angleOptions = false;  ///< bears optTopAngle and optBaseAngle
    int sidesBox = NoBox;       ///< holds the number of sides of a polygonal section
};

/// Captions of optTopAngle and optBaseAngle.
inline constexpr std::string_view AxisCaptions[] = {"Angle about X-axis", "Angle about Y-axis"};

/// One step of the build of a fitting: reads the form and fills the fitting.
using BuildStep = Outcome(FittingForm& form, const FittingHandle& fitting);

struct WindowTable {
    std::span<const PageEntry> pages;
    FittingHandle (*newFitting)();

    /// Checks the boxes of form.dtype in their fixed order and sets the fitting's own properties.
    BuildStep* buildFitting;

    /// What is done once the text block stands, in the same way; null when nothing.
    BuildStep* completeFitting = nullptr;

    /// What a change of type does to the settings; null when nothing.
    void (*onTypeChanged)(std::int16_t dtype, CPatternSettings& settings) = nullptr;

    std::int16_t firstDtype = 0;     ///< type shown at the start, from 0
    bool multiple = false;           ///< the pattern consists of several pieces
    std::int16_t miscellaneous = 0;  ///< selector handed to the fitting until an option is clicked
    bool checksAllFields = true;     ///< every box of every type must hold a number before a build
    bool fullPatternLine = false;    ///< the text block says "Full pattern" whatever the settings are
    bool positionLine = false;       ///< the text block says which line of the material sizes mean
    bool joinAngleDisable = false;   ///< flags of the pattern settings at the start
    bool halfPatternDisable = false;
    bool templateTypeEnabled = false;
    bool kerfEnabled = false;
    bool materialDisable = false;
    bool branchMaterialEnable = false;
    std::int16_t inOutMean = MeanDimension;
    bool moreButtons = false;  ///< pages bear btnMore and btnBack, which step the type
    std::span<const std::string_view> patternSelect = {};  ///< captions of optPatternSelect
    std::span<const int> patternSurface =
        {};  ///< the surface of the model, from 1, that each of them develops; the sketch shows it off
    std::span<const std::string_view> flushSide = {};  ///< captions of optFlushSide

    /// Whether the window has optTopAngle and optBaseAngle.
    [[nodiscard]] constexpr bool HasAngleOptions() const {
        for (const PageEntry& page : pages) {
            if (page.angleOptions) {
                return true;
            }
        }
        return false;
    }

    /// Number of parameter boxes of all pages together; pages may share a box.
    [[nodiscard]] constexpr std::size_t BoxCount() const {
        std::size_t count = 0;
        for (const PageEntry& page : pages) {
            for (const BoxEntry& box : page.boxes) {
                count = std::max(count, static_cast<std::size_t>(box.index) + 1);
            }
        }
        return count;
    }
};

/// The pattern settings that a window of the table starts with, at `segs` fold lines. The laps that the
/// fitting has are the catalogue's matter.
inline CPatternSettings StartSettings(const WindowTable& table, int segs) {
    CPatternSettings settings;
    settings.segs = segs;
    settings.JoinAngleDisable = table.joinAngleDisable;
    settings.HalfPatternDisable = table.halfPatternDisable;
    settings.TemplateTypeEnabled = table.templateTypeEnabled;
    settings.KerfEnabled = table.kerfEnabled;
    settings.MaterialDisable = table.materialDisable;
    settings.BranchMaterialEnable = table.branchMaterialEnable;
    settings.InOutMean = table.inOutMean;
    settings.PositionString = PositionWord(table.inOutMean);
    return settings;
}

/// The option buttons that a window of the table starts with: tilts about Y, the first flush side, no
/// pattern.
FittingOptions StartOptions(const WindowTable& table);

/// Greys the seam angle and sets it to 0 for a type whose breaks are measured from plan angle 0.
inline void HoldSeam(CPatternSettings& settings, bool held) {
    settings.JoinAngleDisable = held;
    if (held) {
        settings.JoinAngle = 0;
    }
}

/// The build function of a window's table for a fitting of class T, from one that knows the class.
template <FittingClass T, Outcome (*Build)(FittingForm&, T&)>
Outcome BuildAs(FittingForm& form, const FittingHandle& fitting) {
    return Build(form, fitting.As<T>());
}

/// The same from one function for each type.
template <FittingClass T, Outcome (*... Types)(FittingForm&, T&)>
Outcome BuildByType(FittingForm& form, const FittingHandle& fitting) {
    constexpr std::array types = {Types...};
    return types.at(static_cast<std::size_t>(form.dtype))(form, fitting.As<T>());
}

}  // namespace korvet
