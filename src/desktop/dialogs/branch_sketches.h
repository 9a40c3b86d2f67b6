// The section through the place where a branch meets its trunk, by the way the two are joined.
#pragma once

#include <QFontMetrics>
#include <QSize>

#include "core/branch_options.h"

class QPainter;
class QWidget;

namespace korvet::desktop {

/// The room that the section needs for its texts in a font, in pixels.
QSize BranchSectionSize(const QFontMetrics& metrics);

/// Paints the section along the trunk's axis into a widget of at least that size, in the colours of its
/// palette: the upper wall of the trunk with its hole, the two cut walls of the branch, the line of the
/// trunk's wall that the branch is shaped to, and the diameter of the branch that the hole is set to.
void PaintBranchSection(QPainter& painter, const QWidget& widget, BranchJoin join);

}  // namespace korvet::desktop
