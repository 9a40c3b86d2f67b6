#include "platform/temporary_file.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <chrono>
#include <utility>

#ifndef _WIN32
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace korvet {
namespace {

namespace fs = std::filesystem;

constexpr int MostNames = 100;  // names tried for a temporary file
constexpr std::string_view Prefix = "korvet-";
constexpr std::string_view Suffix = ".tmp";

/// Whether a file is named as temporary files of this program are.
bool IsTemporaryName(std::string_view name) {
    if (name.size() <= Prefix.size() + Suffix.size() || !name.starts_with(Prefix) ||
        !name.ends_with(Suffix)) {
        return false;
    }
    const std::string_view number = name.substr(Prefix.size(), name.size() - Prefix.size() - Suffix.size());
    return std::all_of(number.begin(), number.end(),
                       [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; });
}

bool IsOld(const fs::path& file) {
    constexpr std::chrono::hours Age(24);
    std::error_code error;
    const fs::file_time_type written = fs::last_write_time(file, error);
    return !error && fs::file_time_type::clock::now() - written > Age;
}

#ifdef _WIN32

void Hold(std::FILE* /*file*/) {}  // an open file can't be removed there

void RemoveUnlessHeld(const fs::path& file) {
    std::error_code ignored;
    fs::remove(file, ignored);
}

#else

void Hold(std::FILE* file) {
    (void)::flock(fileno(file), LOCK_EX | LOCK_NB);
}

void RemoveUnlessHeld(const fs::path& file) {
    const int opened = ::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (opened == -1) {
        return;
    }
    if (::flock(opened, LOCK_EX | LOCK_NB) == 0) {
        std::error_code ignored;
        fs::remove(file, ignored);
    }
    ::close(opened);
}

#endif

}  // namespace

TemporaryFile::TemporaryFile(const std::string& path, const fs::path& folder) {
    const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
    for (int attempt = 0; attempt < MostNames; ++attempt) {
        name_ = folder / (std::string(Prefix) + std::to_string(ticks + attempt) + std::string(Suffix));
        file_ = OpenStream(name_, "wbx");
        if (file_) {
            Hold(file_.get());
            return;
        }
        if (errno != EEXIST) {
            break;
        }
    }
    CannotMakeFileIn(path, folder, LastError());
}

TemporaryFile::~TemporaryFile() {
    if (!placed_) {
        file_.reset();
        std::error_code ignored;
        fs::remove(name_, ignored);
    }
}

std::error_code TemporaryFile::Replace(const fs::path& target, Flush flush) {
    std::error_code error = FlushAndClose(std::move(file_), flush);
    if (!error) {
        fs::rename(name_, target, error);
    }
    placed_ = !error;
    if (placed_ && flush == Flush::Yes) {
        error = FlushFolder(target.parent_path());
    }
    return error;
}

std::error_code TemporaryFile::TakeName(const fs::path& target, bool& isNew) {
    std::error_code error = FlushAndClose(std::move(file_), Flush::Yes);
    if (!error) {
        fs::create_hard_link(name_, target, error);
        isNew = error != std::errc::file_exists;
        if (!isNew) {
            return {};
        }
    }
    return error ? error : FlushFolder(target.parent_path());
}

void RemoveLeftTemporaryFiles(const fs::path& folder) {
    std::error_code error;
    fs::directory_iterator entry(folder.empty() ? "." : folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        std::error_code ignored;
        if (IsTemporaryName(entry->path().filename().string()) &&
            fs::is_regular_file(entry->symlink_status(ignored)) && IsOld(entry->path())) {
            RemoveUnlessHeld(entry->path());
        }
    }
}

}  // namespace korvet
