#include "display/world_window.h"

#include "core/checked.h"

namespace korvet {
namespace {

std::int32_t ToPixel(float value, float start, float factor) {
    return RoundToInt((value - start) * factor);
}

/// Pixels to a world unit, from the two edges of the window as single and double precision leave them.
float PixelFactor(double pixels, float start, double extent) {
    const double end = start + extent;
    return static_cast<float>(Quotient(pixels, end - start));
}

}  // namespace

PixelMap::PixelMap(const WorldWindow& window, PixelSize pixels)
    : left_(static_cast<float>(window.ScaleLeft)),
      top_(static_cast<float>(window.ScaleTop)),
      kx_(PixelFactor(pixels.width, left_, window.ScaleWidth)),
      ky_(PixelFactor(pixels.height, top_, window.ScaleHeight)) {}

std::int32_t PixelMap::ToPixelX(float x) const {
    return ToPixel(x, left_, kx_);
}

std::int32_t PixelMap::ToPixelY(float y) const {
    return ToPixel(y, top_, ky_);
}

double TextWidth(const DrawingDevice& device, const WorldWindow& window, const std::string& text,
                 double points) {
    return device.TextExtent(text, points).width * Quotient(window.ScaleWidth, device.ScaleSize().width);
}

double TextHeight(const DrawingDevice& device, const WorldWindow& window, const std::string& text,
                  double points) {
    return device.TextExtent(text, points).height * Quotient(window.ScaleHeight, device.ScaleSize().height);
}

}  // namespace korvet
