#include "display/polyline.h"

#include <array>
#include <span>

namespace korvet {
namespace {

Pen ColouredPen(LineType lineType, const DisplayColors& colors) {
    switch (lineType) {
        case LineType::Cut:
            return {colors.DisplayCutColor, DrawStyle::Solid, 3};
        case LineType::Fold:
            return {colors.DisplayFoldColor, DrawStyle::Solid, 1};
        case LineType::Mark:
            return {colors.DisplayDimensionColor, DrawStyle::Solid, 1};
        case LineType::GridLeader:
        case LineType::Diagonal:
            return {colors.DisplayDimensionColor, DrawStyle::Dotted, 1};
        case LineType::SheetMark:
            return {Magenta, DrawStyle::Solid, 5};
        case LineType::FrameNotChosen:
            return {Yellow, DrawStyle::Solid, 1};
        case LineType::FrameChosen:
            return {Green, DrawStyle::Solid, 8};
    }
    return {};
}

}  // namespace

Pen PenFor(LineType lineType, const DisplayColors& colors, bool printing) {
    Pen pen = ColouredPen(lineType, colors);
    if (printing) {
        pen.ForeColor = Black;
    } else {
        pen.DrawWidth = 1;
    }
    return pen;
}

CPolyline::CPolyline(DrawingDevice& device, const WorldWindow& window)
    : device_(device), map_(window, device.ScaleSize()) {}

void CPolyline::Point(float x, float y) {
    pixels_.push_back({map_.ToPixelX(x), map_.ToPixelY(y)});
}

void CPolyline::Draw(const DisplayColors& colors) {
    device_.Polyline(PenFor(Type, colors, PrintRequested), pixels_);
    pixels_.clear();
}

void DrawBox(DrawingDevice& device, const WorldWindow& window, const C3DPoint& corner1,
             const C3DPoint& corner2, Color color) {
    const PixelMap map(window, device.ScaleSize());
    const std::int32_t x1 = map.ToPixelX(static_cast<float>(corner1.x));
    const std::int32_t y1 = map.ToPixelY(static_cast<float>(corner1.y));
    const std::int32_t x2 = map.ToPixelX(static_cast<float>(corner2.x));
    const std::int32_t y2 = map.ToPixelY(static_cast<float>(corner2.y));
    const std::array<PixelPoint, 5> corners = {{{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}, {x1, y1}}};
    for (std::size_t side = 0; side < 4; ++side) {
        device.Polyline({color, DrawStyle::Solid, 1}, std::span(corners).subspan(side, 2));
    }
}

}  // namespace korvet
