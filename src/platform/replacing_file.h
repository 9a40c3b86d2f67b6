// A file that is written piece by piece beside another one and takes its place at the end.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/file_steps.h"
#include "platform/temporary_file.h"

namespace korvet {

/// What to do about the place of a file, besides writing it.
struct PlaceEvents {
    /// Called with the folder before a file is made there.
    std::function<void(const std::filesystem::path& folder)> onFolder;

    /// Called when the file has its place and the one before had further names (hard links): they stay with
    /// what it held.
    std::function<void(const std::string& path)> onPartedNames;
};

class ReplacingFile {
  public:
    /// Makes a temporary file in the folder of what `path` leads to, with owner, group, permissions and
    /// extended attributes of the file there as far as the system lets it. What exists and is no regular file
    /// (a device, a pipe) is written straight through. Throws FileError, also for a file that may not be
    /// written.
    ReplacingFile(std::string path, PlaceEvents events);

    /// Hands a text to the system. Throws FileError.
    void Append(std::string_view text);

    /// Closes the file and puts it in its place; without this it goes away. With Flush::Yes file and folder
    /// are flushed to the disk. Throws FileError.
    void Place(Flush flush);

  private:
    std::string path_;
    PlaceEvents events_;
    WriteTarget target_;
    OpenFile straight_;                       ///< while it writes straight through, else
    std::optional<TemporaryFile> temporary_;  ///< this
};

}  // namespace korvet
