#include "platform/terminal.h"

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace korvet {

bool IsStandardErrorATerminal() {
    constexpr int StandardError = 2;
#ifdef _WIN32
    return _isatty(StandardError) != 0;
#else
    return ::isatty(StandardError) != 0;
#endif
}

}  // namespace korvet
