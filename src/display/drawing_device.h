// Port: what the drawing code needs of a screen, a sheet of paper or a picture file.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "core/color.h"

namespace korvet {

enum class DrawStyle : std::uint8_t { Solid = 0, Dotted = 2 };

struct Pen {
    Color ForeColor = Black;
    DrawStyle Style = DrawStyle::Solid;
    int DrawWidth = 1;  ///< pixels
    bool operator==(const Pen&) const = default;
};

struct PixelPoint {
    std::int32_t x = 0;
    std::int32_t y = 0;  ///< downwards
    bool operator==(const PixelPoint&) const = default;
};

struct PixelSize {
    double width = 0;
    double height = 0;
};

enum class FontFace : std::uint8_t { Arial, CourierNew };

/// Letters of a font that is lower can't be read, in pixels.
inline constexpr int SmallestReadableFont = 6;

/// The font of a text: upright, and in a drawing always Arial and not bold.
struct TextFont {
    int lfHeight = 0;      ///< of the characters in pixels; negative: without their leading
    int lfEscapement = 0;  ///< turn counter-clockwise, tenths of a degree
    FontFace face = FontFace::Arial;
    bool bold = false;
    bool operator==(const TextFont&) const = default;
};

class DrawingDevice {
  public:
    DrawingDevice() = default;
    DrawingDevice(const DrawingDevice&) = delete;
    DrawingDevice& operator=(const DrawingDevice&) = delete;
    virtual ~DrawingDevice() = default;

    /// Clears the whole device to its back colour.
    virtual void Cls(Color backColor) = 0;

    /// Drawable size in pixels, what world windows are laid over.
    [[nodiscard]] virtual PixelSize ScaleSize() const = 0;

    /// What ScaleSize will be of the picture that the next Cls begins: a window may have been resized
    /// meanwhile.
    [[nodiscard]] virtual PixelSize NextSize() const { return ScaleSize(); }

    /// Outer size of that next picture, used only for its ratio of height to width.
    [[nodiscard]] virtual PixelSize OuterSize() const = 0;

    /// Pixels to a logical inch in y (96 on a screen).
    [[nodiscard]] virtual double LogicalDpiY() const = 0;

    /// Width and height in pixels of a text in Arial of the given size in points.
    [[nodiscard]] virtual PixelSize TextExtent(const std::string& text, double points) const = 0;

    /// One call for a whole line through the points; nothing for fewer than two.
    virtual void Polyline(const Pen& pen, std::span<const PixelPoint> points) = 0;

    /// A text with the upper left corner of its unrotated box at `corner`, turned about that corner.
    virtual void TextOut(const std::string& text, PixelPoint corner, const TextFont& font, Color color) = 0;
};

}  // namespace korvet
