#include "platform/paper_device.h"

#include <QPainter>
#include <QPen>

namespace korvet {
namespace {

/// Interpreters of printers have little room for a path.
constexpr int LongestPath = 1000;  // points

}  // namespace

/// A dot is too small to have a middle, and whole numbers halve the file of a large fitting.
void PaperDevice::Polyline(const Pen& pen, std::span<const PixelPoint> points) {
    if (painter_ == nullptr) {
        return;
    }
    if (pen != pen_) {
        Finish();
        pen_ = pen;
    }
    for (const ClippedLine& part : PartsOnDevice(lines_.Take(pen, points))) {
        waiting_.moveTo(part.front().x, part.front().y);
        for (const ClippedPoint& point : std::span(part).subspan(1)) {
            waiting_.lineTo(point.x, point.y);
        }
    }
    if (waiting_.elementCount() >= LongestPath) {
        Finish();
    }
}

void PaperDevice::TextOut(const std::string& text, PixelPoint corner, const TextFont& font, Color color) {
    Finish();
    PainterDevice::TextOut(text, corner, font, color);
}

void PaperDevice::Finish() {
    if (painter_ != nullptr && !waiting_.isEmpty()) {
        painter_->strokePath(waiting_, PenOf(pen_));
    }
    waiting_.clear();
}

}  // namespace korvet
