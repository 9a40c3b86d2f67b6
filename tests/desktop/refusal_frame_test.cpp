// The red frame round what a message is about.
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "desktop/qt_ui.h"
#include "tests/desktop/desktop_test.h"
#include "tests/desktop/fitting_view_hands.h"

namespace korvet::desktop {
namespace {

/// What is seen of the frame while a message is up.
struct Seen {
    bool framed = false;
    bool whole = false;
    QColor color;
    QRect about;
};

/// Shows a message about a control, looks, and answers it.
Seen ShowAbout(QWidget& over, const std::string& control) {
    QtUi ui(&over);
    Seen seen;
    QTimer::singleShot(0, [&] {
        for (QWidget* frame : over.findChildren<QWidget*>("refusalFrame")) {
            seen.framed = frame->isVisible();
            seen.whole = frame->visibleRegion().boundingRect() == frame->rect();
            seen.color = frame->grab().toImage().pixelColor(frame->width() / 2, 0);
            seen.about = frame->geometry();
        }
        QApplication::activeModalWidget()->findChild<QPushButton*>()->click();
    });
    (void)ui.Show({.text = "no", .style = ExclamationBox, .title = "User Error", .control = control});
    return seen;
}

}  // namespace

class RefusalFrameTest : public QObject {
    Q_OBJECT
  private slots:
    void standsRoundTheBoxWhileTheMessageDoes() {
        Desk desk;
        desk.New(0);
        desk.New(0);  // of two windows with boxes of one name it is that which is worked in
        QLineEdit& box = Box(desk, 4);
        const Seen seen = ShowAbout(desk.window, "txtParameter_4");
        QVERIFY(seen.framed && seen.whole);
        QVERIFY(seen.color.red() > 180 && seen.color.green() < 130);
        QVERIFY(seen.about.contains(box.geometry()));
        QVERIFY(seen.about.width() <= box.width() + 10);
        QVERIFY(desk.window.findChildren<QWidget*>("refusalFrame").isEmpty());
    }

    void isScrolledIntoSight() {
        Desk desk;
        desk.New(8);
        desk.window.resize(1000, 420);
        QApplication::processEvents();
        int outOfSight = 0;
        for (const BoxEntry& entry : desk.window.Frame().ActiveChild()->Table().pages[0].boxes) {
            QLineEdit& box = Box(desk, entry.index);
            outOfSight += box.visibleRegion().boundingRect() == box.rect() ? 0 : 1;
            const Seen seen = ShowAbout(desk.window, box.objectName().toStdString());
            QVERIFY(seen.framed);
            QVERIFY(box.visibleRegion().boundingRect() == box.rect());
        }
        QVERIFY(outOfSight > 0);
    }

    void aMessageAboutNothingFramesNothing() {
        Desk desk;
        desk.New(0);
        QVERIFY(!ShowAbout(desk.window, "").framed);
        QVERIFY(!ShowAbout(desk.window, "txtNowhere").framed);
        QVERIFY(!ShowAbout(desk.window, "txtParameter_0").framed);  // on a page that is not shown
    }
};

static const Registered<RefusalFrameTest> registeredRefusalFrameTest("RefusalFrameTest");

}  // namespace korvet::desktop

#include "refusal_frame_test.moc"
