// A settings file in memory, for the tests of what is read from it and of what becomes of it.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dialogs/options_file.h"
#include "tests/support/memory_file_store.h"
#include "tests/support/recording_ui.h"

namespace korvet {

inline constexpr const char* SettingsPath = "/home/user/settings.ini";

/// The file that the first start leaves, line by line.
inline std::vector<std::string> DefaultLines() {
    return {"3.b",       " 24 ",       " 1 ",         "English",
            " 2 ",       " 16776960 ", " 255 ",       " 65280 ",
            " 0 ",       " 65535 ",    " 16776960 ",  "TextLayer",
            "FoldLayer", "CutLayer",   "BorderLayer", "DimensionLayer",
            " 1 ",       " 200 ",      " 150 ",       " 0 ",
            " 1 ",       " 0 ",        " 6 ",         " 1 ",
            " 1 "};
}

inline std::string Joined(const std::vector<std::string>& lines, const std::string& end = "\r\n") {
    std::string text;
    for (const std::string& line : lines) {
        text += line + end;
    }
    return text;
}

class OptionsFile : public ::testing::Test {
  protected:
    OptionsFile() { options.IniFileName = SettingsPath; }

    void Read(char decimalMark = '.') { ReadIniFile(options, files, ui, decimalMark); }

    /// The error of a file with one line replaced; line numbers count from 1.
    std::string ErrorWithLine(std::size_t number, const std::string& text) {
        std::vector<std::string> lines = DefaultLines();
        lines.at(number - 1) = text;
        return ErrorOf(Joined(lines));
    }

    /// The error of a file, after a look that nothing has changed.
    std::string ErrorOf(const std::string& contents) {
        files.files[SettingsPath] = contents;
        files.writes.clear();
        options.DefaultSegs = 77;
        options.DXFCutLayer = "kept";
        std::string error;
        try {
            Read();
        } catch (const OptionsFileError& e) {
            error = e.what();
        }
        if (!error.empty()) {
            EXPECT_EQ(options.DefaultSegs, 77);
            EXPECT_EQ(options.DXFCutLayer, "kept");
        }
        EXPECT_EQ(files.files[SettingsPath], contents);
        EXPECT_TRUE(files.writes.empty());
        EXPECT_TRUE(ui.messages.empty());
        return error;
    }

    COptions options;
    MemoryFileStore files;
    RecordingUi ui;
};

}  // namespace korvet
