// Files that go from one program to another. The other program is a thread here: the one that hands over does
// not turn to its events meanwhile.
#include "platform/file_requests.h"

#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QTest>
#include <chrono>
#include <future>

#include "tests/desktop/desktop_test.h"

namespace korvet::desktop {

namespace {

const QStringList SomeFiles = {"/shop/one.Kvt", QString::fromUtf8("/shop/t\u00fcr \u20ac.Kvt")};

/// Hands files over as another program does, while the events of this one are worked on.
bool HandOverFromOutside(const QString& folder, const QStringList& files, int patience = 5000) {
    auto sent = std::async(std::launch::async, [&] { return HandOver(folder, files, patience); });
    while (sent.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready) {
        QCoreApplication::processEvents();
    }
    return sent.get();
}

}  // namespace

class FileRequestsTest : public QObject {
    Q_OBJECT

  private slots:
    void FilesArriveAsTheyWereNamed() {
        const QTemporaryDir folder;
        FileRequests requests(folder.path());
        QList<QStringList> opened;
        requests.Take([&](const QStringList& files) { opened.append(files); });
        QVERIFY(HandOverFromOutside(folder.path(), SomeFiles));
        QTRY_COMPARE(opened, QList<QStringList>{SomeFiles});
        QVERIFY(HandOverFromOutside(folder.path(), {"/shop/two.Kvt"}));
        QTRY_COMPARE(opened.size(), 2);
        QCOMPARE(opened.last(), QStringList({"/shop/two.Kvt"}));
    }

    void FilesWaitForAProgramThatIsStarting() {
        const QTemporaryDir folder;
        FileRequests requests(folder.path());
        QVERIFY(HandOverFromOutside(folder.path(), SomeFiles));
        QTest::qWait(50);
        QList<QStringList> opened;
        requests.Take([&](const QStringList& files) { opened.append(files); });
        QTRY_COMPARE(opened, QList<QStringList>{SomeFiles});
    }

    void NobodyTakesThemWhereNoProgramRuns() {
        const QTemporaryDir folder;
        QVERIFY(!HandOver(folder.path(), SomeFiles));
        QVERIFY(!HandOver(folder.filePath("missing"), SomeFiles));
        { const FileRequests ended(folder.path()); }
        QVERIFY(!HandOver(folder.path(), SomeFiles));
    }

    /// A program that does not answer opens nothing later on either.
    void ABusyProgramGetsNone() {
        const QTemporaryDir folder;
        FileRequests requests(folder.path());
        int opened = 0;
        requests.Take([&](const QStringList&) { ++opened; });
        QVERIFY(!HandOver(folder.path(), SomeFiles, 100));  // its events are not worked on meanwhile
        QTest::qWait(100);
        QCOMPARE(opened, 0);
    }

    void TheSocketOfAKilledProgramIsPassedOver() {
        const QTemporaryDir folder;
        const FileRequests requests(folder.path());
        const QString dead = folder.filePath("1.socket");
        {
            // What a killed program leaves: a socket that nobody listens to.
            QLocalServer server;
            QVERIFY(server.listen(folder.filePath("dying.socket")));
            QVERIFY(QFile::rename(folder.filePath("dying.socket"), dead));
        }
        QVERIFY(QDir(folder.path()).exists("1.socket"));
        QVERIFY(HandOverFromOutside(folder.path(), SomeFiles));
        QVERIFY2(!QDir(folder.path()).exists("1.socket"), "it is cleared away");
    }

    void OneListensAndTheNextHandsOver() {
        const QTemporaryDir folder;
        const auto first = HandOverOrListen(folder.path(), SomeFiles);
        QVERIFY(first != nullptr);
        QStringList opened;
        first->Take([&](const QStringList& files) { opened = files; });
        auto second = std::async(std::launch::async,
                                 [&] { return HandOverOrListen(folder.path(), SomeFiles) == nullptr; });
        QTRY_COMPARE(opened, SomeFiles);
        QVERIFY(second.get());
    }

    void HalfAMessageOpensNothing() {
        const QTemporaryDir folder;
        FileRequests requests(folder.path());
        int opened = 0;
        requests.Take([&](const QStringList&) { ++opened; });
        const QString name = QDir(folder.path()).entryList({"*.socket"}, QDir::System).value(0);
        QLocalSocket sender;
        sender.connectToServer(folder.filePath(name));
        QVERIFY(sender.waitForConnected());
        sender.write(QByteArray::fromHex("0000000200000010"));
        sender.disconnectFromServer();
        QTest::qWait(100);
        QCOMPARE(opened, 0);
    }
};

static const Registered<FileRequestsTest> registeredFileRequestsTest("FileRequestsTest");

}  // namespace korvet::desktop

#include "file_requests_test.moc"
