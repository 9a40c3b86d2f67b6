// The desktop program from its start to its end.
#pragma once

#include <QStringList>

namespace korvet::desktop {

/// Runs the program in a graphics application that exists already. `files` are opened once the frame stands.
/// The result is the exit code: 1 when the options file can't be used.
int RunApplication(const QStringList& files);

}  // namespace korvet::desktop
