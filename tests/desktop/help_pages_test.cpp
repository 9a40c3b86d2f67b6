// The pages of the help: each topic opens its own, and what they say of fittings and menus is there.
#include <QTest>
#include <QXmlStreamReader>
#include <map>
#include <optional>
#include <set>

#include "desktop/help/help_book.h"
#include "dialogs/options_dialog.h"
#include "dialogs/small_dialogs.h"
#include "frame/catalogue.h"
#include "frame/frame_menu.h"
#include "tests/desktop/desktop_test.h"
#include "tests/desktop/help_parts.h"

namespace korvet::desktop {
namespace {

QString WithoutMnemonic(std::string_view caption) {
    QString text = QString::fromStdString(ResString(caption));
    return text.remove(QLatin1Char('&')).simplified();
}

/// "File > New" of every entry of the main menu.
std::set<QString> MenuPaths() {
    std::map<std::string_view, QString> tops;
    std::set<QString> paths;
    for (const MenuEntry& entry : FrameMenu()) {
        if (entry.menu.empty()) {
            tops[entry.name] = WithoutMnemonic(entry.caption);
        } else if (!entry.name.empty()) {
            paths.insert(tops[entry.menu] + QStringLiteral(" > ") + WithoutMnemonic(entry.caption));
        }
    }
    return paths;
}

/// The page titled with a word that stands in the index.
std::optional<QUrl> PageInIndex(HelpBook& book, std::string_view title) {
    const QString wanted = QString::fromStdString(std::string(title));
    for (const HelpHit& hit : book.Index()) {
        if (hit.word == wanted && hit.title == wanted) {
            return hit.page;
        }
    }
    return {};
}

/// The texts of all elements of a class on a page, in their order.
QStringList TextsOfClass(const QByteArray& page, const QString& wanted) {
    QStringList texts;
    QXmlStreamReader reader(page);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement &&
            reader.attributes().value(QStringLiteral("class")) == wanted) {
            texts << reader.readElementText(QXmlStreamReader::IncludeChildElements).simplified();
        }
    }
    return texts;
}

}  // namespace

class HelpPagesTest : public QObject {
    Q_OBJECT

  private slots:
    void EachContextOpensItsPage_data() {
        QTest::addColumn<int>("context");
        QTest::addColumn<QString>("page");
        QTest::newRow("options") << OptionsDialog::HelpContextID << "options.html";
        QTest::newRow("settings") << 2020 << "settings.html";
        QTest::newRow("dimension options")
            << DimensionOptionsDialog::HelpContextID << "dimension-options.html";
        QTest::newRow("export") << DxfOptionsDialog::HelpContextID << "export-dxf.html";
        QTest::newRow("label") << LabelDialog::HelpContextID << "label.html";
        QTest::newRow("catalogue") << 2050 << "catalogue.html";
        QTest::newRow("right cone") << 2100 << "right-cone.html";
        QTest::newRow("truncated right cone") << 2210 << "truncated-right-cone.html";
        QTest::newRow("rotate") << 2936 << "rotate.html";
    }

    void EachContextOpensItsPage() {
        QFETCH(int, context);
        QFETCH(QString, page);
        HelpWindow help(HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath()));
        QVERIFY(help.ShowTopic(context));
        QCOMPARE(ShownPage(help), page);
        QVERIFY(help.Window()->isVisible());
        QVERIFY(Part<QTextBrowser>(help, "txtHelp").toPlainText().size() > 200);
    }

    void EveryFittingHasItsPage() {
        HelpBook book(HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath()));
        for (const CatalogueRow& row : Catalogue) {
            const auto address = PageInIndex(book, row.category);
            QVERIFY2(address.has_value(), row.category.data());
            if (!row.hidden) {  // of a fitting without a tile the number is that of another one or none
                QCOMPARE(book.Topic(row.helpContextId), address);
            }
            const QByteArray page = book.Data(*address);
            QStringList sizes;
            for (std::size_t k = 0; k < row.table->pages.size(); ++k) {
                const QString sketch =
                    QStringLiteral("src=\"sketch:%1/%2\"")
                        .arg(QString::fromUtf8(row.category.data(), static_cast<int>(row.category.size())))
                        .arg(k + 1);
                QVERIFY2(page.contains(sketch.toUtf8()), qPrintable(sketch));
                for (const BoxEntry& box : row.table->pages[k].boxes) {
                    sizes << QString::fromStdString(std::string(box.label));
                }
            }
            QCOMPARE(TextsOfClass(page, QStringLiteral("size")), sizes);
        }
    }

    void PagesNameOnlyMenuEntriesThatExist() {
        const std::set<QString> paths = MenuPaths();
        QVERIFY(paths.size() > 30);
        std::set<QString> named;
        const HelpBook book(HelpWindow::FileOfProgram(QCoreApplication::applicationDirPath()));
        for (const QUrl& page : book.PageAddresses()) {
            for (const QString& path : TextsOfClass(book.Data(page), QStringLiteral("menu"))) {
                QVERIFY2(paths.count(path) == 1, qPrintable(page.fileName() + ": " + path));
                named.insert(path);
            }
        }
        for (const QString& path : paths) {
            QVERIFY2(named.count(path) == 1, qPrintable("no page tells of " + path));
        }
    }
};

namespace {

const Registered<HelpPagesTest> registeredHelpPagesTest("HelpPagesTest");

}  // namespace
}  // namespace korvet::desktop

#include "help_pages_test.moc"
