// What shows that a mouse mode is armed, where the pointer is, and which view is on.
#include <QLabel>
#include <QTest>

#include "tests/desktop/desktop_test.h"
#include "tests/desktop/fitting_view_hands.h"

namespace korvet::desktop {

class ArmedModesTest : public QObject {
    Q_OBJECT

    static QString Panel(Desk& desk, const char* name) {
        return desk.window.findChild<QLabel*>(QString::fromLatin1(name))->text();
    }

    static bool IsPressed(Desk& desk, const char* name) {
        return desk.window.findChild<QAbstractButton*>(QString::fromLatin1(name))->isChecked();
    }

    static void Hover(QWidget& area, QPoint at) {
        QMouseEvent move(QEvent::MouseMove, at, area.mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(&area, &move);
    }

    static void NewPattern(Desk& desk) {
        desk.New();
        TypeCone(desk);
        Click(desk.window, "btnView_9");
    }

  private slots:
    void anArmedModeIsSeenUntilEscape() {
        Desk desk;
        NewPattern(desk);
        QCOMPARE(Panel(desk, "sbStatusBar_Prompt"), QString());
        const QString settings = Panel(desk, "sbStatusBar_1");
        Click(desk.window, "tbToolBar_12");
        QVERIFY(IsPressed(desk, "tbToolBar_12"));
        QCOMPARE(Panel(desk, "sbStatusBar_Prompt"), QString("Click the first point of the dimension"));
        QCOMPARE(Panel(desk, "sbStatusBar_1"), settings);
        QTest::mousePress(&Drawing(desk), Qt::LeftButton, Qt::NoModifier, {100, 100});
        QCOMPARE(Panel(desk, "sbStatusBar_Prompt"), QString("Release at the second point of the dimension"));
        QTest::mouseRelease(&Drawing(desk), Qt::LeftButton, Qt::NoModifier, {400, 300});
        QVERIFY(IsPressed(desk, "tbToolBar_12"));
        desk.window.Frame().RunMenu("mnuPan");
        desk.window.Project();
        QVERIFY(!IsPressed(desk, "tbToolBar_12") && IsPressed(desk, "tbToolBar_23"));
        Drawing(desk).setFocus();
        QTest::keyClick(&Drawing(desk), Qt::Key_Escape);
        QVERIFY(!IsPressed(desk, "tbToolBar_23"));
        QCOMPARE(Panel(desk, "sbStatusBar_Prompt"), QString());
    }

    void escapeEndsAModeFromABoxAndBuildsNothing() {
        Desk desk;
        NewPattern(desk);
        const CFittingWindow& window = *desk.window.Frame().ActiveChild();
        Type(Box(desk, 4), "1e");
        Click(desk.window, "tbToolBar_13");
        Click(desk.window, "tbToolBar_9");
        QVERIFY(IsPressed(desk, "tbToolBar_13") && IsPressed(desk, "tbToolBar_9"));
        QTest::keyClick(&Box(desk, 4), Qt::Key_Escape);
        QVERIFY(!IsPressed(desk, "tbToolBar_13") && !IsPressed(desk, "tbToolBar_9"));
        QVERIFY(!window.removeDimensionMode);
        QVERIFY(window.hasModel);
        QVERIFY(desk.shell.ui.messages.empty());
        QCOMPARE(Box(desk, 4).text(), QString("1e"));
    }

    void aRefusedCommandLeavesItsButtonUp() {
        Desk desk;
        desk.New();
        Click(desk.window, "tbToolBar_9");
        QCOMPARE(desk.shell.ui.messages.size(), 1U);
        QVERIFY(!IsPressed(desk, "tbToolBar_9"));
    }

    void thePlaceOfThePointerIsToldOverAPattern() {
        Desk desk;
        NewPattern(desk);
        auto& area = static_cast<DrawingArea&>(Drawing(desk));
        Hover(area, {200, 150});
        const WorldPoint place = area.ToDrawing(QPoint(200, 150));
        QCOMPARE(
            Panel(desk, "sbStatusBar_Pointer"),
            QString("X = %1   Y = %2").arg(qRound(place.x * 10) / 10.0).arg(qRound(place.y * 10) / 10.0));
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&area, &leave);
        QCOMPARE(Panel(desk, "sbStatusBar_Pointer"), QString());
        Click(desk.window, "btnView_0");
        Hover(area, {210, 150});
        QCOMPARE(Panel(desk, "sbStatusBar_Pointer"), QString());
    }

    void aLongPromptWidensNoWindow() {
        Desk desk;
        NewPattern(desk);
        const int before = desk.window.minimumSizeHint().width();
        Click(desk.window, "tbToolBar_17");
        QVERIFY(!Panel(desk, "sbStatusBar_Prompt").isEmpty());
        QCOMPARE(desk.window.minimumSizeHint().width(), before);
    }

    void theButtonOfTheViewStaysPressed() {
        Desk desk;
        desk.New();
        const auto pressed = [&desk] {
            QStringList names;
            for (int i = 0; i <= PatternButton; ++i) {
                const QString name = QString("btnView_%1").arg(i);
                if (IsPressed(desk, name.toLatin1().constData())) {
                    names.append(name);
                }
            }
            return names;
        };
        QCOMPARE(pressed(), QStringList());
        Click(desk.window, "btnView_3");  // refused: nothing is typed
        QCOMPARE(pressed(), QStringList());
        TypeCone(desk);
        for (const char* const name : {"btnView_3", "btnView_9", "btnView_4"}) {
            Click(desk.window, name);
            QCOMPARE(pressed(), QStringList(name));
            Click(desk.window, name);
            QCOMPARE(pressed(), QStringList(name));
        }
        Type(Box(desk, 4), "400");
        Click(desk.window, "btnView_9");  // refused: the picture is the one before
        QCOMPARE(pressed(), QStringList("btnView_4"));
    }
};

static const Registered<ArmedModesTest> registeredArmedModesTest("ArmedModesTest");

}  // namespace korvet::desktop

#include "armed_modes_test.moc"
