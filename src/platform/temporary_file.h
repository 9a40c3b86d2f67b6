// A file beside the one to be written, which takes its place when it is whole.
#pragma once

#include <filesystem>
#include <string>

#include "platform/file_steps.h"

namespace korvet {

/// It goes away again unless it has taken the other one's place. Until then it is held, so that no other
/// program takes it for one that was left over.
class TemporaryFile {
  public:
    /// Creates it. Throws FileError in the name of `path`.
    TemporaryFile(const std::string& path, const std::filesystem::path& folder);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    /// What it is filled through, until it has its place.
    [[nodiscard]] std::FILE* Stream() const { return file_.get(); }

    /// Closes it and puts it in the place of `target`, each step only after the one before has succeeded.
    std::error_code Replace(const std::filesystem::path& target, Flush flush);

    /// The same under a name that nothing has yet. Nothing is done and `isNew` is false when something has
    /// it.
    std::error_code TakeName(const std::filesystem::path& target, bool& isNew);

  private:
    std::filesystem::path name_;
    OpenFile file_;
    bool placed_ = false;
};

/// Takes away what saves that were killed have left in a folder: files named as temporary ones are, a day old
/// and held by no program. What can't be taken away stays.
void RemoveLeftTemporaryFiles(const std::filesystem::path& folder);

}  // namespace korvet
