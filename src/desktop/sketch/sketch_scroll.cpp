#include "desktop/sketch/sketch_scroll.h"

#include <QEvent>
#include <QScrollBar>
#include <algorithm>

#include "desktop/bindings.h"

namespace korvet::desktop {
namespace {

/// Two boxes with their labels can be seen together.
constexpr int LowestPage = 2000;

}  // namespace

SketchScroll::SketchScroll(SketchPage* page) {
    setWidget(page);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void SketchScroll::Reveal(QWidget& widget) {
    for (QWidget* parent = widget.parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
        if (auto* scroll = qobject_cast<QScrollArea*>(parent)) {
            scroll->ensureWidgetVisible(&widget);
        }
    }
}

QSize SketchScroll::minimumSizeHint() const {
    const QSize page = widget()->minimumSizeHint();
    return {page.width() + verticalScrollBar()->sizeHint().width(),
            std::min(page.height(), Pixels(LowestPage))};
}

QSize SketchScroll::sizeHint() const {
    return widget()->sizeHint() + QSize(verticalScrollBar()->sizeHint().width(), 0);
}

bool SketchScroll::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry();  // the page's texts have changed
    }
    return QScrollArea::event(event);
}

}  // namespace korvet::desktop
