// pboxGraphicWindow on the desktop: the drawing of a fitting window, and the mouse over it.
#pragma once

#include <QWidget>
#include <functional>

#include "desktop/fitting/screen_device.h"
#include "window/fitting_window.h"

namespace korvet::desktop {

class DrawingArea : public QWidget {
    Q_OBJECT
  public:
    /// The window must outlive the area or be taken away by Detach.
    DrawingArea(CFittingWindow& window, QWidget* parent);
    ~DrawingArea() override;

    /// Cuts the area off its window, which is about to go.
    void Detach();

    /// Pointer, tool tip, bands and description as the window's model has them.
    void Project();

    /// The mouse pointer alone.
    void ShowPointer();

    /// A point of the widget in the drawing plane, by the scale of the last drawing. Not after Detach.
    [[nodiscard]] WorldPoint ToDrawing(QPointF position) const;

    /// A point of the drawing plane on the widget.
    [[nodiscard]] QPointF ToWidget(double x, double y) const;

    std::function<void()> afterEvent;              ///< something may have changed in the models
    std::function<void()> pointerMoved;            ///< over the drawing, or away from it
    std::function<void(const QPoint&)> popUpMenu;  ///< the View menu, at a global position

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {120, 120}; }

  private:
    void PaintBand(QPainter& painter, const DrawnBand& band, const QPen& pen) const;
    void PaintHint(QPainter& painter) const;
    [[nodiscard]] QString Description() const;

    CFittingWindow* window_;
    ScreenDevice device_;
};

}  // namespace korvet::desktop
