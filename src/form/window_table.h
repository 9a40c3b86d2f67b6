// A fitting window is this table and one build function; everything else is the template that all windows
// share.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "core/fitting.h"
#include "core/imported_mesh.h"
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

/// One line of the text block: a label and behind it the text of a box as typed.
struct LabelEntry {
    int box;                      ///< index in txtParameter, or NoBox
    std::string_view label = {};  ///< empty: that of the box on its page, without the unit, and " = "
    std::string_view text = {};   ///< what follows the label where there is no box
};

/// The views of a sketch that shows the shape once, from the front.
inline constexpr SketchView FrontView[] = {{}};

/// The parameters of one type of a fitting. Page k is shown as Type k + 1. Its boxes have names, which
/// checks, box table and labels use: the enumeration Box in a namespace that the window has for the page.
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

/// Which patterns a window's fitting has, beside the whole one.
enum class HalfPatterns {
    Offered,    ///< the half, by the settings dialog; a build may refuse it (FittingForm::RefuseHalfPattern)
    FromFiles,  ///< the dialog offers no half, but one that a file brings is made if the build lets it
    RefusedByClass,  ///< none: the class says so (message 19) when a file brings a half
    None             ///< none, and not a word about it
};

/// One step of the build of a fitting: reads the form and fills the fitting.
using BuildStep = Outcome(FittingForm& form, const FittingHandle& fitting);

struct WindowTable {
    std::span<const PageEntry> pages;
    FittingHandle (*newFitting)();

    /// Checks the boxes of form.dtype in their fixed order, decides on half patterns, and sets the fitting's
    /// own properties. Then the text block is composed, and a window with patterns to select asks for one.
    BuildStep* buildFitting;

    /// What is checked and set behind that question, last of all; null when nothing.
    BuildStep* afterPatternChoice = nullptr;

    /// What a change of type does to the settings; null when nothing.
    void (*onTypeChanged)(std::int16_t dtype, CPatternSettings& settings) = nullptr;

    std::int16_t firstDtype = 0;     ///< type shown at the start, from 0
    bool multiple = false;           ///< the fitting has lists of surfaces, one for each of its pieces
    std::int16_t miscellaneous = 0;  ///< selector handed to the fitting until an option is clicked
    bool checksAllFields = true;     ///< every box of every type must hold a number before a build
    bool positionLine = false;       ///< the text block says which line of the material sizes mean
    HalfPatterns halfPatterns = HalfPatterns::Offered;

    // What the pattern settings of a new window start with.
    bool joinAngleDisable = false;
    bool templateTypeEnabled = false;
    bool kerfEnabled = false;
    bool materialDisable = false;
    bool branchMaterialEnable = false;       ///< the window has two pipes, and btnPosition for how they join
    std::int16_t inOutMean = MeanDimension;  ///< a MaterialSide

    bool moreButtons = false;  ///< pages bear btnMore and btnBack, which step the type
    std::span<const std::string_view> patternSelect = {};  ///< captions of optPatternSelect; empty: no choice

    /// The surface of the model, from 1, that each of those patterns develops: the sketch shows it off.
    std::span<const int> patternSurface = {};
    std::span<const std::string_view> flushSide = {};  ///< captions of optFlushSide; empty: no choice

    /// The realistic mesh of a window whose fitting is imported and not typed: it has btnImportMesh. Null for
    /// all others.
    ImportedMesh (*sampleMesh)() = nullptr;

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

/// The label of one line of the text block of a page. Throws std::logic_error when it is to be that of a box
/// which the page has not.
std::string LabelOf(const PageEntry& page, const LabelEntry& line);

/// Whether the text block tells of a half pattern: with HalfPattern of the settings, where there is any.
bool TellsOfHalf(const WindowTable& table, const CPatternSettings& settings);

/// No size in the boxes of a page may be above LargestSize in magnitude. Throws ArithmeticError that names
/// the box, also for one that holds no number.
void RequireSizesWithinReach(const FittingForm& form, const PageEntry& page);

/// The end of a build: the question for the pattern, and what the table has behind it.
Outcome BuildChosenPattern(const WindowTable& table, FittingForm& form, const FittingHandle& fitting);

/// The pattern settings that a window of the table starts with, at `segs` fold lines. The laps that the
/// fitting has are the catalogue's matter.
inline CPatternSettings StartSettings(const WindowTable& table, int segs) {
    CPatternSettings settings;
    settings.segs = segs;
    settings.JoinAngleDisable = table.joinAngleDisable;
    settings.HalfPatternDisable = table.halfPatterns != HalfPatterns::Offered;
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

/// The build step of a window's table for a fitting of class T, from a function that knows the class.
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
