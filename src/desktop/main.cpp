// korvet: the desktop program. Files named on the command line are opened.
#include <QApplication>
#include <QFileInfo>
#include <cstdio>

#include "core/constants.h"
#include "desktop/bindings.h"
#include "desktop/command_line.h"
#include "desktop/frame/application.h"
#include "desktop/program_style.h"
#include "platform/file_requests.h"
#include "platform/standard_streams.h"

namespace {

constexpr int WrongUsage = 2;

/// A caption is the file's name for later saves, so it must not hang on the current folder.
QStringList WholeNames(QStringList files) {
    for (QString& file : files) {
        file = QFileInfo(file).absoluteFilePath();
    }
    return files;
}

}  // namespace

int main(int argc, char** argv) {
    using namespace korvet;
    HoldStandardStreams();
    QStringList given;
    for (int i = 1; i < argc; ++i) {
        given.append(QString::fromLocal8Bit(argv[i]));
    }
    // Looked at before there has to be a screen.
    if (const QString text = desktop::ReadCommandLine(given).text; !text.isEmpty()) {
        std::fputs(text.toLocal8Bit().constData(), stdout);
        return 0;
    }
    QApplication application(argc, argv);
    const desktop::CommandLine line = desktop::ReadCommandLine(QCoreApplication::arguments().mid(1));
    if (!line.error.isEmpty()) {
        std::fprintf(stderr, "%s\n", line.error.toLocal8Bit().constData());
        return WrongUsage;
    }
    QApplication::setApplicationName(desktop::Text(std::string(ProductTitle)));
    QApplication::setApplicationVersion(desktop::Text(std::string(ProgramVersion)));
    QApplication::setDesktopFileName(QStringLiteral("korvet"));
    QApplication::setStyle(new desktop::ProgramStyle);
    const QStringList files = WholeNames(line.files);
    const auto requests = line.open && !files.isEmpty() ? HandOverOrListen(RequestFolder(), files)
                                                        : std::make_unique<FileRequests>(RequestFolder());
    return requests ? desktop::RunApplication(files, *requests) : 0;
}
