// The walls of a model as faces and edges in the space of the eye: what a picture of it is made from.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "core/rule_surf.h"
#include "sketch/solid.h"
#include "sketch/solid_places.h"

namespace korvet {

/// A point or a direction as the eye sees it: x to the right, y upward, depth towards the eye.
struct EyePoint {
    double x = 0;
    double y = 0;
    double depth = 0;
};

/// A flat piece of wall with three or four corners, convex.
struct MeshFace {
    std::vector<std::size_t> corners;  ///< numbers of vertices
    EyePoint normal;                   ///< of length 1, to the same side all along a strip
    EyePoint wallNormal;               ///< that of the whole strip, where a twisted one is two faces
    double area = 0;                   ///< in space
    std::size_t surface = 0;           ///< of the model, from 0
    std::optional<std::size_t> pivot;  ///< the vertex of a repeated item, which this face turns about
    bool inside = false;               ///< the eye is on the inner side of the wall

    /// Whether the wall stands on edge before the eye, so that nothing is seen of it.
    [[nodiscard]] bool OnEdge() const;
};

/// A line between two vertices.
struct MeshEdge {
    std::size_t from = 0;
    std::size_t to = 0;
    bool end = false;                ///< part of List1, List2 or List3
    bool diagonal = false;           ///< divides a strip that is not flat
    std::vector<std::size_t> faces;  ///< numbers of the faces along it
};

struct SolidMesh {
    std::vector<EyePoint> vertices;  ///< each place once
    std::vector<MeshFace> faces;
    std::vector<MeshEdge> edges;  ///< each line once
    SolidBounds bounds;
    double size = 0;  ///< the longest extent of the model in space: what is small is measured by it
};

/// A point as the eye of the view sees it; x and y are those of ProjectOnSketch.
EyePoint SeenFrom(const SketchView& view, const C3DPoint& point);

/// The mesh of a model. Strips run from item to item of List1 and List2; points closer than a ten-millionth
/// of the size are one vertex, and strips and lines without extent are left out.
SolidMesh MakeSolidMesh(const CRuleSurfs& model, const SketchView& view);

/// How an edge is drawn if nothing hides it. A contour is where a smooth wall turns away from the eye.
enum class EdgeLook { None, BendLine, Contour, Outline };
EdgeLook LookOf(const SolidMesh& mesh, const MeshEdge& edge);

/// A vertex on the picture.
inline SketchXY OnPicture(const EyePoint& point) {
    return {point.x, point.y};
}

/// Depth of a face's plane at a place of the picture. The face must not be on edge.
double DepthAt(const SolidMesh& mesh, const MeshFace& face, const SketchXY& at);

/// The faces that are not on edge, to be found by where they lie on the picture.
class SeenFaces {
  public:
    explicit SeenFaces(const SolidMesh& mesh);

    [[nodiscard]] const std::vector<std::size_t>& Numbers() const { return numbers_; }  ///< in the mesh
    [[nodiscard]] const PlaceTree& Tree() const { return tree_; }  ///< their places, in that order

  private:
    std::vector<std::size_t> numbers_;
    PlaceTree tree_;
};

/// The faces that are not on edge, from the back to the front.
struct PaintingOrder {
    std::vector<std::size_t> faces;
    std::size_t compared = 0;  ///< how many comparisons of places it took: what the order costs
};
PaintingOrder PaintersOrder(const SolidMesh& mesh, const SeenFaces& seen);

/// Whether a face is none of the surface, from 1, that is shown off; nothing is pale beside surface 0.
bool IsPale(const MeshFace& face, std::size_t shownOff);

/// The pieces of the edges that no face hides, joined to long lines; bend lines come first, and pale ones
/// before others. A line is pale when none of its faces belongs to the surface that is shown off.
std::vector<SolidEdge> VisibleEdges(const SolidMesh& mesh, const SeenFaces& seen, std::size_t shownOff = 0);

}  // namespace korvet
