#include "platform/growing_file.h"

#include <cerrno>
#include <utility>

#ifndef _WIN32
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace korvet {

namespace fs = std::filesystem;

#ifdef _WIN32

namespace {

OpenFile OpenPart(const std::string& path, const fs::path& part, int& /*held*/) {
    OpenFile file = OpenStream(part, "wb");
    if (!file) {
        CannotMakeFileIn(path, part.parent_path(), LastError());
    }
    return file;
}

void LetGo(int /*held*/) {}

}  // namespace

#else

namespace {

/// Whether an open file is still the one of that name: the run that held it may have put it in its place
/// meanwhile.
bool IsStill(int opened, const fs::path& name) {
    struct ::stat here {};
    struct ::stat there {};
    return ::fstat(opened, &here) == 0 && ::lstat(name.c_str(), &there) == 0 && here.st_dev == there.st_dev &&
           here.st_ino == there.st_ino;
}

/// Whether what is opened is a file of one name: another one is not ours, and keeps what it holds.
bool IsOneFile(int opened) {
    struct ::stat here {};
    return ::fstat(opened, &here) == 0 && S_ISREG(here.st_mode) && here.st_nlink == 1;
}

/// Opens the part and holds it. It is emptied only when it is certain that nobody else writes to it.
OpenFile OpenPart(const std::string& path, const fs::path& part, int& held) {
    constexpr ::mode_t ForAll = 0666;
    while (true) {
        const int opened =
            ::open(part.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, ForAll);
        if (opened == -1 && errno == EINTR) {
            continue;
        }
        if (opened == -1) {
            CannotMakeFileIn(path, part.parent_path(), LastError());
        }
        OpenFile file = Unbuffered(::fdopen(opened, "wb"));
        if (!file) {
            ::close(opened);
            CannotWrite(path, LastError());
        }
        if (::flock(opened, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
            CannotWrite(path, "another run is at work on " + part.string());
        }
        if (!IsStill(opened, part)) {
            continue;
        }
        if (!IsOneFile(opened)) {
            CannotWrite(path, part.string() + " is in its way");
        }
        if (::ftruncate(opened, 0) != 0) {
            const std::error_code reason = LastError();
            ::unlink(part.c_str());
            CannotWrite(path, reason);
        }
        held = ::fcntl(opened, F_DUPFD_CLOEXEC, 0);
        return file;
    }
}

void LetGo(int held) {
    if (held != -1) {
        ::close(held);
    }
}

}  // namespace

#endif

GrowingFile::GrowingFile(std::string path) : path_(std::move(path)), target_(TargetOf(path_)) {
    if (target_.isStraight) {
        file_ = OpenStraight(path_);
        return;
    }
    part_ = PartOf(target_.file.string());
    file_ = OpenPart(path_, part_, held_);
    if (target_.exists) {
        KeepAttributes(target_.file, file_.get());
    }
}

GrowingFile::~GrowingFile() {
    if (!part_.empty()) {
        std::error_code ignored;
        fs::remove(part_, ignored);
    }
    LetGo(held_);
}

void GrowingFile::Append(std::string_view text) {
    if (const std::error_code error = WriteWhole(file_.get(), text)) {
        CannotWrite(path_, error);
    }
}

void GrowingFile::Place() {
    std::error_code error = CloseFile(std::move(file_));
    if (!error && !part_.empty()) {
        fs::rename(part_, target_.file, error);
    }
    if (error) {
        CannotWrite(path_, error);
    }
    part_.clear();
}

}  // namespace korvet
