// What has been saved of a fitting window, for telling whether it has changed since.
#pragma once

#include <cstdint>
#include <string>

#include "core/points.h"

namespace korvet {

/// What a save of a window writes, the view aside.
struct SavedState {
    std::string text;
    PointList mesh;  ///< the first row of an imported one: another import is another list
    bool operator==(const SavedState&) const = default;
};

/// A file as the window has read or written it last.
struct KnownFile {
    std::string path;
    std::uint64_t fingerprint = 0;
};

}  // namespace korvet
