#include "sketch/sketch_place.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace korvet {
namespace {

constexpr double ExtensionStart = 3;  ///< between the shape and its extension line
constexpr double ExtensionEnd = 5;    ///< beyond the dimension line
constexpr double TextGap = 2;         ///< between a box and its label
constexpr double BesideGap = 4;       ///< between a dimension line and a box beside it
constexpr double Step = 6;            ///< from one distance tried to the next
constexpr double FarthestPlace = 2400;
constexpr double FullCircle = 2 * std::numbers::pi;

// What the less usual places are worth to be avoided, in pixels of distance.
constexpr double BesideCost = 40;
constexpr double AtEndCost = 50;
constexpr double NotOnLineCost = 70;  ///< where the box would have had room on its line
constexpr double OddLabelCost = 8;
constexpr double WrongWayCost = 60;
constexpr double OverOwnLineCost = 100;

/// The cheapest of the placements that were tried.
class Choice {
  public:
    Choice(const SketchBoard& board, std::size_t owner) : board_(board), owner_(owner) {}

    /// The lines that all further placements have in common, and what these cost before anything else.
    void Begin(std::vector<SketchLine> lines, double cost) {
        lines_ = std::move(lines);
        common_ = cost + board_.CostOfLines(lines_);
    }

    /// Whether a placement could still win that costs `cost` more than its lines.
    [[nodiscard]] bool IsOpen(double cost) const { return IsWorth(common_ + cost); }

    /// Whether anything could still win that costs `cost` in all.
    [[nodiscard]] bool IsWorth(double cost) const { return cost < best_; }

    /// The steps outward after which there is no room anyway.
    [[nodiscard]] int Steps() const {
        return static_cast<int>(std::min(board_.Reach(), FarthestPlace) / Step);
    }

    /// Tries texts without lines of their own.
    void Try(SketchPlacement placement, double extra) {
        Try(std::move(placement), extra, [](const SketchPlacement&) { return 0.0; });
    }

    /// Tries texts. Those that have room are given to `finish`, which adds the lines that they have besides
    /// and tells what else speaks against them.
    template <typename Finish>
    void Try(SketchPlacement placement, double extra, Finish finish) {
        if (!IsOpen(extra)) {
            return;
        }
        double cost = common_ + extra;
        cost += board_.CostOfTexts(placement, owner_, best_ - cost + 1);
        if (cost >= best_) {
            return;
        }
        cost += finish(placement) + board_.CostOfLines(placement.lines);
        if (cost < best_) {
            best_ = cost;
            placement_ = std::move(placement);
            placement_.cost = cost;
            placement_.lines.insert(placement_.lines.end(), lines_.begin(), lines_.end());
        }
    }

    /// Whether a text would lie over a line that all placements have in common.
    [[nodiscard]] bool IsOverLines(const SketchRect& text) const {
        return std::any_of(lines_.begin(), lines_.end(),
                           [&](const SketchLine& line) { return RunsThrough(line, Inflated(text, 4)); });
    }

    [[nodiscard]] std::optional<SketchPlacement> Best() const {
        return best_ < std::numeric_limits<double>::infinity() ? std::optional(placement_) : std::nullopt;
    }

  private:
    const SketchBoard& board_;
    std::size_t owner_;
    std::vector<SketchLine> lines_;
    double common_ = 0;
    double best_ = std::numeric_limits<double>::infinity();
    SketchPlacement placement_;
};

SketchXY BlockSize(const SketchTask& task) {
    return {std::max(task.box.x, task.label.x), task.box.y + TextGap + task.label.y};
}

/// Box and label one above the other, with the middle of both together at `centre`.
SketchPlacement BlockAt(const SketchTask& task, SketchXY centre, bool labelAbove) {
    const double way = labelAbove ? 1 : -1;
    const SketchXY toBox = {0, way * (task.label.y + TextGap) / 2};
    const SketchXY toLabel = {0, -way * (task.box.y + TextGap) / 2};
    return {.box = RectAbout(centre + toBox, task.box), .label = RectAbout(centre + toLabel, task.label)};
}

/// The same with the middle of the box at `centre`.
SketchPlacement BoxAt(const SketchTask& task, SketchXY centre, bool labelAbove) {
    const double way = labelAbove ? 1 : -1;
    return BlockAt(task, centre - SketchXY{0, way * (task.label.y + TextGap) / 2}, labelAbove);
}

/// A dimension line's own directions: along it, and away from the shape.
struct LineFrame {
    SketchXY along;
    SketchXY away;
    double low;  ///< the ends along the line
    double high;
    SketchXY lowPoint;
    SketchXY highPoint;
    bool level;  ///< the line lies more level than upright: the box alone stands on it

    [[nodiscard]] SketchXY At(double u, double v) const { return along * u + away * v; }
    [[nodiscard]] double Span() const { return high - low; }
    [[nodiscard]] double Middle() const { return (low + high) / 2; }
};

LineFrame FrameOf(const SketchTask& task) {
    LineFrame frame = {};
    frame.away = Outward(task.side);
    if (task.kind == DimensionKind::Aligned) {
        const SketchXY line = Direction(task.b - task.a);
        const SketchXY across = {-line.y, line.x};
        frame.away = Dot(across, frame.away) < 0 ? across * -1 : across;
    }
    // To the right, or downward for an upright line.
    const SketchXY square = {-frame.away.y, frame.away.x};
    frame.along = square.x < 0 || (square.x == 0 && square.y < 0) ? square * -1 : square;
    const double a = Dot(task.a, frame.along);
    const double b = Dot(task.b, frame.along);
    frame.low = std::min(a, b);
    frame.high = std::max(a, b);
    frame.lowPoint = a < b ? task.a : task.b;
    frame.highPoint = a < b ? task.b : task.a;
    frame.level = std::abs(frame.along.x) > 0.7;
    return frame;
}

/// The extension lines and the dimension line at distance v, without regard to texts. A line too short for
/// its arrow heads has them outside.
std::vector<SketchLine> DimensionLines(const SketchTask& task, const LineFrame& frame, double v) {
    std::vector<SketchLine> lines;
    for (const SketchXY& point : {frame.lowPoint, frame.highPoint}) {
        const double from = Dot(point, frame.away) + ExtensionStart;
        const double u = Dot(point, frame.along);
        if (from < v) {
            lines.push_back({.kind = SketchLineKind::Extension,
                             .points = {frame.At(u, from), frame.At(u, v + ExtensionEnd)}});
        }
    }
    const bool inside = frame.Span() >= 3 * task.arrow;
    lines.push_back({.points = {frame.At(frame.low, v), frame.At(frame.high, v)},
                     .arrowAtStart = inside,
                     .arrowAtEnd = inside});
    if (!inside) {
        const double tail = 2 * task.arrow;
        lines.push_back(
            {.points = {frame.At(frame.low - tail, v), frame.At(frame.low, v)}, .arrowAtEnd = true});
        lines.push_back(
            {.points = {frame.At(frame.high + tail, v), frame.At(frame.high, v)}, .arrowAtEnd = true});
    }
    return lines;
}

/// What the ends of a dimension line leave free to either side of a box on it; negative when it has no room.
double RoomOnLine(const SketchTask& task, const LineFrame& frame) {
    const double size = Extent(frame.level ? task.box : BlockSize(task), frame.along);
    return (frame.Span() - size) / 2 - task.arrow - 4;
}

/// Tries the places on the line itself: its middle first, then to both sides of it.
void TryOnLine(const SketchTask& task, const LineFrame& frame, double v, Choice& choice) {
    const double room = RoomOnLine(task, frame);
    if (room < 0) {
        return;
    }
    for (int i = 0; i <= 4; ++i) {
        for (const double way : {1.0, -1.0}) {
            const double slide = way * room * i / 4;
            for (const bool labelAbove : {true, false}) {
                const SketchXY centre = frame.At(frame.Middle() + slide, v);
                const SketchPlacement placement =
                    frame.level ? BoxAt(task, centre, labelAbove) : BlockAt(task, centre, labelAbove);
                const bool usual = labelAbove == !(frame.level && frame.away.y > 0);
                choice.Try(placement, std::abs(slide) * 0.3 + (usual ? 0 : OddLabelCost));
            }
        }
    }
}

/// Tries the places beside the line, away from the shape.
void TryBeside(const SketchTask& task, const LineFrame& frame, double v, double cost, Choice& choice) {
    const SketchXY block = BlockSize(task);
    const double across = Extent(block, frame.away);
    const double along = Extent(block, frame.along);
    for (const double slide : {0.0, 0.25, -0.25, 0.42, -0.42}) {
        const SketchXY centre = frame.At(frame.Middle() + slide * along, v + BesideGap + across / 2);
        // The box is next to the line, the label behind it.
        choice.Try(BlockAt(task, centre, !(frame.level && frame.away.y > 0)),
                   cost + BesideCost + std::abs(slide) * along * 0.3);
    }
}

/// Tries the places beyond both ends of the line, which goes on to the box.
void TryAtEnds(const SketchTask& task, const LineFrame& frame, double v, double cost, Choice& choice) {
    const double size = Extent(frame.level ? task.box : BlockSize(task), frame.along);
    for (const double way : {1.0, -1.0}) {
        const double end = way > 0 ? frame.high : frame.low;
        const double u = end + way * (2.5 * task.arrow + size / 2);
        for (const bool labelAbove : {true, false}) {
            SketchPlacement placement = frame.level ? BoxAt(task, frame.At(u, v), labelAbove)
                                                    : BlockAt(task, frame.At(u, v), labelAbove);
            choice.Try(std::move(placement), cost + AtEndCost, [&](SketchPlacement& finished) {
                finished.lines.push_back({.points = {frame.At(end, v), frame.At(u, v)}});
                return 0.0;
            });
        }
    }
}

std::optional<SketchPlacement> PlaceLine(const SketchTask& task, const SketchBoard& board) {
    const LineFrame frame = FrameOf(task);
    Choice choice(board, task.owner);
    const double notOnLine = RoomOnLine(task, frame) < 0 ? 0 : NotOnLineCost;
    const double shape = board.ShapeReach(frame.away, frame.along, frame.low, frame.high);
    const double nearest = std::max(
        {shape + task.gap, Dot(task.a, frame.away) + 2 * task.gap, Dot(task.b, frame.away) + 2 * task.gap});
    for (int i = 0; i < choice.Steps() && choice.IsWorth(i * Step); ++i) {
        const double v = nearest + i * Step;
        choice.Begin(DimensionLines(task, frame, v), i * Step);
        TryOnLine(task, frame, v, choice);
        TryBeside(task, frame, v, notOnLine, choice);
        TryAtEnds(task, frame, v, notOnLine, choice);
    }
    return choice.Best();
}

/// Tries box and label about a place near a point, with a leader to the closer one of them.
void TryBlock(const SketchTask& task, SketchXY centre, SketchXY point, double cost, const SketchLine& leader,
              Choice& choice) {
    for (const bool labelAbove : {true, false}) {
        const SketchPlacement placement = BlockAt(task, centre, labelAbove);
        const SketchXY onBox = ClosestPoint(placement.box, point);
        const SketchXY onLabel = ClosestPoint(placement.label, point);
        const bool toBox = Length(onBox - point) <= Length(onLabel - point) + TextGap;
        const double extra = cost + (labelAbove ? 0 : OddLabelCost) + (toBox ? 0 : OddLabelCost);
        choice.Try(placement, extra, [&](SketchPlacement& finished) {
            if (!leader.points.empty()) {
                finished.lines.push_back(leader);
                finished.lines.back().points = {toBox ? onBox : onLabel, point};
            }
            const bool over = choice.IsOverLines(finished.box) || choice.IsOverLines(finished.label);
            return over ? OverOwnLineCost : 0.0;
        });
    }
}

/// Tries the places all round a point, with a leader from the box to it; a leader without points is none.
void TryAround(const SketchTask& task, SketchXY point, SketchXY preferred, const SketchLine& leader,
               Choice& choice) {
    constexpr int Ways = 24;
    const SketchXY block = BlockSize(task);
    for (int i = 0; i < choice.Steps() && choice.IsOpen(i * Step); ++i) {
        for (int k = 0; k < Ways; ++k) {
            const double angle = FullCircle * k / Ways;
            const SketchXY way = {std::cos(angle), std::sin(angle)};
            const double turned = Dot(way, preferred);
            // To the rim of the block, and then the gap that the leader bridges.
            const double toRim = std::min(block.x / 2 / std::max(std::abs(way.x), 1e-9),
                                          block.y / 2 / std::max(std::abs(way.y), 1e-9));
            const SketchXY centre = point + way * (toRim + 2 * task.gap + i * Step);
            const double cost = i * Step + 20 * (1 - turned) + (turned < -0.1 ? WrongWayCost : 0);
            if (choice.IsOpen(cost)) {
                TryBlock(task, centre, point, cost, leader, choice);
            }
        }
    }
}

SketchLine Arc(SketchXY centre, double radius, double from, double to) {
    constexpr int Pieces = 32;
    SketchLine arc;
    for (int i = 0; i <= Pieces; ++i) {
        const double angle = from + (to - from) * i / Pieces;
        arc.points.push_back(centre + SketchXY{std::cos(angle), std::sin(angle)} * radius);
    }
    return arc;
}

/// The thin line that carries a ray on to its arc; none where the shape shows the ray all the way.
void AddRay(const SketchTask& task, SketchXY end, bool drawn, double radius, std::vector<SketchLine>& lines) {
    const SketchXY way = Direction(end - task.vertex);
    const double from = drawn ? Length(end - task.vertex) + ExtensionStart : 0;
    if (from < radius) {
        lines.push_back({.kind = SketchLineKind::Extension,
                         .points = {task.vertex + way * from, task.vertex + way * (radius + ExtensionEnd)}});
    }
}

std::optional<SketchPlacement> PlaceAngle(const SketchTask& task, const SketchBoard& board) {
    const SketchXY toA = task.a - task.vertex;
    const SketchXY toB = task.b - task.vertex;
    const double radius = Length(toA) * task.reach;
    const double from = std::atan2(toA.y, toA.x);
    const double to = from + std::remainder(std::atan2(toB.y, toB.x) - from, FullCircle);
    std::vector<SketchLine> lines;
    AddRay(task, task.a, task.aDrawn, radius, lines);
    AddRay(task, task.b, task.bDrawn, radius, lines);
    const bool inside = std::abs(to - from) * radius >= 3 * task.arrow;
    lines.push_back(Arc(task.vertex, radius, from, to));
    lines.back().arrowAtStart = lines.back().arrowAtEnd = inside;
    if (!inside) {
        const double tail = std::copysign(2 * task.arrow / std::max(radius, 1.0), to - from);
        for (const auto& [start, end] : {std::pair(from - tail, from), std::pair(to + tail, to)}) {
            lines.push_back(Arc(task.vertex, radius, start, end));
            lines.back().arrowAtEnd = true;
        }
    }
    Choice choice(board, task.owner);
    for (const double part : {0.5, 0.3, 0.7}) {
        const double angle = from + (to - from) * part;
        const SketchXY point = task.vertex + SketchXY{std::cos(angle), std::sin(angle)} * radius;
        choice.Begin(lines, part == 0.5 ? 0 : 3);
        TryAround(task, point, Outward(task.side), {.kind = SketchLineKind::Extension, .points = {point}},
                  choice);
    }
    return choice.Best();
}

std::optional<SketchPlacement> PlaceRadius(const SketchTask& task, const SketchBoard& board) {
    Choice choice(board, task.owner);
    const SketchXY preferred = Direction(Direction(task.a - task.b) + Outward(task.side));
    TryAround(task, task.a, preferred, {.points = {task.a}, .arrowAtEnd = true}, choice);
    return choice.Best();
}

std::optional<SketchPlacement> PlaceNote(const SketchTask& task, const SketchBoard& board) {
    Choice choice(board, task.owner);
    const SketchXY way = Outward(task.side);
    const SketchRect& bounds = board.Bounds();
    const SketchXY anchor = CentreOf(bounds) + SketchXY{way.x * bounds.width / 2, way.y * bounds.height / 2};
    TryAround(task, anchor, way, {}, choice);
    return choice.Best();
}

}  // namespace

SketchXY Outward(Side side) {
    switch (side) {
        case Side::Left:
            return {-1, 0};
        case Side::Right:
            return {1, 0};
        case Side::Above:
            return {0, -1};
        case Side::Below:
            break;
    }
    return {0, 1};
}

std::vector<SketchLine> FixedLines(const SketchTask& task, double length) {
    std::vector<SketchLine> lines;
    if (task.kind == DimensionKind::Linear) {
        const SketchXY way = Outward(task.side);
        for (const SketchXY& point : {task.a, task.b}) {
            lines.push_back({.kind = SketchLineKind::Extension, .points = {point, point + way * length}});
        }
    }
    return lines;
}

std::optional<SketchPlacement> PlaceDimension(const SketchTask& task, const SketchBoard& board) {
    switch (task.kind) {
        case DimensionKind::Linear:
        case DimensionKind::Aligned:
            return PlaceLine(task, board);
        case DimensionKind::Angle:
            return PlaceAngle(task, board);
        case DimensionKind::Radius:
            return PlaceRadius(task, board);
        case DimensionKind::Note:
            break;
    }
    return PlaceNote(task, board);
}

}  // namespace korvet
