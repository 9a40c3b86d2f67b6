// Errors in the words of whoever reads them.
#pragma once

#include <exception>
#include <string>

namespace korvet {

/// Why something failed, for the user: what() of the program's own errors, which is written for people, and
/// words for an exhausted memory, whose error has none.
std::string ReasonOf(const std::exception& error);

}  // namespace korvet
