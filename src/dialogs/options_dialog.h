// The global options dialog as a plain model with its rules.
#pragma once

#include <array>
#include <string>

#include "core/file_store.h"
#include "dialogs/dialog_controls.h"
#include "dialogs/user_interface.h"
#include "form/fields.h"
#include "form/options.h"

namespace korvet {

/// A patch that shows one colour of the options; a click on it opens the colour dialog.
struct ColorSwatch {
    std::string name;
    Color DisplayColors::*option = nullptr;  ///< which colour it stands for
    Color backColor = Black;
};

struct OptionsDialog {
    enum Tab : int { GeneralTab = 1, DisplayTab, PrintTab, DxfTab };
    enum ScaleOption : std::size_t { FitPage, FullSize, UserScale };

    /// The dialog filled from `options`, with one tab open. The objects must outlive it.
    OptionsDialog(COptions& options, UserInterface& ui, FileStore& files, char decimalMark,
                  int tab = GeneralTab);

    static constexpr int HelpContextID = 2010;

    // The controls, under their names.
    std::string caption;
    int tab;  ///< the open one; a failed check opens that of its box
    ComboBox cmbLanguage{.edit = NamedBox("cmbLanguage"), .list = {"English", "French", "Italian", "German"}};
    ComboBox CmbDefaultSegs = SegsBox("CmbDefaultSegs");
    OptionGroup cmbDecimals{.captions = {"0", "0.0", "0.00", "0.000", "0.0000", "0.00000"},
                            .selected = {}};  ///< a drop-down list
    TextBox txtDisplayTextSize = NamedBox("txtDisplayTextSize");
    ColorSwatch pboxDisplayCutColor{"pboxDisplayCutColor", &DisplayColors::DisplayCutColor};
    ColorSwatch pboxDisplayFoldColor{"pboxDisplayFoldColor", &DisplayColors::DisplayFoldColor};
    ColorSwatch pboxDisplayBackColor{"pboxDisplayBackColor", &DisplayColors::DisplayBackColor};
    ColorSwatch pboxDisplayTextColor{"pboxDisplayTextColor", &DisplayColors::DisplayTextColor};
    ColorSwatch pboxDisplayDimensionColor{"pboxDisplayDimensionColor", &DisplayColors::DisplayDimensionColor};
    TextBox txtDXFCutLayer = NamedBox("txtDXFCutLayer");
    TextBox txtDXFFoldLayer = NamedBox("txtDXFFoldLayer");
    TextBox txtDXFTextLayer = NamedBox("txtDXFTextLayer");
    TextBox txtDXFBorderLayer = NamedBox("txtDXFBorderLayer");
    TextBox txtDXFDimensionLayer = NamedBox("txtDXFDimensionLayer");
    TextBox txtDXFTextSize = NamedBox("txtDXFTextSize");
    OptionGroup optPolyMode{.captions = {"As arcs", "As polylines"}, .selected = {}};
    OptionGroup optScale{.captions = {"Scale to fit page", "Full size", "User scale"}, .selected = {}};
    TextBox txtUserScale = NamedBox("txtUserScale");
    OptionGroup optUnits{.captions = {"Millimeters", "Inches"}, .selected = {}};
    Control fraOrientation;
    OptionGroup optOrientation{.captions = {"Portrait", "Landscape"}, .selected = {}};
    Control pboxOrient;       ///< a sheet of paper, placed in fraOrientation
    Control pboxOrientInner;  ///< what is printed on it, placed in pboxOrient
    std::array<TextBox, 2> txtCalibrate = {NamedBox("txtCalibrate_0"), NamedBox("txtCalibrate_1")};
    std::array<TextBox, 2> txtFrameSize = {NamedBox("txtFrameSize_0"), NamedBox("txtFrameSize_1")};
    std::string lblStatus = "  ";  ///< "OK" or "Cancel" once the dialog is closed
    std::string focus;    ///< name of the control that has the focus; stays as it was when the dialog hides
    bool visible = true;  ///< false ends the modal run

    // Events.

    /// The text of a number box after an edit, tested as it is typed. Layer names take any text and are
    /// written to directly.
    void ChangeNumber(TextBox& box, const std::string& text);

    /// The text of CmbDefaultSegs after an edit or a choice, which is tested only when the dialog is left.
    void ChangeSegs(const std::string& text);

    /// After the colour dialog: the colour is in the options at once, and Cancel does not take it back.
    void StoreColor(ColorSwatch& swatch, Color color);
    void ClickScale(std::size_t index);
    void ClickOrientation(std::size_t index);
    void ClickCalibAssist();

    /// Takes the values for this run and closes; the file is not written.
    void ClickOK();

    /// Takes the values and writes the file; the dialog stays.
    void ClickSave();

    /// Also for Esc and the close box.
    void ClickCancel();

    /// Tests the boxes and stores them in the options, one after the other. What stood before the first that
    /// is refused is then already stored. The fold layer is tested but never stored.
    Outcome ApplyDialog();

  private:
    void Fill();
    Outcome StoreLayers();
    Outcome StoreTextSizes();
    Outcome Refuse(const TextBox& box, const std::string& text);
    [[nodiscard]] FieldContext Fields();

    COptions& options_;
    UserInterface& ui_;
    FileStore& files_;
    char decimalMark_;
};

}  // namespace korvet
