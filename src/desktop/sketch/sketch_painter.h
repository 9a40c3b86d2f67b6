// Paints a page's sketch: the shaded shape, its dimension lines and arrow heads. Boxes and labels are widgets
// on a parameter page, and drawn in a picture.
#pragma once

#include <QFontMetricsF>
#include <QImage>
#include <QPalette>
#include <QString>

#include "sketch/sketch_layout.h"

class QFont;
class QPainter;

namespace korvet::desktop {

/// The label of a box in lines short enough to stand beside it: what is in parentheses has a line of its own.
QString SketchLabelText(std::string_view label, const QFontMetricsF& metrics);

/// Sizes of the texts of a page in a font. A box is `boxHeight` high and wide enough for eight digits.
SketchMetrics MeasureSketch(const PageEntry& page, const QFontMetricsF& metrics, double boxHeight);

/// Everything but the texts, in the colours of a palette.
void PaintSketch(QPainter& painter, const SketchLayout& layout, const QPalette& palette);

/// A thin frame around a box, which sets it off on palettes where its own frame hardly shows.
void PaintBoxFrame(QPainter& painter, const QRectF& box, const QPalette& palette);

/// A page's sketch with its sample sizes in the boxes, in at least the room that it needs: `size` in pixels
/// before `devicePixelRatio`. For pictures where nothing can be typed.
QImage SketchImage(const WindowTable& table, std::size_t page, QSize size, double devicePixelRatio,
                   const QPalette& palette, const QFont& font);

}  // namespace korvet::desktop
