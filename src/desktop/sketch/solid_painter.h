// Shaded pictures of fittings on a painter.
#pragma once

#include <QColor>
#include <QPointF>

#include "sketch/solid.h"

class QPainter;
class QPalette;

namespace korvet::desktop {

/// The colours of a shaded picture.
struct SolidColors {
    QColor lit;           ///< outer side of a wall that faces the light
    QColor shaded;        ///< outer side of a wall that the light grazes
    QColor insideLit;     ///< the same of the inner side
    QColor insideShaded;  ///< the same of the inner side
    QColor outline;
    QColor bendLine;
    QColor ground;  ///< that pale pieces fade into
};

/// Colours that read on the palette's windows and text boxes, light or dark.
SolidColors SolidColorsOf(const QPalette& palette);

/// Paints the picture with the point (x, y) of it at origin + (x, -y) * scale, in logical pixels. Lines are
/// `lineWidth` logical pixels wide, whatever the scale. The painter keeps its state.
void PaintSolid(QPainter& painter, const SolidPicture& picture, double scale, const QPointF& origin,
                const SolidColors& colors, double lineWidth = 1.5);
void PaintSolid(QPainter& painter, const SolidPicture& picture, double scale, const QPointF& origin,
                const QPalette& palette);

}  // namespace korvet::desktop
