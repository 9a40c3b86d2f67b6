#include "frame/start_up.h"

#include <filesystem>
#include <system_error>

#include "dialogs/options_file.h"

namespace korvet {
namespace {

/// Where it is kept that the PDF file has been the printer.
constexpr const char* PdfKey = "PdfChosen";

/// By its whole name, so that the file stays the same one if the current folder changes later on.
std::string IniFileOfCurrentFolder() {
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::current_path(error);
    return error ? "settings.ini" : (folder / "settings.ini").string();
}

}  // namespace

Outcome SetupStartup(WindowContext& context, const SettingsStore& settings) {
    context.options.IniFileName = IniFileOfCurrentFolder();
    try {
        ReadIniFile(context.options, context.files, context.ui, context.decimalMark);
    } catch (const std::exception& error) {
        ShowPlain(context.ui, error.what());
        return Refused;
    }
    CPrintDialog& printer = context.printDialog;
    printer.SetDefaultPapersize(context.options, context.ui);
    if (printer.CurrentPrinterName.empty() && settings.Get(PdfKey)) {
        printer.TakePdf();
    }
    if (printer.CurrentPrinterName.empty()) {
        ShowPlain(context.ui, context.Message(NoPrinterAvailable));
    }
    return Passed;
}

void RememberPdf(const CPrintDialog& printer, SettingsStore& settings) {
    if (printer.CurrentPrinterName == PdfPrinter) {
        settings.Set(PdfKey, "1");
    }
}

}  // namespace korvet
