// The desktop program from its start to its end.
#pragma once

#include <QStringList>

#include "platform/file_requests.h"

namespace korvet::desktop {

/// Runs the program in a graphics application that exists already. `files`, by their whole names, are opened
/// once the frame stands, and so is what others ask for. The result is the exit code: 1 when the options file
/// can't be used.
int RunApplication(const QStringList& files, FileRequests& requests);

}  // namespace korvet::desktop
