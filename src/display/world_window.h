// The stretch of the drawing plane that lies over a device, and the way from it to pixels and back.
#pragma once

#include <cstdint>
#include <string>

#include "display/drawing_device.h"

namespace korvet {

/// The world scale of a device, in the user's length unit. ScaleHeight is negative, so that y runs upward
/// from the bottom edge. The drawing keeps it, not the device.
struct WorldWindow {
    double ScaleLeft = 0;    ///< x of the left edge
    double ScaleTop = 0;     ///< y of the top edge
    double ScaleWidth = 0;   ///< 0 until a scale has been applied
    double ScaleHeight = 0;  ///< 0 until a scale has been applied
    bool operator==(const WorldWindow&) const = default;
};

/// World coordinates to pixels. All steps are in single precision, which is what puts a line on its pixel.
class PixelMap {
  public:
    /// `pixels` is the drawable size. Throws ArithmeticError for a window without width or height.
    PixelMap(const WorldWindow& window, PixelSize pixels);

    /// The pixel column or row, halves to even. Throws ArithmeticError when it does not fit into 32 bits.
    [[nodiscard]] std::int32_t ToPixelX(float x) const;
    [[nodiscard]] std::int32_t ToPixelY(float y) const;

  private:
    float left_;
    float top_;
    float kx_;
    float ky_;
};

/// A point of the drawing plane in the precision of the mouse, in the user's length unit.
struct WorldPoint {
    float x = 0;
    float y = 0;
    bool operator==(const WorldPoint&) const = default;
};

/// The way back from a place on the device: x and y in pixels from its upper left corner, parts of a pixel
/// allowed; `pixels` is the drawable size. Always finite: a device or window without size gives the window's
/// corner, and what single precision can't hold its largest number.
WorldPoint ToWorld(const WorldWindow& window, PixelSize pixels, double x, double y);

/// Width and height of a text in Arial of `points` points, in world units, each with the sign of the scale's
/// direction: TextHeight is negative where y runs upward. Throws ArithmeticError for a device without size.
double TextWidth(const DrawingDevice& device, const WorldWindow& window, const std::string& text,
                 double points);
double TextHeight(const DrawingDevice& device, const WorldWindow& window, const std::string& text,
                  double points);

}  // namespace korvet
