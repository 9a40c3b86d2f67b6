// korvet: the desktop program. Files named on the command line are opened.
#include <QApplication>

#include "core/constants.h"
#include "desktop/frame/application.h"
#include "desktop/indicator_style.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(
        QString::fromUtf8(korvet::ProductTitle.data(), korvet::ProductTitle.size()));
    QApplication::setApplicationVersion(
        QString::fromUtf8(korvet::ProgramVersion.data(), korvet::ProgramVersion.size()));
    QApplication::setStyle(new korvet::desktop::IndicatorStyle);
    return korvet::desktop::RunApplication(QCoreApplication::arguments().mid(1));
}
