// The settings dialog in the hands of a test.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "dialogs/pattern_settings_dialog.h"
#include "tests/support/recording_ui.h"

namespace korvet {

class PatternSettings : public ::testing::Test {
  protected:
    /// Runs the dialog on `settings` with what the user does in it; true after "OK".
    bool Run(CPatternSettings& settings, std::function<void(PatternSettingsDialog&)> user = {},
             char decimalMark = '.') {
        ui.onPatternSettings = std::move(user);
        return LoadDialog(dialog, settings, ui, options, decimalMark) == Passed;
    }

    /// The dialog as it is shown for `settings`.
    PatternSettingsDialog Shown(CPatternSettings settings, char decimalMark = '.') {
        PatternSettingsDialog shown;
        Run(
            settings, [&](PatternSettingsDialog& d) { shown = d; }, decimalMark);
        return shown;
    }

    static CPatternSettings WithLaps(std::int16_t mask = AllLaps) {
        CPatternSettings settings;
        settings.LapEnable = mask;
        return settings;
    }

    COptions options;
    RecordingUi ui;
    PatternSettingsDialog dialog;  ///< the one of the whole program
};

}  // namespace korvet
