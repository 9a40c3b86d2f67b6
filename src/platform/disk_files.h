// Files on the disks of the machine.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <set>
#include <string>

#include "core/file_store.h"
#include "platform/replacing_file.h"

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

    /// By a ReplacingFile.
    void WritePieces(const std::string& path, const TextPieces& pieces, Flush flush) override;

    /// Begins a file for a caller that has its pieces one by one. The first file begun in a folder takes old
    /// temporary files away that killed programs have left there. The store outlives the file. Throws
    /// FileError.
    [[nodiscard]] ReplacingFile Begin(const std::string& path);

    bool Create(const std::string& path, const std::string& contents) override;

    /// Called behind a write of a file that had further names (hard links): they stay with what it held
    /// before.
    std::function<void(const std::string& path)> onPartedNames;

  private:
    static bool CreateInPlace(const std::string& path, const std::string& contents);

    std::set<std::filesystem::path> swept_;  ///< folders without left temporary files
};

}  // namespace korvet
