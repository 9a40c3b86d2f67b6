#include "desktop/frame/tile_picture.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QIODevice>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <algorithm>
#include <cmath>

#include "desktop/sketch/solid_painter.h"
#include "frame/catalogue.h"
#include "sketch/sample_model.h"
#include "sketch/solid.h"

namespace korvet::desktop {
namespace {

/// From the front right and a little above: both ends and the height of a fitting can be told.
constexpr SketchView TileView = {35, 25};

constexpr double Margin = 3;
constexpr double TileLine = 1.3;       ///< width of its outlines, in pixels
constexpr double TextShare = 0.9;      ///< size of the category, of the font
constexpr int MostLines = 2;           ///< of text, in a tile of TileSide
constexpr double PictureShare = 0.55;  ///< of the tile, at least

QFont TileFont(const QFont& font) {
    QFont small = font;
    if (font.pointSizeF() > 0) {
        small.setPointSizeF(font.pointSizeF() * TextShare);
    } else {
        small.setPixelSize(std::max(1, static_cast<int>(std::lround(font.pixelSize() * TextShare))));
    }
    return small;
}

QString CategoryOf(const CatalogueRow& row) {
    return QString::fromUtf8(row.category.data(), static_cast<qsizetype>(row.category.size()));
}

QRectF TextBounds(const QString& text, const QFont& font, double width) {
    return QFontMetricsF(font).boundingRect(QRectF(0, 0, width, 1e6), Qt::AlignHCenter | Qt::TextWordWrap,
                                            text);
}

/// Draws the category on the lowest lines of the tile and returns the area that is left above it.
QRectF DrawCategory(QPainter& painter, const CatalogueRow& row, const QRectF& tile, const QColor& color) {
    const QString text = CategoryOf(row);
    // Short names leave a line free, so that all pictures are of one height.
    const double lines = QFontMetricsF(painter.font()).lineSpacing() * MostLines;
    const double height = std::ceil(std::max(lines, TextBounds(text, painter.font(), tile.width()).height()));
    const QRectF place(tile.left(), tile.bottom() - height, tile.width(), height);
    painter.setPen(color);
    painter.drawText(place, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, text);
    return tile.adjusted(0, 0, 0, -height - Margin);
}

void DrawFitting(QPainter& painter, const CatalogueRow& row, const QRectF& area, const QPalette& palette,
                 double lineWidth = TileLine) {
    const SolidPicture picture =
        DrawSolid(SampleModel(*row.table, static_cast<std::size_t>(row.table->firstDtype)), TileView);
    const SolidBounds& bounds = picture.bounds;
    const double width = bounds.right - bounds.left;
    const double height = bounds.top - bounds.bottom;
    if (width <= 0 || height <= 0) {
        return;
    }
    const double scale = std::min(area.width() / width, area.height() / height);
    const QPointF origin =
        area.center() - QPointF(bounds.left + bounds.right, -bounds.bottom - bounds.top) * (scale / 2);
    PaintSolid(painter, picture, scale, origin, SolidColorsOf(palette), lineWidth);
}

QPixmap DrawTile(const CatalogueRow& row, const QSize& size, qreal devicePixelRatio, const QPalette& palette,
                 const QFont& font) {
    QPixmap picture((QSizeF(size) * devicePixelRatio).toSize());
    picture.setDevicePixelRatio(devicePixelRatio);
    picture.fill(Qt::transparent);
    if (picture.isNull()) {
        return picture;
    }
    QPainter painter(&picture);
    painter.setFont(TileFont(font));
    const QRectF tile = QRectF(QPointF(0, 0), size).adjusted(Margin, Margin, -Margin, -Margin);
    const QRectF area =
        DrawCategory(painter, row, tile, palette.color(QPalette::Active, QPalette::WindowText));
    DrawFitting(painter, row, area, palette);
    return picture;
}

/// Everything that a picture goes by.
QString PictureKey(const char* kind, const CatalogueRow& row, const QSize& size, qreal devicePixelRatio,
                   const QPalette& palette, const QFont& font) {
    QByteArray look;
    QDataStream stream(&look, QIODevice::WriteOnly);
    stream << CategoryOf(row) << size << devicePixelRatio << palette << font;
    return QLatin1String(kind) +
           QString::fromLatin1(QCryptographicHash::hash(look, QCryptographicHash::Sha1).toHex());
}

/// Drawn when it is asked for, at the size of the device, and kept with the tiles: several windows may show
/// the same fitting.
class FittingIconEngine final : public QIconEngine {
  public:
    explicit FittingIconEngine(const CatalogueRow& row) : row_(row) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const qreal ratio = painter->device()->devicePixelRatioF();
        QPixmap picture = pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state);
        picture.setDevicePixelRatio(ratio);
        painter->drawPixmap(rect.topLeft(), picture);
    }

    /// The size is in pixels of the device.
    QPixmap pixmap(const QSize& size, QIcon::Mode, QIcon::State) override {
        const QPalette palette = QGuiApplication::palette();
        const QString key = PictureKey("icon ", row_, size, 1, palette, {});
        QPixmap picture;
        if (!QPixmapCache::find(key, &picture)) {
            picture = QPixmap(size);
            picture.fill(Qt::transparent);
            QPainter painter(&picture);
            const QRectF inner = QRectF(QPointF(0, 0), size).adjusted(1, 1, -1, -1);
            DrawFitting(painter, row_, inner, palette, std::max(1.0, size.width() / 24.0));
            painter.end();
            QPixmapCache::insert(key, picture);
        }
        return picture;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new FittingIconEngine(row_); }

  private:
    const CatalogueRow& row_;
};

}  // namespace

/// The menu is opened many times and looks the same each time, so the pictures are kept.
QPixmap TilePicture(const CatalogueRow& row, const QSize& size, qreal devicePixelRatio,
                    const QPalette& palette, const QFont& font) {
    const QString key = PictureKey("tile ", row, size, devicePixelRatio, palette, font);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = DrawTile(row, size, devicePixelRatio, palette, font);
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

QIcon FittingIcon(const CatalogueRow& row) {
    return QIcon(new FittingIconEngine(row));
}

int TileSide(const QFont& font, int smallest) {
    const QFont small = TileFont(font);
    const double lines = QFontMetricsF(small).lineSpacing() * MostLines;
    const auto fits = [&](int side) {
        const double inner = side - 2 * Margin;
        return lines + Margin <= inner - PictureShare * side &&
               std::all_of(Catalogue.begin(), Catalogue.end(), [&](const CatalogueRow& row) {
                   const QRectF text = TextBounds(CategoryOf(row), small, inner);
                   return row.hidden || (text.width() <= inner && text.height() < lines * 1.2);
               });
    };
    int side = smallest;
    while (!fits(side)) {
        side += 4;
    }
    return side;
}

}  // namespace korvet::desktop
