// Pictures of the pages of all fittings for the user guide, and the page of the guide that shows them:
//     page_pictures FOLDER    writes FOLDER/fittings.md and FOLDER/pictures/WINDOW-typeN.png
// Each page has its sample sizes in its boxes.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QLineEdit>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

#include "desktop/bindings.h"
#include "desktop/fitting/fitting_view.h"
#include "desktop/program_style.h"
#include "tests/support/test_context.h"

using namespace korvet;
using namespace korvet::desktop;

namespace {

constexpr QSize WindowSize = {1100, 760};
constexpr int Colours = 64;  // letters and lines look the same, and the file is a third as large

constexpr const char* Head = R"(# The pages of the fittings

Every type of every fitting, as the program shows it, with the sizes that a new window has in the examples. Made by
`scripts/make-pictures`. What each fitting is for and what each size means is in the help of the program (F1).
)";

/// The page with its sample sizes, which stand in the drawing too: black, not red.
QImage PictureOf(const CatalogueRow& row, std::size_t page) {
    TestShell shell;
    const auto window = shell.OpenSample(std::string(row.category), static_cast<int>(page) + 1);
    window->ClickView(0);
    FittingView view(*window, nullptr);
    view.resize(WindowSize);
    view.show();
    view.Project();
    QApplication::processEvents();
    for (SketchPage* sketch : view.findChildren<SketchPage*>()) {
        if (sketch->isVisible()) {
            for (QLineEdit* box : sketch->Boxes()) {
                box->deselect();
                box->clearFocus();
            }
            return sketch->grab().toImage().convertToFormat(QImage::Format_RGB32);
        }
    }
    return {};
}

/// With few colours: those that are used most, and what comes nearest to them.
QImage WithFewColours(const QImage& picture) {
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    QList<QRgb> colours = counts.keys();
    std::sort(colours.begin(), colours.end(), [&](QRgb one, QRgb other) {
        return std::pair(counts[one], one) > std::pair(counts[other], other);
    });
    colours.resize(std::min<qsizetype>(colours.size(), Colours));
    return picture.convertToFormat(QImage::Format_Indexed8, colours, Qt::ThresholdDither);
}

QString Section(const CatalogueRow& row, const QDir& folder) {
    QString section = QStringLiteral("\n## %1\n\n").arg(Text(std::string(row.category)));
    for (std::size_t page = 0; page < row.table->pages.size(); ++page) {
        const QString name =
            QStringLiteral("pictures/%1-type%2.png").arg(Text(std::string(row.window))).arg(page + 1);
        const QImage picture = PictureOf(row, page);
        if (picture.isNull() || !WithFewColours(picture).save(folder.filePath(name), "PNG", 0)) {
            std::fprintf(stderr, "%s can't be made\n", qPrintable(name));
            std::exit(1);
        }
        section += QStringLiteral("![%1, type %2](%3)\n")
                       .arg(Text(std::string(row.category)))
                       .arg(page + 1)
                       .arg(name);
    }
    return section;
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setStyle(new ProgramStyle);
    const QDir folder(QCoreApplication::arguments().value(1));
    QFile guide(folder.filePath(QStringLiteral("fittings.md")));
    if (argc != 2 || !folder.mkpath(QStringLiteral("pictures")) || !guide.open(QIODevice::WriteOnly)) {
        std::fprintf(stderr, "page_pictures FOLDER\n");
        return 2;
    }
    guide.write(Head);
    for (const int index : DisplayOrder) {
        guide.write(Section(Catalogue.at(static_cast<std::size_t>(index)), folder).toUtf8());
    }
    return 0;
}
