// Port: the files that the logic reads and writes, by the paths it is given.
#pragma once

#include <cstddef>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace korvet {

/// A file could not be read or written; what() says why, for the user.
class FileError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Whether a written file must be on the disk itself before it takes the old one's place.
enum class Flush { No, Yes };

/// Takes a text piece by piece.
using TextSink = std::function<void(std::string_view)>;

/// Hands a text to a sink piece by piece.
using TextPieces = std::function<void(const TextSink&)>;

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

    /// Puts a text in the place of the file in one step: after an error the old file is whole, or there is
    /// still none. Throws FileError, and what `pieces` throws. Flush::Yes is for what holds the user's own
    /// work. A large text made piece by piece takes no memory.
    virtual void WritePieces(const std::string& path, const TextPieces& pieces, Flush flush) = 0;

    /// The same for a text that is there.
    void Write(const std::string& path, const std::string& contents, Flush flush) {
        WritePieces(
            path, [&contents](const TextSink& sink) { sink(contents); }, flush);
    }

    /// Makes a new file and flushes it to the disk. False when something of that name is there already, which
    /// stays as it is, also when two programs try at once. Throws FileError; there is then no file.
    virtual bool Create(const std::string& path, const std::string& contents) = 0;
};

}  // namespace korvet
