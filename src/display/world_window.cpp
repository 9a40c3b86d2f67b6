#include "display/world_window.h"

#include <algorithm>
#include <cmath>
#include <limits>

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

/// Where a pixel lies between the two edges of the window.
float FromPixel(double pixel, double pixels, double start, double extent) {
    constexpr double Largest = std::numeric_limits<float>::max();
    const double step = extent / pixels;
    const double value = std::isfinite(step) ? start + pixel * step : start;
    return std::isnan(value) ? 0 : static_cast<float>(std::clamp(value, -Largest, Largest));
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

WorldPoint ToWorld(const WorldWindow& window, PixelSize pixels, double x, double y) {
    return {FromPixel(x, pixels.width, window.ScaleLeft, window.ScaleWidth),
            FromPixel(y, pixels.height, window.ScaleTop, window.ScaleHeight)};
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
