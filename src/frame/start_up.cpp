#include "frame/start_up.h"

#include <cstdint>
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

constexpr std::size_t MostRead = std::size_t{16} * 1024 * 1024;

/// Why what bears the name can be no settings file of ours; nothing when it may be one, or is not there.
std::string WhyNoSettings(const std::filesystem::path& path) {
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    if (!std::filesystem::exists(status)) {
        return std::filesystem::is_symlink(path, error) ? path.string() + " is a link that leads nowhere"
                                                        : "";
    }
    if (!std::filesystem::is_regular_file(status)) {
        return path.string() + " is no file";
    }
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    return !error && size > MostRead ? path.string() + " belongs to another program" : "";
}

/// Why the settings can't be kept in the current folder; nothing when they can. A missing file is made.
/// Throws FileError for a file that can't be read: it may hold the user's settings.
std::string WhyNotInCurrentFolder(const WindowContext& context) {
    const COptions& options = context.options;
    if (std::string why = WhyNoSettings(options.IniFileName); !why.empty()) {
        return why;
    }
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

bool IsThere(const WindowContext& context) {
    const std::string& path = context.options.IniFileName;
    return context.files.Exists(path) || !WhyNoSettings(path).empty();
}

/// Finds the settings file, and tells in the status line when it is not the one of the current folder. What
/// is there already is left alone, also when there is no other place.
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
    } else if (IsThere(context)) {
        context.options.IniFileName.clear();
        context.frame.statusText = why + "; settings are kept for this run only";
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
