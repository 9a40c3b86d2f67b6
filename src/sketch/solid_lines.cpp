// Hidden lines: what is left of the edges, and how the pieces join.
#include <algorithm>
#include <array>
#include <cmath>
#include <deque>
#include <limits>
#include <map>
#include <optional>

#include "sketch/sketch_plane.h"
#include "sketch/solid_mesh.h"
#include "sketch/solid_places.h"

namespace korvet {
namespace {

/// How far before a line, in shares of the size, a face must lie to hide it, and from where on it would be
/// hidden at all. Between the two lie faces that cut the round wall which the line runs on: they hide it only
/// next to a place where something really does.
constexpr double HidesFrom = 5e-4;
constexpr double TouchesUpTo = 1e-7;

/// A wall that is not flat is crinkled where it turns away from the eye: its faces turn to and fro there,
/// each a contour of its own. Only that one is a line beyond which the wall does not go on within this share
/// of the size.
constexpr double Crinkle = 0.05;

/// Lengths below this share of the size are no line on the picture.
constexpr double NoLength = 1e-6;

double Span(const SketchXY& a, const SketchXY& b) {
    return Length(b - a);
}

/// Where along a line a face lies before it.
struct Stretch {
    double from = 0;
    double to = 0;
    bool hides = false;
};

/// An edge on its way through the faces, with everything as a share t of it, 0 to 1.
struct Ray {
    EyePoint from;
    EyePoint to;

    [[nodiscard]] SketchXY At(double t) const {
        return {from.x + t * (to.x - from.x), from.y + t * (to.y - from.y)};
    }
    [[nodiscard]] double DepthAt(double t) const { return from.depth + t * (to.depth - from.depth); }
};

/// Cuts [low, high] down to where a value that runs evenly from `at0` (t = 0) to `at1` (t = 1) is not below
/// 0. False when nothing is left.
bool CutToPositive(double at0, double at1, double& low, double& high) {
    const double rise = at1 - at0;
    if (rise == 0) {
        return at0 >= 0;
    }
    const double zero = -at0 / rise;
    if (rise > 0) {
        low = std::max(low, zero);
    } else {
        high = std::min(high, zero);
    }
    return low < high;
}

/// The faces ready for the test, found by their places.
class Cover {
  public:
    Cover(const SolidMesh& mesh, const SeenFaces& seen) : mesh_(mesh), seen_(seen) {
        for (const std::size_t number : seen.Numbers()) {
            double nearest = -std::numeric_limits<double>::infinity();
            for (const std::size_t corner : mesh.faces[number].corners) {
                nearest = std::max(nearest, mesh.vertices[corner].depth);
            }
            nearest_.push_back(nearest);
        }
    }

    /// The visible shares of an edge, in order.
    [[nodiscard]] std::vector<Stretch> VisibleParts(const MeshEdge& edge, EdgeLook look) const {
        const Ray ray = {mesh_.vertices[edge.from], mesh_.vertices[edge.to]};
        std::vector<Stretch> hidden = Hidden(Before(ray, [](const MeshFace&) { return true; }));
        const auto beyond = look == EdgeLook::Contour ? Beyond(edge, ray) : std::nullopt;
        if (beyond) {
            const std::size_t surface = mesh_.faces[edge.faces.front()].surface;
            for (Stretch stretch :
                 Before(*beyond, [&](const MeshFace& face) { return face.surface == surface; })) {
                stretch.hides = true;
                hidden.push_back(stretch);
            }
            hidden = Hidden(std::move(hidden));
        }
        return Free(hidden);
    }

  private:
    /// The line just outside a contour, as far back as the wall would go on; nothing when both its walls
    /// stand on edge.
    [[nodiscard]] std::optional<Ray> Beyond(const MeshEdge& edge, const Ray& ray) const {
        const auto seen =
            std::ranges::find_if(edge.faces, [&](std::size_t face) { return !mesh_.faces[face].OnEdge(); });
        if (seen == edge.faces.end()) {
            return std::nullopt;
        }
        const SketchXY along = ray.At(1) - ray.At(0);
        double left = 0;  // on which the face lies
        for (const std::size_t corner : mesh_.faces[*seen].corners) {
            const SketchXY aside = OnPicture(mesh_.vertices[corner]) - ray.At(0);
            left += along.x * aside.y - along.y * aside.x;
        }
        const double step = (left > 0 ? 1 : -1) * NoLength * mesh_.size / Length(along);
        const auto moved = [&](const EyePoint& p) {
            return EyePoint{p.x + along.y * step, p.y - along.x * step, p.depth - Crinkle * mesh_.size};
        };
        return Ray{moved(ray.from), moved(ray.to)};
    }

    /// Where faces that `counts` lie before a line.
    template <typename Counts>
    [[nodiscard]] std::vector<Stretch> Before(const Ray& ray, Counts counts) const {
        SolidPlace place = SolidPlace::About({ray.At(0), ray.At(1)});
        place.halfLength += NoLength * mesh_.size;
        place.halfWidth += NoLength * mesh_.size;
        const double deepest = std::min(ray.from.depth, ray.to.depth);
        std::vector<Stretch> covered;
        for (const std::size_t i : seen_.Tree().Meeting(place).numbers) {
            const MeshFace& face = mesh_.faces[seen_.Numbers()[i]];
            if (nearest_[i] > deepest && counts(face)) {
                AddStretch(face, ray, covered);
            }
        }
        return covered;
    }

    void AddStretch(const MeshFace& face, const Ray& ray, std::vector<Stretch>& covered) const {
        double low = 0;
        double high = 1;
        const SketchXY start = ray.At(0);
        const SketchXY end = ray.At(1);
        const double side = face.normal.depth > 0 ? 1 : -1;
        for (std::size_t i = 0; i < face.corners.size(); ++i) {
            const EyePoint& a = mesh_.vertices[face.corners[i]];
            const EyePoint& b = mesh_.vertices[face.corners[(i + 1) % face.corners.size()]];
            // A line along the border of the face counts as behind it.
            const double border = NoLength * mesh_.size * 1e-2 * Span(OnPicture(a), OnPicture(b));
            const auto inward = [&](const SketchXY& p) {
                return side * ((b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x)) + border;
            };
            if (!CutToPositive(inward(start), inward(end), low, high)) {
                return;
            }
        }
        const double before0 = DepthAt(mesh_, face, start) - ray.DepthAt(0);
        const double before1 = DepthAt(mesh_, face, end) - ray.DepthAt(1);
        const double touching = TouchesUpTo * mesh_.size;
        if (CutToPositive(before0 - touching, before1 - touching, low, high)) {
            const double most =
                std::max(before0 + low * (before1 - before0), before0 + high * (before1 - before0));
            covered.push_back({low, high, most > HidesFrom * mesh_.size});
        }
    }

    /// Connected stretches as one, leaving out those of which none really hides.
    static std::vector<Stretch> Hidden(std::vector<Stretch> covered) {
        std::sort(covered.begin(), covered.end(),
                  [](const Stretch& a, const Stretch& b) { return a.from < b.from; });
        std::vector<Stretch> merged;
        for (const Stretch& stretch : covered) {
            if (!merged.empty() && stretch.from <= merged.back().to + Joint) {
                merged.back().to = std::max(merged.back().to, stretch.to);
                merged.back().hides = merged.back().hides || stretch.hides;
            } else {
                merged.push_back(stretch);
            }
        }
        std::erase_if(merged, [](const Stretch& stretch) { return !stretch.hides; });
        return merged;
    }

    /// What hidden stretches leave over of 0 to 1.
    static std::vector<Stretch> Free(const std::vector<Stretch>& hidden) {
        std::vector<Stretch> free;
        double at = 0;
        for (const Stretch& stretch : hidden) {
            if (stretch.from - at > Joint) {
                free.push_back({at, stretch.from});
            }
            at = stretch.to;
        }
        if (1 - at > Joint) {
            free.push_back({at, 1});
        }
        return free;
    }

    static constexpr double Joint = 1e-6;

    const SolidMesh& mesh_;
    const SeenFaces& seen_;
    std::vector<double> nearest_;  ///< depth of the corner that is nearest to the eye, of each face
};

/// A visible piece of an edge. Whole ends carry their vertex, so that neighbours find each other; a cut end
/// carries none.
struct Piece {
    SketchXY from;
    SketchXY to;
    std::optional<std::size_t> fromVertex;
    std::optional<std::size_t> toVertex;
    bool used = false;
};

/// Whether an edge bounds no face of the surface that is shown off.
bool IsPaleEdge(const SolidMesh& mesh, const MeshEdge& edge, std::size_t shownOff) {
    return shownOff != 0 && std::all_of(edge.faces.begin(), edge.faces.end(),
                                        [&](std::size_t face) { return IsPale(mesh.faces[face], shownOff); });
}

/// What is seen of an edge.
void AddPieces(const SolidMesh& mesh, const Cover& cover, const MeshEdge& edge, EdgeLook look,
               std::vector<Piece>& pieces) {
    const Ray ray = {mesh.vertices[edge.from], mesh.vertices[edge.to]};
    if (Span(ray.At(0), ray.At(1)) <= NoLength * mesh.size) {
        return;
    }
    for (const Stretch& part : cover.VisibleParts(edge, look)) {
        Piece piece{ray.At(part.from), ray.At(part.to), {}, {}};
        if (part.from <= 0) {
            piece.from = OnPicture(ray.from);
            piece.fromVertex = edge.from;
        }
        if (part.to >= 1) {
            piece.to = OnPicture(ray.to);
            piece.toVertex = edge.to;
        }
        if (Span(piece.from, piece.to) > NoLength * mesh.size) {
            pieces.push_back(piece);
        }
    }
}

/// Cosine of the sharpest turn, a little over a right angle, that a line takes: a sharper one starts anew, so
/// that its corner can be painted without a spike.
constexpr double SharpestTurn = -0.35;

/// Strings pieces together at their common vertices, always taking the one that turns least.
class Chains {
  public:
    Chains(std::vector<Piece> pieces, double size) : pieces_(std::move(pieces)), size_(size) {
        for (std::size_t i = 0; i < pieces_.size(); ++i) {
            for (const auto& vertex : {pieces_[i].fromVertex, pieces_[i].toVertex}) {
                if (vertex) {
                    at_[*vertex].push_back(i);
                }
            }
        }
    }

    std::vector<std::vector<SketchXY>> Join() {
        std::vector<std::vector<SketchXY>> lines;
        for (Piece& piece : pieces_) {
            if (!piece.used) {
                piece.used = true;
                std::deque<SketchXY> line = {piece.from, piece.to};
                Extend(
                    piece.toVertex, [&] { return line[line.size() - 2]; },
                    [&](SketchXY p) { line.push_back(p); }, piece.to);
                Extend(
                    piece.fromVertex, [&] { return line[1]; }, [&](SketchXY p) { line.push_front(p); },
                    piece.from);
                lines.push_back(WithoutStraightPoints(line));
            }
        }
        return lines;
    }

  private:
    template <typename Before, typename Append>
    void Extend(std::optional<std::size_t> vertex, Before before, Append append, SketchXY at) {
        while (vertex) {
            Piece* const next = StraightestAt(*vertex, before(), at);
            if (next == nullptr) {
                return;
            }
            next->used = true;
            const bool forward = next->fromVertex == vertex;
            at = forward ? next->to : next->from;
            vertex = forward ? next->toVertex : next->fromVertex;
            append(at);
        }
    }

    Piece* StraightestAt(std::size_t vertex, const SketchXY& before, const SketchXY& at) {
        Piece* best = nullptr;
        double bestCosine = SharpestTurn;
        for (const std::size_t i : at_[vertex]) {
            Piece& piece = pieces_[i];
            const SketchXY& beyond = piece.fromVertex == vertex ? piece.to : piece.from;
            const double lengths = Span(before, at) * Span(at, beyond);
            const double cosine =
                ((at.x - before.x) * (beyond.x - at.x) + (at.y - before.y) * (beyond.y - at.y)) / lengths;
            if (!piece.used && cosine > bestCosine) {
                best = &piece;
                bestCosine = cosine;
            }
        }
        return best;
    }

    /// Points in the middle of a straight line go; a line that turns back on itself keeps its turning point.
    [[nodiscard]] std::vector<SketchXY> WithoutStraightPoints(const std::deque<SketchXY>& line) const {
        std::vector<SketchXY> kept = {line.front()};
        for (std::size_t i = 1; i + 1 < line.size(); ++i) {
            const SketchXY& a = kept.back();
            const SketchXY& b = line[i];
            const SketchXY& c = line[i + 1];
            const double aside = std::fabs((b.x - a.x) * (c.y - b.y) - (b.y - a.y) * (c.x - b.x));
            const double along = (b.x - a.x) * (c.x - b.x) + (b.y - a.y) * (c.y - b.y);
            if (along <= 0 || aside > NoLength * size_ * Span(a, c)) {
                kept.push_back(b);
            }
        }
        kept.push_back(line.back());
        return kept;
    }

    std::vector<Piece> pieces_;
    double size_;
    std::map<std::size_t, std::vector<std::size_t>> at_;  ///< the pieces that end at a vertex
};

}  // namespace

bool IsPale(const MeshFace& face, std::size_t shownOff) {
    return shownOff != 0 && face.surface + 1 != shownOff;
}

std::vector<SolidEdge> VisibleEdges(const SolidMesh& mesh, const SeenFaces& seen, std::size_t shownOff) {
    const Cover cover(mesh, seen);
    struct Layer {
        bool outline;
        bool pale;
        std::vector<Piece> pieces;
    };
    std::array<Layer, 4> layers = {
        {{false, true, {}}, {false, false, {}}, {true, true, {}}, {true, false, {}}}};
    for (const MeshEdge& edge : mesh.edges) {
        const EdgeLook look = LookOf(mesh, edge);
        if (look != EdgeLook::None) {
            const std::size_t layer =
                (look == EdgeLook::BendLine ? 0U : 2U) + (IsPaleEdge(mesh, edge, shownOff) ? 0U : 1U);
            AddPieces(mesh, cover, edge, look, layers.at(layer).pieces);
        }
    }
    std::vector<SolidEdge> edges;
    for (Layer& layer : layers) {
        for (auto& line : Chains(std::move(layer.pieces), mesh.size).Join()) {
            edges.push_back({std::move(line), layer.outline, layer.pale});
        }
    }
    return edges;
}

}  // namespace korvet
