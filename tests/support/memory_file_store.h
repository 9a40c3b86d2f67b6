// A file store in memory, for tests: what was written can be looked at, and paths can be made to fail.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <new>
#include <set>
#include <string>
#include <vector>

#include "core/file_store.h"

namespace korvet {

class MemoryFileStore final : public FileStore {
  public:
    /// One call of Write or Create that succeeded.
    struct Written {
        std::string path;
        Flush flush = Flush::No;
    };

    std::map<std::string, std::string> files;  ///< the bytes by path; a test may put files here itself
    std::set<std::string> unreadable;          ///< paths at which Read throws though the file exists
    std::set<std::string> unwritable;          ///< paths at which Write and Create throw and change nothing
    std::set<std::string> exhausting;          ///< paths at which Read and Write run out of memory
    std::map<std::string, std::string> links;  ///< other paths of files
    std::vector<Written> writes;               ///< successful writes, in their order

    /// What another program does as soon as a file has been written.
    std::function<void(const std::string& path)> afterWrite;

    [[nodiscard]] bool Exists(const std::string& path) const override { return files.contains(path); }

    [[nodiscard]] bool IsSameFile(const std::string& one, const std::string& other) const override {
        return Target(one) == Target(other);
    }

    [[nodiscard]] std::string Read(const std::string& path, std::size_t limit) const override {
        const auto file = files.find(path);
        if (file == files.end()) {
            throw FileError(path + ": no such file");
        }
        RequireMemory(path);
        if (unreadable.contains(path)) {
            throw FileError(path + ": cannot be read");
        }
        if (file->second.size() > limit) {
            throw FileError(path + ": larger than " + std::to_string(limit) + " bytes");
        }
        return file->second;
    }

    void WritePieces(const std::string& path, const TextPieces& pieces, Flush flush) override {
        RequireMemory(path);
        std::string contents;
        pieces([&contents](std::string_view piece) { contents += piece; });
        if (unwritable.contains(path)) {
            throw FileError(path + ": cannot be written");
        }
        files[path] = contents;
        writes.push_back({path, flush});
        if (afterWrite) {
            afterWrite(path);
        }
    }

    bool Create(const std::string& path, const std::string& contents) override {
        if (Exists(path)) {
            return false;
        }
        Write(path, contents, Flush::Yes);
        return true;
    }

  private:
    void RequireMemory(const std::string& path) const {
        if (exhausting.contains(path)) {
            throw std::bad_alloc();
        }
    }

    [[nodiscard]] std::string Target(const std::string& path) const {
        const auto link = links.find(path);
        return link == links.end() ? path : link->second;
    }
};

}  // namespace korvet
