// The frame's bars and windows: every entry and button reaches the member of the main frame that it should.
#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolButton>
#include <sstream>

#include "frame/frame_menu.h"
#include "tests/desktop/desk.h"
#include "tests/desktop/desktop_test.h"
#include "tests/support/recording_device.h"
#include "window/views.h"

namespace korvet::desktop {
namespace {

constexpr std::array<State, 5> AllStates = {State::NoChild, State::NoView, State::Refused, State::Model,
                                            State::Pattern};

/// The names of the dialogs that a run of a command shows.
void Listen(TestShell& shell, std::vector<std::string>& shown) {
    shell.ui.onPatternSettings = [&](auto&) { shown.emplace_back("settings"); };
    shell.ui.onOptions = [&](auto&) { shown.emplace_back("options"); };
    shell.ui.onDimensionOptions = [&](auto&) { shown.emplace_back("dimension options"); };
    shell.ui.onLabel = [&](auto&) { shown.emplace_back("label"); };
    shell.ui.onDxfOptions = [&](auto&) { shown.emplace_back("export"); };
    shell.ui.files.push_back("out.Kvt");
}

/// Everything that a command can have changed, as text.
QString Told(const TestShell& shell, const RecordingHelp& help, CMainFrame& frame,
             const std::vector<std::string>& dialogs) {
    std::ostringstream told;
    for (const MessageBox& message : shell.ui.messages) {
        told << "box " << message.style << " " << message.title << ": " << message.text << "\n";
    }
    for (const FileChoice& choice : shell.ui.fileDialogs) {
        told << "file " << choice.title << " " << choice.filter << "\n";
    }
    for (const std::string& dialog : dialogs) {
        told << "dialog " << dialog << "\n";
    }
    for (const std::string& call : help.calls) {
        told << "help " << call << "\n";
    }
    told << frame.Children().size() << " windows, counter " << shell.frame.documentCounter << "\n";
    for (const auto& [name, enabled] : shell.frame.menuEnabled) {
        told << name << (enabled ? " on " : " off ");
    }
    for (const auto& [position, enabled] : shell.frame.toolEnabled) {
        told << position << (enabled ? " on " : " off ");
    }
    told << shell.frame.printFramesTicked << shell.frame.toolBarVisible << shell.frame.statusBarVisible
         << "\n";
    if (const CFittingWindow* child = frame.ActiveChild()) {
        told << child->controls.caption << " views " << child->views->Count() << " model " << child->hasModel;
        const MouseModes& modes = child->modes;
        told << " modes " << modes.panMode << modes.zoomWindowMode << modes.measureMode << modes.labelMode
             << modes.selectFramesMode << modes.rotateMode << modes.dimensionMode
             << child->removeDimensionMode << " tip " << child->controls.pboxGraphicWindow.toolTip << "\n";
        told << " pattern " << InPatternView(*child->views);
    }
    return QString::fromStdString(told.str());
}

/// What a command does in the logic alone.
template <typename Command>
QString Expected(State state, Command command) {
    TestShell shell;
    RecordingDesktop desktop;
    RecordingDevice area(700, 700);
    desktop.drawingArea = &area;
    RecordingHelp help;
    MemorySettings settings;
    CMainFrame frame(shell.context, desktop, help, settings);
    frame.Load();
    if (state != State::NoChild) {
        desktop.pick = "Right Cone";
        frame.RunMenu("mnuFileNew");
        frame.ActivateChild(desktop.windows.front());
        Bring(*frame.ActiveChild(), state);
    }
    EnableFittingCommands(shell.frame);
    shell.frame.menuEnabled["mnuSelectFrames"] = shell.frame.toolEnabled[7] = true;
    shell.ui.messages.clear();
    desktop.calls.clear();
    desktop.pick.reset();
    help.topics = {2100};
    std::vector<std::string> dialogs;
    Listen(shell, dialogs);
    command(frame);
    for (const std::string& call : desktop.calls) {
        if (call == "close") {
            frame.QueryUnload({}, false);
        } else if (call == "category menu" || call == "about" || call == "disclaimer") {
            dialogs.push_back(call);
        }
    }
    return Told(shell, help, frame, dialogs);
}

std::string NameOfModal(const std::string& objectName) {
    if (objectName == "frmCategoryMenu") {
        return "category menu";
    }
    if (objectName == "frmAbout") {
        return "about";
    }
    return objectName == "frmDisclaimer" ? "disclaimer" : objectName;
}

/// What it does through its widget.
template <typename Command>
QString Done(State state, Command command) {
    Desk desk;
    if (state != State::NoChild) {
        Bring(desk.New(), state);
    }
    EnableFittingCommands(desk.shell.frame);
    desk.shell.frame.menuEnabled["mnuSelectFrames"] = desk.shell.frame.toolEnabled[7] = true;
    desk.window.Project();
    desk.shell.ui.messages.clear();
    desk.help.topics = {2100};
    std::vector<std::string> dialogs;
    Listen(desk.shell, dialogs);
    ModalVisitor visitor;
    command(desk.window);
    for (const std::string& modal : visitor.seen) {
        dialogs.push_back(NameOfModal(modal));
    }
    return Told(desk.shell, desk.help, desk.window.Frame(), dialogs);
}

}  // namespace

class FrameTest : public QObject {
    Q_OBJECT
  private slots:
    void everyMenuEntryDoesWhatItSays_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("state");
        for (const MenuEntry& entry : FrameMenu()) {
            if (entry.menu.empty() || entry.name.empty()) {
                continue;
            }
            for (const State state : AllStates) {
                const QString name = QString::fromStdString(std::string(entry.name));
                QTest::addRow("%s in state %d", qPrintable(name), static_cast<int>(state))
                    << name << static_cast<int>(state);
            }
        }
    }
    void everyMenuEntryDoesWhatItSays() {
        QFETCH(QString, name);
        QFETCH(int, state);
        const QString told = Done(static_cast<State>(state), [&](MainWindow& window) {
            auto* action = window.findChild<QAction*>(name);
            QVERIFY(action != nullptr);
            QVERIFY(action->isEnabled());
            action->trigger();
        });
        QCOMPARE(told, Expected(static_cast<State>(state),
                                [&](CMainFrame& frame) { frame.RunMenu(name.toStdString()); }));
    }

    void everyToolButtonDoesWhatItSays_data() {
        QTest::addColumn<int>("position");
        QTest::addColumn<int>("state");
        for (const ToolButton& tool : FrameToolBar()) {
            for (const State state : AllStates) {
                QTest::addRow("tool %d in state %d", tool.position, static_cast<int>(state))
                    << tool.position << static_cast<int>(state);
            }
        }
    }
    void everyToolButtonDoesWhatItSays() {
        QFETCH(int, position);
        QFETCH(int, state);
        const QString told = Done(static_cast<State>(state), [&](MainWindow& window) {
            Click(window, ("tbToolBar_" + std::to_string(position)).c_str());
        });
        QCOMPARE(told,
                 Expected(static_cast<State>(state), [&](CMainFrame& frame) { frame.ClickTool(position); }));
    }

    void menusStandInTheirOrder() {
        Desk desk;
        QStringList tops;
        for (const QAction* action : desk.window.menuBar()->actions()) {
            tops << action->text().remove('&');
        }
        QCOMPARE(tops, QStringList({"File", "View", "Tools", "Dimension", "Modify", "Window", "Help"}));
        QStringList view;
        for (const QAction* action : desk.window.findChild<QMenu*>("mnuView")->actions()) {
            if (!action->isSeparator()) {
                view << action->text();
            }
        }
        QCOMPARE(view, QStringList({"&Toolbar", "Status &Bar", "Redraw", "Pan", "Zoom Window", "Zoom In",
                                    "Zoom  Out", "Zoom Extents", "Zoom Previous"}));
    }

    void fittingCommandsAreGreyAtTheStart() {
        Desk desk;
        QVERIFY(!desk.window.findChild<QAction*>("mnuFileSave")->isEnabled());
        QVERIFY(!desk.window.findChild<QAction*>("mnuPan")->isEnabled());
        QVERIFY(!desk.window.findChild<QToolButton*>("tbToolBar_3")->isEnabled());
        QVERIFY(desk.window.findChild<QAction*>("mnuFileNew")->isEnabled());
        desk.New();
        QVERIFY(desk.window.findChild<QAction*>("mnuFileSave")->isEnabled());
        QVERIFY(desk.window.findChild<QToolButton*>("tbToolBar_3")->isEnabled());
        QVERIFY(!desk.window.findChild<QAction*>("mnuSelectFrames")->isEnabled());
    }

    void barsComeAndGo() {
        Desk desk;
        auto* bar = desk.window.findChild<QWidget*>("tbToolBar");
        QVERIFY(bar->isVisible());
        desk.window.findChild<QAction*>("mnuViewToolbar")->trigger();
        QVERIFY(!bar->isVisible());
        QVERIFY(!desk.window.findChild<QAction*>("mnuViewToolbar")->isChecked());
        desk.window.findChild<QAction*>("mnuViewToolbar")->trigger();
        QVERIFY(bar->isVisible());
    }
};

static const Registered<FrameTest> registeredFrameTest("FrameTest");

}  // namespace korvet::desktop

#include "frame_test.moc"
