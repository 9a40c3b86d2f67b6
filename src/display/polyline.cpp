#include "display/polyline.h"

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

}  // namespace korvet
