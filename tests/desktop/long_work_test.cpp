// A fitting that takes long, on the desktop: a box tells of it, and nothing but its Cancel can be clicked.
#include <QElapsedTimer>
#include <QProgressDialog>
#include <QPushButton>
#include <QWindow>
#include <chrono>

#include "desktop/qt_ui.h"
#include "tests/desktop/desktop_test.h"
#include "tests/desktop/fitting_views.h"

namespace korvet::desktop {

class LongWorkTest : public QObject {
    Q_OBJECT
  private slots:
    void OnlyCancelTakesInputAndLeavesThePictureAndTheRedBoxes() {
        ViewOfTable shown(frmSegBendParallel);
        const auto& boxes = shown.table.pages[0].boxes;
        for (const BoxEntry& box : boxes) {
            shown.window.ChangeBox(static_cast<std::size_t>(box.index), std::string(box.sample));
        }
        shown.window.SelectPattern(0);
        shown.Get("btnView_9").click();
        QVERIFY(shown.window.hasModel);
        const auto first = static_cast<std::size_t>(boxes.front().index);
        const QImage picture = PictureOf(shown);
        shown.window.ChangeBox(first, "210");
        shown.window.settings.segs = LongSegs;
        shown.view.Project();
        HandOnProgress(shown);
        QElapsedTimer time;
        time.start();
        shown.window.UpdateFitting();
        QVERIFY(time.elapsed() >= Patience.count());
        QVERIFY(wasCancelled_);
        QVERIFY(!shown.window.hasModel);
        QVERIFY(shown.shell.ui.messages.empty());
        QCOMPARE(shown.window.controls.txtParameter[first].text, std::string("210"));
        QCOMPARE(shown.window.controls.txtParameter[first].textColor, Red);
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        shown.view.Project();
        QVERIFY(PictureOf(shown) == picture);
    }

  private:
    static constexpr int LongSegs = 100000;
    static constexpr std::chrono::milliseconds Patience{100};  // much less than the work takes

    static QImage PictureOf(const ViewOfTable& shown) {
        return shown.Get<QWidget>("pboxGraphicWindow").grab().toImage();
    }

    /// Lets the desktop's own box tell of the work. Its user tries the window first, and then cancels.
    void HandOnProgress(ViewOfTable& shown) {
        shown.shell.context.patience = Patience;
        shown.shell.ui.goesOn = [this, &shown](const WorkProgress& progress) {
            const bool goesOn = ui_.GoesOn(progress);
            auto* const box = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
            if (box != nullptr && box->isVisible() && !wasCancelled_) {
                const int events = shown.events;
                wasCancelled_ = true;
                // By the desktop, which holds back what goes to a window under a modal one.
                QWidget& button = shown.Get("btnView_0");
                QWindow* const window = shown.view.window()->windowHandle();
                QTest::mouseClick(window, Qt::LeftButton, {},
                                  button.mapTo(shown.view.window(), button.rect().center()));
                QTest::keyClick(window, Qt::Key_1);
                if (shown.events != events) {
                    qFatal("the window takes input while it is at work");
                }
                QTest::mouseClick(box->findChild<QPushButton*>(), Qt::LeftButton);
            }
            return goesOn;
        };
    }

    QtUi ui_{nullptr};
    bool wasCancelled_ = false;
};

static const Registered<LongWorkTest> registeredLongWorkTest("LongWorkTest");

}  // namespace korvet::desktop

#include "long_work_test.moc"
