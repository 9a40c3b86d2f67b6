#include "desktop/command_line.h"

#include "core/constants.h"
#include "desktop/bindings.h"

namespace korvet::desktop {
namespace {

constexpr const char* Help = R"(Korvet Development: flat patterns for sheet-metal and plate fittings.

Usage: korvet [OPTION]... [FILE]...

Starts the program and opens the parameter files (*.Kvt).

  --open       hand the files to the program that runs already, if one does
  -h, --help   print this help
  --version    print the version
  --           what follows is a file, even where it begins with -

Exit status: 0 done, 1 the options file can't be used, 2 wrong usage.
)";

}  // namespace

CommandLine ReadCommandLine(const QStringList& arguments) {
    CommandLine line;
    bool onlyFiles = false;
    for (const QString& argument : arguments) {
        if (onlyFiles || !argument.startsWith('-')) {
            line.files.append(argument);
        } else if (argument == QStringLiteral("--")) {
            onlyFiles = true;
        } else if (argument == QStringLiteral("--open")) {
            line.open = true;
        } else if (argument == QStringLiteral("--version")) {
            line.text = Text("korvet " + std::string(ProgramVersion) + "\n");
        } else if (argument == QStringLiteral("--help") || argument == QStringLiteral("-h")) {
            line.text = QString::fromUtf8(Help);
        } else if (line.error.isEmpty()) {
            line.error = QStringLiteral("korvet knows no option %1; see korvet --help").arg(argument);
        }
    }
    return line;
}

}  // namespace korvet::desktop
