// The dialog of the pattern settings as a plain model with its rules. The whole program has one, and what it
// was left with shows through in the next window: a "Lap" that one window selected is still selected there.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/file_store.h"
#include "core/pattern_settings.h"
#include "dialogs/dialog_controls.h"
#include "dialogs/user_interface.h"
#include "form/fields.h"
#include "form/options.h"

namespace korvet {

struct PatternSettingsDialog {
    enum JoinOption : std::size_t { Butt, Lap };
    enum BendLines : std::size_t { FullPattern, HalfPattern };

    // The controls, under their names. A value of PatternSettingsDialog() is the dialog as freshly loaded.
    std::string caption;
    Control fraMaterial;
    TextBox txtThickness = NamedBox("txtThickness");
    OptionGroup optInOutMean{.captions = {"Mean", "Inside", "Outside"}, .selected = 0};
    Control fraBranchMaterial;
    TextBox txtThicknessA = NamedBox("txtThicknessA");
    TextBox txtThicknessB = NamedBox("txtThicknessB");
    OptionGroup optInOutMeanBranch{.captions = {"Mean", "Inside", "Outside"}, .selected = 0};
    Control fraTemplateType;
    OptionGroup optTemplateType{.captions = {"Mean thickness", "Wraps around OD"}, .selected = 0};
    Control fraKerfSpacing = Captioned("Kerf spacing");
    TextBox txtKerfSpacing = NamedBox("txtKerfSpacing");
    Control fraJoinType;
    OptionGroup optJoinType{.captions = {"Butt", "Lap"}, .selected = Butt};
    std::array<TextBox, 3> txtLapSize = {NamedBox("txtLapSize_0"), NamedBox("txtLapSize_1"),
                                         NamedBox("txtLapSize_2")};
    Control lblLapSize;
    Control Frame2 = Captioned("Bend lines");
    OptionGroup optFullHalf{.captions = {"Full Pattern", "Half Pattern"}, .selected = FullPattern};
    ComboBox cboSegs = SegsBox("cboSegs");
    Control fraJoinAngle = Captioned("Join angle", "Angle of join");
    ComboBox cboJoinAngle{.edit = NamedBox("cboJoinAngle"), .list = {}};
    std::string lblStatus;               ///< "OK" after the OK button, else two blanks
    std::int16_t lblLapEnableValue = 0;  ///< a LapMask
    std::int16_t lblNoOfSides = 0;
    std::string focus;     ///< name of the control that has the focus; stays as it was when the dialog hides
    bool visible = false;  ///< false ends the modal run

    // What the events need, from LoadDialog and for as long as the dialog is shown.
    UserInterface* ui = nullptr;
    COptions* options = nullptr;
    char decimalMark = '.';

    /// Fills the list of join angles, in degrees: every half side of a polygon of lblNoOfSides sides, or
    /// every 30 degrees of a round section.
    void SetJoinAngleList();

    // Events while the dialog is shown.

    /// The text of one of the dialog's boxes after an edit. Thicknesses and lap sizes are tested and turn
    /// red.
    void Change(TextBox& box, const std::string& text);
    /// A box gains the focus: all its text is selected.
    void Focus(TextBox& box);
    void ClickJoinType(std::size_t index);

    /// Closes the dialog with "OK" when all its boxes hold what they should, else says what is wrong and
    /// stays.
    void ClickOK();

    /// Also for Esc and the close box.
    void ClickCancel();

    /// Shows the global options on top. `files` is for their Save button.
    void ClickOptions(FileStore& files);

    /// The checks' view of this dialog. Throws std::logic_error when the dialog is not shown.
    [[nodiscard]] FieldContext Fields();
};

/// Fills the dialog from the settings, shows it modally, and after "OK" reads it back into the settings.
/// Refused after anything else. Angles are degrees on both sides. A window that closes puts a new
/// PatternSettingsDialog() in the place of `dialog`.
Outcome LoadDialog(PatternSettingsDialog& dialog, CPatternSettings& settings, UserInterface& ui,
                   COptions& options, char decimalMark);

}  // namespace korvet
