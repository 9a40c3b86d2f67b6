// Small pictures on dialogs: sketches that are painted by a function, and patches of a colour.
#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QWidget>
#include <functional>

class QPainter;

namespace korvet::desktop {

/// A picture that a function paints: as sharp as the screen is, and in the colours of the palette.
class PaintedWidget final : public QWidget {
  public:
    using Paint = std::function<void(QPainter&, const QWidget&)>;

    /// At least `minimum` pixels large, and `preferred` where there is room.
    PaintedWidget(QSize minimum, QSize preferred, Paint paint);

    [[nodiscard]] QSize sizeHint() const override { return preferred_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QSize preferred_;
    Paint paint_;
};

/// A button that shows a colour, to be clicked for another one.
class ColorPatch final : public QAbstractButton {
  public:
    ColorPatch();

    void SetColor(const QColor& color);
    [[nodiscard]] QColor ShownColor() const { return color_; }
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QColor color_;
};

}  // namespace korvet::desktop
