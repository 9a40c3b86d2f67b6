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

SketchScroll::SketchScroll(SketchPage* page) : page_(page) {
    setWidget(page);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

bool SketchScroll::TakeWidth(double boxes) {
    const bool fits = page_->TakeWidth(boxes);
    updateGeometry();  // a page that is not shown yet does not tell it
    return fits;
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
