#include "exchange/cut_loops.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <map>
#include <optional>
#include <tuple>

#include "core/math_module.h"

namespace korvet {
namespace {

BoxTree TreeOf(const CutNodes& nodes, const std::vector<std::size_t>& places) {
    std::vector<Bounds> boxes;
    boxes.reserve(places.size());
    for (const std::size_t place : places) {
        const C3DPoint& point = nodes.places[place];
        boxes.push_back({point.x, point.y, point.x, point.y});
    }
    return BoxTree(std::move(boxes));
}

std::vector<CutCurve> CurvesOf(std::span<const CutLoop> loops) {
    std::vector<CutCurve> curves;
    for (const CutLoop& loop : loops) {
        curves.insert(curves.end(), loop.curves.begin(), loop.curves.end());
    }
    return curves;
}

std::vector<Bounds> BoxesOf(const std::vector<CutCurve>& curves) {
    std::vector<Bounds> boxes;
    boxes.reserve(curves.size());
    std::transform(curves.begin(), curves.end(), std::back_inserter(boxes), BoundsOf);
    return boxes;
}

/// The ends between which stretches run, those taken as one that a gap was bridged between.
class Ends {
  public:
    Ends(const CutNodes& nodes, const std::vector<std::size_t>& stretches) : nodes_(nodes) {
        for (const std::size_t number : stretches) {
            ++degrees_[nodes.stretches[number].a];
            ++degrees_[nodes.stretches[number].b];
        }
    }

    /// Joins each end at which an odd number of stretches stops to the nearest other one.
    void Bridge(JoinedLoops& joined) {
        std::vector<std::size_t> loose;
        for (const auto& [node, degree] : degrees_) {
            if (degree % 2 == 1) {
                loose.push_back(node);
            }
        }
        const BoxTree tree = TreeOf(nodes_, loose);
        std::vector<bool> isBridged(loose.size());
        for (const auto& [gap, i, j] : NarrowGaps(loose, tree)) {
            if (!isBridged[i] && !isBridged[j]) {
                isBridged[i] = isBridged[j] = true;
                bridged_[loose[j]] = loose[i];
                joined.widestGap = gap;  // they come by their width
            }
        }
        for (std::size_t i = 0; i < loose.size(); ++i) {
            if (!isBridged[i]) {
                const C3DPoint& place = nodes_.places[loose[i]];
                const double toNext = tree.Nearest(place.x, place.y, [&](std::size_t j) {
                    return i == j ? std::numeric_limits<double>::infinity()
                                  : Distance3D(place, nodes_.places[loose[j]]);
                });
                joined.openEnds.push_back({place, toNext});
            }
        }
    }

    [[nodiscard]] std::size_t At(std::size_t node) const {
        const auto found = bridged_.find(node);
        return found != bridged_.end() ? found->second : node;
    }

  private:
    using Gap = std::tuple<double, std::size_t, std::size_t>;

    [[nodiscard]] std::vector<Gap> NarrowGaps(const std::vector<std::size_t>& loose,
                                              const BoxTree& tree) const {
        std::vector<Gap> gaps;
        for (std::size_t i = 0; i < loose.size(); ++i) {
            const C3DPoint& place = nodes_.places[loose[i]];
            tree.Find([&](const Bounds& box) { return DistanceOf(box, place.x, place.y) <= LargestGap; },
                      [&](std::size_t j) {
                          if (i < j) {
                              gaps.emplace_back(Distance3D(place, nodes_.places[loose[j]]), i, j);
                          }
                      });
        }
        std::sort(gaps.begin(), gaps.end());
        return gaps;
    }

    const CutNodes& nodes_;
    std::map<std::size_t, std::size_t> degrees_;
    std::map<std::size_t, std::size_t> bridged_;
};

/// Walks along stretches until all are used up, and takes out a loop wherever the way meets itself.
class LoopWalk {
  public:
    LoopWalk(const PieceCurves& curves, const CutNodes& nodes, const std::vector<std::size_t>& stretches,
             const Ends& ends)
        : curves_(curves), nodes_(nodes), stretches_(stretches), ends_(ends), isUsed_(stretches.size()) {
        for (std::size_t i = 0; i < stretches.size(); ++i) {
            const CutStretch& stretch = nodes.stretches[stretches[i]];
            ways_[ends.At(stretch.a)].push_back(i);
            ways_[ends.At(stretch.b)].push_back(i);
        }
    }

    std::vector<CutLoop> Loops() {
        for (const std::size_t number : stretches_) {
            WalkFrom(ends_.At(nodes_.stretches[number].a));
        }
        return std::move(loops_);
    }

  private:
    struct Step {
        std::size_t node;  ///< at which it begins
        std::size_t stretch;
        bool forward;
    };

    void WalkFrom(std::size_t node) {
        while (true) {
            const auto met = onPath_.find(node);
            if (met != onPath_.end()) {
                TakeLoop(met->second);
            }
            const std::optional<std::size_t> way = NextWay(node);
            if (!way) {
                break;
            }
            onPath_[node] = path_.size();
            const CutStretch& stretch = nodes_.stretches[stretches_[*way]];
            const bool forward = ends_.At(stretch.a) == node;
            path_.push_back({node, stretches_[*way], forward});
            node = ends_.At(forward ? stretch.b : stretch.a);
        }
        path_.clear();
        onPath_.clear();
    }

    std::optional<std::size_t> NextWay(std::size_t node) {
        std::vector<std::size_t>& ways = ways_[node];
        while (!ways.empty()) {
            const std::size_t way = ways.back();
            ways.pop_back();
            if (!isUsed_[way]) {
                isUsed_[way] = true;
                return way;
            }
        }
        return std::nullopt;
    }

    void TakeLoop(std::size_t first) {
        CutLoop loop;
        double length = 0;
        const C3DPoint origin = nodes_.places[path_[first].node];
        for (std::size_t i = first; i < path_.size(); ++i) {
            const Step& step = path_[i];
            const CutCurve shape = ShapeOf(curves_, nodes_.stretches[step.stretch]);
            loop.curves.push_back(shape);
            length += LengthOf(shape);
            loop.area += SweptArea(shape, origin) * (step.forward ? 1 : -1);
            onPath_.erase(step.node);
        }
        loop.area = std::fabs(loop.area);
        path_.resize(first);
        if (length > 2 * LargestGap) {  // else two ends that overlap a little
            loops_.push_back(std::move(loop));
        }
    }

    const PieceCurves& curves_;
    const CutNodes& nodes_;
    const std::vector<std::size_t>& stretches_;
    const Ends& ends_;
    std::vector<bool> isUsed_;
    std::map<std::size_t, std::vector<std::size_t>> ways_;
    std::map<std::size_t, std::size_t> onPath_;
    std::vector<Step> path_;
    std::vector<CutLoop> loops_;
};

}  // namespace

JoinedLoops JoinLoops(const PieceCurves& curves, const CutNodes& nodes,
                      const std::vector<std::size_t>& stretches) {
    JoinedLoops joined;
    Ends ends(nodes, stretches);
    ends.Bridge(joined);
    if (joined.openEnds.empty()) {
        joined.loops = LoopWalk(curves, nodes, stretches, ends).Loops();
    }
    return joined;
}

LoopRegion::LoopRegion(std::span<const CutLoop> loops) : curves_(CurvesOf(loops)), tree_(BoxesOf(curves_)) {}

bool LoopRegion::Contains(const C3DPoint& point) const {
    bool inside = false;
    tree_.Find(
        [&](const Bounds& box) { return box.minY <= point.y && box.maxY >= point.y && box.maxX >= point.x; },
        [&](std::size_t i) { inside = inside != CrossesRay(curves_[i], point); });
    return inside;
}

C3DPoint PointOf(const CutLoop& loop) {
    const auto longest =
        std::max_element(loop.curves.begin(), loop.curves.end(),
                         [](const CutCurve& a, const CutCurve& b) { return LengthOf(a) < LengthOf(b); });
    return longest == loop.curves.end() ? C3DPoint() : PointAt(*longest, 0.5);
}

double AreaOf(const std::vector<CutLoop>& loops) {
    std::vector<LoopRegion> insides;
    insides.reserve(loops.size());
    for (const CutLoop& loop : loops) {
        insides.emplace_back(std::span(&loop, 1));
    }
    double area = 0;
    for (std::size_t i = 0; i < loops.size(); ++i) {
        bool inAnother = false;
        for (std::size_t j = 0; j < loops.size(); ++j) {
            inAnother = inAnother != (i != j && insides[j].Contains(PointOf(loops[i])));
        }
        area += inAnother ? -loops[i].area : loops[i].area;
    }
    return area;
}

}  // namespace korvet
