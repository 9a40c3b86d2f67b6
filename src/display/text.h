// Text on a device: at any angle, with any point of its box on the point that is given.
#pragma once

#include <cstdint>
#include <string>

#include "core/points.h"
#include "display/world_window.h"

namespace korvet {

/// Which point of the text's box stands on the given point.
enum class Justification : std::uint8_t {
    TopLeft = 0,
    TopRight = 1,
    TopCentre = 2,
    MiddleLeft = 3,
    MiddleRight = 4,
    MiddleCentre = 5,
    BottomLeft = 6,
    BottomRight = 7,
    BottomCentre = 8
};

/// The size in points that a text of the given size is drawn in: at least 1 (whichever its sign), at most
/// 10000.
float DrawnTextSize(float size);

/// A text to draw. It lives for one drawing call and holds on to the device. Drawing throws ArithmeticError
/// for a device or a window without size and when a pixel does not fit into 32 bits.
class CText {
  public:
    CText(DrawingDevice& device, const WorldWindow& window) : device_(device), window_(window) {}

    float TextSize = 0;  ///< points
    std::string TextString;
    Color TextColor = Black;  ///< on the screen
    bool Printing = false;    ///< in black
    int Decimals = 0;         ///< of an aligned length
    char DecimalMark = '.';   ///< of an aligned length

    /// Left to right.
    void HorizontalText(const C3DPoint& point, Justification justification) const;

    /// Upward.
    void VerticalText(const C3DPoint& point, Justification justification) const;

    /// Puts the distance of the two points, rounded to Decimals, in the place of TextString and draws it on
    /// the middle between them along the direction from a to b. It is never turned over: on a line that runs
    /// leftward the number stands on its head.
    void AlignedText(const C3DPoint& a, const C3DPoint& b, Justification justification);

  private:
    void DrawRotatedText(const C3DPoint& point, double angle, Justification justification) const;
    [[nodiscard]] C3DPoint JustifiedCorner(const C3DPoint& point, double angle, Justification justification,
                                           double points) const;

    DrawingDevice& device_;
    WorldWindow window_;
};

}  // namespace korvet
