// The options on disk: settings.ini, one value a line, where the number of the line is the key.
#pragma once

#include <stdexcept>
#include <string_view>

#include "core/file_store.h"
#include "form/message_boxes.h"
#include "form/options.h"

namespace korvet {

/// A line of the options file can't be used. what() names the file, the line and its text, for the user.
class OptionsFileError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// First line of a file that this version reads.
inline constexpr const char* SettingsVersion = "3.b";

/// Whether a file may be one that some version of this program has written: its first line is a version such
/// as "3.a" or "2.14". Any other is of another program.
bool MayBeOptionsFile(std::string_view bytes);

/// Writes all 25 lines of the current values to options.IniFileName, in UTF-8 with CR LF. Numbers stand
/// between blanks (a minus sign takes the place of the first) with `decimalMark`, texts are bare. Throws
/// FileError, also for values that could not be read again; the old file is then whole.
void WriteIniFile(const COptions& options, FileStore& files, char decimalMark);

/// The same where there is no file yet: false, and nothing is written, when there is one. Throws FileError.
bool CreateIniFile(const COptions& options, FileStore& files, char decimalMark);

/// Reads options.IniFileName into `options` and writes nothing. Numbers may have a point or a comma, lines
/// may end in CR LF or LF. A layer name that no drawing can have gives way to the built-in one, after a
/// message. Throws OptionsFileError for a line that can't be used, the first line of another version among
/// them, and FileError for a file that can't be read or has more than 64 KiB; `options` then stays as it is.
void ReadOptionsFile(COptions& options, const FileStore& files, MessageBoxes& boxes);

/// The same for the program's own settings file. A missing one is first written from the values that
/// `options` has; one that another version has written too, after message 116, and the old one is kept under
/// its name with ".bak" behind, ".bak2" and so on when there is one. When that can't be done, a plain box
/// says why and `options` keeps its values for this run. Programs that start at once lose nothing.
/// Without a name there is nowhere to keep settings, and `options` stays as it is.
void ReadIniFile(COptions& options, FileStore& files, MessageBoxes& boxes, char decimalMark);

/// Writes the current values when the user asks for it. A file that this version can't read, as one that
/// could not be kept at the start, is first kept as ReadIniFile would. Throws FileError, also where there is
/// no name; the file is then as it was.
void SaveIniFile(const COptions& options, FileStore& files, char decimalMark);

/// Keeps the settings file under its name with ".bad" behind, ".bad2" and so on when there is one, and writes
/// the current values in its place. Throws FileError; the settings file is then as it was.
void SetIniFileAside(const COptions& options, FileStore& files, char decimalMark);

}  // namespace korvet
