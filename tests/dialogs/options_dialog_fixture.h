// The dialog of the global options over options in memory.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "dialogs/options_dialog.h"
#include "tests/support/memory_file_store.h"
#include "tests/support/recording_ui.h"

namespace korvet {

inline constexpr const char* IniPath = "/home/user/settings.ini";

class GlobalOptions : public ::testing::Test {
  protected:
    GlobalOptions() { options.IniFileName = IniPath; }

    OptionsDialog Dialog(char decimalMark = '.') { return {options, ui, files, decimalMark}; }

    void ExpectUserError(const std::string& text) {
        ASSERT_EQ(ui.messages.size(), 1U);
        EXPECT_EQ(ui.messages[0].text, text);
        EXPECT_EQ(ui.messages[0].title, "User Error");
        EXPECT_EQ(ui.messages[0].style, ExclamationBox);
    }

    COptions options;
    RecordingUi ui;
    MemoryFileStore files;
};

/// Changes every box of the dialog but the fold layer.
inline void ChangeAll(OptionsDialog& dialog) {
    dialog.cmbDecimals.selected = 4;
    dialog.CmbDefaultSegs.edit.text = "50";
    dialog.txtDXFCutLayer.text = "c";
    dialog.txtDXFTextLayer.text = "t";
    dialog.txtDXFBorderLayer.text = "b";
    dialog.txtDXFDimensionLayer.text = "d";
    dialog.ChangeNumber(dialog.txtDXFTextSize, "3");
    dialog.ChangeNumber(dialog.txtDisplayTextSize, "4");
    dialog.optPolyMode.selected = 1;
    dialog.ClickScale(OptionsDialog::UserScale);
    dialog.ChangeNumber(dialog.txtUserScale, "0.25");
    dialog.ChangeNumber(dialog.txtCalibrate[0], "1.5");
    dialog.ChangeNumber(dialog.txtCalibrate[1], "1.25");
    dialog.ClickOrientation(1);
    dialog.optUnits.selected = 1;
}

}  // namespace korvet
