#include "platform/standard_streams.h"

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <initializer_list>
#endif

namespace korvet {

#ifdef _WIN32

void HoldStandardStreams() {}

#else

void HoldStandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(stream, F_GETFD) == -1 && errno == EBADF) {
            (void)::open("/dev/null", O_RDONLY);  // takes the lowest number that is free
        }
    }
    (void)std::signal(SIGXFSZ, SIG_IGN);
}

#endif

}  // namespace korvet
