#include "platform/graphics_application.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <iostream>
#include <memory>
#include <stdexcept>

#include "platform/system_clock.h"

namespace korvet {
namespace {

QtMessageHandler usualHandler = nullptr;
bool hasStarted = false;

/// What the toolkit says of a missing desktop at its start is no concern of a program that only makes
/// pictures. What ends the program is told where the user sees it, and not only in a log of the system.
void HandleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg) {
        std::cerr << "korvet: " << text.toStdString() << std::endl;
    } else if (hasStarted) {
        usualHandler(type, context, text);
    }
}

}  // namespace

void EnsureGraphicsApplication() {
    if (QCoreApplication::instance() != nullptr) {
        if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) == nullptr) {
            throw std::logic_error("a program that makes pictures needs a graphics application");
        }
        return;
    }
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    qputenv("QT_QPA_PLATFORM", "offscreen");  // whatever is set for programs with windows
#endif
    static int argumentCount = 1;
    static char programName[] = "korvet";
    static char* arguments[] = {programName, nullptr};
    usualHandler = qInstallMessageHandler(HandleMessage);
    // Its letters are measured once before it counts as made: what the toolkit keeps for them goes at the end
    // of the program in reverse order, and the application takes it down.
    static const auto application = [] {
        auto made = std::make_unique<QGuiApplication>(argumentCount, arguments);
        static_cast<void>(QFontMetrics(QFont()).horizontalAdvance(QStringLiteral("0")));
        return made;
    }();
    hasStarted = true;
    HoldNumericLocale();
}

}  // namespace korvet
