// Everything that a fitting window needs, with no screen and no disk, for tests.
#pragma once

#include <memory>
#include <string>

#include "dialogs/small_dialogs.h"
#include "frame/catalogue.h"
#include "frame/new_fitting.h"
#include "tests/support/memory_file_store.h"
#include "tests/support/recording_plotter.h"
#include "tests/support/recording_printers.h"
#include "tests/support/recording_ui.h"

namespace korvet {

class StoppedClock : public Clock {
  public:
    [[nodiscard]] std::string ShortDate() const override { return "21 Nov 2026"; }
};

struct TestShell {
    COptions options;
    RecordingUi ui;
    MemoryFileStore files;
    StoppedClock clock;
    FrameModel frame;
    PatternSettingsDialog patternSettingsDialog;
    RecordingPrinters printers;
    CPrintDialog printDialog{printers};
    TestTransferPlace transferPlace;
    RecordingPlotter plotter;
    WindowContext context{options,     ui,  files,          clock,   frame, patternSettingsDialog,
                          printDialog, '.', &transferPlace, &plotter};

    /// A new window of a category that is built, drawing on `area` if given.
    std::unique_ptr<CFittingWindow> Open(const std::string& category, DrawingDevice* area = nullptr) {
        return NewFitting(context, category, area);
    }

    /// A new window at a type (from 1) with the sample sizes of that type typed in.
    std::unique_ptr<CFittingWindow> OpenSample(const std::string& category, int type,
                                               DrawingDevice* area = nullptr) {
        auto window = Open(category, area);
        while (window->dtype != type - 1) {
            window->ClickPoint(window->dtype < type - 1 ? 0 : 1);
        }
        for (const BoxEntry& box : window->Table().pages[static_cast<std::size_t>(type - 1)].boxes) {
            window->ChangeBox(static_cast<std::size_t>(box.index), std::string(box.sample));
        }
        if (window->Table().sampleMesh != nullptr) {
            window->mesh = window->Table().sampleMesh();
        }
        return window;
    }
};

/// Makes the export dialog answer OK as it is shown.
inline void AcceptExports(RecordingUi& ui) {
    ui.onDxfOptions = [](DxfOptionsDialog& dialog) { dialog.lblStatus = "OK"; };
}

}  // namespace korvet
