#include "platform/held_file.h"

#ifdef _WIN32
#include <windows.h>

#include <filesystem>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace korvet {

#ifdef _WIN32

std::shared_ptr<void> HoldFile(const std::string& path) {
    constexpr DWORD ShareWithNobody = 0;
    const HANDLE file = ::CreateFileW(std::filesystem::path(path).c_str(), GENERIC_READ | GENERIC_WRITE,
                                      ShareWithNobody, nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return nullptr;
    }
    return {file, [](void* held) { ::CloseHandle(held); }};
}

#else

namespace {

/// Whether the file that is open is the one of that name: it may have been taken away just before the lock.
bool IsStillThere(int file, const std::string& path) {
    struct stat held = {};
    struct stat named = {};
    return ::fstat(file, &held) == 0 && ::stat(path.c_str(), &named) == 0 && held.st_dev == named.st_dev &&
           held.st_ino == named.st_ino;
}

}  // namespace

std::shared_ptr<void> HoldFile(const std::string& path) {
    constexpr mode_t ForItsOwner = 0600;
    const int file = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOCTTY, ForItsOwner);
    if (file == -1) {
        return nullptr;
    }
    if (::flock(file, LOCK_EX | LOCK_NB) != 0 || !IsStillThere(file, path)) {
        ::close(file);
        return nullptr;
    }
    return {new int(file), [](int* held) {
                ::close(*held);  // and the lock goes with it
                delete held;
            }};
}

#endif

}  // namespace korvet
