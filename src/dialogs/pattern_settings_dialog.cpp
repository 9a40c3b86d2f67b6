#include "dialogs/pattern_settings_dialog.h"

#include <algorithm>
#include <stdexcept>

#include "core/checked.h"
#include "core/number_text.h"
#include "dialogs/options_dialog.h"
#include "form/messages.h"

namespace korvet {
namespace {

/// The rectangle that the two material frames share.
constexpr Place MaterialPlace = {60, 3120, 3795, 2955};

/// The option that a number from the settings means; the first where there is no such option.
std::size_t OptionOf(std::int16_t value, const OptionGroup& group) {
    const bool known = value >= 0 && static_cast<std::size_t>(value) < group.captions.size();
    return known ? static_cast<std::size_t>(value) : 0;
}

void ShowText(TextBox& box, const std::string& text) {
    box.text = text;
    box.textColor = Black;
}

void ShowNumber(const PatternSettingsDialog& dialog, TextBox& box, double value) {
    ShowText(box, NumberText(value, dialog.decimalMark));
}

void ShowKerf(PatternSettingsDialog& dialog, const CPatternSettings& settings) {
    dialog.fraKerfSpacing.enabled = settings.KerfEnabled;
    dialog.txtKerfSpacing.enabled = settings.KerfEnabled;
    ShowNumber(dialog, dialog.txtKerfSpacing, settings.KerfSpacing);
}

void ShowTemplateType(PatternSettingsDialog& dialog, const CPatternSettings& settings) {
    dialog.fraTemplateType.enabled = settings.TemplateTypeEnabled;
    dialog.optTemplateType.enabled = settings.TemplateTypeEnabled;
    dialog.optTemplateType.selected = settings.TemplateType == 1 ? 1 : 0;
}

void ShowMaterial(PatternSettingsDialog& dialog, const CPatternSettings& settings) {
    ShowNumber(dialog, dialog.txtThickness, settings.Thickness);
    ShowNumber(dialog, dialog.txtThicknessA, settings.ThicknessA);
    ShowNumber(dialog, dialog.txtThicknessB, settings.ThicknessB);
    dialog.optInOutMean.selected = OptionOf(settings.InOutMean, dialog.optInOutMean);
    dialog.optInOutMeanBranch.selected = OptionOf(settings.InOutMean, dialog.optInOutMeanBranch);

    const bool enabled = !settings.MaterialDisable;
    dialog.fraMaterial.enabled = enabled;
    dialog.txtThickness.enabled = enabled;
    dialog.optInOutMean.enabled = enabled;
    const bool branch = settings.BranchMaterialEnable;
    dialog.fraMaterial.visible = !branch;
    dialog.fraBranchMaterial.visible = branch;
    if (enabled) {
        dialog.fraMaterial.place = MaterialPlace;
    }
    if (branch) {
        dialog.fraBranchMaterial.place = MaterialPlace;
    }
}

void ShowJoinAngle(PatternSettingsDialog& dialog, const CPatternSettings& settings) {
    dialog.SetJoinAngleList();
    ShowNumber(dialog, dialog.cboJoinAngle.edit, settings.JoinAngle);
    dialog.fraJoinAngle.enabled = !settings.JoinAngleDisable;
    dialog.cboJoinAngle.edit.enabled = !settings.JoinAngleDisable;
}

void EnableLapSizes(PatternSettingsDialog& dialog, bool enabled) {
    dialog.lblLapSize.enabled = enabled;
    for (TextBox& box : dialog.txtLapSize) {
        box.enabled = enabled;
    }
}

void ShowLapSizes(PatternSettingsDialog& dialog, std::array<double, 3> sizes) {
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        ShowNumber(dialog, dialog.txtLapSize.at(i), sizes.at(i));
    }
}

void ShowLapControls(PatternSettingsDialog& dialog, const CPatternSettings& settings) {
    dialog.lblLapEnableValue = settings.LapEnable;
    if (settings.HalfPatternDisable) {
        dialog.optFullHalf.selected = PatternSettingsDialog::FullPattern;
    }
    dialog.optFullHalf.enabled = !settings.HalfPatternDisable;

    dialog.optJoinType.enabled = settings.LapEnable != NoLaps;
    if (settings.LapEnable == NoLaps || settings.JoinType == 0) {
        dialog.ClickJoinType(PatternSettingsDialog::Butt);
        ShowLapSizes(dialog, {0, 0, 0});
    } else {
        // "Lap" itself is not selected here: the option keeps what the last use of the dialog left, so that a
        // lap is never laid without a look at its sizes.
        EnableLapSizes(dialog, true);
        ShowLapSizes(dialog, {settings.LapSize0, settings.LapSize1, settings.LapSize2});
    }
}

void ShowFullHalf(PatternSettingsDialog& dialog, const CPatternSettings& settings) {
    const bool half = settings.HalfPattern && !settings.HalfPatternDisable;
    dialog.optFullHalf.selected =
        half ? PatternSettingsDialog::HalfPattern : PatternSettingsDialog::FullPattern;
}

void ReadDialog(PatternSettingsDialog& dialog, CPatternSettings& settings) {
    const FieldContext fields = dialog.Fields();
    settings.JoinAngle = FieldValue(fields, dialog.cboJoinAngle.edit);
    settings.Thickness = FieldValue(fields, dialog.txtThickness);
    settings.ThicknessA = FieldValue(fields, dialog.txtThicknessA);
    settings.ThicknessB = FieldValue(fields, dialog.txtThicknessB);
    settings.segs = RoundToInt(FieldValue(fields, dialog.cboSegs.edit));
    settings.KerfSpacing = FieldValue(fields, dialog.txtKerfSpacing);
    settings.HalfPattern = dialog.optFullHalf.IsOn(PatternSettingsDialog::HalfPattern);
    settings.TemplateType = dialog.optTemplateType.IsOn(1) ? 1 : 0;
    const OptionGroup& side = settings.BranchMaterialEnable ? dialog.optInOutMeanBranch : dialog.optInOutMean;
    settings.InOutMean = static_cast<std::int16_t>(side.selected.value_or(0));
    settings.PositionString = PositionWord(settings.InOutMean);
    settings.LapSize0 = FieldValue(fields, dialog.txtLapSize[0]);
    settings.LapSize1 = FieldValue(fields, dialog.txtLapSize[1]);
    settings.LapSize2 = FieldValue(fields, dialog.txtLapSize[2]);
    settings.JoinType = dialog.optJoinType.IsOn(PatternSettingsDialog::Lap) ? 1 : 0;
}

/// CheckNumber on several boxes in the order given, up to the first that refuses.
Outcome CheckNumbers(const FieldContext& fields, std::initializer_list<TextBox*> boxes) {
    return RefusedIf(
        std::any_of(boxes.begin(), boxes.end(), [&](TextBox* box) { return CheckNumber(fields, *box); }));
}

/// No thickness that can be typed may be below 0. One that is greyed or hidden could not be mended.
Outcome CheckThicknesses(PatternSettingsDialog& dialog, const FieldContext& fields) {
    if (dialog.fraBranchMaterial.visible) {
        return RefusedIf(CheckAtLeast(fields, dialog.txtThicknessA, 0) ||
                         CheckAtLeast(fields, dialog.txtThicknessB, 0));
    }
    return dialog.txtThickness.enabled ? CheckAtLeast(fields, dialog.txtThickness, 0) : Passed;
}

}  // namespace

FieldContext PatternSettingsDialog::Fields() {
    if (ui == nullptr || options == nullptr) {
        throw std::logic_error("the settings dialog is not shown");
    }
    return {*ui, *options, decimalMark, focus};
}

void PatternSettingsDialog::SetJoinAngleList() {
    constexpr int RoundEntries = 12;
    const int entries = lblNoOfSides > 0 ? 2 * lblNoOfSides : RoundEntries;
    const double step = lblNoOfSides > 0 ? (360.0 / lblNoOfSides) / 2 : 30.0;
    cboJoinAngle.list.clear();
    for (int i = 0; i < entries; ++i) {
        cboJoinAngle.list.push_back(NumberText(i * step, decimalMark));
    }
}

void PatternSettingsDialog::Change(TextBox& box, const std::string& text) {
    box.text = WithoutPastedBlanks(box.text, text);
    const bool free = &box == &cboSegs.edit || &box == &cboJoinAngle.edit || &box == &txtKerfSpacing;
    if (!free) {
        CheckFieldChange(Fields(), box);
        box.textColor = Red;
    }
}

void PatternSettingsDialog::Focus(TextBox& box) {
    focus = box.name;
    SelectFieldText(box);
}

void PatternSettingsDialog::ClickJoinType(std::size_t index) {
    optJoinType.selected = index;
    EnableLapSizes(*this, index == Lap);
    if (index == Lap) {
        for (std::size_t i = 0; i < txtLapSize.size(); ++i) {
            txtLapSize.at(i).enabled = (lblLapEnableValue & (1 << i)) != 0;
        }
    }
}

void PatternSettingsDialog::ClickOK() {
    const FieldContext fields = Fields();
    if (CheckNumbers(fields, {&txtThickness, &txtThicknessA, &txtThicknessB, &txtLapSize[0], &txtLapSize[1],
                              &txtLapSize[2]})) {
        return;
    }
    bool hasSize = false;
    for (const TextBox& box : txtLapSize) {
        hasSize = hasSize || FieldValue(fields, box) != 0;
    }
    if (optJoinType.IsOn(Lap) && !hasSize) {
        const auto* const typed = std::find_if(txtLapSize.begin(), txtLapSize.end(),
                                               [](const TextBox& box) { return box.enabled; });
        ShowPlain(*ui, GetMessage(LapWithoutSize, options->Language), {},
                  typed == txtLapSize.end() ? std::string() : typed->name);
        return;
    }
    if (CheckThicknesses(*this, fields) ||
        CheckNumbers(fields, {&cboSegs.edit, &cboJoinAngle.edit, &txtKerfSpacing}) ||
        CheckSegs(fields, cboSegs.edit)) {
        return;
    }
    lblStatus = "OK";
    visible = false;
}

void PatternSettingsDialog::ClickCancel() {
    visible = false;
}

void PatternSettingsDialog::ClickOptions(FileStore& files) {
    const FieldContext fields = Fields();
    OptionsDialog dialog(*options, *ui, files, fields.decimalMark);
    ui->RunModal(dialog);
}

Outcome LoadDialog(PatternSettingsDialog& dialog, CPatternSettings& settings, UserInterface& ui,
                   COptions& options, char decimalMark) {
    dialog.ui = &ui;
    dialog.options = &options;
    dialog.decimalMark = decimalMark;
    dialog.caption = GetMessage(SettingsCaption, options.Language);
    ShowText(dialog.cboSegs.edit, std::to_string(settings.segs));
    dialog.lblNoOfSides = settings.NoOfSides;
    dialog.lblStatus = "  ";
    ShowKerf(dialog, settings);
    ShowTemplateType(dialog, settings);
    ShowMaterial(dialog, settings);
    ShowJoinAngle(dialog, settings);
    ShowLapControls(dialog, settings);
    ShowFullHalf(dialog, settings);

    dialog.visible = true;
    ui.RunModal(dialog);
    dialog.visible = false;
    const bool accepted = dialog.lblStatus == "OK";
    if (accepted) {
        ReadDialog(dialog, settings);
    }
    dialog.ui = nullptr;
    dialog.options = nullptr;
    return RefusedIf(!accepted);
}

}  // namespace korvet
