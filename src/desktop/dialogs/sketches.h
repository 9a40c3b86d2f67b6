// The sketches on the dialogs, each painted into a widget in the colours of its palette.
#pragma once

#include <QPointF>
#include <array>

class QPainter;
class QWidget;

namespace korvet::desktop {

/// A level line with an arrow at both ends, `a` on the left, in the colour of the pen.
void PaintDimensionLine(QPainter& painter, QPointF a, QPointF b);

/// A ring sector as a cone develops to, with the laps that can be laid on it: 0 along the top edge, 1 along
/// the seam, 2 along the base edge, each with its number from 1. Those in use stand out.
void PaintLaps(QPainter& painter, const QWidget& widget, const std::array<bool, 3>& used);

/// The wall of a pipe cut open, and the diameter that a dimension means: 0 to the middle of the wall, 1 to
/// its inside, 2 to its outside.
void PaintMeasuredWall(QPainter& painter, const QWidget& widget, std::size_t position);

/// A blank sheet of paper.
void PaintSheet(QPainter& painter, const QWidget& widget);

/// What is printed on the sheet: a small pattern.
void PaintPrinted(QPainter& painter, const QWidget& widget);

/// A cone beside its flat pattern, for the first window.
void PaintConeAndPattern(QPainter& painter, const QWidget& widget);

}  // namespace korvet::desktop
