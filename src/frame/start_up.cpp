#include "frame/start_up.h"

#include <filesystem>
#include <system_error>

#include "core/constants.h"
#include "core/reason.h"
#include "dialogs/options_file.h"

namespace korvet {
namespace {

/// Where it is kept that the PDF file has been the printer.
constexpr const char* PdfKey = "PdfChosen";
constexpr const char* IniName = "settings.ini";

/// By its whole name, so that the file stays the same one if the current folder changes later on.
std::string IniFileOfCurrentFolder() {
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::current_path(error);
    return error ? IniName : (folder / IniName).string();
}

/// Why the settings can't be kept in the current folder; nothing when they can. A missing file is made.
/// Throws FileError for a file that can't be read: it may hold the user's settings.
std::string WhyNotInCurrentFolder(const WindowContext& context) {
    constexpr std::size_t MostRead = std::size_t{16} * 1024 * 1024;
    const COptions& options = context.options;
    if (context.files.Exists(options.IniFileName)) {
        const bool mayBeOurs = MayBeOptionsFile(context.files.Read(options.IniFileName, MostRead));
        return mayBeOurs ? "" : options.IniFileName + " belongs to another program";
    }
    try {
        (void)CreateIniFile(options, context.files, context.decimalMark);
        return {};
    } catch (const FileError& error) {
        return error.what();
    }
}

/// Finds the settings file, and tells in the status line when it is not the one of the current folder.
void FindIniFile(WindowContext& context, const std::function<std::string()>& configurationFolder) {
    context.options.IniFileName = IniFileOfCurrentFolder();
    const std::string why = WhyNotInCurrentFolder(context);
    if (why.empty()) {
        return;
    }
    const std::string folder = configurationFolder();
    if (!folder.empty()) {
        context.options.IniFileName = (std::filesystem::path(folder) / IniName).string();
        context.frame.statusText = why + "; the settings are in " + context.options.IniFileName;
    }
}

/// The choice after a settings file that can't be used. Refuses when the user wants to mend it.
Outcome OfferToSetAside(WindowContext& context) {
    const Answer answer =
        context.ui.Show({.text = "Set the file aside (.bad) and go on with the built-in options?",
                         .style = OkCancelBox,
                         .title = std::string(ProductTitle),
                         .detail = context.options.IniFileName});
    if (answer != Answer::Ok) {
        return Refused;
    }
    try {
        SetIniFileAside(context.options, context.files, context.decimalMark);
    } catch (const FileError& error) {
        ShowPlain(context.ui, error.what());
    }
    return Passed;
}

}  // namespace

Outcome SetupStartup(WindowContext& context, const SettingsStore& settings,
                     const std::function<std::string()>& configurationFolder) {
    try {
        FindIniFile(context, configurationFolder);
        ReadIniFile(context.options, context.files, context.ui, context.decimalMark);
    } catch (const OptionsFileError& error) {
        ShowPlain(context.ui, error.what());
        if (OfferToSetAside(context)) {
            return Refused;
        }
    } catch (const std::exception& error) {
        ShowPlain(context.ui, ReasonOf(error));
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
