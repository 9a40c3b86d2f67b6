// The commands that bring a fitting to paper.
#include <algorithm>

#include "core/number_text.h"
#include "core/reason.h"
#include "display/page_clip.h"
#include "printing/print_scale.h"
#include "printing/printers_dialog.h"
#include "printing/table_pages.h"
#include "window/fitting_window.h"
#include "window/views.h"

namespace korvet {
namespace {

/// The file by which the coordinate table goes to the printer, in the current folder.
constexpr const char* TableFile = "Coordinates.txt";
constexpr std::size_t TableLimit = 100'000'000;

constexpr double TrueSize = 1;

/// More names of sheets than these are told by the first and the last.
constexpr std::size_t NamesTold = 60;

bool IsChosen(const CPrintPage& page) {
    return page.PrintMe;
}

std::vector<std::string> NamesOf(const CPrintPages& pages) {
    std::vector<std::string> names;
    for (const CPrintPage& page : pages) {
        names.push_back(page.Name);
    }
    return names;
}

std::string Listed(const std::vector<std::string>& names) {
    if (names.size() > NamesTold) {
        return names.front() + " to " + names.back();
    }
    std::string list;
    for (const std::string& name : names) {
        list += (list.empty() ? "" : ", ") + name;
    }
    return list;
}

/// Whether frames of this layout have room on a sheet that is to have frames of that one.
bool Fits(const PrintFrames& frames, const PrintFrames& sheet) {
    constexpr double Rounding = 1e-9;
    return frames.PrintUnits == sheet.PrintUnits &&
           frames.PrintFrameLength <= sheet.PrintFrameLength + Rounding &&
           frames.PrintFrameWidth <= sheet.PrintFrameWidth + Rounding;
}

/// Shows how far printing is for as long as it lives.
class ShownProgress {
  public:
    ShownProgress(UserInterface& ui, std::size_t total) : ui_(ui), total_(total) {}
    ~ShownProgress() { (void)ui_.GoesOn({{}, total_, total_}); }
    ShownProgress(const ShownProgress&) = delete;
    ShownProgress& operator=(const ShownProgress&) = delete;

    /// False once the user has cancelled it.
    bool Step(const std::string& what, std::size_t done) { return ui_.GoesOn({what, done, total_}); }

  private:
    UserInterface& ui_;
    std::size_t total_;
};

}  // namespace

/// Another paper has other frames, so they are computed anew, or switched off with their menu entry.
void CFittingWindow::PrinterSetup() {
    PrintersDialog dialog(PrintersUse::Setup, context_.printDialog, context_.ui, context_.options,
                          context_.decimalMark);
    context_.ui.RunModal(dialog);
    if (hasModel) {
        SetupPrintFrames();
    }
}

void CFittingWindow::PrintDrawing() {
    if (!hasModel) {
        ShowUserError(context_.ui, context_.Message(NothingToPrint));
        return;
    }
    PrintersDialog dialog(PrintersUse::Print, context_.printDialog, context_.ui, context_.options,
                          context_.decimalMark);
    const CPrintPages& pages = printFrames.PrinterPages;
    dialog.actionEnabled[PrintersDialog::PrintTable] = display.CoordTableRequested;
    dialog.actionEnabled[PrintersDialog::PrintSelected] = std::any_of(pages.begin(), pages.end(), IsChosen);
    context_.ui.RunModal(dialog);
    if (dialog.lblStatus == "OK") {
        PrintChosen(dialog);
        CancelMouseModes();
    }
}

void CFittingWindow::PrintChosen(const PrintersDialog& dialog) {
    if (dialog.IsChosen(PrintersDialog::PrintTable)) {
        PrintTable();
    } else if (dialog.IsChosen(PrintersDialog::PrintSelected)) {
        PrintSelectedFrames();
    } else if (dialog.optScale.IsOn(PrintersDialog::FullSize)) {
        (void)PrintFullSize({}, {}, Build::Anew);
    } else if (dialog.optScale.IsOn(PrintersDialog::FitPage)) {
        UpdateFitting();
        if (hasModel) {
            (void)PrintToFit({});
        }
    } else {
        ShowUserError(context_.ui, context_.Message(NotAtThisTime));
    }
}

void CFittingWindow::SelectPrintFrames() {
    ShowPlain(context_.ui,
              "Select Frames for printing by left-clicking with the mouse. \r\n"
              "De-Select by left-clicking again on a selected frame");
    CancelMouseModes();
    modes.selectFramesMode = true;
}

/// What paper asks for first.
Outcome CFittingWindow::RequirePatternForPaper() {
    if (InPatternView(*views)) {
        return Passed;
    }
    ShowUserError(context_.ui, context_.Message(PatternViewOnly));
    return Refused;
}

void CFittingWindow::SetupPrintFrames() {
    if (RequireModel()) {
        return;
    }
    bool& selectFrames = context_.frame.menuEnabled["mnuSelectFrames"];
    if (!context_.frame.printFramesTicked) {
        printFrames.PrintFrameDisplayRequested = false;
        selectFrames = false;
        UpdateFitting();
        return;
    }
    if (RequirePatternForPaper()) {
        return;
    }
    if (!context_.printDialog.HasPrinter()) {
        ShowPlain(context_.ui, "No printer");
        return;
    }
    if (ComputeFrames() == Passed) {
        UpdateFitting();
        selectFrames = hasModel && printFrames.PrintFrameDisplayRequested;
    }
}

Outcome CFittingWindow::ComputeFrames() {
    try {
        ComputePrintFrames(printFrames, context_.printDialog);
        return Passed;
    } catch (const std::exception& error) {
        ShowPrintError(context_.ui, context_.options, error);
        return Refused;
    }
}

/// Gives the display the frames to draw, or takes them away. What was chosen of them before is lost.
void CFittingWindow::HandOverFrames() {
    printFrames.Lay({});
    display.Overlay.reset();
    if (printFrames.PrintFrameDisplayRequested) {
        display.Overlay = {[this](const C3DPoints& extentFrame) { printFrames.Lay(extentFrame); },
                           [this](const Drawing& drawing) { printFrames.Draw(drawing); }};
    }
}

/// Frames that are too many are told of, and not asked for again.
Outcome CFittingWindow::CheckSheetCount() {
    const double sheets = printFrames.Grid.Sheets();
    if (sheets <= MostSheets) {
        return Passed;
    }
    printFrames.PrintFrameDisplayRequested = false;
    context_.frame.menuEnabled["mnuSelectFrames"] = false;
    HandOverFrames();
    ShowUserError(context_.ui, "This pattern takes " + NumberText(sheets, context_.decimalMark) +
                                   " sheets of this paper. No more than " +
                                   NumberText(MostSheets, context_.decimalMark) + " can be printed.");
    return Refused;
}

/// The frames go by their names, for the build before the printing lays them anew.
void CFittingWindow::PrintSelectedFrames() {
    std::vector<std::string> names;
    for (const CPrintPage& page : printFrames.PrinterPages) {
        if (page.PrintMe) {
            names.push_back(page.Name);
        }
    }
    PrintFrames now = printFrames;
    try {
        ComputePrintFrames(now, context_.printDialog);
    } catch (const std::exception& error) {
        ShowPrintError(context_.ui, context_.options, error);
        return;
    }
    if (!Fits(printFrames, now)) {
        ShowUserError(context_.ui,
                      "The frames were chosen on another paper. Set them up and choose them again.");
        return;
    }
    (void)PrintFullSize(names, {}, Build::Anew);
}

Outcome CFittingWindow::PrintToPdf(const std::string& path, const SheetChoice& choice) {
    if (RequireModel()) {
        return Refused;
    }
    return choice.fit ? PrintToFit(path) : PrintFullSize(choice.names, path, Build::AsShown);
}

/// Afterwards the screen has frames only if it had them before, and none of them is chosen.
Outcome CFittingWindow::PrintFullSize(const std::vector<std::string>& names, const std::string& path,
                                      Build build) {
    if (RequirePatternForPaper() || ComputeFrames()) {
        return Refused;
    }
    if (build == Build::Anew) {
        UpdateFitting();
    } else {
        ShowFramesAgain();
    }
    const bool ready = hasModel && printFrames.PrintFrameDisplayRequested;
    const Outcome outcome = ready ? PrintPages(names, path) : Refused;
    bool& requested = printFrames.PrintFrameDisplayRequested;
    requested = requested && context_.frame.printFramesTicked;
    context_.frame.menuEnabled["mnuSelectFrames"] = hasModel && requested;
    ShowFramesAgain();
    return outcome;
}

/// Shows what is shown with the frames that there are to be now, all of them not chosen.
void CFittingWindow::ShowFramesAgain() {
    HandOverFrames();
    if (!hasModel) {
        return;  // the picture is of an earlier build
    }
    try {
        display.ShowAgain();
        (void)CheckSheetCount();
    } catch (const std::exception& error) {
        RefuseBuild(error);
    }
}

/// The frames of those names, in the order of the layout; all of them without names. Nothing, with a message,
/// when there is none of a name.
std::optional<CPrintPages> CFittingWindow::PagesOf(const std::vector<std::string>& names) {
    const std::vector<std::string> all = NamesOf(printFrames.PrinterPages);
    for (const std::string& name : names) {
        if (std::find(all.begin(), all.end(), name) == all.end()) {
            ShowUserError(context_.ui,
                          "There is no sheet \"" + name + "\". The sheets are " + Listed(all) + ".");
            return std::nullopt;
        }
    }
    CPrintPages pages;
    for (const CPrintPage& page : printFrames.PrinterPages) {
        if (names.empty() || std::find(names.begin(), names.end(), page.Name) != names.end()) {
            pages.Add(page);
        }
    }
    return pages;
}

Outcome CFittingWindow::PrintPages(const std::vector<std::string>& names, const std::string& path) {
    if (printFrames.PrinterPages.Count() == 0) {
        ShowUserError(context_.ui, context_.Message(PatternViewOnly));
        return Refused;
    }
    const std::optional<CPrintPages> pages = PagesOf(names);
    if (!pages) {
        return Refused;
    }
    return RunPrintJob(path, [&](PrintJob& job) {
        const CPrintDialog& printer = context_.printDialog;
        const PrintableSize printable = printer.Printable();
        ShownProgress progress(context_.ui, pages->Count());
        std::size_t done = 0;
        for (const CPrintPage& page : *pages) {
            if (!progress.Step("Sheet " + page.Name, done++)) {
                return false;
            }
            const Bounds frame = BoxOf(page);
            display.DrawPage(
                job.NewPage(),
                ApplyPrintScale(frame, printable, TrueSize, printer.Factors(), printer.PrintUnits), frame);
        }
        return true;
    });
}

/// A fitting without a pattern has nothing to fit to the sheet in its pattern view.
Outcome CFittingWindow::PrintToFit(const std::string& path) {
    if (InPatternView(*views) && display.ShownExtents().Count() == 0) {
        ShowUserError(context_.ui, context_.Message(NothingToPrint));
        return Refused;
    }
    return RunPrintJob(path, [this](PrintJob& job) {
        display.DrawToFit(job.NewPage());
        return true;
    });
}

void CFittingWindow::PrintTable() {
    if (WriteTable(TableFile)) {
        return;
    }
    (void)RunPrintJob({}, [this](PrintJob& job) {
        try {
            PrintLines(job, context_.files.Read(TableFile, TableLimit));
            return true;
        } catch (const std::exception& error) {
            ShowPlain(context_.ui, "Error in CObjectDisplay:SendTableToPrinter", ReasonOf(error));
            return false;
        }
    });
}

/// Makes one document, as `work` draws it; one that `work` gives up (false) never comes to the printer. A PDF
/// asks for its name when `path` is empty.
template <typename Work>
Outcome CFittingWindow::RunPrintJob(const std::string& path, Work work) {
    const CPrintDialog& printer = context_.printDialog;
    try {
        const SheetSetup setup = printer.Setup();
        printer.RequireReady();
        std::optional<std::string> file = path;
        if (setup.printer == PdfPrinter && path.empty()) {
            file = context_.ui.ChooseFile({"Print to PDF", "PDF files (*.pdf)|*.pdf", true});
        }
        if (!file) {
            return Refused;
        }
        const HourglassWhile working(controls);
        const std::unique_ptr<PrintJob> job = printer.Port().StartDoc(setup, category, *file);
        if (!work(*job)) {
            return Refused;
        }
        job->EndDoc();
        return Passed;
    } catch (const std::exception& error) {
        ShowPrintError(context_.ui, context_.options, error);
        return Refused;
    }
}

/// Each frame under the mouse is chosen, or chosen no more, and shown so at once.
void CFittingWindow::ClickFrames(float x, float y) {
    for (CPrintPage& page : printFrames.PrinterPages) {
        if (!IsWithinPage({x, y, 0, PlainStation}, BoxOf(page))) {
            continue;
        }
        page.PrintMe = !page.PrintMe;
        if (display.DisplayDevice != nullptr) {
            DrawBox(*display.DisplayDevice, display.DisplayWindow(), page.BoundaryList->Item(1),
                    page.BoundaryList->Item(3), page.PrintMe ? Green : Yellow);
        }
    }
}

}  // namespace korvet
