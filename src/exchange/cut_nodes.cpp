#include "exchange/cut_nodes.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

#include "core/math_module.h"
#include "exchange/box_tree.h"

namespace korvet {
namespace {

/// Gives each end the number of the nearest end before it that lies within SamePlace. The places stand in
/// chains, one for all those cells of the plan that fall together.
class Places {
  public:
    Places(std::vector<C3DPoint>& places, std::size_t mostPlaces)
        : places_(places), heads_(std::bit_ceil(mostPlaces + 1), None) {}

    std::size_t NumberOf(const C3DPoint& point) {
        std::size_t found = None;
        double least = SamePlace;
        for (std::int64_t i = Cell(point.x - SamePlace); i <= Cell(point.x + SamePlace); ++i) {
            for (std::int64_t j = Cell(point.y - SamePlace); j <= Cell(point.y + SamePlace); ++j) {
                for (std::size_t place = HeadOf(i, j); place != None; place = next_[place]) {
                    const double distance = Distance3D(places_[place], point);
                    if (distance <= least) {
                        least = distance;
                        found = place;
                    }
                }
            }
        }
        if (found == None) {
            std::size_t& head = HeadOf(Cell(point.x), Cell(point.y));
            found = places_.size();
            next_.push_back(head);
            head = found;
            places_.push_back(point);
        }
        return found;
    }

  private:
    static constexpr std::size_t None = std::numeric_limits<std::size_t>::max();

    /// So wide that hardly a place lies near the rim of its cell.
    static constexpr double CellSize = 64 * SamePlace;

    static std::int64_t Cell(double coordinate) {
        return static_cast<std::int64_t>(std::floor(coordinate / CellSize));
    }

    /// The last place of the chain of a cell.
    std::size_t& HeadOf(std::int64_t column, std::int64_t row) {
        const std::uint64_t key = static_cast<std::uint64_t>(column) * 0x9E3779B97F4A7C15U ^
                                  static_cast<std::uint64_t>(row) * 0xC2B2AE3D27D4EB4FU;
        return heads_[(key ^ key >> 32U) & (heads_.size() - 1)];
    }

    std::vector<C3DPoint>& places_;
    std::vector<std::size_t> heads_;
    std::vector<std::size_t> next_;  ///< by place: the one before it in its chain
};

/// The nodes at the start and at the end of each curve; those of one without length do not count.
std::vector<std::pair<std::size_t, std::size_t>> EndsOf(const PieceCurves& curves,
                                                        std::vector<C3DPoint>& places) {
    Places known(places, 2 * curves.size());
    std::vector<std::pair<std::size_t, std::size_t>> ends;
    ends.reserve(curves.size());
    for (const PieceCurve& own : curves) {
        const bool isThere = LengthOf(own.curve) > SamePlace;
        const std::size_t a = isThere ? known.NumberOf(own.curve.start) : 0;
        ends.emplace_back(a, isThere ? known.NumberOf(own.curve.end) : 0);
    }
    return ends;
}

/// Whether the curve may come as near as SamePlace to a point in the box.
bool Reaches(const CutCurve& curve, const Bounds& ofCurve, const Bounds& box) {
    if (box.minX > ofCurve.maxX + SamePlace || box.maxX < ofCurve.minX - SamePlace ||
        box.minY > ofCurve.maxY + SamePlace || box.maxY < ofCurve.minY - SamePlace) {
        return false;
    }
    const double x = (box.minX + box.maxX) / 2;
    const double y = (box.minY + box.maxY) / 2;
    const double halfDiagonal = Distance3D({box.minX, box.minY}, {box.maxX, box.maxY}) / 2;
    return DistanceOf(curve, {x, y}) <= halfDiagonal + SamePlace;
}

/// Cuts curves where nodes lie on them.
class Divider {
  public:
    explicit Divider(CutNodes& nodes) : nodes_(nodes), tree_(PointBoxes(nodes.places)) {}

    void Divide(const CutCurve& curve, std::size_t number, std::size_t a, std::size_t b) {
        FindNodesOn(curve, a, b);
        double from = 0;
        std::size_t last = a;
        for (const auto& [part, node] : on_) {
            Add(number, {from, part}, {last, node});
            from = part;
            last = node;
        }
        Add(number, {from, 1}, {last, b});
    }

  private:
    static std::vector<Bounds> PointBoxes(const std::vector<C3DPoint>& places) {
        std::vector<Bounds> boxes;
        boxes.reserve(places.size());
        for (const C3DPoint& place : places) {
            boxes.push_back({place.x, place.y, place.x, place.y});
        }
        return boxes;
    }

    /// The nodes on the curve between its own, by their parts of its length.
    void FindNodesOn(const CutCurve& curve, std::size_t a, std::size_t b) {
        on_.clear();
        const Bounds ofCurve = BoundsOf(curve);
        tree_.Find([&](const Bounds& box) { return Reaches(curve, ofCurve, box); },
                   [&](std::size_t node) {
                       const C3DPoint& place = nodes_.places[node];
                       if (node != a && node != b && DistanceOf(curve, place) <= SamePlace) {
                           on_.emplace_back(NearestPart(curve, place), node);
                       }
                   });
        std::sort(on_.begin(), on_.end());
    }

    void Add(std::size_t number, std::pair<double, double> parts, std::pair<std::size_t, std::size_t> ends) {
        nodes_.stretches.push_back(
            {parts.first, parts.second, number, ends.first, ends.second, nodes_.stretches.size()});
    }

    CutNodes& nodes_;
    BoxTree tree_;
    std::vector<std::pair<double, std::size_t>> on_;
};

/// Finds for each stretch the first one with the same ends and the same middle.
void FindSame(const PieceCurves& curves, std::vector<CutStretch>& stretches) {
    std::vector<std::pair<std::pair<std::size_t, std::size_t>, std::size_t>> byEnds;  // and by number
    byEnds.reserve(stretches.size());
    for (std::size_t i = 0; i < stretches.size(); ++i) {
        byEnds.emplace_back(std::minmax(stretches[i].a, stretches[i].b), i);
    }
    std::sort(byEnds.begin(), byEnds.end());
    std::vector<std::size_t> known;  // between the same ends
    for (std::size_t k = 0; k < byEnds.size(); ++k) {
        const std::size_t i = byEnds[k].second;
        if (k == 0 || byEnds[k].first != byEnds[k - 1].first) {
            known.clear();
        }
        const C3DPoint middle = PointAt(ShapeOf(curves, stretches[i]), 0.5);
        const auto same = std::find_if(known.begin(), known.end(), [&](std::size_t other) {
            return DistanceOf(ShapeOf(curves, stretches[other]), middle) <= SamePlace;
        });
        if (same != known.end()) {
            stretches[i].same = *same;
        } else {
            known.push_back(i);
        }
    }
}

}  // namespace

CutCurve ShapeOf(const PieceCurves& curves, const CutStretch& stretch) {
    const CutCurve& curve = curves[stretch.curve].curve;
    return stretch.IsWhole() ? curve : SectionOf(curve, stretch.from, stretch.to);
}

CutNodes NodesOf(const PieceCurves& curves) {
    CutNodes nodes;
    nodes.stretches.reserve(curves.size());
    const auto ends = EndsOf(curves, nodes.places);
    Divider divider(nodes);
    for (std::size_t i = 0; i < curves.size(); ++i) {
        if (LengthOf(curves[i].curve) > SamePlace) {
            divider.Divide(curves[i].curve, i, ends[i].first, ends[i].second);
        }
    }
    FindSame(curves, nodes.stretches);
    return nodes;
}

}  // namespace korvet
