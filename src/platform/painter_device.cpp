#include "platform/painter_device.h"

#include <QColor>
#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "platform/line_clip.h"

namespace korvet {
namespace {

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

/// A drawing has one size of texts and one to measure by.
constexpr std::size_t FontsKept = 4;
constexpr std::size_t WidthsKept = 5000;

/// A line of one pixel along a row or a column of pixels covers them whole: the same picture, but for dots
/// that stay sharp, is drawn many times faster without smoothing. The leaders of a dimension grid are such
/// lines.
bool IsCrisp(const QPolygonF& line, double penWidth) {
    return penWidth == 1 && line.size() == 2 && (line[0].x() == line[1].x() || line[0].y() == line[1].y());
}

QFont MakeFont(int pixels, FontFace face, bool bold) {
    QFont font(face == FontFace::Arial ? QStringLiteral("Arial") : QStringLiteral("Courier New"));
    font.setPixelSize(pixels);
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// A text as it is drawn: what has no picture, and would make a vector file unreadable, leaves a blank.
QString DrawnText(const std::string& text) {
    constexpr char16_t LastCharacter = 0xFFFD;
    QString drawn = QString::fromStdString(text);
    for (QChar& unit : drawn) {
        if (unit.category() == QChar::Other_Control || unit.unicode() > LastCharacter) {
            unit = QLatin1Char(' ');
        }
    }
    return drawn;
}

}  // namespace

QColor ColorOf(Color color) {
    return {color & 255, (color >> 8) & 255, (color >> 16) & 255};
}

void PrepareDrawing(QPainter& painter) {
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
}

PainterDevice::MeasuredFont::MeasuredFont(int size, FontFace itsFace, bool isBold)
    : pixels(size), face(itsFace), bold(isBold), font(MakeFont(size, itsFace, isBold)), metrics(font) {}

PainterDevice::MeasuredFont& PainterDevice::FontOf(int pixels, FontFace face, bool bold) const {
    const int size = std::clamp(pixels, 1, LargestFont);
    const auto found = std::find_if(fonts_.begin(), fonts_.end(), [&](const MeasuredFont& font) {
        return font.pixels == size && font.face == face && font.bold == bold;
    });
    if (found != fonts_.end()) {
        return *found;
    }
    if (fonts_.size() == FontsKept) {
        fonts_.erase(fonts_.begin());
    }
    return fonts_.emplace_back(size, face, bold);
}

double PainterDevice::LogicalDpiY() const {
    return DotsPerInch * PixelRatio();
}

PixelSize PainterDevice::TextExtent(const std::string& text, double points) const {
    const double pixels = std::min(std::fabs(points) * LogicalDpiY() / PointsPerInch, double{LargestFont});
    MeasuredFont& font = FontOf(static_cast<int>(pixels));
    if (font.widths.size() == WidthsKept) {
        font.widths.clear();
    }
    const auto [width, isNew] = font.widths.try_emplace(text, 0);
    if (isNew) {
        width->second = font.metrics.horizontalAdvance(DrawnText(text));
    }
    return {width->second, font.metrics.height()};
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
        painter->setRenderHint(QPainter::Antialiasing, !IsCrisp(line, painter->pen().widthF()));
        painter->drawPolyline(line);
    }
}

void PainterDevice::TextOut(const std::string& text, PixelPoint corner, const TextFont& font, Color color) {
    QPainter* painter = Painter();
    if (painter == nullptr) {
        return;
    }
    const MeasuredFont& drawn =
        FontOf(static_cast<int>(std::min(std::labs(font.lfHeight), long{LargestFont})), font.face, font.bold);
    painter->save();
    painter->setFont(drawn.font);
    painter->setPen(ColorOf(color));
    painter->translate(corner.x, corner.y);
    painter->rotate(-font.lfEscapement / 10.0);
    painter->drawText(QPointF(0, drawn.metrics.ascent()), DrawnText(text));
    painter->restore();
}

}  // namespace korvet
