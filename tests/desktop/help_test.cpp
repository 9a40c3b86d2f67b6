// The help window: contents, index and search, keys, modal dialogs, and files that are no help.
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QTreeView>
#include <QWindow>
#include <set>

#include "tests/desktop/desktop_test.h"
#include "tests/desktop/help_parts.h"

namespace korvet::desktop {
namespace {

/// After this time, in milliseconds, a dialog closes even when a check in it failed.
constexpr int LongestWait = 10000;

/// What the pages ask for, and a grey picture for it.
struct Sketches {
    std::set<std::pair<QString, int>> asked;
    QPalette palette;

    SketchPicture Function() {
        return [this](const QString& category, int page, QSize size, const QPalette& colors) {
            asked.insert({category, page});
            palette = colors;
            QImage image(size, QImage::Format_RGB32);
            image.fill(Qt::gray);
            return image;
        };
    }
};

QStringList Rows(const QListWidget& list) {
    QStringList rows;
    for (int row = 0; row < list.count(); ++row) {
        rows << list.item(row)->text();
    }
    return rows;
}

}  // namespace

class HelpTest : public QObject {
    Q_OBJECT

  private slots:
    void FileLiesBesideTheProgram() {
        const HelpWindow help(HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath()));
        QVERIFY(help.HasHelp());
        QVERIFY2(help.Window() == nullptr, "nothing is made before help is asked for");
    }

    void InstalledFileLiesInTheShareFolder() {
        const QTemporaryDir prefix;
        const QString bin = prefix.filePath(QStringLiteral("bin"));
        const QString share = prefix.filePath(QStringLiteral("share/korvet"));
        QVERIFY(QDir().mkpath(bin) && QDir().mkpath(share));
        const QString inShare = share + QStringLiteral("/korvet.qch");
        QCOMPARE(HelpWindow::FileOfProgram(bin), inShare);
        const QString built = HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath());
        QVERIFY(QFile::copy(built, inShare));
        QVERIFY(HelpWindow(HelpWindow::FileOfProgram(bin)).HasHelp());
        QVERIFY(QFile::copy(built, bin + QStringLiteral("/korvet.qch")));
        QCOMPARE(HelpWindow::FileOfProgram(bin), bin + QStringLiteral("/korvet.qch"));
    }

    void PathMayBeRelative() {
        HelpWindow help(
            QDir().relativeFilePath(HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath())));
        QVERIFY(help.ShowTopic(2020));
        QVERIFY(Part<QTextBrowser>(help, "txtHelp").toPlainText().contains(QStringLiteral("thickness")));
    }

    void UnknownContextShowsNothing() {
        HelpWindow help(HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath()));
        QVERIFY(!help.ShowTopic(0));
        QVERIFY(!help.ShowTopic(2021));
        QVERIFY(help.Window() == nullptr);
    }

    void ContentsLeadToThePages() {
        HelpWindow help(HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath()));
        help.ShowContents();
        QCOMPARE(ShownPage(help), QStringLiteral("index.html"));
        QCOMPARE(Part<QTabWidget>(help, "tabHelp").currentIndex(), 0);
        auto& tree = Part<QTreeView>(help, "treeContents");
        QTRY_VERIFY(tree.model()->rowCount() > 3);
        QTRY_VERIFY2(tree.isExpanded(tree.model()->index(0, 0)), "all entries are open");
        const QModelIndex first = tree.model()->index(0, 0, tree.model()->index(0, 0));
        QCOMPARE(first.data().toString(), QStringLiteral("First steps"));
        tree.scrollTo(first);
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(first).center());
        QCOMPARE(ShownPage(help), QStringLiteral("first-steps.html"));
    }

    void ContentsFollowThePage() {
        HelpWindow help(HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath()));
        QVERIFY(help.ShowTopic(2936));
        auto& tree = Part<QTreeView>(help, "treeContents");
        QTRY_COMPARE(tree.currentIndex().data().toString(), QStringLiteral("Rotate Pattern"));
        QVERIFY(help.ShowTopic(2100));
        QCOMPARE(tree.currentIndex().data().toString(), QStringLiteral("Right Cone"));
        QCOMPARE(help.Window()->windowTitle(), QStringLiteral("Right Cone - Help"));
    }

    void IndexFindsWords() {
        HelpWindow help(HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath()));
        help.ShowContents();
        auto& index = Part<QListWidget>(help, "lstIndex");
        QStringList sorted = Rows(index);
        QVERIFY(sorted.size() > 50);
        sorted.sort(Qt::CaseInsensitive);
        QCOMPARE(Rows(index), sorted);
        Part<QTabWidget>(help, "tabHelp").setCurrentIndex(1);
        auto& word = Part<QLineEdit>(help, "txtIndex");
        QTest::keyClicks(&word, "bUtT");
        QCOMPARE(Rows(index), QStringList{QStringLiteral("Butt join")});
        QTest::keyClick(&word, Qt::Key_Return);
        QCOMPARE(ShownPage(help), QStringLiteral("settings.html"));
        QTest::keyClicks(&word, "zzz");
        QCOMPARE(index.count(), 0);
    }

    void SearchFindsIndexWordsAndText() {
        HelpWindow help(HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath()));
        help.ShowSearch();
        QCOMPARE(Part<QTabWidget>(help, "tabHelp").currentIndex(), 2);
        auto& words = Part<QLineEdit>(help, "txtSearch");
        auto& found = Part<QListWidget>(help, "lstSearch");
        QTRY_VERIFY(words.hasFocus());
        QTest::keyClicks(&words, "amount");
        QCOMPARE(Rows(found), QStringList{QStringLiteral("Rotate Pattern")});
        QTest::keyClick(&words, Qt::Key_Return);
        QCOMPARE(ShownPage(help), QStringLiteral("rotate.html"));
        QCOMPARE(Part<QTextBrowser>(help, "txtHelp").textCursor().selectedText(), QStringLiteral("amount"));
        words.clear();
        QTest::keyClicks(&words, "ridge");
        QCOMPARE(found.item(0)->text(), QString::fromUtf8("Ridge – Prism"));
        words.clear();
        QTest::keyClicks(&words, "pipe to cone");  // the page of that name, before pages that speak of it
        QCOMPARE(found.item(0)->text(), QStringLiteral("Pipe to Cone"));
        QVERIFY(Rows(found).size() > 5);
        words.clear();
        QTest::keyClicks(&words, "cone");
        QStringList titles = Rows(found);
        const auto first =
            titles.indexOf(QRegularExpression("^(?!.*cone).*$", QRegularExpression::CaseInsensitiveOption));
        QVERIFY(first > 5);  // all titles with the word stand together before the first without it
        for (qsizetype i = first; i < titles.size(); ++i) {
            QVERIFY2(titles[i].contains(QString::fromUtf8(" – ")) ||
                         !titles[i].contains("cone", Qt::CaseInsensitive),
                     qPrintable(titles[i]));
        }
        words.clear();
        QTest::keyClicks(&words, "ridge nonsense");
        QCOMPARE(found.count(), 0);
        words.clear();
        QTest::keyClicks(&words, "  ");
        QCOMPARE(found.count(), 0);
    }

    void TheTabOfTheSearchHasTheFocusInItsLine() {
        HelpWindow help(HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath()));
        help.ShowContents();
        QVERIFY(QTest::qWaitForWindowActive(help.Window()));
        auto& tabs = Part<QTabWidget>(help, "tabHelp");
        QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(2).center());
        QVERIFY(Part<QLineEdit>(help, "txtSearch").hasFocus());
        QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(1).center());
        QVERIFY(Part<QLineEdit>(help, "txtIndex").hasFocus());
    }

    void FindInPageGoesRound() {
        HelpWindow help(HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath()));
        QVERIFY(help.ShowTopic(2100));
        QVERIFY(QTest::qWaitForWindowActive(help.Window()));
        QTest::keyClick(help.Window(), Qt::Key_F, Qt::ControlModifier);
        auto& text = Part<QLineEdit>(help, "txtFind");
        QVERIFY(text.isVisible());
        QTest::keyClicks(&text, "flat disc");
        QTest::keyClick(&text, Qt::Key_Return);
        auto& page = Part<QTextBrowser>(help, "txtHelp");
        QCOMPARE(page.textCursor().selectedText(), QStringLiteral("flat disc"));
        const int place = page.textCursor().position();
        QTest::keyClick(&text, Qt::Key_Return);
        QCOMPARE(page.textCursor().position(), place);
        QTest::keyClicks(&text, "zzz");
        QTest::keyClick(&text, Qt::Key_Return);
        QCOMPARE(page.textCursor().position(), place);
        QTest::keyClick(help.Window(), Qt::Key_Escape);
        QVERIFY(!text.isVisible());
        QTest::keyClick(help.Window(), Qt::Key_Escape);
        QVERIFY(!help.Window()->isVisible());
    }

    void KeysGoBackAndForward() {
        HelpWindow help(HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath()));
        QVERIFY(help.ShowTopic(2100));
        QVERIFY(help.ShowTopic(2210));
        QVERIFY(QTest::qWaitForWindowActive(help.Window()));
        QTest::keyClick(help.Window(), Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(ShownPage(help), QStringLiteral("right-cone.html"));
        QTest::keyClick(help.Window(), Qt::Key_Right, Qt::AltModifier);
        QCOMPARE(ShownPage(help), QStringLiteral("truncated-right-cone.html"));
        QTest::keyClick(help.Window(), Qt::Key_Home, Qt::AltModifier);
        QCOMPARE(ShownPage(help), QStringLiteral("index.html"));
    }

    void SketchesAreDrawnByTheProgram() {
        Sketches sketches;
        HelpWindow help(HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath()),
                        sketches.Function());
        QVERIFY(help.ShowTopic(2100));
        QTRY_COMPARE(sketches.asked.size(), std::size_t{3});
        QVERIFY(sketches.asked.count({QStringLiteral("Right Cone"), 1}) == 1);
        QVERIFY(sketches.asked.count({QStringLiteral("Right Cone"), 3}) == 1);
    }

    void SketchesFollowThePalette() {
        Sketches sketches;
        HelpWindow help(HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath()),
                        sketches.Function());
        QVERIFY(help.ShowTopic(2100));
        sketches.asked.clear();
        QPalette dark = help.Window()->palette();
        dark.setColor(QPalette::Base, QColor(30, 30, 30));
        dark.setColor(QPalette::Text, QColor(230, 230, 230));
        Part<QTextBrowser>(help, "txtHelp").setPalette(dark);
        QTRY_COMPARE(sketches.asked.size(), std::size_t{3});
        QCOMPARE(sketches.palette.color(QPalette::Base), QColor(30, 30, 30));
        QCOMPARE(ShownPage(help), QStringLiteral("right-cone.html"));
    }

    void LinksCanBeReadOnADarkPage() {
        HelpWindow help(HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath()));
        QVERIFY(help.ShowTopic(2100));
        auto& page = Part<QTextBrowser>(help, "txtHelp");
        QPalette dark = page.palette();
        dark.setColor(QPalette::Base, QColor(30, 30, 30));
        dark.setColor(QPalette::Text, QColor(230, 230, 230));
        dark.setColor(QPalette::Link, QColor(0, 0, 255));
        page.setPalette(dark);
        QTextCursor link = page.document()->find(QStringLiteral("setting"));
        QVERIFY(link.charFormat().isAnchor());
        QVERIFY(qGray(link.charFormat().foreground().color().rgb()) > 130);
        const QTextCursor text = page.document()->find(QStringLiteral("hopper"));
        QCOMPARE(text.charFormat().foreground().style(), Qt::NoBrush);  // that of the palette
    }

    void HelpCanBeUsedInsideAModalDialog() {
        HelpWindow help(HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath()));
        help.ShowContents();
        QDialog dialog;
        QTimer::singleShot(LongestWait, &dialog, &QDialog::reject);
        QTimer::singleShot(0, &dialog, [&] {
            QWindow* const window = help.Window()->windowHandle();
            auto& word = Part<QLineEdit>(help, "txtIndex");
            Part<QTabWidget>(help, "tabHelp").setCurrentIndex(1);
            const auto typeX = [&] {
                QTest::mouseClick(window, Qt::LeftButton, {},
                                  word.mapTo(help.Window(), word.rect().center()));
                QTest::keyClick(window, Qt::Key_X);
            };
            typeX();
            QCOMPARE(word.text(), QString());  // the dialog blocks it
            QVERIFY(help.ShowTopic(2020));
            QCOMPARE(window->transientParent(), dialog.windowHandle());
            QVERIFY(QTest::qWaitForWindowExposed(help.Window()));
            typeX();
            QCOMPARE(word.text(), QStringLiteral("x"));
            dialog.accept();
        });
        dialog.exec();
        QTRY_VERIFY(help.Window()->windowHandle()->transientParent() == nullptr);
        QVERIFY2(help.Window()->isVisible(), "the help stays when the dialog goes");
        QCOMPARE(ShownPage(help), QStringLiteral("settings.html"));
    }

    void HelpOutlivesTheDialogsItBelongedTo() {
        HelpWindow help(HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath()));
        auto outer = std::make_unique<QDialog>();
        QTimer::singleShot(LongestWait, outer.get(), &QDialog::reject);
        QTimer::singleShot(0, outer.get(), [&] {
            auto inner = std::make_unique<QDialog>(outer.get());
            QTimer::singleShot(LongestWait, inner.get(), &QDialog::reject);
            QTimer::singleShot(0, inner.get(), [&] {
                QVERIFY(help.ShowTopic(2020));
                inner->reject();
            });
            inner->exec();
            inner.reset();
            QTRY_COMPARE(help.Window()->windowHandle()->transientParent(), outer->windowHandle());
            outer->reject();
        });
        outer->exec();
        outer.reset();
        QTRY_VERIFY(help.Window()->windowHandle()->transientParent() == nullptr);
        QVERIFY(help.Window()->isVisible());
        QVERIFY(help.ShowTopic(2100));
    }

    void MissingFile() {
        const QTemporaryDir folder;
        HelpWindow help(folder.filePath(QStringLiteral("korvet.qch")));
        QVERIFY(!help.HasHelp());
        QVERIFY(!help.ShowTopic(2020));
        help.ShowContents();
        QVERIFY(Part<QTextBrowser>(help, "txtHelp").toPlainText().contains(folder.path()));
        help.ShowSearch();
        QTest::keyClicks(&Part<QLineEdit>(help, "txtSearch"), "cone");
        QCOMPARE(Part<QListWidget>(help, "lstSearch").count(), 0);
    }

    void BrokenFile_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("looksLikeHelp");
        QFile good(HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath()));
        QVERIFY(good.open(QIODevice::ReadOnly));
        const QByteArray whole = good.readAll();
        QByteArray zeroed = whole;
        zeroed.replace(100, zeroed.size() - 100, QByteArray(zeroed.size() - 100, '\0'));
        QTest::newRow("empty") << QByteArray() << false;
        QTest::newRow("text") << QByteArray("no help file at all") << false;
        QTest::newRow("cut in its header") << whole.left(20) << true;
        QTest::newRow("cut in its first page") << whole.left(1000) << true;
        QTest::newRow("zeros") << zeroed << true;
    }

    void BrokenFile() {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, looksLikeHelp);
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("korvet.qch")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
        file.close();
        HelpWindow help(file.fileName());
        QCOMPARE(help.HasHelp(), looksLikeHelp);
        QVERIFY(!help.ShowTopic(2020));
        help.ShowContents();
        QVERIFY(!help.ShowTopic(2100));
        QVERIFY2(help.Window()->isVisible(), "the window that says why stays");
        QVERIFY(Part<QTextBrowser>(help, "txtHelp").toPlainText().contains(folder.path()));
    }

    void WidgetsHaveNames() {
        HelpWindow help(HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath()));
        help.ShowContents();
        std::set<QString> names;
        for (const char* name : {"txtHelp", "tabHelp", "treeContents", "txtIndex", "lstIndex", "txtSearch",
                                 "lstSearch", "txtFind", "btnBack", "btnForward", "btnHome", "btnFind"}) {
            const QString spoken = Part<QWidget>(help, name).accessibleName();
            QVERIFY2(!spoken.isEmpty() && names.insert(spoken).second, name);
        }
    }
};

namespace {

const Registered<HelpTest> registeredHelpTest("HelpTest");

}  // namespace
}  // namespace korvet::desktop

#include "help_test.moc"
