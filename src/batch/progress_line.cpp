#include "batch/progress_line.h"

#include <iostream>

#include "platform/terminal.h"

namespace korvet::batch {

void ProgressLine::Show(std::size_t number, std::size_t count, const std::string& name) {
    if (count > 1 && IsStandardErrorATerminal()) {
        std::cerr << "\r\033[K" << number << " of " << count << "  " << name << std::flush;
        isShown_ = true;
    }
}

void ProgressLine::Clear() {
    if (isShown_) {
        std::cerr << "\r\033[K" << std::flush;
        isShown_ = false;
    }
}

}  // namespace korvet::batch
