// The boxes of a fitting window: what is shown of them, typed and dropped into them.
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <algorithm>

#include "tests/desktop/desktop_test.h"
#include "tests/desktop/fitting_view_hands.h"
#include "window/views.h"

namespace korvet::desktop {

class FittingViewBoxesTest : public QObject {
    Q_OBJECT
  private slots:
    void aRefusalShowsThePageOfItsBoxFirst() {
        Desk desk;
        desk.window.resize(1000, 560);  // so low that the page scrolls
        CFittingWindow& window = desk.New(8);
        TypeSamples(window);
        const int elsewhere = window.Table().pages[4].boxes.back().index;
        window.ChangeBox(static_cast<std::size_t>(elsewhere), "-");
        desk.window.Project();
        bool seen = false;
        desk.shell.ui.onShow = [&](const MessageBox&) {
            desk.window.Project();  // as the desktop's own boxes do before they come up
            seen = !Box(desk, elsewhere).visibleRegion().isEmpty();
        };
        Click(desk.window, "btnView_0");
        QCOMPARE(desk.shell.ui.Texts(), std::vector<std::string>{"Not a valid number"});
        QVERIFY(seen);
        QCOMPARE(desk.ActiveView().focusWidget(), static_cast<QWidget*>(&Box(desk, elsewhere)));
        Type(Box(desk, elsewhere), "0");
        Click(desk.window, "btnView_0");
        QVERIFY(window.hasModel);
        QVERIFY(!Box(desk, elsewhere).isVisible());
        QVERIFY(Box(desk, window.Table().pages[0].boxes.front().index).isVisible());
    }

    void aRefusedBoxIsScrolledToThoughItHasTheFocus() {
        Desk desk;
        desk.window.resize(1000, 440);
        CFittingWindow& window = desk.New(8);
        TypeSamples(window);
        const auto boxes =
            desk.ActiveView().View().findChild<QWidget*>("Picture1_0")->findChildren<QLineEdit*>();
        const auto highest =
            *std::min_element(boxes.begin(), boxes.end(),
                              [](const auto* one, const auto* other) { return one->y() < other->y(); });
        Type(*highest, "-");
        for (QWidget* parent = highest; parent != nullptr; parent = parent->parentWidget()) {
            if (const auto* scroll = qobject_cast<QScrollArea*>(parent)) {
                scroll->verticalScrollBar()->setValue(scroll->verticalScrollBar()->maximum());
            }
        }
        QVERIFY(highest->visibleRegion().isEmpty());
        Click(desk.window, "btnView_0");
        QCOMPARE(desk.shell.ui.messages.size(), 1U);
        QVERIFY(!highest->visibleRegion().isEmpty());
    }

    void tellsOfTextThatIsNoNumberWhileItIsTyped() {
        Desk desk;
        desk.New();
        Type(Box(desk, 3), "-");
        Type(Box(desk, 3), ",");
        Type(Box(desk, 3), ".");
        QVERIFY(desk.shell.ui.messages.empty());
        Type(Box(desk, 3), "x");
        QCOMPARE(desk.shell.ui.Texts(), std::vector<std::string>{"Not a valid number"});
        QCOMPARE(Box(desk, 3).selectedText(), QString("x"));
        QTest::keyClicks(&Box(desk, 3), "-12345678901234567890");  // over the refused text
        QCOMPARE(Box(desk, 3).text(), QString("-12345678901234567890"));
    }

    void aBoxThatGetsItsFocusBackGoesOnAsItWasLeft() {
        Desk desk;
        desk.New();
        desk.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&desk.window));
        Type(Box(desk, 3), "12");
        QWidget other;  // another program
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        desk.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&desk.window));
        QTest::qWait(10);
        QCOMPARE(desk.window.focusWidget(), static_cast<QWidget*>(&Box(desk, 3)));
        QTest::keyClicks(&Box(desk, 3), "5");
        QCOMPARE(Box(desk, 3).text(), QString("125"));
    }

    void whatIsTypedAtOnceIsNotSelectedAfterwards() {
        Desk desk;
        desk.New();
        desk.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&desk.window));
        Box(desk, 4).setFocus(Qt::TabFocusReason);
        QTest::keyClicks(&Box(desk, 4), "12");
        QTest::qWait(10);
        QTest::keyClicks(&Box(desk, 4), "5");
        QCOMPARE(Box(desk, 4).text(), QString("125"));
        QTest::mouseClick(&Box(desk, 5), Qt::LeftButton);
        QTest::qWait(10);
        QCOMPARE(Box(desk, 5).selectedText(), QString("0"));
    }

    void aFileDroppedOnABoxIsNoText() {
        Desk desk;
        desk.New();
        for (const QLineEdit* box : desk.ActiveView().findChildren<QLineEdit*>()) {
            QVERIFY2(!box->acceptDrops(), qPrintable(box->objectName()));
        }
    }
};

static const Registered<FittingViewBoxesTest> registeredFittingViewBoxesTest("FittingViewBoxesTest",
                                                                             Scale::Both);

}  // namespace korvet::desktop

#include "fitting_view_boxes_test.moc"
