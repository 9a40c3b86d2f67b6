#include "desktop/help/help_browser.h"

#include <QEvent>
#include <QScrollBar>
#include <cstdlib>
#include <utility>

#include "desktop/help/help_book.h"

namespace korvet::desktop {
namespace {

/// A colour between two.
QColor Blend(const QColor& a, const QColor& b, int percentOfB) {
    const auto mix = [&](int x, int y) { return (x * (100 - percentOfB) + y * percentOfB) / 100; };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

/// The palette's link colour, unless it can hardly be told from the paper: dark desktops often leave it at a
/// deep blue.
QColor ReadableLink(const QPalette& palette) {
    const QColor link = palette.color(QPalette::Link);
    const QColor paper = palette.color(QPalette::Base);
    constexpr int LeastContrast = 100;
    if (std::abs(qGray(link.rgb()) - qGray(paper.rgb())) >= LeastContrast) {
        return link;
    }
    return paper.lightness() < 128 ? QColor(120, 180, 255) : QColor(0, 60, 160);
}

}  // namespace

HelpBrowser::HelpBrowser(const HelpBook& book, SketchPicture sketches, QWidget* parent)
    : QTextBrowser(parent), book_(book), sketches_(std::move(sketches)) {
    setOpenExternalLinks(false);
    document()->setDocumentMargin(16);
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    if (name.scheme() == QLatin1String("sketch")) {
        return Sketch(name.path());
    }
    // All pages lie in one folder; source() is still that of the page before.
    const QByteArray bytes = book_.Data(book_.FirstPage().resolved(name));
    if (type == QTextDocument::HtmlResource) {
        return QString::fromUtf8(bytes);
    }
    if (type == QTextDocument::StyleSheetResource) {
        return QString::fromUtf8(bytes) + PaletteRules();
    }
    return bytes;
}

QVariant HelpBrowser::Sketch(const QString& pathOfSketch) const {
    const qsizetype slash = pathOfSketch.lastIndexOf(QLatin1Char('/'));
    const int page = pathOfSketch.mid(slash + 1).toInt();
    QImage image;
    if (sketches_ && slash > 0 && page > 0) {
        image = sketches_(pathOfSketch.left(slash), page, HelpSketchSize, palette());
    }
    if (image.isNull()) {
        // A picture that does not exist leaves no hole in the page.
        image = QImage(1, 1, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
    }
    return image;
}

QString HelpBrowser::PaletteRules() const {
    const QPalette colors = palette();
    const QColor paper = colors.color(QPalette::Base);
    const QColor text = colors.color(QPalette::Text);
    return QStringLiteral(
               "a { color: %1; } th { background-color: %2; } table { border-color: %3; } "
               ".message { background-color: %2; } .note { background-color: %2; }")
        .arg(ReadableLink(colors).name(), Blend(paper, text, 12).name(), Blend(paper, text, 35).name());
}

void HelpBrowser::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && source().isValid()) {
        // Colours of links and sketches are part of the laid out page.
        const int place = verticalScrollBar()->value();
        reload();
        verticalScrollBar()->setValue(place);
    }
}

}  // namespace korvet::desktop
