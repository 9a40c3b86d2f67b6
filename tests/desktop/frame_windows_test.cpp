// The windows in the frame: how they open, are arranged, dropped on and closed, and what they are called.
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QSet>
#include <QTest>
#include <QToolButton>

#include "tests/desktop/desk.h"
#include "tests/desktop/desktop_test.h"
#include "window/views.h"

namespace korvet::desktop {

class FrameWindowsTest : public QObject {
    Q_OBJECT
  private slots:
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
        QCOMPARE(desk.settings.values.at("MainWidth"), std::to_string(1180 * 10));
    }

    void aDroppedFileIsOpened() {
        Desk desk;
        CFittingWindow& made = desk.New(0);
        Bring(made, State::Pattern);
        QVERIFY(made.SaveFile("/jobs/cone.Kvt") == Passed);
        QVERIFY(desk.window.Frame().CloseChild(made) == Passed);
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile("/jobs/cone.Kvt"), QUrl::fromLocalFile("/jobs/none.Kvt")});
        const auto any = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
        QDragEnterEvent enter(QPoint(20, 20), any, &files, Qt::LeftButton, Qt::ShiftModifier);
        QDragMoveEvent move(QPoint(30, 20), any, &files, Qt::LeftButton, Qt::ShiftModifier);
        QDropEvent drop(QPointF(30, 20), any, &files, Qt::LeftButton, Qt::ShiftModifier);
        for (QDropEvent* const event :
             {static_cast<QDropEvent*>(&enter), static_cast<QDropEvent*>(&move), &drop}) {
            event->setDropAction(Qt::MoveAction);  // as the key asks for
            event->ignore();
            QCoreApplication::sendEvent(&desk.window, event);
            QVERIFY(event->isAccepted());
            QCOMPARE(event->dropAction(), Qt::CopyAction);
        }
        QTRY_COMPARE(desk.window.Frame().Children().size(), 1U);
        QCOMPARE(desk.window.Frame().ActiveChild()->controls.caption, std::string("/jobs/cone.Kvt"));
        QTRY_VERIFY(!desk.shell.ui.messages.empty());  // of the file that is not there
    }

    void aFileThatIsOpenComesToTheFront() {
        Desk desk;
        CFittingWindow& first = desk.New(0);
        Bring(first, State::Pattern);
        QVERIFY(first.SaveFile("/jobs/cone.Kvt") == Passed);
        desk.ActiveView().showMinimized();
        desk.New(8);
        desk.window.Frame().OpenFile("/jobs/cone.Kvt");
        QCOMPARE(desk.window.Frame().Children().size(), 2U);
        QCOMPARE(desk.window.Frame().ActiveChild(), &first);
        QCOMPARE(desk.ActiveView().View().Window(), &first);
        QVERIFY(!desk.ActiveView().isMinimized());
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

    void fourWindowsArrangedLeaveADrawingInEach() {
        Desk desk;
        desk.window.resize(1440, 870);
        for (const int tile : {0, 8, 16, 37}) {
            desk.New(tile == 37 ? 12 : tile);
        }
        for (const char* arrange : {"mnuWindowCascade", "mnuWindowTileVertical", "mnuWindowTileHorizontal"}) {
            desk.window.findChild<QAction*>(arrange)->trigger();
            QApplication::processEvents();
            for (QMdiSubWindow* child : desk.window.Area().subWindowList()) {
                const auto* drawing = child->findChild<QWidget*>("pboxGraphicWindow");
                const QString name =
                    QString("%1 %2x%3").arg(arrange).arg(drawing->width()).arg(drawing->height());
                QVERIFY2(drawing->width() >= 150 && drawing->height() >= 100, qPrintable(name));
                QVERIFY2(drawing->visibleRegion().boundingRect().width() > 0 ||
                             child != desk.window.Area().activeSubWindow(),
                         qPrintable(name));
                QVERIFY2(desk.window.Area().viewport()->rect().contains(child->geometry()), qPrintable(name));
            }
        }
    }

    void aWindowThatIsNotMaximisedHasTwoThirdsOfTheArea() {
        Desk desk;
        desk.New(0);
        desk.ActiveView().showNormal();
        desk.New(8);
        const QSize area = desk.window.Area().viewport()->size();
        QCOMPARE(desk.ActiveView().size(), area * 2 / 3);
        QVERIFY(desk.window.Area().viewport()->rect().contains(desk.ActiveView().geometry()));
    }

    void theTileOfAFittingIsTheIconOfItsWindow() {
        Desk desk;
        QList<QImage> icons;
        for (const int tile : {0, 16, 9}) {
            desk.New(tile);
            for (const int side : {16, 32}) {
                const QImage icon = desk.ActiveView().windowIcon().pixmap(QSize(side, side)).toImage();
                QVERIFY(!icons.contains(icon));
                icons.append(icon);
                int painted = 0;
                for (int y = 0; y < icon.height(); ++y) {
                    for (int x = 0; x < icon.width(); ++x) {
                        painted += icon.pixelColor(x, y).alpha() > 200 ? 1 : 0;
                    }
                }
                QVERIFY(painted > icon.width() * icon.height() / 6);
            }
        }
    }

    void ctrlTabGoesByTheLastUse() {
        Desk desk;
        for (const int tile : {0, 8, 16}) {
            desk.New(tile);
        }
        const QList<QMdiSubWindow*> made = desk.window.Area().subWindowList();
        desk.window.Area().setActiveSubWindow(made[0]);  // used last: 0, before it 2, before that 1
        const auto press = [&] {
            QWidget* const focus = QApplication::focusWidget();
            QTest::keyPress(focus, Qt::Key_Control);
            QTest::keyPress(focus, Qt::Key_Tab, Qt::ControlModifier);
            QTest::keyRelease(focus, Qt::Key_Tab, Qt::ControlModifier);
            QTest::keyRelease(focus, Qt::Key_Control);
            QApplication::processEvents();
        };
        press();
        QCOMPARE(desk.window.Area().activeSubWindow(), made[2]);
        press();
        QCOMPARE(desk.window.Area().activeSubWindow(), made[0]);
    }

    void theFirstWindowOpensMaximisedAndTheNextAsTheLastOneStood() {
        Desk desk;
        desk.New(0);
        QVERIFY(desk.ActiveView().isMaximized());
        desk.ActiveView().showNormal();
        desk.New(8);
        QVERIFY(!desk.ActiveView().isMaximized());
    }

    void closingAMaximisedWindowLeavesTheOthersMaximised() {
        Desk desk;
        for (int i = 0; i < 4; ++i) {
            desk.New(0);
            QVERIFY(desk.ActiveView().isMaximized());
        }
        desk.window.Frame().RunMenu("mnuFileClose");
        QApplication::processEvents();
        QVERIFY(desk.ActiveView().isMaximized());
        desk.ActiveView().close();  // by its own button
        QApplication::processEvents();
        QVERIFY(desk.ActiveView().isMaximized());
        QCOMPARE(desk.shell.options.WindowState, static_cast<std::int16_t>(MaximisedWindow));
        desk.New(8);
        QVERIFY(desk.ActiveView().isMaximized());
        Bring(*desk.window.Frame().ActiveChild(), State::Model);
        desk.shell.ui.answers = {Answer::No};
        desk.shell.ui.onShow = [&](const MessageBox&) {
            QWidget box;  // the question takes the focus away from the frame
            box.show();
            box.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&box));
        };
        desk.window.Frame().RunMenu("mnuFileClose");
        QApplication::processEvents();
        QCOMPARE(desk.window.Frame().Children().size(), 2U);
        desk.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&desk.window));
        QVERIFY(desk.ActiveView().isMaximized());
        desk.window.Frame().RunMenu("mnuFileClose");
        desk.window.Frame().RunMenu("mnuFileClose");
        QVERIFY(desk.window.Frame().Children().empty());
        desk.New(0);
        QVERIFY(desk.ActiveView().isMaximized());
    }

    void closingAWindowOfNormalSizeLeavesTheOthersAsTheyStand() {
        Desk desk;
        desk.New(0);
        desk.ActiveView().showNormal();
        const QRect place = desk.ActiveView().geometry();
        desk.New(8);
        desk.window.Frame().RunMenu("mnuFileClose");
        QApplication::processEvents();
        QVERIFY(!desk.ActiveView().isMaximized());
        QCOMPARE(desk.ActiveView().geometry(), place);
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
        files.setUrls({QUrl::fromLocalFile("/jobs/cone.Kvt")});
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

    void aWindowOutlivesTheCommandThatALogOffCutsShort() {
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
            window.Start({"/jobs/none.Kvt"});  // the splash has begun by an activation of the frame
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
        second.controls.caption = third.controls.caption = "/jobs/cone.Kvt";
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
        window.controls.caption = "/jobs/Rohr & Bogen [*] \xC3\xBC.Kvt";
        desk.window.Project();
        QCOMPARE(desk.window.windowTitle(),
                 QString::fromUtf8("Korvet Development - [/jobs/Rohr & Bogen [*][*] \xC3\xBC.Kvt]"));
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

static const Registered<FrameWindowsTest> registeredFrameWindowsTest("FrameWindowsTest");

}  // namespace korvet::desktop

#include "frame_windows_test.moc"
