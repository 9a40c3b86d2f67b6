#include "desktop/dialogs/refusal_frame.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPainter>
#include <QScrollArea>

#include "desktop/bindings.h"

namespace korvet::desktop {
namespace {

constexpr int Thickness = 2;  // pixels
constexpr int Away = 2;       // of the frame from its control

class Frame final : public QWidget {
  public:
    using QWidget::QWidget;

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(ReadableRed(palette()), Thickness));
        constexpr double Half = Thickness / 2.0;
        painter.drawRoundedRect(QRectF(rect()).adjusted(Half, Half, -Half, -Half), 3, 3);
    }
};

/// A window may have a control of the name on each of its pages.
QWidget* VisibleControl(QWidget& window, const QString& name) {
    for (QWidget* control : window.findChildren<QWidget*>(name)) {
        if (control->isVisible()) {
            return control;
        }
    }
    return nullptr;
}

/// A group of options is the frame that its buttons stand in.
QWidget* ControlOrGroup(QWidget& window, const QString& name) {
    if (QWidget* const control = VisibleControl(window, name)) {
        return control;
    }
    QWidget* const button = VisibleControl(window, name + QStringLiteral("_0"));
    return button != nullptr ? button->parentWidget() : nullptr;
}

/// The window of the area of windows that is worked in; the window itself when it has no such area.
QWidget& WorkedIn(QWidget& window) {
    const auto* const area = window.findChild<QMdiArea*>();
    QMdiSubWindow* const child = area != nullptr ? area->currentSubWindow() : nullptr;
    return child != nullptr ? *child : window;
}

/// The innermost of the widgets from `parent` outwards that a place in it does not run over; the place is
/// then one in that widget.
QWidget& WithRoomFor(QRect& place, QWidget& parent) {
    QWidget* room = &parent;
    while (!room->rect().contains(place) && !room->isWindow()) {
        place.translate(room->pos());
        room = room->parentWidget();
    }
    return *room;
}

}  // namespace

RefusalFrame::RefusalFrame(QWidget* over, const QString& control) {
    QWidget* const refused =
        over == nullptr || control.isEmpty() ? nullptr : ControlOrGroup(WorkedIn(*over), control);
    if (refused == nullptr || refused->parentWidget() == nullptr) {
        return;
    }
    RevealWidget(*refused);
    constexpr int Around = Away + Thickness;
    QRect place = refused->geometry().adjusted(-Around, -Around, Around, Around);
    frame_ = new Frame(&WithRoomFor(place, *refused->parentWidget()));
    NameWidget(*frame_, "refusalFrame", QString());
    frame_->setAttribute(Qt::WA_TransparentForMouseEvents);
    frame_->setGeometry(place);
    frame_->show();
}

RefusalFrame::~RefusalFrame() {
    delete frame_;
}

}  // namespace korvet::desktop
