// Port: the files that the logic reads and writes, by the paths it is given.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace korvet {

/// A file could not be read or written; what() says why, for the user.
class FileError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Whether a written file must be on the disk itself before it takes the old one's place.
enum class Flush { No, Yes };

class FileStore {
  public:
    FileStore() = default;
    FileStore(const FileStore&) = delete;
    FileStore& operator=(const FileStore&) = delete;
    virtual ~FileStore() = default;

    [[nodiscard]] virtual bool Exists(const std::string& path) const = 0;

    /// Whether two paths lead to one and the same file.
    [[nodiscard]] virtual bool IsSameFile(const std::string& one, const std::string& other) const = 0;

    /// The bytes of a file. Throws FileError when there is none, when it is no regular file, when it can't be
    /// read, or when it is larger than `limit` bytes.
    [[nodiscard]] virtual std::string Read(const std::string& path, std::size_t limit) const = 0;

    /// Puts `contents` in the place of the file in one step: after an error the old file is whole, or there
    /// is still none. Throws FileError. Flush::Yes is for what holds the user's own work.
    virtual void Write(const std::string& path, const std::string& contents, Flush flush) = 0;

    /// Makes a new file and flushes it to the disk. False when something of that name is there already, which
    /// stays as it is, also when two programs try at once. Throws FileError; there is then no file.
    virtual bool Create(const std::string& path, const std::string& contents) = 0;
};

}  // namespace korvet
