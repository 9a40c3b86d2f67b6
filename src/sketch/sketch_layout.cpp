#include "sketch/sketch_layout.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "sketch/sketch_place.h"
#include "sketch/sketch_plane.h"

namespace korvet {
namespace {

constexpr double SmallestShape = 130;       ///< side of the square that the smallest shape would fill
constexpr double SmallestShapeInBoxes = 6;  ///< the same in heights of a box, for large fonts
/// What a shape larger by the factor e is worth, in pixels of detours of its dimensions.
constexpr double WorthOfSize = 300;
constexpr double AnyLength = 1e9;
/// What is left of the size that is easy to read, on pages that have to be low. A smaller shape has to keep
/// all of its lines.
constexpr std::array Shrunken = {1.0, 0.9, 0.8};
constexpr double CentreLineEnd = 10;  ///< of an axis beyond its ends

SketchXY OnPage(SketchXY point, double scale) {
    return {point.x * scale, -point.y * scale};
}

SketchTask TaskOf(const PageSketch& sketch, const SketchMetrics& metrics, std::size_t number, double scale) {
    const PageSketch::Dimension& d = sketch.dimensions[number];
    return {.owner = number,
            .kind = d.kind,
            .side = d.side,
            .a = OnPage(d.a, scale),
            .b = OnPage(d.b, scale),
            .vertex = OnPage(d.vertex, scale),
            .aDrawn = d.aDrawn,
            .bDrawn = d.bDrawn,
            .reach = d.reach,
            .box = metrics.box,
            .label = metrics.labels[number],
            .gap = metrics.gap,
            .arrow = metrics.arrow};
}

/// What belongs to one spot of the shape comes before what spans it, and short lines lie inside long ones.
double Rank(const SketchTask& task) {
    switch (task.kind) {
        case DimensionKind::Angle:
        case DimensionKind::Radius:
            return 0;
        case DimensionKind::Note:
            return 1e9;
        default:
            break;
    }
    const SketchXY way = Outward(task.side);
    return 1 + (way.x == 0 ? std::abs(task.a.x - task.b.x) : std::abs(task.a.y - task.b.y));
}

/// One view with all that belongs to it, about the origin of its picture.
struct ArrangedView {
    SketchRect bounds;
    std::vector<SketchLine> lines;
    double cost = 0;  ///< of all its dimensions together
};

/// All views; the fewer detours it took, the lower the cost.
struct Arranged {
    SketchLayout layout;
    double cost = 0;
    bool whole = true;  ///< no arrow head and no end of a leader had to give way to a text
};

std::ptrdiff_t ArrowHeads(const std::vector<SketchLine>& lines) {
    std::ptrdiff_t heads = 0;
    for (const SketchLine& line : lines) {
        heads += (line.arrowAtStart ? 1 : 0) + (line.arrowAtEnd ? 1 : 0);
    }
    return heads;
}

SketchLine ConstructionLine(const PageSketch::Construction& construction, double scale) {
    const SketchXY a = OnPage(construction.a, scale);
    const SketchXY b = OnPage(construction.b, scale);
    if (!construction.centre) {
        return {.kind = SketchLineKind::Extension, .points = {a, b}};
    }
    const SketchXY beyond = Direction(b - a) * CentreLineEnd;
    return {.kind = SketchLineKind::Centre, .points = {a - beyond, b + beyond}};
}

/// Lays out view `view`; the texts go to their places in `layout`, still about the view's origin. Nothing
/// when the room is too small.
std::optional<ArrangedView> ArrangeView(const PageSketch& sketch, const SketchMetrics& metrics,
                                        std::size_t view, double scale, SketchXY room, SketchLayout& layout) {
    SketchBoard board(sketch.strips[view], scale, metrics.gap, room);
    for (const PageSketch::Construction& construction : sketch.construction) {
        if (construction.view == view) {
            board.AddLine(ConstructionLine(construction, scale));
        }
    }
    if (board.IsFull()) {
        return std::nullopt;
    }
    std::vector<SketchTask> tasks;
    for (std::size_t i = 0; i < sketch.dimensions.size(); ++i) {
        if (sketch.dimensions[i].view == view) {
            tasks.push_back(TaskOf(sketch, metrics, i, scale));
            for (const SketchLine& line : FixedLines(tasks.back(), metrics.box.x * 2)) {
                board.Reserve(line, i);
            }
        }
    }
    std::stable_sort(tasks.begin(), tasks.end(),
                     [](const SketchTask& p, const SketchTask& q) { return Rank(p) < Rank(q); });
    double cost = 0;
    for (const SketchTask& task : tasks) {
        const auto placement = PlaceDimension(task, board);
        if (!placement) {
            return std::nullopt;
        }
        board.Put(*placement);
        cost += placement->cost;
        layout.boxes[task.owner] = placement->box;
        layout.labels[task.owner] = placement->label;
    }
    if (board.IsFull()) {
        return std::nullopt;
    }
    return ArrangedView{board.Bounds(), board.Lines(), cost};
}

void MoveTexts(SketchLayout& layout, const PageSketch& sketch, std::size_t view, SketchXY by) {
    for (std::size_t i = 0; i < sketch.dimensions.size(); ++i) {
        if (sketch.dimensions[i].view == view) {
            for (SketchRect* rect : {&layout.boxes[i], &layout.labels[i]}) {
                rect->x += by.x;
                rect->y += by.y;
            }
        }
    }
}

/// Adds the lines, interrupted by the texts.
void AddLines(SketchLayout& layout, std::vector<SketchLine>& lines, SketchXY by) {
    std::vector<SketchRect> texts;
    for (std::size_t i = 0; i < layout.boxes.size(); ++i) {
        texts.push_back(layout.boxes[i]);
        texts.push_back(Inflated(layout.labels[i], 1));
    }
    for (SketchLine& line : lines) {
        for (SketchXY& point : line.points) {
            point = point + by;
        }
        for (SketchLine& piece : CutAround(line, texts)) {
            layout.lines.push_back(std::move(piece));
        }
    }
}

/// Whether every box, or the label next to it, has kept the line that it belongs to.
bool BoxesTouchLines(const SketchLayout& layout, const PageSketch& sketch, double gap) {
    const auto touches = [&](const SketchRect& text) {
        return std::any_of(layout.lines.begin(), layout.lines.end(), [&](const SketchLine& line) {
            return line.kind != SketchLineKind::Centre && RunsThrough(line, Inflated(text, gap + 1));
        });
    };
    for (std::size_t i = 0; i < layout.boxes.size(); ++i) {
        const bool hasLine = sketch.dimensions[i].kind != DimensionKind::Note;
        if (hasLine && !touches(layout.boxes[i]) && !touches(layout.labels[i])) {
            return false;
        }
    }
    return true;
}

/// All views at a scale, one above the other with the model's origin on one upright line; width and height
/// are those that it needs. The pictures of the shape are left out. Nothing when the room is too small.
std::optional<Arranged> Arrange(const PageSketch& sketch, const SketchMetrics& metrics, double scale,
                                SketchXY room) {
    Arranged arranged;
    SketchLayout& layout = arranged.layout;
    layout.boxes.resize(sketch.dimensions.size());
    layout.labels.resize(sketch.dimensions.size());
    // How much of the height each of several views may have shows only when all are laid out.
    const double margins = 2 * metrics.gap;
    const SketchXY inside = {room.x - margins, sketch.pictures.size() == 1 ? room.y - margins : room.y};
    std::vector<ArrangedView> views;
    double left = 0;
    double right = 0;
    for (std::size_t view = 0; view < sketch.pictures.size(); ++view) {
        auto arrangedView = ArrangeView(sketch, metrics, view, scale, inside, layout);
        if (!arrangedView) {
            return std::nullopt;
        }
        views.push_back(std::move(*arrangedView));
        arranged.cost += views.back().cost;
        left = std::max(left, -views.back().bounds.x);
        right = std::max(right, views.back().bounds.x + views.back().bounds.width);
    }
    const double margin = metrics.gap;
    double top = margin;
    std::vector<SketchXY> origins;
    for (std::size_t view = 0; view < views.size(); ++view) {
        const SketchXY origin = {margin + left, top - views[view].bounds.y};
        MoveTexts(layout, sketch, view, origin);
        layout.solids.push_back({{}, scale, origin.x, origin.y});
        origins.push_back(origin);
        top += views[view].bounds.height + (view + 1 < views.size() ? 2 * metrics.gap : margin);
    }
    std::ptrdiff_t heads = 0;
    for (std::size_t view = 0; view < views.size(); ++view) {
        heads += ArrowHeads(views[view].lines);
        AddLines(layout, views[view].lines, origins[view]);
    }
    arranged.whole = ArrowHeads(layout.lines) == heads && BoxesTouchLines(layout, sketch, metrics.gap);
    layout.width = left + right + 2 * margin;
    layout.height = top;
    return layout.width <= room.x && layout.height <= room.y ? std::optional(std::move(arranged))
                                                             : std::nullopt;
}

double WidthOf(const SolidBounds& bounds) {
    return bounds.right - bounds.left;
}

double HeightOf(const SolidBounds& bounds) {
    return bounds.top - bounds.bottom;
}

/// The scale at which the smallest view is still easy to read.
double SmallestScale(const PageSketch& sketch, const SketchMetrics& metrics) {
    const double wanted = std::max(SmallestShape, SmallestShapeInBoxes * metrics.box.y);
    double scale = 0;
    for (const SolidPicture& picture : sketch.pictures) {
        const double size = std::sqrt(WidthOf(picture.bounds) * HeightOf(picture.bounds));
        scale = std::max(scale, size > 0 ? wanted / size : 0);
    }
    return scale > 0 ? scale : 1;
}

/// The scale at which the bare shapes would fill the page.
double LargestScale(const PageSketch& sketch, double width, double height) {
    double across = 0;
    double upright = 0;
    for (const SolidPicture& picture : sketch.pictures) {
        across = std::max(across, WidthOf(picture.bounds));
        upright += HeightOf(picture.bounds);
    }
    return across > 0 && upright > 0 ? std::min(width / across, height / upright) : 1;
}

/// Moves all of a layout to the middle of a page.
void CentreOn(SketchLayout& layout, double width, double height) {
    const SketchXY by = {std::floor((width - layout.width) / 2), std::floor((height - layout.height) / 2)};
    for (PlacedSolid& solid : layout.solids) {
        solid.originX += by.x;
        solid.originY += by.y;
    }
    for (SketchLine& line : layout.lines) {
        for (SketchXY& point : line.points) {
            point = point + by;
        }
    }
    for (std::vector<SketchRect>* rects : {&layout.boxes, &layout.labels}) {
        for (SketchRect& rect : *rects) {
            rect.x += by.x;
            rect.y += by.y;
        }
    }
    layout.width = width;
    layout.height = height;
}

/// The smallest page of SmallestSketch.
Arranged ArrangeSmallest(const PageSketch& sketch, const SketchMetrics& metrics) {
    const double scale = SmallestScale(sketch, metrics);
    const auto least = [&](double mostWidth, double SketchLayout::*size) {
        std::optional<Arranged> best;
        for (const double share : Shrunken) {
            auto arranged = Arrange(sketch, metrics, scale * share, {mostWidth, AnyLength});
            if (arranged && (arranged->whole || share == 1) &&
                (!best || arranged->layout.*size < best->layout.*size)) {
                best = std::move(arranged);
            }
        }
        return best;
    };
    auto lowest = least(metrics.mostWidth, &SketchLayout::height);
    return lowest ? std::move(*lowest) : std::move(*least(AnyLength, &SketchLayout::width));
}

/// The best of the scales at which the sketch is easy to read; nothing where the page has no room for any.
std::optional<Arranged> ArrangeLarge(const PageSketch& sketch, const SketchMetrics& metrics, SketchXY room) {
    constexpr int Tries = 24;
    const double smallest = SmallestScale(sketch, metrics);
    const double largest = std::max(smallest, LargestScale(sketch, room.x, room.y));
    // Texts do not grow with the shape: a larger shape may need less room than a smaller one, and the largest
    // that fits at all may leave its boxes poor places.
    std::optional<Arranged> best;
    for (int i = 0; i <= Tries; ++i) {
        const double growth = std::log(largest / smallest) * i / Tries;
        auto arranged = Arrange(sketch, metrics, smallest * std::exp(growth), room);
        if (arranged && arranged->whole) {
            arranged->cost -= growth * WorthOfSize;
            if (!best || arranged->cost < best->cost) {
                best = std::move(arranged);
            }
        }
    }
    return best;
}

/// In a page that is too low for that, the largest shape of those that have room.
Arranged ArrangeShrunken(const PageSketch& sketch, const SketchMetrics& metrics, SketchXY room) {
    for (const double share : Shrunken) {
        auto arranged = Arrange(sketch, metrics, SmallestScale(sketch, metrics) * share, room);
        if (arranged && arranged->whole) {
            return std::move(*arranged);
        }
    }
    return ArrangeSmallest(sketch, metrics);
}

}  // namespace

SketchXY SmallestSketch(const PageSketch& sketch, const SketchMetrics& metrics) {
    const SketchLayout layout = ArrangeSmallest(sketch, metrics).layout;
    return {std::ceil(layout.width), std::ceil(layout.height)};
}

SketchLayout LayoutSketch(const PageSketch& sketch, const SketchMetrics& metrics, double width,
                          double height) {
    auto large = ArrangeLarge(sketch, metrics, {width, height});
    Arranged best = large ? std::move(*large) : ArrangeShrunken(sketch, metrics, {width, height});
    SketchLayout layout = std::move(best.layout);
    for (std::size_t view = 0; view < sketch.pictures.size(); ++view) {
        layout.solids[view].picture = sketch.pictures[view];
    }
    CentreOn(layout, width, height);
    return layout;
}

}  // namespace korvet
