#include "desktop/dialogs/sketches.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace korvet::desktop {
namespace {

/// Angles of sectors are degrees counter-clockwise from 3 o'clock, as the toolkit has them; a pattern hangs
/// down from its apex.
constexpr double Down = 270;

QPointF At(QPointF centre, double radius, double degrees) {
    const double radians = degrees * std::numbers::pi / 180;
    return {centre.x() + radius * std::cos(radians), centre.y() - radius * std::sin(radians)};
}

QRectF Circle(QPointF centre, double radius) {
    return {centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius};
}

QPainterPath RingSector(QPointF centre, double inner, double outer, double from, double sweep) {
    QPainterPath path;
    path.moveTo(At(centre, outer, from));
    path.arcTo(Circle(centre, outer), from, sweep);
    path.lineTo(At(centre, inner, from + sweep));
    path.arcTo(Circle(centre, inner), from + sweep, -sweep);
    path.closeSubpath();
    return path;
}

QColor Faded(QColor color, int alpha) {
    color.setAlpha(alpha);
    return color;
}

/// The sector with thin fold lines on it.
void PaintPattern(QPainter& painter, const QPalette& palette, QPointF centre, double inner, double outer,
                  double halfAngle, int folds) {
    const double from = Down - halfAngle;
    painter.setPen(QPen(palette.color(QPalette::WindowText), 1.4));
    painter.setBrush(palette.color(QPalette::Base));
    painter.drawPath(RingSector(centre, inner, outer, from, 2 * halfAngle));
    painter.setPen(QPen(Faded(palette.color(QPalette::WindowText), 110), 0.8));
    for (int i = 1; i < folds; ++i) {
        const double angle = from + 2 * halfAngle * i / folds;
        painter.drawLine(At(centre, inner, angle), At(centre, outer, angle));
    }
}

/// The strip that a lap adds, and the middle of it, where its number stands.
struct LapStrip {
    QPainterPath path;
    QPointF number;
};

/// All lengths follow the radius of the base edge.
std::array<LapStrip, 3> LapStrips(QPointF centre, double radius, double inner, double halfAngle, double lap) {
    const double from = Down - halfAngle;
    const double seam = Down + halfAngle;
    // The seam's strip stands square on the last ruling.
    const QPointF across = At({0, 0}, lap, seam + 90);
    QPainterPath side(At(centre, inner, seam));
    side.lineTo(At(centre, radius, seam));
    side.lineTo(At(centre, radius, seam) + across);
    side.lineTo(At(centre, inner, seam) + across);
    side.closeSubpath();
    return {LapStrip{RingSector(centre, inner - lap, inner, from, 2 * halfAngle),
                     At(centre, inner - lap / 2, Down)},
            LapStrip{side, At(centre, (inner + radius) / 2, seam) + across / 2},
            LapStrip{RingSector(centre, radius, radius + lap, from, 2 * halfAngle),
                     At(centre, radius + lap / 2, Down)}};
}

void PaintCone(QPainter& painter, const QPalette& palette, QRectF place) {
    const double topRadius = place.width() * 0.22;
    const double baseRadius = place.width() * 0.5;
    const QPointF top(place.center().x(), place.top() + topRadius * 0.35);
    const QPointF base(place.center().x(), place.bottom() - baseRadius * 0.35);
    QPainterPath wall;
    wall.moveTo(top - QPointF(topRadius, 0));
    wall.lineTo(base - QPointF(baseRadius, 0));
    wall.arcTo(QRectF(base.x() - baseRadius, base.y() - baseRadius * 0.35, 2 * baseRadius, baseRadius * 0.7),
               180, 180);
    wall.lineTo(top + QPointF(topRadius, 0));
    wall.closeSubpath();
    QLinearGradient shade(place.left(), 0, place.right(), 0);
    const QColor metal = palette.color(QPalette::Highlight);
    shade.setColorAt(0, Faded(metal, 150));
    shade.setColorAt(0.35, Faded(metal, 40));
    shade.setColorAt(1, Faded(metal, 190));
    painter.setPen(QPen(palette.color(QPalette::WindowText), 1.6));
    painter.setBrush(shade);
    painter.drawPath(wall);
    painter.setBrush(palette.color(QPalette::Base));
    painter.drawEllipse(top, topRadius, topRadius * 0.35);
    painter.setBrush(Faded(metal, 120));
    painter.drawEllipse(top, topRadius, topRadius * 0.35);
}

}  // namespace

void PaintDimensionLine(QPainter& painter, QPointF a, QPointF b) {
    constexpr double Arrow = 5;
    painter.drawLine(a, b);
    for (const auto& [tip, sign] : {std::pair{a, 1.0}, std::pair{b, -1.0}}) {
        QPainterPath head(tip);
        head.lineTo(tip + QPointF(sign * Arrow, Arrow / 2.2));
        head.lineTo(tip + QPointF(sign * Arrow, -Arrow / 2.2));
        head.closeSubpath();
        painter.fillPath(head, painter.pen().color());
    }
}

void PaintLaps(QPainter& painter, const QWidget& widget, const std::array<bool, 3>& used) {
    constexpr double HalfAngle = 46;
    constexpr double Inner = 0.5;  // parts of the base edge's radius
    constexpr double Lap = 0.17;
    const double sine = std::sin(HalfAngle * std::numbers::pi / 180);
    const double top = (Inner - Lap) * std::cos(HalfAngle * std::numbers::pi / 180);
    const double unit =
        std::min(widget.width() / (2 * (1 + Lap) * sine + Lap), widget.height() / (1.04 + Lap - top));
    const QPointF centre(widget.width() / 2.0 - unit * Lap / 4,
                         (widget.height() - unit * (1 + Lap - top)) / 2 - unit * top);
    const QPalette& palette = widget.palette();
    const auto strips = LapStrips(centre, unit, unit * Inner, HalfAngle, unit * Lap);
    for (std::size_t i = 0; i < strips.size(); ++i) {
        const QColor fill = palette.color(used.at(i) ? QPalette::Highlight : QPalette::Midlight);
        const auto group = used.at(i) ? QPalette::Active : QPalette::Disabled;
        painter.setPen(QPen(palette.color(group, QPalette::WindowText), 1));
        painter.setBrush(fill);
        painter.drawPath(strips.at(i).path);
    }
    PaintPattern(painter, palette, centre, unit * Inner, unit, HalfAngle, 10);
    QFont font = widget.font();
    font.setBold(true);
    painter.setFont(font);
    for (std::size_t i = 0; i < strips.size(); ++i) {
        painter.setPen(used.at(i) ? palette.color(QPalette::HighlightedText)
                                  : palette.color(QPalette::Disabled, QPalette::WindowText));
        painter.drawText(Circle(strips.at(i).number, unit * Lap), Qt::AlignCenter, QString::number(i + 1));
    }
}

void PaintMeasuredWall(QPainter& painter, const QWidget& widget, std::size_t position) {
    const double wall = std::max(5.0, widget.width() / 8.0);
    const double left = 2;
    const double right = widget.width() - 2;
    const double bottom = widget.height() - 1;
    const double middle = widget.height() * 0.42;
    const QPalette& palette = widget.palette();
    const auto group = widget.isEnabled() ? QPalette::Active : QPalette::Disabled;
    painter.setPen(QPen(palette.color(group, QPalette::WindowText), 1));
    painter.setBrush(QBrush(Faded(palette.color(group, QPalette::WindowText), 90)));
    painter.drawRect(QRectF(left, middle, wall, bottom - middle));
    painter.drawRect(QRectF(right - wall, middle, wall, bottom - middle));
    const std::array<double, 3> inset = {wall / 2, wall, 0};
    const double a = left + inset.at(position);
    const double b = right - inset.at(position);
    const double y = widget.height() * 0.2;
    painter.setPen(QPen(palette.color(group, widget.isEnabled() ? QPalette::Highlight : QPalette::Mid), 1.3));
    painter.drawLine(QPointF(a, 1), QPointF(a, bottom));
    painter.drawLine(QPointF(b, 1), QPointF(b, bottom));
    PaintDimensionLine(painter, {a, y}, {b, y});
}

void PaintSheet(QPainter& painter, const QWidget& widget) {
    painter.setPen(QPen(widget.palette().color(QPalette::WindowText), 1));
    painter.setBrush(widget.palette().color(QPalette::Base));
    painter.drawRect(QRectF(widget.rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

void PaintPrinted(QPainter& painter, const QWidget& widget) {
    const double size = std::min(widget.width(), widget.height());
    const QPointF centre(widget.width() / 2.0, widget.height() / 2.0 - size * 0.42);
    PaintPattern(painter, widget.palette(), centre, size * 0.35, size * 0.75, 35, 8);
}

void PaintConeAndPattern(QPainter& painter, const QWidget& widget) {
    const QPalette& palette = widget.palette();
    painter.fillRect(widget.rect(), palette.color(QPalette::AlternateBase));
    const double height = widget.height();
    const double width = widget.width();
    const double coneWidth = std::min(width * 0.27, height * 0.72);
    PaintCone(painter, palette, {width * 0.06, height * 0.14, coneWidth, height * 0.72});
    const double radius = std::min(width * 0.37, height * 0.92);
    constexpr double HalfAngle = 52;
    PaintPattern(painter, palette, {width * 0.67, (height - radius) / 2 - radius * 0.1}, radius * 0.44,
                 radius, HalfAngle, 24);
}

}  // namespace korvet::desktop
