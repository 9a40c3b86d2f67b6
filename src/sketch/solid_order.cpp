// Which face is painted before which.
#include <algorithm>
#include <array>
#include <cmath>
#include <queue>

#include "sketch/solid_mesh.h"
#include "sketch/solid_places.h"

namespace korvet {
namespace {

/// Overlaps smaller than this share of the size squared, and steps in depth smaller than this share of the
/// size, decide nothing: faces that only touch.
constexpr double Negligible = 1e-9;

/// A convex area of the picture, counter-clockwise. Two faces of four corners overlap in eight at most.
struct Area {
    std::array<SketchXY, 12> corners;
    std::size_t count = 0;

    void Add(const SketchXY& corner) {
        if (count < corners.size()) {
            corners[count++] = corner;
        }
    }
};

/// One face as it lies on the picture.
struct PaintedFace {
    std::size_t face = 0;
    std::size_t place = 0;  ///< its number among those that are seen
    Area area;
    double middleDepth = 0;
};

std::vector<std::size_t> NotOnEdge(const SolidMesh& mesh) {
    std::vector<std::size_t> numbers;
    for (std::size_t i = 0; i < mesh.faces.size(); ++i) {
        if (!mesh.faces[i].OnEdge()) {
            numbers.push_back(i);
        }
    }
    return numbers;
}

/// Where faces lie on the picture.
std::vector<SolidPlace> PlacesOf(const SolidMesh& mesh, const std::vector<std::size_t>& numbers) {
    std::vector<SolidPlace> places;
    std::vector<SketchXY> corners;
    for (const std::size_t number : numbers) {
        corners.clear();
        for (const std::size_t corner : mesh.faces[number].corners) {
            corners.push_back(OnPicture(mesh.vertices[corner]));
        }
        places.push_back(SolidPlace::About(corners));
    }
    return places;
}

/// Twice the area of the triangle a, b, p; above 0 when p lies left of the line from a to b.
double LeftOf(const SketchXY& a, const SketchXY& b, const SketchXY& p) {
    return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
}

PaintedFace MakePainted(const SolidMesh& mesh, std::size_t number, std::size_t place) {
    const MeshFace& face = mesh.faces[number];
    PaintedFace painted{number, place, {}, 0};
    for (const std::size_t corner : face.corners) {
        const EyePoint& p = mesh.vertices[corner];
        painted.area.Add(OnPicture(p));
        painted.middleDepth += p.depth / static_cast<double>(face.corners.size());
    }
    if (face.normal.depth < 0) {
        std::reverse(painted.area.corners.begin(),
                     painted.area.corners.begin() + static_cast<std::ptrdiff_t>(painted.area.count));
    }
    return painted;
}

/// The part of an area on the left of the line from a to b.
Area Clipped(const Area& area, const SketchXY& a, const SketchXY& b) {
    Area kept;
    for (std::size_t i = 0; i < area.count; ++i) {
        const SketchXY& p = area.corners[i];
        const SketchXY& q = area.corners[(i + 1) % area.count];
        const double atP = LeftOf(a, b, p);
        const double atQ = LeftOf(a, b, q);
        if (atP >= 0) {
            kept.Add(p);
        }
        if ((atP > 0 && atQ < 0) || (atP < 0 && atQ > 0)) {
            const double share = atP / (atP - atQ);
            kept.Add({p.x + share * (q.x - p.x), p.y + share * (q.y - p.y)});
        }
    }
    return kept;
}

Area Overlap(const Area& a, const Area& b) {
    Area common = a;
    for (std::size_t i = 0; i < b.count && common.count > 2; ++i) {
        common = Clipped(common, b.corners[i], b.corners[(i + 1) % b.count]);
    }
    return common;
}

double DoubledArea(const Area& area) {
    double sum = 0;
    for (std::size_t i = 1; i + 1 < area.count; ++i) {
        sum += LeftOf(area.corners[0], area.corners[i], area.corners[i + 1]);
    }
    return sum;
}

SketchXY MiddleOf(const Area& area) {
    SketchXY middle;
    for (std::size_t i = 0; i < area.count; ++i) {
        middle.x += area.corners[i].x / static_cast<double>(area.count);
        middle.y += area.corners[i].y / static_cast<double>(area.count);
    }
    return middle;
}

/// Whether all of an area lies on the right of one side of the other, or on that side.
bool HasAllOutside(const Area& area, const Area& other) {
    for (std::size_t i = 0; i < area.count; ++i) {
        const SketchXY& a = area.corners[i];
        const SketchXY& b = area.corners[(i + 1) % area.count];
        const auto outside = [&](const SketchXY& p) { return LeftOf(a, b, p) <= 0; };
        const auto first = other.corners.begin();
        if (std::all_of(first, first + static_cast<std::ptrdiff_t>(other.count), outside)) {
            return true;
        }
    }
    return false;
}

/// Above 0 when a lies before b as the eye sees it, below 0 when behind it, 0 when neither covers the other.
int CompareDepth(const SolidMesh& mesh, const PaintedFace& a, const PaintedFace& b) {
    if (HasAllOutside(a.area, b.area) || HasAllOutside(b.area, a.area)) {
        return 0;
    }
    const Area common = Overlap(a.area, b.area);
    if (common.count < 3 || DoubledArea(common) <= Negligible * mesh.size * mesh.size) {
        return 0;
    }
    const SketchXY middle = MiddleOf(common);
    const double step = DepthAt(mesh, mesh.faces[a.face], middle) - DepthAt(mesh, mesh.faces[b.face], middle);
    if (std::fabs(step) <= Negligible * mesh.size) {
        return 0;
    }
    return step > 0 ? 1 : -1;
}

/// Faces as an order to be kept: each one knows those that cover it.
struct CoverGraph {
    std::vector<std::vector<std::size_t>> coveredBy;
    std::vector<std::size_t> waitsFor;  ///< how many faces behind it are not painted yet
    std::size_t compared = 0;
};

/// Compares the faces that may meet on the picture, each with those that come later.
CoverGraph MakeCoverGraph(const SolidMesh& mesh, const SeenFaces& seen,
                          const std::vector<PaintedFace>& faces) {
    CoverGraph graph{std::vector<std::vector<std::size_t>>(faces.size()),
                     std::vector<std::size_t>(faces.size(), 0)};
    std::vector<std::size_t> rankOf(faces.size());
    for (std::size_t i = 0; i < faces.size(); ++i) {
        rankOf[faces[i].place] = i;
    }
    const PlaceTree& tree = seen.Tree();
    for (std::size_t i = 0; i < faces.size(); ++i) {
        const auto [met, compared] = tree.Meeting(tree.Places()[faces[i].place]);
        graph.compared += compared;
        for (const std::size_t place : met) {
            const std::size_t other = rankOf[place];
            const int order = other > i ? CompareDepth(mesh, faces[i], faces[other]) : 0;
            if (order != 0) {
                const std::size_t back = order > 0 ? other : i;
                const std::size_t front = order > 0 ? i : other;
                graph.coveredBy[back].push_back(front);
                ++graph.waitsFor[front];
            }
        }
    }
    return graph;
}

/// Takes faces, numbered from the farthest to the nearest, so that each comes after all that it covers.
std::vector<std::size_t> BackToFront(CoverGraph& graph) {
    const std::size_t count = graph.waitsFor.size();
    // The farthest of the faces with nothing left behind them comes next.
    std::priority_queue<std::size_t, std::vector<std::size_t>, std::greater<>> ready;
    for (std::size_t i = 0; i < count; ++i) {
        if (graph.waitsFor[i] == 0) {
            ready.push(i);
        }
    }
    std::vector<std::size_t> order;
    std::vector<bool> taken(count, false);
    std::size_t farthest = 0;
    while (order.size() < count) {
        if (ready.empty()) {  // faces that cover each other in turn: break the ring at the farthest
            while (taken[farthest]) {
                ++farthest;
            }
            ready.push(farthest);
        }
        const std::size_t next = ready.top();
        ready.pop();
        if (taken[next]) {
            continue;
        }
        taken[next] = true;
        order.push_back(next);
        for (const std::size_t front : graph.coveredBy[next]) {
            if (--graph.waitsFor[front] == 0) {
                ready.push(front);
            }
        }
    }
    return order;
}

}  // namespace

SeenFaces::SeenFaces(const SolidMesh& mesh) : numbers_(NotOnEdge(mesh)), tree_(PlacesOf(mesh, numbers_)) {}

PaintingOrder PaintersOrder(const SolidMesh& mesh, const SeenFaces& seen) {
    std::vector<PaintedFace> faces;
    for (std::size_t i = 0; i < seen.Numbers().size(); ++i) {
        faces.push_back(MakePainted(mesh, seen.Numbers()[i], i));
    }
    std::sort(faces.begin(), faces.end(),
              [](const PaintedFace& a, const PaintedFace& b) { return a.middleDepth < b.middleDepth; });
    CoverGraph graph = MakeCoverGraph(mesh, seen, faces);
    PaintingOrder order{{}, graph.compared};
    for (const std::size_t next : BackToFront(graph)) {
        order.faces.push_back(faces[next].face);
    }
    return order;
}

}  // namespace korvet
