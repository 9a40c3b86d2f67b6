#include "window/saving.h"

#include <algorithm>

#include "core/constants.h"
#include "core/number_text.h"
#include "core/text_encoding.h"
#include "window/fitting_types.h"
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

/// As many empty places as the window has controls, for a file to fill.
KvtControls EmptyControls(const WindowModel& controls) {
    KvtControls kvt;
    kvt.txtParameter.resize(controls.txtParameter.size());
    kvt.optTopAngle.resize(controls.options.optTopAngle.captions.size());
    kvt.optBaseAngle.resize(controls.options.optBaseAngle.captions.size());
    kvt.optPatternSelect.resize(controls.options.optPatternSelect.captions.size());
    kvt.optFlushSide.resize(controls.options.optFlushSide.captions.size());
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

/// Fills the controls as if the user had typed and clicked.
void FillControls(CFittingWindow& window, const KvtControls& kvt) {
    for (std::size_t i = 0; i < kvt.txtParameter.size(); ++i) {
        if (kvt.txtParameter[i]) {
            window.ChangeBox(i, TypedHere(*kvt.txtParameter[i], window.Context().decimalMark));
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

/// What is wrong with a file, behind its name; the errors of the disk name it themselves.
std::string FaultOf(const std::string& path, const std::exception& error) {
    const std::string name = path + ": ";
    const std::string fault = error.what();
    return Printable(fault.starts_with(name) ? fault : name + fault);
}

std::string LabelText(const std::shared_ptr<CLabels>& labels, std::size_t index) {
    return labels && labels->Count() >= index ? labels->Item(index).LabelString : std::string();
}

}  // namespace

bool HasNoFile(const CFittingWindow& window) {
    return window.controls.caption.starts_with(NewWindowCaption);
}

void ShowForeignProduct(WindowContext& context, const std::string& path, const std::exception& error) {
    ShowPlain(context.ui, context.Message(NotAValidFile), FaultOf(path, error));
}

void ShowHeaderError(MessageBoxes& boxes, const std::string& path, const std::exception& error) {
    ShowPlain(boxes, "Error in CKVTFile:ReadHeader  " + Printable(error.what()), Printable(path));
}

void ShowLoadError(WindowContext& context, const std::string& path, const std::exception& error) {
    if (dynamic_cast<const ForeignProductError*>(&error) != nullptr) {
        ShowForeignProduct(context, path, error);
    }
    if (dynamic_cast<const HeaderError*>(&error) != nullptr) {
        ShowHeaderError(context.ui, path, error);
    }
    ShowPlain(context.ui, context.Message(ErrorLoading), FaultOf(path, error));
}

void ShowLoadNotes(WindowContext& context, const CKvtFile& file) {
    if (file.IsOfLaterVersion()) {
        ShowPlain(context.ui,
                  "This file is of the later version " + Printable(Excerpt(file.Version)) +
                      ": what this program does not know of it is left out",
                  Printable(file.FileName));
    }
    if (file.BranchMissing) {
        ShowPlain(context.ui,
                  "The thicknesses and the join of the branch are not in this file: the settings of a new "
                  "window are used");
    }
}

Outcome SaveFitting(CFittingWindow& window, const std::string& path) {
    const CObjectDisplay& display = window.display;
    WindowContext& context = window.Context();
    CKvtFile file;
    file.FileName = path;
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
    file.ViewPoint = window.views->Last();
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
    file.Comment1 = LabelText(window.labels, 1);
    file.Comment2 = LabelText(window.labels, 2);
    try {
        file.SaveFile(context.files, context.decimalMark);
    } catch (const std::exception& error) {
        ShowPlain(context.ui, error.what());
        return Refused;
    }
    window.controls.caption = path;
    return Passed;
}

CKvtFile LoadFitting(CFittingWindow& window, const std::string& path) {
    const WindowContext& context = window.Context();
    CKvtFile file;
    file.FileName = path;
    file.Controls = EmptyControls(window.controls);
    if (window.Table().branchMaterialEnable) {
        file.Branch = BranchOptions();
    }
    if (window.Table().sampleMesh != nullptr) {
        file.Mesh = ImportedMesh();
    }
    try {
        file.LoadFile(context.files, context.options.DefaultSegs);
    } catch (const ParameterFileError&) {
        // What stood before the fault is kept, so that it need not be typed again.
        FillControls(window, file.Controls);
        throw;
    }
    const int types = static_cast<int>(window.controls.Picture1.size());
    if (file.Dtype < 0 || file.Dtype >= types) {
        throw ParameterFileError("line 3: type " + std::to_string(file.Dtype) +
                                 " is none of this fitting's " + std::to_string(types));
    }
    FillControls(window, file.Controls);
    window.dtype = static_cast<std::int16_t>(file.Dtype);
    // The seam of the file belongs to its own number of sides.
    window.noOfSides = static_cast<std::int16_t>(window.TypedSides().value_or(window.noOfSides));
    window.views->Add(file.ViewPoint);
    window.settings = WithWindowFlags(file.PatternSettings, window.Table());
    window.branch = file.Branch.value_or(BranchOptions());
    window.mesh = file.Mesh.value_or(ImportedMesh());
    window.Context().patternSettingsDialog =
        PatternSettingsDialog();  // it closes with the settings it showed
    TakeDisplayState(window, file);
    window.controls.caption = path;
    ShowPageOf(window, window.dtype);
    if (window.Table().onTypeChanged != nullptr) {
        window.Table().onTypeChanged(window.dtype, window.settings);
    }
    UpdateSettings(window);
    return file;
}

std::optional<std::string> ChooseSaveName(UserInterface& ui) {
    return ui.ChooseFile({"SaveAs", std::string(ProductTitle) + " Files (*.Kvt)|*.Kvt", true});
}

Outcome ConfirmSave(CFittingWindow& window) {
    if (!window.hasModel) {
        return Passed;
    }
    WindowContext& context = window.Context();
    const std::string& caption = window.controls.caption;
    const Answer answer = context.ui.Show({context.Message(SaveParameterFile) + " for " + caption,
                                           YesNoCancelBox,
                                           std::string(ProductTitle),
                                           {},
                                           std::nullopt});
    if (answer != Answer::Yes) {
        return RefusedIf(answer == Answer::Cancel);
    }
    const std::optional<std::string> path = HasNoFile(window) ? ChooseSaveName(context.ui) : caption;
    // What was not written must not be thrown away with its window.
    return path ? window.SaveFile(*path) : Refused;
}

}  // namespace korvet
