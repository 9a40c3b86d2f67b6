// Prints a fitting on a print queue as the desktop does, without its windows:
//     queue_print QUEUE PAPER portrait|landscape full|fit|table|cancel CATEGORY BOX=VALUE...
// A PDF comes into the current folder. Messages go to the standard error; the status is 1 when there was one.
#include <QGuiApplication>
#include <iostream>
#include <string>
#include <vector>

#include "frame/new_fitting.h"
#include "platform/disk_files.h"
#include "platform/system_clock.h"
#include "platform/system_printers.h"
#include "printing/printers_dialog.h"
#include "tests/support/recording_ui.h"
#include "window/views.h"

namespace korvet {
namespace {

/// Sets the dialog as the command line says.
void Choose(PrintersDialog& dialog, const std::vector<std::string>& arguments) {
    dialog.ChoosePrinter(arguments.at(0));
    dialog.ChoosePaper(arguments.at(1));
    dialog.ClickOrientation(arguments.at(2) == "landscape" ? 1 : 0);
    dialog.optUnits.selected = 0;
    dialog.ClickScale(arguments.at(3) == "fit" ? PrintersDialog::FitPage : PrintersDialog::FullSize);
    dialog.ClickAction(arguments.at(3) == "table" ? PrintersDialog::PrintTable : PrintersDialog::PrintAll);
    dialog.ClickOK();
}

int Print(const std::vector<std::string>& arguments) {
    COptions options;
    RecordingUi ui;
    DiskFiles files;
    SystemClock clock;
    FrameModel frame;
    PatternSettingsDialog settings;
    SystemPrinters printers{files};
    CPrintDialog printer(printers);
    printer.SetDefaultPapersize(options, ui);
    WindowContext context = {options, ui, files, clock, frame, settings, printer};
    const auto window = NewFitting(context, arguments.at(4), nullptr);
    for (std::size_t i = 5; i < arguments.size(); ++i) {
        const std::size_t equals = arguments[i].find('=');
        window->ChangeBox(std::stoul(arguments[i].substr(0, equals)), arguments[i].substr(equals + 1));
    }
    window->display.CoordTableRequested = arguments[3] == "table";
    window->ClickView(PatternButton);
    ui.files = {"printed.pdf"};  // in the current folder, where the PDF file asks for a name
    ui.onPrinters = [&](PrintersDialog& dialog) { Choose(dialog, arguments); };
    if (arguments[3] == "cancel") {
        ui.goesOn = [](const WorkProgress& progress) { return progress.done < 3; };
    }
    window->PrintDrawing();
    for (const MessageBox& message : ui.messages) {
        std::cerr << message.text << '\n';
    }
    return ui.messages.empty() ? 0 : 1;
}

}  // namespace
}  // namespace korvet

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    return korvet::Print({argv + 1, argv + argc});
}
