#include "platform/file_lock.h"

#ifdef _WIN32
#include <windows.h>

#include <filesystem>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace korvet {

#ifdef _WIN32

bool IsFileAlreadyOpen(const std::string& path) {
    constexpr DWORD ShareWithNobody = 0;
    const HANDLE file =
        ::CreateFileW(std::filesystem::path(path).c_str(), GENERIC_READ | GENERIC_WRITE, ShareWithNobody,
                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return ::GetLastError() == ERROR_SHARING_VIOLATION;
    }
    ::CloseHandle(file);
    return false;
}

#else

// There is no sharing violation here. A program that wants a file for itself locks it, and the lock that
// can't be had tells of it.
bool IsFileAlreadyOpen(const std::string& path) {
    const int file = ::open(path.c_str(), O_RDWR | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    if (file == -1) {
        return false;
    }
    const bool busy = ::flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    ::close(file);  // and the lock goes with it
    return busy;
}

#endif

}  // namespace korvet
