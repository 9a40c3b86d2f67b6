// A plot on its way, as its user sees it: real boxes before a real serial port, whose far end is the test's.
#ifndef _WIN32
#include <fcntl.h>
#include <pty.h>
#include <unistd.h>
#endif

#include <QElapsedTimer>
#include <QProgressDialog>
#include <QPushButton>

#include "platform/serial_plotter.h"
#include "tests/desktop/desktop_test.h"
#include "tests/desktop/dialogs_fixture.h"
#include "tests/support/recording_desktop.h"
#include "tests/support/recording_plotter.h"
#include "window/plotting.h"

namespace korvet::desktop {

class PlotSendingTest : public QObject {
    Q_OBJECT
#ifndef _WIN32
  private slots:
    void init() {
        std::array<char, 100> name{};
        QCOMPARE(::openpty(&plotterEnd_, &lineEnd_, name.data(), nullptr, nullptr), 0);
        ::fcntl(plotterEnd_, F_SETFL, O_NONBLOCK);
        line_.SetPort({name.data(), Handshake::None});
        desk_.context.plotter = &line_;
        desk_.context.transfer = &place_;
        received_.clear();
    }

    void cleanup() {
        ::close(lineEnd_);
        ::close(plotterEnd_);
    }

    /// A window that sends must not be closed, nor send another plot meanwhile.
    void TheBoxIsThereBeforeTheUserCanDoAnythingElse() {
        bool covered = false;
        QTimer::singleShot(0, this, [&covered] { covered = QApplication::activeModalWidget() != nullptr; });
        onBox_ = [](QProgressDialog&) {};
        QCOMPARE(Send(2000), Passed);
        QVERIFY(covered);
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        Read();
        QCOMPARE(received_.size(), std::size_t{2000});
    }

    void CancelStopsAPlotThatThePlotterDoesNotTake() {
        QString told;
        onBox_ = [&](QProgressDialog& box) {
            told = box.windowTitle() + ": " + box.labelText();
            QCOMPARE(box.maximum(), 500000);
            QVERIFY(box.value() < box.maximum());
            QTest::mouseClick(box.findChild<QPushButton*>(), Qt::LeftButton);
        };
        QElapsedTimer time;
        time.start();
        QCOMPARE(Send(500000), Refused);
        QVERIFY(time.elapsed() < 20000);
        QCOMPARE(told, QString("Progress: Sending the plot"));
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }

    void ASlowPlotterMovesTheBarToItsEnd() {
        int lowest = 0;
        int highest = 0;
        onBox_ = [&](QProgressDialog& box) {
            lowest = lowest == 0 ? box.value() : lowest;
            highest = std::max(highest, box.value());
            Read();
        };
        QCOMPARE(Send(60000), Passed);
        while (Read()) {
        }
        QCOMPARE(received_.size(), std::size_t{60000});
        QVERIFY(highest > lowest && highest < 60000);
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }

  private:
    /// Sends so many bytes, with a look at the box ten times a second.
    Outcome Send(std::size_t size) {
        desk_.files.files["Transfer.plt"] = std::string(size, 'x');
        QTimer looks;
        connect(&looks, &QTimer::timeout, this, [this] {
            auto* const box = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
            if (box != nullptr && box->isVisible()) {
                onBox_(*box);
            }
        });
        looks.start(100);
        return SendPlot(desk_.context, "Transfer.plt");
    }

    /// What the plotter takes at once; false when nothing waits for it.
    bool Read() {
        std::array<char, 4096> part{};
        const ssize_t got = ::read(plotterEnd_, part.data(), part.size());
        received_.append(part.data(), got > 0 ? static_cast<std::size_t>(got) : 0);
        return got > 0;
    }

    DialogDesk desk_;
    MemorySettings settings_;
    SerialPlotter line_{settings_};
    TestTransferPlace place_;
    int plotterEnd_ = -1;
    int lineEnd_ = -1;
    std::string received_;
    std::function<void(QProgressDialog&)> onBox_;
#endif
};

static const Registered<PlotSendingTest> registeredPlotSendingTest("PlotSendingTest");

}  // namespace korvet::desktop

#include "plot_sending_test.moc"
