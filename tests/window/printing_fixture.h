// A cone and a printer without paper, for the tests of printing.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "printing/printers_dialog.h"
#include "tests/support/recording_device.h"
#include "tests/support/test_context.h"
#include "window/views.h"

namespace korvet {

inline const std::string PatternViewAsked = "This option is only available in pattern view";

/// A cone of 300 to 120 over 250, whose pattern lies in a quarter ring of 443; on A4 with 200 by 287 to print
/// on. Its outline reaches from x -234.1 to 442.8 and y 0 to 442.8: four columns, two rows.
class PrintingCone : public testing::Test {
  protected:
    PrintingCone() {
        shell.printers.queues = {{.name = "Laser"}};
        shell.printDialog.SetDefaultPapersize(shell.options, shell.ui);
        window = shell.OpenSample("Right Cone", 2, &screen);
        window->ClickView(PatternButton);
        screen.calls.clear();
    }

    /// Print... with this done in its dialog before OK.
    void Print(const std::function<void(PrintersDialog&)>& user) {
        shell.ui.onPrinters = [&](PrintersDialog& dialog) {
            user(dialog);
            if (dialog.lblStatus.empty()) {
                dialog.ClickOK();
            }
        };
        window->PrintDrawing();
    }

    void PrintAllFull() {
        Print([](PrintersDialog& dialog) { dialog.ClickScale(PrintersDialog::FullSize); });
    }

    void TickFrames() {
        shell.frame.printFramesTicked = true;
        window->SetupPrintFrames();
    }

    [[nodiscard]] std::vector<RecordingPrinters::Document>& Documents() { return shell.printers.documents; }

    /// The names of the sheets of a document, from what stands on them.
    static std::vector<std::string> SheetsOf(const RecordingPrinters::Document& document) {
        std::vector<std::string> names;
        for (const auto& sheet : document.sheets) {
            for (const std::string& text : sheet->Strings()) {
                if (text.starts_with("[SHEET ")) {
                    names.push_back(text.substr(7, text.size() - 8));
                }
            }
        }
        return names;
    }

    [[nodiscard]] bool ScreenHasFrames() const {
        bool has = false;
        for (const RecordingDevice::Call& call : screen.calls) {
            has = call.kind != RecordingDevice::Kind::Cls && (has || call.text == "[SHEET A1]");
        }
        return has;
    }

    /// All that was said, once.
    std::vector<std::string> Said() {
        const std::vector<std::string> texts = shell.ui.Texts();
        shell.ui.messages.clear();
        return texts;
    }

    TestShell shell;
    RecordingDevice screen{400, 200};
    std::unique_ptr<CFittingWindow> window;
};

}  // namespace korvet
