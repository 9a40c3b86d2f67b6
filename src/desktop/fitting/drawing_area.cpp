#include "desktop/fitting/drawing_area.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include "desktop/bindings.h"
#include "window/views.h"

namespace korvet::desktop {
namespace {

MouseButton ButtonOf(Qt::MouseButtons buttons) {
    if (buttons.testFlag(Qt::LeftButton)) {
        return MouseButton::Left;
    }
    if (buttons.testFlag(Qt::RightButton)) {
        return MouseButton::Right;
    }
    return buttons.testFlag(Qt::MiddleButton) ? MouseButton::Middle : MouseButton::None;
}

Qt::CursorShape ShapeOf(Cursor cursor) {
    switch (cursor) {
        case Cursor::Hourglass:
            return Qt::WaitCursor;
        case Cursor::Cross:
            return Qt::CrossCursor;
        default:
            return Qt::ArrowCursor;
    }
}

/// A notch of a common wheel, in the toolkit's eighths of a degree.
constexpr double AngleOfTurn = QWheelEvent::DefaultDeltasPerStep;

constexpr int HintMargin = 10;

/// Keys that end a mouse mode: those that write something, and Esc. Function keys and arrows do not.
bool IsCharacter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Escape || !event.text().isEmpty();
}

}  // namespace

DrawingArea::DrawingArea(CFittingWindow& window, QWidget* parent) : QWidget(parent), window_(&window) {
    NameWidget(*this, "pboxGraphicWindow", tr("Drawing"));
    setFocusPolicy(Qt::ClickFocus);
    setMouseTracking(true);  // the place of the pointer is told without a button held
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    device_.size = [this] { return QWidget::size(); };
    device_.pixelRatio = [this] { return devicePixelRatioF(); };
    device_.changed = [this] { update(); };
    window.display.DisplayDevice = &device_;
    Project();
}

DrawingArea::~DrawingArea() {
    Detach();
}

void DrawingArea::Detach() {
    if (window_ != nullptr) {
        window_->display.DisplayDevice = nullptr;
        window_ = nullptr;
    }
}

void DrawingArea::Project() {
    if (window_ == nullptr) {
        return;
    }
    const korvet::DrawingArea& model = window_->controls.pboxGraphicWindow;
    ShowPointer();
    setToolTip(Text(model.toolTip));
    setAccessibleDescription(Description());
    update();
}

void DrawingArea::ShowPointer() {
    if (window_ != nullptr) {
        setCursor(ShapeOf(window_->controls.pboxGraphicWindow.mousePointer));
    }
}

QString DrawingArea::Description() const {
    if (!window_->Hint().empty()) {
        return tr("Empty");
    }
    return InPatternView(*window_->views) ? tr("Flat pattern") : tr("Model");
}

WorldPoint DrawingArea::ToDrawing(QPointF position) const {
    return ToWorld(window_->display.DisplayWindow(), device_.ScaleSize(), position.x() * device_.Ratio(),
                   position.y() * device_.Ratio());
}

QPointF DrawingArea::ToWidget(double x, double y) const {
    const PixelSize pixels = device_.ScaleSize();
    const WorldWindow& scale = window_->display.DisplayWindow();
    if (scale.ScaleWidth == 0 || scale.ScaleHeight == 0) {
        return {};
    }
    return {(x - scale.ScaleLeft) / scale.ScaleWidth * pixels.width / device_.Ratio(),
            (y - scale.ScaleTop) / scale.ScaleHeight * pixels.height / device_.Ratio()};
}

void DrawingArea::PaintBand(QPainter& painter, const DrawnBand& band, const QPen& pen) const {
    const QPointF start = ToWidget(band.startX, band.startY);
    const QPointF end = ToWidget(band.endX, band.endY);
    painter.setPen(pen);
    if (band.box) {
        painter.drawRect(QRectF(start, end).normalized());
    } else {
        painter.drawLine(start, end);
    }
}

/// In one line where there is room for it, grey on any ground.
void DrawingArea::PaintHint(QPainter& painter) const {
    const std::string hint = window_->Hint();
    if (hint.empty()) {
        return;
    }
    const QColor back = ColorOf(window_->controls.pboxGraphicWindow.backColor);
    painter.setPen(back.lightness() < 128 ? QColor(160, 160, 160) : QColor(90, 90, 90));
    painter.drawText(rect().adjusted(HintMargin, 0, -HintMargin, 0), Qt::AlignCenter | Qt::TextWordWrap,
                     Text(hint));
}

void DrawingArea::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const Color back = window_ != nullptr ? window_->controls.pboxGraphicWindow.backColor : Black;
    painter.fillRect(rect(), ColorOf(back));
    painter.drawImage(QPointF(0, 0), device_.Picture());
    if (window_ == nullptr) {
        return;
    }
    PaintHint(painter);
    const korvet::DrawingArea& model = window_->controls.pboxGraphicWindow;
    if (model.rubberBand) {
        // Inverted against the ground, so that it shows on every colour.
        painter.setCompositionMode(QPainter::CompositionMode_Difference);
        PaintBand(painter, *model.rubberBand, QPen(Qt::white, 1, Qt::DotLine));
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    }
    if (model.pickedLine) {
        PaintBand(painter, *model.pickedLine,
                  QPen(ColorOf(window_->Context().options.Colors.DisplayTextColor), 1));
    }
}

void DrawingArea::mousePressEvent(QMouseEvent* event) {
    if (window_ == nullptr) {
        return;
    }
    const WorldPoint point = ToDrawing(event->position());
    const bool menu = window_->MouseDown(ButtonOf(event->button()), point.x, point.y);
    afterEvent();
    if (menu) {
        popUpMenu(event->globalPosition().toPoint());
    }
}

void DrawingArea::mouseMoveEvent(QMouseEvent* event) {
    if (window_ == nullptr) {
        return;
    }
    const WorldPoint point = ToDrawing(event->position());
    window_->MouseMove(ButtonOf(event->buttons()), point.x, point.y);
    if (event->buttons() != Qt::NoButton) {
        update();  // a rubber band may have come along
    }
    pointerMoved();
}

void DrawingArea::leaveEvent(QEvent* /*event*/) {
    if (window_ != nullptr) {
        window_->MouseLeave();
        pointerMoved();
    }
}

void DrawingArea::mouseReleaseEvent(QMouseEvent* event) {
    if (window_ == nullptr) {
        return;
    }
    const WorldPoint point = ToDrawing(event->position());
    window_->MouseUp(ButtonOf(event->button()), point.x, point.y);
    afterEvent();
}

void DrawingArea::wheelEvent(QWheelEvent* event) {
    if (window_ == nullptr) {
        return;
    }
    const WorldPoint point = ToDrawing(event->position());
    window_->TurnWheel(event->angleDelta().y() / AngleOfTurn, point.x, point.y,
                       static_cast<std::int64_t>(event->timestamp()));
    event->accept();  // else the area of the windows would scroll
    afterEvent();
}

void DrawingArea::keyPressEvent(QKeyEvent* event) {
    if (window_ == nullptr || !IsCharacter(*event)) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (event->key() == Qt::Key_Escape) {
        window_->PressEscape();
    }
    window_->PressKeyInDrawing();
    afterEvent();
}

}  // namespace korvet::desktop
