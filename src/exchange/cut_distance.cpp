#include "exchange/cut_distance.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "core/checked.h"
#include "exchange/box_tree.h"

namespace korvet {
namespace {

/// About how many points of an edge are compared to lay one pattern on another.
constexpr std::size_t EdgeSamples = 400;

bool IsRuling(CutPart part) {
    return part == CutPart::FirstEnd || part == CutPart::LastEnd || part == CutPart::Bend;
}

/// The numbers of the lines along the lists of each piece, in order.
std::vector<std::vector<std::size_t>> LinesByPiece(const PieceCurves& lines, std::size_t pieces) {
    std::vector<std::vector<std::size_t>> numbers(pieces);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (!IsRuling(lines[i].part)) {
            numbers.at(lines[i].piece - 1).push_back(i);
        }
    }
    return numbers;
}

/// The lines of each list of a surface, to measure from.
class DrawnLists {
  public:
    DrawnLists(const PieceCurves& lines, const std::vector<std::size_t>& numbers) {
        std::map<CutPart, std::vector<CutCurve>> curves;
        for (const std::size_t i : numbers) {
            curves[lines[i].part].push_back(lines[i].curve);
        }
        for (auto& [part, own] : curves) {
            std::vector<Bounds> boxes;
            boxes.reserve(own.size());
            std::transform(own.begin(), own.end(), std::back_inserter(boxes), BoundsOf);
            lists_.emplace(part, OneList{std::move(own), BoxTree(std::move(boxes))});
        }
    }

    /// The largest distance of a point that `place` makes of those of the surface.
    template <typename Place>
    [[nodiscard]] double Farthest(const CRuleSurf& surface, Place place) const {
        double farthest = 0;
        for (const auto& [list, part] : PathsOf(surface)) {
            const auto found = lists_.find(part);
            if (found == lists_.end() || !IsPresent(*list)) {
                continue;
            }
            for (const C3DPoint& point : **list) {
                farthest = std::max(farthest, found->second.DistanceTo(place(point)));
            }
        }
        return farthest;
    }

  private:
    struct OneList {
        std::vector<CutCurve> curves;
        BoxTree tree;

        [[nodiscard]] double DistanceTo(const C3DPoint& point) const {
            return tree.Nearest(point.x, point.y,
                                [&](std::size_t i) { return DistanceOf(curves[i], point); });
        }
    };

    std::map<CutPart, OneList> lists_;
};

/// How far along the list each of its points stands.
std::vector<double> WaysAlong(const C3DPoints& list) {
    std::vector<double> ways = {0};
    for (std::size_t i = 2; i <= list.Count(); ++i) {
        ways.push_back(ways.back() + LengthOf(LineCurve(list.Item(i - 1), list.Item(i))));
    }
    return ways;
}

/// Points of the two patterns that stand for each other.
struct Pairs {
    std::vector<C3DPoint> finer;
    std::vector<C3DPoint> coarse;

    /// Points of the edge, and those of the finer edge at the same part of its length. Stations lie on the
    /// true edge with few points as with many; what lies between them would not.
    void Add(const C3DPoints& edge, const C3DPoints& finerEdge) {
        const std::vector<double> ways = WaysAlong(edge);
        const std::vector<double> finerWays = WaysAlong(finerEdge);
        const std::size_t step = std::max<std::size_t>(1, edge.Count() / EdgeSamples);
        const double scale = ways.back() > 0 ? finerWays.back() / ways.back() : 0;
        std::size_t k = 1;
        for (std::size_t i = 1; i <= edge.Count(); i += step) {
            const double way = ways[i - 1] * scale;
            while (k + 1 < finerEdge.Count() && finerWays[k] < way) {
                ++k;
            }
            const double segment = finerWays[k] - finerWays[k - 1];
            const double part = segment > 0 ? (way - finerWays[k - 1]) / segment : 0;
            coarse.push_back(edge.Item(i));
            finer.push_back(PointAt(LineCurve(finerEdge.Item(k), finerEdge.Item(k + 1)), part));
        }
    }
};

Pairs PairsOf(const CRuleSurf& surface, const CRuleSurf& finer) {
    Pairs pairs;
    for (const PointList CRuleSurf::*edge : {&CRuleSurf::List1, &CRuleSurf::List2}) {
        if (IsPresent(surface.*edge) != IsPresent(finer.*edge)) {
            throw ArithmeticError("the finer pattern has other edges");
        }
        if (IsPresent(surface.*edge)) {
            pairs.Add(*(surface.*edge), *(finer.*edge));
        }
    }
    return pairs;
}

C3DPoint MeanOf(const std::vector<C3DPoint>& points) {
    C3DPoint mean;
    for (const C3DPoint& point : points) {
        mean.x += point.x / static_cast<double>(points.size());
        mean.y += point.y / static_cast<double>(points.size());
    }
    return mean;
}

/// The turn and move in the plan that lays points on others with the least sum of squared distances.
class Fit {
  public:
    Fit(const std::vector<C3DPoint>& points, const std::vector<C3DPoint>& onto)
        : from_(MeanOf(points)), to_(MeanOf(onto)) {
        double along = 0;
        double across = 0;
        for (std::size_t i = 0; i < points.size(); ++i) {
            const double x = points[i].x - from_.x;
            const double y = points[i].y - from_.y;
            const double u = onto[i].x - to_.x;
            const double v = onto[i].y - to_.y;
            along += x * u + y * v;
            across += x * v - y * u;
        }
        const double turn = std::atan2(across, along);
        cosine_ = std::cos(turn);
        sine_ = std::sin(turn);
    }

    C3DPoint operator()(const C3DPoint& point) const {
        const double x = point.x - from_.x;
        const double y = point.y - from_.y;
        return {to_.x + cosine_ * x - sine_ * y, to_.y + sine_ * x + cosine_ * y};
    }

  private:
    C3DPoint from_;
    C3DPoint to_;
    double cosine_ = 1;
    double sine_ = 0;
};

}  // namespace

double DistanceFromPoints(const CRuleSurfs& surfaces, const PieceCurves& lines) {
    const auto numbers = LinesByPiece(lines, surfaces.Count());
    double farthest = 0;
    for (std::size_t piece = 1; piece <= surfaces.Count(); ++piece) {
        const DrawnLists drawn(lines, numbers[piece - 1]);
        farthest = std::max(
            farthest, drawn.Farthest(surfaces.Item(piece), [](const C3DPoint& point) { return point; }));
    }
    return farthest;
}

double DistanceFromFiner(const CRuleSurfs& surfaces, const PieceCurves& lines, const CRuleSurfs& finer) {
    if (surfaces.Count() != finer.Count()) {
        throw ArithmeticError("the finer pattern has other pieces");
    }
    const auto numbers = LinesByPiece(lines, surfaces.Count());
    double farthest = 0;
    for (std::size_t piece = 1; piece <= surfaces.Count(); ++piece) {
        const DrawnLists drawn(lines, numbers[piece - 1]);
        const Pairs pairs = PairsOf(surfaces.Item(piece), finer.Item(piece));
        farthest = std::max(farthest, drawn.Farthest(finer.Item(piece), Fit(pairs.finer, pairs.coarse)));
    }
    return farthest;
}

}  // namespace korvet
