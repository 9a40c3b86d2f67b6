// The terminal that a program was started from.
#pragma once

namespace korvet {

/// Whether somebody reads the standard error on a terminal, so that a line of progress makes sense there.
bool IsStandardErrorATerminal();

}  // namespace korvet
