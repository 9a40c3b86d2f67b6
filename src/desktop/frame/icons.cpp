#include "desktop/frame/icons.h"

#include <QByteArray>
#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>
#include <utility>

namespace korvet::desktop {

namespace {

/// The colours that the drawings of the tools are written in, to be replaced by those of the palette.
const char DrawnStroke[] = "#000000";
const char DrawnAccent[] = "#0000ff";

constexpr int DisabledAlpha = 90;

struct IconColors {
    QColor stroke;
    QColor accent;
};

IconColors ColorsOf(const QPalette& palette, QIcon::Mode mode) {
    const bool selected = mode == QIcon::Selected;
    const QColor stroke =
        palette.color(QPalette::Active, selected ? QPalette::HighlightedText : QPalette::ButtonText);
    const QColor ground = palette.color(QPalette::Active, selected ? QPalette::Highlight : QPalette::Button);
    const bool lightOnDark = stroke.lightnessF() > ground.lightnessF();
    return {stroke, lightOnDark ? QColor(0x6c, 0xb6, 0xff) : QColor(0x0a, 0x5f, 0xc4)};
}

/// Both colours in one pass, since a palette's stroke may itself be the colour that stands for the accent.
QByteArray Recolored(const QByteArray& drawing, const IconColors& colors) {
    QByteArray result = drawing;
    const qsizetype length = sizeof(DrawnStroke) - 1;
    for (qsizetype at = result.indexOf('#'); at >= 0; at = result.indexOf('#', at + 1)) {
        const QByteArray drawn = result.mid(at, length);
        if (drawn == DrawnStroke) {
            result.replace(at, length, colors.stroke.name().toLatin1());
        } else if (drawn == DrawnAccent) {
            result.replace(at, length, colors.accent.name().toLatin1());
        }
    }
    return result;
}

enum class Coloring { Own, Palette };

/// Renders a drawing afresh whenever it's asked for, so that it needs no news of a changed palette.
class DrawingEngine : public QIconEngine {
  public:
    DrawingEngine(QByteArray drawing, Coloring coloring)
        : drawing_(std::move(drawing)), coloring_(coloring) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const qreal ratio = painter->device()->devicePixelRatio();
        QPixmap picture = pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state);
        picture.setDevicePixelRatio(ratio);
        painter->drawPixmap(rect, picture);
    }

    /// The size is in pixels of the device.
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        QPixmap picture(size);
        if (picture.isNull()) {
            return picture;
        }
        picture.fill(Qt::transparent);
        QSvgRenderer renderer(coloring_ == Coloring::Palette
                                  ? Recolored(drawing_, ColorsOf(QGuiApplication::palette(), mode))
                                  : drawing_);
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        QPainter painter(&picture);
        renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(size)));
        if (mode == QIcon::Disabled) {
            // The finished picture is faded, not its strokes: where they cross they would show through.
            painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
            painter.fillRect(picture.rect(), QColor(0, 0, 0, DisabledAlpha));
        }
        return picture;
    }

    QIconEngine* clone() const override { return new DrawingEngine(*this); }

    QString key() const override { return QStringLiteral("KorvetDrawing"); }

    bool isNull() override { return false; }

  private:
    QByteArray drawing_;
    Coloring coloring_;
};

QIcon IconOf(const QString& name, Coloring coloring) {
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QIcon(new DrawingEngine(file.readAll(), coloring));
}

}  // namespace

QIcon ToolIcon(const std::string& key) {
    return IconOf(QString::fromStdString(key), Coloring::Palette);
}

QIcon ApplicationIcon() {
    return IconOf(QStringLiteral("korvet"), Coloring::Own);
}

}  // namespace korvet::desktop
