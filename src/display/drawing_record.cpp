#include "display/drawing_record.h"

#include <array>
#include <cmath>
#include <cstdlib>

#include "core/math_module.h"
#include "core/number_hash.h"
#include "core/work_watch.h"

namespace korvet {
namespace {

constexpr double PointsPerInch = 72;

bool IsReadable(const TextFont& font) {
    return std::abs(font.lfHeight) >= SmallestReadableFont;
}

}  // namespace

void DrawingRecord::Clear() {
    lines_.clear();
    textsInOrder_.clear();
    texts_.clear();
    points_.clear();
}

void DrawingRecord::Polyline(const Pen& pen, std::span<const PixelPoint> points) {
    WorkWatch::Look();
    lines_.push_back({pen, points.size()});
    points_.insert(points_.end(), points.begin(), points.end());
}

void DrawingRecord::TextOut(const std::string& text, PixelPoint corner, const TextFont& font, Color color) {
    WorkWatch::Look();
    const auto [place, isNew] = texts_.insert({text, corner, font, color});
    if (isNew) {
        textsInOrder_.push_back(&*place);
    }
}

std::size_t DrawingRecord::HashOfText::operator()(const Text& text) const {
    const std::size_t ofText = IsReadable(text.font) ? std::hash<std::string>()(text.text) : text.text.size();
    return HashOfNumbers(std::array{text.corner.x, text.corner.y, text.font.lfEscapement}, ofText);
}

bool DrawingRecord::LooksTheSame::operator()(const Text& a, const Text& b) const {
    return a.corner == b.corner && a.font == b.font && a.color == b.color &&
           (IsReadable(a.font) ? a.text == b.text : a.text.size() == b.text.size());
}

void DrawingRecord::PlayOn(DrawingDevice& device) const {
    std::span<const PixelPoint> points = points_;
    for (const Line& line : lines_) {
        device.Polyline(line.pen, points.first(line.count));
        points = points.subspan(line.count);
    }
    for (const Text* const text : textsInOrder_) {
        device.TextOut(text->text, text->corner, text->font, text->color);
    }
}

std::optional<Bounds> DrawingRecord::Extent() const {
    std::optional<Bounds> box;
    for (const PixelPoint& point : points_) {
        TakeIn(box, point.x, point.y);
    }
    for (const Text& text : texts_) {
        const double points = std::abs(text.font.lfHeight) * PointsPerInch / LogicalDpiY();
        const PixelSize size = TextExtent(text.text, points);
        const double turn = DegToRad(text.font.lfEscapement / 10.0);
        for (const auto& [along, down] :
             {std::pair{0.0, 0.0}, {size.width, 0.0}, {0.0, size.height}, {size.width, size.height}}) {
            TakeIn(box, text.corner.x + along * std::cos(turn) + down * std::sin(turn),
                   text.corner.y - along * std::sin(turn) + down * std::cos(turn));
        }
    }
    return box;
}

}  // namespace korvet
