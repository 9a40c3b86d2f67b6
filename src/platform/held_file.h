// A file that tells other programs that its owner is still running.
#pragma once

#include <memory>
#include <string>

namespace korvet {

/// Takes hold of a file, which is made when it is missing, for as long as the result lives: the system lets
/// go of it when the program ends, however it ends. Null when another program, or another holder in this one,
/// has it, and when it can't be made.
std::shared_ptr<void> HoldFile(const std::string& path);

}  // namespace korvet
