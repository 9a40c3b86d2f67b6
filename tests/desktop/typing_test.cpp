// What a newcomer's hands do in a new fitting window: the line that says what to do, keys, pastes, Enter.
#include <QClipboard>
#include <QTest>

#include "tests/desktop/desktop_test.h"
#include "tests/desktop/fitting_view_hands.h"

namespace korvet::desktop {

class TypingTest : public QObject {
    Q_OBJECT

    /// How many pixels of the drawing are of the colour of its brightest text, and whether all ink is grey.
    static std::pair<int, bool> GreyInk(QWidget& area) {
        const QImage picture = area.grab().toImage();
        int ink = 0;
        bool grey = true;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor pixel = picture.pixelColor(x, y);
                ink += pixel != QColor(Qt::black) ? 1 : 0;
                grey = grey && std::abs(pixel.red() - pixel.blue()) < 90 && pixel.lightness() < 200;
            }
        }
        return {ink, grey};
    }

  private slots:
    void anEmptyDrawingSaysWhatToDo() {
        Desk desk;
        const CFittingWindow& window = desk.New();
        QCOMPARE(window.Hint(), std::string("Type the sizes, then press the pattern button."));
        const auto [ink, grey] = GreyInk(Drawing(desk));
        QVERIFY(ink > 100);
        QVERIFY(grey);
        TypeCone(desk);
        Type(Box(desk, 4), "400");
        Click(desk.window, "btnView_9");  // refused
        QVERIFY(GreyInk(Drawing(desk)).first > 100);
        Type(Box(desk, 4), "120");
        Click(desk.window, "btnView_9");
        QVERIFY(window.Hint().empty());
        QVERIFY(!GreyInk(Drawing(desk)).second);
    }

    void aNumberUnderWayIsNoFault() {
        Desk desk;
        desk.New();
        Type(Box(desk, 3), "3e-");
        QVERIFY(desk.shell.ui.messages.empty());
        QCOMPARE(Box(desk, 3).selectedText(), QString());
        Click(desk.window, "btnView_9");
        QCOMPARE(desk.shell.ui.Texts(), std::vector<std::string>{"Not a valid number"});
        Type(Box(desk, 3), "3e+2");
        Type(Box(desk, 4), "120");
        Type(Box(desk, 5), "250");
        Click(desk.window, "btnView_9");
        QCOMPARE(desk.shell.ui.messages.size(), 1U);
        QVERIFY(desk.window.Frame().ActiveChild()->hasModel);
    }

    void aPasteComesWithoutTheBlanksAroundIt() {
        Desk desk;
        const CFittingWindow& window = desk.New();
        QLineEdit& box = Box(desk, 3);
        for (const auto& [pasted, text] : {std::pair{"\t300\r\n", "300"}, {" 12.5  ", "12.5"}}) {
            QApplication::clipboard()->setText(pasted);
            box.setFocus();
            box.selectAll();
            QTest::keySequence(&box, QKeySequence::Paste);
            QCOMPARE(box.text(), QString(text));
            QCOMPARE(window.controls.txtParameter[3].text, std::string(text));
            QCOMPARE(box.cursorPosition(), static_cast<int>(box.text().size()));
        }
        QApplication::clipboard()->setText("34\n");
        box.setCursorPosition(1);
        QTest::keySequence(&box, QKeySequence::Paste);
        QCOMPARE(box.text(), QString("1342.5"));
        QCOMPARE(box.cursorPosition(), 3);
        QVERIFY(desk.shell.ui.messages.empty());
    }

    void enterInASizeBoxPressesThePatternButton() {
        Desk desk;
        const CFittingWindow& window = desk.New();
        TypeCone(desk);
        QTest::keyClick(&Box(desk, 5), Qt::Key_Return);
        QVERIFY(window.hasModel);
        QVERIFY(InPatternView(*window.views));
        Type(Box(desk, 4), "100");
        QTest::keyClick(&Box(desk, 4), Qt::Key_Enter, Qt::KeypadModifier);
        QVERIFY(!IsRed(Box(desk, 4)));
        Type(Box(desk, 4), "1e");
        QTest::keyClick(&Box(desk, 4), Qt::Key_Return);
        QCOMPARE(desk.shell.ui.Texts(), std::vector<std::string>{"Not a valid number"});
        QCOMPARE(desk.ActiveView().focusWidget(), static_cast<QWidget*>(&Box(desk, 4)));
    }
};

static const Registered<TypingTest> registeredTypingTest("TypingTest");

}  // namespace korvet::desktop

#include "typing_test.moc"
