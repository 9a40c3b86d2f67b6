#include "platform/disk_files.h"

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/file_steps.h"
#include "platform/temporary_file.h"

namespace korvet {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t Portion = 65536;  // bytes asked for at a time

[[noreturn]] void CannotRead(const std::string& path, std::error_code reason) {
    RefuseFile(path, "cannot be read: " + reason.message());
}

/// The rest of a file, up to one byte more than `limit`: that shows a file that is too large. Room is made
/// for as much as is expected. `error` tells why it broke off.
std::string ReadUpTo(std::FILE* file, std::size_t expected, std::size_t limit, std::error_code& error) {
    std::string contents;
    contents.reserve(expected < limit ? expected + 1 : limit + 1);
    while (contents.size() <= limit && std::feof(file) == 0) {
        const std::size_t before = contents.size();
        const std::size_t left = limit - before;
        contents.resize(before + (left < Portion ? left + 1 : Portion));
        errno = 0;
        contents.resize(before + std::fread(contents.data() + before, 1, contents.size() - before, file));
        if (std::ferror(file) != 0) {
            if (errno != EINTR) {
                error = LastError();
                break;
            }
            std::clearerr(file);
        }
    }
    return contents;
}

}  // namespace

std::string PartedNamesText(const std::string& path) {
    return path + " had further names (hard links): under those the file stays as it was";
}

bool DiskFiles::Exists(const std::string& path) const {
    std::error_code ignored;
    return path.find('\0') == std::string::npos && fs::exists(path, ignored);
}

bool DiskFiles::IsSameFile(const std::string& one, const std::string& other) const {
    std::error_code ignored;
    return fs::equivalent(one, other, ignored);
}

std::string DiskFiles::Read(const std::string& path, std::size_t limit) const {
    RequireFileName(path);
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found) {
        RefuseFile(path, "does not exist");
    }
    if (error) {
        CannotRead(path, error);
    }
    if (fs::is_directory(status)) {
        RefuseFile(path, "is a folder");
    }
    if (!fs::is_regular_file(status)) {
        RefuseFile(path, "is no regular file");
    }
    const OpenFile file = OpenStream(path, "rb");
    if (!file) {
        CannotRead(path, LastError());
    }
    const std::uintmax_t size = fs::file_size(path, error);
    const auto expected = error ? std::size_t{0} : static_cast<std::size_t>(size);
    error.clear();
    std::string contents = ReadUpTo(file.get(), expected, limit, error);
    if (error) {
        CannotRead(path, error);
    }
    if (contents.size() > limit) {
        RefuseFile(path, "is larger than " + std::to_string(limit) + " bytes");
    }
    return contents;
}

void DiskFiles::WritePieces(const std::string& path, const TextPieces& pieces, Flush flush) {
    ReplacingFile file = Begin(path);
    pieces([&file](std::string_view piece) { file.Append(piece); });
    file.Place(flush);
}

ReplacingFile DiskFiles::Begin(const std::string& path) {
    return {path,
            {.onFolder =
                 [this](const fs::path& folder) {
                     if (swept_.insert(folder).second) {
                         RemoveLeftTemporaryFiles(folder);
                     }
                 },
             .onPartedNames =
                 [this](const std::string& parted) {
                     if (onPartedNames) {
                         onPartedNames(parted);
                     }
                 }}};
}

bool DiskFiles::Create(const std::string& path, const std::string& contents) {
    RequireFileName(path);
    std::error_code error;
    if (fs::exists(fs::symlink_status(path, error))) {
        return false;
    }
    bool isNew = true;
    TemporaryFile file(path, fs::path(path).parent_path());
    error = WriteWhole(file.Stream(), contents);
    if (!error) {
        error = file.TakeName(path, isNew);
    }
    if (error == std::errc::operation_not_permitted || error == std::errc::operation_not_supported ||
        error == std::errc::function_not_supported) {
        return CreateInPlace(path, contents);
    }
    if (error) {
        CannotWrite(path, error);
    }
    return isNew;
}

/// For file systems where no file has two names.
bool DiskFiles::CreateInPlace(const std::string& path, const std::string& contents) {
    OpenFile file = OpenStream(path, "wbx");
    if (!file && errno == EEXIST) {
        return false;
    }
    if (!file) {
        CannotMakeFileIn(path, fs::path(path).parent_path(), LastError());
    }
    std::error_code error = WriteWhole(file.get(), contents);
    if (!error) {
        error = FlushAndClose(std::move(file), Flush::Yes);
    }
    if (error) {
        file.reset();
        std::error_code ignored;
        fs::remove(path, ignored);
        CannotWrite(path, error);
    }
    return true;
}

}  // namespace korvet
