// Files on the disks of the machine.
#pragma once

#include <cstddef>
#include <string>

#include "core/file_store.h"

namespace korvet {

/// The store of the real files. The text of every FileError begins with the path and names the reason.
class DiskFiles final : public FileStore {
  public:
    /// Whether there is anything of that name: a file, a folder, a device. False too where the system does
    /// not let one look.
    [[nodiscard]] bool Exists(const std::string& path) const override;

    [[nodiscard]] std::string Read(const std::string& path, std::size_t limit) const override;

    /// Writes a temporary file in the same folder and renames it. The new file keeps the permissions of the
    /// old one, and a file that may not be written is not replaced; where the path is a symbolic link, the
    /// file it leads to is. What exists and is no regular file (a device, a pipe) is written straight
    /// through.
    void Write(const std::string& path, const std::string& contents, Flush flush) override;
};

}  // namespace korvet
