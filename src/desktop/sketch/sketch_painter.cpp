#include "desktop/sketch/sketch_painter.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QStringList>
#include <algorithm>
#include <cmath>

#include "desktop/bindings.h"
#include "desktop/sketch/solid_painter.h"

namespace korvet::desktop {
namespace {

constexpr double BoxCharacters = 8;
constexpr double BoxPadding = 16;  ///< frame and margins of a box, left and right together
constexpr double LabelWidthInBoxes = 1.3;

double BoxWidth(const QFontMetricsF& metrics) {
    return std::ceil(metrics.horizontalAdvance(QLatin1Char('0')) * BoxCharacters + BoxPadding);
}

/// Words in lines no wider than `width`, unless a single word is.
QStringList Wrapped(const QString& text, const QFontMetricsF& metrics, double width) {
    QStringList lines;
    for (const QString& word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString longer = lines.isEmpty() ? word : lines.back() + QLatin1Char(' ') + word;
        if (!lines.isEmpty() && metrics.horizontalAdvance(longer) <= width) {
            lines.back() = longer;
        } else {
            lines.push_back(word);
        }
    }
    return lines;
}

/// The blue of dimension lines, readable on the palette's background.
QColor DimensionColor(const QPalette& palette) {
    const bool dark = palette.color(QPalette::Window).lightness() < 128;
    return dark ? QColor(0x8f, 0xb4, 0xd8) : QColor(0x3f, 0x5f, 0x80);
}

QPen LinePen(SketchLineKind kind, const QPalette& palette) {
    const QColor strong = DimensionColor(palette);
    if (kind == SketchLineKind::Dimension) {
        return {strong, 1.2, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin};
    }
    QPen thin(Mixed(strong, palette.color(QPalette::Window), 0.35), 0.9, Qt::SolidLine, Qt::FlatCap);
    if (kind == SketchLineKind::Centre) {
        thin.setDashPattern({12, 4, 3, 4});
    }
    return thin;
}

QPointF Point(SketchXY p) {
    return {p.x, p.y};
}

/// A point of a line about an arrow's length from its end, so that heads on an arc point along it.
SketchXY BehindArrow(const std::vector<SketchXY>& points, bool atStart, double length) {
    const std::size_t last = points.size() - 1;
    const SketchXY tip = atStart ? points.front() : points.back();
    for (std::size_t i = 1; i < last; ++i) {
        const SketchXY p = points[atStart ? i : last - i];
        if (std::hypot(p.x - tip.x, p.y - tip.y) >= length) {
            return p;
        }
    }
    return atStart ? points.back() : points.front();
}

void PaintArrow(QPainter& painter, SketchXY tip, SketchXY behind) {
    constexpr double ArrowLength = 9;
    constexpr double HalfWidth = 2.9;
    const double distance = std::hypot(behind.x - tip.x, behind.y - tip.y);
    if (distance <= 0) {
        return;
    }
    const QPointF back = (Point(behind) - Point(tip)) / distance;
    const QPointF across(-back.y(), back.x());
    const QPointF base = Point(tip) + back * ArrowLength;
    const QPolygonF head({Point(tip), base + across * HalfWidth, base - across * HalfWidth});
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    painter.drawPolygon(head);
}

void PaintLine(QPainter& painter, const SketchLine& line, const QPalette& palette) {
    QPolygonF points;
    for (const SketchXY& p : line.points) {
        points.append(Point(p));
    }
    const QPen pen = LinePen(line.kind, palette);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(points);
    for (const bool atStart : {true, false}) {
        if (atStart ? line.arrowAtStart : line.arrowAtEnd) {
            painter.setPen(pen);
            PaintArrow(painter, atStart ? line.points.front() : line.points.back(),
                       BehindArrow(line.points, atStart, 8));
        }
    }
}

QRectF Rect(const SketchRect& rect) {
    return {rect.x, rect.y, rect.width, rect.height};
}

void PaintBox(QPainter& painter, const QRectF& rect, const QString& text, const QPalette& palette) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.color(QPalette::Base));
    painter.drawRoundedRect(rect, 3, 3);
    PaintBoxFrame(painter, rect.adjusted(1, 1, -1, -1), palette);
    painter.setPen(palette.color(QPalette::Text));
    painter.drawText(rect.adjusted(6, 0, -6, 0), Qt::AlignVCenter | Qt::AlignLeft, text);
}

}  // namespace

QString SketchLabelText(std::string_view label, const QFontMetricsF& metrics) {
    const QString whole = QString::fromUtf8(label.data(), static_cast<qsizetype>(label.size()));
    const qsizetype open = whole.indexOf(QLatin1Char('('));
    const double width = BoxWidth(metrics) * LabelWidthInBoxes;
    QStringList lines = Wrapped(whole.left(open), metrics, width);
    if (open >= 0) {
        lines += Wrapped(whole.mid(open), metrics, width);
    }
    return lines.join(QLatin1Char('\n'));
}

SketchMetrics MeasureSketch(const PageEntry& page, const QFontMetricsF& metrics, double boxHeight) {
    SketchMetrics sizes;
    sizes.box = {BoxWidth(metrics), boxHeight};
    for (const BoxEntry& box : page.boxes) {
        const QRectF text = metrics.boundingRect(QRectF(0, 0, 10000, 10000), Qt::AlignLeft | Qt::AlignTop,
                                                 SketchLabelText(box.label, metrics));
        sizes.labels.push_back({std::ceil(text.width()) + 2, std::ceil(text.height())});
    }
    return sizes;
}

void PaintSketch(QPainter& painter, const SketchLayout& layout, const QPalette& palette) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (const PlacedSolid& solid : layout.solids) {
        PaintSolid(painter, solid.picture, solid.scale, {solid.originX, solid.originY}, palette);
    }
    for (const SketchLine& line : layout.lines) {
        PaintLine(painter, line, palette);
    }
    painter.restore();
}

void PaintBoxFrame(QPainter& painter, const QRectF& box, const QPalette& palette) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Mixed(DimensionColor(palette), palette.color(QPalette::Window), 0.4), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box.adjusted(-0.5, -0.5, 0.5, 0.5), 3, 3);
    painter.restore();
}

QImage SketchImage(const WindowTable& table, std::size_t page, QSize size, double devicePixelRatio,
                   const QPalette& palette, const QFont& font) {
    const PageEntry& entry = table.pages[page];
    const QFontMetricsF fontMetrics(font);
    const SketchMetrics metrics = MeasureSketch(entry, fontMetrics, std::ceil(fontMetrics.height() + 8));
    const PageSketch sketch = MakePageSketch(table, page);
    const SketchXY smallest = SmallestSketch(sketch, metrics);
    const double width = std::max<double>(size.width(), smallest.x);
    const double height = std::max<double>(size.height(), smallest.y);
    QImage image((QSizeF(width, height) * devicePixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(palette.color(QPalette::Window));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font);
    const SketchLayout layout = LayoutSketch(sketch, metrics, width, height);
    PaintSketch(painter, layout, palette);
    for (std::size_t i = 0; i < entry.boxes.size(); ++i) {
        const std::string_view sample = entry.boxes[i].sample;
        PaintBox(painter, Rect(layout.boxes[i]),
                 QString::fromUtf8(sample.data(), static_cast<qsizetype>(sample.size())), palette);
        painter.setPen(palette.color(QPalette::WindowText));
        painter.drawText(Rect(layout.labels[i]), Qt::AlignCenter | Qt::TextDontClip,
                         SketchLabelText(entry.boxes[i].label, fontMetrics));
    }
    return image;
}

}  // namespace korvet::desktop
