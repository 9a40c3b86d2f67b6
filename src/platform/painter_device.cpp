#include "platform/painter_device.h"

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "platform/line_clip.h"

namespace korvet {
namespace {

constexpr int DotsPerInch = 96;
constexpr int PointsPerInch = 72;
constexpr int LargestFont = 20000;  // pixels
constexpr double ClipMargin = 32;   // pixels, beyond the width of every pen

QPen PenOf(const Pen& pen, double pixelRatio) {
    QPen drawn(ColorOf(pen.ForeColor), std::max(pen.DrawWidth, 1) * pixelRatio);
    if (pen.Style == DrawStyle::Dotted) {
        drawn.setStyle(Qt::DotLine);
        drawn.setCapStyle(Qt::FlatCap);
    } else {
        drawn.setCapStyle(Qt::RoundCap);
        drawn.setJoinStyle(Qt::RoundJoin);
    }
    return drawn;
}

QFont FontOf(int pixels) {
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(std::clamp(pixels, 1, LargestFont));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

}  // namespace

QColor ColorOf(Color color) {
    return {color & 255, (color >> 8) & 255, (color >> 16) & 255};
}

void PrepareDrawing(QPainter& painter) {
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
}

double PainterDevice::LogicalDpiY() const {
    return DotsPerInch * PixelRatio();
}

PixelSize PainterDevice::TextExtent(const std::string& text, double points) const {
    const double pixels = std::min(std::fabs(points) * LogicalDpiY() / PointsPerInch, double{LargestFont});
    const QFontMetricsF metrics(FontOf(static_cast<int>(pixels)));
    return {metrics.horizontalAdvance(QString::fromStdString(text)), metrics.height()};
}

void PainterDevice::Polyline(const Pen& pen, std::span<const PixelPoint> points) {
    QPainter* painter = Painter();
    if (painter == nullptr) {
        return;
    }
    painter->setPen(PenOf(pen, PixelRatio()));
    for (const std::vector<ClippedPoint>& part : ClipLine(points, ScaleSize(), ClipMargin)) {
        QPolygonF line;
        for (const ClippedPoint& point : part) {
            line.append(QPointF(point.x + 0.5, point.y + 0.5));  // the middle of the pixel
        }
        painter->drawPolyline(line);
    }
}

void PainterDevice::TextOut(const std::string& text, PixelPoint corner, const TextFont& font, Color color) {
    QPainter* painter = Painter();
    if (painter == nullptr) {
        return;
    }
    const QFont drawn = FontOf(static_cast<int>(std::min(std::labs(font.lfHeight), long{LargestFont})));
    painter->save();
    painter->setFont(drawn);
    painter->setPen(ColorOf(color));
    painter->translate(corner.x, corner.y);
    painter->rotate(-font.lfEscapement / 10.0);
    painter->drawText(QPointF(0, QFontMetricsF(drawn).ascent()), QString::fromStdString(text));
    painter->restore();
}

}  // namespace korvet
