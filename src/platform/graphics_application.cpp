#include "platform/graphics_application.h"

#include <QGuiApplication>
#include <stdexcept>

#include "platform/system_clock.h"

namespace korvet {

void EnsureGraphicsApplication() {
    if (QCoreApplication::instance() != nullptr) {
        if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) == nullptr) {
            throw std::logic_error("a program that makes pictures needs a graphics application");
        }
        return;
    }
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
#endif
    static int argumentCount = 1;
    static char programName[] = "korvet";
    static char* arguments[] = {programName, nullptr};
    // What it says of a missing desktop at its start is no concern of a program that only makes pictures.
    const auto handler = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    static const QGuiApplication application(argumentCount, arguments);
    qInstallMessageHandler(handler);
    HoldNumericLocale();
}

}  // namespace korvet
