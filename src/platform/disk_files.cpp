#include "platform/disk_files.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace korvet {
namespace {

namespace fs = std::filesystem;

constexpr int MostLinks = 40;           // links that lead to links; no system follows more
constexpr int MostNames = 100;          // names tried for a temporary file
constexpr std::size_t Portion = 65536;  // bytes asked for at a time

struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenFile = std::unique_ptr<std::FILE, Closer>;

/// What the system gave as the reason of the last failure.
std::error_code LastError() {
    return {errno, std::generic_category()};
}

[[noreturn]] void Refuse(const std::string& path, const std::string& what) {
    throw FileError(path + " " + what);
}

[[noreturn]] void CannotRead(const std::string& path, std::error_code reason) {
    Refuse(path, "cannot be read: " + reason.message());
}

[[noreturn]] void CannotWrite(const std::string& path, std::error_code reason) {
    Refuse(path, "cannot be written: " + reason.message());
}

/// A name that the system would cut short at a zero byte must not reach it.
void RequireName(const std::string& path) {
    if (path.empty() || path.find('\0') != std::string::npos) {
        throw FileError("'" + path.substr(0, path.find('\0')) + "' is no file name");
    }
}

bool FlushToDisk(std::FILE* file) {
#ifdef _WIN32
    return _commit(_fileno(file)) == 0;
#else
    return ::fsync(fileno(file)) == 0;
#endif
}

/// Writes everything and closes the file. Gives the reason when a step fails.
std::error_code WriteAndClose(OpenFile file, const std::string& contents, Flush flush) {
    if (std::fwrite(contents.data(), 1, contents.size(), file.get()) != contents.size() ||
        std::fflush(file.get()) != 0) {
        return LastError();
    }
    if (flush == Flush::Yes && !FlushToDisk(file.get())) {
        return LastError();
    }
    return std::fclose(file.release()) == 0 ? std::error_code() : LastError();
}

/// The file that a path leads to through symbolic links, there or not.
fs::path FollowLinks(const std::string& path) {
    fs::path target(path);
    std::error_code error;
    for (int links = 0; links < MostLinks && fs::is_symlink(target, error); ++links) {
        const fs::path next = fs::read_symlink(target, error);
        if (error) {
            CannotWrite(path, error);
        }
        target = target.parent_path() / next;  // an absolute link stands for itself
    }
    return target;
}

/// A file beside the one to be written. It goes away again unless it has taken that one's place.
class TemporaryFile {
  public:
    /// Creates it. Throws FileError in the name of `path`.
    TemporaryFile(const std::string& path, const fs::path& folder) {
        const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
        for (int attempt = 0; attempt < MostNames; ++attempt) {
            name_ = folder / ("korvet-" + std::to_string(ticks + attempt) + ".tmp");
            file_.reset(std::fopen(name_.string().c_str(), "wbx"));
            if (file_) {
                return;
            }
            if (errno != EEXIST) {
                break;
            }
        }
        CannotWrite(path, LastError());
    }

    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    ~TemporaryFile() {
        if (!placed_) {
            file_.reset();
            std::error_code ignored;
            fs::remove(name_, ignored);
        }
    }

    /// Fills it and puts it in the place of `target`, each step only after the one before has succeeded.
    std::error_code Replace(const fs::path& target, const fs::file_status& old, const std::string& contents,
                            Flush flush) {
        std::error_code error;
        if (fs::exists(old)) {
            fs::permissions(name_, old.permissions(), error);
        }
        if (!error) {
            error = WriteAndClose(std::move(file_), contents, flush);
        }
        if (!error) {
            fs::rename(name_, target, error);
        }
        placed_ = !error;
        return error;
    }

  private:
    fs::path name_;
    OpenFile file_;
    bool placed_ = false;
};

/// Opens what is there already. `mode` says whether it is emptied.
OpenFile OpenToWrite(const std::string& path, const char* mode) {
    OpenFile file(std::fopen(path.c_str(), mode));
    if (!file) {
        CannotWrite(path, LastError());
    }
    return file;
}

/// The rest of a file, up to one byte more than `limit`: that shows a file that is too large.
std::string ReadUpTo(std::FILE* file, std::size_t limit) {
    std::string contents;
    std::size_t got = 0;
    do {
        const std::size_t before = contents.size();
        const std::size_t left = limit - before;
        contents.resize(before + (left < Portion ? left + 1 : Portion));
        got = std::fread(contents.data() + before, 1, contents.size() - before, file);
        contents.resize(before + got);
    } while (got > 0 && contents.size() <= limit);
    return contents;
}

}  // namespace

bool DiskFiles::Exists(const std::string& path) const {
    std::error_code ignored;
    return path.find('\0') == std::string::npos && fs::exists(path, ignored);
}

std::string DiskFiles::Read(const std::string& path, std::size_t limit) const {
    RequireName(path);
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found) {
        Refuse(path, "does not exist");
    }
    if (error) {
        CannotRead(path, error);
    }
    if (fs::is_directory(status)) {
        Refuse(path, "is a folder");
    }
    if (!fs::is_regular_file(status)) {
        Refuse(path, "is no regular file");
    }
    const OpenFile file(std::fopen(path.c_str(), "rb"));
    if (!file) {
        CannotRead(path, LastError());
    }
    std::string contents = ReadUpTo(file.get(), limit);
    if (std::ferror(file.get()) != 0) {
        CannotRead(path, LastError());
    }
    if (contents.size() > limit) {
        Refuse(path, "is larger than " + std::to_string(limit) + " bytes");
    }
    return contents;
}

void DiskFiles::Write(const std::string& path, const std::string& contents, Flush flush) {
    RequireName(path);
    std::error_code error;
    const fs::file_status old = fs::status(path, error);
    if (error && old.type() != fs::file_type::not_found) {
        CannotWrite(path, error);
    }
    if (fs::is_directory(old)) {
        Refuse(path, "is a folder");
    }
    if (fs::exists(old) && !fs::is_regular_file(old)) {
        error = WriteAndClose(OpenToWrite(path, "wb"), contents, Flush::No);
    } else {
        if (fs::exists(old)) {
            OpenToWrite(path, "r+b");  // only to see whether it may be written
        }
        const fs::path target = FollowLinks(path);
        error = TemporaryFile(path, target.parent_path()).Replace(target, old, contents, flush);
    }
    if (error) {
        CannotWrite(path, error);
    }
}

}  // namespace korvet
