// The work of korvet-batch: the windows of the program, driven from the command line.
#pragma once

#include "batch/arguments.h"

namespace korvet::batch {

/// Exit statuses of the program.
enum ExitStatus : int { Done = 0, Failed = 1, WrongUsage = 2 };

/// Does what the command line asks for and returns the exit status. Messages go to the standard error.
int Run(const Arguments& arguments);

/// The same from the words of the command line, the program's name first. Says what is wrong with them.
int RunCommandLine(int argc, const char* const* argv);

}  // namespace korvet::batch
