// The command line of korvet.
#pragma once

#include <QString>
#include <QStringList>

namespace korvet::desktop {

struct CommandLine {
    QStringList files;  ///< as they were named
    bool open = false;  ///< hand them to a running program, if there is one
    QString text;       ///< asked for: to be printed, and nothing else done
    QString error;      ///< names an option that there isn't
};

/// Takes the arguments apart, those of the toolkit left out. Behind "--" everything is a file.
CommandLine ReadCommandLine(const QStringList& arguments);

}  // namespace korvet::desktop
