#include "sketch/sketch_board.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace korvet {
namespace {

// What things are worth to be avoided, in pixels of distance.
constexpr double TextOverLine = 120;
constexpr double TextOverExtension = 60;
constexpr double TextOverCentre = 8;
constexpr double LinesSideBySide = 200;
constexpr double LineOverShape = 500;
constexpr double LinesCross = 20;
constexpr double Growth = 0.5;  ///< for each pixel that the drawing grows

constexpr double TextMargin = 3;  ///< that lines keep from texts

SketchRect BoundsOf(const SketchLine& line) {
    SketchRect bounds = {line.points.front().x, line.points.front().y, 0, 0};
    for (const SketchXY& point : line.points) {
        bounds = Union(bounds, point);
    }
    return bounds;
}

bool Meet(const SketchLine& a, const SketchLine& b) {
    for (std::size_t i = 0; i + 1 < a.points.size(); ++i) {
        for (std::size_t k = 0; k + 1 < b.points.size(); ++k) {
            if (Cross({a.points[i], a.points[i + 1]}, {b.points[k], b.points[k + 1]})) {
                return true;
            }
        }
    }
    return false;
}

double TextCost(const SketchLine& line) {
    switch (line.kind) {
        case SketchLineKind::Dimension:
            return TextOverLine;
        case SketchLineKind::Extension:
            return TextOverExtension;
        case SketchLineKind::Centre:
            break;
    }
    return TextOverCentre;
}

/// Whether two straight lines run side by side, too close to be told apart.
bool Crowd(const SketchLine& a, const SketchLine& b, double gap) {
    if (a.points.size() != 2 || b.points.size() != 2) {
        return false;
    }
    const SketchXY along = Direction(a.points[1] - a.points[0]);
    const SketchXY other = Direction(b.points[1] - b.points[0]);
    if (std::abs(Dot(along, other)) < 0.95) {
        return false;
    }
    const SketchXY between = b.points[0] - a.points[0];
    const double u0 = Dot(between, along);
    const double u1 = Dot(b.points[1] - a.points[0], along);
    const double apart = std::abs(between.x * along.y - between.y * along.x);
    return apart < gap && std::min(u0, u1) < Length(a.points[1] - a.points[0]) + gap &&
           std::max(u0, u1) > -gap;
}

}  // namespace

SketchBoard::SketchBoard(const std::vector<SolidBounds>& strips, double scale, double gap, SketchXY room)
    : gap_(gap), room_(room) {
    for (const SolidBounds& strip : strips) {
        shape_.push_back({strip.left * scale, -strip.top * scale, (strip.right - strip.left) * scale,
                          (strip.top - strip.bottom) * scale});
        bounds_ = shape_.size() == 1 ? shape_.back() : Union(bounds_, shape_.back());
    }
    wholeShape_ = bounds_;
}

bool SketchBoard::IsBlocked(const SketchRect& text) const {
    const auto near = [&](double gap) {
        return [&text, gap](const SketchRect& other) { return Near(text, other, gap); };
    };
    return std::any_of(texts_.begin(), texts_.end(), near(gap_)) ||
           (Near(text, wholeShape_, gap_ + 1) && std::any_of(shape_.begin(), shape_.end(), near(gap_)));
}

double SketchBoard::CostOfText(const SketchRect& text, std::size_t owner) const {
    const SketchRect wide = Inflated(text, TextMargin);
    double cost = 0;
    for (const Drawn& drawn : lines_) {
        if (drawn.owner != owner && Near(drawn.bounds, wide, 0) && RunsThrough(drawn.line, wide)) {
            cost += TextCost(drawn.line);
        }
    }
    return cost;
}

double SketchBoard::CostOfLine(const SketchLine& line) const {
    const SketchRect bounds = BoundsOf(line);
    const bool isDimension = line.kind == SketchLineKind::Dimension;
    double cost = 0;
    for (const SketchRect& text : texts_) {
        const SketchRect wide = Inflated(text, TextMargin);
        cost += Near(bounds, wide, 0) && RunsThrough(line, wide) ? TextCost(line) : 0;
    }
    for (const Drawn& drawn : lines_) {
        if (drawn.owner || !Near(bounds, drawn.bounds, 2 * gap_)) {
            continue;
        }
        const bool both = isDimension && drawn.line.kind == SketchLineKind::Dimension;
        if (isDimension || drawn.line.kind == SketchLineKind::Dimension) {
            cost += Meet(line, drawn.line) ? LinesCross : 0;
        }
        if (isDimension) {
            cost += Crowd(line, drawn.line, both ? 2 * gap_ : gap_) ? LinesSideBySide : 0;
        }
    }
    const auto runsThrough = [&](const SketchRect& strip) {
        return Near(bounds, strip, 0) && RunsThrough(line, strip);
    };
    if (isDimension && std::any_of(shape_.begin(), shape_.end(), runsThrough)) {
        cost += LineOverShape;
    }
    return cost;
}

double SketchBoard::CostOfTexts(const SketchPlacement& placement, std::size_t owner, double limit) const {
    const SketchRect grown = Union(Union(bounds_, placement.box), placement.label);
    const double growth = Growth * (grown.width - bounds_.width + grown.height - bounds_.height);
    if (growth > limit || grown.width > room_.x || grown.height > room_.y || IsBlocked(placement.box) ||
        IsBlocked(placement.label)) {
        return std::numeric_limits<double>::infinity();
    }
    return CostOfText(placement.box, owner) + CostOfText(placement.label, owner) + growth;
}

double SketchBoard::CostOfLines(const std::vector<SketchLine>& lines) const {
    double cost = 0;
    for (const SketchLine& line : lines) {
        cost += CostOfLine(line);
    }
    return cost;
}

double SketchBoard::ShapeReach(SketchXY away, SketchXY along, double low, double high) const {
    double reach = -std::numeric_limits<double>::infinity();
    for (const SketchRect& strip : shape_) {
        const SketchXY size = {strip.width, strip.height};
        const double middle = Dot(CentreOf(strip), along);
        const double half = Extent(size, along) / 2;
        if (middle + half > low && middle - half < high) {
            reach = std::max(reach, Dot(CentreOf(strip), away) + Extent(size, away) / 2);
        }
    }
    return reach;
}

void SketchBoard::AddLine(const SketchLine& line) {
    lines_.push_back({line, BoundsOf(line), std::nullopt});
    bounds_ = Union(bounds_, lines_.back().bounds);
}

void SketchBoard::Reserve(const SketchLine& line, std::size_t owner) {
    lines_.push_back({line, BoundsOf(line), owner});
}

std::vector<SketchLine> SketchBoard::Lines() const {
    std::vector<SketchLine> lines;
    for (const Drawn& drawn : lines_) {
        if (!drawn.owner) {
            lines.push_back(drawn.line);
        }
    }
    return lines;
}

void SketchBoard::Put(const SketchPlacement& placement) {
    for (const SketchRect& text : {placement.box, placement.label}) {
        texts_.push_back(text);
        bounds_ = Union(bounds_, text);
    }
    for (const SketchLine& line : placement.lines) {
        AddLine(line);
    }
}

}  // namespace korvet
