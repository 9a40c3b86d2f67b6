#include "printing/printers_dialog.h"

#include <algorithm>

#include "core/number_text.h"
#include "core/reason.h"
#include "form/messages.h"

namespace korvet {
namespace {

/// The paper of that number or name.
template <typename Key>
const Paper* FindPaper(const std::vector<Paper>& papers, Key Paper::*member, const Key& value) {
    const auto found =
        std::find_if(papers.begin(), papers.end(), [&](const Paper& each) { return each.*member == value; });
    return found == papers.end() ? nullptr : &*found;
}

std::string TrimmedText(const TextBox& box) {
    return std::string(Trimmed(box.text));
}

}  // namespace

PrintersDialog::PrintersDialog(PrintersUse use, CPrintDialog& printer, MessageBoxes& boxes,
                               const COptions& options, char decimalMark)
    : printer_(printer), boxes_(boxes), options_(options), decimalMark_(decimalMark) {
    const bool prints = use == PrintersUse::Print;
    caption = prints ? "Print" : "Print Setup";
    lblStatus = prints ? "" : "SetupPrinter";
    btnPrint[OkButton].caption = prints ? "Print" : "Continue";
    btnPrint[CancelButton].caption = "Cancel";
    optAction.enabled = optScale.enabled = prints;
    cmbPrinters.list = printer.PrinterNames();
    cmbPrinters.edit.text = printer.HasPrinter() ? printer.CurrentPrinterName : "";
    cmbPapersize.edit.text.clear();
    ListPapers(cmbPrinters.edit.text);
    const Paper* const paper = FindPaper(papers_, &Paper::number, printer.CurrentPaperSize);
    if (paper != nullptr) {
        cmbPapersize.edit.text = paper->name;
    }
    ClickScale(printer.PrintScale == 0 ? FitPage : printer.PrintScale == 1 ? FullSize : UserScale);
    txtUserScale.text = NumberText(printer.PrintScale, decimalMark);
    txtUserScale.enabled = txtUserScale.enabled && prints;
    optUnits.selected = printer.PrintUnits == Millimetres ? 0 : 1;
    ClickOrientation(printer.CurrentOrientation == Portrait ? 0 : 1);
}

void PrintersDialog::ListPapers(const std::string& printer) {
    papers_ = printer.empty() ? std::vector<Paper>() : printer_.PapersOf(printer);
    cmbPapersize.list.clear();
    for (const Paper& paper : papers_) {
        cmbPapersize.list.push_back(paper.name);
    }
}

void PrintersDialog::ChoosePrinter(const std::string& name) {
    if (cmbPrinters.edit.text == name) {
        return;
    }
    cmbPrinters.edit.text = name;
    ListPapers(name);
    if (FindPaper(papers_, &Paper::name, cmbPapersize.edit.text) == nullptr) {
        const Paper* const usual = FindPaper(papers_, &Paper::number, printer_.DefaultPaper(name));
        cmbPapersize.edit.text = usual == nullptr ? "" : usual->name;
    }
}

void PrintersDialog::ChoosePaper(const std::string& name) {
    cmbPapersize.edit.text = name;
}

void PrintersDialog::ClickOrientation(std::size_t index) {
    optOrientation.selected = index;
    const SheetPicture picture = PictureOfSheet(index == 0 ? Portrait : Landscape);
    fraOrientation.place = picture.frame;
    pboxOrient.place = picture.sheet;
    pboxOrientInner.place = picture.print;
}

void PrintersDialog::ClickScale(std::size_t index) {
    optScale.selected = index;
    if (index == FitPage || index == FullSize) {
        txtUserScale.text = index == FitPage ? "0" : "1";
    }
    txtUserScale.enabled = index == UserScale;
}

void PrintersDialog::ClickAction(std::size_t index) {
    if (actionEnabled.at(index)) {
        optAction.selected = index;
    }
}

FieldContext PrintersDialog::Fields() {
    return {boxes_, options_, decimalMark_, focus};
}

void PrintersDialog::ChangeUserScale(const std::string& text) {
    txtUserScale.text = WithoutPastedBlanks(txtUserScale.text, text);
    CheckFieldChange(Fields(), txtUserScale);
}

void PrintersDialog::ClickOK() {
    if (CheckNumber(Fields(), txtUserScale)) {
        return;
    }
    try {
        printer_ = Chosen();
    } catch (const std::exception& error) {
        ShowPrintError(boxes_, options_, error, (NamedPrinter() ? cmbPapersize : cmbPrinters).edit.name);
        return;
    }
    lblStatus = "OK";
    visible = false;
}

/// The printer of the name that is chosen, as it calls itself; nothing when there is none any more.
std::optional<std::string> PrintersDialog::NamedPrinter() const {
    const std::string name = TrimmedText(cmbPrinters.edit);
    const std::vector<std::string> printers = printer_.PrinterNames();
    const auto found = std::find_if(printers.begin(), printers.end(), [&](const std::string& each) {
        return EqualIgnoringCase(Trimmed(each), name);
    });
    return found == printers.end() ? std::nullopt : std::optional(*found);
}

/// The printer as it is chosen now. Throws PrintError when there is none of that name, or it has no such
/// paper.
CPrintDialog PrintersDialog::Chosen() {
    CPrintDialog chosen = printer_;
    const std::optional<std::string> found = NamedPrinter();
    if (!found) {
        const std::string name = TrimmedText(cmbPrinters.edit);
        throw PrintError(name.empty() ? "No printer is chosen." : "There is no printer \"" + name + "\".");
    }
    chosen.CurrentPrinterName = *found;
    chosen.CurrentOrientation = optOrientation.IsOn(0) ? Portrait : Landscape;
    chosen.PrintUnits = optUnits.IsOn(0) ? Millimetres : Inches;
    const std::vector<Paper> papers = printer_.PapersOf(*found);
    const Paper* const paper = FindPaper(papers, &Paper::name, TrimmedText(cmbPapersize.edit));
    if (paper != nullptr) {
        chosen.CurrentPaperSize = paper->number;
    }
    (void)chosen.Setup();
    chosen.PrintScale = FieldValue(Fields(), txtUserScale);
    return chosen;
}

void PrintersDialog::ClickCancel() {
    printer_.EverythingOK = false;
    lblStatus = "Cancel";
    visible = false;
}

bool PrintersDialog::IsChosen(Action action) const {
    return optAction.IsOn(action) && actionEnabled.at(action);
}

void ShowPrintError(MessageBoxes& boxes, const COptions& options, const std::exception& error,
                    const std::string& control) {
    ShowPlain(boxes, GetMessage(PrinterProblem, options.Language) + " " + ReasonOf(error), {}, control);
}

}  // namespace korvet
