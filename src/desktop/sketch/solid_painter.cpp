#include "desktop/sketch/solid_painter.h"

#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPen>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

#include "desktop/bindings.h"

namespace korvet::desktop {
namespace {

/// A wall that the light only grazes, or that lies beyond, gets the shaded colour in full.
constexpr double GrazingLight = 0.3;

/// Each face is painted this much larger all round, in device pixels: antialiased neighbours would otherwise
/// let the ground shine through where they meet. Outlines cover what juts out.
constexpr double Overlap = 0.6;

/// How far pale walls and lines fade into the ground.
constexpr double PaleWall = 0.72;
constexpr double PaleLine = 0.55;

QColor FaceColor(const SolidFace& face, const SolidColors& colors) {
    const double share =
        std::pow(std::clamp((face.light - GrazingLight) / (1 - GrazingLight), 0.0, 1.0), 1.4);
    const QColor color = face.inside ? Mixed(colors.insideShaded, colors.insideLit, share)
                                     : Mixed(colors.shaded, colors.lit, share);
    return face.pale ? Mixed(color, colors.ground, PaleWall) : color;
}

QColor LineColor(const SolidEdge& edge, const SolidColors& colors) {
    const QColor color = edge.outline ? colors.outline : colors.bendLine;
    return edge.pale ? Mixed(color, colors.ground, PaleLine) : color;
}

QPolygonF OnPaper(const std::vector<SketchXY>& points, double scale, const QPointF& origin) {
    QPolygonF polygon;
    polygon.reserve(static_cast<qsizetype>(points.size()));
    for (const SketchXY& p : points) {
        polygon << QPointF(origin.x() + p.x * scale, origin.y() - p.y * scale);
    }
    return polygon;
}

/// A convex face with `by` added to every side, its corners cut off: what a pen as wide as that adds, at a
/// fraction of a pen's cost.
QPolygonF Grown(const QPolygonF& face, double by) {
    double doubledArea = 0;
    for (qsizetype i = 0; i < face.size(); ++i) {
        const QPointF& p = face[i];
        const QPointF& q = face[(i + 1) % face.size()];
        doubledArea += p.x() * q.y() - p.y() * q.x();
    }
    const double outward = doubledArea < 0 ? -by : by;
    QPolygonF grown;
    grown.reserve(2 * face.size());
    for (qsizetype i = 0; i < face.size(); ++i) {
        const QPointF& p = face[i];
        const QPointF& q = face[(i + 1) % face.size()];
        const QPointF side = q - p;
        const double length = std::hypot(side.x(), side.y());
        if (length > 0) {
            const QPointF away = QPointF(side.y(), -side.x()) * (outward / length);
            grown << p + away << q + away;
        }
    }
    return grown;
}

void PaintFaces(QPainter& painter, const SolidPicture& picture, double scale, const QPointF& origin,
                const SolidColors& colors) {
    const double overlap = Overlap / std::max(1.0, painter.device()->devicePixelRatioF());
    painter.setPen(Qt::NoPen);
    for (const SolidFace& face : picture.faces) {
        painter.setBrush(FaceColor(face, colors));
        painter.drawConvexPolygon(Grown(OnPaper(face.corners, scale, origin), overlap));
    }
}

void PaintEdges(QPainter& painter, const SolidPicture& picture, double scale, const QPointF& origin,
                const SolidColors& colors, double lineWidth) {
    painter.setBrush(Qt::NoBrush);
    for (const SolidEdge& edge : picture.edges) {
        // No round joins: those between the short steps of a curve show as dots.
        painter.setPen(QPen(LineColor(edge, colors), edge.outline ? lineWidth : lineWidth / 2, Qt::SolidLine,
                            Qt::RoundCap, Qt::MiterJoin));
        QPainterPath path;
        path.addPolygon(OnPaper(edge.points, scale, origin));
        if (edge.points.size() > 2 && edge.points.front() == edge.points.back()) {
            path.closeSubpath();  // a joint, not two ends that lie on each other
        }
        painter.drawPath(path);
    }
}

}  // namespace

SolidColors SolidColorsOf(const QPalette& palette) {
    const QColor ground = palette.color(QPalette::Active, QPalette::Window);
    if (ground.lightness() < 128) {
        return {QColor(0xa3, 0xb6, 0xc9),
                QColor(0x43, 0x53, 0x65),
                QColor(0x70, 0x82, 0x96),
                QColor(0x2f, 0x3c, 0x4a),
                QColor(0xe3, 0xeb, 0xf3),
                QColor(0xc8, 0xd4, 0xe0),
                ground};
    }
    return {QColor(0xfb, 0xfd, 0xff),
            QColor(0xa9, 0xb9, 0xca),
            QColor(0xdd, 0xe5, 0xed),
            QColor(0x8c, 0x9f, 0xb3),
            QColor(0x1f, 0x2d, 0x3c),
            QColor(0x7f, 0x95, 0xab),
            ground};
}

void PaintSolid(QPainter& painter, const SolidPicture& picture, double scale, const QPointF& origin,
                const SolidColors& colors, double lineWidth) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    PaintFaces(painter, picture, scale, origin, colors);
    PaintEdges(painter, picture, scale, origin, colors, lineWidth);
    painter.restore();
}

void PaintSolid(QPainter& painter, const SolidPicture& picture, double scale, const QPointF& origin,
                const QPalette& palette) {
    PaintSolid(painter, picture, scale, origin, SolidColorsOf(palette));
}

}  // namespace korvet::desktop
