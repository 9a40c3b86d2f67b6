// The frame's bars and windows: every entry and button reaches the member of the main frame that it should.
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QSet>
#include <QTest>
#include <QToolButton>
#include <sstream>

#include "shell/frame_menu.h"
#include "shell/views.h"
#include "tests/desktop/desk.h"
#include "tests/desktop/desktop_test.h"
#include "tests/support/recording_device.h"

namespace korvet::desktop {
namespace {

enum class State { NoChild, NoView, Refused, Model, Pattern };

constexpr std::array<State, 5> AllStates = {State::NoChild, State::NoView, State::Refused, State::Model,
                                            State::Pattern};

/// Brings a new window of a cone into a state.
void Bring(CFittingWindow& window, State state) {
    if (state == State::NoView) {
        return;
    }
    TypeSamples(window);
    window.ClickView(state == State::Pattern ? PatternButton : 0);
    if (state == State::Refused) {
        window.ChangeBox(4, "-1");
        window.Redraw();
    }
}

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

    void theStatusLineFollowsTheActiveWindow() {
        Desk desk;
        auto* panel = desk.window.findChild<QLabel*>("sbStatusBar_1");
        CFittingWindow& first = desk.New(0);
        TypeSamples(first);
        first.settings.Thickness = 3;
        first.ClickView(0);
        desk.window.Project();
        QCOMPARE(panel->text(), QString(" Segments = 24 | Thickness = 3 | Join Angle = 0"));
        desk.New(8);
        QCOMPARE(panel->text(), QString(" Segments = 24 | Thickness = 0 | Join Angle = 0"));
        desk.window.Area().setActiveSubWindow(desk.window.Area().subWindowList().first());
        QCOMPARE(panel->text(), QString(" Segments = 24 | Thickness = 3 | Join Angle = 0"));
    }

    void closingTheFrameAsksEveryWindowBeforeAnyGoes() {
        Desk desk;
        Bring(desk.New(0), State::Pattern);
        Bring(desk.New(8), State::NoView);
        Bring(desk.New(0), State::Model);
        desk.shell.ui.answers = {Answer::No, Answer::Cancel};
        desk.window.close();
        QVERIFY(desk.window.isVisible());
        QCOMPARE(desk.window.Frame().Children().size(), 3U);
        QVERIFY(!desk.settings.values.contains("MainWidth"));
        desk.shell.ui.answers = {Answer::No, Answer::No};
        desk.window.close();
        QVERIFY(!desk.window.isVisible());
        QCOMPARE(desk.settings.values.at("MainWidth"), std::to_string(1180 * 15));
    }

    void aDroppedFileIsOpened() {
        Desk desk;
        CFittingWindow& made = desk.New(0);
        Bring(made, State::Pattern);
        QVERIFY(made.SaveFile("/work/cone.Kvt"));
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile("/work/cone.Kvt"), QUrl::fromLocalFile("/work/none.Kvt")});
        QDragEnterEvent enter(QPoint(20, 20), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&desk.window, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(20, 20), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&desk.window, &drop);
        QTRY_COMPARE(desk.window.Frame().Children().size(), 2U);
        QCOMPARE(desk.window.Frame().ActiveChild()->controls.caption, std::string("/work/cone.Kvt"));
        QTRY_VERIFY(!desk.shell.ui.messages.empty());  // of the file that is not there
    }

    void windowsAreArranged() {
        Desk desk;
        desk.New(0);
        desk.New(8);
        desk.window.findChild<QAction*>("mnuWindowTileVertical")->trigger();
        const QList<QMdiSubWindow*> children = desk.window.Area().subWindowList();
        QCOMPARE(children[0]->height(), children[1]->height());
        QVERIFY(!children[0]->geometry().intersects(children[1]->geometry()));
        QCOMPARE(children[0]->y(), children[1]->y());
        desk.window.findChild<QAction*>("mnuWindowTileHorizontal")->trigger();
        QCOMPARE(children[0]->x(), children[1]->x());
        QVERIFY(!children[0]->geometry().intersects(children[1]->geometry()));
        desk.window.findChild<QAction*>("mnuWindowCascade")->trigger();
        QVERIFY(children[0]->pos() != children[1]->pos());
    }

    void theFirstWindowOpensMaximisedAndTheNextAsTheLastOneStood() {
        Desk desk;
        desk.New(0);
        QVERIFY(desk.ActiveView().isMaximized());
        desk.ActiveView().showNormal();
        desk.New(8);
        QVERIFY(!desk.ActiveView().isMaximized());
    }

    void theNextWindowIsActiveAfterOneHasClosedBehindABox() {
        Desk desk;
        CFittingWindow& first = desk.New(0);
        desk.New(8);
        QWidget box;  // as the question about saving, which leaves the frame inactive when it goes
        box.show();
        box.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        desk.window.Frame().RunMenu("mnuFileClose");
        QCOMPARE(desk.window.Frame().Children().size(), 1U);
        QCOMPARE(desk.window.Frame().ActiveChild(), &first);
    }

    void nothingClosesOrOpensUnderADialog() {
        Desk desk;
        Bring(desk.New(0), State::Pattern);
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile("/work/cone.Kvt")});
        ModalVisitor visitor;
        visitor.visit = [&](QWidget&) {
            desk.ActiveView().close();
            desk.window.close();
            QDragEnterEvent enter(QPoint(20, 20), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&desk.window, &enter);
            QVERIFY(!enter.isAccepted());
        };
        desk.window.Frame().RunMenu("mnuHelpAbout");
        QCOMPARE(visitor.seen.at(0), std::string("frmAbout"));
        QVERIFY(desk.window.isVisible());
        QCOMPARE(desk.window.Frame().Children().size(), 1U);
        QVERIFY(desk.shell.ui.messages.empty());
    }

    void aWindowOutlivesTheCommandThatTheEndOfTheSessionCutsShort() {
        Desk desk;
        CFittingWindow& window = desk.New(0);
        Bring(window, State::Pattern);
        const std::size_t views = window.views->Count();
        desk.shell.ui.answers = {Answer::No};
        desk.shell.ui.onPatternSettings = [&](auto&) { desk.window.close(); };
        Click(desk.window, "btnSettings");
        QVERIFY(!desk.window.isVisible());
        QVERIFY(desk.window.Frame().Children().empty());
        QCOMPARE(window.views->Count(), views);
        QVERIFY(window.closed);
    }

    void onlyLocalFilesAreTaken() {
        Desk desk;
        QMimeData page;
        page.setUrls({QUrl("https://example.com/cone.Kvt")});
        QDragEnterEvent enter(QPoint(20, 20), Qt::CopyAction, &page, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&desk.window, &enter);
        QVERIFY(!enter.isAccepted());
    }

    void theLabelHasAKeyWithTheToolBarHiddenToo() {
        Desk desk;
        Bring(desk.New(0), State::Model);
        desk.window.Project();
        desk.window.findChild<QAction*>("mnuViewToolbar")->trigger();
        int labels = 0;
        desk.shell.ui.onLabel = [&](auto&) { ++labels; };
        desk.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&desk.window));
        QTest::keyClick(&desk.window, Qt::Key_L, Qt::ControlModifier);
        QCOMPARE(labels, 1);
    }

    void aPlaceStaysOnItsScreen() {
        const QRect left(0, 0, 1920, 1080);
        const QRect right(1920, 0, 1280, 1024);
        const QRect there(2000, 100, 800, 600);
        QCOMPARE(OnScreen(there, {left, right}), there);
        QCOMPARE(OnScreen(there, {left}), QRect(1120, 100, 800, 600));
        QCOMPARE(OnScreen(QRect(-5000, -5000, 4000, 300), {left, right}), QRect(0, 0, 1920, 300));
        QCOMPARE(OnScreen(QRect(1800, 900, 800, 600), {left, right}), QRect(1920, 424, 800, 600));
        QCOMPARE(OnScreen(there, {}), there);
    }

    void aFileOfTheCommandLineComesAfterTheSplash() {
        TestShell shell;
        RecordingHelp help;
        MemorySettings settings;
        MainWindow window(shell.context, help, settings);
        ModalVisitor visitor;
        visitor.visit = [&](QWidget& splash) {
            window.Start({"/work/none.Kvt"});  // the splash has begun by an activation of the frame
            QVERIFY(shell.ui.messages.empty());
            splash.close();
        };
        window.Start({});
        QCOMPARE(visitor.seen, std::vector<std::string>{"frmSplash"});
        QVERIFY(!shell.ui.messages.empty());
    }

    void noTwoControlsSideBySideHaveOneName() {
        Desk desk;
        desk.New(0);
        CFittingWindow& second = desk.New(0);
        CFittingWindow& third = desk.New(0);
        second.controls.caption = third.controls.caption = "/work/cone.Kvt";
        desk.window.findChild<QAction*>("mnuWindowTileVertical")->trigger();
        const auto check = [&] {
            QSet<QString> spoken;
            for (const QWidget* widget : desk.window.findChildren<QWidget*>()) {
                const QString name = widget->accessibleName();
                const bool works = qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                                   qobject_cast<const QLineEdit*>(widget) != nullptr ||
                                   widget->objectName() == "pboxGraphicWindow";
                if (!works || name.isEmpty() || !widget->isVisible()) {
                    continue;
                }
                QVERIFY2(!spoken.contains(name), qPrintable(name));
                spoken.insert(name);
            }
            QCOMPARE(spoken.size(), 22 + 3 * (3 + 10 + 2 + 1 + 3 + 1));
            for (const QAction* top : desk.window.menuBar()->actions()) {
                QVERIFY2(!spoken.contains(top->text().remove('&')), qPrintable(top->text()));
            }
        };
        check();
        const QString name = "Base diameter";
        QCOMPARE(desk.ActiveView().findChild<QWidget*>("txtParameter_3")->accessibleName(), name);
        desk.window.Area().setActiveSubWindow(desk.window.Area().subWindowList().first());
        check();
        QCOMPARE(desk.ActiveView().findChild<QWidget*>("txtParameter_3")->accessibleName(), name);
    }

    void aPathShowsAsItStands() {
        Desk desk;
        CFittingWindow& window = desk.New(0);
        window.controls.caption = "/work/Rohr & Bogen [*] \xC3\xBC.Kvt";
        desk.window.Project();
        QCOMPARE(desk.window.windowTitle(),
                 QString::fromUtf8("Korvet Development - [/work/Rohr & Bogen [*][*] \xC3\xBC.Kvt]"));
    }

    void aSwitchBetweenMaximisedWindowsIsNoChangeOfTheirState() {
        Desk desk;
        desk.New(0);
        desk.New(8);
        QVERIFY(desk.ActiveView().isMaximized());
        desk.window.Area().setActiveSubWindow(desk.window.Area().subWindowList().first());
        QVERIFY(desk.ActiveView().isMaximized());
        QCOMPARE(desk.shell.options.WindowState, static_cast<std::int16_t>(MaximisedWindow));
        desk.New(0);
        QVERIFY(desk.ActiveView().isMaximized());
    }

    void theFirstActivationShowsTheSplashOnce() {
        Desk desk;
        QCOMPARE(desk.seenAtStart, std::vector<std::string>{"frmSplash"});
        ModalVisitor visitor;
        desk.window.Frame().Activate();
        QVERIFY(visitor.seen.empty());
    }
};

static const Registered<FrameTest> registered("FrameTest");

}  // namespace korvet::desktop

#include "frame_test.moc"
