#include "exchange/cut_nodes.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <unordered_map>
#include <utility>

#include "core/math_module.h"
#include "exchange/box_tree.h"

namespace korvet {
namespace {

/// Gives each end the number of the first end that lies within SamePlace of it.
class Places {
  public:
    explicit Places(std::vector<C3DPoint>& places) : places_(places) {}

    std::size_t NumberOf(const C3DPoint& point) {
        const std::int64_t column = Cell(point.x);
        const std::int64_t row = Cell(point.y);
        for (std::int64_t i = column - 1; i <= column + 1; ++i) {
            for (std::int64_t j = row - 1; j <= row + 1; ++j) {
                const auto [first, last] = cells_.equal_range(Key(i, j));
                for (auto place = first; place != last; ++place) {
                    const C3DPoint& known = places_[place->second];
                    if (Distance3D(known, point) <= SamePlace) {
                        return place->second;
                    }
                }
            }
        }
        cells_.emplace(Key(column, row), places_.size());
        places_.push_back(point);
        return places_.size() - 1;
    }

  private:
    static std::int64_t Cell(double coordinate) {
        return static_cast<std::int64_t>(std::floor(coordinate / SamePlace));
    }

    static std::uint64_t Key(std::int64_t column, std::int64_t row) {
        return static_cast<std::uint64_t>(column) * 0x9E3779B97F4A7C15U ^
               static_cast<std::uint64_t>(row) * 0xC2B2AE3D27D4EB4FU;
    }

    std::vector<C3DPoint>& places_;
    std::unordered_multimap<std::uint64_t, std::size_t> cells_;
};

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
            Add(curve, number, {from, part}, {last, node});
            from = part;
            last = node;
        }
        Add(curve, number, {from, 1}, {last, b});
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

    void Add(const CutCurve& curve, std::size_t number, std::pair<double, double> parts,
             std::pair<std::size_t, std::size_t> ends) {
        const auto whole = parts.first == 0 && parts.second == 1;
        const CutCurve shape = whole ? curve : SectionOf(curve, parts.first, parts.second);
        nodes_.stretches.push_back({shape, number, ends.first, ends.second, nodes_.stretches.size()});
    }

    CutNodes& nodes_;
    BoxTree tree_;
    std::vector<std::pair<double, std::size_t>> on_;
};

/// Finds for each stretch the first one with the same ends and the same middle.
void FindSame(std::vector<CutStretch>& stretches) {
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
        const C3DPoint middle = PointAt(stretches[i].shape, 0.5);
        const auto same = std::find_if(known.begin(), known.end(), [&](std::size_t other) {
            return DistanceOf(stretches[other].shape, middle) <= SamePlace;
        });
        if (same != known.end()) {
            stretches[i].same = *same;
        } else {
            known.push_back(i);
        }
    }
}

}  // namespace

CutNodes NodesOf(const PieceCurves& curves) {
    CutNodes nodes;
    nodes.stretches.reserve(curves.size());
    Places places(nodes.places);
    std::vector<std::pair<std::size_t, std::size_t>> ends;
    ends.reserve(curves.size());
    for (const PieceCurve& own : curves) {
        const bool isThere = LengthOf(own.curve) > SamePlace;
        const std::size_t a = isThere ? places.NumberOf(own.curve.start) : 0;
        ends.emplace_back(a, isThere ? places.NumberOf(own.curve.end) : 0);
    }
    Divider divider(nodes);
    for (std::size_t i = 0; i < curves.size(); ++i) {
        if (LengthOf(curves[i].curve) > SamePlace) {
            divider.Divide(curves[i].curve, i, ends[i].first, ends[i].second);
        }
    }
    FindSame(nodes.stretches);
    return nodes;
}

}  // namespace korvet
