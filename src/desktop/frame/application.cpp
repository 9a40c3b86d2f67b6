#include "desktop/frame/application.h"

#include <QApplication>
#include <QDir>
#include <QStandardPaths>
#include <QTimer>
#include <chrono>

#include "core/constants.h"
#include "desktop/frame/icons.h"
#include "desktop/frame/main_window.h"
#include "desktop/help/help_window.h"
#include "desktop/qt_ui.h"
#include "desktop/sketch/sketch_painter.h"
#include "frame/catalogue.h"
#include "frame/start_up.h"
#include "platform/com_automation.h"
#include "platform/disk_files.h"
#include "platform/recovery_folder.h"
#include "platform/registry_settings.h"
#include "platform/serial_plotter.h"
#include "platform/system_clock.h"
#include "platform/system_printers.h"
#include "platform/transfer_folder.h"

namespace korvet::desktop {
namespace {

/// The box with the progress then takes its own time to come up: together about a second.
constexpr std::chrono::milliseconds ProgressPatience{600};

/// A sketch for the help pages; none for a fitting or page that there isn't.
QImage SketchOfPage(const QString& category, int page, QSize size, const QPalette& palette) {
    const CatalogueRow* row = FindCategory(category.toStdString());
    if (row == nullptr || page < 1 || static_cast<std::size_t>(page) > row->table->pages.size()) {
        return {};
    }
    return SketchImage(*row->table, static_cast<std::size_t>(page - 1), size, qApp->devicePixelRatio(),
                       palette, QApplication::font());
}

/// Everything that lives as long as the run, in the order in which it is needed.
struct Application {
    COptions options;
    DiskFiles files;
    SystemClock clock;
    FrameModel frame;
    PatternSettingsDialog patternSettingsDialog;
    RegistrySettings settings;
    QtUi ui{nullptr};
    SystemPrinters printers{files};
    CPrintDialog printDialog{printers};
    TransferFolder transfer = TransferFolder::OfProgram();
    SerialPlotter plotter{settings};
#ifdef _WIN32
    ComAutomation programs;
    Automation* automation = &programs;
#else
    Automation* automation = nullptr;  // other programs can't be driven here
#endif
    WindowContext context{
        options,   ui,       files,     clock, frame, patternSettingsDialog, printDialog, SystemDecimalMark(),
        &transfer, &plotter, automation};
    HelpWindow help{HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath()), SketchOfPage};
    RecoveryFolder recovery{RecoveryFolder::OfUser()};
};

/// Where programs keep what belongs to their user; empty when it can't be made.
std::string ConfigurationFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    return QDir().mkpath(folder) ? folder.toStdString() : std::string();
}

/// To the front, that the user sees what comes of his click.
void BringToFront(MainWindow& window) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.raise();
    window.activateWindow();
}

/// What was typed longer ago than this, and the time of a save, is not lost with the program. Tests set
/// another one, in milliseconds.
std::chrono::milliseconds RecoveryInterval() {
    constexpr int Usual = 2000;
    bool isSet = false;
    const int set = qEnvironmentVariableIntValue("KORVET_RECOVERY_INTERVAL", &isSet);
    return std::chrono::milliseconds(isSet && set > 0 ? set : Usual);
}

}  // namespace

int RunApplication(const QStringList& files, FileRequests& requests) {
    HoldNumericLocale();
    QApplication::setWindowIcon(ApplicationIcon());
    Application application;
    application.ui.context = &application.context;
    application.context.patience = ProgressPatience;
    application.files.onPartedNames = [&application](const std::string& path) {
        ShowPlain(application.ui, PartedNamesText(path));
    };
    if (SetupStartup(application.context, application.settings, ConfigurationFolder)) {
        return 1;
    }
    MainWindow window(application.context, application.help, application.settings, &application.recovery);
    window.KeepCopiesEvery(RecoveryInterval());
    application.ui.SetParent(&window);
    application.ui.beforeModal = [&window] { window.Project(); };
    application.ui.showHelp = window.HelpByContext();
    window.Place(application.settings.Get("MainWidth").has_value());
    window.show();
    QTimer::singleShot(0, &window, [&] {
        window.Start(files);
        requests.Take([&window](const QStringList& asked) {
            BringToFront(window);
            window.Start(asked);
        });
    });
    return QApplication::exec();
}

}  // namespace korvet::desktop
