// The small dialogs of a fitting window as plain models with their rules. A dialog was left with OK when its
// lblStatus reads "OK"; any other text is Cancel.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/dimensions.h"
#include "dialogs/dialog_controls.h"
#include "form/controls.h"
#include "form/fields.h"

namespace korvet {

/// Which annotations of a pattern are wanted.
struct DimensionOptionsDialog {
    enum Index : std::size_t { TrueLengths, Diagonals, CoordGrid, CoordTable, FrameAndArea };
    static constexpr int HelpContextID = 2030;

    std::array<CheckBox, 5> chkDimensions = {{{"True lengths "},
                                              {"Diagonal distances"},
                                              {"Coordinate grid"},
                                              {"Coordinate table"},
                                              {"Frame and area"}}};
    std::string lblStatus;
    bool visible = true;  ///< false ends the modal run

    /// A click on box `index`. Grid and table exclude each other: ticking one clears the other.
    void Click(std::size_t index, bool checked);
    void ClickOK();
    void ClickCancel();  ///< also for Esc and the close box
};

/// The text block: its two comment lines, and whether it is shown on the drawing.
struct LabelDialog {
    static constexpr std::size_t EditableLines = 2;
    static constexpr std::size_t FixedLines = 20;
    static constexpr int HelpContextID = 2060;

    std::string caption = "Label";
    CheckBox chkDisplayLabel;
    bool lblInstructionVisible = false;
    std::array<TextBox, EditableLines> txtLabelItem;  ///< the comments, lines 1 and 2 of the block
    std::vector<std::string> lblLabelItem;            ///< the lines behind them
    std::string lblStatus;
    bool visible = true;  ///< false ends the modal run

    /// Fills the dialog. The label is offered until it has been placed once; then its removal is. A block
    /// longer than the dialog's lines shows its first ones.
    void Load(const CLabels& labels, bool hasLabelPoint, bool labelSeen);
    void ClickOK();
    void ClickCancel();  ///< also for Esc and the close box
};

/// What goes into a DXF file.
struct DxfOptionsDialog {
    enum Index : std::size_t { Outlines, BendLines, Diagonals, Dimensions, Label };
    static constexpr int HelpContextID = 2040;

    std::string caption;        ///< "Exporting " and the file's name
    std::string lblExportType;  ///< whether a pattern or a model goes out
    OptionGroup optPolyMode{.captions = {"As arcs", "As polylines"}, .selected = 0};
    std::array<CheckBox, 5> chkDXFOutput = {{{"Outlines", true, true},
                                             {"Bend lines", true, true},
                                             {"Diagonals", false, false},
                                             {"Dimensions", false, false},
                                             {"Label", false, false}}};
    CheckBox chkSurfaceMesh{.caption = "Surface mesh"};
    CheckBox chkComplete{.caption = "Header, layers and units"};  ///< for programs that need them
    bool tellsCheck = true;    ///< the box that tells of the file tells its check too
    bool toPlotter = false;    ///< the drawing goes to a plotter, which takes neither polylines nor text
    bool choosesPort = false;  ///< the two below are there
    ComboBox cmbPlotterPort{.edit = NamedBox("cmbPlotterPort"), .list = {}};
    OptionGroup optHandshake{.captions = {"No hand-shake", "XON/XOFF", "RTS/CTS"}, .selected = 0};
    std::string lblStatus;
    bool visible = true;  ///< false ends the modal run

    /// Ticks and enables box `index`, or clears and disables it.
    void Offer(std::size_t index, bool offered);
    void ClickOK();
    void ClickCancel();  ///< also for Esc and the close box
};

/// Turns the pattern: to an angle of the picked line, or by an angle.
struct RotateDialog {
    enum Move : std::size_t { ToAngle, ByAmount };

    /// The dialog for a line that was picked at `measured` radians. The objects must outlive it.
    RotateDialog(MessageBoxes& boxes, const COptions& options, char decimalMark, double measured);

    std::string caption = "Rotate Pattern";
    Place place = {0, 0, 5340, 1935};
    static constexpr int HelpContextID = 2936;
    std::string lblAngle = "Current Angle:";
    std::array<TextBox, 2> txtAngle;  ///< degrees: 0 that of the picked line, not edited; 1 the wanted one
    OptionGroup optMove{.captions = {"Rotate to this angle", "Rotate by this amount"}, .selected = ToAngle};
    std::string lblStatus;
    std::string focus;    ///< name of the control that has the focus
    bool visible = true;  ///< false ends the modal run

    // Events.
    void Change(const std::string& text);  ///< of txtAngle(1)

    /// Closes the dialog with "OK" when the angle is a number, else says so and stays.
    void ClickOK();

    /// Also for Esc and the close box.
    void ClickCancel();

    /// By how much the pattern is to turn, radians. Throws ArithmeticError when the angle is no number.
    [[nodiscard]] double Turn();

  private:
    [[nodiscard]] FieldContext Fields();

    MessageBoxes& boxes_;
    const COptions& options_;
    char decimalMark_;
    double measured_;  ///< radians
};

}  // namespace korvet
