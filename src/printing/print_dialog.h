// The printer as it was chosen last: one for the whole program, as long as it runs.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "form/message_boxes.h"
#include "form/options.h"
#include "printing/print_frames.h"
#include "printing/print_scale.h"
#include "printing/printers.h"

namespace korvet {

class CPrintDialog {
  public:
    /// `printers` must outlive it. There is no printer until one is set or SetDefaultPapersize finds one.
    explicit CPrintDialog(Printers& printers) : printers_(&printers) {}

    double PrintYCalibration = 1;
    double PrintXCalibration = 1;
    std::int16_t PrintUnits = Millimetres;
    double PrintScale = 0;     ///< 0 fit, 1 full size, other a user scale
    int CurrentPaperSize = 0;  ///< the printer's paper number
    std::int16_t CurrentOrientation = Portrait;
    std::string CurrentPrinterName;  ///< a queue or PdfPrinter; empty when there is none
    bool EverythingOK = false;       ///< printer and paper were read; nothing is decided by it

    /// Takes units, scale, orientation and calibration from the options, and printer and paper from the
    /// system's default queue. Without a queue there is no printer, and one that can't be asked for its paper
    /// is told of with message 113 and counts as none.
    void SetDefaultPapersize(const COptions& options, MessageBoxes& boxes);

    /// The part of it that needs no printer.
    void TakeOptions(const COptions& options);

    /// Makes the PDF file the printer, on its first paper.
    void TakePdf();

    /// Asks the current printer for its paper, which EverythingOK tells of.
    void GetPrinterSettings();

    /// The queues, and behind them PdfPrinter.
    [[nodiscard]] std::vector<std::string> PrinterNames() const;
    [[nodiscard]] std::vector<Paper> PapersOf(const std::string& printer) const;

    /// The number of the paper to begin with; 0 when the printer can't be asked.
    [[nodiscard]] int DefaultPaper(const std::string& printer) const;

    /// Whether the current name is that of a printer that there is.
    [[nodiscard]] bool HasPrinter() const;

    /// Printer, paper and orientation. Throws PrintError when the printer is gone or has no such paper: the
    /// spooler would print the sheet scaled to another one.
    [[nodiscard]] SheetSetup Setup() const;

    /// The printable size of a sheet in print units. Throws PrintError.
    [[nodiscard]] PrintableSize Printable() const;

    [[nodiscard]] Calibration Factors() const { return {PrintXCalibration, PrintYCalibration}; }

    /// Throws PrintError when the queue takes no documents now, and says in which state it is.
    void RequireReady() const;

    [[nodiscard]] Printers& Port() const { return *printers_; }

  private:
    Printers* printers_;
};

/// Sets size and units of the frames for the printer, and has them displayed. Throws PrintError.
void ComputePrintFrames(PrintFrames& frames, const CPrintDialog& printer);

}  // namespace korvet
