#include "window/parameter_file.h"

#include <algorithm>

#include "core/number_text.h"
#include "window/fitting_types.h"
#include "window/views.h"
#include "window/window_layout.h"

namespace korvet {
namespace {

std::vector<std::optional<bool>> Values(const OptionGroup& group) {
    std::vector<std::optional<bool>> values;
    for (std::size_t i = 0; i < group.captions.size(); ++i) {
        values.emplace_back(group.IsOn(i));
    }
    return values;
}

KvtControls ControlsOf(const WindowModel& controls) {
    KvtControls kvt;
    for (const TextBox& box : controls.txtParameter) {
        kvt.txtParameter.emplace_back(box.text);
    }
    kvt.optTopAngle = Values(controls.options.optTopAngle);
    kvt.optBaseAngle = Values(controls.options.optBaseAngle);
    kvt.optPatternSelect = Values(controls.options.optPatternSelect);
    kvt.optFlushSide = Values(controls.options.optFlushSide);
    return kvt;
}

/// Turns a group's buttons on and off as the file says, in their order. One of which it says nothing stays as
/// it is.
template <typename Select>
void SelectOptions(const std::vector<std::optional<bool>>& values, OptionGroup& group, Select select) {
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (values[i] == true) {
            select(i);
        } else if (values[i] == false && group.IsOn(i)) {
            group.selected.reset();
        }
    }
}

/// The text of a box as it would have been typed here: a number with the comma of another desktop, which is
/// none here, gets this one's mark. Everything else stays as it is.
std::string TypedHere(const std::string& text, char decimalMark) {
    std::string typed = text;
    if (!ParseNumber(text, decimalMark) && ParseFileNumber(text)) {
        std::replace(typed.begin(), typed.end(), ',', decimalMark);
    }
    return typed;
}

void FillBox(CFittingWindow& window, std::size_t index, const std::string& text, Filling filling) {
    if (filling == Filling::AsTyped) {
        window.ChangeBox(index, TypedHere(text, window.Context().decimalMark));
        return;
    }
    TextBox& box = window.controls.txtParameter.at(index);
    box.text = text;
    box.textColor = Red;
}

/// The settings of a file, with the flags that a file does not carry as the window sets them at its start.
CPatternSettings WithWindowFlags(CPatternSettings settings, const WindowTable& table) {
    settings.HalfPatternDisable = table.halfPatterns != HalfPatterns::Offered;
    settings.MaterialDisable = table.materialDisable;
    settings.BranchMaterialEnable = table.branchMaterialEnable;
    return settings;
}

void TakeDisplayState(CFittingWindow& window, const CKvtFile& file) {
    CObjectDisplay& display = window.display;
    display.RotationAngle = file.RotationAngle;
    display.RotationPoint = file.RotationPoint;
    display.MovePoint1 = file.MovePoint1;
    display.MovePoint2 = file.MovePoint2;
    display.CoordGridRequested = file.CoordGridRequested;
    display.CoordTableRequested = file.CoordTableRequested;
    display.DiagonalsRequested = file.DiagonalsRequested;
    display.FrameRequested = file.FrameRequested;
    display.TrueLengthsRequested = file.TrueLengthsRequested;
    display.LabelPoint = file.LabelPoint;
    if (file.DimensionList) {
        window.dimensions = std::make_shared<CDimensions>(*file.DimensionList);
    }
}

void ShowPageOf(CFittingWindow& window, std::int16_t dtype) {
    WindowModel& controls = window.controls;
    ShowPage(controls, static_cast<std::size_t>(dtype));
    controls.lblDtype.caption = std::to_string(dtype + 1);
    EnableTypeButtons(window);
}

void RequireTypeOf(const CFittingWindow& window, const CKvtFile& file) {
    const int types = static_cast<int>(window.controls.Picture1.size());
    if (file.Dtype < 0 || file.Dtype >= types) {
        throw ParameterFileError("line 3: type " + std::to_string(file.Dtype) +
                                 " is none of this fitting's " + std::to_string(types));
    }
}

}  // namespace

CKvtFile ParameterFileOf(const CFittingWindow& window) {
    const CObjectDisplay& display = window.display;
    CKvtFile file;
    file.Category = window.category;
    file.Dtype = window.dtype;
    file.Controls = ControlsOf(window.controls);
    file.PatternSettings = window.settings;
    if (window.Table().branchMaterialEnable) {
        file.Branch = window.branch;
    }
    if (window.Table().sampleMesh != nullptr) {
        file.Mesh = window.mesh;
    }
    file.ViewPoint = CurrentOrDefaultView(*window.views);
    file.RotationAngle = display.RotationAngle;
    // The rotation point of a file is its first move point: readers of these files count on it.
    file.RotationPoint = display.MovePoint1;
    file.MovePoint1 = display.MovePoint1;
    file.MovePoint2 = display.MovePoint2;
    file.CoordGridRequested = display.CoordGridRequested;
    file.CoordTableRequested = display.CoordTableRequested;
    file.DiagonalsRequested = display.DiagonalsRequested;
    file.FrameRequested = display.FrameRequested;
    file.TrueLengthsRequested = display.TrueLengthsRequested;
    file.LabelPoint = display.LabelPoint;
    file.DimensionList = *window.dimensions;
    file.Comment1 = window.comment1;
    file.Comment2 = window.comment2;
    return file;
}

CKvtFile EmptyFileOf(const CFittingWindow& window) {
    const WindowModel& controls = window.controls;
    CKvtFile file;
    KvtControls& kvt = file.Controls;
    kvt.txtParameter.resize(controls.txtParameter.size());
    kvt.optTopAngle.resize(controls.options.optTopAngle.captions.size());
    kvt.optBaseAngle.resize(controls.options.optBaseAngle.captions.size());
    kvt.optPatternSelect.resize(controls.options.optPatternSelect.captions.size());
    kvt.optFlushSide.resize(controls.options.optFlushSide.captions.size());
    if (window.Table().branchMaterialEnable) {
        file.Branch = BranchOptions();
    }
    if (window.Table().sampleMesh != nullptr) {
        file.Mesh = ImportedMesh();
    }
    return file;
}

void FillControls(CFittingWindow& window, const KvtControls& kvt, Filling filling) {
    for (std::size_t i = 0; i < kvt.txtParameter.size(); ++i) {
        if (kvt.txtParameter[i]) {
            FillBox(window, i, *kvt.txtParameter[i], filling);
        }
    }
    FittingOptions& options = window.controls.options;
    const auto fill = [&](const std::vector<std::optional<bool>>& values,
                          OptionGroup FittingOptions::*group) {
        SelectOptions(values, options.*group, [&](std::size_t i) { window.SelectOption(group, i); });
    };
    fill(kvt.optTopAngle, &FittingOptions::optTopAngle);
    fill(kvt.optBaseAngle, &FittingOptions::optBaseAngle);
    SelectOptions(kvt.optPatternSelect, options.optPatternSelect,
                  [&](std::size_t i) { window.SelectPattern(i); });
    fill(kvt.optFlushSide, &FittingOptions::optFlushSide);
}

void TakeParameters(CFittingWindow& window, const CKvtFile& file, Filling filling) {
    RequireTypeOf(window, file);
    FillControls(window, file.Controls, filling);
    window.dtype = static_cast<std::int16_t>(file.Dtype);
    // The seam of the file belongs to its own number of sides.
    window.noOfSides = static_cast<std::int16_t>(window.TypedSides().value_or(window.noOfSides));
    window.settings = WithWindowFlags(file.PatternSettings, window.Table());
    window.branch = file.Branch.value_or(BranchOptions());
    window.mesh = file.Mesh.value_or(ImportedMesh());
    TakeDisplayState(window, file);
    ShowPageOf(window, window.dtype);
    if (window.Table().onTypeChanged != nullptr) {
        window.Table().onTypeChanged(window.dtype, window.settings);
    }
    UpdateSettings(window);
}

/// The number of sides in the settings is only handed to their dialog, so the one of the box stands for it.
SavedState StateOf(const CFittingWindow& window) {
    CKvtFile file = ParameterFileOf(window);
    file.ViewPoint = DefaultViewPoint();
    file.PatternSettings.NoOfSides = window.noOfSides;
    file.Mesh.reset();  // may be large
    return {file.Compose(window.Context().decimalMark), window.mesh.DXFMesh.List1};
}

void CountAsSaved(CFittingWindow& window) {
    window.saved = StateOf(window);
}

bool HasChanges(const CFittingWindow& window) {
    return window.saved != StateOf(window);
}

}  // namespace korvet
