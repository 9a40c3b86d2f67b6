// A file that grows for as long as a run takes, beside the one whose place it takes at its end.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "platform/file_steps.h"

namespace korvet {

class GrowingFile {
  public:
    /// Begins "PATH.part", or empties what an earlier run has left under that name; what exists at `path` and
    /// is no regular file (a device, a pipe) is written straight through. Throws FileError: when it can't be
    /// made, when `path` may not be written, when another run is at work on it.
    explicit GrowingFile(std::string path);

    /// Unless it was placed it goes away again.
    ~GrowingFile();
    GrowingFile(const GrowingFile&) = delete;
    GrowingFile& operator=(const GrowingFile&) = delete;

    /// Hands a text to the system: a run that is killed behind it has left it in the file. Throws FileError.
    void Append(std::string_view text);

    /// Closes the file and puts it in the place of the other one. Throws FileError.
    void Place();

    /// Whether the file that was there had further names (hard links): they stay with what it held.
    [[nodiscard]] bool PartsNames() const { return target_.hasFurtherNames; }

    /// Where a file at `path` grows.
    static std::string PartOf(const std::string& path) { return path + ".part"; }

  private:
    std::string path_;
    WriteTarget target_;
    std::filesystem::path part_;  ///< empty while it writes straight through
    OpenFile file_;
    int held_ = -1;  ///< keeps other runs from the part until it has its place
};

}  // namespace korvet
