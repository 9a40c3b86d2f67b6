#include "desktop/fitting/screen_device.h"

#include <QColor>

namespace korvet::desktop {

void ScreenDevice::Cls(Color backColor) {
    if (painter_.isActive()) {
        painter_.end();
    }
    const double ratio = pixelRatio();
    if (image_.size() != NextPixels()) {
        image_ = QImage(NextPixels(), QImage::Format_RGB32);
    }
    if (image_.isNull()) {
        return;
    }
    image_.setDevicePixelRatio(1);  // the drawing counts device pixels
    image_.fill(ColorOf(backColor));
    painter_.begin(&image_);
    PrepareDrawing(painter_);
    image_.setDevicePixelRatio(ratio);
    RimTexts(backColor);
    changed();
}

PixelSize ScreenDevice::ScaleSize() const {
    return {static_cast<double>(image_.width()), static_cast<double>(image_.height())};
}

PixelSize ScreenDevice::NextSize() const {
    const QSize pixels = NextPixels();
    return {static_cast<double>(pixels.width()), static_cast<double>(pixels.height())};
}

QPainter* ScreenDevice::Painter() {
    if (!painter_.isActive()) {
        return nullptr;
    }
    changed();
    return &painter_;
}

}  // namespace korvet::desktop
