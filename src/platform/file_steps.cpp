#include "platform/file_steps.h"

#include <algorithm>
#include <array>
#include <cerrno>

#ifdef _WIN32
#include <io.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif
#ifdef __linux__
#include <sys/xattr.h>
#endif

namespace korvet {
namespace {

namespace fs = std::filesystem;

constexpr int MostLinks = 40;  // links that lead to links; no system follows more

/// A call, made again for as long as a signal breaks it off.
template <typename Call>
bool Succeeds(Call call) {
    int result = 0;
    do {
        result = call();
    } while (result != 0 && errno == EINTR);
    return result == 0;
}

/// What a file system answers that has nothing to flush.
bool MeansUnknown(int error) {
    constexpr std::array Unknown = {EINVAL, ENOSYS, ENOTSUP, EOPNOTSUPP};
    return std::find(Unknown.begin(), Unknown.end(), error) != Unknown.end();
}

#ifdef __linux__
/// An attribute of a file by the size that the system tells first; empty when there is none to be had.
template <typename Get>
std::string Attribute(Get get) {
    const ::ssize_t size = get(nullptr, 0);
    std::string value(size > 0 ? static_cast<std::size_t>(size) : 0, '\0');
    const ::ssize_t got = value.empty() ? 0 : get(value.data(), value.size());
    value.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    return value;
}

void KeepExtendedAttributes(const fs::path& old, int file) {
    const std::string names =
        Attribute([&](char* list, std::size_t size) { return ::listxattr(old.c_str(), list, size); });
    for (std::size_t at = 0; at < names.size(); at += std::char_traits<char>::length(&names[at]) + 1) {
        const char* const name = &names[at];
        const std::string value = Attribute(
            [&](char* bytes, std::size_t size) { return ::getxattr(old.c_str(), name, bytes, size); });
        (void)::fsetxattr(file, name, value.data(), value.size(), 0);
    }
}
#endif

/// What there is at the end of a path, through symbolic links. Throws FileError when the system does not tell
/// and for a folder, which no file can be written to.
fs::file_status StatusToWrite(const std::string& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (error && status.type() != fs::file_type::not_found) {
        CannotWrite(path, error);
    }
    if (fs::is_directory(status)) {
        RefuseFile(path, "is a folder");
    }
    return status;
}

/// Refuses a file that is there and may not be written, though its folder would let it be replaced. Throws
/// FileError.
void RequireWritable(const std::string& path) {
    if (!OpenStream(path, "r+b")) {
        CannotWrite(path, LastError());
    }
}

}  // namespace

OpenFile OpenStream(const fs::path& path, const char* mode) {
    std::FILE* file = nullptr;
    do {
        file = std::fopen(path.string().c_str(), mode);
    } while (file == nullptr && errno == EINTR);
    return Unbuffered(file);
}

OpenFile Unbuffered(std::FILE* file) {
    if (file != nullptr) {
        (void)std::setvbuf(file, nullptr, _IONBF, 0);
    }
    return OpenFile(file);
}

std::error_code LastError() {
    return {errno, std::generic_category()};
}

void RefuseFile(const std::string& path, const std::string& what) {
    throw FileError(path + " " + what);
}

void CannotWrite(const std::string& path, const std::string& reason) {
    RefuseFile(path, "cannot be written: " + reason);
}

void CannotWrite(const std::string& path, std::error_code reason) {
    CannotWrite(path, reason.message());
}

void CannotMakeFileIn(const std::string& path, const fs::path& folder, std::error_code reason) {
    const std::string name = folder.empty() ? "the current folder" : "the folder " + folder.string();
    CannotWrite(path, "no file can be made in " + name + ": " + reason.message());
}

void RequireFileName(const std::string& path) {
    if (path.empty() || path.find('\0') != std::string::npos) {
        throw FileError("'" + path.substr(0, path.find('\0')) + "' is no file name");
    }
}

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

WriteTarget TargetOf(const std::string& path) {
    RequireFileName(path);
    const fs::file_status old = StatusToWrite(path);
    WriteTarget target;
    target.exists = fs::exists(old);
    target.isStraight = target.exists && !fs::is_regular_file(old);
    if (target.isStraight) {
        target.file = path;
        return target;
    }
    if (target.exists) {
        RequireWritable(path);
    }
    target.file = FollowLinks(path);
    std::error_code error;
    target.hasFurtherNames = target.exists && fs::hard_link_count(target.file, error) > 1 && !error;
    return target;
}

OpenFile OpenStraight(const std::string& path) {
    OpenFile file = OpenStream(path, "wb");
    if (!file) {
        CannotWrite(path, LastError());
    }
    return file;
}

std::error_code WriteWhole(std::FILE* file, std::string_view text) {
    while (!text.empty()) {
        errno = 0;
        text.remove_prefix(std::fwrite(text.data(), 1, text.size(), file));
        if (!text.empty()) {
            if (errno != EINTR) {
                return LastError();
            }
            std::clearerr(file);
        }
    }
    return {};
}

std::error_code FlushAndClose(OpenFile file, Flush flush) {
    const std::error_code error = flush == Flush::Yes ? FlushToDisk(file.get()) : std::error_code();
    return error ? error : CloseFile(std::move(file));
}

std::error_code FlushToDisk(std::FILE* file) {
#ifdef _WIN32
    const bool done = _commit(_fileno(file)) == 0;
#else
    const bool done = Succeeds([file] { return ::fsync(fileno(file)); });
#endif
    return done || MeansUnknown(errno) ? std::error_code() : LastError();
}

std::error_code FlushFolder(const fs::path& folder) {
#ifdef _WIN32
    (void)folder;  // the system has no such call
    return {};
#else
    const int opened = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened == -1) {
        return {};
    }
    const bool done = Succeeds([opened] { return ::fsync(opened); }) || MeansUnknown(errno);
    const std::error_code error = done ? std::error_code() : LastError();
    ::close(opened);
    return error;
#endif
}

std::error_code CloseFile(OpenFile file) {
    // A close that a signal breaks off has closed the file all the same.
    return std::fclose(file.release()) == 0 || errno == EINTR ? std::error_code() : LastError();
}

void KeepAttributes(const fs::path& old, std::FILE* file) {
#ifdef _WIN32
    (void)old;
    (void)file;
#else
    struct ::stat was {};
    if (::stat(old.c_str(), &was) != 0) {
        return;
    }
    constexpr auto SameOwner = static_cast< ::uid_t>(-1);
    constexpr ::mode_t AllBits = 07777;
    constexpr ::mode_t Permissions = 0777;
    const int made = fileno(file);
    const bool owned = ::fchown(made, was.st_uid, was.st_gid) == 0;
    // Whoever may not give a file away may still leave it to a group of their own.
    if (!owned && ::fchown(made, SameOwner, was.st_gid) != 0) {
        errno = 0;  // the file is its writer's then
    }
    // What runs in the name of its owner must not do so in the name of another.
    (void)::fchmod(made, was.st_mode & (owned ? AllBits : Permissions));
#ifdef __linux__
    KeepExtendedAttributes(old, made);
#endif
#endif
}

}  // namespace korvet
