// The options on disk: settings.ini, one value a line, where the number of the line is the key.
#pragma once

#include <stdexcept>

#include "core/file_store.h"
#include "form/message_boxes.h"
#include "form/options.h"

namespace korvet {

/// A line of the options file can't be used. what() names the file, the line and its text, for the user.
class OptionsFileError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// First line of a file that this version reads. Any other file is out of date and makes way for a new one.
inline constexpr const char* SettingsVersion = "3.b";

/// Writes all 25 lines of the current values to options.IniFileName, in UTF-8 with CR LF. Numbers stand
/// between blanks (a minus sign takes the place of the first) with `decimalMark`, texts are bare. Throws
/// FileError; the old file is then whole.
void WriteIniFile(const COptions& options, FileStore& files, char decimalMark);

/// Reads options.IniFileName into `options`. A missing file is first written from the values that `options`
/// has; one of another version too, after message 116, and the old one is kept under its name with ".bak"
/// behind. When that can't be done, a plain box says why and `options` keeps its values for this run. Numbers
/// may have a point or a comma, lines may end in CR LF or LF. Throws OptionsFileError for a line that
/// can't be used and FileError for a file that can't be read or has more than 64 KiB; `options` and the file
/// then stay as they are.
void ReadIniFile(COptions& options, FileStore& files, MessageBoxes& boxes, char decimalMark);

}  // namespace korvet
