#include "desktop/dialogs/painted_widget.h"

#include <QPainter>
#include <QStyleOptionFocusRect>
#include <utility>

namespace korvet::desktop {

PaintedWidget::PaintedWidget(QSize minimum, QSize preferred, Paint paint)
    : preferred_(preferred), paint_(std::move(paint)) {
    setMinimumSize(minimum);
}

void PaintedWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paint_(painter, *this);
}

ColorPatch::ColorPatch() {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
}

void ColorPatch::SetColor(const QColor& color) {
    color_ = color;
    setAccessibleDescription(color.name());
    update();
}

QSize ColorPatch::sizeHint() const {
    const int height = fontMetrics().height() * 3 / 2;
    return {height * 3, height};
}

void ColorPatch::paintEvent(QPaintEvent* /*event*/) {
    constexpr int Margin = 4;
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Mid));
    painter.fillRect(rect().adjusted(1, 1, -1, -1), palette().color(QPalette::Base));
    painter.fillRect(rect().adjusted(Margin, Margin, -Margin, -Margin), color_);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

}  // namespace korvet::desktop
