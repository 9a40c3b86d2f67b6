#include "sketch/solid_mesh.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>

#include "core/math_module.h"

namespace korvet {
namespace {

/// Shares of the model's size below which two points are one, and a strip counts as flat.
constexpr double SamePlace = 1e-7;
constexpr double FlatWithin = 1e-6;

/// The share of a face that its picture keeps when it counts as standing on edge.
constexpr double EdgeOnShare = 1e-6;

/// A surface that encloses less than this share of its area times the size is a sheet: it has no inside.
constexpr double SheetShare = 2e-3;

/// The cosine between the normals of a flat surface, but for rounding.
constexpr double SameDirection = 1 - 1e-6;

EyePoint Minus(const EyePoint& a, const EyePoint& b) {
    return {a.x - b.x, a.y - b.y, a.depth - b.depth};
}

double Dot(const EyePoint& a, const EyePoint& b) {
    return a.x * b.x + a.y * b.y + a.depth * b.depth;
}

EyePoint Cross(const EyePoint& a, const EyePoint& b) {
    return {a.y * b.depth - a.depth * b.y, a.depth * b.x - a.x * b.depth, a.x * b.y - a.y * b.x};
}

double Length(const EyePoint& a) {
    return std::sqrt(Dot(a, a));
}

void AddScaled(EyePoint& sum, const EyePoint& a, double factor) {
    sum.x += a.x * factor;
    sum.y += a.y * factor;
    sum.depth += a.depth * factor;
}

/// Puts a model into a mesh, first all its points, then the strips and lines between them.
class MeshMaker {
  public:
    MeshMaker(const CRuleSurfs& model, const SketchView& view) : model_(model), view_(view) {}

    SolidMesh Make() {
        CollectPoints();
        if (points_.empty()) {
            return std::move(mesh_);
        }
        Measure();
        JoinEqualPoints();
        AddSurfaces();
        return std::move(mesh_);
    }

  private:
    static std::vector<PointList> ListsOf(const CRuleSurf& surface) {
        return {surface.List1, surface.List2, surface.List3};
    }

    void CollectPoints() {
        for (const CRuleSurf& surface : model_) {
            for (const PointList& list : ListsOf(surface)) {
                if (IsPresent(list)) {
                    for (const C3DPoint& point : *list) {
                        points_.push_back(SeenFrom(view_, point));
                    }
                }
            }
        }
    }

    void Measure() {
        EyePoint low = points_.front();
        EyePoint high = low;
        for (const EyePoint& p : points_) {
            low = {std::min(low.x, p.x), std::min(low.y, p.y), std::min(low.depth, p.depth)};
            high = {std::max(high.x, p.x), std::max(high.y, p.y), std::max(high.depth, p.depth)};
        }
        mesh_.bounds = {low.x, low.y, high.x, high.y};
        mesh_.size = std::max({high.x - low.x, high.y - low.y, high.depth - low.depth});
    }

    /// Numbers the points so that those at one place share a vertex: a sweep along x with a short look back.
    void JoinEqualPoints() {
        const double near = SamePlace * mesh_.size;
        std::vector<std::size_t> sweep(points_.size());
        std::iota(sweep.begin(), sweep.end(), std::size_t{0});
        std::sort(sweep.begin(), sweep.end(),
                  [&](std::size_t a, std::size_t b) { return points_[a].x < points_[b].x; });
        vertexOf_.resize(points_.size());
        for (std::size_t k = 0; k < sweep.size(); ++k) {
            const EyePoint& p = points_[sweep[k]];
            std::size_t back = k;
            bool known = false;
            while (!known && back > 0 && p.x - points_[sweep[back - 1]].x <= near) {
                --back;
                known = Length(Minus(p, points_[sweep[back]])) <= near;
            }
            vertexOf_[sweep[k]] = known ? vertexOf_[sweep[back]] : mesh_.vertices.size();
            if (!known) {
                mesh_.vertices.push_back(p);
            }
        }
    }

    /// The vertices of the next list, in the order in which the points were collected.
    std::vector<std::size_t> NextVertices(const PointList& list) {
        if (!IsPresent(list)) {
            return {};
        }
        const auto first = vertexOf_.begin() + static_cast<std::ptrdiff_t>(taken_);
        taken_ += list->Count();
        return {first, vertexOf_.begin() + static_cast<std::ptrdiff_t>(taken_)};
    }

    void AddSurfaces() {
        for (const CRuleSurf& surface : model_) {
            std::vector<std::vector<std::size_t>> lines;
            for (const PointList& list : ListsOf(surface)) {
                lines.push_back(NextVertices(list));
            }
            const std::vector<std::size_t>& upper = lines[0];
            const std::vector<std::size_t>& lower = lines[1];
            for (std::size_t i = 0; i + 1 < std::min(upper.size(), lower.size()); ++i) {
                AddStrip({upper[i], upper[i + 1], lower[i + 1], lower[i]});
            }
            for (const auto& line : lines) {
                for (std::size_t i = 0; i + 1 < line.size(); ++i) {
                    if (line[i] != line[i + 1]) {
                        EdgeBetween(line[i], line[i + 1]).end = true;
                    }
                }
            }
            ++surface_;
        }
    }

    void AddStrip(std::vector<std::size_t> loop) {
        std::optional<std::size_t> pivot;
        if (loop[0] == loop[1]) {
            pivot = loop[0];
        } else if (loop[2] == loop[3]) {
            pivot = loop[2];
        }
        if (loop.front() == loop.back()) {
            loop.pop_back();
        }
        loop.erase(std::unique(loop.begin(), loop.end()), loop.end());
        if (loop.size() == 3) {
            AddFace(loop, pivot);
        } else if (loop.size() == 4 && loop[0] != loop[2] && loop[1] != loop[3]) {
            AddFourCorners(loop);
        }
    }

    void AddFourCorners(const std::vector<std::size_t>& loop) {
        if (IsFlatAndConvex(loop)) {
            AddFace(loop, {});
            return;
        }
        const double first = Length(Minus(At(loop[0]), At(loop[2])));
        const double second = Length(Minus(At(loop[1]), At(loop[3])));
        const std::size_t start = first <= second ? 0 : 1;
        const auto corner = [&](std::size_t i) { return loop[(start + i) % 4]; };
        const std::size_t before = mesh_.faces.size();
        AddFace({corner(0), corner(1), corner(2)}, {});
        AddFace({corner(0), corner(2), corner(3)}, {});
        EdgeBetween(corner(0), corner(2)).diagonal = true;
        const EyePoint across = Cross(Minus(At(loop[2]), At(loop[0])), Minus(At(loop[3]), At(loop[1])));
        const double length = Length(across);
        if (!IsNothing(length)) {
            for (std::size_t face = before; face < mesh_.faces.size(); ++face) {
                mesh_.faces[face].wallNormal = {};
                AddScaled(mesh_.faces[face].wallNormal, across, 1 / length);
            }
        }
    }

    [[nodiscard]] bool IsFlatAndConvex(const std::vector<std::size_t>& loop) const {
        const EyePoint across = Cross(Minus(At(loop[2]), At(loop[0])), Minus(At(loop[3]), At(loop[1])));
        const double length = Length(across);
        if (IsNothing(length)) {
            return false;
        }
        if (std::fabs(Dot(Minus(At(loop[1]), At(loop[0])), across)) > FlatWithin * mesh_.size * length) {
            return false;
        }
        for (std::size_t i = 0; i < 4; ++i) {
            const EyePoint& corner = At(loop[(i + 1) % 4]);
            const EyePoint turn = Cross(Minus(corner, At(loop[i])), Minus(At(loop[(i + 2) % 4]), corner));
            if (Dot(turn, across) < 0) {
                return false;
            }
        }
        return true;
    }

    [[nodiscard]] bool IsNothing(double area) const {
        return area <= SamePlace * SamePlace * mesh_.size * mesh_.size;
    }

    void AddFace(const std::vector<std::size_t>& corners, std::optional<std::size_t> pivot) {
        EyePoint doubled;
        for (std::size_t i = 1; i + 1 < corners.size(); ++i) {
            AddScaled(doubled,
                      Cross(Minus(At(corners[i]), At(corners[0])), Minus(At(corners[i + 1]), At(corners[0]))),
                      1);
        }
        const double length = Length(doubled);
        if (IsNothing(length)) {
            return;
        }
        MeshFace face{corners, {}, {}, length / 2, surface_, pivot};
        AddScaled(face.normal, doubled, 1 / length);
        face.wallNormal = face.normal;
        for (std::size_t i = 0; i < corners.size(); ++i) {
            EdgeBetween(corners[i], corners[(i + 1) % corners.size()]).faces.push_back(mesh_.faces.size());
        }
        mesh_.faces.push_back(std::move(face));
    }

    MeshEdge& EdgeBetween(std::size_t a, std::size_t b) {
        const auto [found, isNew] = edgeOf_.try_emplace(std::minmax(a, b), mesh_.edges.size());
        if (isNew) {
            MeshEdge edge;
            edge.from = a;
            edge.to = b;
            mesh_.edges.push_back(edge);
        }
        return mesh_.edges[found->second];
    }

    [[nodiscard]] const EyePoint& At(std::size_t vertex) const { return mesh_.vertices[vertex]; }

    const CRuleSurfs& model_;
    SketchView view_;
    SolidMesh mesh_;
    std::vector<EyePoint> points_;
    std::vector<std::size_t> vertexOf_;  ///< of each point
    std::size_t taken_ = 0;              ///< points that lists have been made of
    std::size_t surface_ = 0;
    std::map<std::pair<std::size_t, std::size_t>, std::size_t> edgeOf_;
};

EyePoint CentreOf(const SolidMesh& mesh, const MeshFace& face) {
    EyePoint centre;
    for (const std::size_t corner : face.corners) {
        AddScaled(centre, mesh.vertices[corner], 1 / static_cast<double>(face.corners.size()));
    }
    return centre;
}

using FaceRange = std::vector<const MeshFace*>;

EyePoint CentreOf(const SolidMesh& mesh, const FaceRange& faces) {
    EyePoint sum;
    double area = 0;
    for (const MeshFace* face : faces) {
        AddScaled(sum, CentreOf(mesh, *face), face->area);
        area += face->area;
    }
    EyePoint centre;
    if (area > 0) {
        AddScaled(centre, sum, 1 / area);
    }
    return centre;
}

/// Which way the normals of a wall point as seen from a place within: 1 outward, -1 inward, 0 when it is a
/// sheet that passes through the place. What is added up is three times the volume between the wall and the
/// place, with its sign.
int SideOfNormals(const SolidMesh& mesh, const FaceRange& faces, const EyePoint& within) {
    double volume = 0;
    double area = 0;
    for (const MeshFace* face : faces) {
        volume += face->area * Dot(face->normal, Minus(CentreOf(mesh, *face), within));
        area += face->area;
    }
    if (std::fabs(volume) <= SheetShare * area * mesh.size) {
        return 0;
    }
    return volume > 0 ? 1 : -1;
}

bool IsFlat(const FaceRange& faces) {
    return std::all_of(faces.begin(), faces.end(), [&](const MeshFace* face) {
        return std::fabs(Dot(face->normal, faces.front()->normal)) >= SameDirection;
    });
}

/// A surface encloses its own middle; a flat one is taken for a wall about the middle of the whole model. A
/// sheet that winds, such as the flight of a screw, has two sides of which neither is the inner one.
void FindInnerSides(SolidMesh& mesh) {
    FaceRange all;
    std::map<std::size_t, FaceRange> bySurface;
    for (const MeshFace& face : mesh.faces) {
        all.push_back(&face);
        bySurface[face.surface].push_back(&face);
    }
    const EyePoint middle = CentreOf(mesh, all);
    std::map<std::size_t, int> side;
    for (const auto& [surface, faces] : bySurface) {
        side[surface] = SideOfNormals(mesh, faces, CentreOf(mesh, faces));
        if (side[surface] == 0 && IsFlat(faces)) {
            side[surface] = SideOfNormals(mesh, faces, middle);
        }
    }
    for (MeshFace& face : mesh.faces) {
        face.inside = side[face.surface] * face.wallNormal.depth < 0;
    }
}

/// 1 for a wall that faces the eye by this depth of its normal, -1 for one that faces away, 0 for one on
/// edge: both lines of that one are contours, and the near one hides the other.
int Facing(double depth) {
    return std::fabs(depth) <= EdgeOnShare ? 0 : depth > 0 ? 1 : -1;
}

/// Whether the face runs through the edge from its first vertex to its second.
bool RunsAlong(const MeshFace& face, const MeshEdge& edge) {
    const auto at = std::find(face.corners.begin(), face.corners.end(), edge.from);
    const auto next = at + 1 == face.corners.end() ? face.corners.begin() : at + 1;
    return *next == edge.to;
}

}  // namespace

bool MeshFace::OnEdge() const {
    return std::fabs(normal.depth) <= EdgeOnShare;
}

EyePoint SeenFrom(const SketchView& view, const C3DPoint& point) {
    const double turn = DegToRad(view.turn);
    const double tilt = DegToRad(view.tilt);
    const double x = point.x * std::cos(turn) - point.y * std::sin(turn);
    const double y = point.x * std::sin(turn) + point.y * std::cos(turn);
    return {x, y * std::sin(tilt) + point.z * std::cos(tilt), point.z * std::sin(tilt) - y * std::cos(tilt)};
}

SolidMesh MakeSolidMesh(const CRuleSurfs& model, const SketchView& view) {
    SolidMesh mesh = MeshMaker(model, view).Make();
    FindInnerSides(mesh);
    return mesh;
}

EdgeLook LookOf(const SolidMesh& mesh, const MeshEdge& edge) {
    if (edge.end || (edge.faces.size() != 2 && !edge.diagonal)) {
        return EdgeLook::Outline;
    }
    if (edge.faces.size() != 2) {
        return EdgeLook::None;
    }
    const MeshFace& face = mesh.faces[edge.faces[0]];
    const MeshFace& other = mesh.faces[edge.faces[1]];
    // Two faces that run through their common line in the same direction have their normals on opposite
    // sides of the wall.
    const double sense = RunsAlong(face, edge) == RunsAlong(other, edge) ? -1 : 1;
    const double bend = sense * Dot(face.wallNormal, other.wallNormal);
    if (bend < std::cos(DegToRad(20)) && !edge.diagonal) {
        return EdgeLook::Outline;
    }
    // By the faces themselves: a line of the wall that lies before or behind them would not end the picture.
    if (Facing(face.normal.depth) != Facing(sense * other.normal.depth)) {
        return EdgeLook::Contour;
    }
    const bool flatFacesMeet = face.pivot != other.pivot && bend < std::cos(DegToRad(0.1));
    return flatFacesMeet && !edge.diagonal ? EdgeLook::BendLine : EdgeLook::None;
}

double DepthAt(const SolidMesh& mesh, const MeshFace& face, const SketchXY& at) {
    const EyePoint& corner = mesh.vertices[face.corners[0]];
    return corner.depth -
           (face.normal.x * (at.x - corner.x) + face.normal.y * (at.y - corner.y)) / face.normal.depth;
}

}  // namespace korvet
