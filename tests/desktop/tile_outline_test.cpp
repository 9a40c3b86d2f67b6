// The pixels along the border of each tile's picture: a line runs round all of it. The environment variable
// KORVET_PICTURES names a folder that gets all tiles on one sheet for each look.
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPixmapCache>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>

#include "desktop/frame/tile_picture.h"
#include "desktop/sketch/solid_painter.h"
#include "frame/catalogue.h"
#include "tests/desktop/desktop_test.h"
#include "tests/desktop/palettes.h"

namespace korvet::desktop {
namespace {

constexpr int Side = 132;

/// How far from the border the line may be, in pixels of the device.
constexpr int Reach = 2;

/// The fitting without the name below it, which has no border of its own to look for.
QImage PictureAlone(CatalogueRow row, qreal ratio, const QPalette& palette) {
    row.category = {};
    QPixmapCache::clear();  // which goes by the name
    return TilePicture(row, {Side, Side}, ratio, palette, {})
        .toImage()
        .convertToFormat(QImage::Format_ARGB32);
}

class OutlinePixels {
  public:
    OutlinePixels(const QImage& image, const QColor& line) : image_(image), line_(line) {}

    [[nodiscard]] bool OnBorder(int x, int y) const {
        return IsShape(x, y) &&
               (!IsShape(x - 1, y) || !IsShape(x + 1, y) || !IsShape(x, y - 1) || !IsShape(x, y + 1));
    }

    /// Whether some place near by is closer to the colour of lines than to the wall's, which is that of the
    /// place farthest from it.
    [[nodiscard]] bool HasLineNear(int x, int y) const {
        double line = std::numeric_limits<double>::infinity();
        double wall = 0;
        ForEachAbout(x, y, Reach, [&](const QColor& color) { line = std::min(line, FromLine(color)); });
        ForEachAbout(x, y, Reach + 2, [&](const QColor& color) { wall = std::max(wall, FromLine(color)); });
        return line <= wall / 2;
    }

  private:
    [[nodiscard]] bool IsShape(int x, int y) const {
        return image_.valid(x, y) && image_.pixelColor(x, y).alpha() >= 128;
    }

    template <typename Take>
    void ForEachAbout(int x, int y, int reach, Take take) const {
        for (int v = y - reach; v <= y + reach; ++v) {
            for (int u = x - reach; u <= x + reach; ++u) {
                if (IsShape(u, v)) {
                    take(image_.pixelColor(u, v));
                }
            }
        }
    }

    [[nodiscard]] double FromLine(const QColor& color) const {
        return std::hypot(color.redF() - line_.redF(), color.greenF() - line_.greenF(),
                          color.blueF() - line_.blueF());
    }

    const QImage& image_;
    QColor line_;
};

}  // namespace

class TileOutline : public QObject {
    Q_OBJECT
  private slots:
    void runsRoundEveryFitting_data() {
        QTest::addColumn<qreal>("ratio");
        QTest::addColumn<bool>("dark");
        for (const qreal ratio : {1.0, 2.0}) {
            for (const bool dark : {false, true}) {
                QTest::addRow("%d %% %s", static_cast<int>(100 * ratio), dark ? "dark" : "light")
                    << ratio << dark;
            }
        }
    }

    void runsRoundEveryFitting() {
        QFETCH(qreal, ratio);
        QFETCH(bool, dark);
        const QPalette palette = dark ? DarkPalette() : LightPalette();
        const QColor line = SolidColorsOf(palette).outline;
        for (const CatalogueRow& row : Catalogue) {
            const QImage image = PictureAlone(row, ratio, palette);
            const OutlinePixels pixels(image, line);
            int border = 0;
            int bare = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    if (pixels.OnBorder(x, y)) {
                        ++border;
                        bare += pixels.HasLineNear(x, y) ? 0 : 1;
                    }
                }
            }
            const QString found =
                QStringLiteral("%1: %2 of %3 bare").arg(row.category.data()).arg(bare).arg(border);
            QVERIFY2(border > Side && bare == 0, qPrintable(found));
        }
    }

    void picturesAreTaken_data() { runsRoundEveryFitting_data(); }

    void picturesAreTaken() {
        QFETCH(qreal, ratio);
        QFETCH(bool, dark);
        constexpr int Columns = 8;
        const QTemporaryDir otherwise;
        const QDir folder(qEnvironmentVariable("KORVET_PICTURES", otherwise.path()));
        const QPalette palette = dark ? DarkPalette() : LightPalette();
        const int rows = (static_cast<int>(CatalogueSize) + Columns - 1) / Columns;
        QImage sheet(QSize(Columns * Side, rows * Side) * ratio, QImage::Format_RGB32);
        sheet.setDevicePixelRatio(ratio);
        sheet.fill(palette.color(QPalette::Window));
        QPainter painter(&sheet);
        for (int i = 0; i < static_cast<int>(CatalogueSize); ++i) {
            const CatalogueRow& row = Catalogue[static_cast<std::size_t>(i)];
            painter.drawPixmap(i % Columns * Side, i / Columns * Side,
                               TilePicture(row, {Side, Side}, ratio, palette, {}));
        }
        painter.end();
        QVERIFY(sheet.save(folder.filePath(QStringLiteral("tiles-%1-%2.png")
                                               .arg(static_cast<int>(100 * ratio))
                                               .arg(dark ? "dark" : "light"))));
    }
};

static const Registered<TileOutline> registeredTileOutline("TileOutline");

}  // namespace korvet::desktop

#include "tile_outline_test.moc"
