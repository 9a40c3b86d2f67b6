// Whether another program is at work on a file.
#pragma once

#include <string>

namespace korvet {

/// Whether another process holds the file open for itself alone. A file that is missing or can't be opened
/// for another reason gives false; nothing is created or changed.
bool IsFileAlreadyOpen(const std::string& path);

}  // namespace korvet
