// start_and_save: what the desktop program does with files, without a screen. It starts in the current
// folder, with its configuration folder beside it, saves the options as the dialog does, and opens and saves
// a parameter file. Boxes go to the standard error; a question is answered with Cancel, or with OK after
// "--set-aside". Ends in 1 when something was refused.
#include <filesystem>
#include <iostream>
#include <string_view>

#include "dialogs/options_dialog.h"
#include "frame/new_fitting.h"
#include "frame/start_up.h"
#include "platform/disk_files.h"
#include "tests/support/recording_desktop.h"
#include "tests/support/test_context.h"

namespace {

using namespace korvet;

struct Desktop {
    COptions options;
    RecordingUi ui;
    DiskFiles files;
    StoppedClock clock;
    FrameModel frame;
    PatternSettingsDialog patternSettingsDialog;
    RecordingPrinters printers;
    CPrintDialog printDialog{printers};
    WindowContext context{options, ui, files, clock, frame, patternSettingsDialog, printDialog};
};

int Work(Desktop& desktop, const std::filesystem::path& folder) {
    const auto configuration = [&folder] { return (folder / "config").string(); };
    desktop.printers.queues = {{.name = "Plotter"}};
    if (SetupStartup(desktop.context, MemorySettings(), configuration)) {
        return 1;
    }
    const std::size_t before = desktop.ui.messages.size();
    OptionsDialog dialog(desktop.options, desktop.ui, desktop.files, '.');
    dialog.CmbDefaultSegs.edit.text = "48";
    dialog.ClickSave();
    const bool isSaved = desktop.ui.messages.back().text == "Current settings saved" &&
                         desktop.ui.messages.size() == before + 1;
    const auto window = NewFitting(desktop.context, "Right Cone", nullptr);
    const bool isWritten = window->LoadFile((folder / "in.Kvt").string()) == Passed &&
                           window->SaveFile((folder / "out.Kvt").string()) == Passed;
    return isSaved && isWritten ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    Desktop desktop;
    desktop.ui.onShow = [](const MessageBox& message) {
        std::cerr << message.text << ' ' << message.detail << std::endl;
    };
    if (argc > 1 && std::string_view(argv[1]) == "--set-aside") {
        desktop.ui.answers = {Answer::Ok};
    }
    return Work(desktop, std::filesystem::current_path());
}
