// Files on the disks of the machine.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <set>
#include <string>

#include "core/file_store.h"

namespace korvet {

/// What to say of a file that had further names when it was replaced.
std::string PartedNamesText(const std::string& path);

/// The store of the real files. The text of every FileError begins with the path and names the reason.
class DiskFiles final : public FileStore {
  public:
    /// Whether there is anything of that name: a file, a folder, a device. False too where the system does
    /// not let one look.
    [[nodiscard]] bool Exists(const std::string& path) const override;

    [[nodiscard]] bool IsSameFile(const std::string& one, const std::string& other) const override;

    [[nodiscard]] std::string Read(const std::string& path, std::size_t limit) const override;

    /// Writes a temporary file in the same folder and renames it. The new file keeps owner, group,
    /// permissions and extended attributes of the old one as far as the system lets it, and a file that may
    /// not be written is not replaced; where the path is a symbolic link, the file it leads to is. What
    /// exists and is no regular file (a device, a pipe) is written straight through. With Flush::Yes file and
    /// folder are flushed to the disk. The first file written to a folder takes old temporary files away that
    /// killed programs have left there.
    void WritePieces(const std::string& path, const TextPieces& pieces, Flush flush) override;

    bool Create(const std::string& path, const std::string& contents) override;

    /// Called behind a write of a file that had further names (hard links): they stay with what it held
    /// before.
    std::function<void(const std::string& path)> onPartedNames;

  private:
    static bool CreateInPlace(const std::string& path, const std::string& contents);
    static void WriteThrough(const std::string& path, const TextPieces& pieces);

    std::set<std::filesystem::path> swept_;  ///< folders without left temporary files
};

}  // namespace korvet
