// The picture behind a drawing area.
#pragma once

#include <QImage>
#include <QPainter>
#include <functional>

#include "platform/painter_device.h"

namespace korvet::desktop {

/// A drawing that stays until the next Cls, whatever happens to the window meanwhile: a resize moves no line.
class ScreenDevice final : public PainterDevice {
  public:
    /// The size in logical pixels, and device pixels to each, that the next picture is to have.
    std::function<QSize()> size;
    std::function<double()> pixelRatio;
    std::function<void()> changed;  ///< something was drawn

    void Cls(Color backColor) override;
    [[nodiscard]] PixelSize ScaleSize() const override;
    [[nodiscard]] PixelSize NextSize() const override;

    [[nodiscard]] const QImage& Picture() const { return image_; }
    [[nodiscard]] double Ratio() const { return image_.devicePixelRatio(); }

  protected:
    [[nodiscard]] QPainter* Painter() override;
    [[nodiscard]] double PixelRatio() const override { return pixelRatio(); }

  private:
    [[nodiscard]] QSize NextPixels() const { return size() * pixelRatio(); }

    QImage image_;
    QPainter painter_;
};

}  // namespace korvet::desktop
