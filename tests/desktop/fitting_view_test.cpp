// A fitting window as a fabricator uses it: building, refusals, views, the mouse, closing.
#include <QAction>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QTest>
#include <stdexcept>

#include "tests/desktop/desktop_test.h"
#include "tests/desktop/fitting_view_hands.h"
#include "window/views.h"

namespace korvet::desktop {
namespace {

/// The shapes that a widget's pointer takes, in order.
class CursorWatch : public QObject {
  public:
    explicit CursorWatch(QList<Qt::CursorShape>& shown) : shown_(shown) {}

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::CursorChange) {
            shown_.append(static_cast<QWidget*>(watched)->cursor().shape());
        }
        return false;
    }

  private:
    QList<Qt::CursorShape>& shown_;
};

}  // namespace

class FittingViewTest : public QObject {
    Q_OBJECT
  private slots:
    void aBuildThatFailsKeepsThePictureAndTheRedBoxes() {
        Desk desk;
        CFittingWindow& window = desk.New();
        TypeCone(desk);
        Click(desk.window, "btnView_9");
        desk.window.Frame().RunMenu("mnuZoomExtents");
        QVERIFY(!IsRed(Box(desk, 3)));
        const QImage picture = Drawing(desk).grab().toImage();
        Type(Box(desk, 3), ("1" + std::string(200, '0')).c_str());  // passes the checks and has no shape
        Click(desk.window, "btnRedraw");
        QCOMPARE(desk.shell.ui.Texts(),
                 std::vector<std::string>{"This fitting cannot be made with these sizes"});
        QVERIFY(IsRed(Box(desk, 3)));
        QVERIFY(!window.hasModel);
        QCOMPARE(Drawing(desk).grab().toImage(), picture);
        Type(Box(desk, 3), "310");
        Click(desk.window, "btnRedraw");
        QVERIFY(!IsRed(Box(desk, 3)));
        QVERIFY(Drawing(desk).grab().toImage() != picture);
    }

    void typesBuildsRefusesAndMends() {
        Desk desk;
        CFittingWindow& window = desk.New();
        Type(Box(desk, 3), "300");
        QVERIFY(IsRed(Box(desk, 3)));
        QVERIFY(!IsRed(Box(desk, 4)));
        Type(Box(desk, 4), "400");
        Type(Box(desk, 5), "250");
        Click(desk.window, "btnView_9");
        QCOMPARE(desk.shell.ui.Texts(), std::vector<std::string>{"This dimension must be less than 300"});
        QCOMPARE(desk.ActiveView().focusWidget(), static_cast<QWidget*>(&Box(desk, 4)));
        QVERIFY(!window.hasModel);
        QTest::qWait(1);
        QTest::keyClicks(&Box(desk, 4), "120");  // the refused text is selected, so typing replaces it
        QCOMPARE(Box(desk, 4).text(), QString("120"));
        Click(desk.window, "btnView_9");
        QVERIFY(window.hasModel);
        QVERIFY(!IsRed(Box(desk, 3)) && !IsRed(Box(desk, 4)) && !IsRed(Box(desk, 5)));
        desk.window.findChild<QAction*>("mnuZoomExtents")->trigger();
        QVERIFY(Ink(Drawing(desk)) > 100);
    }

    void whatFailsInAButtonEndsInABox() {
        Desk desk;
        desk.New();
        desk.shell.ui.onPatternSettings = [](auto&) { throw std::runtime_error("out of memory"); };
        Click(desk.window, "btnSettings");
        QCOMPARE(desk.shell.ui.Texts(), std::vector<std::string>{"out of memory"});
    }

    void theHourglassShowsWhileItDraws() {
        Desk desk;
        desk.New();
        TypeCone(desk);
        QList<Qt::CursorShape> shown;
        QWidget& drawing = Drawing(desk);
        CursorWatch watch(shown);
        drawing.installEventFilter(&watch);
        Click(desk.window, "btnView_9");
        QCOMPARE(shown.value(0), Qt::WaitCursor);
        QCOMPARE(shown.last(), Qt::CrossCursor);
        QCOMPARE(drawing.cursor().shape(), Qt::CrossCursor);
    }

    void theDrawingIsReachedByAKeyAndAKeyDisarms() {
        Desk desk;
        CFittingWindow& window = desk.New();
        TypeCone(desk);
        Click(desk.window, "btnView_9");
        desk.window.Frame().RunMenu("mnuPan");
        desk.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&desk.window));
        QTest::keyClick(&Box(desk, 3), Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(desk.window.focusWidget(), &Drawing(desk));
        QVERIFY(window.modes.panMode);
        QTest::keyClick(&Drawing(desk), Qt::Key_Escape);
        QVERIFY(!window.modes.panMode);
        QTest::keyClick(&Drawing(desk), Qt::Key_Tab);
        QCOMPARE(desk.window.focusWidget()->objectName(), QString("txtParameter_3"));
    }

    void theTabKeyGoesFromBoxToBoxAlone() {
        Desk desk;
        desk.New();
        desk.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&desk.window));
        Box(desk, 3).setFocus(Qt::TabFocusReason);
        QStringList visited;
        for (int i = 0; i < 4; ++i) {
            visited << desk.window.focusWidget()->objectName();
            QTest::keyClick(desk.window.focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(visited,
                 QStringList({"txtParameter_3", "txtParameter_4", "txtParameter_5", "txtParameter_3"}));
        QCOMPARE(Box(desk, 4).selectedText(), Box(desk, 4).text());
    }

    void everyControlHasItsNameAndOneOfItsOwn() {
        Desk desk;
        desk.New();
        QSet<QString> names;
        QSet<QString> spoken;
        int controls = 0;
        for (const QWidget* widget : desk.window.findChildren<QWidget*>()) {
            const bool works = qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                               qobject_cast<const QLineEdit*>(widget) != nullptr;
            const bool system = widget->objectName().startsWith("qt_") || widget->objectName().isEmpty();
            if (!works || !widget->isVisible() || system) {
                continue;
            }
            ++controls;
            QVERIFY2(!names.contains(widget->objectName()), qPrintable(widget->objectName()));
            QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
            QVERIFY2(!spoken.contains(widget->accessibleName()), qPrintable(widget->accessibleName()));
            names.insert(widget->objectName());
            spoken.insert(widget->accessibleName());
        }
        QCOMPARE(controls, 22 + 3 + 10 + 2 + 1 + 3);  // tools, boxes, views, types, text size, commands
    }

    void typesAreSteppedUntilTheFirstDrawing() {
        Desk desk;
        desk.New();
        auto* label = desk.ActiveView().findChild<QLabel*>("lblDtype");
        QCOMPARE(label->text(), QString("Type 2"));
        Click(desk.window, "btnPoint_1");
        QCOMPARE(label->text(), QString("Type 1"));
        QVERIFY(Box(desk, 0).isVisible() && !Box(desk, 3).isVisible());
        QVERIFY(!desk.ActiveView().findChild<QAbstractButton*>("btnPoint_1")->isEnabled());
        Click(desk.window, "btnPoint_0");
        TypeCone(desk);
        Click(desk.window, "btnView_4");
        QVERIFY(!desk.ActiveView().findChild<QAbstractButton*>("btnPoint_0")->isEnabled());
        QVERIFY(!desk.ActiveView().findChild<QAbstractButton*>("btnPoint_1")->isEnabled());
    }

    void everyViewButtonAddsItsView() {
        Desk desk;
        CFittingWindow& window = desk.New();
        TypeCone(desk);
        CViewList expected;
        for (int i = 0; i <= PatternButton; ++i) {
            Click(desk.window, ("btnView_" + std::to_string(i)).c_str());
            AddPresetView(i, expected);
            QCOMPARE(window.views->Last().FromXY, expected.Last().FromXY);
            QCOMPARE(window.views->Last().AroundZ, expected.Last().AroundZ);
            QCOMPARE(window.views->Last().Patternview, expected.Last().Patternview);
        }
    }

    void shortcutsReachWhatTheTabKeyDoesNot() {
        Desk desk;
        CFittingWindow& window = desk.New();
        desk.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&desk.window));
        TypeCone(desk);
        QTest::keyClick(&Box(desk, 3), Qt::Key_5, Qt::ControlModifier);
        QCOMPARE(window.views->Count(), 1U);
        QTest::keyClick(&Box(desk, 3), Qt::Key_0, Qt::ControlModifier);
        QVERIFY(InPatternView(*window.views));
        QTest::keyClick(&Box(desk, 3), Qt::Key_T, Qt::ControlModifier);
        QCOMPARE(desk.window.focusWidget()->objectName(), QString("txtTextSize"));
    }

    void theTextSizeIsReadAtEveryUpdate() {
        Desk desk;
        CFittingWindow& window = desk.New();
        TypeCone(desk);
        auto* size = desk.ActiveView().findChild<QLineEdit*>("txtTextSize");
        QVERIFY(IsRed(*size));  // set by the program as the window opens
        Type(*size, "7");
        Click(desk.window, "btnView_9");
        QCOMPARE(window.display.TextSize, 7.0F);
        QVERIFY(!IsRed(*size));
    }

    void settingsAreAskedForAndDrawn() {
        Desk desk;
        CFittingWindow& window = desk.New();
        TypeCone(desk);
        Click(desk.window, "btnView_9");
        desk.shell.ui.onPatternSettings = [](PatternSettingsDialog& dialog) {
            dialog.Change(dialog.txtThickness, "2");
            dialog.ClickOK();
        };
        Click(desk.window, "btnSettings");
        QCOMPARE(window.settings.Thickness, 2.0);
        QCOMPARE(desk.window.findChild<QLabel*>("sbStatusBar_1")->text(),
                 QString(" Segments = 24 | Thickness = 2 | Join Angle = 0"));
    }

    void aWindowNarrowerThanItsPanelScrolls() {
        Desk desk;
        desk.New();
        desk.ActiveView().showNormal();
        desk.ActiveView().resize(200, 400);
        QApplication::processEvents();
        const auto* panel = desk.ActiveView().findChild<QScrollArea*>();
        QVERIFY(panel->width() <= desk.ActiveView().width());
        QVERIFY(panel->horizontalScrollBar()->maximum() > 0);
    }

    void theDrawingHasWhatThePanelLeavesAtOnce() {
        Desk desk;
        desk.New();
        FittingView& view = desk.ActiveView().View();
        const auto* panel = view.findChild<QScrollArea*>();
        const int before = panel->width();
        panel->widget()->layout()->setContentsMargins(20, 0, 60, 0);
        view.resize(1000, 600);
        QVERIFY(panel->width() > before);
        const int margin = view.layout()->contentsMargins().right();
        QCOMPARE(view.findChild<DrawingArea*>()->width(), view.width() - panel->width() - margin);
    }

    void closingAsksAndDoesAsItIsTold_data() {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("closes");
        QTest::addColumn<bool>("saves");
        QTest::newRow("Yes") << static_cast<int>(Answer::Yes) << true << true;
        QTest::newRow("No") << static_cast<int>(Answer::No) << true << false;
        QTest::newRow("Cancel") << static_cast<int>(Answer::Cancel) << false << false;
    }
    void closingAsksAndDoesAsItIsTold() {
        QFETCH(int, answer);
        QFETCH(bool, closes);
        QFETCH(bool, saves);
        Desk desk;
        desk.New();
        TypeCone(desk);
        Click(desk.window, "btnView_9");
        desk.shell.ui.answers = {static_cast<Answer>(answer)};
        desk.shell.ui.files = {"/jobs/cone.Kvt"};
        Click(desk.window, "btnClose");
        QCOMPARE(desk.window.Frame().Children().empty(), closes);
        QCOMPARE(desk.window.Area().subWindowList().isEmpty(), closes);
        QCOMPARE(desk.shell.files.Exists("/jobs/cone.Kvt"), saves);
        if (!saves) {
            return;
        }
        desk.window.Frame().OpenFile("/jobs/cone.Kvt");
        desk.window.Project();
        QCOMPARE(Box(desk, 3).text(), QString("300"));
        QCOMPARE(Box(desk, 5).text(), QString("250"));
        QCOMPARE(desk.ActiveView().windowTitle(), QString("/jobs/cone.Kvt"));
        QVERIFY(Ink(Drawing(desk)) > 100);
    }

    void aSaveThatFailsLeavesTheWindowOpenAndItsTextsWhole() {
        Desk desk;
        desk.New();
        TypeCone(desk);
        Click(desk.window, "btnView_9");
        desk.shell.files.unwritable = {"/jobs/cone.Kvt"};
        desk.shell.ui.answers = {Answer::Yes};
        desk.shell.ui.files = {"/jobs/cone.Kvt"};
        Click(desk.window, "btnClose");
        QCOMPARE(desk.window.Area().subWindowList().size(), 1);
        QCOMPARE(Box(desk, 4).text(), QString("120"));
        QVERIFY(desk.ActiveView().windowTitle().startsWith("Development "));
    }
};

static const Registered<FittingViewTest> registeredFittingViewTest("FittingViewTest", Scale::Both);

}  // namespace korvet::desktop

#include "fitting_view_test.moc"
