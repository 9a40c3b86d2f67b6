// The dialog of printer, paper and scale, for setting up and for printing, as a plain model with its rules.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "dialogs/dialog_controls.h"
#include "form/fields.h"
#include "printing/print_dialog.h"

namespace korvet {

/// What the dialog is opened for.
enum class PrintersUse : std::uint8_t { Setup, Print };

struct PrintersDialog {
    enum Action : std::size_t { PrintAll = 0, PrintSelected = 2, PrintTable = 3 };
    enum Scale : std::size_t { FitPage, FullSize, UserScale };
    enum Button : std::size_t { OkButton = 1, CancelButton = 2 };
    static constexpr int HelpContextID = 2070;

    /// The dialog filled from `printer`. The objects must outlive it.
    PrintersDialog(PrintersUse use, CPrintDialog& printer, MessageBoxes& boxes, const COptions& options,
                   char decimalMark);

    // The controls, under their names.
    std::string caption;
    ComboBox cmbPrinters{.edit = NamedBox("cmbPrinters"), .list = {}};
    ComboBox cmbPapersize{.edit = NamedBox("cmbPapersize"), .list = {}};
    OptionGroup optOrientation{.captions = {"Portrait", "Landscape"}, .selected = {}};
    OptionGroup optUnits{.captions = {"Millimeters", "Inches"}, .selected = {}};
    OptionGroup optScale{.captions = {"Scale to fit page", "Full size", "User scale"}, .selected = {}};
    TextBox txtUserScale = NamedBox("txtUserScale");

    /// There is no action 1.
    OptionGroup optAction{.captions = {"Print All", "", "Print Selected Frames", "Print Coordinate Table"},
                          .selected = PrintAll};
    std::array<bool, 4> actionEnabled = {true, false, false, false};
    std::array<Control, 3> btnPrint;  ///< there is no button 0
    Control fraOrientation;
    Control pboxOrient;       ///< a sheet of paper, placed in fraOrientation
    Control pboxOrientInner;  ///< what is printed on it, placed in pboxOrient
    std::string lblStatus;    ///< "OK" or "Cancel" once the dialog is closed
    std::string focus;        ///< name of the control that has the focus
    bool visible = true;      ///< false ends the modal run

    // Events.

    /// Another printer: the list has its papers, and the paper stays where it has one of that name.
    void ChoosePrinter(const std::string& name);
    void ChoosePaper(const std::string& name);
    void ClickOrientation(std::size_t index);
    void ClickScale(std::size_t index);
    void ClickAction(std::size_t index);
    void ChangeUserScale(const std::string& text);

    /// Takes the choice over and closes. What the printer does not have is told of, and the dialog stays.
    void ClickOK();

    /// Also for Esc and the close box.
    void ClickCancel();

    /// Which action is chosen, and whether it can be.
    [[nodiscard]] bool IsChosen(Action action) const;

  private:
    void ListPapers(const std::string& printer);
    [[nodiscard]] std::optional<std::string> NamedPrinter() const;
    [[nodiscard]] CPrintDialog Chosen();
    [[nodiscard]] FieldContext Fields();

    CPrintDialog& printer_;
    MessageBoxes& boxes_;
    const COptions& options_;
    char decimalMark_;
    std::vector<Paper> papers_;  ///< numbers and names of the papers in the list
};

/// Tells that a document can't be printed, and why; about a control, where it names one.
void ShowPrintError(MessageBoxes& boxes, const COptions& options, const std::exception& error,
                    const std::string& control = {});

}  // namespace korvet
