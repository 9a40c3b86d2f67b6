#include "core/reason.h"

#include <new>

namespace korvet {

std::string ReasonOf(const std::exception& error) {
    const bool noMemory = dynamic_cast<const std::bad_alloc*>(&error) != nullptr;
    return noMemory ? "there is not enough memory" : error.what();
}

}  // namespace korvet
