#include "printing/print_dialog.h"

#include <algorithm>

#include "form/messages.h"

namespace korvet {

void CPrintDialog::TakeOptions(const COptions& options) {
    CurrentOrientation = options.PrintOrientation;
    PrintScale = options.PrintScale;
    PrintUnits = options.PrintUnits;
    PrintXCalibration = options.PrintXCalibration;
    PrintYCalibration = options.PrintYCalibration;
}

void CPrintDialog::SetDefaultPapersize(const COptions& options, MessageBoxes& boxes) {
    TakeOptions(options);
    CurrentPrinterName = printers_->DefaultQueue();
    if (CurrentPrinterName.empty()) {
        return;
    }
    GetPrinterSettings();
    if (!EverythingOK) {
        CurrentPrinterName.clear();
        ShowPlain(boxes, GetMessage(NoPrinterSettings, options.Language));
    }
}

void CPrintDialog::TakePdf() {
    CurrentPrinterName = PdfPrinter;
    GetPrinterSettings();
}

void CPrintDialog::GetPrinterSettings() {
    const int paper = DefaultPaper(CurrentPrinterName);
    EverythingOK = paper != 0;
    if (EverythingOK) {
        CurrentPaperSize = paper;
    }
}

std::vector<std::string> CPrintDialog::PrinterNames() const {
    std::vector<std::string> names = printers_->Queues();
    names.emplace_back(PdfPrinter);
    return names;
}

std::vector<Paper> CPrintDialog::PapersOf(const std::string& printer) const {
    return printer == PdfPrinter ? PdfPapers() : printers_->PapersOf(printer);
}

int CPrintDialog::DefaultPaper(const std::string& printer) const {
    return printer == PdfPrinter ? PdfPapers().front().number : printers_->DefaultPaper(printer).value_or(0);
}

bool CPrintDialog::HasPrinter() const {
    if (CurrentPrinterName == PdfPrinter) {
        return true;
    }
    const std::vector<std::string> queues = printers_->Queues();
    return std::find(queues.begin(), queues.end(), CurrentPrinterName) != queues.end();
}

SheetSetup CPrintDialog::Setup() const {
    if (!HasPrinter()) {
        throw PrintError("There is no printer \"" + CurrentPrinterName + "\" any more.");
    }
    const std::vector<Paper> papers = PapersOf(CurrentPrinterName);
    const auto paper = std::find_if(papers.begin(), papers.end(),
                                    [this](const Paper& each) { return each.number == CurrentPaperSize; });
    if (paper == papers.end()) {
        throw PrintError("The printer \"" + CurrentPrinterName + "\" does not have the paper that is set.");
    }
    return {CurrentPrinterName, *paper, CurrentOrientation};
}

PrintableSize CPrintDialog::Printable() const {
    const PrintableArea area = printers_->AreaOf(Setup());
    const double unit = PrintUnits == Millimetres ? 1 : MillimetresPerInch;
    return {area.width / unit, area.height / unit};
}

void CPrintDialog::RequireReady() const {
    if (CurrentPrinterName == PdfPrinter) {
        return;
    }
    const std::string printer = "The printer \"" + CurrentPrinterName + "\"";
    switch (printers_->StateOf(CurrentPrinterName)) {
        case QueueState::Ready:
            return;
        case QueueState::Paused:
            throw PrintError(printer + " is paused.");
        case QueueState::Rejecting:
            throw PrintError(printer + " does not accept documents.");
        case QueueState::Gone:
            throw PrintError(printer + " is gone.");
    }
}

void ComputePrintFrames(PrintFrames& frames, const CPrintDialog& printer) {
    const FrameSize size = FrameSizeFor(printer.Printable(), printer.Factors(), printer.PrintUnits);
    frames.PrintUnits = printer.PrintUnits;
    frames.PrintFrameLength = size.length;
    frames.PrintFrameWidth = size.width;
    frames.PrintFrameDisplayRequested = true;
}

}  // namespace korvet
