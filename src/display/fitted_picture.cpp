#include "display/fitted_picture.h"

namespace korvet {
namespace {

/// The part of a picture that the drawing may fill; the rest is its margin.
constexpr double FilledPart = 0.9;

/// Texts have one height in the world, so that the second drawing fits as a rule. Where letters reach the
/// smallest or the largest size of a device they keep that size, and it takes some more.
constexpr int MostDrawings = 20;

bool Holds(PixelSize size, const Bounds& pixels) {
    return pixels.minX >= 0 && pixels.minY >= 0 && pixels.maxX <= size.width && pixels.maxY <= size.height;
}

Bounds InWorld(const Bounds& pixels, const WorldWindow& window, PixelSize size) {
    const double right = window.ScaleWidth / size.width;
    const double down = window.ScaleHeight / size.height;
    return {window.ScaleLeft + pixels.minX * right, window.ScaleTop + pixels.maxY * down,
            window.ScaleLeft + pixels.maxX * right, window.ScaleTop + pixels.minY * down};
}

}  // namespace

WorldWindow WindowAbout(const Bounds& content, PixelSize size) {
    const double width = content.maxX - content.minX;
    const double height = content.maxY - content.minY;
    double unitsPerPixel = std::max(width / size.width, height / size.height) / FilledPart;
    if (unitsPerPixel == 0) {
        unitsPerPixel = 1;  // a single point
    }
    WorldWindow window;
    window.ScaleWidth = unitsPerPixel * size.width;
    window.ScaleHeight = -unitsPerPixel * size.height;
    window.ScaleLeft = content.minX + width / 2 - window.ScaleWidth / 2;
    window.ScaleTop = content.minY + height / 2 - window.ScaleHeight / 2;
    return window;
}

void DrawFitted(DrawingRecord& record, const std::optional<Bounds>& points, const DrawAtScale& draw,
                const ScaleFor& scaleFor) {
    record.Clear();
    const PixelSize size = record.ScaleSize();
    if (!points || !(size.width > 0 && size.height > 0)) {
        return;
    }
    Bounds content = *points;
    for (int i = 0; i < MostDrawings; ++i) {
        const WorldWindow window = scaleFor(content, size);
        record.Clear();
        draw(record, window);
        const std::optional<Bounds> drawn = record.Extent();
        if (!drawn || Holds(size, *drawn)) {
            return;
        }
        content = InWorld(*drawn, window, size);
    }
}

}  // namespace korvet
